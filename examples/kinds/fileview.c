/* SPDX-License-Identifier: MIT
 *
 * A file viewer: a file of any size, by rows, pages and ends.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { FILE_VIEW = 1 };

int main(int argc, char** argv)
{
    setlocale(LC_ALL, "");
    kulgui_setEdition(2);
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL,
                       NULL);
    kulgui_create(DIALOG);
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " File viewer ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    kulfileview_create(DIALOG, FILE_VIEW);
    kulfileview_config(DIALOG, FILE_VIEW, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 1, 36, 7, NOBORDER,
                       argc > 1 ? argv[1] : "/etc/services", NULL, NULL, NULL, NULL);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
