// SPDX-License-Identifier: MIT
#include "file_rows.hpp"

#include <algorithm>
#include <cwchar>

#include "../gui/draw.hpp"
#include "../gui/text.hpp"

namespace kul {

namespace {

constexpr int kTab = 8;
// Bytes of a character, at the most, in any encoding that is in use; without wide characters in
// curses a byte is a character.
constexpr int kLongest = NCURSES_WIDECHAR ? 8 : 1;

} // namespace

FileRows::FileRows(FileText& text, int nColumns)
    : text_(text), nColumns_(std::clamp(nColumns, 1, kMaxColumns))
{
}

std::string_view FileRows::plainFrom(FilePlace place, FilePlace end)
{
    const std::string_view bytes = text_.at(place);
    const std::size_t nMost = std::min(bytes.size(), static_cast<std::size_t>(end - place));
    std::size_t n = 0;
    while (n < nMost && isPlain(bytes[n]))
        ++n;
    return {bytes.data(), n};
}

FileRows::Glyph FileRows::glyph(FilePlace place, FilePlace end, int nColumn)
{
    const int nByte = text_.byteAt(place);
    if (nByte == '\t')
        return {L' ', 1, kTab - nColumn % kTab};
    if (nByte >= 0x80)
        return wideGlyph(place, end);
    return {isPlain(static_cast<char>(nByte)) ? static_cast<wchar_t>(nByte) : kStandIn, 1, 1};
}

// A character of the locale's encoding.
FileRows::Glyph FileRows::wideGlyph(FilePlace place, FilePlace end)
{
    char bytes[kLongest] = {};
    std::size_t nBytes = 0;
    for (; nBytes < kLongest && place < end; ++place) {
        const int nByte = text_.byteAt(place);
        if (nByte < 0)
            break;
        bytes[nBytes++] = static_cast<char>(nByte);
    }
    wchar_t character = 0;
    std::mbstate_t state{};
    const std::size_t nUsed = std::mbrtowc(&character, bytes, nBytes, &state);
    if (nUsed == 0 || nUsed > nBytes)
        return {kStandIn, 1, 1};
    const int nCells = wcwidth(character);
    if (nCells < 1 || nCells > nColumns_)
        return {kStandIn, static_cast<int>(nUsed), 1};
    return {character, static_cast<int>(nUsed), nCells};
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
    if (newline + kLongest < edge && text_.byteAt(newline) == '\n')
        return {start, newline, newline + 1};
    return wrappedRow(start, edge);
}

// A row of a line that is longer or holds more than plain characters. Cuts are at or behind edge.
FileRows::Row FileRows::wrappedRow(FilePlace start, FilePlace edge)
{
    const int nWanted = 2 * nColumns_ + 1;
    FilePlace cut = -1; // not known: it matters near the edge only
    FilePlace place = start;
    int nCells = 0;
    int nLineEnd = -1; // bytes that end the line, -1 while it goes on
    while (nCells < nWanted) {
        if (cut < 0 && place + kLongest > edge)
            cut = text_.nextCut(start);
        const FilePlace end = cut < 0 ? edge : cut;
        const int nByte = place < end ? text_.byteAt(place) : -1;
        if (nByte < 0 || nByte == '\n')
            nLineEnd = nByte < 0 ? 0 : 1;
        else if (nByte == '\r' && text_.byteAt(place + 1) == '\n')
            nLineEnd = 2;
        if (nLineEnd >= 0)
            break;
        const bool blank = nByte == ' ' || nByte == '\t';
        places_[nCells] = static_cast<int>(place - start);
        cells_[nCells++] = blank ? ' ' : 'x';
        if (nByte < 0x80 && nByte != '\t') {
            ++place;
            continue;
        }
        const Glyph now = glyph(place, end, nCells - 1);
        for (int i = 1; i < now.nCells; ++i, ++nCells) {
            places_[nCells] = -1;
            cells_[nCells] = cells_[nCells - 1];
        }
        place += now.nBytes;
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
    place = std::clamp<FilePlace>(place, 0, std::max<FilePlace>(text_.size() - 1, 0));
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
    while (nRows > 0 && start > 0) {
        const FilePlace piece = text_.pieceStart(start - 1);
        int nAbove = 0;
        for (FilePlace at = piece; at < start && at < text_.size(); ++nAbove)
            at = row(at).next;
        if (nAbove >= nRows)
            return down(piece, nAbove - nRows);
        nRows -= nAbove;
        start = piece;
    }
    return start;
}

} // namespace kul
