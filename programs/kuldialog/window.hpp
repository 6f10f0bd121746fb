// SPDX-License-Identifier: MIT
//
// What all boxes have in common: a dialog of the size that was asked for or that its contents need,
// a text that scrolls when it is longer than its room, a row of buttons, and how it ends.
//
//     ┌──────── title ─────────┐
//     │ text                   │
//     │ ...                    │
//     │   body                 │     what each kind of box adds
//     │                        │
//     │   <OK>   <Cancel>      │
//     └────────────────────────┘
#ifndef KULDIALOG_WINDOW_HPP
#define KULDIALOG_WINDOW_HPP

#include "colors.hpp"
#include "output.hpp"
#include "ready/area.hpp"
#include "text.hpp"

namespace kuldialog {

// References in the dialog; a kind's own components begin at kBody, its items at kItem.
enum Reference {
    kButtonRow = 1,
    kBody,
    kLineBelow = 20000,
    kItem,
    kTextArea = 21000,
    kSecondArea = 24000,
    kTextBar = 27000,
    kSecondBar
};

// The usual rows of buttons.
enum Buttons : unsigned char { kNoButtons, kOk, kExit, kOkCancel, kYesNo };

class Window {
public:
    // The size stands in the arguments from nSizeAt on.
    Window(const Call& call, const char* szText, int nSizeAt = 1);
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;
    ~Window();

    // Makes the dialog, in the middle or where the settings put it, with room for a body of nRows,
    // or nLeastRows at least, below the text. False without memory or screen.
    bool open(Buttons buttons, int nRows = 0, int nLeastRows = 0, int nColumns = 0);

    // Runs it until a button is clicked, Escape, or end(). A window without buttons waits for what
    // the box does by itself.
    Answer run();
    Answer show(); // without waiting for anything

    static void removeLast(); // else a box stays below the next one

    // While it runs:
    static void end(Answer answer);
    static void chooseDefault();      // what Enter does in the body
    void setText(const char* szText); // kept by the caller
    void goToButtons(int nStep);      // from the body, to the next or previous one

    static inline int nLastKey = 0;

    // The keys come to the body first, which returns the one that is to go on, 0 for none. Then
    // they come to buttons and text.
    int (*onKey)(Window& window, int nKey) = nullptr;
    void* body = nullptr; // the kind's own

    const Settings& settings;
    int nChain;
    int nWidth;
    int nHeight;
    int nBodyY = 0;
    int nBodyHeight = 0;
    int nFocus = kButtonRow; // where it begins
    bool isForTexts = false; // longer ones may come: the text has what room there is

    bool isAlone() const { return nFocus == kButtonRow; } // whether there is nothing but buttons
    int innerWidth() const { return nWidth - 4; }
    bool has(int nRef) const; // whether that component has the focus

private:
    struct Button {
        Answer answer;
        const char* label;
    };
    static constexpr int kMostButtons = 4;

    bool isComplete() const { return isWhole && area_.isWhole(); }
    void measure();
    void addButtons(Buttons buttons);
    void addButton(Answer answer, const char* szLabel);
    void createButtons();
    void createLineBelow();
    int movedInRow(int nKey);
    int button() const; // index of the selected one
    void handleKey();
    void showHelpFile() const;
    int defaultButton() const;
    int buttonColumns() const;

    static Window* running;
    static void keyPressed();
    static void buttonClicked();
    static void timeIsUp();

    Button buttons_[kMostButtons];
    int buttonCount_ = 0;
    char* text_;
    kulready::Area area_{kTextArea, kTextBar};
    int textRows_ = 0;
    int bodyWanted_ = 0;
    int bodyLeast_ = 0;
    int bodyColumns_ = 0;
    int timer_ = -1;
    bool cancels_ = false; // has a button for that, or would
    Answer answer_ = kFailed;
};

// The settings without what belongs to one box: for one that a box shows itself.
Settings withoutButtons(const Settings& settings);

} // namespace kuldialog

#endif
