// SPDX-License-Identifier: MIT
//
// A signal that ends the process ends it as before, with the same status and core dump, and one
// that stops it stops it; but the terminal is given back first, and taken again when the process
// is continued. A crash is such a signal too; its handler runs on a stack of its own, or it could
// not tell of a stack that overflowed.
#include "signals.hpp"

#include <cerrno>
#include <climits>
#include <cstddef>
#include <iterator>

#include <sys/mman.h>
#include <unistd.h>

#include "line.hpp"

namespace kul {

namespace {

constexpr std::size_t kSpareStack = 16384;

// Those that neither end nor stop a process by default, that cannot be caught, or that tell a
// process in the background to keep off the terminal.
constexpr int kLeftAlone[] = {SIGKILL, SIGSTOP, SIGCHLD, SIGURG, SIGTTIN, SIGTTOU};

volatile sig_atomic_t nResumed = 0;
volatile sig_atomic_t nAway = 0; // given back to be stopped
volatile sig_atomic_t nResized = 0;
volatile sig_atomic_t nNews = 0;          // since the last wait began
volatile int* volatile alarmed = nullptr; // by news
volatile pid_t owner = 0;
void* spareStack = MAP_FAILED; // in pages of its own: memory only once a handler has run

void onEnding(int nSignal);
void onStop(int nSignal);
void onContinue(int nSignal);
void onSize(int nSignal);

using Action = void (*)(int);

// What we do about a signal; null for none.
Action actionOf(int nSignal)
{
    for (const int nOther : kLeftAlone) {
        if (nSignal == nOther)
            return nullptr;
    }
    if (nSignal == SIGTSTP)
        return onStop;
    if (nSignal == SIGWINCH)
        return onSize;
    return nSignal == SIGCONT ? onContinue : onEnding;
}

// The set of the signals that stop and continue the process, or of all.
void fill(sigset_t& signals, bool all)
{
    if (all) {
        sigfillset(&signals);
        return;
    }
    sigemptyset(&signals);
    sigaddset(&signals, SIGTSTP);
    sigaddset(&signals, SIGCONT);
}

// Nothing comes between giving the terminal back and the end, and a stop and a continuation one
// after the other.
void setHandler(int nSignal, Action handler)
{
    struct sigaction action {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART | SA_ONSTACK;
    fill(action.sa_mask, handler == onEnding);
    sigaction(nSignal, &action, nullptr);
}

bool isHandledBy(int nSignal, Action handler)
{
    struct sigaction action {};
    return sigaction(nSignal, nullptr, &action) == 0 && !(action.sa_flags & SA_SIGINFO) &&
           action.sa_handler == handler;
}

// In the background the terminal belongs to somebody else; setting its modes would stop the
// process. Where it was given back already the shell has used it since.
void giveBack()
{
    const pid_t nGroup = isOwner() && !nAway ? tcgetpgrp(STDOUT_FILENO) : 0;
    if (nGroup == -1 || nGroup == getpgrp())
        leaveLine();
}

// Lets a signal come that is blocked while a handler runs.
void letCome(int nSignal)
{
    sigset_t signals;
    sigset_t before;
    sigemptyset(&signals);
    sigaddset(&signals, nSignal);
    sigprocmask(SIG_UNBLOCK, &signals, &before);
    sigprocmask(SIG_SETMASK, &before, nullptr);
}

// Ends the wait that is about to begin. Where one has, the signal does.
void tell(volatile sig_atomic_t& nFlag)
{
    nFlag = 1;
    nNews = 1;
    if (alarmed)
        *alarmed = INT_MAX;
}

// Gives the terminal back, and acts by default. The signal is raised first, and waits: where the
// process is continued before it has stopped, it does not stop any more.
void giveBackFor(int nSignal)
{
    raise(nSignal);
    giveBack();
    nAway = 1;
    setHandler(nSignal, SIG_DFL);
    letCome(nSignal);
}

void enter()
{
    nAway = 0;
    enterLine();
    tell(nResumed);
}

void onEnding(int nSignal)
{
    giveBackFor(nSignal);
}

void onStop(int nSignal)
{
    const int nError = errno;
    sigset_t waiting;
    if (sigpending(&waiting) == 0 && sigismember(&waiting, SIGCONT) == 1)
        return; // overtaken
    giveBackFor(nSignal);
    setHandler(nSignal, onStop);
    letCome(SIGCONT);
    // Where the program handles its continuation itself.
    if (nAway && isOwner())
        enter();
    errno = nError;
}

// Also after a stop that cannot be caught: the shell has put its own modes back meanwhile.
void onContinue(int)
{
    const int nError = errno;
    if (isOwner())
        enter();
    errno = nError;
}

void onSize(int)
{
    tell(nResized);
}

// What a signal has left, which can come at any moment: between the two lines it is taken as well.
bool take(volatile sig_atomic_t& nFlag)
{
    if (nFlag == 0)
        return false;
    nFlag = 0;
    return true;
}

} // namespace

void takeSignals()
{
    owner = getpid();
    nResumed = 0;
    nAway = 0;
    if (spareStack == MAP_FAILED)
        spareStack =
            mmap(nullptr, kSpareStack, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    stack_t before{};
    if (spareStack != MAP_FAILED && sigaltstack(nullptr, &before) == 0 &&
        before.ss_flags & SS_DISABLE) {
        stack_t own{};
        own.ss_sp = spareStack;
        own.ss_size = kSpareStack;
        sigaltstack(&own, nullptr);
    }
    for (int nSignal = 1; nSignal < NSIG; ++nSignal) {
        const Action action = actionOf(nSignal);
        if (action && isHandledBy(nSignal, SIG_DFL))
            setHandler(nSignal, action);
    }
}

// Not those for which the program has set a handler meanwhile.
void giveBackSignals()
{
    for (int nSignal = 1; nSignal < NSIG; ++nSignal) {
        const Action action = actionOf(nSignal);
        if (action && isHandledBy(nSignal, action))
            setHandler(nSignal, SIG_DFL);
    }
    stack_t now{};
    if (sigaltstack(nullptr, &now) == 0 && now.ss_sp == spareStack) {
        now.ss_flags = SS_DISABLE;
        sigaltstack(&now, nullptr);
    }
}

HandlersWait::HandlersWait(Which which)
{
    sigset_t signals;
    fill(signals, which == Which::All);
    sigprocmask(SIG_BLOCK, &signals, &before_);
}

HandlersWait::~HandlersWait()
{
    sigprocmask(SIG_SETMASK, &before_, nullptr);
}

bool isOwner()
{
    return owner == getpid();
}

bool resumed()
{
    return nResumed != 0;
}

bool takeResumed()
{
    return take(nResumed);
}

bool takeSizeSignal()
{
    return take(nResized);
}

void setAlarm(int* descriptor)
{
    alarmed = descriptor;
    if (descriptor && take(nNews))
        *descriptor = INT_MAX;
}

} // namespace kul
