/* SPDX-License-Identifier: MIT
 *
 * Shows which keys the library reads: how many waits have ended, and the last one's result.
 */
#include <kulgui.h>

int main(void)
{
    if (NCursesEnv(1) != 0)
        return 1;
    mvaddstr(0, 0, "ready");
    refresh();
    for (int count = 1;; ++count) {
        const int key = Inkeys();
        erase();
        mvprintw(0, 0, "%d: %d.", count, key);
        refresh();
    }
}
