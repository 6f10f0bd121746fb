// SPDX-License-Identifier: MIT
//
// The answer: gathered while the boxes run, written when the terminal is given back. It can be the
// terminal itself that it goes to.
#ifndef KULDIALOG_OUTPUT_HPP
#define KULDIALOG_OUTPUT_HPP

#include "buffer.hpp"
#include "settings.hpp"

namespace kuldialog {

extern Buffer& output; // to the end of the program

inline bool begun = false; // whether there was a box with an answer before, if it was cancelled

// Parts the answer of a box from that of the box before.
void beginAnswer(const Settings& settings);

// One text as it is, or in quotes where the settings ask for them.
void addAnswer(const Settings& settings, const char* szText);

// One text of several.
void addToList(const Settings& settings, const char* szText, bool first, bool last);

// "HELP " and what it is about.
void addHelp(const Settings& settings, const char* szText);

// One line of a form.
void addLine(const Settings& settings, const char* szText);

} // namespace kuldialog

#endif
