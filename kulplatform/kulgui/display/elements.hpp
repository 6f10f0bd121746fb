// SPDX-License-Identifier: MIT
//
// The singly linked elements of the items that have some: status bar and description field.
#ifndef KUL_DISPLAY_ELEMENTS_HPP
#define KUL_DISPLAY_ELEMENTS_HPP

#include "../gui/memory.hpp"

namespace kul {

// The element at a position from 0 on; the first one for what lies before, null past the end.
template <typename Element>
Element* elementAt(Element* element, int nPosition)
{
    for (; element && nPosition > 0; --nPosition)
        element = element->Next;
    return element;
}

// Counts what was taken out of any list: who remembers an element must then look for it anew.
inline unsigned nItemRemovals = 0;

// The last element of a list, so that adding one is a step. Cleared memory is a new one. It notices
// by itself what happened to the list.
template <typename Element>
struct Tail {
    Element* head;
    Element* last;
    unsigned nRemovals;
};

// Adds a cleared element at the end. Null without memory.
template <typename Element>
Element* appendElement(Element*& head, Tail<Element>& tail)
{
    if (tail.head != head || tail.nRemovals != nItemRemovals)
        tail = {head, head, nItemRemovals};
    while (tail.last && tail.last->Next)
        tail.last = tail.last->Next;
    auto* added = allocate<Element>();
    if (!added)
        return nullptr;
    (tail.last ? tail.last->Next : head) = added;
    tail = {head, added, nItemRemovals};
    return added;
}

// Takes the last element off and frees it with what it owns. False when there is none.
template <typename Element>
bool removeLastElement(Element*& head, void (*drop)(Element&))
{
    if (!head)
        return false;
    ++nItemRemovals;
    Element** link = &head;
    while ((*link)->Next)
        link = &(*link)->Next;
    drop(**link);
    std::free(*link);
    *link = nullptr;
    return true;
}

// Frees elements with what they own.
template <typename Element>
void freeElements(Element* element, void (*drop)(Element&))
{
    ++nItemRemovals;
    while (element) {
        Element* next = element->Next;
        drop(*element);
        std::free(element);
        element = next;
    }
}

} // namespace kul

#endif
