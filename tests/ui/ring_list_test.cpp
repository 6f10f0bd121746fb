// SPDX-License-Identifier: MIT
//
// Check box lists and option lists: each test runs for both, but for what they differ in.
#include "support/window_test.hpp"

#include <algorithm>
#include <climits>

namespace {

using namespace kultest;

constexpr int kKeep = KUL_KEEP;
constexpr int D = KS_DOWN;
constexpr int U = KS_UP;
constexpr int S = KS_SPACE;

struct Callbacks {
    KULCALLBACK onFocus, onUnfocus, onSelect, onClick, onElement;
};

struct Checks {
    using Record = KULCHECKBOX;
    static constexpr const char* kMarkers = "[]X";
    static constexpr int kTaken = -10023, kForeign = -10000, kHidden = 10, kHiddenMeanwhile = 10;
    static constexpr auto create = kulcheckbox_create, hide = kulcheckbox_hide, execKeys = kulcheckbox_execKeys,
                          focus = kulcheckbox_getFocus;
    static constexpr auto element = kulcheckbox_getElement;
    static constexpr auto remove = kulcheckbox_remElement;
    static constexpr auto draw = ShowCheckboxComponent;
    static constexpr auto setFirst = SetFirstCheckElement, setFirstFromEnd = SetFirstCheckElementFromEnd,
                          setLast = SetLastCheckElement;
    static constexpr auto spills = CheckLastCheckElementForSpillover, rows = GetTotalCheckElementHeights;
    static constexpr auto wipe = WipeCheckboxComponent;
    static constexpr auto removeLast = RemoveCheckElement, wipeElements = WipeCheckElements;
    static auto* make(KULCHECKELEMENT* head) { return AddCheckElement(head, 1, "x", nullptr); }
    static int add(int nRef, const char* szText, KULCALLBACK on)
    {
        return kulcheckbox_addElement(1, nRef, szText, 0, 1, on, on);
    }
    static int& cursor() { return record<Record>().nSelect; }
    static int config(int nRef, int nWidth, int nHeight, int nBorder, int nCursor, const Callbacks& on)
    {
        const int nResult = kulcheckbox_config(1, nRef, kKeep, kKeep, kKeep, 2, 2, nWidth, nHeight, nBorder, on.onFocus,
                                               on.onUnfocus, on.onSelect, on.onClick);
        return SetVar(&cursor(), nCursor), nResult;
    }
};

struct Options {
    using Record = KULOPTIONS;
    static constexpr const char* kMarkers = "()o";
    static constexpr int kTaken = -10024, kForeign = -1, kHidden = -1, kHiddenMeanwhile = 0;
    static constexpr auto create = kuloptions_create, hide = kuloptions_hide, execKeys = kuloptions_execKeys,
                          focus = kuloptions_getSelected;
    static constexpr auto element = kuloptions_getElement;
    static constexpr auto remove = kuloptions_remElement;
    static constexpr auto draw = ShowOptionsComponent;
    static constexpr auto setFirst = SetFirstOptionElement, setFirstFromEnd = SetFirstOptionElementFromEnd,
                          setLast = SetLastOptionElement;
    static constexpr auto spills = CheckLastOptionElementForSpillover, rows = GetTotalOptionElementHeights;
    static constexpr auto wipe = WipeOptionsComponent;
    static constexpr auto removeLast = RemoveOptionElement, wipeElements = WipeOptionElements;
    static auto* make(KULOPTIONELEMENT* head) { return AddOptionElement(head, 1, "x", nullptr, nullptr); }
    static int add(int nRef, const char* szText, KULCALLBACK on)
    {
        return kuloptions_addElement(1, nRef, szText, 1, on, on);
    }
    static int& cursor() { return record<Record>().nPosition; }
    static int config(int nRef, int nWidth, int nHeight, int nBorder, int nCursor, const Callbacks& on)
    {
        return kuloptions_config(1, nRef, kKeep, kKeep, kKeep, 2, 2, nWidth, nHeight, nBorder, 77, nCursor, on.onFocus,
                                 on.onUnfocus, on.onSelect, on.onClick);
    }
};
template <typename Kind>
class RingListTest : public ComponentTest {
protected:
    static constexpr bool kChecks = std::is_same_v<Kind, Checks>;

    static auto& list() { return record<typename Kind::Record>(); }

    // An event with what the selection says: the cursor, and what is chosen.
    static void note(const char* event) { kultest::note((event + std::to_string(Kind::focus(1, kRef)) + '/').c_str()); }

    static inline const Callbacks kNotes = {[] { note("focus"); }, [] { note("unfocus"); }, [] { note("select"); },
                                            [] { note("click"); }, [] { note("element"); }};

    // A list anew; a digit is a text of that many rows. Nothing is chosen.
    static void make(int nWidth, int nHeight, int nBorder, const char* digits = "", int nCursor = kKeep,
                     const Callbacks& on = kNotes)
    {
        Kind::create(1, kRef);
        ASSERT_EQ(Kind::config(kRef, nWidth, nHeight, nBorder, nCursor, on), 0);
        events.clear();
        constexpr const char* kTexts[] = {"aaaaaa", "aaaaaa bbbbbb", "aaaaaa bbbbbb cccccc",
                                          "aaaaaa bbbbbb cccccc dddddd"};
        for (; *digits; ++digits)
            ASSERT_EQ(Kind::add(kRef, kTexts[*digits - '1'], on.onElement), 0);
    }

    static void addNumbers(int nCount)
    {
        for (int i = 0; i < nCount; ++i)
            ASSERT_EQ(Kind::add(kRef, std::to_string(i).c_str(), kNotes.onElement), 0);
    }

    static int run(std::vector<int> keys, int nEnd, const std::vector<KULCALLBACK>& actions = {})
    {
        keys.push_back(nEnd);
        typeKeys(keys, actions);
        return Kind::execKeys(1, kRef);
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
    const struct {
        const char* texts;
        int nRows, nCursor;
        std::vector<int> keys;
        const char* state;
    } scripts[] = {
        {"111", 2, 0, {}, "0 0 1"},
        {"111", 2, 0, {D}, "1 0 1"},
        {"111", 2, 0, {D, D}, "2 1 2"},
        {"111", 2, 0, {D, D, D}, "0 0 1"},
        {"111", 2, 0, {U}, "2 1 2"},
        {"111", 2, 0, {U, U, U}, "0 0 1"},
        {"1221", 3, 0, {U}, "3 2 3"},
        {"121", 3, 0, {D}, "1 0 1"},
        {"122", 3, 0, {D, D}, "2 1 2"},
        {"141", 3, 0, {D}, "1 1 1"},
        {"44", 2, 0, {D}, "1 1 1"},  // one that is cut goes to the top
        {"141", 3, 0, {U}, "2 2 2"}, // the tall one before it would fill the box alone
        {"1", 2, 0, {D, U}, "0 0 0"},
        {"11", 2, 0, {'x', KS_LEFT, KS_END}, "0 0 1"},
        {"", 2, 0, {U}, "-1 -1 -1"},
        {"", 2, 0, {D}, "1 0 -1"},
        {"", 2, 0, {S}, "0 -1 -1"},
        {"111", 0, 0, {D, D}, "2 2 1"},
        {"111", -3, 0, {U, D}, "0 0 -1"},
        // A cursor that starts below the view, and outside of the list.
        {"111111111", 3, 7, {}, "7 5 7"},
        {"111111111", 3, 7, {U}, "6 5 7"},
        {"11111", 3, 50, {U}, "4 2 4"},
        {"111", 3, 50, {D}, "0 0 2"},
        {"111", 3, -70, {D}, "0 0 2"},
        {"111", 3, -7, {U}, "2 0 2"},
        {"11", 3, 9, {S}, "9 0 1"},
        {"", 2, 0, {D, -2, U}, "0 0 1"},
        {"11", 2, 0, {D, -2, D, D}, "3 2 3"}, // five come while it runs
    };
    for (const auto& row : scripts) {
        SCOPED_TRACE(std::string(row.texts) + ": " + row.state);
        this->make(13, row.nRows + 2, BORDER, row.texts, row.nCursor);
        EXPECT_EQ(this->run(row.keys, KS_TAB, {[] { TestFixture::addNumbers(5); }}), 10);
        EXPECT_EQ(this->state(), row.state);
    }
}

TYPED_TEST(RingListTest, RunsCallbacksInOrder)
{
    const struct {
        int nCursor;
        std::vector<int> keys;
        const char *checks, *options;
    } scripts[] = {
        {kKeep,
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
    for (const auto& row : scripts) {
        this->make(13, 5, BORDER, "", row.nCursor);
        this->addNumbers(40);
        EXPECT_EQ(this->run(row.keys, KS_ESC), -10);
        EXPECT_EQ(events, this->kChecks ? row.checks : row.options);
    }
    EXPECT_EQ(this->drawn(5, 3, 1, 6), Rows{"[X] 39"});
}

TYPED_TEST(RingListTest, StaysInBoxesOfAnySize)
{
    const struct {
        int nWidth, nHeight, nBorder;
        Rows rows;
    } boxes[] = {
        {5, 2, NOBORDER, {"[ ] ◆ ", "[ ] ┴ ", "      "}},
        {5, 1, 7, {"[ ] ◆ ", "      ", "      "}},
        {4, 3, NOBORDER, {"   ◆  ", "      ", "      "}},
        {6, 4, NOBORDER, Rows(3, "[ ]   ")},
        {4, 2, NOBORDER, {"   ◆  ", "   ┴  ", "      "}},
        {3, 2, BORDER, {"┌─◆   ", "└─┴   ", "      "}},
        {1, 1, BORDER, {"◆     ", "      ", "      "}},
        {0, 4, BORDER, Rows(3, "      ")},
        {-5, 3, NOBORDER, Rows(3, "      ")},
        {6, 0, BORDER, Rows(3, "      ")},
        {6, -1, NOBORDER, Rows(3, "      ")},
        {INT_MIN, INT_MIN, BORDER, Rows(3, "      ")},
    };
    for (const auto& box : boxes) {
        SCOPED_TRACE(std::to_string(box.nWidth) + " x " + std::to_string(box.nHeight));
        this->make(box.nWidth, box.nHeight, box.nBorder);
        for (int i = 0; i < 4; ++i)
            TypeParam::add(kRef, "", nullptr);
        EXPECT_EQ(this->run({D, D, D, D, U, D}, 0), KUL_LEFT);
        EXPECT_EQ(this->drawn(2, 2, 3, 6), box.rows);
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
    const struct {
        int nIndex;
        const char* szText;
        int nBefore, nAfter /* setSelect */;
    } lookups[] = {
        {0, "0", 0, 1},     {0, "0", 1, 0},     {2, "2", 2, 0},          {29, "29", 0, 1},        {30, "30", -1, -1},
        {39, "30", -1, -1}, {-1, "30", -1, -1}, {INT_MAX, "30", -1, -1}, {INT_MIN, "30", -1, -1},
    };
    if (auto* element = kulcheckbox_getElement(1, kRef, 2))
        element->nSelect = 2; // neither
    for (const auto& row : lookups) {
        EXPECT_STREQ(TypeParam::element(1, kRef, row.nIndex)->szText, row.szText);
        EXPECT_EQ(kulcheckbox_getSelect(1, kRef, row.nIndex), this->kChecks ? row.nBefore : -1);
        kulcheckbox_setSelect(1, kRef, row.nIndex);
        EXPECT_EQ(kulcheckbox_getSelect(1, kRef, row.nIndex), this->kChecks ? row.nAfter : -1);
        const int nChosen = this->kChecks ? -1 : row.nIndex;
        EXPECT_EQ(kuloptions_setClicked(1, kRef, row.nIndex), nChosen);
        EXPECT_EQ(kuloptions_getClicked(1, kRef), nChosen);
    }
    EXPECT_EQ(TypeParam::focus(1, kRef), -1);
    EXPECT_EQ(TypeParam::remove(1, kRef, 0), 0);
    EXPECT_EQ(this->list().nElements, 40);
}

TYPED_TEST(RingListTest, NoticesWhatCallbacksDo)
{
    const struct {
        const char* name;
        KULCALLBACK action;
        int nResult;
    } rows[] = {
        {"destroy", [] { kulgui_destroy(1); }, -10000},
        {"hide", [] { TypeParam::hide(1, kRef); }, TypeParam::kHiddenMeanwhile},
        {"leave", [] { kulgui_leave(1); }, KUL_LEFT},
        {"focus", [] { kulgui_setFocus(1, kRef); }, 0},
        {"config and add", [] { TestFixture::make(9, 3, NOBORDER, "11"); }, 10},
        {"remove",
         [] {
             for (auto& list = TestFixture::list(); list.nElements > 1; --list.nElements)
                 TypeParam::removeLast(list.Element);
         },
         10},
        {"remove uncounted", [] { TypeParam::removeLast(TestFixture::list().Element); }, 10},
        {"empty",
         [] { kulgui_config(1, 0, 0, 0, 0, "", BORDER, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr, nullptr); },
         -10000},
    };
    for (const auto& row : rows) {
        for (std::size_t nWhere = 0; nWhere < 5; ++nWhere) {
            SCOPED_TRACE(row.name + std::to_string(nWhere));
            this->renew();
            KULCALLBACK at[5] = {};
            at[nWhere] = row.action;
            this->make(20, 2, NOBORDER, "11111", 2, {at[0], this->kNotes.onUnfocus, at[1], at[2], at[3]});
            EXPECT_EQ(this->run({D, D, S, nWhere == 4 ? -2 : 0, U}, KS_TAB, {row.action}), row.nResult);
            EXPECT_EQ(events.empty(), row.nResult == -10000);
        }
    }
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

TYPED_TEST(RingListTest, AnswersUnknownAndOther)
{
    TypeParam::create(1, kRef); // has its defaults before it is configured
    EXPECT_EQ(this->list().nColorFocus, RED_MAGENTA);
    EXPECT_EQ(this->list().nFirstShowed, -1);
    kulbutton_create(1, 2);
    EXPECT_EQ(TypeParam::create(1, 2), TypeParam::kTaken);
    for (const int nRef : {2, 99, INT_MIN}) {
        EXPECT_EQ(TypeParam::config(nRef, 9, 9, BORDER, kKeep, {}), -1);
        EXPECT_EQ(TypeParam::add(nRef, "x", nullptr), -1);
        EXPECT_EQ(TypeParam::element(1, nRef, 0), nullptr);
        EXPECT_EQ(TypeParam::execKeys(1, nRef), TypeParam::kForeign);
    }
    EXPECT_EQ(TypeParam::add(kRef, nullptr, nullptr), 0);
    EXPECT_STREQ(TypeParam::element(1, kRef, 0)->szText, "");
    TypeParam::hide(1, kRef);
    EXPECT_EQ(TypeParam::execKeys(1, kRef), TypeParam::kHidden);
    for (const auto step : {TypeParam::setFirst, TypeParam::setFirstFromEnd, TypeParam::setLast})
        step(nullptr);
    TypeParam::draw(nullptr, nullptr, 1);
    EXPECT_EQ(TypeParam::spills(nullptr), F);
    EXPECT_EQ(TypeParam::rows(nullptr), 0);
    EXPECT_EQ(TypeParam::wipeElements(nullptr), -1);
    EXPECT_EQ(TypeParam::removeLast(nullptr), -1);
    EXPECT_EQ(TypeParam::wipe(nullptr), 0);
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
