// kulshot runs a program on a terminal of its own, presses keys, and prints what the screen shows:
// as text, as text with colours, or as a picture.
#include <algorithm>
#include <charconv>
#include <csignal>
#include <cstddef>
#include <cstring>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>
#include <sys/wait.h>
#include <vector>

#include "picture.hpp"
#include "terminal.hpp"

namespace {

using namespace kultools;

constexpr int kOk = 0;
constexpr int kFailed = 1;
constexpr int kUsage = 2;

constexpr char kHelp[] =
    R"(usage: kulshot [options] -- program [arguments]

Runs the program on a terminal of its own, presses keys and prints the screen.

  --size COLUMNSxROWS   size of the terminal (80x24)
  --term NAME           TERM for the program (xterm-256color)
  --format FORMAT       text, ansi (text with colours) or svg (text)
  --output FILE         where to print (standard output)
  --keys SCRIPT         what to do, words separated by blanks:
                          tab enter esc space backspace quote up down left right
                          home end pageup pagedown insert delete f1 ... f12
                          'text'       typed one character at a time
                          wait:MS      let the program run for so long
                          shot         print the screen here
                          shot:TITLE   the same under a title of your own
                        without a shot the screen is printed at the end;
                        of several pictures the last one is kept
  --quiet MS            a key is pressed after so long without output (120)

Status: 0, 1 when the program did not run or ended too early, 2 for bad usage.
)";

// What is wrong with the command line.
struct UsageError {
    std::string text;
};

struct Step {
    enum Kind { Key, Wait, Shot } kind;
    std::string text;     // the bytes of a key, the title of a shot
    int milliseconds = 0; // of a wait
};

struct Options {
    Launch launch;
    std::string format = "text";
    std::string output = {};
    std::vector<Step> script = {};
    int quiet = 120;
};

int number(std::string_view text, int least, int most)
{
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < least || value > most)
        throw UsageError{"'" + std::string(text) + "' is not a number from " +
                         std::to_string(least) + " to " + std::to_string(most)};
    return value;
}

// One step per character, so that each is typed when the program waits for it.
void appendText(std::vector<Step>& script, std::string_view text)
{
    for (const char c : text) {
        const bool continuation = (static_cast<unsigned char>(c) & 0xc0) == 0x80;
        if (!continuation || script.empty())
            script.push_back({Step::Key, {}});
        script.back().text += c;
    }
}

std::vector<Step> parseScript(std::string_view text)
{
    constexpr int kLongest = 3'600'000;
    std::vector<Step> script;
    int shots = 0;
    for (;;) {
        text.remove_prefix(std::min(text.find_first_not_of(" \t\n"), text.size()));
        if (text.empty())
            break;
        const bool quoted = text.front() == '\'';
        if (quoted)
            text.remove_prefix(1);
        const size_t end =
            quoted ? text.find('\'') : std::min(text.find_first_of(" \t\n"), text.size());
        if (end == text.npos)
            throw UsageError{"a quote is not closed in --keys"};
        const std::string_view word = text.substr(0, end);
        text.remove_prefix(end + (quoted ? 1 : 0));
        if (quoted)
            appendText(script, word);
        else if (const auto bytes = keyBytes(word))
            script.push_back({Step::Key, std::string(*bytes)});
        else if (word.starts_with("wait:"))
            script.push_back({Step::Wait, {}, number(word.substr(5), 0, kLongest)});
        else if (word == "shot" || word.starts_with("shot:")) {
            const std::string title = "shot " + std::to_string(++shots);
            script.push_back({Step::Shot, word == "shot" ? title : std::string(word.substr(5))});
        } else
            throw UsageError{"'" + std::string(word) + "' is no key"};
    }
    if (shots == 0)
        script.push_back({Step::Shot, {}});
    return script;
}

// Takes the value of an option; throws UsageError for an unknown one.
void setOption(Options& options, std::string_view name, const std::string& value)
{
    if (name == "--size") {
        const size_t cross = value.find('x');
        if (cross == value.npos)
            throw UsageError{"--size is COLUMNSxROWS"};
        options.launch.columns = number(std::string_view(value).substr(0, cross), 1, 1000);
        options.launch.rows = number(std::string_view(value).substr(cross + 1), 1, 1000);
    } else if (name == "--term")
        options.launch.term = value;
    else if (name == "--format" && (value == "text" || value == "ansi" || value == "svg"))
        options.format = value;
    else if (name == "--output")
        options.output = value;
    else if (name == "--keys")
        options.script = parseScript(value);
    else if (name == "--quiet")
        options.quiet = number(value, 1, 60'000);
    else
        throw UsageError{"'" + std::string(name) + ' ' + value + "' is no option"};
}

Options parse(const std::vector<std::string>& words)
{
    Options options;
    options.script = parseScript("");
    size_t i = 0;
    while (i < words.size() && words[i].starts_with("-")) {
        const std::string& name = words[i++];
        if (name == "--")
            break;
        if (i == words.size())
            throw UsageError{name + " needs a value"};
        setOption(options, name, words[i++]);
    }
    options.launch.argv.assign(words.begin() + static_cast<std::ptrdiff_t>(i), words.end());
    if (options.launch.argv.empty())
        throw UsageError{"which program?"};
    return options;
}

void complain(const std::string& text)
{
    std::cerr << "kulshot: " << text << '\n';
}

// The screen in the wanted format; text carries its title when there is more than one shot.
std::string shoot(const Terminal& terminal, const Options& options, const Step& shot, bool titled)
{
    if (options.format == "svg")
        return asSvg(terminal);
    const std::string screen = options.format == "ansi" ? asAnsi(terminal) : terminal.text();
    return titled ? "== " + shot.text + " ==\n" + screen : screen;
}

void runFor(Terminal& terminal, int milliseconds)
{
    terminal.waitFor([] { return false; }, milliseconds);
}

// Goes through the script and returns what is to be printed; `complete` tells whether the program
// was there for all of it.
std::string play(Terminal& terminal, const Options& options, bool& complete)
{
    const auto isShot = [](const Step& step) { return step.kind == Step::Shot; };
    const bool titled = std::ranges::count_if(options.script, isShot) > 1;
    std::string printed;
    constexpr int kStart = 1000; // not every program says something before it is asked
    terminal.waitFor([&] { return !terminal.received().empty(); }, kStart);
    for (const Step& step : options.script) {
        terminal.settle(options.quiet);
        if (step.kind == Step::Shot) {
            if (options.format == "svg")
                printed.clear();
            printed += shoot(terminal, options, step, titled);
        } else if (!terminal.running())
            complete = false;
        else if (step.kind == Step::Wait)
            runFor(terminal, step.milliseconds);
        else
            terminal.send(step.text);
    }
    return printed;
}

// Ends the program the polite way, then the other one.
void end(Terminal& terminal)
{
    constexpr int kPatience = 1000;
    for (const int signal : {SIGTERM, SIGKILL}) {
        terminal.kill(signal);
        if (terminal.wait(kPatience))
            return;
    }
}

bool print(const std::string& text, const std::string& file)
{
    if (file.empty())
        return static_cast<bool>(std::cout << text << std::flush);
    return static_cast<bool>(std::ofstream(file, std::ios::binary) << text << std::flush);
}

int shot(const Options& options)
{
    Terminal terminal(options.launch);
    bool complete = true;
    const std::string printed = play(terminal, options, complete);
    if (!complete)
        complain(options.launch.argv[0] + " ended before the script was over");
    if (!terminal.running() && WIFSIGNALED(*terminal.wait())) {
        complain(options.launch.argv[0] + ": " + strsignal(WTERMSIG(*terminal.wait())));
        complete = false;
    }
    end(terminal);
    if (!print(printed, options.output)) {
        complain("cannot write " + (options.output.empty() ? "the screen" : options.output));
        complete = false;
    }
    return complete ? kOk : kFailed;
}

} // namespace

int main(int argc, char** argv)
try {
    const std::vector<std::string> words(argv + 1, argv + argc);
    if (words.size() == 1 && words[0] == "--help") {
        std::cout << kHelp;
        return kOk;
    }
    return shot(parse(words));
} catch (const UsageError& error) {
    complain(error.text + "; see kulshot --help");
    return kUsage;
} catch (const std::exception& error) {
    complain(error.what());
    return kFailed;
}
