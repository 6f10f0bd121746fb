/* SPDX-License-Identifier: MIT
 *
 * A description menu: a bar of texts, and a box that describes the selected one.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { PAGES = 1 };

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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Description menu ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kuldescrmenu_create(DIALOG, PAGES);
    kuldescrmenu_config(DIALOG, PAGES, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 34, 24, 4,
                        NULL, NULL, NULL, leave);
    kuldescrmenu_addElement(DIALOG, PAGES, 1, "Network", "Host name and addresses.", NULL, NULL);
    kuldescrmenu_addElement(DIALOG, PAGES, 1, "Storage", "Disks and what is on them.", NULL, NULL);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
