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
    Finger<KULMENUELEMENT> place;
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
// In edition 2 the first ones give way to the selected one, which ends left of a frame. That one is
// described once its text is there: newlines in others take them on to rows below.
template <typename Element, typename Describe>
void drawBar(WINDOW* win, int nY, int nX, const Element* element, const Element* selected,
             const MenuColors& colors, Describe describe)
{
    constexpr long long kGap = 3;
    const auto columns = [](const Element* each) -> long long {
        return widthOf(each->szText ? each->szText : "");
    };
    if (const Element* head = element; isEdition2() && selected) {
        long long nEnd = nX + columns(element = selected);
        while (element != head && element->Prev &&
               (nEnd += kGap + columns(element->Prev)) < getmaxx(win))
            element = element->Prev;
    }
    for (; element && nX < getmaxx(win); element = element->Next) {
        {
            const Attribute color(win, elementColor(colors, *element, element == selected),
                                  element == selected && colors.rests);
            print(win, nY, nX, element->szText ? element->szText : "");
        }
        if (element == selected) {
            if (colors.focused)
                showCursorAt(win, nY, nX);
            describe();
        }
        nX = shifted(nX, columns(element) + kGap);
    }
}

// A menu of any kind, for what does not draw it.
struct AnyMenu {
    int& nSelect;
    int& nElements; // added so far, as the record says
    UICalls& calls;
    AnyElement* head;
    AnyFinger& place;
    ElementShape shape;
    int nPage; // elements that a page goes over

    AnyElement* find(int nIndex) const { return place.find(shape, head, nIndex); }
    int count() const { return place.count(shape, head); }
};

// Elements that a page goes over; a bar is one page.
template <typename Record>
int pageOf(const Record&)
{
    return INT_MAX / 2;
}

inline Finger<KULMENUELEMENT>& placeOf(Menu& menu)
{
    return menu.place;
}

template <typename Record>
[[gnu::noinline]] AnyMenu anyMenu(void* record)
{
    auto& menu = *static_cast<Record*>(record);
    using Element = std::remove_pointer_t<decltype(menu.Element)>;
    static_assert(offsetof(typename Record::Public, onClick) ==
                  offsetof(typename Record::Public, onFocus) + offsetof(UICalls, onClick));
    return {menu.nSelect,        menu.nElements, reinterpret_cast<UICalls&>(menu.onFocus),
            asAny(menu.Element), placeOf(menu),  shapeOf<Element>(),
            pageOf(menu)};
}

// What the table of kinds and the count calls ask.

bool selectElement(const AnyMenu& menu, int nElement);
bool isClickable(const AnyMenu& menu); // whether Enter runs anything

template <typename Record>
concept MenuRecord = requires(Record& menu)
{
    placeOf(menu);
};

template <MenuRecord Record>
int countElements(Record& menu)
{
    return anyMenu<Record>(&menu).count();
}

template <MenuRecord Record>
bool selectElement(Record& menu, int nElement)
{
    return selectElement(anyMenu<Record>(&menu), nElement);
}

template <MenuRecord Record>
bool isClickable(Record& menu)
{
    return isClickable(anyMenu<Record>(&menu));
}

// What the menus' keys differ in.
struct MenuKeys {
    UI_TYPE type;
    int nBack;
    int nForward;
    bool obeysControls; // ends, with KUL_NEXT, when a navigation control asks to leave
};

// Gives a menu, which menuOf makes of its record, the keys until it loses the focus.
int runMenu(int nChain, int nRef, const MenuKeys& keys, AnyMenu (*menuOf)(void* record));

} // namespace kul

#endif
