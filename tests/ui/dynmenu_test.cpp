// SPDX-License-Identifier: MIT
//
// How a dynamic menu scrolls and cuts texts; the rest is tested with the other menus.
#include "support/window_test.hpp"

#include <climits>
#include <clocale>

namespace {

using namespace kultest;

class DynmenuTest : public ComponentTest {
protected:
    void SetUp() override
    {
        ComponentTest::SetUp();
        kuldynmenu_create(1, kRef);
    }

    static KULDYNMENU& menu() { return record<KULDYNMENU>(); }

    static void fill(int nX, int nY, int nWidth, int nHeight, const std::vector<const char*>& texts)
    {
        kuldynmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, nX, nY, nWidth, nHeight, nullptr, nullptr, nullptr,
                          nullptr);
        for (const char* szText : texts)
            EXPECT_EQ(kuldynmenu_addElement(1, kRef, szText, nullptr, nullptr, 1), 0);
    }
};

TEST_F(DynmenuTest, ScrollsWithTheSelection)
{
    const std::tuple<std::vector<int>, Rows, int> rows[] = {
        {{KS_DOWN, KS_DOWN}, {"a", "b", "c"}, 2},
        {{KS_DOWN}, {"b", "c", "d"}, 3},
        {{KS_UP, KS_UP}, {"b", "c", "d"}, 1},
        {{KS_UP}, {"a", "b", "c"}, 0},
        {{KS_UP}, {"c", "d", "e"}, 5}, // the place after the last one
        {{KS_DOWN}, {"a", "b", "c"}, 0},
        {{KS_UP, KS_UP}, {"c", "d", "e"}, 4},
        {{KS_DOWN, KS_LEFT, KS_RIGHT}, {"c", "d", "e"}, 5},
    };
    fill(2, 1, 1, 3, {"a", "b", "c", "d", "e"});
    for (const auto& [keys, view, nSelect] : rows) {
        press(keys);
        EXPECT_EQ(menu().nSelect, nSelect);
        EXPECT_EQ(shown(2, 3, 3, 1), view);
    }
    // Without the last two the view is moved up to fill the box, and stays inside of the list.
    kuldynmenu_remElement(1, kRef, 0);
    kuldynmenu_remElement(1, kRef, 0);
    for (const int nSelect : {5, INT_MAX, INT_MIN, -1, 3}) {
        menu().nSelect = nSelect;
        press({});
        EXPECT_EQ(shown(2, 3, 3, 1), (Rows{"a", "b", "c"})) << nSelect;
    }
}

TEST_F(DynmenuTest, ScrollBarAppearsWhenTheListIsLonger)
{
    fill(0, 0, 3, 5, {"1", "longest", "3", "4", "5"});
    EXPECT_EQ(menu().nMaxLength, 7);
    press({});
    EXPECT_EQ(shown(0, 4, 7, 1), (Rows{"┐", "│", "│", "│", "│", "│", "┘"}));
    fill(0, 0, 3, 5, {"1", "2", "3", "4", "5", "6", "7", "8", "9", "a", "b", "c", "d", "e"});
    press({});
    EXPECT_EQ(shown(0, 4, 7, 1), (Rows{" ", " ", " ", "│", "│", "│", "┴"}));
    EXPECT_EQ(shades(0, 4, 7, 1), (Rows{"F", "F", "F", "f", "f", "f", "f"}));
}

TEST_F(DynmenuTest, CutsTextsByTheColumnsOfTheLocale)
{
    // clang-format off
    const struct { const char *locale, *szText, *shown; } rows[] = { // with the frame
        {"C", "a\nb\tc\001d", "│a b c│"}, {"C", nullptr, "│     │"}, {"C", "\177del", "│ del │"},
        {"C", "1234\x01", "│1234 │"}, {"C", "1234\x80!", "│1234?│"}, {"C", "much longer", "│much │"},
        {"C.UTF-8", "éééééé", "│ééééé│"}, {"C.UTF-8", "abc中中", "│abc中│"}, {"C.UTF-8", "abcd中", "│abcd │"},
        {"C.UTF-8", "\u0301a", "│a    │"}, // the accent is not the frame's
        {"C.UTF-8", "\xc2中\xe4", "│?中? │"}, {"C.UTF-8", "abcd\xc2", "│abcd?│"},
    };
    // clang-format on
    for (const auto& row : rows) {
        ASSERT_NE(std::setlocale(LC_CTYPE, row.locale), nullptr);
        fill(5, 1, 5, 1, {row.szText});
        press({});
        EXPECT_EQ(picture(window(1), 2, 5, 1, 7), Rows{row.shown}) << row.szText;
    }
    std::setlocale(LC_CTYPE, "C");
    fill(35, 1, 20, 2, {"abcdefgh", "ijklmnop"}); // the window ends first
    press({});
    EXPECT_EQ(shown(2, 34, 2, 6), (Rows{" │abcd", " │ijkl"}));
    EXPECT_EQ(shown(2, 0, 3, 6), (Rows{"│     ", "│     ", "│     "}));
    fill(-4, 1, 20, 2, {"abcdefgh", "ij\tk"}); // or begins later
    press({});
    EXPECT_EQ(shown(2, 0, 2, 6), (Rows{"defgh ", "k     "}));
}

TEST_F(DynmenuTest, IsNotSeenWithoutAnInside)
{
    const Rows before = shown(0, 0, 14, 40);
    for (const auto& [nWidth, nHeight] : {std::pair(0, 3), {3, 0}, {-1, 3}, {3, INT_MIN}}) {
        fill(2, 2, nWidth, nHeight, {"a", "b", "c", "d"});
        press({KS_UP, KS_UP, KS_DOWN, KS_DOWN, KS_DOWN});
        EXPECT_EQ(menu().nSelect, 1);
        EXPECT_EQ(shown(0, 0, 14, 40), before);
    }
}

// The exported calls take a program's own record too.
TEST_F(DynmenuTest, DrawsARecordOfTheProgram)
{
    KULDYNMENU own{};
    GUI* gui = GetChain(1)->Pointer;
    ASSERT_EQ(ConfigDynmenuComponent(gui, &own), 0);
    own.nWidth = own.nHeight = 1;
    own.Element = AddMenuElement(nullptr, 1, "a", nullptr, nullptr);
    AddMenuElement(own.Element, 1, "b", nullptr, nullptr);
    own.nSelect = 1;
    ShowDynmenuComponent(gui, &own, 1);
    EXPECT_EQ(shown(0, 0, 3, 3), (Rows{"┌─┐", "│b│", "└─┘"}));
    WipeMenuElements(own.Element);
}

} // namespace
