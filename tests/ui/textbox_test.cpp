// SPDX-License-Identifier: MIT
#include <climits>
#include <cstring>
#include <cwchar>

#include "support/window_test.hpp"

namespace {

using namespace kultest;

constexpr int kTab = KS_TAB;

struct Box {
    int nWidth, nHeight, nBorder = NOBORDER, nMask = NOMASK;
    const char* szCharSet = nullptr;
    int nLimit = -1; // none
};

// What keys do to a text. A bar in a text is the cursor; letters that are capital are keys: Left,
// Right, Up, Down, Home, End, Backspace, X for Delete, Insert, Page up, Next page.
struct Script {
    Box box;
    std::string before, keys, after;
    Rows shown{};            // the box; not looked at if empty
    int nCell = -1;          // the terminal's cursor in it: 10 a row, 1 a column; -1: not looked at
    Rows shades{};           // its colours, the same
    std::vector<int> more{}; // keys
};

std::vector<int> keysOf(std::string_view text)
{
    constexpr std::string_view kLetters = "LRUDHEBXIPN";
    constexpr int kKeys[] = {KS_LEFT,      KS_RIGHT,  KS_UP,     KS_DOWN,   KS_HOME,    KS_END,
                             KS_BACKSPACE, KS_DELETE, KS_INSERT, KS_PAGEUP, KS_PAGEDOWN};
    std::vector<int> keys;
    while (!text.empty()) {
        wchar_t character = static_cast<unsigned char>(text[0]);
        std::mbstate_t state{};
        const std::size_t size = MB_CUR_MAX == 1 ? 1 : std::mbrtowc(&character, text.data(), text.size(), &state);
        const std::size_t letter = kLetters.find(text[0]);
        const bool wide = MB_CUR_MAX > 1 && character > 127;
        keys.push_back(letter != kLetters.npos ? kKeys[letter] : character + (wide ? KUL_CHARACTER : 0));
        text.remove_prefix(size);
    }
    return keys;
}

class TextboxTest : public ComponentTest {
protected:
    void SetUp() override
    {
        ComponentTest::SetUp();
        ASSERT_EQ(kultextbox_create(1, kRef), 0);
    }

    static KULTEXTBOX& box() { return record<KULTEXTBOX>(); }

    static int config(
        const Box& box, KULCALLBACK onKey = [] { note(GetCurrentTextboxData()); })
    {
        return kultextbox_config(
            1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, box.nWidth, box.nHeight, box.nBorder, box.nMask, box.szCharSet,
            [] { note("focus"); }, [] { note("unfocus"); }, onKey);
    }

    // A new box with a text.
    void fill(const Box& size, std::string text)
    {
        renew();
        EXPECT_EQ(kultextbox_create(1, kRef), 0);
        EXPECT_EQ(config(size), 0);
        EXPECT_EQ(size.nLimit < 0 ? 0 : kultextbox_setLimit(1, kRef, size.nLimit), 0);
        const std::size_t cursor = text.find('|');
        if (cursor != text.npos)
            text.erase(cursor, 1);
        EXPECT_EQ(kultextbox_setText(1, kRef, text.c_str()), 0);
        if (cursor != text.npos)
            box().nCursorPos = static_cast<int>(cursor);
    }

    void play(const Script& script)
    {
        SCOPED_TRACE(script.before + " + " + script.keys + " -> " + script.after);
        const Box& size = script.box;
        fill(size, script.before);
        std::vector<int> keys = keysOf(script.keys);
        keys.insert(keys.end(), script.more.begin(), script.more.end());
        EXPECT_EQ(press(keys), KUL_LEFT);
        std::string after = kultextbox_getText(1, kRef);
        EXPECT_EQ(box().nLength, static_cast<int>(after.size()));
        EXPECT_EQ(after.insert(static_cast<std::size_t>(box().nCursorPos), "|"), script.after);
        if (!script.shown.empty()) {
            EXPECT_EQ(shown(2, 2, size.nHeight, size.nWidth), script.shown);
        }
        if (!script.shades.empty()) {
            EXPECT_EQ(shades(2, 2, size.nHeight, size.nWidth), script.shades);
        }
        if (script.nCell >= 0) {
            EXPECT_EQ(10 * (getcury(newscr) - 2) + getcurx(newscr) - 2, script.nCell);
        }
    }
};

TEST_F(TextboxTest, EditsAndDraws)
{
    const Box rows{4, 3}, two{4, 2}, framed{6, 5, BORDER}, masked{4, 1, NOBORDER, MASK};
    const Box digits{9, 1, NOBORDER, NOMASK, "0123456789.\xe8"}, none{9, 1, NOBORDER, NOMASK, ""};
    const int kNone[] = {KS_F1, KS_F2, KS_F12, KS_INSERT, KS_PAGEUP, 1, 31, 256, -23, 0};
    const int kLowBytes[] = {'1', 'a', '9', 256, '.', KS_F1, 0x3e8 + 256, KS_INSERT, ' ', '0' - 256};
    const Script scripts[] = {
        {rows, "ab|cdef", "HxEyL\xff~", "xbcdef\xff~|"},
        {rows, "a|bcd", "BBLXRRRLXX", "|"},
        {rows, "abc|def", "DU", "abc|def"},
        {two, "abcd|ef", "U", "|abcdef"},
        {framed, "|abcdef", "RD", "abcde|f"},
        {rows, "abcdefghijk|", "lm", "abcdefghijkl|"},
        {rows, "a|bc", "", "a|bc", {}, -1, {}, {std::begin(kNone), std::end(kNone)}},
        {digits, "|", "", "19.\3500|", {}, -1, {}, {std::begin(kLowBytes), std::end(kLowBytes)}},
        {none, "|", "1", "|", {}, -1, {}, {256}},
        {two, "abcd|", "", "abcd|", {"abcd", "    "}, -1, {"ffff", "Ffff"}},
        {rows, "a|bcd  ef", "", "a|bcd  ef", {"abcd", "ef  ", "    "}, -1, {"fFff", "ffff", "ffff"}},
        {rows, "abcd|   ef", "", "abcd|   ef", {"abcd", "   e", "f   "}, -1, {"ffff", "Ffff", "ffff"}}, // all but one
        {masked, "a| b", "", "a| b", {"*** "}, -1, {"fFff"}},
        {two, "|a\nb\tc", "", "|a\nb\tc", {"a b ", "c   "}, -1, {"Ffff", "ffff"}},
    };
    for (const Script& script : scripts)
        play(script);
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(shades(3, 2, 1, 4), (Rows{"uuuu"}));
    box().nEnable = 0;
    kulgui_show(1);
    EXPECT_EQ(shades(3, 2, 1, 4), (Rows{"dddd"}));
    fill(rows, "abc");
    for (const auto& [nCursor, nKey, nAfter] : {std::tuple(INT_MAX, +'d', 4), {INT_MIN, +KS_DELETE, 0}}) {
        box().nCursorPos = nCursor;
        press({nKey});
        EXPECT_EQ(box().nCursorPos, nAfter);
    }
}

TEST_F(TextboxTest, DrawsItsInsideInAnyColour)
{
    const std::tuple<Box, const char*, int, Rows, Rows> boxes[] = {
        {{4, 3, BORDER}, "ab", SHOWCURSOR, {"┌──┐", "│ab ", "└──┘"}, {"ffff", "fuuU", "ffff"}},
        {{4, 3, BORDER, MASK}, "ab", HIDECURSOR, {"┌──┐", "│***", "└──┘"}, {"ffff", "fuuu", "ffff"}},
        {{3, 3}, "abc d", SHOWCURSOR, {"abc", " d ", "   "}, {"uuu", "uuU", "fff"}},
    };
    for (const auto& [size, szText, nCursor, rows, colours] : boxes) {
        config(size);
        box().nCursor = nCursor;
        press(keysOf(szText));
        DrawTextBox(GetChain(1)->Pointer, &box(), RED_WHITE);
        EXPECT_EQ(shown(2, 2, 3, size.nWidth), rows);
        EXPECT_EQ(shades(2, 2, 3, size.nWidth), colours);
    }
}

TEST_F(TextboxTest, RunsCallbacksInOrderAndAsksBeforeTheUserGoesOn)
{
    for (const auto& [nKey, nResult] : {std::pair(kTab, 10), {KS_ENTER, 10}, {KS_ESC, -10}}) {
        config({9, 1});
        events.clear();
        EXPECT_EQ(press({'a', KS_F1, nKey, 'b'}), nResult);
        EXPECT_EQ(events, "focus0 a0 a0 a0 unfocus0 ");
        EXPECT_EQ(GetCurrentComponentType(), TEXTBOX);
    }
    config({9, 1}, nullptr);
    const auto check = [](const char* szText) {
        note(szText);
        return std::strcmp(szText, "ok");
    };
    EXPECT_EQ(kultextbox_setCheck(1, kRef, check), 0);
    events.clear();
    EXPECT_EQ(press({'o', kTab, KS_ENTER, 'k', kTab, 'x'}), 10);
    EXPECT_EQ(events, "focus0 o0 o0 ok0 unfocus0 ");
    EXPECT_EQ(press({'x', KS_ESC}), -10);
    EXPECT_EQ(press({'x'}), KUL_LEFT);
    kulgui_setEdition(2);
    addComponent(BUTTON, 6, 20, 2, {nullptr, nullptr, nullptr, [] { note("click"); }});
    kulgui_setDefault(1, 6);
    kulgui_setHotkey(1, 6, KS_F1);
    kultextbox_setText(1, kRef, "");
    events.clear();
    EXPECT_EQ(press({KS_ENTER, KS_BACKTAB, KS_F1, 'o', 'k', KS_ENTER, 'k', KS_ESC}), KUL_CANCELLED);
    EXPECT_EQ(events, "focus0 0 0 0 ok0 click0 unfocus0 ");
    kultextbox_setCheck(1, kRef, [](const char*) {
        kulgui_destroy(1);
        return 1;
    });
    EXPECT_EQ(press({kTab}), -10000);
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
    for (const int nEdition : {1, 2}) {
        kulgui_setEdition(nEdition);
        for (const auto& row : boxes) {
            SCOPED_TRACE(std::to_string(row.nWidth) + " x " + std::to_string(row.nHeight));
            EXPECT_EQ(config({row.nWidth, row.nHeight, row.nBorder}), row.nResult);
            EXPECT_EQ(box().nMaxLength, row.nMaxLength);
            EXPECT_EQ(box().nBorder, row.nBorder == BORDER ? BORDER : NOBORDER);
            EXPECT_EQ(press(keysOf("abUDPNIL\x17XB")), KUL_LEFT);
            EXPECT_EQ(box().nLength, 0);
        }
    }
}

TEST_F(TextboxTest, SetsItsText)
{
    const std::tuple<const char*, int, int, const char*, int> rows[] = {
        {"abcd", 4, 0, "abcd", 4}, {"xyz", 1, 0, "xyz", 1}, {"xy", 3, 0, "xy", 2},
        {nullptr, 1, -1, "xy", 1}, {"12345", 1, -1, "", 0},
    };
    config({5, 1});
    for (const auto& [szText, nCursor, nResult, szAfter, nAfter] : rows) {
        box().nCursorPos = nCursor;
        EXPECT_EQ(kultextbox_setText(1, kRef, szText), nResult);
        EXPECT_STREQ(kultextbox_getText(1, kRef), szAfter);
        EXPECT_EQ(box().nLength, static_cast<int>(std::strlen(szAfter)));
        EXPECT_EQ(box().nCursorPos, nAfter);
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
        EXPECT_EQ(kultextbox_setLimit(1, kRef, 1000), -1);
        EXPECT_STREQ(kultextbox_getText(1, kRef), "abcd");
        EXPECT_EQ(kultextbox_config(1, kRef, BLACK_RED, KUL_KEEP, KUL_KEEP, 2, 2, 5, 1, NOBORDER, NOMASK, nullptr,
                                    nullptr, nullptr, nullptr),
                  -1);
        EXPECT_NE(box().nColorFocus, BLACK_RED) << "colours come after the memory";
    }
    EXPECT_EQ(kultextbox_getText(1, kRef), nullptr);
    EXPECT_EQ(kultextbox_setText(1, kRef, "x"), -1);
}

TEST_F(TextboxTest, ClearsItsTextFromMemory)
{
    const Box masked{8, 1, NOBORDER, MASK};
    const KULCALLBACK ways[] = {
        [] {
            config({8, 1});
        },
        [] { kultextbox_setLimit(1, kRef, 1000); },
        [] {
            kultextbox_setText(1, kRef, "x");
            press({KS_DELETE});
            EXPECT_EQ(std::string(box().szText, 6), std::string(6, '\0')) << "what is replaced";
            kulgui_destroy(1);
        },
    };
    for (const auto way : ways) {
        fill(masked, "secret");
        watchFree(box().szText, 7);
        way();
        EXPECT_TRUE(wasFreedClear());
    }
}

TEST_F(TextboxTest, TakesKeysWithoutAText)
{
    EXPECT_TRUE((refuse<kultextbox_getText, kultextbox_setText, kultextbox_setLimit>(1, kRef)));
    EXPECT_EQ(press(keysOf("aXBE")), KUL_LEFT);
    for (const int nEdition : {1, 2}) {
        kulgui_setEdition(nEdition);
        KULTEXTBOX own{};
        own.nLength = 3; // the cursor moves all the same
        for (const auto step : {TextBoxGoEnd, TextBoxGoLeft, TextBoxDelete, TextBoxBackspace, TextBoxGoUp})
            step(&own);
        TextBoxCharacter(&own, 'x');
        EXPECT_EQ(own.nCursorPos, 2);
    }
    EXPECT_EQ(WipeTextboxComponent(static_cast<KULTEXTBOX*>(calloc(1, sizeof(KULTEXTBOX)))), -1);
}

TEST_F(TextboxTest, Searches)
{
    EXPECT_EQ(FindChar('b', "abcb"), 1);
    EXPECT_EQ(FindChar('\0', "abc"), -1);
    EXPECT_EQ(FindChar('a', nullptr), -1);
    const std::tuple<const char*, const char*, int> rows[] = {
        {"cd", "abcd", 2},    {"abcd", "abc", -1},  {"aab", "aab", 0},
        {"ab", "aaab", 2},    {"ab", "aab", -1}, // the second a breaks the match
        {nullptr, "abc", -1}, {"abc", nullptr, -1},
    };
    for (const auto& [szText, szIn, nPlace] : rows)
        EXPECT_EQ(FindString(szText, szIn), nPlace);
}

// Edition 2: characters are letters.

class LetterBoxTest : public TextboxTest {
    const InColumns inColumns_;
};

TEST_F(LetterBoxTest, Edits)
{
    const Box line{6, 1}, two{4, 2}, three{3, 1}, framed{6, 4, BORDER}, masked{6, 1, NOBORDER, MASK};
    const Box set{6, 1, NOBORDER, NOMASK, "äöü中"}, nine{6, 1, NOBORDER, NOMASK, nullptr, 9};
    const Box many{4, 2, NOBORDER, NOMASK, nullptr, 99};
    const std::vector<int> none = {2, 31, 128, 255, 256, KS_ALT + 'x', -28, KUL_CHARACTER, INT_MAX, KS_F1};
    const Script scripts[] = {
        {line, "Gr", "öße", "Größe|", {"Größe "}, 5},
        {line, "中b", "HIxIy", "xy|b", {"xyb   "}, 2},
        {line, "a", "IbLIx", "ax|b", {"axb   "}, 2},
        {line, "abcde", "fg", "abcdef|", {"abcdef"}, 5}, // full: on the last cell
        {line, "a\u0308b", "HX", "|b", {"b     "}, 0},
        {line, "", "\u0308u\u0308\u0301LRR", "u\u0308\u0301|", {"u\u0308\u0301     "}, 1},
        {three, "", "a\u0308b\u0308c\u0308d\u0308", "a\u0308b\u0308c\u0308|", {"a\u0308b\u0308c\u0308"}, 2},
        {line, "a\tb\xc3", "", "a\tb\xc3|", {"a b?  "}, 4},
        {line, "a", "\u202e\u0085\u2028", "a|", {"a     "}, 1, {}, none},
        {set, "", "aäxö中", "äö中|", {"äö中  "}, 4},
        {masked, "", "中b\u0308", "中b\u0308|", {"**    "}, 2},
        {line, "abc", "L\x15", "|c", {"c     "}, 0},
        {line, "abc", "L\x0b", "ab|", {"ab    "}, 2},
        {line, "b", "\1a\5c", "abc|", {"abc   "}, 3},
        {nine, "abcdefg", "LLL", "abcd|efg", {"bcdefg"}, 3},
        {{2, 1, NOBORDER, NOMASK, nullptr, 9}, "a中", "L", "a|中", {"中"}, 0},
        {two, "", "abc中de", "abc中de|", {"abc ", "中de"}, 13},
        {{1, 3}, "中a", "", "中a|", {"?", "a", " "}, 20},
        {framed, "äbcde", "U", "ä|bcde", {"┌────┐", "│äbcd│", "│e   │", "└────┘"}, 12},
        {many, "abcdefghi", "UUD", "abcde|fghi", {"abcd", "efgh"}, 11},
        {many, "abcdefghijklm", "PP", "a|bcdefghijklm", {"abcd", "efgh"}, 1},
        {many, "ab|cdefghi", "N", "abcdefghi|", {"efgh", "i   "}, 11},
        {many, "abcdefghi", "B", "abcdefgh|", {"abcd", "efgh"}, 13},
        {many, "abcdefghijkl", "\x17", "|", {"    ", "    "}, 0},
    };
    for (const Script& script : scripts)
        play(script);
}

TEST_F(LetterBoxTest, TakesTextsAndLimits)
{
    config({3, 1});
    for (const auto& [szText, nResult] : {std::pair("äöü", 0), {"中b\u0308c", 0}, {"äöüx", -1}, {"äöü", 0}}) {
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
}

TEST_F(LetterBoxTest, IsSeenWithoutFocus)
{
    fill({4, 1}, "a");
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(cellOf(window(1), 2, 2).pair, BLACK_CYAN);
    const NoColors none;
    fill({4, 3, BORDER}, "a");
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    for (int nX = 0; nX < 4; ++nX)
        EXPECT_EQ(cellOf(window(1), 3, 2 + nX).attributes, nX % 3 == 0 ? A_NORMAL : A_UNDERLINE);
    press({});
    EXPECT_EQ(cellOf(window(1), 3, 3).attributes, A_REVERSE);
}

} // namespace
