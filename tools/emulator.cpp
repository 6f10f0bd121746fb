#include "emulator.hpp"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <stdexcept>
#include <utility>
#include <vterm.h>

namespace kultools {
namespace {

// Terminals of the PC family draw lines with "alternate font" (SGR 11) and bytes of code page 437.
constexpr std::u32string_view kFontLow = U" ☺☻♥♦♣♠•◘○◙♂♀♪♫☼►◄↕‼¶§▬↨↑↓→←∟↔▲▼";
constexpr std::u32string_view kFontHigh = U"ÇüéâäàåçêëèïîìÄÅÉæÆôöòûùÿÖÜ¢£¥₧ƒáíóúñÑªº¿⌐¬½¼¡«»"
                                          U"░▒▓│┤╡╢╖╕╣║╗╝╜╛┐└┴┬├─┼╞╟╚╔╩╦╠═╬╧"
                                          U"╨╤╥╙╘╒╓╫╪┘┌█▄▌▐▀αßΓπΣσµτΦΘΩδ∞φε∩≡±≥≤⌠⌡÷≈°∙·√ⁿ²■ ";
static_assert(kFontLow.size() == 32 && kFontHigh.size() == 128);

// The Linux console has these besides the usual graphics of a shifted-out terminal.
constexpr std::pair<char, char32_t> kConsole[] = {{'+', U'→'}, {',', U'←'}, {'-', U'↑'},
                                                  {'.', U'↓'}, {'0', U'█'}, {'h', U'░'}};

constexpr unsigned char kEscape = 0x1b;
constexpr unsigned char kShiftOut = 0x0e;
constexpr unsigned char kShiftIn = 0x0f;

std::string utf8(char32_t point)
{
    if (point < 0x80)
        return {static_cast<char>(point)};
    const int tails = point < 0x800 ? 1 : point < 0x10000 ? 2 : 3;
    std::string result = {static_cast<char>(0xff00u >> (tails + 1) | point >> (6 * tails))};
    for (int shift = 6 * (tails - 1); shift >= 0; shift -= 6)
        result += static_cast<char>(0x80 | (point >> shift & 0x3f));
    return result;
}

} // namespace

Emulator::Emulator(int columns, int rows, std::string_view term)
    : columns_(columns), rows_(rows), console_(term.starts_with("linux")),
      emulator_(nullptr, vterm_free)
{
    if (columns < 1 || rows < 1 || columns > 1000 || rows > 1000)
        throw std::invalid_argument("a screen has 1 to 1000 columns and rows");
    emulator_.reset(vterm_new(rows, columns));
    screen_ = vterm_obtain_screen(emulator_.get());
    mark(); // the callbacks count from the first reset on
    attach();
    mark();
}

void Emulator::attach()
{
    static constexpr VTermScreenCallbacks kCallbacks = {
        .damage =
            [](VTermRect rect, void* context) { // also for what stood there before
                auto& self = *static_cast<Emulator*>(context);
                for (int y = rect.start_row; y < std::min(rect.end_row, self.rows_); ++y)
                    for (int x = rect.start_col; x < std::min(rect.end_col, self.columns_); ++x)
                        ++self.painted_[static_cast<size_t>(y * self.columns_ + x)];
                return 1;
            },
        .moverect = nullptr,
        .movecursor = nullptr,
        .settermprop =
            [](VTermProp property, VTermValue* value, void* context) {
                if (property == VTERM_PROP_CURSORVISIBLE)
                    static_cast<Emulator*>(context)->cursorVisible_ = value->boolean;
                return 1;
            },
        .bell = nullptr,
        .resize = nullptr,
        .sb_pushline = nullptr,
        .sb_popline = nullptr,
    };
    vterm_set_utf8(emulator_.get(), 1);
    vterm_output_set_callback(
        emulator_.get(),
        [](const char* bytes, size_t length, void* context) {
            static_cast<Emulator*>(context)->answers_.append(bytes, length);
        },
        this);
    vterm_screen_set_callbacks(screen_, &kCallbacks, this);
    vterm_screen_set_damage_merge(screen_, VTERM_DAMAGE_CELL);
    vterm_screen_enable_altscreen(screen_, 1);
    vterm_screen_reset(screen_, 1);
}

void Emulator::resize(int columns, int rows)
{
    columns_ = columns;
    rows_ = rows;
    mark();
    vterm_set_size(emulator_.get(), rows, columns);
}

// What a byte stands for in the line drawing sets that the emulator does not know; else nothing.
std::string Emulator::translated(unsigned char byte) const
{
    if (sequence_)
        return {};
    if (console_ && shifted_)
        for (const auto& [code, glyph] : kConsole)
            if (code == byte)
                return utf8(glyph);
    constexpr std::string_view kControls("\0\b\n\f\r\016\017\033", 8); // obeyed in any font
    if ((byte >= 0x20 && byte < 0x80) || kControls.find(static_cast<char>(byte)) != kControls.npos)
        return {};
    VTermValue font{};
    vterm_state_get_penattr(vterm_obtain_state(emulator_.get()), VTERM_ATTR_FONT, &font);
    if (font.number != 1)
        return {};
    return utf8(byte < 0x20 ? kFontLow[byte] : kFontHigh[byte - 0x80u]);
}

// A finished sequence goes on as it is, but for "repeat the last character": the emulator would
// wrap early where that ends beside the last column.
void Emulator::finish(std::string_view sequence)
{
    if (sequence.starts_with("\033[") && sequence.ends_with('b')) {
        const int count = std::clamp(std::atoi(sequence.data() + 2), 1, columns_ * rows_);
        for (int i = 0; i < count; ++i)
            vterm_input_write(emulator_.get(), last_.data(), last_.size());
        return;
    }
    vterm_input_write(emulator_.get(), sequence.data(), sequence.size());
}

void Emulator::feed(std::string_view bytes)
{
    received_ += bytes;
    for (const char character : bytes) {
        const auto byte = static_cast<unsigned char>(character);
        const std::string glyph = translated(byte);
        const std::string seen = glyph.empty() ? std::string(1, character) : glyph;
        const bool inside = sequence_ != 0;
        if (byte == kEscape)
            sequence_ = kEscape;
        else if (sequence_ == kEscape) // these go on: ESC [ to a final byte, ESC ( by one byte
            sequence_ = byte == '[' || byte == '(' || byte == ')' ? byte : 0;
        else if (sequence_ != '[' || byte >= '@')
            sequence_ = 0;
        held_ += seen;
        if (sequence_ != 0)
            continue;
        if (inside)
            finish(held_);
        else
            vterm_input_write(emulator_.get(), held_.data(), held_.size());
        if (!inside && (byte & 0xc0) == 0x80 && glyph.empty())
            last_ += seen; // the rest of a character of several bytes
        else if (!inside && byte >= ' ')
            last_ = seen;
        held_.clear();
        if (byte == kShiftOut || byte == kShiftIn)
            shifted_ = byte == kShiftOut;
    }
}

std::string Emulator::takeAnswers()
{
    return std::exchange(answers_, {});
}

Cell Emulator::cell(int row, int column) const
{
    VTermScreenCell seen{};
    if (row < 0 || row >= rows_ || column < 0 || column >= columns_ ||
        !vterm_screen_get_cell(screen_, {row, column}, &seen))
        return {};
    Cell result;
    // The second cell of a wide letter looks as the first; what is kept of it is what was there
    // before.
    if (seen.chars[0] == UINT32_MAX) {
        result = cell(row, column - 1);
        result.glyph.clear();
        return result;
    }
    if (seen.chars[0]) {
        result.glyph.clear();
        for (int i = 0; i < VTERM_MAX_CHARS_PER_CELL && seen.chars[i]; ++i)
            result.glyph += utf8(seen.chars[i]);
    }
    if (VTERM_COLOR_IS_INDEXED(&seen.fg) && !VTERM_COLOR_IS_DEFAULT_FG(&seen.fg))
        result.foreground = seen.fg.indexed.idx;
    if (VTERM_COLOR_IS_INDEXED(&seen.bg) && !VTERM_COLOR_IS_DEFAULT_BG(&seen.bg))
        result.background = seen.bg.indexed.idx;
    result.bold = seen.attrs.bold;
    result.underline = seen.attrs.underline != VTERM_UNDERLINE_OFF;
    result.blink = seen.attrs.blink;
    result.reverse = seen.attrs.reverse;
    return result;
}

std::string Emulator::row(int row, Blanks blanks) const
{
    std::string result;
    for (int x = 0; x < columns_; ++x)
        result += cell(row, x).glyph;
    if (blanks == Blanks::Trim)
        result.erase(result.find_last_not_of(' ') + 1);
    return result;
}

std::string Emulator::text() const
{
    std::string result;
    for (int y = 0; y < rows_; ++y)
        result += row(y) + '\n';
    return result;
}

Cursor Emulator::cursor() const
{
    VTermPos place{};
    vterm_state_get_cursorpos(vterm_obtain_state(emulator_.get()), &place);
    return {place.row, place.col, cursorVisible_};
}

void Emulator::mark()
{
    received_.clear();
    painted_.assign(static_cast<size_t>(rows_ * columns_), 0);
}

int Emulator::painted(int row, int column) const
{
    const bool inside = row >= 0 && row < rows_ && column >= 0 && column < columns_;
    return inside ? painted_[static_cast<size_t>(row * columns_ + column)] : 0;
}

int Emulator::paintedMost() const
{
    return *std::ranges::max_element(painted_);
}

} // namespace kultools
