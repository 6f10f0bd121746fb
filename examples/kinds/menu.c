/* SPDX-License-Identifier: MIT
 *
 * A menu: a bar of texts. Left and Right select, Enter leaves with the choice.
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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Menu ", BORDER, KUL_CENTER,
                  KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kulmenu_create(DIALOG, PAGES);
    kulmenu_config(DIALOG, PAGES, KUL_KEEP, KUL_KEEP, KUL_KEEP, NULL, NULL, NULL, leave);
    kulmenu_addElement(DIALOG, PAGES, "Network", 1, NULL, NULL);
    kulmenu_addElement(DIALOG, PAGES, "Storage", 0, NULL, NULL);
    kulmenu_addElement(DIALOG, PAGES, "About", 1, NULL, NULL);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
