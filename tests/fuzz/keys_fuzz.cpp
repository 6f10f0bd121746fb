// SPDX-License-Identifier: MIT
//
// Keys and replies of a terminal, cut anywhere: what comes out is what the same bytes give whole, in
// both editions, and no part of a reply is a key. An input is where it is cut, and pieces.
#include <algorithm>
#include <cerrno>
#include <clocale>
#include <iterator>
#include <vector>

#include <poll.h>
#include <term.h>
#include <unistd.h>

#include "gui/keys.hpp"
#include "input.hpp"
#include "kulgui.h"

using namespace kulfuzz;

namespace {

using Keys = std::vector<int>;

constexpr const char* kTerminals[] = {"linux", "xterm-256color", "rxvt", "wyse60", "vt52"};
constexpr std::size_t kPlain = 2; // the first of them: no key of theirs is like a reply of another one
// clang-format off
constexpr const char* kKeys[] = {"\x1b[A", "\x1bOP", "\x1b[15~", "\x1b[[A", "\x1b[1;5C", "\x1bOM", "\x1b[3~", "\x1b[Z", "\x1b[200~"};
constexpr const char* kReplies[] = {"\x1b[?1;2c", "\x1b[24;80R", "\x1b[8;24;80t", "\x1b[0n", "\x1b[I", "\x1b[O",
                                    "\x1b[<0;3;4M", "\x1b[<0;3;4m", "\x1b[?1;2$y", "\x1b[>41;354;0c", "\x1b[?1;2S"};
// clang-format on
constexpr const char* kTexts[] = {"\x1b]", "\x1bP", "\x1b^", "\x1b_", "\x1bX"};
constexpr const char* kEnds[] = {"\a", "\x1b\\"};

std::string_view coming, cuts; // bytes, and how many of them come together
std::size_t nHere = 0;         // of them, until the line is asked again

// All keys that come when the bytes are cut there; time passes behind the last ones alone.
Keys keysOf(const std::string& bytes, const std::string& cutAt)
{
    coming = {}, nHere = 0;
    kulgui_dropKeys();
    coming = bytes, cuts = cutAt;
    Keys keys;
    for (int nQuiet = 0; nQuiet < 3;) {
        const bool wasOver = coming.empty();
        const int nKey = kul::readKey(1);
        if (nKey != 0)
            keys.push_back(nKey);
        nQuiet = nKey == 0 && wasOver ? nQuiet + 1 : 0;
        check(keys.size() <= bytes.size() + 2);
    }
    return keys;
}

// A reply with other numbers, or a text of the terminal's.
std::string takeReply()
{
    const unsigned what = take();
    if (what % 3 == 0) {
        std::string text = takeText(90);
        std::erase_if(text, [](char byte) { return byte < ' ' || byte > '~'; });
        return kTexts[what / 3 % std::size(kTexts)] + text + kEnds[what / 128];
    }
    std::string reply = kReplies[what / 3 % std::size(kReplies)];
    for (char& letter : reply)
        letter = letter >= '0' && letter <= '9' && what % 3 == 1 ? static_cast<char>('0' + take() % 10) : letter;
    return reply;
}

// Letters with replies between them give the letters.
void checkReplies(const std::string& cutAt)
{
    std::string bytes = "a";
    Keys letters = {'a'};
    for (int i = 0; i < 8 && !isOver(); ++i) {
        bytes += takeReply();
        letters.push_back('b' + i);
        bytes += static_cast<char>(letters.back());
    }
    check(keysOf(bytes, "") == letters);
    check(keysOf(bytes, cutAt) == letters);
}

// In edition 1, which throws away what was typed ahead, one key or reply at a time.
void checkFirstEdition(const std::string& cutAt)
{
    const bool isReply = take() % 2;
    const std::string bytes = isReply ? takeReply() : kKeys[take() % (std::size(kKeys) - 1)];
    const Keys keys = keysOf(bytes, "");
    check(keys.size() <= 1 && keysOf(bytes, cutAt) == keys);
}

// Any bytes, among which there are keys and replies.
void checkAny(const std::string& cutAt)
{
    std::string bytes;
    while (!isOver()) {
        const unsigned what = take();
        bytes += what < 64 ? kKeys[what % std::size(kKeys)] : takeText(what < 250 ? 12 : 120);
        bytes += what % 4 ? "" : takeReply();
    }
    const Keys keys = keysOf(bytes, "");
    check(std::all_of(keys.begin(), keys.end(), [](int nKey) { return nKey > 0; }) && keysOf(bytes, cutAt) == keys);
    check(keysOf("x", "") == Keys{'x'}); // and nothing is left of it
}

} // namespace

extern "C" {

// What comes is there at once, and then there is nothing until it is asked for again.
int __wrap_poll(pollfd* line, nfds_t, int nMilliseconds)
{
    if (nMilliseconds > 0 && nHere == 0) {
        nHere = cuts.empty() ? coming.size()
                             : std::min<std::size_t>(1U + static_cast<unsigned char>(cuts.front()) % 8U, coming.size());
        cuts.remove_prefix(cuts.empty() ? 0 : 1);
    }
    line->revents = nHere == 0 ? short{0} : line->events;
    return nHere == 0 ? 0 : 1;
}

ssize_t __wrap_read(int, void* bytes, std::size_t nMost)
{
    const std::size_t size = coming.copy(static_cast<char*>(bytes), std::min(nHere, nMost));
    coming.remove_prefix(size);
    nHere -= size;
    errno = EAGAIN;
    return size > 0 ? static_cast<ssize_t>(size) : -1;
}

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t nBytes)
{
    static TERMINAL* terminals[std::size(kTerminals)] = {};
    begin(data, nBytes);
    const unsigned what = take();
    std::setlocale(LC_CTYPE, what % 2 ? "C.UTF-8" : "C");
    const std::size_t nTerminal = what / 2 % std::size(kTerminals);
    int nError = 0;
    if (terminals[nTerminal] || setupterm(kTerminals[nTerminal], STDERR_FILENO, &nError) == OK)
        set_curterm(terminals[nTerminal] = terminals[nTerminal] ? terminals[nTerminal] : cur_term);
    const std::string cutAt = takeText(40);
    kulgui_setEdition(what / 32 % 3 == 0 ? 1 : 2);
    const auto checkSecond = what / 32 % 3 == 1 && nTerminal < kPlain ? checkReplies : checkAny;
    (kulgui_getEdition() == 1 ? checkFirstEdition : checkSecond)(cutAt);
    return 0;
}
}
