// SPDX-License-Identifier: MIT
#include "ring_view.hpp"

#include "../gui/text.hpp"

namespace kul {

namespace {

template <typename Record>
List seen(Record& list, int& nCursor, RingState* ring)
{
    using Element = std::remove_pointer_t<decltype(list.Element)>;
    static_assert(
        offsetof(Record, nLastShowed) == offsetof(ListBox, nLastShowed) &&
        offsetof(Record, nBorder) - offsetof(Record, nElements) == offsetof(ListSize, nBorder) &&
        offsetof(Record, onClick) - offsetof(Record, onFocus) == offsetof(UICalls, onClick) &&
        offsetof(Element, onSelect) - offsetof(Element, szText) == offsetof(ListText, onSelect));
    return {reinterpret_cast<ListBox&>(list),
            reinterpret_cast<ListSize&>(list.nElements),
            reinterpret_cast<UICalls&>(list.onFocus),
            nCursor,
            shapeOf<Element>(),
            ring};
}

} // namespace

List listOf(KULCHECKBOX& list, RingState* ring)
{
    return seen(list, list.nSelect, ring);
}

List listOf(KULOPTIONS& list, RingState* ring)
{
    return seen(list, list.nPosition, ring);
}

int viewRows(const List& list)
{
    return shifted(list.box.nHeight, list.size.nBorder == BORDER ? -2 : 0);
}

int textWidth(const List& list)
{
    return shifted(list.box.nWidth, list.size.nBorder == BORDER ? -6 : -4);
}

bool hasRoom(const List& list)
{
    return viewRows(list) > 0 && textWidth(list) > 0;
}

int lastIndex(const List& list)
{
    return shifted(list.size.nElements, -1);
}

// The ring.

AnyElement* appendToRing(ElementShape shape, AnyElement* head, AnyElement* added)
{
    if (!head || !added)
        return added;
    ElementLinks& first = shape.linksOf(head);
    AnyElement* last = first.Prev ? first.Prev : head;
    shape.linksOf(added).Prev = last;
    shape.linksOf(added).Next = head;
    shape.linksOf(last).Next = first.Prev = added;
    return added;
}

int removeLastOfRing(ElementShape shape, AnyElement* head)
{
    if (!head)
        return -1;
    ++nElementRemovals;
    ElementLinks& first = shape.linksOf(head);
    AnyElement* last = first.Prev ? first.Prev : head;
    if (last != head) {
        AnyElement* before = shape.linksOf(last).Prev;
        shape.linksOf(before).Next = before == head ? nullptr : head;
        first.Prev = before == head ? nullptr : before;
    }
    freeElement(shape, last);
    return last == head ? 1 : 0;
}

int wipeRing(ElementShape shape, AnyElement* head)
{
    if (!head)
        return -1;
    ++nElementRemovals;
    if (AnyElement* last = shape.linksOf(head).Prev)
        shape.linksOf(last).Next = nullptr;
    while (head) {
        AnyElement* next = shape.linksOf(head).Next;
        freeElement(shape, head);
        head = next;
    }
    return 0;
}

// Rows of the first nElements elements.
long long rowsOfAll(const List& list)
{
    long long rows = 0;
    AnyElement* element = list.box.Element;
    for (int i = 0; element && i < list.size.nElements; ++i, element = list[element].Next)
        rows += list[element].nHeight;
    return rows;
}

// The view.

void setFirst(const List& list)
{
    int nSteps = std::max(list.box.nFirstShowed, 0);
    if (list.size.nElements > 0)
        nSteps %= list.size.nElements;
    AnyElement* first = list.box.Element;
    for (; first && list[first].Next && nSteps > 0; --nSteps)
        first = list[first].Next;
    list.box.FirstShowed = first;
}

namespace {

void emptyView(const List& list)
{
    list.box.LastShowed = nullptr;
    list.box.nLastShowed = shifted(list.box.nFirstShowed, -1);
}

// Begins the view so that it ends with the given element, or before it where the first one is cut.
void setFirstBefore(const List& list, AnyElement* element, int nIndex)
{
    const int nRows = viewRows(list);
    long long used = 0;
    for (; nIndex > 0 && list[element].Prev && used + list[element].nHeight < nRows; --nIndex) {
        used += list[element].nHeight;
        element = list[element].Prev;
    }
    list.box.FirstShowed = element;
    list.box.nFirstShowed = nIndex;
}

} // namespace

void setLast(const List& list)
{
    const int nRows = viewRows(list);
    AnyElement* element = list.box.LastShowed = list.box.FirstShowed;
    if (!element)
        return;
    if (nRows < 1) {
        emptyView(list);
        return;
    }
    int nIndex = list.box.nFirstShowed;
    for (long long used = list[element].nHeight;
         used < nRows && nIndex < lastIndex(list) && list[element].Next; ++nIndex) {
        element = list[element].Next;
        used += list[element].nHeight;
    }
    list.box.LastShowed = element;
    list.box.nLastShowed = nIndex;
}

bool spills(const List& list)
{
    const int nRows = viewRows(list);
    const long long nShowed = std::min(1LL + list.box.nLastShowed - list.box.nFirstShowed,
                                       static_cast<long long>(list.size.nElements));
    long long used = 0;
    AnyElement* element = list.box.FirstShowed;
    for (int i = 0; element && i < nShowed && used <= nRows; ++i) {
        used += list[element].nHeight;
        element = list[element].Next;
    }
    return used > nRows;
}

void setFirstFromEnd(const List& list)
{
    AnyElement* head = list.box.Element;
    if (list.size.nElements < 2)
        list.box.nFirstShowed = lastIndex(list);
    else if (head)
        setFirstBefore(list, list[head].Prev ? list[head].Prev : head, lastIndex(list));
}

// The view while elements come and the cursor moves.

namespace {

// Forgets what was found in a ring that is another one now, or that may have lost elements. Whether
// it did; FirstShowed and LastShowed may then be gone.
bool noticeLoss(const List& list)
{
    RingState& ring = *list.ring;
    if (ring.head == list.box.Element && ring.nRemovals == nElementRemovals)
        return false;
    ring.head = ring.found = list.box.Element;
    ring.nFound = 0;
    ring.nRemovals = nElementRemovals;
    ring.nRows = rowsOfAll(list);
    return true;
}

// The element at an index, once losses were noticed.
AnyElement* find(const List& list, int nIndex)
{
    AnyElement* head = list.box.Element;
    if (!head || nIndex < 0 || nIndex >= list.size.nElements)
        return nullptr;
    AnyElement* found = list.ring->found;
    int nFound = list.ring->nFound;
    if (nIndex < std::abs(nIndex - nFound)) {
        found = head;
        nFound = 0;
    }
    AnyElement* last = list[head].Prev;
    const int nLast = lastIndex(list);
    if (last && nLast - nIndex < std::abs(nIndex - nFound)) {
        found = last;
        nFound = nLast;
    }
    for (; found && nFound < nIndex; ++nFound)
        found = list[found].Next;
    for (; found && nFound > nIndex; --nFound)
        found = list[found].Prev;
    if (found) {
        list.ring->found = found;
        list.ring->nFound = nFound;
    }
    return found;
}

void setView(const List& list)
{
    list.box.FirstShowed = find(list, std::max(list.box.nFirstShowed, 0));
    if (hasRoom(list))
        setLast(list);
    else
        emptyView(list);
}

} // namespace

void keepView(const List& list)
{
    if (!noticeLoss(list))
        return;
    list.box.nFirstShowed = std::min(list.box.nFirstShowed, lastIndex(list));
    setView(list);
}

AnyElement* elementAt(const List& list, int nIndex)
{
    keepView(list);
    return find(list, nIndex);
}

AnyElement* cursorElement(const List& list)
{
    return elementAt(list, list.nCursor);
}

void bringIntoView(const List& list)
{
    const int nCursor = list.nCursor;
    AnyElement* element = find(list, nCursor);
    if (!element || !hasRoom(list) ||
        (nCursor >= list.box.nFirstShowed && nCursor <= list.box.nLastShowed))
        return;
    if (nCursor < list.box.nFirstShowed) {
        list.box.FirstShowed = element;
        list.box.nFirstShowed = nCursor;
    } else {
        setFirstBefore(list, element, nCursor);
    }
    for (setLast(list); list.box.nLastShowed < nCursor; setLast(list)) {
        list.box.FirstShowed = list[list.box.FirstShowed].Next;
        ++list.box.nFirstShowed;
    }
}

namespace {

// A cursor that the program set outside of the list comes back into it. One below 0 counts as 0 on
// the way up; an empty list keeps counting.
void moveUp(const List& list)
{
    int& nCursor = list.nCursor;
    if (nCursor > 0) {
        nCursor = (list.size.nElements > 0 ? std::min(nCursor, list.size.nElements) : nCursor) - 1;
        list.box.nFirstShowed = std::min(list.box.nFirstShowed, nCursor);
    } else {
        nCursor = lastIndex(list);
        setFirstFromEnd(list);
    }
}

void moveDown(const List& list)
{
    int& nCursor = list.nCursor;
    const int nLast = lastIndex(list);
    if (nCursor == nLast || (nCursor > nLast && list.size.nElements > 0))
        nCursor = list.box.nFirstShowed = 0;
    else
        nCursor = shifted(std::max(nCursor, -1), 1);
    if (nCursor > list.box.nLastShowed)
        list.box.nFirstShowed = shifted(list.box.nFirstShowed, 1);
    else if (nCursor == list.box.nLastShowed && spills(list))
        list.box.nFirstShowed = nCursor;
}

} // namespace

void moveCursor(const List& list, int nKey)
{
    keepView(list);
    if (nKey == KS_UP)
        moveUp(list);
    else
        moveDown(list);
    if (!hasRoom(list) && list.size.nElements > 0)
        list.box.nFirstShowed = list.nCursor;
    setView(list);
    bringIntoView(list);
}

void takeElement(const List& list, AnyElement* added)
{
    if (!list.box.Element || list.box.nFirstShowed == -1)
        list.box.nFirstShowed = 0;
    if (!list.box.Element)
        list.box.Element = added;
    noticeLoss(list);
    list.size.nElements = shifted(list.size.nElements, 1);
    const int nHeight = GetWrapTextHeight(textWidth(list), list[added].szText);
    list[added].nHeight = nHeight;
    list.ring->nRows += nHeight;
    const int nRows = viewRows(list);
    if (list.box.nFirstShowed == 0 && hasRoom(list) && list.ring->nRows <= nRows) { // all in view
        list.box.FirstShowed = list.box.Element;
        list.box.LastShowed = added;
        list.box.nLastShowed = lastIndex(list);
    } else {
        setView(list);
    }
    if (nRows < list.size.nElements || nRows < list.ring->nRows)
        list.size.bScrollbar = T;
}

} // namespace kul
