// SPDX-License-Identifier: MIT
#include "file_rows.hpp"

#include <algorithm>
#include <cwchar>

#include "../clamp.hpp"
#include "../gui/draw.hpp"
#include "../gui/edition.hpp"
#include "../gui/text.hpp"

namespace kul {

namespace {

constexpr int kTab = 8;

// Bytes of a character, at the most, in any encoding that is in use; without wide characters in
// curses a byte is a character.
constexpr std::size_t kLongest = NCURSES_WIDECHAR ? 8 : 1;

// Whether a byte has a column of its own, whatever comes before and behind.
constexpr bool hasOneColumn(char byte)
{
    return isAscii(byte) && byte != '\t' && byte != '\n' && byte != '\r';
}

// One character for a row of nColumns; the stand-in where it has no column of its own.
Letter character(std::string_view bytes, int nColumns)
{
    wchar_t shown = 0;
    std::mbstate_t state{};
    const std::size_t nMost = std::min(bytes.size(), kLongest);
    const std::size_t nBytes = std::mbrtowc(&shown, bytes.data(), nMost, &state);
    if (nBytes == 0 || nBytes > nMost)
        return {1, 1, {kStandIn}};
    const int nWidth = wcwidth(shown);
    if (nWidth < 1 || nWidth > nColumns)
        return {nBytes, 1, {kStandIn}};
    return {nBytes, nWidth, {shown}};
}

} // namespace

FileRows::FileRows(FileText& text, int nColumns)
    : text_(text), nColumns_(kul::clamp(nColumns, 1, kMaxColumns)), marks_(isEdition2())
{
}

// The bytes at a place, as many as it takes to know the letter there.
std::string_view FileRows::window(FilePlace place, FilePlace end)
{
    const auto nMost = static_cast<std::size_t>(std::min<FilePlace>(kWindow, end - place));
    const std::string_view here = text_.at(place);
    if (here.size() >= nMost)
        return {here.data(), nMost};
    std::size_t nBytes = 0;
    for (int nByte; nBytes < nMost && (nByte = text_.byteAt(place)) >= 0; ++place)
        window_[nBytes++] = static_cast<char>(nByte);
    return {window_, nBytes};
}

// The bytes from a place to an end that are of a kind and a letter each, as far as they lie
// together.
template <bool (*isOfKind)(char)>
std::string_view FileRows::runFrom(FilePlace place, FilePlace end)
{
    const std::string_view bytes = text_.at(place);
    const FilePlace nMost = std::min(static_cast<FilePlace>(bytes.size()), end - place);
    FilePlace n = 0;
    while (n < nMost && isOfKind(bytes.data()[n]))
        ++n;
    // What a mark may stand on is no letter of its own.
    if (marks_ && n > 0 && place + n < end && text_.byteAt(place + n) >= 0x80)
        --n;
    return {bytes.data(), static_cast<std::size_t>(std::max<FilePlace>(n, 0))};
}

std::string_view FileRows::plainFrom(FilePlace place, FilePlace end)
{
    return runFrom<isPlain>(place, end);
}

Letter FileRows::letter(FilePlace place, FilePlace end, int nColumn)
{
    const std::string_view bytes = window(place, end);
    const char first = bytes.empty() ? '\0' : bytes.front();
    if (first == '\t')
        return {1, kTab - nColumn % kTab, {L' '}};
    if (isAscii(first) && !isPlain(first))
        return {1, 1, {kStandIn}};
    return marks_ ? nextLetter(bytes, nColumns_) : character(bytes, nColumns_);
}

// The byte of the first character that starts at a cell or behind it.
FilePlace FileRows::placeOf(int nCell, int nCells, FilePlace start, FilePlace end) const
{
    while (nCell < nCells && places_[nCell] < 0)
        ++nCell;
    return nCell < nCells ? start + places_[nCell] : end;
}

// How many cells the row shows of more than it can hold.
int FileRows::shownCells(int nCells) const
{
    const std::string_view cells(cells_, static_cast<std::size_t>(nCells));
    const int nShown = lineEnd(cells, 0, nColumns_) + 1;
    const char* full = cells_ + nColumns_;
    const bool blank = std::all_of(cells_, full, [](char cell) { return cell == ' '; });
    if (nShown > 1 || (cells_[0] == ' ' && !blank))
        return std::max(nShown, 1);
    // No blank to wrap at: the row is full, but for half of a character of two cells.
    const bool halved = places_[nColumns_] < 0 && cells_[nColumns_] != ' ';
    return nColumns_ - (halved ? 1 : 0);
}

FileRows::Row FileRows::row(FilePlace start)
{
    const std::string_view plain = plainFrom(start, start + nColumns_);
    const FilePlace newline = start + static_cast<FilePlace>(plain.size());
    const FilePlace edge = ((start - FileText::kBehind) / FileText::kPiece + 1) * FileText::kPiece;
    if (newline + kWindow < edge && text_.byteAt(newline) == '\n')
        return {start, newline, newline + 1};
    return wrappedRow(start, edge);
}

// Bytes that end the line at a place before end; -1 while it goes on.
int FileRows::lineEndAt(FilePlace place, FilePlace end)
{
    const int nByte = place < end ? text_.byteAt(place) : -1;
    if (nByte < 0)
        return 0;
    if (nByte == '\n')
        return 1;
    return nByte == '\r' && text_.byteAt(place + 1) == '\n' ? 2 : -1;
}

// Adds what begins so many bytes behind the row's start to the nCells that are there.
void FileRows::addCells(int& nCells, FilePlace nPlace, int nColumns, bool blank)
{
    for (int i = 0; i < nColumns; ++i) {
        places_[nCells] = i == 0 ? static_cast<int>(nPlace) : -1;
        cells_[nCells++] = blank ? ' ' : 'x';
    }
}

// Whether nCells are not enough to tell the row: one behind it, and if that is blank, all blanks up
// to the next word, or as many as the row has columns.
bool FileRows::needsMore(int nCells) const
{
    return nCells <= nColumns_ || (nCells <= 2 * nColumns_ && cells_[nCells - 1] == ' ');
}

// A row of a line that is longer or holds more than plain characters. Cuts are at or behind edge.
FileRows::Row FileRows::wrappedRow(FilePlace start, FilePlace edge)
{
    FilePlace cut = -1; // not known: it matters near the edge only
    FilePlace place = start;
    int nCells = 0;
    int nLineEnd = -1;
    while (nLineEnd < 0 && needsMore(nCells)) {
        if (cut < 0 && place + kWindow > edge)
            cut = text_.nextCut(start);
        const FilePlace end = cut < 0 ? edge : cut;
        const FilePlace room = place + std::max(nColumns_ + 1 - nCells, 1);
        const std::string_view run = runFrom<hasOneColumn>(place, std::min(end, room));
        for (const char byte : run)
            addCells(nCells, place++ - start, 1, byte == ' ');
        if (!run.empty())
            continue;
        nLineEnd = lineEndAt(place, end);
        if (nLineEnd >= 0)
            continue;
        const Letter now = letter(place, end, nCells);
        addCells(nCells, place - start, now.nColumns, now.shown[0] == L' ');
        place += static_cast<FilePlace>(now.nBytes);
    }
    const FilePlace next = place + std::max(nLineEnd, 0);
    if (nCells <= nColumns_)
        return {start, place, next};
    const int nShown = shownCells(nCells);
    const std::string_view cells(cells_, static_cast<std::size_t>(nCells));
    return {start, placeOf(nShown, nCells, start, place),
            placeOf(lineStart(cells, nShown, nColumns_), nCells, start, next)};
}

FilePlace FileRows::rowOf(FilePlace place)
{
    place = kul::clamp<FilePlace>(place, 0, std::max<FilePlace>(text_.size() - 1, 0));
    FilePlace start = text_.pieceStart(place);
    while (true) {
        const FilePlace next = row(start).next;
        if (next > place || next <= start)
            return start;
        start = next;
    }
}

FilePlace FileRows::down(FilePlace start, int nRows)
{
    for (int n = 0; n < nRows && start < text_.size(); ++n)
        start = row(start).next;
    return start;
}

FilePlace FileRows::up(FilePlace start, int nRows)
{
    constexpr int kKept = 64; // of the rows above, so that few are laid out twice
    FilePlace kept[kKept];
    while (nRows > 0 && start > 0) {
        const FilePlace piece = text_.pieceStart(start - 1);
        int nAbove = 0;
        for (FilePlace at = piece; at < start && at < text_.size(); ++nAbove) {
            kept[nAbove % kKept] = at;
            at = row(at).next;
        }
        if (nAbove >= nRows && nRows <= kKept)
            return kept[(nAbove - nRows) % kKept];
        if (nAbove >= nRows)
            return down(piece, nAbove - nRows);
        nRows -= nAbove;
        start = piece;
    }
    return start;
}

} // namespace kul
