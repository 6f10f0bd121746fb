// SPDX-License-Identifier: MIT
//
// A dialog has its window in full, whatever the screen; a view is a window of the screen's size at
// most into which a part of it is copied.
//
// The part follows the user. What no focus comes near, a text above a button for instance, is
// reached by the keys that have nothing else to do: an arrow or a page key that changed nothing
// moves the part, until the user does something else.
#include "view.hpp"

#include "../clamp.hpp"
#include "draw.hpp"

namespace kul {

namespace {

// A range of cells along one edge of a dialog.
struct Range {
    int nFirst;
    int nEnd;
};

// The same with the dialog's frame, where that is next to it.
Range withFrame(Range range, int nSize)
{
    return {range.nFirst <= 1 ? 0 : range.nFirst, range.nEnd >= nSize - 1 ? nSize : range.nEnd};
}

// Where a part has to begin to show as much as fits of a cell, what is around it and the frame.
int following(int nStart, int nPart, int nCell, Range range, int nSize)
{
    for (const Range wanted : {withFrame(range, nSize), range, Range{nCell, nCell + 1}}) {
        if (wanted.nEnd - wanted.nFirst <= nPart && wanted.nFirst <= nCell && nCell < wanted.nEnd)
            return kul::clamp(nStart, wanted.nEnd - nPart, wanted.nFirst);
    }
    return nStart;
}

Cell followed(const Dialog& dialog, const User& user)
{
    const Range rows{user.corner.nY, shifted(user.corner.nY, user.nHeight)};
    const Range columns{user.corner.nX, shifted(user.corner.nX, user.nWidth)};
    return {following(dialog.part.nY, getmaxy(dialog.view), user.cell.nY, rows,
                      getmaxy(dialog.winMain)),
            following(dialog.part.nX, getmaxx(dialog.view), user.cell.nX, columns,
                      getmaxx(dialog.winMain))};
}

// Where a key leads that is to move the part.
Cell moved(const Dialog& dialog, int nKey)
{
    Cell part = dialog.part;
    switch (nKey) {
    case KS_UP:
        --part.nY;
        break;
    case KS_DOWN:
        ++part.nY;
        break;
    case KS_LEFT:
        --part.nX;
        break;
    case KS_RIGHT:
        ++part.nX;
        break;
    case KS_PAGEUP:
        part.nY -= getmaxy(dialog.view);
        break;
    case KS_PAGEDOWN:
        part.nY += getmaxy(dialog.view);
        break;
    default:
        break;
    }
    return part;
}

Cell within(const Dialog& dialog, Cell part)
{
    return {kul::clamp(part.nY, 0, getmaxy(dialog.winMain) - getmaxy(dialog.view)),
            kul::clamp(part.nX, 0, getmaxx(dialog.winMain) - getmaxx(dialog.view))};
}

bool isMove(int nKey)
{
    return (nKey >= KS_LEFT && nKey <= KS_RIGHT) || nKey == KS_PAGEUP || nKey == KS_PAGEDOWN;
}

#if NCURSES_WIDECHAR
// Which column of a wide character a cell is, from 1; 0 for another character.
int columnOf(const cchar_t& cell)
{
    return static_cast<int>(cell.attr & A_CHARTEXT);
}

void blankHalf(WINDOW* view, int nY, int nX, bool (*isHalf)(const cchar_t&))
{
    cchar_t cell{};
    wchar_t text[CCHARW_MAX + 1];
    attr_t attributes = 0;
    short nPair = 0;
    if (mvwin_wch(view, nY, nX, &cell) != OK || !isHalf(cell) ||
        getcchar(&cell, text, &attributes, &nPair, nullptr) != OK ||
        setcchar(&cell, L" ", attributes, nPair, nullptr) != OK)
        return;
    mvwadd_wch(view, nY, nX, &cell);
}

// A wide character that an edge of the part cuts is a blank.
void blankHalves(WINDOW* view)
{
    for (int y = 0; y < getmaxy(view); ++y) {
        if (!is_linetouched(view, y))
            continue;
        blankHalf(view, y, 0, [](const cchar_t& cell) { return columnOf(cell) > 1; });
        blankHalf(view, y, getmaxx(view) - 1,
                  [](const cchar_t& cell) { return columnOf(cell) == 1; });
    }
}
#else
void blankHalves(WINDOW*) {}
#endif

// Copies the part; only what differs in the view counts as touched.
void copyPart(const Dialog& dialog)
{
    copywin(dialog.winMain, dialog.view, dialog.part.nY, dialog.part.nX, 0, 0,
            getmaxy(dialog.view) - 1, getmaxx(dialog.view) - 1, FALSE);
    blankHalves(dialog.view);
}

void showPart(Dialog& dialog, const User& user, int nKey)
{
    if (is_wintouched(dialog.winMain))
        copyPart(dialog);
    untouchwin(dialog.winMain);
    const bool idle = isMove(nKey) && !is_wintouched(dialog.view);
    Cell part = dialog.part;
    if (user.win == dialog.winMain && (user.cell != dialog.followed || (nKey != 0 && !idle))) {
        dialog.followed = user.cell;
        part = followed(dialog, user);
    } else if (idle && panel_below(nullptr) == dialog.pnlMain) {
        part = moved(dialog, nKey);
    }
    part = within(dialog, part);
    if (part == dialog.part)
        return;
    dialog.part = part;
    copyPart(dialog);
}

} // namespace

void showParts(const User& user, int nKey)
{
    for (CHAIN* chain = GetPrimaryChain(); chain; chain = nextChain(chain)) {
        auto* dialog = static_cast<Dialog*>(chain->Pointer);
        if (dialog && dialog->view && dialog->nVisible == T)
            showPart(*dialog, user, nKey);
    }
}

WINDOW* shownAt(WINDOW* win, Cell& cell)
{
    for (CHAIN* chain = GetPrimaryChain(); chain; chain = nextChain(chain)) {
        const auto* dialog = static_cast<const Dialog*>(chain->Pointer);
        if (!dialog || !dialog->view || dialog->winMain != win)
            continue;
        cell = {cell.nY - dialog->part.nY, cell.nX - dialog->part.nX};
        return dialog->view;
    }
    return win;
}

} // namespace kul
