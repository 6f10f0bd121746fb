/* SPDX-License-Identifier: MIT
 *
 * A description field: what a program describes, one element at a time.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { CLOSE = 1, FIELD };

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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Description field ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kuldescrfield_create(DIALOG, FIELD);
    kuldescrfield_config(DIALOG, FIELD, WHITE_BLUE, KUL_KEEP, 2, 1, 22, 22, 4);
    kuldescrfield_addElement(DIALOG, FIELD, "Memory", "62 of 128 MiB are free.");
    kuldescrfield_addElement(DIALOG, FIELD, "Disk", "3 of 8 GiB are free.");
    kuldescrfield_selElement(DIALOG, FIELD, 1);
    kulbutton_create(DIALOG, CLOSE);
    kulbutton_config(DIALOG, CLOSE, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 26, 3, 10, 1, "Close",
                     NULL, NULL, NULL, leave);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
