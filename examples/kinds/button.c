/* SPDX-License-Identifier: MIT
 *
 * Buttons. The arrow keys go to the nearest one, Tab to the next, Escape clicks Cancel.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { ACCEPT = 1, CANCEL };

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
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Buttons ", BORDER, KUL_CENTER,
                  KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    const char* const texts[] = {"OK", "Cancel"};
    for (int i = 0; i < 2; ++i) {
        kulbutton_create(DIALOG, ACCEPT + i);
        kulbutton_config(DIALOG, ACCEPT + i, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 5 + 14 * i, 3,
                         12, 1, texts[i], NULL, NULL, NULL, leave);
    }
    kulgui_setDefault(DIALOG, ACCEPT);
    kulgui_setCancel(DIALOG, CANCEL);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
