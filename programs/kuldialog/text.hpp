// SPDX-License-Identifier: MIT
//
// Texts of boxes: what a script writes, made ready to show, and measured.
#ifndef KULDIALOG_TEXT_HPP
#define KULDIALOG_TEXT_HPP

#include <cstddef>

#include "ready/rows.hpp"
#include "settings.hpp"

namespace kuldialog {

// The text with its "\n", blanks and newlines as the settings ask for. The caller frees it; null
// without memory.
char* prepareText(const Settings& settings, const char* szText);

using kulready::columns;
using kulready::Rows;
using kulready::widestLine;

// The text of that place, from 0, in a row of texts with their ends.
const char* textAt(const char* szTexts, int nPlace);

// Behind the characters at the start of a text that are among those.
const char* skip(const char* szText, const char* szCharacters);

// The end of the line at the start of a text that has an end, its newline or that.
const char* lineEnd(const char* szText, const char* end);

// Whether a text begins with another one.
bool begins(const char* szText, const char* szStart);

// Letters in the first bytes of a text, marks with theirs.
int letters(const char* szText, std::size_t size);

// Bytes at the start of a text that fit into nColumns.
std::size_t bytesWithin(const char* szText, int nColumns);

} // namespace kuldialog

#endif
