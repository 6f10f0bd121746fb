/* SPDX-License-Identifier: MIT
 *
 * The machine's time zones in an option list, and the time in the chosen one.
 */
#include "demo.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

enum { ZONES = OWN, ZONE_TIME };
enum { MOST_ZONES = 600, NAME_SIZE = 40 };

static char names[MOST_ZONES][NAME_SIZE];
static int nZones;
static int nChosen; /* kept when the page is left */

static int byName(const void* a, const void* b)
{
    return strcmp(a, b);
}

/* The third word of each line of the table that is no comment. */
static void readZones(void)
{
    char szLine[256];
    FILE* table = fopen("/usr/share/zoneinfo/zone1970.tab", "r");
    nZones = 0;
    while (table && nZones < MOST_ZONES && fgets(szLine, sizeof szLine, table)) {
        if (szLine[0] != '#' && sscanf(szLine, "%*s %*s %39s", names[nZones]) == 1)
            ++nZones;
    }
    if (table)
        fclose(table);
    if (nZones == 0)
        strcpy(names[nZones++], "UTC");
    qsort(names, (size_t)nZones, NAME_SIZE, byName);
}

static void showTime(void)
{
    char szText[NAME_SIZE + 32];
    const int nZone = kuloptions_getClicked(PAGE, ZONES);
    if (nZone < 0 || nZone >= nZones)
        return;
    nChosen = nZone;
    setenv("TZ", names[nZone], 1);
    tzset();
    const time_t now = time(NULL);
    const size_t size = strftime(szText, sizeof szText, "%H:%M:%S  ", localtime(&now));
    snprintf(szText + size, sizeof szText - size, "%s", names[nZone]);
    kullabel_setText(PAGE, ZONE_TIME, szText);
}

void zonesPage(void)
{
    const GUI* page = openPage(" Time zone ", 50, 20, showTime);
    if (!page)
        return;
    readZones();
    kuloptions_create(PAGE, ZONES);
    kuloptions_config(PAGE, ZONES, HERE, PAGE_COLOR, OFF, 2, 2, page->nWidth - 4, page->nHeight - 6,
                      NOBORDER, nChosen, nChosen, NULL, NULL, NULL, showTime);
    for (int n = 0; n < nZones; ++n)
        kuloptions_addElement(PAGE, ZONES, names[n], 1, NULL, NULL);
    addText(ZONE_TIME, 2, 1, page->nWidth - 4, "");
    addBackBar(page);
    showTime();
    runPage();
}
