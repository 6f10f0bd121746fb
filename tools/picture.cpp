// How the picture stays small and sharp whatever font shows it: areas are merged into as few
// rectangles as possible, light lines are strokes through the middle of their places instead of
// glyphs, and only the rest is text, one element per run.
#include "picture.hpp"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <map>
#include <string_view>
#include <tuple>
#include <utility>
#include <vector>

namespace kultools {
namespace {

using Colour = unsigned; // 0xRRGGBB

constexpr Colour kInk = 0xd3d7de;
constexpr Colour kPaper = 0x0f1216;
constexpr Colour kFrame = 0x2b303b;
constexpr Colour kEdge = 0x454c5a;
constexpr std::array<Colour, 16> kPalette = {
    0x0f1216, 0xc2403f, 0x3f9b51, 0xb98a2a, 0x2b5cab, 0x8f4fa3, 0x2a939b, 0xc9cdd5,
    0x667080, 0xf0716b, 0x7dd184, 0xf2d06e, 0x78a8f2, 0xd193e2, 0x72d5da, 0xffffff,
};

// A place is 9 x 18, which is what the common fonts ask for at a size of 15.
constexpr int kWidth = 9;
constexpr int kHeight = 18;
constexpr int kFontSize = 15;
constexpr int kBaseline = 14;
constexpr char kFonts[] = "DejaVu Sans Mono,Liberation Mono,Menlo,Consolas,monospace";
constexpr int kMargin = 18; // of the frame around the screen

Colour mixed(Colour low, Colour high, unsigned percent)
{
    Colour result = 0;
    for (unsigned shift : {0u, 8u, 16u}) {
        const unsigned from = low >> shift & 0xff;
        const unsigned to = high >> shift & 0xff;
        result |= (from * (100 - percent) + to * percent) / 100 << shift;
    }
    return result;
}

// 16 colours, a cube of 6 x 6 x 6, 24 shades of grey.
Colour paletteColour(unsigned index)
{
    if (index < kPalette.size())
        return kPalette[index];
    if (index >= 232)
        return (8 + (index - 232) * 10) * 0x010101;
    const auto step = [](unsigned digit) { return digit ? 55 + digit * 40 : 0; };
    index -= 16;
    return step(index / 36) << 16 | step(index / 6 % 6) << 8 | step(index % 6);
}

struct Look {
    Colour ink;
    Colour paper;
    bool bold;
    bool underline;
    bool operator==(const Look&) const = default;
};

Look lookOf(const Cell& cell)
{
    // Bold text in one of the eight basic colours is bright, as on the terminals themselves.
    const bool bright = cell.bold && cell.foreground >= 0 && cell.foreground < 8;
    const int foreground = cell.foreground + (bright ? 8 : 0);
    Look look{
        .ink = foreground < 0 ? kInk : paletteColour(static_cast<unsigned>(foreground)),
        .paper =
            cell.background < 0 ? kPaper : paletteColour(static_cast<unsigned>(cell.background)),
        .bold = cell.bold,
        .underline = cell.underline,
    };
    if (cell.reverse)
        std::swap(look.ink, look.paper);
    return look;
}

// The arms of a light line, from the middle of its place.
enum Arm : unsigned { kLeft = 1, kRight = 2, kUp = 4, kDown = 8 };
constexpr std::pair<std::string_view, unsigned> kLines[] = {
    {"─", kLeft | kRight},
    {"│", kUp | kDown},
    {"┌", kRight | kDown},
    {"┐", kLeft | kDown},
    {"└", kRight | kUp},
    {"┘", kLeft | kUp},
    {"├", kRight | kUp | kDown},
    {"┤", kLeft | kUp | kDown},
    {"┬", kLeft | kRight | kDown},
    {"┴", kLeft | kRight | kUp},
    {"┼", kLeft | kRight | kUp | kDown},
};
constexpr std::pair<std::string_view, unsigned> kShades[] = {
    {"░", 25}, {"▒", 50}, {"▓", 75}, {"█", 100}}; // percent of ink

// The value of the row for this glyph, or 0.
template <size_t N>
unsigned lookUp(const std::pair<std::string_view, unsigned> (&table)[N], std::string_view glyph)
{
    for (const auto& [key, value] : table)
        if (key == glyph)
            return value;
    return 0;
}

[[gnu::format(printf, 1, 2)]] std::string print(const char* format, ...)
{
    char text[512]; // no element without its content is longer
    va_list values;
    va_start(values, format);
    std::vsnprintf(text, sizeof text, format, values);
    va_end(values);
    return text;
}

std::string escaped(std::string_view text)
{
    std::string result;
    for (const char c : text)
        result += c == '<' ? "&lt;" : c == '>' ? "&gt;" : c == '&' ? "&amp;" : std::string(1, c);
    return result;
}

class Picture {
public:
    explicit Picture(const Emulator& screen) : screen_(screen)
    {
        for (int y = 0; y < screen.rows(); ++y) {
            std::vector<Cell> cells;
            for (int x = 0; x < screen.columns(); ++x)
                cells.push_back(screen.cell(y, x));
            addAreas(cells, y);
            addLines(cells, y);
            addText(cells, y);
        }
    }

    std::string svg() const
    {
        const int width = screen_.columns() * kWidth + 2 * kMargin;
        const int height = screen_.rows() * kHeight + 2 * kMargin;
        std::string out = print("<svg xmlns='http://www.w3.org/2000/svg' width='%d' height='%d' "
                                "viewBox='%d %d %d %d'>\n",
                                width, height, -kMargin, -kMargin, width, height);
        out += plate(kMargin - 1, 14, kFrame) + plate(kMargin / 2, 6, kPaper);
        out += "<g shape-rendering='crispEdges'>\n";
        for (const Area& area : areas_)
            out += print("<rect x='%d' y='%d' width='%d' height='%d' fill='#%06x'/>\n",
                         area.x * kWidth, area.y * kHeight, area.columns * kWidth,
                         area.rows * kHeight, area.colour);
        out += "</g>\n<g fill='none' stroke-linecap='square'>\n" + strokes() + cursor();
        out += print("</g>\n<g font-family='%s' font-size='%d' xml:space='preserve'>\n", kFonts,
                     kFontSize);
        return out + text_ + "</g>\n</svg>\n";
    }

private:
    struct Area {
        int x, y, columns, rows;
        Colour colour;
    };
    struct Stroke {
        Colour colour;
        bool upright;
        int at; // its column if it is upright, else its row
        auto operator<=>(const Stroke&) const = default;
    };

    static Colour areaColour(const Cell& cell)
    {
        const Look look = lookOf(cell);
        return mixed(look.paper, look.ink, lookUp(kShades, cell.glyph));
    }

    void addAreas(const std::vector<Cell>& cells, int y)
    {
        const int columns = static_cast<int>(cells.size());
        for (int x = 0, end = 0; x < columns; x = end) {
            const Colour colour = areaColour(cells[static_cast<size_t>(x)]);
            for (end = x + 1;
                 end < columns && areaColour(cells[static_cast<size_t>(end)]) == colour;)
                ++end;
            if (colour == kPaper)
                continue;
            const auto above = std::ranges::find_if(areas_, [&](const Area& area) {
                return area.x == x && area.columns == end - x && area.colour == colour &&
                       area.y + area.rows == y;
            });
            if (above != areas_.end())
                ++above->rows;
            else
                areas_.push_back({x, y, end - x, 1, colour});
        }
    }

    void addLines(const std::vector<Cell>& cells, int y)
    {
        for (int x = 0; x < static_cast<int>(cells.size()); ++x) {
            const Cell& cell = cells[static_cast<size_t>(x)];
            const Colour ink = lookOf(cell).ink;
            const unsigned arms = lookUp(kLines, cell.glyph);
            for (const auto& [arm, upright, at, from] :
                 {std::tuple{kLeft, false, y, 2 * x}, std::tuple{kRight, false, y, 2 * x + 1},
                  std::tuple{kUp, true, x, 2 * y}, std::tuple{kDown, true, x, 2 * y + 1}}) {
                if (!(arms & arm))
                    continue;
                auto& spans = strokes_[{ink, upright, at}];
                if (!spans.empty() && spans.back().second == from)
                    ++spans.back().second;
                else
                    spans.emplace_back(from, from + 1);
            }
        }
    }

    static bool isText(const Cell& cell)
    {
        return (cell.glyph != " " || cell.underline) && !lookUp(kLines, cell.glyph) &&
               !lookUp(kShades, cell.glyph);
    }

    // A run goes on across a single blank, so that a phrase stays one piece of text.
    void addText(const std::vector<Cell>& cells, int y)
    {
        for (size_t start = 0, end = 0; start < cells.size(); start = end) {
            end = start + 1;
            if (!isText(cells[start]))
                continue;
            const Look look = lookOf(cells[start]);
            const auto goesOn = [&](size_t x) {
                return x < cells.size() && isText(cells[x]) && lookOf(cells[x]) == look;
            };
            while (goesOn(end) || (goesOn(end + 1) && cells[end].glyph == " "))
                ++end;
            std::string run;
            for (size_t x = start; x < end; ++x)
                run += cells[x].glyph;
            text_ += print("<text x='%zu' y='%d' textLength='%zu' fill='#%06x'%s%s>",
                           start * kWidth, y * kHeight + kBaseline, (end - start) * kWidth,
                           look.ink, look.bold ? " font-weight='bold'" : "",
                           look.underline ? " text-decoration='underline'" : "") +
                     escaped(run) + "</text>\n";
        }
    }

    // A rounded plate, `out` wider than the screen on each side.
    std::string plate(int out, int radius, Colour fill) const
    {
        return print("<rect x='%d' y='%d' width='%d' height='%d' rx='%d' fill='#%06x' "
                     "stroke='#%06x'/>\n",
                     -out, -out, screen_.columns() * kWidth + 2 * out,
                     screen_.rows() * kHeight + 2 * out, radius, fill, kEdge);
    }

    // One path for all strokes of a colour. They run through the middle of a row of pixels.
    std::string strokes() const
    {
        const auto middle = [](int place, int size) { return place * size + size / 2 + 0.5; };
        std::map<Colour, std::string> paths;
        for (const auto& [stroke, spans] : strokes_)
            for (const auto& [from, to] : spans) {
                const int size = stroke.upright ? kHeight : kWidth;
                const auto along = [&](int half) {
                    return half % 2 ? middle(half / 2, size) : half / 2 * size;
                };
                const double across = middle(stroke.at, stroke.upright ? kWidth : kHeight);
                paths[stroke.colour] += stroke.upright
                                            ? print("M%g %gV%g", across, along(from), along(to))
                                            : print("M%g %gH%g", along(from), across, along(to));
            }
        std::string out;
        for (const auto& [colour, path] : paths)
            out += print("<path stroke='#%06x' d='", colour) + path + "'/>\n";
        return out;
    }

    std::string cursor() const
    {
        const Cursor cursor = screen_.cursor();
        if (!cursor.visible)
            return {};
        return print("<rect x='%g' y='%g' width='%d' height='%d' stroke='#%06x'/>\n",
                     cursor.column * kWidth + 0.5, cursor.row * kHeight + 0.5, kWidth - 1,
                     kHeight - 1, lookOf(screen_.cell(cursor.row, cursor.column)).ink);
    }

    const Emulator& screen_;
    std::vector<Area> areas_;
    std::map<Stroke, std::vector<std::pair<int, int>>> strokes_; // from, to, in half places
    std::string text_;
};

// The parameters that select the look of a cell, after a reset.
std::string rendition(const Cell& cell)
{
    std::string out = "\033[0";
    for (const auto& [wanted, code] : {std::pair{cell.bold, ";1"}, std::pair{cell.underline, ";4"},
                                       std::pair{cell.blink, ";5"}, std::pair{cell.reverse, ";7"}})
        if (wanted)
            out += code;
    for (const auto& [colour, base] :
         {std::pair{cell.foreground, 30}, std::pair{cell.background, 40}})
        if (colour >= 0)
            out += colour < 8 ? ';' + std::to_string(base + colour)
                              : ';' + std::to_string(base + 8) + ";5;" + std::to_string(colour);
    return out + 'm';
}

} // namespace

std::string asAnsi(const Emulator& screen)
{
    const std::string plain = rendition(Cell{});
    std::string out;
    for (int y = 0; y < screen.rows(); ++y) {
        std::string current = plain;
        std::string line;
        std::string blanks; // held back: at the end of a line they are not worth writing
        for (int x = 0; x < screen.columns(); ++x) {
            const Cell cell = screen.cell(y, x);
            const std::string wanted = rendition(cell);
            if (cell.glyph == " " && wanted == plain && current == plain) {
                blanks += ' ';
                continue;
            }
            line += blanks + (wanted == current ? "" : wanted) + cell.glyph;
            blanks.clear();
            current = wanted;
        }
        out += line + (current == plain ? "" : plain) + '\n';
    }
    return out;
}

std::string asSvg(const Emulator& screen)
{
    return Picture(screen).svg();
}

} // namespace kultools
