// SPDX-License-Identifier: MIT
//
// Texts of any bytes, in every locale that the machine has, drawn by every kind that shows one, and typed: an input is
// where a component stands, its text, and keys. No cell may hold a control or what turns the direction of writing.
#include <algorithm>
#include <clocale>
#include <cstring>
#include <cwchar>
#include <iterator>

#include "input.hpp"
#include "ui/component.hpp"

using namespace kulfuzz;

namespace {

constexpr int K = KUL_KEEP, kColumns = 48;
constexpr auto no = nullptr;
constexpr const char* kLocales[] = {"C.UTF-8", "C", "ja_JP.EUC-JP", "zh_CN.GB18030", "th_TH.TIS-620"};
constexpr wchar_t kTurns[] = L"\u061c\u200e\u200f\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069";
constexpr int kLetters[] = {0xe4, 0x308, 0x4e2d, 0x1f600, 0x200d, 0x202e, 0xe01, 0xe31, 0x85, 0xfffd};

int nX, nY, nWidth, nHeight, nBorder, nMore;
const char* szText = "";

bool mayBeShown(wchar_t letter)
{
    return letter >= ' ' && (letter < 127 || letter >= 160) && !std::wcschr(kTurns, letter);
}

void checkCells(WINDOW* win)
{
    for (int y = 0; y < getmaxy(win); ++y) {
        cchar_t cells[kColumns + 1] = {}; // second halves of letters are not among them
        mvwin_wchnstr(win, y, 0, cells, kColumns);
        for (const cchar_t& cell : cells)
            check(std::all_of(cell.chars, std::find(cell.chars, std::end(cell.chars), L'\0'), mayBeShown));
    }
}

void checkBox() // after each key of a text box
{
    const auto& box = *static_cast<const KULTEXTBOX*>(GetUIComponentByRef(1, 1)->Pointer);
    check(static_cast<std::size_t>(box.nLength) == std::strlen(box.szText));
    check(box.nCursorPos >= 0 && box.nCursorPos <= box.nLength);
    checkCells(GetChain(1)->Pointer->winMain);
}

// What dialog 1 is filled with.
constexpr void (*kKinds[])() = {
    [] {
        kultextbox_create(1, 1);
        kultextbox_config(1, 1, K, K, K, nX, nY, nWidth, nHeight, nBorder, nMore % 3 ? NOMASK : MASK,
                          nMore % 5 ? nullptr : "aä中0", no, no, checkBox);
        kultextbox_setLimit(1, 1, nMore);
        kultextbox_setText(1, 1, szText);
    },
    [] {
        kulcheckbox_create(1, 1);
        kulcheckbox_config(1, 1, K, K, K, nX, nY, nWidth, nHeight, nBorder, no, no, no, no);
        kulcheckbox_addElement(1, 1, szText, 0, 1, no, no);
        kuloptions_create(1, 2);
        kuloptions_config(1, 2, K, K, K, nX, nY, nWidth, nHeight, nBorder, 0, 0, no, no, no, no);
        kuloptions_addElement(1, 2, szText, 1, no, no);
    },
    [] {
        kuldynmenu_create(1, 1);
        kuldynmenu_config(1, 1, K, K, K, nX, nY, nWidth, nHeight, no, no, no, no);
        kuldynmenu_addElement(1, 1, szText, no, no, 1);
        kuldescrmenu_create(1, 2);
        kuldescrmenu_config(1, 2, K, K, K, nX, nY, nWidth, nWidth, nHeight, no, no, no, no);
        kuldescrmenu_addElement(1, 2, 1, szText, szText, no, no);
    },
    [] {
        kultoolbar_create(1, 1);
        kultoolbar_config(1, 1, K, K, K, nX, nY, nBorder ? VERTICAL : LATERAL, no, no, no, no);
        kultoolbar_addButton(1, 1, szText, 0, 1, no, no);
        kulmenu_create(1, 2);
        kulmenu_config(1, 2, K, K, K, no, no, no, no);
        kulmenu_addElement(1, 2, szText, 1, no, no);
    },
    [] {
        kulbutton_create(1, 1);
        kulbutton_config(1, 1, K, K, K, K, nX, nY, nWidth, nMore % 2, szText, no, no, no, no);
        kullabel_create(1, 2);
        kullabel_config(1, 2, K, K, nX, nY, nWidth, nHeight, nMore % 3 - 1, nBorder, szText);
        kuldescrfield_create(1, 3);
        kuldescrfield_config(1, 3, K, K, nX, nY, nWidth, nWidth, nHeight);
        kuldescrfield_addElement(1, 3, szText, szText);
        kulstatbar_create(1, 4);
        kulstatbar_config(1, 4, K, no);
        kulstatbar_addElement(1, 4, nX, nWidth, szText, nMore % 3 - 1, no);
    }};

bool openScreen()
{
    setenv("LINES", "14", 1);
    setenv("COLUMNS", std::to_string(kColumns).c_str(), 1);
    return newterm("xterm-256color", std::fopen("/dev/null", "w"), std::fopen("/dev/null", "r"));
}

int takeNumber(int nFirst, unsigned nCount)
{
    return nFirst + static_cast<int>(take() % nCount);
}

} // namespace

extern "C" {

// A byte below 128 is a key itself, the others are keys with a name and letters.
int __wrap__ZN3kul8awaitKeyEv()
{
    const unsigned byte = take();
    if (isOver())
        kulgui_leave(1);
    if (byte < 128)
        return static_cast<int>(byte);
    return byte < 192 ? KS_F1 + static_cast<int>(byte % 23) : KUL_CHARACTER + kLetters[byte % std::size(kLetters)];
}

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t nBytes)
{
    static const bool isOpen = openScreen();
    check(isOpen);
    begin(data, nBytes);
    std::setlocale(LC_CTYPE, "C.UTF-8"); // and where there is another one
    std::setlocale(LC_CTYPE, kLocales[take() % std::size(kLocales)]);
    kulgui_setEdition(takeNumber(1, 2));
    const int nWide = takeNumber(4, 40), nHigh = takeNumber(3, 12), nKind = takeNumber(0, std::size(kKinds));
    nX = takeNumber(-4, 36), nY = takeNumber(-4, 18), nWidth = takeNumber(-1, 40), nHeight = takeNumber(-1, 12);
    nMore = takeNumber(0, 256), nBorder = takeNumber(-1, 2);
    const std::string text = takeText(200);
    szText = text.c_str();
    kulgui_create(0);
    kulgui_configPrime(0, K, K, K, K, szText, no, no, no, no, no);
    kulgui_create(1);
    kulgui_config(1, K, K, K, K, szText, BORDER, nMore % 50, 1, nWide, nHigh, no, no, no, no, no);
    kKinds[nKind]();
    kulgui_show(0);
    kulgui_show(1);
    kul::uiKind(GetUIComponentByRef(1, 1)->nType)->execKeys(1, 1);
    checkCells(stdscr);
    checkCells(GetChain(1)->Pointer->winMain);
    kulgui_destroy(0);
    return 0;
}
}
