// SPDX-License-Identifier: MIT
//
// What a file viewer looks like.
#include <algorithm>

#include "../clamp.hpp"
#include "../file/file_rows.hpp"
#include "../gui/draw.hpp"
#include "../gui/screen.hpp"
#include "component.hpp"
#include "fileview.hpp"

namespace kul {

FileBox fileBox(const KULFILEVIEW& view)
{
    if (view.nBorder == BORDER)
        return {shifted(view.nX, 1), shifted(view.nY, 1), shifted(view.nWidth, -2),
                shifted(view.nHeight, -2)};
    return {view.nX, view.nY, shifted(view.nWidth, -1), view.nHeight};
}

int fileColumns(const KULFILEVIEW& view)
{
    return kul::clamp(fileBox(view).nWidth, 1, FileRows::kMaxColumns);
}

int fileRows(const KULFILEVIEW& view)
{
    return kul::clamp(fileBox(view).nHeight, 1, kMaxFileRows);
}

bool isLaidOut(const FileView& view)
{
    return view.nColumns == fileColumns(view) && view.nRows == fileRows(view);
}

} // namespace kul

namespace {

using kul::FileBox;
using kul::fileColumns;
using kul::FilePlace;
using kul::FileRows;
using kul::FileView;
using kul::kMaxFileRows;

constexpr int kScrollStyle = 1;

// A row of plain characters goes out in one run with the blanks behind them.
bool drawPlainRow(WINDOW* win, int nY, const FileBox& box, FileRows& rows, const FileRows::Row& row)
{
    char cells[FileRows::kMaxColumns];
    const std::string_view plain = rows.plainFrom(row.start, row.end);
    const auto nPlain = static_cast<int>(plain.size());
    if (nPlain < row.end - row.start || nPlain > box.nWidth || box.nWidth > FileRows::kMaxColumns)
        return false;
    std::fill(std::copy(plain.begin(), plain.end(), cells), cells + box.nWidth, ' ');
    kul::plainRun(win, nY, box.nX, {cells, static_cast<std::size_t>(box.nWidth)});
    return true;
}

// Any other row is drawn on blanks as wide as the box: these come first, for a plain character that
// takes the place of one half of a wide one is lost when the other half goes. Cells outside of the
// window are left out, and so is what lies there in part.
void drawRow(WINDOW* win, int nY, const FileBox& box, FileRows& rows, const FileRows::Row& row)
{
    if (drawPlainRow(win, nY, box, rows, row))
        return;
    const int nRight =
        static_cast<int>(std::min<long long>(std::min(box.nWidth, FileRows::kMaxColumns),
                                             static_cast<long long>(getmaxx(win)) - box.nX));
    kul::hRun(win, nY, box.nX, box.nWidth, ' ');
    int nColumn = 0;
    for (FilePlace place = row.start; place < row.end && nColumn < nRight;) {
        const int nX = kul::shifted(box.nX, nColumn);
        const FilePlace room = place + nRight - nColumn;
        const std::string_view plain = rows.plainFrom(place, std::min(row.end, room));
        if (!plain.empty()) {
            kul::plainRun(win, nY, nX, plain);
            place += static_cast<FilePlace>(plain.size());
            nColumn += static_cast<int>(plain.size());
            continue;
        }
        const kul::Letter now = rows.letter(place, row.end, nColumn);
        place += static_cast<FilePlace>(now.nBytes);
        nColumn += now.nColumns;
        if (now.shown[0] != L' ' && nColumn <= nRight)
            kul::drawLetter(win, nY, nX, now);
    }
}

// Draws the rows from the top on; returns the place behind them.
FilePlace drawText(WINDOW* win, const FileView& view, const FileBox& box)
{
    const int nBottom = std::min(getmaxy(win), kul::shifted(box.nY, box.nHeight));
    FileRows rows(*view.text, fileColumns(view));
    FilePlace place = view.nColumns == fileColumns(view) ? view.top : rows.rowOf(view.top);
    // Rows that lie above of the window count, but not without end.
    const int nTop = std::max(box.nY, -kMaxFileRows);
    const int nKnown = std::min(nBottom, kul::shifted(nTop, isLaidOut(view) ? view.nRows : 0));
    const bool drawn = kul::isDrawn(win, {kul::kAll, {box.nX, kul::shifted(box.nX, box.nWidth)}});
    const kul::Rows due = drawn ? kul::rowsDrawn(win) : kul::Rows{nBottom, nBottom};
    for (int nY = nTop; nY < nBottom; ++nY) {
        const int nTo = std::min(nY < due.nFirst ? due.nFirst : nBottom, nKnown);
        if (nTo > nY && (nY < due.nFirst || nY >= due.nEnd)) { // over what is not drawn
            place = view.starts[nTo - nTop];
            nY = nTo - 1;
            continue;
        }
        const FileRows::Row row = rows.row(place);
        if (nY >= 0)
            drawRow(win, nY, box, rows, row);
        place = row.next;
    }
    return place;
}

// The thumb is as large, and as far down, as the view in the file.
void drawScrollBar(GUI* gui, const FileView& view, FilePlace bottom)
{
    if (view.nHeight < 1 || view.nWidth < 1)
        return;
    const auto size = static_cast<double>(std::max<FilePlace>(view.text->size(), 1));
    const auto shown = static_cast<double>(std::max<FilePlace>(bottom - view.top, 1));
    KULGAUGEBAR bar{};
    bar.nColorBar = bar.nColorRail = view.nColorUnfocus;
    bar.nX = kul::shifted(view.nX, view.nWidth - 1LL);
    bar.nY = view.nY;
    bar.nLength = std::min(view.nHeight, kMaxFileRows);
    bar.nRange = static_cast<int>(kul::clamp(bar.nLength * size / shown, bar.nLength + 1.0, 1e6));
    bar.nPosition = bar.nRange - bar.nLength; // the end
    if (!view.atEnd)
        bar.nPosition = static_cast<int>(
            std::min(static_cast<double>(view.top) / size * bar.nRange, bar.nPosition - 1.0));
    bar.nOrient = VERTICAL;
    BarShow(gui, &bar, kScrollStyle);
}

} // namespace

void ShowFileviewComponent(GUI* thisGUI, KULFILEVIEW* thisView, int nFocus)
{
    if (!thisGUI || !thisView || thisView->nVisible != T)
        return;
    const auto* inner = kul::innerOf<FileView>(thisView); // one of the program's own has no file
    const FileView* view = inner && inner->text ? inner : nullptr;
    WINDOW* win = thisGUI->winMain;
    FilePlace bottom = 0;
    {
        const kul::Attribute color(win,
                                   nFocus == 1 ? thisView->nColorFocus : thisView->nColorUnfocus);
        const FileBox box = kul::fileBox(*thisView);
        if (view)
            bottom = drawText(win, *view, box);
        else
            kul::fillRows(win, box.nY, box.nX, box.nHeight, box.nWidth);
        if (nFocus == 1)
            kul::showCursorAt(win, box.nY, box.nX);
    }
    if (thisView->nBorder == BORDER)
        DrawBorder(win, thisView->nY, thisView->nX, thisView->nHeight, thisView->nWidth,
                   thisView->nColorUnfocus);
    if (view && (view->top > 0 || !view->atEnd))
        drawScrollBar(thisGUI, *view, bottom);
}
