/* SPDX-License-Identifier: MIT
 *
 * Dialogs of every kind, for screens of any size: the primary one with a status bar and a label, one
 * below in the middle of the screen, and one above of 70 by 20 with a component of each kind. The
 * word on the command line is a file to show. Nothing that it polls changes anything.
 */
#include <kulgui.h>

enum { DESKTOP, BELOW, MAIN };

static void nothing(void) {}

static void addDesktop(void)
{
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, BLACK_CYAN, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Desktop", NULL, nothing, NULL, NULL, NULL);
    kulstatbar_create(DESKTOP, 1);
    kulstatbar_config(DESKTOP, 1, WHITE_BLUE, NULL);
    kulstatbar_addElement(DESKTOP, 1, 0, 20, "status", LEFT, NULL);
    kullabel_create(DESKTOP, 2);
    kullabel_config(DESKTOP, 2, BLACK_CYAN, KUL_KEEP, 1, 3, 12, 2, LEFT, NOBORDER, "A label on the desktop");
}

static void addBelow(void)
{
    kulgui_create(BELOW);
    kulgui_config(BELOW, BLACK_GREEN, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Below", BORDER, KUL_CENTER, KUL_CENTER, 76, 9,
                  NULL, NULL, NULL, NULL, NULL);
    kulprogbar_create(BELOW, 1);
    kulprogbar_config(BELOW, 1, RED_GREEN, WHITE_GREEN, 1, 2, 70, 20, 40, LATERAL);
    kuldescrfield_create(BELOW, 2);
    kuldescrfield_config(BELOW, 2, RED_GREEN, BLACK_GREEN, 1, 4, 40, 20, 2);
    kuldescrfield_addElement(BELOW, 2, "Name", "What it is");
}

static void addLists(const char* file)
{
    kulcheckbox_create(MAIN, 1);
    kulcheckbox_config(MAIN, 1, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 2, 2, 20, 8, BORDER, NULL, NULL, NULL, NULL);
    kuloptions_create(MAIN, 2);
    kuloptions_config(MAIN, 2, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 24, 2, 20, 8, BORDER, 3, 0, NULL, NULL, NULL, NULL);
    kuldynmenu_create(MAIN, 3);
    kuldynmenu_config(MAIN, 3, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 46, 11, 20, 3, NULL, NULL, NULL, NULL);
    for (int i = 0; i < 12; ++i) {
        kulcheckbox_addElement(MAIN, 1, "Check", i % 2, 1, NULL, NULL);
        kuloptions_addElement(MAIN, 2, "Option", 1, NULL, NULL);
        kuldynmenu_addElement(MAIN, 3, "Menu", NULL, NULL, 1);
    }
    kulfileview_create(MAIN, 4);
    kulfileview_config(MAIN, 4, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 46, 2, 22, 8, BORDER, file, NULL, NULL, NULL, NULL);
}

static void addOthers(void)
{
    kultextbox_create(MAIN, 5);
    kultextbox_config(MAIN, 5, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 2, 11, 20, 3, BORDER, F, NULL, NULL, NULL, NULL);
    kultextbox_setText(MAIN, 5, "a text");
    kuldescrmenu_create(MAIN, 6);
    kuldescrmenu_config(MAIN, 6, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 24, 11, 20, 10, 2, NULL, NULL, NULL, NULL);
    kuldescrmenu_addElement(MAIN, 6, 1, "First", "one", NULL, NULL);
    kuldescrmenu_addElement(MAIN, 6, 1, "Second", "two", NULL, NULL);
    kulbutton_create(MAIN, 7);
    kulbutton_config(MAIN, 7, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, KUL_KEEP, 2, 15, 10, 1, "Button", NULL, NULL, NULL,
                     NULL);
    kultoolbar_create(MAIN, 8);
    kultoolbar_config(MAIN, 8, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, 24, 15, LATERAL, NULL, NULL, NULL, NULL);
    kultoolbar_addButton(MAIN, 8, "Left", 0, 1, NULL, NULL);
    kultoolbar_addButton(MAIN, 8, "Right", 0, 1, NULL, NULL);
    kulmenu_create(MAIN, 9);
    kulmenu_config(MAIN, 9, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, NULL, NULL, NULL, NULL);
    kulmenu_addElement(MAIN, 9, "File", 1, NULL, NULL);
    kulmenu_addElement(MAIN, 9, "Edit", 1, NULL, NULL);
}

int main(int argc, char** argv)
{
    if (NCursesEnv(1) != 0)
        return 1;
    addDesktop();
    addBelow();
    kulgui_create(MAIN);
    kulgui_config(MAIN, BLACK_WHITE, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Main", BORDER, 20, 3, 70, 20, NULL, nothing, NULL,
                  NULL, NULL);
    addLists(argc > 1 ? argv[1] : NULL);
    addOthers();
    kulgui_setTabbing(MAIN, T);
    kulgui_show(DESKTOP);
    kulgui_show(BELOW);
    return kulgui_exec(MAIN) == KUL_LEFT ? 0 : 2;
}
