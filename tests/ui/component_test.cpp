// SPDX-License-Identifier: MIT
//
// What the kinds of components have in common: what they answer when they are not there, and
// callbacks that take away what runs.
#include "ui/component.hpp"

#include "support/window_test.hpp"

namespace {

using namespace kultest;

enum Place : char { Focus = 'f', Select = 's', Click = 'c', Element = 'e', Poll = 'p' };

// What a handler gives when its component is not there, hidden, hidden while it runs, in a dialog
// that is hidden then, and after Tab; where it runs callbacks.
struct Kind {
    int nType, nTaken;
    int nForeign, nHidden, nHiding, nDialogHiding, nTab;
    std::string_view places;
    int (*create)(int, int), (*show)(int, int), (*hide)(int, int);
    bool (*refused)(int, int);
    int (*remove)(int, int, int) = [](int, int, int) { return -1; };
};

// Lists take elements off by their rings alone.
template <typename List, auto Remove>
int removeOf(int, int, int)
{
    auto& list = record<List>();
    return list.nElements > 1 ? --list.nElements, Remove(list.Element) : -1;
}

constexpr int kLeft = KUL_LEFT, kGone = -10000;

// clang-format off
const Kind kKinds[] = {
    {MENU, -10018, 10, 10, kLeft, kLeft, kLeft, "fcp", kulmenu_create, kulmenu_show, kulmenu_hide,
     refuse<kulmenu_config, kulmenu_addElement, kulmenu_remElement, kulmenu_getElement, kulmenu_count>,
     kulmenu_remElement},
    {DYNMENU, -10021, 10, kLeft, kLeft, kLeft, kLeft, "fcp", kuldynmenu_create, kuldynmenu_show, kuldynmenu_hide,
     refuse<kuldynmenu_config, kuldynmenu_addElement, kuldynmenu_remElement, kuldynmenu_getElement, kuldynmenu_count>,
     kuldynmenu_remElement},
    {DESCRMENU, -10020, 10, kLeft, kLeft, kLeft, kLeft, "fcp", kuldescrmenu_create, kuldescrmenu_show, kuldescrmenu_hide,
     refuse<kuldescrmenu_config, kuldescrmenu_addElement, kuldescrmenu_remElement, kuldescrmenu_getElement,
            kuldescrmenu_count>,
     kuldescrmenu_remElement},
    {BUTTON, -10022, 10, 10, kLeft, kLeft, kLeft, "fscp", kulbutton_create, kulbutton_show, kulbutton_hide,
     refuse<kulbutton_config, kulokbutton_config, kulcancelbutton_config, kulexitbutton_config>},
    {TOOLBAR, -10027, -1, 10, 0, kGone, 10, "fcep", kultoolbar_create, kultoolbar_show, kultoolbar_hide,
     refuse<kultoolbar_config, kultoolbar_addButton, kultoolbar_remButton, kultoolbar_getButton, kultoolbar_count>,
     kultoolbar_remButton},
    {CHECKBOX, -10023, kGone, 10, 10, 10, 10, "fscep", kulcheckbox_create, kulcheckbox_show, kulcheckbox_hide,
     refuse<kulcheckbox_config, kulcheckbox_addElement, kulcheckbox_getElement, kulcheckbox_setSelect,
            kulcheckbox_getSelect, kulcheckbox_getFocus, kulcheckbox_isChecked, kulcheckbox_check, kulcheckbox_count>,
     removeOf<KULCHECKBOX, RemoveCheckElement>},
    {OPTIONS, -10024, -1, -1, 0, 10, 10, "fscep", kuloptions_create, kuloptions_show, kuloptions_hide,
     refuse<kuloptions_config, kuloptions_addElement, kuloptions_getElement, kuloptions_setClicked,
            kuloptions_getClicked, kuloptions_getSelected, kuloptions_getChosen, kuloptions_choose, kuloptions_count>,
     removeOf<KULOPTIONS, RemoveOptionElement>},
    {FILEVIEW, -10025, kGone, 10, 0, 10, 10, "fcp", kulfileview_create, kulfileview_show, kulfileview_hide,
     refuse<kulfileview_load, kulfileview_find, kulfileview_setPosition, kulfileview_getPosition,
            kulfileview_setFollow>},
    {TEXTBOX, -10026, kGone, 10, 0, 10, 10, "fsp", kultextbox_create, kultextbox_show, kultextbox_hide,
     refuse<kultextbox_config, kultextbox_setText, kultextbox_getText, kultextbox_setLimit, kultextbox_setCheck,
            kultextbox_setCursor>},
};
// clang-format on

using AnyComponentTest = ComponentTest;

TEST_F(AnyComponentTest, IsMadeOnceAndRefusedWhereItIsNot)
{
    const auto records = [] {
        std::string bytes;
        for (const Kind& kind : kKinds)
            bytes.append(static_cast<char*>(GetUIComponentByRef(1, kind.nType)->Pointer),
                         kul::uiKind(kind.nType)->size);
        return bytes;
    };
    for (const Kind& kind : kKinds) {
        EXPECT_EQ(kind.create(1, kind.nType), 0);
        configComponent(kind.nType, 2, 2);
        addElement(kind.nType, "kept");
    }
    const std::string before = records();
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.nType);
        for (int nRef = -1; nRef <= TEXTBOX + 1; ++nRef) {
            if (nRef != kind.nType) {
                EXPECT_TRUE(kind.refused(1, nRef)) << nRef;
                EXPECT_EQ(kul::uiKind(kind.nType)->execKeys(1, nRef), kind.nForeign);
            }
        }
        EXPECT_TRUE(kind.refused(77, kind.nType));
        EXPECT_EQ(kind.create(1, kind.nType), kind.nTaken);
        EXPECT_EQ(kind.create(77, kind.nType), -10009);
        const FailingMemory memory(1);
        EXPECT_EQ(kind.create(1, 20 + kind.nType), -1);
        EXPECT_EQ(configComponent(20 + kind.nType, 2, 2), -1);
    }
    EXPECT_EQ(records(), before);
}

TEST_F(AnyComponentTest, IsShownAndHidden)
{
    for (const Kind& kind : kKinds) {
        SCOPED_TRACE(kind.nType);
        renew();
        kind.create(1, kRef);
        const bool set = kind.nType == CHECKBOX || kind.nType == OPTIONS || kind.nType == TEXTBOX;
        EXPECT_EQ(kul::uiKind(kind.nType)->colors(&record<int>()).nFocus, set ? RED_MAGENTA : 0) << "when it is made";
        configComponent(kRef, 2, 2);
        EXPECT_EQ(kind.hide(1, kRef), -1) << "as documented";
        EXPECT_EQ(press({}), kind.nHidden);
        EXPECT_EQ(kind.show(1, kRef), -1);
        EXPECT_EQ(press({}), KUL_LEFT);
    }
}

// What each of these calls gives for NULL.
template <int nResult, auto... Calls>
void expectForNothing()
{
    const auto call = []<typename... More>(int (*one)(More...)) { return one(More{}...); };
    EXPECT_EQ((std::vector<int>{call(Calls)...}), std::vector<int>(sizeof...(Calls), nResult));
}

TEST_F(AnyComponentTest, IsNoneForNothing)
{
    expectForNothing<-1, ConfigMenuComponent, ConfigDynmenuComponent, ConfigDescrmenuComponent, ConfigButtonComponent,
                     ConfigToolbarComponent, ConfigCheckboxComponent, ConfigOptionsComponent, ConfigFileviewComponent,
                     ConfigTextboxComponent, WipeButtonComponent, WipeTextboxComponent, RemoveMenuElement,
                     RemoveDescrmenuElement, RemoveToolbarButton, RemoveCheckElement, RemoveOptionElement,
                     WipeMenuElements, WipeDescrmenuElements, WipeToolbarButtons, WipeCheckElements, WipeOptionElements,
                     CheckLastCheckElementForSpillover, CheckLastOptionElementForSpillover>();
    expectForNothing<0, WipeMenuComponent, WipeDynmenuComponent, WipeDescrmenuComponent, WipeToolbarComponent,
                     WipeCheckboxComponent, WipeOptionsComponent, WipeFileviewComponent, GetTotalCheckElementHeights,
                     GetTotalOptionElementHeights>();
    EXPECT_EQ(AddToolbarButton(nullptr, nullptr, 1, "x", nullptr, nullptr), nullptr);
}

const Kind* now = nullptr; // the kind that callbacks act on
KULCALLBACK act = nullptr;

// With an action in one of its callbacks, and three elements; that it unfocuses is noted.
void make(char place)
{
    const auto at = [&](char one) { return one == place ? act : nullptr; };
    configComponent(kRef, 2, 2, {at(Focus), [] { note("unfocus"); }, at(Select), at(Click)});
    for (const char* szText : {"a", "b", "c"})
        addElement(kRef, szText, 1, at(Element), at(Element));
}

TEST_F(AnyComponentTest, CallbacksMayTakeAwayWhatRuns)
{
    const std::tuple<const char*, KULCALLBACK, int, int Kind::*> rows[] = {
        {"destroy", [] { kulgui_destroy(1); }, kGone, nullptr},
        {"empty", [] { kulgui_config(1, 0, 0, 0, 0, "", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr, nullptr); },
         kGone, nullptr},
        {"leave", [] { kulgui_leave(1); }, KUL_LEFT, nullptr},
        {"focus", [] { kulgui_setFocus(1, kRef); }, 0, nullptr},
        {"hide", [] { now->hide(1, kRef); }, 0, &Kind::nHiding},
        {"hide the dialog", [] { kulgui_hide(1); }, 0, &Kind::nDialogHiding},
        {"configure", [] { make(0); }, 0, &Kind::nTab},
        {"remove", [] { now->remove(1, kRef, 0); }, 0, &Kind::nTab},
        {"remove all",
         [] {
             while (now->remove(1, kRef, 0) == 0) {
             }
         },
         0, &Kind::nTab},
    };
    for (const Kind& kind : kKinds) {
        for (const auto& [name, action, nResult, result] : rows) {
            for (const char place : kind.places) {
                SCOPED_TRACE(name + std::to_string(kind.nType) + place);
                renew();
                now = &kind;
                act = action;
                kind.create(1, kRef);
                make(place);
                EXPECT_EQ(press({KS_DOWN, KS_RIGHT, place == Poll ? -2 : 0, KS_ENTER, KS_UP, KS_TAB}, {act}),
                          result ? kind.*result : nResult);
                EXPECT_EQ(events.empty(), nResult == kGone);
            }
        }
    }
}

} // namespace
