/* SPDX-License-Identifier: MIT
 *
 * Runs the ready dialog that the first word names and prints its result on the line that it leaves:
 *   tell ask enter secret form choose check option view progress run pick; lend lends the terminal first
 * The second word is what the dialog needs: a file, a command, a directory, a number of items.
 */
#include <kulgui.h>

#include <locale.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define MOST 10000

static const char text[] = "The quick brown fox jumps over the lazy dog, and the dog does not mind at all. "
                           "It has seen foxes before.";
static const char* items[MOST];
static char labels[MOST][24];
static int checked[MOST] = {1, 0, 1};

static int isNumber(const char* szText)
{
    return strspn(szText, "0123456789") == strlen(szText) ? 0 : 1;
}

static int form(int lines, char* out)
{
    static char texts[20][12];
    static KULFIELD fields[20];
    for (int i = 0; i < lines; ++i) {
        snprintf(texts[i], sizeof texts[i], "%d", i);
        fields[i] = (KULFIELD){labels[i], texts[i], sizeof texts[i], NOMASK, NULL, i == 1 ? isNumber : NULL};
    }
    const int result = kuldialog_form("Form", "Fill in:", fields, lines);
    for (int i = 0; i < lines; ++i)
        out += sprintf(out, " %s", texts[i]);
    return result;
}

static int progress(void)
{
    kuldialog_progress("Work", "Reading");
    for (int i = 0; i <= 50; ++i)
        kuldialog_advance(i, i < 50 ? NULL : "Writing");
    const int result = kuldialog_ask("", "Go on?", NULL, 0);
    kuldialog_done();
    return result;
}

int main(int argc, char** argv)
{
    const char* what = argc > 1 ? argv[1] : "";
    const char* with = argc > 2 ? argv[2] : "";
    const int count = atoi(with);
    char out[400] = "";
    int result = -3;
    setlocale(LC_ALL, "");
    for (int i = 0; i < MOST; ++i) {
        snprintf(labels[i], sizeof labels[i], "%c item %d", 'a' + i % 26, i);
        items[i] = labels[i];
    }
    if (strcmp(what, "tell") == 0) {
        result = kuldialog_tell("Title", text);
    } else if (strcmp(what, "ask") == 0) {
        result = kuldialog_ask("Title", text, "Yes\nNo\nLater", 1);
    } else if (strcmp(what, "enter") == 0 || strcmp(what, "secret") == 0) {
        strcpy(out, " ab");
        result = kuldialog_enter("Title", "Name:", out + 1, 8, *what == 's' ? MASK : NOMASK);
    } else if (strcmp(what, "form") == 0) {
        result = form(count, out);
    } else if (strcmp(what, "choose") == 0) {
        result = kuldialog_choose("Title", text, items, count, 2);
    } else if (strcmp(what, "option") == 0) {
        result = kuldialog_option("Title", text, items, count, 2);
    } else if (strcmp(what, "check") == 0) {
        result = kuldialog_check("Title", text, items, checked, count);
        for (int i = 0; i < count && i < 8; ++i)
            sprintf(out + strlen(out), " %d", checked[i]);
    } else if (strcmp(what, "view") == 0) {
        result = kuldialog_view(NULL, with, F);
    } else if (strcmp(what, "progress") == 0) {
        result = progress();
    } else if (strcmp(what, "lend") == 0) {
        NCursesEnv(1);
        result =
            kulgui_run("exit 7") == 7 << 8 && kulgui_run(NULL) == -1 && kulgui_suspend() == 0 && kulgui_resume() == 0;
        result += kuldialog_tell("Title", text);
        kulgui_destroyAll();
    } else if (strcmp(what, "run") == 0) {
        result = kuldialog_run("Run", with);
    } else if (strcmp(what, "pick") == 0) {
        strcpy(out, " ");
        result = kuldialog_pick("Pick", with, out + 1, sizeof out - 1);
    }
    printf("=%d%s=\n", result, out);
    if (kulgui_getColumns() * kulgui_getRows() <= 0)
        return 2;
    return GetPrimaryChain() || kulgui_getEdition() != 1;
}
