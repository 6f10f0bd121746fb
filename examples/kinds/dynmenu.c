/* SPDX-License-Identifier: MIT
 *
 * A dynamic menu: a list that scrolls. A letter goes to the next city that begins with it.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { CITIES = 1 };

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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Dynamic menu ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    const char* const cities[] = {"Athens", "Berlin", "Bern", "Brussels", "Copenhagen", "Dublin"};
    kuldynmenu_create(DIALOG, CITIES);
    kuldynmenu_config(DIALOG, CITIES, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 1, 20, 4, NULL, NULL, NULL,
                      leave);
    for (int i = 0; i < 6; ++i)
        kuldynmenu_addElement(DIALOG, CITIES, cities[i], NULL, NULL, 1);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
