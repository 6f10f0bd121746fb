// SPDX-License-Identifier: MIT
//
// Menus, and what all three kinds of menus and their element lists have in common.
#include "support/window_test.hpp"

#include <climits>
#include <malloc.h>
#include <string>

namespace {

using kultest::Rows;

constexpr int kRef = 5;
constexpr int kMany = 10000;

std::string events;

void note(const char* event)
{
    events += event + std::to_string(GetCurrentSelectedMenuElement()) + ' ';
}

void onFocus()
{
    note("focus");
}
void onUnfocus()
{
    note("unfocus");
}
void onSelect()
{
    note("select");
}
void onClick()
{
    note("click");
}
void onElement()
{
    note("element");
}

int addEntry(const char* szText, int nEnable = 1)
{
    return kulmenu_addElement(1, kRef, szText, nEnable, onElement, onElement);
}

// What a test needs of each kind of menu.
struct Kind {
    const char* name;
    int nType;
    int nTaken;
    int nBack;
    int nForward;
    bool obeysControls;
    bool counts; // removal changes the count and the selection
    int (*create)(int, int);
    int (*config)(KULCALLBACK onClick);
    int (*add)(const char*);
    int (*remove)(int, int, int);
    std::string (*get)(int, int); // the text, or "null"
    int (*execKeys)(int, int);
    int& (*select)();
    int& (*count)();
};

template <typename Record>
Record& record()
{
    return *static_cast<Record*>(GetUIComponentByRef(1, kRef)->Pointer);
}

template <typename Element>
std::string textOf(const Element* element)
{
    return element ? element->szText : "null";
}

const Kind kKinds[] = {
    {"menu", MENU, -10018, KS_LEFT, KS_RIGHT, true, true, kulmenu_create,
     [](KULCALLBACK click) {
         return kulmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, onFocus, onUnfocus, onSelect,
                               click);
     },
     [](const char* szText) { return addEntry(szText); }, kulmenu_remElement,
     [](int nRef, int nElement) { return textOf(kulmenu_getElement(1, nRef, nElement)); },
     kulmenu_execKeys, []() -> int& { return record<KULMENU>().nSelect; },
     []() -> int& { return record<KULMENU>().nElements; }},
    {"dynamic menu", DYNMENU, -10021, KS_UP, KS_DOWN, true, false, kuldynmenu_create,
     [](KULCALLBACK click) {
         return kuldynmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 1, 10, 4, onFocus,
                                  onUnfocus, onSelect, click);
     },
     [](const char* szText) {
         return kuldynmenu_addElement(1, kRef, szText, onElement, onElement, 1);
     },
     kuldynmenu_remElement,
     [](int nRef, int nElement) { return textOf(kuldynmenu_getElement(1, nRef, nElement)); },
     kuldynmenu_execKeys, []() -> int& { return record<KULDYNMENU>().nSelect; },
     []() -> int& { return record<KULDYNMENU>().nElements; }},
    {"description menu", DESCRMENU, -10020, KS_LEFT, KS_RIGHT, false, false, kuldescrmenu_create,
     [](KULCALLBACK click) {
         return kuldescrmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 0, 0, KUL_KEEP, KUL_KEEP,
                                    8, onFocus, onUnfocus, onSelect, click);
     },
     [](const char* szText) {
         return kuldescrmenu_addElement(1, kRef, 1, szText, szText, onElement, onElement);
     },
     kuldescrmenu_remElement,
     [](int nRef, int nElement) { return textOf(kuldescrmenu_getElement(1, nRef, nElement)); },
     kuldescrmenu_execKeys, []() -> int& { return record<KULDESCRMENU>().nSelect; },
     []() -> int& { return record<KULDESCRMENU>().nElements; }},
};

const Kind* now = nullptr; // the kind that callbacks act on

class MenuTest : public kultest::WindowTest {
protected:
    void SetUp() override
    {
        WindowTest::SetUp();
        events.clear();
        makeDialog(1);
        kulgui_show(1);
    }

    // Runs a test for each kind of menu, each in a dialog of its own.
    template <typename Test>
    void forEachKind(Test test)
    {
        for (const Kind& kind : kKinds) {
            SCOPED_TRACE(kind.name);
            kulgui_destroy(1);
            makeDialog(1);
            kulgui_show(1);
            events.clear();
            now = &kind;
            ASSERT_EQ(kind.create(1, kRef), 0);
            ASSERT_EQ(kind.config(onClick), 0);
            test(kind);
        }
    }

    static void addMany(int nCount)
    {
        for (int i = 0; i < nCount; ++i)
            ASSERT_EQ(now->add(("e" + std::to_string(i)).c_str()), 0);
    }
};

TEST_F(MenuTest, DrawsTextsSideBySide)
{
    const std::vector<kultest::Legend> legend = {
        {'.', RED_BLUE}, {'f', RED_MAGENTA}, {'u', RED_WHITE}, {'d', RED_CYAN}};
    kulmenu_create(1, kRef);
    kulmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, nullptr, nullptr, nullptr, nullptr);
    addEntry("File");
    addEntry("Edit", 0);
    addEntry("");
    addEntry(nullptr);
    addEntry("Go");
    kultest::typeKeys({'x'});
    kulmenu_execKeys(1, kRef);
    EXPECT_EQ(kultest::picture(window(1), 2, 0, 1, 30), (Rows{"│ File   Edit         Go      "}));
    EXPECT_EQ(kultest::colors(window(1), 2, 0, 1, 30, legend),
              (Rows{"..ffff...dddd.........uu......"}));
    record<KULMENU>().nSelect = 1;
    kulmenu_execKeys(1, kRef);
    EXPECT_EQ(kultest::colors(window(1), 2, 0, 1, 30, legend),
              (Rows{"..uuuu...ffff.........uu......"}));
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 2, 0, 1, 30, legend),
              (Rows{"..uuuu...uuuu.........uu......"}));
    kulmenu_hide(1, kRef);
    kulgui_show(1);
    EXPECT_EQ(kultest::colors(window(1), 2, 0, 1, 30, legend), (Rows{std::string(30, '.')}));
}

TEST_F(MenuTest, GoesOnInTheNextRowAtTheEdge)
{
    kulmenu_create(1, kRef);
    kulmenu_config(1, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, nullptr, nullptr, nullptr, nullptr);
    addEntry("123456789 123456789 123456789 123");
    addEntry("abcdef");
    addEntry("beyond");
    kulgui_show(1);
    EXPECT_EQ(kultest::picture(window(1), 2, 0, 2, 40),
              (Rows{"│ 123456789 123456789 123456789 123   ab",
                    "cdef                                   │"}));
}

TEST_F(MenuTest, KeysGoRoundTheElementsAndOnePlaceMore)
{
    struct Row {
        int nElements;
        int nStart;
        std::string keys; // b: back, f: forward, others as they are
        int nSelect;
    };
    const Row rows[] = {
        {3, 0, "b", 3},
        {3, 0, "bb", 2},
        {3, 3, "f", 0},
        {3, 1, "ffff", 1},
        {3, 1, "x\t\033q", 1},
        {0, 0, "bfbfb", 0},
        {1, 0, "ff", 0},
        {2, -1, "b", -2},
        {2, -1, "f", 0},
        {2, INT_MIN, "b", INT_MIN},
        {2, INT_MAX, "f", INT_MAX},
        {40, 31, "fff", 34},
    };
    forEachKind([&](const Kind& kind) {
        int nHave = 0;
        for (const Row& row : rows) {
            SCOPED_TRACE(row.keys + ' ' + std::to_string(row.nStart));
            kind.config(onClick);
            nHave = row.nElements;
            addMany(nHave);
            kind.select() = row.nStart;
            std::vector<int> keys;
            for (const char key : row.keys)
                keys.push_back(key == 'b' ? kind.nBack : key == 'f' ? kind.nForward : key);
            kultest::typeKeys(keys);
            EXPECT_EQ(kind.execKeys(1, kRef), KUL_LEFT);
            EXPECT_EQ(kind.select(), row.nSelect);
            EXPECT_EQ(GetCurrentSelection()->nSelect, row.nSelect);
            EXPECT_EQ(GetCurrentSelection()->nType, kind.nType);
        }
    });
}

TEST_F(MenuTest, RunsItsCallbacksAndNoneOfTheElements)
{
    forEachKind([&](const Kind& kind) {
        addMany(2);
        kind.select() = 0;
        kultest::typeKeys({KS_ENTER, kind.nForward, 'x', KS_ENTER, kind.nBack, kind.nBack});
        EXPECT_EQ(kind.execKeys(1, kRef), KUL_LEFT);
        EXPECT_EQ(events, "focus0 click0 click1 unfocus2 ");
    });
}

TEST_F(MenuTest, ObeysTheNavigationFlags)
{
    const KULCALLBACK exitGui = [] {
        const CONTROL exit{F, F, T, F};
        SetControls(&exit);
    };
    const CONTROL clear{F, F, F, F};
    forEachKind([&](const Kind& kind) {
        addMany(3);
        const int nLeft = kind.obeysControls ? 10 : KUL_LEFT;
        const int nSelect = kind.obeysControls ? 0 : 1;
        kind.select() = 0;
        kultest::typeKeys({-2, kind.nForward}, {exitGui});
        EXPECT_EQ(kind.execKeys(1, kRef), nLeft);
        EXPECT_EQ(kind.select(), nSelect);
        EXPECT_EQ(events, "focus0 unfocus" + std::to_string(nSelect) + ' ');
        SetControls(&clear);
        kind.config(exitGui);
        kultest::typeKeys({KS_ENTER, 'x'});
        EXPECT_EQ(kind.execKeys(1, kRef), nLeft);
        SetControls(&clear);
    });
}

TEST_F(MenuTest, TabbingLeavesOnlyWhereAsked)
{
    forEachKind([&](const Kind& kind) {
        kulgui_setTabbing(1, T);
        kultest::typeKeys({KS_TAB});
        EXPECT_EQ(kind.execKeys(1, kRef), 10);
        kultest::typeKeys({KS_ESC});
        EXPECT_EQ(kind.execKeys(1, kRef), -10);
    });
}

TEST_F(MenuTest, RunsHiddenOrNot)
{
    forEachKind([&](const Kind& kind) {
        addMany(2);
        kind.select() = 0;
        SetUIVisibility(1, kRef, F);
        kultest::typeKeys({kind.nForward});
        EXPECT_EQ(kind.execKeys(1, kRef), kind.nType == MENU ? 10 : KUL_LEFT);
        EXPECT_EQ(kind.select(), kind.nType == MENU ? 0 : 1);
    });
}

TEST_F(MenuTest, RemovesTheLastWhateverIsNamed)
{
    forEachKind([&](const Kind& kind) {
        addMany(3);
        kind.select() = 3;
        EXPECT_EQ(kind.remove(1, kRef, 0), 0);
        EXPECT_EQ(kind.get(kRef, 1), "e1");
        EXPECT_EQ(kind.get(kRef, 2), "null");
        EXPECT_EQ(kind.count(), kind.counts ? 2 : 3);
        EXPECT_EQ(kind.select(), kind.counts ? 2 : 3);
        EXPECT_EQ(kind.remove(1, kRef, -7), 0);
        EXPECT_EQ(kind.remove(1, kRef, 99), 1);
        EXPECT_EQ(kind.get(kRef, 0), "null");
        EXPECT_EQ(kind.remove(1, kRef, 0), -1);
        EXPECT_EQ(kind.count(), kind.counts ? 0 : 3);
        EXPECT_EQ(kind.add("again"), 0);
        EXPECT_EQ(kind.add("and again"), 0);
        EXPECT_EQ(kind.get(kRef, 0), "again");
        EXPECT_EQ(kind.remove(1, kRef, 0), 0);
        EXPECT_EQ(kind.get(kRef, 1), "null");
        // The count of the two other kinds is too high now: nothing behind the list is read.
        kultest::typeKeys({kind.nBack, kind.nBack, kind.nBack, kind.nBack, kind.nBack});
        EXPECT_EQ(kind.execKeys(1, kRef), KUL_LEFT);
    });
}

TEST_F(MenuTest, LooksUpThirtyStepsAtMost)
{
    forEachKind([&](const Kind& kind) {
        EXPECT_EQ(kind.get(kRef, 0), "null");
        addMany(3);
        EXPECT_EQ(kind.get(kRef, 0), "e0");
        EXPECT_EQ(kind.get(kRef, 2), "e2");
        for (const int nNone : {3, 30, 31, -1, INT_MAX, INT_MIN})
            EXPECT_EQ(kind.get(kRef, nNone), "null");
        kind.config(onClick);
        addMany(40);
        EXPECT_EQ(kind.get(kRef, 29), "e29");
        for (const int nCapped : {30, 31, 39, 45, -1, INT_MAX, INT_MIN})
            EXPECT_EQ(kind.get(kRef, nCapped), "e30");
    });
}

TEST_F(MenuTest, RefusesUnknownAndForeignComponents)
{
    forEachKind([&](const Kind& kind) {
        EXPECT_EQ(kind.create(1, kRef), kind.nTaken);
        EXPECT_EQ(kind.create(9, 1), -10009);
        kulbutton_create(1, kRef + 1);
        for (const int nRef : {kRef + 1, kRef + 2, -1, INT_MAX}) {
            EXPECT_EQ(kind.get(nRef, 0), "null");
            EXPECT_EQ(kind.remove(1, nRef, 0), -1);
            EXPECT_EQ(kind.execKeys(1, nRef), 10);
        }
        EXPECT_EQ(kind.execKeys(77, kRef), 10);
        EXPECT_EQ(events, "");
    });
    EXPECT_EQ(kulmenu_config(1, 99, 0, 0, 0, nullptr, nullptr, nullptr, nullptr), -1);
    EXPECT_EQ(kulmenu_addElement(1, 99, "x", 1, nullptr, nullptr), -1);
    EXPECT_EQ(ConfigMenuComponent(nullptr, nullptr), -1);
    EXPECT_EQ(WipeMenuComponent(nullptr), 0);
    EXPECT_EQ(WipeMenuElements(nullptr), -1);
    EXPECT_EQ(RemoveMenuElement(nullptr), -1);
    ShowMenuComponent(nullptr, nullptr, 1);
}

TEST_F(MenuTest, CallbacksMayTakeAwayWhatRuns)
{
    struct Row {
        const char* name;
        KULCALLBACK act;
        int nResult;
        bool unfocused;
    };
    const Row rows[] = {
        {"remove all",
         [] {
             while (now->remove(1, kRef, 0) == 0) {
             }
         },
         KUL_LEFT, true},
        {"remove, add",
         [] {
             now->remove(1, kRef, 0);
             now->add("new");
         },
         KUL_LEFT, true},
        {"configure", [] { now->config(nullptr); }, KUL_LEFT, true},
        {"hide", [] { SetUIVisibility(1, kRef, F); }, KUL_LEFT, true},
        {"hide the dialog", [] { kulgui_hide(1); }, KUL_LEFT, true},
        {"focus", [] { kulgui_setFocus(1, kRef); }, 0, true},
        {"leave", [] { kulgui_leave(1); }, KUL_LEFT, true},
        {"destroy the dialog", [] { kulgui_destroy(1); }, -10000, false},
    };
    for (const Row& row : rows) {
        forEachKind([&](const Kind& kind) {
            SCOPED_TRACE(row.name);
            kind.config(row.act);
            addMany(6);
            kind.select() = 5;
            kultest::typeKeys({KS_ENTER, kind.nForward, kind.nBack, kind.nBack, KS_ENTER, 0});
            EXPECT_EQ(kind.execKeys(1, kRef), row.nResult);
            EXPECT_EQ(events.find("unfocus") != events.npos, row.unfocused);
        });
    }
}

TEST_F(MenuTest, AddsWholeElementsOrNone)
{
    forEachKind([&](const Kind& kind) {
        addMany(2);
        const int nAllocations = kind.nType == DESCRMENU ? 3 : 2;
        for (int nGood = 0; nGood < nAllocations; ++nGood) {
            const kultest::FailingMemory memory(nGood);
            EXPECT_EQ(kind.add("x"), -1);
        }
        EXPECT_EQ(kind.count(), 2);
        EXPECT_EQ(kind.get(kRef, 2), "null");
        EXPECT_EQ(kind.add("x"), 0);
        EXPECT_EQ(kind.get(kRef, 2), "x");
        {
            const kultest::FailingMemory memory(1);
            EXPECT_EQ(kind.create(1, kRef + 1), -1);
        }
        EXPECT_EQ(kind.execKeys(1, kRef + 1), 10);
    });
}

TEST_F(MenuTest, SelectsTheFirstWhenNoneIs)
{
    forEachKind([&](const Kind& kind) {
        EXPECT_EQ(kind.select(), kind.nType == DESCRMENU ? -1 : 0);
        kind.select() = -1;
        addMany(1);
        EXPECT_EQ(kind.select(), 0);
        kind.select() = 2;
        addMany(1);
        EXPECT_EQ(kind.select(), 2);
    });
}

TEST_F(MenuTest, HoldsThousands)
{
    forEachKind([&](const Kind& kind) {
        addMany(kMany);
        EXPECT_EQ(kind.count(), kMany);
        kind.select() = kMany - 2;
        kultest::typeKeys({kind.nForward, kind.nForward, kind.nForward, kind.nForward, kind.nBack,
                           kind.nBack, kind.nBack});
        EXPECT_EQ(kind.execKeys(1, kRef), KUL_LEFT);
        EXPECT_EQ(kind.select(), kMany - 1);
        for (int i = 1; i < kMany; ++i)
            ASSERT_EQ(kind.remove(1, kRef, 0), 0);
        EXPECT_EQ(kind.get(kRef, 0), "e0");
        addMany(kMany);
    });
    EXPECT_LE(malloc_usable_size(kuldescrmenu_getElement(1, kRef, 0)), 160U);
}

// Programs may hold a list of their own, and name it by any of its elements.
TEST_F(MenuTest, AnyElementStandsForItsList)
{
    KULMENUELEMENT* first = AddMenuElement(nullptr, 1, "a", onElement, onElement);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->Prev, nullptr);
    EXPECT_EQ(first->onSelect, nullptr);
    EXPECT_EQ(first->onClick, onElement);
    KULMENUELEMENT* second = AddMenuElement(first, 0, "b", nullptr, nullptr);
    KULMENUELEMENT* third = AddMenuElement(second, 1, "c", nullptr, nullptr);
    KULMENUELEMENT* fourth = AddMenuElement(third, 1, "d", nullptr, nullptr);
    EXPECT_EQ(first->Next, second);
    EXPECT_EQ(second->Next, third);
    EXPECT_EQ(fourth->Prev, third);
    EXPECT_EQ(first->Prev, fourth);
    EXPECT_EQ(RemoveMenuElement(third), 0);
    EXPECT_EQ(third->Next, nullptr);
    EXPECT_EQ(first->Prev, third);
    EXPECT_EQ(WipeMenuElements(second), 0);
    EXPECT_EQ(first->Next, nullptr);
    EXPECT_EQ(first->Prev, nullptr);
    EXPECT_EQ(RemoveMenuElement(first), 1);
}

} // namespace
