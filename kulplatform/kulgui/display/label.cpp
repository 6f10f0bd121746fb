// SPDX-License-Identifier: MIT
//
// Labels: a block of text, wrapped at blanks and aligned, with a frame or without.
#include <algorithm>
#include <utility>

#include "../gui/print.hpp"
#include "../gui/text.hpp"
#include "item.hpp"

namespace {

constexpr int kFrame = 2;

// Where the rows of a label go. nSpan is the distance from a row's first column to its last one.
struct TextArea {
    int nX;
    int nY;
    int nSpan;
    int nRows;
};

TextArea textArea(const KULLABEL& label)
{
    if (label.nBorder == BORDER)
        return {kul::shifted(label.nX, 1), kul::shifted(label.nY, 1),
                kul::shifted(label.nWidth, -1 - kFrame), kul::shifted(label.nHeight, -kFrame)};
    return {label.nX, label.nY, kul::shifted(label.nWidth, -1), label.nHeight};
}

int rowColumn(const TextArea& area, int nAlignment, int nExtent)
{
    switch (nAlignment) {
    case LEFT:
        return area.nX;
    case CENTER:
        return kul::shifted(area.nX, Offset(area.nSpan, nExtent));
    default:
        return kul::shifted(area.nX, static_cast<long long>(area.nSpan) - nExtent);
    }
}

bool isGap(char character)
{
    return character == ' ' || character == '\n';
}

// Draws the words of a row of nWidth columns; the fill shows through the gaps between them.
void drawWords(WINDOW* win, int nY, int nX, std::string_view row, int nWidth)
{
    const char* end = row.data() + row.size();
    const bool bytes = kul::isAscii(row);
    for (const char* word = row.data(); word < end;) {
        const char* gap = kul::findFirst(word, end, isGap);
        const std::string_view text(word, static_cast<std::size_t>(gap - word));
        kul::drawText(win, nY, nX, text, nWidth);
        word = kul::findFirst(gap, end, [](char character) { return !isGap(character); });
        nX = kul::shifted(nX, (bytes ? gap - text.data() : kul::widthOf(text)) + (word - gap));
    }
}

void drawRows(WINDOW* win, const TextArea& area, int nAlignment, std::string_view text)
{
    // Rows below the window would show nothing.
    const long long nRows = std::min<long long>(area.nRows, getmaxy(win) - 1LL * area.nY);
    int nPlace = 0;
    for (int nRow = 0; nRow < nRows; ++nRow) {
        const int nStart = nPlace;
        const int nEnd = kul::lineEnd(text, nStart, area.nSpan);
        if (nEnd >= nStart) {
            const std::string_view row(text.data() + nStart,
                                       static_cast<std::size_t>(nEnd - nStart + 1));
            drawWords(win, area.nY + nRow, rowColumn(area, nAlignment, kul::widthOf(row) - 1), row,
                      area.nSpan);
            nPlace = nEnd + 1;
        }
        nPlace = kul::lineStart(text, nPlace, area.nSpan);
        if (nPlace == nStart) // the text is over, or there is no room for any
            return;
    }
}

// Number of columns that a label holds.
long long capacity(const KULLABEL& label, bool framed)
{
    const int nFrame = framed ? kFrame : 0;
    return kul::area(kul::shifted(label.nWidth, -nFrame), kul::shifted(label.nHeight, -nFrame));
}

} // namespace

namespace kul {

void dropLabel(KULLABEL& label)
{
    std::free(label.szText);
    label.szText = nullptr;
}

} // namespace kul

int AttachLabelComponentToDI(DI* thisDI)
{
    return AttachComponentToDI(thisDI, LABEL);
}

int ConfigLabelComponent(GUI* thisGUI, KULLABEL* thisLabel)
{
    if (!thisGUI || !thisLabel)
        return -1;
    thisLabel->nColorSet = thisGUI->nColorStandard;
    thisLabel->nColorBorder = thisGUI->nColorUnfocus;
    thisLabel->nWidth = 20;
    thisLabel->nHeight = 5;
    thisLabel->nBorder = BORDER;
    thisLabel->szText = nullptr;
    thisLabel->nVisible = T;
    return 0;
}

int UpdateLabelComponent(GUI*, KULLABEL*)
{
    return 0;
}

int WipeLabelComponent(KULLABEL* thisLabel)
{
    return kul::wipeRecord(thisLabel, kul::dropLabel);
}

int kullabel_create(int nChain, int nRef)
{
    return kul::createDI(nChain, nRef, LABEL);
}

int kullabel_config(int nChain, int nRef, int nColorSet, int nColorBorder, int nX, int nY,
                    int nWidth, int nHeight, int nAlignment, int nBorder, const char* szText)
{
    auto* label = kul::findDI<KULLABEL>(nChain, nRef, LABEL);
    if (!label)
        return -1;
    // Kept until it is copied: szText may be the text that the label has.
    char* szBefore = std::exchange(label->szText, nullptr);
    ConfigDIComponent(nChain, nRef);
    label->nX = nX;
    label->nY = nY;
    label->nWidth = nWidth;
    label->nHeight = nHeight;
    SetVar(&label->nColorSet, nColorSet);
    SetVar(&label->nColorBorder, nColorBorder);
    SetVar(&label->nAlignment, nAlignment);
    SetVar(&label->nBorder, nBorder);
    // A text that is longer than the label is kept whole.
    const long long nLength = kul::widthOf(szText);
    label->szText = kul::newText(std::max(capacity(*label, nBorder == BORDER), nLength), szText);
    std::free(szBefore);
    kul::markChanged(nChain, nRef);
    return label->szText ? 0 : -1;
}

int kullabel_setText(int nChain, int nRef, const char* szText)
{
    auto* label = kul::findDI<KULLABEL>(nChain, nRef, LABEL);
    if (!label || !label->szText)
        return -1;
    const long long nCapacity = capacity(*label, label->nBorder == BORDER);
    if (kul::widthOf(szText) > nCapacity || !kul::setText(label->szText, nCapacity, szText))
        return -1;
    kul::markChanged(nChain, nRef);
    return 0;
}

int kullabel_show(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, T);
}

int kullabel_hide(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, F);
}

int kullabel_update(int nChain, int nRef)
{
    return UpdateDIComponent(nChain, nRef);
}

void ShowLabelComponent(GUI* thisGUI, KULLABEL* thisLabel)
{
    if (!thisGUI || !thisLabel || thisLabel->nVisible != T)
        return;
    WINDOW* win = thisGUI->winMain;
    const KULLABEL& label = *thisLabel;
    Fill(win, label.nY, label.nX, label.nHeight, label.nWidth, label.nColorSet);
    if (label.nBorder == BORDER)
        DrawBorder(win, label.nY, label.nX, label.nHeight, label.nWidth, label.nColorSet);
    const kul::Attribute color(win, label.nColorSet);
    if (label.szText)
        drawRows(win, textArea(label), label.nAlignment, kul::viewOf(label.szText));
}
