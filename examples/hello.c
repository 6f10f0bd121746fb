/* SPDX-License-Identifier: MIT
 *
 * A small program with a dialog of its own: it asks, and has an answer.
 */
#include <kulgui.h>

#include <locale.h>
#include <stdio.h>

enum { DESKTOP, QUESTION };
enum { YES = 1, NO };

static int answer = NO;

static void choose(void)
{
    answer = GetCurrentSelection()->nUserInterface;
    kulgui_leave(QUESTION);
}

static void addButton(int ref, int column, const char* text)
{
    kulbutton_create(QUESTION, ref);
    kulbutton_config(QUESTION, ref, WHITE_BLUE, BLACK_WHITE, KUL_KEEP, KUL_KEEP, column, 3, 10, 1,
                     text, NULL, NULL, NULL, choose);
}

int main(void)
{
    setlocale(LC_ALL, ""); /* texts and lines as the user's terminal shows them */
    kulgui_setEdition(2);  /* today's keys and manners */

    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, WHITE_BLUE, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Hello", NULL, NULL, NULL,
                       NULL, NULL);
    kulgui_create(QUESTION);
    kulgui_config(QUESTION, BLACK_WHITE, KUL_KEEP, KUL_KEEP, KUL_KEEP, " Restart the device? ",
                  BORDER, 5, 4, 30, 8, NULL, NULL, NULL, NULL, NULL);
    addButton(YES, 4, "Yes");
    addButton(NO, 16, "No");

    if (NCursesEnv(1) != 0) {
        fprintf(stderr, "hello: this is no terminal that can be used\n");
        return 1;
    }
    kulgui_show(DESKTOP);
    kulgui_exec(QUESTION);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);

    printf("The answer is %s.\n", answer == YES ? "yes" : "no");
    return 0;
}
