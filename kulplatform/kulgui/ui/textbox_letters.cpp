// SPDX-License-Identifier: MIT
//
// The text box of edition 2: a character is a letter of the locale, with the marks on it, and
// pushes the rest of the text on. The terminal's own cursor stands where the next one goes.
#include <climits>
#include <cwchar>

#include "../clamp.hpp"
#include "../gui/screen.hpp"
#include "textbox.hpp"
#include "textbox_rows.hpp"

namespace {

// Letters in a box, however large, and bytes for each: four at the most, and marks on it.
constexpr int kMost = 65535;
constexpr int kRoom = 8;

// Where the text that is shown begins, as far as that is known and not behind a place.
int shownFrom(KULTEXTBOX& box, int nPlace)
{
    const kul::TextState* state = kul::stateOf(box);
    return state && state->nFirst < nPlace ? state->nFirst : 0;
}

// Typing.

// A character as a key gives it, and its bytes in the locale; none for a key that is no character.
struct Typed {
    wchar_t character;
    int nBytes;
    char bytes[MB_LEN_MAX];

    std::string_view text() const { return {bytes, static_cast<std::size_t>(nBytes)}; }
};

Typed typedBy(int nKey)
{
    Typed typed{};
    if (nKey >= ' ' && nKey < KS_BACKSPACE) {
        typed.character = nKey;
        typed.bytes[0] = static_cast<char>(nKey);
        typed.nBytes = 1;
    } else if (nKey > KUL_CHARACTER) {
        typed.character = nKey - KUL_CHARACTER;
        std::mbstate_t state{};
        const std::size_t size = std::wcrtomb(typed.bytes, typed.character, &state);
        typed.nBytes = size <= sizeof typed.bytes ? static_cast<int>(size) : 0;
    }
    return typed;
}

// Whether a character goes with the letter before it: it is none of its own behind one.
bool isMark(const Typed& typed)
{
    char bytes[1 + MB_LEN_MAX] = {'o'};
    std::memcpy(bytes + 1, typed.bytes, sizeof typed.bytes);
    const std::string_view both(bytes, static_cast<std::size_t>(1 + typed.nBytes));
    return kul::nextLetter(both).nBytes == both.size();
}

bool isIn(wchar_t character, const char* szCharSet)
{
    std::mbstate_t state{};
    wchar_t one = 0;
    for (std::size_t left = std::strlen(szCharSet), size = 0; left > 0; left -= size) {
        size = std::mbrtowc(&one, szCharSet, left, &state);
        if (size == 0 || size > left)
            return false;
        if (one == character)
            return true;
        szCharSet += size;
    }
    return false;
}

bool isAllowed(const KULTEXTBOX& box, const Typed& typed, bool mark)
{
    if (typed.nBytes == 0)
        return false;
    if (box.szCharSet)
        return isIn(typed.character, box.szCharSet);
    return mark || kul::nextLetter(typed.text()).shown[0] == typed.character;
}

void noteCount(KULTEXTBOX& box, int nLetters)
{
    if (kul::TextState* state = kul::stateOf(box)) {
        state->nLetters = nLetters;
        state->nCounted = box.nLength;
    }
}

// How many letters the text has. Of one that only type() has changed since this is known, so that a
// long paste takes no time for what is there already, nor for what finds no room.
int count(KULTEXTBOX& box)
{
    const kul::TextState* state = kul::stateOf(box);
    if (state && state->nLetters >= 0 && state->nCounted == box.nLength)
        return state->nLetters;
    const int nLetters = kul::lettersOf(kul::textOf(box));
    noteCount(box, nLetters);
    return nLetters;
}

int before(KULTEXTBOX& box)
{
    return kul::TextRows(box).before(box.nCursorPos, shownFrom(box, box.nCursorPos));
}

int after(KULTEXTBOX& box)
{
    return kul::TextRows(box).after(box.nCursorPos);
}

// Types a character, if it is allowed and there is room. False if not.
bool enter(KULTEXTBOX& box, const Typed& typed, bool mark, bool overwrites)
{
    const bool over = overwrites && !mark && box.nCursorPos < box.nLength;
    const int nEnd = over ? after(box) : box.nCursorPos;
    const int nNew = mark || over ? 0 : 1;
    const long long size = box.nLength - (nEnd - box.nCursorPos) + typed.nBytes;
    // No text has more letters than bytes, so most need not be counted.
    const int nLetters = box.nLength < box.nMaxLength ? -1 : count(box) + nNew;
    if (!isAllowed(box, typed, mark) || size > kul::roomOf(box) || nLetters > box.nMaxLength)
        return false;
    kul::replaceText(box, box.nCursorPos, nEnd, typed.text());
    noteCount(box, nLetters);
    return true;
}

// A mark goes with the letter before it, and is refused with it.
void type(KULTEXTBOX& box, int nKey)
{
    const Typed typed = typedBy(nKey);
    kul::TextState* state = kul::stateOf(box);
    if (typed.character > 127 && isMark(typed)) {
        if (box.nCursorPos > 0 && !(state && state->refused))
            enter(box, typed, true, false);
    } else {
        const bool entered = enter(box, typed, false, state && state->overwrites);
        if (state)
            state->refused = !entered;
    }
}

// Keys.

void toggleInsert(KULTEXTBOX* box)
{
    if (kul::TextState* state = kul::stateOf(*box))
        state->overwrites = !state->overwrites;
}

void remove(KULTEXTBOX* box, int nFrom, int nTo)
{
    if (box->szText)
        kul::replaceText(*box, nFrom, nTo, {});
}

void removeToEnd(KULTEXTBOX* box)
{
    remove(box, box->nCursorPos, box->nLength);
}

void removeToStart(KULTEXTBOX* box)
{
    remove(box, 0, box->nCursorPos);
}

// The word before the cursor and the blanks behind it. A blank is no part of another character in
// any locale.
void removeWord(KULTEXTBOX* box)
{
    int nFrom = box->szText ? box->nCursorPos : 0;
    for (const bool blanks : {true, false}) {
        while (nFrom > 0 && (box->szText[nFrom - 1] == ' ') == blanks)
            --nFrom;
    }
    remove(box, nFrom, box->nCursorPos);
}

void movePages(KULTEXTBOX* box, int nPages)
{
    box->nCursorPos = kul::textManners().moved(*box, nPages * kul::TextRows(*box).height());
}

constexpr kul::EditKey kKeys[] = {
    {KS_BACKSPACE, TextBoxBackspace},
    {KS_DELETE, TextBoxDelete},
    {KS_HOME, TextBoxGoHome},
    {KS_END, TextBoxGoEnd},
    {KS_LEFT, TextBoxGoLeft},
    {KS_UP, TextBoxGoUp},
    {KS_DOWN, TextBoxGoDown},
    {KS_RIGHT, TextBoxGoRight},
    {KS_INSERT, toggleInsert},
    {KS_PAGEUP, [](KULTEXTBOX* box) { movePages(box, -1); }},
    {KS_PAGEDOWN, [](KULTEXTBOX* box) { movePages(box, 1); }},
    {'A' - '@', TextBoxGoHome}, // and those of a shell
    {'E' - '@', TextBoxGoEnd},
    {'K' - '@', removeToEnd},
    {'U' - '@', removeToStart},
    {'W' - '@', removeWord},
};

int moved(KULTEXTBOX& box, int nRows)
{
    const kul::TextRows rows(box);
    const int nFirst = std::min(shownFrom(box, box.nCursorPos), rows.length());
    return rows.height() > 1 ? rows.moved(box.nCursorPos, nRows, nFirst) : box.nCursorPos;
}

// Drawing.

// A row in runs of plain characters; what is none goes letter by letter. Control characters are
// blank, as the box is already.
void drawRow(WINDOW* win, int nY, int nX, const kul::TextRows& rows, int nFrom, int nEnd)
{
    while (nFrom < nEnd) {
        if (const std::string_view plain = rows.plain(nFrom, nEnd); !plain.empty()) {
            kul::plainRun(win, nY, nX, plain);
            nX = kul::shifted(nX, static_cast<long long>(plain.size()));
            nFrom += static_cast<int>(plain.size());
            continue;
        }
        const kul::Letter letter = rows.at(nFrom);
        if (letter.shown[0] >= L' ' && letter.shown[0] != KS_BACKSPACE)
            kul::drawLetter(win, nY, nX, letter);
        nX = kul::shifted(nX, letter.nColumns);
        nFrom += static_cast<int>(letter.nBytes);
    }
}

// Draws the text with the cursor in view, which was from nFirst on before; where it is now. Tells
// where the cursor stands, if it is seen.
int drawRows(WINDOW* win, const KULTEXTBOX& box, int nFirst, bool cursor)
{
    const kul::TextRows rows(box);
    const int nCursor = kul::clamp(box.nCursorPos, 0, rows.length());
    const int nEdge = box.nBorder == BORDER ? 1 : 0;
    const int nX = kul::shifted(box.nX, nEdge);
    const int nTop = kul::shifted(box.nY, nEdge);
    nFirst = rows.follow(nFirst, nCursor);
    for (int i = 0, nFrom = nFirst; i < rows.height() && nFrom < rows.length(); ++i) {
        const int nY = kul::shifted(nTop, i);
        const int nEnd = rows.rowEnd(nFrom);
        if (nY >= getmaxy(win))
            break;
        if (!kul::isDrawn(win, nY)) {
            nFrom = nEnd;
            continue;
        }
        if (kul::isMasked(box))
            kul::hRun(win, nY, nX, rows.columns(nFrom, nEnd, INT_MAX), '*');
        else
            drawRow(win, nY, nX, rows, nFrom, nEnd);
        nFrom = nEnd;
    }
    const auto cell = rows.cellOf(nCursor, nFirst);
    if (cursor)
        kul::showCursorAt(win, kul::shifted(nTop, cell.nRow), kul::shifted(nX, cell.nColumn));
    return nFirst;
}

kul::Spot spot(KULTEXTBOX& box)
{
    const kul::TextRows rows(box);
    const kul::TextState* state = kul::stateOf(box);
    const int nCursor = kul::clamp(box.nCursorPos, 0, rows.length());
    const int nFirst = rows.follow(state ? state->nFirst : 0, nCursor);
    return {rows.reachable(nCursor, nFirst), nFirst};
}

void draw(WINDOW* win, KULTEXTBOX& box, bool focused)
{
    kul::TextState* state = kul::stateOf(box);
    const int nFirst = drawRows(win, box, state ? state->nFirst : 0, focused);
    if (state)
        state->nFirst = nFirst;
}

void drawAlone(WINDOW* win, KULTEXTBOX& box)
{
    const bool hasInside =
        kul::innerSize(box.nWidth, box.nBorder) > 0 && kul::innerSize(box.nHeight, box.nBorder) > 0;
    if (hasInside)
        drawRows(win, box, 0, box.nCursor == SHOWCURSOR);
}

bool fits(KULTEXTBOX& box, std::string_view text)
{
    return static_cast<long long>(text.size()) <= kul::roomOf(box) &&
           kul::lettersOf(text) <= box.nMaxLength;
}

constexpr kul::TextManners kManners = {.keys = kKeys,
                                       .type = type,
                                       .before = before,
                                       .after = after,
                                       .moved = moved,
                                       .spot = spot,
                                       .draw = draw,
                                       .drawAlone = drawAlone,
                                       .fits = fits,
                                       .placeOf = kul::placeOfLetter,
                                       .nMost = kMost,
                                       .nRoom = kRoom,
                                       .behind = true,
                                       .extent = A_UNDERLINE};

} // namespace

const kul::TextManners& kul::letterManners()
{
    return kManners;
}
