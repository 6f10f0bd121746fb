// SPDX-License-Identifier: MIT
#include <climits>
#include <clocale>
#include <utility>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

class DescrfieldTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        gui_ = makeDialog(1, 30, 10);
        ASSERT_EQ(kuldescrfield_create(1, 1), 0);
        ASSERT_EQ(config(12, 5), 0);
        kulgui_show(1);
    }

    static int config(int nRefWidth, int nRefHeight)
    {
        return kuldescrfield_config(1, 1, RED_WHITE, RED_CYAN, 2, 1, 20, nRefWidth, nRefHeight);
    }

    Rows drawn(int nHeight = 7)
    {
        ShowDisplayComponents(gui_);
        return kultest::picture(gui_->winMain, 1, 1, nHeight, 28);
    }

    KULDESCRFIELD& field() const
    {
        return *static_cast<KULDESCRFIELD*>(GetDIComponentByRef(1, 1)->Pointer);
    }

    GUI* gui_ = nullptr;
};

TEST_F(DescrfieldTest, ExplainsTheSelectedElement)
{
    EXPECT_EQ(kuldescrfield_addElement(1, 1, "A", "What the first one is for"), 0);
    EXPECT_EQ(kuldescrfield_addElement(1, 1, "Be", "short"), 0);
    EXPECT_EQ(kuldescrfield_addElement(1, 1, "And a text too long", nullptr), 0);
    EXPECT_EQ(drawn(), (Rows{" A   Be   And a text too lon", " ┌──────────┐               ",
                             " │What the  │               ", " │first one │               ",
                             " │is for    │               ", " │          │               ",
                             " └──────────┘               "}));
    const std::vector<kultest::Legend> legend = {
        {'.', RED_BLUE}, {'s', RED_WHITE}, {'b', RED_CYAN}};
    EXPECT_EQ(kultest::colors(gui_->winMain, 1, 1, 3, 28, legend),
              (Rows{".s...bb...bbbbbbbbbbbbbbbbbb", ".ssssssssssssssssssss.......",
                    ".ssssssssssss..............."}));
    EXPECT_EQ(kuldescrfield_selElement(1, 1, 1), 0);
    EXPECT_EQ(drawn()[2], " │short     │               ");
    EXPECT_EQ(kultest::colors(gui_->winMain, 1, 1, 1, 8, legend), (Rows{".b...ss."}));
    EXPECT_EQ(kuldescrfield_selElement(1, 1, 5), -1);
    EXPECT_EQ(field().nSelect, 0);
    EXPECT_EQ(kuldescrfield_selElement(1, 1, 2), 0);
    EXPECT_EQ(kuldescrfield_selElement(1, 1, -7), 0);
    EXPECT_EQ(field().nSelect, 0);
}

TEST_F(DescrfieldTest, CutsTextsByCellsAndNotByBytes)
{
    ASSERT_TRUE(std::setlocale(LC_ALL, "C.UTF-8"));
    std::string text;
    for (int nLength = 0; nLength < 20; ++nLength)
        text += "\303\251";
    kuldescrfield_addElement(1, 1, (text + "and a long tail").c_str(), "");
    EXPECT_EQ(drawn()[0], " " + std::string(20, '\351') + "and a l");
    EXPECT_EQ(drawn()[1], " ┌──────────┐               ");
    std::setlocale(LC_ALL, "C");
}

TEST_F(DescrfieldTest, ChangesTextsThatFit)
{
    kuldescrfield_addElement(1, 1, "one", "box");
    KULDESCRFLDELEMENT* element = field().Element;
    EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, "two", nullptr), 0);
    EXPECT_STREQ(element->szText, "one") << "as long as before";
    EXPECT_EQ(kuldescrfield_setElement(1, 1, -4, "three", nullptr), 0);
    EXPECT_STREQ(element->szText, "three");
    EXPECT_STREQ(element->szBoxText, "box");

    const std::string fits(10 * 3, 'x');
    EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, nullptr, fits.c_str()), 0);
    EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, "other", (fits + "x").c_str()), -1);
    EXPECT_STREQ(element->szText, "three") << "an error changes nothing";
    EXPECT_EQ(element->szBoxText, fits);
    {
        kultest::FailingMemory failing(0);
        EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, "longer than before", "new"), -1);
    }
    EXPECT_STREQ(element->szText, "three");
    EXPECT_EQ(element->szBoxText, fits);
    EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, "heading", element->szText), 0) << "its own text";
    EXPECT_STREQ(element->szText, "heading");
    EXPECT_STREQ(element->szBoxText, "three");
    EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, nullptr, fits.c_str()), 0);
    EXPECT_EQ(kuldescrfield_setElement(1, 1, 1, "none", "none"), 0) << "no such element";
    EXPECT_EQ(kuldescrfield_setElement(1, 1, INT_MAX, "none", "none"), 0);

    kuldescrfield_addElement(1, 1, "two", (fits + "more").c_str());
    EXPECT_EQ(element->Next->szBoxText, fits) << "cut to the box";
}

TEST_F(DescrfieldTest, RemovesElements)
{
    field().nSelect = 3;
    EXPECT_EQ(kuldescrfield_selElement(1, 1, 2), -1);
    EXPECT_EQ(field().nSelect, 0);
    EXPECT_EQ(kuldescrfield_remElement(1, 1), -1);
    kuldescrfield_addElement(1, 1, "one", "box");
    kuldescrfield_addElement(1, 1, "two", "box");
    EXPECT_EQ(kuldescrfield_remElement(1, 1), 0);
    EXPECT_EQ(field().Element->Next, nullptr);
    EXPECT_EQ(kuldescrfield_remElement(1, 1), 0);
    EXPECT_EQ(field().Element, nullptr);
    EXPECT_EQ(kuldescrfield_addElement(1, 1, "new", "box"), 0);
    EXPECT_STREQ(field().Element->szText, "new");
    EXPECT_EQ(config(12, 5), 0);
    EXPECT_EQ(field().Element, nullptr);
    EXPECT_EQ(field().nSelect, -1);
}

TEST_F(DescrfieldTest, TakesSmallBoxesAndMissingMemory)
{
    for (const auto& [nWidth, nHeight] : std::initializer_list<std::pair<int, int>>{
             {2, 5}, {12, 2}, {0, 0}, {-1, -1}, {INT_MIN, INT_MIN}}) {
        EXPECT_EQ(config(nWidth, nHeight), 0);
        EXPECT_EQ(kuldescrfield_addElement(1, 1, "one", "text"), 0);
        EXPECT_STREQ(field().Element->szBoxText, "") << nWidth;
        EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, nullptr, "x"), -1);
        EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, nullptr, ""), 0);
        EXPECT_EQ(drawn()[0], " one                        ") << nWidth;
    }
    werase(gui_->winMain);
    EXPECT_EQ(config(INT_MAX, INT_MAX), 0);
    EXPECT_EQ(kuldescrfield_addElement(1, 1, "one", "text"), -1) << "no such amount of memory";
    EXPECT_EQ(kuldescrfield_setElement(1, 1, 0, nullptr, "text"), -1);
    EXPECT_EQ(drawn()[1], " ┌──────────────────────────");
    for (int nGood = 0; nGood < 3; ++nGood) {
        config(12, 5);
        kultest::FailingMemory failing(nGood);
        EXPECT_EQ(kuldescrfield_addElement(1, 1, "one", "text"), -1) << nGood;
        drawn();
    }
}

TEST_F(DescrfieldTest, StartsWithTheSizeOfItsDialog)
{
    makeDialog(2, 50, 12);
    kuldescrfield_create(2, 1);
    for (const char* when : {"before the first show", "after"}) {
        EXPECT_EQ(kuldescrfield_config(2, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP,
                                       KUL_KEEP, KUL_KEEP),
                  0);
        const auto& field = *static_cast<KULDESCRFIELD*>(GetDIComponentByRef(2, 1)->Pointer);
        EXPECT_EQ(field.nColorSelect, RED_WHITE);
        EXPECT_EQ(field.nColorBack, RED_BLUE);
        EXPECT_EQ(field.nX, 2);
        EXPECT_EQ(field.nY, 3);
        EXPECT_EQ(field.nBarLength, 46) << when;
        EXPECT_EQ(field.nRefWidth, 20);
        EXPECT_EQ(field.nRefHeight, 7) << when;
        kulgui_show(2);
    }
}

} // namespace
