// SPDX-License-Identifier: MIT
//
// Buttons: a frame of three rows with a centred text, pressed with Enter. OK, cancel and exit
// buttons are the same component under other names.
#include "button.hpp"

#include "../gui/draw.hpp"
#include "../gui/screen.hpp"
#include "handler.hpp"

namespace {

constexpr int kButtonHeight = 3;

// The column where the text begins.
int textColumn(int nX, int nWidth, const char* szText)
{
    return kul::shifted(nX, Offset(nWidth, kul::length(szText)));
}

// What the config calls of the variants do.
int resetButton(int nChain, int nRef)
{
    return kul::resetUI<KULBUTTON>(nChain, nRef, BUTTON) ? 0 : -1;
}

} // namespace

namespace kul {

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
    auto* button = kul::resetUI<KULBUTTON>(nChain, nRef, BUTTON);
    if (!button || !szCopy) {
        std::free(szCopy);
        return -1;
    }
    button->szText = szCopy;
    kul::setColors(*button, nColorFocus, nColorUnfocus, nColorDisable);
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
    DrawButton(thisGUI->winMain, thisButton->nY, thisButton->nX, kButtonHeight, thisButton->nWidth,
               nFocus == 1 ? thisButton->nColorFocus : nResting, thisButton->szText);
    const char* szText = thisButton->szText ? thisButton->szText : "";
    if (nFocus == 1)
        kul::showCursorAt(thisGUI->winMain, kul::shifted(thisButton->nY, 1),
                          textColumn(thisButton->nX, thisButton->nWidth, szText));
}

void DrawButton(WINDOW* win, int nY, int nX, int, int nWidth, int nColorSet, const char* szName)
{
    const char* szText = szName ? szName : "";
    DrawBorder(win, nY, nX, kButtonHeight, nWidth, nColorSet);
    const kul::Attribute color(win, nColorSet);
    kul::hRun(win, kul::shifted(nY, 1), kul::shifted(nX, 1), nWidth - 2LL, ' ');
    kul::print(win, kul::shifted(nY, 1), textColumn(nX, nWidth, szText), szText);
}

int kulbutton_execKeys(int nChain, int nRef)
{
    const auto* button = kul::findUI<KULBUTTON>(nChain, nRef, BUTTON);
    if (!button || button->nVisible != T)
        return 10;
    kul::Handler<KULBUTTON> handler({nChain, nRef, BUTTON, 0, 0, 0});
    handler.call(&KULBUTTON::onFocus);
    handler.call(&KULBUTTON::onSelect);
    while (const int nKey = handler.key()) {
        if (nKey == KS_ENTER)
            handler.call(&KULBUTTON::onClick);
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
