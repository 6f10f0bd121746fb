/* SPDX-License-Identifier: MIT
 *
 * The desktop, the menu of pages, and what the pages have in common.
 */
#include "demo.h"

#include <locale.h>
#include <stdio.h>

static const struct {
    const char* szName;
    KULCALLBACK open;
} kPages[] = {
    {"This machine", machinePage}, {"Display items", displayPage}, {"Time zone", zonesPage},
    {"Network", networkPage},      {"Access", accessPage},         {"Languages", languagesPage},
    {"Log files", logPage},        {"About", aboutPage},
};
enum { PAGES = sizeof kPages / sizeof *kPages };

static char szDesktop[128];

/* The title bar: what the machine is and does at this moment. */
static void refreshDesktop(void)
{
    int nLength = 0;
    for (int nFact = HOST; nFact < FACTS && nLength < (int)sizeof szDesktop; ++nFact) {
        /* Left out where it does not fit into the row any more. */
        const char* szText = factText(nFact, 0);
        char szMore[72];
        const int nMore = snprintf(szMore, sizeof szMore, "%s%s", nFact > 0 ? "   " : "", szText);
        if (nLength + nMore < COLS - 1 && nLength + nMore < (int)sizeof szDesktop)
            nLength += sprintf(szDesktop + nLength, "%s", szMore);
    }
}

// As large as a page would like to be, or as the screen is: pages lay themselves out in what they
// get, down to 39 by 11. Of what a smaller screen cannot show, the part with the focus is seen.
static int fitted(int nWanted, int nScreen, int nLeast)
{
    const int nRoom = (nScreen > nLeast ? nScreen : nLeast) - 1;
    return nWanted < nRoom ? nWanted : nRoom;
}

static void makeDialog(int nChain, const char* szTitle, int nWidth, int nHeight, KULCALLBACK onPoll)
{
    kulgui_create(nChain);
    kulgui_config(nChain, PAGE_COLOR, HERE, THERE, OFF, szTitle, BORDER, KUL_CENTER, KUL_CENTER,
                  nWidth, nHeight, NULL, onPoll, NULL, NULL, NULL);
}

const GUI* openPage(const char* szTitle, int nWidth, int nHeight, KULCALLBACK onPoll)
{
    makeDialog(PAGE, szTitle, fitted(nWidth, COLS, 40), fitted(nHeight, LINES, 12), onPoll);
    const CHAIN* chain = GetChain(PAGE);
    return chain ? chain->Pointer : NULL;
}

void runPage(void)
{
    kulgui_exec(PAGE);
    kulgui_destroy(PAGE);
}

void goBack(void)
{
    kulgui_leave(PAGE);
}

void quit(void)
{
    kulgui_leave(PAGE);
    kulgui_leave(MENU_OF_PAGES);
}

void addBackBar(const GUI* page)
{
    kultoolbar_create(PAGE, BACK_BAR);
    kultoolbar_config(PAGE, BACK_BAR, HERE, THERE, OFF, 2, page->nHeight - 4, LATERAL, NULL, NULL,
                      NULL, NULL);
    kultoolbar_addButton(PAGE, BACK_BAR, " Back ", 0, 1, NULL, goBack);
    kultoolbar_addButton(PAGE, BACK_BAR, " Quit ", 0, 1, NULL, quit);
}

void addText(int nRef, int nX, int nY, int nWidth, const char* szText)
{
    kullabel_create(PAGE, nRef);
    kullabel_config(PAGE, nRef, PAGE_COLOR, KUL_KEEP, nX, nY, nWidth, 1, LEFT, NOBORDER, szText);
}

static void openChosen(void)
{
    const int nChosen = GetCurrentSelection()->nSelect;
    if (nChosen < PAGES)
        kPages[nChosen].open();
    else if (nChosen == PAGES)
        quit();
}

static void makeMenu(void)
{
    const int nRows = PAGES + 1;
    makeDialog(MENU_OF_PAGES, " kulgui ", 32, nRows + 4, NULL);
    kuldynmenu_create(MENU_OF_PAGES, OWN);
    kuldynmenu_config(MENU_OF_PAGES, OWN, HERE, THERE, OFF, 2, 1, 26, nRows, NULL, NULL, NULL,
                      openChosen);
    for (int n = 0; n < PAGES; ++n)
        kuldynmenu_addElement(MENU_OF_PAGES, OWN, kPages[n].szName, NULL, NULL, 1);
    kuldynmenu_addElement(MENU_OF_PAGES, OWN, "Quit", NULL, NULL, 1);
}

int main(int argc, char** argv)
{
    setlocale(LC_ALL, "");
    kulgui_setEdition(2);
    setLogFile(argc > 1 ? argv[1] : NULL);
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, WHITE_BLUE, HERE, THERE, OFF, szDesktop, NULL, refreshDesktop, NULL,
                       NULL, NULL);
    if (NCursesEnv(1) != 0) {
        fprintf(stderr, "demo: this is no terminal that can be used\n");
        return 1;
    }
    refreshDesktop();
    kulgui_show(DESKTOP);
    makeMenu();
    kulgui_exec(MENU_OF_PAGES);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return 0;
}
