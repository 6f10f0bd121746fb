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

#include "component.hpp"
#include "element_list.hpp"

namespace kul {

// What the two kinds' records have in common, in the same order, but not all of it at the same
// places: an option list has one field more. One code serves both through these.

struct [[gnu::may_alias]] ListBox { // what a record begins with
    UIColors colors;
    int nX, nY, nWidth, nHeight;
    AnyElement* Element;
    AnyElement* FirstShowed;
    AnyElement* LastShowed;
    int nVisible;
    int nSelect;
    int nFirstShowed;
    int nLastShowed;
};

struct [[gnu::may_alias]] ListSize { // from its number of elements on
    int nElements;
    int bScrollbar;
    int nBorder;
};

// An element from its text on.
struct [[gnu::may_alias]] ListText {
    char* szText;
    int nHeight;
    AnyElement* Prev;
    AnyElement* Next;
    KULCALLBACK onSelect;
    KULCALLBACK onClick;
};

// A view all of whose elements are one row high: nothing is to be reckoned as long as it is the
// same and nothing has changed.
struct SingleRows {
    const AnyElement* first;
    int nFirst, nLast, nWidth;
    unsigned nChanges;
    bool operator==(const SingleRows&) const = default;
};

// Where a ring was last looked at.
struct RingState {
    AnyElement* head;  // the list that the rest of this is about
    AnyElement* found; // the element that was looked for last, and its index
    int nFound;
    unsigned nRemovals; // nElementRemovals at that time
    long long nRows;    // that all elements take together
    SingleRows single;
};

// A list as it is allocated.
template <typename Record>
struct RingList : Record {
    using Public = Record;
    RingState ring;
};

using CheckList = RingList<KULCHECKBOX>;
using OptionList = RingList<KULOPTIONS>;

// A list of either kind. Where the program made the record, there is no state.
struct List {
    ListBox& box;
    ListSize& size;
    UICalls& calls;
    int& nCursor;
    ElementShape shape;
    RingState* ring;

    ListText& operator[](AnyElement* element) const
    {
        return ElementShape::at<ListText>(element, shape.text);
    }
};

List listOf(KULCHECKBOX& list, RingState* ring = nullptr);
List listOf(KULOPTIONS& list, RingState* ring = nullptr);

template <typename Record>
List listOf(RingList<Record>& list)
{
    return listOf(static_cast<Record&>(list), &list.ring);
}

// One that is only read.
template <typename Record>
List listOf(const Record& list)
{
    return listOf(const_cast<Record&>(list), nullptr);
}

// The box without its border: rows for elements, and columns for texts behind the markers.
int viewRows(const List& list);
int textWidth(const List& list);
bool hasRoom(const List& list);

// Index of the last element; the count may be any number that a program wrote.
int lastIndex(const List& list);

// The ring.

// Appends an element, null for none. Returns it.
AnyElement* appendToRing(ElementShape shape, AnyElement* head, AnyElement* added);

template <typename Element>
Element* appendToRing(Element* head, Element* added)
{
    appendToRing(shapeOf<Element>(), asAny(head), asAny(added));
    return added;
}

// Frees the last element. 1 when it was the only one, else 0; -1 for null.
int removeLastOfRing(ElementShape shape, AnyElement* head);

template <typename Element>
int removeLastOfRing(Element* head)
{
    return removeLastOfRing(shapeOf<Element>(), asAny(head));
}

// Frees all elements. 0, -1 for null.
int wipeRing(ElementShape shape, AnyElement* head);

template <typename Element>
int wipeRing(Element* head)
{
    return wipeRing(shapeOf<Element>(), asAny(head));
}

// Rows of all elements.
long long rowsOfAll(const List& list);

// The view. These need the public record only.

// Begins the view with the element at index nFirstShowed, however often that is round the ring.
void setFirst(const List& list);

// Begins it so that it ends with the last element.
void setFirstFromEnd(const List& list);

// Ends the view with the element that fills the box, or the last one.
void setLast(const List& list);

// Whether the last element in view is cut.
bool spills(const List& list);

// The view while elements come and the cursor moves. These need the state as well.

// Takes the view anew where its elements may be gone.
void keepView(const List& list);

// The element at an index, and the cursor's; null when there is none. It is reached from the
// nearest one of the head, the last one and the one found before, whatever became of the list since
// then.
AnyElement* elementAt(const List& list, int nIndex);
AnyElement* cursorElement(const List& list);

// Moves a view that does not show the cursor's element: one that the program chose, or one behind
// an element that fills the box alone.
void bringIntoView(const List& list);

// Moves the cursor as edition 1 has it, by KS_UP or KS_DOWN.
void moveCursor(const List& list, int nKey);

// Takes an element that was appended to the ring into the list and its view.
void takeElement(const List& list, AnyElement* added);

} // namespace kul

#endif
