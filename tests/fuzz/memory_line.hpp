// SPDX-License-Identifier: MIT
//
// A terminal made of memory, in place of a line and a clock: what is typed, what is ready and how the
// time passes is in the input, what is written is nothing, and nobody sleeps. When the input is over,
// all that runs is asked to end, and Escape is pressed.
#ifndef KUL_TESTS_FUZZ_MEMORY_LINE_HPP
#define KUL_TESTS_FUZZ_MEMORY_LINE_HPP

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <ctime>
#include <iterator>

#include <poll.h>
#include <sys/types.h>
#include <unistd.h>

#include "gui/description.hpp"
#include "input.hpp"
#include "kulgui.h"

namespace kulfuzz {

inline constexpr std::string_view kTyped[] = {"\t",      "\r",           "\x1b",
                                              " ",       "\x7f",         "\x1b[3~",
                                              "\x1b[H",  "\x1b[F",       "\x1b[D",
                                              "\x1b[C",  "\x1b[A",       "\x1b[B",
                                              "\x1b[5~", "\x1b[6~",      "\x1b[Z",
                                              "\x1b[OP", "\x1b[2~",      "a",
                                              "\x1bx",   "\x01",         "\x15",
                                              "0",       "\x1b[B",       "\t",
                                              "\r",      "\xe4\xb8\xad", "\x1b[200~ab\rc\x1b[201~",
                                              "-",       "\x03",         "\x1b[1;5C"};
inline std::string_view typed;            // and not yet read
inline long long nNow = 1000000000000000; // nanoseconds
inline bool isOtherReady = false;
inline std::string* written = nullptr; // takes what is written, if there is one
inline bool isMemoryOpen = false;
inline int nScript = -1; // a descriptor that has texts of the input to read

// What a user does next.
inline void takeTyped()
{
    static bool escapes = false;
    if (isOver()) {
        for (const CHAIN* chain = GetPrimaryChain(); chain;
             chain = chain->Next != GetPrimaryChain() ? chain->Next : nullptr)
            kulgui_leave(chain->nRef);
        typed = (escapes = !escapes) ? "\x1b" : "";
        isOtherReady = true;
        return;
    }
    const unsigned what = take();
    isOtherReady = what % 5 == 0;
    if (what < 210)
        typed = kTyped[what % std::size(kTyped)];
    else if (what < 230)
        typed = rest.substr(0, what % 8), rest.remove_prefix(typed.size());
}

// The beginning of an input; nothing is left of the one before.
inline void beginLine(const unsigned char* data, std::size_t size)
{
    begin(data, size);
    typed = {};
    isOtherReady = false;
    kulgui_dropKeys();
    const CURRENT none{};
    SetCurrentSelection(&none);
    const CONTROL clear{F, F, F, F};
    SetControls(&clear);
}

// Curses on a small terminal that shows nothing.
inline bool openMemory(const char* szLines, const char* szColumns)
{
    setenv("LINES", szLines, 1);
    setenv("COLUMNS", szColumns, 1);
    std::FILE* nothing = std::fopen("/dev/null", "r+");
    isMemoryOpen = std::freopen("/dev/null", "r", stdin) && std::freopen("/dev/null", "w", stdout) &&
                   std::setlocale(LC_CTYPE, "C.UTF-8") && kul::openScreen("xterm-256color", nothing, nothing);
    InitializeColorSets();
    return isMemoryOpen;
}

} // namespace kulfuzz

extern "C" {

// A wait for the rest of a key ends without it.
int __wrap_poll(pollfd* lines, nfds_t nLines, int nMilliseconds)
{
    constexpr int kBetweenBytes = 25;
    if (nMilliseconds > kBetweenBytes && kulfuzz::typed.empty())
        kulfuzz::takeTyped();
    const int nReady = static_cast<int>(std::count_if(lines, lines + nLines, [](pollfd& line) {
        const bool isReady = line.fd == STDIN_FILENO ? !kulfuzz::typed.empty() : kulfuzz::isOtherReady;
        line.revents = isReady ? line.events : short{0};
        return isReady;
    }));
    kulfuzz::nNow += std::max(nReady == 0 ? nMilliseconds : 0, 1) * 1000000LL;
    return nReady;
}

ssize_t __real_read(int nFrom, void* bytes, std::size_t nMost);
ssize_t __wrap_read(int nFrom, void* bytes, std::size_t nMost)
{
    if (nFrom > STDERR_FILENO && nFrom != kulfuzz::nScript)
        return __real_read(nFrom, bytes, nMost);
    const std::string text = nFrom == STDIN_FILENO ? std::string(kulfuzz::typed.substr(0, nMost))
                                                   : kulfuzz::takeText(std::min<std::size_t>(nMost, 120));
    std::copy(text.begin(), text.end(), static_cast<char*>(bytes));
    if (nFrom != STDIN_FILENO)
        return static_cast<ssize_t>(text.size());
    kulfuzz::typed.remove_prefix(text.size());
    errno = EAGAIN;
    return text.empty() ? -1 : static_cast<ssize_t>(text.size());
}

ssize_t __wrap_write(int, const void* bytes, std::size_t nBytes)
{
    if (kulfuzz::written)
        kulfuzz::written->append(static_cast<const char*>(bytes), nBytes);
    return static_cast<ssize_t>(nBytes);
}

std::time_t __wrap_time(std::time_t*)
{
    return kulfuzz::nNow / 1000000000;
}

int __wrap_clock_gettime(clockid_t, timespec* now)
{
    *now = {kulfuzz::nNow / 1000000000, kulfuzz::nNow % 1000000000};
    return 0;
}

unsigned __wrap_sleep(unsigned nSeconds)
{
    kulfuzz::nNow += nSeconds * 1000000000LL;
    return 0;
}

// A command that is started says nothing, and is over.
pid_t __wrap_fork()
{
    return 0x3fffffff;
}

int __wrap_kill(pid_t, int)
{
    return 0;
}

// A fuzzer that has not begun starts others.
int __real_system(const char* szCommand);
int __wrap_system(const char* szCommand)
{
    return kulfuzz::isMemoryOpen ? 0 : __real_system(szCommand);
}
}

#endif
