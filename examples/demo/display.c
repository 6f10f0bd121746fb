/* SPDX-License-Identifier: MIT
 *
 * All seven kinds of items that only show, on values of this machine that change every second. A
 * menu bar moves through the explanations.
 */
#include "demo.h"

#include <stdbool.h>
#include <stdio.h>
#include <time.h>

enum {
    MENU_BAR = OWN,
    RULE,
    VERSION,
    MEMORY_NAME,
    MEMORY_BAR,
    DISK_NAME,
    DISK_BAR,
    LOAD_BOX,
    ENTRIES,
    ENTRY_BAR,
    STATUS,
    LOAD_HISTORY /* and one more for each second that is shown */
};

enum { MOST_SECONDS = 22 };

static const struct {
    const char* szName;
    const char* szExplanation;
} kEntries[] = {
    {"MemTotal", "All of the memory that the kernel has to give."},
    {"MemFree", "Memory that nobody uses for anything."},
    {"Cached", "Contents of files, kept while nobody else needs the memory."},
    {"Dirty", "What still has to be written to a disk."},
};
enum { ENTRY_COUNT = sizeof kEntries / sizeof *kEntries };

static int nEntry;
static int history[MOST_SECONDS];
static int nSeconds;
static int nTextCells; /* in the box of the explanations */

static void setClock(void)
{
    char szTime[16];
    const time_t now = time(NULL);
    strftime(szTime, sizeof szTime, "%H:%M:%S", localtime(&now));
    kulstatbar_setElement(PAGE, STATUS, 1, szTime);
}

static void setEntry(void)
{
    char szText[128];
    kuldescrfield_selElement(PAGE, ENTRIES, nEntry);
    kulscrollbar_setPosition(PAGE, ENTRY_BAR, nEntry * 10);
    snprintf(szText, sizeof szText, "%ld MiB. %s", memoryEntry(kEntries[nEntry].szName),
             kEntries[nEntry].szExplanation);
    /* A longer text would be refused. */
    if (nTextCells < (int)sizeof szText)
        szText[nTextCells] = '\0';
    kuldescrfield_setElement(PAGE, ENTRIES, nEntry, NULL, szText);
}

/* Moves the history one second to the left and draws today's load at its right end. */
static void setHistory(void)
{
    for (int n = 0; n + 1 < nSeconds; ++n)
        history[n] = history[n + 1];
    history[nSeconds - 1] = loadPercent();
    for (int n = 0; n < nSeconds; ++n)
        kulprogbar_setPosition(PAGE, LOAD_HISTORY + n, history[n] < 400 ? history[n] : 400);
}

static void everySecond(void)
{
    kulprogbar_setPosition(PAGE, MEMORY_BAR, memoryPercent());
    kulprogbar_setPosition(PAGE, DISK_BAR, diskPercent());
    setHistory();
    setEntry();
    setClock();
}

static void choose(void)
{
    switch (GetCurrentSelection()->nSelect) {
    case 0:
        nEntry = (nEntry + 1) % ENTRY_COUNT;
        setEntry();
        break;
    case 1:
        goBack();
        break;
    case 2:
        quit();
        break;
    default:
        break;
    }
}

static void addGauges(int nY, int nLength)
{
    addText(MEMORY_NAME, 2, nY, 8, "memory");
    kulprogbar_create(PAGE, MEMORY_BAR);
    kulprogbar_config(PAGE, MEMORY_BAR, HERE, PAGE_COLOR, 10, nY, nLength, 0, 100, LATERAL);
    addText(DISK_NAME, 2, nY + 1, 8, "disk");
    kulprogbar_create(PAGE, DISK_BAR);
    kulprogbar_config(PAGE, DISK_BAR, HERE, PAGE_COLOR, 10, nY + 1, nLength, 0, 100, LATERAL);
}

static void addHistory(int nX, int nY, int nHeight)
{
    kulbox_create(PAGE, LOAD_BOX);
    kulbox_config(PAGE, LOAD_BOX, PAGE_COLOR, nX, nY, nSeconds + 2, nHeight, BORDER);
    for (int n = 0; n < nSeconds; ++n) {
        kulprogbar_create(PAGE, LOAD_HISTORY + n);
        kulprogbar_config(PAGE, LOAD_HISTORY + n, BLACK_GREEN, PAGE_COLOR, nX + 1 + n, nY + 1,
                          nHeight - 3, 0, 400, VERTICAL);
    }
}

static void addEntries(int nY, int nWidth, int nHeight)
{
    /* Without memory the page has no size. */
    nTextCells = nWidth > 2 ? (nWidth - 2) * (nHeight - 2) : 0;
    kuldescrfield_create(PAGE, ENTRIES);
    kuldescrfield_config(PAGE, ENTRIES, THERE, PAGE_COLOR, 2, nY, nWidth, nWidth, nHeight);
    for (int n = 0; n < ENTRY_COUNT; ++n)
        kuldescrfield_addElement(PAGE, ENTRIES, kEntries[n].szName, "");
    kulscrollbar_create(PAGE, ENTRY_BAR);
    kulscrollbar_config(PAGE, ENTRY_BAR, THERE, PAGE_COLOR, nWidth + 3, nY + 1, nHeight + 1, 0,
                        10 * ENTRY_COUNT, VERTICAL);
}

static void addStatus(const GUI* page)
{
    kulstatbar_create(PAGE, STATUS);
    kulstatbar_config(PAGE, STATUS, CYAN_BLACK, NULL);
    kulstatbar_addElement(PAGE, STATUS, 1, page->nWidth - 12, factText(HOST, 0), LEFT, NULL);
    kulstatbar_addElement(PAGE, STATUS, page->nWidth - 10, 9, "", RIGHT, NULL);
}

static void addMenuBar(void)
{
    kulmenu_create(PAGE, MENU_BAR);
    kulmenu_config(PAGE, MENU_BAR, HERE, THERE, OFF, NULL, NULL, NULL, choose);
    kulmenu_addElement(PAGE, MENU_BAR, " Next ", 1, NULL, NULL);
    kulmenu_addElement(PAGE, MENU_BAR, " Back ", 1, NULL, NULL);
    kulmenu_addElement(PAGE, MENU_BAR, " Quit ", 1, NULL, NULL);
}

void displayPage(void)
{
    const GUI* page = openPage(" Display items ", 72, 20, everySecond);
    if (!page)
        return;
    char szVersion[256];
    const bool roomy = page->nWidth >= 60 && page->nHeight >= 20;
    readProc("version", szVersion, sizeof szVersion);
    nSeconds = roomy ? MOST_SECONDS : 8;
    addMenuBar();
    kulline_create(PAGE, RULE);
    kulline_config(PAGE, RULE, PAGE_COLOR, 0, 3, page->nWidth, ENDS, LATERAL);
    kullabel_create(PAGE, VERSION);
    if (roomy) {
        kullabel_config(PAGE, VERSION, THERE, KUL_KEEP, 2, 4, 42, 6, LEFT, BORDER, szVersion);
        addHistory(46, 4, 6);
        addGauges(11, 32);
        addEntries(13, 65, 4);
    } else {
        kullabel_config(PAGE, VERSION, PAGE_COLOR, KUL_KEEP, 2, 1, page->nWidth - 4, 1, LEFT,
                        NOBORDER, szVersion);
        addGauges(4, page->nWidth - 24);
        addHistory(page->nWidth - 12, 2, 4);
        addEntries(6, page->nWidth - 6, 3);
    }
    addStatus(page);
    everySecond();
    runPage();
}
