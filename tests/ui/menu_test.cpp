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

constexpr int kMany = 10000;
constexpr std::size_t kMenus = 3, kAll = 4; // of the kinds

const Callbacks kNotes = {[] { note("focus"); }, [] { note("unfocus"); }, [] { note("never"); }, [] { note("click"); }};

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
    int nType, nBack, nForward;
    bool obeysControls, counts; // removal changes the count and the selection
    int (*remove)(int, int, int);
    std::string (*get)(int nRef, int);
    int& (*select)(), &(*count)();
};

const Kind kKinds[] = {
    {"menu", MENU, KS_LEFT, KS_RIGHT, true, true, kulmenu_remElement, textOf<kulmenu_getElement>,
     of<KULMENU, &KULMENU::nSelect>, of<KULMENU, &KULMENU::nElements>},
    {"dynamic menu", DYNMENU, KS_UP, KS_DOWN, true, false, kuldynmenu_remElement, textOf<kuldynmenu_getElement>,
     of<KULDYNMENU, &KULDYNMENU::nSelect>, of<KULDYNMENU, &KULDYNMENU::nElements>},
    {"description menu", DESCRMENU, KS_LEFT, KS_RIGHT, false, false, kuldescrmenu_remElement,
     textOf<kuldescrmenu_getElement>, of<KULDESCRMENU, &KULDESCRMENU::nSelect>,
     of<KULDESCRMENU, &KULDESCRMENU::nElements>},
    {"toolbar", TOOLBAR, KS_LEFT, KS_RIGHT, false, true, kultoolbar_remButton, textOf<kultoolbar_getButton>,
     of<KULTOOLBAR, &KULTOOLBAR::nSelect>, of<KULTOOLBAR, &KULTOOLBAR::nButtons>},
};

class MenuTest : public ComponentTest {
protected:
    // Runs a test for each of the first kinds, in a dialog of its own.
    template <typename Test>
    void forEach(std::size_t nKinds, Test test)
    {
        for (const Kind& kind : std::span(kKinds, nKinds)) {
            SCOPED_TRACE(kind.name);
            renew();
            addComponent(kind.nType, kRef, 2, 2, kNotes);
            test(kind);
        }
    }

    static int add(const std::string& text, int nEnable = 1)
    {
        return addElement(kRef, text.c_str(), nEnable, kNotes.onSelect, kNotes.onSelect);
    }

    static void addMany(int nCount)
    {
        for (int i = 0; i < nCount; ++i)
            ASSERT_EQ(add("e" + std::to_string(i)), 0);
    }
};

TEST_F(MenuTest, ShowsWhatIsSelectedAndDisabled)
{
    // Its picture; colours with the first element selected; after a step back; without the focus.
    const std::tuple<Rows, Rows, Rows, Rows> looks[] = {
        {{" one   seven   no         "},
         {".fff...uuuuu...dd........."},
         {".ddd...uuuuu...dd........."},
         {".uuu...uuuuu...uu........."}},
        {{" ┌────┐ ", " │one │ ", " │seve│ ", " │no  │ ", " │    │ ", " └────┘ "},
         {".ffffff.", ".ffffff.", ".fuuuuf.", ".fddddf.", ".ffffff.", ".ffffff."},
         {".ffffff.", ".fddddf.", ".fuuuuf.", ".fddddf.", ".ffffff.", ".ffffff."},
         Rows(6, ".uuuuuu.")},
        {{" one   seven   no     ", " ┌──────────┐         ", " │what it   │         ", " │means     │         ",
          " │and more  │         ", " │          │         ", " └──────────┘         "},
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
        const auto& [cells, first, back, unfocused] = looks[&kind - kKinds];
        const int nWidth = static_cast<int>(first[0].size());
        const auto expectShades = [&](const Rows& rows) {
            EXPECT_EQ(shades(2, 1, static_cast<int>(rows.size()), nWidth), rows);
        };
        add("one", 0);
        add("seven");
        add("no", 0);
        press({});
        EXPECT_EQ(shown(2, 1, static_cast<int>(cells.size()), nWidth), cells);
        expectShades(first);
        press({kind.nBack});
        expectShades(back);
        kulgui_show(1);
        expectShades(unfocused);
        SetUIVisibility(1, kRef, F);
        kulgui_show(1);
        expectShades(Rows(6, std::string(first[0].size(), '.')));
    });
}

TEST_F(MenuTest, DescribesElementsBeyondTheWindow)
{
    kuldescrmenu_create(1, kRef);
    ConfigUIComponent(1, kRef);
    auto& menu = record<KULDESCRMENU>();
    EXPECT_EQ(std::vector({menu.nBarLength, menu.nBoxWidth, menu.nBoxHeight}), std::vector({75, 20, 19}));
    configComponent(kRef, 2, 2);
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
    configComponent(kRef, 2, 2);
    kuldescrmenu_addElement(1, kRef, 1, "new", "here", nullptr, nullptr);
    kuldescrmenu_addElement(1, kRef, 1, "\n\n    bb", "", nullptr, nullptr);
    press({});
    EXPECT_EQ(shown(4, 3, 1, 4), (Rows{" bbe"})) << "what follows is printed over it";
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
            configComponent(kRef, 2, 2, kNotes);
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
        EXPECT_EQ(press({-2, kind.nForward}, {[] { GetControls()->bExitGUI = T; }}),
                  kind.obeysControls ? 10 : KUL_LEFT);
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

TEST_F(MenuTest, AddsAndRemovesAtTheEnd)
{
    // For removal the counts and selections are of those that count, else 3.
    const std::tuple<bool, int, int, int, int> rows[] = {
        {true, -1, 0, 0, 1}, {true, 3, 0, 3, 2},  {true, 3, 0, 3, 3},   {false, 3, 0, 2, 2},
        {false, 3, 0, 1, 1}, {false, 3, 1, 0, 0}, {false, 3, -1, 3, 0},
    };
    forEach(kAll, [&](const Kind& kind) {
        EXPECT_EQ(kind.select(), kind.nType == DESCRMENU ? -1 : 0);
        for (const auto& [adds, nStart, nResult, nSelect, nCount] : rows) {
            kind.select() = nStart;
            EXPECT_EQ(adds ? add(std::to_string(nCount)) : kind.remove(1, kRef, nStart - 1), nResult);
            EXPECT_EQ(kind.select(), adds || kind.counts ? nSelect : 3);
            EXPECT_EQ(kind.count(), adds || kind.counts ? nCount : 3);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(kind.get(kRef, i), i < nCount ? std::to_string(i + 1) : "null");
        }
        const int nCount = kind.count();
        for (int nGood = 0; nGood < (kind.nType == DESCRMENU ? 3 : 2); ++nGood) {
            const FailingMemory memory(nGood);
            EXPECT_EQ(add("x"), -1);
        }
        EXPECT_EQ(kind.count(), nCount);
        EXPECT_EQ(add("again"), 0);
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

// Programs may hold a list of their own, and name it by any of its elements.
TEST_F(MenuTest, AnyElementStandsForItsList)
{
    KULMENUELEMENT* list[4] = {};
    for (int i = 0; i < 4; ++i) {
        list[i] = AddMenuElement(i ? list[i - 1] : nullptr, 1, "a", nullptr, kNotes.onClick);
        ASSERT_NE(list[i], nullptr);
        EXPECT_EQ(list[i]->Prev, i ? list[i - 1] : nullptr);
        EXPECT_EQ(list[0]->Prev, i ? list[i] : nullptr);
    }
    EXPECT_EQ(list[0]->onClick, kNotes.onClick);
    EXPECT_EQ(RemoveMenuElement(list[2]), 0);
    EXPECT_EQ(list[2]->Next, nullptr);
    EXPECT_EQ(list[0]->Prev, list[2]);
    EXPECT_EQ(WipeMenuElements(list[1]), 0);
    EXPECT_EQ(list[0]->Next, nullptr);
    EXPECT_EQ(list[0]->Prev, nullptr);
    EXPECT_EQ(RemoveMenuElement(list[0]), 1);
}

} // namespace
