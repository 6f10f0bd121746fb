/* SPDX-License-Identifier: MIT
 *
 * Text boxes: a host name that takes only what a host name may hold, and a password that is not
 * shown.
 */
#include "demo.h"

#include <stdio.h>
#include <string.h>

enum { NAME_BOX = OWN, PASSWORD_BOX, NAME_LABEL, PASSWORD_LABEL, VERDICT };

static void judge(void)
{
    char szText[64];
    const char* szName = kultextbox_getText(PAGE, NAME_BOX);
    const char* szPassword = kultextbox_getText(PAGE, PASSWORD_BOX);
    if (!szName || !szPassword)
        return;
    snprintf(szText, sizeof szText, "%s password, name length %d",
             strlen(szPassword) < 8 ? "Weak" : "Fair", (int)strlen(szName));
    kullabel_setText(PAGE, VERDICT, szText);
}

static void addBox(const GUI* page, int nRef, int nY, int nMask, const char* szCharSet)
{
    kultextbox_create(PAGE, nRef);
    kultextbox_config(PAGE, nRef, HERE, THERE, OFF, 13, nY, page->nWidth - 16, 1, NOBORDER, nMask,
                      szCharSet, NULL, NULL, judge);
}

void accessPage(void)
{
    const GUI* page = openPage(" Access ", 48, 12, NULL);
    if (!page)
        return;
    addText(NAME_LABEL, 2, 2, 11, "Host name");
    addText(PASSWORD_LABEL, 2, 4, 11, "Password");
    addText(VERDICT, 2, 5, page->nWidth - 4, "");
    addBox(page, NAME_BOX, 2, NOMASK, "abcdefghijklmnopqrstuvwxyz0123456789-");
    addBox(page, PASSWORD_BOX, 4, MASK, NULL);
    kultextbox_setText(PAGE, NAME_BOX, factText(HOST, 0));
    addBackBar(page);
    judge();
    runPage();
}
