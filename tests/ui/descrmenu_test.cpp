// SPDX-License-Identifier: MIT
//
// What a description menu shows; its keys are tested with those of the other menus.
#include "support/window_test.hpp"

#include <climits>
#include <tuple>

namespace {

using namespace kultest;

class DescrmenuTest : public ComponentTest {
protected:
    void SetUp() override
    {
        ComponentTest::SetUp();
        kuldescrmenu_create(1, kRef);
    }

    static KULDESCRMENU& menu() { return record<KULDESCRMENU>(); }

    static void config(int nBarLength, int nBoxWidth, int nBoxHeight)
    {
        kuldescrmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 7, 7, nBarLength, nBoxWidth,
                            nBoxHeight, nullptr, nullptr, nullptr, nullptr);
    }

    static void add(const char* szText, const char* szBoxText, int nEnable = 1)
    {
        kuldescrmenu_addElement(1, kRef, nEnable, szText, szBoxText, nullptr, nullptr);
    }

    static void press(const std::vector<int>& keys)
    {
        typeKeys(keys);
        EXPECT_EQ(kuldescrmenu_execKeys(1, kRef), KUL_LEFT);
    }
};

TEST_F(DescrmenuTest, DescribesTheSelectedElement)
{
    config(KUL_KEEP, KUL_KEEP, KUL_KEEP);
    EXPECT_EQ(std::tuple(menu().nBarLength, menu().nBoxWidth, menu().nBoxHeight),
              std::tuple(75, 20, 19));
    config(20, 12, 5);
    add("Net", "all about host names");
    add("Off", "never seen", 0);
    add("Disk", nullptr);
    press({});
    // clang-format off
    EXPECT_EQ(shown(2, 1, 1, 22), (Rows{" Net   Off   Disk     "}));
    EXPECT_EQ(shown(3, 1, 6, 14), (Rows{" ┌──────────┐ ", " │all       │ ", " │about     │ ", " │host      │ ", " │          │ ", " └──────────┘ "}));
    // clang-format on
    EXPECT_EQ(shades(2, 1, 3, 22),
              (Rows{".fff...ddd...uuuu.....", ".ffffffffffffffffffff.", ".ffffffffffff........."}));
    press({KS_LEFT}); // none is selected
    EXPECT_EQ(shown(4, 1, 1, 14), (Rows{" │          │ "}));
    EXPECT_EQ(shades(2, 1, 1, 22), (Rows{".uuu...ddd...uuuu....."}));
    press({KS_LEFT, KS_LEFT});
    EXPECT_EQ(shown(4, 1, 1, 14), (Rows{" │never     │ "}));
    kulgui_show(1);
    EXPECT_EQ(shades(2, 1, 3, 22),
              (Rows{".uuu...uuu...uuuu.....", ".uuuuuuuuuuuuuuuuuuuu.", ".uuuuuuuuuuuu........."}));
    kuldescrmenu_hide(1, kRef);
    kulgui_show(1);
    EXPECT_EQ(shades(2, 1, 1, 22), (Rows{std::string(22, '.')}));
}

TEST_F(DescrmenuTest, DescribesElementsBeyondTheWindow)
{
    config(20, 12, 3);
    for (int i = 0; i < 40; ++i)
        add("text", std::to_string(i).c_str());
    menu().nSelect = 20;
    press({KS_RIGHT, KS_RIGHT});
    EXPECT_EQ(shown(4, 3, 1, 4), (Rows{"22  "}));
    for (int i = 0; i < 30; ++i)
        kuldescrmenu_remElement(1, kRef, 0);
    press({KS_LEFT}); // the count is not told, the list ends before
    EXPECT_EQ(shown(4, 3, 1, 4), (Rows{"    "}));
    menu().nSelect = 9;
    add("new", "here");
    press({KS_RIGHT});
    EXPECT_EQ(shown(4, 3, 1, 4), (Rows{"here"}));
}

TEST_F(DescrmenuTest, AnySizeAndPlace)
{
    for (const int nSize : {0, 1, 2, 3, -1, INT_MIN, INT_MAX}) {
        for (const int nPlace : {2, -5, INT_MIN, INT_MAX}) {
            config(nSize, nSize, nSize);
            add("text", "some words that wrap");
            menu().nX = menu().nY = nPlace;
            press({KS_LEFT, KS_RIGHT});
            EXPECT_EQ(menu().nSelect, 0);
        }
    }
}

} // namespace
