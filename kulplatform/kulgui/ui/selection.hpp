// SPDX-License-Identifier: MIT
//
// Drawing the dialog in focus. ShowUIColors() draws all of it. Where nothing can have changed since
// then but the component in focus, its rows are enough: they are drawn by the same code in the same
// order, and give the same picture.
#ifndef KUL_UI_SELECTION_HPP
#define KUL_UI_SELECTION_HPP

namespace kul {

enum class Changed {
    Component, // anything in it
    Selected,  // which of its elements is selected, or what that one shows
    Nothing,   // by the key: what a program has changed may have to be drawn
};

// Draws what the component in focus shows now, and the one that had the focus before it. What a
// program has changed is drawn with it.
void drawFocused(Changed changed);

} // namespace kul

#endif
