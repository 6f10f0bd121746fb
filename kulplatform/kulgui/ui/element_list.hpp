// SPDX-License-Identifier: MIT
//
// The doubly linked elements of menus and toolbars. The head's Prev names the last element, so that
// appending and taking off the last one do not walk; a lone element has neither link.
//
//     head <-> element <-> last        head->Prev == last, last->Next == null
//
// Programs reach elements and records, so nothing here trusts a count: the links alone say what
// there is. Any element may stand for its list.
//
// The kinds of elements differ in where their fields are, and in nothing that matters here: one
// code serves all of them, by a shape that says where, and the templates only keep the types apart.
#ifndef KUL_UI_ELEMENT_LIST_HPP
#define KUL_UI_ELEMENT_LIST_HPP

#include <cstddef>

#include "../gui/chain.hpp"
#include "../gui/draw.hpp"
#include "../gui/memory.hpp"

namespace kul {

// Steps that the public lookups go at most.
constexpr int kLookupSteps = 30;

// Counts what was taken out of any list: who remembers an element must then look for it anew.
inline unsigned nElementRemovals = 0;

// An element of any kind, from its start.
struct AnyElement;

// The fields that lie next to each other in all kinds.
struct [[gnu::may_alias]] ElementLinks {
    AnyElement* Prev;
    AnyElement* Next;
    KULCALLBACK onSelect;
    KULCALLBACK onClick; // onUnselect of a check box
};

// Where the fields are. It goes from hand to hand as one number.
struct ElementShape {
    unsigned char size;
    unsigned char enable;
    unsigned char text;
    unsigned char boxText; // 0 for none
    unsigned char links;

    template <typename Field>
    static Field& at(AnyElement* element, int nOffset)
    {
        return *reinterpret_cast<Field*>(reinterpret_cast<char*>(element) + nOffset);
    }

    ElementLinks& linksOf(AnyElement* element) const { return at<ElementLinks>(element, links); }
    char* textOf(AnyElement* element) const { return at<char*>(element, text); }
    bool isEnabled(AnyElement* element) const { return at<int>(element, enable) == 1; }
};

template <typename Element>
constexpr ElementShape shapeOf()
{
    constexpr std::size_t kLinks = offsetof(Element, Prev);
    static_assert(offsetof(Element, Next) == kLinks + offsetof(ElementLinks, Next) &&
                  offsetof(Element, onSelect) == kLinks + offsetof(ElementLinks, onSelect) &&
                  sizeof(Element) == kLinks + sizeof(ElementLinks));
    ElementShape shape{sizeof(Element), offsetof(Element, nEnable), offsetof(Element, szText), 0,
                       kLinks};
    if constexpr (requires(Element & element) { element.szBoxText; })
        shape.boxText = offsetof(Element, szBoxText);
    return shape;
}

template <typename Element>
AnyElement* asAny(Element* element)
{
    return reinterpret_cast<AnyElement*>(element);
}

// An element with a private copy of its text, in no list yet. Null without memory.
AnyElement* newElement(ElementShape shape, int nEnable, const char* szText, KULCALLBACK onSelect,
                       KULCALLBACK onClick);

template <typename Element>
Element* newElement(int nEnable, const char* szText, KULCALLBACK onSelect, KULCALLBACK onClick)
{
    return reinterpret_cast<Element*>(
        newElement(shapeOf<Element>(), nEnable, szText, onSelect, onClick));
}

void freeElement(ElementShape shape, AnyElement* element);

AnyElement* lastOf(ElementShape shape, AnyElement* head);

template <typename Element>
Element* lastOf(Element* head)
{
    return reinterpret_cast<Element*>(lastOf(shapeOf<Element>(), asAny(head)));
}

// Appends to the list of an element, null for an empty one. Returns what was appended.
AnyElement* append(ElementShape shape, AnyElement* anyElement, AnyElement* added);

template <typename Element>
Element* append(Element* anyElement, Element* added)
{
    append(shapeOf<Element>(), asAny(anyElement), asAny(added));
    return added;
}

// Frees the last element. 1 when it was the only one, else 0; -1 for null.
int removeLast(ElementShape shape, AnyElement* anyElement);

template <typename Element>
int removeLast(Element* anyElement)
{
    return removeLast(shapeOf<Element>(), asAny(anyElement));
}

// Frees an element and all after it. 0, -1 for null.
int wipe(ElementShape shape, AnyElement* first);

template <typename Element>
int wipe(Element* first)
{
    return wipe(shapeOf<Element>(), asAny(first));
}

// The public lookup: a position that is negative or above the cap counts as the cap. Null when the
// list ends before.
AnyElement* cappedLookup(ElementShape shape, AnyElement* head, int nPosition);

template <typename Element>
Element* cappedLookup(Element* head, int nPosition)
{
    return reinterpret_cast<Element*>(cappedLookup(shapeOf<Element>(), asAny(head), nPosition));
}

// What the records of the kinds do with their list, count and selection when one was added or is to
// be taken off. An added one may be null.

template <typename Element>
bool takeAdded(Element*& head, int& nCount, int& nSelect, Element* added)
{
    if (!added)
        return false;
    if (!head)
        head = added;
    nCount = shifted(nCount, 1);
    if (nSelect == -1)
        nSelect = 0;
    return true;
}

template <typename Element>
int dropLast(Element*& head)
{
    const int nResult = removeLast(head);
    if (nResult == 1)
        head = nullptr;
    return nResult;
}

template <typename Element>
int dropLast(Element*& head, int& nCount, int& nSelect)
{
    const int nResult = dropLast(head);
    if (nResult != -1) {
        nCount = shifted(nCount, -1);
        nSelect = std::min(nSelect, nCount);
    }
    return nResult;
}

template <typename Element>
void dropAll(Element*& head)
{
    wipe(head);
    head = nullptr;
}

// A finger on a list: finds elements near the one that was found before, so that a step along a
// list of any length is a step. Cleared memory is a new one. It notices by itself what happened to
// the list.
class AnyFinger {
public:
    // The element at a position; null when there is none.
    AnyElement* find(ElementShape shape, AnyElement* head, int nPosition);

    // Number of elements; walks those only that were added since the last time.
    int count(ElementShape shape, AnyElement* head);

private:
    AnyElement* head_;
    AnyElement* found_;
    AnyElement* last_;
    int nFound_;
    int nLast_;
    unsigned nRemovals_;
};

template <typename Element>
class Finger : public AnyFinger {
public:
    Element* find(Element* head, int nPosition)
    {
        return reinterpret_cast<Element*>(
            AnyFinger::find(shapeOf<Element>(), asAny(head), nPosition));
    }

    int count(Element* head) { return AnyFinger::count(shapeOf<Element>(), asAny(head)); }
};

} // namespace kul

#endif
