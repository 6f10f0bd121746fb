// SPDX-License-Identifier: MIT
//
// Menus, what all three kinds of menus have in common, and their and the toolbar's element lists.
#include "support/window_test.hpp"

#include <algorithm>
#include <climits>
#include <cstring>
#include <malloc.h>
#include <span>

namespace {

using namespace kultest;

constexpr int kKeep = KUL_KEEP;
constexpr int kMany = 10000;

const KULCALLBACK onFocus = [] { note("focus"); };
const KULCALLBACK onUnfocus = [] { note("unfocus"); };
const KULCALLBACK onClick = [] { note("click"); };
const KULCALLBACK never = [] { note("never"); };

template <typename Element>
std::string textOf(const Element* element)
{
    return element ? element->szText : "null";
}

// clang-format off
struct Kind {
    const char* name;
    int nType, nTaken, nForeign; // what create gives for a number in use, execKeys for another kind
    int nBack, nForward;
    bool obeysControls, counts; // removal changes the count and the selection
    int (*create)(int, int), (*remove)(int, int, int), (*execKeys)(int, int);
    int (*config)(int nRef, KULCALLBACK onClick);
    int (*add)(int nRef, const char*);
    std::string (*get)(int nRef, int); // the text, or "null"
    int& (*select)();
    int& (*count)();
};

const Kind kKinds[] = {
    {"menu", MENU, -10018, 10, KS_LEFT, KS_RIGHT, true, true,
     kulmenu_create, kulmenu_remElement, kulmenu_execKeys,
     [](int nRef, KULCALLBACK click) { return kulmenu_config(1, nRef, kKeep, kKeep, kKeep, onFocus, onUnfocus, never, click); },
     [](int nRef, const char* szText) { return kulmenu_addElement(1, nRef, szText, 1, never, never); },
     [](int nRef, int nElement) { return textOf(kulmenu_getElement(1, nRef, nElement)); },
     []() -> int& { return record<KULMENU>().nSelect; }, []() -> int& { return record<KULMENU>().nElements; }},
    {"dynamic menu", DYNMENU, -10021, 10, KS_UP, KS_DOWN, true, false,
     kuldynmenu_create, kuldynmenu_remElement, kuldynmenu_execKeys,
     [](int nRef, KULCALLBACK click) { return kuldynmenu_config(1, nRef, kKeep, kKeep, kKeep, 1, 1, 10, 4, onFocus, onUnfocus, never, click); },
     [](int nRef, const char* szText) { return kuldynmenu_addElement(1, nRef, szText, never, never, 1); },
     [](int nRef, int nElement) { return textOf(kuldynmenu_getElement(1, nRef, nElement)); },
     []() -> int& { return record<KULDYNMENU>().nSelect; }, []() -> int& { return record<KULDYNMENU>().nElements; }},
    {"description menu", DESCRMENU, -10020, 10, KS_LEFT, KS_RIGHT, false, false,
     kuldescrmenu_create, kuldescrmenu_remElement, kuldescrmenu_execKeys,
     [](int nRef, KULCALLBACK click) { return kuldescrmenu_config(1, nRef, kKeep, kKeep, kKeep, 0, 0, kKeep, kKeep, 8, onFocus, onUnfocus, never, click); },
     [](int nRef, const char* szText) { return kuldescrmenu_addElement(1, nRef, 1, szText, szText, never, never); },
     [](int nRef, int nElement) { return textOf(kuldescrmenu_getElement(1, nRef, nElement)); },
     []() -> int& { return record<KULDESCRMENU>().nSelect; }, []() -> int& { return record<KULDESCRMENU>().nElements; }},
    {"toolbar", TOOLBAR, -10027, -1, KS_LEFT, KS_RIGHT, false, true,
     kultoolbar_create, kultoolbar_remButton, kultoolbar_execKeys,
     [](int nRef, KULCALLBACK click) { return kultoolbar_config(1, nRef, kKeep, kKeep, kKeep, 2, 2, LATERAL, onFocus, onUnfocus, never, click); },
     [](int nRef, const char* szText) { return kultoolbar_addButton(1, nRef, szText, 3, 1, never, nullptr); },
     [](int nRef, int nElement) { return textOf(kultoolbar_getButton(1, nRef, nElement)); },
     []() -> int& { return record<KULTOOLBAR>().nSelect; }, []() -> int& { return record<KULTOOLBAR>().nButtons; }},
};
// clang-format on

const Kind* now = nullptr; // the kind that callbacks act on

class MenuTest : public ComponentTest {
protected:
    // Runs a test for each kind, or the first ones, the menus; each in a dialog of its own.
    template <typename Test>
    void forEachKind(Test test, int nKinds = 4)
    {
        for (const Kind& kind : std::span(kKinds, static_cast<std::size_t>(nKinds))) {
            SCOPED_TRACE(kind.name);
            renew();
            now = &kind;
            ASSERT_EQ(kind.create(1, kRef), 0);
            ASSERT_EQ(kind.config(kRef, onClick), 0);
            test(kind);
        }
    }

    template <typename Test>
    void forEachMenu(Test test)
    {
        forEachKind(test, 3);
    }

    static void addMany(int nCount)
    {
        for (int i = 0; i < nCount; ++i)
            ASSERT_EQ(now->add(kRef, ("e" + std::to_string(i)).c_str()), 0);
    }
};

TEST_F(MenuTest, DrawsTextsSideBySide)
{
    kulmenu_create(1, kRef);
    kulmenu_config(1, kRef, kKeep, kKeep, kKeep, nullptr, nullptr, nullptr, nullptr);
    for (const char* szText : {"File", "Edit", "", static_cast<const char*>(nullptr), "Go"})
        kulmenu_addElement(1, kRef, szText, 1, nullptr, nullptr);
    kulmenu_getElement(1, kRef, 1)->nEnable = 0;
    kulmenu_execKeys(1, kRef);
    EXPECT_EQ(shown(2, 0, 1, 30), (Rows{"│ File   Edit         Go      "}));
    EXPECT_EQ(shades(2, 0, 1, 30), (Rows{"..ffff...dddd.........uu......"}));
    record<KULMENU>().nSelect = 1;
    kulmenu_execKeys(1, kRef);
    EXPECT_EQ(shades(2, 0, 1, 30), (Rows{"..uuuu...ffff.........uu......"}));
    kulgui_show(1);
    EXPECT_EQ(shades(2, 0, 1, 30), (Rows{"..uuuu...uuuu.........uu......"}));
    kulmenu_hide(1, kRef);
    kulgui_show(1);
    EXPECT_EQ(shades(2, 0, 1, 30), (Rows{std::string(30, '.')}));
    kulmenu_show(1, kRef);
    for (const char* szText : {"a long one, up to the ed", "beyond"})
        kulmenu_addElement(1, kRef, szText, 1, nullptr, nullptr);
    kulgui_show(1);
    EXPECT_EQ(shown(2, 20, 2, 20), (Rows{"  Go   a long one, u", "                   │"}));
    EXPECT_EQ(shown(3, 0, 1, 20), (Rows{"p to the ed         "})) << "goes on in the next row";
}

TEST_F(MenuTest, KeysGoRoundTheElementsAndOnePlaceMore)
{
    // Keys: b back, f forward, e Enter, others as they are.
    // clang-format off
    const struct { int nElements, nStart; const char* keys; int nSelect; const char* clicks; } rows[] = {
        {3, 0, "eb", 3, "click0 "},
        {3, 0, "bbe", 2, "click2 "},
        {3, 3, "f", 0, ""},
        {3, 1, "ffefxef", 1, "click3 click0 "},
        {3, 1, "x\t\033q", 1, ""},
        {0, 0, "bfbfbe", 0, "click0 "},
        {2, -1, "b", -2, ""},
        {2, INT_MIN, "b", INT_MIN, ""},
        {2, INT_MAX, "f", INT_MAX, ""},
        {40, 31, "fff", 34, ""},
    };
    // clang-format on
    forEachMenu([&](const Kind& kind) {
        for (const auto& row : rows) {
            SCOPED_TRACE(std::string(row.keys) + ' ' + std::to_string(row.nStart));
            kind.config(kRef, onClick);
            addMany(row.nElements);
            kind.select() = row.nStart;
            events.clear();
            std::vector<int> keys(row.keys, row.keys + std::strlen(row.keys));
            std::ranges::replace(keys, 'b', kind.nBack);
            std::ranges::replace(keys, 'f', kind.nForward);
            std::ranges::replace(keys, 'e', int{KS_ENTER});
            typeKeys(keys);
            EXPECT_EQ(kind.execKeys(1, kRef), KUL_LEFT);
            EXPECT_EQ(kind.select(), row.nSelect);
            EXPECT_EQ(GetCurrentSelectedMenuElement(), row.nSelect);
            EXPECT_EQ(GetCurrentComponentType(), kind.nType);
            EXPECT_EQ(events, "focus" + std::to_string(row.nStart) + ' ' + row.clicks + "unfocus" +
                                  std::to_string(row.nSelect) + ' ');
        }
    });
}

TEST_F(MenuTest, ObeysNavigationFlagsTabbingAndVisibility)
{
    const KULCALLBACK exitGui = [] {
        const CONTROL exit{F, F, T, F};
        SetControls(&exit);
    };
    const CONTROL clear{F, F, F, F};
    forEachMenu([&](const Kind& kind) {
        addMany(3);
        kind.select() = 0;
        typeKeys({-2, kind.nForward}, {exitGui});
        EXPECT_EQ(kind.execKeys(1, kRef), kind.obeysControls ? 10 : KUL_LEFT);
        EXPECT_EQ(events, kind.obeysControls ? "focus0 unfocus0 " : "focus0 unfocus1 ");
        SetControls(&clear);
        kulgui_setTabbing(1, T);
        typeKeys({KS_TAB});
        EXPECT_EQ(kind.execKeys(1, kRef), 10);
        typeKeys({KS_ESC});
        EXPECT_EQ(kind.execKeys(1, kRef), -10);
        SetUIVisibility(1, kRef, F);
        EXPECT_EQ(kind.execKeys(1, kRef), kind.nType == MENU ? 10 : KUL_LEFT);
    });
}

TEST_F(MenuTest, CallbacksMayTakeAwayWhatRuns)
{
    // clang-format off
    const struct { const char* name; KULCALLBACK act; int nResult; } rows[] = {
        {"remove all", [] { while (now->remove(1, kRef, 0) == 0) {} }, KUL_LEFT},
        {"remove, add", [] { now->remove(1, kRef, 0); now->add(kRef, "new"); }, KUL_LEFT},
        {"configure", [] { now->config(kRef, nullptr); }, KUL_LEFT},
        {"hide", [] { SetUIVisibility(1, kRef, F); }, KUL_LEFT},
        {"hide the dialog", [] { kulgui_hide(1); }, KUL_LEFT},
        {"focus", [] { kulgui_setFocus(1, kRef); }, 0},
        {"destroy the dialog", [] { kulgui_destroy(1); }, -10000},
    };
    // clang-format on
    for (const auto& row : rows) {
        forEachMenu([&](const Kind& kind) {
            SCOPED_TRACE(row.name);
            kind.config(kRef, row.act);
            addMany(6);
            kind.select() = 5;
            typeKeys({KS_ENTER, kind.nForward, kind.nBack, kind.nBack, KS_ENTER, 0});
            EXPECT_EQ(kind.execKeys(1, kRef), row.nResult);
            EXPECT_EQ(events.find("unfocus") != events.npos, row.nResult != -10000);
        });
    }
}

TEST_F(MenuTest, AddsAndRemovesAtTheEnd)
{
    forEachKind([&](const Kind& kind) {
        EXPECT_EQ(kind.select(), kind.nType == DESCRMENU ? -1 : 0);
        kind.select() = -1;
        addMany(1);
        EXPECT_EQ(kind.select(), 0);
        kind.select() = 3;
        addMany(2);
        EXPECT_EQ(kind.select(), 3);
        EXPECT_EQ(kind.remove(1, kRef, 0), 0);
        EXPECT_EQ(kind.get(kRef, 1), "e0");
        EXPECT_EQ(kind.get(kRef, 2), "null");
        EXPECT_EQ(kind.count(), kind.counts ? 2 : 3);
        EXPECT_EQ(kind.select(), kind.counts ? 2 : 3);
        EXPECT_EQ(kind.remove(1, kRef, -7), 0);
        EXPECT_EQ(kind.remove(1, kRef, 99), 1);
        EXPECT_EQ(kind.get(kRef, 0), "null");
        EXPECT_EQ(kind.remove(1, kRef, 0), -1);
        EXPECT_EQ(kind.count(), kind.counts ? 0 : 3);
        const int nCount = kind.count();
        for (int nGood = 0; nGood < (kind.nType == DESCRMENU ? 3 : 2); ++nGood) {
            const FailingMemory memory(nGood);
            EXPECT_EQ(kind.add(kRef, "x"), -1);
        }
        EXPECT_EQ(kind.count(), nCount);
        EXPECT_EQ(kind.get(kRef, 0), "null");
        EXPECT_EQ(kind.add(kRef, "again"), 0);
        EXPECT_EQ(kind.get(kRef, 0), "again");
        // The count of the two that do not count is too high: nothing behind the list is read.
        typeKeys({kind.nBack, kind.nBack, kind.nBack});
        EXPECT_EQ(kind.execKeys(1, kRef), KUL_LEFT);
    });
}

TEST_F(MenuTest, HoldsThousandsAndLooksUpThirty)
{
    forEachKind([&](const Kind& kind) {
        addMany(3);
        for (const int nNone : {3, 30, 31, -1, INT_MAX, INT_MIN})
            EXPECT_EQ(kind.get(kRef, nNone), "null");
        kind.config(kRef, onClick);
        addMany(kMany);
        EXPECT_EQ(kind.count(), kMany);
        EXPECT_EQ(kind.get(kRef, 29), "e29");
        for (const int nCapped : {30, 31, 45, -1, INT_MAX, INT_MIN})
            EXPECT_EQ(kind.get(kRef, nCapped), "e30");
        kind.select() = kMany - 2;
        typeKeys({kind.nForward, kind.nForward, kind.nForward, kind.nBack, kind.nBack});
        EXPECT_EQ(kind.execKeys(1, kRef), KUL_LEFT);
        EXPECT_EQ(kind.select(), kMany - 1);
        for (int i = 1; i < kMany; ++i)
            ASSERT_EQ(kind.remove(1, kRef, 0), 0);
        EXPECT_EQ(kind.get(kRef, 0), "e0");
    });
    EXPECT_LE(malloc_usable_size(kultoolbar_getButton(1, kRef, 0)), 160U);
}

TEST_F(MenuTest, RefusesUnknownAndForeignComponents)
{
    forEachKind([&](const Kind& kind) {
        EXPECT_EQ(kind.create(1, kRef), kind.nTaken);
        kulbutton_create(1, kRef + 1);
        {
            const FailingMemory memory(1);
            EXPECT_EQ(kind.create(1, kRef + 2), -1);
        }
        for (const int nRef : {kRef + 1, kRef + 2, -1, INT_MAX}) {
            EXPECT_EQ(kind.config(nRef, nullptr), -1);
            EXPECT_EQ(kind.add(nRef, "x"), -1);
            EXPECT_EQ(kind.get(nRef, 0), "null");
            EXPECT_EQ(kind.remove(1, nRef, 0), -1);
            EXPECT_EQ(kind.execKeys(1, nRef), kind.nForeign);
        }
        EXPECT_EQ(kind.execKeys(77, kRef), kind.nForeign);
        EXPECT_EQ(events, "");
    });
    EXPECT_EQ(ConfigDescrmenuComponent(nullptr, nullptr), -1);
    EXPECT_EQ(WipeMenuElements(nullptr), -1);
    EXPECT_EQ(RemoveToolbarButton(nullptr), -1);
    EXPECT_EQ(WipeDynmenuComponent(nullptr) | WipeToolbarComponent(nullptr), 0);
    ShowMenuComponent(nullptr, nullptr, 1);
    ShowDynmenuComponent(nullptr, nullptr, 1);
    ShowDescrmenuComponent(nullptr, nullptr, 1);
    ShowToolbarComponent(nullptr, nullptr, 1);
    ShowToolbarButtonComponent(nullptr, nullptr, nullptr, 1);
    EXPECT_EQ(AddToolbarButton(nullptr, nullptr, 1, "x", nullptr, nullptr), nullptr);
}

// Programs may hold a list of their own, and name it by any of its elements.
TEST_F(MenuTest, AnyElementStandsForItsList)
{
    KULMENUELEMENT* first = AddMenuElement(nullptr, 1, "a", never, never);
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->Prev, nullptr);
    EXPECT_EQ(first->onClick, never);
    KULMENUELEMENT* second = AddMenuElement(first, 0, "b", nullptr, nullptr);
    KULMENUELEMENT* third = AddMenuElement(second, 1, "c", nullptr, nullptr);
    KULMENUELEMENT* fourth = AddMenuElement(third, 1, "d", nullptr, nullptr);
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
