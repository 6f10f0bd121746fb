// SPDX-License-Identifier: MIT
//
// Menus: a bar of texts. Their elements, which dynamic menus have as well, are here too.
#include "menu.hpp"

namespace {

constexpr kul::MenuKeys kMenuKeys = {MENU, KS_LEFT, KS_RIGHT, true};

} // namespace

namespace kul {

void dropMenu(KULMENU& menu)
{
    dropAll(menu.Element);
}

} // namespace kul

KULMENUELEMENT* AddMenuElement(KULMENUELEMENT* firstElement, int nEnable, const char* szText,
                               KULCALLBACK, KULCALLBACK onClick)
{
    return kul::append(firstElement,
                       kul::newElement<KULMENUELEMENT>(nEnable, szText, nullptr, onClick));
}

int RemoveMenuElement(KULMENUELEMENT* firstElement)
{
    return kul::removeLast(firstElement);
}

int WipeMenuElements(KULMENUELEMENT* firstElement)
{
    return kul::wipe(firstElement);
}

int AttachMenuComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, MENU);
}

int ConfigMenuComponent(GUI* thisGUI, KULMENU* thisMenu)
{
    if (!thisGUI || !thisMenu)
        return -1;
    kul::takeColors(*thisGUI, *thisMenu);
    kul::setCallbacks(*thisMenu, nullptr, nullptr, nullptr, nullptr);
    thisMenu->nX = 2;
    thisMenu->nY = 2;
    thisMenu->Element = nullptr;
    thisMenu->nSelect = 0;
    thisMenu->nElements = 0;
    thisMenu->nVisible = T;
    return 0;
}

int WipeMenuComponent(KULMENU* thisMenu)
{
    if (thisMenu)
        kul::dropMenu(*thisMenu);
    kul::freeRecord(thisMenu);
    return 0;
}

int kulmenu_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, MENU);
}

int kulmenu_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                   KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                   KULCALLBACK onClick)
{
    auto* menu =
        kul::resetUI<KULMENU>(nChain, nRef, MENU, nColorFocus, nColorUnfocus, nColorDisable);
    if (!menu)
        return -1;
    kul::setCallbacks(*menu, onFocus, onUnfocus, onSelect, onClick);
    return 0;
}

int kulmenu_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulmenu_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kulmenu_addElement(int nChain, int nRef, const char* szText, int nEnable, KULCALLBACK onSelect,
                       KULCALLBACK onClick)
{
    auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    if (!menu)
        return -1;
    auto* added = AddMenuElement(menu->Element, nEnable, szText, onSelect, onClick);
    return kul::takeAdded(menu->Element, menu->nElements, menu->nSelect, added) ? 0 : -1;
}

int kulmenu_remElement(int nChain, int nRef, int)
{
    auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    return menu ? kul::dropLast(menu->Element, menu->nElements, menu->nSelect) : -1;
}

KULMENUELEMENT* kulmenu_getElement(int nChain, int nRef, int nElement)
{
    const auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    return menu ? kul::cappedLookup(menu->Element, nElement) : nullptr;
}

int kulmenu_count(int nChain, int nRef)
{
    return kul::countUI<kul::Menu>(nChain, nRef, MENU);
}

void ShowMenuComponent(GUI* thisGUI, KULMENU* thisMenu, int nFocus)
{
    if (!thisGUI || !thisMenu || thisMenu->nVisible != T)
        return;
    kul::drawBar(thisGUI->winMain, thisMenu->nY, thisMenu->nX, thisMenu->Element, thisMenu->nSelect,
                 kul::menuColors(*thisMenu, nFocus), [](const KULMENUELEMENT&) {});
}

int kulmenu_execKeys(int nChain, int nRef)
{
    const auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    if (!menu || menu->nVisible != T)
        return KUL_NEXT;
    return kul::runMenu<kul::Menu>(nChain, nRef, kMenuKeys);
}
