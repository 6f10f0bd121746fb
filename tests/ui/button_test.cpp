// SPDX-License-Identifier: MIT
#include "support/window_test.hpp"

#include <string>

namespace {

using kultest::Rows;

std::string events;

class ButtonTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        makeDialog(1);
    }

    static int addButton(int nRef, int nX, const char* szText, int nWidth = 9, int nEnable = 1)
    {
        if (const int nResult = kulbutton_create(1, nRef))
            return nResult;
        return kulbutton_config(
            1, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, nX, 2, nWidth, nEnable, szText,
            [] { events += "focus "; }, [] { events += "unfocus "; }, [] { events += "select "; },
            [] { events += "click "; });
    }
};

TEST_F(ButtonTest, DrawsItsFrameTextAndColours)
{
    const std::vector<kultest::Legend> legend = {
        {'.', RED_BLUE}, {'u', RED_WHITE}, {'d', RED_CYAN}};
    addButton(1, 1, "Yes");
    addButton(2, 12, "Never", 9, 0);
    addButton(3, 24, nullptr, 4);
    addButton(4, 30, "too long", 6);
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(kultest::picture(window(1), 2, 0, 3, 40),
              (Rows{"│┌───────┐  ┌───────┐   ┌──┐  ┌────┐   │",
                    "││  Yes  │  │ Never │   │  │ too long  │",
                    "│└───────┘  └───────┘   └──┘  └────┘   │"}));
    EXPECT_EQ(kultest::colors(window(1), 3, 0, 1, 40, legend),
              (Rows{".uuuuuuuuu..ddddddddd...uuuu.uuuuuuuu..."}));
}

TEST_F(ButtonTest, RunsItsCallbacksInOrder)
{
    addButton(1, 1, "one", 0, 0);
    const auto& button = *static_cast<KULBUTTON*>(GetUIComponentByRef(1, 1)->Pointer);
    EXPECT_EQ(button.nWidth, 0);
    EXPECT_EQ(button.nColorFocus, RED_MAGENTA);
    kultest::typeKeys({KS_ENTER, KS_TAB, KS_UP, 'x'});
    EXPECT_EQ(kulbutton_execKeys(1, 1), KUL_LEFT);
    EXPECT_EQ(events, "focus select click unfocus ") << "also when it is disabled";
    EXPECT_EQ(GetCurrentComponentType(), BUTTON);
    EXPECT_EQ(kulbutton_hide(1, 1), -1);
    EXPECT_EQ(button.nVisible, F);
    events.clear();
    EXPECT_EQ(kulbutton_execKeys(1, 1), 10);
    EXPECT_EQ(events, "");
    EXPECT_EQ(kulgui_destroy(1), 0);
    EXPECT_EQ(kulbutton_show(1, 1), -1);
}

TEST_F(ButtonTest, VariantsHaveDefaultsAndNoText)
{
    const auto nothing = [](auto config) {
        return config(1, 4, 1, 2, 3, 4, 5, 6, 7, 1, "text", nullptr, nullptr, nullptr, nullptr);
    };
    EXPECT_EQ(nothing(kulokbutton_config), -1);
    EXPECT_EQ(kulcancelbutton_create(1, 4), 0);
    EXPECT_EQ(kulexitbutton_create(1, 4), -10022);
    const auto& button = *static_cast<KULBUTTON*>(GetUIComponentByRef(1, 4)->Pointer);
    for (const auto config : {kulokbutton_config, kulcancelbutton_config, kulexitbutton_config}) {
        addButton(4, 1, "before");
        kulbutton_config(1, 4, 1, 2, 3, 4, 5, 6, 7, 1, "before", nullptr, nullptr, nullptr,
                         nullptr);
        EXPECT_EQ(nothing(config), 0);
        EXPECT_EQ(button.szText, nullptr);
        EXPECT_EQ(button.nWidth, 9);
        EXPECT_EQ(button.nColorUnfocus, RED_WHITE);
    }
    // A text of its own may be given back, and one that cannot be copied leaves the defaults.
    kulbutton_config(1, 4, 1, 2, 3, 4, 5, 6, 7, 1, "own", nullptr, nullptr, nullptr, nullptr);
    kulbutton_config(1, 4, 1, 2, 3, 4, 5, 6, 7, 1, button.szText, nullptr, nullptr, nullptr,
                     nullptr);
    EXPECT_STREQ(button.szText, "own");
    const kultest::FailingMemory memory(0);
    EXPECT_EQ(nothing(kulbutton_config), -1);
    EXPECT_EQ(button.szText, nullptr);
}

} // namespace
