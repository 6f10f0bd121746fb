// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

std::string events;

class TextboxTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        makeDialog(1);
        kulgui_show(1);
        ASSERT_EQ(kultextbox_create(1, 1), 0);
    }

    static int config(int nWidth, int nHeight, int nBorder = NOBORDER, int nMask = KUL_KEEP,
                      const char* szCharSet = nullptr)
    {
        return kultextbox_config(
            1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, nWidth, nHeight, nBorder, nMask, szCharSet,
            [] { events += "focus "; }, [] { events += "unfocus "; },
            [] { events += std::string("key:") + GetCurrentTextboxData() + " "; });
    }

    static KULTEXTBOX& record()
    {
        return *static_cast<KULTEXTBOX*>(GetUIComponentByRef(1, 1)->Pointer);
    }

    static void run(std::vector<int> keys)
    {
        keys.push_back(KS_TAB);
        kultest::typeKeys(keys);
        EXPECT_EQ(kultextbox_execKeys(1, 1), 10);
    }
};

struct Script {
    const char* szText;
    int nCursorPos;
    std::vector<int> keys;
    const char* szAfter;
    int nCursorAfter;
};

// In a box of 3 rows of 4 columns.
const Script kScripts[] = {
    {"abc", 1, {'x'}, "axc", 2},
    {"abc", 3, {'d', 'e'}, "abcde", 5},
    {"", 0, {'a', ' ', '~', 255}, "a ~\xff", 4},
    {"abc", 1, {KS_BACKSPACE}, "bc", 0},
    {"abc", 0, {KS_BACKSPACE}, "abc", 0},
    {"abc", 3, {KS_BACKSPACE, KS_BACKSPACE, KS_BACKSPACE, KS_BACKSPACE}, "", 0},
    {"abc", 1, {KS_DELETE}, "ac", 1},
    {"abc", 2, {KS_DELETE, KS_DELETE}, "a", 1},
    {"", 0, {KS_DELETE}, "", 0},
    {"abcdef", 2, {KS_HOME, 'x'}, "xbcdef", 1},
    {"abcdef", 2, {KS_END, 'x'}, "abcdefx", 7},
    {"abc", 0, {KS_LEFT, KS_RIGHT, KS_RIGHT, KS_RIGHT, KS_RIGHT, KS_LEFT}, "abc", 2},
    {"abcdef", 1, {KS_DOWN}, "abcdef", 5},
    {"abcdef", 3, {KS_DOWN}, "abcdef", 3},
    {"abcdef", 5, {KS_UP}, "abcdef", 1},
    {"abcdef", 3, {KS_UP}, "abcdef", 3},
    {"abcdefghijk", 11, {'l', 'm'}, "abcdefghijkl", 12},
    {"abc", 1, {KS_F1, KS_F2, KS_F12, KS_INSERT, KS_PAGEUP, 1, 256, -23, 0}, "abc", 1},
};

TEST_F(TextboxTest, Edits)
{
    for (const Script& script : kScripts) {
        SCOPED_TRACE(std::string(script.szText) + "->" + script.szAfter);
        ASSERT_EQ(config(4, 3), 0);
        EXPECT_EQ(record().nMaxLength, 12);
        ASSERT_EQ(kultextbox_setText(1, 1, script.szText), 0);
        record().nCursorPos = script.nCursorPos;
        run(script.keys);
        EXPECT_STREQ(kultextbox_getText(1, 1), script.szAfter);
        EXPECT_EQ(record().nCursorPos, script.nCursorAfter);
        EXPECT_EQ(record().nLength, static_cast<int>(std::string(script.szAfter).size()));
    }
}

TEST_F(TextboxTest, RowsAreThoseInsideTheBorder)
{
    config(6, 5, BORDER);
    EXPECT_EQ(record().nMaxLength, 12);
    kultextbox_setText(1, 1, "abcdef");
    run({KS_RIGHT, KS_DOWN});
    EXPECT_EQ(record().nCursorPos, 5);
    config(6, 1);
    kultextbox_setText(1, 1, "abcde");
    run({KS_END, KS_UP, KS_LEFT, KS_DOWN});
    EXPECT_EQ(record().nCursorPos, 4);
}

TEST_F(TextboxTest, TakesOnlyItsCharacters)
{
    config(20, 1, NOBORDER, NOMASK, "0123456789.\xe8");
    run({'1', 'a', '9', 256, '.', KS_F1, 0x3e8 + 256, KS_INSERT, ' ', '0' - 256});
    EXPECT_STREQ(kultextbox_getText(1, 1), "19.\xe8"
                                           "0");
    config(20, 1, NOBORDER, NOMASK, "");
    run({'1', 256});
    EXPECT_STREQ(kultextbox_getText(1, 1), "");
}

TEST_F(TextboxTest, RunsCallbacksInOrder)
{
    struct {
        int nKey;
        int nResult;
    } const rows[] = {{KS_TAB, 10}, {KS_ENTER, 10}, {KS_ESC, -10}};
    for (const auto& row : rows) {
        config(9, 1);
        events.clear();
        kultest::typeKeys({'a', KS_F1, row.nKey});
        EXPECT_EQ(kultextbox_execKeys(1, 1), row.nResult);
        EXPECT_EQ(events, "focus key:a key:a key:a unfocus ");
        EXPECT_EQ(GetCurrentComponentType(), TEXTBOX);
    }
}

TEST_F(TextboxTest, Draws)
{
    struct {
        const char* name;
        const char* szText;
        int nBorder;
        int nMask;
        int nCursorPos;
        Rows rows;
        Rows colors; // of the first two text rows
    } const boxes[] = {
        {"rows", "abcdef", NOBORDER, NOMASK, 6, {"abcd", "ef  ", "    "}, {"ffff", "ffFf"}},
        {"a full row", "abcd", NOBORDER, NOMASK, 4, {"abcd", "    ", "    "}, {"ffff", "Ffff"}},
        {"blanks before a row",
         "abcd  ef",
         NOBORDER,
         NOMASK,
         1,
         {"abcd", "ef  ", "    "},
         {"fFff", "ffff"}},
        {"mask", "a b", NOBORDER, MASK, 1, {"*** ", "    ", "    "}, {"fFff", "ffff"}},
        {"no text", "", NOBORDER, MASK, 0, {"    ", "    ", "    "}, {"Ffff", "ffff"}},
        {"controls", "a\nb\tc", NOBORDER, NOMASK, 0, {"a b ", "c   ", "    "}, {"Ffff", "ffff"}},
        {"border", "x", BORDER, NOMASK, 0, {"┌──┐", "│x │", "└──┘"}, {"ffff", "fFff"}},
    };
    const std::vector<kultest::Legend> legend = {{'f', RED_MAGENTA}, {'u', RED_WHITE}};
    for (const auto& box : boxes) {
        SCOPED_TRACE(box.name);
        config(4, 3, box.nBorder, box.nMask);
        // Room for any of the texts.
        if (box.nBorder == NOBORDER)
            EXPECT_EQ(kultextbox_setText(1, 1, box.szText), 0);
        else
            record().szText[record().nLength++] = *box.szText;
        record().nCursorPos = box.nCursorPos;
        kultest::typeKeys({});
        kultextbox_execKeys(1, 1);
        EXPECT_EQ(kultest::picture(window(1), 2, 2, 3, 4), box.rows);
        EXPECT_EQ(kultest::colors(window(1), 2, 2, 2, 4, legend), box.colors);
    }
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 3, 2, 1, 4, legend), (Rows{"uuuu"}));
    DrawTextBox(GetChain(1)->Pointer, &record(), RED_MAGENTA);
    EXPECT_EQ(kultest::colors(window(1), 3, 2, 1, 4, legend), (Rows{"uFfu"}));
    DrawTextBox(nullptr, nullptr, 0);
    ShowTextboxComponent(nullptr, nullptr, 0);
}

TEST_F(TextboxTest, HasBoxesOfAnySize)
{
    struct {
        int nWidth, nHeight, nBorder, nResult, nMaxLength;
    } const boxes[] = {
        {0, 0, NOBORDER, 0, 0},
        {-3, -4, NOBORDER, 0, 0},
        {2, 2, BORDER, 0, 0},
        {1, 1, BORDER, 0, 0},
        {0, 5, BORDER, 0, 0},
        {INT_MIN, INT_MIN, BORDER, 0, 0},
        {3, 3, BORDER, 0, 1},
        {65536, 65536, NOBORDER, -1, 0},
        {INT_MAX, INT_MAX, NOBORDER, -1, 0},
        {INT_MAX, 3, BORDER, -1, 0},
    };
    for (const auto& box : boxes) {
        SCOPED_TRACE(std::to_string(box.nWidth) + " x " + std::to_string(box.nHeight));
        EXPECT_EQ(config(box.nWidth, box.nHeight, box.nBorder), box.nResult);
        EXPECT_EQ(record().nMaxLength, box.nMaxLength);
        kultest::typeKeys({'a', 'b', KS_UP, KS_DOWN, KS_LEFT, KS_DELETE, KS_BACKSPACE});
        EXPECT_EQ(kultextbox_execKeys(1, 1), KUL_LEFT);
        EXPECT_EQ(record().nLength, 0);
    }
}

TEST_F(TextboxTest, SetsItsText)
{
    config(5, 1);
    EXPECT_EQ(kultextbox_setText(1, 1, "abcd"), 0);
    record().nCursorPos = 4;
    EXPECT_EQ(kultextbox_setText(1, 1, "xy"), 0);
    EXPECT_EQ(record().nLength, 2);
    EXPECT_EQ(record().nCursorPos, 2);
    EXPECT_EQ(kultextbox_setText(1, 1, kultextbox_getText(1, 1) + 1), 0);
    EXPECT_STREQ(kultextbox_getText(1, 1), "y");
    EXPECT_EQ(kultextbox_setText(1, 1, nullptr), -1);
    EXPECT_STREQ(kultextbox_getText(1, 1), "y");
    EXPECT_EQ(kultextbox_setText(1, 1, "12345"), -1);
    EXPECT_STREQ(kultextbox_getText(1, 1), "");
    EXPECT_EQ(record().nLength, 0);
    EXPECT_EQ(record().nCursorPos, 0);
    config(5, 1);
    EXPECT_STREQ(kultextbox_getText(1, 1), "");
}

TEST_F(TextboxTest, AnswersUnknownAndOther)
{
    kulbutton_create(1, 2);
    EXPECT_EQ(kultextbox_create(1, 2), -10026);
    EXPECT_EQ(kultextbox_getText(1, 1), nullptr);
    EXPECT_EQ(kultextbox_setText(1, 1, "not set up"), -1);
    kultest::typeKeys({'a', KS_DELETE, KS_BACKSPACE, KS_END});
    EXPECT_EQ(kultextbox_execKeys(1, 1), KUL_LEFT);
    for (const int nRef : {2, 99, INT_MIN}) {
        EXPECT_EQ(kultextbox_config(1, nRef, 0, 0, 0, 0, 0, 9, 9, BORDER, MASK, "", nullptr,
                                    nullptr, nullptr),
                  -1);
        EXPECT_EQ(kultextbox_setText(1, nRef, "x"), -1);
        EXPECT_EQ(kultextbox_getText(1, nRef), nullptr);
        EXPECT_EQ(kultextbox_execKeys(1, nRef), -10000);
    }
    EXPECT_EQ(GetCurrentTextboxData(), nullptr);
    kultextbox_hide(1, 1);
    EXPECT_EQ(kultextbox_execKeys(1, 1), 10);
    TextBoxDelete(nullptr);
    TextBoxGoUp(nullptr);
    TextBoxCharacter(nullptr, 'x');
    EXPECT_EQ(WipeTextboxComponent(nullptr), -1);
    EXPECT_EQ(WipeTextboxComponent(static_cast<KULTEXTBOX*>(calloc(1, sizeof(KULTEXTBOX)))), -1);
}

TEST_F(TextboxTest, NoticesWhatCallbacksDo)
{
    struct {
        KULCALLBACK action;
        int nResult;
    } const rows[] = {
        {[] { kulgui_destroy(1); }, -10000},
        {[] { kultextbox_hide(1, 1); }, 0},
        {[] { kulgui_leave(1); }, KUL_LEFT},
        {[] { config(3, 1); }, 10},
    };
    for (const auto& row : rows) {
        kulgui_destroy(1);
        makeDialog(1);
        kultextbox_create(1, 1);
        kultextbox_config(1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 1, 9, 1, NOBORDER, NOMASK, nullptr,
                          nullptr, nullptr, row.action);
        kultest::typeKeys({'a', 'b', KS_TAB});
        EXPECT_EQ(kultextbox_execKeys(1, 1), row.nResult);
    }
    EXPECT_STREQ(kultextbox_getText(1, 1), "b");
}

TEST_F(TextboxTest, Searches)
{
    EXPECT_EQ(FindChar('b', "abcb"), 1);
    EXPECT_EQ(FindChar('x', "abc"), -1);
    EXPECT_EQ(FindChar('\0', "abc"), -1);
    EXPECT_EQ(FindChar('a', nullptr), -1);
    EXPECT_EQ(FindString("cd", "abcd"), 2);
    EXPECT_EQ(FindString("abcd", "abc"), -1);
    EXPECT_EQ(FindString("ab", "aab"), -1); // the second a breaks the match
    EXPECT_EQ(FindString("ab", "aaab"), 2);
    EXPECT_EQ(FindString(nullptr, "abc"), -1);
    EXPECT_EQ(FindString("abc", nullptr), -1);
}

TEST_F(TextboxTest, LivesWithoutMemory)
{
    config(9, 1);
    kultextbox_setText(1, 1, "old");
    {
        const kultest::FailingMemory failing(0);
        EXPECT_LT(kultextbox_create(1, 7), 0);
        EXPECT_EQ(config(9, 1), -1);
    }
    EXPECT_EQ(kultextbox_getText(1, 1), nullptr);
    EXPECT_EQ(kultextbox_setText(1, 1, "x"), -1);
}

} // namespace
