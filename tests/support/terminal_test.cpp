// The tests trust their terminal; here it has to earn that, with the shell as the program.
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <initializer_list>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <termios.h>

#include "picture.hpp"
#include "terminal.hpp"

using namespace kultools;

namespace {

Launch shell(const std::string& script, const std::string& term = "xterm-256color")
{
    return {.argv = {"sh", "-c", script}, .columns = 20, .rows = 4, .term = term};
}

// The first row of the screen after the script.
std::string shown(Launch launch)
{
    Terminal terminal(launch);
    EXPECT_EQ(terminal.wait(), 0);
    return terminal.row(0);
}

TEST(Emulator, DrawsTheLinesOfEachTerminal)
{
    struct Row {
        const char* term;
        const char* script;
        const char* screen;
    };
    const std::string letters = "tput enacs; tput smacs; printf lqkx; tput rmacs; printf 0lq";
    const std::string bytes =
        "tput smacs; printf '\\332\\304\\277\\263\\031'; tput rmacs; printf lq";
    for (const Row& row : std::initializer_list<Row>{
             {"vt100", letters.c_str(), "┌─┐│0lq"},
             {"xterm-256color", letters.c_str(), "┌─┐│0lq"},
             {"linux", letters.c_str(), "┌─┐│0lq"},
             {"ansi", bytes.c_str(), "┌─┐│↓lq"},
             {"linux", "printf '\\033[11m\\332\\304\\033[31;10m+0'", "┌─+0"},
             {"linux", "tput enacs; tput smacs; printf '+,-.0h\\033[30mq'", "→←↑↓█░─"},
             {"vt100", "tput enacs; tput smacs; printf '+,-.0'", "+,-.0"},
             {"linux", "printf '\\342\\224\\214\\342\\224\\200'", "┌─"},
             {"xterm-256color", "printf '\\342\\224\\214-\\033[5b|'", "┌------|"},
         })
        for (const char* locale : {"C", "C.UTF-8"}) {
            SCOPED_TRACE(std::string(row.term) + ' ' + locale + ' ' + row.script);
            Launch launch = shell(row.script, row.term);
            launch.environment = {std::string("LC_ALL=") + locale};
            EXPECT_EQ(shown(launch), row.screen);
        }
}

TEST(Emulator, TellsColoursAndAttributes)
{
    Emulator screen(20, 2, "xterm-256color");
    screen.feed("\033[1;31;44mA\033[0;38;5;208;7;4mB\033[0;93;5mC\033[0mD\033[?25l");
    EXPECT_EQ(screen.cell(0, 0),
              (Cell{.glyph = "A", .foreground = 1, .background = 4, .bold = true}));
    EXPECT_EQ(screen.cell(0, 1),
              (Cell{.glyph = "B", .foreground = 208, .underline = true, .reverse = true}));
    EXPECT_EQ(screen.cell(0, 2), (Cell{.glyph = "C", .foreground = 11, .blink = true}));
    EXPECT_EQ(screen.cell(0, 3), Cell{.glyph = "D"});
    EXPECT_EQ(screen.cell(0, 20), Cell{});
    EXPECT_EQ(screen.row(0, Blanks::Keep), "ABCD                ");
    EXPECT_EQ(screen.cursor().column, 4);
    EXPECT_FALSE(screen.cursor().visible);
}

TEST(Emulator, CountsWhatIsPainted)
{
    Emulator screen(20, 2, "xterm-256color");
    EXPECT_EQ(screen.paintedMost(), 0);
    screen.feed("abc");
    screen.mark();
    screen.feed("\rab"); // the same glyphs in the same look are painted all the same
    EXPECT_EQ(screen.received(), "\rab");
    EXPECT_EQ(screen.painted(0, 0), 1);
    EXPECT_EQ(screen.painted(0, 2), 0);
    EXPECT_EQ(screen.paintedMost(), 1);
    screen.feed("\r\033[K"); // and so is what is erased
    EXPECT_EQ(screen.painted(0, 1), 2);
    EXPECT_EQ(screen.painted(0, 19), 1);
    EXPECT_EQ(screen.painted(1, 0), 0);
}

TEST(Emulator, SurvivesAnySize)
{
    EXPECT_THROW(Emulator(0, 24, "linux"), std::invalid_argument);
    EXPECT_THROW(Emulator(80, 1001, "linux"), std::invalid_argument);
    Emulator dot(1, 1, "linux");
    dot.feed("abc\n\033[5;5Hx");
    EXPECT_EQ(dot.text(), "x\n");
}

TEST(Terminal, PassesKeysAndTellsHowTheProgramEnded)
{
    Terminal terminal(shell("read line; echo \"<$line>\"; exit 7"));
    EXPECT_EQ(terminal.wait(0), std::nullopt);
    terminal.press("ab");
    terminal.sendSlowly("cd\r", 1);
    EXPECT_TRUE(terminal.waitForText("<abcd>"));
    const auto status = terminal.wait();
    ASSERT_TRUE(status && WIFEXITED(*status));
    EXPECT_EQ(WEXITSTATUS(*status), 7);
    EXPECT_FALSE(terminal.running());
    EXPECT_FALSE(terminal.waitForText("never"));
}

TEST(Terminal, KillsAndHangsUp)
{
    Terminal killed(shell("echo ready; read line"));
    EXPECT_TRUE(killed.waitForText("ready"));
    killed.kill(SIGTERM);
    EXPECT_TRUE(killed.wait() && WIFSIGNALED(*killed.wait()));

    Terminal left(shell("trap 'exit 3' HUP; echo ready; while :; do read line; done"));
    EXPECT_TRUE(left.waitForText("ready"));
    left.hangUp();
    EXPECT_TRUE(left.wait() && WIFEXITED(*left.wait()) && WEXITSTATUS(*left.wait()) == 3);
    EXPECT_EQ(left.row(0), "ready");
    EXPECT_THROW(left.send("a"), std::system_error);
}

TEST(Terminal, SharesModesAndFlagsWithTheProgram)
{
    Terminal terminal(shell("stty -icanon; dd iflag=nonblock count=0 2>/dev/null"));
    EXPECT_EQ(fcntl(terminal.tty(), F_GETFL) & O_NONBLOCK, 0);
    EXPECT_EQ(terminal.wait(), 0);
    termios modes{};
    ASSERT_EQ(tcgetattr(terminal.tty(), &modes), 0);
    EXPECT_FALSE(modes.c_lflag & ICANON);
    EXPECT_TRUE(modes.c_lflag & ECHO);
    EXPECT_TRUE(fcntl(terminal.tty(), F_GETFL) & O_NONBLOCK);
}

TEST(Terminal, SetsUpTheProgram)
{
    Launch launch = shell("echo $(stty size) $TERM $LINES$COLUMNS $A", "linux");
    launch.environment = {"A=b=c", "HOME"};
    EXPECT_EQ(shown(launch), "4 20 linux b=c");
    launch.withoutSize = true;
    launch.argv = {"sh", "-c", "stty size; echo ${HOME-homeless}"};
    EXPECT_EQ(shown(launch), "0 0");
    try {
        Terminal terminal({.argv = {"/no/such/program"}});
        FAIL() << "it started";
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code().value(), ENOENT);
    }
}

TEST(Picture, ShowsTheSameScreen)
{
    Emulator screen(12, 3, "xterm-256color");
    screen.feed("\033[37;44m\033[2J┌──────────┐\r\n│\033[1;4;33m a < b & c\033[0;44m│\r\n\033[7m ▒ "
                "\033[0m ");
    Emulator copy(12, 3, "xterm-256color");
    std::string text = asAnsi(screen);
    for (size_t at = 0; (at = text.find('\n', at)) != text.npos; at += 2)
        text.replace(at, 1, "\r\n");
    text.resize(text.size() - 2); // or the screen would scroll
    copy.feed(text);
    for (Emulator* each : {&screen, &copy})
        each->feed("\033[?25l"); // the text says nothing about the cursor
    for (int y = 0; y < 3; ++y)
        for (int x = 0; x < 12; ++x)
            EXPECT_EQ(copy.cell(y, x), screen.cell(y, x)) << y << ' ' << x;

    const std::string picture = asSvg(screen);
    EXPECT_EQ(picture, asSvg(copy));
    EXPECT_NE(picture.find("> a &lt; b &amp; c</text>"), std::string::npos);
    EXPECT_NE(picture.find("width='108' height='36'"), std::string::npos) << "rows are merged";
}

} // namespace
