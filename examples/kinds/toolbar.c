/* SPDX-License-Identifier: MIT
 *
 * A toolbar: buttons of one size in a row, which take the focus as one component.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { TOOLS = 1 };

static void leave(void)
{
    kulgui_leave(DIALOG);
}

int main(void)
{
    setlocale(LC_ALL, "");
    kulgui_setEdition(2);
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL,
                       NULL);
    kulgui_create(DIALOG);
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Toolbar ", BORDER, KUL_CENTER,
                  KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kultoolbar_create(DIALOG, TOOLS);
    kultoolbar_config(DIALOG, TOOLS, KUL_KEEP, KUL_KEEP, KUL_KEEP, 4, 3, LATERAL, NULL, NULL, NULL,
                      leave);
    kultoolbar_addButton(DIALOG, TOOLS, "Start", 0, 1, NULL, NULL);
    kultoolbar_addButton(DIALOG, TOOLS, "Stop", 0, 1, NULL, NULL);
    kultoolbar_addButton(DIALOG, TOOLS, "Reset", 0, 0, NULL, NULL);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
