// SPDX-License-Identifier: MIT
#include "support/window_test.hpp"

#include <climits>

namespace {

// What the ring looks like from the primary on, walked both ways.
std::vector<int> ring()
{
    std::vector<int> numbers;
    const CHAIN* chain = GetPrimaryChain();
    while (chain) {
        numbers.push_back(chain->nRef);
        EXPECT_TRUE(!chain->Next || chain->Next->Prev == chain);
        chain = chain->Next == GetPrimaryChain() ? nullptr : chain->Next;
    }
    return numbers;
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
    const struct {
        const char* name;
        std::vector<int> asked;
        std::vector<int> got;
    } rows[] = {
        {"the first is 0 when none is named", {KUL_KEEP}, {0}},
        {"the primary takes any number", {7}, {7}},
        {"a number in use is refused", {0, 1, 1, 0}, {0, 1, -10000, -10000}},
        {"the first in use from one above the count on", {0, 1, 5, 9, KUL_KEEP}, {0, 1, 5, 9, 5}},
        {"exactly one above the count", {0, 2, KUL_KEEP}, {0, 2, 2}},
        {"none above: wraps to the smallest", {0, -4, 1, KUL_KEEP}, {0, -4, 1, -4}},
        {"the largest is still above", {0, INT_MAX, KUL_KEEP}, {0, INT_MAX, INT_MAX}},
        {"the primary itself", {0, KUL_KEEP}, {0, 0}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        for (std::size_t i = 0; i < row.asked.size(); ++i)
            EXPECT_EQ(kulgui_create(row.asked[i]), row.got[i]);
        kulgui_destroy(GetPrimaryChain()->nRef);
    }
}

TEST_F(ChainTest, CountsAndFindsInTheRing)
{
    EXPECT_EQ(CountChains(), -1);
    EXPECT_EQ(GetFinalChain(), nullptr);
    EXPECT_EQ(GetChain(0), nullptr);
    kulgui_create(0);
    EXPECT_EQ(CountChains(), 0);
    EXPECT_EQ(GetPrimaryChain()->Next, nullptr);
    EXPECT_EQ(GetFinalChain(), GetPrimaryChain());
    kulgui_create(4);
    kulgui_create(6);
    EXPECT_EQ(CountChains(), 2);
    EXPECT_EQ(ring(), (std::vector<int>{0, 4, 6}));
    EXPECT_EQ(GetPrimaryChain()->Prev, GetChain(6));
    EXPECT_EQ(GetChain(5), nullptr);
}

TEST_F(ChainTest, DestroyingUnlinks)
{
    for (int nChain : {0, 1, 2, 3})
        kulgui_create(nChain);
    EXPECT_EQ(kulgui_destroy(9), -1);
    EXPECT_EQ(kulgui_destroy(2), 0);
    EXPECT_EQ(ring(), (std::vector<int>{0, 1, 3}));
    EXPECT_EQ(kulgui_destroy(3), 0);
    EXPECT_EQ(kulgui_destroy(1), 0);
    EXPECT_EQ(GetPrimaryChain()->Next, nullptr);
    EXPECT_EQ(GetPrimaryChain()->Prev, nullptr);
    kulgui_create(1);
    SetPrimaryFlag();
    EXPECT_EQ(kulgui_configPrime(0, 0, 0, 0, 0, "", nullptr, nullptr, nullptr, nullptr, nullptr),
              -10001);
    EXPECT_EQ(kulgui_destroy(0), 0);
    EXPECT_EQ(GetPrimaryChain(), nullptr);
    EXPECT_EQ(GetPrimaryFlag(), -1);
    EXPECT_EQ(kulgui_create(3), 3);
}

TEST_F(ChainTest, ConfiguringNeedsWhatItBuildsOn)
{
    const auto configure = [](int nChain) {
        return kulgui_config(nChain, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "t", KUL_KEEP,
                             KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, nullptr, nullptr, nullptr,
                             nullptr, nullptr);
    };
    const auto configurePrime = [](int nChain) {
        return kulgui_configPrime(nChain, KUL_KEEP, RED_BLACK, KUL_KEEP, KUL_KEEP, "p", nullptr,
                                  nullptr, nullptr, nullptr, "words");
    };
    EXPECT_EQ(configurePrime(0), -10006);
    EXPECT_EQ(ConfigGUIPrime(), -10002);
    kulgui_create(0);
    EXPECT_EQ(ConfigGUIPrime(), -10004);
    EXPECT_EQ(configure(1), -10009);
    kulgui_create(1);
    EXPECT_EQ(CreateUIComponent(9, BUTTON, 1), -10009);
    EXPECT_EQ(CreateUIComponent(1, BUTTON, 1), -10010);
    EXPECT_EQ(kulgui_exec(1), -1);
    EXPECT_EQ(configurePrime(8), 0);
    EXPECT_EQ(configurePrime(8), 0);
    EXPECT_EQ(GetPrimaryChain()->nRef, 8);
    EXPECT_EQ(GetPrimaryChain()->Pointer->nColorFocus, RED_BLACK);
    EXPECT_EQ(GetPrimaryChain()->Pointer->nColorStandard, BLACK_WHITE);
    EXPECT_EQ(configure(1), 0);
    const GUI& gui = *GetChain(1)->Pointer;
    EXPECT_EQ(gui.nColorStandard, RED_BLUE);
    EXPECT_EQ(gui.nColorDisable, RED_CYAN);
    EXPECT_EQ(gui.nBorder, BORDER);
    EXPECT_EQ(gui.nVisible, F);
    EXPECT_EQ(gui.nCurrentUI, -1);
    EXPECT_STREQ(gui.szLangFile, "words");
    EXPECT_EQ(CreateGUI(GetChain(1)), -10008);
}

TEST_F(ChainTest, ComponentsTakeTheFocusAndTheirNumberOnce)
{
    kulgui_create(0);
    kulgui_configPrime(0, 0, 0, 0, 0, "", nullptr, nullptr, nullptr, nullptr, nullptr);
    const GUI& gui = *GetPrimaryChain()->Pointer;
    EXPECT_EQ(kulbutton_create(0, 5), 0);
    EXPECT_EQ(kulbutton_create(0, 6), 0);
    EXPECT_EQ(gui.nCurrentUI, 5);
    EXPECT_EQ(kulbutton_create(0, 6), -10022);
    EXPECT_EQ(CreateDIComponent(0, 99, 6), 0) << "taken by a component: nothing is made";
    EXPECT_EQ(gui.Display, nullptr);
    EXPECT_EQ(CreateUIComponent(0, 42, 7), -1) << "no such kind";
    EXPECT_EQ(ComponentTypeByRef(0, 6), 6);
    EXPECT_EQ(ComponentTypeByRef(0, 8), 0);
    EXPECT_EQ(GetLastUIByGUI(&gui)->Prev, GetUIComponentByRef(0, 6));
    EXPECT_EQ(kulbutton_hide(0, 5), -1);
    EXPECT_EQ(static_cast<KULBUTTON*>(GetUIComponentByRef(0, 5)->Pointer)->nVisible, F);
}

TEST_F(ChainTest, NumbersOfEverySize)
{
    EXPECT_EQ(ActiveChain(-1), GetActiveChain());
    EXPECT_EQ(ActiveChain(KUL_KEEP), KUL_KEEP);
    EXPECT_EQ(GetActiveChain(), KUL_KEEP);
    int nValue = 3;
    SetVar(&nValue, KUL_KEEP);
    EXPECT_EQ(nValue, 3);
    SetVar(&nValue, 0);
    EXPECT_EQ(nValue, 0);
    SetVar(nullptr, 1);
    EXPECT_EQ(WipeChain(nullptr), -1);
    EXPECT_EQ(WipeAllChains(nullptr), -1);
    EXPECT_EQ(WipeAllUIComponents(nullptr), -1);
    EXPECT_EQ(AddUIComponent(nullptr, nullptr), 0);
    EXPECT_EQ(GetLastUIByGUI(nullptr), nullptr);
    EXPECT_EQ(GetUIComponentByRef(3, 3), nullptr);
    EXPECT_EQ(ComponentTypeByChain(nullptr, 1), 0);
    EXPECT_EQ(AttachComponentToUI(nullptr, BUTTON), -1);
}

TEST_F(ChainTest, SurvivesEveryFailedAllocation)
{
    const auto build = [] {
        kulgui_create(0);
        kulgui_configPrime(0, 0, 0, 0, 0, "", nullptr, nullptr, nullptr, nullptr, nullptr);
        kulgui_create(1);
        kulgui_config(1, 0, 0, 0, 0, "", 0, 0, 0, 20, 5, nullptr, nullptr, nullptr, nullptr,
                      nullptr);
        kulbutton_create(1, 1);
        return kulbutton_config(1, 1, 0, 0, 0, 0, 1, 1, 9, 1, "text", nullptr, nullptr, nullptr,
                                nullptr);
    };
    int nGood = 0;
    for (;; ++nGood) {
        {
            const kultest::FailingMemory memory(nGood);
            if (build() == 0)
                break;
        }
        kulgui_show(1);
        if (GetPrimaryChain())
            kulgui_destroy(0);
    }
    EXPECT_EQ(nGood, 7) << "allocations that were made to fail, one after the other";
}

} // namespace
