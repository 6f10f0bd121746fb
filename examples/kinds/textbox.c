/* SPDX-License-Identifier: MIT
 *
 * Text boxes: one for a name, and one for a password that nobody reads along.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { NAME = 1, PASSWORD, LABEL_NAME, LABEL_PASSWORD };

int main(void)
{
    setlocale(LC_ALL, "");
    kulgui_setEdition(2);
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL,
                       NULL);
    kulgui_create(DIALOG);
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Text boxes ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    const char* const labels[] = {"Name", "Password"};
    for (int i = 0; i < 2; ++i) {
        kullabel_create(DIALOG, LABEL_NAME + i);
        kullabel_config(DIALOG, LABEL_NAME + i, KUL_KEEP, KUL_KEEP, 2, 2 + 2 * i, 10, 1, LEFT,
                        NOBORDER, labels[i]);
        kultextbox_create(DIALOG, NAME + i);
        kultextbox_config(DIALOG, NAME + i, KUL_KEEP, KUL_KEEP, KUL_KEEP, 12, 2 + 2 * i, 20, 1,
                          NOBORDER, i == 0 ? NOMASK : MASK, NULL, NULL, NULL, NULL);
        kultextbox_setText(DIALOG, NAME + i, i == 0 ? "admin" : "secret");
    }
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
