// SPDX-License-Identifier: MIT
//
// A file viewer on the whole screen and nothing else: kulgui_fileview FILE. Escape leaves it.
#include "kulgui.h"

namespace {

constexpr int kChain = 0;
constexpr int kRef = 1;

} // namespace

int main(int argc, char** argv)
{
    if (argc != 2 || NCursesEnv(1) != 0)
        return 2;
    kulgui_create(kChain);
    kulgui_configPrime(kChain, WHITE_BLACK, WHITE_BLACK, WHITE_BLACK, WHITE_BLACK, "", nullptr,
                       nullptr, nullptr, nullptr, nullptr);
    kulfileview_create(kChain, kRef);
    const int nResult = kulfileview_config(
        kChain, kRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, 0, 0, COLS, LINES, NOBORDER, argv[1], nullptr,
        [] { kulgui_leave(kChain); }, nullptr, nullptr);
    if (nResult == 0)
        kulgui_exec(kChain);
    kulgui_destroyAll();
    kulgui_destroy(kChain);
    return nResult == 0 ? 0 : 1;
}
