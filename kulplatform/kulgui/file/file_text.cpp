// SPDX-License-Identifier: MIT
//
// Pages, lines and searches of a file that may be larger than the memory.
#include "file_text.hpp"

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "../clamp.hpp"
#include "byte_search.hpp"

namespace kul {

namespace {

constexpr FilePlace kLargest = INT64_MAX / 2; // sums of places must not overflow

constexpr FilePlace kProbed = 1 << 24;

// What tells a search which bytes are rare.
constexpr std::size_t kSampled = 1 << 12;

// What is read at a place, less than asked for only at the end of the file; -1 for an error.
ssize_t readAt(int nDescriptor, char* bytes, std::size_t size, FilePlace place)
{
    std::size_t got = 0;
    while (got < size) {
        const ssize_t n = pread(nDescriptor, bytes + got, size - got,
                                static_cast<off_t>(place + static_cast<FilePlace>(got)));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0 && got == 0)
            return -1;
        if (n <= 0)
            break;
        got += static_cast<std::size_t>(n);
    }
    return static_cast<ssize_t>(got);
}

bool isRegular(const struct stat& status)
{
    return S_ISREG(status.st_mode);
}

} // namespace

FileText* FileText::open(const char* szName)
{
    struct stat status;
    if (!szName || stat(szName, &status) != 0 || !isRegular(status))
        return nullptr;
    auto* text = static_cast<FileText*>(std::malloc(sizeof(FileText)));
    if (!text)
        return nullptr;
    std::memset(static_cast<void*>(text), 0, offsetof(FileText, marks_));
    // The name may have changed hands since.
    text->nDescriptor_ = ::open(szName, O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
    text->forgetLines();
    char byte;
    if (text->nDescriptor_ >= 0 && fstat(text->nDescriptor_, &status) == 0 && isRegular(status) &&
        readAt(text->nDescriptor_, &byte, 1, 0) >= 0 && text->look()) {
        text->takeSamples();
        return text;
    }
    close(text);
    return nullptr;
}

void FileText::close(FileText* text)
{
    if (text && text->nDescriptor_ >= 0)
        ::close(text->nDescriptor_);
    std::free(text);
}

// Keeps what the system says of the file now. True when that, and with it the file, has changed.
bool FileText::look()
{
    struct stat status;
    if (fstat(nDescriptor_, &status) != 0)
        return false;
    const Seen now = {status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec,
                      static_cast<std::int64_t>(status.st_dev),
                      static_cast<std::int64_t>(status.st_ino)};
    if (now == seen_)
        return false;
    seen_ = now;
    size_ = kul::clamp<FilePlace>(now.size, 0, kLargest);
    // Some files of the system say that they are empty; reading tells.
    ssize_t n;
    while (now.size == 0 && size_ < kProbed &&
           (n = readAt(nDescriptor_, buffer_, kChunk, size_)) > 0)
        size_ += n;
    return true;
}

void FileText::takeSamples()
{
    samples_[0].place = 0;
    samples_[1].place = std::max<FilePlace>(size_ - kSample, 0);
    for (Sample& sample : samples_) {
        const ssize_t n = readAt(nDescriptor_, sample.bytes, kSample, sample.place);
        sample.nBytes = static_cast<std::size_t>(std::max<ssize_t>(n, 0));
    }
}

// Whether what the file began and ended with at the last look is still where it was.
bool FileText::isAsSampled() const
{
    return std::all_of(std::begin(samples_), std::end(samples_), [this](const Sample& sample) {
        char bytes[kSample];
        const ssize_t n = readAt(nDescriptor_, bytes, sample.nBytes, sample.place);
        return n == static_cast<ssize_t>(sample.nBytes) &&
               std::memcmp(bytes, sample.bytes, sample.nBytes) == 0;
    });
}

void FileText::forgetLines()
{
    stride_ = kChunk;
    nMarks_ = 1;
    marks_[0] = 0;
}

FileText::Change FileText::refresh()
{
    const FilePlace before = size_;
    const bool metEnd = size_ < std::min(seen_.size, kLargest); // reading has met an earlier one
    if (!look())
        return Change::None;
    // A log that was emptied may be longer than before by now.
    const bool cut = metEnd || !isAsSampled();
    takeSamples();
    for (Page& page : pages_)
        page.nUsed = 0;
    lastSize_ = 0;
    if (cut || size_ <= before) // else it has been added to
        forgetLines();
    return cut || size_ < before ? Change::Shorter : Change::Some;
}

bool FileText::isReplacedAt(const char* szName) const
{
    struct stat status;
    return stat(szName, &status) == 0 && isRegular(status) &&
           (static_cast<std::int64_t>(status.st_dev) != seen_.device ||
            static_cast<std::int64_t>(status.st_ino) != seen_.inode);
}

// ---- Bytes and lines near a place ----------------------------------------------------------

// Makes the page that holds a place the one that was used last. False when there is nothing.
bool FileText::turnTo(FilePlace place)
{
    if (place < 0 || place >= size_)
        return false;
    const FilePlace number = place / kPage;
    Page* page = &pages_[0];
    for (Page& candidate : pages_) {
        if (candidate.nUsed != 0 && candidate.number == number) {
            page = &candidate;
            break;
        }
        if (candidate.nUsed < page->nUsed)
            page = &candidate;
    }
    if (page->nUsed == 0 || page->number != number) {
        page->number = number;
        page->nBytes = static_cast<int>(
            std::max<ssize_t>(readAt(nDescriptor_, bytesOf(*page), kPage, number * kPage), 0));
        if (page->nBytes < kPage)
            meetEnd(number * kPage + page->nBytes);
    }
    if (++nUses_ == 0) { // after 2^32 uses: all pages count as old
        for (Page& old : pages_)
            old.nUsed = std::min(old.nUsed, 1U);
        nUses_ = 2;
    }
    page->nUsed = nUses_;
    last_ = bytesOf(*page);
    lastPlace_ = number * kPage;
    lastSize_ =
        static_cast<std::uint64_t>(kul::clamp<FilePlace>(size_ - lastPlace_, 0, page->nBytes));
    return place - lastPlace_ < static_cast<FilePlace>(lastSize_);
}

// Reading has found nothing more at a place.
void FileText::meetEnd(FilePlace place)
{
    if (place >= size_)
        return;
    size_ = place;
    // A file that was cut off may end far above; it is not followed up page by page.
    struct stat status;
    if (seen_.size > 0 && fstat(nDescriptor_, &status) == 0)
        size_ = kul::clamp<FilePlace>(status.st_size, 0, size_);
}

FilePlace FileText::newlineBefore(FilePlace place, FilePlace from)
{
    while (place > from) {
        const FilePlace start = std::max(from, (place - 1) / kPage * kPage);
        const std::string_view bytes = at(start);
        const auto nBytes = std::min(bytes.size(), static_cast<std::size_t>(place - start));
        if (const void* found = nBytes ? memrchr(bytes.data(), '\n', nBytes) : nullptr)
            return start + (static_cast<const char*>(found) - bytes.data());
        place = start;
    }
    return -1;
}

FilePlace FileText::newlineFrom(FilePlace from, FilePlace to)
{
    while (from < to) {
        const std::string_view bytes = at(from);
        const auto nBytes = std::min(bytes.size(), static_cast<std::size_t>(to - from));
        if (nBytes == 0)
            break;
        if (const void* found = std::memchr(bytes.data(), '\n', nBytes))
            return from + (static_cast<const char*>(found) - bytes.data());
        from += static_cast<FilePlace>(nBytes);
    }
    return -1;
}

// ---- Lines that are too long ----------------------------------------------------------------
//
// Where a line is cut must not depend on where one comes from, and be found without reading the
// line as a whole: it is cut at the multiples of a piece inside of it (the edges), and not inside
// of a multi-byte character.

FilePlace FileText::cutAt(FilePlace edge)
{
    FilePlace cut = edge;
    while (cut < edge + kBehind && (byteAt(cut) & ~0x3f) == 0x80)
        ++cut;
    return cut;
}

// Whether a line that starts there, or before if that is a piece before the edge, is longer than
// a piece and goes on behind the cut.
bool FileText::isCut(FilePlace start, FilePlace edge)
{
    if (size_ - start <= kPiece || newlineFrom(edge, start + kPiece + 1) >= 0)
        return false;
    const FilePlace cut = cutAt(edge);
    const int nByte = byteAt(cut);
    return nByte >= 0 && nByte != '\n' && (nByte != '\r' || byteAt(cut + 1) != '\n');
}

FilePlace FileText::pieceStart(FilePlace place)
{
    while (true) {
        place = std::min(place, size_); // what is there may have become less a moment ago
        const FilePlace edge = place / kPiece * kPiece;
        FilePlace newline = newlineBefore(place, edge);
        if (newline >= 0 || edge == 0)
            return newline + 1;
        const FilePlace earlier = edge - kPiece;
        newline = newlineBefore(edge, earlier);
        const FilePlace start = std::max(newline + 1, earlier);
        if (start == edge)
            return edge;
        if (isCut(start, edge) && place >= cutAt(edge))
            return cutAt(edge);
        if (newline >= 0 || earlier == 0)
            return start;
        place = edge - 1;
    }
}

FilePlace FileText::nextCut(FilePlace place)
{
    // The cut that belongs to the edge before the place may still be to come.
    for (FilePlace edge = place / kPiece * kPiece; edge <= place + kPiece; edge += kPiece) {
        const FilePlace cut = cutAt(edge);
        if (cut > place && cut < size_ && pieceStart(cut) == cut)
            return cut;
    }
    return kLargest;
}

// ---- Reading through the file ---------------------------------------------------------------

// Where chunks are read to: what starts with a line of memory is copied and read faster.
char* FileText::chunkBytes()
{
    const auto nOver = reinterpret_cast<std::uintptr_t>(buffer_) % kLine;
    return buffer_ + (kLine - nOver) + kOverlap;
}

// The bytes from a place to the next multiple of a chunk. What was the end of the buffer before
// stands in front of them.
std::string_view FileText::chunk(FilePlace place)
{
    char* bytes = chunkBytes();
    const FilePlace left = std::min(kChunk - place % kChunk, size_ - place);
    const ssize_t n =
        left > 0 ? readAt(nDescriptor_, bytes, static_cast<std::size_t>(left), place) : 0;
    return {bytes, static_cast<std::size_t>(std::max<ssize_t>(n, 0))};
}

FileText::Counted FileText::markAt(std::int64_t nMark) const
{
    nMark = kul::clamp<std::int64_t>(nMark, 0, nMarks_ - 1);
    return {nMark * stride_, marks_[nMark]};
}

// Counts what was read, and marks the place if it is the next one to be marked.
void FileText::advance(Counted& counted, std::string_view bytes)
{
    counted.place += static_cast<FilePlace>(bytes.size());
    counted.nLines += newlines(bytes);
    if (counted.place != nMarks_ * stride_)
        return;
    if (nMarks_ == kMarks) {
        for (std::size_t i = 1; i < kMarks / 2; ++i)
            marks_[i] = marks_[i * 2];
        nMarks_ = kMarks / 2;
        stride_ *= 2;
    }
    if (counted.place == nMarks_ * stride_)
        marks_[nMarks_++] = counted.nLines;
}

// The same for who only passes by: what comes before the last mark is not counted again.
void FileText::pass(Counted& counted, std::string_view bytes)
{
    const Counted marked = markAt(nMarks_ - 1);
    if (counted.place == marked.place)
        counted = marked;
    if (counted.place >= marked.place)
        advance(counted, bytes);
    else
        counted.place += static_cast<FilePlace>(bytes.size());
}

std::int64_t FileText::lineOf(FilePlace place)
{
    Counted counted = markAt(place / stride_);
    while (counted.place < place) {
        const std::string_view bytes = chunk(counted.place);
        const auto nWanted = static_cast<std::size_t>(place - counted.place);
        if (bytes.empty())
            break;
        advance(counted, {bytes.data(), std::min(bytes.size(), nWanted)});
    }
    return counted.nLines;
}

FilePlace FileText::lineStart(std::int64_t nLine)
{
    if (nLine <= 0)
        return size_ > 0 ? 0 : -1;
    const std::int64_t* mark = std::lower_bound(marks_, marks_ + nMarks_, nLine);
    Counted counted = markAt(mark - marks_ - 1);
    while (true) {
        const std::string_view bytes = chunk(counted.place);
        if (bytes.empty())
            return -1;
        const Counted before = counted;
        advance(counted, bytes);
        if (counted.nLines < nLine)
            continue;
        const char* next = bytes.data();
        const char* end = next + bytes.size();
        for (std::int64_t n = before.nLines; n < nLine; ++n)
            next = static_cast<const char*>(
                       std::memchr(next, '\n', static_cast<std::size_t>(end - next))) +
                   1;
        const FilePlace start = before.place + (next - bytes.data());
        return start < size_ ? start : -1;
    }
}

bool FileText::continuesWith(FilePlace place, std::string_view text)
{
    while (!text.empty()) {
        const std::string_view bytes = at(place);
        const std::size_t n = std::min(bytes.size(), text.size());
        if (n == 0 || std::memcmp(bytes.data(), text.data(), n) != 0)
            return false;
        place += static_cast<FilePlace>(n);
        text.remove_prefix(n);
    }
    return true;
}

FileText::Match FileText::find(std::string_view wanted, std::int64_t nLine)
{
    constexpr Match kNone = {-1, -1, -1};
    const FilePlace from = lineStart(nLine);
    if (from < 0 || wanted.find('\n') != std::string_view::npos)
        return kNone;
    if (wanted.empty())
        return {std::max<std::int64_t>(nLine, 0), from, from};
    // Only so much of the text is looked for that it can be kept from one chunk to the next.
    const std::string_view head(wanted.data(), std::min<std::size_t>(wanted.size(), kOverlap));
    const std::string_view tail(wanted.data() + head.size(), wanted.size() - head.size());
    Counted counted = {from, nLine};
    std::string_view bytes = chunk(from);
    ByteSearch search(head, {bytes.data(), std::min(bytes.size(), kSampled)});
    for (std::size_t nKept = 0; !bytes.empty(); bytes = chunk(counted.place)) {
        const char* end = bytes.data() + bytes.size();
        const char* next = bytes.data() - nKept;
        while (const char* match = search.find(next, end)) {
            const FilePlace place = counted.place + (match - bytes.data());
            if (continuesWith(place + static_cast<FilePlace>(head.size()), tail))
                return {lineOf(place), std::max(newlineBefore(place, from) + 1, from), place};
            next = match + 1;
        }
        pass(counted, bytes);
        nKept = std::min(nKept + bytes.size(), head.size() - 1);
        std::memmove(chunkBytes() - nKept, end - nKept, nKept);
    }
    return kNone;
}

} // namespace kul
