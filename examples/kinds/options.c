/* SPDX-License-Identifier: MIT
 *
 * An option list: Space chooses one of the elements.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { SPEED = 1 };

int main(void)
{
    setlocale(LC_ALL, "");
    kulgui_setEdition(2);
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL,
                       NULL);
    kulgui_create(DIALOG);
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Option list ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kuloptions_create(DIALOG, SPEED);
    kuloptions_config(DIALOG, SPEED, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, 24, 3, NOBORDER, 1, 1,
                      NULL, NULL, NULL, NULL);
    kuloptions_addElement(DIALOG, SPEED, "9600 baud", 1, NULL, NULL);
    kuloptions_addElement(DIALOG, SPEED, "115200 baud", 1, NULL, NULL);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
