// SPDX-License-Identifier: MIT
//
// The keyboard: standard input, read past curses and stdio.
//
// What decides is what one read of up to six bytes would give when all bytes of a key arrive
// together. On a slow line they come one by one, so the rest of a sequence is awaited; whatever
// exceeds the six bytes is read as well, and dropped, or its end would look like typed keys.
#include "keys.hpp"

#include <algorithm>
#include <cerrno>
#include <ctime>

#include <poll.h>
#include <sys/select.h>
#include <unistd.h>

#include "../kulgui.h"

// The order is that of the key codes from KS_F1 on. The first tail that occurs in a sequence wins.
const char* const szKeystrokes[KUL_KEYSTROKES] = {
    "[OP",  "[[B", "[[C", "[[D", "[[E", "[17~", "[18~", "[19~", "[20~", "[21~", "[23~",
    "[24~", "[2~", "[3~", "[H",  "[5~", "[6~",  "[F",   "[D",   "[A",   "[B",   "[C"};

namespace {

constexpr std::size_t kKeyBytes = 6;
constexpr long kWaitMicroseconds = 50000;
constexpr int kSequenceMilliseconds = 25;
// A sequence that does not end, and typed-ahead input that does not, are given up here.
constexpr int kLongestSequence = 1024;
constexpr int kMostChunks = 4096;
// Waits in a row that found the line at its end: three quarters of a second.
constexpr int kGoneWaits = 15;

int nEndedWaits = 0;

bool hasInput(int nMilliseconds)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, nMilliseconds) == 1;
}

void drain()
{
    char chunk[50];
    for (int i = 0; i < kMostChunks; ++i) {
        if (!hasInput(0) || read(STDIN_FILENO, chunk, sizeof chunk) <= 0)
            return;
    }
}

// Waits for the first bytes, as long as a key handler may be kept from its polling, and reads them.
// Gives their number, 0 for none. A line at its end is readable for ever: the time that a wait
// takes is spent then as well, or callers would spin.
std::size_t firstBytes(char* key)
{
    fd_set input;
    FD_ZERO(&input);
    FD_SET(STDIN_FILENO, &input);
    timeval limit{0, kWaitMicroseconds};
    const int nReady = select(STDIN_FILENO + 1, &input, nullptr, nullptr, &limit);
    const ssize_t got = nReady == 1 ? read(STDIN_FILENO, key, kKeyBytes) : nReady;
    const bool ended = (nReady == 1 && got == 0) || (got < 0 && errno != EAGAIN && errno != EINTR);
    nEndedWaits = ended ? nEndedWaits + 1 : 0;
    if (ended) {
        const timespec rest{0, kWaitMicroseconds * 1000};
        nanosleep(&rest, nullptr);
    }
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

// Reads the bytes that still belong to an open sequence; the first of them fill up the key.
std::size_t readRest(kul::SequenceReader& reader, char* key, std::size_t size)
{
    for (int i = 0; i < kLongestSequence && reader.isOpen() && hasInput(kSequenceMilliseconds);
         ++i) {
        char byte = 0;
        if (read(STDIN_FILENO, &byte, 1) != 1)
            break;
        reader.feed(static_cast<unsigned char>(byte));
        if (size < kKeyBytes)
            key[size++] = byte;
    }
    return size;
}

} // namespace

namespace kul {

void SequenceReader::feed(unsigned char byte)
{
    constexpr unsigned char kEscape = 27;
    constexpr unsigned char kBell = 7;
    switch (state_) {
    case State::Start:
    case State::Done:
        state_ = byte == kEscape ? State::Escape : State::Done;
        break;
    case State::Escape:
        if (byte == '[')
            state_ = State::Control;
        else if (byte == 'O' || byte == 'N')
            state_ = State::Shift;
        else if (byte == ']' || byte == 'P' || byte == '^' || byte == '_' || byte == 'X')
            state_ = State::Text;
        else if (byte != kEscape)
            state_ = State::Done;
        break;
    case State::Control:
        // A console's function keys begin with two brackets, and one of ours is "[OP".
        if (byte == '[' || byte == 'O')
            state_ = State::OneMore;
        else if (byte == kEscape)
            state_ = State::Escape;
        else if (byte < ' ' || byte >= '@')
            state_ = State::Done;
        break;
    case State::Shift:
        // Between this and its last byte, a key pressed with others has a number.
        if (byte == kEscape)
            state_ = State::Escape;
        else if ((byte < '0' || byte > '9') && byte != ';')
            state_ = State::Done;
        break;
    case State::OneMore:
        state_ = byte == kEscape ? State::Escape : State::Done;
        break;
    case State::Text:
        if (byte == kBell)
            state_ = State::Done;
        else if (byte == kEscape)
            state_ = State::TextEscape;
        break;
    case State::TextEscape:
        state_ = byte == '\\' ? State::Done : State::Text;
        break;
    }
}

int decodeKey(std::string_view bytes)
{
    const std::string_view key(bytes.data(), std::min(bytes.find('\0'), bytes.size()));
    if (key.size() == 1)
        return static_cast<signed char>(key[0]);
    if (key.empty() || key[0] != KS_ESC)
        return 0;
    for (int i = 0; i < KUL_KEYSTROKES; ++i) {
        // The escape itself is in no tail.
        if (key.find(szKeystrokes[i]) != std::string_view::npos)
            return KS_F1 + i;
    }
    return 0;
}

bool lineIsGone()
{
    return nEndedWaits >= kGoneWaits;
}

} // namespace kul

int Inkeys()
{
    char key[kKeyBytes];
    kul::SequenceReader reader;
    drain();
    std::size_t size = firstBytes(key);
    for (std::size_t i = 0; i < size; ++i)
        reader.feed(static_cast<unsigned char>(key[i]));
    if (size > 0)
        size = readRest(reader, key, size);
    return kul::decodeKey({key, size});
}
