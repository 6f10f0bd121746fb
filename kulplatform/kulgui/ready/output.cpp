// SPDX-License-Identifier: MIT
#include "output.hpp"

namespace kulready {

namespace {

constexpr std::size_t kMostText = 1 << 16;
constexpr char kEscape = 27;

} // namespace

void Output::feed(char byte)
{
    const bool isFinal = byte >= '@' && byte <= '~';
    switch (state_) {
    case State::ESCAPE:
        state_ = byte == '[' ? State::CONTROL
                 : byte == ']' || byte == 'P' || byte == '^' || byte == '_' || byte == 'X'
                     ? State::STRING
                 : byte >= ' ' && byte <= '/' ? State::ESCAPE
                                              : State::TEXT;
        return;
    case State::CONTROL:
        if (isFinal || byte == kEscape)
            state_ = byte == kEscape ? State::ESCAPE : State::TEXT;
        return;
    case State::STRING:
        if (byte == '\a' || byte == kEscape)
            state_ = byte == kEscape ? State::ESCAPE : State::TEXT;
        return;
    case State::TEXT:
        show(byte);
    }
}

// A line that is written over, as progress is told, becomes lines.
void Output::show(char byte)
{
    if (returned_ && byte != '\n' && byte != '\r')
        text_.add("\n");
    returned_ = byte == '\r';
    if (byte == kEscape)
        state_ = State::ESCAPE;
    else if (byte == '\t')
        text_.add("    ");
    else if (byte == '\n' || static_cast<unsigned char>(byte) >= ' ')
        text_.add(&byte, 1);
}

void Output::feed(const char* bytes, std::size_t size)
{
    for (std::size_t i = 0; i < size; ++i)
        feed(bytes[i]);
    if (text_.size() <= kMostText)
        return;
    std::size_t gone = text_.size() - kMostText / 2;
    while (gone < text_.size() && text_.text()[gone - 1] != '\n')
        ++gone;
    text_.removeFront(gone);
}

} // namespace kulready
