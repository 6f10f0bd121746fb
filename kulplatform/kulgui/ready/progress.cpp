// SPDX-License-Identifier: MIT
//
// Long work of the program's: a text and a bar, which stay on the screen between the calls.
#include <algorithm>
#include <cstdio>
#include <new>

#include "frame.hpp"

namespace {

using kulready::Frame;
using kulready::ITEM;

enum { BAR = ITEM, PERCENT };

constexpr int kPercentColumns = 6;
constexpr int kColumns = 40;

struct Progress {
    kulready::Stage stage;
    Frame frame;
    kulready::Text text; // the frame refers to it

    explicit Progress(const char* szTitle, const char* szText) : frame(szTitle, szText) {}
};

Progress* running = nullptr;

bool open(Frame& frame)
{
    frame.want(1, 1, kColumns);
    frame.wantText(1);
    if (!frame.open())
        return false;
    const int nLength = std::max(frame.bodyWidth() - kPercentColumns, 1);
    kulprogbar_create(frame.chain(), BAR);
    kulprogbar_config(frame.chain(), BAR, WHITE_BLUE, BLACK_CYAN, frame.bodyX(), frame.bodyY(),
                      nLength, -1, 100, LATERAL);
    kullabel_create(frame.chain(), PERCENT);
    return true;
}

void setPercent(const Frame& frame, int nPercent)
{
    char szPercent[16];
    std::snprintf(szPercent, sizeof szPercent, "%3d %% ", nPercent);
    kullabel_config(frame.chain(), PERCENT, KUL_KEEP, KUL_KEEP,
                    frame.bodyX() + frame.bodyWidth() - kPercentColumns + 1, frame.bodyY(),
                    kPercentColumns, 1, RIGHT, NOBORDER, szPercent);
    // A bar shows its first cell at 0 already, which nothing done should not.
    kulprogbar_setPosition(frame.chain(), BAR, nPercent > 0 ? nPercent - 1 : -100);
}

} // namespace

int kuldialog_progress(const char* szTitle, const char* szText)
{
    kuldialog_done();
    void* memory = std::malloc(sizeof(Progress));
    if (!memory)
        return kulready::kUnusable;
    running = new (memory) Progress(szTitle, szText);
    if (!running->stage.isUsable() || !open(running->frame)) {
        kuldialog_done();
        return kulready::kUnusable;
    }
    return kuldialog_advance(0, nullptr);
}

int kuldialog_advance(int nPercent, const char* szText)
{
    if (!running)
        return kulready::kCancelled;
    if (szText) {
        kulready::Text text;
        if (!text.add(szText))
            return kulready::kUnusable;
        running->text.swap(text);
        running->frame.setText(running->text.text(), false);
    }
    setPercent(running->frame, std::clamp(nPercent, 0, 100));
    running->frame.show();
    return 0;
}

int kuldialog_done()
{
    if (!running)
        return kulready::kCancelled;
    Progress* over = running;
    running = nullptr;
    over->~Progress();
    std::free(over);
    return 0;
}
