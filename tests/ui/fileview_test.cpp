// SPDX-License-Identifier: MIT
#include <algorithm>
#include <climits>
#include <clocale>
#include <cstring>
#include <string>

#include "support/temporary_file.hpp"
#include "support/window_test.hpp"

namespace {

using namespace kultest;

const TemporaryFile* theFile;

void notePlace(const char* event)
{
    events += event + std::to_string(GetCurrentSelection()->nPosition) + ' ';
}

const Callbacks kNotes = {[] { notePlace("focus"); }, [] { notePlace("unfocus"); }, [] { notePlace("select"); },
                          [] { notePlace("click"); }};

std::string lines(int nFirst, int nLast)
{
    std::string text;
    for (int i = nFirst; i <= nLast; ++i)
        text += "line " + std::to_string(i) + '\n';
    return text;
}

class FileviewTest : public ComponentTest {
protected:
    void SetUp() override
    {
        ComponentTest::SetUp();
        theFile = &file_;
        addComponent(FILEVIEW, kRef, 2, 2, kNotes);
    }

    static int config(const char* szFileName, int nX = 2, int nY = 2, int nWidth = 16, int nHeight = 6,
                      int nBorder = NOBORDER, int nColor = KUL_KEEP)
    {
        const auto& [focus, unfocus, select, click] = kNotes;
        return kulfileview_config(1, kRef, nColor, nColor, KUL_KEEP, nX, nY, nWidth, nHeight, nBorder, szFileName,
                                  focus, unfocus, select, click);
    }

    int load(const std::string& text)
    {
        file_.write(text);
        return kulfileview_load(1, kRef, file_.path().c_str());
    }

    static KULFILEVIEW& view() { return record<KULFILEVIEW>(); }

    static Rows shown(int nHeight = 6, int nWidth = 16, int nY = 2, int nX = 2)
    {
        kulgui_show(1);
        return picture(window(1), nY, nX, nHeight, nWidth);
    }

    // The texts of the four rows in view, without the blanks behind.
    static Rows text()
    {
        Rows rows = shown(4, 14, 3, 3);
        for (std::string& row : rows)
            row.erase(row.find_last_not_of(' ') + 1);
        return rows;
    }

    // Lets a second pass while the viewer has the focus, after something was done.
    static void aSecondAfter(KULCALLBACK action)
    {
        press({-2, -3, 0}, {action, [] { advanceClock(1); }});
    }

    const TemporaryFile file_;
};

TEST_F(FileviewTest, DrawsTextFrameAndScrollBar)
{
    load("tab\tx\nwrapped at blanks\r\ncut_because_it_is_long");
    EXPECT_EQ(shown(), (Rows{"┌────────────── ", "│tab     x      ", "│wrapped at     ", "│blanks         ",
                             "│cut_because_it ", "└──────────────┴"}))
        << "the thumb is blank";
    press({KS_END});
    EXPECT_EQ(shown(), (Rows{"┌──────────────┬", "│wrapped at     ", "│blanks         ", "│cut_because_it ",
                             "│_is_long       ", "└────────────── "}));
    load("two\nlines");
    EXPECT_EQ(shown(), (Rows{"┌──────────────┐", "│two           │", "│lines         │", "│              │",
                             "│              │", "└──────────────┘"}));
    config(file_.path().c_str(), 2, 2, 6, 3);
    file_.write(lines(1, 9));
    press({KS_DOWN});
    EXPECT_EQ(shown(3, 6), (Rows{"1     ", "line │", "2    ┴"}));
}

TEST_F(FileviewTest, ShowsTheFocusInColour)
{
    load(lines(1, 20));
    press({'x'});
    EXPECT_EQ(shades(2, 1, 2, 18), (Rows{".uuuuuuuuuuuuuuuU.", ".uffffffffffffffu."}));
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(shades(3, 1, 1, 18), (Rows{".uuuuuuuuuuuuuuuu."}));
    kulfileview_hide(1, kRef);
    kulgui_show(1);
    EXPECT_EQ(shades(3, 1, 1, 18), (Rows{std::string(18, '.')}));
}

TEST_F(FileviewTest, MovesByKeys)
{
    load(lines(0, 19));
    const std::tuple<std::vector<int>, int, std::string> steps[] = {
        {{KS_UP}, 0, "focus0 unfocus0 "},
        {{KS_DOWN, KS_DOWN}, 2, "focus0 select4 select9 unfocus9 "},
        {{KS_PAGEDOWN, KS_SPACE}, 8, "focus9 select23 select37 unfocus37 "},
        {{KS_UP, KS_PAGEUP, KS_BACKSPACE}, 1, "focus37 select32 select18 select4 unfocus4 "},
        {{KS_END, KS_DOWN, KS_PAGEDOWN, KS_END}, 16, "focus4 select100 unfocus100 "},
        {{KS_UP, 'x', KS_ENTER}, 15, "focus100 select73 click73 unfocus73 "},
        {{KS_HOME, KS_BACKSPACE}, 0, "focus73 select0 unfocus0 "},
    };
    for (const auto& [keys, nPosition, noted] : steps) {
        events.clear();
        EXPECT_EQ(press(keys), KUL_LEFT);
        EXPECT_EQ(kulfileview_getPosition(1, kRef), nPosition) << noted;
        EXPECT_EQ(events, noted);
        EXPECT_EQ(text()[0], "line " + std::to_string(nPosition));
    }
    EXPECT_EQ(press({KS_ESC}), -10);
    // A key that moves nothing shows what a callback has changed.
    view().onFocus = [] { kulbox_config(1, 9, KUL_KEEP, 0, 0, 2, 2, BORDER); };
    kulbox_create(1, 9);
    press({KS_UP});
    EXPECT_EQ(picture(window(1), 0, 0, 2, 2), (Rows{"┌┐", "└┘"}));
}

TEST_F(FileviewTest, FindsAndGoesToLines)
{
    load(lines(0, 9) + std::string(200, 'x') + "needle\n" + lines(11, 49));
    const std::tuple<const char*, int, int, int> finds[] = {
        {"line 2", 0, 2, 2},     {"line 2", 3, 20, 20}, {"line 2", INT_MIN, 2, 2},
        {"nothing", 0, -1, 2},   {"line 2", 30, -1, 2}, {"line", INT_MAX, -1, 2},
        {"2\nline 3", 0, -1, 2}, {"needle", 1, 10, 10}, {"line 48", 0, 48, 46},
        {nullptr, 0, -1, 46},    {"", 7, 7, 7},         {"", 50, -1, 7},
    };
    for (const auto& [szText, nFrom, nLine, nPosition] : finds) {
        EXPECT_EQ(kulfileview_find(1, kRef, szText, nFrom), nLine);
        EXPECT_EQ(kulfileview_getPosition(1, kRef), nPosition) << nFrom;
    }
    kulfileview_find(1, kRef, "needle", 0);
    EXPECT_EQ(text()[0], "xxxxneedle") << "the place is in view, in a line larger than the view";
    for (const auto& [nLine, nPosition] : {std::pair(5, 5), {-1, 0}, {INT_MIN, 0}, {46, 46}, {47, 46}, {INT_MAX, 46}}) {
        EXPECT_EQ(kulfileview_setPosition(1, kRef, nLine), 0);
        EXPECT_EQ(kulfileview_getPosition(1, kRef), nPosition);
    }
}

TEST_F(FileviewTest, RefusesWhatItCannotShow)
{
    load("text");
    EXPECT_EQ(kulfileview_load(1, kRef, "/none"), -10028);
    EXPECT_EQ(text()[0], "text");
    for (const int nGood : {0, 1}) {
        const FailingMemory failing(nGood);
        EXPECT_EQ(kulfileview_load(1, kRef, view().szFileName), -10028);
    }
    EXPECT_EQ(config(view().szFileName, 2, 2, 16, 6, BORDER), 0) << "its own name, which it frees";
    EXPECT_EQ(text()[0], "text");
    EXPECT_EQ(config("/none"), -10028);
    EXPECT_EQ(view().nWidth, 16);
    EXPECT_EQ(text()[0], "");
    EXPECT_EQ(load("again"), 0);
    EXPECT_EQ(kulfileview_load(1, kRef, nullptr), 0);
    EXPECT_EQ(text()[0], "");
    EXPECT_EQ(view().szFileName, nullptr);

    // Everything works without a file.
    EXPECT_EQ(kulfileview_find(1, kRef, "x", 0), -1);
    EXPECT_EQ(kulfileview_setPosition(1, kRef, 3), 0);
    EXPECT_EQ(kulfileview_getPosition(1, kRef), 0);
    EXPECT_EQ(kulfileview_setFollow(1, kRef, T), 0);
    EXPECT_EQ(press({KS_DOWN, KS_END, KS_UP, KS_TAB}), 10);
    EXPECT_EQ(events, "focus100 unfocus100 ");

    // A record of the program's own is as short as the header says, and holds anything.
    struct {
        KULFILEVIEW view;
        char rest[256];
    } own;
    std::memset(&own, 0x5a, sizeof own);
    EXPECT_EQ(ConfigFileviewComponent(GetChain(1)->Pointer, &own.view), 0);
    own.view.nX = own.view.nY = own.view.nWidth = own.view.nHeight = 1;
    ShowFileviewComponent(GetChain(1)->Pointer, &own.view, 1);
    EXPECT_EQ(std::count(own.rest, own.rest + sizeof own.rest, 0x5a), 256);
    auto* added = static_cast<KULFILEVIEW*>(std::calloc(1, sizeof(KULFILEVIEW)));
    auto* node = static_cast<UI*>(std::calloc(1, sizeof(UI)));
    *node = {FILEVIEW, 8, nullptr, nullptr, added, 0};
    AddUIComponent(GetChain(1)->Pointer, node);
    ConfigUIComponent(1, 8);
    ShowUIColors();
    EXPECT_EQ(kulfileview_load(1, 8, nullptr), -1) << "none of the library's";
}

TEST_F(FileviewTest, FollowsAFileThatGrowsShrinksAndIsReplaced)
{
    load(lines(0, 9));
    EXPECT_EQ(text()[0], "line 0");
    kulfileview_setFollow(1, kRef, T);
    EXPECT_EQ(text()[3], "line 9");
    aSecondAfter([] { theFile->append("new"); });
    EXPECT_EQ(text(), (Rows{"line 7", "line 8", "line 9", "new"}));
    aSecondAfter([] { theFile->append("er\nnewest"); });
    EXPECT_EQ(text(), (Rows{"line 8", "line 9", "newer", "newest"}));
    // Who reads further above is left alone.
    press({KS_UP, KS_UP});
    aSecondAfter([] { theFile->append("\nend\n"); });
    EXPECT_EQ(text()[0], "line 6");
    events.clear();
    press({-2, -3, KS_ENTER}, {[] { theFile->append(lines(10, 99)); }, [] { advanceClock(1); }});
    EXPECT_EQ(events, "focus48 click5 unfocus5 ") << "how far in the file that grew";
    press({KS_END});
    aSecondAfter([] { theFile->append("really\n"); });
    EXPECT_EQ(text()[3], "really");
    press({KS_HOME});
    aSecondAfter([] { theFile->write(lines(20, 25)); });
    EXPECT_EQ(text(), (Rows{"line 22", "line 23", "line 24", "line 25"}));
    press({KS_HOME});
    aSecondAfter([] { theFile->replace(lines(0, 200)); });
    EXPECT_EQ(text()[3], "line 200");
    aSecondAfter([] { theFile->append(lines(201, 201)); });
    EXPECT_EQ(text()[3], "line 201");
    aSecondAfter([] { theFile->write(""); });
    EXPECT_EQ(text()[0], "");
    kulfileview_setFollow(1, kRef, F);
    aSecondAfter([] { theFile->write(lines(0, 9)); });
    EXPECT_EQ(text()[0], "line 0");
}

TEST_F(FileviewTest, FollowsInADialogWithoutTheFocus)
{
    load(lines(0, 9));
    kulfileview_setFollow(1, kRef, T);
    makeDialog(2);
    kulbutton_create(2, 1);
    kulbutton_config(2, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 20, 2, 9, 1, "OK", nullptr, nullptr, nullptr,
                     nullptr);
    kulgui_show(1);
    typeKeys({0, -2, 0}, {[] {
                 theFile->append("new\n");
                 advanceClock(1);
             }});
    kulbutton_execKeys(2, 1);
    EXPECT_EQ(picture(window(1), 6, 3, 1, 8), (Rows{"new     "}));
}

TEST_F(FileviewTest, IsCutToItsWindow)
{
    file_.write(lines(0, 99));
    config(file_.path().c_str(), 4, 2, 0, 3);
    EXPECT_EQ(shown(3, 6, 2, 1), Rows(3, "      ")) << "beside a box without columns";
    config(file_.path().c_str(), -3, -1, 30, 20);
    EXPECT_EQ(shown(2, 6, 0, 0), (Rows{"e 1   ", "e 2   "})) << "left of and above the window";
    // So is one half of a wide character; the other one is blank, in the colour of the text.
    ASSERT_NE(std::setlocale(LC_ALL, "C.UTF-8"), nullptr);
    file_.write("\xe4\xb8\xadx\nxy");
    config(file_.path().c_str(), -1, 2, 9, 3, NOBORDER, RED_MAGENTA);
    kulgui_show(1);
    // And drawing over another one loses nothing.
    mvwaddwstr(window(1), 3, 0, L"\u4e2d");
    ShowFileviewComponent(GetChain(1)->Pointer, &view(), 0);
    std::setlocale(LC_ALL, "C");
    EXPECT_EQ(picture(window(1), 2, 0, 2, 3), (Rows{" x ", "y  "}));
    EXPECT_EQ(shades(2, 0, 1, 3), (Rows{"fff"}));
}

TEST_F(FileviewTest, IsLaidOutAnewForAnotherWidth)
{
    load("one two three four five six seven eight nine ten eleven twelve");
    press({KS_END});
    EXPECT_EQ(text()[0], "four five six");
    view().nWidth = 12;
    EXPECT_EQ(text()[0].substr(0, 10), "three four");
    press({KS_DOWN});
    EXPECT_EQ(text()[0].substr(0, 8), "five six");
}

// A letter's marks are in its cell, what has no picture in none, and the user is at the first row.
TEST_F(FileviewTest, ShowsWholeLettersAndTheCursorInEdition2)
{
    const InColumns inColumns;
    load("\xef\xbb\xbf"
         "e\xcc\x81x\n" +
         lines(1, 9));
    press({KS_DOWN, KS_UP});
    EXPECT_EQ(text()[0], "e\u0301x");
    EXPECT_EQ(getcury(newscr), getbegy(window(1)) + 3);
    EXPECT_EQ(getcurx(newscr), getbegx(window(1)) + 3);
}

} // namespace
