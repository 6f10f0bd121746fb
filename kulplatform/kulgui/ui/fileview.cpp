// SPDX-License-Identifier: MIT
//
// The file viewer: a window onto the rows of a file. What it costs to show or to move does not
// depend on where in the file that is, nor on how long the file is.
#include "fileview.hpp"

#include <algorithm>
#include <climits>

#include "../file/file_rows.hpp"
#include "../gui/draw.hpp"
#include "../gui/polling.hpp"
#include "handler.hpp"

namespace {

using kul::FilePlace;
using kul::FileRows;
using kul::FileText;
using kul::FileView;

// As the calls give it: files may have more lines than an int can count.
int lineNumber(std::int64_t nLine)
{
    return static_cast<int>(std::min<std::int64_t>(nLine, INT_MAX));
}

FileView* findView(int nChain, int nRef)
{
    return kul::findUI<FileView>(nChain, nRef, FILEVIEW);
}

// ---- Moving ---------------------------------------------------------------------------------

// Lays out the rows of the view from one on. Those from a number on are kept, as the first ones.
void layOut(FileView& view, FileRows& rows, FilePlace row, int nKept)
{
    const int nRows = kul::fileRows(view);
    const int nKeptRows = std::max(nRows - nKept, 0);
    if (nKeptRows > 0)
        std::copy(view.starts + nKept, view.starts + nRows + 1, view.starts);
    view.starts[0] = row;
    for (int i = nKeptRows; i < nRows; ++i)
        view.starts[i + 1] = rows.row(view.starts[i]).next;
    view.nRows = nRows;
    view.nColumns = kul::fileColumns(view);
    view.top = row;
    view.atEnd = view.starts[nRows] >= view.text->size();
}

// Shows the rows from one on, or the last rows where there are not enough below.
void showFrom(FileView& view, FileRows& rows, FilePlace row, int nKept = INT_MAX)
{
    layOut(view, rows, row, nKept);
    const FilePlace last = view.atEnd ? rows.up(view.text->size(), view.nRows) : row;
    if (last < row)
        layOut(view, rows, last, INT_MAX);
}

void moveTo(FileView& view, FilePlace place)
{
    FileRows rows(*view.text, kul::fileColumns(view));
    showFrom(view, rows, rows.rowOf(place));
}

// Returns by how many rows what is shown has moved up.
int moveRows(FileView& view, int nRows)
{
    FileRows rows(*view.text, kul::fileColumns(view));
    const FilePlace before = view.top;
    const FilePlace to = nRows < 0 ? rows.up(before, -nRows) : rows.down(before, nRows);
    const bool keeps =
        kul::isLaidOut(view) && nRows > 0 && nRows < view.nRows && view.starts[nRows] == to;
    showFrom(view, rows, to, keeps ? nRows : INT_MAX);
    if (view.top == before)
        return 0;
    if (nRows < 0)
        return -nRows < view.nRows && view.starts[-nRows] == before ? nRows : kul::kFar;
    return keeps && view.top == to ? nRows : kul::kFar;
}

int page(const FileView& view)
{
    return std::max(kul::fileRows(view) - 1, 1);
}

struct KeyMove {
    int nKey;
    int (*move)(FileView&); // as moveRows()
};

constexpr KeyMove kKeyMoves[] = {
    {KS_UP, [](FileView& view) { return moveRows(view, -1); }},
    {KS_DOWN, [](FileView& view) { return moveRows(view, 1); }},
    {KS_PAGEUP, [](FileView& view) { return moveRows(view, -page(view)); }},
    {KS_BACKSPACE, [](FileView& view) { return moveRows(view, -page(view)); }},
    {KS_PAGEDOWN, [](FileView& view) { return moveRows(view, page(view)); }},
    {KS_SPACE, [](FileView& view) { return moveRows(view, page(view)); }},
    {KS_HOME, [](FileView& view) { return moveTo(view, 0), kul::kFar; }},
    {KS_END, [](FileView& view) { return moveTo(view, view.text->size()), kul::kFar; }},
};

// How far the view is in the file: 0 at its start, 100 where the end is in view.
int percent(const FileView& view)
{
    if (!view.text || view.atEnd)
        return 100;
    // The file may have been cut off above of the view a moment ago.
    const auto size = static_cast<double>(std::max<FilePlace>(view.text->size(), 1));
    return static_cast<int>(std::min(100 * static_cast<double>(view.top) / size, 99.0));
}

// ---- Keeping up with the file ---------------------------------------------------------------

// Another file that got the name; it takes the place of the old one once it can be read.
bool takeReplacement(FileView& view)
{
    if (!view.text->isReplacedAt(view.szFileName))
        return false;
    FileText* text = FileText::open(view.szFileName);
    if (!text)
        return false;
    FileText::close(view.text);
    view.text = text;
    return true;
}

// Fits the view to the file as it is now and to the width as it is now. True when it has to be
// drawn.
bool keepUp(FileView& view)
{
    if (!view.text)
        return false;
    const bool replaced = view.following && takeReplacement(view);
    const auto change = replaced ? FileText::Change::Shorter : view.text->refresh();
    if (change == FileText::Change::None && view.nColumns == kul::fileColumns(view))
        return false;
    const bool toEnd = view.following && (view.atEnd || change == FileText::Change::Shorter);
    moveTo(view, toEnd ? view.text->size() : view.top);
    return true;
}

bool keepUpAll(const GUI& dialog)
{
    bool changed = false;
    for (const UI* ui = dialog.UserInterface; ui; ui = ui->Next) {
        if (ui->nType != FILEVIEW)
            continue;
        FileView* view = kul::innerOf<FileView>(static_cast<KULFILEVIEW*>(ui->Pointer));
        if (view && keepUp(*view))
            changed = true;
    }
    return changed;
}

// ---- Loading --------------------------------------------------------------------------------

// A file and the copy of its name; both or none.
struct Loaded {
    FileText* text;
    char* szFileName;
};

Loaded openFile(const char* szFileName)
{
    Loaded loaded = {FileText::open(szFileName), nullptr};
    if (loaded.text && !(loaded.szFileName = kul::copyText(szFileName))) {
        FileText::close(loaded.text);
        loaded.text = nullptr;
    }
    return loaded;
}

void showFile(FileView& view, const Loaded& loaded)
{
    kul::dropFileView(view);
    view.text = loaded.text;
    view.szFileName = loaded.szFileName;
    if (!view.text)
        return;
    kul::lookEverySecond(keepUpAll);
    moveTo(view, view.following ? view.text->size() : 0);
}

} // namespace

namespace kul {

void dropFileView(KULFILEVIEW& view)
{
    std::free(view.szFileName);
    view.szFileName = nullptr;
    if (auto* inner = innerOf<FileView>(&view)) {
        FileText::close(inner->text);
        inner->text = nullptr;
        inner->top = 0;
        inner->nRows = 0;
        inner->atEnd = true;
    }
}

} // namespace kul

int AttachFileviewComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, FILEVIEW);
}

int ConfigFileviewComponent(GUI* thisGUI, KULFILEVIEW* thisView)
{
    if (!thisGUI || !thisView)
        return -1;
    // What a record of the program's own holds may be anything.
    if (auto* inner = kul::innerOf<FileView>(thisView)) {
        kul::dropFileView(*inner);
        inner->following = false;
    }
    kul::takeColors(*thisGUI, *thisView);
    kul::setCallbacks(*thisView, nullptr, nullptr, nullptr, nullptr);
    thisView->szFileName = nullptr;
    thisView->nVisible = T;
    thisView->nBorder = NOBORDER;
    return 0;
}

int WipeFileviewComponent(KULFILEVIEW* thisView)
{
    if (!thisView)
        return 0;
    kul::dropFileView(*thisView);
    kul::freeRecord(thisView);
    return 0;
}

int kulfileview_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, FILEVIEW);
}

int kulfileview_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                       int nX, int nY, int nWidth, int nHeight, int nBorder, const char* szFileName,
                       KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                       KULCALLBACK onClick)
{
    if (!findView(nChain, nRef))
        return -1;
    // Opened before the reset, which frees the name that the program may have got from the record.
    const Loaded loaded = openFile(szFileName);
    auto* view =
        kul::resetUI<FileView>(nChain, nRef, FILEVIEW, nColorFocus, nColorUnfocus, nColorDisable);
    kul::setCallbacks(*view, onFocus, onUnfocus, onSelect, onClick);
    view->nX = nX;
    view->nY = nY;
    view->nWidth = nWidth;
    view->nHeight = nHeight;
    if (nBorder == BORDER || nBorder == NOBORDER)
        view->nBorder = nBorder;
    showFile(*view, loaded);
    return szFileName && !loaded.text ? KUL_UNREADABLE : 0;
}

int kulfileview_load(int nChain, int nRef, const char* szFileName)
{
    FileView* view = findView(nChain, nRef);
    if (!view)
        return -1;
    const Loaded loaded = openFile(szFileName);
    if (szFileName && !loaded.text)
        return KUL_UNREADABLE;
    showFile(*view, loaded);
    return 0;
}

int kulfileview_setFollow(int nChain, int nRef, int bFollow)
{
    FileView* view = findView(nChain, nRef);
    if (!view)
        return -1;
    view->following = bFollow == T;
    if (view->following && view->text) {
        keepUp(*view);
        moveTo(*view, view->text->size());
    }
    return 0;
}

int kulfileview_find(int nChain, int nRef, const char* szText, int nFrom)
{
    FileView* view = findView(nChain, nRef);
    if (!view || !view->text || !szText)
        return -1;
    keepUp(*view);
    const FileText::Match match = view->text->find(szText, nFrom);
    if (match.nLine < 0)
        return -1;
    moveTo(*view, match.line);
    FileRows rows(*view->text, kul::fileColumns(*view));
    if (match.place >= rows.down(view->top, kul::fileRows(*view)))
        moveTo(*view, match.place); // far behind in a line that is larger than the view
    return lineNumber(match.nLine);
}

int kulfileview_getPosition(int nChain, int nRef)
{
    FileView* view = findView(nChain, nRef);
    if (!view)
        return -1;
    keepUp(*view);
    return view->text ? lineNumber(view->text->lineOf(view->top)) : 0;
}

int kulfileview_setPosition(int nChain, int nRef, int nLine)
{
    FileView* view = findView(nChain, nRef);
    if (!view)
        return -1;
    if (!view->text)
        return 0;
    keepUp(*view);
    const FilePlace place = view->text->lineStart(nLine);
    moveTo(*view, place < 0 ? view->text->size() : place);
    return 0;
}

int kulfileview_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulfileview_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kulfileview_execKeys(int nChain, int nRef)
{
    const FileView* start = findView(nChain, nRef);
    if (!start)
        return KUL_GONE;
    if (start->nVisible != T)
        return KUL_NEXT;
    kul::Handler<FileView> handler({nChain, nRef, FILEVIEW, percent(*start), 0, 0});
    handler.call(&FileView::onFocus);
    while (const int nKey = handler.key(kul::isShown<FileView>)) {
        FileView* view = handler.record();
        if (view) // a poll may have moved the view, or the file have grown
            handler.selection.nPosition = percent(*view);
        auto shown = kul::Changed::Component;
        const auto* move = std::find_if(std::begin(kKeyMoves), std::end(kKeyMoves),
                                        [=](const KeyMove& row) { return row.nKey == nKey; });
        if (nKey == KS_TAB || nKey == KS_ESC) {
            handler.end(nKey == KS_TAB ? KUL_NEXT : KUL_PREVIOUS);
        } else if (nKey == KS_ENTER) {
            SetCurrentSelection(&handler.selection);
            handler.call(&FileView::onClick);
        } else if (view && view->text && move != std::end(kKeyMoves)) {
            const bool changed = keepUp(*view);
            const FilePlace before = view->top;
            const int nMoved = move->move(*view);
            const kul::FileBox box = kul::fileBox(*view);
            const kul::Block block = {{box.nY, kul::shifted(box.nY, box.nHeight)},
                                      {box.nX, kul::shifted(box.nX, box.nWidth)}};
            kul::rowsMoved(kul::findDialog(nChain)->winMain, block, changed ? kul::kFar : nMoved);
            handler.selection.nPosition = percent(*view);
            SetCurrentSelection(&handler.selection);
            if (nMoved == 0 && !changed)
                shown = kul::Changed::Nothing; // at an end of the file
            if (view->top != before)
                handler.call(&FileView::onSelect);
        }
        if (const FileView* now = handler.record())
            handler.selection.nPosition = percent(*now);
        handler.show(shown);
    }
    return handler.finish(&FileView::onUnfocus);
}
