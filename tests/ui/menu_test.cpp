// SPDX-License-Identifier: MIT
//
// Menus, what all three kinds of menus have in common, and their and the toolbar's element lists.
#include "support/window_test.hpp"

#include <algorithm>
#include <climits>
#include <cstring>
#include <span>

namespace {

using namespace kultest;

constexpr int kKeep = KUL_KEEP;
constexpr int kMany = 10000;
constexpr std::size_t kMenus = 3, kAll = 4; // of the kinds

const KULCALLBACK onFocus = [] { note("focus"); };
const KULCALLBACK onUnfocus = [] { note("unfocus"); };
const KULCALLBACK onClick = [] { note("click"); };
const KULCALLBACK never = [] { note("never"); };

// A field of the component's record, and the text of an element, "null" for none.
template <typename Record, int Record::*Field>
int& of()
{
    return record<Record>().*Field;
}

template <auto Get>
std::string textOf(int nRef, int nElement)
{
    const auto* element = Get(1, nRef, nElement);
    return element ? element->szText : "null";
}

struct Kind {
    const char* name;
    int nType, nTaken, nForeign; // what create gives for a number in use, execKeys for another kind
    int nBack, nForward;
    bool obeysControls, counts; // removal changes the count and the selection
    int (*create)(int, int), (*remove)(int, int, int), (*execKeys)(int, int);
    std::string (*get)(int nRef, int);
    int& (*select)(), &(*count)();
    int (*config)(int nRef, KULCALLBACK onClick), (*add)(int nRef, const char*, int nEnable);
};

const Kind kKinds[] = {
    {"menu", MENU, -10018, 10, KS_LEFT, KS_RIGHT, true, true, kulmenu_create, kulmenu_remElement, kulmenu_execKeys,
     textOf<kulmenu_getElement>, of<KULMENU, &KULMENU::nSelect>, of<KULMENU, &KULMENU::nElements>,
     [](int nRef, KULCALLBACK click) {
         return kulmenu_config(1, nRef, kKeep, kKeep, kKeep, onFocus, onUnfocus, never, click);
     },
     [](int nRef, const char* szText, int nEnable) {
         return kulmenu_addElement(1, nRef, szText, nEnable, never, never);
     }},
    {"dynamic menu", DYNMENU, -10021, 10, KS_UP, KS_DOWN, true, false, kuldynmenu_create, kuldynmenu_remElement,
     kuldynmenu_execKeys, textOf<kuldynmenu_getElement>, of<KULDYNMENU, &KULDYNMENU::nSelect>,
     of<KULDYNMENU, &KULDYNMENU::nElements>,
     [](int nRef, KULCALLBACK click) {
         return kuldynmenu_config(1, nRef, kKeep, kKeep, kKeep, 2, 1, 4, 4, onFocus, onUnfocus, never, click);
     },
     [](int nRef, const char* szText, int nEnable) {
         return kuldynmenu_addElement(1, nRef, szText, never, never, nEnable);
     }},
    {"description menu", DESCRMENU, -10020, 10, KS_LEFT, KS_RIGHT, false, false, kuldescrmenu_create,
     kuldescrmenu_remElement, kuldescrmenu_execKeys, textOf<kuldescrmenu_getElement>,
     of<KULDESCRMENU, &KULDESCRMENU::nSelect>, of<KULDESCRMENU, &KULDESCRMENU::nElements>,
     [](int nRef, KULCALLBACK click) {
         return kuldescrmenu_config(1, nRef, kKeep, kKeep, kKeep, 7, 7, 20, 12, 5, onFocus, onUnfocus, never, click);
     },
     [](int nRef, const char* szText, int nEnable) {
         return kuldescrmenu_addElement(1, nRef, nEnable, szText, "all about host names", never, never);
     }},
    {"toolbar", TOOLBAR, -10027, -1, KS_LEFT, KS_RIGHT, false, true, kultoolbar_create, kultoolbar_remButton,
     kultoolbar_execKeys, textOf<kultoolbar_getButton>, of<KULTOOLBAR, &KULTOOLBAR::nSelect>,
     of<KULTOOLBAR, &KULTOOLBAR::nButtons>,
     [](int nRef, KULCALLBACK click) {
         return kultoolbar_config(1, nRef, kKeep, kKeep, kKeep, 2, 2, LATERAL, onFocus, onUnfocus, never, click);
     },
     [](int nRef, const char* szText, int nEnable) {
         return kultoolbar_addButton(1, nRef, szText, 3, nEnable, never, [] { note("button"); });
     }},
};

const Kind* now = nullptr; // the kind that callbacks act on

class MenuTest : public ComponentTest {
protected:
    // Runs a test for each of the first kinds, in a dialog of its own.
    template <typename Test>
    void forEach(std::size_t nKinds, Test test)
    {
        for (const Kind& kind : std::span(kKinds, nKinds)) {
            SCOPED_TRACE(kind.name);
            renew();
            now = &kind;
            ASSERT_EQ(kind.create(1, kRef), 0);
            ASSERT_EQ(kind.config(kRef, onClick), 0);
            test(kind);
        }
    }

    static void addMany(int nCount)
    {
        for (int i = 0; i < nCount; ++i)
            ASSERT_EQ(now->add(kRef, ("e" + std::to_string(i)).c_str(), 1), 0);
    }
};

TEST_F(MenuTest, ShowsWhatIsSelectedAndDisabled)
{
    // With the first element selected; after a step back; without the focus.
    const struct {
        Rows shown, first, back, unfocused;
    } looks[] = {
        {{" one   seven   no         "},
         {".fff...uuuuu...dd........."},
         {".ddd...uuuuu...dd........."},
         {".uuu...uuuuu...uu........."}},
        {{" ┌────┐ ", " │one │ ", " │seve│ ", " │no  │ ", " │    │ ", " └────┘ "},
         {".ffffff.", ".ffffff.", ".fuuuuf.", ".fddddf.", ".ffffff.", ".ffffff."},
         {".ffffff.", ".fddddf.", ".fuuuuf.", ".fddddf.", ".ffffff.", ".ffffff."},
         Rows(6, ".uuuuuu.")},
        {{" one   seven   no     ", " ┌──────────┐         ", " │all       │         ", " │about     │         ",
          " │host      │         ", " │          │         ", " └──────────┘         "},
         {".fff...uuuuu...dd.....", ".ffffffffffffffffffff.", ".ffffffffffff.........", ".ffffffffffff.........",
          ".ffffffffffff........."},
         {".ddd...uuuuu...dd.....", ".ffffffffffffffffffff."},
         {".uuu...uuuuu...uu.....", ".uuuuuuuuuuuuuuuuuuuu.", ".uuuuuuuuuuuu........."}},
        {{" ┌─────┐ ┌─────┐ ┌─────┐ ", " │ one │ │seven│ │ no  │ ", " └─────┘ └─────┘ └─────┘ "},
         {".fffffff.uuuuuuu.ddddddd."},
         {".ddddddd.fffffff.ddddddd."},
         {".ddddddd.uuuuuuu.ddddddd."}},
    };
    forEach(kAll, [&](const Kind& kind) {
        const auto& look = looks[&kind - kKinds];
        const int nY = kind.nType == DYNMENU ? 1 : 2;
        const int nWidth = static_cast<int>(look.first[0].size());
        const auto expectShades = [&](const Rows& rows) {
            EXPECT_EQ(shades(nY, 1, static_cast<int>(rows.size()), nWidth), rows);
        };
        kind.add(kRef, "one", 0);
        kind.add(kRef, "seven", 1);
        kind.add(kRef, "no", 0);
        press({});
        EXPECT_EQ(shown(nY, 1, static_cast<int>(look.shown.size()), nWidth), look.shown);
        expectShades(look.first);
        press({kind.nBack});
        expectShades(look.back);
        kulgui_show(1);
        expectShades(look.unfocused);
        SetUIVisibility(1, kRef, F);
        kulgui_show(1);
        expectShades(Rows(6, std::string(look.first[0].size(), '.')));
    });
}

TEST_F(MenuTest, DescribesElementsBeyondTheWindow)
{
    kuldescrmenu_create(1, kRef);
    kuldescrmenu_config(1, kRef, kKeep, kKeep, kKeep, 7, 7, kKeep, kKeep, kKeep, nullptr, nullptr, nullptr, nullptr);
    auto& menu = record<KULDESCRMENU>();
    EXPECT_EQ(std::vector({menu.nBarLength, menu.nBoxWidth, menu.nBoxHeight}), std::vector({75, 20, 19}));
    kKinds[2].config(kRef, nullptr);
    for (int i = 0; i < 40; ++i)
        kuldescrmenu_addElement(1, kRef, 1, "text", std::to_string(i).c_str(), nullptr, nullptr);
    menu.nSelect = 20;
    press({KS_RIGHT, KS_RIGHT});
    EXPECT_EQ(shown(4, 3, 1, 4), (Rows{"22  "}));
    for (int i = 0; i < 30; ++i)
        kuldescrmenu_remElement(1, kRef, 0);
    press({KS_LEFT}); // the count is not told, the list ends before
    EXPECT_EQ(shown(4, 3, 1, 4), (Rows{"    "}));
    menu.nSelect = 9;
    kuldescrmenu_addElement(1, kRef, 1, "new", "here", nullptr, nullptr);
    press({KS_RIGHT});
    EXPECT_EQ(shown(4, 3, 1, 4), (Rows{"here"}));
}

TEST_F(MenuTest, KeysGoRoundTheElementsAndOnePlaceMore)
{
    // Keys: b back, f forward, e Enter, others as they are.
    // clang-format off
    const struct { int nElements, nStart; const char* keys; int nSelect; const char* clicks; } rows[] = {
        {3, 0, "eb", 3, "click0 "}, {3, 0, "bbe", 2, "click2 "}, {3, 3, "f", 0, ""},
        {3, 1, "ffefxef", 1, "click3 click0 "}, {3, 1, "x\t\033q", 1, ""}, {0, 0, "bfbfbe", 0, "click0 "},
        {2, -1, "b", -2, ""}, {2, INT_MIN, "b", INT_MIN, ""}, {2, INT_MAX, "f", INT_MAX, ""}, {40, 31, "fff", 34, ""},
    };
    // clang-format on
    forEach(kMenus, [&](const Kind& kind) {
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
            EXPECT_EQ(press(keys), KUL_LEFT);
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
    forEach(kMenus, [&](const Kind& kind) {
        addMany(3);
        kind.select() = 0;
        typeKeys({-2, kind.nForward}, {[] { GetControls()->bExitGUI = T; }});
        EXPECT_EQ(kind.execKeys(1, kRef), kind.obeysControls ? 10 : KUL_LEFT);
        EXPECT_EQ(events, kind.obeysControls ? "focus0 unfocus0 " : "focus0 unfocus1 ");
        GetControls()->bExitGUI = F;
        kulgui_setTabbing(1, T);
        EXPECT_EQ(press({KS_TAB}), 10);
        EXPECT_EQ(press({KS_ESC}), -10);
        SetUIVisibility(1, kRef, F);
        EXPECT_EQ(press({}), 10) << "passed over";
        kulgui_setTabbing(1, F);
        EXPECT_EQ(press({}), kind.nType == MENU ? 10 : KUL_LEFT);
    });
}

TEST_F(MenuTest, CallbacksMayTakeAwayWhatRuns)
{
    // What the menus return, and the toolbar, and what it runs between taking and losing the focus:
    // the button is the one that was selected when Enter was pressed, if it is still there.
    const struct {
        const char* name;
        KULCALLBACK act;
        int nMenu, nToolbar;
        const char* events;
    } rows[] = {
        {"remove all",
         [] {
             while (now->remove(1, kRef, 0) == 0) {
             }
         },
         KUL_LEFT, KUL_LEFT, ""},
        {"remove", [] { now->remove(1, kRef, 0); }, KUL_LEFT, KUL_LEFT, ""},
        {"remove, add",
         [] {
             now->remove(1, kRef, 0);
             now->add(kRef, "new", 1);
         },
         KUL_LEFT, KUL_LEFT, "button2 button2 "},
        {"select", [] { now->select() = 5; }, KUL_LEFT, KUL_LEFT, "button2 "},
        {"configure", [] { now->config(kRef, onClick); }, KUL_LEFT, KUL_LEFT, "click2 "},
        {"hide", [] { SetUIVisibility(1, kRef, F); }, KUL_LEFT, 0, "button2 "},
        {"hide the dialog", [] { kulgui_hide(1); }, KUL_LEFT, -10000, "button2 "},
        {"hide it and leave",
         [] {
             kulgui_hide(1);
             kulgui_leave(1);
         },
         KUL_LEFT, KUL_LEFT, ""},
        {"focus", [] { kulgui_setFocus(1, kRef); }, 0, 0, ""},
        {"destroy the dialog", [] { kulgui_destroy(1); }, -10000, -10000, ""},
    };
    for (const auto& row : rows) {
        forEach(kAll, [&](const Kind& kind) {
            SCOPED_TRACE(row.name);
            const bool menu = kind.nType != TOOLBAR;
            kind.config(kRef, row.act);
            addMany(3);
            kind.select() = 2;
            std::vector<int> keys = {KS_ENTER, KS_ENTER};
            if (menu)
                keys.insert(keys.end(), {kind.nForward, kind.nBack, kind.nBack, KS_ENTER, 0});
            EXPECT_EQ(press(keys), menu ? row.nMenu : row.nToolbar);
            const bool lives = row.nMenu != -10000;
            EXPECT_EQ(events.find("unfocus") != events.npos, lives);
            if (!menu) {
                EXPECT_EQ(events, std::string("focus2 ") + row.events + (lives ? "unfocus2 " : ""));
            }
        });
    }
}

TEST_F(MenuTest, AddsAndRemovesAtTheEnd)
{
    // For removal the counts and selections are of those that count, else 3.
    const struct {
        int nAdd, nStart, nResult, nSelect, nCount;
    } rows[] = {
        {1, -1, 0, 0, 1}, {1, 3, 0, 3, 2}, {1, 3, 0, 3, 3},  {0, 3, 0, 2, 2},
        {0, 3, 0, 1, 1},  {0, 3, 1, 0, 0}, {0, 3, -1, 3, 0},
    };
    forEach(kAll, [&](const Kind& kind) {
        EXPECT_EQ(kind.select(), kind.nType == DESCRMENU ? -1 : 0);
        for (const auto& row : rows) {
            kind.select() = row.nStart;
            const int nResult =
                row.nAdd ? kind.add(kRef, std::to_string(row.nCount).c_str(), 1) : kind.remove(1, kRef, row.nStart - 1);
            EXPECT_EQ(nResult, row.nResult);
            EXPECT_EQ(kind.select(), row.nAdd || kind.counts ? row.nSelect : 3);
            EXPECT_EQ(kind.count(), row.nAdd || kind.counts ? row.nCount : 3);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(kind.get(kRef, i), i < row.nCount ? std::to_string(i + 1) : "null");
        }
        const int nCount = kind.count();
        for (int nGood = 0; nGood < (kind.nType == DESCRMENU ? 3 : 2); ++nGood) {
            const FailingMemory memory(nGood);
            EXPECT_EQ(kind.add(kRef, "x", 1), -1);
        }
        EXPECT_EQ(kind.count(), nCount);
        EXPECT_EQ(kind.add(kRef, "again", 1), 0);
        EXPECT_EQ(kind.get(kRef, 0), "again");
        // The count of the two that do not count is too high: nothing behind the list is read.
        EXPECT_EQ(press({kind.nBack, kind.nBack, kind.nBack}), KUL_LEFT);
    });
}

TEST_F(MenuTest, HoldsThousandsAndLooksUpThirty)
{
    forEach(kAll, [&](const Kind& kind) {
        addMany(kMany);
        EXPECT_EQ(kind.count(), kMany);
        EXPECT_EQ(kind.get(kRef, 29), "e29");
        for (const int nCapped : {30, 31, 45, -1, INT_MAX, INT_MIN})
            EXPECT_EQ(kind.get(kRef, nCapped), "e30");
        kind.select() = kMany - 2;
        press({kind.nForward, kind.nForward, kind.nForward, kind.nBack, kind.nBack});
        EXPECT_EQ(kind.select(), kMany - 1);
    });
}

TEST_F(MenuTest, RefusesUnknownAndForeignComponents)
{
    forEach(kAll, [&](const Kind& kind) {
        EXPECT_EQ(kind.create(1, kRef), kind.nTaken);
        kulbutton_create(1, kRef + 1);
        {
            const FailingMemory memory(1);
            EXPECT_EQ(kind.create(1, kRef + 2), -1);
        }
        for (const int nRef : {kRef + 1, kRef + 2, -1, INT_MAX}) {
            EXPECT_EQ(kind.config(nRef, nullptr) & kind.add(nRef, "x", 1) & kind.remove(1, nRef, 0), -1);
            EXPECT_EQ(kind.get(nRef, 0), "null");
            EXPECT_EQ(kind.execKeys(1, nRef), kind.nForeign);
        }
        EXPECT_EQ(kind.execKeys(77, kRef), kind.nForeign);
        EXPECT_EQ(events, "");
    });
    EXPECT_EQ(ConfigDescrmenuComponent(nullptr, nullptr), -1);
    EXPECT_EQ(WipeMenuElements(nullptr) & RemoveToolbarButton(nullptr), -1);
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
    KULMENUELEMENT* list[4] = {};
    for (int i = 0; i < 4; ++i) {
        list[i] = AddMenuElement(i ? list[i - 1] : nullptr, 1, "a", never, onClick);
        ASSERT_NE(list[i], nullptr);
        EXPECT_EQ(list[i]->Prev, i ? list[i - 1] : nullptr);
        EXPECT_EQ(list[0]->Prev, i ? list[i] : nullptr);
    }
    EXPECT_EQ(list[0]->onClick, onClick);
    EXPECT_EQ(RemoveMenuElement(list[2]), 0);
    EXPECT_EQ(list[2]->Next, nullptr);
    EXPECT_EQ(list[0]->Prev, list[2]);
    EXPECT_EQ(WipeMenuElements(list[1]), 0);
    EXPECT_EQ(list[0]->Next, nullptr);
    EXPECT_EQ(list[0]->Prev, nullptr);
    EXPECT_EQ(RemoveMenuElement(list[0]), 1);
}

} // namespace
