/* SPDX-License-Identifier: MIT
 *
 * A dialog of 40 by 14 with three buttons, and what may be around it. Words on the command line:
 *   desktop   the primary dialog is shown below
 *   behind    a second dialog is shown, which it overlaps
 *   list      the dialog holds a check box list of ten in place of the buttons
 *   text      the dialog holds a text box in place of the buttons
 *   second    in edition 2
 *   /...      a file is shown on the whole screen, and nothing else
 *   over      but a button that lies over it, and in a frame
 * Enter draws all that is around the dialog again, and writes "drawn".
 */
#include <kulgui.h>

#include <string.h>

enum { DESKTOP, MAIN, BEHIND };

static int desktop;
static int behind;

static void addButton(int chain, int ref, const char* text, KULCALLBACK onClick)
{
    kulbutton_create(chain, ref);
    kulbutton_config(chain, ref, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, KUL_KEEP, 2 + 12 * (ref - 1), 5, 10, 1, text, NULL,
                     NULL, NULL, onClick);
}

static void drawn(void)
{
    if (behind)
        kulgui_show(BEHIND);
    if (desktop)
        kulgui_show(DESKTOP);
    addButton(MAIN, 3, "drawn", NULL);
}

static void addDialog(int ref, int color, const char* title, int x, int y, int width, int height)
{
    kulgui_create(ref);
    kulgui_config(ref, color, KUL_KEEP, KUL_KEEP, KUL_KEEP, title, BORDER, x, y, width, height, NULL, NULL, NULL, NULL,
                  NULL);
}

static int has(char** words, const char* word)
{
    while (*words && strcmp(*words, word) != 0)
        ++words;
    return *words != NULL;
}

static int showFile(const char* name, int over)
{
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, WHITE_BLACK, WHITE_BLACK, WHITE_BLACK, WHITE_BLACK, "", NULL, NULL, NULL, NULL, NULL);
    kulfileview_create(DESKTOP, 1);
    kulfileview_config(DESKTOP, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 0, 0, kulgui_getColumns(), kulgui_getRows(),
                       over ? BORDER : NOBORDER, name, NULL, NULL, NULL, NULL);
    if (over)
        addButton(DESKTOP, 2, "Over", NULL);
    return kulgui_exec(DESKTOP);
}

int main(int argc, char** argv)
{
    desktop = has(argv, "desktop");
    behind = has(argv, "behind");
    if (has(argv, "second"))
        kulgui_setEdition(2);
    if (argc > 1 && argv[argc - 1][0] == '/')
        return showFile(argv[argc - 1], has(argv, "over"));
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, BLACK_CYAN, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Desktop", NULL, NULL, NULL, NULL, NULL);
    addDialog(BEHIND, BLACK_GREEN, "Behind", 2, 3, 16, 10);
    addDialog(MAIN, BLACK_WHITE, "Main", 10, 4, 40, 14);
    addButton(BEHIND, 1, "Lost", NULL);
    if (has(argv, "list")) {
        kulcheckbox_create(MAIN, 1);
        kulcheckbox_config(MAIN, 1, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 2, 1, 30, 12, BORDER, NULL, NULL, NULL, NULL);
        for (int i = 0; i < 10; ++i)
            kulcheckbox_addElement(MAIN, 1, "Element", 0, 1, NULL, NULL);
    } else if (has(argv, "text")) {
        kultextbox_create(MAIN, 1);
        kultextbox_config(MAIN, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 1, 32, 10, BORDER, NOMASK, NULL, NULL, NULL, NULL);
    } else {
        addButton(MAIN, 1, "One", drawn);
        addButton(MAIN, 2, "Two", drawn);
        addButton(MAIN, 3, "Three", drawn);
    }
    kulgui_setTabbing(MAIN, T);
    if (NCursesEnv(1) != 0)
        return 1;
    if (desktop)
        kulgui_show(DESKTOP);
    if (behind)
        kulgui_show(BEHIND);
    kulgui_exec(MAIN);
    return 0;
}
