// SPDX-License-Identifier: MIT
#include "support/window_test.hpp"

#include <climits>
#include <clocale>
#include <cstring>
#include <cwchar>

namespace {

using namespace kultest;

constexpr int L = KS_LEFT, R = KS_RIGHT, U = KS_UP, D = KS_DOWN, kHome = KS_HOME, kEnd = KS_END;
constexpr int kBack = KS_BACKSPACE, kDelete = KS_DELETE, kTab = KS_TAB;

struct Box {
    int nWidth, nHeight, nBorder = NOBORDER, nMask = NOMASK;
    const char* szCharSet = nullptr;
};

class TextboxTest : public ComponentTest {
protected:
    void SetUp() override
    {
        ComponentTest::SetUp();
        ASSERT_EQ(kultextbox_create(1, kRef), 0);
    }

    static KULTEXTBOX& box() { return record<KULTEXTBOX>(); }

    static int config(
        const Box& box, KULCALLBACK onKey = [] { note(GetCurrentTextboxData()); }, int nRef = kRef)
    {
        return kultextbox_config(
            1, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, box.nWidth, box.nHeight, box.nBorder, box.nMask, box.szCharSet,
            [] { note("focus"); }, [] { note("unfocus"); }, onKey);
    }

    static void fill(const Box& size, const char* szText, int nCursorPos)
    {
        EXPECT_EQ(config(size), 0);
        EXPECT_EQ(kultextbox_setText(1, kRef, szText), 0);
        box().nCursorPos = nCursorPos;
    }
};

TEST_F(TextboxTest, Edits)
{
    const Box rows{4, 3}, two{4, 2}, framed{6, 5, BORDER}, line{6, 1};
    const Box digits{9, 1, NOBORDER, NOMASK, "0123456789.\xe8"}, none{9, 1, NOBORDER, NOMASK, ""};
    const struct {
        Box box;
        const char* szText;
        int nCursorPos;
        std::vector<int> keys;
        const char* szAfter;
        int nAfter;
    } scripts[] = {
        {rows, "abc", 1, {'x'}, "axc", 2},
        {rows, "abc", 3, {'d', 'e'}, "abcde", 5},
        {rows, "", 0, {'a', ' ', '~', 255}, "a ~\xff", 4},
        {rows, "abc", 1, {kBack}, "bc", 0},
        {rows, "abc", 0, {kBack}, "abc", 0},
        {rows, "abc", 3, {kBack, kBack, kBack, kBack}, "", 0},
        {rows, "abc", 1, {kDelete}, "ac", 1},
        {rows, "abc", 2, {kDelete, kDelete}, "a", 1},
        {rows, "", 0, {kDelete}, "", 0},
        {rows, "abcdef", 2, {kHome, 'x'}, "xbcdef", 1},
        {rows, "abcdef", 2, {kEnd, 'x'}, "abcdefx", 7},
        {rows, "abc", 0, {L, R, R, R, R, L}, "abc", 2},
        {two, "abcdef", 1, {D}, "abcdef", 5},
        {rows, "abcdef", 3, {D}, "abcdef", 3},
        {rows, "abcdef", 2, {D}, "abcdef", 6},
        {two, "abcdef", 4, {U}, "abcdef", 0},
        {rows, "abcdef", 3, {U}, "abcdef", 3},
        {framed, "abcdef", 0, {R, D}, "abcdef", 5},
        {line, "abcde", 5, {'f', U}, "abcdef", 6},
        {line, "abcde", 5, {'f', kHome, D}, "abcdef", 0},
        {rows, "abcdefghijk", 11, {'l', 'm'}, "abcdefghijkl", 12},
        {rows, "abc", 1, {KS_F1, KS_F2, KS_F12, KS_INSERT, KS_PAGEUP, 1, 31, 256, -23, 0}, "abc", 1},
        {rows, "abc", INT_MAX, {'d'}, "abcd", 4},
        {rows, "abc", INT_MIN, {kDelete}, "bc", 0},
        {digits,
         "",
         0,
         {'1', 'a', '9', 256, '.', KS_F1, 0x3e8 + 256, KS_INSERT, ' ', '0' - 256},
         "19.\xe8"
         "0",
         5},
        {none, "", 0, {'1', 256}, "", 0},
    };
    for (const auto& script : scripts) {
        SCOPED_TRACE(std::string(script.szText) + "->" + script.szAfter);
        fill(script.box, script.szText, script.nCursorPos);
        EXPECT_EQ(press(script.keys), KUL_LEFT);
        EXPECT_STREQ(kultextbox_getText(1, kRef), script.szAfter);
        EXPECT_EQ(box().nCursorPos, script.nAfter);
        EXPECT_EQ(box().nLength, static_cast<int>(std::strlen(script.szAfter)));
    }
}

TEST_F(TextboxTest, Draws)
{
    const struct {
        Box box;
        const char* szText;
        int nCursorPos;
        Rows rows, shades;
    } boxes[] = {
        {{4, 2}, "abcdef", 6, {"abcd", "ef  "}, {"ffff", "ffFf"}},
        {{4, 2}, "abcd", 4, {"abcd", "    "}, {"ffff", "Ffff"}},
        {{4, 3}, "abcd  ef", 1, {"abcd", "ef  ", "    "}, {"fFff", "ffff", "ffff"}},
        {{4, 3}, "abcd   ef", 4, {"abcd", "   e", "f   "}, {"ffff", "Ffff", "ffff"}}, // too many to be skipped
        {{4, 1, NOBORDER, MASK}, "a b", 1, {"*** "}, {"fFff"}},
        {{4, 1, NOBORDER, MASK}, "", 0, {"    "}, {"Ffff"}},
        {{4, 2}, "a\nb\tc", 0, {"a b ", "c   "}, {"Ffff", "ffff"}},
        {{4, 3, BORDER}, "x", 0, {"┌──┐", "│x │", "└──┘"}, {"ffff", "fFff", "ffff"}},
    };
    for (const auto& row : boxes) {
        SCOPED_TRACE(row.szText);
        fill(row.box, row.szText, row.nCursorPos);
        press({});
        EXPECT_EQ(shown(2, 2, row.box.nHeight, 4), row.rows);
        EXPECT_EQ(shades(2, 2, row.box.nHeight, 4), row.shades);
    }
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(shades(3, 2, 1, 4), (Rows{"uuuu"}));
    box().nEnable = 0;
    kulgui_show(1);
    EXPECT_EQ(shades(3, 2, 1, 4), (Rows{"dddd"}));
}

TEST_F(TextboxTest, DrawsItsInsideInAnyColour)
{
    const struct {
        Box box;
        std::vector<int> keys;
        int nCursor;
        Rows rows, shades;
    } boxes[] = {
        {{4, 3, BORDER}, {'a', 'b'}, SHOWCURSOR, {"┌──┐", "│ab ", "└──┘"}, {"ffff", "fuuU", "ffff"}},
        {{4, 3, BORDER, MASK}, {'a', 'b'}, HIDECURSOR, {"┌──┐", "│***", "└──┘"}, {"ffff", "fuuu", "ffff"}},
        {{3, 3}, {'a', 'b', 'c', ' ', 'd'}, SHOWCURSOR, {"abc", " d ", "   "}, {"uuu", "uuU", "fff"}},
    };
    for (const auto& row : boxes) {
        config(row.box);
        box().nCursor = row.nCursor;
        press(row.keys);
        DrawTextBox(GetChain(1)->Pointer, &box(), RED_WHITE);
        EXPECT_EQ(shown(2, 2, 3, row.box.nWidth), row.rows);
        EXPECT_EQ(shades(2, 2, 3, row.box.nWidth), row.shades);
    }
}

TEST_F(TextboxTest, RunsCallbacksInOrder)
{
    for (const auto& [nKey, nResult] : {std::pair(kTab, 10), {KS_ENTER, 10}, {KS_ESC, -10}}) {
        config({9, 1});
        events.clear();
        EXPECT_EQ(press({'a', KS_F1, nKey, 'b'}), nResult);
        EXPECT_EQ(events, "focus0 a0 a0 a0 unfocus0 ");
        EXPECT_EQ(GetCurrentComponentType(), TEXTBOX);
    }
}

TEST_F(TextboxTest, HasBoxesOfAnySize)
{
    // clang-format off
    const struct { int nWidth, nHeight, nBorder, nResult, nMaxLength; } boxes[] = {
        {0, 0, NOBORDER, 0, 0}, {2, 2, BORDER, 0, 0}, {3, 3, BORDER, 0, 1}, {6, 5, BORDER, 0, 12},
        {1, 1, BORDER, 0, 1}, {-3, -4, NOBORDER, 0, 12}, {-3, -4, 7, 0, 12}, // the product, unseen
        {0, 5, BORDER, -1, 0}, {INT_MIN, INT_MIN, BORDER, -1, 0}, {65536, 65536, NOBORDER, -1, 0},
        {INT_MAX, INT_MAX, NOBORDER, -1, 0}, {INT_MAX, 3, BORDER, -1, 0},
    };
    // clang-format on
    for (const auto& row : boxes) {
        SCOPED_TRACE(std::to_string(row.nWidth) + " x " + std::to_string(row.nHeight));
        EXPECT_EQ(config({row.nWidth, row.nHeight, row.nBorder}), row.nResult);
        EXPECT_EQ(box().nMaxLength, row.nMaxLength);
        EXPECT_EQ(box().nBorder, row.nBorder == BORDER ? BORDER : NOBORDER);
        EXPECT_EQ(press({'a', 'b', U, D, L, kDelete, kBack}), KUL_LEFT);
        EXPECT_EQ(box().nLength, 0);
    }
}

TEST_F(TextboxTest, SetsItsText)
{
    const struct {
        const char* szText;
        int nCursorPos, nResult;
        const char* szAfter;
        int nAfter;
    } rows[] = {
        {"abcd", 4, 0, "abcd", 4}, {"xyz", 1, 0, "xyz", 1}, {"xy", 3, 0, "xy", 2},
        {nullptr, 1, -1, "xy", 1}, {"12345", 1, -1, "", 0},
    };
    config({5, 1});
    for (const auto& row : rows) {
        box().nCursorPos = row.nCursorPos;
        EXPECT_EQ(kultextbox_setText(1, kRef, row.szText), row.nResult);
        EXPECT_STREQ(kultextbox_getText(1, kRef), row.szAfter);
        EXPECT_EQ(box().nLength, static_cast<int>(std::strlen(row.szAfter)));
        EXPECT_EQ(box().nCursorPos, row.nAfter);
    }
    kultextbox_setText(1, kRef, "abcd");
    EXPECT_EQ(kultextbox_setText(1, kRef, kultextbox_getText(1, kRef) + 1), 0) << "its own";
    EXPECT_STREQ(kultextbox_getText(1, kRef), "bcd");
    config({5, 1});
    EXPECT_STREQ(kultextbox_getText(1, kRef), "");
    EXPECT_EQ(box().nLength, 0);
    kultextbox_setText(1, kRef, "abcd");
    {
        const FailingMemory failing(0);
        EXPECT_LT(kultextbox_create(1, 7), 0);
        EXPECT_EQ(config({5, 1}), -1);
    }
    EXPECT_EQ(kultextbox_getText(1, kRef), nullptr);
    EXPECT_EQ(kultextbox_setText(1, kRef, "x"), -1);
}

TEST_F(TextboxTest, AnswersUnknownAndOther)
{
    kulbutton_create(1, 2);
    EXPECT_EQ(kultextbox_create(1, 2), -10026);
    EXPECT_EQ(kultextbox_getText(1, kRef), nullptr);
    EXPECT_EQ(kultextbox_setText(1, kRef, "not set up"), -1);
    EXPECT_EQ(press({'a', kDelete, kBack, kEnd}), KUL_LEFT);
    for (const int nRef : {2, 99, INT_MIN}) {
        EXPECT_EQ(config({9, 9}, nullptr, nRef), -1);
        EXPECT_EQ(kultextbox_setText(1, nRef, "x"), -1);
        EXPECT_EQ(kultextbox_getText(1, nRef), nullptr);
        EXPECT_EQ(kultextbox_execKeys(1, nRef), -10000);
    }
    kultextbox_hide(1, kRef);
    EXPECT_EQ(kultextbox_execKeys(1, kRef), 10);
    KULTEXTBOX own{};
    own.nLength = 3; // the cursor moves without a text as well
    for (const auto step : {TextBoxGoEnd, TextBoxGoLeft, TextBoxDelete, TextBoxBackspace}) {
        step(&own);
        step(nullptr);
    }
    TextBoxCharacter(&own, 'x');
    EXPECT_EQ(own.nCursorPos, 2);
    TextBoxGoUp(nullptr);
    TextBoxCharacter(nullptr, 'x');
    DrawTextBox(nullptr, nullptr, 0);
    ShowTextboxComponent(nullptr, nullptr, 0);
    EXPECT_EQ(WipeTextboxComponent(nullptr), -1);
    EXPECT_EQ(WipeTextboxComponent(static_cast<KULTEXTBOX*>(calloc(1, sizeof(KULTEXTBOX)))), -1);
}

TEST_F(TextboxTest, NoticesWhatCallbacksDo)
{
    const std::pair<KULCALLBACK, int> rows[] = {
        {[] { kulgui_destroy(1); }, -10000},
        {[] { kultextbox_hide(1, kRef); }, 0},
        {[] { kulgui_leave(1); }, KUL_LEFT},
        {[] {
             config({3, 1}, nullptr);
         },
         10},
    };
    for (const auto& [action, nResult] : rows) {
        renew();
        kultextbox_create(1, kRef);
        config({9, 1}, action);
        EXPECT_EQ(press({'a', 'b', kTab}), nResult);
        EXPECT_EQ(events, nResult == -10000 ? "focus0 " : "focus0 unfocus0 ");
    }
    EXPECT_STREQ(kultextbox_getText(1, kRef), "b");
}

TEST_F(TextboxTest, Searches)
{
    EXPECT_EQ(FindChar('b', "abcb"), 1);
    EXPECT_EQ(FindChar('\0', "abc"), -1);
    EXPECT_EQ(FindChar('a', nullptr), -1);
    const struct {
        const char *szStr, *szIn;
        int nPlace;
    } rows[] = {
        {"cd", "abcd", 2},    {"abcd", "abc", -1},  {"aab", "aab", 0},
        {"ab", "aaab", 2},    {"ab", "aab", -1}, // the second a breaks the match
        {nullptr, "abc", -1}, {"abc", nullptr, -1},
    };
    for (const auto& row : rows)
        EXPECT_EQ(FindString(row.szStr, row.szIn), row.nPlace);
}

// Edition 2: characters are letters.

class LetterBoxTest : public TextboxTest {
protected:
    void SetUp() override
    {
        kulgui_setEdition(2);
        setlocale(LC_CTYPE, "C.UTF-8");
        TextboxTest::SetUp();
    }

    void TearDown() override
    {
        TextboxTest::TearDown();
        setlocale(LC_CTYPE, "C");
        kulgui_setEdition(1);
    }

    // The keys of a text's letters, and some more.
    static std::vector<int> keysOf(const char* szText, const std::vector<int>& more)
    {
        std::vector<int> keys;
        for (std::string_view rest = szText; !rest.empty();) {
            wchar_t character = 0;
            std::mbstate_t state{};
            rest.remove_prefix(std::mbrtowc(&character, rest.data(), rest.size(), &state));
            keys.push_back(character < 128 ? character : KUL_CHARACTER + character);
        }
        keys.insert(keys.end(), more.begin(), more.end());
        return keys;
    }
};

TEST_F(LetterBoxTest, Edits)
{
    const Box line{6, 1}, rows{4, 3}, two{4, 2}, framed{6, 4, BORDER}, masked{6, 1, NOBORDER, MASK};
    const Box set{6, 1, NOBORDER, NOMASK, "äöü中"};
    const auto control = [](char letter) { return letter - '@'; };
    const int kInsert = KS_INSERT, kPageUp = KS_PAGEUP, kPageDown = KS_PAGEDOWN;
    const struct {
        Box box;
        int nLimit; // -1: none
        const char *szText, *szTyped;
        std::vector<int> keys;
        const char* szAfter;
        Rows shown;
        std::pair<int, int> cursor; // row and column in the box
    } scripts[] = {
        {line, -1, "Gr", "öße", {}, "Größe", {"Größe "}, {0, 5}},
        {line, -1, "ac", "", {L, 'b'}, "abc", {"abc   "}, {0, 2}},
        {line, -1, "中b", "", {kHome, kInsert, 'x', kInsert, 'y'}, "xyb", {"xyb   "}, {0, 2}},
        {line, -1, "a", "", {kInsert, 'b', L, kInsert, 'x'}, "axb", {"axb   "}, {0, 2}},
        {line, -1, "abcde", "fg", {}, "abcdef", {"abcdef"}, {0, 5}}, // full: on the last cell
        {line, 9, "", "äöüäöü中中中中", {}, "äöüäöü中中中", {"中    "}, {0, 2}},
        {line, 9, "", "abcdefg", {}, "abcdefg", {"efg   "}, {0, 3}},
        {line, 9, "abcdefg", "", {L, L, L}, "abcdefg", {"bcdefg"}, {0, 3}},
        {line, 9, "abcdefg", "", {kHome}, "abcdefg", {"abcdef"}, {0, 0}},
        {line, 9, "abcdefg", "", {kHome, R, R, R, R, R, R}, "abcdefg", {"defg  "}, {0, 3}},
        {{2, 1}, 9, "a中", "", {L}, "a中", {"中"}, {0, 0}},
        {line, 9, "abcd中", "", {kHome, R, R, R, R}, "abcd中", {"abcd中"}, {0, 4}},
        {line, -1, "xa\u0308b", "", {L, kBack}, "xb", {"xb    "}, {0, 1}},
        {line, -1, "a\u0308b", "", {kHome, kDelete}, "b", {"b     "}, {0, 0}},
        {line, -1, "中b", "", {kDelete, kDelete, 'c'}, "c", {"c     "}, {0, 1}},
        {line, -1, "", "\u0308u\u0308\u0301", {L, R, R}, "u\u0308\u0301", {"u\u0308\u0301     "}, {0, 1}},
        {{3, 1},
         -1,
         "",
         "a\u0308b\u0308c\u0308d\u0308",
         {},
         "a\u0308b\u0308c\u0308",
         {"a\u0308b\u0308c\u0308"},
         {0, 2}},
        {set, -1, "", "aäxö中", {KS_F1}, "äö中", {"äö中  "}, {0, 4}},
        {masked, -1, "", "中b\u0308", {}, "中b\u0308", {"**    "}, {0, 2}},
        {line, -1, "a b  ", "", {control('W')}, "a ", {"a     "}, {0, 2}},
        {line, -1, "abc", "", {L, control('U')}, "c", {"c     "}, {0, 0}},
        {line, -1, "abc", "", {L, control('K')}, "ab", {"ab    "}, {0, 2}},
        {line, -1, "b", "", {control('A'), 'a', control('E'), 'c'}, "abc", {"abc   "}, {0, 3}},
        {line,
         -1,
         "a",
         "\u202e\u0085\u2028",
         {2, 31, 127 + 1, 255, 256, KS_ALT + 'x', -28, KUL_CHARACTER, INT_MAX},
         "a",
         {"a     "},
         {0, 1}},
        {line, 0, "", "a", {}, "", {"      "}, {0, 0}},
        {rows, -1, "", "abcd  ef", {}, "abcd  ef", {"abcd", "  ef", "    "}, {2, 0}},
        {two, -1, "", "abc中de", {}, "abc中de", {"abc ", "中de"}, {1, 3}},
        {two, 99, "", "abcdefghi", {}, "abcdefghi", {"efgh", "i   "}, {1, 1}},
        {two, 99, "abcdefghi", "", {U, U}, "abcdefghi", {"abcd", "efgh"}, {0, 1}},
        {two, 99, "abcdefghi", "", {U, U, U, D}, "abcdefghi", {"abcd", "efgh"}, {1, 1}},
        {two, 99, "abcdefghijklm", "", {kPageUp, kPageUp}, "abcdefghijklm", {"abcd", "efgh"}, {0, 1}},
        {two, 99, "abcdefghi", "", {kHome, R, R, kPageDown}, "abcdefghi", {"efgh", "i   "}, {1, 1}},
        {two, 99, "abcdefghi", "", {kBack}, "abcdefgh", {"abcd", "efgh"}, {1, 3}},
        {two, 99, "abcdefghijkl", "", {control('W')}, "", {"    ", "    "}, {0, 0}},
        {two, -1, "abcdef", "", {kHome, R, R, R, D, D}, "abcdef", {"abcd", "ef  "}, {1, 2}},
        {{1, 3}, -1, "中a", "", {}, "中a", {"?", "a", " "}, {2, 0}},
        {framed, -1, "äbcde", "", {U}, "äbcde", {"┌────┐", "│äbcd│", "│e   │", "└────┘"}, {1, 2}},
        {line, -1, "a\tb\xc3", "", {}, "a\tb\xc3", {"a b?  "}, {0, 4}},
    };
    for (const auto& script : scripts) {
        SCOPED_TRACE(std::string(script.szText) + "+" + script.szTyped + "->" + script.szAfter);
        renew();
        kultextbox_create(1, kRef);
        config(script.box, nullptr);
        if (script.nLimit >= 0) {
            EXPECT_EQ(kultextbox_setLimit(1, kRef, script.nLimit), 0);
        }
        EXPECT_EQ(kultextbox_setText(1, kRef, script.szText), 0);
        EXPECT_EQ(press(keysOf(script.szTyped, script.keys)), KUL_LEFT);
        EXPECT_STREQ(kultextbox_getText(1, kRef), script.szAfter);
        EXPECT_EQ(box().nLength, static_cast<int>(std::strlen(script.szAfter)));
        EXPECT_EQ(shown(2, 2, script.box.nHeight, script.box.nWidth), script.shown);
        EXPECT_EQ(std::pair(getcury(newscr) - 2, getcurx(newscr) - 2), script.cursor);
    }
}

TEST_F(LetterBoxTest, TakesTextsAndLimits)
{
    config({3, 1}, nullptr);
    for (const auto& [szText, nResult] : {std::pair("äöü", 0), {"中b\u0308c", 0}, {"äöüx", -1}, {"", 0}, {"äöü", 0}}) {
        EXPECT_EQ(kultextbox_setText(1, kRef, szText), nResult) << szText;
        EXPECT_STREQ(kultextbox_getText(1, kRef), nResult == 0 ? szText : "");
        EXPECT_EQ(box().nCursorPos, box().nLength);
    }
    for (const auto& [nLimit, nResult] : {std::pair(2, -1), {-1, -1}, {65536, -1}, {65535, 0}, {INT_MIN, -1}, {4, 0}})
        EXPECT_EQ(kultextbox_setLimit(1, kRef, nLimit), nResult) << nLimit;
    EXPECT_STREQ(kultextbox_getText(1, kRef), "äöü");
    EXPECT_EQ(box().nMaxLength, 4);
    for (const auto& [nCharacter, nPlace] : {std::pair(0, 0), {2, 4}, {3, 6}, {4, -1}, {-1, -1}, {INT_MAX, -1}}) {
        EXPECT_EQ(kultextbox_setCursor(1, kRef, nCharacter), nPlace < 0 ? -1 : 0);
        EXPECT_EQ(box().nCursorPos, nPlace < 0 ? 6 : nPlace);
    }
    config({3, 1}, nullptr);
    kultextbox_setText(1, kRef, "äöü");
    const FailingMemory failing(0);
    EXPECT_EQ(kultextbox_setLimit(1, kRef, 1000), -1);
    EXPECT_STREQ(kultextbox_getText(1, kRef), "äöü");
}

// A long paste into a box that is full soon, and what is then behind the view.
TEST_F(LetterBoxTest, TakesALongPaste)
{
    config({5, 1}, nullptr);
    kultextbox_setLimit(1, kRef, 20000);
    std::vector<int> keys(20100, KUL_CHARACTER + L'中');
    keys.insert(keys.end(), {kHome, kEnd, L, kBack});
    press(keys);
    EXPECT_EQ(box().nLength, 3 * 19999);
    EXPECT_EQ(shown(2, 2, 1, 5), (Rows{"中中 "}));
}

TEST_F(TextboxTest, AsksBeforeTheUserGoesOn)
{
    config({9, 1}, nullptr);
    const auto check = [](const char* szText) {
        note(szText);
        return std::strcmp(szText, "ok");
    };
    EXPECT_EQ(kultextbox_setCheck(1, kRef, check), 0);
    EXPECT_EQ(press({'o', kTab, KS_ENTER, 'k', kTab, 'x'}), 10);
    EXPECT_EQ(events, "focus0 o0 o0 ok0 unfocus0 ");
    EXPECT_EQ(press({'x', KS_ESC}), -10);
    EXPECT_EQ(press({'x'}), KUL_LEFT);
    kultextbox_setCheck(1, kRef, [](const char*) {
        kulgui_destroy(1);
        return 1;
    });
    EXPECT_EQ(press({kTab}), -10000);
    for (const auto result :
         {kultextbox_setCheck(1, kRef, check), kultextbox_setLimit(1, kRef, 1), kultextbox_setCursor(1, kRef, 0)})
        EXPECT_EQ(result, -1);
}

TEST_F(TextboxTest, ClearsItsTextFromMemory)
{
    const KULCALLBACK ways[] = {
        [] {
            config({8, 1, NOBORDER, MASK});
        },
        [] { kultextbox_setLimit(1, kRef, 1000); },
        [] { kulgui_destroy(1); },
        [] {
            kultextbox_setText(1, kRef, "");
            press({'a', 'b', kBack, kBack});
            kulgui_destroy(1);
        },
    };
    for (const auto way : ways) {
        renew();
        kultextbox_create(1, kRef);
        fill({8, 1, NOBORDER, MASK}, "secret", 0);
        const char* szText = kultextbox_getText(1, kRef);
        watchFree(szText, 7);
        way();
        EXPECT_TRUE(wasFreedClear());
    }
    renew();
    kultextbox_create(1, kRef);
    fill({8, 1, NOBORDER, MASK}, "secret", 0);
    kultextbox_setText(1, kRef, "x");
    EXPECT_EQ(std::string(kultextbox_getText(1, kRef), 6), std::string("x\0\0\0\0\0", 6));
}

TEST_F(LetterBoxTest, IsUnderlinedWithoutColours)
{
    const NoColors none;
    fill({4, 3, BORDER}, "a", 0);
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    for (int nX = 0; nX < 4; ++nX)
        EXPECT_EQ(cellOf(window(1), 3, 2 + nX).attributes, nX % 3 == 0 ? A_NORMAL : A_UNDERLINE);
    press({});
    EXPECT_EQ(cellOf(window(1), 3, 3).attributes, A_REVERSE);
}

} // namespace
