/* SPDX-License-Identifier: MIT
 *
 * Stands before the C library of a program that is tortured: memory that runs out when it is told to, a keyboard
 * that types what it is told to, and no sleep. Its orders are in the environment.
 *
 *     TORTURE_FAILS   the allocation that fails, from 1; 0 for none
 *     TORTURE_ON      if it is set, all later ones fail as well
 *     TORTURE_KEYS    keys, a bar behind each; after the last one the line is at its end
 *     TORTURE_SAYS    a file: where none fails, 'c' for an allocation of curses' as it opens and 'n' for each
 *                     other one
 */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <poll.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>
#include <unistd.h>
#include <unwind.h>

static unsigned long allocations, failing;
static int counts, failsOn, says = -1;
static const char* keys = "";
static int arrived; /* a key, or the end */

static void find(void* function, const char* name)
{
    void* found;
    memcpy(&found, function, sizeof found);
    if (!found)
        found = dlsym(RTLD_NEXT, name);
    memcpy(function, &found, sizeof found);
}

/* The function itself. */
#define REAL(name)                                                                                                     \
    static __typeof__(&name) real;                                                                                     \
    find(&real, #name)

/* What curses and the C library do as they begin. */
static int opens(const char* function)
{
    static const char* const names[] = {
        "setlocale",      "newterm",      "newterm_sp",         "setupterm",           "_nc_setupterm", "tiparm",
        "start_color_sp", "init_pair_sp", "_nc_get_hash_table", "_nc_find_type_entry", "_nc_tiparm"};
    static int panels = 0; /* the first one needs another one, and the library makes it as it opens */
    for (size_t i = 0; function && i < sizeof names / sizeof *names; ++i) {
        if (strcmp(function, names[i]) == 0)
            return 1;
    }
    return function && strcmp(function, "new_panel") == 0 && ++panels <= 2;
}

static _Unwind_Reason_Code look(struct _Unwind_Context* frame, void* word)
{
    Dl_info info;
    if (dladdr((void*)_Unwind_GetIP(frame), &info) && opens(info.dli_sname))
        *(char*)word = 'c';
    return _URC_NO_REASON;
}

static void say(void)
{
    char word = 'n';
    _Unwind_Backtrace(look, &word);
    (void)!write(says, &word, 1);
}

static int fails(void)
{
    if (!counts)
        return 0;
    ++allocations;
    if (!failing) {
        counts = 0;
        say();
        counts = 1;
    }
    if (!failing || (allocations != failing && !(failsOn && allocations > failing)))
        return 0;
    errno = ENOMEM;
    return 1;
}

void* malloc(size_t size)
{
    REAL(malloc);
    return fails() ? NULL : real(size);
}

void* calloc(size_t count, size_t size)
{
    REAL(calloc);
    return fails() ? NULL : real(count, size);
}

void* realloc(void* memory, size_t size)
{
    REAL(realloc);
    return fails() ? NULL : real(memory, size);
}

char* strdup(const char* text)
{
    char* copy = malloc(strlen(text) + 1);
    return copy ? strcpy(copy, text) : NULL;
}

/* A key is there for each wait that is no wait for the rest of one. */
int poll(struct pollfd* lines, nfds_t count, int milliseconds)
{
    REAL(poll);
    if (count == 0 || lines->fd != STDIN_FILENO)
        return real(lines, count, milliseconds);
    const int others = real(lines + 1, count - 1, 0);
    arrived = arrived || (milliseconds > 25 && others <= 0);
    lines->revents = arrived ? POLLIN : 0;
    return arrived + (others > 0 ? others : 0);
}

ssize_t read(int from, void* bytes, size_t most)
{
    REAL(read);
    if (from != STDIN_FILENO)
        return real(from, bytes, most);
    arrived = 0;
    const size_t key = strcspn(keys, "|");
    const size_t size = key < most ? key : most;
    memcpy(bytes, keys, size);
    keys += size + (keys[size] == '|');
    return (ssize_t)size;
}

int nanosleep(const struct timespec* wanted, struct timespec* left)
{
    (void)wanted;
    (void)left;
    return 0;
}

__attribute__((constructor)) static void begin(void)
{
    const char* number = getenv("TORTURE_FAILS");
    if (!number)
        return;
    failing = strtoul(number, NULL, 10);
    says = open(getenv("TORTURE_SAYS"), O_WRONLY | O_APPEND | O_CLOEXEC);
    failsOn = getenv("TORTURE_ON") != NULL;
    keys = strdup(getenv("TORTURE_KEYS"));
    unsetenv("LD_PRELOAD"); /* what it starts has its peace */
    counts = 1;
}
