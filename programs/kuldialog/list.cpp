// SPDX-License-Identifier: MIT
//
// Lists to choose from: one of them (menu), several with markers (check list), one with markers
// (radio list), and their like.
#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <strings.h>

#include <kulgui.h>

#include "boxes.hpp"
#include "clamp.hpp"
#include "entry.hpp"
#include "options.hpp"
#include "output.hpp"
#include "terminal.hpp"
#include "window.hpp"

namespace kuldialog {

namespace {

constexpr int kHelpBar = 1;
constexpr int kBetween = 1; // columns from tag to item

bool isOn(const char* szStatus)
{
    const bool more = name == kWhiptail &&
                      (strncasecmp(szStatus, "yes", 4) == 0 || std::strcmp(szStatus, "1") == 0);
    return more || strncasecmp(szStatus, "on", 3) == 0;
}

// The items of the command line, as their tokens stand there.
class Items {
public:
    explicit Items(const Call& call)
        : settings_(call.settings), tokens_(call.arguments + kBefore),
          size_(itemSize(settings_, call.variant)), variant_(call.variant),
          count_(std::max(call.count - kBefore, 0) / size_)
    {
        for (int i = 0; i < count_; ++i) {
            tagColumns_ = showsTags() ? std::max(tagColumns_, columns(tag(i))) : 0;
            layOut(text(i), nullptr);
        }
    }

    int count() const { return count_; }
    const char* tag(int nItem) const { return tokens_[nItem * size_]; }
    const char* text(int nItem) const { return hasText() ? tokens_[nItem * size_ + 1] : ""; }
    bool on(int nItem) const { return isMarked() && isOn(tokens_[nItem * size_ + marks()]); }
    const char* help(int nItem) const
    {
        return settings_.is(kItemHelp) ? tokens_[(nItem + 1) * size_ - 1] : "";
    }
    bool isMarked() const { return variant_ >= kCheckedList; }

    int find(const char* szTag) const
    {
        for (int i = 0; szTag && i < count_; ++i) {
            if (std::strcmp(tag(i), szTag) == 0)
                return i;
        }
        return -1;
    }

    // Whether a tag begins so.
    bool begins(int nCharacter) const
    {
        bool any = false;
        for (int i = 0; i < count_; ++i)
            any = any || *tag(i) == nCharacter;
        return any;
    }

    // What stands in the row of an item, at most so many columns.
    void row(int nItem, int nMost, Buffer& text)
    {
        Buffer whole;
        for (int i = 2 * depth(nItem); i > 0; --i)
            whole.add(' ');
        if (showsTags()) {
            whole.add(tag(nItem));
            for (int i = columns(tag(nItem)); showsText() && i < tagColumns_ + kBetween; ++i)
                whole.add(' ');
        }
        if (showsText())
            layOut(this->text(nItem), &whole);
        text.clear();
        text.add(whole.text(), bytesWithin(whole.text(), nMost));
    }

    int widest() const
    {
        int nText = -1;
        for (const int nPart : parts_)
            nText += nPart;
        int nDeepest = 0;
        for (int i = 0; i < count_; ++i)
            nDeepest = std::max(nDeepest, depth(i));
        nText = showsText() ? nText + 2 * nDeepest : 0;
        return tagColumns_ + (showsTags() && showsText() ? kBetween : 0) + nText;
    }

private:
    static constexpr int kBefore = 4; // text, height, width and height of the list

    static constexpr int kMostParts = 8;

    // The parts of a text, with separators between, stand below those of the others. Without a text
    // to add them to they are measured.
    void layOut(const char* szText, Buffer* whole)
    {
        const char* szSeparator = settings_.text(kColumnSeparator, "");
        for (int& nWidth : parts_) {
            const char* end = *szSeparator && &nWidth != &parts_[kMostParts - 1]
                                  ? std::strstr(szText, szSeparator)
                                  : nullptr;
            Buffer part;
            part.add(szText, end ? static_cast<std::size_t>(end - szText) : std::strlen(szText));
            const int nColumns = columns(part.text()) + 1;
            if (whole)
                whole->add(part.text());
            else
                nWidth = std::max(nWidth, nColumns);
            if (!end)
                return;
            for (int i = nColumns; whole && i <= nWidth; ++i)
                whole->add(' ');
            szText = end + std::strlen(szSeparator);
        }
    }

    bool hasText() const
    {
        return size_ > 1 + isMarked() + (variant_ == kTree) + settings_.is(kItemHelp);
    }
    bool showsText() const { return hasText() && (!settings_.is(kNoItems) || !showsTags()); }
    bool showsTags() const
    {
        return !(settings_.is(kNoTags) || variant_ == kBuiltList || variant_ == kTree);
    }
    int marks() const { return 1 + hasText(); }
    int depth(int nItem) const
    {
        return variant_ == kTree ? kul::clamp(integer(tokens_[nItem * size_ + marks() + 1]), 0, 40)
                                 : 0;
    }

    const Settings& settings_;
    char** tokens_;
    int size_;
    int variant_;
    int count_;
    int tagColumns_ = 0;
    int parts_[kMostParts] = {}; // columns of each, with a blank
};

// A list on the screen, and what is chosen in it.
class List {
public:
    List(const Call& call, Window& window) : items(call), window_(window), variant_(call.variant) {}

    bool open(int nAsked); // the window, for so many rows; 0 for as many as there are items
    void create();
    Answer answer(Answer answer);

    Items items;

    int key(int nKey);
    void showHelp();

private:
    template <typename Record>
    Record* record() const
    {
        UI* ui = GetUIComponentByRef(window_.nChain, kBody);
        return ui ? static_cast<Record*>(ui->Pointer) : nullptr;
    }
    bool severalChecked() const { return variant_ == kCheckedList || variant_ == kBuiltList; }
    bool oneChosen() const { return variant_ == kChosenList || variant_ == kTree; }
    int current() const;
    void addChecked(bool first);
    void addHelpOf(int nItem);
    void noteOrder();
    Answer rename(int nItem);

    Window& window_;
    int variant_;
    int checks_ = 0; // keys that did so
};

List* shown = nullptr;

bool List::open(int nAsked)
{
    const int nFrame = items.isMarked() ? 0 : 2;
    const int nRows = std::max(nAsked > 0 ? std::min(nAsked, items.count()) : items.count(), 1);
    const int nMarker = items.isMarked() ? 5 : 0;
    return window_.open(kOkCancel, nRows + nFrame, 1 + nFrame, items.widest() + nMarker + 2);
}

void selectionMoved()
{
    shown->showHelp();
}

// The box is as wide as its items, in the middle.
void List::create()
{
    const int nChain = window_.nChain;
    const bool marked = items.isMarked();
    const int nRoom = window_.nWidth - 2;
    const int nExtra = marked ? 5 + (items.count() > window_.nBodyHeight) : 2;
    const int nText = kul::clamp(items.widest(), 1, std::max(nRoom - nExtra, 1));
    const int nX = std::max((window_.nWidth - nText - nExtra) / 2, 1);
    const int nY = window_.nBodyY;
    const int nHeight = window_.nBodyHeight;
    const int nColor = colors[kWindowColor];
    const KULCALLBACK onMove = window_.settings.is(kItemHelp) ? selectionMoved : nullptr;
    if (severalChecked()) {
        kulcheckbox_create(nChain, kBody);
        kulcheckbox_config(nChain, kBody, colors[kFocus], nColor, KUL_KEEP, nX, nY, nText + nExtra,
                           nHeight, NOBORDER, onMove, nullptr, onMove, nullptr);
    } else if (oneChosen()) {
        kuloptions_create(nChain, kBody);
        kuloptions_config(nChain, kBody, colors[kFocus], nColor, KUL_KEEP, nX, nY, nText + nExtra,
                          nHeight, NOBORDER, items.count(), 0, onMove, nullptr, onMove, nullptr);
    } else {
        kuldynmenu_create(nChain, kBody);
        kuldynmenu_config(nChain, kBody, colors[kFocus], nColor, KUL_KEEP, nX, nY, nText,
                          nHeight - 2, onMove, nullptr, onMove, Window::chooseDefault);
    }
    Buffer row;
    for (int i = 0, nOn = -1; i < items.count(); ++i) {
        items.row(i, nText, row);
        if (severalChecked())
            made(kulcheckbox_addElement(nChain, kBody, row.text(), items.on(i), 1, nullptr,
                                        nullptr));
        else if (oneChosen())
            made(kuloptions_addElement(nChain, kBody, row.text(), 1, nullptr, nullptr));
        else
            made(kuldynmenu_addElement(nChain, kBody, row.text(), nullptr, nullptr, 1));
        if (oneChosen() && nOn < 0 && items.on(i))
            kuloptions_setClicked(nChain, kBody, nOn = i);
    }
    int nDefault = items.find(window_.settings.texts[kDefaultItem]);
    for (int i = 0; variant_ == kBuiltList && nDefault < 0 && i < items.count(); ++i)
        nDefault = items.on(i) ? -1 : i; // where another one begins with those that are off
    if (nDefault >= 0 && (name != kWhiptail || !marked))
        kulgui_select(nChain, kBody, nDefault);
}

int List::current() const
{
    int nItem = -1;
    if (severalChecked())
        nItem = record<KULCHECKBOX>() ? record<KULCHECKBOX>()->nSelect : -1;
    else if (oneChosen())
        nItem = record<KULOPTIONS>() ? record<KULOPTIONS>()->nPosition : -1;
    else
        nItem = record<KULDYNMENU>() ? record<KULDYNMENU>()->nSelect : -1;
    return nItem < items.count() ? nItem : -1;
}

void List::showHelp()
{
    const int nItem = current();
    Buffer row;
    row.add(nItem >= 0 ? items.help(nItem) : "");
    for (int i = columns(row.text()); i < screenWidth(); ++i)
        row.add(' ');
    made(kullabel_config(kDesktopChain, kHelpBar, colors[kWindowColor], KUL_KEEP, 0,
                         screenHeight() - 1, screenWidth(), 1, LEFT, NOBORDER, row.text()));
    UpdateDisplayComponents(desktop());
}

// Enter takes what is chosen. The keys that lead to the buttons and back are those of the program
// whose name this one has, and so is whether a list goes round.
int List::key(int nKey)
{
    const bool back = nKey == KS_LEFT || nKey == KS_BACKTAB;
    const bool row = window_.has(kButtonRow);
    const int nStep = nKey == KS_UP ? -1 : nKey == KS_DOWN ? 1 : 0;
    const int nNext = current() + nStep;
    const bool none = nStep != 0 && (nNext < 0 || nNext >= items.count());
    if (row && nStep != 0 && name != kWhiptail) {
        if (!none)
            kulgui_select(window_.nChain, kBody, nNext);
        kulgui_setFocus(window_.nChain, kBody);
        return 0;
    }
    if (row || (none && name != kOwn))
        return row ? nKey : 0;
    if (nKey == KS_ENTER) {
        Window::chooseDefault();
        return 0;
    }
    if (name == kWhiptail && (nKey == KS_LEFT || nKey == KS_RIGHT))
        return items.isMarked() ? (back ? KS_UP : KS_DOWN) : back ? 0 : KS_TAB;
    if (back || nKey == KS_RIGHT ||
        (nKey == KS_TAB && name == kDialog && !window_.settings.is(kVisitItems))) {
        window_.goToButtons(back ? -1 : 1);
        return 0;
    }
    if (nKey >= '1' && nKey <= '9' && name != kWhiptail && !items.isMarked() && !items.begins(nKey))
        kulgui_select(window_.nChain, kBody, nKey - '1');
    if (nKey == KS_SPACE && window_.settings.is(kReorder))
        noteOrder();
    const bool letter = nKey > KS_SPACE && nKey < 127;
    return letter && window_.settings.is(kNoHotList) ? 0 : nKey;
}

// The element has the number of the key that checks it.
void List::noteOrder()
{
    auto* list = variant_ == kBuiltList ? record<KULCHECKBOX>() : nullptr;
    KULCHECKELEMENT* element = list ? list->Element : nullptr;
    for (int i = current(); element && i > 0; --i)
        element = element->Next;
    if (element)
        element->nExitCode = ++checks_;
}

// Writes the tags of all that are checked, in the order of their numbers.
void List::addChecked(bool first)
{
    const auto* list = record<KULCHECKBOX>();
    const KULCHECKELEMENT* element = list ? list->Element : nullptr;
    int nLeft = 0;
    for (int i = 0; element && i < items.count(); ++i, element = element->Next)
        nLeft += element->nSelect == 1;
    for (int i = items.count(), nNumber = -1; nLeft > 0; ++i, element = element->Next) {
        if (i == items.count()) { // from the first one on for each number
            i = 0;
            ++nNumber;
            element = list->Element;
        }
        if (element->nSelect != 1 || element->nExitCode != nNumber)
            continue;
        --nLeft;
        addToList(window_.settings, items.tag(i), first, variant_ == kBuiltList && nLeft == 0);
        first = false;
    }
}

void List::addHelpOf(int nItem)
{
    const Settings& settings = window_.settings;
    const bool byTag = !settings.is(kItemHelp) || settings.is(kHelpTags);
    addHelp(settings, byTag ? items.tag(nItem) : items.help(nItem));
    if (!settings.is(kHelpStatus))
        return;
    if (settings.is(kSeparateOutput))
        output.add(settings.text(kOutputSeparator, "\n"));
    else if (oneChosen())
        output.add(settings.text(kOutputSeparator, " "));
}

// Lets the text of an item be changed.
Answer List::rename(int nItem)
{
    const Settings settings = withoutButtons(window_.settings);
    char* size[] = {const_cast<char*>("0"), const_cast<char*>("0")};
    Window window({settings, size, 2, 0}, items.tag(nItem), 0);
    if (!window.open(kOkCancel, 1, 1, 40))
        return kFailed;
    createLine(window, kBody, 2, window.nBodyY, window.innerWidth(), NOMASK, 2048,
               items.text(nItem));
    window.onKey = lineKey;
    window.nFocus = kBody;
    const Answer answer = window.run();
    if (answer == kAccepted) {
        output.add("RENAMED ").add(items.tag(nItem)).add(' ').add(entered(window, kBody));
    }
    Window::removeLast();
    return answer;
}

// Writes what the answer asks for; the answer, or kEscaped to go on with the list.
Answer List::answer(Answer answer)
{
    const Settings& settings = window_.settings;
    const int nItem = current();
    const bool helped = answer == kHelped;
    if ((answer != kAccepted && answer != kExtra && !helped) || nItem < 0)
        return answer;
    if (answer == kExtra && variant_ == kRenamedList)
        return rename(nItem) == kAccepted ? kExtra : kFailed;
    beginAnswer(settings);
    if (helped)
        addHelpOf(nItem);
    else if (oneChosen())
        output.add(settings.text(kOutputSeparator, "")); // as before each of several
    if (!helped || settings.is(kHelpStatus)) {
        if (severalChecked()) {
            addChecked(!helped);
        } else if (oneChosen()) {
            const auto* list = record<KULOPTIONS>();
            if (list && list->nSelect >= 0 && list->nSelect < items.count())
                addAnswer(settings, items.tag(list->nSelect));
        } else if (!helped) {
            addAnswer(settings, items.tag(nItem));
        }
    }
    return helped && settings.is(kItemHelp) ? kHelpedItem : answer;
}

} // namespace

Answer runList(const Call& call)
{
    Settings settings = call.settings;
    if (call.variant == kRenamedList) {
        settings.flags[kExtraButton] = true;
        settings.texts[kExtraLabel] = settings.text(kExtraLabel, "Rename");
    }
    const Call changed{settings, call.arguments, call.count, call.variant};
    Window window(changed, call.argument(0));
    List list(changed, window);
    if (!list.open(call.number(3)))
        return kFailed;
    if (settings.is(kItemHelp))
        kullabel_create(kDesktopChain, kHelpBar);
    list.create();
    window.body = &list;
    window.onKey = [](Window& of, int nKey) { return static_cast<List*>(of.body)->key(nKey); };
    window.nFocus = list.items.count() > 0 ? kBody : kButtonRow;
    shown = &list;
    Answer answer = window.run();
    // A renaming that was given up comes back to the list.
    while (answer == kExtra && call.variant == kRenamedList && list.answer(answer) != kExtra)
        answer = window.run();
    return call.variant == kRenamedList && answer == kExtra ? answer : list.answer(answer);
}

} // namespace kuldialog
