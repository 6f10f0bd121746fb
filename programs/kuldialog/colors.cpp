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

// Words of NEWT_COLORS and of the file, and what each one colours.
constexpr char kNewtWords[] =
    "root\0roottext\0window\0textbox\0actlistbox\0actsellistbox\0actbutton\0"
    "actcheckbox\0button\0compactbutton\0entry\0";
constexpr Role kNewtRoles[] = {kDesktop, kDesktop, kWindowColor, kWindowColor, kFocus,      kFocus,
                               kFocus,   kFocus,   kButtons,     kButtons,     kFieldsColor};
constexpr char kFileWords[] = "screen_color\0dialog_color\0button_active_color\0"
                              "item_selected_color\0button_inactive_color\0inputbox_color\0"
                              "form_text_color\0";
constexpr Role kFileRoles[] = {kDesktop, kWindowColor, kFocus,      kFocus,
                               kButtons, kFieldsColor, kFieldsColor};

// In the order of their numbers, then other names.
constexpr char kColours[] = "black\0red\0green\0yellow\0blue\0magenta\0cyan\0white\0"
                            "gray\0brown\0lightgray\0";
constexpr unsigned char kNumbers[] = {COLOR_BLACK, COLOR_RED,     COLOR_GREEN, COLOR_YELLOW,
                                      COLOR_BLUE,  COLOR_MAGENTA, COLOR_CYAN,  COLOR_WHITE,
                                      COLOR_BLACK, COLOR_YELLOW,  COLOR_WHITE};

constexpr int kOthers = 7; // colours of the background beside each foreground

// The place of a word of that size in a row of texts, -1 for none.
int placeOf(const char* szTexts, const char* szWord, std::size_t size)
{
    for (int i = 0; *szTexts; ++i, szTexts = textAt(szTexts, 1)) {
        if (std::strlen(szTexts) == size && strncasecmp(szTexts, szWord, size) == 0)
            return i;
    }
    return -1;
}

// The colour that a text of that size names; bright and light ones are the same. -1 for none.
int colourOf(const char* szText, std::size_t size)
{
    if (size > 6 && strncasecmp(szText, "bright", 6) == 0) {
        szText += 6;
        size -= 6;
    }
    const int nPlace = placeOf(kColours, szText, size);
    return nPlace < 0 ? nPlace : kNumbers[nPlace];
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

void readVariable(const char* at)
{
    constexpr char kBetween[] = " \t\n:;";
    for (; *at; at += std::strcspn(at, kBetween)) {
        at = skip(at, kBetween);
        const std::size_t size = std::strcspn(at, "=");
        const int nWord = placeOf(kNewtWords, at, size);
        if (nWord >= 0 && at[size])
            take(kNewtRoles[nWord], at + size + 1, kBetween);
    }
}

void readLine(const char* szLine)
{
    constexpr char kBlanks[] = " \t";
    szLine = skip(szLine, kBlanks);
    const std::size_t size = std::strcspn(szLine, " \t=");
    const int nWord = placeOf(kFileWords, szLine, size);
    const char* szPair = szLine + std::strcspn(szLine, "(\n");
    if (nWord >= 0 && *szPair == '(')
        take(kFileRoles[nWord], szPair + 1, ",)");
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
    const char* szWord = kFileWords;
    for (const Role role : kFileRoles) {
        const int nForeground = colors[role] / kOthers;
        const int nBackground = colors[role] % kOthers;
        text.add(szWord).add(" = (").add(textAt(kColours, nForeground)).add(',');
        text.add(textAt(kColours, nBackground + (nBackground >= nForeground))).add(",OFF)\n");
        szWord = textAt(szWord, 1);
    }
    const int nFd = open(szFile, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
    if (nFd < 0 || !text.writeTo(nFd)) {
        complain("cannot write to", szFile);
        return false;
    }
    return close(nFd) == 0;
}

} // namespace kuldialog
