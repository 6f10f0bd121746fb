// SPDX-License-Identifier: MIT
//
// What a dynamic menu shows; its keys are tested with those of the other menus.
#include "support/window_test.hpp"

#include <climits>
#include <clocale>
#include <string>

namespace {

using kultest::Rows;

constexpr int kRef = 5;
const std::vector<kultest::Legend> kLegend = {
    {'.', RED_BLUE}, {'f', RED_MAGENTA}, {'u', RED_WHITE}, {'d', RED_CYAN}};

class DynmenuTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        makeDialog(1);
        kulgui_show(1);
        kuldynmenu_create(1, kRef);
    }

    static int config(int nX, int nY, int nWidth, int nHeight)
    {
        return kuldynmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, nX, nY, nWidth, nHeight,
                                 nullptr, nullptr, nullptr, nullptr);
    }

    static void add(const std::vector<const char*>& texts)
    {
        for (const char* szText : texts)
            EXPECT_EQ(kuldynmenu_addElement(1, kRef, szText, nullptr, nullptr, 1), 0);
    }

    static KULDYNMENU& menu()
    {
        return *static_cast<KULDYNMENU*>(GetUIComponentByRef(1, kRef)->Pointer);
    }

    static void press(const std::vector<int>& keys)
    {
        kultest::typeKeys(keys);
        EXPECT_EQ(kuldynmenu_execKeys(1, kRef), KUL_LEFT);
    }

    // What stands in the rows inside of the frame.
    static Rows inside()
    {
        return kultest::picture(window(1), menu().nY + 1, menu().nX + 1, menu().nHeight,
                                menu().nWidth);
    }
};

TEST_F(DynmenuTest, ShowsItsElementsInAFrame)
{
    config(2, 1, 6, 4);
    add({"one", "seventeen", "no"});
    kuldynmenu_getElement(1, kRef, 2)->nEnable = 0;
    EXPECT_EQ(menu().nMaxLength, 9);
    press({'x'});
    EXPECT_EQ(
        kultest::picture(window(1), 1, 1, 6, 10),
        (Rows{" ┌──────┐ ", " │one   │ ", " │sevent│ ", " │no    │ ", " │      │ ", " └──────┘ "}));
    EXPECT_EQ(
        kultest::colors(window(1), 1, 1, 6, 10, kLegend),
        (Rows{".ffffffff.", ".ffffffff.", ".fuuuuuuf.", ".fddddddf.", ".ffffffff.", ".ffffffff."}));
    press({KS_UP}); // none is selected
    EXPECT_EQ(kultest::colors(window(1), 2, 2, 3, 8, kLegend),
              (Rows{"fuuuuuuf", "fuuuuuuf", "fddddddf"}));
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 2, 2, 3, 8, kLegend),
              (Rows{"uuuuuuuu", "uuuuuuuu", "uuuuuuuu"}));
    kuldynmenu_hide(1, kRef);
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 2, 2, 1, 8, kLegend), (Rows{"........"}));
}

TEST_F(DynmenuTest, ScrollsWithTheSelection)
{
    struct Row {
        std::vector<int> keys;
        Rows shown;
        int nSelect;
    };
    const Row rows[] = {
        {{'x'}, {"a", "b", "c"}, 0},
        {{KS_DOWN, KS_DOWN}, {"a", "b", "c"}, 2},
        {{KS_DOWN}, {"b", "c", "d"}, 3},
        {{KS_UP, KS_UP}, {"b", "c", "d"}, 1},
        {{KS_UP}, {"a", "b", "c"}, 0},
        {{KS_UP}, {"c", "d", "e"}, 5}, // the place after the last one
        {{KS_DOWN}, {"a", "b", "c"}, 0},
        {{KS_UP, KS_UP}, {"c", "d", "e"}, 4},
        {{KS_DOWN, KS_LEFT, KS_RIGHT}, {"c", "d", "e"}, 5},
    };
    config(2, 1, 1, 3);
    add({"a", "b", "c", "d", "e"});
    for (const Row& row : rows) {
        press(row.keys);
        EXPECT_EQ(menu().nSelect, row.nSelect);
        EXPECT_EQ(inside(), row.shown);
    }
    // Without the last two the view is moved up to fill the box, and stays inside of the list.
    kuldynmenu_remElement(1, kRef, 0);
    kuldynmenu_remElement(1, kRef, 0);
    EXPECT_EQ(menu().nElements, 5);
    press({'x'});
    EXPECT_EQ(inside(), (Rows{"a", "b", "c"}));
    for (const int nSelect : {INT_MAX, INT_MIN, -1, 3}) {
        menu().nSelect = nSelect;
        press({'x'});
        EXPECT_EQ(inside(), (Rows{"a", "b", "c"})) << nSelect;
    }
}

TEST_F(DynmenuTest, ScrollBarAppearsWhenTheListIsLonger)
{
    config(0, 0, 3, 5);
    add({"1", "2", "3", "4", "5"});
    press({'x'});
    EXPECT_EQ(kultest::picture(window(1), 0, 4, 7, 1), (Rows{"┐", "│", "│", "│", "│", "│", "┘"}));
    add({"6", "7", "8", "9", "10", "11", "12", "13", "14"});
    press({'x'});
    EXPECT_EQ(kultest::picture(window(1), 0, 4, 7, 1), (Rows{" ", " ", " ", "│", "│", "│", "┴"}));
    EXPECT_EQ(kultest::colors(window(1), 0, 4, 7, 1, kLegend),
              (Rows{"F", "F", "F", "f", "f", "f", "f"}));
}

TEST_F(DynmenuTest, KeepsInsideOfItsFrame)
{
    const struct {
        const char* szText;
        const char* shown;
    } rows[] = {
        {"a\nb\tc\001d", "a b c d   "},
        {nullptr, "          "},
        {"\x7f"
         "del",
         " del      "},
        {"123456789\x01", "123456789 "},
        {"123456789\x80!", "123456789 "},
        {"much longer than it", "much longe"},
    };
    config(5, 1, 10, 1);
    for (const auto& row : rows) {
        config(5, 1, 10, 1);
        kuldynmenu_addElement(1, kRef, row.szText, nullptr, nullptr, 1);
        press({'x'});
        EXPECT_EQ(kultest::picture(window(1), 2, 4, 1, 14),
                  (Rows{" │" + std::string(row.shown) + "│ "}));
    }
}

TEST_F(DynmenuTest, CutsByColumnsWhereTheLocaleHasWideCharacters)
{
    const char* before = std::setlocale(LC_CTYPE, "C.UTF-8");
    config(5, 1, 3, 3);
    add({"\u00e9\u00e9\u00e9\u00e9", "a\u4e2d\u4e2d", "ab\u4e2d"});
    press({'x'});
    const auto code = [](int nRow, int nColumn) {
        cchar_t cell;
        wchar_t text[CCHARW_MAX + 1] = L"";
        attr_t attributes;
        short nPair;
        mvwin_wch(window(1), 2 + nRow, 6 + nColumn, &cell);
        getcchar(&cell, text, &attributes, &nPair, nullptr);
        return static_cast<unsigned>(text[0]);
    };
    std::setlocale(LC_CTYPE, "C");
    ASSERT_NE(before, nullptr);
    EXPECT_EQ(code(0, 2), 0xe9U);
    EXPECT_EQ(code(1, 1), 0x4e2dU);
    EXPECT_EQ(code(2, 1), 'b');
    EXPECT_EQ(code(2, 2), ' ');
    for (const int nRow : {0, 1, 2})
        EXPECT_EQ(code(nRow, 3), 'x') << "the frame";
}

TEST_F(DynmenuTest, AnySizeAndPlace)
{
    kulgui_show(1);
    const Rows before = kultest::picture(window(1), 0, 0, 14, 40);
    for (const auto& [nWidth, nHeight] :
         std::initializer_list<std::pair<int, int>>{{0, 3}, {3, 0}, {-1, 3}, {3, INT_MIN}}) {
        config(2, 2, nWidth, nHeight);
        add({"a", "b", "c", "d"});
        press({KS_DOWN});
        EXPECT_EQ(kultest::picture(window(1), 0, 0, 14, 40), before);
    }
    for (const auto& [nX, nY, nWidth, nHeight] :
         std::initializer_list<std::array<int, 4>>{{0, 0, INT_MAX, INT_MAX},
                                                   {INT_MAX, INT_MAX, 3, 3},
                                                   {INT_MIN, INT_MIN, INT_MAX, 9},
                                                   {-3, -1, 5, 3},
                                                   {36, 11, 9, 9},
                                                   {39, 13, 1, 1}}) {
        config(nX, nY, nWidth, nHeight);
        add({"a", "b", "c", "d", "e", "f", "g", "h", "i", "j", "k", "l", "m", "n", "o", "p"});
        press({KS_UP, KS_UP, KS_DOWN, KS_DOWN, KS_DOWN});
        EXPECT_EQ(menu().nSelect, 1);
    }
}

TEST_F(DynmenuTest, EndsAtTheEdgeOfTheWindow)
{
    config(35, 1, 20, 2);
    add({"abcdefgh", "ijklmnop"});
    press({'x'});
    EXPECT_EQ(kultest::picture(window(1), 2, 34, 2, 6), (Rows{" │abcd", " │ijkl"}));
    EXPECT_EQ(kultest::picture(window(1), 2, 0, 3, 6), (Rows{"│     ", "│     ", "│     "}));
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
    EXPECT_EQ(kultest::picture(window(1), 0, 0, 3, 3), (Rows{"┌─┐", "│b│", "└─┘"}));
    WipeMenuElements(own.Element);
    ShowDynmenuComponent(nullptr, nullptr, 1);
    EXPECT_EQ(WipeDynmenuComponent(nullptr), 0);
}

} // namespace
