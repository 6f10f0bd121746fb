// SPDX-License-Identifier: MIT
#include <climits>
#include <utility>

#include "support/window_test.hpp"

namespace {

constexpr int kScroll = 1;
constexpr int kProgress = 2;

// Gauges start at column 2 of row 2: what is read is one cell more at their front.
class GaugeTest : public kultest::Canvas<16, 14> {
protected:
    std::string line(int nOrient, bool colors)
    {
        std::string cells;
        for (int cell = 1; cell < 14; ++cell) {
            const int nY = nOrient == LATERAL ? 2 : cell;
            const int nX = nOrient == LATERAL ? cell : 2;
            const std::string found = colors ? shades(nY, nX, 1, 1) : drawn(nY, nX, 1, 1);
            cells += found.substr(0, found.size() - 1);
        }
        return cells;
    }
};

TEST_F(GaugeTest, PutsTheBarOnItsRail)
{
    // The bar is white, the rail cyan.
    const std::tuple<int, int, int, int, int, const char*> rows[] = {
        {kScroll, LATERAL, 10, 100, 50, "-cccccWcccc--"},
        {kScroll, LATERAL, 10, 100, 90, "-cccccccccW--"},
        {kScroll, LATERAL, 10, 20, 4, "-ccWWWWWccc--"},
        {kScroll, LATERAL, 10, 29, 5, "-ccWWWccccc--"},  // steps of 29 / 10 = 2
        {kScroll, LATERAL, 10, 30, 20, "-cccccccWWW--"}, // the last page
        {kScroll, LATERAL, 10, 3, 1, "-WWWWWWWWWW--"},
        {kScroll, VERTICAL, 10, 100, 50, "-cccccWcccc--"},
        {kScroll, LATERAL, 1, 9, 8, "-W-----------"},      // stays on a rail of one cell
        {kProgress, LATERAL, 10, 10, 10, "-wwwwwwwwwww-"}, // one cell past the rail
        {kProgress, LATERAL, 10, 10, 0, "-wccccccccc--"},
        {kProgress, LATERAL, 10, 100, 39, "-wwwwcccccc--"},
        {kProgress, VERTICAL, 10, 10, 3, "-cccccccwwww-"},
        // Numbers that make no sense stay on the rail, and divide by nothing.
        {kScroll, LATERAL, 10, 100, 1000, "-cccccccccW--"},
        {kScroll, LATERAL, 10, 0, 5, "-WWWWWWWWWW--"},
        {kScroll, LATERAL, 10, INT_MAX, INT_MIN, "-Wccccccccc--"},
        {kProgress, LATERAL, 10, 10, 1000, "-wwwwwwwwwww-"},
        {kProgress, LATERAL, 10, 10, -5, "-cccccccccc--"},
        {kProgress, LATERAL, 10, INT_MIN, INT_MIN, "-wwwwwwwwwww-"},
        {kScroll, LATERAL, 0, 10, 5, "-------------"},
        {kProgress, LATERAL, INT_MIN, 10, 5, "-------------"},
        {kScroll, LATERAL, INT_MAX, INT_MAX, 0, "-WWWWWWWWWWWW"},
        {kProgress, VERTICAL, INT_MAX, 10, -5, "-cccccccccccc"},
    };
    for (const auto& [nType, nOrient, nLength, nRange, nPosition, expected] : rows) {
        clear();
        const KULGAUGEBAR bar{RED_WHITE, RED_CYAN, 2, 2, nLength, nRange, nPosition, nOrient, F, nullptr};
        BarShow(gui_, &bar, nType);
        EXPECT_EQ(line(nOrient, true), expected) << nRange << ' ' << nPosition;
        EXPECT_EQ(getattrs(win_), static_cast<int>(A_NORMAL));
    }
    BarShow(nullptr, nullptr, kScroll);
    BarShow(gui_, nullptr, kProgress);
}

TEST_F(GaugeTest, DrawsRailsOfTheirLength)
{
    for (const auto& [nType, nOrient, cells] : {std::tuple(kScroll, +LATERAL, ".├──┤........"),
                                                {kProgress, +LATERAL, ".▒▒▒▒........"},
                                                {kScroll, +VERTICAL, ".┬││┴........"}}) {
        clear();
        const KULGAUGEBAR bar{0, 0, 2, 2, 4, 10, 1, nOrient, T, nullptr};
        BarRail(gui_, &bar, nType);
        EXPECT_EQ(line(nOrient, false), cells);
    }
}

TEST_F(GaugeTest, IsSetByPositionAndByWholeRanges)
{
    // The calls for progress bars are those for scroll bars.
    ASSERT_EQ(kulscrollbar_create(1, 1) + kulprogbar_create(1, 2), 0);
    for (const int nRef : {1, 2}) {
        EXPECT_EQ(kulprogbar_config(1, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, -4, 5, KUL_KEEP, KUL_KEEP, KUL_KEEP), 0);
        DI* di = GetDIComponentByRef(1, nRef);
        auto* bar = static_cast<KULGAUGEBAR*>(di->Pointer);
        EXPECT_EQ(
            (std::vector<int>{bar->nColorBar, bar->nColorRail, bar->nX, bar->nRange, bar->nPosition, bar->nOrient}),
            (std::vector<int>{RED_WHITE, RED_BLUE, KUL_KEEP, 10, 1, VERTICAL}))
            << "places have no default to keep";
        EXPECT_EQ(kulscrollbar_config(1, nRef, RED_WHITE, RED_CYAN, 2, 2, 10, 0, 100, LATERAL), 0);
        for (const auto& [nRange, nPercent, nPosition] : {std::tuple(100, 99, 0),
                                                          {100, 199, 100},
                                                          {100, 250, 200},
                                                          {100, -100, -100},
                                                          {100, INT_MAX, 2147483600},
                                                          {INT_MAX, INT_MAX, INT_MAX}}) {
            bar->nRange = nRange;
            EXPECT_EQ(kulprogbar_setByPercent(1, nRef, nPercent), 0);
            EXPECT_EQ(bar->nPosition, nPosition) << nPercent;
        }
        bar->nRange = 100;
        clear();
        di->nUpdate = -1;
        EXPECT_EQ(kulprogbar_setPosition(1, nRef, 40), 0);
        EXPECT_EQ(kulprogbar_setPosition(1, nRef, KUL_KEEP), 0);
        EXPECT_EQ(di->nUpdate, 0);
        UpdateDisplayComponents(gui_);
        EXPECT_EQ(line(LATERAL, true), nRef == 1 ? "-ccccWccccc--" : "-wwwwwccccc--");
        kulprogbar_hide(1, nRef);
        void* record = std::exchange(di->Pointer, nullptr);
        EXPECT_EQ(kulscrollbar_setPosition(1, nRef, 7), -10028);
        EXPECT_EQ(kulscrollbar_setByPercent(1, nRef, 7), -10028);
        di->Pointer = record;
    }
    clear();
    drawn();
    EXPECT_EQ(line(LATERAL, true), "-------------") << "hidden";
}

} // namespace
