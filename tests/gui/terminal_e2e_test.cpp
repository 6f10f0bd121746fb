// SPDX-License-Identifier: MIT
//
// A terminal that is left as it was found, whatever happens, and the keys of any line.
#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <iterator>
#include <string>
#include <sys/times.h>
#include <sys/wait.h>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include "terminal.hpp"

using namespace kultools;

namespace {

// Runs a script with a test program and its words as "$@".
Launch script(const std::string& text, const std::string& words, const std::string& term = "linux")
{
    return {.argv = {"sh", "-c", "set -- " KULGUI_TEST_PROGRAMS "/" + words + "; " + text},
            .columns = 40,
            .rows = 14,
            .term = term,
            // A sanitizer would take crashes for itself.
            .environment = {"ASAN_OPTIONS=detect_leaks=0:use_sigaltstack=0:handle_segv=0:handle_abort=0:"
                            "handle_sigbus=0:handle_sigill=0:handle_sigfpe=0:handle_sigtrap=0"}};
}

// What a program finds, and has to leave.
struct Line {
    termios modes{};
    int flags = -1;

    explicit Line(const Terminal& terminal) : flags(fcntl(terminal.tty(), F_GETFL))
    {
        EXPECT_EQ(tcgetattr(terminal.tty(), &modes), 0);
    }
    bool hasModesOf(const Line& other) const { return std::memcmp(&modes, &other.modes, sizeof modes) == 0; }
};

int exited(int status)
{
    return W_EXITCODE(status, 0);
}

// What is done to a program that waits for a key.
using Act = std::function<void(Terminal&)>;

const Act enter = [](Terminal& terminal) { terminal.press("\r"); };

Act send(int signal)
{
    return [=](Terminal& terminal) {
        ASSERT_TRUE(terminal.settle());
        terminal.kill(signal);
    };
}

// The line is full, and passes on what it holds at 38400 baud.
void endOnSlowLine(Terminal& terminal)
{
    constexpr char kNothing[256] = {};
    ASSERT_TRUE(terminal.settle());
    while (write(terminal.tty(), kNothing, sizeof kNothing) > 0) {
    }
    terminal.kill(SIGTERM);
    while (terminal.pump(kDeadline, 40))
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
}

// The second act finds the terminal as the first has.
Act twice(Act second)
{
    return [=](Terminal& terminal) {
        const Line inside(terminal);
        enter(terminal);
        ASSERT_TRUE(terminal.waitForText("count 1") && terminal.settle());
        EXPECT_TRUE(Line(terminal).hasModesOf(inside));
        EXPECT_LE(terminal.cell(11, 10).background, 0) << "a shadow is black";
        second(terminal);
    };
}

// A command that is run has the terminal as the shell has.
void command(Terminal& terminal)
{
    const Line inside(terminal);
    const int shadow = terminal.cell(11, 10).background;
    enter(terminal);
    ASSERT_TRUE(terminal.waitForText("outside") && terminal.settle());
    EXPECT_TRUE(Line(terminal).modes.c_lflag & ICANON);
    EXPECT_FALSE(Line(terminal).flags & O_NONBLOCK);
    EXPECT_TRUE(terminal.cursor().visible);
    enter(terminal);
    ASSERT_TRUE(terminal.waitForText("count 1") && terminal.settle());
    EXPECT_TRUE(Line(terminal).hasModesOf(inside));
    EXPECT_EQ(Line(terminal).flags, inside.flags);
    EXPECT_EQ(terminal.cell(0, 0).glyph, "D") << "the desktop";
    EXPECT_EQ(terminal.cell(11, 10).background, shadow) << "a shadow";
    terminal.kill(SIGTERM);
}

struct Way {
    std::string name;
    const char* words;
    Act act;
    int status;
    bool closed = false; // by kulgui_destroyAll, which leaves its own flags
    int flags = 0;       // that the line has before
    bool sized = true;   // or it reports 0 x 0
};

// Every signal that ends a process where the program does not say otherwise.
std::vector<Way> endings()
{
    std::vector<Way> ways;
    for (int signal = 1; signal <= SIGRTMAX; ++signal) {
        constexpr int kOthers[] = {SIGKILL, SIGSTOP, SIGTSTP, SIGTTIN, SIGTTOU, SIGCONT, SIGCHLD, SIGURG, SIGWINCH};
        const bool left = signal > SIGSYS && signal < SIGRTMAX; // of the others, one for all
        if (!left && std::ranges::find(kOthers, signal) == std::end(kOthers))
            ways.push_back({"signal " + std::to_string(signal), "count", send(signal), signal});
    }
    return ways;
}

class Ways : public testing::TestWithParam<const char*> {};

TEST_P(Ways, LeaveTheTerminalAsItWasFound)
{
    const bool ownScreen = GetParam() == std::string("xterm-256color"); // beside the shell's
    std::vector<Way> ways = {
        {"exit() in a callback", "exit", enter, exited(3)},
        {"return without closing", "return", enter, exited(4)},
        {"kulgui_destroyAll", "close", enter, exited(5), true},
        {"opened twice, and continued as it is closed", "continued again", twice(enter), exited(5), true},
        {"TERM", "count", send(SIGTERM), SIGTERM},
        {"TERM with a handler", "handler count", send(SIGTERM), exited(6)},
        {"TERM with a handler set later", "late", twice(send(SIGTERM)), exited(6)},
        {"TERM after closing", "raise", enter, SIGTERM, true},
        {"TERM after closing, with a handler", "handler raise", enter, exited(6), true},
        {"INT ignored", "ignore exit",
         [](Terminal& terminal) {
             send(SIGINT)(terminal);
             enter(terminal);
         },
         exited(3)},
        {"a bad address", "fault", enter, SIGSEGV},
        {"a stack that is full", "overflow", enter, SIGSEGV},
        {"abort()", "abort", enter, SIGABRT},
        {"children that end", "fork", twice(send(SIGINT)), SIGINT},
        {"a command", "run", command, SIGTERM},
        {"a line that does not block", "count", twice(send(SIGTERM)), SIGTERM, false, O_NONBLOCK},
        {"a slow line", "count", endOnSlowLine, SIGTERM},
        {"a line without a size", "close", enter, exited(5), true, 0, false},
    };
    if (ownScreen)
        ways.push_back({"kulgui_destroyAll with other colours", "paint", enter, exited(5), true});
    if (GetParam() == std::string("vt100"))
        std::ranges::move(endings(), std::back_inserter(ways));
    const std::string database = ownScreen ? "unset TERMINFO; " : "export TERMINFO=/x; ";
    for (const auto& way : ways) {
        SCOPED_TRACE(way.name);
        Launch launch = script(database + "ulimit -c 0; stty -ixon intr ^B; echo before; read go; exec \"$@\"",
                               std::string("ways ") + way.words, GetParam());
        launch.columns = way.sized ? launch.columns : 80;
        launch.rows = way.sized ? launch.rows : 24;
        launch.withoutSize = !way.sized;
        Terminal terminal(launch);
        ASSERT_TRUE(terminal.waitForText("before"));
        fcntl(terminal.tty(), F_SETFL, way.flags);
        const Line before(terminal);
        terminal.press("\r");
        ASSERT_TRUE(terminal.waitForText("count 0"));
        ASSERT_TRUE(terminal.settle());
        EXPECT_FALSE(terminal.cursor().visible && GetParam() != std::string("vt100"));
        const Cell line = terminal.cell(1, terminal.columns() - 1);
        EXPECT_EQ(line.glyph, "─") << "below the title, to the edge";
        EXPECT_TRUE(line.bold || GetParam() != std::string("vt100")) << "standing out as its description says";
        EXPECT_FALSE(Line(terminal).hasModesOf(before));

        way.act(terminal);
        const auto status = terminal.wait();
        ASSERT_TRUE(status);
        EXPECT_EQ(*status, way.status);
        const Line after(terminal);
        EXPECT_TRUE(after.hasModesOf(before));
        EXPECT_EQ(after.flags & (O_NONBLOCK | O_APPEND),
                  way.closed ? O_APPEND : before.flags & (O_NONBLOCK | O_APPEND));
        EXPECT_TRUE(terminal.cursor().visible);
        // What was there before, or nothing, and what the program wrote afterwards.
        EXPECT_EQ(terminal.row(0), ownScreen ? "before" : "");
        EXPECT_EQ(terminal.text().find("count"), std::string::npos);
        const std::string closed = std::string("closed, TERMINFO=") + (ownScreen ? "none" : "/x");
        EXPECT_EQ(terminal.text().find(closed) != std::string::npos, way.closed) << terminal.text();
        const char* palette = ownScreen ? "\033]104" : "\033]R";
        EXPECT_EQ(terminal.received().find(palette) != std::string::npos, way.words == std::string("paint"));
        EXPECT_TRUE(ownScreen || terminal.cursor().row == terminal.rows() - 1);
        Emulator again(terminal.columns(), terminal.rows(), GetParam());
        again.feed(terminal.received());
        EXPECT_EQ(again.takeAnswers(), "") << "it asks the terminal nothing";
        terminal.feed("x"); // in whatever look the program has left
        EXPECT_EQ(terminal.cell(terminal.cursor().row, terminal.cursor().column - 1), Cell{.glyph = "x"});
    }
}

INSTANTIATE_TEST_SUITE_P(Terminals, Ways, testing::Values("linux", "vt100", "xterm-256color"),
                         [](const testing::TestParamInfo<const char*>& term) {
                             return std::string(term.param, std::strcspn(term.param, "-"));
                         });

// A field of what the kernel says of a process, counted from 1.
std::string statusField(pid_t process, int number)
{
    std::ifstream file("/proc/" + std::to_string(process) + "/stat");
    std::string field;
    for (int i = 1; i <= number; ++i)
        file >> field;
    return field;
}

// The process group that has the terminal of a program's session.
pid_t foreground(const Terminal& terminal)
{
    return std::stoi(statusField(terminal.pid(), 8));
}

// An interactive shell puts its own modes back whenever a program stops.
TEST(Stopping, GivesTheShellItsTerminalAndComesBack)
{
    for (const char* term : {"linux", "vt100", "xterm-256color"}) {
        SCOPED_TRACE(term);
        Terminal terminal(
            script("set -m; modes=$(stty -g); echo before; read go; \"$@\"; "
                   "for i in 1 2 3; do stty $modes; echo stopped $i; read go </dev/tty; fg >/dev/null; done; "
                   "echo ended with $?",
                   "ways count", term));
        ASSERT_TRUE(terminal.waitForText("before"));
        const Line before(terminal);
        terminal.press("\r");
        ASSERT_TRUE(terminal.waitForText("count 0") && terminal.settle());
        const Line inside(terminal);
        ASSERT_NE(foreground(terminal), terminal.pid());
        for (const int round : {1, 2}) {
            const std::string screen = terminal.text();
            ::kill(-foreground(terminal), round == 1 ? SIGTSTP : SIGSTOP);
            ASSERT_TRUE(terminal.waitForText("stopped " + std::to_string(round)));
            ASSERT_TRUE(terminal.settle());
            EXPECT_TRUE(Line(terminal).hasModesOf(before));
            EXPECT_EQ(Line(terminal).flags, round == 1 ? before.flags : inside.flags);
            EXPECT_EQ(terminal.cursor().visible, round == 1 || term == std::string("vt100"));

            terminal.feed("\033[3;3Hdirt"); // what others have written meanwhile
            terminal.press("\r");
            EXPECT_TRUE(terminal.waitFor([&] { return terminal.text() == screen; })) << terminal.text();
            ASSERT_TRUE(terminal.settle());
            EXPECT_TRUE(Line(terminal).hasModesOf(inside));
            EXPECT_EQ(Line(terminal).flags, inside.flags);
            EXPECT_FALSE(terminal.cursor().visible && term != std::string("vt100"));
            terminal.press("\r");
            EXPECT_TRUE(terminal.waitForText("count " + std::to_string(round)));
        }
        // Ended while it is stopped it leaves the shell's screen alone.
        const pid_t program = foreground(terminal);
        ::kill(-program, SIGTSTP);
        ASSERT_TRUE(terminal.waitForText("stopped 3"));
        ::kill(-program, SIGTERM);
        terminal.press("\r");
        EXPECT_TRUE(terminal.waitForText("ended with 143"));
        EXPECT_NE(terminal.text().find("stopped 3"), std::string::npos);
        EXPECT_TRUE(Line(terminal).hasModesOf(before));
    }
}

TEST(Stopping, EndsInTheBackgroundAsTheSignalSays)
{
    Terminal terminal(script("set -m; \"$@\"; echo stopped; read go", "ways count"));
    ASSERT_TRUE(terminal.waitForText("count 0") && terminal.settle());
    const pid_t program = foreground(terminal);
    ::kill(program, SIGTSTP);
    ASSERT_TRUE(terminal.waitForText("stopped"));
    ::kill(program, SIGTERM);
    ::kill(program, SIGCONT);
    // It ends, and is not stopped for touching the terminal of somebody else.
    EXPECT_TRUE(terminal.waitFor([&] { return statusField(program, 3) == "Z"; }));
}

constexpr int kSoon = 3000; // a second, and patience with a busy machine

// Seconds of the processor that a program has had.
double processorSeconds(const Terminal& terminal)
{
    std::ifstream file("/proc/" + std::to_string(terminal.pid()) + "/schedstat");
    double nanoseconds = 0;
    file >> nanoseconds;
    return nanoseconds / 1e9;
}

TEST(Held, SleepsLosesNothingAndCanBeEnded)
{
    Terminal terminal(script("exec \"$@\"", "ways count"));
    ASSERT_TRUE(terminal.waitForText("count 0") && terminal.settle());
    const Line before(terminal);
    for (const char* text : {"count 1", "count 2"}) {
        ASSERT_EQ(tcflow(terminal.tty(), TCOOFF), 0);
        terminal.send("\r");
        constexpr int kHeld = 500;
        const double start = processorSeconds(terminal);
        EXPECT_FALSE(terminal.waitForText(text, kHeld));
        EXPECT_LT(processorSeconds(terminal) - start, 0.02 * kHeld / 1000 + 0.002) << "the key itself takes some";
        if (text == std::string("count 2"))
            break;
        ASSERT_EQ(tcflow(terminal.tty(), TCOON), 0);
        ASSERT_TRUE(terminal.waitForText(text) && terminal.settle());
        EXPECT_EQ(Line(terminal).flags, before.flags);
    }
    terminal.kill(SIGTERM);
    EXPECT_EQ(terminal.wait(kSoon), SIGTERM);
    EXPECT_TRUE(Line(terminal).modes.c_lflag & ICANON);
}

// And those that programs which have ended had.
double processorSeconds()
{
    tms used{};
    times(&used);
    return static_cast<double>(used.tms_cutime + used.tms_cstime) / static_cast<double>(sysconf(_SC_CLK_TCK));
}

TEST(HangUp, EndsTheProgramOrTheLoopOfItsDialogSoonAndQuietly)
{
    const double before = processorSeconds();
    {
        Terminal unaware(script("exec \"$@\"", "ways count"));
        Terminal ignoring(script("trap '' HUP; exec \"$@\"", "ways count"));
        for (Terminal* terminal : {&unaware, &ignoring}) {
            ASSERT_TRUE(terminal->waitForText("count 0") && terminal->settle());
            terminal->hangUp();
            EXPECT_EQ(terminal->wait(kSoon), terminal == &unaware ? SIGHUP : exited(10));
        }
        Terminal empty(script("exec \"$@\" </dev/null", "ways count"));
        Terminal busy(script("exec \"$@\" </dev/null", "ways round"));
        EXPECT_EQ(empty.wait(kSoon), exited(10));
        EXPECT_EQ(busy.wait(kSoon), exited(10)) << "also where every focus runs another dialog";
        EXPECT_NE(empty.received().find("count 0"), std::string::npos);
    }
    EXPECT_LT(processorSeconds() - before, 0.5) << "they wait without spinning";
}

TEST(Unusable, IsToldAndNothingElse)
{
    for (const char* text : {
#ifndef __SANITIZE_ADDRESS__ // which has an allocator of its own
             "\"$@\" starved; echo $?",
#endif
             "unset TERM; \"$@\"; echo $?",
             "TERM=nonsense; \"$@\"; echo $?",
             "TERM=dumb; \"$@\"; echo $?",
             "{ \"$@\"; echo $?; } | cat",
         }) {
        SCOPED_TRACE(text);
        Terminal terminal(script(text, "ways count"));
        const Line before(terminal);
        EXPECT_EQ(terminal.wait(), exited(0));
        EXPECT_EQ(terminal.received(), "11\r\n");
        EXPECT_TRUE(Line(terminal).hasModesOf(before));
        EXPECT_EQ(Line(terminal).flags, before.flags);
    }
}

TEST(Keys, ComeAsTheyAreTyped)
{
    const struct {
        const char *term, *words;
        std::string bytes;
        int count; // that the program reads
        int last;
    } rows[] = {
        {"linux", "keys", "\003", 1, 3}, // which ends, stops or shifts nothing here
        {"linux", "keys", "\023", 1, 19},
        {"linux", "keys", "\310", 1, -56},
        {"linux", "keys", "\033\033[17~", 1, 1005},
        {"linux", "keys", "\033P1$r0m\033\\", 1, 0},
        {"linux", "keys 2", "\033\t", 1, 1022}, // as its description has it; elsewhere Tab
        {"xterm-256color", "keys 2", "\033\t", 1, '\t'},
        {"vt100", "keys 2", "\033Ot", 1, 1004},
        {"xterm-256color", "keys 2", "ab\033[1;5A\033[?1;2c\033[24~\033", 5, 27},
        {"xterm-256color", "keys 2", std::string(3000, 'a') + 'b', 3001, 'b'},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.term + testing::PrintToString(row.bytes.substr(0, 20)));
        Terminal terminal(script("exec \"$@\"", row.words, row.term));
        ASSERT_TRUE(terminal.waitForText("ready") && terminal.settle());
        terminal.send(row.bytes);
        const std::string wanted = std::to_string(row.count) + ": " + std::to_string(row.last) + '.';
        EXPECT_TRUE(terminal.waitFor([&] { return terminal.row(0) == wanted; }) && terminal.settle());
        EXPECT_EQ(terminal.row(0), wanted) << "and nothing is left";
    }
}

} // namespace
