/* SPDX-License-Identifier: MIT
 *
 * The screen of the program "dialogs" and the way of its focus from button to button, or with the
 * word "list" from row to row, by curses and panels alone: what one update of the changed cells
 * costs.
 */
#include <curses.h>
#include <panel.h>

#include <string.h>

enum { STANDARD = 1, FOCUS, REST, SHADOW };
enum { BUTTONS = 3, ROWS = 10 };

static void colour(WINDOW* win, int focused)
{
    const chtype mark = focused && !has_colors() ? A_REVERSE : A_NORMAL;
    wattrset(win, (int)(COLOR_PAIR(focused ? FOCUS : REST) | mark));
}

static void fill(WINDOW* win)
{
    for (int y = 0; y < getmaxy(win); ++y)
        mvwhline(win, y, 0, ' ', getmaxx(win));
}

static void drawButton(WINDOW* win, int number, int focused)
{
    static const char* const texts[BUTTONS] = {"One", "Two", "Three"};
    WINDOW* box = derwin(win, 3, 10, 5, 2 + 12 * number);
    const int length = (int)strlen(texts[number]);
    colour(box, focused);
    fill(box);
    wborder(box, 0, 0, 0, 0, 0, 0, 0, 0);
    mvwaddstr(box, 1, 5 - length / 2 - length % 2, texts[number]);
    delwin(box);
}

static void drawListFrame(WINDOW* win)
{
    WINDOW* box = derwin(win, ROWS + 2, 30, 1, 2);
    colour(box, 0);
    wborder(box, 0, 0, 0, 0, 0, 0, 0, 0);
    delwin(box);
}

static void drawRow(WINDOW* win, int number, int focused)
{
    colour(win, focused);
    mvwaddstr(win, 2 + number, 3, "[ ]");
    mvwaddstr(win, 2 + number, 7, "Element");
}

int main(int argc, char** argv)
{
    const int list = argc > 1 && strcmp(argv[1], "list") == 0;
    const int parts = list ? ROWS : BUTTONS;
    void (*draw)(WINDOW*, int, int) = list ? drawRow : drawButton;
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
    if (list)
        drawListFrame(dialog);
    for (int i = 0; i < parts; ++i)
        draw(dialog, i, i == focus);
    update_panels();
    doupdate();
    while (getchar() != EOF) {
        draw(dialog, focus, 0);
        focus = (focus + 1) % parts;
        draw(dialog, focus, 1);
        update_panels();
        doupdate();
    }
    endwin();
    return 0;
}
