// SPDX-License-Identifier: MIT
#include "element_list.hpp"

namespace kul {

namespace {

AnyElement* headOf(ElementShape shape, AnyElement* element)
{
    for (;;) {
        AnyElement* before = shape.linksOf(element).Prev;
        if (!before || shape.linksOf(before).Next != element)
            return element;
        element = before;
    }
}

// Takes an element and all after it out of the list of head.
void cutFrom(ElementShape shape, AnyElement* head, AnyElement* first)
{
    ++nElementRemovals;
    if (first == head)
        return;
    AnyElement* before = shape.linksOf(first).Prev;
    shape.linksOf(before).Next = nullptr;
    shape.linksOf(head).Prev = before == head ? nullptr : before;
}

} // namespace

AnyElement* newElement(ElementShape shape, int nEnable, const char* szText, KULCALLBACK onSelect,
                       KULCALLBACK onClick)
{
    ++nCalls;
    char* szCopy = copyText(szText);
    auto* element = szCopy ? static_cast<AnyElement*>(std::calloc(1, shape.size)) : nullptr;
    if (!element) {
        std::free(szCopy);
        return nullptr;
    }
    ElementShape::at<char*>(element, shape.text) = szCopy;
    ElementShape::at<int>(element, shape.enable) = nEnable;
    shape.linksOf(element).onSelect = onSelect;
    shape.linksOf(element).onClick = onClick;
    return element;
}

void freeElement(ElementShape shape, AnyElement* element)
{
    ++nCalls;
    std::free(ElementShape::at<char*>(element, shape.text));
    if (shape.boxText != 0)
        std::free(ElementShape::at<char*>(element, shape.boxText));
    std::free(element);
}

AnyElement* lastOf(ElementShape shape, AnyElement* head)
{
    AnyElement* last = shape.linksOf(head).Prev;
    if (!last)
        last = head;
    while (AnyElement* next = shape.linksOf(last).Next)
        last = next;
    return last;
}

AnyElement* append(ElementShape shape, AnyElement* anyElement, AnyElement* added)
{
    if (!anyElement || !added)
        return added;
    AnyElement* head = headOf(shape, anyElement);
    AnyElement* last = lastOf(shape, head);
    shape.linksOf(last).Next = added;
    shape.linksOf(added).Prev = last;
    shape.linksOf(head).Prev = added;
    return added;
}

int removeLast(ElementShape shape, AnyElement* anyElement)
{
    if (!anyElement)
        return -1;
    AnyElement* head = headOf(shape, anyElement);
    AnyElement* last = lastOf(shape, head);
    cutFrom(shape, head, last);
    freeElement(shape, last);
    return last == head ? 1 : 0;
}

int wipe(ElementShape shape, AnyElement* first)
{
    if (!first)
        return -1;
    cutFrom(shape, headOf(shape, first), first);
    while (first) {
        AnyElement* next = shape.linksOf(first).Next;
        freeElement(shape, first);
        first = next;
    }
    return 0;
}

AnyElement* cappedLookup(ElementShape shape, AnyElement* head, int nPosition)
{
    const int nSteps = nPosition < 0 ? kLookupSteps : std::min(nPosition, kLookupSteps);
    for (int i = 0; head && i < nSteps; ++i)
        head = shape.linksOf(head).Next;
    return head;
}

AnyElement* AnyFinger::find(ElementShape shape, AnyElement* head, int nPosition)
{
    if (nPosition < 0 || nPosition >= count(shape, head))
        return nullptr;
    if (nPosition < std::abs(nPosition - nFound_)) {
        found_ = head_;
        nFound_ = 0;
    } else if (nLast_ - nPosition < std::abs(nPosition - nFound_)) {
        found_ = last_;
        nFound_ = nLast_;
    }
    for (; nFound_ < nPosition; ++nFound_)
        found_ = shape.linksOf(found_).Next;
    for (; nFound_ > nPosition; --nFound_)
        found_ = shape.linksOf(found_).Prev;
    return found_;
}

int AnyFinger::count(ElementShape shape, AnyElement* head)
{
    if (head != head_ || nRemovals_ != nElementRemovals) {
        head_ = found_ = last_ = head;
        nFound_ = nLast_ = 0;
        nRemovals_ = nElementRemovals;
    }
    if (!last_)
        return 0;
    while (AnyElement* next = shape.linksOf(last_).Next) {
        last_ = next;
        ++nLast_;
    }
    return nLast_ + 1;
}

} // namespace kul
