// SPDX-License-Identifier: MIT
//
// The keyboard: standard input, read past curses and stdio.
//
// Edition 1: what was typed ahead of a wait is thrown away. What decides is what one read of up to
// six bytes would give when all bytes of a key arrive together. On a slow line they come one by
// one, so the rest of a sequence is awaited; whatever exceeds the six bytes is read as well, and
// dropped, or its end would look like typed keys.
//
// Edition 2: everything is read and kept, and given out one key at a time.
#include "keys.hpp"

#include <algorithm>
#include <cerrno>
#include <ctime>
#include <utility>

#include <poll.h>
#include <term.h>
#include <unistd.h>

#include "../kulgui.h"
#include "decoder.hpp"
#include "description.hpp"
#include "edition.hpp"

// The order is that of the key codes from KS_F1 on. The first tail that occurs in a sequence wins.
const char* const szKeystrokes[KUL_KEYSTROKES] = {
    "[OP",  "[[B", "[[C", "[[D", "[[E", "[17~", "[18~", "[19~", "[20~", "[21~", "[23~",
    "[24~", "[2~", "[3~", "[H",  "[5~", "[6~",  "[F",   "[D",   "[A",   "[B",   "[C"};

namespace {

constexpr std::size_t kKeyBytes = 6;
constexpr int kWaitMilliseconds = 50;
constexpr int kSequenceMilliseconds = 25;
// A sequence that does not end, and typed-ahead input that does not, are given up here.
constexpr int kLongestSequence = 1024;
constexpr int kMostChunks = 4096;
constexpr int kMostReads = 64;
// Waits in a row that found the line at its end: three quarters of a second.
constexpr int kGoneWaits = 15;

int nEndedWaits = 0;
bool stale = true; // something ran since the last wait, and what was typed then is not for the next
kul::KeyDecoder decoder;

bool hasInput(int nMilliseconds)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    return poll(&input, 1, nMilliseconds) == 1;
}

long long milliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return now.tv_sec * 1000LL + now.tv_nsec / 1000000;
}

// Whether the rest of a key comes in so long. A signal ends no more than a sleep: the rest would
// seem late.
bool hasRest(int nMilliseconds)
{
    const long long end = milliseconds() + nMilliseconds;
    do {
        errno = 0;
        if (hasInput(nMilliseconds))
            return true;
        nMilliseconds = static_cast<int>(end - milliseconds());
    } while (errno == EINTR && nMilliseconds > 0);
    return false;
}

void drain()
{
    char chunk[50];
    for (int i = 0; i < kMostChunks; ++i) {
        if (!hasInput(0) || read(STDIN_FILENO, chunk, sizeof chunk) <= 0)
            return;
    }
}

// Waits for bytes so long, and reads what is there. Gives their number, 0 for none. A line at its
// end is readable for ever: the time that a wait takes is spent then as well, or callers would
// spin.
std::size_t readBytes(char* bytes, std::size_t nMost, int nMilliseconds)
{
    pollfd input{STDIN_FILENO, POLLIN, 0};
    const int nReady = nMilliseconds == kul::kTyped ? 1 : poll(&input, 1, nMilliseconds);
    const ssize_t got = nReady == 1 ? read(STDIN_FILENO, bytes, nMost) : nReady;
    const bool ended = (nReady == 1 && got == 0) || (got < 0 && errno != EAGAIN && errno != EINTR);
    nEndedWaits = ended ? nEndedWaits + 1 : 0;
    if (ended) {
        const timespec rest{0, kWaitMilliseconds * 1000000L};
        nanosleep(&rest, nullptr);
    }
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

// Reads the bytes that still belong to an open sequence; the first of them fill up the key.
std::size_t readRest(kul::SequenceReader& reader, char* key, std::size_t size)
{
    for (int i = 0; i < kLongestSequence && reader.isOpen() && hasRest(kSequenceMilliseconds);
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

// Edition 1's key.
int firstKey(int nMilliseconds)
{
    char key[kKeyBytes] = {};
    kul::SequenceReader reader;
    std::size_t size = readBytes(key, kKeyBytes, nMilliseconds);
    for (std::size_t i = 0; i < size; ++i)
        reader.feed(static_cast<unsigned char>(key[i]));
    if (size > 0)
        size = readRest(reader, key, size);
    return kul::decodeKey({key, size});
}

// Tells the decoder the keys of the terminal that curses has open now.
void learnDescription()
{
    static const TERMINAL* learnt = nullptr;
    if (learnt == cur_term)
        return;
    learnt = cur_term;
    decoder.forget();
    if (!learnt)
        return;
    const struct {
        const char* szBytes;
        int nKey;
    } keys[] = {
        // clang-format off
        {key_f1, KS_F1}, {key_f2, KS_F2}, {key_f3, KS_F3}, {key_f4, KS_F4},
        {key_f5, KS_F5}, {key_f6, KS_F6}, {key_f7, KS_F7}, {key_f8, KS_F8},
        {key_f9, KS_F9}, {key_f10, KS_F10}, {key_f11, KS_F11}, {key_f12, KS_F12},
        {key_ic, KS_INSERT}, {key_dc, KS_DELETE}, {key_home, KS_HOME}, {key_end, KS_END},
        {key_ppage, KS_PAGEUP}, {key_npage, KS_PAGEDOWN}, {key_left, KS_LEFT}, {key_up, KS_UP},
        {key_down, KS_DOWN}, {key_right, KS_RIGHT}, {key_btab, KS_BACKTAB},
        {key_backspace, KS_BACKSPACE}, {key_enter, KS_ENTER},
        // other names for the same, on the keypad and of older keyboards
        {key_f0, KS_F10}, {key_a1, KS_HOME}, {key_a3, KS_PAGEUP}, {key_c1, KS_END},
        {key_c3, KS_PAGEDOWN}, {key_ll, KS_END}, {key_find, KS_HOME}, {key_select, KS_END},
        // with Shift
        {key_sic, KS_INSERT}, {key_sdc, KS_DELETE}, {key_shome, KS_HOME}, {key_send, KS_END},
        {key_sprevious, KS_PAGEUP}, {key_snext, KS_PAGEDOWN}, {key_sleft, KS_LEFT},
        {key_sright, KS_RIGHT}, {key_sr, KS_UP}, {key_sf, KS_DOWN},
        // clang-format on
    };
    for (const auto& key : keys)
        decoder.learn(kul::isString(key.szBytes) ? key.szBytes : nullptr, key.nKey);
}

// Edition 2's key; the decoder has bytes in no other one. While one has begun, its rest is awaited
// so long as the decoder says.
int nextKey(int nMilliseconds)
{
    learnDescription();
    int nKey = decoder.next();
    for (int i = 0; nKey == 0 && (i == 0 || decoder.patience() > 0) && i < kMostReads; ++i) {
        const int nPatience = decoder.patience();
        if (nPatience > 0)
            nMilliseconds = hasRest(nPatience) ? kul::kTyped : 0;
        char bytes[kul::KeyDecoder::kMostBytes];
        const std::size_t size = readBytes(bytes, sizeof bytes, nMilliseconds);
        decoder.feed({bytes, size});
        if (size == 0)
            decoder.timePassed();
        nKey = decoder.next();
    }
    return nKey;
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

void makeTypedAheadStale()
{
    stale = true;
}

void forgetTypedAhead()
{
    if (std::exchange(stale, false) && !isEdition2())
        drain();
}

void forgetDecoded()
{
    decoder.clear();
}

bool keyIsOpen()
{
    return decoder.patience() > 0;
}

int keyAtHand()
{
    return decoder.next();
}

bool hasKeysAtHand()
{
    return decoder.hasMore();
}

int readKey(int nMilliseconds)
{
    const int nKey = isEdition2() ? nextKey(nMilliseconds) : firstKey(nMilliseconds);
    stale = stale || nKey != 0;
    return nKey;
}

} // namespace kul

int Inkeys()
{
    kul::makeTypedAheadStale();
    kul::forgetTypedAhead();
    const int nKey = kul::readKey(kWaitMilliseconds);
    return nKey != kul::kPastedNewline ? nKey : 0;
}

int kulgui_dropKeys()
{
    drain();
    decoder.clear();
    return 0;
}
