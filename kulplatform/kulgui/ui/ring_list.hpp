// SPDX-License-Identifier: MIT
//
// What check box lists and option lists have in common besides their elements: settings, drawing
// and keys.
#ifndef KUL_UI_RING_LIST_HPP
#define KUL_UI_RING_LIST_HPP

#include <optional>

#include "handler.hpp"
#include "ring_view.hpp"
#include "steps.hpp"

namespace kul {

// Records and their settings.

// The state of a list that the library made.
template <typename Record>
RingState* ringOf(Record& list)
{
    auto* inner = innerOf<RingList<Record>>(&list);
    return inner ? &inner->ring : nullptr;
}

// Frees the elements.
void dropRing(const List& list);

template <typename Record>
void dropList(Record& list)
{
    dropRing(listOf(list, ringOf(list)));
}

// Frees a record, null for none, with its elements. 0, -1 when it had none.
int wipeList(void* record, const List& list);

void setListDefaults(const GUI& gui, const List& list);

// Drawing.

// The three characters in front of an element.
using Marker = const char* (*)(const List& list, AnyElement* element, int nIndex);

void showList(GUI& gui, const List& list, int nFocus, Marker marker);

Spot spotOf(const List& list);

template <typename Record>
Spot spotOf(RingList<Record>& list)
{
    return spotOf(listOf(list));
}

// Elements.

// Puts the cursor on an element and shows it. False when there is none.
bool selectElement(const List& list, int nElement);

template <typename Record>
bool selectElement(RingList<Record>& list, int nElement)
{
    return selectElement(listOf(list), nElement);
}

template <typename Record>
int countElements(const RingList<Record>& list)
{
    return std::max(list.nElements, 0);
}

// Keys.

class ListHandler : public CallsHandler {
public:
    using CallsHandler::CallsHandler;

    // The list as it is now; none, and the handler over, when it is gone.
    std::optional<List> list();

    // Runs a callback of the cursor's element, wherever in the list that is.
    void callElement(KULCALLBACK ElementLinks::*callback);

    // Has the selection say what the list says now.
    void noteSelection();
};

// What the lists' keys differ in.
struct ListKeys {
    UI_TYPE type;
    Changed clickChanges;        // at the most, what Space and Enter do
    bool endsHidden;             // when it gets hidden; else it goes on unseen
    void (*click)(ListHandler&); // runs what Space and Enter do
    void (*moved)(ListHandler&); // runs the callbacks after a move
};

// Gives a list the keys until it loses the focus.
int runList(int nChain, int nRef, const List& start, const ListKeys& keys);

} // namespace kul

#endif
