/* SPDX-License-Identifier: MIT
 *
 * A dialog that is left in the way that the command line says. Enter on its button, whose text
 * counts, does the last of these words:
 *   exit      ends the program with exit(3)
 *   return    leaves the dialog; main returns 4 with the terminal open
 *   close     leaves the dialog; the program closes the terminal, prints "closed" and returns 5
 *   raise     as close, but sends itself a TERM before it returns
 *   paint     as close, but has changed the terminal's palette
 *   again     as close, but first opens and closes the terminal once more, with an Enter between
 *   count     counts
 *   round     moves the focus between two buttons, each of which runs a dialog of its own first
 *   late      installs a handler for TERM, as below, and opens the terminal that is open again
 *   fork      counts, after two children have ended, one by exit(127) and one by TERM
 *   run       counts, after a command that says "outside" and waits for a line
 *   fault, overflow, abort
 *             crashes: by a bad address, a stack that is full, abort()
 * and these change what the program does about signals:
 *   handler   its own handler for TERM ends it with 6
 *   ignore    INT is ignored
 * or what it has:
 *   starved   no memory from the time on when the terminal is to be opened
 *   continued CONT comes when the terminal is just given back
 * When the dialog ends by itself the program returns 10, without a usable terminal 11.
 */
#include <kulgui.h>

#include <dlfcn.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/wait.h>
#include <unistd.h>

enum { DESKTOP, MAIN, ASIDE };

static const char* way = "count";
static int clicks;

static void click(void);

static void label(void)
{
    char text[20];
    snprintf(text, sizeof text, "count %d", clicks);
    kulbutton_config(MAIN, 1, WHITE_BLUE, BLUE_WHITE, KUL_KEEP, KUL_KEEP, 2, 2, 14, 1, text, NULL, NULL, NULL, click);
}

static void goRound(void)
{
    kulgui_exec(ASIDE);
    kulgui_setFocus(MAIN, 3 - GetCurrentSelection()->nUserInterface);
}

static void addRound(void)
{
    kulgui_create(ASIDE);
    kulgui_config(ASIDE, WHITE_BLUE, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", BORDER, 30, 3, 18, 8, NULL, NULL, NULL, NULL,
                  NULL);
    kulbutton_create(ASIDE, 1);
    kulbutton_create(MAIN, 2);
    for (int ref = 1; ref <= 2; ++ref)
        kulbutton_config(MAIN, ref, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, 9, 1, "round", goRound, NULL, NULL,
                         NULL);
}

static int hungry;
static int starved;

/* In place of the C library's, but not of a sanitizer's. */
#ifndef __SANITIZE_ADDRESS__
void* malloc(size_t size)
{
    static void* (*allocate)(size_t);
    if (!allocate)
        *(void**)&allocate = dlsym(RTLD_NEXT, "malloc");
    return starved ? NULL : allocate(size);
}
#endif

static int continued;

/* In place of curses'. */
int endwin(void)
{
    int (*end)(void);
    *(void**)&end = dlsym(RTLD_NEXT, "endwin");
    const int result = end();
    if (continued)
        raise(SIGCONT);
    return result;
}

static void onTerminate(int number)
{
    (void)number;
    exit(6);
}

static void child(int number)
{
    const pid_t pid = fork();
    if (pid != 0) {
        waitpid(pid, NULL, 0);
        return;
    }
    raise(number);
    exit(127);
}

static volatile int depth = 1; /* never 0 */

static int overflow(volatile int* outer)
{
    volatile int room[1024] = {*outer};
    return depth ? overflow(room) + room[0] : 0;
}

static char* volatile nowhere = (char*)16;

static void crash(void)
{
    if (strcmp(way, "fault") == 0)
        *nowhere = 0;
    if (strcmp(way, "overflow") == 0)
        overflow(&depth);
    if (strcmp(way, "abort") == 0)
        abort();
}

static void click(void)
{
    crash();
    ++clicks;
    label();
    if (strcmp(way, "run") == 0) {
        short before = 0, after = 0, background = 0;
        kulgui_keepScreen(T);
        pair_content(0, &before, &background);
        const int status = kulgui_run("echo outside; read line; exit 7");
        pair_content(0, &after, &background);
        if (!WIFEXITED(status) || WEXITSTATUS(status) != 7 || kulgui_run(NULL) != -1 || kulgui_resume() != -1 ||
            after != before)
            exit(9);
        return;
    }
    if (strcmp(way, "fork") == 0) {
        child(SIGCONT);
        child(SIGTERM);
        return;
    }
    if (strcmp(way, "late") == 0) {
        signal(SIGTERM, onTerminate);
        NCursesEnv(1);
        return;
    }
    if (strcmp(way, "exit") == 0)
        exit(3);
    if (strcmp(way, "paint") == 0)
        init_color(COLOR_RED, 500, 500, 500);
    if (strcmp(way, "count") != 0)
        kulgui_leave(MAIN);
}

int main(int argc, char** argv)
{
    for (int i = 1; i < argc; ++i) {
        if (strcmp(argv[i], "handler") == 0)
            signal(SIGTERM, onTerminate);
        else if (strcmp(argv[i], "ignore") == 0)
            signal(SIGINT, SIG_IGN);
        else if (strcmp(argv[i], "starved") == 0)
            hungry = 1;
        else if (strcmp(argv[i], "continued") == 0)
            continued = 1;
        else
            way = argv[i];
    }
    kulgui_create(DESKTOP);
    kulgui_configPrime(DESKTOP, BLACK_CYAN, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Desktop", NULL, NULL, NULL, NULL, NULL);
    kulgui_create(MAIN);
    kulgui_config(MAIN, BLACK_WHITE, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Main", BORDER, 2, 3, 18, 8, NULL, NULL, NULL, NULL,
                  NULL);
    kulbutton_create(MAIN, 1);
    label();
    if (strcmp(way, "round") == 0)
        addRound();
    starved = hungry;
    for (int rounds = strcmp(way, "again") == 0 ? 2 : 1; rounds > 0; --rounds) {
        const int opened = NCursesEnv(1);
        if (opened == 0)
            kulgui_show(DESKTOP);
        const int result = kulgui_exec(MAIN);
        if (result == -1 && opened == -1)
            return 11;
        if (result != KUL_LEFT)
            return 10;
        if (strcmp(way, "return") == 0)
            return 4;
        kulgui_destroyAll();
        const char* database = getenv("TERMINFO");
        printf("closed, TERMINFO=%s\n", database ? database : "none");
        if (strcmp(way, "raise") == 0)
            raise(SIGTERM);
    }
    return 5;
}
