// SPDX-License-Identifier: MIT
//
// What the files of the text box share: what the library keeps of a box, and what the editions
// differ in. Places in a text are counted in bytes.
#ifndef KUL_UI_TEXTBOX_HPP
#define KUL_UI_TEXTBOX_HPP

#include <span>

#include "../gui/draw.hpp"
#include "../gui/edition.hpp"
#include "component.hpp"

namespace kul {

// What the public record has no field for.
struct TextState {
    int (*onCheck)(const char* szText);
    char* szOwn;  // szText, unless the program has set another one, of which we know less
    int nRoom;    // bytes that it can hold
    int nFirst;   // place of the first letter that is shown
    int nLetters; // that the text has, if it has nCounted bytes still
    int nCounted;
    bool overwrites; // Insert was pressed
    bool refused;    // the letter that was typed last: marks on it are refused, too
};

// A text box as it is allocated.
struct TextBox : KULTEXTBOX {
    using Public = KULTEXTBOX;
    TextState state;
};

struct EditKey {
    int nKey;
    void (*edit)(KULTEXTBOX* box);
};

// What the editions differ in. In the first one a character is a byte and typed over what is there;
// in the second one it is a letter of the locale with the marks on it, and pushes the rest on.
struct TextManners {
    std::span<const EditKey> keys; // what they do; the other ones are typed
    void (*type)(KULTEXTBOX& box, int nKey);
    int (*before)(KULTEXTBOX& box); // place of the character before the cursor, which is not 0
    int (*after)(KULTEXTBOX& box);  // place behind the one at the cursor, which is not the end
    int (*moved)(KULTEXTBOX& box, int nRows); // where the cursor is so many rows below
    Spot (*spot)(KULTEXTBOX& box); // what a key can change, its rows counted from the first inside
    void (*draw)(WINDOW* win, KULTEXTBOX& box, bool focused); // what is inside
    void (*drawAlone)(WINDOW* win, KULTEXTBOX& box);          // the same, for DrawTextBox
    bool (*fits)(KULTEXTBOX& box, std::string_view text);     // as a whole text of the program's
    int (*placeOf)(std::string_view text, int nCharacter);    // from 0; -1 for one beyond the end
    int nMost;                                                // characters in the largest box
    int nRoom;                                                // bytes for a character
    bool behind;   // the cursor goes behind a text of the program's
    attr_t extent; // of a box without focus, on a terminal without colours
};

const TextManners& byteManners();
const TextManners& letterManners();

inline const TextManners& textManners()
{
    return isEdition2() ? letterManners() : byteManners();
}

// Whether the user may go on from a component: what the check of a text box says, asked now; true
// for all others. The check is the program's and may change everything.
bool textboxAccepts(int nChain, int nRef);

// Columns or rows of a box without its border.
inline int innerSize(int nSize, int nBorder)
{
    return shifted(nSize, nBorder == BORDER ? -2 : 0);
}

inline bool isMasked(const KULTEXTBOX& box)
{
    return box.nMask != NOMASK && box.nMask != KUL_KEEP;
}

// The text of a box; empty for one that has none.
inline std::string_view textOf(const KULTEXTBOX& box)
{
    const std::size_t size = static_cast<std::size_t>(std::max(box.nLength, 0));
    return box.szText ? std::string_view(box.szText, strnlen(box.szText, size))
                      : std::string_view();
}

// Whether the cursor can move. Brings one that the program moved back into the text.
bool hasCursor(KULTEXTBOX* box);

// The rows from the cursor's on to that of the text's end.
Spot spotOf(TextBox& box);

// Null for a record of the program's own.
inline TextState* stateOf(KULTEXTBOX& box)
{
    auto* inner = innerOf<TextBox>(&box);
    return inner ? &inner->state : nullptr;
}

// Bytes that the text of a box can have.
inline int roomOf(KULTEXTBOX& box)
{
    const TextState* state = stateOf(box);
    return state && state->szOwn == box.szText ? state->nRoom : std::max(box.nMaxLength, 0);
}

// Frees the text of a box, which may be a password: it is cleared first.
void dropTextbox(KULTEXTBOX& box);

// Puts bytes in the place of the text from one place to another, for which there is room, and the
// cursor behind them. What is over is cleared.
void replaceText(KULTEXTBOX& box, int nFrom, int nTo, std::string_view bytes);

} // namespace kul

#endif
