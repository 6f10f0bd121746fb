// SPDX-License-Identifier: MIT
//
// Text boxes: a text that is typed over, in a box of one or more rows, with a cursor in it.
#include "textbox.hpp"

#include "../gui/draw.hpp"
#include "../gui/text.hpp"
#include "handler.hpp"

namespace {

// More cells than any screen has; a box beyond is a mistake.
constexpr long long kMaxCells = 1 << 24;

// Gives the box an empty text with room for the inner cells, counted as the product of the sides:
// two that are negative give room that is not seen. False without memory.
bool makeBuffer(KULTEXTBOX& box, int nWidth, int nHeight)
{
    const long long width = kul::innerSize(nWidth, box.nBorder);
    const long long cells = width * kul::innerSize(nHeight, box.nBorder);
    if (cells < 0 || cells > kMaxCells)
        return false;
    box.szText = static_cast<char*>(std::calloc(static_cast<std::size_t>(cells) + 1, 1));
    box.nMaxLength = box.szText ? static_cast<int>(cells) : 0;
    return box.szText != nullptr;
}

// Drawing.

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

// Keys.

constexpr struct {
    int nKey;
    void (*edit)(KULTEXTBOX*);
} kEdits[] = {
    {KS_BACKSPACE, TextBoxBackspace}, {KS_DELETE, TextBoxDelete}, {KS_HOME, TextBoxGoHome},
    {KS_END, TextBoxGoEnd},           {KS_LEFT, TextBoxGoLeft},   {KS_UP, TextBoxGoUp},
    {KS_DOWN, TextBoxGoDown},         {KS_RIGHT, TextBoxGoRight}, {KS_F1, [](KULTEXTBOX*) {}},
};

void edit(KULTEXTBOX* box, int nKey)
{
    for (const auto& row : kEdits) {
        if (row.nKey == nKey) {
            row.edit(box);
            return;
        }
    }
    TextBoxCharacter(box, nKey);
}

// What a key makes the handler return; 0 for one that stays.
int leavesWith(int nKey)
{
    return nKey == KS_TAB || nKey == KS_ENTER ? 10 : nKey == KS_ESC ? -10 : 0;
}

} // namespace

namespace kul {

void dropTextbox(KULTEXTBOX& box)
{
    std::free(box.szText);
    box.szText = nullptr;
    box.nMaxLength = 0;
}

} // namespace kul

int AttachTextboxComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, TEXTBOX);
}

int ConfigTextboxComponent(GUI* thisGUI, KULTEXTBOX* thisTB)
{
    if (!thisGUI || !thisTB)
        return -1;
    kul::takeColors(*thisGUI, *thisTB);
    thisTB->szText = nullptr;
    thisTB->nLength = 0;
    thisTB->nBorder = NOBORDER;
    thisTB->nMask = NOMASK;
    thisTB->szCharSet = nullptr;
    thisTB->nCursor = SHOWCURSOR;
    thisTB->nCursorPos = 0;
    thisTB->nVisible = T;
    thisTB->nEnable = 1;
    thisTB->onFocus = thisTB->onUnfocus = thisTB->onKey = nullptr;
    return 0;
}

int WipeTextboxComponent(KULTEXTBOX* thisTB)
{
    if (!thisTB)
        return -1;
    const bool hadText = thisTB->szText;
    kul::dropTextbox(*thisTB);
    std::free(thisTB);
    return hadText ? 0 : -1;
}

int kultextbox_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, TEXTBOX);
}

int kultextbox_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                      int nX, int nY, int nWidth, int nHeight, int nBorder, int nMask,
                      const char* szCharSet, KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                      KULCALLBACK onKey)
{
    auto* box = kul::resetUI<KULTEXTBOX>(nChain, nRef, TEXTBOX);
    if (!box)
        return -1;
    box->nBorder = nBorder == BORDER ? BORDER : NOBORDER;
    if (!makeBuffer(*box, nWidth, nHeight))
        return -1;
    kul::setBox(*box, nX, nY, nWidth, nHeight, nBorder);
    kul::setColors(*box, nColorFocus, nColorUnfocus, nColorDisable);
    box->nMask = nMask == MASK ? MASK : NOMASK;
    box->szCharSet = szCharSet;
    box->onFocus = onFocus;
    box->onUnfocus = onUnfocus;
    box->onKey = onKey;
    return 0;
}

// The text may be the box's own.
int kultextbox_setText(int nChain, int nRef, const char* szText)
{
    auto* box = kul::findUI<KULTEXTBOX>(nChain, nRef, TEXTBOX);
    if (!szText || !box || !box->szText)
        return -1;
    const int nLength = kul::length(szText);
    const bool fits = nLength < box->nMaxLength;
    box->nLength = fits ? nLength : 0;
    std::memmove(box->szText, szText, static_cast<std::size_t>(box->nLength));
    box->szText[box->nLength] = '\0';
    box->nCursorPos = std::clamp(box->nCursorPos, 0, box->nLength);
    return fits ? 0 : -1;
}

char* kultextbox_getText(int nChain, int nRef)
{
    const auto* box = kul::findUI<KULTEXTBOX>(nChain, nRef, TEXTBOX);
    return box ? box->szText : nullptr;
}

int kultextbox_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kultextbox_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

void ShowTextboxComponent(GUI* thisGUI, KULTEXTBOX* thisTB, int nFocus)
{
    if (!thisGUI || !thisTB || thisTB->nVisible != T || thisTB->nWidth < 1 || thisTB->nHeight < 1)
        return;
    const KULTEXTBOX& box = *thisTB;
    const int nResting = box.nEnable == 1 ? box.nColorUnfocus : box.nColorDisable;
    const int nColor = nFocus == 1 ? box.nColorFocus : nResting;
    WINDOW* win = thisGUI->winMain;
    Fill(win, box.nY, box.nX, box.nHeight, box.nWidth, nColor);
    if (box.nBorder == BORDER)
        DrawBorder(win, box.nY, box.nX, box.nHeight, box.nWidth, nColor);
    const int nEdge = box.nBorder == BORDER ? 1 : 0;
    const int nWidth = kul::innerSize(box.nWidth, box.nBorder);
    const bool masked = box.nMask != NOMASK && box.nMask != KUL_KEEP;
    const std::string_view text = kul::viewOf(box.szText);
    const kul::Attribute color(win, nColor);
    Row row = {0, nWidth, nFocus == 1 ? box.nCursorPos : -1, masked, ' '};
    for (int i = 0; nWidth > 0 && i < kul::innerSize(box.nHeight, box.nBorder); ++i) {
        if (!drawRow(win, kul::shifted(box.nY, nEdge + i), kul::shifted(box.nX, nEdge), box, row))
            break;
        row.nFirst = kul::lineStart(text, row.nFirst + nWidth, nWidth - 1);
    }
}

// Its rows hold one character more than those of ShowTextboxComponent where there is a border, no
// blanks are skipped between them, and the mask covers the end of the text too.
void DrawTextBox(GUI* thisGUI, KULTEXTBOX* thisBox, int nColor)
{
    if (!thisGUI || !thisBox)
        return;
    const int nEdge = thisBox->nBorder == BORDER ? 1 : 0;
    const int nWidth = kul::shifted(thisBox->nWidth, -nEdge);
    const int nCursor = thisBox->nCursor == SHOWCURSOR ? thisBox->nCursorPos : -1;
    const kul::Attribute color(thisGUI->winMain, nColor);
    const bool masked = thisBox->nMask == MASK;
    Row row = {0, nWidth, nCursor, masked, static_cast<chtype>(masked ? '*' : ' ')};
    for (int i = 0; nWidth > 0 && i < kul::innerSize(thisBox->nHeight, thisBox->nBorder); ++i) {
        if (!drawRow(thisGUI->winMain, kul::shifted(thisBox->nY, nEdge + i),
                     kul::shifted(thisBox->nX, nEdge), *thisBox, row))
            break;
        row.nFirst += nWidth;
    }
}

int kultextbox_execKeys(int nChain, int nRef)
{
    const auto* box = kul::findUI<KULTEXTBOX>(nChain, nRef, TEXTBOX);
    if (!box)
        return -10000;
    if (box->nVisible != T)
        return 10;
    kul::Handler<KULTEXTBOX> handler({nChain, nRef, TEXTBOX, 0, 0, 0});
    handler.call(&KULTEXTBOX::onFocus);
    while (const int nKey = handler.key(kul::isShown<KULTEXTBOX>)) {
        const int nLeave = leavesWith(nKey);
        if (nLeave == 0)
            edit(handler.record(), nKey);
        handler.call(&KULTEXTBOX::onKey);
        handler.show();
        if (nLeave != 0)
            handler.end(nLeave);
    }
    return handler.finish(&KULTEXTBOX::onUnfocus);
}
