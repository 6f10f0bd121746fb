// SPDX-License-Identifier: MIT
#include "colors.hpp"

#include <cstdlib>
#include <cstring>
#include <strings.h>

#include <fcntl.h>
#include <kulgui.h>
#include <unistd.h>

#include "buffer.hpp"
#include "options.hpp"
#include "settings.hpp"
#include "text.hpp"

namespace kuldialog {

unsigned char colors[kRoles] = {WHITE_BLUE, BLACK_WHITE, WHITE_BLUE, BLACK_WHITE, BLACK_CYAN};

namespace {

template <std::size_t room>
struct Word {
    char text[room];
    unsigned char role;
};

constexpr Word<15> kNewtWords[] = {
    {"root", kDesktop},          {"roottext", kDesktop},  {"window", kWindowColor},
    {"textbox", kWindowColor},   {"actlistbox", kFocus},  {"actsellistbox", kFocus},
    {"actbutton", kFocus},       {"actcheckbox", kFocus}, {"button", kButtons},
    {"compactbutton", kButtons}, {"entry", kFieldsColor},
};

constexpr Word<23> kFileWords[] = {
    {"screen_color", kDesktop},          {"dialog_color", kWindowColor},
    {"button_active_color", kFocus},     {"item_selected_color", kFocus},
    {"button_inactive_color", kButtons}, {"inputbox_color", kFieldsColor},
    {"form_text_color", kFieldsColor},
};

struct Colour {
    char text[8];
    unsigned char number;
};

constexpr Colour kColours[] = {
    {"black", COLOR_BLACK},     {"red", COLOR_RED},       {"green", COLOR_GREEN},
    {"brown", COLOR_YELLOW},    {"yellow", COLOR_YELLOW}, {"blue", COLOR_BLUE},
    {"magenta", COLOR_MAGENTA}, {"cyan", COLOR_CYAN},     {"white", COLOR_WHITE},
    {"gray", COLOR_BLACK},
};

constexpr int kOthers = 7; // colours of the background beside each foreground

const char* nameOf(int nColour)
{
    const Colour* colour = kColours;
    while (colour->number != nColour)
        ++colour;
    return colour->text;
}

// The colour that a text of that size names; bright and light ones are the same. -1 for none.
int colourOf(const char* szText, std::size_t size)
{
    if (size > 6 && strncasecmp(szText, "bright", 6) == 0) {
        szText += 6;
        size -= 6;
    }
    if (size == 9 && strncasecmp(szText, "lightgray", 9) == 0)
        return COLOR_WHITE;
    for (const Colour& colour : kColours) {
        if (std::strlen(colour.text) == size && strncasecmp(colour.text, szText, size) == 0)
            return colour.number;
    }
    return -1;
}

// Reads two colours with a comma between. Two that are the same cannot be read on a screen.
void take(Role role, const char* szText, const char* szStops)
{
    const std::size_t first = std::strcspn(szText, ",");
    if (szText[first] != ',')
        return;
    const char* szSecond = szText + first + 1;
    const int nForeground = colourOf(szText, first);
    const int nBackground = colourOf(szSecond, std::strcspn(szSecond, szStops));
    if (nForeground < 0 || nBackground < 0 || nForeground == nBackground)
        return;
    colors[role] = static_cast<unsigned char>(kOthers * nForeground + nBackground -
                                              (nBackground > nForeground));
}

template <std::size_t room, std::size_t count>
int roleOf(const Word<room> (&words)[count], const char* szText, std::size_t size)
{
    for (const auto& word : words) {
        if (std::strlen(word.text) == size && std::memcmp(word.text, szText, size) == 0)
            return word.role;
    }
    return -1;
}

void readVariable(const char* at)
{
    constexpr char kBetween[] = " \t\n:;";
    for (; *at; at += std::strcspn(at, kBetween)) {
        at = skip(at, kBetween);
        const std::size_t size = std::strcspn(at, "=");
        const int nRole = roleOf(kNewtWords, at, size);
        if (nRole >= 0 && at[size])
            take(static_cast<Role>(nRole), at + size + 1, kBetween);
    }
}

void readLine(const char* szLine)
{
    constexpr char kBlanks[] = " \t";
    szLine = skip(szLine, kBlanks);
    const std::size_t size = std::strcspn(szLine, " \t=");
    const int nRole = roleOf(kFileWords, szLine, size);
    const char* szPair = szLine + std::strcspn(szLine, "(\n");
    if (nRole >= 0 && *szPair == '(')
        take(static_cast<Role>(nRole), szPair + 1, ",)");
}

// The file that is named, or the one at home, or the system's; -1 for none.
int openFile()
{
    const char* szNamed = std::getenv("DIALOGRC");
    int nFd = szNamed ? open(szNamed, O_RDONLY | O_CLOEXEC) : -1;
    if (const char* szHome = std::getenv("HOME"); nFd < 0 && szHome) {
        Buffer path;
        nFd = open(path.add(szHome).add("/.dialogrc").text(), O_RDONLY | O_CLOEXEC);
    }
    return nFd >= 0 ? nFd : open("/etc/dialogrc", O_RDONLY | O_CLOEXEC);
}

} // namespace

void readColors()
{
    if (name != kDialog) {
        if (const char* szColors = std::getenv("NEWT_COLORS"))
            readVariable(szColors);
    }
    const int nFd = name != kWhiptail ? openFile() : -1;
    if (nFd < 0)
        return;
    Buffer file;
    file.addFrom(nFd);
    close(nFd);
    for (const char* line = file.text(); line; line = std::strchr(line, '\n')) {
        line += *line == '\n';
        readLine(line);
    }
}

bool writeColors(const char* szFile)
{
    Buffer text;
    for (const auto& word : kFileWords) {
        const int nForeground = colors[word.role] / kOthers;
        const int nBackground = colors[word.role] % kOthers;
        text.add(word.text).add(" = (").add(nameOf(nForeground)).add(',');
        text.add(nameOf(nBackground + (nBackground >= nForeground))).add(",OFF)\n");
    }
    const int nFd = open(szFile, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (nFd < 0 || !text.writeTo(nFd)) {
        complain("cannot write to", szFile);
        return false;
    }
    return close(nFd) == 0;
}

} // namespace kuldialog
