// SPDX-License-Identifier: MIT
//
// Runs each example again and again with keys that go through it. In each run another allocation fails, first that
// one alone, then all from that one on. The program must end by itself without a word of a sanitizer, and leave the
// terminal as it was; a box of kuldialog that lacks a part must fail. Where curses opens, it is curses that decides, so
// that these allocations are counted by themselves, and fail in the first example alone.
//
// usage: torture SHIM FOLDER [NAME]...     the folder of a build under sanitizers; names of examples, else all
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include <fcntl.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include "terminal.hpp"

using namespace kultools;

namespace {

constexpr int kReported = 99; // the status of a program that a sanitizer has ended
constexpr int kPatience = 60000;

struct Example {
    std::string name;
    std::string keys; // as the shim takes them
    std::vector<std::string> words = {};
};

constexpr const char* kFirst = "examples/hello";
constexpr const char* kBoxes = "programs/kuldialog/kuldialog";
constexpr std::size_t kOfCurses = 8; // bytes that it leaves out as it closes without memory
constexpr const char* kEsc = "\033|";

std::vector<Example> examples()
{
    const std::string down = "\033[B|", enter = "\r|", end = std::string(kEsc) + kEsc;
    std::vector<Example> all = {
        {kFirst, "\t|" + enter},
        {"examples/demo", down + enter + down + enter + end + "\033[F|" + enter + end + end},
        {"examples/devsetup", enter + end + down + enter + "\t|ab|" + end + end, {"torture.conf"}},
    };
    for (const char* kind : {"menu", "dynmenu", "descrmenu", "button", "toolbar", "checkbox", "options", "fileview",
                             "textbox", "statbar", "scrollbar", "progbar", "descrfield", "box", "line", "label"})
        all.push_back({std::string("examples/kinds/") + kind, "a|" + down + " |" + enter + "\t|" + end});
    const std::vector<std::vector<std::string>> boxes = {
        {"--msgbox", "text", "0", "0"},
        {"--title", "t", "--backtitle", "b", "--yesno", "text", "0", "0"},
        {"--inputbox", "text", "0", "0", "ab"},
        {"--passwordbox", "text", "0", "0"},
        {"--menu", "text", "0", "0", "0", "1", "one", "2", "two"},
        {"--checklist", "text", "0", "0", "0", "1", "one", "on", "2", "two", "off"},
        {"--buildlist", "text", "0", "0", "0", "1", "one", "on", "2", "two", "off"},
        {"--treeview", "text", "0", "0", "0", "1", "one", "on", "0", "2", "two", "off", "1"},
        {"--form", "text", "0", "0", "0", "a", "1", "1", "b", "1", "5", "5", "5"},
        {"--gauge", "text", "0", "0", "30"},
        {"--rangebox", "text", "0", "0", "1", "9", "5"},
        {"--pause", "text", "0", "0", "9"},
        {"--textbox", "torture.conf", "0", "0"},
        {"--editbox", "torture.conf", "0", "0"},
        {"--fselect", "/", "0", "0"},
        {"--prgbox", "echo a", "0", "0"},
    };
    for (const auto& box : boxes)
        all.push_back({kBoxes, down + " |" + "a|" + enter + end, box});
    const std::vector<std::vector<std::string>> dialogs = {
        {"tell"},        {"form", "3"}, {"choose", "4"},          {"check", "4"},
        {"option", "4"}, {"pick", "."}, {"view", "torture.conf"}, {"run", "echo a"},
        {"progress"}};
    for (const auto& dialog : dialogs)
        all.push_back({"tests/programs/ready", down + " |" + "a|" + enter + "\t|" + enter + end, dialog});
    return all;
}

struct Seen {
    std::string fault; // empty for none
    std::string allocations;
    std::size_t bytes = 0;
    int nStatus = 0;
};

Seen run(const std::string& folder, const std::string& shim, const Example& example, std::size_t nFailing, bool on)
{
    const std::string says = "torture.said";
    std::ofstream(says).close();
    Launch launch;
    launch.argv = {folder + '/' + example.name};
    launch.argv.insert(launch.argv.end(), example.words.begin(), example.words.end());
    launch.environment = {"LD_PRELOAD=" + shim,
                          "TORTURE_FAILS=" + std::to_string(nFailing),
                          "TORTURE_KEYS=" + example.keys,
                          "TORTURE_SAYS=" + says,
                          on ? "TORTURE_ON=1" : "TORTURE_ON",
                          "LC_ALL=C.UTF-8",
                          "UBSAN_OPTIONS=exitcode=" + std::to_string(kReported),
                          "ASAN_OPTIONS=verify_asan_link_order=0:exitcode=" + std::to_string(kReported)};
    Terminal terminal(launch);
    const auto status = terminal.wait(kPatience);
    termios modes{};
    tcgetattr(terminal.tty(), &modes);
    const std::string& bytes = terminal.received();
    const auto last = [&](const char* szBytes) { return static_cast<long>(bytes.rfind(szBytes)); };
    Seen seen;
    std::getline(std::ifstream(says), seen.allocations);
    seen.bytes = bytes.size();
    seen.nStatus = status && WIFEXITED(*status) ? WEXITSTATUS(*status) : -1;
    if (!status)
        seen.fault = "it does not end";
    else if (seen.nStatus < 0 || seen.nStatus == kReported)
        seen.fault = "it is ended, status " + std::to_string(*status) + ":\n" +
                     bytes.substr(bytes.size() - std::min<std::size_t>(bytes.size(), 3000));
    else if (!(modes.c_lflag & ICANON) || !(modes.c_lflag & ECHO) || (fcntl(terminal.tty(), F_GETFL) & O_NONBLOCK))
        seen.fault = "it leaves the modes of its terminal";
    else if (last("\033[?1049h") > last("\033[?1049l") || !terminal.cursor().visible)
        seen.fault = "it leaves its screen";
    return seen;
}

// The number of faults that are not those of curses.
int torture(const std::string& folder, const std::string& shim, const Example& example)
{
    const Seen whole = run(folder, shim, example, 0, false);
    const std::string name = example.name + (example.words.empty() ? "" : ' ' + example.words[0]);
    int nFaults = whole.fault.empty() ? 0 : 1, nCurses = 0, nRuns = 0;
    if (nFaults)
        std::printf("%s: %s\n", name.c_str(), whole.fault.c_str());
    for (std::size_t i = 0; i < whole.allocations.size(); ++i) {
        const bool isCurses = whole.allocations[i] == 'c';
        for (const bool on : {false, true}) {
            const bool opening = isCurses || (on && whole.allocations.find('c', i) != std::string::npos);
            if (isCurses && example.name != kFirst)
                continue;
            Seen seen = run(folder, shim, example, i + 1, on);
            ++nRuns;
            if (example.name == kBoxes && whole.nStatus == 0 && seen.nStatus == 0 &&
                seen.bytes + kOfCurses < whole.bytes)
                seen.fault += "it shows a part as if it were whole";
            if (seen.fault.empty())
                continue;
            (opening ? nCurses : nFaults) += 1;
            if (!opening)
                std::printf("%s, allocation %zu%s: %s\n", name.c_str(), i + 1, on ? " and all later ones" : "",
                            seen.fault.c_str());
        }
    }
    std::printf("%-45s %4zu allocations %5d runs %3d faults %3d of curses\n", name.c_str(), whole.allocations.size(),
                nRuns, nFaults, nCurses);
    std::fflush(stdout);
    return nFaults;
}

} // namespace

int main(int argc, char** argv)
{
    int nFaults = 0, nTried = 0;
    for (const Example& example : examples()) {
        const std::string last = example.words.empty() ? example.name : example.words[0];
        if (argc > 3 && std::none_of(argv + 3, argv + argc, [&](const char* szName) { return last.ends_with(szName); }))
            continue;
        nFaults += torture(argv[2], argv[1], example);
        ++nTried;
    }
    if (nTried == 0)
        std::fprintf(stderr, "There is no such example.\n");
    return nFaults > 0 || nTried == 0 ? 1 : 0;
}
