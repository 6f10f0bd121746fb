// SPDX-License-Identifier: MIT
//
// The file viewer beside the system's own tools, on the same file in one run: screens and memory
// beside less, searching and counting beside grep and wc.
// usage: fileview_bench [FILE-SIZE-IN-MIB]
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <functional>
#include <optional>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include "kulgui.h"
#include "terminal.hpp"

namespace {

constexpr int kRows = 24;
constexpr int kPages = 30;
constexpr int kRounds = 5; // of which the best one counts
constexpr int kPatience = 60000;

double milliseconds(const std::function<void()>& what)
{
    const auto start = std::chrono::steady_clock::now();
    what();
    return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start)
        .count();
}

// A log: numbered lines of some sixty characters. Returns how many.
int writeLog(const std::string& path, long long nBytes)
{
    std::ofstream file(path, std::ios::binary);
    int nLines = 0;
    char line[128];
    for (long long written = 0; written < nBytes; ++nLines) {
        const int n = std::snprintf(line, sizeof line,
                                    "%09d Mar  3 04:%02d:%02d host daemon[%d]: link %d is up%.*s\n",
                                    nLines, nLines / 60 % 60, nLines % 60, nLines % 32768,
                                    nLines % 97, nLines % 20, ", 100 Mbit/s, full duplex");
        file.write(line, n);
        written += n;
    }
    return nLines;
}

// A program that shows a file on a terminal, and its keys.
struct Viewer {
    const char* szName;
    std::vector<std::string> argv;
    const char *szEnd, *szHome, *szPageUp, *szPageDown, *szDown;
};

struct Figures {
    double firstSmall, first, end, pageUp, home, pageDown, down;
    double cpu; // microseconds
    double firstBytes, bytes;
    double memory; // KiB
};

int topLine(const kultools::Terminal& terminal)
{
    return std::atoi(terminal.row(0).c_str());
}

// The time until a line stands at the top, or the run is over.
double timeTo(kultools::Terminal& terminal, const char* szKey, const std::function<bool()>& isThere)
{
    terminal.settle();
    return milliseconds([&] {
        terminal.send(szKey);
        if (!terminal.waitFor(isThere, kPatience)) {
            std::fprintf(stderr, "no answer; the screen:\n%s", terminal.text().c_str());
            std::exit(1);
        }
    });
}

double timeOfMoves(kultools::Terminal& terminal, const char* szKey, int nLines)
{
    double sum = 0;
    for (int i = 0; i < kPages; ++i) {
        const int nWanted = topLine(terminal) + nLines;
        sum += timeTo(terminal, szKey, [&] { return topLine(terminal) == nWanted; });
    }
    return sum / kPages;
}

// Microseconds that a process has run.
double cpuTime(pid_t pid)
{
    double nanoseconds = -1;
    std::ifstream("/proc/" + std::to_string(pid) + "/schedstat") >> nanoseconds;
    return nanoseconds / 1000;
}

// What a row down costs, at the pace of a key that is held down.
void holdDown(const Viewer& viewer, kultools::Terminal& terminal, Figures& figures)
{
    constexpr int kKeys = 300;
    constexpr int kPause = 4;
    terminal.settle();
    terminal.mark();
    const double before = cpuTime(terminal.pid());
    for (int i = 0; i < kKeys; ++i) {
        const int nWanted = topLine(terminal) + 1;
        terminal.send(viewer.szDown);
        terminal.waitFor([&] { return topLine(terminal) == nWanted; }, kPatience);
        terminal.settle(kPause);
    }
    figures.cpu = (cpuTime(terminal.pid()) - before) / kKeys;
    figures.bytes = static_cast<double>(terminal.received().size()) / kKeys;
}

double peakMemory(pid_t pid)
{
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    for (std::string word; status >> word;) {
        double kib = 0;
        if (word == "VmHWM:" && status >> kib)
            return kib;
    }
    return -1;
}

// In a short file only the first screen is looked at.
Figures look(const Viewer& viewer, const std::string& path, int nLines)
{
    Figures figures{};
    kultools::Launch launch;
    launch.argv = viewer.argv;
    launch.argv.push_back(path);
    launch.rows = kRows;
    std::optional<kultools::Terminal> terminal;
    char szLast[16];
    std::snprintf(szLast, sizeof szLast, "%09d", std::min(kRows - 2, nLines - 1));
    figures.first = milliseconds([&] {
        terminal.emplace(launch);
        terminal->waitForText(szLast, kPatience);
    });
    terminal->settle();
    figures.firstBytes = static_cast<double>(terminal->received().size());
    if (nLines > kRows * kPages * 2) {
        std::snprintf(szLast, sizeof szLast, "%09d", nLines - 1);
        figures.end = timeTo(*terminal, viewer.szEnd,
                             [&] { return terminal->text().find(szLast) != std::string::npos; });
        figures.pageUp = timeOfMoves(*terminal, viewer.szPageUp, 1 - kRows);
        figures.home = timeTo(*terminal, viewer.szHome,
                              [&] { return terminal->row(0).starts_with("000000000"); });
        figures.pageDown = timeOfMoves(*terminal, viewer.szPageDown, kRows - 1);
        figures.down = timeOfMoves(*terminal, viewer.szDown, 1);
        holdDown(viewer, *terminal, figures);
    }
    figures.memory = peakMemory(terminal->pid());
    return figures;
}

// The best of some starts: the first ones load the programs.
double firstScreen(const Viewer& viewer, const std::string& path, int nLines)
{
    double best = look(viewer, path, nLines).first;
    for (int i = 0; i < 10; ++i)
        best = std::min(best, look(viewer, path, nLines).first);
    return best;
}

void run(std::vector<const char*> argv)
{
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    argv.push_back(nullptr);
    char locale[] = "LC_ALL=C";
    char path[] = "PATH=/usr/bin:/bin";
    char* environment[] = {locale, path, nullptr};
    pid_t pid;
    if (posix_spawnp(&pid, argv[0], &quiet, nullptr, const_cast<char**>(argv.data()),
                     environment) == 0)
        waitpid(pid, nullptr, 0);
    posix_spawn_file_actions_destroy(&quiet);
}

constexpr int kViewers = 3;

void compareScreens(const Viewer (&viewers)[kViewers], const std::string& small, int nSmall,
                    const std::string& large, int nLarge)
{
    std::printf("%-40s %12s %12s %12s\n", "Milliseconds to the screen, 80x24", viewers[0].szName,
                viewers[1].szName, viewers[2].szName);
    Figures figures[kViewers];
    for (int i = 0; i < kViewers; ++i) {
        const double first = firstScreen(viewers[i], large, kRows);
        figures[i] = look(viewers[i], large, nLarge);
        figures[i].firstSmall = firstScreen(viewers[i], small, nSmall);
        figures[i].first = first;
    }
    const auto row = [&](const char* szText, double Figures::*figure, int nDecimals) {
        std::printf("%-40s", szText);
        for (const Figures& column : figures)
            std::printf(" %12.*f", nDecimals, column.*figure);
        std::printf("\n");
    };
    row("start to first screen, 1 KiB", &Figures::firstSmall, 2);
    row("start to first screen, the log", &Figures::first, 2);
    row("End", &Figures::end, 2);
    row("a page up from the end", &Figures::pageUp, 2);
    row("Home", &Figures::home, 2);
    row("a page down from the start", &Figures::pageDown, 2);
    row("a row down", &Figures::down, 2);
    row("a row down, microseconds of CPU", &Figures::cpu, 1);
    row("a row down, bytes", &Figures::bytes, 1);
    row("first screen, the log, bytes", &Figures::firstBytes, 0);
    row("peak memory of the process, KiB", &Figures::memory, 0);
}

void compareReading(const std::string& path)
{
    kulgui_create(0);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", nullptr, nullptr, nullptr,
                       nullptr, nullptr);
    kulfileview_create(0, 1);
    kulfileview_config(0, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 0, 0, 80, kRows, NOBORDER, nullptr,
                       nullptr, nullptr, nullptr, nullptr);
    std::printf("\n%-40s %12s %12s %12s\n", "Milliseconds through the log", "kulgui", "again",
                "tool");
    for (const char* szText :
         {"Z", "zq", "e1", "e1 q", "aaaa", "    ", "xduplex", "0000000000", "duplex, 10",
          "00 Mar  3 05", "daemon[99999]", "nowhere in this file",
          "and a text that is longer than most are", "9999999999999999999999999999999999999999"}) {
        double ours = 1e9;
        double again = 1e9;
        double theirs = 1e9;
        for (int i = 0; i < kRounds; ++i) {
            kulfileview_load(0, 1, path.c_str()); // forgets how many lines there are
            const auto find = [&] { kulfileview_find(0, 1, szText, 1); };
            ours = std::min(ours, milliseconds(find));
            again = std::min(again, milliseconds(find));
            theirs = std::min(theirs, milliseconds([&] {
                                  run({"grep", "-F", "-c", szText, path.c_str()});
                              }));
        }
        std::printf("%-40s %12.1f %12.1f %12.1f  grep -F\n", szText, ours, again, theirs);
    }
    kulfileview_load(0, 1, path.c_str());
    const double ours = milliseconds([] { kulfileview_setPosition(0, 1, 2000000000); });
    const double theirs = milliseconds([&] { run({"wc", "-l", path.c_str()}); });
    std::printf("%-40s %12.1f %12s %12.1f  wc -l\n", "to the last line", ours, "", theirs);
    const double number = milliseconds([] { kulfileview_getPosition(0, 1); });
    std::printf("%-40s %12.1f\n", "its number, then", number);
    const double back = milliseconds([] { kulfileview_setPosition(0, 1, 8000000); });
    std::printf("%-40s %12.1f\n", "to another line, then", back);
    kulgui_destroy(0);
}

} // namespace

int main(int argc, char** argv)
{
    const long long nMib = argc > 1 ? std::atoll(argv[1]) : 1024;
    const auto directory = std::filesystem::temp_directory_path() / "kulgui-fileview-bench";
    std::filesystem::create_directories(directory);
    const std::string small = directory / "small.log";
    const std::string large = directory / "large.log";
    const std::string ours =
        std::filesystem::read_symlink("/proc/self/exe").parent_path() / "kulgui_fileview";
    const int nSmall = writeLog(small, 1024);
    const int nLarge = writeLog(large, nMib << 20);
    run({"cat", large.c_str()}); // into the memory, for all alike
    const auto kulgui = [&](const char* szName, const std::string& program) {
        return Viewer{szName, {program}, "\x1b[F", "\x1b[H", "\x1b[5~", "\x1b[6~", "\x1b[B"};
    };
    const Viewer viewers[kViewers] = {kulgui("kulgui", ours),
                                      kulgui("kulgui static", ours + "_static"),
                                      {"less -n", {"less", "-n"}, "G", "g", "b", " ", "j"}};
    std::printf("A log of %lld MiB, %d lines\n", nMib, nLarge);
    compareScreens(viewers, small, nSmall, large, nLarge);
    compareReading(large);
    std::filesystem::remove_all(directory);
    return 0;
}
