// SPDX-License-Identifier: MIT
//
// Random pictures on two terminals, updated on one by the library and on the other by doupdate():
// every cell has to be the same after every step. KULGUI_STEPS says how many, for a long run.
//
// Curses itself goes wrong where half of a wide letter is drawn over or covered, and now and then
// when it updates rows with such letters. So they have every other row for themselves, and are
// compared with a screen that is painted anew.
#include <gtest/gtest.h>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "emulator.hpp"
#include "gui/description.hpp"
#include "gui/line.hpp"
#include "gui/update.hpp"
#include "kulgui.h"

namespace {

constexpr int kColumns = 80;
constexpr int kRows = 24;
constexpr int kPanels = 3;
constexpr int kPairs = 56;
constexpr int kMorePairs = 4; // of colours beyond the first eight

int steps()
{
    const char* szSteps = std::getenv("KULGUI_STEPS");
    return szSteps ? std::atoi(szSteps) : 100;
}

// A screen of curses whose bytes go to an emulator.
class Side {
public:
    Side(const std::string& term, bool ours)
        : emulator(kColumns, kRows, term), file_(memfd_create("terminal", MFD_CLOEXEC))
    {
        std::FILE* output = fdopen(file_, "w");
        std::FILE* input = std::fopen("/dev/null", "r");
        screen_ = ours ? kul::openScreen(term.c_str(), output, input) : newterm(term.c_str(), output, input);
        typeahead(-1); // else curses stops half way: the input is never empty
        start_color();
        InitializeColorSets();
        for (int i = 0; COLORS >= 256 && i < kMorePairs; ++i)
            init_pair(static_cast<short>(kPairs + i), static_cast<short>(8 + 60 * i), static_cast<short>(250 - i));
        for (PANEL*& panel : panels)
            panel = new_panel(newwin(8, 30, 0, 0));
    }

    ~Side()
    {
        enter();
        for (PANEL* panel : panels)
            del_panel(panel);
    }
    Side(const Side&) = delete;
    Side& operator=(const Side&) = delete;

    void enter() const { set_term(screen_); }

    // What was written goes to the emulator.
    void show()
    {
        std::string bytes(static_cast<std::size_t>(lseek(file_, 0, SEEK_CUR)), '\0');
        EXPECT_EQ(pread(file_, bytes.data(), bytes.size(), 0), static_cast<ssize_t>(bytes.size()));
        lseek(file_, 0, SEEK_SET);
        emulator.mark();
        emulator.feed(bytes);
    }

    kultools::Emulator emulator;
    PANEL* panels[kPanels];

private:
    int file_;
    SCREEN* screen_;
};

// One step of a picture that goes on and on, the same for the same numbers.
class Artist {
public:
    Artist(unsigned nSeed, Side& side, bool wide, int nMargin)
        : numbers_(nSeed), side_(side), wide_(wide), nMargin_(nMargin)
    {
    }

    void draw()
    {
        const int nThings = below(6) + 1;
        PANEL* top = below(3) == 0 && !wide_ ? panel_below(nullptr) : nullptr; // alone
        for (int i = 0; i < nThings; ++i)
            drawOne(top);
        if (below(40) == 0)
            clearok(curscr, TRUE);
        kul::compose();
    }

    int below(int n) { return static_cast<int>(numbers_() % static_cast<unsigned>(n)); }

private:
    void drawOne(PANEL* top)
    {
        PANEL* panel = top ? top : side_.panels[below(kPanels)];
        WINDOW* win = top || (below(3) && !wide_) ? panel_window(panel) : stdscr;
        const int nWidth = getmaxx(win) - (win == stdscr ? nMargin_ : 0);
        const int y = below(getmaxy(win)) | (wide_ ? 1 : 0);
        const int x = below(nWidth);
        const int n = below(nWidth - x) + 1;
        wattrset(win, static_cast<int>(attributes()));
        switch (below(14)) {
        case 0:
            mvwhline(win, y, x, ACS_HLINE, n);
            break;
        case 1:
            mvwvline(win, y, x, ACS_VLINE, wide_ ? 1 : below(8) + 1);
            break;
        case 2:
            if (win != stdscr)
                box(win, 0, 0);
            break;
        case 3:
            for (int row = y; row < y + (wide_ ? 1 : 5); ++row)
                mvwhline(win, row, x, ' ', n);
            break;
        case 4:
            wmove(win, y, x);
            wclrtoeol(win);
            break;
        case 5:
            if (nMargin_ > 0)
                break;
            scrollok(win, TRUE);
            wscrl(win, (below(3) - 1) * (wide_ ? 2 : 1));
            scrollok(win, FALSE);
            break;
        case 6:
            move_panel(panel, below(kRows - 8), below(kColumns - 30 - nMargin_));
            break;
        case 7:
            below(3) && !wide_ ? show_panel(panel) : hide_panel(panel);
            break;
        case 8:
            if (!wide_)
                break;
            wmove(win, y - 1, 0);
            wclrtoeol(win);
            mvwaddstr(win, y - 1, x / 2, "\u6f22\u5b57  \u0301e\u0301 \u30c6");
            mvwaddstr(win, y - 1, x / 2 + 20, "\u30c6a\u6f22");
            break;
        case 9:
            mvwaddch(win, y, x, ACS_CKBOARD);
            break;
        case 10:
            if (below(30) == 0)
                werase(win);
            break;
        default:
            for (int i = 0; i < n; ++i)
                mvwaddch(win, y, x + i, static_cast<chtype>(below(4) ? 'a' + below(26) : ' ') | attributesOf(win));
        }
    }

    static chtype attributesOf(WINDOW* win) { return static_cast<chtype>(getattrs(win)); }

    chtype attributes()
    {
        constexpr chtype kSome[] = {A_REVERSE, A_BOLD,   A_UNDERLINE,        A_STANDOUT,
                                    A_BLINK,   A_ITALIC, A_REVERSE | A_BOLD, A_DIM};
        // Curses alone knows what this is; with wide letters in a row it errs by itself, too.
        if (below(100) == 0 && !wide_)
            return A_HORIZONTAL | A_BOLD;
        const int nPairs = COLORS >= 256 ? kPairs + kMorePairs : kPairs;
        const chtype pair = static_cast<chtype>(COLOR_PAIR(below(nPairs)));
        return below(3) ? pair : pair | kSome[below(8)];
    }

    std::mt19937 numbers_;
    Side& side_;
    bool wide_;
    int nMargin_; // columns that are left alone
};

struct Case {
    const char* szTerm;
    const char* szLocale;
    bool wide = false;
    int nMargin = 0;
};

void PrintTo(const Case& row, std::ostream* out)
{
    *out << row.szTerm << ' ' << row.szLocale << (row.wide ? " wide" : "");
}

class Update : public ::testing::TestWithParam<Case> {};

void expectSame(const kultools::Emulator& ours, const kultools::Emulator& theirs)
{
    for (int y = 0; y < kRows; ++y) {
        for (int x = 0; x < kColumns; ++x) {
            const kultools::Cell one = seen(ours.cell(y, x));
            const kultools::Cell other = seen(theirs.cell(y, x));
            if (one.glyph.empty() && other.glyph.empty())
                continue; // the emulator does not colour the second half of a wide letter
            ASSERT_EQ(one, other) << y << ' ' << x << " '" << one.glyph << "' '" << other.glyph << "' colours "
                                  << one.foreground << ' ' << one.background << " and " << other.foreground << ' '
                                  << other.background << '\n'
                                  << ours.text() << theirs.text();
        }
    }
}

TEST_P(Update, ShowsWhatCursesShows)
{
    const auto& [szTerm, szLocale, wide, nMargin] = GetParam();
    ASSERT_NE(std::setlocale(LC_ALL, szLocale), nullptr);
    setenv("TERM", szTerm, 1);
    Side ours(szTerm, true);
    Side theirs(szTerm, false);
    std::mt19937 hints; // right or wrong
    std::size_t nOurs = 0;
    std::size_t nTheirs = 0;
    for (int step = 0; step < steps(); ++step) {
        SCOPED_TRACE(step);
        const bool foreign = step % 100 == 99 && !wide; // as by a program that updates by itself
        ours.enter();
        Artist(static_cast<unsigned>(step), ours, wide, nMargin).draw();
        const int nTop = static_cast<int>(hints() % 4) * 3;
        kul::expectScroll(nTop, kRows - 1 - static_cast<int>(hints() % 2), static_cast<int>(hints() % 5) - 2);
        if (foreign)
            doupdate();
        else
            kul::updateTerminal(kul::kNowhere, step % 100 == 98);
        ours.show();
        theirs.enter();
        Artist(static_cast<unsigned>(step), theirs, wide, nMargin).draw();
        if (wide)
            clearok(curscr, TRUE);
        doupdate();
        theirs.show();
        nOurs += ours.emulator.received().size();
        nTheirs += theirs.emulator.received().size();
        ASSERT_NO_FATAL_FAILURE(expectSame(ours.emulator, theirs.emulator));
    }
    EXPECT_LT(nOurs, nTheirs);
    RecordProperty("bytes", static_cast<int>(nOurs));
    RecordProperty("bytesByCurses", static_cast<int>(nTheirs));
    std::setlocale(LC_ALL, "C");
}

// A screen of one colour is there by clearing alone, and known to be there.
TEST(Updates, KnowWhatClearingLeaves)
{
    Side side("linux", true);
    for (const int look : {COLOR_PAIR(50), 0}) {
        wattrset(stdscr, look);
        for (int y = 0; y < kRows; ++y)
            mvwhline(stdscr, y, 0, ' ', kColumns);
        update_panels();
        kul::updateTerminal(kul::kNowhere, false);
        side.show();
        EXPECT_EQ(side.emulator.cell(3, 40).background == COLOR_BLACK, look == 0);
        curs_set(1); // curses has kept nothing back
    }
}

// Whole rows that move with their pictures: the rows that come in are drawn, and now and then others.
TEST(Updates, ScrollWhatWasComposed)
{
    for (const char* szTerm : {"linux", "xterm-256color", "vt100"}) {
        SCOPED_TRACE(szTerm);
        Side side(szTerm, true);
        for (PANEL* panel : side.panels)
            hide_panel(panel);
        std::mt19937 numbers;
        const auto below = [&](int n) { return static_cast<int>(numbers() % static_cast<unsigned>(n)); };
        const auto draw = [&](int y) { mvwprintw(stdscr, y, 0, "%d %70d", below(1000000), below(1000000)); };
        for (int y = 0; y < kRows; ++y)
            draw(y);
        int nScrolled = 0;
        for (int step = 0; step < 300; ++step) {
            const int nTop = below(6);
            const int nBottom = kRows - 1 - below(6);
            const int nRows = below(2) ? 1 + below(3) : -1 - below(3);
            const bool scrolls = step > 0 && kul::scrollPictures(stdscr, nTop, nBottom, nRows);
            nScrolled += scrolls ? 1 : 0;
            for (int y = nTop; scrolls && y <= nBottom; ++y) {
                if (nRows > 0 ? y > nBottom - nRows : y < nTop - nRows)
                    draw(y);
            }
            for (int n = below(3); n > 0; --n)
                draw(below(kRows));
            if (below(20) == 0) // as by a key that comes before the update
                kul::expectScroll(below(4), kRows - 1, 1);
            if (below(20) == 0)
                clearok(curscr, TRUE);
            update_panels();
            wnoutrefresh(stdscr);
            if (below(30) == 0)
                mvwaddch(stdscr, below(kRows), 75, 'x' | A_HORIZONTAL); // for curses alone
            wnoutrefresh(stdscr);
            kul::updateTerminal(kul::kNowhere, below(2) != 0);
            side.show();
            for (int y = 0; y < kRows; ++y) {
                char row[kColumns + 1] = "";
                mvwinnstr(stdscr, y, 0, row, kColumns - 1);
                ASSERT_EQ(side.emulator.row(y, kultools::Blanks::Keep).substr(0, kColumns - 1), row)
                    << step << ' ' << y;
            }
        }
        EXPECT_GT(nScrolled, 200);
    }
}

// Of a wide letter that comes to lie under a window's edge a half is left, outside of the window.
TEST(Updates, BlankHalvesBesideAWindow)
{
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    Side side("linux", true);
    for (PANEL* panel : side.panels)
        hide_panel(panel);
    for (int y = 0; y < kRows; ++y)
        mvaddstr(y, 0,
                 "\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22\u6f22"
                 "\u6f22\u6f22");
    kul::compose();
    kul::updateTerminal(kul::kNowhere, false);
    for (const int nX : {3, 2}) {
        move_panel(side.panels[0], 2, nX);
        show_panel(side.panels[0]);
        kul::compose();
        kul::updateTerminal(kul::kNowhere, false);
        side.show();
        EXPECT_EQ(side.emulator.cell(4, 2).glyph, " ");
        EXPECT_EQ(side.emulator.cell(4, 33).glyph, nX == 3 ? " " : "");
        hide_panel(side.panels[0]);
    }
    std::setlocale(LC_ALL, "C");
}

// A blank may have any foreground, but the Linux console gives it to a cursor that comes there.
TEST(Updates, LeaveBlanksOnWhichACursorIsSeen)
{
    Side side("linux", true);
    mvwaddch(stdscr, 20, 0, 'x' | static_cast<chtype>(COLOR_PAIR(BLUE_WHITE)));
    mvwaddch(stdscr, 20, 1, ' ' | static_cast<chtype>(COLOR_PAIR(WHITE_BLUE)));
    update_panels();
    kul::updateTerminal(kul::kNowhere, false);
    side.show();
    EXPECT_EQ(side.emulator.cell(20, 1).background, COLOR_BLUE);
    EXPECT_NE(side.emulator.cell(20, 1).foreground, COLOR_BLUE);
}

INSTANTIATE_TEST_SUITE_P(Terminals, Update,
                         ::testing::Values(Case{"linux", "C"}, Case{"linux", "C.UTF-8"}, Case{"linux", "C.UTF-8", true},
                                           Case{"xterm", "C"}, Case{"xterm-256color", "C.UTF-8"},
                                           Case{"xterm-256color", "C.UTF-8", true}, Case{"vt100", "C"},
                                           Case{"vt220", "C.UTF-8", true}, Case{"screen", "C"}, Case{"tmux", "C.UTF-8"},
                                           Case{"tmux", "C.UTF-8", true}, Case{"rxvt", "C"},
                                           // Behind its last column the emulator is another terminal.
                                           Case{"ansi", "C", false, 1}, Case{"putty", "C"}, Case{"putty", "C.UTF-8"}));

} // namespace
