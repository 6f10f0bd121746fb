// SPDX-License-Identifier: MIT
//
// Curses decodes what it is given byte by byte, and keeps the start of a character until the rest
// of it comes: half a character would change what is printed next at that place. So it gets whole
// characters or cells only.
#include "print.hpp"

#include <cwchar>

#include "edition.hpp"
#include "text.hpp"

namespace {

// Columns of a byte that is spelled out, at most. At the right edge they go on in the next row.
constexpr long long kMostSpelled = 4;

// Number of plain characters at the front; without the last one if a mark may stand on it.
std::size_t plainCount(std::string_view text)
{
    const char* first = text.data();
    const char* end = first + text.size();
    const char* behind = kul::plainEnd(first, end);
    if (behind != first && behind != end && !kul::isAscii(*behind))
        --behind;
    return static_cast<std::size_t>(behind - first);
}

// What curses shows in the C locale for a byte that is no plain character.
const char* inCLocale(char character)
{
    const auto byte = static_cast<unsigned char>(character);
    return byte < 0xA0 || NCURSES_WIDECHAR == 0 ? unctrl(byte) : " ";
}

// Spells out a byte as curses does, and says how many columns that takes. What would lead out of
// the row leaves a column as it is.
int spell(WINDOW* win, int nY, int nX, int nEnd, char character)
{
    if (character == '\n' || character == '\r' || character == '\b')
        return 1;
    const long long room = static_cast<long long>(nEnd) - nX;
    if (character == '\t') {
        kul::drawAcrossColumns(win);
        const int nBlanks = TABSIZE - std::max(nX, 0) % TABSIZE;
        kul::hRun(win, nY, nX, std::min<long long>(nBlanks, room), ' ');
        return nBlanks;
    }
    kul::drawAcrossColumns(win);
    const std::string_view shown(inCLocale(character));
    const std::size_t nShown = std::min(shown.size(), static_cast<std::size_t>(room));
    kul::plainRun(win, nY, nX, {shown.data(), nShown});
    return static_cast<int>(shown.size());
}

// Bytes that curses is to get at once: those of a printable character, or one that it shows in its
// own way. 0 for a byte that begins nothing, but that curses would keep.
std::size_t characterBytes(std::string_view rest)
{
#if NCURSES_WIDECHAR
    if (kul::isAscii(rest.front()))
        return 1;
    wchar_t character = 0;
    std::mbstate_t state{};
    const std::size_t nBytes = std::mbrtowc(&character, rest.data(), rest.size(), &state);
    if (nBytes > 0 && nBytes <= rest.size() && wcwidth(character) >= 0)
        return nBytes;
    constexpr auto kIncomplete = static_cast<std::size_t>(-2);
    state = {};
    return std::mbrtowc(&character, rest.data(), 1, &state) == kIncomplete ? 0 : 1;
#else
    return rest.empty() ? 0 : 1;
#endif
}

// Prints from the window's cursor on, as far as there is room in the window or in its row.
void printCharacters(WINDOW* win, std::string_view text, bool onRow)
{
    const int nY = getcury(win);
    for (std::string_view rest = text; !rest.empty() && !(onRow && getcury(win) != nY);) {
        const std::size_t nBytes = characterBytes(rest);
        const int nResult = nBytes > 0 ? waddnstr(win, rest.data(), static_cast<int>(nBytes))
                                       : waddstr(win, inCLocale(rest.front()));
        if (nResult == ERR)
            return;
        rest.remove_prefix(std::max<std::size_t>(nBytes, 1));
    }
}

// Draws each byte at a column of its own. One that curses would keep shows nothing.
void drawBytes(WINDOW* win, int nY, int nX, std::string_view text)
{
    const char* cells = text.data();
    const long long last =
        std::min(static_cast<long long>(text.size()), getmaxx(win) - static_cast<long long>(nX));
    for (long long first = std::max(0LL, -static_cast<long long>(nX)); first < last;) {
        const std::string_view rest(cells + first, text.size() - static_cast<std::size_t>(first));
        const int nAt = static_cast<int>(nX + first);
        const std::string_view run(cells + first, static_cast<std::size_t>(last - first));
        if (kul::isPlain(run.front())) {
            const char* behind = kul::plainEnd(run.data(), run.data() + run.size());
            const auto nRun = static_cast<std::size_t>(behind - run.data());
            kul::plainRun(win, nY, nAt, {run.data(), nRun});
            first += static_cast<long long>(nRun);
            continue;
        }
        if (nAt > getmaxx(win) - kMostSpelled)
            kul::drawAcrossRows(win);
        else
            kul::drawAcrossColumns(win);
        if (characterBytes(rest) == 1 && kul::isDrawn(win, nY))
            mvwaddnstr(win, nY, nAt, rest.data(), 1);
        ++first;
    }
}

// What all letters of a print have in common.
struct Row {
    WINDOW* win;
    int nY;
    int nEnd;
    int nWidth;
    kul::ShownControls controls;
    bool bytes; // texts are bytes
};

// Prints the plain characters at the front of a text, or one letter, and takes them off it. Returns
// their columns.
long long printFront(const Row& row, int nX, std::string_view& text)
{
    const std::string_view rest = text;
    if (const std::size_t nPlain = plainCount(rest)) {
        const auto room = static_cast<std::size_t>(static_cast<long long>(row.nEnd) - nX);
        kul::plainRun(row.win, row.nY, nX, {rest.data(), std::min(nPlain, room)});
        text.remove_prefix(nPlain);
        return static_cast<long long>(nPlain);
    }
    const kul::Letter letter = kul::nextLetter(rest, row.nWidth);
    text.remove_prefix(letter.nBytes);
    const char first = rest.front();
    const bool isSpelled = kul::isAscii(first) ? !kul::isPlain(first) : row.bytes;
    if (isSpelled && row.controls != kul::ShownControls::Skipped) {
        const int nSpelled = spell(row.win, row.nY, nX, row.nEnd, first);
        return row.controls == kul::ShownControls::Whole ? nSpelled : 1;
    }
    const bool isBlank = isSpelled && kul::isAscii(first);
    if (!isBlank && kul::shifted(nX, letter.nColumns) <= row.nEnd)
        kul::drawLetter(row.win, row.nY, nX, letter);
    return letter.nColumns;
}

// Prints a text that is not plain, or not whole.
void printOther(WINDOW* win, int nY, int nX, std::string_view text, bool onRow)
{
    if (kul::isEdition2()) {
        kul::printLetters(win, nY, nX, INT_MAX, text, kul::ShownControls::Whole);
        return;
    }
    kul::drawAcrossColumns(win);
    if (!onRow ||
        kul::shifted(nX, kMostSpelled * static_cast<long long>(text.size())) > getmaxx(win))
        kul::drawAcrossRows(win);
    else if (!kul::isDrawn(win, nY))
        return;
    if (wmove(win, nY, nX) != ERR)
        printCharacters(win, text, onRow);
}

} // namespace

namespace kul {

void drawText(WINDOW* win, int nY, int nX, std::string_view text, int nWidth)
{
    if (allPlain(text))
        plainRun(win, nY, nX, text);
    else if (isEdition2())
        printLetters(win, nY, nX, INT_MAX, text, ShownControls::InOneColumn, nWidth);
    else
        drawBytes(win, nY, nX, text);
}

void print(WINDOW* win, int nY, int nX, const char* szText)
{
    const std::string_view text(szText);
    const long long room = getmaxx(win) - static_cast<long long>(nX);
    if (nX >= 0 && static_cast<long long>(text.size()) <= room && allPlain(text))
        plainRun(win, nY, nX, text);
    else
        printOther(win, nY, nX, text, false);
}

void printOnRow(WINDOW* win, int nY, int nX, const char* szText)
{
    const std::string_view text(szText);
    if (nX >= 0 && allPlain(text))
        plainRun(win, nY, nX, text);
    else
        printOther(win, nY, nX, text, true);
}

void printLetters(WINDOW* win, int nY, int nX, int nEnd, std::string_view text,
                  ShownControls controls, int nWidth)
{
    nEnd = std::min(nEnd, getmaxx(win));
    const Row row = {win, nY, nEnd, nWidth, controls, !countsColumns()};
    while (!text.empty() && nX < nEnd)
        nX = shifted(nX, printFront(row, nX, text));
}

} // namespace kul
