// SPDX-License-Identifier: MIT
//
// Any calls in any order with any numbers, texts and callbacks, also from callbacks, and keys to what
// runs then. Numbers of dialogs and components are small, so that calls meet; other numbers are odd.
#include <climits>
#include <clocale>
#include <ctime>
#include <iterator>
#include <type_traits>

#include "gui/description.hpp"
#include "input.hpp"
#include "kulgui.h"

using namespace kulfuzz;

namespace {

constexpr int kNumbers[] = {0,          1,  2,  3,  -1, -2,  5,       8,       10,       13,
                            20,         40, 79, 80, 81, 100, INT_MAX, INT_MIN, KUL_KEEP, 24,
                            KUL_CENTER, 55, 56, 30, 31, 512, 1000,    1 << 24, -1000};
constexpr int kKeys[] = {KS_TAB,       KS_ENTER,
                         KS_ESC,       KS_SPACE,
                         KS_BACKSPACE, KS_DELETE,
                         KS_HOME,      KS_END,
                         KS_LEFT,      KS_RIGHT,
                         KS_UP,        KS_DOWN,
                         KS_PAGEUP,    KS_PAGEDOWN,
                         KS_BACKTAB,   KS_F1,
                         KS_INSERT,    'a',
                         KS_ALT + 'x', 1,
                         21,           KUL_CHARACTER + 0x4e2d};
constexpr const char* kTexts[] = {"",
                                  "OK",
                                  "two words",
                                  "a\nb\nc",
                                  "Gr\xc3\xb6\xc3\x9f"
                                  "e",
                                  "\xe4\xb8\xad\xe6\x96\x87 wide",
                                  "\x1b[2J\x07",
                                  "longerthanarowofwords and more",
                                  "e\xcc\x81\xe2\x80\x8d",
                                  "\xff\xc2"};
constexpr const char* kItems[] = {"one", "two", "three", "", nullptr};
int nDepth = 0;

void callAny();
int refuse(const char* szText)
{
    return szText[0] == 'x';
}
constexpr KULCALLBACK kCallbacks[] = {nullptr, callAny, [] { kulgui_leave(1); },
                                      [] { kulgui_destroy(static_cast<int>(take() % 4)); }};

char* text()
{
    static char szTexts[8][40];
    static unsigned nNext = 0;
    const unsigned n = take();
    char* szText = szTexts[nNext++ % 8];
    std::snprintf(szText, sizeof *szTexts, "%s", n < 128 ? kTexts[n % std::size(kTexts)] : takeText(39).c_str());
    return n == 127 ? nullptr : szText;
}

template <typename Type>
Type argument()
{
    if constexpr (std::is_same_v<Type, int>) {
        const unsigned n = take();
        return n < 160 ? static_cast<int>(n % 4) : kNumbers[n % std::size(kNumbers)];
    } else if constexpr (std::is_same_v<Type, const char*>) {
        return text();
    } else if constexpr (std::is_same_v<Type, KULCALLBACK>) {
        return kCallbacks[take() % std::size(kCallbacks)];
    } else if constexpr (std::is_same_v<Type, int (*)(const char*)>) {
        return refuse;
    } else if constexpr (std::is_same_v<Type, WINDOW*> || std::is_same_v<Type, const WINDOW*>) {
        const CHAIN* chain = GetChain(static_cast<int>(take() % 4));
        return chain && chain->Pointer ? chain->Pointer->winMain : nullptr;
    } else if constexpr (std::is_same_v<Type, char>) {
        return static_cast<char>(take());
    } else {
        return nullptr;
    }
}

template <auto Function, typename Result, typename... Arguments>
void call(Result (*)(Arguments...))
{
    Function(argument<std::remove_cv_t<Arguments>>()...);
}

void enter()
{
    char szBuffer[8] = "ab";
    int nChecked[5] = {};
    KULFIELD fields[] = {{"a", szBuffer, sizeof szBuffer, NOMASK, nullptr, refuse}};
    switch (take() % 5) {
    case 0:
        kuldialog_enter(text(), text(), szBuffer, static_cast<int>(take() % 9), argument<int>());
        break;
    case 1:
        kuldialog_form(text(), text(), fields, 1);
        break;
    case 2:
        kuldialog_check(text(), text(), kItems, nChecked, 5);
        break;
    case 3:
        kuldialog_choose(text(), text(), kItems, 5, argument<int>());
        break;
    default:
        kuldialog_option(text(), text(), kItems, 5, argument<int>());
    }
}

constexpr void (*kCalls[])() = {
#define C(name) [] { call<name>(name); },
#include "calls.hpp"
#undef C
    enter,
};

void callAny()
{
    if (nDepth >= 6)
        return;
    ++nDepth;
    const unsigned n = take() + 256 * take();
    if (n % 8 == 0)
        kulgui_exec(static_cast<int>(n / 8 % 4));
    else
        kCalls[n / 8 % std::size(kCalls)]();
    --nDepth;
}

void build()
{
    kulgui_create(0);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", nullptr, kCallbacks[take() % 2], nullptr, nullptr,
                       nullptr);
    for (int nChain = 1; nChain < 3; ++nChain) {
        kulgui_create(nChain);
        kulgui_config(nChain, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "t", BORDER, 4 * nChain, nChain, 40, 14, nullptr,
                      nullptr, nullptr, nullptr, nullptr);
        CreateUIComponent(nChain, static_cast<int>(take() % 9), 1);
        ConfigUIComponent(nChain, 1);
    }
}

} // namespace

extern "C" {

int __wrap_NCursesEnv(int nMode)
{
    return nMode > 2 ? nMode : 0;
}

std::time_t __wrap_time(std::time_t*)
{
    static std::time_t now = 1000000;
    return ++now;
}

int __wrap__ZN3kul8awaitKeyEv()
{
    if (isOver()) {
        kulgui_leave(GetCurrentSelection()->nChain);
        kulgui_leave(GetActiveChain());
        return GetActiveChain() < 0 ? KS_ESC : 0;
    }
    const unsigned n = take();
    return n < 200 ? kKeys[n % std::size(kKeys)] : static_cast<int>(n % 128);
}

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static SCREEN* screen = nullptr;
    if (!screen) {
        FILE* nothing = std::fopen("/dev/null", "r+");
        std::setlocale(LC_CTYPE, "C.UTF-8");
        screen = kul::openScreen("xterm-256color", nothing, nothing);
        start_color();
        InitializeColorSets();
    }
    begin(data, size);
    kulgui_setEdition(1 + static_cast<int>(take() % 2));
    build();
    while (!isOver())
        callAny();
    kuldialog_done();
    for (int nTimer = 0; nTimer < 64; ++nTimer)
        kulgui_stopTimer(nTimer);
    while (GetPrimaryChain())
        kulgui_destroy(GetPrimaryChain()->nRef);
    return 0;
}
}
