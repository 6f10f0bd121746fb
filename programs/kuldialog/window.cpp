// SPDX-License-Identifier: MIT
#include "window.hpp"

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <cstring>

#include <kulgui.h>

#include "boxes.hpp"
#include "clamp.hpp"
#include "terminal.hpp"

namespace kuldialog {

namespace {

constexpr int kFrame = 2;
constexpr int kMargins = 4; // of text: frame and a blank at both sides
constexpr int kGap = 3;     // between buttons
constexpr int kWidest = 72; // columns of text; longer rows are hard to read
constexpr int kInterrupt = 3;

int nLastChain = 0;

KULMENU* buttonRow(int nChain)
{
    UI* ui = GetUIComponentByRef(nChain, kButtonRow);
    return ui ? static_cast<KULMENU*>(ui->Pointer) : nullptr;
}

char lowered(int nKey)
{
    return static_cast<char>(nKey >= 'A' && nKey <= 'Z' ? nKey - 'A' + 'a' : nKey);
}

} // namespace

Settings withoutButtons(const Settings& settings)
{
    Settings plain = settings;
    plain.flags[kExtraButton] = plain.flags[kHelpButton] = plain.flags[kNoOk] = false;
    plain.texts[kDefaultButton] = plain.texts[kHelpFile] = nullptr;
    return plain;
}

Window* Window::running = nullptr;

Window::Window(const Call& call, const char* szText, int nSizeAt)
    : settings(call.settings), nChain(++nLastChain), nWidth(call.number(nSizeAt + 1)),
      nHeight(call.number(nSizeAt)), text_(prepareText(call.settings, szText))
{
}

Window::~Window()
{
    std::free(text_);
}

void Window::addButton(Answer answer, const char* szLabel)
{
    if (buttonCount_ < kMostButtons)
        buttons_[buttonCount_++] = {answer, szLabel};
}

void Window::addButtons(Buttons buttons)
{
    struct Labels {
        Text accept;
        char acceptText[5];
        Text cancel;
        char cancelText[7]; // empty for none
    };
    static constexpr Labels kLabels[] = {{kOkLabel, "OK", kCancelLabel, ""},
                                         {kExitLabel, "Exit", kCancelLabel, ""},
                                         {kOkLabel, "OK", kCancelLabel, "Cancel"},
                                         {kYesLabel, "Yes", kNoLabel, "No"}};
    if (buttons == kNoButtons)
        return;
    const Labels& labels = kLabels[buttons - kOk];
    const char* szAccept = settings.text(labels.accept, labels.acceptText);
    if (!settings.is(kNoOk))
        addButton(kAccepted, szAccept);
    if (settings.is(kExtraButton))
        addButton(kExtra, settings.text(kExtraLabel, "Extra"));
    if (*labels.cancelText && (buttons == kYesNo || !settings.is(kNoCancel)))
        addButton(kCancelled, settings.text(labels.cancel, labels.cancelText));
    if (settings.is(kHelpButton))
        addButton(kHelped, settings.text(kHelpLabel, "Help"));
    if (buttonCount_ == 0)
        addButton(kAccepted, szAccept);
}

int Window::buttonColumns() const
{
    int nColumns = 0;
    for (int i = 0; i < buttonCount_; ++i)
        nColumns += columns(buttons_[i].label) + 2 + (i > 0 ? kGap : 0);
    return nColumns;
}

// Sizes: what was asked for within the screen, or what text, body and buttons need.
void Window::measure()
{
    const int nRow = buttonCount_ > 0;
    const char* szTitle = settings.text(kTitle, "");
    const int nNeeded =
        std::max({widestLine(text_), bodyColumns_, buttonColumns(), columns(szTitle) + kGap});
    if (nWidth <= 0)
        nWidth = nWidth < 0 ? screenWidth()
                            : std::min(nNeeded, std::max(bodyColumns_, kWidest)) + kMargins;
    nWidth = kul::clamp(nWidth, std::min(screenWidth(), std::max(buttonColumns(), 4) + kMargins),
                        screenWidth());
    area_.wrap(text_, nWidth);

    const int nText = area_.rows();
    const int nLeast = kFrame + nRow + bodyLeast_ + (nText > 0);
    const int nBest = kFrame + nRow + bodyWanted_ + nText + (nRow && nText + bodyWanted_ > 0);
    if (nHeight <= 0)
        nHeight = nHeight < 0 ? screenHeight() : nBest;
    // What is higher than the screen is shown in part, with what has the focus.
    nHeight = kul::clamp(nHeight, nLeast, std::max(screenHeight(), nLeast));

    const int nRoom = nHeight - kFrame - nRow;
    const int nSpare = nRoom - bodyWanted_ - 1;
    const int nBody = std::max(bodyLeast_, std::min(bodyWanted_, nRoom / 2));
    textRows_ = kul::clamp(nRoom - nBody, 0, isForTexts ? std::max(nText, nSpare) : nText);
    nBodyHeight = kul::clamp(bodyWanted_, 0, std::max(nRoom - textRows_, 0));
    // A row between text and body, if it is there for both.
    const int nLeft = nRoom - textRows_ - nBodyHeight;
    nBodyY = 1 + textRows_ + (nLeft > 1 && textRows_ > 0);
}

// A text on the lower edge of the frame.
void Window::createLineBelow()
{
    const char* szLine = settings.texts[kHline];
    if (!szLine)
        return;
    const int nColumns = std::min(columns(szLine) + 1, nWidth - kFrame);
    kullabel_create(nChain, kLineBelow);
    made(kullabel_config(nChain, kLineBelow, colors[kWindowColor], KUL_KEEP,
                         (nWidth - nColumns) / 2, nHeight - 1, nColumns, 1, LEFT, NOBORDER,
                         szLine));
}

// The row is a menu. Without buttons it still takes the keys.
void Window::createButtons()
{
    kulmenu_create(nChain, kButtonRow);
    kulmenu_config(nChain, kButtonRow, colors[kFocus], colors[kButtons], KUL_KEEP, nullptr, nullptr,
                   nullptr, buttonCount_ > 0 ? buttonClicked : nullptr);
    for (int i = 0; i < buttonCount_; ++i) {
        Buffer label;
        label.add('<').add(buttons_[i].label).add('>');
        made(kulmenu_addElement(nChain, kButtonRow, label.text(), 1, nullptr, nullptr));
    }
    if (KULMENU* row = buttonRow(nChain)) {
        row->nX = std::max((nWidth - buttonColumns()) / 2, 1);
        row->nY = nHeight - 2;
        row->nSelect = defaultButton();
    }
}

int Window::defaultButton() const
{
    constexpr const char* kNames[] = {"ok", "cancel", "help", "extra"};
    // For one of the programs this is a matter of questions alone.
    const bool no = settings.is(kDefaultNo) && !settings.is(kVisitItems) &&
                    (name != kWhiptail || bodyWanted_ == 0);
    const char* szName = settings.text(kDefaultButton, no ? "no" : "");
    if (std::strcmp(szName, "yes") == 0)
        szName = kNames[kAccepted];
    if (std::strcmp(szName, "no") == 0)
        szName = kNames[kCancelled];
    for (int i = 0; i < buttonCount_; ++i) {
        if (std::strcmp(kNames[buttons_[i].answer], szName) == 0)
            return i;
    }
    return 0;
}

bool Window::open(Buttons buttons, int nRows, int nLeastRows, int nColumns)
{
    if (!text_)
        return false;
    bodyWanted_ = nRows;
    bodyLeast_ = nLeastRows;
    bodyColumns_ = nColumns;
    addButtons(buttons);
    cancels_ = buttons == kOkCancel;
    measure();
    const bool cornered = settings.is(kTopLeft);
    const int nAskedX = settings.numbers[kBeginX];
    const int nAskedY = settings.numbers[kBeginY];
    const int nX = cornered ? 0 : nAskedX != kNone ? nAskedX : KUL_CENTER;
    const int nY = cornered ? 0 : nAskedY != kNone ? nAskedY : KUL_CENTER;
    Buffer title;
    if (const char* szTitle = settings.texts[kTitle]) {
        title.add(' ').add(szTitle, bytesWithin(szTitle, nWidth - kMargins)).add(' ');
    }
    kulgui_create(nChain);
    // Below the next box it is still there, with its title.
    char* kept = copyOf(title.text(), title.size());
    if (!kept || kulgui_config(nChain, colors[kWindowColor], colors[kFocus], colors[kWindowColor],
                               KUL_KEEP, kept, BORDER, nX, nY, nWidth, nHeight, nullptr, nullptr,
                               nullptr, nullptr, nullptr) != 0) {
        std::free(kept);
        return false;
    }
    area_.create(nChain, 1, textRows_);
    createLineBelow();
    if (settings.is(kPrintSize)) {
        output.add("Size: ").addNumber(nHeight).add(", ").addNumber(nWidth).add('\n');
    }
    return true;
}

Answer Window::show()
{
    if (!isComplete())
        return kFailed;
    kulgui_show(nChain);
    const CHAIN* chain = GetChain(nChain);
    return chain && chain->Pointer->winMain ? kAccepted : kFailed;
}

Answer Window::run()
{
    createButtons();
    if (!isComplete())
        return kFailed;
    kulgui_setOnKey(nChain, keyPressed);
    const bool otherButton = name != kWhiptail && defaultButton() != 0;
    kulgui_setFocus(nChain, otherButton ? kButtonRow : nFocus);
    Window* before = running;
    running = this;
    answer_ = kFailed; // where the line is hung up
    if (settings.numbers[kTimeLimit] > 0)
        timer_ = kulgui_setTimer(1000 * settings.numbers[kTimeLimit], timeIsUp);
    const int nResult = kulgui_exec(nChain);
    kulgui_stopTimer(timer_);
    running = before;
    if (nResult == KUL_CANCELLED)
        answer_ = kEscaped;
    // What a script without a way to cancel gets from one of the programs.
    if (answer_ == kEscaped && name == kWhiptail && settings.is(kNoCancel) && cancels_)
        answer_ = kCancelled;
    return answer_;
}

void Window::removeLast()
{
    if (nLastChain == kDesktopChain)
        return;
    const CHAIN* chain = GetChain(nLastChain);
    char* title = chain && chain->Pointer ? const_cast<char*>(chain->Pointer->szTitle) : nullptr;
    kulgui_destroy(nLastChain--);
    std::free(title);
}

void Window::end(Answer answer)
{
    if (!running)
        return;
    running->answer_ = answer;
    kulgui_leave(running->nChain);
}

void Window::goToButtons(int nStep)
{
    KULMENU* row = buttonRow(nChain);
    if (!row || buttonCount_ == 0)
        return;
    row->nSelect = (row->nSelect + nStep + buttonCount_) % buttonCount_;
    kulgui_setFocus(nChain, kButtonRow);
}

int Window::button() const
{
    const KULMENU* row = buttonRow(nChain);
    return row && row->nSelect < buttonCount_ ? row->nSelect : 0;
}

void Window::chooseDefault()
{
    const bool any = running->buttonCount_ > 0 && !running->settings.is(kNoOk);
    end(any ? running->buttons_[running->button()].answer : kAccepted);
}

void Window::buttonClicked()
{
    chooseDefault();
}

void Window::timeIsUp()
{
    end(kTimedOut);
}

bool Window::has(int nRef) const
{
    return GetCurrentSelection()->nUserInterface == nRef;
}

void Window::setText(const char* szText)
{
    area_.wrap(szText, nWidth);
    area_.show(false);
}

// The key that the row of buttons gets for this one: Tab and the arrows go through them, and on
// from the last one to what else there is, or round. One of the programs has its arrows stay there.
int Window::movedInRow(int nKey)
{
    KULMENU* row = buttonRow(nChain);
    if (area_.scroll(nKey))
        return 0;
    if (!row || buttonCount_ == 0)
        return nKey;
    if (nKey == KS_SPACE) {
        end(buttons_[button()].answer);
        return 0;
    }
    for (int i = 0; i < buttonCount_ && name != kWhiptail && nKey > KS_SPACE && nKey < 127; ++i) {
        if (lowered(*buttons_[i].label) == lowered(nKey)) {
            end(buttons_[i].answer);
            return 0;
        }
    }
    // One of the programs keeps up and down for the text of a question.
    if (name == kDialog && bodyWanted_ == 0 && (nKey == KS_UP || nKey == KS_DOWN))
        return 0;
    const bool forward = nKey == KS_TAB || nKey == KS_RIGHT || nKey == KS_DOWN;
    if (!forward && nKey != KS_BACKTAB && nKey != KS_LEFT && nKey != KS_UP)
        return nKey;
    const int nNext = row->nSelect + (forward ? 1 : -1);
    if (nNext >= 0 && nNext < buttonCount_)
        return forward ? KS_RIGHT : KS_LEFT;
    if (name == kWhiptail && nKey != KS_TAB && nKey != KS_BACKTAB && (forward || isAlone()))
        return 0;
    // For when the focus comes round.
    kulgui_select(nChain, kButtonRow, forward || !isAlone() ? 0 : buttonCount_ - 1);
    if (nFocus > kBody) // back to where the focus came from
        kulgui_setFocus(nChain, nFocus);
    return nFocus != kBody ? 0 : forward ? KS_TAB : KS_BACKTAB;
}

// The file that F1 tells is in a window above this one.
void Window::showHelpFile() const
{
    const Settings plain = withoutButtons(settings);
    char zero[] = "0";
    char* arguments[] = {const_cast<char*>(settings.texts[kHelpFile]), zero, zero};
    runView({plain, arguments, 3, kWhole});
    removeLast();
}

void Window::handleKey()
{
    const int nPressed = nLastKey = kulgui_getKey();
    if (timer_ > 0) {
        kulgui_stopTimer(timer_);
        timer_ = kulgui_setTimer(1000 * settings.numbers[kTimeLimit], timeIsUp);
    }
    if (nPressed == kInterrupt && name != kWhiptail) {
        kulgui_destroyAll();
        std::signal(SIGINT, SIG_DFL);
        std::raise(SIGINT);
    }
    if (nPressed == KS_F1 && settings.texts[kHelpFile]) {
        showHelpFile();
        kulgui_setKey(0);
        return;
    }
    int nKey = onKey ? onKey(*this, nPressed) : nPressed;
    if (nKey != 0 && has(kButtonRow))
        nKey = movedInRow(nKey);
    if (nKey != nPressed)
        kulgui_setKey(nKey);
}

void Window::keyPressed()
{
    if (running)
        running->handleKey();
}

} // namespace kuldialog
