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
    const std::vector<kultest::Legend> legend = {{'.', RED_BLUE}, {'u', RED_WHITE}, {'d', RED_CYAN}};
    addButton(1, 1, "Yes");
    addButton(2, 12, "Never", 9, 0);
    addButton(3, 24, nullptr, 4);
    addButton(4, 30, "too long", 6);
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(kultest::picture(window(1), 2, 0, 3, 40), (Rows{
        "│┌───────┐  ┌───────┐   ┌──┐  ┌────┐   │",
        "││  Yes  │  │ Never │   │  │ too long  │",
        "│└───────┘  └───────┘   └──┘  └────┘   │"}));
    EXPECT_EQ(kultest::colors(window(1), 3, 0, 1, 40, legend), (Rows{
        ".uuuuuuuuu..ddddddddd...uuuu.uuuuuuuu..."}));
}

} // namespace
