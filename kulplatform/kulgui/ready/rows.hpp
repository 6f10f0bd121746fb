// SPDX-License-Identifier: MIT
//
// Texts of the ready dialogs: one that grows, and one that is wrapped for people: words go whole to
// the next row, and a word that is wider than the row is broken, so that nothing is lost.
#ifndef KUL_READY_ROWS_HPP
#define KUL_READY_ROWS_HPP

#include <cstddef>
#include <cstdlib>

#include "../kulgui.h"

namespace kulready {

// A text that grows. Without memory it stays as it is and says so.
class Text {
public:
    Text() = default;
    ~Text() { std::free(text_); }
    Text(const Text&) = delete;
    Text& operator=(const Text&) = delete;

    bool add(const char* text, std::size_t size);
    bool add(const char* szText);
    void removeFront(std::size_t size);
    void swap(Text& other);
    bool isWhole() const { return whole_; }
    std::size_t size() const { return size_; }
    const char* text() const { return text_ ? text_ : ""; }

private:
    char* text_ = nullptr;
    std::size_t size_ = 0;
    std::size_t room_ = 0;
    bool whole_ = true;
};

// The sum, or the largest int.
int plus(int nFirst, int nSecond);

// Columns of a text up to its end or its first newline, and of its widest line.
int columns(const char* szText);
int widestLine(const char* szText);

// A text in rows of nColumns at most. The text must stay.
class Rows {
public:
    Rows() = default;
    ~Rows() { std::free(rows_); }
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;

    bool wrap(const char* szText, int nColumns); // false without memory
    int count() const { return nRows_; }
    const char* row(int nRow, std::size_t& size) const;

private:
    struct Row {
        const char* start;
        std::size_t size;
    };

    bool add(const char* start, const char* end);

    Row* rows_ = nullptr;
    int nRows_ = 0;
    int nRoom_ = 0;
};

} // namespace kulready

#endif
