// SPDX-License-Identifier: MIT
//
// kuldialog beside the two programs whose names it can have, where they are installed: whether all
// agree with the rows of the tests, and what each box costs. KULDIALOG in the environment names the
// program that is measured: what is installed is built for its size.
// usage: kuldialog_bench [rows|costs [BOX]]
#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include <unistd.h>

#include "rows.hpp"
#include "terminal.hpp"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kQuiet = 60;
constexpr int kStarts = 10;

struct Program {
    const char* name;
    std::string path;
};

const char* const szNamed = std::getenv("KULDIALOG");
const std::array<Program, 3> kPrograms = {{{"whiptail", "/usr/bin/whiptail"},
                                           {"dialog", "/usr/bin/dialog"},
                                           {"kuldialog", szNamed ? szNamed : KULGUI_KULDIALOG}}};

struct Figures {
    double first, down, leaving; // bytes
    double milliseconds;         // to the first screen
    double memory;               // KiB that the process has of its own and written to
};

struct Box {
    const char* name;
    bool peers; // whether the first program has it as well
    bool moves; // whether Down does anything
    const char* arguments;
    const char* leave = "\r"; // the last of these keys
};

const std::vector<Box> kBoxes = {
    {"msgbox", true, false, "--msgbox 'The settings are saved.' 10 50"},
    {"yesno", true, false, "--yesno 'Restart the network now?' 10 50"},
    {"infobox", true, false, "--infobox 'Please wait.' 10 50", ""},
    {"inputbox", true, false, "--inputbox 'Name of this device:' 10 50 gateway"},
    {"passwordbox", true, false, "--passwordbox 'Password:' 10 50"},
    {"textbox", true, true, "--scrolltext --textbox /usr/share/common-licenses/BSD 20 70", "\t\r"},
    {"menu", true, true,
     "--menu 'Choose one of these:' 18 60 8 1 'Item number 1' 2 'Item number 2' 3 'Item number 3' "
     "4 'Item number 4' 5 'Item number 5' 6 'Item number 6' 7 'Item number 7' 8 'Item number 8'"},
    {"checklist", true, true,
     "--checklist 'Choose some of these:' 18 60 8 1 'Item number 1' on 2 'Item number 2' off 3 "
     "'Item number 3' on 4 'Item number 4' off 5 'Item number 5' off 6 'Item number 6' off"},
    {"radiolist", true, true,
     "--radiolist 'Choose one of these:' 18 60 8 1 'Item number 1' on 2 'Item number 2' off 3 "
     "'Item number 3' off 4 'Item number 4' off 5 'Item number 5' off 6 'Item number 6' off"},
    {"gauge", true, false, "--gauge 'Copying files' 8 60 30 </dev/tty", "\4"},
    {"form", false, true,
     "--form 'Network' 15 50 4 Address: 1 1 10.0.0.2 1 12 20 20 Gateway: 2 1 10.0.0.1 2 12 20 20"},
    {"inputmenu", false, true, "--inputmenu 'Rename' 18 50 9 1 'Item number 1' 2 'Item number 2'"},
    {"buildlist", false, true, "--buildlist 'Choose' 18 60 8 1 'Item 1' on 2 'Item 2' off 3 i3 on"},
    {"editbox", false, true, "--editbox /usr/share/common-licenses/BSD 20 70", "\t\r"},
    {"fselect", false, false, "--fselect /usr/share/ 10 60"},
    {"pause", false, false, "--pause 'Starting' 10 50 9"},
    {"programbox", false, false, "--programbox 'Output' 10 50 </dev/null"},
};

// What a process has in memory that is nobody else's and cannot be read from a file again.
double privateMemory(pid_t pid)
{
    std::ifstream file("/proc/" + std::to_string(pid) + "/smaps_rollup");
    double sum = 0;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("Private_Dirty"))
            sum += std::atof(line.c_str() + line.find(':') + 1);
    }
    return sum;
}

std::size_t taken(kultools::Terminal& terminal, const char* szKeys)
{
    terminal.settle(kQuiet);
    terminal.mark();
    terminal.send(szKeys);
    terminal.settle(kQuiet);
    return terminal.received().size();
}

Figures measure(const Program& program, const Box& box, const char* szTerm)
{
    kultools::Launch launch;
    launch.term = szTerm;
    launch.environment = {"LC_ALL=C.UTF-8", "DIALOGRC", "NEWT_COLORS"};
    launch.argv = {"/bin/sh", "-c", "exec " + program.path + " --title Title " + box.arguments};
    Figures figures{};
    const auto start = Clock::now();
    auto last = start;
    kultools::Terminal terminal(launch);
    while (terminal.pump(terminal.received().empty() ? 2000 : kQuiet))
        last = Clock::now();
    figures.milliseconds = std::chrono::duration<double, std::milli>(last - start).count();
    figures.first = static_cast<double>(terminal.received().size());
    if (box.moves)
        figures.down = static_cast<double>(
            taken(terminal, std::strcmp(szTerm, "vt100") == 0 ? "\033OB" : "\033[B"));
    figures.memory = privateMemory(terminal.pid());
    if (const std::string leave = box.leave; !leave.empty()) {
        if (leave.size() > 1)
            taken(terminal, leave.substr(0, leave.size() - 1).c_str());
        terminal.mark();
        terminal.send(leave.substr(leave.size() - 1));
        terminal.wait();
        while (terminal.pump(kQuiet)) {
        }
        figures.leaving = static_cast<double>(terminal.received().size());
    }
    return figures;
}

Figures best(const Program& program, const Box& box, const char* szTerm)
{
    Figures figures = measure(program, box, szTerm);
    for (int i = 1; i < kStarts; ++i)
        figures.milliseconds =
            std::min(figures.milliseconds, measure(program, box, szTerm).milliseconds);
    return figures;
}

struct Column {
    const char* text;
    double Figures::*figure;
    int decimals;
};

constexpr Column kColumns[] = {{"first screen, bytes", &Figures::first, 0},
                               {"Down, bytes", &Figures::down, 0},
                               {"leaving, bytes", &Figures::leaving, 0},
                               {"first screen, ms", &Figures::milliseconds, 1},
                               {"private memory, KiB", &Figures::memory, 0}};

// One line for each figure; a mark where another program is better.
void compare(const Box& box, const char* szTerm)
{
    std::array<std::optional<Figures>, kPrograms.size()> all;
    for (std::size_t i = 0; i < kPrograms.size(); ++i) {
        const bool has = i > 0 || box.peers;
        if (has && std::filesystem::exists(kPrograms[i].path))
            all[i] = best(kPrograms[i], box, szTerm);
    }
    for (const Column& column : kColumns) {
        const double ours = (*all.back()).*column.figure;
        std::printf("%-12s %-7s %-22s", box.name, szTerm, column.text);
        bool behind = false;
        for (const auto& figures : all) {
            std::printf(" %12s",
                        figures ? std::to_string(
                                      static_cast<long long>((*figures).*column.figure * 10) / 10.0)
                                      .substr(0, 7)
                                      .c_str()
                                : "-");
            behind = behind || (figures && (*figures).*column.figure < ours);
        }
        std::printf("%s\n", behind ? "  behind" : "");
    }
}

void compareRows()
{
    using namespace kuldialog_rows;
    constexpr Name kNames[] = {kWhiptail, kDialog, kOwn};
    for (std::size_t i = 0; i < kPrograms.size(); ++i) {
        if (!std::filesystem::exists(kPrograms[i].path))
            continue;
        int nRows = 0;
        int nWrong = 0;
        for (const Row& row : kRows) {
            const bool holds = (row.names & kNames[i]) && (row.peers || kNames[i] == kOwn);
            if (!holds)
                continue;
            ++nRows;
            const Outcome outcome = run(row, kPrograms[i].path, true);
            if (agrees(row, outcome))
                continue;
            ++nWrong;
            std::printf("  differs: %s | %s: %d \"%s\"\n", row.shell, row.keys, outcome.status,
                        outcome.error.c_str());
        }
        std::printf("%-12s agrees with %d of %d rows of what scripts expect\n", kPrograms[i].name,
                    nRows - nWrong, nRows);
    }
}

} // namespace

int main(int argc, char** argv)
{
    const bool rows = argc < 2 || std::strcmp(argv[1], "rows") == 0;
    const bool costs = argc < 2 || std::strcmp(argv[1], "rows") != 0;
    if (rows)
        compareRows();
    if (!costs)
        return 0;
    sync(); // pages of files that wait for the disk would count as written to
    std::printf("%-43s", "Boxes for shell scripts, 80x24");
    for (const Program& program : kPrograms)
        std::printf(" %12s", program.name);
    std::printf("\n");
    for (const Box& box : kBoxes) {
        if (argc > 2 && std::strcmp(argv[2], box.name) != 0)
            continue;
        for (const char* szTerm : {"linux", "vt100"})
            compare(box, szTerm);
    }
}
