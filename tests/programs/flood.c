/* SPDX-License-Identifier: MIT
 *
 * Sends as much as it can in one update: every cell of the screen in another colour. The cell in
 * row y and column x shows a letter, 'a' for x + y = 0 and so on round the alphabet.
 */
#include <kulgui.h>

int main(void)
{
    if (NCursesEnv(1) != 0)
        return 1;
    for (int y = 0; y < LINES; ++y) {
        for (int x = 0; x < COLS; ++x)
            mvaddch(y, x, (chtype)('a' + (x + y) % 26) | (chtype)COLOR_PAIR(1 + (7 * x + y) % 55));
    }
    refresh();
    while (Inkeys() == 0)
        continue;
    return 0;
}
