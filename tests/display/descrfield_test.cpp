// SPDX-License-Identifier: MIT
#include <climits>

#include "support/window_test.hpp"

namespace {

class DescrfieldTest : public kultest::Canvas<30, 10> {
protected:
    void SetUp() override
    {
        Canvas::SetUp();
        ASSERT_EQ(kuldescrfield_create(1, 1), 0);
        ASSERT_EQ(config(12, 4), 0);
    }

    static int config(int nRefWidth, int nRefHeight)
    {
        return kuldescrfield_config(1, 1, RED_WHITE, RED_CYAN, 2, 1, 20, nRefWidth, nRefHeight);
    }
    static int add(const char* szText, const char* szBoxText)
    {
        return kuldescrfield_addElement(1, 1, szText, szBoxText);
    }
    static int set(int nElement, const char* szText, const char* szBoxText)
    {
        return kuldescrfield_setElement(1, 1, nElement, szText, szBoxText);
    }
    static KULDESCRFIELD& field(int nChain = 1)
    {
        return *static_cast<KULDESCRFIELD*>(GetDIComponentByRef(nChain, 1)->Pointer);
    }
};

TEST_F(DescrfieldTest, ExplainsTheSelectedElement)
{
    EXPECT_EQ(add("A", "What the first one is for"), 0);
    EXPECT_EQ(add("Be", "short"), 0);
    EXPECT_EQ(add("And a text too long", nullptr), 0);
    EXPECT_EQ(drawn(1, 1, 6, 29), ".A...Be...And a text too long|"
                                  ".┌──────────┐        ........|"
                                  ".│What the  │................|"
                                  ".│first one │................|"
                                  ".│          │................|"
                                  ".└──────────┘................|");
    EXPECT_EQ(shades(1, 1, 3, 29), "-w---cc---ccccccccccccccccccc|"
                                   "-wwwwwwwwwwwwwwwwwwww--------|"
                                   "-wwwwwwwwwwww----------------|");
    EXPECT_EQ(kuldescrfield_selElement(1, 1, 1) + add("far right", nullptr), 0);
    EXPECT_EQ(drawn(3, 1, 1, 13), ".│short     │|");
    EXPECT_EQ(shades(1, 1, 1, 8), "-c---ww-|");
    for (const auto& [nSelect, nResult, nSelected] : {std::tuple(5, -1, 0), {2, 0, 2}, {-7, 0, 0}}) {
        EXPECT_EQ(kuldescrfield_selElement(1, 1, nSelect), nResult);
        EXPECT_EQ(field().nSelect, nSelected);
    }
}

TEST_F(DescrfieldTest, ChangesTextsThatFit)
{
    const std::string fits(10 * 2, 'x');
    const std::string more = fits + 'x';
    add("one", "box");
    const std::tuple<const char*, int, const char*, const char*, int, std::string, std::string> rows[] = {
        {"as long as before: not taken", 0, "two", nullptr, 0, "one", "box"},
        {"below the first one", -4, "three", nullptr, 0, "three", "box"},
        {"as much as fits", 0, nullptr, fits.c_str(), 0, "three", fits},
        {"an error changes nothing", 0, "other", more.c_str(), -1, "three", fits},
        {"no such element", INT_MAX, "none", "none", 0, "three", fits},
    };
    const KULDESCRFLDELEMENT& element = *field().Element;
    for (const auto& [name, nElement, szText, szBoxText, nResult, text, boxText] : rows) {
        EXPECT_EQ(set(nElement, szText, szBoxText), nResult) << name;
        EXPECT_EQ(element.szText, text) << name;
        EXPECT_EQ(element.szBoxText, boxText) << name;
    }
    {
        const kultest::FailingMemory failing(0);
        EXPECT_EQ(set(0, "longer than before", "new"), -1);
    }
    EXPECT_EQ(element.szText + std::string(element.szBoxText), "three" + fits);
    EXPECT_EQ(set(0, "heading", element.szText), 0) << "its own text";
    EXPECT_STREQ(element.szText, "heading");
    EXPECT_STREQ(element.szBoxText, "three");
    add("two", more.c_str());
    EXPECT_EQ(element.Next->szBoxText, fits) << "cut to the box";
}

TEST_F(DescrfieldTest, RemovesElements)
{
    field().nSelect = 3;
    EXPECT_EQ(kuldescrfield_selElement(1, 1, 2), -1);
    EXPECT_EQ(field().nSelect, 0);
    EXPECT_EQ(kuldescrfield_remElement(1, 1), -1);
    EXPECT_EQ(add("one", "box") + add("two", "box") + kuldescrfield_remElement(1, 1), 0);
    EXPECT_EQ(field().Element->Next, nullptr);
    EXPECT_EQ(kuldescrfield_remElement(1, 1) + add("new", "box"), 0);
    EXPECT_STREQ(field().Element->szText, "new");
    EXPECT_EQ(config(12, 5), 0);
    EXPECT_EQ(field().Element, nullptr);
    EXPECT_EQ(field().nSelect, -1);
}

TEST_F(DescrfieldTest, TakesSmallBoxesAndMissingMemory)
{
    for (const auto& [nWidth, nHeight] : {std::pair(2, 5), {12, 2}, {-1, -1}, {INT_MIN, INT_MIN}}) {
        EXPECT_EQ(config(nWidth, nHeight), 0);
        EXPECT_EQ(add("one", "text"), 0);
        EXPECT_STREQ(field().Element->szBoxText, "") << nWidth;
        EXPECT_EQ(set(0, nullptr, "x"), -1);
        EXPECT_EQ(set(0, nullptr, ""), 0);
        EXPECT_EQ(drawn(1, 1, 1, 5), ".one.|") << nWidth;
    }
    EXPECT_EQ(config(INT_MAX, INT_MAX), 0);
    EXPECT_EQ(add("one", "text"), -1) << "no such amount of memory";
    EXPECT_EQ(set(0, nullptr, "text"), -1);
    EXPECT_EQ(drawn(2, 1, 1, 5), ".┌───|");
    for (int nGood = 0; nGood < 3; ++nGood) {
        config(12, 5);
        const kultest::FailingMemory failing(nGood);
        EXPECT_EQ(add("one", "text"), -1) << nGood;
        drawn();
    }
}

TEST_F(DescrfieldTest, StartsWithTheSizeOfItsDialog)
{
    makeDialog(2, 50, 12);
    kuldescrfield_create(2, 1);
    for (const char* when : {"before the first show", "after"}) {
        EXPECT_EQ(kuldescrfield_config(2, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP), 0);
        const KULDESCRFIELD& now = field(2);
        EXPECT_EQ((std::vector<int>{now.nColorSelect, now.nColorBack, now.nX, now.nY, now.nBarLength, now.nRefWidth,
                                    now.nRefHeight}),
                  (std::vector<int>{RED_WHITE, RED_BLUE, 2, 3, 46, 20, 7}))
            << when;
        kulgui_show(2);
    }
}

} // namespace
