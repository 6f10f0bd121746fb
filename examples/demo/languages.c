/* SPDX-License-Identifier: MIT
 *
 * The same words in four languages, and a box to type in any of them.
 */
#include "demo.h"

#include <stdio.h>

enum { LANGUAGES = OWN, NAME_BOX, NAME_LABEL, WORDS, GREETING };

static const struct {
    const char* szLanguage;
    const char* szWords;
    const char* szName; /* what the box asks for */
    const char* szHello;
} kLanguages[] = {
    {"Deutsch", "Das Gerät wird neu gestartet, sobald die Änderungen übernommen sind.", "Name",
     "Grüß Gott, %s!"},
    {"Ελληνικά", "Η συσκευή θα επανεκκινηθεί μόλις εφαρμοστούν οι αλλαγές.", "Όνομα",
     "Καλημέρα, %s!"},
    {"中文", "应用更改后，设备将重新启动。请不要关闭电源。", "姓名", "你好，%s！"},
    {"ไทย", "อุปกรณ์จะเริ่มทำงานใหม่ เมื่อบันทึกการเปลี่ยนแปลงแล้ว", "ชื่อ", "สวัสดี %s"},
};
enum { COUNT = sizeof kLanguages / sizeof *kLanguages };

static int nLanguage;

static void greet(void)
{
    char szText[256] = "";
    const char* szName = kultextbox_getText(PAGE, NAME_BOX);
    if (szName && *szName)
        snprintf(szText, sizeof szText, kLanguages[nLanguage].szHello, szName);
    kullabel_setText(PAGE, GREETING, szText);
}

static void speak(void)
{
    const int nChosen = kuloptions_getChosen(PAGE, LANGUAGES);
    if (nChosen < 0 || nChosen >= COUNT)
        return;
    nLanguage = nChosen;
    kullabel_setText(PAGE, WORDS, kLanguages[nLanguage].szWords);
    kullabel_setText(PAGE, NAME_LABEL, kLanguages[nLanguage].szName);
    greet();
}

void languagesPage(void)
{
    const GUI* page = openPage(" Languages ", 60, 18, NULL);
    if (!page)
        return;
    const int bRoomy = page->nHeight > 14;
    const int nFrame = bRoomy ? 2 : 0;
    const int nNameY = COUNT + (bRoomy ? 5 : 1);
    kuloptions_create(PAGE, LANGUAGES);
    kuloptions_config(PAGE, LANGUAGES, HERE, PAGE_COLOR, OFF, 2, 1 + nFrame / 2, 14 + nFrame,
                      COUNT + nFrame, bRoomy ? BORDER : NOBORDER, nLanguage, nLanguage, NULL, NULL,
                      NULL, speak);
    for (int n = 0; n < COUNT; ++n)
        kuloptions_addElement(PAGE, LANGUAGES, kLanguages[n].szLanguage, 1, NULL, NULL);
    kultextbox_create(PAGE, NAME_BOX);
    kultextbox_config(PAGE, NAME_BOX, HERE, THERE, OFF, 12, nNameY, page->nWidth - 15, 1, NOBORDER,
                      NOMASK, NULL, NULL, NULL, greet);
    kullabel_create(PAGE, WORDS);
    kullabel_config(PAGE, WORDS, PAGE_COLOR, KUL_KEEP, 18 + nFrame, 1 + nFrame / 2,
                    page->nWidth - 20 - nFrame, COUNT + nFrame, LEFT, bRoomy ? BORDER : NOBORDER,
                    "");
    addText(NAME_LABEL, 2, nNameY, 10, "");
    addText(GREETING, 2, nNameY + (bRoomy ? 2 : 1), page->nWidth - 4, "");
    addBackBar(page);
    speak();
    runPage();
}
