// SPDX-License-Identifier: MIT
//
// The text box of edition 1: a character is a byte in a cell, and is typed over what is there.
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

void drawCell(WINDOW* win, int nY, int nX, chtype cell)
{
    mvwaddch(win, nY, nX, cell);
}

// Draws the cell of the cursor in reverse video. On a terminal without colours the whole box may be
// so: then the cursor is what is not.
void drawCursor(WINDOW* win, int nY, int nX, chtype cell)
{
    const bool reversed = getattrs(win) & static_cast<int>(A_REVERSE);
    (reversed ? wattr_off : wattr_on)(win, A_REVERSE, nullptr);
    mvwaddch(win, nY, nX, cell);
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

// Draws a row up to and with the end of the text. False when that was reached.
bool drawRow(WINDOW* win, int nY, int nX, const KULTEXTBOX& box, const Row& row)
{
    const char* szText = box.szText ? box.szText : "";
    const int nLength = box.szText ? box.nLength : 0;
    for (int i = 0; i < row.nCount && row.nFirst + i <= nLength; ++i) {
        const int nPlace = row.nFirst + i;
        const bool atEnd = szText[nPlace] == '\0';
        const chtype cell = atEnd ? row.end : shownAs(szText[nPlace], row.masked);
        (nPlace == row.nCursor ? drawCursor : drawCell)(win, nY, kul::shifted(nX, i), cell);
        if (atEnd)
            return false;
    }
    return row.nFirst + static_cast<long long>(row.nCount) <= nLength;
}

void draw(WINDOW* win, KULTEXTBOX& box, bool focused)
{
    const int nEdge = box.nBorder == BORDER ? 1 : 0;
    const int nWidth = kul::innerSize(box.nWidth, box.nBorder);
    const std::string_view text = kul::viewOf(box.szText);
    Row row = {0, nWidth, focused ? box.nCursorPos : -1, kul::isMasked(box), ' '};
    for (int i = 0; nWidth > 0 && i < kul::innerSize(box.nHeight, box.nBorder); ++i) {
        if (!drawRow(win, kul::shifted(box.nY, nEdge + i), kul::shifted(box.nX, nEdge), box, row))
            break;
        row.nFirst = kul::lineStart(text, row.nFirst + nWidth, nWidth - 1);
    }
}

// Its rows hold one character more than those above where there is a border, no blanks are skipped
// between them, and the mask covers the end of the text too.
void drawAlone(WINDOW* win, KULTEXTBOX& box)
{
    const int nEdge = box.nBorder == BORDER ? 1 : 0;
    const int nWidth = kul::shifted(box.nWidth, -nEdge);
    const int nCursor = box.nCursor == SHOWCURSOR ? box.nCursorPos : -1;
    const bool masked = box.nMask == MASK;
    Row row = {0, nWidth, nCursor, masked, static_cast<chtype>(masked ? '*' : ' ')};
    for (int i = 0; nWidth > 0 && i < kul::innerSize(box.nHeight, box.nBorder); ++i) {
        if (!drawRow(win, kul::shifted(box.nY, nEdge + i), kul::shifted(box.nX, nEdge), box, row))
            break;
        row.nFirst += nWidth;
    }
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

constexpr kul::TextManners kManners = {kKeys,
                                       type,
                                       [](KULTEXTBOX& box) { return box.nCursorPos - 1; },
                                       [](KULTEXTBOX& box) { return box.nCursorPos + 1; },
                                       moved,
                                       draw,
                                       drawAlone,
                                       fits,
                                       [](std::string_view text, int nByte) {
                                           return nByte <= static_cast<int>(text.size()) ? nByte
                                                                                         : -1;
                                       },
                                       INT_MAX,
                                       1,
                                       false,
                                       A_NORMAL};

} // namespace

const kul::TextManners& kul::byteManners()
{
    return kManners;
}
