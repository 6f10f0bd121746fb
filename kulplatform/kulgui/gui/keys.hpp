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

// Whether the line has been at its end for so long that nobody will type any more.
bool lineIsGone();

} // namespace kul

#endif
