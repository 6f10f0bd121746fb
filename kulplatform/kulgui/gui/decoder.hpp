// SPDX-License-Identifier: MIT
//
// Bytes in, keys out: what a terminal sends for a key, whatever it is called and however its bytes
// are cut into reads. No terminal, no clock; the bytes that are not yet a key wait here, and who
// feeds them says when no more have come for a while.
//
//     decoder.feed(bytes);
//     while (const int nKey = decoder.next()) { ... }
//     if (decoder.patience() > 0) { ... wait so long for more bytes, or decoder.timePassed(); }
//
// What is no key (replies, mouse and focus reports, whole strings, sequences that nobody knows,
// bytes that are no character) is swallowed, and no part of it is taken for one.
#ifndef KUL_GUI_DECODER_HPP
#define KUL_GUI_DECODER_HPP

#include <cstddef>
#include <string_view>

#include "sequences.hpp"

namespace kul {

// The end of a line inside of the brackets of a paste: a blank where texts are typed, else no key.
constexpr int kPastedNewline = KS_ALT - 1;

class KeyDecoder {
public:
    // As much as is read at once; between two updates of the terminal there are no more keys.
    static constexpr std::size_t kMostBytes = 1024;

    // Adds a key of the terminal's own description, null for none.
    void learn(const char* szBytes, int nKey);
    void forget() { nLearnt_ = 0; }

    // Takes bytes, and says how many it had room for: after next() has given 0 that is not less
    // than kMostBytes.
    std::size_t feed(std::string_view bytes);

    // The next key; 0 for none, or when its end is yet to come.
    int next();

    // Whether there are bytes that next() has not looked at.
    bool hasMore() const { return nBegin_ < nEnd_ && !open_; }

    // How many milliseconds to wait for the rest of what has begun; 0 when nothing has.
    int patience() const;

    // Nothing came for so long: what has begun is all there is.
    void timePassed();

    // Forgets what was fed.
    void clear();

private:
    static constexpr std::size_t kMostOpen = 64;   // bytes that are kept of an unfinished sequence
    static constexpr std::size_t kMostLearnt = 48; // if nothing is known without being told

    struct Learnt {
        char szBytes[12];
        int nKey;
    };
    enum class Skip { Nothing, Text, Control };

    std::string_view rest() const { return {bytes_ + nBegin_, nEnd_ - nBegin_}; }
    FoundKey front() const;
    bool skip();

    char bytes_[kMostOpen + kMostBytes];
    std::size_t nBegin_ = 0;
    std::size_t nEnd_ = 0;
    Learnt learnt_[kMostLearnt] = {};
    std::size_t nLearnt_ = 0;
    Skip skipping_ = Skip::Nothing;
    bool pasting_ = false;
    unsigned char before_ = 0; // the first byte of what came last: a pasted line may end in two
    bool open_ = false;        // what is here is less than a key
    bool late_ = false;        // no more bytes will come to those that are here
};

} // namespace kul

#endif
