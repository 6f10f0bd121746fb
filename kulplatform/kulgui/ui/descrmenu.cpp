// SPDX-License-Identifier: MIT
//
// Description menus: a bar of texts, and a box that hangs from the line below it with what the
// selected one means.
#include "descrmenu.hpp"

#include "menu.hpp"

namespace {

constexpr kul::MenuKeys kDescrmenuKeys = {DESCRMENU, KS_LEFT, KS_RIGHT, false};

void draw(GUI* gui, const KULDESCRMENU& menu, kul::Finger<KULDESCRMENUELEMENT>& place, int nFocus)
{
    if (menu.nVisible != T)
        return;
    WINDOW* win = gui->winMain;
    const int nFrame = nFocus == 1 ? menu.nColorFocus : menu.nColorUnfocus;
    const int nLine = kul::shifted(menu.nY, 1);
    const int nBox = kul::shifted(menu.nY, 2);
    Fill(win, nBox, menu.nX, menu.nBoxHeight, menu.nBoxWidth, nFrame);
    Fill(win, nLine, menu.nX, 1, menu.nBarLength, nFrame);
    DrawBorder(win, nLine, menu.nX, kul::shifted(menu.nBoxHeight, 1), menu.nBoxWidth, nFrame);
    const auto* selected = place.find(menu.Element, menu.nSelect);
    bool described = !selected;
    const auto describe = [&] {
        described = true;
        NewStrToBox(win, kul::shifted(menu.nX, 1), nBox, kul::shifted(menu.nBoxWidth, -3),
                    kul::shifted(menu.nBoxHeight, -2), nFrame, LEFT, selected->szBoxText);
    };
    kul::drawBar(win, menu.nY, menu.nX, menu.Element, selected, kul::menuColors(menu, nFocus),
                 describe);
    // One whose text lies outside of the window is described all the same.
    if (!described)
        describe();
}

} // namespace

namespace kul {

void dropDescrmenu(KULDESCRMENU& menu)
{
    dropAll(menu.Element);
}

} // namespace kul

KULDESCRMENUELEMENT* AddDescrmenuElement(KULDESCRMENUELEMENT* firstElement, int nEnable,
                                         const char* szText, const char* szBoxText, KULCALLBACK,
                                         KULCALLBACK onClick)
{
    auto* element = kul::newElement<KULDESCRMENUELEMENT>(nEnable, szText, nullptr, onClick);
    if (element && !(element->szBoxText = kul::copyText(szBoxText))) {
        kul::freeElement(kul::shapeOf<KULDESCRMENUELEMENT>(), kul::asAny(element));
        return nullptr;
    }
    return kul::append(firstElement, element);
}

int RemoveDescrmenuElement(KULDESCRMENUELEMENT* firstElement)
{
    return kul::removeLast(firstElement);
}

int WipeDescrmenuElements(KULDESCRMENUELEMENT* firstElement)
{
    return kul::wipe(firstElement);
}

int AttachDescrmenuComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, DESCRMENU);
}

int ConfigDescrmenuComponent(GUI* thisGUI, KULDESCRMENU* thisMenu)
{
    if (!thisGUI || !thisMenu)
        return -1;
    kul::takeColors(*thisGUI, *thisMenu);
    kul::setCallbacks(*thisMenu, nullptr, nullptr, nullptr, nullptr);
    thisMenu->nX = 2;
    thisMenu->nY = 2;
    thisMenu->nBarLength = 75;
    thisMenu->nBoxWidth = 20;
    thisMenu->nBoxHeight = 19;
    thisMenu->Element = nullptr;
    thisMenu->nVisible = T;
    thisMenu->nElements = 0;
    thisMenu->nSelect = -1;
    return 0;
}

int WipeDescrmenuComponent(KULDESCRMENU* thisMenu)
{
    if (thisMenu)
        kul::dropDescrmenu(*thisMenu);
    kul::freeRecord(thisMenu);
    return 0;
}

int kuldescrmenu_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, DESCRMENU);
}

int kuldescrmenu_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                        int, int, int nBarLength, int nBoxWidth, int nBoxHeight,
                        KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                        KULCALLBACK onClick)
{
    auto* menu = kul::resetUI<KULDESCRMENU>(nChain, nRef, DESCRMENU, nColorFocus, nColorUnfocus,
                                            nColorDisable);
    if (!menu)
        return -1;
    kul::setCallbacks(*menu, onFocus, onUnfocus, onSelect, onClick);
    SetVar(&menu->nBarLength, nBarLength);
    SetVar(&menu->nBoxWidth, nBoxWidth);
    SetVar(&menu->nBoxHeight, nBoxHeight);
    return 0;
}

int kuldescrmenu_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kuldescrmenu_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kuldescrmenu_addElement(int nChain, int nRef, int nEnable, const char* szText,
                            const char* szBoxText, KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* menu = kul::findUI<KULDESCRMENU>(nChain, nRef, DESCRMENU);
    if (!menu)
        return -1;
    auto* added = AddDescrmenuElement(menu->Element, nEnable, szText, szBoxText, onSelect, onClick);
    return kul::takeAdded(menu->Element, menu->nElements, menu->nSelect, added) ? 0 : -1;
}

int kuldescrmenu_remElement(int nChain, int nRef, int)
{
    auto* menu = kul::findUI<KULDESCRMENU>(nChain, nRef, DESCRMENU);
    return menu ? kul::dropLast(menu->Element) : -1;
}

KULDESCRMENUELEMENT* kuldescrmenu_getElement(int nChain, int nRef, int nElement)
{
    const auto* menu = kul::findUI<KULDESCRMENU>(nChain, nRef, DESCRMENU);
    return menu ? kul::cappedLookup(menu->Element, nElement) : nullptr;
}

int kuldescrmenu_count(int nChain, int nRef)
{
    return kul::countUI<kul::DescrMenu>(nChain, nRef, DESCRMENU);
}

// The record may be the program's own, that remembers no place.
void ShowDescrmenuComponent(GUI* thisGUI, KULDESCRMENU* thisMenu, int nFocus)
{
    kul::Finger<KULDESCRMENUELEMENT> start{};
    auto* inner = kul::innerOf<kul::DescrMenu>(thisMenu);
    if (thisGUI && thisMenu)
        draw(thisGUI, *thisMenu, inner ? inner->place : start, nFocus);
}

int kuldescrmenu_execKeys(int nChain, int nRef)
{
    return kul::runMenu(nChain, nRef, kDescrmenuKeys, kul::anyMenu<kul::DescrMenu>);
}
