// SPDX-License-Identifier: MIT
//
// A file to read. The Search button, or a slash, asks for a text; "n" finds it again.
#include "frame.hpp"

namespace {

using kulready::BODY;
using kulready::Frame;

enum { CLOSE_BUTTON, SEARCH_BUTTON };

struct View {
    char szSearch[80];
};

View& viewOf(const Frame& frame)
{
    return *static_cast<View*>(frame.body);
}

// Finds the text below the first line in view, else from the start of the file on.
void findAgain(const Frame& frame)
{
    const View& view = viewOf(frame);
    if (view.szSearch[0] == '\0')
        return;
    const int nFrom = kulfileview_getPosition(frame.chain(), BODY) + 1;
    if (kulfileview_find(frame.chain(), BODY, view.szSearch, nFrom) < 0)
        kulfileview_find(frame.chain(), BODY, view.szSearch, 0);
}

void search(const Frame& frame)
{
    View& view = viewOf(frame);
    const char* szTitle = kulready::word(KULWORD_SEARCH);
    if (kuldialog_enter(szTitle, "", view.szSearch, sizeof view.szSearch, NOMASK) == 0)
        findAgain(frame);
}

bool mayEnd(Frame& frame, int nButton)
{
    if (nButton == SEARCH_BUTTON)
        search(frame);
    return nButton != SEARCH_BUTTON;
}

int viewKey(Frame& frame, int nKey)
{
    if (nKey != '/' && nKey != 'n')
        return nKey;
    nKey == '/' ? search(frame) : findAgain(frame);
    return 0;
}

int runView(Frame& frame, const char* szFileName, int bFollow)
{
    View view = {};
    frame.body = &view;
    const int nRows = kulgui_getRows();
    frame.want(nRows, 1, kulgui_getColumns());
    frame.addButtons(kulready::word(KULWORD_CLOSE), kulready::word(KULWORD_SEARCH));
    if (!frame.open())
        return kulready::kUnusable;
    kulfileview_create(frame.chain(), BODY);
    const int nLoaded =
        kulfileview_config(frame.chain(), BODY, KUL_KEEP, KUL_KEEP, KUL_KEEP, frame.bodyX(),
                           frame.bodyY(), frame.bodyWidth() + 1, frame.bodyHeight(), NOBORDER,
                           szFileName, nullptr, nullptr, nullptr, nullptr);
    if (nLoaded != 0 || !szFileName)
        return kulready::kUnusable;
    kulfileview_setFollow(frame.chain(), BODY, bFollow);
    frame.onKey = viewKey;
    frame.mayEnd = mayEnd;
    return frame.run();
}

} // namespace

int kuldialog_view(const char* szTitle, const char* szFileName, int bFollow)
{
    return kulready::runReady(szTitle ? szTitle : szFileName, nullptr,
                              [=](Frame& frame) { return runView(frame, szFileName, bFollow); });
}
