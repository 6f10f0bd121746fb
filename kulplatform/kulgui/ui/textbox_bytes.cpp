// SPDX-License-Identifier: MIT
//
// The text box of edition 1: a character is a byte in a cell, and is typed over what is there.
#include "../clamp.hpp"
#include "../gui/text.hpp"
#include "textbox.hpp"

namespace {

// What a character shows as: one cell, whatever it does on a terminal.
chtype shownAs(char character, bool masked)
{
    const auto byte = static_cast<unsigned char>(character);
    if (masked)
        return '*';
    if (byte < ' ' || byte == KS_BACKSPACE)
        return ' ';
    return unctrl(byte)[1] == '\0' ? byte : '?';
}

// Draws the cell of the cursor in reverse video. On a terminal without colours the whole box may be
// so: then the cursor is what is not.
void drawCursor(WINDOW* win, int nY, int nX, chtype cell)
{
    const bool reversed = getattrs(win) & static_cast<int>(A_REVERSE);
    (reversed ? wattr_off : wattr_on)(win, A_REVERSE, nullptr);
    kul::drawCell(win, nY, nX, cell);
    (reversed ? wattr_on : wattr_off)(win, A_REVERSE, nullptr);
}

// The places of a text that a row of the box holds, the cursor's, -1 for none, and what stands at
// the end of the text.
struct Row {
    int nFirst;
    int nCount;
    int nCursor;
    bool masked;
    chtype end;
};

// How many characters go to the window in one run from a place on.
int plainRun(const char* szText, int nPlace, int nEnd, const Row& row)
{
    int nRun = 0;
    while (!row.masked && nPlace + nRun < nEnd && kul::isPlain(szText[nPlace + nRun]) &&
           nPlace + nRun != row.nCursor)
        ++nRun;
    return nRun;
}

// Draws a row up to and with the end of the text. False when that was reached.
bool drawRow(WINDOW* win, int nY, int nX, const KULTEXTBOX& box, const Row& row)
{
    const char* szText = box.szText ? box.szText : "";
    const int nLength = box.szText ? box.nLength : 0;
    const int nEnd = std::min(kul::shifted(row.nFirst, row.nCount), kul::shifted(nLength, 1));
    const bool goesOn = row.nFirst + static_cast<long long>(row.nCount) <= nLength;
    if (!kul::isDrawn(win, nY))
        return goesOn &&
               !std::memchr(szText + row.nFirst, '\0', static_cast<std::size_t>(row.nCount));
    for (int nPlace = row.nFirst; nPlace < nEnd;) {
        const int nAt = kul::shifted(nX, nPlace - row.nFirst);
        if (const int nRun = plainRun(szText, nPlace, nEnd, row)) {
            kul::plainRun(win, nY, nAt, {szText + nPlace, static_cast<std::size_t>(nRun)});
            nPlace += nRun;
            continue;
        }
        const bool atEnd = szText[nPlace] == '\0';
        const chtype cell = atEnd ? row.end : shownAs(szText[nPlace], row.masked);
        (nPlace == row.nCursor ? drawCursor : kul::drawCell)(win, nY, nAt, cell);
        if (atEnd)
            return false;
        ++nPlace;
    }
    return goesOn;
}

// Draws the rows from one on; next says where the row behind a place begins.
template <typename Next>
void drawRows(WINDOW* win, const KULTEXTBOX& box, Row row, Next next)
{
    const int nEdge = box.nBorder == BORDER ? 1 : 0;
    const int nX = kul::shifted(box.nX, nEdge);
    for (int i = 0; row.nCount > 0 && i < kul::innerSize(box.nHeight, box.nBorder); ++i) {
        if (!drawRow(win, kul::shifted(box.nY, nEdge + i), nX, box, row))
            break;
        row.nFirst = next(row.nFirst + row.nCount);
    }
}

void draw(WINDOW* win, KULTEXTBOX& box, bool focused)
{
    const int nCursor = focused ? box.nCursorPos : -1;
    const Row row = {0, kul::innerSize(box.nWidth, box.nBorder), nCursor, kul::isMasked(box), ' '};
    drawRows(win, box, row, [&row, text = kul::viewOf(box.szText)](int nPlace) {
        return kul::lineStart(text, nPlace, row.nCount - 1);
    });
}

// The row of the cursor is found as it is drawn; that of the end is no later than where it would be
// if no blanks were skipped.
kul::Spot spot(KULTEXTBOX& box)
{
    const int nCount = kul::innerSize(box.nWidth, box.nBorder);
    const int nLast = kul::innerSize(box.nHeight, box.nBorder) - 1;
    const std::string_view text = kul::textOf(box);
    int nRow = 0;
    for (int nNext = nCount; nRow < nLast && nNext <= box.nCursorPos; ++nRow)
        nNext = kul::shifted(kul::lineStart(text, nNext, nCount - 1), nCount);
    const int nEnd = kul::clamp(box.nLength / nCount, nRow, nLast);
    return {{nRow, nEnd + 1}, 0};
}

// Its rows hold one character more than those above where there is a border, no blanks are skipped
// between them, and the mask covers the end of the text too.
void drawAlone(WINDOW* win, KULTEXTBOX& box)
{
    const int nWidth = kul::shifted(box.nWidth, box.nBorder == BORDER ? -1 : 0);
    const int nCursor = box.nCursor == SHOWCURSOR ? box.nCursorPos : -1;
    const bool masked = box.nMask == MASK;
    const chtype end = masked ? chtype{'*'} : chtype{' '};
    drawRows(win, box, {0, nWidth, nCursor, masked, end}, [](int nPlace) { return nPlace; });
}

void type(KULTEXTBOX& box, int nKey)
{
    const char character = static_cast<char>(nKey);
    const bool allowed =
        box.szCharSet ? FindChar(character, box.szCharSet) != -1 : nKey >= ' ' && nKey <= 255;
    const int nPlace = box.nCursorPos;
    if (allowed && nPlace < box.nMaxLength)
        kul::replaceText(box, nPlace, std::min(nPlace + 1, box.nLength), {&character, 1});
}

int moved(KULTEXTBOX& box, int nRows)
{
    const long long width = std::max(kul::innerSize(box.nWidth, box.nBorder), 0);
    const long long place = box.nCursorPos + nRows * width;
    const bool moves = box.nHeight > 1 && place >= 0 && place <= box.nLength;
    return moves ? static_cast<int>(place) : box.nCursorPos;
}

bool fits(KULTEXTBOX& box, std::string_view text)
{
    return static_cast<long long>(text.size()) < box.nMaxLength;
}

constexpr kul::EditKey kKeys[] = {
    {KS_BACKSPACE, TextBoxBackspace}, {KS_DELETE, TextBoxDelete}, {KS_HOME, TextBoxGoHome},
    {KS_END, TextBoxGoEnd},           {KS_LEFT, TextBoxGoLeft},   {KS_UP, TextBoxGoUp},
    {KS_DOWN, TextBoxGoDown},         {KS_RIGHT, TextBoxGoRight}, {KS_F1, [](KULTEXTBOX*) {}},
};

int placeOf(std::string_view text, int nByte)
{
    return nByte <= static_cast<int>(text.size()) ? nByte : -1;
}

constexpr kul::TextManners kManners = {.keys = kKeys,
                                       .type = type,
                                       .before = [](KULTEXTBOX& box) { return box.nCursorPos - 1; },
                                       .after = [](KULTEXTBOX& box) { return box.nCursorPos + 1; },
                                       .moved = moved,
                                       .spot = spot,
                                       .draw = draw,
                                       .drawAlone = drawAlone,
                                       .fits = fits,
                                       .placeOf = placeOf,
                                       .nMost = INT_MAX,
                                       .nRoom = 1,
                                       .behind = false,
                                       .extent = A_NORMAL};

} // namespace

const kul::TextManners& kul::byteManners()
{
    return kManners;
}
