// SPDX-License-Identifier: MIT
//
// Bytes for the terminal: where the next letter goes, how it looks, and the letter, each in the
// fewest bytes that its codes allow. The pen knows where it stands and what it wears, and sends
// nothing by itself.
#ifndef KUL_GUI_PEN_HPP
#define KUL_GUI_PEN_HPP

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "description.hpp"

namespace kul {

// A cell of the screen.
struct Place {
    int nY;
    int nX;
    bool operator==(const Place&) const = default;
};

constexpr Place kNowhere{-1, -1};

constexpr short kDefaultColor = -1;

struct Style {
    unsigned attributes = 0; // bits in the order of Codes
    short foreground = kDefaultColor;
    short background = kDefaultColor;
    bool operator==(const Style&) const = default;
};

class Pen {
public:
    // Begins without bytes, as it was left; nowhere if it is not known where the cursor stands.
    void start(Place place, const Style& worn, bool feeds, bool tabs);

    Place place() const { return place_; }
    const Style& style() const { return style_; }
    bool inLines() const { return inLines_; }

    // Bytes so far; failed() when there was no memory for all of them.
    std::string_view bytes() const { return {text_, size_}; }
    bool failed() const { return failed_; }

    // Where it was in what it writes, and back to that: what came after is not written.
    struct State {
        Place place;
        Style style;
        bool inLines;
        std::size_t size; // of the bytes
    };
    State state() const { return {place_, style_, inLines_, size_}; }
    void returnTo(const State& state);

    // False, and nothing written, where that takes more bytes.
    bool moveTo(Place to, std::size_t nMost = SIZE_MAX);

    void wear(const Style& style);
    void useLines(bool inLines); // the second alphabet, or the first one
    void write(std::string_view letter, int nColumns);
    void repeat(char letter, int nCount); // in this many cells, the last column not among them
    void eraseCells(int nCount);
    void eraseRow(); // from here to its end
    void clear();    // the screen, in the colour that is worn

    // Moves the rows from one to another up, or down for a number below 0; what comes in is erased
    // in the colour that is worn. Only where it scrolls.
    bool scrolls() const { return feeds_ && codes().scrolls; }
    void scroll(int nTop, int nBottom, int nRows);

private:
    void add(std::string_view text);
    void add(char character) { add({&character, 1}); }
    void code(int nNumber, char final);

    Place place_ = kNowhere;
    Style style_;
    bool inLines_ = false;
    bool feeds_ = false;
    bool tabs_ = false;
    bool failed_ = false;
    char* text_ = nullptr;
    std::size_t size_ = 0;
    std::size_t room_ = 0;
};

} // namespace kul

#endif
