// SPDX-License-Identifier: MIT
//
// Buttons: a frame of three rows with a centred text, pressed with Enter. OK, cancel and exit
// buttons are the same component under other names.
#include "button.hpp"

#include "../gui/edition.hpp"
#include "../gui/print.hpp"
#include "../gui/screen.hpp"
#include "../gui/text.hpp"
#include "handler.hpp"

namespace {

// What the config calls of the variants do.
int resetButton(int nChain, int nRef)
{
    return kul::resetUI<KULBUTTON>(nChain, nRef, BUTTON, KUL_KEEP, KUL_KEEP, KUL_KEEP) ? 0 : -1;
}

// How far a button is from another one in the direction of an arrow key, along the rows and columns
// and more so across them; -1 when it does not lie there.
int distance(const KULBUTTON& from, const KULBUTTON& to, int nKey)
{
    const bool lateral = nKey == KS_LEFT || nKey == KS_RIGHT;
    const bool back = nKey == KS_LEFT || nKey == KS_UP;
    const auto gap = [=](const KULBUTTON& first, const KULBUTTON& second) {
        return lateral ? second.nX - 0LL - first.nX - first.nWidth
                       : second.nY - 0LL - first.nY - kul::kButtonHeight;
    };
    const long long along = back ? gap(to, from) : gap(from, to);
    const long long across = std::abs(lateral ? to.nY - 0LL - from.nY : to.nX - 0LL - from.nX);
    return along < 0 ? -1 : kul::shifted(0, along + (lateral ? 8 : 1) * across);
}

// Moves the focus to the nearest button in the direction of an arrow key, if there is one.
void goToNearest(const CURRENT& at, int nKey)
{
    const kul::Dialog& dialog = *kul::findDialog(at.nChain);
    const auto* from = kul::findUI<KULBUTTON>(at.nChain, at.nUserInterface, BUTTON);
    const UI* nearest = nullptr;
    int nNearest = -1;
    for (const UI* ui = from ? dialog.UserInterface : nullptr; ui; ui = ui->Next) {
        const auto* to = ui->nType == BUTTON ? static_cast<KULBUTTON*>(ui->Pointer) : nullptr;
        if (!to || to == from || !kul::takesFocus(dialog, *ui))
            continue;
        const int nDistance = distance(*from, *to, nKey);
        if (nDistance >= 0 && (nNearest < 0 || nDistance < nNearest)) {
            nearest = ui;
            nNearest = nDistance;
        }
    }
    if (nearest)
        kulgui_setFocus(at.nChain, nearest->nRef);
}

bool isArrow(int nKey)
{
    return nKey >= KS_LEFT && nKey <= KS_RIGHT;
}

} // namespace

namespace kul {

int textColumn(int nX, int nWidth, const char* szText)
{
    return shifted(nX, Offset(nWidth, widthOf(szText)));
}

void markDefault(const GUI& gui, const KULBUTTON& button, bool focused)
{
    if (button.nVisible != T || button.nWidth < 4)
        return;
    const int nY = shifted(button.nY, 1);
    // A text that needs the room of the marks has them in the frame.
    const int nFrame = widthOf(button.szText) > button.nWidth - 4 ? 0 : 1;
    const Attribute color(gui.winMain, focused ? button.nColorFocus : button.nColorUnfocus);
    hRun(gui.winMain, nY, shifted(button.nX, nFrame), 1, '>');
    hRun(gui.winMain, nY, shifted(button.nX, button.nWidth - 1LL - nFrame), 1, '<');
}

void dropButton(KULBUTTON& button)
{
    std::free(button.szText);
    button.szText = nullptr;
}

} // namespace kul

int AttachButtonComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, BUTTON);
}

int ConfigButtonComponent(GUI* thisGUI, KULBUTTON* thisButton)
{
    if (!thisGUI || !thisButton)
        return -1;
    kul::takeColors(*thisGUI, *thisButton);
    kul::setCallbacks(*thisButton, nullptr, nullptr, nullptr, nullptr);
    thisButton->nWidth = 9;
    thisButton->szText = nullptr;
    thisButton->nVisible = T;
    return 0;
}

int WipeButtonComponent(KULBUTTON* thisButton)
{
    if (!thisButton)
        return -1;
    kul::dropButton(*thisButton);
    std::free(thisButton);
    return 0;
}

int kulbutton_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, BUTTON);
}

int kulbutton_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                     int, int nX, int nY, int nWidth, int nEnable, const char* szText,
                     KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                     KULCALLBACK onClick)
{
    // Copied first: it may be the text that the button has, and the reset frees that.
    char* szCopy = kul::copyText(szText);
    auto* button =
        kul::resetUI<KULBUTTON>(nChain, nRef, BUTTON, nColorFocus, nColorUnfocus, nColorDisable);
    if (!button || !szCopy) {
        std::free(szCopy);
        return -1;
    }
    button->szText = szCopy;
    kul::setCallbacks(*button, onFocus, onUnfocus, onSelect, onClick);
    button->nX = nX;
    button->nY = nY;
    button->nWidth = nWidth;
    button->nEnable = nEnable;
    return 0;
}

int kulbutton_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulbutton_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

void ShowButtonComponent(GUI* thisGUI, KULBUTTON* thisButton, int nFocus)
{
    if (!thisGUI || !thisButton || thisButton->nVisible != T)
        return;
    const int nResting =
        thisButton->nEnable == 1 ? thisButton->nColorUnfocus : thisButton->nColorDisable;
    DrawButton(thisGUI->winMain, thisButton->nY, thisButton->nX, kul::kButtonHeight,
               thisButton->nWidth, nFocus == 1 ? thisButton->nColorFocus : nResting,
               thisButton->szText);
    const char* szText = thisButton->szText ? thisButton->szText : "";
    if (nFocus == 1)
        kul::showCursorAt(thisGUI->winMain, kul::shifted(thisButton->nY, 1),
                          kul::textColumn(thisButton->nX, thisButton->nWidth, szText));
}

void DrawButton(WINDOW* win, int nY, int nX, int, int nWidth, int nColorSet, const char* szName)
{
    const char* szText = szName ? szName : "";
    DrawBorder(win, nY, nX, kul::kButtonHeight, nWidth, nColorSet);
    const kul::Attribute color(win, nColorSet);
    kul::hRun(win, kul::shifted(nY, 1), kul::shifted(nX, 1), nWidth - 2LL, ' ');
    const int nText = kul::textColumn(nX, nWidth, szText);
    if (nText < nX) // longer than the button
        kul::drawAcrossColumns(win);
    kul::print(win, kul::shifted(nY, 1), nText, szText);
}

int kulbutton_execKeys(int nChain, int nRef)
{
    const auto* button = kul::findUI<KULBUTTON>(nChain, nRef, BUTTON);
    if (!button || button->nVisible != T)
        return KUL_NEXT;
    kul::Handler<KULBUTTON> handler({nChain, nRef, BUTTON, 0, 0, 0});
    handler.call(&KULBUTTON::onFocus);
    handler.call(&KULBUTTON::onSelect);
    while (const int nKey = handler.key()) {
        if (nKey == KS_ENTER)
            handler.call(&KULBUTTON::onClick);
        else if (kul::isEdition2() && isArrow(nKey))
            goToNearest(handler.selection, nKey);
        handler.show();
    }
    return handler.finish(&KULBUTTON::onUnfocus);
}

// The variants.

int kulokbutton_create(int nChain, int nRef)
{
    return kulbutton_create(nChain, nRef);
}

int kulcancelbutton_create(int nChain, int nRef)
{
    return kulbutton_create(nChain, nRef);
}

int kulexitbutton_create(int nChain, int nRef)
{
    return kulbutton_create(nChain, nRef);
}

int kulokbutton_config(int nChain, int nRef, int, int, int, int, int, int, int, int, const char*,
                       KULCALLBACK, KULCALLBACK, KULCALLBACK, KULCALLBACK)
{
    return resetButton(nChain, nRef);
}

int kulcancelbutton_config(int nChain, int nRef, int, int, int, int, int, int, int, int,
                           const char*, KULCALLBACK, KULCALLBACK, KULCALLBACK, KULCALLBACK)
{
    return resetButton(nChain, nRef);
}

int kulexitbutton_config(int nChain, int nRef, int, int, int, int, int, int, int, int, const char*,
                         KULCALLBACK, KULCALLBACK, KULCALLBACK, KULCALLBACK)
{
    return resetButton(nChain, nRef);
}

int kulokbutton_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulokbutton_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kulcancelbutton_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulcancelbutton_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kulexitbutton_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulexitbutton_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}
