// SPDX-License-Identifier: MIT
//
// The doubly linked elements of menus and toolbars. The head's Prev names the last element, so that
// appending and taking off the last one do not walk; a lone element has neither link.
//
//     head <-> element <-> last        head->Prev == last, last->Next == null
//
// Programs reach elements and records, so nothing here trusts a count: the links alone say what
// there is. Any element may stand for its list.
#ifndef KUL_UI_ELEMENT_LIST_HPP
#define KUL_UI_ELEMENT_LIST_HPP

#include "../gui/chain.hpp"
#include "../gui/draw.hpp"
#include "../gui/memory.hpp"

namespace kul {

// Steps that the public lookups go at most.
constexpr int kLookupSteps = 30;

// Counts what was taken out of any list: who remembers an element must then look for it anew.
inline unsigned nElementRemovals = 0;

template <typename Element>
Element* headOf(Element* element)
{
    while (element->Prev && element->Prev->Next == element)
        element = element->Prev;
    return element;
}

template <typename Element>
Element* lastOf(Element* head)
{
    Element* last = head->Prev ? head->Prev : head;
    while (last->Next)
        last = last->Next;
    return last;
}

// An element with a private copy of its text, in no list yet. Null without memory.
template <typename Element>
Element* newElement(int nEnable, const char* szText, KULCALLBACK onClick)
{
    ++nCalls;
    auto* element = allocate<Element>();
    if (!element)
        return nullptr;
    element->szText = copyText(szText);
    if (!element->szText) {
        std::free(element);
        return nullptr;
    }
    element->nEnable = nEnable;
    if constexpr (requires { element->onClick; })
        element->onClick = onClick;
    return element;
}

template <typename Element>
void freeElement(Element* element)
{
    ++nCalls;
    std::free(element->szText);
    if constexpr (requires { element->szBoxText; })
        std::free(element->szBoxText);
    std::free(element);
}

// Appends to the list of an element, null for an empty one. Returns what was appended.
template <typename Element>
Element* append(Element* anyElement, Element* added)
{
    if (!anyElement || !added)
        return added;
    Element* head = headOf(anyElement);
    Element* last = lastOf(head);
    last->Next = added;
    added->Prev = last;
    head->Prev = added;
    return added;
}

// Takes an element and all after it out of the list of head.
template <typename Element>
void cutFrom(Element* head, Element* first)
{
    ++nElementRemovals;
    if (first == head)
        return;
    Element* before = first->Prev;
    before->Next = nullptr;
    head->Prev = before == head ? nullptr : before;
}

// Frees the last element. 1 when it was the only one, else 0; -1 for null.
template <typename Element>
int removeLast(Element* anyElement)
{
    if (!anyElement)
        return -1;
    Element* head = headOf(anyElement);
    Element* last = lastOf(head);
    cutFrom(head, last);
    freeElement(last);
    return last == head ? 1 : 0;
}

// Frees an element and all after it. 0, -1 for null.
template <typename Element>
int wipe(Element* first)
{
    if (!first)
        return -1;
    cutFrom(headOf(first), first);
    while (first) {
        Element* next = first->Next;
        freeElement(first);
        first = next;
    }
    return 0;
}

// The public lookup: a position that is negative or above the cap counts as the cap. Null when the
// list ends before.
template <typename Element>
Element* cappedLookup(Element* head, int nPosition)
{
    const int nSteps = nPosition < 0 ? kLookupSteps : std::min(nPosition, kLookupSteps);
    for (int i = 0; head && i < nSteps; ++i)
        head = head->Next;
    return head;
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

// Finds elements near the one that was found before, so that a step along a list of any length is a
// step. Cleared memory is a new one. It notices by itself what happened to the list.
template <typename Element>
class Place {
public:
    // The element at a position; null when there is none.
    Element* find(Element* head, int nPosition)
    {
        if (nPosition < 0 || nPosition >= count(head))
            return nullptr;
        if (nPosition < std::abs(nPosition - nFound_)) {
            found_ = head_;
            nFound_ = 0;
        } else if (nLast_ - nPosition < std::abs(nPosition - nFound_)) {
            found_ = last_;
            nFound_ = nLast_;
        }
        for (; nFound_ < nPosition; ++nFound_)
            found_ = found_->Next;
        for (; nFound_ > nPosition; --nFound_)
            found_ = found_->Prev;
        return found_;
    }

    // Number of elements; walks those only that were added since the last time.
    int count(Element* head)
    {
        if (head != head_ || nRemovals_ != nElementRemovals) {
            head_ = found_ = last_ = head;
            nFound_ = nLast_ = 0;
            nRemovals_ = nElementRemovals;
        }
        for (; last_ && last_->Next; last_ = last_->Next)
            ++nLast_;
        return last_ ? nLast_ + 1 : 0;
    }

private:
    Element* head_;
    Element* found_;
    Element* last_;
    int nFound_;
    int nLast_;
    unsigned nRemovals_;
};

} // namespace kul

#endif
