/* SPDX-License-Identifier: MIT
 *
 * The set-up program of a small router: its pages read and change the settings of a file, and
 * nothing else of the machine.
 *
 * usage: devsetup [FILE]
 */
#include <kulgui.h>

#include <locale.h>
#include <stdio.h>
#include <string.h>

#include "pages.h"
#include "texts.h"

enum { DESKTOP, MAIN };
enum { PAGES = 1, HELP, STATE };

static struct settings saved;
static struct settings settings;
static const char* path = "devsetup.conf";

static int is_changed(void)
{
    return !settings_equal(&saved, &settings);
}

static void show_state(void)
{
    if (is_changed())
        kullabel_show(MAIN, STATE);
    else
        kullabel_hide(MAIN, STATE);
}

static void save(struct settings* now)
{
    char text[512];
    const int error = settings_save(now, path);
    if (error == 0) {
        saved = *now;
        show_state();
        kulgui_show(MAIN); /* below the message */
        kuldialog_tell(say(TEXT_SAVE), say(TEXT_SAVED));
        return;
    }
    snprintf(text, sizeof text, "%s\n%s: %s", say(TEXT_NOT_SAVED), path, strerror(error));
    kuldialog_tell(say(TEXT_SAVE), text);
}

/* Leaves the program, unless there is something to save and the user thinks better of it. */
static void quit(struct settings* now)
{
    if (is_changed()) {
        const int answer =
            kuldialog_ask(say(TEXT_QUIT), say(TEXT_UNSAVED), say(TEXT_UNSAVED_BUTTONS), 0);
        if (answer == 0)
            save(now);
        if (answer == 2 || answer == KUL_DISMISSED || (answer == 0 && is_changed()))
            return;
    }
    kulgui_leave(MAIN);
}

static const struct {
    enum text name;
    void (*open)(struct settings* settings);
} pages[] = {
    {TEXT_OVERVIEW, page_overview},
    {TEXT_NETWORK, page_network},
    {TEXT_TIME, page_time},
    {TEXT_SERVICES, page_services},
    {TEXT_ACCOUNT, page_account},
    {TEXT_LOGS, page_logs},
    {TEXT_COMMANDS, page_commands},
    {TEXT_SAVE, save},
    {TEXT_QUIT, quit},
};

enum { PAGE_COUNT = sizeof pages / sizeof *pages };

static void open_page(void)
{
    const int page = GetCurrentSelection()->nSelect;
    if (page >= 0 && page < PAGE_COUNT)
        pages[page].open(&settings);
    show_state();
}

/* Escape asks as Quit does. */
static void on_key(void)
{
    if (kulgui_getKey() != KS_ESC)
        return;
    kulgui_setKey(0);
    quit(&settings);
}

/* The menu in the middle, as high as the screen lets it be. */
static void make_main(void)
{
    const int height = kulgui_getRows();
    static char title[64];
    snprintf(title, sizeof title, " %s ", say(TEXT_MENU));
    const int rows = height < PAGE_COUNT + 7 ? (height < 8 ? 3 : height - 5) : PAGE_COUNT;
    kulgui_config(MAIN, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, title, BORDER, KUL_CENTER,
                  KUL_CENTER, 36, rows + 5, NULL, NULL, NULL, NULL, NULL);
    kuldynmenu_create(MAIN, PAGES);
    kuldynmenu_config(MAIN, PAGES, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 1, 30, rows, NULL, NULL, NULL,
                      open_page);
    for (int i = 0; i < PAGE_COUNT; ++i)
        kuldynmenu_addElement(MAIN, PAGES, say(pages[i].name), NULL, NULL, 1);
    kullabel_create(MAIN, HELP);
    kullabel_config(MAIN, HELP, KUL_KEEP, KUL_KEEP, 3, rows + 3, 31, 1, LEFT, NOBORDER,
                    say(TEXT_MENU_HELP));
    kullabel_create(MAIN, STATE);
    kullabel_config(MAIN, STATE, KUL_KEEP, KUL_KEEP, 24, rows + 4, 10, 1, RIGHT, NOBORDER,
                    say(TEXT_CHANGED));
    kulgui_setOnKey(MAIN, on_key);
    show_state();
}

/* A change of size makes the dialog anew: its menu is as high as there is room for. */
static void on_resize(void)
{
    const CURRENT before = *GetCurrentSelection();
    make_main();
    kulgui_select(MAIN, PAGES, before.nSelect);
    kulgui_setFocus(MAIN, PAGES);
    kulgui_show(MAIN);
    kulgui_setOnResize(MAIN, on_resize);
}

static void set_words(void)
{
    static const struct {
        int word;
        enum text text;
    } words[] = {{KULWORD_OK, TEXT_OK},       {KULWORD_CANCEL, TEXT_CANCEL},
                 {KULWORD_YES, TEXT_YES},     {KULWORD_NO, TEXT_NO},
                 {KULWORD_CLOSE, TEXT_CLOSE}, {KULWORD_SEARCH, TEXT_SEARCH},
                 {KULWORD_END, TEXT_END}};
    for (size_t i = 0; i < sizeof words / sizeof *words; ++i)
        kuldialog_setWord(words[i].word, say(words[i].text));
}

int main(int argc, char** argv)
{
    char errors[1024];
    char name[64];
    /* The locale says how texts are encoded and which language the user reads. */
    setlocale(LC_ALL, "");
    texts_choose();
    set_words();
    if (argc > 1)
        path = argv[1];
    settings = defaults;
    const int bad = settings_load(&settings, path, errors, sizeof errors);
    saved = settings;

    kulgui_setEdition(2);
    kulgui_create(DESKTOP);
    snprintf(name, sizeof name, " %s", say(TEXT_TITLE));
    kulgui_configPrime(DESKTOP, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, name, NULL, NULL, NULL,
                       NULL, NULL);
    kulgui_create(MAIN);
    if (NCursesEnv(1) != 0) {
        fprintf(stderr, "devsetup: %s\n", say(TEXT_NO_TERMINAL));
        return 1;
    }
    kulgui_show(DESKTOP);
    if (bad) {
        char text[sizeof errors + 256];
        snprintf(text, sizeof text, "%s\n\n%s", say(TEXT_BAD_FILE), errors);
        kuldialog_tell(say(TEXT_TITLE), text);
    }
    make_main();
    kulgui_setOnResize(MAIN, on_resize);
    const int result = kulgui_exec(MAIN);
    kulgui_destroyAll();
    kulgui_destroy(DESKTOP);
    return result == KUL_LEFT ? 0 : 1;
}
