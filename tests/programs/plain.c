/* SPDX-License-Identifier: MIT
 *
 * The screen of the program "dialogs", and Tab from button to button, by curses and panels alone:
 * what one update of the changed cells costs.
 */
#include <curses.h>
#include <panel.h>

#include <string.h>

enum { STANDARD = 1, FOCUS, REST, SHADOW };
enum { BUTTONS = 3 };

static void fill(WINDOW* win)
{
    for (int y = 0; y < getmaxy(win); ++y)
        mvwhline(win, y, 0, ' ', getmaxx(win));
}

static void drawButton(WINDOW* win, int number, int focused)
{
    static const char* const texts[BUTTONS] = {"One", "Two", "Three"};
    const chtype mark = focused && !has_colors() ? A_REVERSE : A_NORMAL;
    WINDOW* box = derwin(win, 3, 10, 5, 2 + 12 * number);
    const int length = (int)strlen(texts[number]);
    wattrset(box, (int)(COLOR_PAIR(focused ? FOCUS : REST) | mark));
    fill(box);
    wborder(box, 0, 0, 0, 0, 0, 0, 0, 0);
    mvwaddstr(box, 1, 5 - length / 2 - length % 2, texts[number]);
    delwin(box);
}

int main(void)
{
    int focus = 0;
    initscr();
    noecho();
    raw();
    curs_set(0);
    start_color();
    init_pair(STANDARD, COLOR_BLACK, COLOR_WHITE);
    init_pair(FOCUS, COLOR_WHITE, COLOR_BLUE);
    init_pair(REST, COLOR_BLUE, COLOR_WHITE);
    init_pair(SHADOW, COLOR_BLACK, COLOR_BLACK);
    WINDOW* shadow = newwin(14, 40, 5, 11);
    WINDOW* dialog = newwin(14, 40, 4, 10);
    new_panel(shadow);
    new_panel(dialog);
    leaveok(stdscr, TRUE);
    leaveok(shadow, TRUE);
    leaveok(dialog, TRUE);
    wattrset(shadow, (int)COLOR_PAIR(SHADOW));
    fill(shadow);
    wattrset(dialog, (int)COLOR_PAIR(STANDARD));
    fill(dialog);
    wborder(dialog, 0, 0, 0, 0, 0, 0, 0, 0);
    mvwaddstr(dialog, 0, 17, "Main");
    for (int i = 0; i < BUTTONS; ++i)
        drawButton(dialog, i, i == focus);
    update_panels();
    doupdate();
    while (getchar() != EOF) {
        drawButton(dialog, focus, 0);
        focus = (focus + 1) % BUTTONS;
        drawButton(dialog, focus, 1);
        update_panels();
        doupdate();
    }
    endwin();
    return 0;
}
