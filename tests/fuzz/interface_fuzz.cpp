// SPDX-License-Identifier: MIT
//
// Any calls in any order with any numbers, texts and callbacks, also from callbacks, and keys to what
// runs then.
#include "calls.hpp"

using namespace kulfuzz;

namespace {

int nDepth = 0;

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
    const unsigned n = take() + 256 * take();
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
