// SPDX-License-Identifier: MIT
//
// What the menus share: their colours, the bar of texts that two of them draw, and their keys.
#ifndef KUL_UI_MENU_HPP
#define KUL_UI_MENU_HPP

#include "element_list.hpp"
#include "handler.hpp"

namespace kul {

void dropMenu(KULMENU& menu);

struct MenuColors {
    int nSelected;
    int nEnabled;
    int nDisabled;
};

template <typename Record>
MenuColors menuColors(const Record& menu, int nFocus)
{
    if (nFocus == 1)
        return {menu.nColorFocus, menu.nColorUnfocus, menu.nColorDisable};
    return {menu.nColorUnfocus, menu.nColorUnfocus, menu.nColorUnfocus};
}

template <typename Element>
int elementColor(const MenuColors& colors, const Element& element, bool selected)
{
    if (selected)
        return colors.nSelected;
    return element.nEnable == 1 ? colors.nEnabled : colors.nDisabled;
}

// Prints texts side by side, three columns apart, those that begin left of the window's right edge;
// a longer one goes on in the next row. onSelected gets the selected element after its text.
// Returns how many positions it came by.
template <typename Element, typename OnSelected>
int drawBar(WINDOW* win, int nY, int nX, const Element* element, int nSelect,
            const MenuColors& colors, OnSelected onSelected)
{
    constexpr int kGap = 3;
    int nPosition = 0;
    for (; element && nX < getmaxx(win); element = element->Next, ++nPosition) {
        const char* szText = element->szText ? element->szText : "";
        {
            const Attribute color(win, elementColor(colors, *element, nPosition == nSelect));
            print(win, nY, nX, szText);
        }
        if (nPosition == nSelect)
            onSelected(*element);
        nX = shifted(nX, length(szText) + static_cast<long long>(kGap));
    }
    return nPosition;
}

// What the menus' keys differ in.
struct MenuKeys {
    UI_TYPE type;
    int nBack;
    int nForward;
    bool obeysControls; // ends, with 10, when a navigation control asks to leave
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

// Gives a menu the keys until it loses the focus.
template <typename Record>
int runMenu(int nChain, int nRef, const MenuKeys& keys)
{
    const auto* start = findUI<Record>(nChain, nRef, keys.type);
    if (!start || (start->nVisible != T && findDialog(nChain)->tabs))
        return 10;
    Handler<Record> handler({nChain, nRef, keys.type, 0, start->nSelect, 0});
    handler.call(&Record::onFocus);
    while (const int nKey = handler.key(keys.obeysControls ? nothingPending : nullptr)) {
        Record* menu = handler.record();
        if (menu && (nKey == keys.nBack || nKey == keys.nForward)) {
            const auto stepped = nKey == keys.nBack ? steppedBack : steppedForward;
            menu->nSelect = stepped(menu->nSelect, menu->nElements);
            handler.selection.nSelect = menu->nSelect;
        } else if (nKey == KS_ENTER) {
            handler.call(&Record::onClick);
        }
        handler.show();
    }
    if (keys.obeysControls && ExitUIorGUIorChains() != -1)
        handler.end(10);
    return handler.finish(&Record::onUnfocus);
}

} // namespace kul

#endif
