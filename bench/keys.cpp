// SPDX-License-Identifier: MIT
//
// Presses keys in one of the scenes and prints the bytes that reached the terminal: two runs, one
// without keys, tell what a key costs. Run under callgrind it tells the instructions. "still"
// leaves the terminal's cursor hidden in edition 2 as well.
#include <cstdio>
#include <cstdlib>

#include "kulgui.h"
#include "scenes.hpp"

int main(int argc, char** argv)
{
    const kulbench::Scene* scene = argc >= 5 ? kulbench::findScene(argv[1]) : nullptr;
    if (!scene || kulgui_setEdition(argc > 5 ? std::atoi(argv[5]) : 1) != 0) {
        std::fprintf(stderr, "usage: %s SCENE ELEMENTS KEYS TERM [EDITION [still]]\n", argv[0]);
        return 2;
    }
    if (argc > 6) // without the terminal's cursor
        kulbench::hideCursor();
    if (!kulbench::openTerminal(argv[4]))
        return 1;
    kulbench::makeDialog(*scene, std::atoi(argv[2]));
    kulbench::pressKeys(*scene, std::atol(argv[3]));
    std::printf("%ld\n", kulbench::bytesSent());
    return 0;
}
