// SPDX-License-Identifier: MIT
//
// What the menus share: their colours, the bar of texts that two of them draw, and their keys.
#ifndef KUL_UI_MENU_HPP
#define KUL_UI_MENU_HPP

#include "../gui/edition.hpp"
#include "../gui/print.hpp"
#include "../gui/screen.hpp"
#include "../gui/text.hpp"
#include "element_list.hpp"
#include "handler.hpp"
#include "steps.hpp"

namespace kul {

// A menu as it is allocated.
struct Menu : KULMENU {
    using Public = KULMENU;
    Place<KULMENUELEMENT> place;
};

void dropMenu(KULMENU& menu);

struct MenuColors {
    int nSelected;
    int nEnabled;
    int nDisabled;
    bool focused;
    bool rests; // the selection is told without the focus
};

template <typename Record>
MenuColors menuColors(const Record& menu, int nFocus)
{
    if (nFocus == 1)
        return {menu.nColorFocus, menu.nColorUnfocus, menu.nColorDisable, true, false};
    return {menu.nColorUnfocus, menu.nColorUnfocus, menu.nColorUnfocus, false, isEdition2()};
}

template <typename Element>
int elementColor(const MenuColors& colors, const Element& element, bool selected)
{
    if (selected)
        return colors.nSelected;
    return element.nEnable == 1 ? colors.nEnabled : colors.nDisabled;
}

// Prints texts side by side, three columns apart, those that begin left of the window's right edge.
// onSelected gets the selected element after its text. Returns how many positions it came by.
template <typename Element, typename OnSelected>
int drawBar(WINDOW* win, int nY, int nX, const Element* element, int nSelect,
            const MenuColors& colors, OnSelected onSelected)
{
    constexpr int kGap = 3;
    int nPosition = 0;
    for (; element && nX < getmaxx(win); element = element->Next, ++nPosition) {
        const char* szText = element->szText ? element->szText : "";
        const bool selected = nPosition == nSelect;
        {
            const Attribute color(win, elementColor(colors, *element, selected),
                                  selected && colors.rests);
            print(win, nY, nX, szText);
        }
        if (selected) {
            if (colors.focused)
                showCursorAt(win, nY, nX);
            onSelected(*element);
        }
        nX = shifted(nX, widthOf(szText) + static_cast<long long>(kGap));
    }
    return nPosition;
}

// What the menus' keys differ in.
struct MenuKeys {
    UI_TYPE type;
    int nBack;
    int nForward;
    bool obeysControls; // ends, with KUL_NEXT, when a navigation control asks to leave
};

// The selection goes round the elements and one place after them, on which none is selected.
constexpr int steppedBack(int nSelect, int nElements)
{
    return nSelect == 0 ? nElements : shifted(nSelect, -1);
}

constexpr int steppedForward(int nSelect, int nElements)
{
    return nSelect == nElements ? 0 : shifted(nSelect, 1);
}

inline bool nothingPending(const GUI&, const void*)
{
    return ExitUIorGUIorChains() == -1;
}

inline auto& placeOf(Menu& menu)
{
    return menu.place;
}

// Elements that a page goes over; a bar is one page.
inline int pageOf(const Menu&)
{
    return INT_MAX / 2;
}

// The elements of a menu by index. Kinds keep their place in the list where it suits them.
template <typename Record>
auto elementsOf(Record& menu)
{
    return [&menu](int nIndex) { return placeOf(menu).find(menu.Element, nIndex); };
}

template <typename Record>
requires requires(Record& menu)
{
    placeOf(menu);
}
int countElements(Record& menu)
{
    return placeOf(menu).count(menu.Element);
}

template <typename Record>
requires requires(Record& menu)
{
    placeOf(menu);
}
bool selectElement(Record& menu, int nElement)
{
    if (nElement < 0 || nElement >= countElements(menu))
        return false;
    menu.nSelect = nElement;
    return true;
}

template <typename Record>
Steps stepsOf(Record& menu)
{
    return {&menu, countElements(menu), [](void* list, int nIndex) {
                return stepOf(elementsOf(*static_cast<Record*>(list))(nIndex));
            }};
}

// Whether Enter runs anything.
template <typename Record>
requires requires(Record& menu)
{
    placeOf(menu);
}
bool isClickable(Record& menu)
{
    const auto* element = elementsOf(menu)(menu.nSelect);
    return menu.onClick || (element && element->onClick);
}

// Moves a menu's selection by a key. Whether the key is one that moves.
template <typename Record>
bool stepMenu(Record& menu, int nKey, const MenuKeys& keys)
{
    if (nKey != keys.nBack && nKey != keys.nForward)
        return false;
    const auto step = nKey == keys.nBack ? steppedBack : steppedForward;
    menu.nSelect = step(menu.nSelect, menu.nElements);
    return true;
}

// The menus' keys in edition 2, where all that callbacks are for runs.
template <typename Record>
void handleMenuKey(Handler<Record>& handler, int nKey, const MenuKeys& keys)
{
    Record* menu = handler.record();
    if (!menu)
        return;
    const int nBefore = menu->nSelect;
    if (nKey == KS_ENTER) {
        handler.call(&Record::onClick);
        menu = handler.record();
        const auto* element = menu ? elementsOf(*menu)(nBefore) : nullptr;
        if (element && element->nEnable == 1)
            handler.run(element->onClick);
        return;
    }
    menu->nSelect =
        stepped(nBefore, nKey, {keys.nBack, keys.nForward, pageOf(*menu)}, stepsOf(*menu));
    handler.selection.nSelect = menu->nSelect;
    if (menu->nSelect == nBefore)
        return;
    SetCurrentSelection(&handler.selection);
    handler.call(&Record::onSelect);
}

// Gives a menu the keys until it loses the focus.
template <typename Record>
int runMenu(int nChain, int nRef, const MenuKeys& keys)
{
    auto* start = findUI<Record>(nChain, nRef, keys.type);
    if (!start || (start->nVisible != T && findDialog(nChain)->tabs))
        return KUL_NEXT;
    start->nSelect = settled(start->nSelect, stepsOf(*start));
    Handler<Record> handler({nChain, nRef, keys.type, 0, start->nSelect, 0});
    handler.call(&Record::onFocus);
    while (const int nKey = handler.key(keys.obeysControls ? nothingPending : nullptr)) {
        Record* menu = handler.record();
        if (isEdition2())
            handleMenuKey(handler, nKey, keys);
        else if (menu && stepMenu(*menu, nKey, keys))
            handler.selection.nSelect = menu->nSelect;
        else if (nKey == KS_ENTER)
            handler.call(&Record::onClick);
        handler.show(Changed::Selected);
    }
    if (keys.obeysControls && ExitUIorGUIorChains() != -1)
        handler.end(KUL_NEXT);
    return handler.finish(&Record::onUnfocus);
}

} // namespace kul

#endif
