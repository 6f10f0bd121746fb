/* SPDX-License-Identifier: MIT
 *
 * The first page: buttons that show facts of the machine, new every second. Enter shows the fact
 * in another form.
 */
#include "demo.h"

#include <stdio.h>

static int forms[FACTS];

/* Where button nFact stands: two columns, or three where the screen has room. */
static void configButton(const GUI* page, int nFact, const char* szText, KULCALLBACK onClick)
{
    const int nColumns = page->nWidth >= 60 ? 3 : 2;
    const int nWidth = (page->nWidth - 4) / nColumns;
    char szCaption[64];
    snprintf(szCaption, sizeof szCaption, "%.*s", nWidth - 3, szText);
    const int nRows = page->nHeight - 2 >= 4 * (FACTS / nColumns + 1) ? 4 : 3;
    kulbutton_config(PAGE, OWN + nFact, HERE, THERE, OFF, KUL_KEEP, 2 + nFact % nColumns * nWidth,
                     1 + nFact / nColumns * nRows, nWidth - 1, 1, szCaption, NULL, NULL, NULL,
                     onClick);
}

static void readAgain(void);

static void nextForm(void)
{
    ++forms[GetCurrentSelection()->nUserInterface - OWN];
    readAgain();
}

static void readAgain(void)
{
    const GUI* page = GetChain(PAGE)->Pointer;
    for (int nFact = 0; nFact < FACTS; ++nFact)
        configButton(page, nFact, factText(nFact, forms[nFact]), nextForm);
}

void machinePage(void)
{
    const GUI* page = openPage(" This machine ", 66, 11, readAgain);
    if (!page)
        return;
    for (int nFact = 0; nFact <= FACTS; ++nFact)
        kulbutton_create(PAGE, OWN + nFact);
    configButton(page, FACTS, "Back", goBack);
    readAgain();
    runPage();
}
