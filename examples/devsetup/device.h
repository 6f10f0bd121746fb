/* SPDX-License-Identifier: MIT
 *
 * What the device itself knows: its time zones, its services, its logs.
 */
#ifndef DEVSETUP_DEVICE_H
#define DEVSETUP_DEVICE_H

/* Names in alphabetical order. */
struct names {
    char** names;
    int count;
};

void names_free(struct names* names);

/* The zones of the system's list; one, UTC, where it has none. */
struct names device_zones(void);

/* The zone that the device has now. */
const char* device_zone(void);

/* The services that are installed. */
struct names device_services(void);

/* The name of a log that can be read; NULL for none. */
const char* device_log(void);

#endif
