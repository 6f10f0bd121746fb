// SPDX-License-Identifier: MIT
#include "support/window_test.hpp"

namespace {

using namespace kultest;

class ButtonTest : public ComponentTest {
protected:
    static int config(int nRef, int nX, const char* szText, int nWidth = 9, int nEnable = 1)
    {
        return kulbutton_config(
            1, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, nX, 2, nWidth, nEnable, szText, [] { note("focus"); },
            [] { note("unfocus"); }, [] { note("select"); }, [] { note("click"); });
    }
};

TEST_F(ButtonTest, DrawsItsFrameTextAndColours)
{
    for (const int nRef : {1, 2, 3, 4})
        kulbutton_create(1, nRef);
    config(1, 1, "Yes");
    config(2, 12, "Never", 9, 0);
    config(3, 24, nullptr, 4);
    config(4, 30, "too long", 6);
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(shown(2, 0, 3, 40),
              (Rows{"│┌───────┐  ┌───────┐   ┌──┐  ┌────┐   │", "││  Yes  │  │ Never │   │  │ too long  │",
                    "│└───────┘  └───────┘   └──┘  └────┘   │"}));
    EXPECT_EQ(shades(3, 0, 1, 40), (Rows{".uuuuuuuuu..ddddddddd...uuuu.uuuuuuuu..."}));
}

TEST_F(ButtonTest, RunsItsCallbacksInOrder)
{
    kulbutton_create(1, kRef);
    EXPECT_EQ(config(kRef, 1, "one", 0, 0), 0);
    EXPECT_EQ(record<KULBUTTON>().nWidth, 0);
    EXPECT_EQ(record<KULBUTTON>().nColorFocus, RED_MAGENTA);
    EXPECT_EQ(press({KS_ENTER, KS_TAB, KS_UP, 'x'}), KUL_LEFT);
    EXPECT_EQ(events, "focus0 select0 click0 unfocus0 ") << "also when it is disabled";
    EXPECT_EQ(GetCurrentComponentType(), BUTTON);
}

TEST_F(ButtonTest, VariantsHaveDefaultsAndNoText)
{
    const auto plain = [](auto configure, const char* szText) {
        return configure(1, kRef, 1, 2, 3, 4, 5, 6, 7, 1, szText, nullptr, nullptr, nullptr, nullptr);
    };
    EXPECT_EQ(kulcancelbutton_create(1, kRef), 0);
    EXPECT_EQ(kulexitbutton_create(1, kRef), -10022);
    const auto& button = record<KULBUTTON>();
    for (const auto variant : {kulokbutton_config, kulcancelbutton_config, kulexitbutton_config}) {
        EXPECT_EQ(plain(kulbutton_config, "before"), 0);
        EXPECT_EQ(plain(variant, "text"), 0);
        EXPECT_EQ(button.szText, nullptr);
        EXPECT_EQ(button.nWidth, 9);
        EXPECT_EQ(button.nColorUnfocus, RED_WHITE);
    }
    for (const auto show : {kulokbutton_show, kulcancelbutton_show, kulexitbutton_show}) {
        kulokbutton_hide(1, kRef);
        show(1, kRef);
        EXPECT_EQ(button.nVisible, T);
    }
    // A text of its own may be given back, and one that cannot be copied leaves the defaults.
    plain(kulbutton_config, "own");
    plain(kulbutton_config, button.szText);
    EXPECT_STREQ(button.szText, "own");
    const FailingMemory memory(0);
    EXPECT_EQ(plain(kulbutton_config, "text"), -1);
    EXPECT_EQ(button.szText, nullptr);
}

} // namespace
