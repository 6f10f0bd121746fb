// SPDX-License-Identifier: MIT
//
// The calls for dialogs: create, configure, run, show, hide, destroy.
#include "kulgui.h"

#include <algorithm>

#include "gui/chain.hpp"
#include "gui/edition.hpp"
#include "gui/frame.hpp"
#include "gui/keys.hpp"
#include "gui/place.hpp"
#include "gui/screen.hpp"
#include "ui/handler.hpp"

namespace {

struct DialogColors {
    int nStandard;
    int nFocus;
    int nUnfocus;
    int nDisable;
};

// What the two config calls have in common.
void configure(GUI& gui, const DialogColors& colors, const char* szTitle, KULCALLBACK onFocus,
               KULCALLBACK onPoll, KULCALLBACK onUnfocus, KULCALLBACK onDestroy)
{
    SetVar(&gui.nColorStandard, colors.nStandard);
    SetVar(&gui.nColorFocus, colors.nFocus);
    SetVar(&gui.nColorUnfocus, colors.nUnfocus);
    SetVar(&gui.nColorDisable, colors.nDisable);
    gui.szTitle = szTitle;
    gui.onFocus = onFocus;
    gui.onPoll = onPoll;
    gui.onUnfocus = onUnfocus;
    gui.onDestroy = onDestroy;
}

int countComponents(int nChain)
{
    int nCount = 0;
    for (const UI* ui = GetFirstUIComponentInChain(nChain); ui; ui = ui->Next)
        ++nCount;
    return nCount;
}

// The component in focus; in edition 2 the first one takes the place of one that is gone.
const UI* findFocused(int nChain)
{
    const GUI* gui = kul::findDialog(nChain);
    const UI* ui = gui ? GetUIComponentByRef(nChain, gui->nCurrentUI) : nullptr;
    return ui || !gui || !kul::isEdition2() ? ui : gui->UserInterface;
}

const UI* neighbour(const GUI& gui, const UI& ui, bool forward)
{
    const UI* next = forward ? ui.Next : ui.Prev;
    if (next)
        return next;
    return forward ? gui.UserInterface : GetLastUIComponent(&gui);
}

// The component from one on that can take the focus, round the list; null for none.
const UI* findAble(const kul::Dialog& dialog, const UI& from, bool forward)
{
    const UI* ui = &from;
    do {
        if (kul::takesFocus(dialog, *ui))
            return ui;
        ui = neighbour(dialog, *ui, forward);
    } while (ui != &from);
    return nullptr;
}

// Moves the focus from a component to its neighbour, round the list. KUL_GONE when it is gone.
int moveFocus(int nChain, int nRef, bool forward)
{
    const UI* from = GetUIComponentByRef(nChain, nRef);
    if (!from)
        return KUL_GONE;
    kul::Dialog* dialog = kul::findDialog(nChain);
    dialog->nCurrentUI = neighbour(*dialog, *from, forward)->nRef;
    return 0;
}

// Shows what the loop starts with: the dialog if it never was shown, and the components of the
// dialog that was active without focus. False without memory for its windows.
bool showFirst(int nChain, int nBefore)
{
    CHAIN* chain = GetChain(nChain);
    if (chain->Pointer->nVisible == F) {
        chain->Pointer->nVisible = T;
        if (chain != GetPrimaryChain())
            DlgBox(chain->Pointer);
        if (!chain->Pointer->winMain && chain != GetPrimaryChain())
            return false;
    }
    ExecuteFocusFunction(chain->Pointer);
    GUI* before = kul::findDialog(nBefore);
    for (UI* ui = before ? before->UserInterface : nullptr; ui; ui = ui->Next)
        ShowUIComponentUnfocused(before, ui);
    return true;
}

// What ends a loop whatever its handler returned; 0 for nothing.
int endOfLoop(int nChain)
{
    if (kul::lineIsGone())
        return KUL_GONE;
    if (kul::takeLeaving(nChain))
        return KUL_LEFT;
    return findFocused(nChain) ? 0 : KUL_GONE;
}

// Waits for a dialog in which no component did. Tab and Escape do what they do in a component; the
// result goes on with other keys.
int waitForAll(int nChain, int nResult)
{
    const int nKey = kul::offerKey(nChain, kul::waitOnce());
    if (nKey == KS_ESC)
        return kul::isEdition2() ? KUL_CANCELLED : KUL_PREVIOUS;
    return nKey == KS_TAB ? KUL_NEXT : nKey == KS_BACKTAB ? KUL_PREVIOUS : nResult;
}

bool isEnd(int nResult)
{
    return nResult == KUL_GONE || nResult == KUL_LEFT || nResult == KUL_CANCELLED;
}

// At the end of a dialog over another one that has waited: draws the component that has the focus
// there again. When the upper one goes, what it uncovers is right, and nothing is sent twice.
void showBelow(const CURRENT& below)
{
    GUI* gui = kul::findDialog(below.nChain);
    UI* ui = gui ? GetUIComponentByRef(below.nChain, below.nUserInterface) : nullptr;
    if (ui && gui->nVisible == T && gui->winMain && kul::waitsBelow(below.nChain))
        ShowUIComponentFocused(gui, ui);
}

// Runs the handler of the component in focus, once. nStill counts components in a row that did not
// wait for a key, being hidden for instance: when it reaches all of them, this waits, or the loop
// would spin without a key or a poll.
int runFocused(int nChain, int nResult, int& nStill)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    const UI* ui = findFocused(nChain);
    const UI* able = ui ? findAble(*dialog, *ui, nResult != KUL_PREVIOUS) : nullptr;
    if (able)
        ui = able;
    const kul::UIKind* kind = ui ? kul::uiKind(ui->nType) : nullptr;
    if (!kind)
        return KUL_GONE;
    const int nRef = dialog->nCurrentUI = ui->nRef;
    const unsigned nWaits = kul::waits();
    const int nHandled = able ? kul::runHandler(*kind, nChain, nRef) : 0;
    if (nHandled != -1)
        nResult = nHandled;
    int nEnd = endOfLoop(nChain);
    // As the handler says, which has taken the request.
    if (nEnd == 0 && isEnd(nResult) &&
        (nResult == KUL_LEFT || !kul::findDialog(nChain)->asked.refocused))
        nEnd = nResult;
    nStill = kul::waits() == nWaits ? nStill + 1 : 0;
    if (nEnd == 0 && nStill > 0 && (!able || nStill >= countComponents(nChain))) {
        nStill = 0;
        nResult = waitForAll(nChain, nResult);
        nEnd = endOfLoop(nChain);
    }
    if (nEnd != 0)
        return nEnd;
    if (kul::takeRefocus(nChain))
        return 0;
    if ((nResult == KUL_NEXT || nResult == KUL_PREVIOUS) &&
        moveFocus(nChain, nRef, nResult == KUL_NEXT) != 0)
        return KUL_GONE;
    return nResult;
}

} // namespace

const char* kulgui_version()
{
    return KULGUI_VERSION;
}

int kulgui_setEdition(int nEdition)
{
    if (nEdition != 1 && nEdition != 2)
        return -1;
    if (kul::nEdition != nEdition)
        kul::forgetDecoded(); // what was typed ahead for the other one
    kul::nEdition = nEdition;
    return 0;
}

int kulgui_getEdition()
{
    return kul::nEdition;
}

int kulgui_getColumns()
{
    return std::max(GetWindowWidth(stdscr), 0);
}

int kulgui_getRows()
{
    return std::max(GetWindowHeight(stdscr), 0);
}

int kulgui_create(int nChain)
{
    return CreateChain(nChain);
}

int kulgui_configPrime(int nChain, int nColorStandard, int nColorFocus, int nColorUnfocus,
                       int nColorDisable, const char* szTitle, KULCALLBACK onFocus,
                       KULCALLBACK onPoll, KULCALLBACK onUnfocus, KULCALLBACK onDestroy,
                       const char* szFilePath)
{
    if (GetPrimaryFlag() != -1)
        return KUL_PRIMARY_BARRED;
    CHAIN* primary = GetPrimaryChain();
    if (!primary)
        return KUL_PRIMARY_FAILED;
    GUI* before = primary->Pointer;
    GUI* gui = kul::newDialog(primary);
    if (!gui)
        return KUL_PRIMARY_FAILED;
    if (before) {
        kul::emptyDialog(before);
        std::free(before);
    }
    primary->nRef = nChain;
    const int nResult = ConfigGUIPrime();
    configure(*gui, {nColorStandard, nColorFocus, nColorUnfocus, nColorDisable}, szTitle, onFocus,
              onPoll, onUnfocus, onDestroy);
    gui->nVisible = T;
    gui->szLangFile = szFilePath;
    gui->winMain = nullptr;
    return nResult;
}

int kulgui_config(int nChain, int nColorStandard, int nColorFocus, int nColorUnfocus,
                  int nColorDisable, const char* szTitle, int nBorder, int nX, int nY, int nWidth,
                  int nHeight, KULCALLBACK onFocus, KULCALLBACK onPoll, KULCALLBACK onUnfocus,
                  KULCALLBACK onDestroy, const char*)
{
    CHAIN* chain = GetChain(nChain);
    if (!chain)
        return KUL_NO_CHAIN;
    const kul::Pass pass(kul::Pass::End::Later);
    const int nCreated = CreateGUI(chain);
    if (!chain->Pointer)
        return nCreated;
    GUI& gui = *chain->Pointer;
    WINDOW* screen = gui.winMain == stdscr ? stdscr : nullptr;
    kul::emptyDialog(&gui);
    gui.winMain = screen;
    if (LoadGUIDefaults(&gui) < 0)
        return nCreated;
    configure(gui, {nColorStandard, nColorFocus, nColorUnfocus, nColorDisable}, szTitle, onFocus,
              onPoll, onUnfocus, onDestroy);
    SetVar(&gui.nBorder, nBorder);
    kul::wantPlace(static_cast<kul::Dialog&>(gui), nX, nY, nWidth, nHeight);
    gui.nVisible = F;
    gui.winMain = nullptr;
    return 0;
}

int kulgui_place(int nChain, int nX, int nY, int nWidth, int nHeight)
{
    CHAIN* chain = GetChain(nChain);
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog || chain == GetPrimaryChain())
        return -1;
    const kul::Pass pass;
    kul::wantPlace(*dialog, nX, nY, nWidth, nHeight);
    kul::layOut(*dialog);
    if (dialog->winMain) {
        kul::redraw(chain);
        kul::touchAll();
    }
    return 0;
}

int kulgui_exec(int nChain)
{
    if (!kul::findDialog(nChain))
        return -1;
    if (NCursesEnv(0) == F) {
        const int nOpened = NCursesEnv(1);
        if (nOpened != 0)
            return nOpened;
    }
    const int nBefore = GetActiveChain();
    CURRENT* selection = GetCurrentSelection();
    const CURRENT below = *selection;
    const kul::Pass pass(kul::Pass::End::Later);
    const kul::Loop loop(nChain);
    SetActiveChain(nChain);
    int nResult = KUL_ERROR;
    if (showFirst(nChain, nBefore)) {
        nResult = 0;
        for (int nStill = 0; !isEnd(nResult);)
            nResult = runFocused(nChain, nResult, nStill);
        ExecuteUnfocusFunction(kul::findDialog(nChain));
    }
    SetActiveChain(nBefore);
    SetCurrentSelection(selection);
    showBelow(below);
    return nResult;
}

int kulgui_show(int nChain)
{
    CHAIN* chain = GetChain(nChain);
    if (!chain || !chain->Pointer)
        return 0;
    const kul::Pass pass;
    chain->Pointer->nVisible = T;
    BackgroundDisplay(chain);
    ShowDisplayComponents(chain->Pointer);
    ShowUIComponents(chain->Pointer);
    return 0;
}

int kulgui_hide(int nChain)
{
    GUI* gui = kul::findDialog(nChain);
    if (!gui)
        return 0;
    const kul::Pass pass;
    gui->nVisible = F;
    kul::hidePanels(kul::panelsOf(*gui));
    return 0;
}

int kulgui_destroy(int nChain)
{
    CHAIN* chain = GetChain(nChain);
    if (!chain)
        return -1;
    kul::destroyChain(chain);
    return 0;
}

int kulgui_destroyAll()
{
    NCursesEnv(2);
    return 0;
}

int kulgui_exit()
{
    return 0;
}

int kulgui_hasExited()
{
    return 0;
}

int kulgui_getExitValue()
{
    return 0;
}

int kulgui_update()
{
    return 0;
}

int kulgui_leave(int nChain)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog)
        return -1;
    dialog->asked.leaving = true;
    return 0;
}

int kulgui_setFocus(int nChain, int nRef)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog || CheckUICompExistence(nChain, nRef) != 0)
        return -1;
    dialog->nCurrentUI = nRef;
    dialog->asked.refocused = true;
    return 0;
}

int kulgui_setTabbing(int nChain, int bTabbing)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog)
        return -1;
    dialog->tabs = bTabbing == T;
    return 0;
}
