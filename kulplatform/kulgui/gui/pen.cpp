// SPDX-License-Identifier: MIT
//
// A way from cell to cell is a way to the row and one along it, from where the pen stands or from
// the start of its row, or one code for both. All are written down, and the shortest is taken.
#include "pen.hpp"

#include <algorithm>
#include <cstdlib>
#include <cstring>

namespace kul {

namespace {

constexpr int kTab = 8;

// A few bytes. What exceeds them is no short way, and only its length counts.
class Short {
public:
    void add(char character)
    {
        if (size_ < sizeof text_)
            text_[size_] = character;
        ++size_;
    }

    void add(char character, int nTimes)
    {
        for (int i = 0; i < nTimes && size_ < sizeof text_; ++i)
            add(character);
    }

    void add(const Short& other)
    {
        for (std::size_t i = 0; i < std::min(other.size_, sizeof text_); ++i)
            add(other.text_[i]);
    }

    void number(int n)
    {
        if (n >= 10)
            number(n / 10);
        add(static_cast<char>('0' + n % 10));
    }

    // "ESC [ n final"; 1 need not be said.
    void code(int n, char final)
    {
        add('\033');
        add('[');
        if (n != 1)
            number(n);
        add(final);
    }

    std::size_t size() const { return size_; }
    std::string_view text() const { return {text_, std::min(size_, sizeof text_)}; }

private:
    char text_[64];
    std::size_t size_ = 0;
};

const Short& shorter(const Short& one, const Short& other)
{
    return other.size() < one.size() ? other : one;
}

// "ESC [ y ; x final", counted from 1, which need not be said.
Short placed(Place at, char final)
{
    Short code;
    code.add('\033');
    code.add('[');
    if (at.nY > 0)
        code.number(at.nY + 1);
    if (at.nX > 0) {
        code.add(';');
        code.number(at.nX + 1);
    }
    code.add(final);
    return code;
}

// Several times the same byte, or one code with their number.
Short many(bool known, std::string_view step, int nCount, char final)
{
    Short way;
    if (known && static_cast<std::size_t>(nCount) * step.size() <= 3) {
        for (int i = 0; i < nCount; ++i) {
            for (const char character : step)
                way.add(character);
        }
        return way;
    }
    way.code(nCount, final);
    return way;
}

Short alongColumn(int nFrom, int nTo, bool feeds)
{
    if (nFrom == nTo)
        return {};
    const Short way = nFrom < nTo ? many(feeds, "\n", nTo - nFrom, 'B')
                                  : many(codes().reversesFeed, "\033M", nFrom - nTo, 'A');
    Short direct;
    direct.code(nTo + 1, 'd');
    return codes().placesRow ? shorter(way, direct) : way;
}

Short byTabs(int nTabs, int nRest)
{
    Short way;
    way.add('\t', nTabs);
    if (nRest > 0)
        way.add(many(false, "", nRest, 'C'));
    if (nRest < 0)
        way.add(many(codes().backspaces, "\b", -nRest, 'D'));
    return way;
}

Short alongRow(int nFrom, int nTo, bool tabs)
{
    if (nFrom == nTo)
        return {};
    Short way = nFrom < nTo ? many(false, "", nTo - nFrom, 'C')
                            : many(codes().backspaces, "\b", nFrom - nTo, 'D');
    if (codes().placesColumn) {
        Short direct;
        direct.code(nTo + 1, 'G');
        way = shorter(way, direct);
    }
    const int nTabs = nTo / kTab - nFrom / kTab;
    if (tabs && nFrom < nTo && nTabs > 0)
        way = shorter(way, byTabs(nTabs, nTo % kTab));
    const int nBeyond = kTab - nTo % kTab;
    if (tabs && nFrom < nTo && nBeyond < kTab && nTo + nBeyond < COLS)
        way = shorter(way, byTabs(nTabs + 1, -nBeyond));
    return way;
}

Short shortestWay(Place from, Place to, bool feeds, bool tabs)
{
    Short best = placed(to, 'H');
    if (from.nY < 0)
        return best;
    Short fromStart;
    fromStart.add('\r');
    Short direct = alongColumn(from.nY, to.nY, feeds);
    fromStart.add(direct);
    if (from.nX < COLS) {
        direct.add(alongRow(from.nX, to.nX, tabs));
        best = shorter(best, direct);
    } else if (!codes().waitsAtEdge) {
        return best;
    }
    if (from.nX <= to.nX) // no way leads back
        return best;
    fromStart.add(alongRow(0, to.nX, tabs));
    return shorter(best, fromStart);
}

void addParameter(Short& code, bool& first, std::string_view parameter)
{
    if (!first)
        code.add(';');
    first = false;
    for (const char character : parameter)
        code.add(character);
}

void addColor(Short& code, bool& first, char kind, short color)
{
    if (color >= 8) {
        addParameter(code, first, colorParameter(kind == '3', color));
        return;
    }
    const char parameter[] = {kind, color == kDefaultColor ? '9' : static_cast<char>('0' + color)};
    addParameter(code, first, {parameter, 2});
}

void addAttributes(Short& code, bool& first, unsigned attributes)
{
    for (int i = 0; i < kAttributes; ++i) {
        if (attributes >> i & 1 && *codes().attributes[i])
            addParameter(code, first, codes().attributes[i]);
    }
}

// The change of what is worn by what is new, or of nothing after all is switched off: an empty
// parameter does that.
Short changed(const Style& from, const Style& to, bool anew)
{
    bool first = !anew;
    Short code;
    code.add('\033');
    code.add('[');
    addAttributes(code, first, to.attributes & ~from.attributes);
    if (to.foreground != from.foreground)
        addColor(code, first, '3', to.foreground);
    if (to.background != from.background)
        addColor(code, first, '4', to.background);
    code.add('m');
    return first ? Short() : code;
}

// Whether that can be had without switching all off.
bool isChange(const Style& from, const Style& to)
{
    const bool toDefault = (to.foreground == kDefaultColor && from.foreground != kDefaultColor) ||
                           (to.background == kDefaultColor && from.background != kDefaultColor);
    return !(from.attributes & ~to.attributes) && (!toDefault || codes().hasDefaultColors);
}

} // namespace

void Pen::start(Place place, const Style& worn, bool feeds, bool tabs)
{
    place_ = place;
    style_ = worn;
    inLines_ = failed_ = false;
    feeds_ = feeds && codes().feeds;
    tabs_ = tabs && codes().tabs;
    size_ = 0;
}

void Pen::returnTo(const State& state)
{
    place_ = state.place;
    style_ = state.style;
    inLines_ = state.inLines;
    size_ = state.size;
}

void Pen::add(std::string_view text)
{
    if (text.empty()) // a code that the terminal does not have
        return;
    if (size_ + text.size() > room_) {
        const std::size_t room = std::max<std::size_t>({2 * room_, size_ + text.size(), 1024});
        auto* larger = static_cast<char*>(std::realloc(text_, room));
        if (!larger) {
            failed_ = true;
            return;
        }
        text_ = larger;
        room_ = room;
    }
    std::memcpy(text_ + size_, text.data(), text.size());
    size_ += text.size();
}

void Pen::code(int nNumber, char final)
{
    Short text;
    text.code(nNumber, final);
    add(text.text());
}

bool Pen::moveTo(Place to, std::size_t nMost)
{
    if (to == place_)
        return true;
    const Short way = shortestWay(place_, to, feeds_, tabs_);
    if (way.size() > nMost)
        return false;
    add(way.text());
    place_ = to;
    return true;
}

void Pen::wear(const Style& style)
{
    if (style == style_)
        return;
    const bool isLess = isChange(style_, style);
    Short code = changed(style_, style, false);
    if (!isLess || style.foreground < 0 || style.background < 0) {
        const Short all = changed({}, style, true);
        if (!isLess || all.size() < code.size()) {
            if (codes().fontIsAttribute)
                useLines(false);
            code = all;
        }
    }
    add(code.text());
    style_ = style;
}

void Pen::useLines(bool inLines)
{
    if (inLines != inLines_)
        add(inLines ? codes().linesOn : codes().linesOff);
    inLines_ = inLines;
}

void Pen::write(std::string_view letter, int nColumns)
{
    add(letter);
    place_.nX += nColumns;
    if (place_.nX >= COLS && !codes().waitsAtEdge)
        place_ = kNowhere;
}

void Pen::repeat(char letter, int nCount)
{
    add(letter);
    code(nCount - 1, 'b');
    place_.nX += nCount;
}

void Pen::eraseCells(int nCount)
{
    code(nCount, 'X');
}

void Pen::eraseRow()
{
    code(1, 'K');
}

void Pen::scroll(int nTop, int nBottom, int nRows)
{
    const bool isPart = nTop > 0 || nBottom < LINES - 1;
    if (isPart) {
        add(placed({nTop, nBottom}, 'r').text());
        place_ = kNowhere;
    }
    moveTo({nRows > 0 ? nBottom : nTop, 0});
    for (int i = std::abs(nRows); i > 0; --i)
        add(nRows > 0 ? "\n" : "\033M");
    if (isPart) {
        code(1, 'r');
        place_ = kNowhere;
    }
}

void Pen::clear()
{
    add(codes().clear);
    place_ = {0, 0};
}

} // namespace kul
