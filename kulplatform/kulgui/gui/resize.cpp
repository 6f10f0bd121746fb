// SPDX-License-Identifier: MIT
//
// Windows tell of their size by a signal; a serial line tells nothing, and is asked once a second.
//
// Curses cuts every window that is larger than a smaller screen. A dialog keeps its window and what
// is in it, so a copy of that waits in a pad, which curses does not touch.
#include "resize.hpp"

#include <algorithm>
#include <cstdlib>
#include <ctime>
#include <utility>

#include <sys/ioctl.h>
#include <unistd.h>

#include "../clamp.hpp"
#include "../kulgui.h"
#include "chain.hpp"
#include "frame.hpp"
#include "line.hpp"
#include "place.hpp"
#include "screen.hpp"
#include "signals.hpp"

namespace kul {

namespace {

constexpr int kMost = 0x7fff; // curses counts rows and columns so far

Size fitted{};
time_t lastLook = 0;

int positive(const char* szName)
{
    const char* szValue = std::getenv(szName);
    return szValue ? static_cast<int>(kul::clamp(std::strtol(szValue, nullptr, 10), 0L, 65535L))
                   : 0;
}

int chosen(int nEnvironment, int nTerminal, int nDefault)
{
    const int nSize = nEnvironment > 0 ? nEnvironment : nTerminal;
    return std::min(nSize > 0 ? nSize : nDefault, kMost);
}

template <typename Work>
void forEachDialog(Work work)
{
    for (CHAIN* chain = GetPrimaryChain(); chain; chain = nextChain(chain)) {
        if (chain->Pointer)
            work(*chain, static_cast<Dialog&>(*chain->Pointer));
    }
}

void copyAll(WINDOW* from, WINDOW* to)
{
    const int nLast = std::min(getmaxy(from), getmaxy(to)) - 1;
    copywin(from, to, 0, 0, 0, 0, nLast, std::min(getmaxx(from), getmaxx(to)) - 1, FALSE);
}

void keep(CHAIN&, Dialog& dialog)
{
    WINDOW* win = dialog.winMain != stdscr ? dialog.winMain : nullptr;
    dialog.kept = win ? newpad(getmaxy(win), getmaxx(win)) : nullptr;
    if (dialog.kept)
        copyAll(win, dialog.kept);
}

// A dialog of which there is no copy is drawn again.
void bringBack(CHAIN& chain, Dialog& dialog)
{
    layOut(dialog);
    WINDOW* kept = std::exchange(dialog.kept, nullptr);
    if (kept) {
        copyAll(kept, dialog.winMain);
        delwin(kept);
    } else if (dialog.winMain && dialog.nVisible == T) {
        redraw(&chain);
    }
    dialog.resized = true;
}

Dialog* nextResized()
{
    Dialog* next = nullptr;
    forEachDialog([&](CHAIN&, Dialog& dialog) {
        if (!next && std::exchange(dialog.resized, false) && dialog.onResize)
            next = &dialog;
    });
    return next;
}

} // namespace

Size terminalSize()
{
    winsize size{};
    ioctl(STDOUT_FILENO, TIOCGWINSZ, &size);
    return {chosen(positive("LINES"), size.ws_row, 24),
            chosen(positive("COLUMNS"), size.ws_col, 80)};
}

bool hasMemoryFor(Size size)
{
    constexpr std::size_t kCell = 32; // as curses has it, at most
    constexpr std::size_t kScreens = 4;
    const auto nCells =
        static_cast<std::size_t>(size.nLines) * static_cast<std::size_t>(size.nColumns);
    void* volatile memory = std::malloc(256UL * 1024 + nCells * kCell * kScreens);
    std::free(memory);
    return memory;
}

void startSize()
{
    fitted = terminalSize();
    resize_term(fitted.nLines, fitted.nColumns);
}

bool fitScreen()
{
    const Size size = terminalSize();
    lastLook = std::time(nullptr);
    if (size == fitted || !hasMemoryFor(size))
        return false;
    const Pass pass;
    forEachDialog(keep);
    fitted = size;
    resize_term(size.nLines, size.nColumns);
    prepareBytes();
    forEachDialog(bringBack);
    paintAnew();
    return true;
}

void runOnResize()
{
    const CURRENT selection = *GetCurrentSelection();
    while (const Dialog* dialog = nextResized()) {
        dialog->onResize();
        SetCurrentSelection(&selection);
    }
}

bool isSizeDue()
{
    return takeSizeSignal() || resumed() || std::time(nullptr) != lastLook;
}

} // namespace kul

int kulgui_setOnResize(int nChain, KULCALLBACK onResize)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog)
        return -1;
    dialog->onResize = onResize;
    return 0;
}
