// SPDX-License-Identifier: MIT
//
// The output of a command as a text to show. What the command sends cannot command the terminal:
// escape sequences are taken out whole, and of the output only the last part is kept.
#ifndef KUL_READY_OUTPUT_HPP
#define KUL_READY_OUTPUT_HPP

#include "rows.hpp"

namespace kulready {

class Output {
public:
    // Takes some bytes, cut anywhere.
    void feed(const char* bytes, std::size_t size);

    // All that is kept; whole lines go when it is too much.
    const char* text() const { return text_.text(); }

private:
    enum class State { TEXT, ESCAPE, CONTROL, STRING };

    void feed(char byte);
    void show(char byte);

    Text text_;
    State state_ = State::TEXT;
    bool returned_ = false;
};

} // namespace kulready

#endif
