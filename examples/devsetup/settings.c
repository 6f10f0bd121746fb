/* SPDX-License-Identifier: MIT */
#include "settings.h"

#include <arpa/inet.h>
#include <ctype.h>
#include <errno.h>
#include <fcntl.h>
#include <stddef.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#include "texts.h"

const struct settings defaults = {
    "device", "yes", "192.168.1.1", "255.255.255.0", "192.168.1.254", "Etc/UTC", "", ""};

static int check_switch(const char* text)
{
    return strcmp(text, "yes") != 0 && strcmp(text, "no") != 0;
}

int check_host(const char* text)
{
    const size_t length = strlen(text);
    if (length == 0 || text[0] == '-' || text[length - 1] == '-')
        return 1;
    for (; *text; ++text) {
        if (!isalnum((unsigned char)*text) && *text != '-' && *text != '.')
            return 1;
    }
    return 0;
}

int check_address(const char* text)
{
    struct in_addr address;
    return inet_pton(AF_INET, text, &address) == 1 ? 0 : 1;
}

int check_mask(const char* text)
{
    struct in_addr address;
    if (inet_pton(AF_INET, text, &address) != 1)
        return 1;
    const unsigned long hosts = ~(unsigned long)ntohl(address.s_addr) & 0xffffffffUL;
    return (hosts & (hosts + 1)) != 0; /* ones, then zeros */
}

static const struct {
    const char* key;
    size_t offset;
    size_t size;
    int (*check)(const char* text);
} keys[] = {
#define KEY(name, check)                                                                           \
    {                                                                                              \
#name, offsetof(struct settings, name), sizeof defaults.name, check                        \
    }
    KEY(host, check_host), KEY(dhcp, check_switch),     KEY(address, check_address),
    KEY(mask, check_mask), KEY(gateway, check_address), KEY(zone, NULL),
    KEY(services, NULL),   KEY(password, NULL),
#undef KEY
};

enum { KEYS = sizeof keys / sizeof *keys };

/* Takes one line; says what is wrong with it, NULL for nothing. */
static const char* take_line(struct settings* settings, char* line)
{
    line[strcspn(line, "\r\n")] = '\0';
    line += strspn(line, " \t");
    if (*line == '\0' || *line == '#')
        return NULL;
    char* value = strchr(line, '=');
    if (!value)
        return say(TEXT_NO_VALUE);
    *value++ = '\0';
    for (int i = 0; i < KEYS; ++i) {
        if (strcmp(line, keys[i].key) != 0)
            continue;
        if (strlen(value) >= keys[i].size || (keys[i].check && keys[i].check(value) != 0))
            return say(TEXT_BAD_VALUE);
        strcpy((char*)settings + keys[i].offset, value);
        return NULL;
    }
    return say(TEXT_UNKNOWN_KEY);
}

int settings_load(struct settings* settings, const char* path, char* errors, int size)
{
    char line[LIST_SIZE + NAME_SIZE];
    int used = 0;
    errors[0] = '\0';
    FILE* file = fopen(path, "r");
    if (!file) {
        if (errno == ENOENT)
            return 0;
        snprintf(errors, (size_t)size, "%s: %s", path, strerror(errno));
        return -1;
    }
    for (int number = 1; fgets(line, sizeof line, file); ++number) {
        const char* error = take_line(settings, line);
        if (error && used < size)
            used +=
                snprintf(errors + used, (size_t)(size - used), "%s:%d: %s\n", path, number, error);
    }
    fclose(file);
    return used > 0 ? -1 : 0;
}

/* Everything is written, and on the disk. */
static int write_all(FILE* file, const struct settings* settings)
{
    for (int i = 0; i < KEYS; ++i)
        fprintf(file, "%s=%s\n", keys[i].key, (const char*)settings + keys[i].offset);
    return fflush(file) == 0 && !ferror(file) && fsync(fileno(file)) == 0;
}

int settings_save(const struct settings* settings, const char* path)
{
    char beside[4096];
    if (snprintf(beside, sizeof beside, "%s.new", path) >= (int)sizeof beside)
        return ENAMETOOLONG;
    const int descriptor = open(beside, O_WRONLY | O_CREAT | O_TRUNC, 0600);
    FILE* file = descriptor >= 0 ? fdopen(descriptor, "w") : NULL;
    if (!file)
        return errno;
    const int written = write_all(file, settings);
    int error = written ? 0 : errno;
    if (fclose(file) != 0 && error == 0)
        error = errno;
    if (error == 0 && rename(beside, path) != 0)
        error = errno;
    if (error != 0)
        unlink(beside);
    return error;
}

int settings_equal(const struct settings* one, const struct settings* other)
{
    int i = 0;
    while (i < KEYS &&
           strcmp((const char*)one + keys[i].offset, (const char*)other + keys[i].offset) == 0)
        ++i;
    return i == KEYS;
}

int list_has(const char* list, const char* name)
{
    const size_t length = strlen(name);
    for (const char* at = list; (at = strstr(at, name)); at += length) {
        const int begins = at == list || at[-1] == ',';
        if (begins && (at[length] == ',' || at[length] == '\0'))
            return 1;
    }
    return 0;
}
