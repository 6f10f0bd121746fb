// SPDX-License-Identifier: MIT
//
// The sleep between two keys. Nothing wakes up but for a reason: a key, a timer, a descriptor, a
// signal, or a second that is over.
#include "waiting.hpp"

#include <algorithm>
#include <cerrno>
#include <climits>
#include <ctime>

#include <poll.h>
#include <unistd.h>

#include "../clamp.hpp"
#include "edition.hpp"
#include "find.hpp"
#include "keys.hpp"
#include "polling.hpp"
#include "screen.hpp"
#include "signals.hpp"

namespace {

constexpr long long kSecond = 1000000000; // nanoseconds
constexpr long long kMillisecond = 1000000;
constexpr int kNoDescriptor = -1; // which poll() passes over

struct Timer {
    int nNumber; // 0: free
    long long due;
    KULCALLBACK onTime;
};
Timer timers[16];
int nLastNumber = 0;

struct Watch {
    int nFd;
    KULCALLBACK onReady; // null: free
};
Watch watches[32];

long long clockOf(clockid_t clock)
{
    timespec now{};
    clock_gettime(clock, &now);
    return now.tv_sec * kSecond + now.tv_nsec;
}

Timer* findTimer(int nNumber)
{
    Timer* found = kul::findFirst(std::begin(timers), std::end(timers),
                                  [=](const Timer& timer) { return timer.nNumber == nNumber; });
    return found == std::end(timers) ? nullptr : found;
}

// The timer that runs out first; null for none.
Timer* nextTimer()
{
    Timer* next = nullptr;
    for (Timer& timer : timers) {
        if (timer.nNumber != 0 && (!next || timer.due < next->due))
            next = &timer;
    }
    return next;
}

Watch* findWatch(int nFd)
{
    Watch* found = kul::findFirst(std::begin(watches), std::end(watches), [=](const Watch& watch) {
        return watch.onReady && watch.nFd == nFd;
    });
    return found == std::end(watches) ? nullptr : found;
}

// Runs the timers that have run out, those of the same time in any order. One that a callback sets
// is for the next wait. True when there were any.
bool runTimers()
{
    const long long now = clockOf(CLOCK_MONOTONIC);
    bool ran = false;
    for (Timer* timer = nextTimer(); timer && timer->due <= now; timer = nextTimer()) {
        timer->nNumber = 0;
        ran = true;
        ExecOnFunction(timer->onTime);
    }
    return ran;
}

// Runs the callbacks of descriptors that are ready. Another callback may have read one meanwhile,
// ended the watch, or closed it, so each is asked again; a closed one is watched no more. True when
// there were any.
bool runWatches(const pollfd* lines, nfds_t nLines)
{
    bool ran = false;
    for (nfds_t i = 0; i < nLines; ++i) {
        Watch* watch = lines[i].revents != 0 ? findWatch(lines[i].fd) : nullptr;
        pollfd line{lines[i].fd, POLLIN, 0};
        if (!watch || poll(&line, 1, 0) != 1)
            continue;
        if (line.revents & POLLNVAL) {
            watch->onReady = nullptr;
            continue;
        }
        ran = true;
        ExecOnFunction(watch->onReady);
    }
    return ran;
}

// Runs what has become due, and draws what is shown: any of it may have changed. False when nothing
// was due.
bool runDue(const pollfd* lines, nfds_t nLines)
{
    const Timer* timer = nextTimer();
    const auto hasCome = [](const pollfd& line) { return line.revents != 0; };
    if (kul::findFirst(lines, lines + nLines, hasCome) == lines + nLines &&
        !(timer && timer->due <= clockOf(CLOCK_MONOTONIC)))
        return false;
    const kul::Pass pass;
    const bool timed = runTimers();
    if (!runWatches(lines, nLines) && !timed)
        return false;
    kul::drawAllShown();
    return true;
}

// How many milliseconds there is nothing to do. The clock that counts seconds may go a few
// milliseconds after the one that is asked here.
int quietTime()
{
    if (kul::isPassDue())
        return 0;
    constexpr long long kBehind = 5 * kMillisecond;
    long long quiet = kSecond - clockOf(CLOCK_REALTIME) % kSecond + kBehind;
    if (const Timer* timer = nextTimer())
        quiet = kul::clamp(timer->due - clockOf(CLOCK_MONOTONIC), 0LL, quiet);
    return static_cast<int>((quiet + kMillisecond - 1) / kMillisecond);
}

} // namespace

// The beginning of a key comes before anything else, then timers and descriptors. In edition 1 a
// key comes before a pass, which throws away what is typed while its callbacks run; in edition 2
// keys wait, so that many of them keep nobody from polling.
int kul::awaitKey()
{
    if (keyIsOpen())
        return readKey(0);
    forgetTypedAhead();
    constexpr int kOwn = 2;
    pollfd lines[kOwn + std::size(watches)] = {{STDIN_FILENO, POLLIN, 0}, {kNoDescriptor, 0, 0}};
    nfds_t nLines = kOwn;
    for (const Watch& watch : watches) {
        if (watch.onReady)
            lines[nLines++] = {watch.nFd, POLLIN, 0};
    }
    setAlarm(&lines[1].fd);
    const int nReady = poll(lines, nLines, quietTime());
    setAlarm(nullptr);
    const bool typed = lines[0].revents != 0 || (nReady < 0 && errno != EINTR);
    static bool keysTurn = false; // what is always ready must not keep keys away
    keysTurn = !(typed && keysTurn) && runDue(lines + kOwn, nLines - kOwn);
    if (keysTurn || !typed || (isEdition2() && isPassDue()))
        return 0;
    return readKey(lines[0].revents != 0 ? kTyped : 0);
}

int kulgui_setTimer(int nMilliseconds, KULCALLBACK onTime)
{
    Timer* timer = onTime ? findTimer(0) : nullptr;
    if (!timer)
        return -1;
    do {
        nLastNumber = nLastNumber < INT_MAX ? nLastNumber + 1 : 1;
    } while (findTimer(nLastNumber));
    const long long wait = std::max(nMilliseconds, 0) * kMillisecond;
    *timer = {nLastNumber, clockOf(CLOCK_MONOTONIC) + wait, onTime};
    return nLastNumber;
}

int kulgui_stopTimer(int nTimer)
{
    Timer* timer = nTimer > 0 ? findTimer(nTimer) : nullptr;
    if (!timer)
        return -1;
    timer->nNumber = 0;
    return 0;
}

int kulgui_watch(int nFd, KULCALLBACK onReady)
{
    Watch* watch = findWatch(nFd);
    if (!watch && onReady && nFd > STDIN_FILENO)
        watch = kul::findFirst(std::begin(watches), std::end(watches),
                               [](const Watch& one) { return !one.onReady; });
    if (!watch || watch == std::end(watches))
        return -1;
    *watch = {nFd, onReady};
    return 0;
}
