// SPDX-License-Identifier: MIT
//
// Text boxes: a text that is typed, in a box of one or more rows, with a cursor in it.
#include "textbox.hpp"

#include "../clamp.hpp"
#include "../gui/text.hpp"
#include "handler.hpp"

#include <cstdlib>

namespace {

// More cells than any screen has; a box beyond is a mistake.
constexpr long long kMostCells = 1 << 24;

// The highest limit that a program can set.
constexpr int kMostCharacters = 65535;

// Frees the text of a box, cleared. Of one that the program has set only the text is known.
void freeText(KULTEXTBOX& box)
{
    const kul::TextState* state = kul::stateOf(box);
    if (box.szText && state && state->szOwn == box.szText)
        explicit_bzero(box.szText, static_cast<std::size_t>(state->nRoom));
    else if (box.szText)
        explicit_bzero(box.szText, std::strlen(box.szText));
    std::free(box.szText);
    box.szText = nullptr;
}

// Gives the box memory for so many characters, with the text that it has. False without memory,
// then it is as it was.
bool makeRoom(kul::TextBox& box, int nCharacters)
{
    const int nBytes = MB_CUR_MAX > 1 ? kul::textManners().nRoom : 1; // of a letter
    const int nRoom = nCharacters * nBytes;
    if (!box.szText || nRoom > kul::roomOf(box)) {
        const std::string_view text = kul::textOf(box);
        auto* szText = static_cast<char*>(std::malloc(static_cast<std::size_t>(nRoom) + 1));
        if (!szText)
            return false;
        // Most texts are short: memory that they do not come to is not touched.
        const int nEnd = std::min(static_cast<int>(text.size()), nRoom);
        std::copy_n(text.data(), nEnd, szText);
        std::fill(szText + nEnd, szText + (nBytes > 1 ? nEnd : nRoom) + 1, '\0');
        freeText(box);
        box.szText = box.state.szOwn = szText;
        box.state.nRoom = nRoom;
    }
    box.nMaxLength = nCharacters;
    return true;
}

// Gives the box an empty text with room for the inner cells, counted as the product of the sides:
// two that are negative give room that is not seen. False without memory.
bool makeText(kul::TextBox& box, int nWidth, int nHeight)
{
    const long long width = kul::innerSize(nWidth, box.nBorder);
    const long long cells = width * kul::innerSize(nHeight, box.nBorder);
    const kul::TextManners& manners = kul::textManners();
    return cells >= 0 && cells <= kMostCells &&
           makeRoom(box, static_cast<int>(std::min<long long>(cells, manners.nMost)));
}

void edit(KULTEXTBOX* box, int nKey)
{
    if (!kul::hasCursor(box))
        return;
    for (const auto& row : kul::textManners().keys) {
        if (row.nKey == nKey) {
            if (kul::TextState* state = kul::stateOf(*box))
                state->refused = false;
            row.edit(box);
            return;
        }
    }
    TextBoxCharacter(box, nKey);
}

// What a key makes the handler return; 0 for one that stays.
int leavesWith(int nKey)
{
    return nKey == KS_TAB || nKey == KS_ENTER ? KUL_NEXT : nKey == KS_ESC ? KUL_PREVIOUS : 0;
}

} // namespace

namespace kul {

void dropTextbox(KULTEXTBOX& box)
{
    freeText(box);
    box.nMaxLength = 0;
    if (TextState* state = stateOf(box))
        *state = {};
}

Spot spotOf(TextBox& box)
{
    if (innerSize(box.nWidth, box.nBorder) < 1 || innerSize(box.nHeight, box.nBorder) < 1)
        return {{}, -1};
    const Spot spot = textManners().spot(box);
    const int nY = shifted(box.nY, box.nBorder == BORDER ? 1 : 0);
    return {{shifted(nY, spot.rows.nFirst), shifted(nY, spot.rows.nEnd)}, spot.nView};
}

bool textboxAccepts(int nChain, int nRef)
{
    const auto* box = findUI<TextBox>(nChain, nRef, TEXTBOX);
    if (!box || !box->state.onCheck || !box->szText)
        return true;
    const Pause pause(Turn::Program);
    const CURRENT before = *GetCurrentSelection();
    const bool accepted = box->state.onCheck(box->szText) == 0;
    SetCurrentSelection(&before);
    return accepted;
}

} // namespace kul

int AttachTextboxComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, TEXTBOX);
}

int ConfigTextboxComponent(GUI* thisGUI, KULTEXTBOX* thisTB)
{
    if (!thisGUI || !thisTB)
        return -1;
    kul::takeColors(*thisGUI, *thisTB);
    if (kul::isEdition2() && thisTB->nColorUnfocus == BLACK_WHITE)
        thisTB->nColorUnfocus = BLACK_CYAN; // its extent is seen
    thisTB->szText = nullptr;
    thisTB->nLength = 0;
    thisTB->nBorder = NOBORDER;
    thisTB->nMask = NOMASK;
    thisTB->szCharSet = nullptr;
    thisTB->nCursor = SHOWCURSOR;
    thisTB->nCursorPos = 0;
    thisTB->nVisible = T;
    thisTB->nEnable = 1;
    thisTB->onFocus = thisTB->onUnfocus = thisTB->onKey = nullptr;
    return 0;
}

int WipeTextboxComponent(KULTEXTBOX* thisTB)
{
    if (!thisTB)
        return -1;
    const bool hadText = thisTB->szText;
    kul::dropTextbox(*thisTB);
    kul::freeRecord(thisTB);
    return hadText ? 0 : -1;
}

int kultextbox_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, TEXTBOX);
}

int kultextbox_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                      int nX, int nY, int nWidth, int nHeight, int nBorder, int nMask,
                      const char* szCharSet, KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                      KULCALLBACK onKey)
{
    auto* box = kul::resetUI<kul::TextBox>(nChain, nRef, TEXTBOX, KUL_KEEP, KUL_KEEP, KUL_KEEP);
    if (!box)
        return -1;
    box->nBorder = nBorder == BORDER ? BORDER : NOBORDER;
    if (!makeText(*box, nWidth, nHeight)) // which leaves the dialog's colours
        return -1;
    SetVar(&box->nColorFocus, nColorFocus);
    SetVar(&box->nColorUnfocus, nColorUnfocus);
    SetVar(&box->nColorDisable, nColorDisable);
    kul::setBox(*box, nX, nY, nWidth, nHeight, nBorder);
    box->nMask = nMask == MASK ? MASK : NOMASK;
    box->szCharSet = szCharSet;
    box->onFocus = onFocus;
    box->onUnfocus = onUnfocus;
    box->onKey = onKey;
    return 0;
}

// The text may be the box's own.
int kultextbox_setText(int nChain, int nRef, const char* szText)
{
    auto* box = kul::findUI<kul::TextBox>(nChain, nRef, TEXTBOX);
    if (!szText || !box || !box->szText)
        return -1;
    const std::string_view text = kul::viewOf(szText);
    const bool fits = kul::textManners().fits(*box, text);
    const int nCursor = box->nCursorPos;
    box->nLength = kul::clamp(box->nLength, 0, kul::roomOf(*box));
    kul::replaceText(*box, 0, box->nLength, fits ? text : std::string_view());
    if (!kul::textManners().behind)
        box->nCursorPos = kul::clamp(nCursor, 0, box->nLength);
    box->state.nFirst = 0;
    return fits ? 0 : -1;
}

char* kultextbox_getText(int nChain, int nRef)
{
    const auto* box = kul::findUI<kul::TextBox>(nChain, nRef, TEXTBOX);
    return box ? box->szText : nullptr;
}

int kultextbox_setLimit(int nChain, int nRef, int nCharacters)
{
    auto* box = kul::findUI<kul::TextBox>(nChain, nRef, TEXTBOX);
    if (!box || !box->szText || nCharacters < 0 || nCharacters > kMostCharacters)
        return -1;
    const bool fits = kul::textManners().placeOf(kul::textOf(*box), nCharacters + 1) < 0;
    return fits && makeRoom(*box, nCharacters) ? 0 : -1;
}

int kultextbox_setCheck(int nChain, int nRef, int (*onCheck)(const char* szText))
{
    auto* box = kul::findUI<kul::TextBox>(nChain, nRef, TEXTBOX);
    if (!box)
        return -1;
    box->state.onCheck = onCheck;
    return 0;
}

int kultextbox_setCursor(int nChain, int nRef, int nCharacter)
{
    auto* box = kul::findUI<kul::TextBox>(nChain, nRef, TEXTBOX);
    const int nPlace =
        box && nCharacter >= 0 ? kul::textManners().placeOf(kul::textOf(*box), nCharacter) : -1;
    if (nPlace < 0)
        return -1;
    box->nCursorPos = nPlace;
    return 0;
}

int kultextbox_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kultextbox_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

void ShowTextboxComponent(GUI* thisGUI, KULTEXTBOX* thisTB, int nFocus)
{
    if (!thisGUI || !thisTB || thisTB->nVisible != T || thisTB->nWidth < 1 || thisTB->nHeight < 1)
        return;
    const KULTEXTBOX& box = *thisTB;
    const int nResting = box.nEnable == 1 ? box.nColorUnfocus : box.nColorDisable;
    const int nColor = nFocus == 1 ? box.nColorFocus : nResting;
    WINDOW* win = thisGUI->winMain;
    Fill(win, box.nY, box.nX, box.nHeight, box.nWidth, nColor);
    if (box.nBorder == BORDER)
        DrawBorder(win, box.nY, box.nX, box.nHeight, box.nWidth, nColor);
    const int nWidth = kul::innerSize(box.nWidth, box.nBorder);
    const int nHeight = kul::innerSize(box.nHeight, box.nBorder);
    if (nWidth < 1 || nHeight < 1)
        return;
    const attr_t extent = nFocus == 1 || has_colors() ? A_NORMAL : kul::textManners().extent;
    wattr_on(win, extent, nullptr);
    if (extent != A_NORMAL) {
        const int nEdge = box.nBorder == BORDER ? 1 : 0;
        Fill(win, kul::shifted(box.nY, nEdge), kul::shifted(box.nX, nEdge), nHeight, nWidth,
             nColor);
    }
    {
        const kul::Attribute color(win, nColor);
        kul::textManners().draw(win, *thisTB, nFocus == 1);
    }
    wattr_off(win, extent, nullptr);
}

void DrawTextBox(GUI* thisGUI, KULTEXTBOX* thisBox, int nColor)
{
    if (!thisGUI || !thisBox)
        return;
    const kul::Attribute color(thisGUI->winMain, nColor);
    kul::textManners().drawAlone(thisGUI->winMain, *thisBox);
}

int kultextbox_execKeys(int nChain, int nRef)
{
    const auto* box = kul::findUI<kul::TextBox>(nChain, nRef, TEXTBOX);
    if (!box)
        return KUL_GONE;
    if (box->nVisible != T)
        return KUL_NEXT;
    kul::Handler<kul::TextBox> handler({nChain, nRef, TEXTBOX, 0, 0, 0});
    handler.call(&KULTEXTBOX::onFocus);
    while (const int nKey = handler.key(kul::isShown<KULTEXTBOX>)) {
        const int nLeave = leavesWith(nKey);
        if (nLeave == 0)
            edit(handler.record(), nKey);
        handler.call(&KULTEXTBOX::onKey);
        const kul::TextBox* now = handler.record();
        handler.show(now && !now->onKey ? kul::Changed::Selected : kul::Changed::Component);
        // A wrong text traps nobody: Escape goes without a question.
        if (nLeave != 0 && (nKey == KS_ESC || kul::textboxAccepts(nChain, nRef)))
            handler.end(nLeave);
        else if (nLeave != 0)
            handler.show();
    }
    return handler.finish(&KULTEXTBOX::onUnfocus);
}
