// SPDX-License-Identifier: MIT
//
// Dynamic menus: a framed list of one row each, with a scroll bar when it is longer than the box.
#include "dynmenu.hpp"

#include <cwchar>

#include "../clamp.hpp"
#include "../gui/edition.hpp"
#include "menu.hpp"

namespace {

constexpr kul::MenuKeys kDynmenuKeys = {DYNMENU, KS_UP, KS_DOWN, true};
constexpr int kScrollBar = 1;

// Moves the view as little as it takes to show the selected element, or the last one when the
// selection is behind it, and to fill the box. The count is the list's, not the record's.
void follow(kul::MenuView& view, const KULDYNMENU& menu)
{
    const int nLast = std::max(view.place.count(menu.Element) - 1, 0);
    const int nShown = kul::clamp(menu.nSelect, 0, nLast);
    const int nBottom = std::max(menu.nHeight, 1) - 1;
    view.nFirst = kul::clamp(view.nFirst, std::max(nShown - nBottom, 0), nShown);
    view.nFirst = std::min(view.nFirst, std::max(nLast - nBottom, 0));
}

// How one character is printed.
struct Print {
    int nBytes;
    int nColumns;
    char shown; // in place of the bytes, if not 0
};

// Curses gets whole characters only: a control character would lead it out of the row, and a part
// of a character it keeps and adds to what comes next.
Print nextPrint(const char* szText)
{
    std::mbstate_t state{};
    wchar_t wide = 0;
    const std::size_t nLongest = NCURSES_WIDECHAR ? MB_CUR_MAX : 1;
    const std::size_t size = std::mbrtowc(&wide, szText, nLongest, &state);
    const int nColumns = size <= nLongest ? wcwidth(wide) : -1;
    if (nColumns >= 0)
        return {static_cast<int>(size), nColumns, '\0'};
    const auto byte = static_cast<unsigned char>(*szText);
    return {1, 1, byte < ' ' || byte == KS_BACKSPACE ? ' ' : '?'};
}

// Prints what of a text fits into nWidth columns and into the window. An accent without a letter
// before it is left out: it would go to the frame.
void drawCut(WINDOW* win, int nY, int nX, int nWidth, const char* szText)
{
    const int nEnd = std::min(kul::shifted(nX, nWidth), getmaxx(win));
    if (!kul::isDrawn(win, nY))
        return;
    const std::string_view text(szText);
    if (nX >= 0 && kul::allPlain(text)) {
        kul::plainRun(
            win, nY, nX,
            {szText, std::min(text.size(), static_cast<std::size_t>(std::max(nEnd - nX, 0)))});
        return;
    }
    if (kul::isEdition2()) {
        kul::printLetters(win, nY, nX, nEnd, szText, kul::ShownControls::Skipped, nWidth);
        return;
    }
    kul::drawAcrossColumns(win);
    bool shown = false; // the letter that an accent goes to
    for (int nAt = nX; *szText && nAt < nEnd;) {
        const Print print = nextPrint(szText);
        if (print.nColumns > 0)
            shown = nAt + print.nColumns <= nEnd && wmove(win, nY, nAt) != ERR;
        if (shown)
            waddnstr(win, print.shown ? &print.shown : szText, print.nBytes);
        nAt += print.nColumns;
        szText += print.nBytes;
    }
}

void drawRows(WINDOW* win, const KULDYNMENU& menu, kul::MenuView& view,
              const kul::MenuColors& colors)
{
    const int nX = kul::shifted(menu.nX, 1);
    const KULMENUELEMENT* element = view.place.find(menu.Element, view.nFirst);
    for (int i = 0; element && i < menu.nHeight; element = element->Next, ++i) {
        const int nY = kul::shifted(menu.nY, 1LL + i);
        if (nY >= getmaxy(win))
            break;
        if (!kul::isDrawn(win, nY))
            continue;
        const bool selected = view.nFirst + i == menu.nSelect;
        const int nColor = kul::elementColor(colors, *element, selected);
        if (selected && colors.focused)
            kul::showCursorAt(win, nY, nX);
        const kul::Attribute color(win, nColor, selected && colors.rests);
        kul::hRun(win, nY, nX, menu.nWidth, ' ');
        drawCut(win, nY, nX, menu.nWidth, element->szText ? element->szText : "");
    }
}

// Whether there is a scroll bar that tells where the view is.
bool barTells(const KULDYNMENU& menu)
{
    return kul::isEdition2() && menu.nHeight < menu.nElements;
}

// One that tells stands beside the rows, the other one from corner to corner.
void drawScrollBar(GUI* gui, const KULDYNMENU& menu, int nFirst, int nColor)
{
    const bool tells = barTells(menu);
    KULGAUGEBAR bar{};
    bar.nColorBar = bar.nColorRail = nColor;
    bar.nX = kul::shifted(menu.nX, menu.nWidth + 1LL);
    bar.nY = kul::shifted(menu.nY, tells ? 1 : 0);
    bar.nLength = kul::shifted(menu.nHeight, tells ? 0 : 2);
    bar.nRange = menu.nElements;
    bar.nPosition = tells ? nFirst : 1;
    bar.nOrient = VERTICAL;
    BarShow(gui, &bar, kScrollBar);
}

void draw(GUI* gui, const KULDYNMENU& menu, kul::MenuView& view, int nFocus)
{
    if (menu.nVisible != T || menu.nWidth < 1 || menu.nHeight < 1)
        return;
    const int nFrame = nFocus == 1 ? menu.nColorFocus : menu.nColorUnfocus;
    const int nWidth = kul::shifted(menu.nWidth, 2);
    const int nHeight = kul::shifted(menu.nHeight, 2);
    Fill(gui->winMain, menu.nY, menu.nX, nHeight, nWidth, nFrame);
    DrawBorder(gui->winMain, menu.nY, menu.nX, nHeight, nWidth, nFrame);
    follow(view, menu);
    drawRows(gui->winMain, menu, view, kul::menuColors(menu, nFocus));
    if (menu.nHeight < menu.nElements)
        drawScrollBar(gui, menu, view.nFirst, nFrame);
}

} // namespace

namespace kul {

Spot spotOf(DynMenu& menu)
{
    follow(menu.view, menu);
    const int nY = shifted(menu.nY, 1LL + menu.nSelect - menu.view.nFirst);
    return {{nY, shifted(nY, 1)}, menu.view.nFirst};
}

void dropDynmenu(KULDYNMENU& menu)
{
    dropAll(menu.Element);
    if (auto* inner = innerOf<DynMenu>(&menu))
        inner->view = {};
}

} // namespace kul

int AttachDynmenuComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, DYNMENU);
}

int ConfigDynmenuComponent(GUI* thisGUI, KULDYNMENU* thisMenu)
{
    if (!thisGUI || !thisMenu)
        return -1;
    kul::takeColors(*thisGUI, *thisMenu);
    kul::setCallbacks(*thisMenu, nullptr, nullptr, nullptr, nullptr);
    thisMenu->Element = nullptr;
    thisMenu->nElements = 0;
    thisMenu->nVisible = T;
    return 0;
}

int WipeDynmenuComponent(KULDYNMENU* thisMenu)
{
    if (thisMenu)
        kul::dropAll(thisMenu->Element);
    kul::freeRecord(thisMenu);
    return 0;
}

int kuldynmenu_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, DYNMENU);
}

int kuldynmenu_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                      int nX, int nY, int nWidth, int nHeight, KULCALLBACK onFocus,
                      KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* menu =
        kul::resetUI<KULDYNMENU>(nChain, nRef, DYNMENU, nColorFocus, nColorUnfocus, nColorDisable);
    if (!menu)
        return -1;
    kul::setCallbacks(*menu, onFocus, onUnfocus, onSelect, onClick);
    menu->nX = nX;
    menu->nY = nY;
    menu->nWidth = nWidth;
    menu->nHeight = nHeight;
    menu->nSelect = 0;
    menu->nMaxLength = 0;
    return 0;
}

int kuldynmenu_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kuldynmenu_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kuldynmenu_addElement(int nChain, int nRef, const char* szText, KULCALLBACK onSelect,
                          KULCALLBACK onClick, int nEnable)
{
    auto* menu = kul::findUI<KULDYNMENU>(nChain, nRef, DYNMENU);
    if (!menu)
        return -1;
    auto* added = AddMenuElement(menu->Element, nEnable, szText, onSelect, onClick);
    if (!kul::takeAdded(menu->Element, menu->nElements, menu->nSelect, added))
        return -1;
    menu->nMaxLength = std::max(menu->nMaxLength, kul::widthOf(added->szText));
    return 0;
}

int kuldynmenu_remElement(int nChain, int nRef, int)
{
    auto* menu = kul::findUI<KULDYNMENU>(nChain, nRef, DYNMENU);
    return menu ? kul::dropLast(menu->Element) : -1;
}

KULMENUELEMENT* kuldynmenu_getElement(int nChain, int nRef, int nElement)
{
    const auto* menu = kul::findUI<KULDYNMENU>(nChain, nRef, DYNMENU);
    return menu ? kul::cappedLookup(menu->Element, nElement) : nullptr;
}

int kuldynmenu_count(int nChain, int nRef)
{
    return kul::countUI<kul::DynMenu>(nChain, nRef, DYNMENU);
}

// The record may be the program's own, without a view: it is shown from its start.
void ShowDynmenuComponent(GUI* thisGUI, KULDYNMENU* thisMenu, int nFocus)
{
    kul::MenuView start{};
    auto* inner = kul::innerOf<kul::DynMenu>(thisMenu);
    if (thisGUI && thisMenu)
        draw(thisGUI, *thisMenu, inner ? inner->view : start, nFocus);
}

int kuldynmenu_execKeys(int nChain, int nRef)
{
    return kul::runMenu(nChain, nRef, kDynmenuKeys, kul::anyMenu<kul::DynMenu>);
}
