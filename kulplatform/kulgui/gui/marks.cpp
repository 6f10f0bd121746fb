// SPDX-License-Identifier: MIT
//
// The calls that say something of a component whatever its kind.
#include "marks.hpp"

#include "memory.hpp"

namespace {

// A component's or an item's mark, made if there is none yet. Null for an unknown one or without
// memory.
kul::Mark* makeMark(int nChain, int nRef)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog || (!GetUIComponentByRef(nChain, nRef) && !GetDIComponentByRef(nChain, nRef)))
        return nullptr;
    for (kul::Mark* mark = dialog->marks; mark; mark = mark->next) {
        if (mark->nRef == nRef)
            return mark;
    }
    auto* mark = kul::allocate<kul::Mark>();
    if (mark) {
        mark->nRef = nRef;
        mark->next = dialog->marks;
        dialog->marks = mark;
    }
    return mark;
}

} // namespace

namespace kul {

const Mark* findMark(const Dialog& dialog, int nRef)
{
    const Mark* mark = dialog.marks;
    while (mark && mark->nRef != nRef)
        mark = mark->next;
    return mark;
}

void freeMarks(Dialog& dialog)
{
    while (Mark* mark = dialog.marks) {
        dialog.marks = mark->next;
        std::free(mark);
    }
}

} // namespace kul

int kulgui_enable(int nChain, int nRef, int bEnable)
{
    kul::Mark* mark = GetUIComponentByRef(nChain, nRef) ? makeMark(nChain, nRef) : nullptr;
    if (!mark)
        return -1;
    mark->disabled = bEnable != T;
    return 0;
}

int kulgui_setHotkey(int nChain, int nRef, int nKey)
{
    kul::Mark* mark = GetUIComponentByRef(nChain, nRef) ? makeMark(nChain, nRef) : nullptr;
    if (!mark)
        return -1;
    mark->nHotkey = nKey;
    return 0;
}

int kulgui_setUser(int nChain, int nRef, void* user)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    kul::Mark* mark = nRef == KUL_DIALOG ? nullptr : makeMark(nChain, nRef);
    if (!dialog || (nRef != KUL_DIALOG && !mark))
        return -1;
    (mark ? mark->user : dialog->user) = user;
    return 0;
}

void* kulgui_getUser(int nChain, int nRef)
{
    const kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog || nRef == KUL_DIALOG)
        return dialog ? dialog->user : nullptr;
    const kul::Mark* mark = kul::findMark(*dialog, nRef);
    return mark ? mark->user : nullptr;
}
