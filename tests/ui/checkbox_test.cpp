// SPDX-License-Identifier: MIT
#include <climits>
#include <string>

#include "support/window_test.hpp"

namespace {

using kultest::Rows;

constexpr int kUp = KS_UP;
constexpr int kDown = KS_DOWN;

std::string events;

void elementSelected()
{
    events += "e" + std::to_string(kulcheckbox_getFocus(1, 1)) + " ";
}

void listSelected()
{
    events += "s" + std::to_string(GetCurrentCheckboxSelection()) + " ";
}

class CheckboxTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        makeDialog(1);
        kulgui_show(1);
        ASSERT_EQ(kulcheckbox_create(1, 1), 0);
    }

    static int config(int nWidth, int nHeight, int nBorder)
    {
        return kulcheckbox_config(
            1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, nWidth, nHeight, nBorder,
            [] { events += "focus "; }, [] { events += "unfocus "; }, listSelected,
            [] { events += "click "; });
    }

    static void add(const std::vector<const char*>& texts)
    {
        for (const char* szText : texts)
            ASSERT_EQ(kulcheckbox_addElement(1, 1, szText, 0, 1, elementSelected, nullptr), 0);
    }

    static KULCHECKBOX& record()
    {
        return *static_cast<KULCHECKBOX*>(GetUIComponentByRef(1, 1)->Pointer);
    }
};

struct Script {
    const char* texts; // a digit each: a text of that many rows
    int nRows;
    std::vector<int> keys;
    const char* state;  // cursor, first and last in view
    const char* events; // between taking the focus and losing it
};

const Script kScripts[] = {
    {"111", 2, {}, "0 0 1", ""},
    {"111", 2, {kDown}, "1 0 1", "e1 s1 "},
    {"111", 2, {kDown, kDown}, "2 1 2", "e1 s1 e2 s2 "},
    {"111", 2, {kDown, kDown, kDown}, "0 0 1", "e1 s1 e2 s2 e0 s0 "},
    {"111", 2, {kUp}, "2 1 2", "e2 s2 "},
    {"111", 2, {kUp, kUp, kUp}, "0 0 1", "e2 s2 e1 s1 e0 s0 "},
    {"141", 3, {kDown}, "1 1 1", "e1 s1 "}, // one that is cut goes to the top
    {"121", 3, {kDown}, "1 0 1", "e1 s1 "}, // one that is not stays
    {"122", 3, {kDown, kDown}, "2 1 2", "e1 s1 e2 s2 "},
    {"1221", 3, {kUp}, "3 2 3", "e3 s3 "},
    {"141", 3, {kUp}, "2 2 2", "e2 s2 "}, // the tall one before it would fill the box alone
    {"44", 2, {kDown}, "1 1 1", "e1 s1 "},
    {"1", 2, {kDown, kUp}, "0 0 0", "e0 s0 e0 s0 "},
    {"", 2, {kUp}, "-1 -1 -1", "s-1 "},
    {"", 2, {kDown}, "1 0 -1", "s1 "},
    {"", 2, {KS_SPACE}, "0 -1 -1", "click "},
    {"11", 2, {'x', KS_LEFT, KS_END}, "0 0 1", ""},
    {"11", 2, {KS_SPACE, kDown, KS_ENTER}, "1 0 1", "click e1 s1 click "},
    {"111", 0, {kDown, kDown}, "2 2 1", "e1 s1 e2 s2 "},
    {"111", -3, {kUp, kDown}, "0 0 -1", "e2 s2 e0 s0 "},
};

TEST_F(CheckboxTest, MovesCursorAndView)
{
    for (const Script& script : kScripts) {
        SCOPED_TRACE(std::string(script.texts) + ": " + script.state);
        events.clear();
        ASSERT_EQ(config(13, script.nRows + 2, BORDER), 0);
        for (const char* digit = script.texts; *digit; ++digit)
            add({std::string("aaaaaa bbbbbb cccccc dddddd",
                             static_cast<std::size_t>(*digit - '0') * 7 - 1)
                     .c_str()});
        std::vector<int> keys = script.keys;
        keys.push_back(KS_TAB);
        kultest::typeKeys(keys);
        EXPECT_EQ(kulcheckbox_execKeys(1, 1), 10);
        EXPECT_EQ(events, std::string("focus ") + script.events + "unfocus ");
        EXPECT_EQ(std::to_string(record().nSelect) + " " + std::to_string(record().nFirstShowed) +
                      " " + std::to_string(record().nLastShowed),
                  script.state);
    }
}

TEST_F(CheckboxTest, DrawsElementsInView)
{
    const std::vector<kultest::Legend> legend = {
        {'.', RED_BLUE}, {'f', RED_MAGENTA}, {'u', RED_WHITE}, {'d', RED_CYAN}};
    config(13, 5, BORDER);
    add({"one", "aaaaaa bbbbbb", "aaaaaa bbbbbb"});
    kulcheckbox_getElement(1, 1, 2)->nEnable = 0;
    kulcheckbox_setSelect(1, 1, 1);
    kulcheckbox_getElement(1, 1, 0)->nSelect = 2; // neither
    kultest::typeKeys({kDown, kDown});
    kulcheckbox_execKeys(1, 1);
    EXPECT_EQ(kultest::picture(window(1), 2, 2, 5, 14),
              (Rows{"┌───────────  ", "│[X] aaaaaa   ", "│    bbbbbb   ", "│[ ] aaaaaa   ",
                    "└───────────◆ "}));
    EXPECT_EQ(kultest::colors(window(1), 3, 2, 3, 13, legend),
              (Rows{"uuuu.uuuuuuuU", "u....uuuuuu.U", "ufff.fffffffU"}));
    // Without the focus all is in one colour; a disabled element shows as such only with it.
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 5, 2, 1, 11, legend), (Rows{"uuuu.uuuuuu"}));
    kultest::typeKeys({kUp});
    kulcheckbox_execKeys(1, 1);
    EXPECT_EQ(kultest::colors(window(1), 3, 2, 3, 11, legend),
              (Rows{"ufff.ffffff", "u....ffffff", "uddd.dddddd"}));
}

TEST_F(CheckboxTest, StaysInBoxesOfAnySize)
{
    struct {
        int nWidth, nHeight, nBorder;
        Rows rows;
    } const boxes[] = {
        {5, 2, NOBORDER, {"[ ] ◆ ", "[ ] ┴ ", "      "}},
        {5, 1, NOBORDER, {"[ ] ◆ ", "      ", "      "}},
        {4, 2, NOBORDER, {"   ◆  ", "   ┴  ", "      "}},
        {3, 2, BORDER, {"┌─◆   ", "└─┴   ", "      "}},
        {1, 1, BORDER, {"◆     ", "      ", "      "}},
        {0, 4, BORDER, {"      ", "      ", "      "}},
        {-5, 3, NOBORDER, {"      ", "      ", "      "}},
        {6, 0, BORDER, {"      ", "      ", "      "}},
        {6, -1, NOBORDER, {"      ", "      ", "      "}},
        {INT_MIN, INT_MIN, BORDER, {"      ", "      ", "      "}},
    };
    for (const auto& box : boxes) {
        SCOPED_TRACE(std::to_string(box.nWidth) + " x " + std::to_string(box.nHeight));
        config(box.nWidth, box.nHeight, box.nBorder);
        add({"", "", "", ""});
        kultest::typeKeys({kDown, kDown, kDown, kDown, kUp, kDown});
        EXPECT_EQ(kulcheckbox_execKeys(1, 1), KUL_LEFT);
        EXPECT_EQ(kultest::picture(window(1), 2, 2, 3, 6), box.rows);
    }
}

TEST_F(CheckboxTest, LooksUpByIndex)
{
    config(20, 6, NOBORDER);
    EXPECT_EQ(kulcheckbox_getElement(1, 1, 0), nullptr);
    EXPECT_EQ(kulcheckbox_setSelect(1, 1, 0), -1);
    add({"0"});
    EXPECT_STREQ(kulcheckbox_getElement(1, 1, 0)->szText, "0");
    EXPECT_EQ(kulcheckbox_getElement(1, 1, 1), nullptr);
    EXPECT_EQ(kulcheckbox_getSelect(1, 1, 1), -1);
    for (int i = 1; i < 40; ++i)
        add({std::to_string(i).c_str()});
    struct {
        int nIndex;
        const char* szText;
        int nSelect; // after setSelect
    } const lookups[] = {{0, "0", 1},    {29, "29", 1},       {30, "30", -1},     {39, "30", -1},
                         {-1, "30", -1}, {INT_MAX, "30", -1}, {INT_MIN, "30", -1}};
    for (const auto& row : lookups) {
        EXPECT_STREQ(kulcheckbox_getElement(1, 1, row.nIndex)->szText, row.szText);
        EXPECT_EQ(kulcheckbox_setSelect(1, 1, row.nIndex), row.nSelect == -1 ? -1 : 0);
        EXPECT_EQ(kulcheckbox_getSelect(1, 1, row.nIndex), row.nSelect);
    }
    EXPECT_EQ(kulcheckbox_getFocus(1, 1), -1);
    EXPECT_EQ(kulcheckbox_remElement(1, 1, 0), 0);
    EXPECT_EQ(record().nElements, 40);
}

TEST_F(CheckboxTest, AnswersUnknownAndOther)
{
    EXPECT_EQ(record().nColorFocus, RED_MAGENTA); // defaults before the config call
    EXPECT_EQ(record().nFirstShowed, -1);
    kulbutton_create(1, 2);
    EXPECT_EQ(kulcheckbox_create(1, 2), -10023);
    for (const int nRef : {2, 99, INT_MIN}) {
        EXPECT_EQ(kulcheckbox_config(1, nRef, 0, 0, 0, 0, 0, 9, 9, BORDER, nullptr, nullptr,
                                     nullptr, nullptr),
                  -1);
        EXPECT_EQ(kulcheckbox_addElement(1, nRef, "x", 0, 1, nullptr, nullptr), -1);
        EXPECT_EQ(kulcheckbox_getElement(1, nRef, 0), nullptr);
        EXPECT_EQ(kulcheckbox_setSelect(1, nRef, 0), -1);
        EXPECT_EQ(kulcheckbox_getSelect(1, nRef, 0), -1);
        EXPECT_EQ(kulcheckbox_execKeys(1, nRef), -10000);
    }
    EXPECT_EQ(kulcheckbox_addElement(1, 1, nullptr, 0, 1, nullptr, nullptr), 0);
    EXPECT_STREQ(kulcheckbox_getElement(1, 1, 0)->szText, "");
    kulcheckbox_hide(1, 1);
    EXPECT_EQ(kulcheckbox_execKeys(1, 1), 10);
    SetFirstCheckElement(nullptr);
    SetFirstCheckElementFromEnd(nullptr);
    SetLastCheckElement(nullptr);
    ShowCheckboxComponent(nullptr, nullptr, 1);
    EXPECT_EQ(CheckLastCheckElementForSpillover(nullptr), F);
    EXPECT_EQ(GetTotalCheckElementHeights(nullptr), 0);
    EXPECT_EQ(WipeCheckElements(nullptr), -1);
    EXPECT_EQ(RemoveCheckElement(nullptr), -1);
    EXPECT_EQ(WipeCheckboxComponent(nullptr), 0);
}

TEST_F(CheckboxTest, StepsOfScrollingWorkOnAnyRecord)
{
    KULCHECKBOX list{};
    list.nBorder = NOBORDER;
    list.nHeight = 4;
    for (const int nHeight : {1, 2, 3}) {
        KULCHECKELEMENT* element = AddCheckElement(list.Element, 1, "x", nullptr);
        list.Element = list.Element ? list.Element : element;
        element->nHeight = nHeight;
        ++list.nElements;
    }
    KULCHECKELEMENT* last = list.Element->Prev;
    EXPECT_EQ(last->Next, list.Element);
    EXPECT_EQ(GetTotalCheckElementHeights(&list), 6);
    SetFirstCheckElementFromEnd(&list);
    EXPECT_EQ(list.nFirstShowed, 1);
    SetLastCheckElement(&list);
    EXPECT_EQ(list.LastShowed, last);
    EXPECT_EQ(CheckLastCheckElementForSpillover(&list), T);
    list.nHeight = 5;
    EXPECT_EQ(CheckLastCheckElementForSpillover(&list), F);
    list.nFirstShowed = INT_MAX - 1; // 3 * 715827882
    SetFirstCheckElement(&list);
    EXPECT_EQ(list.FirstShowed, list.Element);
    SetLastCheckElement(&list);
    EXPECT_EQ(list.LastShowed, list.Element);
    EXPECT_EQ(RemoveCheckElement(list.Element), 0);
    EXPECT_EQ(RemoveCheckElement(list.Element), 0);
    EXPECT_EQ(list.Element->Next, nullptr);
    EXPECT_EQ(list.Element->Prev, nullptr);
    EXPECT_EQ(RemoveCheckElement(list.Element), 1);
}

TEST_F(CheckboxTest, NoticesWhatCallbacksDo)
{
    struct {
        const char* name;
        KULCALLBACK action;
        int nResult;
    } const rows[] = {
        {"destroy", [] { kulgui_destroy(1); }, -10000},
        {"hide", [] { kulcheckbox_hide(1, 1); }, 0},
        {"leave", [] { kulgui_leave(1); }, KUL_LEFT},
        {"focus", [] { kulgui_setFocus(1, 1); }, 0},
        {"config", [] { config(9, 3, NOBORDER); }, 10},
        {"config and add",
         [] {
             config(9, 3, NOBORDER);
             add({"new", "newer"});
         },
         10},
        {"empty",
         [] {
             kulgui_config(1, 0, 0, 0, 0, "", BORDER, 0, 0, 9, 9, nullptr, nullptr, nullptr,
                           nullptr, nullptr);
         },
         -10000},
    };
    for (const auto& row : rows) {
        for (int nWhere = 0; nWhere < 5; ++nWhere) {
            SCOPED_TRACE(row.name + std::to_string(nWhere));
            kulgui_destroy(1);
            makeDialog(1);
            kulcheckbox_create(1, 1);
            kulcheckbox_config(1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 1, 20, 3, NOBORDER,
                               nWhere == 0 ? row.action : nullptr, nullptr,
                               nWhere == 1 ? row.action : nullptr,
                               nWhere == 2 ? row.action : nullptr);
            for (int i = 0; i < 5; ++i)
                kulcheckbox_addElement(1, 1, "x", 0, 1, nWhere == 3 ? row.action : nullptr,
                                       nullptr);
            kultest::typeKeys({kDown, kDown, KS_SPACE, nWhere == 4 ? -2 : 0, KS_TAB}, {row.action});
            EXPECT_EQ(kulcheckbox_execKeys(1, 1), row.nResult);
        }
    }
}

TEST_F(CheckboxTest, ElementsComeWhileItRuns)
{
    config(20, 2, NOBORDER);
    kultest::typeKeys({kDown, -2, kUp, KS_SPACE, KS_TAB}, {[] { add({"late", "later", "last"}); }});
    EXPECT_EQ(kulcheckbox_execKeys(1, 1), 10);
    EXPECT_EQ(record().nFirstShowed, 0);
    EXPECT_EQ(record().nLastShowed, 1);
    EXPECT_EQ(kulcheckbox_getSelect(1, 1, 0), 1);
}

TEST_F(CheckboxTest, TenThousandElements)
{
    constexpr int kCount = 10000;
    config(20, 7, BORDER);
    for (int i = 0; i < kCount; ++i)
        add({std::to_string(i).c_str()});
    EXPECT_EQ(GetTotalCheckElementHeights(&record()), kCount);
    std::vector<int> keys(5000, kDown);
    keys.insert(keys.end(), {KS_SPACE, kUp});
    kultest::typeKeys(keys);
    kulcheckbox_execKeys(1, 1);
    EXPECT_EQ(record().nSelect, 4999);
    EXPECT_EQ(record().nFirstShowed, 4996);
    EXPECT_STREQ(record().FirstShowed->szText, "4996");
    EXPECT_EQ(record().FirstShowed->Next->Next->Next->Next->nSelect, 1);
    EXPECT_EQ(kultest::picture(window(1), 6, 3, 2, 8), (Rows{"[ ] 4999", "[X] 5000"}));
    EXPECT_TRUE(events.ends_with("s5000 click e4999 s4999 unfocus "));
    record().nSelect = 0;
    kultest::typeKeys({kUp, kUp, kDown, kDown, kUp});
    kulcheckbox_execKeys(1, 1);
    EXPECT_EQ(record().nSelect, kCount - 1);
    EXPECT_STREQ(record().FirstShowed->szText, "9995");
    EXPECT_STREQ(record().LastShowed->szText, "9999");
}

TEST_F(CheckboxTest, LivesWithoutMemory)
{
    for (int nGood = 0; nGood < 2; ++nGood) {
        const kultest::FailingMemory failing(nGood);
        EXPECT_LT(kulcheckbox_create(1, 7 + nGood), 0);
        EXPECT_EQ(kulcheckbox_addElement(1, 1, "x", 0, 1, nullptr, nullptr), -1);
        EXPECT_EQ(AddCheckElement(nullptr, 1, "x", nullptr), nullptr);
    }
    EXPECT_EQ(record().nElements, 0);
    EXPECT_EQ(record().nFirstShowed, -1);
}

} // namespace
