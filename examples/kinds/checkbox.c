/* SPDX-License-Identifier: MIT
 *
 * A check box list: Space checks an element or takes the check away.
 */
#include <kulgui.h>

#include <locale.h>

enum { DESKTOP, DIALOG };
enum { SERVICES = 1 };

int main(void)
{
    setlocale(LC_ALL, "");
    kulgui_setEdition(2);
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL,
                       NULL);
    kulgui_create(DIALOG);
    kulgui_config(DIALOG, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Check box list ", BORDER,
                  KUL_CENTER, KUL_CENTER, 38, 9, NULL, NULL, NULL, NULL, NULL);
    const char* const services[] = {"ssh", "ntp", "web", "snmp", "dns"};
    kulcheckbox_create(DIALOG, SERVICES);
    kulcheckbox_config(DIALOG, SERVICES, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 1, 24, 6, BORDER, NULL,
                       NULL, NULL, NULL);
    for (int i = 0; i < 5; ++i)
        kulcheckbox_addElement(DIALOG, SERVICES, services[i], i < 2, 1, NULL, NULL);
    if (NCursesEnv(1) != 0)
        return 1;
    kulgui_show(DESKTOP);
    kulgui_exec(DIALOG);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
