/* SPDX-License-Identifier: MIT
 *
 * Shows which keys the library reads: how many waits have ended, and the last one's result. With
 * an argument it does so in edition 2, and counts keys alone.
 */
#include <kulgui.h>

int main(int argc, char** argv)
{
    (void)argv;
    kulgui_setEdition(argc > 1 ? 2 : 1);
    if (NCursesEnv(1) != 0)
        return 1;
    mvaddstr(0, 0, "ready");
    refresh();
    for (int count = 1;; ++count) {
        int key = Inkeys();
        while (key == 0 && argc > 1)
            key = Inkeys();
        erase();
        mvprintw(0, 0, "%d: %d.", count, key);
        refresh();
    }
}
