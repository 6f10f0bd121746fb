// SPDX-License-Identifier: MIT
//
// Frames are letters between lines, and lines are letters of a second alphabet. Where a terminal
// has one string for all attributes ("sgr"), curses sends it at each change of the alphabet; it
// takes the colours with it, which follow anew:
//
//     with sgr      ESC[0;10m SO ESC[34m ESC[47m x ESC[0;10m SI ESC[34m ESC[47m text
//     without it    SO x SI text
//
// That is a third of what a screen costs. So curses is given the description without this string,
// compiled as term(5) says, in place of a file: it takes "hex:" and the digits for the name of a
// database. An older curses finds nothing under that name and goes on to the real description.
#include "description.hpp"

#include <cstdlib>
#include <cstring>
#include <initializer_list>

#include <langinfo.h>
#include <term.h>

#include "line.hpp"
#include "memory.hpp"

namespace kul {

namespace {

constexpr char kVariable[] = "TERMINFO";
constexpr char kPrefix[] = "TERMINFO=hex:";
constexpr int kMagic = 01036; // numbers of 32 bits
constexpr std::size_t kMostBytes = 8192;

// A compiled description as hexadecimal digits, little end first. It remembers when it was full.
class Digits {
public:
    Digits() { std::memcpy(text_, kPrefix, sizeof kPrefix); }

    void put(int nValue, int nBytes)
    {
        for (; nBytes > 0; --nBytes, nValue >>= 8, ++nBytes_) {
            if (nBytes_ >= kMostBytes)
                continue;
            char* at = text_ + sizeof kPrefix - 1 + 2 * nBytes_;
            at[0] = "0123456789abcdef"[nValue >> 4 & 15];
            at[1] = "0123456789abcdef"[nValue & 15];
            at[2] = '\0';
        }
    }

    void put(const char* szText)
    {
        for (; *szText; ++szText)
            put(*szText, 1);
        put(0, 1);
    }

    bool isFull() const { return nBytes_ > kMostBytes; }

    // Numbers lie at even places.
    void align() { put(0, static_cast<int>(nBytes_ % 2)); }

    char* text() { return text_; }

private:
    char text_[sizeof kPrefix + 2 * kMostBytes];
    std::size_t nBytes_ = 0;
};

template <typename Names>
int count(const Names& names)
{
    int n = 0;
    while (names[n])
        ++n;
    return n;
}

int size(const char* szText)
{
    return szText ? static_cast<int>(std::strlen(szText)) + 1 : 0;
}

// Whether standing out is bold reverse video by the string for all attributes: its own string is
// reverse video alone on some of these terminals.
bool standsOutBold()
{
    const char* szAll = tigetstr("sgr");
    char* szBold = copyText(tiparm(szAll, 0, 0, 1, 0, 0, 1, 0, 0, 0));
    const char* szStandout = tiparm(szAll, 1, 0, 0, 0, 0, 0, 0, 0, 0);
    const bool same = szBold && szStandout && std::strcmp(szStandout, szBold) == 0;
    std::free(szBold);
    return same && isString(tigetstr("bold"));
}

// The terminal's strings in their order, null for those that are not there or not wanted.
struct Strings {
    static constexpr int kMost = 1024;
    const char* texts[kMost];
    int nCount = 0;
    int nBytes = 0; // that they take together
    char standout[64] = "";

    Strings()
    {
        if (standsOutBold())
            std::snprintf(standout, sizeof standout, "%s%s", tigetstr("bold"), tigetstr("rev"));
        for (; nCount < kMost && strnames[nCount]; ++nCount) {
            const char* szName = strnames[nCount];
            const char* szText = std::strcmp(szName, "sgr") != 0 ? tigetstr(szName) : nullptr;
            if (*standout && std::strcmp(szName, "smso") == 0)
                szText = standout;
            else if (*standout && std::strcmp(szName, "rmso") == 0)
                szText = nullptr; // it may leave the text bold; "sgr0" is there
            texts[nCount] = isString(szText) ? szText : nullptr;
            nBytes += size(texts[nCount]);
        }
    }
};

// Whether curses can do without the string.
bool isSimple()
{
    for (const char* szName : {"sgr", "sgr0", "rev", "smacs", "rmacs"}) {
        if (!isString(tigetstr(szName)))
            return false;
    }
    return tigetnum("xmc") < 0;
}

// The one number beyond the standard ones that curses asks for: whether a terminal in UTF-8 mode
// lacks the second alphabet.
void compileExtension(Digits& out)
{
    constexpr char kName[] = "U8";
    const int nValue = tigetnum(kName);
    if (nValue < 0)
        return;
    out.align();
    for (const int nCount : {0, 1, 0, 1, size(kName)}) // booleans, numbers, strings; names, bytes
        out.put(nCount, 2);
    out.put(nValue, 4);
    out.put(0, 2);
    out.put(kName);
}

// Compiles the current description.
void compile(const char* szTerm, Digits& out)
{
    const Strings strings;
    out.put(kMagic, 2);
    for (const int nSize :
         {size(szTerm), count(boolnames), count(numnames), strings.nCount, strings.nBytes})
        out.put(nSize, 2);
    out.put(szTerm);
    for (int i = 0; boolnames[i]; ++i)
        out.put(tigetflag(boolnames[i]) > 0 ? 1 : 0, 1);
    out.align();
    for (int i = 0; numnames[i]; ++i)
        out.put(tigetnum(numnames[i]), 4);
    int nOffset = 0;
    for (int i = 0; i < strings.nCount; ++i) {
        out.put(strings.texts[i] ? nOffset : -1, 2);
        nOffset += size(strings.texts[i]);
    }
    for (int i = 0; i < strings.nCount; ++i) {
        if (strings.texts[i])
            out.put(strings.texts[i]);
    }
    compileExtension(out);
}

// The environment variable while curses begins; as it was before, then.
class Variable {
public:
    explicit Variable(char* szSetting)
    {
        const char* szValue = std::getenv(kVariable);
        before_ = szValue ? copyText(szValue) : nullptr;
        changed_ = (!szValue || before_) && putenv(szSetting) == 0;
    }

    ~Variable()
    {
        // The setting must not stay in the environment, whatever happens.
        if (changed_ && (!before_ || setenv(kVariable, before_, 1) != 0))
            unsetenv(kVariable);
        std::free(before_);
    }

    Variable(const Variable&) = delete;
    Variable& operator=(const Variable&) = delete;

private:
    char* before_;
    bool changed_;
};

#if NCURSES_WIDECHAR
void settleLines() {}
#else
// Where a terminal in UTF-8 lacks the second alphabet, a curses without wide characters never goes
// there, but goes on to draw with its letters.
void settleLines()
{
    const char* szOrder = std::getenv("NCURSES_NO_UTF8_ACS");
    const bool lacking = szOrder ? std::atoi(szOrder) != 0 : tigetnum("U8") > 0;
    if (!lacking || std::strcmp(nl_langinfo(CODESET), "UTF-8") != 0)
        return;
    for (const char* line :
         {"q-", "x|", "a:", "l+", "k+", "m+", "j+", "t+", "u+", "v+", "w+", "n+", "`+"})
        acs_map[static_cast<unsigned char>(line[0])] = static_cast<chtype>(line[1]);
}
#endif

} // namespace

bool isString(const char* szString)
{
    return szString && szString != reinterpret_cast<char*>(-1);
}

SCREEN* openScreen(const char* szTerm, std::FILE* output, std::FILE* input)
{
    int nResult = 0;
    if (setupterm(szTerm, fileno(output), &nResult) != OK)
        return nullptr;
    const bool usable = isString(tigetstr("cup"));
    const char* szName = szTerm ? szTerm : std::getenv("TERM");
    Digits digits;
    const bool lean = usable && szName && isSimple();
    if (lean)
        compile(szName, digits);
    del_curterm(cur_term);
    if (!usable)
        return nullptr;
    setOutput(output);
    SCREEN* screen = nullptr;
    if (!lean || digits.isFull()) {
        screen = newterm(szTerm, output, input);
    } else {
        const Variable variable(digits.text());
        screen = newterm(szTerm, output, input);
    }
    if (screen)
        settleLines();
    return screen;
}

} // namespace kul
