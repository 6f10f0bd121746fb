// SPDX-License-Identifier: MIT
//
// The elements of check box lists and option lists: a ring, and the view of it that the box shows.
// The view goes from FirstShowed to LastShowed; the last one may be cut by the box:
//
//     ring         box
//     one
//     two      +----------+
//     three    |three     |  FirstShowed
//     four     |four      |
//     five a   |five a    |  LastShowed, two rows high
//     five b   +----------+
//
// A lone element has no links; with more of them the last one's Next is the head, whose Prev is the
// last one. Nothing here walks a list from its head for each key or each element that is added.
#ifndef KUL_UI_RING_VIEW_HPP
#define KUL_UI_RING_VIEW_HPP

#include <type_traits>

#include "element_list.hpp"

namespace kul {

template <typename Record>
using ElementOf = std::remove_pointer_t<decltype(Record::Element)>;

// A list as it is allocated: the public record, KULCHECKBOX or KULOPTIONS, and where its ring was
// last looked at.
template <typename Record>
struct RingList : Record {
    using Public = Record;
    ElementOf<Record>* head;  // the list that the rest of this is about
    ElementOf<Record>* found; // the element that was looked for last, and its index
    int nFound;
    unsigned nRemovals; // nElementRemovals at that time
    long long nRows;    // that all elements take together
};

using CheckList = RingList<KULCHECKBOX>;
using OptionList = RingList<KULOPTIONS>;

inline int& cursorOf(KULCHECKBOX& list)
{
    return list.nSelect;
}

inline int& cursorOf(KULOPTIONS& list)
{
    return list.nPosition;
}

// The box without its border: rows for elements, and columns for texts behind the markers.
template <typename Record>
int viewRows(const Record& list)
{
    return shifted(list.nHeight, list.nBorder == BORDER ? -2 : 0);
}

template <typename Record>
int textWidth(const Record& list)
{
    return shifted(list.nWidth, list.nBorder == BORDER ? -6 : -4);
}

template <typename Record>
bool hasRoom(const Record& list)
{
    return viewRows(list) > 0 && textWidth(list) > 0;
}

// Index of the last element; the count may be any number that a program wrote.
template <typename Record>
int lastIndex(const Record& list)
{
    return shifted(list.nElements, -1);
}

// The ring.

template <typename Element>
Element* appendToRing(Element* head, Element* added)
{
    if (!head || !added)
        return added;
    Element* last = head->Prev ? head->Prev : head;
    last->Next = head->Prev = added;
    added->Prev = last;
    added->Next = head;
    return added;
}

// Frees the last element. 1 when it was the only one, else 0; -1 for null.
template <typename Element>
int removeLastOfRing(Element* head)
{
    if (!head)
        return -1;
    ++nElementRemovals;
    Element* last = head->Prev ? head->Prev : head;
    Element* before = last->Prev;
    if (last != head) {
        before->Next = before == head ? nullptr : head;
        head->Prev = before == head ? nullptr : before;
    }
    freeElement(last);
    return last == head ? 1 : 0;
}

// Frees all elements. 0, -1 for null.
template <typename Element>
int wipeRing(Element* head)
{
    if (!head)
        return -1;
    ++nElementRemovals;
    if (head->Prev)
        head->Prev->Next = nullptr;
    while (head) {
        Element* next = head->Next;
        freeElement(head);
        head = next;
    }
    return 0;
}

// Rows of the first nElements elements.
template <typename Record>
long long rowsOfAll(const Record& list)
{
    long long rows = 0;
    const auto* element = list.Element;
    for (int i = 0; element && i < list.nElements; ++i, element = element->Next)
        rows += element->nHeight;
    return rows;
}

// Forgets what was found in a ring that is another one now, or that may have lost elements. Whether
// it did; FirstShowed and LastShowed may then be gone.
template <typename Record>
bool noticeLoss(RingList<Record>& list)
{
    if (list.head == list.Element && list.nRemovals == nElementRemovals)
        return false;
    list.head = list.found = list.Element;
    list.nFound = 0;
    list.nRemovals = nElementRemovals;
    list.nRows = rowsOfAll(list);
    return true;
}

// The element at an index, null when there is none, reached from the nearest one of the head, the
// last one and the one found before. Losses were noticed before.
template <typename Record>
ElementOf<Record>* elementAt(RingList<Record>& list, int nIndex)
{
    auto* head = list.Element;
    if (!head || nIndex < 0 || nIndex >= list.nElements)
        return nullptr;
    auto* found = list.found;
    int nFound = list.nFound;
    if (nIndex < std::abs(nIndex - nFound)) {
        found = head;
        nFound = 0;
    }
    const int nLast = lastIndex(list);
    if (head->Prev && nLast - nIndex < std::abs(nIndex - nFound)) {
        found = head->Prev;
        nFound = nLast;
    }
    for (; found && nFound < nIndex; ++nFound)
        found = found->Next;
    for (; found && nFound > nIndex; --nFound)
        found = found->Prev;
    if (found) {
        list.found = found;
        list.nFound = nFound;
    }
    return found;
}

// The view. These need the public record only.

// Begins the view with the element at index nFirstShowed, however often that is round the ring.
template <typename Record>
void setFirst(Record& list)
{
    int nSteps = std::max(list.nFirstShowed, 0);
    if (list.nElements > 0)
        nSteps %= list.nElements;
    list.FirstShowed = list.Element;
    for (; list.FirstShowed && list.FirstShowed->Next && nSteps > 0; --nSteps)
        list.FirstShowed = list.FirstShowed->Next;
}

template <typename Record>
void emptyView(Record& list)
{
    list.LastShowed = nullptr;
    list.nLastShowed = shifted(list.nFirstShowed, -1);
}

// Ends the view with the element that fills the box, or the last one.
template <typename Record>
void setLast(Record& list)
{
    const int nRows = viewRows(list);
    auto* element = list.LastShowed = list.FirstShowed;
    if (!element)
        return;
    if (nRows < 1) {
        emptyView(list);
        return;
    }
    int nIndex = list.nFirstShowed;
    for (long long used = element->nHeight;
         used < nRows && nIndex < lastIndex(list) && element->Next; ++nIndex) {
        element = element->Next;
        used += element->nHeight;
    }
    list.LastShowed = element;
    list.nLastShowed = nIndex;
}

// Whether the last element in view is cut.
template <typename Record>
bool spills(const Record& list)
{
    const int nRows = viewRows(list);
    const long long nShowed = std::min(1LL + list.nLastShowed - list.nFirstShowed,
                                       static_cast<long long>(list.nElements));
    long long used = 0;
    const auto* element = list.FirstShowed;
    for (int i = 0; element && i < nShowed && used <= nRows; ++i) {
        used += element->nHeight;
        element = element->Next;
    }
    return used > nRows;
}

// Begins the view so that it ends with the given element, or before it where the first one is cut.
template <typename Record>
void setFirstBefore(Record& list, ElementOf<Record>* element, int nIndex)
{
    const int nRows = viewRows(list);
    long long used = 0;
    for (; nIndex > 0 && element->Prev && used + element->nHeight < nRows; --nIndex) {
        used += element->nHeight;
        element = element->Prev;
    }
    list.FirstShowed = element;
    list.nFirstShowed = nIndex;
}

template <typename Record>
void setFirstFromEnd(Record& list)
{
    if (list.nElements < 2)
        list.nFirstShowed = lastIndex(list);
    else if (list.Element)
        setFirstBefore(list, list.Element->Prev ? list.Element->Prev : list.Element,
                       lastIndex(list));
}

// The view while elements come and the cursor moves.

template <typename Record>
void setView(RingList<Record>& list)
{
    list.FirstShowed = elementAt(list, std::max(list.nFirstShowed, 0));
    if (hasRoom(list))
        setLast(list);
    else
        emptyView(list);
}

// Takes the view anew where its elements may be gone.
template <typename Record>
void keepView(RingList<Record>& list)
{
    if (!noticeLoss(list))
        return;
    list.nFirstShowed = std::min(list.nFirstShowed, lastIndex(list));
    setView(list);
}

// The cursor's element, whatever became of the list since the last look; null for none.
template <typename Record>
ElementOf<Record>* cursorElement(RingList<Record>& list)
{
    keepView(list);
    return elementAt(list, cursorOf(list));
}

// Moves a view that does not show the cursor's element: one that the program chose, or one behind
// an element that fills the box alone.
template <typename Record>
void bringIntoView(RingList<Record>& list)
{
    const int nCursor = cursorOf(list);
    auto* element = elementAt(list, nCursor);
    if (!element || !hasRoom(list) || (nCursor >= list.nFirstShowed && nCursor <= list.nLastShowed))
        return;
    if (nCursor < list.nFirstShowed) {
        list.FirstShowed = element;
        list.nFirstShowed = nCursor;
    } else {
        setFirstBefore(list, element, nCursor);
    }
    for (setLast(list); list.nLastShowed < nCursor; setLast(list)) {
        list.FirstShowed = list.FirstShowed->Next;
        ++list.nFirstShowed;
    }
}

// A cursor that the program set outside of the list comes back into it. One below 0 counts as 0 on
// the way up; an empty list keeps counting.
template <typename Record>
void moveUp(RingList<Record>& list)
{
    int& nCursor = cursorOf(list);
    if (nCursor > 0) {
        nCursor = (list.nElements > 0 ? std::min(nCursor, list.nElements) : nCursor) - 1;
        list.nFirstShowed = std::min(list.nFirstShowed, nCursor);
    } else {
        nCursor = lastIndex(list);
        setFirstFromEnd(list);
    }
}

template <typename Record>
void moveDown(RingList<Record>& list)
{
    int& nCursor = cursorOf(list);
    const int nLast = lastIndex(list);
    if (nCursor == nLast || (nCursor > nLast && list.nElements > 0))
        nCursor = list.nFirstShowed = 0;
    else
        nCursor = shifted(std::max(nCursor, -1), 1);
    if (nCursor > list.nLastShowed)
        list.nFirstShowed = shifted(list.nFirstShowed, 1);
    else if (nCursor == list.nLastShowed && spills(list))
        list.nFirstShowed = nCursor;
}

template <typename Record>
void moveCursor(RingList<Record>& list, int nKey)
{
    keepView(list);
    if (nKey == KS_UP)
        moveUp(list);
    else
        moveDown(list);
    if (!hasRoom(list) && list.nElements > 0)
        list.nFirstShowed = cursorOf(list);
    setView(list);
    bringIntoView(list);
}

// Takes an element that was appended to the ring into the list and its view.
template <typename Record>
void takeElement(RingList<Record>& list, ElementOf<Record>& added)
{
    if (!list.Element || list.nFirstShowed == -1)
        list.nFirstShowed = 0;
    if (!list.Element)
        list.Element = &added;
    noticeLoss(list);
    list.nElements = shifted(list.nElements, 1);
    added.nHeight = GetWrapTextHeight(textWidth(list), added.szText);
    list.nRows += added.nHeight;
    const int nRows = viewRows(list);
    if (list.nFirstShowed == 0 && hasRoom(list) && list.nRows <= nRows) { // all are in view
        list.FirstShowed = list.Element;
        list.LastShowed = &added;
        list.nLastShowed = lastIndex(list);
    } else {
        setView(list);
    }
    if (nRows < list.nElements || nRows < list.nRows)
        list.bScrollbar = T;
}

} // namespace kul

#endif
