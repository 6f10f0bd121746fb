// SPDX-License-Identifier: MIT
//
// What a dialog stands on: its defaults, its frame with title and shadow, and the background of the
// primary dialog.
#include "frame.hpp"

#include <algorithm>

#include "chain.hpp"
#include "edition.hpp"
#include "place.hpp"
#include "print.hpp"
#include "screen.hpp"
#include "text.hpp"

namespace {

struct DefaultColors {
    int nStandard;
    int nFocus;
    int nUnfocus;
    int nDisable;
};

// By edition, of the primary dialog and of the others.
constexpr DefaultColors kDefaultColors[2][2] = {
    {{BLACK_WHITE, CYAN_BLUE, BLUE_WHITE, CYAN_WHITE},
     {RED_BLUE, RED_MAGENTA, RED_WHITE, RED_CYAN}},
    {{WHITE_BLUE, WHITE_BLUE, BLACK_WHITE, BLUE_WHITE},
     {BLACK_WHITE, WHITE_BLUE, BLACK_WHITE, BLUE_WHITE}}};

void printTitle(WINDOW* win, int nX, int nColor, const char* szTitle)
{
    const kul::Attribute color(win, nColor);
    kul::print(win, 0, nX, szTitle);
}

// In edition 2 the corners of the frame stay, however long the title is.
void printFrameTitle(const GUI& gui)
{
    if (!kul::isDrawn(gui.winMain, 0))
        return;
    const char* szTitle = gui.szTitle ? gui.szTitle : "";
    const int nX = gui.nWidth / 2 - kul::widthOf(szTitle) / 2 - 1;
    if (!kul::isEdition2()) {
        printTitle(gui.winMain, nX, gui.nColorStandard, szTitle);
        return;
    }
    const kul::Attribute color(gui.winMain, gui.nColorStandard);
    kul::printLetters(gui.winMain, 0, std::max(nX, 1), kul::shifted(gui.nWidth, -1), szTitle,
                      kul::ShownControls::Whole);
}

} // namespace

namespace kul {

void redraw(CHAIN* thisChain)
{
    GUI& gui = *thisChain->Pointer;
    const CURRENT& current = *GetCurrentSelection();
    const Pass pass;
    const KeptOrder order;
    BackgroundDisplay(thisChain);
    ShowDisplayComponents(&gui);
    for (UI* ui = gui.UserInterface; ui; ui = ui->Next) {
        if (current.nChain == thisChain->nRef && current.nUserInterface == ui->nRef)
            ShowUIComponentFocused(&gui, ui);
        else
            ShowUIComponentUnfocused(&gui, ui);
    }
}

} // namespace kul

int CreateGUI(CHAIN* thisChain)
{
    if (!thisChain)
        return -1;
    if (thisChain->Pointer)
        return KUL_HAS_DIALOG;
    return kul::newDialog(thisChain) ? 0 : KUL_NO_MEMORY;
}

int LoadGUIDefaults(GUI* thisGUI)
{
    if (!thisGUI)
        return -1;
    const CHAIN* primary = GetPrimaryChain();
    const GUI* primeGUI = primary ? primary->Pointer : nullptr;
    // Before the terminal is open there is no standard screen, and no window is equal to it.
    const bool prime = thisGUI->winMain == stdscr && (stdscr || thisGUI == primeGUI);
    if (prime) {
        thisGUI->nX = 0;
        thisGUI->nY = 0;
        thisGUI->nWidth = GetWindowWidth(stdscr);
        thisGUI->nHeight = GetWindowHeight(stdscr);
        thisGUI->szLangFile = nullptr;
        thisGUI->nCurrentUI = -1;
    } else {
        if (!primeGUI)
            return -1;
        thisGUI->szLangFile = primeGUI->szLangFile;
    }
    const DefaultColors& colors = kDefaultColors[kul::isEdition2() ? 1 : 0][prime ? 0 : 1];
    thisGUI->nColorStandard = colors.nStandard;
    thisGUI->nColorFocus = colors.nFocus;
    thisGUI->nColorUnfocus = colors.nUnfocus;
    thisGUI->nColorDisable = colors.nDisable;
    thisGUI->nBorder = prime ? NOBORDER : BORDER;
    thisGUI->nVisible = prime ? F : T;
    thisGUI->szTitle = nullptr;
    thisGUI->onFocus = thisGUI->onUnfocus = thisGUI->onPoll = thisGUI->onDestroy = nullptr;
    thisGUI->UserInterface = nullptr;
    thisGUI->Display = nullptr;
    return 0;
}

int ConfigGUIPrime()
{
    const CHAIN* primary = GetPrimaryChain();
    if (!primary)
        return KUL_NO_PRIMARY;
    if (!primary->Pointer)
        return KUL_NO_PRIMARY_DIALOG;
    primary->Pointer->winMain = stdscr;
    primary->Pointer->winShadow = nullptr;
    primary->Pointer->pnlMain = nullptr;
    primary->Pointer->pnlShadow = nullptr;
    return LoadGUIDefaults(primary->Pointer);
}

int ConfigGUI(CHAIN* thisChain)
{
    if (!thisChain)
        return -1;
    DlgBox(thisChain->Pointer);
    return 0;
}

int GetWindowWidth(const WINDOW* win)
{
    return getmaxx(win);
}

int GetWindowHeight(const WINDOW* win)
{
    return getmaxy(win);
}

void DlgBox(GUI* thisGUI)
{
    if (!thisGUI)
        return;
    kul::Pass pass;
    if (!thisGUI->winMain && stdscr)
        kul::makeWindows(thisGUI);
    const int nColor = thisGUI->nColorStandard;
    WinFill(thisGUI->winMain, nColor);
    // The program's own may come with windows, or be new; untouched it still is what it was.
    if (is_wintouched(thisGUI->winShadow))
        WinFill(thisGUI->winShadow, kul::kShadowPair);
    DrawBorder(thisGUI->winMain, 0, 0, thisGUI->nHeight, thisGUI->nWidth, nColor);
    printFrameTitle(*thisGUI);
    kul::raisePanels(kul::panelsOf(*thisGUI));
    thisGUI->nVisible = T;
}

void ShowDlg(DLG* dialog)
{
    if (!dialog || !dialog->winMain || !dialog->winShadow)
        return;
    kul::Pass pass;
    kul::raisePanels({dialog->pnlShadow, nullptr, dialog->pnlMain});
    dialog->nVisible = T;
}

void HideDlg(DLG* dialog)
{
    if (!dialog)
        return;
    kul::Pass pass;
    kul::hidePanels({dialog->pnlShadow, nullptr, dialog->pnlMain});
    dialog->nVisible = F;
}

void KillDlg(DLG* dialog)
{
    if (!dialog)
        return;
    HideDlg(dialog);
    for (WINDOW** win : {&dialog->winMain, &dialog->winShadow}) {
        if (*win)
            delwin(*win);
        *win = nullptr;
    }
}

void BackgroundDisplay(CHAIN* thisChain)
{
    if (!thisChain || !thisChain->Pointer)
        return;
    GUI* gui = thisChain->Pointer;
    kul::Pass pass;
    if (thisChain != GetPrimaryChain()) {
        DlgBox(gui);
        return;
    }
    if (gui->winMain != stdscr)
        kul::deleteWindows(static_cast<kul::Dialog&>(*gui));
    gui->winMain = stdscr;
    gui->nWidth = GetWindowWidth(stdscr);
    gui->nHeight = GetWindowHeight(stdscr);
    WinFill(stdscr, gui->nColorStandard);
    printTitle(stdscr, 0, gui->nColorStandard, gui->szTitle ? gui->szTitle : "");
    // In edition 1 the line takes the finished attribute for a colour set and makes an attribute of
    // it once more: it shows underlining and the like, as the number of the set has it, and no
    // colour.
    const int nLine =
        kul::isEdition2() ? gui->nColorStandard : kul::rawAttribute(gui->nColorStandard);
    DrawHLine(stdscr, 1, 0, gui->nWidth - 1, nLine);
}
