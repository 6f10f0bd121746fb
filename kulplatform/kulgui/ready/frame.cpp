// SPDX-License-Identifier: MIT
#include "frame.hpp"

#include <algorithm>
#include <climits>
#include <cstring>
#include <utility>

namespace kulready {

namespace {

constexpr int kFrame = 2;
constexpr int kMargins = 4; // of the text: frame and a blank at both sides
constexpr int kGap = 3;     // between buttons
constexpr int kWidest = 76; // text is hard to read in longer rows

const char* words[KULWORDS] = {"OK", "Cancel", "Yes", "No", "Close", "Search", "End it?"};

int freeChain()
{
    int nChain = -20000;
    while (GetChain(nChain))
        --nChain;
    return nChain;
}

KULMENU* buttonRow(int nChain)
{
    UI* ui = GetUIComponentByRef(nChain, BUTTONS);
    return ui ? static_cast<KULMENU*>(ui->Pointer) : nullptr;
}

bool makePrimary(bool& created)
{
    const CHAIN* primary = GetPrimaryChain();
    if (primary && primary->Pointer)
        return true;
    created = !primary;
    const int nChain = primary ? primary->nRef : kulgui_create(freeChain());
    return kulgui_configPrime(nChain, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "", nullptr, nullptr,
                              nullptr, nullptr, nullptr) == 0;
}

} // namespace

const char* word(int nWord)
{
    return words[nWord];
}

Stage::Stage() : nEdition_(kulgui_getEdition())
{
    kulgui_setEdition(2);
    usable_ = NCursesEnv(0) == 0;
    if (!usable_)
        usable_ = opened_ = NCursesEnv(1) == 0;
    usable_ = usable_ && makePrimary(created_);
    if (usable_ && created_)
        kulgui_show(GetPrimaryChain()->nRef);
}

Stage::~Stage()
{
    if (opened_)
        NCursesEnv(2);
    if (created_ && GetPrimaryChain())
        kulgui_destroy(GetPrimaryChain()->nRef);
    kulgui_setEdition(nEdition_);
}

Frame::Frame(const char* szTitle, const char* szText)
    : szText_(szText ? szText : ""), nChain_(freeChain())
{
    if (!szTitle || *szTitle == '\0')
        return;
    title_.add(" ");
    title_.add(szTitle);
    title_.add(" ");
}

Frame::~Frame()
{
    kulgui_destroy(nChain_);
}

void Frame::want(int nRows, int nLeastRows, int nColumns)
{
    nWanted_ = nRows;
    nLeast_ = nLeastRows;
    nColumns_ = nColumns;
}

void Frame::wantText(int nRows)
{
    nWantedText_ = nRows;
}

void Frame::addButton(const char* szText, std::size_t size)
{
    const std::size_t start = buttons_.size();
    if (!buttons_.add(szText, size) || !buttons_.add("", 1))
        return;
    nButtonColumns_ += columns(buttons_.text() + start) + 2 + (nButtons_ > 0 ? kGap : 0);
    ++nButtons_;
}

void Frame::addButtons(const char* szAccept, const char* szCancel)
{
    addButton(szAccept, std::strlen(szAccept));
    if (szCancel)
        addButton(szCancel, std::strlen(szCancel));
}

// What text, body and buttons need, within the screen.
void Frame::measure()
{
    const int nScreenWidth = std::max(kulgui_getColumns(), 1);
    const int nScreenHeight = std::max(kulgui_getRows(), 1);
    const int nText = std::min(widestLine(szText_), kWidest - kMargins);
    const int nNeeded =
        std::max({nText, nColumns_, nButtonColumns_, columns(title_.text()) + 2 - kMargins});
    const int nWidest =
        std::max(std::min(nScreenWidth, std::max(kWidest, nColumns_ + kMargins)), kMargins + 1);
    nWidth_ = std::min(nNeeded, nWidest - kMargins) + kMargins;
    area_.wrap(szText_, nWidth_);

    const int nRows = std::max(area_.rows(), nWantedText_);
    const int nRow = nButtons_ > 0 ? 1 : 0;
    const int nBoth = nRows > 0 && nWanted_ > 0 ? 1 : 0; // a row between them
    const long long best = kFrame + 2LL * nRow + nRows + nBoth + nWanted_;
    const int nLeast = kFrame + nRow + nLeast_ + std::min(nRows, 1);
    nHeight_ =
        static_cast<int>(std::clamp<long long>(best, nLeast, std::max(nScreenHeight, nLeast)));
    const int nRoom = nHeight_ - kFrame - nRow;
    nTextRows_ = std::clamp(nRoom - std::max(nLeast_, std::min(nWanted_, nRoom / 2)), 0, nRows);
    nBodyHeight_ = std::clamp(nRoom - nTextRows_, 0, nWanted_);
    const int nLeft = nRoom - nTextRows_ - nBodyHeight_;
    nBodyY_ = 1 + nTextRows_ + (nBoth && nLeft > 0 ? 1 : 0);
}

void Frame::setText(const char* szText, bool toEnd)
{
    szText_ = szText;
    area_.wrap(szText_, nWidth_);
    area_.show(toEnd);
}

// The buttons are a menu, which takes one row. False without memory.
bool Frame::createButtons()
{
    bool whole = true;
    kulmenu_create(nChain_, BUTTONS);
    kulmenu_config(nChain_, BUTTONS, KUL_KEEP, KUL_KEEP, KUL_KEEP, nullptr, nullptr, nullptr,
                   nullptr);
    const char* szText = buttons_.text();
    for (int i = 0; i < nButtons_; ++i, szText += std::strlen(szText) + 1) {
        Text text;
        text.add("<");
        text.add(szText);
        text.add(">");
        whole = whole && text.isWhole() &&
                kulmenu_addElement(nChain_, BUTTONS, text.text(), 1, nullptr, nullptr) == 0;
    }
    if (KULMENU* row = buttonRow(nChain_)) {
        row->nX = std::max((nWidth_ - nButtonColumns_) / 2, 1);
        row->nY = nHeight_ - kFrame;
    }
    kulgui_select(nChain_, BUTTONS, std::clamp(nSelected_, 0, std::max(nButtons_ - 1, 0)));
    return whole;
}

bool Frame::open()
{
    measure();
    kulgui_create(nChain_);
    if (kulgui_config(nChain_, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, title_.text(), BORDER,
                      KUL_CENTER, KUL_CENTER, nWidth_, nHeight_, nullptr, nullptr, nullptr, nullptr,
                      nullptr) != 0)
        return false;
    area_.create(nChain_, 1, nTextRows_);
    return title_.isWhole() && buttons_.isWhole() && area_.isWhole();
}

void Frame::show()
{
    kulgui_show(nChain_);
}

int Frame::run()
{
    if (!createButtons())
        return kUnusable;
    // Not found by the active chain: a program's callbacks may change that.
    Frame* outer = std::exchange(running, this);
    kulgui_setOnKey(nChain_, [] { running->handleKey(); });
    kulgui_setFocus(nChain_,
                    GetUIComponentByRef(nChain_, nFocus_) ? nFocus_ : static_cast<int>(BUTTONS));
    const int nEnd = kulgui_exec(nChain_);
    running = outer;
    if (nEnd == KUL_CANCELLED)
        return kCancelled;
    return nEnd == KUL_LEFT ? nResult_ : nEnd == KUL_ERROR ? kUnusable : kGone;
}

void Frame::end(int nResult)
{
    nResult_ = nResult;
    kulgui_leave(nChain_);
}

void Frame::click(int nButton)
{
    if (!mayEnd || mayEnd(*this, nButton))
        end(nButton);
}

// The key that the row of buttons gets for this one: Tab goes through them before it leaves them.
int Frame::moveInButtons(int nKey)
{
    const KULMENU* row = buttonRow(nChain_);
    const int nSelect = row ? row->nSelect : 0;
    if (nKey == KS_ENTER || nKey == KS_SPACE) {
        click(nSelect);
        return 0;
    }
    if (nKey == KS_TAB && nSelect + 1 < nButtons_)
        return KS_RIGHT;
    if (nKey == KS_BACKTAB && nSelect > 0)
        return KS_LEFT;
    enterButtons(nKey); // for when there is nothing else to go to
    if (area_.scroll(nKey))
        return 0;
    if (nKey != KS_UP)
        return nKey;
    if (GetUIComponentByRef(nChain_, BODY))
        kulgui_select(nChain_, BUTTONS, 0);               // which Enter clicks from above
    return onKey ? onKey(*this, KS_BACKTAB) : KS_BACKTAB; // to what stands above
}

// Before a key leads to the buttons: the first of them is the next one, or the last when it leads
// back.
void Frame::enterButtons(int nKey) const
{
    if (nKey == KS_TAB || nKey == KS_BACKTAB)
        kulgui_select(nChain_, BUTTONS, nKey == KS_TAB ? 0 : nButtons_ - 1);
}

void Frame::handleKey()
{
    const int nPressed = kulgui_getKey();
    int nKey = onKey ? onKey(*this, nPressed) : nPressed;
    if (focused() == BUTTONS) {
        nKey = nKey == 0 ? 0 : moveInButtons(nKey);
    } else if (nKey == KS_ENTER) {
        click(0);
        nKey = 0;
    } else {
        enterButtons(nKey);
    }
    kulgui_setKey(nKey);
}

} // namespace kulready

int kuldialog_setWord(int nWord, const char* szText)
{
    if (nWord < 0 || nWord >= KULWORDS || !szText)
        return -1;
    kulready::words[nWord] = szText;
    return 0;
}
