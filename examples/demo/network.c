/* SPDX-License-Identifier: MIT
 *
 * The network interfaces in a check box list; those that are up begin checked.
 */
#include "demo.h"

#include <dirent.h>
#include <stdio.h>
#include <string.h>

enum { INTERFACES = OWN, CHECKED };

static int nInterfaces;

/* A line of an interface's directory, without its end. */
static void readProperty(const char* szInterface, const char* szProperty, char* szText, size_t size)
{
    char szFile[320];
    snprintf(szFile, sizeof szFile, "/sys/class/net/%s/%s", szInterface, szProperty);
    readText(szFile, szText, size);
    szText[strcspn(szText, "\n")] = '\0';
}

static void countChecked(void)
{
    char szText[48];
    int nChecked = 0;
    for (int n = 0; n < nInterfaces; ++n)
        nChecked += kulcheckbox_getSelect(PAGE, INTERFACES, n) == 1;
    snprintf(szText, sizeof szText, "%d of %d checked", nChecked, nInterfaces);
    kullabel_setText(PAGE, CHECKED, szText);
}

static void addInterface(const char* szName)
{
    char szState[16];
    char szMtu[16];
    char szAddress[32];
    char szText[384];
    readProperty(szName, "operstate", szState, sizeof szState);
    readProperty(szName, "mtu", szMtu, sizeof szMtu);
    readProperty(szName, "address", szAddress, sizeof szAddress);
    snprintf(szText, sizeof szText, "%s: %s, %s bytes a packet, address %s", szName, szState, szMtu,
             szAddress);
    kulcheckbox_addElement(PAGE, INTERFACES, szText, strcmp(szState, "down") != 0, 1, NULL, NULL);
    ++nInterfaces;
}

void networkPage(void)
{
    const GUI* page = openPage(" Network interfaces ", 50, 18, NULL);
    if (!page)
        return;
    kulcheckbox_create(PAGE, INTERFACES);
    kulcheckbox_config(PAGE, INTERFACES, HERE, PAGE_COLOR, OFF, 2, 2, page->nWidth - 4,
                       page->nHeight - 6, NOBORDER, NULL, NULL, NULL, countChecked);
    nInterfaces = 0;
    DIR* directory = opendir("/sys/class/net");
    for (struct dirent* entry; directory && (entry = readdir(directory));) {
        if (entry->d_name[0] != '.')
            addInterface(entry->d_name);
    }
    if (directory)
        closedir(directory);
    addText(CHECKED, 2, 1, page->nWidth - 4, "");
    addBackBar(page);
    countChecked();
    runPage();
}
