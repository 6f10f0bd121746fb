// SPDX-License-Identifier: MIT
//
// Bars: of percentages that come from a script, of seconds that pass, and of a value to choose.
#include <algorithm>
#include <cstdlib>
#include <cstring>

#include <kulgui.h>
#include <unistd.h>

#include "boxes.hpp"
#include "clamp.hpp"
#include "output.hpp"
#include "terminal.hpp"
#include "window.hpp"

namespace kuldialog {

namespace {

constexpr int kBar = kItem;
constexpr int kValue = kItem + 1;
constexpr int kValueColumns = 6;

// A bar with its value at the right.
struct Meter {
    Window& window;
    int nRange;
    const char* szUnit;

    void create() const
    {
        kulprogbar_create(window.nChain, kBar);
        kullabel_create(window.nChain, kValue);
    }

    void set(int nPosition, int nValue) const
    {
        Buffer text;
        text.addNumber(nValue);
        text.add(szUnit);
        const int nLength = std::max(window.innerWidth() - kValueColumns - 1, 1);
        made(kulprogbar_config(window.nChain, kBar, colors[kFocus], colors[kWindowColor], 2,
                               window.nBodyY, nLength, nPosition, std::max(nRange, 1), LATERAL));
        made(kullabel_config(window.nChain, kValue, colors[kWindowColor], KUL_KEEP,
                             window.nWidth - 3 - kValueColumns, window.nBodyY, kValueColumns + 1, 1,
                             RIGHT, NOBORDER, text.text()));
    }
};

// What a script writes: a percentage in a line, or between two lines "XXX" a percentage and lines
// of a text.
class Reader {
public:
    Reader(const Meter& meter, const Settings& settings) : meter_(meter), settings_(settings)
    {
        settings_.flags[kCrWrap] = true; // its lines stay
    }
    ~Reader() { std::free(shown_); }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    void readMore();

private:
    void takeLine(const char* szLine);
    bool takePercent(const char* szLine);
    void showText();

    const Meter& meter_;
    Settings settings_;
    Buffer line_;
    Buffer text_;
    char* shown_ = nullptr;
    int linesOfBlock_ = -1; // -1 outside of one
};

constexpr std::size_t kLongestLine = 16384;

bool Reader::takePercent(const char* szLine)
{
    char* end;
    const long nPercent = kul::clamp(std::strtol(szLine, &end, 10), 0L, 100L);
    if (end != szLine)
        meter_.set(static_cast<int>(nPercent), static_cast<int>(nPercent));
    return end != szLine;
}

void Reader::showText()
{
    char* text = prepareText(settings_, text_.text());
    if (!text)
        return made(-1);
    meter_.window.setText(text);
    std::free(shown_);
    shown_ = text;
}

void Reader::takeLine(const char* szLine)
{
    const bool mark = begins(szLine, "XXX");
    if (mark && linesOfBlock_ < 0) {
        linesOfBlock_ = 0;
        text_.clear();
        return;
    }
    if (mark) {
        showText();
        linesOfBlock_ = -1;
        return;
    }
    // For one of the programs a block begins with a percentage in any case.
    if (linesOfBlock_ <= 0 && !takePercent(szLine) && name != kWhiptail)
        linesOfBlock_ += linesOfBlock_ == 0;
    if (linesOfBlock_ > 0 && text_.size() < kLongestLine) {
        if (linesOfBlock_ > 1)
            text_.add('\n');
        text_.add(szLine);
    }
    linesOfBlock_ += linesOfBlock_ >= 0;
}

void Reader::readMore()
{
    char part[4096];
    const ssize_t size = read(nScriptInput, part, sizeof part);
    if (size <= 0) {
        kulgui_watch(nScriptInput, nullptr);
        Window::end(kAccepted);
        return;
    }
    const char* end = part + size;
    for (const char* at = part; at < end;) {
        const char* stop = lineEnd(at, end);
        if (line_.size() < kLongestLine)
            line_.add(at, static_cast<std::size_t>(stop - at));
        if (stop < end) {
            takeLine(line_.text());
            line_.clear();
            ++stop;
        }
        at = stop;
    }
}

Reader* reader = nullptr;

void inputReady()
{
    reader->readMore();
}

int noKeys(Window&, int)
{
    return 0;
}

Answer readGauge(const Call& call, Window& window)
{
    const Meter meter{window, 100, " %"};
    meter.create();
    const int nPercent = kul::clamp(call.number(3), 0, 100);
    meter.set(nPercent, nPercent);
    Reader script(meter, call.settings);
    reader = &script;
    window.onKey = noKeys;
    kulgui_watch(nScriptInput, inputReady);
    const Answer answer = window.run();
    kulgui_watch(nScriptInput, nullptr);
    return answer;
}

// Seconds that pass.

struct Countdown {
    Meter meter;
    int nLeft;
    int nTimer;

    void show() const { meter.set(nLeft, nLeft); }
};

Countdown* countdown = nullptr;

void secondPassed()
{
    if (--countdown->nLeft <= 0) {
        Window::end(kAccepted);
        return;
    }
    countdown->show();
    countdown->nTimer = kulgui_setTimer(1000, secondPassed);
}

Answer countSeconds(const Call& call, Window& window)
{
    const int nSeconds = std::max(call.number(3), 0);
    Countdown counting{{window, nSeconds, " s"}, nSeconds, 0};
    counting.meter.create();
    counting.show();
    if (nSeconds == 0)
        return kAccepted;
    countdown = &counting;
    counting.nTimer = kulgui_setTimer(1000, secondPassed);
    const Answer answer = window.run();
    kulgui_stopTimer(counting.nTimer);
    countdown = nullptr;
    return answer;
}

// What the states of a mixed gauge are called.
const char* stateName(const char* szState, Buffer& room)
{
    constexpr char kStates[] = "Succeeded\0Failed\0Passed\0Completed\0Checked\0Done\0Skipped\0"
                               "In Progress\0\0N/A";
    constexpr int kCount = 10;
    char* end;
    const long nState = std::strtol(szState, &end, 10);
    if (end == szState || *end || nState >= kCount)
        return szState;
    if (nState >= 0)
        return textAt(kStates, static_cast<int>(nState));
    room.clear();
    room.addNumber(static_cast<int>(-nState));
    room.add('%');
    return room.text();
}

// A value between two others.

struct Range {
    Meter meter;
    int nLeast;
    int nMost;
    int nValue;

    void move(int nTo)
    {
        nValue = kul::clamp(nTo, nLeast, nMost);
        meter.set(nValue - nLeast, nValue);
    }
};

int rangeKey(Window& window, int nKey)
{
    auto& range = *static_cast<Range*>(window.body);
    const int nPage = std::max((range.nMost - range.nLeast) / 10, 1);
    const bool small = nKey == KS_UP || nKey == KS_DOWN || nKey == '-' || nKey == '+';
    const bool back = nKey == KS_UP || nKey == '-' || nKey == KS_PAGEUP;
    const int nStep = small ? 1 : nPage;
    if (nKey == KS_HOME || nKey == KS_END)
        range.move(nKey == KS_HOME ? range.nLeast : range.nMost);
    else if (small || nKey == KS_PAGEUP || nKey == KS_PAGEDOWN)
        range.move(range.nValue + (back ? -nStep : nStep));
    else
        return nKey;
    return 0;
}

} // namespace

Answer runGauge(const Call& call)
{
    Buffer text;
    Buffer room;
    for (int i = 4; call.variant == kMixedGauge && i + 1 < call.count; i += 2) {
        text.add(call.arguments[i]);
        text.add("  [");
        text.add(stateName(call.arguments[i + 1], room));
        text.add("]\\n");
    }
    text.add(call.argument(0));
    Window window(call, text.text());
    window.isForTexts = call.variant == kReadGauge;
    if (!window.open(call.variant == kCountedGauge ? kOkCancel : kNoButtons, 1, 1, 40))
        return kFailed;
    if (call.variant == kReadGauge)
        return readGauge(call, window);
    if (call.variant == kCountedGauge)
        return countSeconds(call, window);
    const Meter meter{window, 100, " %"};
    const int nPercent = kul::clamp(call.number(3), 0, 100);
    meter.create();
    meter.set(nPercent, nPercent);
    return window.show();
}

Answer runRange(const Call& call)
{
    const Settings& settings = call.settings;
    Window window(call, call.argument(0));
    if (!window.open(kOkCancel, 1, 1, 40))
        return kFailed;
    const int nLeast = call.number(3);
    const int nMost = std::max(call.number(4), nLeast);
    Range range{{window, nMost - nLeast, ""}, nLeast, nMost, 0};
    range.meter.create();
    range.move(call.number(5));
    window.body = &range;
    window.onKey = rangeKey;
    const Answer answer = window.run();
    if (answer == kAccepted || answer == kExtra) {
        beginAnswer(settings);
        output.addNumber(range.nValue);
    }
    return answer;
}

} // namespace kuldialog
