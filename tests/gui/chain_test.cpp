// SPDX-License-Identifier: MIT
#include "support/window_test.hpp"

#include <climits>

namespace {

using Numbers = std::vector<int>;

// What the ring looks like from the primary on, walked both ways.
Numbers ring()
{
    Numbers numbers;
    const CHAIN* chain = GetPrimaryChain();
    while (chain) {
        numbers.push_back(chain->nRef);
        EXPECT_TRUE(!chain->Next || chain->Next->Prev == chain);
        chain = chain->Next == GetPrimaryChain() ? nullptr : chain->Next;
    }
    return numbers;
}

int configurePrime(int nChain)
{
    return kulgui_configPrime(nChain, KUL_KEEP, RED_BLACK, KUL_KEEP, KUL_KEEP, "p", nullptr, nullptr, nullptr, nullptr,
                              "words");
}

int configure(int nChain)
{
    return kulgui_config(nChain, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "t", KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP,
                         KUL_KEEP, nullptr, nullptr, nullptr, nullptr, nullptr);
}

class ChainTest : public ::testing::Test {
protected:
    void TearDown() override
    {
        if (const CHAIN* primary = GetPrimaryChain())
            kulgui_destroy(primary->nRef);
    }
};

TEST_F(ChainTest, GivesTheNumberAskedForOrTheFirstInUse)
{
    const std::pair<Numbers, Numbers> rows[] = {
        {{KUL_KEEP, KUL_KEEP}, {0, 0}}, // none is named
        {{7}, {7}},
        {{0, 1, 1, 0}, {0, 1, -10000, -10000}},
        {{0, 1, 5, 9, KUL_KEEP}, {0, 1, 5, 9, 5}}, // from one above the count on
        {{0, 2, KUL_KEEP}, {0, 2, 2}},             // exactly one above it
        {{0, 1, KUL_KEEP}, {0, 1, 0}},             // not the count itself
        {{0, -4, 1, KUL_KEEP}, {0, -4, 1, -4}},    // none above: wraps to the smallest
        {{0, INT_MAX, KUL_KEEP}, {0, INT_MAX, INT_MAX}},
    };
    for (const auto& [asked, got] : rows) {
        SCOPED_TRACE(testing::PrintToString(asked));
        for (std::size_t i = 0; i < asked.size(); ++i)
            EXPECT_EQ(kulgui_create(asked[i]), got[i]);
        TearDown();
    }
}

TEST_F(ChainTest, LinksARingAndUnlinksFromIt)
{
    EXPECT_EQ(CountChains(), -1);
    EXPECT_EQ(GetFinalChain(), nullptr);
    EXPECT_EQ(GetChain(0), nullptr);
    kulgui_create(0);
    EXPECT_EQ(CountChains(), 0);
    EXPECT_EQ(GetPrimaryChain()->Next, nullptr);
    EXPECT_EQ(GetFinalChain(), GetPrimaryChain());
    for (int nChain : {4, 6, 8})
        kulgui_create(nChain);
    EXPECT_EQ(CountChains(), 3);
    EXPECT_EQ(ring(), (Numbers{0, 4, 6, 8}));
    EXPECT_EQ(GetPrimaryChain()->Prev, GetChain(8));
    EXPECT_EQ(kulgui_destroy(5), -1);
    EXPECT_EQ(kulgui_destroy(6), 0);
    EXPECT_EQ(ring(), (Numbers{0, 4, 8}));
    EXPECT_EQ(kulgui_destroy(8) + kulgui_destroy(4), 0);
    EXPECT_EQ(GetPrimaryChain()->Next, nullptr);
    EXPECT_EQ(GetPrimaryChain()->Prev, nullptr);
    kulgui_create(1);
    SetPrimaryFlag();
    EXPECT_EQ(configurePrime(0), -10001);
    EXPECT_EQ(kulgui_destroy(0), 0);
    EXPECT_EQ(GetPrimaryChain(), nullptr);
    EXPECT_EQ(GetPrimaryFlag(), -1);
}

TEST_F(ChainTest, ConfiguringNeedsWhatItBuildsOn)
{
    EXPECT_EQ(configurePrime(0), -10006);
    EXPECT_EQ(ConfigGUIPrime(), -10002);
    kulgui_create(0);
    EXPECT_EQ(ConfigGUIPrime(), -10004);
    EXPECT_EQ(configure(1), -10009);
    kulgui_create(1);
    EXPECT_EQ(CreateUIComponent(9, BUTTON, 1), -10009);
    EXPECT_EQ(CreateUIComponent(1, BUTTON, 1), -10010);
    EXPECT_EQ(kulgui_exec(1), -1);
    EXPECT_EQ(configurePrime(8) + configurePrime(8), 0);
    EXPECT_EQ(GetPrimaryChain()->nRef, 8);
    EXPECT_EQ(GetPrimaryChain()->Pointer->nColorFocus, RED_BLACK);
    EXPECT_EQ(GetPrimaryChain()->Pointer->nColorStandard, BLACK_WHITE);
    EXPECT_EQ(configure(1), 0);
    const GUI& gui = *GetChain(1)->Pointer;
    EXPECT_EQ(
        (Numbers{gui.nColorStandard, gui.nColorUnfocus, gui.nColorDisable, gui.nBorder, gui.nVisible, gui.nCurrentUI}),
        (Numbers{RED_BLUE, RED_WHITE, RED_CYAN, BORDER, F, -1}));
    EXPECT_STREQ(gui.szLangFile, "words");
    EXPECT_EQ(CreateGUI(GetChain(1)), -10008);
    EXPECT_EQ(WipeChain(nullptr) + WipeAllUIComponents(nullptr) + AttachMenuComponentToUI(nullptr), -3);
}

TEST_F(ChainTest, ComponentsTakeTheFocusAndTheirNumberOnce)
{
    kulgui_create(0);
    configurePrime(0);
    const GUI& gui = *GetPrimaryChain()->Pointer;
    EXPECT_EQ(kulbutton_create(0, 5) + kulbutton_create(0, 6), 0);
    EXPECT_EQ(gui.nCurrentUI, 5);
    EXPECT_EQ(CreateDIComponent(0, 99, 6), 0) << "taken by a component: nothing is made";
    EXPECT_EQ(gui.Display, nullptr);
    EXPECT_EQ(CreateUIComponent(0, 42, 7), -1) << "no such kind";
    EXPECT_EQ(ComponentTypeByRef(0, 6), 6);
    EXPECT_EQ(ComponentTypeByRef(0, 8), 0);
    EXPECT_EQ(GetLastUIByGUI(&gui)->Prev, GetUIComponentByRef(0, 6));
}

} // namespace
