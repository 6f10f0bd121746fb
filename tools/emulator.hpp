// The screen of a terminal without the terminal: takes the bytes that a program writes and tells
// what stands where. The emulation is libvterm's; in front of it is a small translation for two
// line drawing sets that it does not know.
//
// Places are (row, column) from 0; a place outside of the screen is a blank in default colours.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

struct VTerm;
struct VTermScreen;

namespace kultools {

// One place on the screen. A colour is its index in the palette of 256, or kDefaultColour.
inline constexpr int kDefaultColour = -1;
struct Cell {
    std::string glyph = " "; // UTF-8; empty right of a glyph that is two columns wide
    int foreground = kDefaultColour;
    int background = kDefaultColour;
    bool bold = false;
    bool underline = false;
    bool blink = false;
    bool reverse = false;
    bool operator==(const Cell&) const = default;
};

// As the eye sees it: of a blank without attributes the background alone.
inline Cell seen(Cell cell)
{
    if (cell == Cell{.foreground = cell.foreground, .background = cell.background})
        cell.foreground = kDefaultColour;
    return cell;
}

struct Cursor {
    int row;
    int column;
    bool visible;
};

enum class Blanks { Trim, Keep };

class Emulator {
public:
    // `term` is the TERM of the program. Throws std::invalid_argument for a size beyond 1 to 1000.
    Emulator(int columns, int rows, std::string_view term);
    Emulator(const Emulator&) = delete; // the callbacks hold its address
    Emulator& operator=(const Emulator&) = delete;

    void resize(int columns, int rows); // what was there is kept as far as it fits

    void feed(std::string_view bytes);
    std::string takeAnswers(); // what a terminal says back to questions among the bytes so far

    int columns() const { return columns_; }
    int rows() const { return rows_; }
    Cell cell(int row, int column) const;
    std::string row(int row, Blanks blanks = Blanks::Trim) const;
    std::string text() const; // all rows, trimmed, each with its line feed
    Cursor cursor() const;

    // What came since the last mark().
    void mark();
    const std::string& received() const { return received_; } // the bytes as they were fed
    int painted(int row, int column) const; // how often the place was written or erased
    int paintedMost() const;                // the largest of these counts

private:
    void attach();
    std::string translated(unsigned char byte) const;
    void finish(std::string_view sequence);

    int columns_;
    int rows_;
    bool console_; // the Linux console
    std::unique_ptr<VTerm, void (*)(VTerm*)> emulator_;
    VTermScreen* screen_;
    bool cursorVisible_ = true;
    unsigned char sequence_ = 0; // how the control sequence that is under way began, or 0
    std::string held_;           // what came of it so far
    std::string last_;           // the last character shown, for what repeats it
    bool shifted_ = false;       // between shift-out and shift-in
    std::string answers_;
    std::string received_;
    std::vector<int> painted_;
};

} // namespace kultools
