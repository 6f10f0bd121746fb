/* SPDX-License-Identifier: MIT
 *
 * A description menu that says what the pages do.
 */
#include "demo.h"

enum { PAGES_MENU = OWN };

static const struct {
    const char* szName;
    const char* szText;
} kTexts[] = {
    {"Show", "Boxes, lines, labels, bars and a status line, with values of this machine."},
    {"Lists", "Time zones, of which one is chosen; network interfaces, any of which are checked."},
    {"Text", "A host name and a password, checked at every key; the same words in four languages."},
    {"Logs", "A file of any size: search it, or follow its end."},
    {"Back", "Enter leaves this page."},
};
enum { TEXTS = sizeof kTexts / sizeof *kTexts };

static void choose(void)
{
    if (GetCurrentSelection()->nSelect == TEXTS - 1)
        goBack();
}

void aboutPage(void)
{
    const GUI* page = openPage(" About ", 46, 14, NULL);
    if (!page)
        return;
    kuldescrmenu_create(PAGE, PAGES_MENU);
    kuldescrmenu_config(PAGE, PAGES_MENU, HERE, THERE, OFF, KUL_KEEP, KUL_KEEP, page->nWidth - 4,
                        page->nWidth - 4, page->nHeight - 5, NULL, NULL, NULL, choose);
    for (int n = 0; n < TEXTS; ++n)
        kuldescrmenu_addElement(PAGE, PAGES_MENU, 1, kTexts[n].szName, kTexts[n].szText, NULL,
                                NULL);
    runPage();
}
