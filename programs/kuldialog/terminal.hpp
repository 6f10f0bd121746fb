// SPDX-License-Identifier: MIT
//
// Where the keyboard and the screen are when a script has put pipes or files in the place of
// standard input and output, and where the answer goes.
#ifndef KULDIALOG_TERMINAL_HPP
#define KULDIALOG_TERMINAL_HPP

#include <kulgui.h>

#include "settings.hpp"

namespace kuldialog {

// Standard input as the script gave it; a gauge and a program box read from it.
extern int nScriptInput;

// Puts something in the place of descriptors below 3 that a script has closed: nothing comes from
// there, and an answer cannot be written. To be called before anything is opened.
void fillDescriptors();

// Gives descriptors 0 and 1 to the terminal, remembering what they were. False without one.
bool takeTerminal();

// Opens the screen, once, with the desktop on all of it. False where the terminal is of no use.
bool openScreen();
bool isScreenOpen();

constexpr int kDesktopChain = 0;
GUI* desktop(); // null before that

// Its size; 0 before that.
int screenWidth();
int screenHeight();

// Gives the terminal back, with the last box on it unless it was to be cleared. Where the terminal
// has another screen to go back to, the text is written there, if there is one.
void closeScreen(const char* szStays, bool clear = false);

// The descriptor of the answer; -1 for one that is not open.
int answerDescriptor(const Settings& settings);

} // namespace kuldialog

#endif
