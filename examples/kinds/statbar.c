/* SPDX-License-Identifier: MIT
 *
 * A status bar: fields on one row, at the foot of the desktop for instance.
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
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kulstatbar_create(DIALOG, STATUS);
    kulstatbar_config(DIALOG, STATUS, WHITE_BLUE, NULL);
    kulstatbar_addElement(DIALOG, STATUS, 1, 18, "eth0 up", LEFT, NULL);
    kulstatbar_addElement(DIALOG, STATUS, 19, 17, "12:30", RIGHT, NULL);
    kulbutton_create(DIALOG, CLOSE);
    kulbutton_config(DIALOG, CLOSE, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 14, 5, 10, 1, "Close",
                     NULL, NULL, NULL, leave);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
