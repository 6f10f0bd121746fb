// SPDX-License-Identifier: MIT
//
// A dialog lies where the program wants it as long as it is seen whole there; else it is moved in
// from the edge, and back when there is room again. Its shadow is one cell further down and to the
// right, as far as the screen goes. Windows have the row below a dialog and the column beside it,
// the cells that are seen of a shadow: one of its whole size would take as much memory as the
// dialog.
//
// The panel of a dialog that is larger than the screen shows a window of its own, a view of a part
// of it; curses would read beyond the screen, or cut the dialog where its buttons are.
#include "place.hpp"

#include <algorithm>

#include "../clamp.hpp"
#include "screen.hpp"

namespace kul {

namespace {

bool shadowsMade = false;
int nKeptOrders = 0;

// A rectangle of cells of the screen.
struct Box {
    int nY;
    int nX;
    int nHeight;
    int nWidth;
};

// Sizes that curses would refuse, or read as "to the edge of the screen", are brought into range,
// and memory is bounded.
int limited(int nSize)
{
    return kul::clamp(nSize, 1, std::max({512, LINES, COLS}));
}

// As near to the place that is wanted as all of it is on the screen, or from the edge on.
int placed(int nWanted, int nSize, int nScreen)
{
    const int nRoom = std::max(nScreen - limited(nSize), 0);
    return nWanted == KUL_CENTER ? nRoom / 2 : kul::clamp(nWanted, 0, nRoom);
}

// What is shown of a dialog.
Box boxOf(const GUI& gui)
{
    return {placed(gui.nY, gui.nHeight, LINES), placed(gui.nX, gui.nWidth, COLS),
            std::min(limited(gui.nHeight), LINES), std::min(limited(gui.nWidth), COLS)};
}

// Where there is no room for a shadow it hides behind the dialog.
Box shadowOf(const Box& box)
{
    if (box.nY + 1 >= LINES || box.nX + 1 >= COLS)
        return {box.nY, box.nX, 1, 1};
    return {box.nY + 1, box.nX + 1, std::min(box.nHeight, LINES - box.nY - 1),
            std::min(box.nWidth, COLS - box.nX - 1)};
}

Box belowOf(const Box& shadow)
{
    return {shadow.nY + shadow.nHeight - 1, shadow.nX, 1, shadow.nWidth};
}

Box besideOf(const Box& shadow)
{
    return {shadow.nY, shadow.nX + shadow.nWidth - 1, shadow.nHeight, 1};
}

// What the record says if the program has written another place there than it was given.
void noticeWanted(int nPlace, Wish& wish)
{
    if (nPlace != wish.nGiven)
        wish.nWanted = nPlace;
}

void give(int& nPlace, Wish& wish, int nSize, int nScreen)
{
    noticeWanted(nPlace, wish);
    wish.nGiven = nPlace = placed(wish.nWanted, nSize, nScreen);
}

void want(int& nPlace, Wish& wish, int nWanted, int nSize, int nScreen)
{
    noticeWanted(nPlace, wish);
    SetVar(&wish.nWanted, nWanted);
    nPlace = wish.nWanted;
    if (stdscr && nPlace == KUL_CENTER)
        nPlace = placed(nPlace, nSize, nScreen);
    wish.nGiven = nPlace;
}

WINDOW* newWindow(const Box& box)
{
    WINDOW* win = newwin(box.nHeight, box.nWidth, box.nY, box.nX);
    // The cursor has no meaning in a dialog: do not spend bytes on moving it.
    if (win)
        leaveok(win, TRUE);
    return win;
}

// Curses moves a window only where all of it is on the screen.
void movePanel(PANEL* panel, const Box& box)
{
    wresize(panel_window(panel), box.nHeight, box.nWidth);
    move_panel(panel, box.nY, box.nX);
}

// What the panel of a dialog shows: its window, or a view.
void chooseView(Dialog& dialog, const Box& box)
{
    WINDOW* before = dialog.view;
    const bool whole =
        box.nHeight == getmaxy(dialog.winMain) && box.nWidth == getmaxx(dialog.winMain);
    if (whole)
        dialog.view = nullptr;
    else if (!before)
        dialog.view = newWindow(box);
    if (before == dialog.view)
        return;
    replace_panel(dialog.pnlMain, dialog.view ? dialog.view : dialog.winMain);
    if (before)
        delwin(before);
}

void setPanels(const Panels& panels, int (*action)(PANEL*))
{
    for (PANEL* panel : {panels.pnlShadow, panels.pnlSide, panels.pnlMain}) {
        if (panel)
            action(panel);
    }
}

// A shadow's window with its panel; null without memory.
PANEL* newShadow(const Box& box)
{
    WINDOW* win = newWindow(box);
    PANEL* panel = new_panel(win);
    if (!panel && win)
        delwin(win);
    return panel;
}

void dropWindows(GUI& gui)
{
    setPanels({gui.pnlShadow, nullptr, gui.pnlMain}, del_panel);
    for (WINDOW* win : {gui.winShadow, gui.winMain}) {
        if (win && win != stdscr)
            delwin(win);
    }
    gui.pnlShadow = gui.pnlMain = nullptr;
    gui.winShadow = gui.winMain = nullptr;
}

} // namespace

void defineShadow()
{
    if (shadowsMade)
        init_pair(kShadowPair, COLOR_BLACK, COLOR_BLACK);
}

void wantPlace(Dialog& dialog, int nX, int nY, int nWidth, int nHeight)
{
    SetVar(&dialog.nWidth, nWidth);
    SetVar(&dialog.nHeight, nHeight);
    want(dialog.nX, dialog.column, nX, dialog.nWidth, COLS);
    want(dialog.nY, dialog.row, nY, dialog.nHeight, LINES);
}

void layOut(Dialog& dialog)
{
    const CHAIN* primary = GetPrimaryChain();
    if (!stdscr)
        return;
    if (primary && primary->Pointer == &dialog && (!dialog.winMain || dialog.winMain == stdscr)) {
        dialog.nWidth = COLS;
        dialog.nHeight = LINES;
        return;
    }
    give(dialog.nX, dialog.column, dialog.nWidth, COLS);
    give(dialog.nY, dialog.row, dialog.nHeight, LINES);
    if (!dialog.winMain)
        return;
    const Box box = boxOf(dialog);
    wresize(dialog.winMain, limited(dialog.nHeight), limited(dialog.nWidth));
    chooseView(dialog, box);
    dialog.part = dialog.followed = {};
    movePanel(dialog.pnlMain, box); // without memory for a view the window is cut
    movePanel(dialog.pnlShadow, belowOf(shadowOf(box)));
    movePanel(dialog.pnlSide, besideOf(shadowOf(box)));
    WinFill(dialog.winShadow, kShadowPair);
    WinFill(panel_window(dialog.pnlSide), kShadowPair);
}

void makeWindows(GUI* thisGUI)
{
    Dialog* dialog = findDialog(thisGUI);
    const Box box = boxOf(*thisGUI);
    const Box shadow = shadowOf(box);
    shadowsMade = true;
    defineShadow();
    thisGUI->pnlShadow = newShadow(dialog ? belowOf(shadow) : shadow);
    thisGUI->winShadow = panel_window(thisGUI->pnlShadow);
    if (dialog)
        dialog->pnlSide = newShadow(besideOf(shadow));
    thisGUI->winMain =
        newWindow({box.nY, box.nX, limited(thisGUI->nHeight), limited(thisGUI->nWidth)});
    thisGUI->pnlMain = new_panel(thisGUI->winMain);
    if (!thisGUI->pnlShadow || !thisGUI->pnlMain || (dialog && !dialog->pnlSide))
        dialog ? deleteWindows(*dialog) : dropWindows(*thisGUI);
    else if (dialog)
        layOut(*dialog);
}

void deleteWindows(Dialog& dialog)
{
    forgetWindow(dialog.winMain);
    dropWindows(dialog);
    WINDOW* side = panel_window(dialog.pnlSide);
    del_panel(dialog.pnlSide);
    for (WINDOW* win : {side, dialog.view}) {
        if (win)
            delwin(win);
    }
    dialog.pnlSide = nullptr;
    dialog.view = nullptr;
}

KeptOrder::KeptOrder()
{
    ++nKeptOrders;
}

KeptOrder::~KeptOrder()
{
    --nKeptOrders;
}

Panels panelsOf(const GUI& gui)
{
    const Dialog* dialog = findDialog(&gui);
    return {gui.pnlShadow, dialog ? dialog->pnlSide : nullptr, gui.pnlMain};
}

void raisePanels(const Panels& panels)
{
    PANEL* main = panels.pnlMain;
    if (nKeptOrders > 0 && main && !panel_hidden(main))
        return;
    PANEL* next = panels.pnlSide ? panels.pnlSide : panels.pnlShadow;
    const bool onTop = main && panels.pnlShadow && !panel_hidden(main) &&
                       !panel_hidden(panels.pnlShadow) && !panel_above(main) &&
                       panel_below(main) == next;
    if (!onTop)
        setPanels(panels, show_panel);
}

void hidePanels(const Panels& panels)
{
    setPanels(panels, hide_panel);
}

} // namespace kul
