// SPDX-License-Identifier: MIT
#include "terminal.hpp"

#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

#include "buffer.hpp"
#include "colors.hpp"

namespace kuldialog {

int nScriptInput = STDIN_FILENO;

namespace {

int nScriptOutput = STDOUT_FILENO;
bool isOpen = false;

constexpr char kTerminal[] = "/dev/tty";
constexpr int kAboveScripts = 20; // descriptors that scripts use themselves are below

// Opens the terminal behind a descriptor anew, so that the flags of the script's stay as they are.
int openAgain(int nFd)
{
    char path[64];
    if (ttyname_r(nFd, path, sizeof path) != 0)
        return -1;
    return open(path, O_RDWR | O_NOCTTY | O_CLOEXEC);
}

// A descriptor of the terminal that stands behind the first of these that is one.
int openTerminal(int nFirst, int nSecond)
{
    if (isatty(nFirst)) {
        const int nOpened = openAgain(nFirst);
        return nOpened >= 0 ? nOpened : fcntl(nFirst, F_DUPFD_CLOEXEC, 0);
    }
    const int nControlling = open(kTerminal, O_RDWR | O_CLOEXEC);
    if (nControlling >= 0)
        return nControlling;
    return isatty(nSecond) ? openTerminal(nSecond, nSecond) : -1;
}

bool put(int nFd, int nPlace)
{
    if (nFd < 0 || dup2(nFd, nPlace) < 0)
        return false;
    if (nFd > STDERR_FILENO)
        close(nFd);
    return true;
}

} // namespace

void fillDescriptors()
{
    for (int nFd = STDIN_FILENO; nFd <= STDERR_FILENO; ++nFd) {
        if (fcntl(nFd, F_GETFD) < 0)
            open("/dev/null", O_RDONLY);
    }
}

bool takeTerminal()
{
    const int nOutput = openTerminal(STDOUT_FILENO, STDERR_FILENO);
    const int nInput = openTerminal(STDIN_FILENO, nOutput);
    nScriptInput = fcntl(STDIN_FILENO, F_DUPFD_CLOEXEC, kAboveScripts);
    nScriptOutput = fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, kAboveScripts);
    const bool reads = put(nInput, STDIN_FILENO);
    const bool writes = put(nOutput, STDOUT_FILENO);
    return reads && writes;
}

bool isScreenOpen()
{
    return isOpen;
}

bool openScreen()
{
    if (isOpen)
        return true;
    isOpen = NCursesEnv(1) == 0;
    if (!isOpen)
        return false;
    kulgui_create(kDesktopChain);
    kulgui_configPrime(kDesktopChain, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", nullptr, nullptr,
                       nullptr, nullptr, nullptr);
    if (ConfigGUIPrime() != 0) { // its window is the screen from now on
        closeScreen(nullptr);
        return false;
    }
    desktop()->nColorStandard = colors[kDesktop];
    return true;
}

GUI* desktop()
{
    const CHAIN* primary = GetPrimaryChain();
    return primary ? primary->Pointer : nullptr;
}

int screenWidth()
{
    return desktop() ? desktop()->nWidth : 0;
}

int screenHeight()
{
    return desktop() ? desktop()->nHeight : 0;
}

void closeScreen(const char* szStays, bool clear)
{
    if (!isOpen)
        return;
    isOpen = false;
    const bool stays = kulgui_keepScreen(clear ? F : T) == 0;
    kulgui_destroyAll();
    if (szStays && !stays) {
        Buffer text;
        text.add(szStays).add('\n').writeTo(STDOUT_FILENO);
    }
}

int answerDescriptor(const Settings& settings)
{
    const int nAsked = settings.numbers[kOutputFd];
    const int nFd = nAsked != kNone          ? nAsked
                    : settings.is(kToStdout) ? STDOUT_FILENO
                                             : STDERR_FILENO;
    if (nFd == STDIN_FILENO)
        return nScriptInput;
    if (nFd == STDOUT_FILENO)
        return nScriptOutput;
    return fcntl(nFd, F_GETFD) < 0 ? -1 : nFd;
}

} // namespace kuldialog
