// SPDX-License-Identifier: MIT
//
// What check box lists and option lists have in common besides their elements: settings, drawing
// and keys.
#ifndef KUL_UI_RING_LIST_HPP
#define KUL_UI_RING_LIST_HPP

#include "../gui/edition.hpp"
#include "../gui/print.hpp"
#include "../gui/screen.hpp"
#include "../gui/text.hpp"
#include "handler.hpp"
#include "ring_view.hpp"
#include "steps.hpp"

namespace kul {

// Records and their settings.

template <typename Record>
void dropRing(Record& list)
{
    wipeRing(list.Element);
    list.Element = list.FirstShowed = list.LastShowed = nullptr;
    if (auto* inner = innerOf<RingList<Record>>(&list)) {
        inner->head = inner->found = nullptr;
        inner->nRows = 0;
    }
}

template <typename Record>
int setListDefaults(const GUI* gui, Record* list)
{
    if (!gui || !list)
        return -1;
    takeColors(*gui, *list);
    setCallbacks(*list, nullptr, nullptr, nullptr, nullptr);
    list->Element = list->FirstShowed = list->LastShowed = nullptr;
    list->nVisible = T;
    list->nSelect = 0;
    cursorOf(*list) = 0;
    list->nElements = 0;
    list->nBorder = NOBORDER;
    list->bScrollbar = F;
    list->nFirstShowed = list->nLastShowed = -1;
    return 0;
}

template <typename Record>
int wipeList(Record* list)
{
    if (!list)
        return 0;
    const int nResult = wipeRing(list->Element);
    freeRecord(list);
    return nResult;
}

// Drawing.

template <typename Record>
void drawScrollbar(GUI* gui, Record& list, int nColor)
{
    const int nRight = shifted(list.nX, list.nWidth - 1LL);
    const int nLast = lastIndex(list);
    const int nCursor = cursorOf(list);
    const KULGAUGEBAR bar = {nColor, nColor,  nRight,   list.nY, list.nHeight,
                             nLast,  nCursor, VERTICAL, T,       nullptr};
    BarShow(gui, &bar, 1);
    if (nCursor != 0 && nCursor != nLast)
        return;
    const Attribute color(gui->winMain, nColor);
    drawCell(gui->winMain, nCursor == 0 ? list.nY : shifted(list.nY, list.nHeight - 1LL), nRight,
             ACS_DIAMOND | A_REVERSE);
}

// In edition 2 the cursor's element is one bar over the box, up to the scroll bar where that stands
// inside of it, and the terminal's cursor is on its first letter.
template <typename Record>
void drawCursorBar(WINDOW* win, const Record& list, int nY, int nX, int nHeight)
{
    if (!isEdition2())
        return;
    const int nBar = list.nBorder != BORDER && list.bScrollbar == T ? 1 : 0;
    for (int i = 0; i < nHeight; ++i)
        hRun(win, shifted(nY, i), nX, textWidth(list) + 4LL - nBar, ' ');
    showCursorAt(win, nY, shifted(nX, 4));
}

// Draws the elements in view; marker gives the three characters in front of each.
template <typename Record, typename Marker>
void drawElements(WINDOW* win, Record& list, int nFocus, Marker marker)
{
    const int nEdge = list.nBorder == BORDER ? 1 : 0;
    const int nX = shifted(list.nX, nEdge);
    const int nY = shifted(list.nY, nEdge);
    const int nRows = hasRoom(list) ? viewRows(list) : 0;
    const int nSeen = std::min(nRows, shifted(getmaxy(win), -static_cast<long long>(nY)));
    auto* element = list.FirstShowed;
    int nUsed = 0;
    for (long long i = list.nFirstShowed; element && i <= list.nLastShowed && nUsed < nSeen; ++i) {
        int nColor = list.nColorUnfocus;
        if (nFocus == 1 && i == cursorOf(list))
            nColor = list.nColorFocus;
        else if (nFocus == 1 && element->nEnable != 1)
            nColor = list.nColorDisable;
        const int nTop = shifted(nY, nUsed);
        const int nHeight =
            i < list.nLastShowed ? GetWrapTextHeight(textWidth(list), element->szText) : nRows;
        const int nCut = std::min(nHeight, nRows - nUsed);
        nUsed += nCut;
        const auto& shown = *element;
        element = element->Next;
        if (!isDrawn(win, nTop, nCut))
            continue;
        {
            const Attribute color(win, nColor);
            if (nFocus == 1 && i == cursorOf(list))
                drawCursorBar(win, list, nTop, nX, nCut);
            drawText(win, nTop, nX, marker(shown, static_cast<int>(i)));
        }
        NewStrToBox(win, shifted(nX, 4), nTop, textWidth(list), nCut, nColor, LEFT, shown.szText);
    }
}

// A record of the program's own is drawn as it is.
template <typename Record, typename Marker>
void showList(GUI* gui, Record* list, int nFocus, Marker marker)
{
    if (!gui || !list || list->nVisible != T || list->nWidth < 1 || list->nHeight < 1)
        return;
    if (auto* inner = innerOf<RingList<Record>>(list))
        keepView(*inner);
    if (list->nBorder == BORDER)
        DrawBorder(gui->winMain, list->nY, list->nX, list->nHeight, list->nWidth,
                   list->nColorUnfocus);
    if (list->bScrollbar == T)
        drawScrollbar(gui, *list, list->nColorUnfocus);
    drawElements(gui->winMain, *list, nFocus, marker);
}

// A scroll bar tells of every move.
template <typename Record>
Spot spotOf(RingList<Record>& list)
{
    keepView(list);
    const int nCursor = cursorOf(list);
    const auto* element = list.FirstShowed;
    if (list.bScrollbar == T || !hasRoom(list) || !element || nCursor < list.nFirstShowed ||
        nCursor > list.nLastShowed)
        return {rowsOf(list), -1};
    int nY = shifted(list.nY, list.nBorder == BORDER ? 1 : 0);
    const int nEnd = shifted(nY, viewRows(list));
    for (int i = list.nFirstShowed; i < nCursor && element; ++i, element = element->Next)
        nY = shifted(nY, GetWrapTextHeight(textWidth(list), element->szText));
    if (nCursor == list.nLastShowed || !element)
        return {{nY, nEnd}, list.nFirstShowed};
    return {{nY, shifted(nY, GetWrapTextHeight(textWidth(list), element->szText))},
            list.nFirstShowed};
}

// Keys.

// Has the selection say what the list says now.
template <typename Record>
void noteSelection(Handler<RingList<Record>>& handler)
{
    if (RingList<Record>* list = handler.record()) {
        handler.selection.nSelect = list->nSelect;
        handler.selection.nPosition = cursorOf(*list);
        SetCurrentSelection(&handler.selection);
    }
}

// Runs a callback of the cursor's element, wherever in the list that is.
template <typename Record>
void callElement(Handler<RingList<Record>>& handler, KULCALLBACK ElementOf<Record>::*callback)
{
    RingList<Record>* list = handler.record();
    if (const auto* element = list ? cursorElement(*list) : nullptr)
        handler.run(element->*callback);
}

// The elements of a list by index.
template <typename Record>
auto elementsOf(RingList<Record>& list)
{
    keepView(list);
    return [&list](int nIndex) { return elementAt(list, nIndex); };
}

template <typename Record>
int countElements(const RingList<Record>& list)
{
    return std::max(list.nElements, 0);
}

template <typename Record>
Steps stepsOf(RingList<Record>& list)
{
    keepView(list);
    return {&list, countElements(list), [](void* any, int nIndex) {
                return stepOf(elementAt(*static_cast<RingList<Record>*>(any), nIndex));
            }};
}

// Puts the cursor on an element and shows it. False when there is none.
template <typename Record>
bool selectElement(RingList<Record>& list, int nElement)
{
    if (!elementsOf(list)(nElement))
        return false;
    cursorOf(list) = nElement;
    bringIntoView(list);
    return true;
}

// Moves the cursor by a key. Whether the key is one that moves.
template <typename Record>
bool stepList(RingList<Record>& list, int nKey)
{
    if (!isEdition2()) {
        if (nKey != KS_UP && nKey != KS_DOWN)
            return false;
        moveCursor(list, nKey);
        return true;
    }
    const int nBefore = cursorOf(list);
    const StepKeys keys = {KS_UP, KS_DOWN, std::max(list.nLastShowed - list.nFirstShowed, 1)};
    const int nTo = stepped(nBefore, nKey, keys, stepsOf(list));
    return nTo != nBefore && selectElement(list, nTo);
}

// What the lists' keys differ in.
template <typename Record>
struct ListKeys {
    UI_TYPE type;
    Changed clickChanges;                      // at the most, what Space and Enter do
    bool endsHidden;                           // when it gets hidden; else it goes on unseen
    void (*click)(Handler<RingList<Record>>&); // runs what Space and Enter do
    void (*moved)(Handler<RingList<Record>>&); // runs the callbacks after a move
};

// Gives a list the keys until it loses the focus.
template <typename Record>
int runList(int nChain, int nRef, const ListKeys<Record>& keys)
{
    auto& start = *findUI<RingList<Record>>(nChain, nRef, keys.type);
    keepView(start);
    if (isEdition2())
        cursorOf(start) = settled(cursorOf(start), stepsOf(start));
    bringIntoView(start);
    Handler<RingList<Record>> handler({nChain, nRef, keys.type, cursorOf(start), start.nSelect, 0});
    handler.call(&Record::onFocus);
    while (const int nKey = handler.key(keys.endsHidden ? isShown<RingList<Record>> : nullptr)) {
        if (nKey == KS_SPACE || nKey == KS_ENTER) {
            keys.click(handler);
        } else if (RingList<Record>* list = handler.record(); list && stepList(*list, nKey)) {
            noteSelection(handler);
            keys.moved(handler);
        }
        noteSelection(handler);
        handler.show(nKey == KS_SPACE || nKey == KS_ENTER ? keys.clickChanges : Changed::Selected);
        if (nKey == KS_TAB || nKey == KS_ESC)
            handler.end(nKey == KS_TAB ? KUL_NEXT : KUL_PREVIOUS);
    }
    return handler.finish(&Record::onUnfocus);
}

} // namespace kul

#endif
