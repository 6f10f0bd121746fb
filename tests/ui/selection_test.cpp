// SPDX-License-Identifier: MIT
//
// Keys draw no more than what they change. That it is enough is looked at after each drawing of any
// of these tests; here are keys for all kinds without callbacks, after which all would be drawn.
#include <random>
#include <string>

#include "support/window_test.hpp"

namespace {

using kultest::typeKeys;

class PartsTest : public kultest::WindowTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override
    {
        ASSERT_EQ(kulgui_setEdition(GetParam()), 0);
        WindowTest::SetUp();
    }
};

// Two of a kind, one over the other in part, a text that lies across both, and keys at random.
TEST_P(PartsTest, AreEnough)
{
    constexpr int kKeys[] = {KS_UP,   KS_DOWN, KS_LEFT,   KS_RIGHT, KS_DOWN, KS_RIGHT, KS_ENTER,    KS_SPACE,
                             KS_HOME, KS_END,  KS_PAGEUP, 'x',      'b',     KS_TAB,   KS_BACKSPACE};
    std::mt19937 numbers(1);
    for (int i = 0; i < 4 * (TEXTBOX + 1); ++i) {
        SCOPED_TRACE(i);
        const int nType = i / 4;
        makeDialog(1);
        kultest::addComponent(nType, 1, 2, 1);
        kultest::addComponent(nType, 2, 8, i % 2 ? 4 : 1);
        for (int n = 0; n < (i & 2 ? 9 : 3); ++n) {
            const std::string text = std::string(1, static_cast<char>('a' + n)) + (n % 3 ? "" : " text of two rows");
            kultest::addElement(1, text.c_str());
            kultest::addElement(2, text.c_str(), n != 2);
        }
        kullabel_create(1, 9);
        kullabel_config(1, 9, KUL_KEEP, KUL_KEEP, 4, 3, 30, 2, LEFT, NOBORDER, "a text that lies\nacross both");
        kulgui_setTabbing(1, T);
        std::vector<int> keys(60);
        for (int& nKey : keys)
            nKey = kKeys[numbers() % std::size(kKeys)];
        typeKeys(keys);
        kulgui_exec(1);
        kulgui_destroy(1);
    }
}

INSTANTIATE_TEST_SUITE_P(Editions, PartsTest, ::testing::Values(1, 2));

} // namespace
