// SPDX-License-Identifier: MIT
#include "ring_list.hpp"

#include "../gui/edition.hpp"
#include "../gui/print.hpp"
#include "../gui/screen.hpp"
#include "../gui/text.hpp"

namespace {

bool marksMarkers = false; // the cursor's bar is over the marker alone

} // namespace

int kulgui_setMarkerBars(int bMarker)
{
    if (bMarker != T && bMarker != F)
        return KUL_ERROR;
    marksMarkers = bMarker == T;
    return KUL_OK;
}

namespace kul {

void dropRing(const List& list)
{
    wipeRing(list.shape, list.box.Element);
    list.box.Element = list.box.FirstShowed = list.box.LastShowed = nullptr;
    if (list.ring) {
        list.ring->head = list.ring->found = nullptr;
        list.ring->nRows = 0;
    }
}

int wipeList(void* record, const List& list)
{
    const int nResult = wipeRing(list.shape, list.box.Element);
    freeRecord(record);
    return nResult;
}

void setListDefaults(const GUI& gui, const List& list)
{
    list.box.colors = colorsOf(gui);
    list.calls = {};
    list.box.Element = list.box.FirstShowed = list.box.LastShowed = nullptr;
    list.box.nVisible = T;
    list.box.nSelect = 0;
    list.nCursor = 0;
    list.size = {0, F, NOBORDER};
    list.box.nFirstShowed = list.box.nLastShowed = -1;
}

// ---- Drawing --------------------------------------------------------------------------------

namespace {

// In edition 2 the bar tells where the view is, and that there is more.
void drawScrollbar(GUI& gui, const List& list)
{
    const int nColor = list.box.colors.nUnfocus;
    const int nRight = shifted(list.box.nX, list.box.nWidth - 1LL);
    const int nLast = lastIndex(list);
    const int nCursor = list.nCursor;
    KULGAUGEBAR bar = {nColor, nColor,  nRight,   list.box.nY, list.box.nHeight,
                       nLast,  nCursor, VERTICAL, T,           nullptr};
    if (isEdition2()) {
        bar.nRange = shifted(std::max(nLast, list.box.nHeight), 1);
        bar.nPosition = list.box.nFirstShowed;
    }
    BarShow(&gui, &bar, 1);
    if (nCursor != 0 && nCursor != nLast)
        return;
    const Attribute color(gui.winMain, nColor);
    drawCell(gui.winMain, nCursor == 0 ? list.box.nY : shifted(list.box.nY, list.box.nHeight - 1LL),
             nRight, ACS_DIAMOND | A_REVERSE);
}

// In edition 2 the cursor's element is one bar over the box, up to the scroll bar where that stands
// inside of it, and the terminal's cursor is on its first letter. A bar over the marker is what
// draws that, with the cursor in it.
void drawCursorBar(WINDOW* win, const List& list, int nY, int nX, int nHeight)
{
    if (!isEdition2())
        return;
    if (marksMarkers) {
        showCursorAt(win, nY, shifted(nX, 1));
        return;
    }
    const int nBar = list.size.nBorder != BORDER && list.size.bScrollbar == T ? 1 : 0;
    for (int i = 0; i < nHeight; ++i)
        hRun(win, shifted(nY, i), nX, textWidth(list) + 4LL - nBar, ' ');
    showCursorAt(win, nY, shifted(nX, 4));
}

int colorOf(const List& list, AnyElement* element, bool focused, bool selected)
{
    if (focused && selected)
        return list.box.colors.nFocus;
    return focused && !list.shape.isEnabled(element) ? list.box.colors.nDisable
                                                     : list.box.colors.nUnfocus;
}

// The view as it is, with rows that all are single.
SingleRows singleRows(const List& list)
{
    return {list.box.FirstShowed, list.box.nFirstShowed, list.box.nLastShowed, textWidth(list),
            changes()};
}

bool areSingle(const List& list)
{
    return list.ring && list.ring->single == singleRows(list);
}

// Rows of an element in view that is not the last one.
int heightOf(const List& list, AnyElement* element, bool single)
{
    return single ? 1 : GetWrapTextHeight(textWidth(list), list[element].szText);
}

// Draws the elements in view.
void drawElements(WINDOW* win, const List& list, bool focused, Marker marker)
{
    const int nEdge = list.size.nBorder == BORDER ? 1 : 0;
    const int nX = shifted(list.box.nX, nEdge);
    const int nY = shifted(list.box.nY, nEdge);
    const int nRows = hasRoom(list) ? viewRows(list) : 0;
    const int nSeen = std::min(nRows, shifted(getmaxy(win), -static_cast<long long>(nY)));
    AnyElement* element = list.box.FirstShowed;
    const Rows drawn = rowsDrawn(win);
    // Who draws all of it may have changed the texts.
    const bool single = (drawn.nFirst > 0 || drawn.nEnd < getmaxy(win)) && areSingle(list);
    bool allSingle = true;
    int nUsed = 0;
    for (long long i = list.box.nFirstShowed; element && i <= list.box.nLastShowed && nUsed < nSeen;
         ++i) {
        const bool selected = i == list.nCursor;
        const int nColor = colorOf(list, element, focused, selected);
        const int nTextColor = colorOf(list, element, focused, selected && !marksMarkers);
        const char* szText = list[element].szText;
        const int nTop = shifted(nY, nUsed);
        const int nHeight = i < list.box.nLastShowed ? heightOf(list, element, single) : nRows;
        allSingle = allSingle && (nHeight == 1 || i == list.box.nLastShowed);
        const int nCut = std::min(nHeight, nRows - nUsed);
        nUsed += nCut;
        AnyElement* shown = element;
        element = list[element].Next;
        if (!isDrawn(win, nTop, nCut))
            continue;
        {
            const Attribute color(win, nColor);
            if (focused && selected)
                drawCursorBar(win, list, nTop, nX, nCut);
            drawText(win, nTop, nX, marker(list, shown, static_cast<int>(i)));
        }
        NewStrToBox(win, shifted(nX, 4), nTop, textWidth(list), nCut, nTextColor, LEFT, szText);
    }
    if (list.ring)
        list.ring->single = allSingle && nUsed >= nRows ? singleRows(list) : SingleRows{};
}

} // namespace

// A record of the program's own is drawn as it is.
void showList(GUI& gui, const List& list, int nFocus, Marker marker)
{
    if (list.box.nVisible != T || list.box.nWidth < 1 || list.box.nHeight < 1)
        return;
    if (list.ring)
        keepView(list);
    if (list.size.nBorder == BORDER)
        DrawBorder(gui.winMain, list.box.nY, list.box.nX, list.box.nHeight, list.box.nWidth,
                   list.box.colors.nUnfocus);
    if (list.size.bScrollbar == T)
        drawScrollbar(gui, list);
    drawElements(gui.winMain, list, nFocus == 1, marker);
}

// A scroll bar tells of every move.
Spot spotOf(const List& list)
{
    keepView(list);
    const int nCursor = list.nCursor;
    AnyElement* element = list.box.FirstShowed;
    if (list.size.bScrollbar == T || !hasRoom(list) || !element ||
        nCursor < list.box.nFirstShowed || nCursor > list.box.nLastShowed)
        return {{}, -1};
    int nY = shifted(list.box.nY, list.size.nBorder == BORDER ? 1 : 0);
    int nEnd = shifted(nY, viewRows(list));
    const bool single = areSingle(list);
    for (int i = list.box.nFirstShowed; i < nCursor && element; ++i, element = list[element].Next)
        nY = shifted(nY, heightOf(list, element, single));
    if (nCursor != list.box.nLastShowed && element)
        nEnd = shifted(nY, heightOf(list, element, single));
    return {{nY, nEnd}, list.box.nFirstShowed};
}

// ---- Elements -------------------------------------------------------------------------------

namespace {

Steps stepsOf(const List& list)
{
    return {const_cast<List*>(&list), std::max(list.size.nElements, 0), [](void* any, int nIndex) {
                const List& ring = *static_cast<const List*>(any);
                return stepOf(ring.shape, elementAt(ring, nIndex));
            }};
}

// Moves the cursor by a key. Whether the key is one that moves.
bool stepList(const List& list, int nKey)
{
    if (!isEdition2()) {
        if (nKey != KS_UP && nKey != KS_DOWN)
            return false;
        moveCursor(list, nKey);
        return true;
    }
    keepView(list);
    const StepKeys keys = {KS_UP, KS_DOWN,
                           std::max(list.box.nLastShowed - list.box.nFirstShowed, 1)};
    const int nBefore = list.nCursor;
    const int nTo = stepped(nBefore, nKey, keys, stepsOf(list));
    return nTo != nBefore && selectElement(list, nTo);
}

} // namespace

bool selectElement(const List& list, int nElement)
{
    if (!elementAt(list, nElement))
        return false;
    list.nCursor = nElement;
    bringIntoView(list);
    return true;
}

// ---- Keys -----------------------------------------------------------------------------------

std::optional<List> ListHandler::list()
{
    void* record = findRecord();
    if (!record)
        return {};
    return selection.nType == CHECKBOX ? listOf(*static_cast<CheckList*>(record))
                                       : listOf(*static_cast<OptionList*>(record));
}

void ListHandler::callElement(KULCALLBACK ElementLinks::*callback)
{
    const auto now = list();
    if (AnyElement* element = now ? cursorElement(*now) : nullptr)
        run(now->shape.linksOf(element).*callback);
}

void ListHandler::noteSelection()
{
    if (const auto now = list()) {
        selection.nSelect = now->box.nSelect;
        selection.nPosition = now->nCursor;
        SetCurrentSelection(&selection);
    }
}

int runList(int nChain, int nRef, const List& start, const ListKeys& keys)
{
    keepView(start);
    start.nCursor = settled(start.nCursor, stepsOf(start));
    bringIntoView(start);
    ListHandler handler({nChain, nRef, keys.type, start.nCursor, start.box.nSelect, 0},
                        reinterpret_cast<char*>(&start.calls) -
                            reinterpret_cast<char*>(&start.box));
    handler.call(&UICalls::onFocus);
    while (const int nKey = handler.key(keys.endsHidden ? isShown<ListBox> : nullptr)) {
        const bool clicks = nKey == KS_SPACE || nKey == KS_ENTER;
        const auto list = handler.list();
        if (clicks) {
            keys.click(handler);
        } else if (list && stepList(*list, nKey)) {
            handler.noteSelection();
            keys.moved(handler);
        }
        handler.noteSelection();
        handler.show(clicks ? keys.clickChanges : Changed::Selected);
        if (nKey == KS_TAB || nKey == KS_ESC)
            handler.end(nKey == KS_TAB ? KUL_NEXT : KUL_PREVIOUS);
    }
    return handler.finish();
}

} // namespace kul
