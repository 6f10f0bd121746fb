// SPDX-License-Identifier: MIT
//
// Check box lists and option lists: each test runs for both, but for what they differ in.
#include "support/window_test.hpp"

#include <algorithm>
#include <climits>

namespace {

using namespace kultest;

constexpr int D = KS_DOWN;
constexpr int U = KS_UP;
constexpr int S = KS_SPACE;

struct Checks {
    using Record = KULCHECKBOX;
    static constexpr int kType = CHECKBOX;
    static constexpr const char* kMarkers = "[]X";
    static constexpr auto focus = kulcheckbox_getFocus;
    static constexpr auto element = kulcheckbox_getElement;
    static constexpr auto remove = kulcheckbox_remElement;
    static constexpr auto setFirst = SetFirstCheckElement, setFirstFromEnd = SetFirstCheckElementFromEnd,
                          setLast = SetLastCheckElement;
    static constexpr auto spills = CheckLastCheckElementForSpillover, rows = GetTotalCheckElementHeights;
    static constexpr auto removeLast = RemoveCheckElement;
    static auto* make(KULCHECKELEMENT* head) { return AddCheckElement(head, 1, "x", nullptr); }
    static int& cursor() { return record<Record>().nSelect; }
};

struct Options {
    using Record = KULOPTIONS;
    static constexpr int kType = OPTIONS;
    static constexpr const char* kMarkers = "()o";
    static constexpr auto focus = kuloptions_getSelected;
    static constexpr auto element = kuloptions_getElement;
    static constexpr auto remove = kuloptions_remElement;
    static constexpr auto setFirst = SetFirstOptionElement, setFirstFromEnd = SetFirstOptionElementFromEnd,
                          setLast = SetLastOptionElement;
    static constexpr auto spills = CheckLastOptionElementForSpillover, rows = GetTotalOptionElementHeights;
    static constexpr auto removeLast = RemoveOptionElement;
    static auto* make(KULOPTIONELEMENT* head) { return AddOptionElement(head, 1, "x", nullptr, nullptr); }
    static int& cursor() { return record<Record>().nPosition; }
};

template <typename Kind>
class RingListTest : public ComponentTest {
protected:
    static constexpr bool kChecks = std::is_same_v<Kind, Checks>;

    static auto& list() { return record<typename Kind::Record>(); }

    // An event with what the selection says: the cursor, and what is chosen.
    static void note(const char* event) { kultest::note((event + std::to_string(Kind::focus(1, kRef)) + '/').c_str()); }

    // A list anew; a digit is a text of that many rows. Nothing is chosen.
    static void make(int nWidth, int nHeight, int nBorder, const char* digits = "", int nCursor = 0)
    {
        CreateUIComponent(1, Kind::kType, kRef);
        const KULCALLBACK focus = [] { note("focus"); }, unfocus = [] { note("unfocus"); },
                          select = [] { note("select"); }, click = [] { note("click"); };
        constexpr int k = KUL_KEEP;
        kulcheckbox_config(1, kRef, k, k, k, 2, 2, nWidth, nHeight, nBorder, focus, unfocus, select, click);
        kuloptions_config(1, kRef, k, k, k, 2, 2, nWidth, nHeight, nBorder, 77, nCursor, focus, unfocus, select, click);
        if (kChecks)
            Kind::cursor() = nCursor;
        events.clear();
        constexpr const char* kTexts[] = {"aaaaaa", "aaaaaa bbbbbb", "aaaaaa bbbbbb cccccc",
                                          "aaaaaa bbbbbb cccccc dddddd"};
        for (; *digits; ++digits)
            add(kTexts[*digits - '1']);
    }

    static void add(const char* szText)
    {
        const KULCALLBACK element = [] { note("element"); };
        ASSERT_EQ(addElement(kRef, szText, 1, element, element), 0);
    }

    static void addNumbers(int nCount)
    {
        for (int i = 0; i < nCount; ++i)
            add(std::to_string(i).c_str());
    }

    static int run(std::vector<int> keys, int nEnd, const std::vector<KULCALLBACK>& actions = {})
    {
        keys.push_back(nEnd);
        return ComponentTest::press(keys, actions);
    }

    static std::string state() // cursor, first and last in view
    {
        return std::to_string(Kind::cursor()) + ' ' + std::to_string(list().nFirstShowed) + ' ' +
               std::to_string(list().nLastShowed);
    }

    // A picture in which all markers are those of check box lists.
    static Rows drawn(int y, int x, int height, int width)
    {
        Rows rows = shown(y, x, height, width);
        for (std::string& row : rows) {
            for (const int i : {0, 1, 2})
                std::ranges::replace(row, Kind::kMarkers[i], "[]X"[i]);
        }
        return rows;
    }
};

using Kinds = ::testing::Types<Checks, Options>;
TYPED_TEST_SUITE(RingListTest, Kinds);

TYPED_TEST(RingListTest, MovesCursorAndView)
{
    const std::tuple<const char*, int, int, std::vector<int>, const char*> scripts[] = {
        {"111", 2, 0, {}, "0 0 1"},
        {"111", 2, 0, {D, D, D}, "0 0 1"},
        {"111", 2, 0, {U}, "2 1 2"},
        {"111", 2, 0, {U, U, U}, "0 0 1"},
        {"1221", 3, 0, {U}, "3 2 3"},
        {"122", 3, 0, {D, D}, "2 1 2"},
        {"141", 3, 0, {D}, "1 1 1"},
        {"44", 2, 0, {D}, "1 1 1"},  // one that is cut goes to the top
        {"141", 3, 0, {U}, "2 2 2"}, // the tall one before it would fill the box alone
        {"11", 2, 0, {'x', KS_LEFT, KS_END}, "0 0 1"},
        {"", 2, 0, {U}, "-1 -1 -1"},
        {"", 2, 0, {D}, "1 0 -1"},
        {"111", 0, 0, {D, D}, "2 2 1"},
        // A cursor that starts below the view, and outside of the list.
        {"111111111", 3, 7, {U}, "6 5 7"},
        {"111", 3, 50, {D}, "0 0 2"},
        {"111", 3, -7, {U}, "2 0 2"},
        {"11", 3, 9, {S}, "9 0 1"},
        {"11", 2, 0, {D, -2, D, D}, "3 2 3"}, // five come while it runs
    };
    for (const auto& [texts, nRows, nCursor, keys, state] : scripts) {
        SCOPED_TRACE(std::string(texts) + ": " + state);
        this->make(13, nRows + 2, BORDER, texts, nCursor);
        EXPECT_EQ(this->run(keys, KS_TAB, {[] { TestFixture::addNumbers(5); }}), 10);
        EXPECT_EQ(this->state(), state);
    }
}

TYPED_TEST(RingListTest, RunsCallbacksInOrder)
{
    const std::tuple<int, std::vector<int>, const char*, const char*> scripts[] = {
        {0,
         {D, S},
         "focus0/0 element1/1 select1/1 click1/1 unfocus1/1 ",
         "focus0/77 select1/77 element1/77 click1/1 element1/1 unfocus1/1 "},
        {1, {KS_ENTER, 'x'}, "focus1/1 click1/1 unfocus1/1 ", "focus1/77 click1/1 element1/1 unfocus1/1 "},
        // Keys find elements that the public lookups do not reach in their 30 steps.
        {38,
         {D, S},
         "focus38/38 element39/39 select39/39 click39/39 unfocus39/39 ",
         "focus38/77 select39/77 element39/77 click39/39 element39/39 unfocus39/39 "},
    };
    for (const auto& [nCursor, keys, checks, options] : scripts) {
        this->make(13, 5, BORDER, "", nCursor);
        this->addNumbers(40);
        EXPECT_EQ(this->run(keys, KS_ESC), -10);
        EXPECT_EQ(events, this->kChecks ? checks : options);
    }
    EXPECT_EQ(this->drawn(5, 3, 1, 6), Rows{"[X] 39"});
}

TYPED_TEST(RingListTest, StaysInBoxesOfAnySize)
{
    const std::tuple<int, int, int, Rows> boxes[] = {
        {5, 2, NOBORDER, {"[ ] ◆ ", "[ ] ┴ ", "      "}},
        {5, 1, 7, {"[ ] ◆ ", "      ", "      "}},
        {4, 3, NOBORDER, {"   ◆  ", "      ", "      "}},
        {6, 4, NOBORDER, Rows(3, "[ ]   ")},
        {3, 2, BORDER, {"┌─◆   ", "└─┴   ", "      "}},
        {1, 1, BORDER, {"◆     ", "      ", "      "}},
        {0, 4, BORDER, Rows(3, "      ")},
        {INT_MIN, INT_MIN, BORDER, Rows(3, "      ")},
    };
    for (const auto& [nWidth, nHeight, nBorder, rows] : boxes) {
        SCOPED_TRACE(std::to_string(nWidth) + " x " + std::to_string(nHeight));
        this->make(nWidth, nHeight, nBorder);
        for (int i = 0; i < 4; ++i)
            this->add("");
        EXPECT_EQ(this->run({D, D, D, D, U, D}, 0), KUL_LEFT);
        EXPECT_EQ(this->drawn(2, 2, 3, 6), rows);
    }
    for (const int nElements : {INT_MIN, INT_MAX}) { // written by a program
        this->make(14, 3, NOBORDER, "111");
        this->list().nElements = nElements;
        this->list().bScrollbar = T;
        this->run({U, D, D, U, U}, 0);
        TypeParam::setFirstFromEnd(&this->list());
        TypeParam::setLast(&this->list());
        this->list().nElements = 3;
        EXPECT_EQ(this->run({D}, 0), KUL_LEFT);
    }
}

TYPED_TEST(RingListTest, LooksUpByIndex)
{
    this->make(20, 6, NOBORDER);
    EXPECT_EQ(TypeParam::element(1, kRef, 0), nullptr);
    this->addNumbers(1);
    EXPECT_EQ(TypeParam::element(1, kRef, 1), nullptr);
    EXPECT_EQ(kulcheckbox_getSelect(1, kRef, 1), -1);
    this->make(20, 6, NOBORDER);
    this->addNumbers(40);
    const std::tuple<int, const char*, int, int> lookups[] = {
        // before and after setSelect
        {0, "0", 0, 1},     {0, "0", 1, 0},     {2, "2", 2, 0},          {29, "29", 0, 1},        {30, "30", -1, -1},
        {39, "30", -1, -1}, {-1, "30", -1, -1}, {INT_MAX, "30", -1, -1}, {INT_MIN, "30", -1, -1},
    };
    if (auto* element = kulcheckbox_getElement(1, kRef, 2))
        element->nSelect = 2; // neither
    for (const auto& [nIndex, szText, nBefore, nAfter] : lookups) {
        EXPECT_STREQ(TypeParam::element(1, kRef, nIndex)->szText, szText);
        EXPECT_EQ(kulcheckbox_getSelect(1, kRef, nIndex), this->kChecks ? nBefore : -1);
        kulcheckbox_setSelect(1, kRef, nIndex);
        EXPECT_EQ(kulcheckbox_getSelect(1, kRef, nIndex), this->kChecks ? nAfter : -1);
        const int nChosen = this->kChecks ? -1 : nIndex;
        EXPECT_EQ(kuloptions_setClicked(1, kRef, nIndex), nChosen);
        EXPECT_EQ(kuloptions_getClicked(1, kRef), nChosen);
    }
    EXPECT_EQ(TypeParam::focus(1, kRef), -1);
    EXPECT_EQ(TypeParam::remove(1, kRef, 0), 0);
    EXPECT_EQ(this->list().nElements, 40);
}

TYPED_TEST(RingListTest, DrawsElementsInView)
{
    this->make(13, 5, BORDER, "122");
    TypeParam::element(1, kRef, 2)->nEnable = 0;
    kulcheckbox_setSelect(1, kRef, 1);
    kuloptions_setClicked(1, kRef, 1);
    EXPECT_EQ(this->run({D, D}, KS_ESC), -10);
    EXPECT_EQ(this->drawn(2, 2, 5, 14),
              (Rows{"┌───────────  ", "│[X] aaaaaa   ", "│    bbbbbb   ", "│[ ] aaaaaa   ", "└───────────◆ "}));
    EXPECT_EQ(this->shades(3, 2, 3, 13), (Rows{"uuuu.uuuuuuuU", "u....uuuuuu.U", "ufff.fffffffU"}));
    // Without the focus all is in one colour; a disabled element shows as such only with it.
    GetChain(1)->Pointer->nCurrentUI = -1;
    kulgui_show(1);
    EXPECT_EQ(this->shades(5, 2, 1, 11), (Rows{"uuuu.uuuuuu"}));
    this->run({U}, KS_ESC);
    EXPECT_EQ(this->shades(3, 2, 3, 11), (Rows{"ufff.ffffff", "u....ffffff", "uddd.dddddd"}));
}

TYPED_TEST(RingListTest, StepsOfScrollingWorkOnAnyRecord)
{
    typename TypeParam::Record list{};
    list.nBorder = NOBORDER;
    list.nHeight = 5;
    for (const int nHeight : {1, 2, 3}) {
        auto* added = TypeParam::make(list.Element);
        added->nHeight = nHeight;
        list.Element = list.nElements++ == 0 ? added : list.Element;
    }
    EXPECT_EQ(TypeParam::rows(&list), 6);
    TypeParam::setFirstFromEnd(&list);
    TypeParam::setLast(&list);
    EXPECT_EQ(list.nFirstShowed, 1);
    EXPECT_EQ(list.LastShowed, list.Element->Prev);
    EXPECT_EQ(TypeParam::spills(&list), F);
    list.nHeight = 4;
    EXPECT_EQ(TypeParam::spills(&list), T);
    list.nFirstShowed = INT_MAX - 1; // 3 * 715827882
    TypeParam::setFirst(&list);
    TypeParam::setLast(&list);
    EXPECT_EQ(list.LastShowed, list.Element);
    list.nLastShowed = INT_MAX;
    list.Element->nHeight = list.Element->Next->nHeight = list.Element->Prev->nHeight = 0;
    EXPECT_EQ(TypeParam::spills(&list), F);
    for (const int nResult : {0, 0, 1})
        EXPECT_EQ(TypeParam::removeLast(list.Element), nResult);
}

} // namespace
