// SPDX-License-Identifier: MIT
#include "window_test.hpp"

#include <algorithm>
#include <climits>
#include <cstdlib>
#include <ctime>
#include <cwchar>
#include <deque>
#include <string_view>
#include <utility>

#include "gui/description.hpp"
#include "gui/update.hpp"
#include "ui/component.hpp"
#include "ui/selection.hpp"

namespace {

std::deque<int> script;
std::vector<KULCALLBACK> scriptActions;
const void* watched = nullptr;
std::size_t watchedBytes = 0;
std::time_t clockNow = 1000000;
int nWritten = 0;
int nUpdates = INT_MIN; // since a key was given; far below while none was

bool allocationFails()
{
    int& nGood = kultest::FailingMemory::nGoodAllocations;
    return nGood != INT_MAX && (nGood <= 0 || nGood-- <= 0);
}

void startCurses()
{
    static SCREEN* screen = nullptr;
    if (screen)
        return;
    setenv("LINES", "24", 1);
    setenv("COLUMNS", "80", 1);
    FILE* nothing = std::fopen("/dev/null", "r+");
    screen = kul::openScreen("xterm-256color", nothing, nothing);
    ASSERT_NE(screen, nullptr);
    InitializeColorSets();
}

// Line drawing characters, as curses keeps them, in Unicode.
std::string lineGlyph(char letter)
{
    constexpr std::string_view kLetters = "lkmjqxtuwva`";
    constexpr std::string_view kGlyphs = "┌┐└┘─│├┤┬┴▒◆";
    const std::size_t place = kLetters.find(letter);
    return place == kLetters.npos ? "?" : std::string(kGlyphs.substr(3 * place, 3));
}

// What was drawn of the dialog in focus, mostly in part, is what drawing all of it gives.
void expectDrawnWhole()
{
    const CHAIN* chain = GetChain(GetCurrentSelection()->nChain);
    WINDOW* win = chain && chain->Pointer && chain->Pointer->nVisible == T ? chain->Pointer->winMain : nullptr;
    if (!win)
        return;
    WINDOW* before = dupwin(win);
    ShowUIColors();
    for (int y = 0; y < getmaxy(win); ++y) {
        for (int x = 0; x < getmaxx(win); ++x) {
            const kultest::Cell one = kultest::cellOf(before, y, x);
            const kultest::Cell other = kultest::cellOf(win, y, x);
            ASSERT_TRUE(one.glyph == other.glyph && one.pair == other.pair && one.attributes == other.attributes)
                << "not drawn: " << y << ' ' << x << " '" << one.glyph << "' '" << other.glyph << "' " << one.pair
                << ' ' << other.pair;
        }
    }
    delwin(before);
}

template <typename Look>
kultest::Rows rowsOf(WINDOW* win, int y, int x, int height, int width, Look look)
{
    kultest::Rows rows(static_cast<std::size_t>(height));
    for (std::string& row : rows) {
        for (int column = x; column < x + width; ++column)
            row += look(kultest::cellOf(win, y, column));
        ++y;
    }
    return rows;
}

std::string joined(const kultest::Rows& rows)
{
    std::string text;
    for (const std::string& row : rows)
        text += row + '|';
    return text;
}

} // namespace

// The linker sends the library's calls of these here.
extern "C" {

void* __real_malloc(std::size_t size);
void* __real_calloc(std::size_t count, std::size_t size);
char* __real_strdup(const char* text);
int __real_doupdate();
void __real_free(void* memory);
ssize_t __real_write(int file, const void* bytes, std::size_t size);

// clang-format off
void* __wrap_malloc(std::size_t size) { return allocationFails() ? nullptr : __real_malloc(size); }
char* __wrap_strdup(const char* text) { return allocationFails() ? nullptr : __real_strdup(text); }
int __wrap_NCursesEnv(int) { return 0; }
bool __wrap_has_colors() { return !kultest::NoColors::here; }
// clang-format on

void* __wrap_calloc(std::size_t count, std::size_t size)
{
    return allocationFails() ? nullptr : __real_calloc(count, size);
}

void __wrap_free(void* memory)
{
    const auto* bytes = static_cast<const char*>(memory);
    if (memory && memory == watched && std::all_of(bytes, bytes + watchedBytes, [](char byte) { return byte == 0; }))
        watched = nullptr;
    __real_free(memory);
}

std::time_t __wrap_time(std::time_t* result)
{
    if (result)
        *result = clockNow;
    return clockNow;
}

int __wrap_doupdate()
{
    ++nUpdates, ++nWritten;
    return __real_doupdate();
}

// The library's own updates.
ssize_t __wrap_write(int file, const void* bytes, std::size_t size)
{
    ++nUpdates, ++nWritten;
    return __real_write(file, bytes, size);
}

void __real__ZN3kul11drawFocusedENS_7ChangedE(kul::Changed changed);

void __wrap__ZN3kul11drawFocusedENS_7ChangedE(kul::Changed changed)
{
    __real__ZN3kul11drawFocusedENS_7ChangedE(changed);
    expectDrawnWhole();
}

int __wrap__ZN3kul8awaitKeyEv()
{
    EXPECT_LE(std::exchange(nUpdates, INT_MIN), 1) << "updates of the terminal for one key";
    if (script.empty()) {
        kulgui_leave(GetCurrentSelection()->nChain);
        kulgui_leave(GetActiveChain()); // a loop in which no component could take the focus
        return 0;
    }
    const int key = script.front();
    script.pop_front();
    if (key <= -2 && static_cast<std::size_t>(-2 - key) < scriptActions.size()) {
        ExecOnFunction(scriptActions[static_cast<std::size_t>(-2 - key)]); // as timers and polling do
        return 0;
    }
    nUpdates = key > 0 ? 0 : INT_MIN;
    return key;
}
}

namespace kultest {

Cell cellOf(WINDOW* win, int y, int x)
{
    const chtype cell = mvwinch(win, y, x);
    cchar_t wide{};
    wchar_t letters[CCHARW_MAX + 1] = {};
    attr_t attributes = 0;
    short pair = 0;
    mvwin_wch(win, y, x, &wide);
    getcchar(&wide, letters, &attributes, &pair, nullptr);
    char bytes[(CCHARW_MAX + 1) * MB_LEN_MAX] = {};
    const bool secondHalf = (wide.attr & A_CHARTEXT) > 1;
    if (!secondHalf && std::wcstombs(bytes, letters, sizeof bytes) == static_cast<std::size_t>(-1))
        bytes[0] = '?';
    return {cell & A_ALTCHARSET ? lineGlyph(static_cast<char>(cell & A_CHARTEXT)) : bytes,
            static_cast<int>(PAIR_NUMBER(static_cast<int>(cell))),
            cell & A_ATTRIBUTES & ~static_cast<chtype>(A_COLOR | A_ALTCHARSET)};
}

Rows picture(WINDOW* win, int y, int x, int height, int width)
{
    return rowsOf(win, y, x, height, width, [](const Cell& cell) { return cell.glyph; });
}

Rows colors(WINDOW* win, int y, int x, int height, int width, const std::vector<Legend>& legend)
{
    return rowsOf(win, y, x, height, width, [&](const Cell& cell) {
        const auto entry =
            std::find_if(legend.begin(), legend.end(), [&](const Legend& one) { return one.pair == cell.pair; });
        const char letter = entry == legend.end() ? '?' : entry->letter;
        return cell.attributes & A_REVERSE ? static_cast<char>(std::toupper(letter)) : letter;
    });
}

void typeKeys(const std::vector<int>& keys, const std::vector<KULCALLBACK>& actions)
{
    nUpdates = INT_MIN;
    script.assign(keys.begin(), keys.end());
    scriptActions = actions;
}

int updates()
{
    return nWritten;
}

void advanceClock(int seconds)
{
    clockNow += seconds;
}

void watchFree(const void* memory, std::size_t nBytes)
{
    watched = memory;
    watchedBytes = nBytes;
}

bool wasFreedClear()
{
    return !watched;
}

void WindowTest::SetUp()
{
    startCurses();
    kul::beginUpdates();
    ASSERT_EQ(kulgui_create(0), 0);
    ASSERT_EQ(kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "primary", nullptr, nullptr, nullptr,
                                 nullptr, nullptr),
              0);
}

void WindowTest::TearDown()
{
    typeKeys({});
    kulgui_destroy(GetPrimaryChain()->nRef);
    const CURRENT none{};
    SetCurrentSelection(&none);
    const CONTROL clear{F, F, F, F};
    SetControls(&clear);
    kulgui_setEdition(1);
}

GUI* WindowTest::makeDialog(int nChain, int nWidth, int nHeight)
{
    EXPECT_EQ(kulgui_create(nChain), nChain);
    EXPECT_EQ(kulgui_config(nChain, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "title", BORDER, 0, 0, nWidth, nHeight,
                            nullptr, nullptr, nullptr, nullptr, nullptr),
              0);
    return GetChain(nChain)->Pointer;
}

WINDOW* WindowTest::window(int nChain)
{
    return GetChain(nChain)->Pointer->winMain;
}

void CanvasTest::SetUp()
{
    WindowTest::SetUp();
    gui_ = makeDialog(1, nWidth_, nHeight_);
    kulgui_show(1);
    win_ = window(1);
    clear();
}

void CanvasTest::clear()
{
    for (int row = 0; row < nHeight_; ++row)
        mvwaddstr(win_, row, 0, std::string(static_cast<std::size_t>(nWidth_), '.').c_str());
}

std::string CanvasTest::drawn(int nY, int nX, int nHeight, int nWidth)
{
    ShowDisplayComponents(gui_);
    return joined(picture(win_, nY, nX, nHeight ? nHeight : nHeight_, nWidth ? nWidth : nWidth_));
}

std::string CanvasTest::shades(int nY, int nX, int nHeight, int nWidth) const
{
    return joined(
        colors(win_, nY, nX, nHeight, nWidth, {{'b', RED_BLUE}, {'w', RED_WHITE}, {'c', RED_CYAN}, {'-', 0}}));
}

void addComponent(int nType, int nRef, int nX, int nY, const Callbacks& on)
{
    EXPECT_EQ(CreateUIComponent(1, nType, nRef), 0);
    EXPECT_EQ(configComponent(nRef, nX, nY, on), 0);
}

// Calls for another kind are refused.
int configComponent(int nRef, int nX, int nY, const Callbacks& on)
{
    constexpr int k = KUL_KEEP;
    const auto& [focus, unfocus, select, click] = on;
    return std::max(
        {kulmenu_config(1, nRef, k, k, k, focus, unfocus, select, click),
         kuldynmenu_config(1, nRef, k, k, k, nX, nY, 4, 4, focus, unfocus, select, click),
         kuldescrmenu_config(1, nRef, k, k, k, k, k, 20, 12, 5, focus, unfocus, select, click),
         kulbutton_config(1, nRef, k, k, k, k, nX, nY, 8, 1, "OK", focus, unfocus, select, click),
         kultoolbar_config(1, nRef, k, k, k, nX, nY, nRef % 2 ? LATERAL : VERTICAL, focus, unfocus, select, click),
         kulcheckbox_config(1, nRef, k, k, k, nX, nY, 18, 5, BORDER, focus, unfocus, select, click),
         kuloptions_config(1, nRef, k, k, k, nX, nY, 18, 5, nRef % 2 ? BORDER : NOBORDER, 0, 0, focus, unfocus, select,
                           click),
         kulfileview_config(1, nRef, k, k, k, nX, nY, 16, 6, BORDER, nullptr, focus, unfocus, select, click),
         kultextbox_config(1, nRef, k, k, k, nX, nY, 12, 4, BORDER, NOMASK, nullptr, focus, unfocus, select)});
}

int addElement(int nRef, const char* szText, int nEnable, KULCALLBACK select, KULCALLBACK click)
{
    return std::max({kulmenu_addElement(1, nRef, szText, nEnable, select, click),
                     kuldynmenu_addElement(1, nRef, szText, select, click, nEnable),
                     kuldescrmenu_addElement(1, nRef, nEnable, szText, "what it means\nand more", select, click),
                     kultoolbar_addButton(1, nRef, szText, 0, nEnable, select, click),
                     kulcheckbox_addElement(1, nRef, szText, 0, nEnable, select, click),
                     kuloptions_addElement(1, nRef, szText, nEnable, select, click)});
}

std::string run(const std::vector<int>& keys, int nExpected, const std::vector<KULCALLBACK>& actions)
{
    events.clear();
    typeKeys(keys, actions);
    EXPECT_EQ(kulgui_exec(1), nExpected);
    return events;
}

void ComponentTest::SetUp()
{
    WindowTest::SetUp();
    renew();
}

void ComponentTest::renew()
{
    kulgui_destroy(1);
    makeDialog(1);
    kulgui_show(1);
    events.clear();
}

int ComponentTest::press(const std::vector<int>& keys, const std::vector<KULCALLBACK>& actions)
{
    typeKeys(keys, actions);
    return kul::uiKind(GetUIComponentByRef(1, kRef)->nType)->execKeys(1, kRef);
}

Rows ComponentTest::shown(int y, int x, int height, int width)
{
    return picture(window(1), y, x, height, width);
}

Rows ComponentTest::shades(int y, int x, int height, int width)
{
    return colors(window(1), y, x, height, width,
                  {{'.', RED_BLUE}, {'f', RED_MAGENTA}, {'u', RED_WHITE}, {'d', RED_CYAN}});
}

} // namespace kultest
