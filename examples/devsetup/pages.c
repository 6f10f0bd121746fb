/* SPDX-License-Identifier: MIT */
#include "pages.h"

#include <kulgui.h>

#include <crypt.h>
#include <ctype.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/random.h>

#include "device.h"
#include "texts.h"

void page_overview(struct settings* settings)
{
    char text[2048];
    const int dhcp = strcmp(settings->dhcp, "yes") == 0;
    int used = snprintf(text, sizeof text, "%s: %s\n%s: %s\n", say(TEXT_HOST), settings->host,
                        say(TEXT_ADDRESSES), say(dhcp ? TEXT_BY_DHCP : TEXT_BY_HAND));
    if (!dhcp)
        used += snprintf(text + used, sizeof text - (size_t)used, "%s: %s\n%s: %s\n%s: %s\n",
                         say(TEXT_ADDRESS), settings->address, say(TEXT_MASK), settings->mask,
                         say(TEXT_GATEWAY), settings->gateway);
    snprintf(text + used, sizeof text - (size_t)used, "%s: %s\n%s: %s\n%s: %s", say(TEXT_ZONE),
             settings->zone, say(TEXT_SERVICES),
             settings->services[0] ? settings->services : say(TEXT_NONE), say(TEXT_PASSWORD),
             say(settings->password[0] ? TEXT_PASSWORD_SET : TEXT_PASSWORD_UNSET));
    kuldialog_tell(say(TEXT_OVERVIEW), text);
}

/* The host name, then where addresses come from, then the addresses if they are set by hand.
 * Nothing is taken before the last answer. */
void page_network(struct settings* settings)
{
    struct settings now = *settings;
    KULFIELD name = {say(TEXT_HOST), now.host, NAME_SIZE, NOMASK, NULL, check_host};
    KULFIELD addresses[] = {
        {say(TEXT_ADDRESS), now.address, ADDRESS_SIZE, NOMASK, "0123456789.", check_address},
        {say(TEXT_MASK), now.mask, ADDRESS_SIZE, NOMASK, "0123456789.", check_mask},
        {say(TEXT_GATEWAY), now.gateway, ADDRESS_SIZE, NOMASK, "0123456789.", check_address},
    };
    const char* const ways[] = {say(TEXT_BY_DHCP), say(TEXT_BY_HAND)};
    if (kuldialog_form(say(TEXT_NETWORK), "", &name, 1) != 0)
        return;
    const int before = strcmp(now.dhcp, "yes") == 0 ? 0 : 1;
    const int way = kuldialog_option(say(TEXT_NETWORK), say(TEXT_ADDRESSES), ways, 2, before);
    if (way < 0)
        return;
    strcpy(now.dhcp, way == 0 ? "yes" : "no");
    if (way == 1 && kuldialog_form(say(TEXT_NETWORK), say(TEXT_NETWORK_HELP), addresses, 3) != 0)
        return;
    *settings = now;
}

static int place_of(const struct names* names, const char* name)
{
    for (int i = 0; i < names->count; ++i) {
        if (strcmp(names->names[i], name) == 0)
            return i;
    }
    return -1;
}

void page_time(struct settings* settings)
{
    struct names zones = device_zones();
    int place = place_of(&zones, strcmp(settings->zone, defaults.zone) == 0 ? device_zone()
                                                                            : settings->zone);
    place = kuldialog_choose(say(TEXT_ZONE), say(TEXT_ZONE_HELP), (const char* const*)zones.names,
                             zones.count, place < 0 ? 0 : place);
    if (place >= 0)
        snprintf(settings->zone, sizeof settings->zone, "%s", zones.names[place]);
    names_free(&zones);
}

void page_services(struct settings* settings)
{
    struct names services = device_services();
    int* checked = calloc((size_t)services.count + 1, sizeof *checked);
    if (services.count == 0 || !checked) {
        kuldialog_tell(say(TEXT_SERVICES), say(TEXT_NO_SERVICES));
    } else {
        for (int i = 0; i < services.count; ++i)
            checked[i] = list_has(settings->services, services.names[i]);
        const int result =
            kuldialog_check(say(TEXT_SERVICES), say(TEXT_SERVICES_HELP),
                            (const char* const*)services.names, checked, services.count);
        size_t used = 0;
        for (int i = 0; result == 0 && i < services.count; ++i) {
            const size_t room = sizeof settings->services - used;
            if (checked[i] && strlen(services.names[i]) + 2 < room)
                used += (size_t)sprintf(settings->services + used, "%s%s", used ? "," : "",
                                        services.names[i]);
        }
        if (result == 0)
            settings->services[used] = '\0';
    }
    free(checked);
    names_free(&services);
}

/* Letters and something else, and eight of them. */
static int is_strong(const char* text)
{
    int letters = 0;
    int others = 0;
    for (const char* at = text; *at; ++at)
        isalpha((unsigned char)*at) ? ++letters : ++others;
    return letters > 0 && others > 0 && letters + others >= 8;
}

/* A salted hash in place of the password. Returns 0, -1 where the system cannot make one. */
static int keep_password(struct settings* settings, const char* password)
{
    static const char digits[] = "./0123456789ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
    unsigned char random[16];
    char salt[24] = "$6$";
    if (getrandom(random, sizeof random, 0) != (ssize_t)sizeof random)
        return -1;
    for (size_t i = 0; i < sizeof random; ++i)
        salt[3 + i] = digits[random[i] % 64];
    salt[3 + sizeof random] = '\0';
    const char* hash = crypt(password, salt);
    if (!hash || hash[0] != '$' || strlen(hash) >= sizeof settings->password)
        return -1;
    strcpy(settings->password, hash);
    return 0;
}

void page_account(struct settings* settings)
{
    char first[NAME_SIZE] = "";
    char second[NAME_SIZE] = "";
    KULFIELD fields[] = {{say(TEXT_PASSWORD), first, NAME_SIZE, MASK, NULL, NULL},
                         {say(TEXT_AGAIN), second, NAME_SIZE, MASK, NULL, NULL}};
    while (kuldialog_form(say(TEXT_ACCOUNT), say(TEXT_PASSWORD_HELP), fields, 2) == 0) {
        if (strcmp(first, second) != 0) {
            kuldialog_tell(say(TEXT_ACCOUNT), say(TEXT_PASSWORD_DIFFERS));
        } else if (!is_strong(first)) {
            kuldialog_tell(say(TEXT_ACCOUNT), say(TEXT_PASSWORD_WEAK));
        } else {
            if (keep_password(settings, first) != 0)
                kuldialog_tell(say(TEXT_ACCOUNT), say(TEXT_PASSWORD_FAILED));
            break;
        }
    }
    explicit_bzero(first, sizeof first);
    explicit_bzero(second, sizeof second);
}

void page_logs(struct settings* settings)
{
    (void)settings;
    char path[4096];
    const char* log = device_log();
    if (!log && kuldialog_pick(say(TEXT_LOGS), "/var/log", path, sizeof path) == 0)
        log = path;
    if (log)
        kuldialog_view(log, log, T);
}

void page_commands(struct settings* settings)
{
    char host[NAME_SIZE];
    char command[NAME_SIZE + 16];
    KULFIELD field = {say(TEXT_HOST), host, NAME_SIZE, NOMASK, NULL, check_host};
    snprintf(host, sizeof host, "%s", settings->gateway);
    if (kuldialog_form(say(TEXT_COMMANDS), say(TEXT_PING_HELP), &field, 1) != 0)
        return;
    snprintf(command, sizeof command, "ping -c 4 %s", host); /* a host's name has no quotes in it */
    kuldialog_run(command, command);
}
