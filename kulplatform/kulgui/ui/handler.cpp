// SPDX-License-Identifier: MIT
//
// The one place where key handlers wait.
#include "handler.hpp"

#include <optional>
#include <utility>

#include "../gui/decoder.hpp"
#include "../gui/keys.hpp"
#include "../gui/polling.hpp"
#include "../gui/terminal.hpp"
#include "../gui/waiting.hpp"

namespace kul {

namespace {

unsigned nWaits = 0;
bool callsHandler = false; // a loop calls one: the next to begin is no loop of its own

bool take(int nChain, bool Requests::*request)
{
    Dialog* dialog = findDialog(nChain);
    return dialog && std::exchange(dialog->asked.*request, false);
}

// The end of a line in a paste is a blank in a text, and no key elsewhere.
int meant(int nKey)
{
    if (nKey != kPastedNewline)
        return nKey;
    return GetCurrentSelection()->nType == TEXTBOX ? KS_SPACE : 0;
}

// What a handler has to draw, and has not while more keys were at hand.
std::optional<CURRENT> undrawn;

void drawLate()
{
    const CURRENT now = *GetCurrentSelection();
    SetCurrentSelection(&*undrawn);
    undrawn.reset();
    ShowUIColors();
    SetCurrentSelection(&now);
}

} // namespace

Loop::Loop(int nChain)
    : nChain_(nChain), own_(!std::exchange(callsHandler, false)), outer_{}, onTop_(nChain)
{
    if (own_)
        noteChange(); // by the program that calls it
    Dialog* dialog = own_ ? findDialog(nChain) : nullptr;
    if (dialog)
        outer_ = std::exchange(dialog->asked, {});
}

Loop::~Loop()
{
    if (Dialog* dialog = own_ ? findDialog(nChain_) : nullptr)
        dialog->asked = outer_;
    if (own_ && undrawn && undrawn->nChain == nChain_)
        drawLate();
}

int runHandler(const UIKind& kind, int nChain, int nRef)
{
    callsHandler = true;
    const int nResult = kind.execKeys(nChain, nRef);
    callsHandler = false; // a hidden one did not begin
    return nResult;
}

// What was typed ahead is used up before anything is drawn: a paste is shown once for each read.
int waitOnce()
{
    ++nWaits;
    if (const int nKey = keyAtHand())
        return meant(nKey);
    if (undrawn)
        drawLate();
    const Pause pause(Turn::Wait);
    lookAtTerminal();
    const int nKey = awaitKey();
    if (nKey == 0)
        pollBetweenWaits();
    return meant(nKey);
}

unsigned waits()
{
    return nWaits;
}

bool takeLeaving(int nChain)
{
    return take(nChain, &Requests::leaving);
}

bool takeRefocus(int nChain)
{
    return take(nChain, &Requests::refocused);
}

HandlerBase::HandlerBase(const CURRENT& start) : selection(start), loop_(start.nChain) {}

void HandlerBase::show(Changed changed)
{
    if (isOver())
        return;
    if (undrawn && undrawn->nChain != selection.nChain)
        drawLate();
    SetCurrentSelection(&selection);
    const bool late = undrawn.has_value();
    undrawn.reset();
    if (hasKeysAtHand())
        undrawn = selection;
    else if (late)
        ShowUIColors(); // keys before this one may have changed anything
    else
        drawFocused(changed);
}

void HandlerBase::run(KULCALLBACK callback)
{
    if (!isOver())
        ExecOnFunction(callback);
}

void HandlerBase::end(int nResult)
{
    ended_ = true;
    nResult_ = nResult;
}

void* HandlerBase::findRecord()
{
    void* record = findUIRecord(selection.nChain, selection.nUserInterface,
                                static_cast<UI_TYPE>(selection.nType));
    if (!record)
        end(KUL_GONE);
    return record;
}

bool HandlerBase::isOver()
{
    if (ended_ || !findRecord())
        return true;
    const Dialog& dialog = *findDialog(selection.nChain);
    const UI& ui = *GetUIComponentByRef(selection.nChain, selection.nUserInterface);
    return dialog.asked.leaving || dialog.asked.refocused || isDisabled(dialog, ui);
}

int HandlerBase::key(bool (*goOn)(const GUI&, const void* record))
{
    while (!isOver()) {
        if (goOn && !goOn(*findDialog(selection.nChain), findRecord()))
            break;
        const int nKey = nextKey();
        const int nLeft = nKey != 0 && !isOver() ? navigate(nKey) : 0;
        if (nLeft != 0) {
            noteKey(nLeft);
            return nLeft;
        }
    }
    return 0;
}

// The key that a click from elsewhere stands for, or the next one that is typed; 0 for none.
int HandlerBase::nextKey()
{
    Dialog& dialog = *findDialog(selection.nChain);
    if (std::exchange(dialog.asked.pressed, false))
        return KS_ENTER;
    const int nKey = waitOnce();
    if (nKey == 0 && lineIsGone())
        end(KUL_GONE);
    const int nLeft = offerKey(selection.nChain, nKey);
    if (nKey != 0 && nLeft == 0)
        show(); // what onKey did in place of the component
    return nLeft;
}

KULCALLBACK HandlerBase::callbackAt(std::ptrdiff_t nField)
{
    const char* record = static_cast<char*>(findRecord());
    return record ? *reinterpret_cast<const KULCALLBACK*>(record + nField) : nullptr;
}

int HandlerBase::finishAt(std::ptrdiff_t nField)
{
    if (nResult_ != KUL_GONE) {
        ExecOnFunction(callbackAt(nField));
        findRecord(); // ends with an error if that has destroyed it
    }
    if (takeLeaving(selection.nChain))
        return KUL_LEFT;
    return takeRefocus(selection.nChain) ? 0 : nResult_;
}

} // namespace kul
