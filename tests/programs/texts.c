/* SPDX-License-Identifier: MIT
 *
 * Shows texts that would do things to a terminal, as titles, labels, texts and buttons, and then a
 * dialog titled "Done". On the command line: the locale and the edition.
 */
#include <kulgui.h>

#include <locale.h>
#include <stdlib.h>

// clang-format off
static const char* const kSequences[] = {
    "\x1b]0;Z\x07", "\x1b]2;Z\x1b\\", "\x1bP$q\"pZ", "\x1b[6nZ", "\x1b[2;2HZ", "\x1b" "cZ",
    "\xc2\x9b" "6nZ", "\x9b" "6nZ", "\xc2\x9d" "0;Z\xc2\x9c", "\xc2\x90Z\xe4",
    "\u202eZ", "\u202aZ\u202c", "\u2066Z\u2069", "\u200eZ\u200f\u061c", "\u200bZ\ufeff\u200d", "\xe4Z\xc2",
};
// clang-format on

/* In a dialog that is gone afterwards. */
static void show(const char* szText)
{
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, szText, NULL, NULL, NULL, NULL, NULL);
    kulgui_show(0);
    kulgui_create(1);
    kulgui_config(1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, szText, BORDER, 1, 2, 76, 18, NULL, NULL, NULL, NULL,
                  NULL);
    kullabel_create(1, 1);
    kullabel_config(1, 1, KUL_KEEP, KUL_KEEP, 1, 1, 16, 3, CENTER, BORDER, "");
    kullabel_setText(1, 1, szText);
    kulgui_show(1);
    WINDOW* win = GetChain(1)->Pointer->winMain;
    WrapText(win, 60, 1, 12, WHITE_BLUE, szText);
    DrawButton(win, 14, 2, 3, 12, WHITE_BLUE, szText);
    kulgui_update();
    kulgui_destroy(1);
}

int main(int argc, char** argv)
{
    char szByte[] = "a?Z";
    if (argc != 3)
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
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", NULL, NULL, NULL, NULL, NULL);
    kulgui_show(0);
    kulgui_create(1);
    kulgui_config(1, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Done", BORDER, 2, 3, 20, 9, NULL, NULL, NULL, NULL, NULL);
    kulprogbar_create(1, 1);
    kulprogbar_config(1, 1, KUL_KEEP, KUL_KEEP, 2, 3, 9, 3, 9, LATERAL);
    kulbutton_create(1, 2);
    kulbutton_config(1, 2, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 5, 9, 1, "OK", NULL, NULL, NULL, NULL);
    kulgui_exec(1);
    kulgui_destroyAll();
    return 0;
}
