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

// The dialog that is due next: shown, not looked at in this pass, and with a callback or changed by
// itself. Asked anew after each callback, which may have destroyed or made any dialog.
kul::Dialog* nextDue()
{
    for (CHAIN* chain = GetPrimaryChain(); chain; chain = kul::nextChain(chain)) {
        auto* dialog = static_cast<kul::Dialog*>(chain->Pointer);
        if (!dialog || dialog->polled || dialog->nVisible != T)
            continue;
        dialog->polled = true;
        dialog->due = secondLook && secondLook(*dialog);
        if (dialog->due || dialog->onPoll)
            return dialog;
    }
    return nullptr;
}

void drawUnfocused(CHAIN* chain)
{
    BackgroundDisplay(chain);
    ShowDisplayComponents(chain->Pointer);
    for (UI* ui = chain->Pointer->UserInterface; ui; ui = ui->Next)
        ShowUIComponentUnfocused(chain->Pointer, ui);
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
    // All callbacks first: each may update the terminal, and must not show dialogs half drawn.
    while (kul::Dialog* dialog = nextDue()) {
        dialog->due = true;
        ExecOnFunction(dialog->onPoll);
    }
    const CHAIN* current = GetChain(GetCurrentSelection()->nChain);
    for (CHAIN* chain = GetPrimaryChain(); chain; chain = kul::nextChain(chain)) {
        auto* dialog = static_cast<kul::Dialog*>(chain->Pointer);
        if (!dialog)
            continue;
        // A callback may have hidden the dialog. The one in focus is drawn last.
        if (dialog->due && dialog->nVisible == T && chain != current)
            drawUnfocused(chain);
        dialog->polled = dialog->due = false;
    }
    ShowUIColors();
}

void ExecuteFocusFunction(GUI*) {}
void ExecuteUnfocusFunction(GUI*) {}
void ExecutePollFunction(GUI*) {}
void ExecuteDestroyFunction(GUI*) {}
void RunUserInterface() {}
void ExecCurrentChain() {}
