// SPDX-License-Identifier: MIT
//
// The calls that the interface's target makes. What is exported and not named here gets what there is: the build
// lists that. Here are the calls that would link or free what they get and so get nothing (N), those that make, set
// and free a record of a kind (K), and those that need memory of the program's; szKeystrokes is none.
#ifndef KUL_TESTS_FUZZ_CALLS_HPP
#define KUL_TESTS_FUZZ_CALLS_HPP

#include "arguments.hpp"

namespace kulfuzz {

// A record that the program has made, of which no dialog knows.
template <typename Node, typename Record>
void callForRecord(int (*attach)(Node*), int (*config)(GUI*, Record*), int (*wipe)(Record*))
{
    Node node{};
    if (attach(&node) == 0) {
        config(argument<GUI*>(), static_cast<Record*>(node.Pointer));
        wipe(static_cast<Record*>(node.Pointer));
    }
    attach(nullptr);
    config(nullptr, nullptr);
    wipe(nullptr);
}

// Lists of elements that the program has made.
inline void callForElements()
{
    KULTOOLBAR bar{};
    const auto useUp = [](auto* first, auto* second, int (*remove)(decltype(first)), int (*wipe)(decltype(first))) {
        check(first && second && remove(first) == 0 && wipe(first) == 0);
    };
    auto* menu = AddMenuElement(nullptr, number(), text(), nullptr, nullptr);
    useUp(menu, AddMenuElement(menu, 1, text(), nullptr, nullptr), RemoveMenuElement, WipeMenuElements);
    auto* box = AddDescrmenuElement(nullptr, number(), text(), text(), nullptr, nullptr);
    useUp(box, AddDescrmenuElement(box, 1, text(), text(), nullptr, nullptr), RemoveDescrmenuElement,
          WipeDescrmenuElements);
    auto* button = AddToolbarButton(&bar, nullptr, number(), text(), nullptr, nullptr);
    useUp(button, AddToolbarButton(&bar, button, 1, text(), nullptr, nullptr), RemoveToolbarButton, WipeToolbarButtons);
    auto* checked = AddCheckElement(nullptr, number(), text(), nullptr);
    useUp(checked, AddCheckElement(checked, 1, text(), nullptr), RemoveCheckElement, WipeCheckElements);
    auto* option = AddOptionElement(nullptr, number(), text(), nullptr, nullptr);
    useUp(option, AddOptionElement(option, 1, text(), nullptr, nullptr), RemoveOptionElement, WipeOptionElements);
}

// What fills memory of the program's.
inline void callForMemory()
{
    constexpr const char* kItems[] = {"one", "two", "three", "", nullptr};
    char szBuffer[9] = "ab";
    const auto nSize = static_cast<int>(take() % sizeof szBuffer);
    int nChecked[5] = {};
    KULFIELD fields[] = {{"a", szBuffer, sizeof szBuffer, NOMASK, nullptr, refuse}};
    DLG dialog{newwin(3, 5, 0, 0), newwin(3, 5, 1, 1), nullptr, nullptr, T, ""};
    GUI own{};
    const CURRENT current{number(), number(), number(), number(), number(), number()};
    const CONTROL controls{number(), number(), number(), number()};
    switch (take() % 12) { // clang-format off
    case 0: kuldialog_enter(text(), text(), szBuffer, nSize, number()); break;
    case 1: kuldialog_form(text(), text(), fields, 1); break;
    case 2: kuldialog_check(text(), text(), kItems, nChecked, 5); break;
    case 3: kuldialog_choose(text(), text(), kItems, 5, number()); break;
    case 4: kuldialog_option(text(), text(), kItems, 5, number()); break;
    case 5: kuldialog_pick(text(), text(), szBuffer, nSize); break;
    case 6: FillString(szBuffer, nSize, 'a'); CopyStrWithoutEOS(szBuffer, "12345678", nSize); break;
    case 7: SwapnChar(szBuffer, 'a', '\0', nSize); SwapChar(szBuffer, 'b', 'c'); break;
    case 8: LoadGUIDefaults(&own); SetVar(&own.nX, number()); break;
    case 9: SetCurrentSelection(&current); CurrentSelection(&current, number()); break;
    case 10: SetControls(&controls); Controls(&controls, number()); break;
    default: ShowDlg(&dialog); HideDlg(&dialog);
    } // clang-format on
    KillDlg(&dialog);
    kulgui_setUser(number(), number(), stdscr);
}

// clang-format off
inline constexpr void (*kCalls[])() = {
#define C(name) [] { call<name>(name); },
#define N(name) [] { callWithNothing<name>(name); },
#define K(attach, config, wipe) [] { callForRecord(attach, config, wipe); },
#include "exported_calls.hpp"
    N(AddDIComponent) N(AddUIComponent) N(AttachComponentToDI) N(AttachComponentToUI) N(LoadGUIDefaults)
    N(SetControls) N(Controls) N(SetVar) N(KillDlg) N(WipeAllChains) N(WipeChain) N(WipeAllDIComponents)
    N(WipeAllUIComponents) N(kuldialog_enter) N(kuldialog_form) N(kuldialog_check) N(kuldialog_choose)
    N(kuldialog_option) N(kuldialog_pick) N(FillString) N(CopyStrWithoutEOS) N(SwapChar) N(SwapnChar)
    N(WipeStatbarElements) N(WipeDescrfieldElements) N(RemoveMenuElement) N(RemoveDescrmenuElement)
    N(RemoveCheckElement) N(RemoveOptionElement) N(RemoveToolbarButton) N(WipeMenuElements) N(WipeDescrmenuElements)
    N(WipeCheckElements) N(WipeOptionElements) N(WipeToolbarButtons) N(ShowDlg) N(HideDlg)
    K(AttachMenuComponentToUI, ConfigMenuComponent, WipeMenuComponent)
    K(AttachDynmenuComponentToUI, ConfigDynmenuComponent, WipeDynmenuComponent)
    K(AttachDescrmenuComponentToUI, ConfigDescrmenuComponent, WipeDescrmenuComponent)
    K(AttachButtonComponentToUI, ConfigButtonComponent, WipeButtonComponent)
    K(AttachToolbarComponentToUI, ConfigToolbarComponent, WipeToolbarComponent)
    K(AttachCheckboxComponentToUI, ConfigCheckboxComponent, WipeCheckboxComponent)
    K(AttachOptionsComponentToUI, ConfigOptionsComponent, WipeOptionsComponent)
    K(AttachFileviewComponentToUI, ConfigFileviewComponent, WipeFileviewComponent)
    K(AttachTextboxComponentToUI, ConfigTextboxComponent, WipeTextboxComponent)
    K(AttachStatbarComponentToDI, ConfigStatbarComponent, WipeStatbarComponent)
    K(AttachScrollbarComponentToDI, ConfigScrollbarComponent, WipeScrollbarComponent)
    K(AttachProgbarComponentToDI, ConfigProgbarComponent, WipeProgbarComponent)
    K(AttachDescrfieldComponentToDI, ConfigDescrfieldComponent, WipeDescrfieldComponent)
    K(AttachBoxComponentToDI, ConfigBoxComponent, WipeBoxComponent)
    K(AttachLineComponentToDI, ConfigLineComponent, WipeLineComponent)
    K(AttachLabelComponentToDI, ConfigLabelComponent, WipeLabelComponent)
    callForElements, callForMemory,
    // New calls come here, and take the last numbers: the others mean what they meant to inputs that are kept.
    C(kulgui_setMarkerBars)
};
// clang-format on
inline constexpr unsigned kNew = 1;
inline constexpr unsigned kKnown = std::size(kCalls) - kNew;
static_assert(kKnown == 397, "a new call is not among the last ones");

} // namespace kulfuzz

#endif
