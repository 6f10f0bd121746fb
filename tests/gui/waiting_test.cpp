// SPDX-License-Identifier: MIT
//
// Waiting for everything at once: a keyboard that is a pipe, timers, and other pipes.
#include "gui/waiting.hpp"

#include <array>
#include <climits>
#include <string>
#include <string_view>
#include <unistd.h>

#include "gui/keys.hpp"
#include "support/window_test.hpp"

extern "C" int __real__ZN3kul8awaitKeyEv(); // the tests of dialogs have another one

namespace {

using namespace kultest;

// A pipe, its two ends until it goes.
struct Pipe {
    std::array<int, 2> ends{};

    Pipe() { EXPECT_EQ(pipe(ends.data()), 0); }
    ~Pipe()
    {
        close(ends[0]);
        close(ends[1]);
    }
    int reader() const { return ends[0]; }
    void put(std::string_view bytes) const
    {
        EXPECT_EQ(write(ends[1], bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }
};

Pipe* theSource;

void readSource()
{
    char byte;
    EXPECT_EQ(read(theSource->reader(), &byte, 1), 1);
    events += byte;
}

class WaitingTest : public WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        dup2(keyboard_.reader(), STDIN_FILENO);
        const CURRENT none{-1, 0, 0, 0, 0, 0};
        SetCurrentSelection(&none);
        EXPECT_EQ(waitShortly(), 0); // edition 1 begins a wait without keys
    }
    void TearDown() override
    {
        dup2(terminal_, STDIN_FILENO);
        close(terminal_);
        WindowTest::TearDown();
    }

    static int wait() { return __real__ZN3kul8awaitKeyEv(); }
    static int waitShortly()
    {
        kulgui_setTimer(0, [] {});
        return wait();
    }

    Pipe keyboard_;
    int terminal_ = dup(STDIN_FILENO);
};

TEST_F(WaitingTest, RunsTimersOnceWhenTheyAreDue)
{
    const int nLate = kulgui_setTimer(INT_MAX, [] { say("late"); });
    const int nNow = kulgui_setTimer(INT_MIN, [] {
        say("now");
        kulgui_setTimer(0, [] { say("again"); });
    });
    const int nNever = kulgui_setTimer(0, [] { say("never"); });
    EXPECT_TRUE(nLate > 0 && nNow > 0 && nNever > 0 && nLate != nNow && nNow != nNever);
    EXPECT_EQ(kulgui_stopTimer(nNever), 0);
    for (const int nNone : {nNever, 0, -1, INT_MAX})
        EXPECT_EQ(kulgui_stopTimer(nNone), -1);
    EXPECT_EQ(wait(), 0);
    EXPECT_EQ(events, "now ");
    EXPECT_EQ(wait(), 0);
    EXPECT_EQ(events, "now again ");
    kulgui_setTimer(1, [] { say("soon"); });
    while (events == "now again ")
        EXPECT_EQ(wait(), 0); // which a second that is over ends as well
    EXPECT_EQ(events, "now again soon ");
    EXPECT_EQ(kulgui_stopTimer(nLate), 0);

    EXPECT_EQ(kulgui_setTimer(0, nullptr), -1);
    std::vector<int> numbers;
    for (int nNumber; (nNumber = kulgui_setTimer(INT_MAX, [] {})) > 0;)
        numbers.push_back(nNumber);
    EXPECT_EQ(numbers.size(), 16U);
    for (const int nNumber : numbers)
        EXPECT_EQ(kulgui_stopTimer(nNumber), 0);
}

TEST_F(WaitingTest, RunsWhatWatchesADescriptor)
{
    Pipe source;
    Pipe other;
    theSource = &source;
    source.put("abc");
    other.put("x");
    EXPECT_EQ(kulgui_watch(source.reader(), [] { say("not this"); }), 0);
    EXPECT_EQ(kulgui_watch(source.reader(), readSource), 0);
    EXPECT_EQ(kulgui_watch(other.reader(), [] { say("-"); }), 0);
    for (const int nFd : {INT_MIN, -1, STDIN_FILENO})
        EXPECT_EQ(kulgui_watch(nFd, readSource), -1);
    EXPECT_EQ(wait(), 0);
    EXPECT_EQ(kulgui_watch(other.reader(), nullptr), 0);
    EXPECT_EQ(kulgui_watch(other.reader(), nullptr), -1);
    keyboard_.put("k");
    EXPECT_EQ(wait(), 'k') << "a descriptor that is always ready and keys take turns";
    EXPECT_EQ(wait(), 0);
    keyboard_.put("k");
    EXPECT_EQ(wait(), 'k');
    EXPECT_EQ(wait(), 0);
    EXPECT_EQ(events, "a- bc");
    close(source.ends[1]);
    kulgui_watch(source.reader(), [] { say(" end"); });
    wait();
    source.ends[1] = source.ends[0]; // what is closed is no longer watched
    close(source.ends[0]);
    waitShortly();
    EXPECT_EQ(kulgui_watch(source.reader(), nullptr), -1);
    EXPECT_EQ(events, "a- bc end ");
    source.ends = {dup(0), dup(0)};

    int nWatched = 0;
    for (int nFd = 1000; kulgui_watch(nFd, readSource) == 0; ++nFd)
        ++nWatched;
    EXPECT_EQ(nWatched, 32);
    for (int nFd = 1000; nWatched > 0; ++nFd, --nWatched)
        EXPECT_EQ(kulgui_watch(nFd, nullptr), 0);
}

TEST_F(WaitingTest, ShowsWhatTimersChangeInAnyDialog)
{
    for (int nChain : {1, 2, 3}) {
        makeDialog(nChain);
        kulgui_show(nChain);
        kullabel_create(nChain, 1);
    }
    kulgui_show(1); // above the others
    const CURRENT current{1, 1, BUTTON, 0, 0, 0};
    SetCurrentSelection(&current);
    kulgui_setTimer(0, [] {
        for (int nChain : {0, 1, 2, 3})
            kullabel_config(nChain, 1, KUL_KEEP, KUL_KEEP, 2, 2, 9, 1, LEFT, NOBORDER, "see");
        kulgui_hide(3);
    });
    EXPECT_EQ(wait(), 0);
    EXPECT_EQ(picture(window(2), 2, 2, 1, 3), Rows{"see"});
    EXPECT_EQ(panel_window(panel_below(nullptr)), window(1)) << "the order of dialogs is kept";
    EXPECT_EQ(GetChain(3)->Pointer->nVisible, F);
    EXPECT_EQ(GetChain(0)->Pointer->winMain, nullptr) << "what was never shown is not shown by this";
}

TEST_F(WaitingTest, KeepsOrForgetsWhatIsTypedAheadByEdition)
{
    keyboard_.put("a");
    EXPECT_EQ(wait(), 'a');
    keyboard_.put("bc");
    EXPECT_EQ(waitShortly() + waitShortly(), 0);

    kulgui_setEdition(2);
    keyboard_.put("a\033[A\033[1");
    EXPECT_EQ(wait(), 'a');
    EXPECT_EQ(kul::keyAtHand(), KS_UP);
    EXPECT_EQ(kul::keyAtHand(), 0);
    keyboard_.put(";5C\033[I\033");
    EXPECT_EQ(wait(), KS_RIGHT);
    EXPECT_EQ(wait(), KS_ESC);
    keyboard_.put("\033[200~\r\033[201~ab");
    EXPECT_EQ(Inkeys(), 0) << "the newline of a paste";
    EXPECT_EQ(Inkeys(), 'a');
    keyboard_.put("c");
    EXPECT_EQ(kulgui_dropKeys(), 0);
    EXPECT_EQ(Inkeys(), 0);
    keyboard_.put("d");
    advanceClock(1);
    EXPECT_EQ(wait(), 0) << "a pass that is due comes before a key";
    ExecPolling();
    EXPECT_EQ(wait(), 'd');
    kulgui_setEdition(1);
}

} // namespace
