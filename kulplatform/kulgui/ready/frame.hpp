// SPDX-License-Identifier: MIT
//
// What the ready dialogs have in common. Everything here is made of the public calls alone.
//
//     ┌──────── title ─────────┐
//     │ text                   ░     scrolls when it is longer than its room
//     │                        │
//     │   body                 │     what each kind adds
//     │                        │
//     │      OK   Cancel       │
//     └────────────────────────┘
#ifndef KUL_READY_FRAME_HPP
#define KUL_READY_FRAME_HPP

#include "area.hpp"

namespace kulready {

// The words of the dialogs, as kuldialog_setWord has them.
const char* word(int nWord);

// The terminal and edition 2 while a dialog runs; both as they were, then. Makes a primary dialog
// where the program has none.
class Stage {
public:
    Stage();
    ~Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    bool isUsable() const { return usable_; }

private:
    int nEdition_;
    bool usable_;
    bool opened_ = false;  // the terminal
    bool created_ = false; // the primary chain
};

// References in a dialog. A body's own components go up from BODY, its items from ITEM.
enum { BODY = 1, BUTTONS = 10000, SCROLL_BAR, ITEM = 20000, TEXT_ROW = 30000 };

// Results of the dialogs.
constexpr int kCancelled = KUL_DISMISSED;
constexpr int kUnusable = KUL_UNUSABLE;
constexpr int kGone = KUL_GONE;

class Frame {
public:
    Frame(const char* szTitle, const char* szText);
    ~Frame();
    Frame(const Frame&) = delete;
    Frame& operator=(const Frame&) = delete;

    // Before open: rows and columns that the body would like to have, below the text, and how few
    // rows will do; and the buttons, the first one that accepts and one that cancels.
    void want(int nRows, int nLeastRows, int nColumns);
    void wantText(int nRows); // of a text that is still to come
    void addButton(const char* szText, std::size_t size);
    void addButtons(const char* szAccept, const char* szCancel);

    // Makes the dialog, not shown yet. False without memory or terminal.
    bool open();

    // Runs it: the index of the button that was clicked, kCancelled for Escape, kGone. Enter in the
    // body clicks the first button.
    int run();

    // Only shows it.
    void show();

    // For bodies.
    int chain() const { return nChain_; }
    int bodyX() const { return 2; }
    int bodyY() const { return nBodyY_; }
    int bodyWidth() const { return nWidth_ - 4; }
    int bodyHeight() const { return nBodyHeight_; }
    void select(int nButton) { nSelected_ = nButton; }
    void focusButtons() { nFocus_ = BUTTONS; }
    void end(int nResult); // as if that button was clicked, or kCancelled
    void setText(const char* szText, bool toEnd);
    bool isFollowing() const { return area_.isAtEnd(); }

    // Keys come here before they go to the text and the buttons: the key that is left, 0 for none.
    int (*onKey)(Frame& frame, int nKey) = nullptr;
    // Whether a button may end the dialog; else it does what it is for by itself.
    bool (*mayEnd)(Frame& frame, int nButton) = nullptr;
    void* body = nullptr; // the kind's own

    // The component that has the focus in it.
    static int focused() { return GetCurrentSelection()->nUserInterface; }

private:
    static inline Frame* running = nullptr; // whose dialog runs now, the innermost one

    void measure();
    bool createButtons();
    void enterButtons(int nKey) const;
    int moveInButtons(int nKey);
    void handleKey();
    void click(int nButton);

    Text title_;
    const char* szText_;
    Area area_{TEXT_ROW, SCROLL_BAR};
    Text buttons_; // their texts, one after the other
    int nButtons_ = 0;
    int nButtonColumns_ = 0;
    int nChain_ = 0;
    int nWidth_ = 0;
    int nHeight_ = 0;
    int nTextRows_ = 0; // that are shown
    int nBodyY_ = 0;
    int nBodyHeight_ = 0;
    int nWantedText_ = 0;
    int nWanted_ = 0;
    int nLeast_ = 0;
    int nColumns_ = 0;
    int nSelected_ = 0;
    int nFocus_ = BODY;
    int nResult_ = kCancelled;
};

// Runs a dialog that is opened by a function: its result, or kUnusable.
template <typename Open>
int runReady(const char* szTitle, const char* szText, Open open)
{
    const Stage stage;
    if (!stage.isUsable())
        return kUnusable;
    Frame frame(szTitle, szText);
    return open(frame);
}

} // namespace kulready

#endif
