// SPDX-License-Identifier: MIT
//
// What has the focus and what is selected in it, the navigation flags, and the two things that
// depend on them: running a callback, and drawing the dialog in focus.
#include "../gui/chain.hpp"
#include "../gui/screen.hpp"

namespace {

CURRENT defCurrent;
CONTROL defControls = {F, F, F, F};

} // namespace

CURRENT* CurrentSelection(const CURRENT* thisCurrent, int nSetting)
{
    if (nSetting == 1 && thisCurrent)
        defCurrent = *thisCurrent;
    return &defCurrent;
}

CURRENT* GetCurrentSelection()
{
    return CurrentSelection(nullptr, 0);
}

void SetCurrentSelection(const CURRENT* thisCurrent)
{
    CurrentSelection(thisCurrent, 1);
}

CONTROL* Controls(const CONTROL* theseControls, int nSetting)
{
    if (nSetting == 1 && theseControls)
        defControls = *theseControls;
    return &defControls;
}

CONTROL* GetControls()
{
    return Controls(nullptr, 0);
}

void SetControls(const CONTROL* theseControls)
{
    Controls(theseControls, 1);
}

int ExitUIorGUIorChains()
{
    return defControls.bExitGUI != T && defControls.bExitProgram != T ? -1 : 0;
}

void SetExitUI() {}
void SetExitGUI() {}
void SetExitChain() {}
void GotoNextUserInterface() {}
void GotoPreviousUserInterface() {}

int UIComponentTypeByChain(const CHAIN* thisChain, int nComp)
{
    return ComponentTypeByChain(thisChain, nComp);
}

int GetCurrentComponentType()
{
    return defCurrent.nType;
}

int GetCurrentOptionSelection()
{
    return defCurrent.nSelect;
}

int GetCurrentCheckboxSelection()
{
    return defCurrent.nSelect;
}

int GetCurrentSelectedToolbarButton()
{
    return defCurrent.nSelect;
}

int GetCurrentSelectedMenuElement()
{
    return defCurrent.nSelect;
}

char* GetCurrentTextboxData()
{
    return kultextbox_getText(defCurrent.nChain, defCurrent.nUserInterface);
}

void ExecOnFunction(KULCALLBACK Function)
{
    if (!Function)
        return;
    const kul::Pause pause(kul::Turn::Program);
    const CURRENT before = defCurrent;
    Function();
    defCurrent = before;
}

void ShowUIColors()
{
    CHAIN* chain = GetChain(defCurrent.nChain);
    if (!chain || !chain->Pointer || chain->Pointer->nVisible != T)
        return;
    const kul::Pass pass;
    kul::forgetCursor();
    BackgroundDisplay(chain);
    ShowDisplayComponents(chain->Pointer);
    for (UI* ui = chain->Pointer->UserInterface; ui; ui = ui->Next) {
        if (ui->nRef == defCurrent.nUserInterface)
            ShowUIComponentFocused(chain->Pointer, ui);
        else
            ShowUIComponentUnfocused(chain->Pointer, ui);
    }
}
