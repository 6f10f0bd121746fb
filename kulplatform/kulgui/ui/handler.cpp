// SPDX-License-Identifier: MIT
//
// The one place where key handlers wait.
#include "handler.hpp"

#include <utility>

#include "../gui/chain.hpp"
#include "../gui/keys.hpp"

namespace kul {

namespace {

unsigned nWaits = 0;

bool take(int nChain, bool Dialog::*request)
{
    Dialog* dialog = findDialog(nChain);
    return dialog && std::exchange(dialog->*request, false);
}

} // namespace

Loop::Loop(int nChain) : nChain_(nChain), onTop_(nChain)
{
    Dialog* dialog = findDialog(nChain);
    if (dialog && dialog->nLoops++ == 0)
        dialog->leaving = dialog->refocused = false;
}

Loop::~Loop()
{
    // A dialog that was destroyed meanwhile, and made anew, does not know this loop.
    Dialog* dialog = findDialog(nChain_);
    if (dialog && dialog->nLoops > 0)
        --dialog->nLoops;
}

int waitOnce()
{
    const Pause pause;
    ++nWaits;
    const int nKey = Inkeys();
    if (nKey == 0)
        ExecPolling();
    return nKey;
}

unsigned waits()
{
    return nWaits;
}

bool takeLeaving(int nChain)
{
    return take(nChain, &Dialog::leaving);
}

bool takeRefocus(int nChain)
{
    return take(nChain, &Dialog::refocused);
}

HandlerBase::HandlerBase(const CURRENT& start) : selection(start), loop_(start.nChain) {}

void HandlerBase::show()
{
    if (isOver())
        return;
    SetCurrentSelection(&selection);
    ShowUIColors();
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
        end(-10000);
    return record;
}

bool HandlerBase::isOver()
{
    if (ended_ || !findRecord())
        return true;
    const Dialog* dialog = findDialog(selection.nChain);
    return dialog->leaving || dialog->refocused;
}

bool HandlerBase::isTab(int nKey) const
{
    return uiKind(selection.nType)->keepsTab && findDialog(selection.nChain)->tabs &&
           (nKey == KS_TAB || nKey == KS_ESC);
}

int HandlerBase::key(bool (*goOn)(const GUI&, const void* record))
{
    while (!isOver()) {
        if (goOn && !goOn(*findDialog(selection.nChain), findRecord()))
            break;
        if (const int nKey = waitOnce()) {
            if (!isTab(nKey))
                return nKey;
            end(nKey == KS_TAB ? 10 : -10);
        } else if (lineIsGone()) {
            end(-10000);
        }
    }
    return 0;
}

int HandlerBase::settle()
{
    if (takeLeaving(selection.nChain))
        return KUL_LEFT;
    return takeRefocus(selection.nChain) ? 0 : nResult_;
}

} // namespace kul
