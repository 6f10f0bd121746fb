// SPDX-License-Identifier: MIT
//
// Texts of boxes: what a script writes, made ready to show, measured and wrapped by columns.
#ifndef KULDIALOG_TEXT_HPP
#define KULDIALOG_TEXT_HPP

#include <cstddef>

#include "settings.hpp"

namespace kuldialog {

// The text with its "\n", blanks and newlines as the settings ask for. The caller frees it; null
// without memory.
char* prepareText(const Settings& settings, const char* szText);

// Columns of a text up to its end or its first newline.
int columns(const char* szText);

// Letters in the first bytes of a text, marks with theirs.
int letters(const char* szText, std::size_t size);

// Bytes at the start of a text that fit into nColumns.
std::size_t bytesWithin(const char* szText, int nColumns);

// The columns of the longest line.
int widestLine(const char* szText);

// A text in rows of nWidth columns at most. Words go whole to the next row; the blanks that a row
// begins with after a newline stay.
class Rows {
public:
    Rows() = default;
    Rows(const Rows&) = delete;
    Rows& operator=(const Rows&) = delete;
    ~Rows();

    bool wrap(const char* szText, int nWidth); // false without memory
    int count() const { return count_; }
    const char* row(int nRow, std::size_t& size) const;

private:
    struct Row {
        unsigned start;
        unsigned size;
    };

    const char* text_ = nullptr;
    Row* rows_ = nullptr;
    int count_ = 0;
    int room_ = 0;
    bool add(const char* from, const char* to);
};

} // namespace kuldialog

#endif
