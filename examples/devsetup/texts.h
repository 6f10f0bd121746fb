/* SPDX-License-Identifier: MIT
 *
 * Everything that the program says, in the user's language.
 */
#ifndef DEVSETUP_TEXTS_H
#define DEVSETUP_TEXTS_H

enum text {
    TEXT_TITLE,
    TEXT_MENU,
    TEXT_OVERVIEW,
    TEXT_NETWORK,
    TEXT_TIME,
    TEXT_SERVICES,
    TEXT_ACCOUNT,
    TEXT_LOGS,
    TEXT_COMMANDS,
    TEXT_SAVE,
    TEXT_QUIT,
    TEXT_MENU_HELP,
    TEXT_HOST,
    TEXT_ADDRESSES,
    TEXT_BY_DHCP,
    TEXT_BY_HAND,
    TEXT_ADDRESS,
    TEXT_MASK,
    TEXT_GATEWAY,
    TEXT_NETWORK_HELP,
    TEXT_ZONE,
    TEXT_ZONE_HELP,
    TEXT_SERVICES_HELP,
    TEXT_NO_SERVICES,
    TEXT_NONE,
    TEXT_PASSWORD,
    TEXT_AGAIN,
    TEXT_PASSWORD_HELP,
    TEXT_PASSWORD_WEAK,
    TEXT_PASSWORD_DIFFERS,
    TEXT_PASSWORD_FAILED,
    TEXT_PASSWORD_SET,
    TEXT_PASSWORD_UNSET,
    TEXT_PING_HELP,
    TEXT_SAVED,
    TEXT_NOT_SAVED,
    TEXT_UNSAVED,
    TEXT_UNSAVED_BUTTONS,
    TEXT_CHANGED,
    TEXT_BAD_FILE,
    TEXT_NO_VALUE,
    TEXT_BAD_VALUE,
    TEXT_UNKNOWN_KEY,
    TEXT_OK,
    TEXT_CANCEL,
    TEXT_YES,
    TEXT_NO,
    TEXT_CLOSE,
    TEXT_SEARCH,
    TEXT_END,
    TEXT_NO_TERMINAL,
    TEXTS
};

/* Chooses the language by the locale, which is set before. */
void texts_choose(void);

const char* say(enum text text);

#endif
