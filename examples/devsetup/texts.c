/* SPDX-License-Identifier: MIT */
#include "texts.h"

#include <langinfo.h>
#include <locale.h>
#include <string.h>

enum language { ENGLISH, GERMAN };

static enum language language = ENGLISH;

static const char* const texts[TEXTS][2] = {
    [TEXT_TITLE] = {"Device set-up", "Geräteeinrichtung"},
    [TEXT_MENU] = {"Settings", "Einstellungen"},
    [TEXT_OVERVIEW] = {"Overview", "Überblick"},
    [TEXT_NETWORK] = {"Network", "Netzwerk"},
    [TEXT_TIME] = {"Time", "Zeit"},
    [TEXT_SERVICES] = {"Services", "Dienste"},
    [TEXT_ACCOUNT] = {"Account", "Konto"},
    [TEXT_LOGS] = {"Logs", "Protokolle"},
    [TEXT_COMMANDS] = {"Commands", "Befehle"},
    [TEXT_SAVE] = {"Save", "Speichern"},
    [TEXT_QUIT] = {"Quit", "Beenden"},
    [TEXT_MENU_HELP] = {"Enter opens, Escape quits", "Enter öffnet, Escape beendet"},
    [TEXT_HOST] = {"Host name", "Rechnername"},
    [TEXT_ADDRESSES] = {"Addresses", "Adressen"},
    [TEXT_BY_DHCP] = {"from the network (DHCP)", "aus dem Netzwerk (DHCP)"},
    [TEXT_BY_HAND] = {"set by hand", "von Hand gesetzt"},
    [TEXT_ADDRESS] = {"Address", "Adresse"},
    [TEXT_MASK] = {"Mask", "Maske"},
    [TEXT_GATEWAY] = {"Gateway", "Gateway"},
    [TEXT_NETWORK_HELP] = {"Four numbers with dots between, such as 192.168.1.1.",
                           "Vier Zahlen mit Punkten dazwischen, etwa 192.168.1.1."},
    [TEXT_ZONE] = {"Time zone", "Zeitzone"},
    [TEXT_ZONE_HELP] = {"A letter goes to the zones that begin with it.",
                        "Ein Buchstabe führt zu den Zonen, die mit ihm beginnen."},
    [TEXT_SERVICES_HELP] = {"Space switches a service on or off.",
                            "Die Leertaste schaltet einen Dienst ein oder aus."},
    [TEXT_NO_SERVICES] = {"This device has no services to choose from.",
                          "Dieses Gerät hat keine Dienste zur Auswahl."},
    [TEXT_NONE] = {"none", "keine"},
    [TEXT_PASSWORD] = {"Password", "Passwort"},
    [TEXT_AGAIN] = {"Once more", "Noch einmal"},
    [TEXT_PASSWORD_HELP] = {"At least eight characters: letters, and others as well.",
                            "Mindestens acht Zeichen: Buchstaben, und andere dazu."},
    [TEXT_PASSWORD_WEAK] = {"That password is too easy to guess.",
                            "Dieses Passwort ist zu leicht zu erraten."},
    [TEXT_PASSWORD_DIFFERS] = {"The two passwords differ.",
                               "Die beiden Passwörter unterscheiden sich."},
    [TEXT_PASSWORD_FAILED] = {"This system cannot store passwords.",
                              "Dieses System kann keine Passwörter speichern."},
    [TEXT_PASSWORD_SET] = {"set", "gesetzt"},
    [TEXT_PASSWORD_UNSET] = {"not set", "nicht gesetzt"},
    [TEXT_PING_HELP] = {"Which host shall be pinged?", "Welcher Rechner soll angepingt werden?"},
    [TEXT_SAVED] = {"The settings are saved.", "Die Einstellungen sind gespeichert."},
    [TEXT_NOT_SAVED] = {"The settings could not be saved:",
                        "Die Einstellungen konnten nicht gespeichert werden:"},
    [TEXT_UNSAVED] = {"There are changes that are not saved.",
                      "Es gibt Änderungen, die nicht gespeichert sind."},
    [TEXT_UNSAVED_BUTTONS] = {"Save\nDiscard\nBack", "Speichern\nVerwerfen\nZurück"},
    [TEXT_CHANGED] = {"changed ", "geändert "},
    [TEXT_BAD_FILE] =
        {"Some settings could not be read. They have their defaults.",
         "Einige Einstellungen konnten nicht gelesen werden. Für sie gilt die Vorgabe."},
    [TEXT_NO_VALUE] = {"no = in it", "kein = darin"},
    [TEXT_BAD_VALUE] = {"not a valid value", "kein gültiger Wert"},
    [TEXT_UNKNOWN_KEY] = {"not a known name", "kein bekannter Name"},
    [TEXT_OK] = {"OK", "OK"},
    [TEXT_CANCEL] = {"Cancel", "Abbrechen"},
    [TEXT_YES] = {"Yes", "Ja"},
    [TEXT_NO] = {"No", "Nein"},
    [TEXT_CLOSE] = {"Close", "Schließen"},
    [TEXT_SEARCH] = {"Search", "Suchen"},
    [TEXT_END] = {"End it?", "Beenden?"},
    [TEXT_NO_TERMINAL] = {"this is no terminal that can be used",
                          "dieses Terminal kann nicht benutzt werden"},
};

void texts_choose(void)
{
    const char* name = setlocale(LC_MESSAGES, NULL);
    const int unicode = strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
    language = unicode && name && strncmp(name, "de", 2) == 0 ? GERMAN : ENGLISH;
}

const char* say(enum text text)
{
    return texts[text][language];
}
