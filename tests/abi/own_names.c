/* SPDX-License-Identifier: MIT
 *
 * A program with functions of its own that have the names of the library's inside, linked with the
 * static library: each calls its own ones.
 */
#define KULGUI_NO_INSIDE
#include <kulgui.h>

#include <stdio.h>
#include <stdlib.h>

#define NEVER(name)                                                                                                    \
    int name(void);                                                                                                    \
    int name(void)                                                                                                     \
    {                                                                                                                  \
        printf("the library calls the program's " #name "\n");                                                         \
        exit(2);                                                                                                       \
    }
NEVER(Offset)
NEVER(GetChain)
NEVER(CreateChain)
NEVER(SetVar)
NEVER(AddUIComponent)
NEVER(Inkeys)

int Fill(void);
double Poll(double seconds);

int Fill(void)
{
    return 40;
}

double Poll(double seconds)
{
    return seconds + 1;
}

int main(void)
{
    kulgui_create(0);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL, NULL);
    kulgui_create(1);
    kulgui_config(1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", BORDER, 1, 1, 20, 5, NULL, NULL, NULL, NULL, NULL);
    if (Fill() + Poll(1) != 42 || kulmenu_create(1, 1) != KUL_OK ||
        kulmenu_config(1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, NULL, NULL, NULL, NULL) != KUL_OK ||
        kulmenu_create(1, 1) != KUL_TAKEN_MENU)
        return 3;
    if (kulgui_exec(1) == KUL_ERROR) {
        printf("own names: no terminal\n");
        return 1;
    }
    return 0;
}
