// SPDX-License-Identifier: MIT
//
// Bytes from the keyboard to key codes, as the rooms beside and the tests need them.
#ifndef KUL_GUI_KEYS_HPP
#define KUL_GUI_KEYS_HPP

#include <string_view>

namespace kul {

// Follows an escape sequence byte by byte, to know when it is over.
class SequenceReader {
public:
    void feed(unsigned char byte);

    // No byte yet, or inside a sequence: more has to come.
    bool isOpen() const { return state_ != State::Done; }

private:
    enum class State { Start, Escape, Control, Shift, OneMore, Text, TextEscape, Done };
    State state_ = State::Start;
};

// The key code of the bytes that came together; 0 for none.
int decodeKey(std::string_view bytes);

// Reads a key, waiting for it so long and for its rest a little longer; 0 for none. kTyped where it
// is known to be there.
constexpr int kTyped = -1;
int readKey(int nMilliseconds);

// Edition 1: what was typed while something else ran (after a key, or in a callback that is told
// here) is not meant for the next wait, which forgets it.
void makeTypedAheadStale();
void forgetTypedAhead();

// Edition 2: the next key of what was read already, 0 for none; whether there may be one; and
// whether the beginning of one was, whose rest is to be read at once.
int keyAtHand();
bool hasKeysAtHand();
bool keyIsOpen();

// Forgets what was read, before the other edition reads.
void forgetDecoded();

// Whether the line has been at its end for so long that nobody will type any more.
bool lineIsGone();

} // namespace kul

#endif
