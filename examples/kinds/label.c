/* SPDX-License-Identifier: MIT
 *
 * A label: a text that is wrapped to its width and aligned.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { CLOSE = 1, TEXT };

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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Label ", BORDER, KUL_CENTER,
                  KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kullabel_create(DIALOG, TEXT);
    kullabel_config(DIALOG, TEXT, KUL_KEEP, KUL_KEEP, 3, 1, 32, 4, CENTER, BORDER,
                    "The device restarts after this.");
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
