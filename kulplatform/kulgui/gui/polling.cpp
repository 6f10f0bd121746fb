// SPDX-License-Identifier: MIT
//
// The once-a-second pass that keeps what is shown up to date while nobody types.
#include "polling.hpp"

#include <climits>
#include <ctime>

#include "chain.hpp"
#include "keys.hpp"
#include "place.hpp"
#include "screen.hpp"

namespace {

int nRunStart = 0;
time_t start = 0;
kul::SecondLook secondLook = nullptr;

// Begins a period if none runs. A clock that was set back would else stop the polling until it has
// caught up.
void beginPeriod(time_t now)
{
    if (nRunStart == 0 || now < start) {
        nRunStart = 1;
        start = now;
    }
}

// ---- Drawing --------------------------------------------------------------------------------

// Draws what a callback may have changed: the dialogs that are wanted, and the one in focus last.
template <typename Wanted>
void drawDialogs(Wanted wanted)
{
    const CHAIN* current = GetChain(GetCurrentSelection()->nChain);
    for (CHAIN* chain = GetPrimaryChain(); chain; chain = kul::nextChain(chain)) {
        auto* dialog = static_cast<kul::Dialog*>(chain->Pointer);
        if (!dialog || dialog->nVisible != T || chain == current || !wanted(*dialog))
            continue;
        BackgroundDisplay(chain);
        ShowDisplayComponents(dialog);
        for (UI* ui = dialog->UserInterface; ui; ui = ui->Next)
            ShowUIComponentUnfocused(dialog, ui);
    }
    ShowUIColors();
}

// ---- The pass -------------------------------------------------------------------------------

// Passes have numbers: one that a callback's own dialog makes comes in the middle of another one.
int nPass = 0;

// In place of the number while the callback of a dialog runs, which is not called meanwhile.
constexpr int kPolledNow = INT_MAX;

// The chain whose dialog is due next: shown, not looked at in this pass or a later one, and with a
// callback or changed by itself. Asked anew after each callback, which may have destroyed or made
// any dialog.
const CHAIN* nextDue(int nThisPass)
{
    for (CHAIN* chain = GetPrimaryChain(); chain; chain = kul::nextChain(chain)) {
        auto* dialog = static_cast<kul::Dialog*>(chain->Pointer);
        if (!dialog || dialog->nPolled >= nThisPass || dialog->nVisible != T)
            continue;
        dialog->nPolled = nThisPass;
        const bool changed = secondLook && secondLook(*dialog);
        if (changed || dialog->onPoll) {
            dialog->nDue = nThisPass;
            return chain;
        }
    }
    return nullptr;
}

void runPoll(int nChain, int nThisPass)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog->onPoll)
        return;
    kul::makeTypedAheadStale();
    dialog->nPolled = kPolledNow;
    ExecOnFunction(dialog->onPoll);
    dialog = kul::findDialog(nChain); // it may be gone, or another one
    if (dialog && dialog->nPolled == kPolledNow)
        dialog->nPolled = nThisPass;
}

// Runs a pass; draws what is in focus in any case, or only if something was due.
void runPass(bool drawAlways)
{
    const int nThisPass = ++nPass;
    bool draw = drawAlways;
    kul::Pass pass;
    // All callbacks first: each may update the terminal, and must not show dialogs half drawn.
    while (const CHAIN* chain = nextDue(nThisPass)) {
        draw = true;
        runPoll(chain->nRef, nThisPass);
    }
    if (draw)
        drawDialogs([=](const kul::Dialog& dialog) { return dialog.nDue >= nThisPass; });
}

} // namespace

void kul::lookEverySecond(SecondLook look)
{
    secondLook = look;
}

bool kul::isPassDue()
{
    const time_t now = time(nullptr);
    beginPeriod(now);
    return now > start;
}

void kul::drawAllShown()
{
    const Pass pass;
    const KeptOrder order;
    drawDialogs([](const Dialog& dialog) { return dialog.winMain != nullptr; });
}

void kul::pollBetweenWaits()
{
    if (Poll(1) == 1)
        runPass(false);
}

int Poll(int nPollingValue)
{
    const time_t now = time(nullptr);
    beginPeriod(now);
    if (now - start < nPollingValue)
        return 0;
    nRunStart = 0;
    return 1;
}

void ExecPolling()
{
    if (Poll(1) == 1)
        runPass(true);
}

void ExecuteFocusFunction(GUI*) {}
void ExecuteUnfocusFunction(GUI*) {}
void ExecutePollFunction(GUI*) {}
void ExecuteDestroyFunction(GUI*) {}
void RunUserInterface() {}
void ExecCurrentChain() {}
