/* SPDX-License-Identifier: MIT */
#include "device.h"

#include <dirent.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

enum { LINE = 512 };

static void add(struct names* names, const char* name, size_t length)
{
    if (names->count % 64 == 0) {
        char** larger = realloc(names->names, (size_t)(names->count + 64) * sizeof *larger);
        if (!larger)
            return;
        names->names = larger;
    }
    if ((names->names[names->count] = strndup(name, length)))
        ++names->count;
}

static int compare(const void* first, const void* second)
{
    return strcmp(*(char* const*)first, *(char* const*)second);
}

static void sort(struct names* names)
{
    if (names->count > 0)
        qsort(names->names, (size_t)names->count, sizeof *names->names, compare);
}

void names_free(struct names* names)
{
    for (int i = 0; i < names->count; ++i)
        free(names->names[i]);
    free(names->names);
    *names = (struct names){NULL, 0};
}

struct names device_zones(void)
{
    struct names zones = {NULL, 0};
    char line[LINE];
    FILE* file = fopen("/usr/share/zoneinfo/tzdata.zi", "r");
    /* "Z Europe/Berlin ..." is a zone, "L Europe/Berlin Europe/Oslo" another name of one. */
    while (file && fgets(line, sizeof line, file)) {
        const char* name = line[0] == 'L'   ? strchr(line + 2, ' ')
                           : line[0] == 'Z' ? line + 1
                                            : NULL;
        if (name && line[1] == ' ' && strchr(name, '/'))
            add(&zones, name + 1, strcspn(name + 1, " \n"));
    }
    if (file)
        fclose(file);
    if (zones.count == 0)
        add(&zones, "Etc/UTC", strlen("Etc/UTC"));
    sort(&zones);
    return zones;
}

const char* device_zone(void)
{
    static char zone[LINE];
    const ssize_t length = readlink("/etc/localtime", zone, sizeof zone - 1);
    zone[length > 0 ? length : 0] = '\0';
    const char* name = strstr(zone, "zoneinfo/");
    return name ? name + strlen("zoneinfo/") : "Etc/UTC";
}

/* Adds what a directory has of that ending, without it. */
static void add_files(struct names* names, const char* directory, const char* ending)
{
    DIR* files = opendir(directory);
    for (const struct dirent* file = NULL; files && (file = readdir(files));) {
        const size_t length = strlen(file->d_name);
        const size_t rest = strlen(ending);
        const int fits = length > rest && strcmp(file->d_name + length - rest, ending) == 0;
        if (fits && file->d_name[0] != '.' && !strpbrk(file->d_name, ",@"))
            add(names, file->d_name, length - rest);
    }
    if (files)
        closedir(files);
}

struct names device_services(void)
{
    struct names services = {NULL, 0};
    add_files(&services, "/etc/init.d", "");
    if (services.count == 0)
        add_files(&services, "/lib/systemd/system", ".service");
    sort(&services);
    return services;
}

const char* device_log(void)
{
    static const char* const logs[] = {"/var/log/messages", "/var/log/syslog",
                                       "/var/log/daemon.log", "/var/log/dpkg.log"};
    for (size_t i = 0; i < sizeof logs / sizeof *logs; ++i) {
        if (access(logs[i], R_OK) == 0)
            return logs[i];
    }
    return NULL;
}
