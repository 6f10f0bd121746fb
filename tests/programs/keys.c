/* SPDX-License-Identifier: MIT
 *
 * Shows which keys the library reads: how many waits have ended, and the last one's result. With
 * an argument it does so in edition 2, and counts keys alone. Before the first key it shows "ready",
 * or with the argument "flood" as much as it can in one update: every cell of the screen in another
 * colour. The cell in row y and column x shows a letter, 'a' for x + y = 0 and so on round the alphabet.
 */
#include <kulgui.h>

int main(int argc, char** argv)
{
    kulgui_setEdition(argc > 1 ? 2 : 1);
    if (NCursesEnv(1) != 0)
        return 1;
    mvaddstr(0, 0, "ready");
    for (int y = 0; argc > 1 && argv[1][0] == 'f' && y < LINES; ++y) {
        for (int x = 0; x < COLS; ++x)
            mvaddch(y, x, (chtype)('a' + (x + y) % 26) | (chtype)COLOR_PAIR(1 + (7 * x + y) % 55));
    }
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
