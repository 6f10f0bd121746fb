// SPDX-License-Identifier: MIT
#include "options.hpp"

#include <cstdlib>
#include <cstring>
#include <iterator>
#include <string_view>

#include <fcntl.h>
#include <unistd.h>

#include "clamp.hpp"
#include "output.hpp"
#include "terminal.hpp"
#include "text.hpp"

namespace kuldialog {

namespace {

constexpr unsigned char kOthers = kDialog | kOwn;
constexpr unsigned char kAll = kWhiptail | kOthers;

enum class Take : unsigned char { Flag, Text, Number, Place, File, Help, Version, Again };

} // namespace

struct Option {
    const char* name;
    unsigned char names; // of the program
    Take take;
    unsigned char field;
    std::size_t size = 0; // of the name, when it was looked up
};

namespace {

constexpr Option kOptions[] = {
    {"allow-close", kOthers, Take::Flag, kIgnoredFlag},
    {"and-widget", kOthers, Take::Again, 0},
    {"args", kOthers, Take::Flag, kIgnoredFlag},
    {"ascii-lines", kOthers, Take::Flag, kAsciiLines},
    {"aspect", kOthers, Take::Number, kIgnoredNumber},
    {"auto-placement", kOthers, Take::Flag, kIgnoredFlag},
    {"backtitle", kAll, Take::Text, kBacktitle},
    {"beep", kOthers, Take::Flag, kIgnoredFlag},
    {"beep-after", kOthers, Take::Flag, kIgnoredFlag},
    {"begin", kOthers, Take::Place, kBeginY},
    {"cancel-button", kAll, Take::Text, kCancelLabel},
    {"cancel-label", kOthers, Take::Text, kCancelLabel},
    {"clear", kAll, Take::Flag, kClear},
    {"colors", kOthers, Take::Flag, kColors},
    {"column-separator", kOthers, Take::Text, kColumnSeparator},
    {"cr-wrap", kOthers, Take::Flag, kCrWrap},
    {"create-rc", kOthers, Take::Text, kNewFile},
    {"cursor-off-label", kOthers, Take::Flag, kIgnoredFlag},
    {"date-format", kOthers, Take::Text, kIgnoredText},
    {"default-button", kOthers, Take::Text, kDefaultButton},
    {"default-item", kAll, Take::Text, kDefaultItem},
    {"defaultno", kAll, Take::Flag, kDefaultNo},
    {"erase-on-exit", kOthers, Take::Flag, kClear},
    {"exit-label", kOthers, Take::Text, kExitLabel},
    {"extra-button", kOthers, Take::Flag, kExtraButton},
    {"extra-label", kOthers, Take::Text, kExtraLabel},
    {"fb", kAll, Take::Flag, kIgnoredFlag},
    {"file", kOthers, Take::File, 0},
    {"fixed-font", kOthers, Take::Flag, kIgnoredFlag},
    {"fullbutton", kOthers, Take::Flag, kIgnoredFlag},
    {"fullbuttons", kWhiptail | kOwn, Take::Flag, kIgnoredFlag},
    {"help", kAll, Take::Help, 0},
    {"help-button", kOthers, Take::Flag, kHelpButton},
    {"help-label", kOthers, Take::Text, kHelpLabel},
    {"help-status", kOthers, Take::Flag, kHelpStatus},
    {"help-tags", kOthers, Take::Flag, kHelpTags},
    {"hfile", kOthers, Take::Text, kHelpFile},
    {"hline", kOthers, Take::Text, kHline},
    {"icon", kOthers, Take::Flag, kIgnoredFlag},
    {"ignore", kOthers, Take::Flag, kIgnoredFlag},
    {"input-fd", kOthers, Take::Number, kIgnoredNumber},
    {"insecure", kOthers, Take::Flag, kIgnoredFlag},
    {"iso-week", kOthers, Take::Flag, kIgnoredFlag},
    {"item-help", kOthers, Take::Flag, kItemHelp},
    {"keep-colors", kOthers, Take::Flag, kIgnoredFlag},
    {"keep-tite", kOthers, Take::Flag, kIgnoredFlag},
    {"keep-window", kOthers, Take::Flag, kIgnoredFlag},
    {"last-key", kOthers, Take::Flag, kLastKey},
    {"max-input", kOthers, Take::Number, kMaxInput},
    {"no-button", kAll, Take::Text, kNoLabel},
    {"no-cancel", kOthers, Take::Flag, kNoCancel},
    {"no-close", kOthers, Take::Flag, kIgnoredFlag},
    {"no-collapse", kOthers, Take::Flag, kNoCollapse},
    {"no-hot-list", kOthers, Take::Flag, kNoHotList},
    {"no-items", kOthers, Take::Flag, kNoItems},
    {"no-kill", kOthers, Take::Flag, kIgnoredFlag},
    {"no-label", kOthers, Take::Text, kNoLabel},
    {"no-lines", kOthers, Take::Flag, kIgnoredFlag},
    {"no-mouse", kOthers, Take::Flag, kIgnoredFlag},
    {"no-nl-expand", kOthers, Take::Flag, kNoNlExpand},
    {"no-ok", kOthers, Take::Flag, kNoOk},
    {"no-shadow", kOthers, Take::Flag, kIgnoredFlag},
    {"no-tags", kOthers, Take::Flag, kNoTags},
    {"nocancel", kAll, Take::Flag, kNoCancel},
    {"noitem", kAll, Take::Flag, kNoItems},
    {"nook", kOthers, Take::Flag, kNoOk},
    {"notags", kAll, Take::Flag, kNoTags},
    {"ok-button", kAll, Take::Text, kOkLabel},
    {"ok-label", kOthers, Take::Text, kOkLabel},
    {"output-fd", kAll, Take::Number, kOutputFd},
    {"output-separator", kOthers, Take::Text, kOutputSeparator},
    {"print-maxsize", kOthers, Take::Flag, kPrintMaxsize},
    {"print-size", kOthers, Take::Flag, kPrintSize},
    {"print-version", kOthers, Take::Flag, kPrintVersion},
    {"quoted", kOthers, Take::Flag, kQuoted},
    {"reorder", kOthers, Take::Flag, kReorder},
    {"screen-center", kOthers, Take::Flag, kIgnoredFlag},
    {"scrollbar", kOthers, Take::Flag, kIgnoredFlag},
    {"scrolltext", kAll, Take::Flag, kIgnoredFlag},
    {"separate-output", kAll, Take::Flag, kSeparateOutput},
    {"separate-widget", kOthers, Take::Text, kSeparateWidget},
    {"separator", kOthers, Take::Text, kOutputSeparator},
    {"single-quoted", kOthers, Take::Flag, kSingleQuoted},
    {"size-err", kOthers, Take::Flag, kIgnoredFlag},
    {"sleep", kOthers, Take::Number, kSleep},
    {"smooth", kOthers, Take::Flag, kIgnoredFlag},
    {"stderr", kOthers, Take::Flag, kToStderr},
    {"stdout", kOthers, Take::Flag, kToStdout},
    {"tab-correct", kOthers, Take::Flag, kIgnoredFlag},
    {"tab-len", kOthers, Take::Number, kIgnoredNumber},
    {"time-format", kOthers, Take::Text, kIgnoredText},
    {"timeout", kOthers, Take::Number, kTimeLimit},
    {"title", kAll, Take::Text, kTitle},
    {"topleft", kAll, Take::Flag, kTopLeft},
    {"trace", kOthers, Take::Text, kIgnoredText},
    {"trim", kOthers, Take::Flag, kTrim},
    {"under-mouse", kOthers, Take::Flag, kIgnoredFlag},
    {"version", kAll, Take::Version, 0},
    {"visit-items", kOthers, Take::Flag, kVisitItems},
    {"week-start", kOthers, Take::Text, kIgnoredText},
    {"wmclass", kOthers, Take::Text, kIgnoredText},
    {"yes-button", kAll, Take::Text, kYesLabel},
    {"yes-label", kOthers, Take::Text, kYesLabel},
};

// The table as it lies in the program: what an option is in three bytes, then its name. Pointers
// would take more room than the names do, and be put right at each start.
constexpr std::size_t kHead = 3;

consteval std::size_t packedSize()
{
    std::size_t size = 1;
    for (const Option& option : kOptions)
        size += kHead + std::char_traits<char>::length(option.name) + 1;
    return size;
}

struct Packed {
    char text[packedSize()] = {};

    consteval Packed()
    {
        char* to = text;
        for (const Option& option : kOptions) {
            *to++ = static_cast<char>(option.names);
            *to++ = static_cast<char>(option.take);
            *to++ = static_cast<char>(option.field);
            for (const char* from = option.name; *from; ++from)
                *to++ = *from;
            ++to;
        }
    }
};

constexpr Packed kPacked;

// Goes through the options of this program's name until one is the wanted one.
template <typename Wanted>
bool anyOption(Option& option, Wanted wanted)
{
    const char* next = kPacked.text;
    for (const char* at = next; *at; at = next) {
        next = textAt(at + kHead, 1);
        option = {at + kHead, static_cast<unsigned char>(at[0]), static_cast<Take>(at[1]),
                  static_cast<unsigned char>(at[2]),
                  static_cast<std::size_t>(next - at) - kHead - 1};
        if ((option.names & name) && wanted(option))
            return true;
    }
    return false;
}

bool findOption(Option& option, const char* szName, std::size_t size)
{
    return anyOption(option, [=](const Option& each) {
        return each.size == size && std::memcmp(each.name, szName, size) == 0;
    });
}

// Finds the flag that a name with one "no-" more or less turns off.
bool findTurnedOff(Option& option, const char* szName)
{
    Buffer longer;
    if (begins(szName, "no-"))
        szName += 3;
    else
        szName = longer.add("no-").add(szName).text();
    return findOption(option, szName, std::strlen(szName)) && option.take == Take::Flag;
}

bool isLong(const char* szToken)
{
    return szToken[0] == '-' && szToken[1] == '-';
}

bool isOption(const char* szToken)
{
    if (!isLong(szToken))
        return false;
    const char* szName = szToken + 2;
    Option option;
    return findBox(szName) || findOption(option, szName, std::strlen(szName)) ||
           findTurnedOff(option, szName);
}

// Takes the next word off a text of options: quoted, with backslashes, blanks between. The word is
// put in order in place. Null at the end.
char* nextWord(char*& at)
{
    while (*at && (std::strchr(" \t\n", *at) || (*at == '\\' && at[1] == '\n')))
        ++at;
    if (!*at)
        return nullptr;
    char* word = at;
    char* to = at;
    bool quoted = false;
    for (; *at && (quoted || !std::strchr(" \t\n", *at)); ++at) {
        if (*at == '"') {
            quoted = !quoted;
        } else if (*at == '\\' && at[1] == '\n') {
            ++at;
        } else {
            at += *at == '\\' && at[1];
            *to++ = *at;
        }
    }
    at += *at != '\0';
    *to = '\0';
    return word;
}

} // namespace

void complain(const char* szWhat, const char* szAbout)
{
    closeScreen(nullptr);
    Buffer line;
    line.add(program).add(": ").add(szWhat).add(' ').add(szAbout).add('\n');
    line.writeTo(STDERR_FILENO);
}

int integer(const char* szText)
{
    const long n = std::strtol(szText, nullptr, 10);
    return static_cast<int>(kul::clamp(n, -65535L, 65535L));
}

bool readNumber(const char* szText, int& nNumber)
{
    constexpr long kMost = 30000;
    char* end;
    const long read = std::strtol(szText, &end, 10);
    nNumber = static_cast<int>(kul::clamp(read, -1L, kMost));
    return end != szText && *end == '\0';
}

int Call::number(int nPlace) const
{
    int nNumber = 0;
    if (nPlace < count)
        readNumber(arguments[nPlace], nNumber);
    return nNumber;
}

CommandLine::CommandLine(int count, char** tokens) : tokens_(tokens), count_(count)
{
    reset();
}

// Each box begins with the settings of the environment.
void CommandLine::reset()
{
    const char* szSeparator = settings_.texts[kSeparateWidget]; // stays for the next ones
    settings_ = Settings();
    settings_.texts[kSeparateWidget] = szSeparator;
    for (int& nNumber : settings_.numbers)
        nNumber = kNone;
    goesOn_ = false;
}

bool CommandLine::fail(const char* szWhat, const char* szAbout)
{
    complain(szWhat, szAbout);
    return false;
}

bool CommandLine::takeValue(const Option& option, const char* szValue)
{
    if (option.take == Take::Text) {
        settings_.texts[option.field] = szValue;
        return true;
    }
    if (option.take == Take::File)
        return insertFile(szValue);
    if (!readNumber(szValue, settings_.numbers[option.field]))
        return fail("not a number:", szValue);
    return true;
}

// Puts the words of a text in the place of tokens.
bool CommandLine::insert(const char* szText, int nRemoved)
{
    const std::size_t size = std::strlen(szText);
    char* text = copyOf(szText, size);
    // A word takes two characters at least.
    const std::size_t most = static_cast<std::size_t>(count_) + size / 2 + 2;
    auto** all = static_cast<char**>(std::malloc(most * sizeof(char*)));
    if (!text || !all)
        return fail("out of", "memory");
    int n = place_;
    std::memcpy(all, tokens_, static_cast<std::size_t>(n) * sizeof(char*));
    for (char* at = text; char* word = nextWord(at);)
        all[n++] = word;
    for (int i = place_ + nRemoved; i < count_; ++i)
        all[n++] = tokens_[i];
    tokens_ = all; // they live as long as the program
    count_ = n;
    return true;
}

// A file of options, or a descriptor behind an ampersand.
bool CommandLine::insertFile(const char* szFile)
{
    const int nFd = *szFile == '&' ? integer(szFile + 1) : open(szFile, O_RDONLY | O_CLOEXEC);
    Buffer text;
    if (nFd < 0 || !text.addFrom(nFd))
        return fail("cannot read", szFile);
    return insert(text.text(), 0);
}

// Takes one option at the place, if there is one.
bool CommandLine::takeOption(bool& taken)
{
    const char* szName = token(place_) + 2;
    const char* equals = name == kDialog ? nullptr : std::strchr(szName, '=');
    const std::size_t size =
        equals ? static_cast<std::size_t>(equals - szName) : std::strlen(szName);
    Option found;
    const bool plain = findOption(found, szName, size);
    taken = plain || (name != kWhiptail && findTurnedOff(found, szName));
    if (!taken)
        return true;
    ++place_;
    if (found.take == Take::Flag) {
        if (equals)
            return fail("no argument for", szName - 2);
        settings_.flags[found.field] = plain;
        return true;
    }
    if (found.take == Take::Again) {
        goesOn_ = true;
        return true;
    }
    if (found.take == Take::Place &&
        !readNumber(token(place_ + 1) ? token(place_ + 1) : "", settings_.numbers[kBeginX]))
        return fail("two numbers for", token(place_ - 1));
    const char* szValue = equals ? equals + 1 : token(place_);
    if (!szValue)
        return fail("missing argument of", token(place_ - 1));
    place_ += equals ? 0 : found.take == Take::Place ? 2 : 1;
    return takeValue(found, szValue);
}

// Up to the next option, each one that stands behind "--" as well.
void CommandLine::takeArguments()
{
    arguments_ = tokens_ + place_;
    argumentCount_ = 0;
    for (; place_ < count_ && !isOption(tokens_[place_]); ++place_) {
        const bool escaped = std::strcmp(tokens_[place_], "--") == 0;
        if (escaped && ++place_ == count_)
            break;
        arguments_[argumentCount_++] = tokens_[place_];
    }
}

Found CommandLine::nextInOrder()
{
    reset();
    if (const char* szOptions = std::getenv("DIALOGOPTS"); szOptions && !insert(szOptions, 0))
        return Found::Error;
    while (const char* szToken = token(place_)) {
        if (std::strcmp(szToken, "--") == 0) {
            ++place_;
            continue;
        }
        const char* szName = isLong(szToken) ? szToken + 2 : "";
        Option option;
        const bool known = findOption(option, szName, std::strlen(szName));
        if (known && option.take == Take::Help)
            return Found::Help;
        if (known && option.take == Take::Version)
            return Found::Version;
        if ((box_ = findBox(szName))) {
            ++place_;
            takeArguments();
            const char* szNext = token(place_);
            goesOn_ = szNext && std::strcmp(szNext, "--and-widget") == 0;
            return Found::Box;
        }
        bool taken = false;
        if (*szName && !takeOption(taken))
            return Found::Error;
        if (!taken) {
            fail("unknown option", szToken);
            return Found::Error;
        }
    }
    return Found::End;
}

// One box, and options anywhere.
Found CommandLine::anywhere()
{
    bool literal = false;
    errorStatus_ = 1;
    arguments_ = tokens_;
    while (char* szToken = place_ < count_ ? tokens_[place_] : nullptr) {
        if (literal || szToken[0] != '-' || !szToken[1]) {
            arguments_[argumentCount_++] = szToken;
            ++place_;
            continue;
        }
        const char* szName = isLong(szToken) ? szToken + 2 : szToken + 1;
        const char szShort[] = {isLong(szToken) ? '\0' : szToken[1], '\0'};
        if (std::strcmp(szToken, "--") == 0) {
            literal = true;
            ++place_;
        } else if (std::strcmp(szName, "help") == 0 || *szShort == 'h') {
            return Found::Help;
        } else if (std::strcmp(szName, "version") == 0 || *szShort == 'v') {
            return Found::Version;
        } else if (const Box* box = isLong(szToken) ? findBox(szName) : nullptr) {
            if (box_) {
                errorStatus_ = 255;
                fail("a second box:", szToken);
                return Found::Error;
            }
            box_ = box;
            ++place_;
        } else {
            bool taken = false;
            if (isLong(szToken) && !takeOption(taken))
                return Found::Error;
            if (!taken) {
                fail("unknown option", szToken);
                return Found::Error;
            }
        }
    }
    errorStatus_ = 255;
    return box_ ? Found::Box : Found::End;
}

Found CommandLine::next()
{
    if (name != kWhiptail)
        return nextInOrder();
    return box_ ? Found::End : anywhere();
}

void printHelp()
{
    Buffer text;
    text.add("usage: ").add(program).add(" [option]... box\n\nBoxes:\n");
    addBoxes(text);
    text.add("\nOptions:\n");
    Option each;
    anyOption(each, [&](const Option& option) {
        const bool valued = option.take >= Take::Text && option.take <= Take::File;
        text.add("  --").add(option.name);
        text.add(option.take == Take::Place ? " <y> <x>\n" : valued ? " <x>\n" : "\n");
        return false;
    });
    text.writeTo(STDOUT_FILENO);
}

} // namespace kuldialog
