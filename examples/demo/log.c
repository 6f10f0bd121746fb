/* SPDX-License-Identifier: MIT
 *
 * A file viewer on a log, or on the file named on the command line. What is typed into the box is
 * looked for when the box is left; Enter in the view switches the following of its end.
 */
#include "demo.h"

#include <stdio.h>

enum { VIEW = OWN, SEARCH_BOX, SEARCH_LABEL, FOLLOWING };

static const char* szLog;
static int nFollow = F;

void setLogFile(const char* szFile)
{
    static const char* const kLogs[] = {"/var/log/syslog", "/var/log/messages", "/var/log/dpkg.log",
                                        "/etc/services"};
    szLog = szFile;
    for (size_t n = 0; !szLog && n < sizeof kLogs / sizeof *kLogs; ++n) {
        FILE* file = fopen(kLogs[n], "r");
        if (file)
            szLog = kLogs[n];
        if (file)
            fclose(file);
    }
}

/* Goes on from the line below the first one in view, and from the top when that finds nothing. */
static void search(void)
{
    const char* szText = kultextbox_getText(PAGE, SEARCH_BOX);
    if (!szText || !*szText)
        return;
    const int nFound =
        kulfileview_find(PAGE, VIEW, szText, kulfileview_getPosition(PAGE, VIEW) + 1);
    if (nFound == -1 && kulfileview_find(PAGE, VIEW, szText, 0) == -1)
        kullabel_setText(PAGE, SEARCH_LABEL, "Not there");
    else
        kullabel_setText(PAGE, SEARCH_LABEL, "Search");
}

static void toggleFollow(void)
{
    nFollow = nFollow == T ? F : T;
    kulfileview_setFollow(PAGE, VIEW, nFollow);
    kullabel_setText(PAGE, FOLLOWING, nFollow == T ? "follows" : "");
}

void logPage(void)
{
    const GUI* page = openPage(" Log files ", 78, 22, NULL);
    if (!page)
        return;
    nFollow = F;
    kultextbox_create(PAGE, SEARCH_BOX);
    kultextbox_config(PAGE, SEARCH_BOX, HERE, THERE, OFF, 13, 1, page->nWidth - 24, 1, NOBORDER,
                      NOMASK, NULL, NULL, search, NULL);
    kulfileview_create(PAGE, VIEW);
    kulfileview_config(PAGE, VIEW, HERE, THERE, OFF, 2, 2, page->nWidth - 4, page->nHeight - 6,
                       NOBORDER, szLog, NULL, NULL, NULL, toggleFollow);
    addText(SEARCH_LABEL, 2, 1, 11, "Search");
    addText(FOLLOWING, page->nWidth - 11, 1, 9, "");
    addBackBar(page);
    kulgui_setFocus(PAGE, VIEW);
    runPage();
}
