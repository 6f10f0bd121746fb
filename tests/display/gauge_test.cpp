// SPDX-License-Identifier: MIT
#include <climits>
#include <utility>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

constexpr int kScroll = 1;
constexpr int kProgress = 2;
constexpr int kBar = RED_WHITE;
constexpr int kRail = RED_CYAN;

// Small letters are colours, capitals reverse ones; '-' is what no gauge has drawn.
const std::vector<kultest::Legend> kLegend = {{'-', 0}, {'b', kBar}, {'r', kRail}};

class GaugeTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        gui_ = makeDialog(1, 16, 14);
        kulgui_show(1);
        werase(gui_->winMain);
    }

    // The cells from column 1 of row 1 on, to the right or down, of a gauge that starts at 2, 2.
    std::string colors(int nOrient)
    {
        std::string cells;
        for (int cell = 1; cell < 14; ++cell)
            cells += nOrient == LATERAL ? kultest::colors(gui_->winMain, 2, cell, 1, 1, kLegend)[0]
                                        : kultest::colors(gui_->winMain, cell, 2, 1, 1, kLegend)[0];
        return cells;
    }

    GUI* gui_ = nullptr;
};

TEST_F(GaugeTest, PutsTheBarOnItsRail)
{
    struct Row {
        int nType;
        int nOrient;
        int nLength;
        int nRange;
        int nPosition;
        const char* colors;
    };
    for (const Row& row : std::initializer_list<Row>{
             {kScroll, LATERAL, 10, 100, 50, "-rrrrrBrrrr--"},
             {kScroll, LATERAL, 10, 100, 0, "-Brrrrrrrrr--"},
             {kScroll, LATERAL, 10, 100, 90, "-rrrrrrrrrB--"},
             {kScroll, LATERAL, 10, 20, 4, "-rrBBBBBrrr--"},
             {kScroll, LATERAL, 10, 29, 5, "-rrBBBrrrrr--"},  // steps of 29 / 10 = 2
             {kScroll, LATERAL, 10, 30, 20, "-rrrrrrrBBB--"}, // the last page
             {kScroll, LATERAL, 10, 3, 1, "-BBBBBBBBBB--"},
             {kScroll, VERTICAL, 10, 100, 50, "-rrrrrBrrrr--"},
             {kScroll, LATERAL, 1, 9, 8, "-B-----------"},      // stays on a rail of one cell
             {kProgress, LATERAL, 10, 10, 10, "-bbbbbbbbbbb-"}, // one cell past the rail
             {kProgress, LATERAL, 10, 10, 0, "-brrrrrrrrr--"},
             {kProgress, LATERAL, 10, 100, 39, "-bbbbrrrrrr--"},
             {kProgress, VERTICAL, 10, 10, 10, "-bbbbbbbbbbb-"},
             {kProgress, VERTICAL, 10, 10, 0, "-rrrrrrrrrrb-"},
             {kProgress, VERTICAL, 10, 10, 3, "-rrrrrrrbbbb-"},
             // Numbers that make no sense stay on the rail, and divide by nothing.
             {kScroll, LATERAL, 10, 100, 1000, "-rrrrrrrrrB--"},
             {kScroll, LATERAL, 10, 100, -1000, "-Brrrrrrrrr--"},
             {kScroll, LATERAL, 10, 0, 5, "-BBBBBBBBBB--"},
             {kScroll, LATERAL, 10, INT_MAX, INT_MIN, "-Brrrrrrrrr--"},
             {kProgress, LATERAL, 10, 10, 1000, "-bbbbbbbbbbb-"},
             {kProgress, LATERAL, 10, 10, -5, "-rrrrrrrrrr--"},
             {kProgress, LATERAL, 10, 0, 5, "-brrrrrrrrr--"},
             {kProgress, LATERAL, 10, -10, 5, "-rrrrrrrrrr--"},
             {kProgress, LATERAL, 10, INT_MIN, INT_MIN, "-bbbbbbbbbbb-"},
             {kScroll, LATERAL, 0, 10, 5, "-------------"},
             {kScroll, VERTICAL, -7, 10, 5, "-------------"},
             {kProgress, LATERAL, INT_MIN, 10, 5, "-------------"},
             {kScroll, LATERAL, INT_MAX, INT_MAX, 0, "-BBBBBBBBBBBB"},
             {kProgress, VERTICAL, INT_MAX, 10, 0, "-rrrrrrrrrrrr"},
             {kProgress, VERTICAL, INT_MAX, 10, -5, "-rrrrrrrrrrrr"},
         }) {
        werase(gui_->winMain);
        const KULGAUGEBAR bar{kBar,       kRail,         2,           2, row.nLength,
                              row.nRange, row.nPosition, row.nOrient, F, nullptr};
        BarShow(gui_, &bar, row.nType);
        EXPECT_EQ(colors(row.nOrient), row.colors)
            << row.nType << ": " << row.nLength << ' ' << row.nRange << ' ' << row.nPosition;
        EXPECT_EQ(getattrs(gui_->winMain), static_cast<int>(A_NORMAL));
    }
    BarShow(nullptr, nullptr, kScroll);
    BarShow(gui_, nullptr, kProgress);
}

TEST_F(GaugeTest, DrawsRailsOfTheirLength)
{
    struct Row {
        int nType;
        int nOrient;
        const char* cells;
    };
    for (const Row& row : std::initializer_list<Row>{{kScroll, LATERAL, " ├──┤ "},
                                                     {kProgress, LATERAL, " ▒▒▒▒ "},
                                                     {kScroll, VERTICAL, " ┬││┴ "},
                                                     {kProgress, VERTICAL, " ▒▒▒▒ "}}) {
        werase(gui_->winMain);
        const KULGAUGEBAR bar{kBar, kRail, 2, 2, 4, 10, 1, row.nOrient, T, nullptr};
        BarRail(gui_, &bar, row.nType);
        std::string cells;
        for (int cell = 1; cell < 7; ++cell)
            cells += row.nOrient == LATERAL ? kultest::cellOf(gui_->winMain, 2, cell).glyph
                                            : kultest::cellOf(gui_->winMain, cell, 2).glyph;
        EXPECT_EQ(cells, row.cells);
    }
}

// Both families: the progress bar's calls are the scroll bar's.
TEST_F(GaugeTest, IsSetByPositionAndByWholeRanges)
{
    struct Family {
        int (*create)(int, int);
        int (*config)(int, int, int, int, int, int, int, int, int, int);
        int (*setPosition)(int, int, int);
        int (*setByPercent)(int, int, int);
        int (*hide)(int, int);
        int (*show)(int, int);
        int nTaken;
        const char* drawn;
    };
    int nRef = 1;
    for (const Family& family : {
             Family{kulscrollbar_create, kulscrollbar_config, kulscrollbar_setPosition,
                    kulscrollbar_setByPercent, kulscrollbar_hide, kulscrollbar_show, -10016,
                    "-rrrrBrrrrr--"},
             Family{kulprogbar_create, kulprogbar_config, kulprogbar_setPosition,
                    kulprogbar_setByPercent, kulprogbar_hide, kulprogbar_show, -10017,
                    "-bbbbbrrrrr--"},
         }) {
        ASSERT_EQ(family.create(1, nRef), 0);
        EXPECT_EQ(family.create(1, nRef), family.nTaken);
        EXPECT_EQ(family.config(1, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, -4, 5, KUL_KEEP, KUL_KEEP,
                                KUL_KEEP),
                  0);
        DI* di = GetDIComponentByRef(1, nRef);
        auto* bar = static_cast<KULGAUGEBAR*>(di->Pointer);
        EXPECT_EQ(bar->nColorBar, RED_WHITE);
        EXPECT_EQ(bar->nColorRail, RED_BLUE);
        EXPECT_EQ(bar->nX, KUL_KEEP) << "places have no default to keep";
        EXPECT_EQ(bar->nRange, 10);
        EXPECT_EQ(bar->nPosition, 1);
        EXPECT_EQ(bar->nOrient, VERTICAL);

        EXPECT_EQ(family.config(1, nRef, kBar, kRail, 2, 2, 10, 0, 100, LATERAL), 0);
        for (const auto& [nPercent, nPosition] :
             std::initializer_list<std::pair<int, int>>{{99, 0},
                                                        {100, 100},
                                                        {199, 100},
                                                        {250, 200},
                                                        {-100, -100},
                                                        {INT_MAX, 2147483600}}) {
            EXPECT_EQ(family.setByPercent(1, nRef, nPercent), 0);
            EXPECT_EQ(bar->nPosition, nPosition) << nPercent;
        }
        bar->nRange = INT_MAX;
        EXPECT_EQ(family.setByPercent(1, nRef, INT_MAX), 0);
        EXPECT_EQ(bar->nPosition, INT_MAX);
        bar->nRange = 100;
        EXPECT_EQ(family.setPosition(1, nRef, 40), 0);
        EXPECT_EQ(family.setPosition(1, nRef, KUL_KEEP), 0);
        EXPECT_EQ(bar->nPosition, 40);

        werase(gui_->winMain);
        EXPECT_EQ(family.hide(1, nRef), -1);
        ShowDisplayComponents(gui_);
        EXPECT_EQ(colors(LATERAL), "-------------");
        EXPECT_EQ(family.show(1, nRef), -1);
        di->nUpdate = -1;
        EXPECT_EQ(family.setPosition(1, nRef, 40), 0);
        EXPECT_EQ(di->nUpdate, 0);
        UpdateDisplayComponents(gui_);
        EXPECT_EQ(colors(LATERAL), family.drawn);
        family.hide(1, nRef);

        void* record = std::exchange(di->Pointer, nullptr);
        EXPECT_EQ(family.setPosition(1, nRef, 7), -10028);
        EXPECT_EQ(family.setByPercent(1, nRef, 7), -10028);
        di->Pointer = record;
        ++nRef;
    }
}

} // namespace
