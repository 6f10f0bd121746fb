// SPDX-License-Identifier: MIT
//
// What is kept between reads: the bytes of a key that is not whole yet, whether something is being
// left out, and whether a paste is open. What the bytes mean is the business of the room beside.
#include "decoder.hpp"

#include <algorithm>
#include <cstring>
#include <utility>

#include "sequences.hpp"

namespace {

// Milliseconds between the bytes that make an Escape a sequence, and inside of what is one.
constexpr int kTogether = 25;
constexpr int kStalled = 1000;

constexpr unsigned char kDelete = 127;

// Not starts_with: where that is not optimised away it needs the C++ run-time library.
bool begins(std::string_view bytes, std::string_view start)
{
    return bytes.size() >= start.size() && std::equal(start.begin(), start.end(), bytes.begin());
}

} // namespace

namespace kul {

// A key that is known anyway is not kept: there is nothing to look through for most terminals. A
// byte whose meaning is fixed stays what it is.
void KeyDecoder::learn(const char* szBytes, int nKey)
{
    const std::string_view bytes(szBytes ? szBytes : "");
    if (bytes.empty() || bytes.size() >= sizeof learnt_->szBytes || nLearnt_ == kMostLearnt ||
        isBetween(at(bytes, 0), ' ', kDelete))
        return;
    if (bytes.size() == 1 && std::strchr("\b\t\n\r\033", bytes[0]))
        return;
    const FoundKey found = commonKey(bytes, true);
    if (found.nBytes == bytes.size() && found.nKey == nKey)
        return;
    Learnt& known = learnt_[nLearnt_++];
    known = {{}, nKey};
    std::memcpy(known.szBytes, bytes.data(), bytes.size());
}

std::size_t KeyDecoder::feed(std::string_view bytes)
{
    std::memmove(bytes_, bytes_ + nBegin_, nEnd_ - nBegin_);
    nEnd_ -= nBegin_;
    nBegin_ = 0;
    const std::size_t nTaken = std::min(bytes.size(), sizeof bytes_ - nEnd_);
    std::memcpy(bytes_ + nEnd_, bytes.data(), nTaken);
    nEnd_ += nTaken;
    late_ = late_ && nTaken == 0;
    open_ = open_ && nTaken == 0;
    return nTaken;
}

// Leaves out the string or sequence that goes on. False when its end may come with the next byte.
bool KeyDecoder::skip()
{
    const std::string_view bytes = rest();
    const bool text = skipping_ == Skip::Text;
    std::size_t end = 0;
    const auto goesOn = [&](unsigned char byte) {
        constexpr std::string_view kEnds = "\x07\x18\x1A\x1B";
        return text
                   ? kEnds.find(static_cast<char>(byte)) == kEnds.npos && (byte != 0x9C || isUtf8())
                   : isBetween(byte, ' ', '?');
    };
    while (end < bytes.size() && goesOn(at(bytes, end)))
        ++end;
    nBegin_ += end;
    if (end == bytes.size())
        return true;
    const unsigned char last = at(bytes, end);
    if (text && last == KS_ESC) {
        if (end + 1 == bytes.size())
            return false;
        nBegin_ += at(bytes, end + 1) == '\\' ? 2 : 0;
    } else if (text || isBetween(last, '@', '~')) {
        ++nBegin_;
    }
    skipping_ = Skip::Nothing;
    return true;
}

// The terminal's own description comes first.
FoundKey KeyDecoder::front() const
{
    FoundKey found = {0, 0};
    for (std::size_t i = 0; i < nLearnt_; ++i) {
        const std::string_view known(learnt_[i].szBytes);
        if (begins(rest(), known)) {
            if (known.size() > found.nBytes)
                found = {known.size(), learnt_[i].nKey};
        } else if (!late_ && begins(known, rest())) {
            return {0, 0};
        }
    }
    return found.nBytes > 0 ? found : commonKey(rest(), late_);
}

int KeyDecoder::next()
{
    while (nBegin_ < nEnd_) {
        if (skipping_ != Skip::Nothing) {
            if (!skip())
                break;
            continue;
        }
        const FoundKey found = front();
        if (found.nBytes == 0)
            break;
        const unsigned char before = std::exchange(before_, at(rest(), 0));
        nBegin_ += found.nBytes;
        if (found.nKey > 0 && !(pasting_ && found.nKey == KS_ENTER))
            return found.nKey;
        if (found.nKey > 0 && !(before == '\r' && before_ == '\n'))
            return kPastedNewline;
        if (found.nKey == kPasteBegins || found.nKey == kPasteEnds)
            pasting_ = found.nKey == kPasteBegins;
        else if (found.nKey < 0)
            skipping_ = found.nKey == kTextBegins ? Skip::Text : Skip::Control;
    }
    open_ = true;
    return 0;
}

int KeyDecoder::patience() const
{
    const bool begun = nBegin_ < nEnd_;
    if (skipping_ == Skip::Nothing && begun && nEnd_ - nBegin_ <= 2 && at(rest(), 0) < ' ')
        return kTogether;
    return begun || skipping_ != Skip::Nothing || pasting_ ? kStalled : 0;
}

void KeyDecoder::timePassed()
{
    if (nBegin_ == nEnd_ && skipping_ == Skip::Nothing)
        pasting_ = false;
    skipping_ = Skip::Nothing;
    late_ = true;
    open_ = false;
}

void KeyDecoder::clear()
{
    nBegin_ = nEnd_ = 0;
    skipping_ = Skip::Nothing;
    pasting_ = late_ = open_ = false;
}

} // namespace kul
