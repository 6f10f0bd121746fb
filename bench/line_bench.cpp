// SPDX-License-Identifier: MIT
//
// What a dialog costs that is left alone, and what a paste costs, by programs on terminals.
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "terminal.hpp"

namespace {

constexpr int kPatience = 120000;
constexpr const char* kProgram = KULGUI_BENCH_LINE;

kultools::Launch launch(std::vector<std::string> argv)
{
    kultools::Launch one;
    one.argv = std::move(argv);
    one.term = "linux";
    return one;
}

// What a program has told behind a word.
long told(const kultools::Terminal& terminal, const std::string& word)
{
    const std::string text = terminal.text();
    const std::size_t place = text.find(word + ' ');
    return place == text.npos ? -1 : std::atol(text.c_str() + place + word.size());
}

long instructions(const std::string& log)
{
    std::ifstream file(log);
    const std::string text(std::istreambuf_iterator<char>(file), {});
    const std::string word = "Collected : ";
    const std::size_t place = text.find(word);
    return place == text.npos ? -1 : std::atol(text.c_str() + place + word.size());
}

// Two runs of different length at the same time: what is between them are seconds at rest.
void rest()
{
    constexpr int kSeconds[] = {4, 14};
    constexpr int kBetween = kSeconds[1] - kSeconds[0];
    const std::string log = std::filesystem::temp_directory_path() / "kulgui-line-";
    std::unique_ptr<kultools::Terminal> plain[2];
    std::unique_ptr<kultools::Terminal> counted[2];
    for (int i = 0; i < 2; ++i) {
        const std::string seconds = std::to_string(kSeconds[i]);
        plain[i] = std::make_unique<kultools::Terminal>(launch({kProgram, "rest", seconds}));
        counted[i] = std::make_unique<kultools::Terminal>(
            launch({"valgrind", "--tool=callgrind", "--callgrind-out-file=/dev/null",
                    "--log-file=" + log + seconds, kProgram, "rest", seconds}));
    }
    long sleeps[2];
    long instructionsOf[2];
    std::size_t bytes[2];
    for (int i = 0; i < 2; ++i) {
        plain[i]->wait(kPatience);
        counted[i]->wait(kPatience);
        sleeps[i] = told(*plain[i], "sleeps");
        bytes[i] = plain[i]->received().size();
        instructionsOf[i] = instructions(log + std::to_string(kSeconds[i]));
        std::filesystem::remove(log + std::to_string(kSeconds[i]));
    }
    std::printf("%-48s %12.1f\n", "wakeups", static_cast<double>(sleeps[1] - sleeps[0]) / kBetween);
    std::printf("%-48s %12ld\n", "instructions",
                (instructionsOf[1] - instructionsOf[0]) / kBetween);
    std::printf("%-48s %12zu\n", "bytes", (bytes[1] - bytes[0]) / kBetween);
}

// Bytes a second, 0 for as fast as the program reads.
void paste(const char* szWay, std::size_t nBytes, int nSpeed)
{
    kultools::Terminal terminal(launch({kProgram, szWay}));
    terminal.waitForText("Dialog");
    terminal.settle();
    terminal.mark();
    const std::string text = std::string(nBytes, 'x') + "\033";
    const auto start = std::chrono::steady_clock::now();
    terminal.paste(text, nSpeed);
    terminal.wait(kPatience);
    const std::chrono::duration<double> time = std::chrono::steady_clock::now() - start;
    std::printf("%-14s %9zu %9ld %9ld %12.2f %12zu\n", szWay, nBytes, told(terminal, "keys"),
                told(terminal, "text"), time.count(), terminal.received().size());
}

} // namespace

int main(int argc, char**)
{
    std::printf("A dialog at rest, each second\n");
    if (argc < 2)
        rest();
    std::printf("\n%-14s %9s %9s %9s %12s %12s\n", "A paste", "bytes", "keys", "in the box",
                "seconds", "bytes sent");
    paste("paste", 1 << 20, 0);
    paste("paste-counted", 1 << 20, 0);
    paste("paste", 4800, 960);
    return 0;
}
