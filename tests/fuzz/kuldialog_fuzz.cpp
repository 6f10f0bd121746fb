// SPDX-License-Identifier: MIT
//
// kuldialog's command lines, under each of its names, with keys to what they show and what a script
// writes to it: an input is an environment, a file, words, and then all that is typed and read.
#include <cstring>
#include <sstream>
#include <vector>

#include <fcntl.h>
#include <sys/mman.h>

#include "memory_line.hpp"

#define main kuldialogMain
#include "main.cpp"
#undef main

using namespace kulfuzz;

namespace {

constexpr int kScript = 30, kFile = 31, kFirstFree = 32;
constexpr const char* kFilePath = "/proc/self/fd/31";
constexpr kuldialog::Name kNames[] = {kuldialog::kOwn, kuldialog::kWhiptail, kuldialog::kDialog};
// clang-format off
constexpr const char* kValues[] = {
    "0", "10", "40", "-1", "5", "on", "off", "tag", "item", "a text\\nof \\Z1lines", "", "--", "0x10", "3", "30000", "1",
    "&30", "---x", "--no-title", "2", "a\tb\nc", "100", ".", "x", "50", "-20", "ok", "extra", "/", "\xe4\xb8", "--and-widget",
    "--extra-button", kFilePath};
// clang-format on

// The options and boxes that its help names.
const std::vector<std::string>& words()
{
    static std::vector<std::string> all[std::size(kNames)];
    const auto which = static_cast<std::size_t>(std::find(kNames, std::end(kNames), kuldialog::name) - kNames);
    if (!all[which].empty())
        return all[which];
    std::string help;
    written = &help;
    kuldialog::printHelp();
    written = nullptr;
    std::istringstream stream(help);
    for (std::string word; stream >> word;) {
        if (word.starts_with("--"))
            all[which].push_back(word);
    }
    return all[which];
}

std::string takeWord()
{
    const unsigned what = take();
    if (what < 100)
        return words()[take() % words().size()];
    return what < 220 ? kValues[what % std::size(kValues)] : takeText(40);
}

void takeVariable(const char* szName, const char* szOther)
{
    const unsigned what = take();
    if (what % 16 == 1)
        setenv(szName, szOther, 1);
    else if (what % 16 == 2)
        setenv(szName, std::string(takeText(40).c_str()).c_str(), 1);
    else
        unsetenv(szName);
}

bool begin()
{
    const int nNothing = open("/dev/null", O_RDONLY);
    unsetenv("HOME");
    return openMemory("14", "50") && dup2(nNothing, kScript) == kScript &&
           dup2(memfd_create("file", 0), kFile) == kFile && (nScript = kScript) != 0;
}

} // namespace

extern "C" {

// What it keeps, it keeps to the end.
const char* __asan_default_options()
{
    return "detect_leaks=0";
}

bool __wrap__ZN9kuldialog12takeTerminalEv()
{
    kuldialog::nScriptInput = kScript;
    return true;
}

int __wrap_NCursesEnv(int)
{
    return 0;
}

int __wrap_raise(int)
{
    return 0;
}

// What it would write lands nowhere, whatever file an input names.
int __real_open64(const char* szPath, int nFlags, mode_t nMode);
int __wrap_open64(const char* szPath, int nFlags, mode_t nMode)
{
    return __real_open64(nFlags & O_CREAT ? "/dev/null" : szPath, nFlags, nMode);
}

int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size)
{
    static const bool isReady = begin();
    static const std::vector<unsigned char> colors(kuldialog::colors, std::end(kuldialog::colors));
    check(isReady);
    beginLine(data, size);
    kuldialog::name = kNames[take() % std::size(kNames)];
    kuldialog::program = "kuldialog";
    std::copy(colors.begin(), colors.end(), kuldialog::colors);
    takeVariable("DIALOGOPTS", "--title x --colors");
    takeVariable("NEWT_COLORS", "root=red,blue window=,black");
    takeVariable("DIALOGRC", kFilePath);
    takeVariable("DIALOG_ESC", "7");
    const std::string file = takeText(60);
    check(ftruncate(kFile, 0) == 0 && pwrite(kFile, file.data(), file.size(), 0) >= 0);
    std::vector<std::string> line(2 + take() % 24);
    for (std::string& word : line)
        word = takeWord().c_str();
    std::vector<char*> words;
    for (std::string& word : line)
        words.push_back(word.data());
    kulgui_setEdition(2);
    kuldialog::readColors();
    Program(static_cast<int>(words.size()), words.data()).run();
    kuldialog::output.clear();
    kuldialog::closeScreen(nullptr);
    while (GetPrimaryChain())
        kulgui_destroy(GetPrimaryChain()->nRef);
    close_range(kFirstFree, ~0U, 0);
    return 0;
}
}
