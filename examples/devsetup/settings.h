/* SPDX-License-Identifier: MIT
 *
 * The device's settings, and the file that keeps them: lines of key=value, # begins a comment.
 */
#ifndef DEVSETUP_SETTINGS_H
#define DEVSETUP_SETTINGS_H

enum { NAME_SIZE = 64, ADDRESS_SIZE = 16, LIST_SIZE = 1024, HASH_SIZE = 160 };

struct settings {
    char host[NAME_SIZE];
    char dhcp[4]; /* yes or no */
    char address[ADDRESS_SIZE];
    char mask[ADDRESS_SIZE];
    char gateway[ADDRESS_SIZE];
    char zone[NAME_SIZE];
    char services[LIST_SIZE]; /* names, a comma between two */
    char password[HASH_SIZE]; /* as crypt(3) makes it */
};

/* What the device begins with. */
extern const struct settings defaults;

/* Reads the file; one that is not there is no error. Returns 0; else errors gets a line for each
 * thing that is wrong, with the number of the line, and what is right is taken all the same. */
int settings_load(struct settings* settings, const char* path, char* errors, int size);

/* Writes the file beside itself and renames it, so that there is a whole one at any moment. Returns
 * 0, or an error number. */
int settings_save(const struct settings* settings, const char* path);

/* Whether both would make the same file. */
int settings_equal(const struct settings* one, const struct settings* other);

/* Whether a name is in a list of names. */
int list_has(const char* list, const char* name);

/* 0 for a text that is good, as the forms ask for it. */
int check_host(const char* text);
int check_address(const char* text);
int check_mask(const char* text);

#endif
