// SPDX-License-Identifier: MIT
//
// The grammar of a terminal's keys. A key is a byte, a character of the locale, or a sequence:
//
//     ESC [ numbers letter     control sequences: most keys, and most reports
//     ESC O numbers letter     the keypad's and some function keys
//     ESC ] P ^ _ X text ST    strings, never a key
//     ESC anything else        that key with Alt
//
// All begin as somebody's Escape or Alt may, so the first two bytes have to come together; a
// sequence beyond them is one, however slowly it comes. Each function here looks at the front of
// the bytes that have come and says how many of them it knows, and what they mean.
#include "sequences.hpp"

#include <cstring>
#include <cwchar>
#include <iterator>

#include <langinfo.h>

namespace {

using kul::at;
using kul::isBetween;
using kul::isUtf8;

constexpr unsigned char kEscape = 27;
constexpr unsigned char kBell = 7;

using Found = kul::FoundKey;

std::string_view behind(std::string_view bytes, std::size_t nBytes)
{
    bytes.remove_prefix(nBytes);
    return bytes;
}

bool isLetterOrDigit(unsigned char byte)
{
    return isBetween(byte, '0', '9') || isBetween(byte, 'A', 'Z') || isBetween(byte, 'a', 'z');
}

// ---- Keys by what ends them -----------------------------------------------------------------

// By the number in front of "~".
constexpr short kNumbered[] = {
    0,     KS_HOME, KS_INSERT, KS_DELETE, KS_END, KS_PAGEUP, KS_PAGEDOWN, KS_HOME, KS_END,
    0,     0,       KS_F1,     KS_F2,     KS_F3,  KS_F4,     KS_F5,       0,       KS_F6,
    KS_F7, KS_F8,   KS_F9,     KS_F10,    0,      KS_F11,    KS_F12,
};
constexpr int kBeforePaste = 200;
constexpr int kBehindPaste = 201;
constexpr int kMostNumber = 1000;

// By the letter, from 'A' on.
constexpr short kLettered[] = {
    KS_UP, KS_DOWN, KS_RIGHT, KS_LEFT, 0,     KS_END, 0, KS_HOME, 0, 0, 0, 0, 0,
    0,     0,       KS_F1,    KS_F2,   KS_F3, KS_F4,  0, 0,       0, 0, 0, 0, KS_BACKTAB,
};

int numbered(int nNumber)
{
    if (nNumber == kBeforePaste)
        return kul::kPasteBegins;
    if (nNumber == kBehindPaste)
        return kul::kPasteEnds;
    return nNumber < static_cast<int>(std::size(kNumbered)) ? kNumbered[nNumber] : 0;
}

int lettered(unsigned char letter)
{
    return isBetween(letter, 'A', 'Z') ? kLettered[letter - 'A'] : 0;
}

// A control sequence without its beginning, of numbers and what ends it. Modifiers are the second
// number, or another ending; they are taken off.
int controlKey(std::string_view numbers, unsigned char end)
{
    int nNumber = 0;
    bool first = true;
    for (const char digit : numbers) {
        if (digit != ';' && !isBetween(static_cast<unsigned char>(digit), '0', '9'))
            return 0; // a report has other marks as well
        first = first && digit != ';';
        if (first && nNumber < kMostNumber)
            nNumber = 10 * nNumber + (digit - '0');
    }
    if (end == '~' || end == '^' || end == '$' || end == '@')
        return numbered(nNumber);
    if (numbers.empty() && isBetween(end, 'a', 'd'))
        return lettered(static_cast<unsigned char>(end - 'a' + 'A')); // with Shift
    // A place of the cursor that was asked for looks like F3 with modifiers.
    return end == 'R' ? 0 : lettered(end);
}

// The same for the keypad: with Control the arrows are small letters, and the other keys are the
// characters on them, moved by 64.
int keypadKey(unsigned char end)
{
    if (isBetween(end, 'a', 'd'))
        return lettered(static_cast<unsigned char>(end - 'a' + 'A'));
    if (end == 'X')
        return '=';
    if (isBetween(end, 'j', 'y') || end == 'M' || end == 'I')
        return end - '@';
    return end == 'Z' ? 0 : lettered(end);
}

// ---- Sequences ------------------------------------------------------------------------------

// What began like a sequence and is none: Alt and a key, or one byte of eight bits.
Found alone(std::string_view bytes, std::size_t nBegin)
{
    if (nBegin < 2)
        return {nBegin, 0};
    const unsigned char key = at(bytes, 1);
    return {nBegin, isLetterOrDigit(key) ? KS_ALT + key : key};
}

// A report of the mouse has three characters behind it, which are bytes or may be of two.
Found mouse(std::string_view bytes, std::size_t nBegin, bool late)
{
    std::size_t place = nBegin;
    const bool wide = isUtf8();
    for (int i = 0; i < 3; ++i, ++place) {
        const bool two = wide && place < bytes.size() && isBetween(at(bytes, place), 0xC2, 0xDF);
        if (place + (two ? 1 : 0) >= bytes.size())
            return {late ? bytes.size() : 0, 0};
        place += two && isBetween(at(bytes, place + 1), 0x80, 0xBF) ? 1 : 0;
    }
    return {place, 0};
}

// How far a control sequence goes up to its end. A single number may end in "$", which else stands
// before the end.
std::size_t numbersEnd(std::string_view bytes, std::size_t nBegin)
{
    std::size_t end = nBegin;
    bool single = true;
    for (; end < bytes.size() && isBetween(at(bytes, end), '0', '?'); ++end)
        single = single && at(bytes, end) <= '9';
    if (single && end > nBegin && end < bytes.size() && at(bytes, end) == '$')
        return end;
    while (end < bytes.size() && isBetween(at(bytes, end), ' ', '?'))
        ++end;
    return end;
}

// More numbers than any key has.
constexpr std::size_t kLongest = 48;

// A control sequence behind nBegin bytes.
Found control(std::string_view bytes, std::size_t nBegin, bool late)
{
    const std::size_t nEnd = numbersEnd(bytes, nBegin);
    if (nEnd > kLongest)
        return {nEnd, kul::kControlGoesOn};
    if (nEnd == bytes.size())
        return late ? nEnd == nBegin ? alone(bytes, nBegin) : Found{nEnd, 0} : Found{0, 0};
    const unsigned char end = at(bytes, nEnd);
    const bool whole = end == '$' || isBetween(end, '@', '~');
    if (!whole) // broken off: what follows counts by itself
        return nEnd == nBegin ? alone(bytes, nBegin) : Found{nEnd, 0};
    if (nEnd == nBegin && end == 'M')
        return mouse(bytes, nEnd + 1, late);
    if (nEnd > nBegin || end != '[')
        return {nEnd + 1, controlKey({bytes.data() + nBegin, nEnd - nBegin}, end)};
    // The console's first function keys have two brackets.
    if (nEnd + 1 == bytes.size())
        return {late ? bytes.size() : 0, 0};
    const unsigned char letter = at(bytes, nEnd + 1);
    if (letter < ' ')
        return {nEnd + 1, 0};
    return {nEnd + 2, isBetween(letter, 'A', 'E') ? KS_F1 + (letter - 'A') : 0};
}

// A key of the keypad behind nBegin bytes.
Found keypad(std::string_view bytes, std::size_t nBegin, bool late)
{
    std::size_t end = nBegin;
    while (end < bytes.size() && (isBetween(at(bytes, end), '0', '9') || at(bytes, end) == ';'))
        ++end;
    if (end > kLongest)
        return {end, kul::kControlGoesOn};
    if (end == bytes.size() && !late)
        return {0, 0};
    const bool whole = end < bytes.size() && isBetween(at(bytes, end), ' ', '~');
    if (whole)
        return {end + 1, keypadKey(at(bytes, end))};
    return end == nBegin ? alone(bytes, nBegin) : Found{end, 0};
}

// The beginning of a string behind nBegin bytes. Its first byte is no control character, unless it
// ends the string at once.
Found text(std::string_view bytes, std::size_t nBegin, bool late)
{
    if (bytes.size() == nBegin)
        return late ? alone(bytes, nBegin) : Found{0, 0};
    const unsigned char first = at(bytes, nBegin);
    const bool begins = first >= ' ' || first == kBell || first == kEscape;
    return begins ? Found{nBegin, kul::kTextBegins} : alone(bytes, nBegin);
}

// What one byte of eight bits begins where the locale has no character that begins so.
Found eightBits(std::string_view bytes, bool late)
{
    switch (at(bytes, 0)) {
    case 0x9B:
        return control(bytes, 1, late);
    case 0x8F:
        return keypad(bytes, 1, late);
    case 0x90:
    case 0x98:
    case 0x9D:
    case 0x9E:
    case 0x9F:
        return text(bytes, 1, late);
    default:
        return {1, 0};
    }
}

Found character(std::string_view bytes, bool late)
{
    wchar_t character = 0;
    std::mbstate_t state{};
    const std::size_t nBytes = std::mbrtowc(&character, bytes.data(), bytes.size(), &state);
    if (nBytes == static_cast<std::size_t>(-2))
        return {late ? bytes.size() : 0, 0};
    const bool valid = nBytes > 0 && nBytes <= bytes.size();
    if (at(bytes, 0) < 0xA0 && !(valid && nBytes > 1) && !isUtf8())
        return eightBits(bytes, late);
    if (!valid)
        return {1, 0};
    // The locale may have numbers that are beyond all characters.
    return {nBytes, character >= 0xA0 && character <= 0x10FFFF
                        ? KUL_CHARACTER + static_cast<int>(character)
                        : 0};
}

Found escape(std::string_view bytes, bool late);

// What stands in front, by the families that terminals have in common.
Found common(std::string_view bytes, bool late)
{
    const unsigned char first = at(bytes, 0);
    if (first == kEscape)
        return escape(bytes, late);
    if (first >= 0x80)
        return character(bytes, late);
    const int nKey = first == '\b' ? KS_BACKSPACE : first == '\n' ? KS_ENTER : int{first};
    return {1, nKey};
}

// Two Escapes are Alt and a sequence, or both were pressed.
Found escape(std::string_view bytes, bool late)
{
    if (bytes.size() == 1)
        return {late ? 1U : 0U, KS_ESC};
    switch (at(bytes, 1)) {
    case '[':
        return control(bytes, 2, late);
    case 'O':
        return keypad(bytes, 2, late);
    case 'P':
    case 'X':
    case ']':
    case '^':
    case '_':
        return text(bytes, 2, late);
    case kEscape:
        if (bytes.size() == 2 && !late)
            return {0, 0};
        if (bytes.size() == 2 || (at(bytes, 2) != '[' && at(bytes, 2) != 'O'))
            return {1, KS_ESC};
        break;
    default:
        if (isLetterOrDigit(at(bytes, 1)))
            return alone(bytes, 2);
    }
    const Found key = common(behind(bytes, 1), late);
    return {key.nBytes > 0 ? key.nBytes + 1 : 0, key.nKey};
}

} // namespace

namespace kul {

bool isUtf8()
{
    return std::strcmp(nl_langinfo(CODESET), "UTF-8") == 0;
}

FoundKey commonKey(std::string_view bytes, bool late)
{
    return common(bytes, late);
}

} // namespace kul
