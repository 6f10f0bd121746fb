/* SPDX-License-Identifier: MIT
 *
 * A box: an area in a colour of its own, with a frame.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { CLOSE = 1, AREA };

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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Box ", BORDER, KUL_CENTER,
                  KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kulbox_create(DIALOG, AREA);
    kulbox_config(DIALOG, AREA, BLACK_CYAN, 3, 1, 32, 4, BORDER);
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
