// SPDX-License-Identifier: MIT
//
// A program to watch: a dialog that is left alone for some seconds, or one whose text box gets a
// paste. Afterwards it tells how often it went to sleep, and how many keys came.
// usage: kulgui_line rest SECONDS | paste | paste-counted
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include <sys/resource.h>

#include "kulgui.h"

namespace {

constexpr int kDialog = 1;
constexpr int kList = 1;
constexpr int kBox = 2;

long keys = 0;

void count()
{
    ++keys;
}

void addList()
{
    kulcheckbox_create(kDialog, kList);
    kulcheckbox_config(kDialog, kList, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, 30, 10, BORDER, nullptr,
                       nullptr, nullptr, nullptr);
    for (const char* szText : {"One", "Two", "Three", "Four", "Five"})
        kulcheckbox_addElement(kDialog, kList, szText, 0, 1, nullptr, nullptr);
}

void addBox(bool counted)
{
    kultextbox_create(kDialog, kBox);
    kultextbox_config(kDialog, kBox, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, 30, 5, BORDER, NOMASK,
                      nullptr, nullptr, nullptr, counted ? count : nullptr);
    kultextbox_setLimit(kDialog, kBox, 65535);
}

} // namespace

int main(int argc, char** argv)
{
    const bool rests = argc == 3 && std::strcmp(argv[1], "rest") == 0;
    if (!rests && argc != 2)
        return 2;
    kulgui_setEdition(2);
    kulgui_create(0);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Bench", nullptr, nullptr,
                       nullptr, nullptr, nullptr);
    kulgui_create(kDialog);
    kulgui_config(kDialog, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Dialog", BORDER, 20, 5, 40, 14,
                  nullptr, nullptr, nullptr, nullptr, nullptr);
    rests ? addList() : addBox(std::strcmp(argv[1], "paste-counted") == 0);
    if (rests)
        kulgui_setTimer(1000 * std::atoi(argv[2]), [] { kulgui_leave(kDialog); });
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(0);
    kulgui_exec(kDialog);
    kulgui_destroyAll();
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    const char* szText = rests ? "" : kultextbox_getText(kDialog, kBox);
    std::printf("sleeps %ld keys %ld text %zu\n", usage.ru_nvcsw, keys, std::strlen(szText));
    return 0;
}
