// SPDX-License-Identifier: MIT
//
// A text file of any size as bytes and lines, read where it is needed. It takes less than 0.5 MiB:
// a few pages of the file that were used last, one buffer to read through it from end to end, and a
// table of how many lines come before which place, coarser the longer the file.
//
// The file may change at any time. Whatever it does, reads give the bytes that are there, or none.
#ifndef KUL_FILE_FILE_TEXT_HPP
#define KUL_FILE_FILE_TEXT_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kul {

// A byte of a file, by its distance from the start.
using FilePlace = std::int64_t;

class FileText {
public:
    // Lines longer than this are cut into pieces where they cross a multiple of it, or so many
    // bytes behind.
    static constexpr FilePlace kPiece = 1 << 16;
    static constexpr int kBehind = 3;

    // Reading through the file goes in steps of so many bytes.
    static constexpr int kChunk = 1 << 18;

    enum class Change { None, Some, Shorter };

    // Opens a file. Null when it cannot be opened or read, is no regular file, or without memory;
    // what would make the caller wait is not even opened.
    static FileText* open(const char* szName);

    // Closes the file and frees this; null is none.
    static void close(FileText* text);

    // Looks whether the file has changed since the last time, and takes note.
    Change refresh();

    // Whether another file has the name now.
    bool isReplacedAt(const char* szName) const;

    FilePlace size() const { return size_; }

    // The bytes at a place, up to the end of the page or the file: empty where there is none.
    // They stay for at least two more calls.
    std::string_view at(FilePlace place)
    {
        const auto nOffset = static_cast<std::uint64_t>(place - lastPlace_);
        if (nOffset >= lastSize_ && !turnTo(place))
            return {};
        return {last_ + (place - lastPlace_),
                static_cast<std::size_t>(lastPlace_ + static_cast<FilePlace>(lastSize_) - place)};
    }

    // The byte at a place, -1 for none.
    int byteAt(FilePlace place)
    {
        const std::string_view bytes = at(place);
        return bytes.empty() ? -1 : static_cast<unsigned char>(bytes.front());
    }

    // The last newline in [from, place), the first one in [from, to); -1 for none.
    FilePlace newlineBefore(FilePlace place, FilePlace from);
    FilePlace newlineFrom(FilePlace from, FilePlace to);

    // Start of the line that holds a place, or of its piece if the line is cut. No place is more
    // than a piece and kBehind bytes behind it.
    FilePlace pieceStart(FilePlace place);

    // Where a line that goes on there would be cut next after a place.
    FilePlace nextCut(FilePlace place);

    // The number, from 0, of the line that holds a place.
    std::int64_t lineOf(FilePlace place);

    // Start of a line; -1 when there are fewer.
    FilePlace lineStart(std::int64_t nLine);

    struct Match {
        std::int64_t nLine; // -1: none
        FilePlace line;     // start of the line
        FilePlace place;    // of the first match in it
    };

    // The first line from nLine on that contains a text.
    Match find(std::string_view wanted, std::int64_t nLine);

private:
    static constexpr FilePlace kPage = 1 << 14;
    static constexpr int kPages = 8;
    static constexpr int kOverlap = 1 << 12;
    static constexpr int kLine = 64; // of memory, as processors read it
    static constexpr int kMarks = 1 << 12;
    static constexpr int kSample = 64;

    // While reading through the file: how many newlines come before a place.
    struct Counted {
        FilePlace place;
        std::int64_t nLines;
    };

    // What the system says of a file.
    struct Seen {
        std::int64_t size, seconds, nanoseconds, device, inode;
        bool operator==(const Seen&) const = default;
    };

    // Some bytes of the file as they were at the last look.
    struct Sample {
        FilePlace place;
        std::size_t nBytes;
        char bytes[kSample];
    };

    struct Page {
        FilePlace number;
        unsigned nUsed; // 0: empty
        int nBytes;
    };

    bool turnTo(FilePlace place);
    char* bytesOf(const Page& page) { return bytes_[&page - pages_]; }
    char* chunkBytes();
    std::string_view chunk(FilePlace place);
    Counted markAt(std::int64_t nMark) const;
    void advance(Counted& counted, std::string_view bytes);
    void pass(Counted& counted, std::string_view bytes);
    FilePlace cutAt(FilePlace edge);
    bool isCut(FilePlace start, FilePlace edge);
    bool continuesWith(FilePlace place, std::string_view text);
    void forgetLines();
    bool look();
    void takeSamples();
    bool isAsSampled() const;
    void meetEnd(FilePlace place);

    int nDescriptor_;
    FilePlace size_;
    Seen seen_;
    Sample samples_[2]; // how the file begins and ends
    const char* last_;  // the page that was used last, as far as the file goes
    FilePlace lastPlace_;
    std::uint64_t lastSize_;
    unsigned nUses_;
    std::int64_t nMarks_; // marks that are set; mark 0 is the start of the file
    FilePlace stride_;    // distance of two marks
    Page pages_[kPages];

    // Never read before it is written: as much of it takes memory as is used.
    std::int64_t marks_[kMarks];
    char bytes_[kPages][kPage];
    char buffer_[kLine + kOverlap + kChunk];
};

} // namespace kul

#endif
