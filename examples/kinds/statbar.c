/* SPDX-License-Identifier: MIT
 *
 * A status bar: fields on the last row of a dialog, here of the desktop.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { CLOSE = 1, STATUS };

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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Status bar ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 6, NULL, NULL, NULL, NULL, NULL);
    kulbutton_create(DIALOG, CLOSE);
    kulbutton_config(DIALOG, CLOSE, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 14, 2, 10, 1, "Close",
                     NULL, NULL, NULL, leave);
    if (NCursesEnv(1) != 0)
        return 1;
    kulstatbar_create(DESKTOP, STATUS);
    kulstatbar_config(DESKTOP, STATUS, KUL_KEEP, NULL);
    kulstatbar_addElement(DESKTOP, STATUS, 1, 18, "eth0 up", LEFT, NULL);
    kulstatbar_addElement(DESKTOP, STATUS, kulgui_getColumns() - 8, 7, "12:30", RIGHT, NULL);
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
