// SPDX-License-Identifier: MIT
//
// Any calls in any order with any numbers, texts and callbacks, also from callbacks, and keys to what
// runs then.
#include "arguments.hpp"

using namespace kulfuzz;

namespace {

int nDepth = 0;

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
void callForElements()
{
    KULTOOLBAR bar{};
    const auto useUp = [](auto* first, auto* second, int (*remove)(decltype(first)), int (*wipe)(decltype(first))) {
        check(first && second && remove(first) == 0 && wipe(first) == 0);
    };
    int nNumber = number();
    auto* menu = AddMenuElement(nullptr, nNumber, text(), nullptr, nullptr);
    useUp(menu, AddMenuElement(menu, 1, text(), nullptr, nullptr), RemoveMenuElement, WipeMenuElements);
    nNumber = number();
    auto* box = std::apply(AddDescrmenuElement, std::tuple{nullptr, nNumber, text(), text(), nullptr, nullptr});
    useUp(box, std::apply(AddDescrmenuElement, std::tuple{box, 1, text(), text(), nullptr, nullptr}),
          RemoveDescrmenuElement, WipeDescrmenuElements);
    nNumber = number();
    auto* button = AddToolbarButton(&bar, nullptr, nNumber, text(), nullptr, nullptr);
    useUp(button, AddToolbarButton(&bar, button, 1, text(), nullptr, nullptr), RemoveToolbarButton, WipeToolbarButtons);
    nNumber = number();
    auto* checked = AddCheckElement(nullptr, nNumber, text(), nullptr);
    useUp(checked, AddCheckElement(checked, 1, text(), nullptr), RemoveCheckElement, WipeCheckElements);
    nNumber = number();
    auto* option = AddOptionElement(nullptr, nNumber, text(), nullptr, nullptr);
    useUp(option, AddOptionElement(option, 1, text(), nullptr, nullptr), RemoveOptionElement, WipeOptionElements);
}

// What fills memory of the program's.
void callForMemory()
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
    case 0: std::apply(kuldialog_enter, std::tuple{text(), text(), szBuffer, nSize, number()}); break;
    case 1: kuldialog_form(text(), text(), fields, 1); break;
    case 2: kuldialog_check(text(), text(), kItems, nChecked, 5); break;
    case 3: std::apply(kuldialog_choose, std::tuple{text(), text(), kItems, 5, number()}); break;
    case 4: std::apply(kuldialog_option, std::tuple{text(), text(), kItems, 5, number()}); break;
    case 5: kuldialog_pick(text(), text(), szBuffer, nSize); break;
    case 6: FillString(szBuffer, nSize, 'a'); CopyStrWithoutEOS(szBuffer, "12345678", nSize); break;
    case 7: SwapnChar(szBuffer, 'a', '\0', nSize); SwapChar(szBuffer, 'b', 'c'); break;
    case 8: LoadGUIDefaults(&own); SetVar(&own.nX, number()); break;
    case 9: SetCurrentSelection(&current); CurrentSelection(&current, number()); break;
    case 10: SetControls(&controls); Controls(&controls, number()); break;
    default: ShowDlg(&dialog); HideDlg(&dialog);
    } // clang-format on
    KillDlg(&dialog);
    std::apply(kulgui_setUser, std::tuple{number(), number(), &nDepth});
}

constexpr void (*kCalls[])() = {
#define C(name) [] { call<name>(name); },
#define N(name) [] { callWithNothing<name>(name); },
#define K(attach, config, wipe) [] { callForRecord(attach, config, wipe); },
#include "calls.hpp"
    callForElements, callForMemory,
    // New calls come here, and take the last numbers: the others mean what they meant to inputs that are kept.
    C(kulgui_setMarkerBars)};
constexpr unsigned kNew = 1;
constexpr unsigned kKnown = std::size(kCalls) - kNew;

void build()
{
    kulgui_create(0);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", nullptr, kCallbacks[take() % 2], nullptr, nullptr,
                       nullptr);
    ConfigGUIPrime();
    for (int nChain = 1; nChain < 3; ++nChain) {
        kulgui_create(nChain);
        kulgui_config(nChain, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "t", BORDER, 4 * nChain, nChain, 30, 10, nullptr,
                      nullptr, nullptr, nullptr, nullptr);
        CreateUIComponent(nChain, static_cast<int>(take() % 9), 1);
        CreateDIComponent(nChain, static_cast<int>(take() % 7), 2);
        ConfigUIComponent(nChain, 1);
    }
}

} // namespace

void kulfuzz::callAny()
{
    if (nDepth >= 6 || isOver())
        return;
    ++nDepth;
    unsigned n = take();
    n += 256 * take();
    const unsigned nLast = (0xffff - n) / 128; // counted from the last number back
    if (n % 8 == 0)
        kulgui_exec(static_cast<int>(n / 8 % 4));
    else
        kCalls[nLast < kNew ? kKnown + nLast : n / 8 % kKnown]();
    --nDepth;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const bool isOpen = openMemory("10", "32");
    check(isOpen && szKeystrokes[0]);
    beginLine(data, size);
    NCursesEnv(1);
    for (int nWord = 0; nWord < KULWORDS; ++nWord)
        kuldialog_setWord(nWord, nullptr);
    kulgui_setEdition(1 + static_cast<int>(take() % 2));
    build();
    while (!isOver())
        callAny();
    kuldialog_done();
    static int nTimer = 1;
    for (int n = 0; n < 100; ++n) // more than an input has room for
        kulgui_stopTimer(nTimer + n);
    nTimer = kulgui_setTimer(0, callAny);
    for (const int n : kNumbers)
        kulgui_watch(n, nullptr);
    while (GetPrimaryChain())
        kulgui_destroy(GetPrimaryChain()->nRef);
    return 0;
}
