// SPDX-License-Identifier: MIT
//
// kuldialog: dialogs for shell scripts. Reads the command line box by box, shows them one after
// the other, and ends with an answer and a status.
#include <clocale>
#include <cstdlib>
#include <cstring>

#include <kulgui.h>
#include <unistd.h>

#include "boxes.hpp"
#include "colors.hpp"
#include "options.hpp"
#include "output.hpp"
#include "terminal.hpp"
#include "text.hpp"
#include "window.hpp"

namespace {

using namespace kuldialog;

// The program takes another one's part under its name.
void takeName(const char* szPath)
{
    const char* slash = std::strrchr(szPath, '/');
    const char* szName = slash ? slash + 1 : szPath;
    if (std::strcmp(szName, "whiptail") == 0)
        name = kWhiptail;
    else if (std::strcmp(szName, "dialog") == 0)
        name = kDialog;
    else
        return;
    program = szName;
}

// The exit status of an answer: the one that the environment has for it, or the usual one.
int statusOf(Answer answer)
{
    constexpr char kVariables[] = "DIALOG_OK\0DIALOG_CANCEL\0DIALOG_HELP\0DIALOG_EXTRA\0"
                                  "DIALOG_ITEM_HELP\0DIALOG_TIMEOUT\0DIALOG_ESC\0DIALOG_ERROR";
    const int nUsual = answer < kEscaped ? answer : 255;
    if (name == kWhiptail)
        return nUsual;
    const char* szValue = std::getenv(textAt(kVariables, answer));
    if (!szValue && answer == kHelpedItem)
        return statusOf(kHelped);
    if (!szValue && answer == kTimedOut)
        return statusOf(kEscaped);
    char* end = nullptr;
    const long nValue = szValue ? std::strtol(szValue, &end, 0) : 0;
    return end && end != szValue && !*end ? static_cast<int>(nValue & 255) : nUsual;
}

void printVersion()
{
    Buffer text;
    text.add(name == kDialog ? "Version:" : "kuldialog").add(" " KULGUI_VERSION "\n");
    text.writeTo(STDOUT_FILENO);
}

// A background without a title is not shown as a dialog is, nor shown again on another screen.
void fillDesktop()
{
    if (desktop()->nVisible == F)
        WinFill(desktop()->winMain, desktop()->nColorStandard);
}

// The background, with a title if there is one; without, it is a colour alone.
void showDesktop(const Settings& settings)
{
    static bool shown = false;
    if (settings.texts[kBacktitle] || settings.is(kItemHelp)) {
        desktop()->szTitle = settings.text(kBacktitle, "");
        kulgui_show(kDesktopChain);
    } else if (!shown) {
        fillDesktop();
        kulgui_setOnResize(kDesktopChain, fillDesktop);
    }
    shown = true;
}

// Things that are printed without a box.
void printFacts(const Settings& settings)
{
    if (settings.is(kPrintVersion))
        output.add("Version: " KULGUI_VERSION "\n");
    if (settings.is(kPrintMaxsize)) {
        output.add("MaxSize: ").addNumber(screenHeight()).add(", ");
        output.addNumber(screenWidth()).add('\n');
    }
}

class Program {
public:
    Program(int count, char** tokens) : line_(count, tokens) {}
    int run();

private:
    int finish(Answer answer);
    Answer runBox();
    int noBox(bool any);

    CommandLine line_;
    int descriptor_ = STDERR_FILENO; // where the answer goes
    bool clears_ = false;            // the screen, at the end
    char* stays_ = nullptr;          // the text that stays when the program is over
};

Answer Program::runBox()
{
    const Call call = line_.call();
    if (!checkArguments(*line_.box(), call))
        return kFailed;
    if (!isScreenOpen() && !takeTerminal()) {
        complain("there is no", "terminal");
        return kFailed;
    }
    if (call.settings.is(kAsciiLines))
        kulgui_setAsciiLines(T);
    if (!isScreenOpen() && !openScreen()) {
        const char* szTerm = std::getenv("TERM");
        complain("unusable terminal:", szTerm ? szTerm : "");
        _exit(name == kOwn ? 255 : 1);
    }
    descriptor_ = answerDescriptor(call.settings);
    if (descriptor_ < 0) {
        complain("cannot write to", "--output-fd");
        return kFailed;
    }
    clears_ = call.settings.is(kClear);
    printFacts(call.settings);
    showDesktop(call.settings);
    const Answer answer = line_.box()->run(call);
    begun = begun || line_.box()->answers();
    if (answer == kAccepted && call.settings.is(kLastKey)) {
        if (output.size() > 0)
            output.add(' ');
        // A newline is what scripts know of Enter.
        output.addNumber(Window::nLastKey == KS_ENTER ? '\n' : Window::nLastKey).add(' ');
    }
    stays_ = nullptr;
    if (std::strcmp(line_.box()->name, "infobox") == 0)
        stays_ = prepareText(call.settings, call.argument(0));
    int nSeconds = call.settings.numbers[kSleep];
    while (nSeconds > 0) // a signal ends less than all of it
        nSeconds = static_cast<int>(sleep(static_cast<unsigned>(nSeconds)));
    return answer;
}

// The command line had no box, or no more.
int Program::noBox(bool any)
{
    const Settings& settings = line_.settings();
    if (!any && settings.texts[kNewFile])
        return statusOf(writeColors(settings.texts[kNewFile]) ? kAccepted : kFailed);
    const bool printed = settings.is(kPrintVersion) || settings.is(kPrintMaxsize);
    clears_ = clears_ || (settings.is(kClear) && name != kWhiptail);
    if (!any && (clears_ || settings.is(kPrintMaxsize)) && takeTerminal())
        openScreen();
    printFacts(settings);
    if (any || printed || clears_ || name == kDialog)
        return finish(kAccepted);
    complain("no box; see", "--help");
    return 255;
}

int Program::finish(Answer answer)
{
    closeScreen(answer == kAccepted ? stays_ : nullptr, clears_);
    if (!isWhole || !output.writeTo(descriptor_))
        answer = kFailed;
    return statusOf(answer);
}

int Program::run()
{
    bool any = false;
    for (;;) {
        switch (line_.next()) {
        case Found::End:
            return noBox(any);
        case Found::Help:
            closeScreen(nullptr);
            printHelp();
            return 0;
        case Found::Version:
            closeScreen(nullptr);
            printVersion();
            return 0;
        case Found::Error:
            finish(kFailed);
            return name == kWhiptail ? line_.errorStatus() : statusOf(kFailed);
        case Found::Box:
            break;
        }
        any = true;
        const Answer answer = runBox();
        const bool goesOn = answer == kAccepted || (line_.goesOn() && answer < kTimedOut);
        if (!goesOn)
            return finish(answer);
        if (clears_)
            Window::removeLast();
    }
}

} // namespace

int main(int argc, char** argv)
{
    fillDescriptors();
    std::setlocale(LC_CTYPE, ""); // what texts need; the rest costs time
    takeName(argc > 0 ? argv[0] : "");
    // One of the programs answers a single word that is no box by itself with its help.
    constexpr char kAlone[] = "--clear\0--print-maxsize\0--print-version\0--version";
    bool helps = name == kDialog && argc <= 2;
    for (int i = 0; i < 4; ++i)
        helps = helps && (argc < 2 || std::strcmp(argv[1], textAt(kAlone, i)) != 0);
    if (helps) {
        printHelp();
        return 0;
    }
    kulgui_setEdition(2);
    kulgui_setMarkerBars(T);
    readColors();
    static Program program(argc, argv); // what it keeps, it keeps to the end
    return program.run();
}
