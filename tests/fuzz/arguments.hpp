// SPDX-License-Identifier: MIT
//
// What the interface's target hands to a call: numbers that are odd, of dialogs and components small,
// so that calls meet; texts; callbacks; records that there are, or NULL.
#ifndef KUL_TESTS_FUZZ_ARGUMENTS_HPP
#define KUL_TESTS_FUZZ_ARGUMENTS_HPP

#include <climits>
#include <cstdio>
#include <tuple>
#include <type_traits>

#include "memory_line.hpp"

namespace kulfuzz {

// clang-format off
inline constexpr int kNumbers[] = {0, 1, 2, 3, -1, -2, 5, 8, 10, 13, 20, 40, 79, 80, 81, 100, INT_MAX, INT_MIN,
                                   KUL_KEEP, 24, KUL_CENTER, 55, 56, 30, 31, 512, 1000, 1 << 24, -1000};
inline constexpr const char* kTexts[] = {"", "OK", "two words", "a\nb\nc", "Gr\xc3\xb6\xc3\x9f z", ".",
                                         "\xe4\xb8\xad\xe6\x96\x87 wide", "\x1b[2J\x07", "/proc/self/comm",
                                         "longerthanarowofwords and more", "e\xcc\x81\xe2\x80\x8d", "\xff\xc2"};
// clang-format on

// Records in the order of UI_TYPE, and behind them of DI_TYPE.
template <typename... Records>
struct Kinds {
    template <typename Record>
    static bool isOf(int nKind)
    {
        int n = 0;
        return ((n++ == nKind && std::is_same_v<Record, Records>) || ...);
    }
};
using AllKinds = Kinds<KULMENU, KULDYNMENU, KULDESCRMENU, KULBUTTON, KULTOOLBAR, KULCHECKBOX, KULOPTIONS, KULFILEVIEW,
                       KULTEXTBOX, KULSTATBAR, KULGAUGEBAR, KULGAUGEBAR, KULDESCRFIELD, KULBOX, KULLINE, KULLABEL>;

void callAny();

inline int refuse(const char* szText)
{
    return szText[0] == 'x';
}

inline constexpr KULCALLBACK kCallbacks[] = {nullptr, callAny, [] { kulgui_leave(1); },
                                             [] { kulgui_destroy(static_cast<int>(take() % 4)); }};

// A text that stays for a while.
inline char* text()
{
    static char szTexts[8][40];
    static unsigned nNext = 0;
    const unsigned n = take();
    char* szText = szTexts[nNext++ % 8];
    std::snprintf(szText, sizeof *szTexts, "%s", n < 128 ? kTexts[n % std::size(kTexts)] : takeText(39).c_str());
    return n == 127 ? nullptr : szText;
}

inline int number()
{
    const unsigned n = take();
    return n < 160 ? static_cast<int>(n % 4) : kNumbers[n % std::size(kNumbers)];
}

// The record of a component or item if it is of that kind.
template <typename Record>
Record* record(int nChain, int nRef)
{
    const UI* ui = GetUIComponentByRef(nChain, nRef);
    const DI* di = GetDIComponentByRef(nChain, nRef);
    if (ui && AllKinds::isOf<Record>(ui->nType))
        return static_cast<Record*>(ui->Pointer);
    return di && AllKinds::isOf<Record>(TEXTBOX + 1 + di->nType) ? static_cast<Record*>(di->Pointer) : nullptr;
}

// Any of these types.
template <typename Type>
Type argument()
{
    using Bare = std::remove_const_t<std::remove_pointer_t<Type>>;
    const auto chain = [] { return GetChain(static_cast<int>(take() % 4)); };
    if constexpr (std::is_same_v<Type, int>) {
        return number();
    } else if constexpr (std::is_same_v<Type, char>) {
        return static_cast<char>(take());
    } else if constexpr (std::is_same_v<Bare, char>) {
        return text();
    } else if constexpr (std::is_same_v<Type, KULCALLBACK>) {
        return kCallbacks[take() % std::size(kCallbacks)];
    } else if constexpr (std::is_same_v<Type, int (*)(const char*)>) {
        return refuse;
    } else if constexpr (std::is_same_v<Bare, CHAIN>) {
        return chain();
    } else if constexpr (std::is_same_v<Bare, GUI>) {
        const CHAIN* one = chain();
        return one ? one->Pointer : nullptr;
    } else if constexpr (std::is_same_v<Bare, WINDOW>) {
        const CHAIN* one = chain();
        return one && one->Pointer ? one->Pointer->winMain : nullptr;
    } else if constexpr (std::is_same_v<Bare, UI>) {
        const int nChain = number();
        return GetUIComponentByRef(nChain, number());
    } else if constexpr (std::is_same_v<Bare, KULSTATELEMENT>) {
        const int nChain = number();
        const auto* bar = record<KULSTATBAR>(nChain, number());
        return bar ? bar->Element : nullptr;
    } else if constexpr (std::is_same_v<Bare, KULTOOLBARBUTTON>) {
        return std::apply(kultoolbar_getButton, std::tuple{number(), number(), number()});
    } else if constexpr (std::is_class_v<Bare>) {
        const int nChain = number();
        return record<Bare>(nChain, number());
    } else {
        return nullptr;
    }
}

// In braces arguments are read in their order, whichever compiler it is: an input means the same calls.
template <auto Function, typename Result, typename... Arguments>
void call(Result (*)(Arguments...))
{
    std::apply(Function, std::tuple<Arguments...>{argument<Arguments>()...});
}

// The same without anything that a pointer could lead to.
template <typename Type>
Type argumentOrNull()
{
    if constexpr (std::is_pointer_v<Type>)
        return nullptr;
    else
        return argument<Type>();
}

template <auto Function, typename Result, typename... Arguments>
void callWithNothing(Result (*)(Arguments...))
{
    std::apply(Function, std::tuple<Arguments...>{argumentOrNull<Arguments>()...});
}

} // namespace kulfuzz

#endif
