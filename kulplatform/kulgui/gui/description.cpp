// SPDX-License-Identifier: MIT
//
// A description may hold pauses for slow terminals, "$<5>"; where the line can hold the terminal's
// bytes back they are not needed, and a terminal that needs them is not one of ours.
#include "description.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include <curses.h>
#include <langinfo.h>

#include "line.hpp"
#include "update.hpp"

// Last: it makes macros of common words.
#include <term.h>

namespace kul {

namespace {

Codes now;
bool asciiLines = false;

unsigned paletteAtStart = 0;

// A number that is another one, most likely, once a colour was changed.
unsigned palette()
{
    unsigned nSum = 0;
    for (short nColor = 0; can_change_color() && nColor < std::min(COLORS, 256); ++nColor) {
        short parts[3] = {};
        color_content(nColor, &parts[0], &parts[1], &parts[2]);
        for (const short part : parts)
            nSum = nSum * 31 + static_cast<unsigned>(part);
    }
    return nSum;
}

// Copies a string of the description without its pauses; false for none or one that is too long.
bool strip(const char* szString, char* out, std::size_t room)
{
    std::size_t size = 0;
    *out = '\0';
    if (!isString(szString))
        return false;
    for (const char* at = szString; *at; ++at) {
        const char* pauseEnd = std::strncmp(at, "$<", 2) == 0 ? std::strchr(at, '>') : nullptr;
        if (pauseEnd) {
            at = pauseEnd;
            continue;
        }
        if (size + 1 >= room) {
            *out = '\0';
            return false;
        }
        out[size++] = *at;
        out[size] = '\0';
    }
    return true;
}

bool is(const char* szString, const char* szForm)
{
    char plain[128];
    return strip(szString, plain, sizeof plain) && std::strcmp(plain, szForm) == 0;
}

// A column of what must be, or may be, there.
bool allAre(std::initializer_list<const char*> pairs)
{
    for (const char* const* at = pairs.begin(); at != pairs.end(); at += 2) {
        if (!is(at[0], at[1]))
            return false;
    }
    return true;
}

bool placesAndErases()
{
    return allAre({cursor_address, "\033[%i%p1%d;%p2%dH", parm_right_cursor, "\033[%p1%dC",
                   parm_left_cursor, "\033[%p1%dD", parm_down_cursor, "\033[%p1%dB", parm_up_cursor,
                   "\033[%p1%dA", carriage_return, "\r", clr_eol, "\033[K"}) &&
           strip(clear_screen, now.clear, sizeof now.clear) &&
           std::strncmp(now.clear, "\033[H\033[", 5) == 0;
}

// Terminals that are no screens, or on which attributes take up cells or must not be moved through.
bool isOdd()
{
    return hard_copy || over_strike || tilde_glitch || ceol_standout_glitch ||
           dest_tabs_magic_smso || magic_cookie_glitch >= 0 || !move_standout_mode ||
           (!xon_xoff && std::strstr(cursor_address, "$<"));
}

// The parameters of the codes in a string that switch something on: "7" of "\E[0;7m\017", where the
// last is the way back to the first alphabet. False for other codes.
bool parameters(const char* szString, char (&out)[12])
{
    char plain[64];
    std::size_t size = 0;
    *out = '\0';
    if (!strip(szString, plain, sizeof plain))
        return !isString(szString);
    for (const char* at = plain; *at;) {
        const std::size_t nOff = std::strlen(now.linesOff);
        if (nOff > 0 && std::strncmp(at, now.linesOff, nOff) == 0) {
            at += nOff;
            continue;
        }
        if (at[0] != '\033' || at[1] != '[')
            return false;
        for (at += 2; *at != 'm'; at += *at == ';') {
            const std::size_t nDigits = std::strspn(at, "0123456789");
            if (size + nDigits + 2 > sizeof out || (nDigits == 0 && *at != ';'))
                return false;
            const int nValue = std::atoi(at);
            if (nDigits > 0 && nValue != 0 && nValue != 10) {
                if (size > 0)
                    out[size++] = ';';
                std::memcpy(out + size, at, nDigits);
                size += nDigits;
                out[size] = '\0';
            }
            at += nDigits;
        }
        ++at;
    }
    return true;
}

// As the one string for all attributes has them, where there is one.
bool askAttributes()
{
    char off[24];
    if (!strip(exit_attribute_mode, off, sizeof off) ||
        (!std::strstr(off, "\033[m") && !std::strstr(off, "\033[0m") &&
         !std::strstr(off, "\033[0;10m")))
        return false;
    const char* const own[kAttributes] = {
        enter_standout_mode, enter_underline_mode, enter_reverse_mode,
        enter_blink_mode,    enter_dim_mode,       enter_bold_mode,
        enter_secure_mode,   enter_protected_mode, enter_italics_mode};
    for (int i = 0; i < kAttributes; ++i) {
        const char* szOn = own[i];
        if (isString(set_attributes) && i < kAttributes - 1)
            szOn = tiparm(set_attributes, i == 0, i == 1, i == 2, i == 3, i == 4, i == 5, i == 6,
                          i == 7, 0);
        if (!parameters(szOn, now.attributes[i]))
            return false;
    }
    return true;
}

// "31" of "\E[31m"; null for other codes.
const char* colorParameter(const char* szString, int nColor)
{
    static char parameter[16];
    char plain[sizeof parameter];
    if (!isString(szString) || !strip(tiparm(szString, nColor), plain, sizeof plain) ||
        std::strncmp(plain, "\033[", 2) != 0)
        return nullptr;
    const std::size_t size = std::strspn(plain + 2, "0123456789;");
    if (std::strcmp(plain + 2 + size, "m") != 0)
        return nullptr;
    std::memcpy(parameter, plain + 2, size);
    parameter[size] = '\0';
    return parameter;
}

bool colorIs(const char* szString, char kind, int nColor)
{
    const char wanted[] = {kind, static_cast<char>('0' + nColor), '\0'};
    const char* szParameter = colorParameter(szString, nColor);
    return szParameter && std::strcmp(szParameter, wanted) == 0;
}

bool askColors()
{
    now.hasDefaultColors = is(orig_pair, "\033[39;49m");
    now.attributesWithoutColor =
        no_color_video > 0 ? static_cast<unsigned>(no_color_video) & 0xff : 0;
    now.erasesInColor = back_color_erase;
    now.nColors = max_colors > 0 ? max_colors : 0;
    if (now.nColors == 0)
        return true;
    for (int i = 0; i < 8; ++i) {
        if (!colorIs(set_a_foreground, '3', i) || !colorIs(set_a_background, '4', i))
            return false;
    }
    const int nLast = now.nColors - 1;
    return nLast < 8 ||
           (colorParameter(set_a_foreground, nLast) && colorParameter(set_a_background, nLast));
}

// Whether curses would not use the second alphabet in a locale that has these characters itself:
// some terminals have one or the other.
bool alphabetIsLost(const char* szTerm)
{
    if (const char* szAsked = std::getenv("NCURSES_NO_UTF8_ACS"))
        return std::atoi(szAsked) != 0;
    const int nLost = tigetnum("U8");
    if (nLost >= 0)
        return nLost != 0;
    return std::strstr(szTerm, "linux") ||
           (std::strstr(szTerm, "screen") && std::getenv("TERMCAP"));
}

void askLines()
{
    std::memset(now.lineBytes, 0, sizeof now.lineBytes);
    const char* szPairs = isString(acs_chars) && *now.linesOn ? acs_chars : "";
    for (; szPairs[0] && szPairs[1]; szPairs += 2) {
        if (static_cast<unsigned char>(szPairs[0]) < kLetters)
            now.lineBytes[static_cast<unsigned char>(szPairs[0])] = szPairs[1];
    }
#if NCURSES_WIDECHAR
    const bool unicode =
        std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0 && NCURSES_WACS('q')->chars[0] >= kLetters;
    const char* szTerm = std::getenv("TERM");
    now.glyphsOnly = unicode && alphabetIsLost(szTerm ? szTerm : "");
    // One without colours may be older than its program's locale: its alphabet is sure.
    now.glyphs = now.glyphsOnly || (unicode && max_colors >= 8);
#endif
}

void ask()
{
    now = {};
    strip(enter_alt_charset_mode, now.linesOn, sizeof now.linesOn);
    if (!*now.linesOn || !strip(exit_alt_charset_mode, now.linesOff, sizeof now.linesOff))
        *now.linesOn = '\0';
    now.fontIsAttribute = std::strncmp(now.linesOn, "\033[", 2) == 0;
    now.waitsAtEdge = eat_newline_glitch || !auto_right_margin;
    now.placesColumn = is(column_address, "\033[%i%p1%dG");
    now.placesRow = is(row_address, "\033[%i%p1%dd");
    now.reversesFeed = is(scroll_reverse, "\033M");
    now.feeds = is(cursor_down, "\n");
    now.scrolls = now.feeds && now.reversesFeed && is(scroll_forward, "\n") &&
                  is(change_scroll_region, "\033[%i%p1%d;%p2%dr");
    now.backspaces = is(cursor_left, "\b");
    now.tabs = is(tab, "\t") && init_tabs == 8;
    now.erasesCells = is(erase_chars, "\033[%p1%dX");
    now.repeats = is(repeat_char, "%p1%c\033[%p2%{1}%-%db");
    askLines();
    now.known = placesAndErases() && !isOdd() && askAttributes() && askColors();
}

// Where a terminal in UTF-8 lacks the second alphabet, a curses without wide characters never goes
// there, but goes on to draw with its letters.
bool linesAreLost()
{
#if NCURSES_WIDECHAR
    return false;
#else
    const char* szTerm = std::getenv("TERM");
    return std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0 && alphabetIsLost(szTerm ? szTerm : "");
#endif
}

void settleLines()
{
    if (!asciiLines && !linesAreLost())
        return;
    for (const char* szLine :
         {"q-", "x|", "a:", "l+", "k+", "m+", "j+", "t+", "u+", "v+", "w+", "n+", "`+"})
        acs_map[static_cast<unsigned char>(szLine[0])] = static_cast<unsigned char>(szLine[1]);
}

// What curses has kept back since it began must come before what others write.
void flushCurses()
{
    if (curs_set(0) != ERR)
        return;
    clearok(newscr, FALSE);
    leaveok(newscr, TRUE);
    doupdate(); // of nothing, which leaves the cursor nowhere
    clearok(newscr, TRUE);
}

} // namespace

bool isString(const char* szString)
{
    return szString && szString != reinterpret_cast<char*>(-1);
}

const Codes& codes()
{
    return now;
}

const char* colorParameter(bool foreground, int nColor)
{
    const char* szParameter =
        colorParameter(foreground ? set_a_foreground : set_a_background, nColor);
    return szParameter ? szParameter : "";
}

SCREEN* openScreen(const char* szTerm, std::FILE* output, std::FILE* input)
{
    SCREEN* screen = newterm(szTerm, output, input);
    if (!screen)
        return nullptr;
    if (!isString(cursor_address)) {
        reset_shell_mode();
        delscreen(screen);
        return nullptr;
    }
    setOutput(output);
    ask();
    settleLines();
    start_color();  // has bytes of its own, which must not come late
    prepareBytes(); // from now on the terminal is to be given back
    flushCurses();
    beginUpdates();
    return screen;
}

void drawAsciiLines(bool ascii)
{
    asciiLines = ascii;
}

void notePalette()
{
    paletteAtStart = palette();
}

bool isPaletteKept()
{
    return palette() == paletteAtStart;
}

} // namespace kul
