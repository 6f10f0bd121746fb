// SPDX-License-Identifier: MIT
//
// The once-a-second pass that keeps what is shown up to date while nobody types.
#include "polling.hpp"

#include <ctime>

#include "chain.hpp"
#include "screen.hpp"

namespace {

int nRunStart = 0;
time_t start = 0;
kul::SecondLook secondLook = nullptr;

void drawUnfocused(GUI* thisGUI)
{
    for (UI* ui = thisGUI->UserInterface; ui; ui = ui->Next)
        ShowUIComponentUnfocused(thisGUI, ui);
}

// Whether a dialog that is shown has to be polled, or has changed by itself.
bool isDue(const GUI* dialog)
{
    if (!dialog || dialog->nVisible != T)
        return false;
    const bool changed = secondLook && secondLook(*dialog);
    return changed || dialog->onPoll;
}

// Runs a dialog's callback and draws the dialog if that has not hidden it. The one in focus is
// drawn whole at once: the callback of the next dialog must not see, and show, a half of it.
void pollDialog(CHAIN* chain)
{
    ExecOnFunction(chain->Pointer->onPoll);
    if (!kul::isInRing(chain) || !chain->Pointer || chain->Pointer->nVisible != T)
        return;
    if (chain->nRef == GetCurrentSelection()->nChain) {
        ShowUIColors();
        return;
    }
    BackgroundDisplay(chain);
    ShowDisplayComponents(chain->Pointer);
    drawUnfocused(chain->Pointer);
}

} // namespace

void kul::lookEverySecond(SecondLook look)
{
    secondLook = look;
}

int Poll(int nPollingValue)
{
    const time_t now = time(nullptr);
    // A clock that was set back would else stop the polling until it has caught up.
    if (nRunStart == 0 || now < start) {
        nRunStart = 1;
        start = now;
    }
    if (now - start < nPollingValue)
        return 0;
    nRunStart = 0;
    return 1;
}

void ExecPolling()
{
    if (Poll(1) != 1)
        return;
    kul::Pass pass;
    CHAIN* chain = GetPrimaryChain();
    while (chain) {
        CHAIN* next = kul::nextChain(chain);
        if (isDue(chain->Pointer))
            pollDialog(chain);
        // The callback may have destroyed either, or made new ones.
        if (kul::isInRing(chain))
            next = kul::nextChain(chain);
        else if (!kul::isInRing(next))
            break;
        chain = next;
    }
    ShowUIColors();
}

void ExecuteFocusFunction(GUI*) {}
void ExecuteUnfocusFunction(GUI*) {}
void ExecutePollFunction(GUI*) {}
void ExecuteDestroyFunction(GUI*) {}
void RunUserInterface() {}
void ExecCurrentChain() {}
