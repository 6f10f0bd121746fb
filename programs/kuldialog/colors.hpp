// SPDX-License-Identifier: MIT
//
// Colours of the boxes, and how people change them.
#ifndef KULDIALOG_COLORS_HPP
#define KULDIALOG_COLORS_HPP

namespace kuldialog {

enum Role : unsigned char { kDesktop, kWindowColor, kFocus, kButtons, kFieldsColor, kRoles };

// A COLORSET for each.
extern unsigned char colors[kRoles];

// Takes what NEWT_COLORS says, "root=white,blue:window=..." , and the file that DIALOGRC names,
// lines of "screen_color = (WHITE,BLUE,ON)". What they say of other things is passed over.
void readColors();

// Writes a file as DIALOGRC names one, with the colours that are there. False where that fails.
bool writeColors(const char* szFile);

} // namespace kuldialog

#endif
