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

// Adds a cleared element at the end. Null without memory.
template <typename Element>
Element* appendElement(Element*& head)
{
    Element** link = &head;
    while (*link)
        link = &(*link)->Next;
    return *link = allocate<Element>();
}

// Takes the last element off and frees it with what it owns. False when there is none.
template <typename Element>
bool removeLastElement(Element*& head, void (*drop)(Element&))
{
    if (!head)
        return false;
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
    while (element) {
        Element* next = element->Next;
        drop(*element);
        std::free(element);
        element = next;
    }
}

} // namespace kul

#endif
