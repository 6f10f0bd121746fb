// SPDX-License-Identifier: MIT
//
// Frames, lines and fills. Everything is made of runs of equal cells, one call of curses each.
#include "draw.hpp"

#include <iterator>

namespace {

int nMarked = kul::FocusMark::kNone;

struct Disabled {
    bool shown;
    int nColorSet;
    int nShownAs;
};

Disabled disabled;

// The window with a clip; null for none.
const WINDOW* clipped = nullptr;
kul::Block clip;
kul::Exact clipExact = kul::Exact::ByCell;

kul::Range drawnOf(const WINDOW* win, const kul::Range& range, int nEnd)
{
    if (win != clipped)
        return {0, nEnd};
    return {std::max(range.nFirst, 0), std::min(range.nEnd, nEnd)};
}

kul::Range columnsDrawn(const WINDOW* win)
{
    return drawnOf(win, clip.columns, getmaxx(win));
}

using Run = void (*)(WINDOW*, int, int, long long, chtype);

void coloredRun(Run run, WINDOW* win, int nY, int nX, long long nCount, int nColorSet,
                chtype character)
{
    const kul::Attribute color(win, nColorSet);
    run(win, nY, nX, nCount, character);
}

// Fills in reverse video and leaves the window without attributes.
void fillReversed(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nColorSet)
{
    if (!win)
        return;
    wattrset(win, static_cast<int>(A_REVERSE));
    Fill(win, nY, nX, nHeight, nWidth, nColorSet);
    wattrset(win, static_cast<int>(A_NORMAL));
}

} // namespace

namespace kul {

Attribute::Attribute(WINDOW* win, int nColorSet, bool rests) : win_(win)
{
    const bool instead = disabled.shown && nColorSet == disabled.nColorSet;
    const bool colored = rests && !instead && nColorSet == BLACK_WHITE && has_colors();
    const int nShown = colored ? BLACK_CYAN : instead ? disabled.nShownAs : nColorSet;
    attribute_ = static_cast<attr_t>(rawAttribute(nShown));
    if (rests && !colored && !instead)
        attribute_ |= A_UNDERLINE;
    if (instead && !has_colors() && !needsParentheses())
        attribute_ |= A_DIM;
    if (nColorSet == nMarked)
        attribute_ |= A_REVERSE;
    wattr_on(win_, attribute_, nullptr);
}

Attribute::~Attribute()
{
    wattr_off(win_, attribute_, nullptr);
}

FocusMark::FocusMark(int nColorSet)
{
    nMarked = has_colors() ? kNone : nColorSet;
}

FocusMark::~FocusMark()
{
    nMarked = kNone;
}

DisabledMark::DisabledMark(int nColorSet, int nShownAs)
{
    disabled = {true, nColorSet, nShownAs};
}

DisabledMark::~DisabledMark()
{
    disabled.shown = false;
}

bool needsParentheses()
{
    return !has_colors() && !(termattrs() & A_DIM);
}

Clip::Clip(WINDOW* win, const Block& block)
{
    clipped = win;
    clip = block;
    clipExact = Exact::ByCell;
}

Clip::~Clip()
{
    clipped = nullptr;
}

Exact Clip::exact() const
{
    return clipExact;
}

bool Clip::isExact() const
{
    return clipExact == Exact::ByCell ||
           (clipExact == Exact::ByRow && clip.columns.nFirst == kAll.nFirst);
}

Rows rowsDrawn(const WINDOW* win)
{
    return drawnOf(win, clip.rows, getmaxy(win));
}

bool isDrawn(const WINDOW* win, const Block& block)
{
    const auto meet = [](const Range& one, const Range& other) {
        return one.nFirst < other.nEnd && other.nFirst < one.nEnd;
    };
    return win != clipped || (meet(block.rows, clip.rows) && meet(block.columns, clip.columns));
}

bool isDrawn(const WINDOW* win, int nY, int nHeight)
{
    return win != clipped ||
           (nY < clip.rows.nEnd && nY + static_cast<long long>(nHeight) > clip.rows.nFirst);
}

void drawAcrossRows(const WINDOW* win)
{
    if (win == clipped)
        clipExact = Exact::Never;
}

void drawAcrossColumns(const WINDOW* win)
{
    if (win == clipped)
        clipExact = std::min(clipExact, Exact::ByRow);
}

void hRun(WINDOW* win, int nY, int nX, long long nCount, chtype character)
{
    const Range columns = columnsDrawn(win);
    const long long first = std::max(nX, columns.nFirst);
    const long long last = std::min<long long>(nX + nCount, columns.nEnd);
    if (first < last && isDrawn(win, nY))
        mvwhline(win, nY, static_cast<int>(first), character, static_cast<int>(last - first));
}

void vRun(WINDOW* win, int nY, int nX, long long nCount, chtype character)
{
    const Rows rows = rowsDrawn(win);
    const long long first = std::max(nY, rows.nFirst);
    const long long last = std::min<long long>(nY + nCount, rows.nEnd);
    const Range columns = columnsDrawn(win);
    if (first >= last || nX < columns.nFirst || nX >= columns.nEnd)
        return;
    if (last - first == 1)
        mvwhline(win, static_cast<int>(first), nX, character, 1); // costs half
    else
        mvwvline(win, static_cast<int>(first), nX, character, static_cast<int>(last - first));
}

// A column that is left of them is one run.
void fillRows(WINDOW* win, int nY, int nX, int nHeight, int nWidth)
{
    const Rows rows = rowsDrawn(win);
    const Range columns = columnsDrawn(win);
    if (columns.nEnd - columns.nFirst == 1 && nX <= columns.nFirst &&
        shifted(nX, nWidth) >= columns.nEnd)
        return vRun(win, nY, columns.nFirst, nHeight, ' ');
    const long long first = std::max(nY, rows.nFirst);
    const long long last = std::min<long long>(nY + static_cast<long long>(nHeight), rows.nEnd);
    for (long long row = first; row < last; ++row)
        hRun(win, static_cast<int>(row), nX, nWidth, ' ');
}

void drawCell(WINDOW* win, int nY, int nX, chtype cell)
{
    const Range columns = columnsDrawn(win);
    if (!isDrawn(win, nY) || nX < columns.nFirst || nX >= columns.nEnd)
        return;
    // As a run of one it costs a third.
    if (isPlain(static_cast<char>(cell & A_CHARTEXT)))
        mvwhline(win, nY, nX, cell, 1);
    else
        mvwaddch(win, nY, nX, cell);
}

void plainRun(WINDOW* win, int nY, int nX, std::string_view text)
{
    if (!isDrawn(win, nY))
        return;
    const Range columns = columnsDrawn(win);
    const long long first = std::max(0LL, columns.nFirst - static_cast<long long>(nX));
    const long long last =
        std::min(static_cast<long long>(text.size()), columns.nEnd - static_cast<long long>(nX));
    // Finished cells know nothing of a background that the program may have given the window.
    const chtype background = getbkgd(win); // 0: none
    const bool finished = background == 0 || background == ' ';
    const auto attributes = static_cast<chtype>(getattrs(win));
    chtype cells[128];
    for (long long done = first; done < last;) {
        const int nCells = static_cast<int>(std::min<long long>(std::size(cells), last - done));
        const char* run = text.data() + done;
        std::transform(run, run + nCells, cells, [=](char character) {
            return static_cast<unsigned char>(character) | attributes;
        });
        const int nAt = static_cast<int>(nX + done);
        if (finished)
            mvwaddchnstr(win, nY, nAt, cells, nCells);
        else
            mvwaddnstr(win, nY, nAt, run, nCells);
        done += nCells;
    }
}

void drawLetter(WINDOW* win, int nY, int nX, const Letter& letter)
{
    const int nEnd = shifted(nX, letter.nColumns);
    if (!isDrawn(win, nY) || nX < 0 || letter.shown[0] == L'\0' || nEnd > getmaxx(win))
        return;
    const Range columns = columnsDrawn(win);
    if (nX < columns.nFirst || nEnd > columns.nEnd) {
        if (nX < columns.nEnd && nEnd > columns.nFirst)
            drawAcrossColumns(win);
        return;
    }
#if NCURSES_WIDECHAR
    cchar_t cell{};
    if (letter.shown[0] >= L' ' && letter.shown[0] != 127 &&
        setcchar(&cell, letter.shown, A_NORMAL, 0, nullptr) == OK) {
        mvwadd_wch(win, nY, nX, &cell);
        return;
    }
#endif
    mvwaddch(win, nY, nX, static_cast<unsigned char>(letter.shown[0]));
}

} // namespace kul

void DrawBorder(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nBackColor)
{
    const kul::Attribute color(win, nBackColor);
    const int nBottom = kul::shifted(nY, nHeight - 1LL);
    const int nRight = kul::shifted(nX, nWidth - 1LL);
    if (nWidth < 2)
        kul::drawAcrossColumns(win);
    if (nHeight < 1)
        kul::drawAcrossRows(win);
    kul::drawCell(win, nY, nX, ACS_ULCORNER);
    kul::drawCell(win, nY, nRight, ACS_URCORNER);
    kul::drawCell(win, nBottom, nX, ACS_LLCORNER);
    kul::drawCell(win, nBottom, nRight, ACS_LRCORNER);
    kul::hRun(win, nY, kul::shifted(nX, 1), nWidth - 2LL, ACS_HLINE);
    kul::hRun(win, nBottom, kul::shifted(nX, 1), nWidth - 2LL, ACS_HLINE);
    kul::vRun(win, kul::shifted(nY, 1), nX, nHeight - 2LL, ACS_VLINE);
    kul::vRun(win, kul::shifted(nY, 1), nRight, nHeight - 2LL, ACS_VLINE);
}

void DrawHLine(WINDOW* win, int nY, int nX, int nWidth, int nColorSet)
{
    coloredRun(kul::hRun, win, nY, nX, nWidth + 1LL, nColorSet, ACS_HLINE);
}

void DrawVLine(WINDOW* win, int nY, int nX, int nHeight, int nColorSet)
{
    coloredRun(kul::vRun, win, nY, nX, nHeight + 1LL, nColorSet, ACS_VLINE);
}

void DrawThickHLine(WINDOW* win, int nY, int nX, int nWidth, int nColorSet)
{
    coloredRun(kul::hRun, win, nY, nX, nWidth + 1LL, nColorSet, ACS_CKBOARD);
}

void DrawThickVLine(WINDOW* win, int nY, int nX, int nHeight, int nColorSet)
{
    coloredRun(kul::vRun, win, nY, nX, nHeight + 1LL, nColorSet, ACS_CKBOARD);
}

void DrawHTeeLine(WINDOW* win, int nTee, int nX, int nWidth, int nBackColor)
{
    const kul::Attribute color(win, nBackColor);
    kul::drawCell(win, nTee, nX, ACS_LTEE);
    kul::drawCell(win, nTee, kul::shifted(nX, nWidth - 1LL), ACS_RTEE);
    kul::hRun(win, nTee, kul::shifted(nX, 1), nWidth - 2LL, ACS_HLINE);
}

void DrawVTeeLine(WINDOW* win, int nY, int nTee, int nHeight, int nBackColor)
{
    const kul::Attribute color(win, nBackColor);
    kul::drawCell(win, nY, nTee, ACS_TTEE);
    kul::drawCell(win, kul::shifted(nY, nHeight - 1LL), nTee, ACS_BTEE);
    kul::vRun(win, kul::shifted(nY, 1), nTee, nHeight - 2LL, ACS_VLINE);
}

void Fill(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nFillColor)
{
    const kul::Attribute color(win, nFillColor);
    kul::fillRows(win, nY, nX, nHeight, nWidth);
}

void FillReverse(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nFillColor)
{
    fillReversed(win, nY, nX, nHeight, nWidth, nFillColor);
}

void WinFill(WINDOW* win, int nColorset)
{
    Fill(win, 0, 0, getmaxy(win), getmaxx(win), nColorset);
}

void WinFillReverse(WINDOW* win, int nColorset)
{
    fillReversed(win, 0, 0, getmaxy(win), getmaxx(win), nColorset);
}

int Offset(int nSpace, int nStrLen)
{
    const bool oddInEven = nStrLen % 2 != 0 && nSpace % 2 == 0;
    return nSpace / 2 - nStrLen / 2 - (oddInEven ? 1 : 0);
}

void FillString(char* szBuffer, int nLength, char cOneChar)
{
    if (szBuffer && nLength > 0)
        std::memset(szBuffer, cOneChar, static_cast<std::size_t>(nLength));
}
