// SPDX-License-Identifier: MIT
//
// A file viewer and a file that changes: an input is what a user types, and what becomes of the
// file between two keys or two reads. What is shown must be printable, and lines, rows and searches
// of the file that is left are compared with a straightforward counting.
#include <algorithm>
#include <clocale>
#include <ctime>
#include <vector>

#include "changing_file.hpp"
#include "file/file_rows.hpp"
#include "kulgui.h"

using kul::FilePlace;
using namespace kulfuzz;

namespace {

constexpr int kKeys[] = {KS_UP, KS_DOWN, KS_PAGEUP, KS_PAGEDOWN, KS_HOME, KS_END, KS_ENTER, KS_SPACE};
constexpr int kWidth = 40;

int nReadsToCome = 0; // before the file changes between two of them
std::time_t now = 1000000;

constexpr void (*kCalls[])(int) = {
    [](int n) { kulfileview_setFollow(1, 1, n % 2); },
    [](int n) { kulfileview_find(1, 1, takeText(40).c_str(), n); },
    [](int n) { kulfileview_setPosition(1, 1, n); },
    [](int) { kulfileview_getPosition(1, 1); },
    [](int) { kulfileview_load(1, 1, path().c_str()); },
    [](int n) { static_cast<KULFILEVIEW*>(GetUIComponentByRef(1, 1)->Pointer)->nWidth = n % 64; },
    [](int n) { static_cast<KULFILEVIEW*>(GetUIComponentByRef(1, 1)->Pointer)->nHeight = n % 64; },
    [](int n) { nReadsToCome = n % 16; },
};

void checkCells(WINDOW* win)
{
    cchar_t cells[kWidth + 1] = {};
    for (int y = 0; mvwin_wchnstr(win, y, 0, cells, kWidth) == OK; ++y)
        for (const cchar_t& cell : cells)
            check(cell.chars[0] == 0 || (cell.chars[0] >= ' ' && cell.chars[0] != 127 && cell.chars[0] / 32 != 4));
}

void compare(kul::FileText& file, int nColumns, FilePlace place, const std::string& wanted)
{
    std::string text(static_cast<std::size_t>(file.size()), '\0');
    check(pread(nFile, text.data(), text.size(), 0) == file.size() && lseek(nFile, 0, SEEK_END) == file.size());
    place = std::clamp<FilePlace>(place, 0, std::max<FilePlace>(file.size() - 1, 0));
    const auto nLine = std::count(text.begin(), text.begin() + place, '\n');
    const FilePlace line = file.lineStart(nLine);
    check(file.lineOf(place) == nLine && line == (text.empty() ? -1 : file.newlineBefore(place, 0) + 1));
    const std::size_t found = line < 0 ? text.npos : text.find(wanted, static_cast<std::size_t>(line));
    const bool isThere = found != text.npos && wanted.find('\n') == text.npos;
    check(file.find(wanted, nLine).place == (isThere ? static_cast<FilePlace>(found) : -1));
    constexpr std::size_t kMostRows = 1000; // from the line on
    kul::FileRows rows(file, nColumns);
    std::vector<FilePlace> starts;
    for (FilePlace at = std::max<FilePlace>(line, 0); at < file.size() && starts.size() < kMostRows;
         at = rows.row(at).next) {
        check(starts.empty() || at > starts.back());
        starts.push_back(at);
    }
    const std::size_t nApart = starts.size() / 4 + 1; // of those that are looked at
    for (std::size_t i = static_cast<std::size_t>(place) % nApart; i < starts.size(); i += nApart) {
        const FilePlace next = rows.row(starts[i]).next;
        check(rows.rowOf(starts[i]) == starts[i] && rows.rowOf(next - 1) == starts[i]);
        check(rows.down(starts[i], 1) == next);
        for (const std::size_t n : {1U, 23U, 65U})
            check((i < n && line > 0) || rows.up(starts[i], static_cast<int>(n)) == starts[i > n ? i - n : 0]);
    }
}

bool makeViewer()
{
    FILE* nothing = std::fopen("/dev/null", "r+");
    kulgui_create(0);
    kulgui_create(1);
    return std::setlocale(LC_CTYPE, "C.UTF-8") && newterm("xterm-256color", nothing, nothing) &&
           kulgui_config(1, 0, 0, 0, 0, "", BORDER, 0, 0, kWidth, 14, nullptr, nullptr, nullptr, nullptr, nullptr) ==
               0 &&
           kulgui_show(1) == 0 && kulfileview_create(1, 1) == 0;
}

} // namespace

extern "C" {

std::time_t __wrap_time(std::time_t*)
{
    return now;
}

ssize_t __real_pread64(int nDescriptor, void* bytes, std::size_t nBytes, off_t place);
ssize_t __wrap_pread64(int nDescriptor, void* bytes, std::size_t nBytes, off_t place)
{
    if (nReadsToCome > 0 && --nReadsToCome == 0)
        changeFile();
    return __real_pread64(nDescriptor, bytes, nBytes, place);
}

// A key, or what happens in place of one.
int __wrap__ZN3kul8awaitKeyEv()
{
    const unsigned what = take();
    if (isOver())
        kulgui_leave(1);
    else if (what % 4 == 0)
        return kKeys[what / 4 % 8];
    else
        what % 4 == 1 ? kCalls[what / 4 % 8](static_cast<int>(takePlace())) : changeFile();
    now += what / 4 % 2;
    return 0;
}

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t nBytes)
{
    static const bool isReady = makeViewer();
    check(isReady);
    begin(data, nBytes);
    kulgui_setEdition(1 + static_cast<int>(take() % 2));
    const int nColumns = 8 + static_cast<int>(take());
    const std::string wanted = takeText(40);
    FilePlace place = 4096 * take();
    place += 16 * take();
    newFile();
    changeFile();
    kulfileview_config(1, 1, 0, 0, 0, 1, 1, 20, 8, nColumns % 2, path().c_str(), nullptr, nullptr, nullptr, nullptr);
    kulfileview_execKeys(1, 1);
    checkCells(GetChain(1)->Pointer->winMain);
    nReadsToCome = 0;
    kul::FileText* file = kul::FileText::open(path().c_str());
    check(file != nullptr);
    compare(*file, nColumns, place, wanted);
    kul::FileText::close(file);
    return 0;
}
}
