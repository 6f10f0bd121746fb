/* SPDX-License-Identifier: MIT
 *
 * Shows texts that would do things to a terminal, by every call that takes one, and then a dialog
 * titled "Done". On the command line: the locale and the edition.
 */
#include <kulgui.h>

#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

// clang-format off
static const char* const kSequences[] = {
    "\x1b]0;Z\x07", "\x1b]2;Z\x1b\\", "\x1bP$q\"pZ", "\x1b[6nZ", "\x1b[2;2HZ", "\x1b" "cZ",
    "\xc2\x9b" "6nZ", "\x9b" "6nZ", "\xc2\x9d" "0;Z\xc2\x9c", "\xc2\x90Z\xe4",
    "\u202eZ", "\u202aZ\u202c", "\u2066Z\u2069", "\u200eZ\u200f\u061c", "\u200bZ\ufeff\u200d", "\xe4Z\xc2",
};
// clang-format on

static char szFile[] = "/tmp/kulgui-texts-XXXXXX";

static void showItems(const char* szText)
{
    kullabel_create(1, 21);
    kullabel_config(1, 21, KUL_KEEP, KUL_KEEP, 1, 1, 16, 3, CENTER, BORDER, "");
    kullabel_setText(1, 21, szText);
    kullabel_create(1, 22);
    kullabel_config(1, 22, KUL_KEEP, KUL_KEEP, 1, 4, 16, 3, LEFT, BORDER, szText);
    kuldescrfield_create(1, 23);
    kuldescrfield_config(1, 23, KUL_KEEP, KUL_KEEP, 20, 1, 16, 16, 4);
    kuldescrfield_addElement(1, 23, szText, szText);
    kuldescrfield_setElement(1, 23, 0, NULL, szText);
    kulstatbar_create(1, 24);
    kulstatbar_config(1, 24, KUL_KEEP, NULL);
    kulstatbar_addElement(1, 24, 0, 20, szText, LEFT, NULL);
    kulstatbar_addElement(1, 24, 22, 20, "", RIGHT, NULL);
    kulstatbar_setElement(1, 24, 1, szText);
}

static void showMenus(const char* szText)
{
    kulmenu_config(1, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, NULL, NULL, NULL, NULL);
    kulmenu_addElement(1, 1, szText, 1, NULL, NULL);
    kuldynmenu_config(1, 2, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 7, 14, 1, NULL, NULL, NULL, NULL);
    kuldynmenu_addElement(1, 2, szText, NULL, NULL, 1);
    kuldescrmenu_config(1, 3, KUL_KEEP, KUL_KEEP, KUL_KEEP, 0, 0, 10, 10, 5, NULL, NULL, NULL, NULL);
    kuldescrmenu_addElement(1, 3, 1, szText, szText, NULL, NULL);
    kulbutton_config(1, 4, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 20, 7, 16, 1, szText, NULL, NULL, NULL, NULL);
    kultoolbar_config(1, 5, KUL_KEEP, KUL_KEEP, KUL_KEEP, 40, 7, LATERAL, NULL, NULL, NULL, NULL);
    kultoolbar_addButton(1, 5, szText, 0, 1, NULL, NULL);
}

static void showBoxes(const char* szText)
{
    kulcheckbox_config(1, 6, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 10, 16, 4, BORDER, NULL, NULL, NULL, NULL);
    kulcheckbox_addElement(1, 6, szText, 0, 1, NULL, NULL);
    kuloptions_config(1, 7, KUL_KEEP, KUL_KEEP, KUL_KEEP, 20, 10, 16, 4, BORDER, 0, 0, NULL, NULL, NULL, NULL);
    kuloptions_addElement(1, 7, szText, 1, NULL, NULL);
    kultextbox_config(1, 9, KUL_KEEP, KUL_KEEP, KUL_KEEP, 40, 10, 16, 3, BORDER, NOMASK, NULL, NULL, NULL, NULL);
    kultextbox_setText(1, 9, szText);
    kulfileview_config(1, 8, KUL_KEEP, KUL_KEEP, KUL_KEEP, 58, 10, 16, 4, BORDER, szFile, NULL, NULL, NULL, NULL);
}

/* All at once, in a dialog that is gone afterwards. */
static void show(const char* szText)
{
    FILE* file = fopen(szFile, "w");
    if (file) {
        fputs(szText, file);
        fclose(file);
    }
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, szText, NULL, NULL, NULL, NULL, NULL);
    kulgui_show(0);
    kulgui_create(1);
    kulgui_config(1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, szText, BORDER, 1, 2, 76, 18, NULL, NULL, NULL, NULL,
                  NULL);
    for (int type = MENU; type <= TEXTBOX; ++type)
        CreateUIComponent(1, type, type + 1);
    showItems(szText);
    showMenus(szText);
    showBoxes(szText);
    kulgui_show(1);
    WINDOW* win = GetChain(1)->Pointer->winMain;
    WrapText(win, 60, 1, 12, WHITE_BLUE, szText);
    NewStrToBox(win, 60, 4, 12, 2, WHITE_BLUE, LEFT, szText);
    DrawButton(win, 14, 2, 3, 12, WHITE_BLUE, szText);
    kulgui_update();
    kulgui_destroy(1);
}

int main(int argc, char** argv)
{
    char szByte[] = "a?Z";
    if (argc != 3 || close(mkstemp(szFile)) != 0)
        return 2;
    setlocale(LC_ALL, argv[1]);
    kulgui_setEdition(atoi(argv[2]));
    kulgui_create(0);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL, NULL);
    if (NCursesEnv(1) != 0)
        return 2;
    for (int c = 1; c < 256; ++c) {
        szByte[1] = (char)c;
        if (c < 32 || (c > 126 && c < 160))
            show(szByte);
    }
    for (size_t i = 0; i < sizeof kSequences / sizeof *kSequences; ++i)
        show(kSequences[i]);
    unlink(szFile);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL, NULL);
    kulgui_show(0);
    kulgui_create(1);
    kulgui_config(1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Done", BORDER, 2, 3, 20, 9, NULL, NULL, NULL, NULL, NULL);
    kulprogbar_create(1, 1);
    kulprogbar_config(1, 1, KUL_KEEP, KUL_KEEP, 2, 3, 9, 3, 9, LATERAL);
    kulbutton_create(1, 2);
    kulbutton_config(1, 2, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 5, 9, 1, "Gr\u00f6\u00dfe", NULL, NULL, NULL,
                     NULL);
    kulgui_exec(1);
    kulgui_destroyAll();
    return 0;
}
