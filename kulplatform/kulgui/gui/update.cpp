// SPDX-License-Identifier: MIT
//
// Curses moves the terminal's cursor from where it has left it. As long as it has not updated the
// terminal it has left it nowhere, and places it first; most programs never come further. After an
// update by curses the cursor is brought back to its place before the program gets a turn.
//
// Whether anybody has called doupdate() is told by attributes of curses' picture of the terminal
// that nothing is drawn with: doupdate() puts those of the composed screen there.
#include "update.hpp"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "line.hpp"
#include "painter.hpp"

namespace kul {

namespace {

constexpr int kMark = static_cast<int>(A_PROTECT | A_INVIS | A_BLINK | A_DIM);

Pen pen;
ScreenRow next; // as it is to be
ScreenRow seen; // as the terminal shows it
int nFirstDue;  // rows that were looked at
int nLastDue;

constexpr int kRows = 64; // those below share what is known of the last one
Columns changed[kRows];   // that differ for curses

Place cursor = kNowhere;
Place believed = kNowhere; // where curses takes it to be
Style worn;

// Rows that have moved up since the last update.
struct Scroll {
    int nTop;
    int nBottom;
    int nRows; // 0: none
};

WINDOW* drawn = nullptr; // the only one that was composed since the last update
Scroll expected;
bool pictured = false; // what was composed shows it already
Scroll scrolled;       // the one that the update under way makes

bool isMarked()
{
    return getattrs(curscr) == kMark;
}

bool isCleared()
{
    return is_cleared(newscr) || is_cleared(curscr);
}

// Whether scrolling has brought a row in.
bool isNew(int nY)
{
    return scrolled.nRows > 0 ? nY <= scrolled.nBottom && nY > scrolled.nBottom - scrolled.nRows
                              : nY >= scrolled.nTop && nY < scrolled.nTop - scrolled.nRows;
}

bool isDue(int nY)
{
    return is_linetouched(newscr, nY) || is_linetouched(curscr, nY) || isNew(nY);
}

int rowOf(int nY)
{
    return std::min(nY, kRows - 1);
}

void touchRows(WINDOW* win, const Scroll& rows, bool touched)
{
    wtouchln(win, rows.nTop, rows.nBottom - rows.nTop + 1, touched ? 1 : 0);
}

// Moves rows of a window without touching any.
void moveRows(WINDOW* win, const Scroll& rows)
{
    const bool scrolls = is_scrollok(win);
    int nTop = 0;
    int nBottom = 0;
    wgetscrreg(win, &nTop, &nBottom);
    scrollok(win, TRUE);
    wsetscrreg(win, rows.nTop, rows.nBottom);
    wscrl(win, rows.nRows);
    wsetscrreg(win, nTop, nBottom);
    scrollok(win, scrolls);
    touchRows(win, rows, false);
}

// As curses leaves the terminal after an update.
Style normalStyle()
{
    Style style;
    lookOf(blankCell(), style);
    return style;
}

// Clears the screen in the colour that some rows have most often at their ends. Where erasing does
// not leave that, nothing is known of what is seen then.
bool paintClear()
{
    constexpr int kLooks = 4;
    ScreenCell blank = blankCell();
    Style style = normalStyle();
    int nVotes = 0;
    for (int i = 0; i < 2 * kLooks; ++i) {
        Style other;
        if (i % 2 == 0 && !next.read(newscr, LINES * (i + 1) / (2 * kLooks)))
            return false;
        const ScreenCell& cell = next[i % 2 * (COLS - 1)];
        if (!lookOf(cell, other) || !isErasable(cell, other))
            continue;
        nVotes += isSame(cell, blank) ? 1 : -1;
        if (nVotes < 0) {
            blank = cell;
            style = other;
            nVotes = 1;
        }
    }
    pen.wear(style);
    pen.clear();
    seen.fill(isErasable(blank, style) ? blank : ScreenCell{});
    return true;
}

// Cells of a row that are not those of another one; all of them where that cannot be told.
int differences(int nY, int nOther)
{
    if (!next.read(newscr, nY) || !seen.read(curscr, nOther))
        return COLS;
    int nCount = 0;
    for (int x = 0; x < COLS; ++x)
        nCount += isSame(next[x], seen[x]) ? 0 : 1;
    return nCount;
}

// Whether a look at some rows shows that scrolling leaves far fewer cells to be painted. Without
// doubt it costs less than what one of these rows costs.
bool paysToScroll(const Scroll& scroll)
{
    constexpr int kLooks = 4;
    const int nFirst = scroll.nTop - std::min(scroll.nRows, 0);
    const int nLast = scroll.nBottom - std::max(scroll.nRows, 0);
    int nSaved = 0;
    for (int i = 0; i < kLooks; ++i) {
        const int y = nFirst + (nLast - nFirst) * (2 * i + 1) / (2 * kLooks);
        nSaved += differences(y, y) - differences(y, y + scroll.nRows);
    }
    return nSaved * (nLast - nFirst + 1) > 32 * kLooks;
}

// What was composed has moved already, or is compared in all of these rows.
void paintScroll()
{
    if (scrolled.nRows == 0)
        return;
    if (isCleared() || !pen.scrolls() || !(pictured || paysToScroll(scrolled))) {
        touchRows(newscr, scrolled, true);
        scrolled = {};
        return;
    }
    pen.wear(normalStyle());
    pen.scroll(scrolled.nTop, scrolled.nBottom, scrolled.nRows);
    moveRows(curscr, scrolled);
    if (!pictured)
        touchRows(curscr, scrolled, true);
}

// A row as the terminal shows it, after scrolling. What has come in there is blank.
bool readSeen(int nY)
{
    if (!isNew(nY))
        return seen.read(curscr, nY);
    const ScreenCell blank = blankCell();
    seen.fill(isErasable(blank, normalStyle()) ? blank : ScreenCell{});
    return true;
}

// Paints what differs, or what of it belongs to the layer that is due.
bool paintCells(Layers* layers)
{
    const bool cleared = isCleared();
    const bool first = !layers || layers->now() == 0;
    static unsigned found[kRows]; // layers of the rows
    if (first)
        std::fill_n(found, kRows, 0U);
    for (int y = 0; y < LINES; ++y) {
        unsigned& nFound = found[rowOf(y)];
        if (!(cleared || isDue(y)) || !(first || nFound >> layers->now() & 1))
            continue;
        nFirstDue = std::min(nFirstDue, y);
        nLastDue = std::max(nLastDue, y);
        Painter painter(pen, y, next, seen, layers);
        if (!next.read(newscr, y) || (!cleared && !readSeen(y)) || !painter.paint())
            return false;
        if (layers)
            nFound |= layers->takeMet();
        Columns& columns = changed[rowOf(y)];
        columns.nFirst = std::min(columns.nFirst, painter.firstChanged());
        columns.nLast = std::max(columns.nLast, painter.lastChanged());
    }
    return true;
}

bool paintLayers()
{
    Layers layers;
    do {
        if (!paintCells(&layers))
            return false;
    } while (layers.next());
    return true;
}

// Row by row or, where that takes many bytes, in layers if these take fewer; of a whole screen they
// do.
bool paintInFewestBytes()
{
    constexpr std::size_t kMany = 200;
    const Pen::State before = pen.state();
    if (isCleared())
        return paintLayers();
    if (!paintCells(nullptr))
        return false;
    const std::size_t size = pen.state().size;
    if (size < before.size + kMany)
        return true;
    pen.returnTo(before);
    if (paintLayers() && pen.state().size <= size)
        return true;
    pen.returnTo(before);
    return paintCells(nullptr);
}

bool paintRows()
{
    nFirstDue = LINES;
    nLastDue = -1;
    paintScroll();
    const bool cleared = isCleared();
    std::fill_n(changed, kRows, cleared ? Columns{0, COLS - 1} : Columns{COLS, -1});
    return (!cleared || paintClear()) && paintInFewestBytes();
}

// Tells curses what the terminal shows now.
void note()
{
    for (int y = nFirstDue; y <= nLastDue; ++y) {
        const auto [nFirst, nLast] = changed[rowOf(y)];
        if (nFirst <= nLast)
            copywin(newscr, curscr, y, nFirst, y, nFirst, y, nLast, FALSE);
    }
    if (nFirstDue <= nLastDue) {
        wtouchln(newscr, nFirstDue, nLastDue - nFirstDue + 1, 0);
        wtouchln(curscr, nFirstDue, nLastDue - nFirstDue + 1, 0);
    }
    clearok(newscr, FALSE);
    clearok(curscr, FALSE);
}

void startPen()
{
    const Controls controls = passingControls();
    forgetLooks();
    pen.start(cursor, worn, controls.feeds, controls.tabs);
}

// Updates by the pen. False, and nothing sent, where only curses can.
bool updateByPen(Place to, Columns columns)
{
    if (!codes().known || !isMarked() || !next.prepare(columns) || !seen.prepare(columns))
        return false;
    startPen();
    if (!paintRows()) {
        if (scrolled.nRows != 0) // on paper alone
            clearok(curscr, TRUE);
        return false;
    }
    pen.useLines(false);
    if (!pen.bytes().empty())
        pen.wear(normalStyle());
    if (to != kNowhere)
        pen.moveTo(to);
    if (pen.failed())
        return false;
    if (!pen.bytes().empty())
        writeAll(pen.bytes().data(), pen.bytes().size());
    cursor = pen.place();
    worn = pen.style();
    note();
    wmove(newscr, to.nY, to.nX); // refused for nowhere
    return true;
}

Place target(Place to, bool forProgram)
{
    const bool back = believed != kNowhere && (forProgram || to == kNowhere);
    return back ? believed : to;
}

// Updates by curses, and makes it leave the cursor at a known cell.
void updateByCurses(Place to)
{
    const Blocking blocking;
    if (pictured)
        touchRows(newscr, scrolled, true);
    if (isMarked() && believed != kNowhere) {
        startPen();
        pen.moveTo(believed);
        writeAll(pen.bytes().data(), pen.bytes().size());
    }
    if (to != kNowhere || codes().known) {
        to = to == kNowhere ? Place{0, 0} : to;
        leaveok(newscr, FALSE);
        wmove(newscr, to.nY, to.nX);
    }
    doupdate();
    cursor = believed = to;
    worn = normalStyle();
    // It stops half way when keys are waiting, anywhere.
    if (!is_wintouched(newscr))
        wattrset(curscr, kMark);
}

// Beside a window that alone was drawn into nothing can differ but the other half of a wide letter.
Columns drawnColumns()
{
    if (!drawn || scrolled.nRows != 0 || isCleared() || is_wintouched(curscr))
        return {0, COLS - 1};
    const int nX = getbegx(drawn);
    return {std::max(nX - 1, 0), std::min(nX + getmaxx(drawn), COLS - 1)};
}

// The topmost panel's window if it is the only one that was drawn into, else null. Nothing lies
// above it, so that it can go out alone; the panel library would compare all that lies below too.
WINDOW* onlyTopTouched()
{
    PANEL* top = nullptr;
    for (PANEL* panel = panel_above(nullptr); panel; panel = panel_above(panel)) {
        if (top && is_wintouched(panel_window(top)))
            return nullptr;
        top = panel;
    }
    return top && !is_wintouched(stdscr) ? panel_window(top) : nullptr;
}

} // namespace

void beginUpdates()
{
    cursor = believed = kNowhere;
    worn = {};
    wattrset(curscr, kMark);
}

void forgetTerminal()
{
    cursor = kNowhere;
    worn.attributes = ~0U; // all has to be switched off first
}

void expectScroll(int nTop, int nBottom, int nRows)
{
    nTop = std::max(nTop, 0);
    nBottom = std::min(nBottom, LINES - 1);
    if (pictured)
        touchRows(newscr, expected, true);
    pictured = false;
    if (expected.nTop == nTop && expected.nBottom == nBottom)
        nRows += expected.nRows;
    expected = {};
    if (nTop < nBottom && std::abs(nRows) <= (nBottom - nTop) / 2)
        expected = {nTop, nBottom, nRows};
}

void compose()
{
    const bool alone = !is_wintouched(newscr);
    drawn = nullptr;
    if (WINDOW* top = onlyTopTouched()) {
        wnoutrefresh(top);
        // Where that changes nothing there may be no update, and the next one is not of it.
        if (alone && is_wintouched(newscr))
            drawn = top;
        return;
    }
    // Without a panel the panel library does not know the standard screen.
    if (!panel_above(nullptr))
        wnoutrefresh(stdscr);
    update_panels();
}

bool scrollPictures(WINDOW* win, int nTop, int nBottom, int nRows)
{
    const int nAbove = getbegy(win);
    const Scroll rows{nTop, nBottom, nRows};
    if (expected.nRows != 0 || !codes().known || !codes().scrolls || !isMarked() || isCleared() ||
        is_wintouched(win) || is_wintouched(newscr) || is_wintouched(curscr) ||
        std::abs(nRows) > (nBottom - nTop) / 2)
        return false;
    expected = {nAbove + nTop, nAbove + nBottom, nRows};
    moveRows(win, rows);
    moveRows(newscr, expected);
    pictured = true;
    return true;
}

void updateTerminal(Place to, bool forProgram)
{
    scrolled = std::exchange(expected, {});
    if (!updateByPen(target(to, forProgram), drawnColumns()))
        updateByCurses(to);
    drawn = nullptr;
    scrolled = {};
    pictured = false;
}

bool movesCursor(Place to, bool forProgram)
{
    const Place there = target(to, forProgram);
    return there != kNowhere && (isMarked() ? cursor != there : !forProgram);
}

} // namespace kul
