// SPDX-License-Identifier: MIT
//
// Toolbars: buttons of one size in a row or a column, one of them selected.
#include "toolbar.hpp"

#include "../gui/edition.hpp"
#include "../gui/screen.hpp"
#include "../gui/text.hpp"
#include "button.hpp"
#include "handler.hpp"
#include "steps.hpp"

namespace {

// Buttons that a key goes over at most in search of an enabled one.
constexpr int kSearchSteps = 30;

kul::ToolbarLayout layoutOf(const KULTOOLBAR& toolbar)
{
    const bool lateral = toolbar.nOrient == LATERAL;
    return {toolbar.Button,
            kul::lastOf(toolbar.Button),
            kul::nElementRemovals,
            toolbar.nX,
            toolbar.nY,
            lateral ? kul::shifted(toolbar.nMaxLength, 3) : 0,
            lateral ? 0 : kul::kButtonHeight + 1,
            toolbar.nButtons};
}

// Gives the buttons their places and draws those that are seen; the ones beyond the window, however
// many, are gone through only when their places change.
void draw(GUI* gui, KULTOOLBAR& toolbar, kul::ToolbarLayout& laidOut, int nFocus)
{
    if (toolbar.nVisible != T || !toolbar.Button || toolbar.nButtons < 1)
        return;
    const kul::ToolbarLayout layout = layoutOf(toolbar);
    const bool changed = layout != laidOut;
    laidOut = layout;
    auto* button = toolbar.Button;
    int nX = layout.nX;
    int nY = layout.nY;
    for (int i = 0; button && i < layout.nButtons; button = button->Next, ++i) {
        const bool seen = nX < getmaxx(gui->winMain) && nY < getmaxy(gui->winMain);
        if (!seen && !changed)
            break;
        button->nX = nX;
        button->nY = nY;
        const bool selected = nFocus == 1 && i == toolbar.nSelect;
        if (seen)
            ShowToolbarButtonComponent(gui, &toolbar, button, selected ? 1 : 0);
        nX = kul::shifted(nX, layout.nXMove);
        nY = kul::shifted(nY, layout.nYMove);
    }
}

// Moves the selection to the nearest enabled button in that direction, round the toolbar. Whether
// there is one; else the selection stays where the search ended.
bool selectNext(kul::Toolbar& toolbar, bool forward)
{
    const int nFrom = forward ? kul::shifted(toolbar.nButtons, -1) : 0;
    const int nTo = forward ? 0 : kul::shifted(toolbar.nButtons, -1);
    for (int i = 0; i < kSearchSteps; ++i) {
        toolbar.nSelect =
            toolbar.nSelect == nFrom ? nTo : kul::shifted(toolbar.nSelect, forward ? 1 : -1);
        const auto* button = toolbar.place.find(toolbar.Button, toolbar.nSelect);
        if (button && button->nEnable == 1)
            return true;
    }
    return false;
}

kul::Steps stepsOf(kul::Toolbar& toolbar)
{
    return {&toolbar, kul::countElements(toolbar), [](void* list, int nIndex) {
                auto& buttons = *static_cast<kul::Toolbar*>(list);
                return kul::stepOf(kul::shapeOf<KULTOOLBARBUTTON>(),
                                   kul::asAny(buttons.place.find(buttons.Button, nIndex)));
            }};
}

kul::StepKeys stepKeys(const KULTOOLBAR& toolbar)
{
    const bool lateral = toolbar.nOrient == LATERAL;
    return {lateral ? KS_LEFT : KS_UP, lateral ? KS_RIGHT : KS_DOWN, INT_MAX / 2};
}

// What a key asks of the toolbar's selection: 1 onwards, -1 back, 0 nothing.
int direction(int nOrient, int nKey)
{
    if (nOrient == VERTICAL)
        return nKey == KS_DOWN ? 1 : nKey == KS_UP ? -1 : 0;
    if (nOrient == LATERAL)
        return nKey == KS_RIGHT ? 1 : nKey == KS_LEFT ? -1 : 0;
    return 0;
}

// Runs onClick of the toolbar, then that of the button that was selected when Enter was pressed, if
// it still has its place.
void click(kul::Handler<kul::Toolbar>& handler)
{
    const kul::Toolbar* before = handler.record();
    const int nSelect = before ? before->nSelect : 0;
    handler.call(&KULTOOLBAR::onClick);
    kul::Toolbar* toolbar = handler.record();
    const auto* button = toolbar ? toolbar->place.find(toolbar->Button, nSelect) : nullptr;
    if (button && kul::isUsable(*button))
        handler.run(button->onClick);
}

bool bothShown(const GUI& gui, const void* record)
{
    return gui.nVisible != F && kul::isShown<kul::Toolbar>(gui, record);
}

// Moves the selection of edition 2; Enter is the same in both.
bool step(kul::Handler<kul::Toolbar>& handler, int nKey)
{
    kul::Toolbar* toolbar = handler.record();
    if (!toolbar || nKey == KS_ENTER)
        return false;
    const int nBefore = toolbar->nSelect;
    toolbar->nSelect = kul::stepped(nBefore, nKey, stepKeys(*toolbar), stepsOf(*toolbar));
    handler.selection.nSelect = toolbar->nSelect;
    if (toolbar->nSelect != nBefore) {
        SetCurrentSelection(&handler.selection);
        handler.call(&KULTOOLBAR::onSelect);
    }
    return true;
}

void handleKey(kul::Handler<kul::Toolbar>& handler, int nKey)
{
    if (kul::isEdition2() && step(handler, nKey)) {
        handler.show();
        return;
    }
    kul::Toolbar* toolbar = handler.record();
    const int nDirection = toolbar ? direction(toolbar->nOrient, nKey) : 0;
    if (nDirection != 0) {
        if (selectNext(*toolbar, nDirection > 0))
            handler.selection.nSelect = toolbar->nSelect;
    } else if (nKey == KS_ENTER) {
        click(handler);
    }
    handler.show();
    if (nKey == KS_TAB || nKey == KS_ESC)
        handler.end(nKey == KS_TAB ? KUL_NEXT : KUL_PREVIOUS);
}

} // namespace

namespace kul {

int countElements(Toolbar& toolbar)
{
    return toolbar.place.count(toolbar.Button);
}

bool selectElement(Toolbar& toolbar, int nElement)
{
    if (nElement < 0 || nElement >= countElements(toolbar))
        return false;
    toolbar.nSelect = nElement;
    return true;
}

void dropToolbar(KULTOOLBAR& toolbar)
{
    dropAll(toolbar.Button);
}

} // namespace kul

KULTOOLBARBUTTON* AddToolbarButton(KULTOOLBAR* thisTB, KULTOOLBARBUTTON* firstButton, int nEnable,
                                   const char* szText, KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* button =
        thisTB ? kul::newElement<KULTOOLBARBUTTON>(nEnable, szText, onSelect, onClick) : nullptr;
    if (!button)
        return nullptr;
    thisTB->nMaxLength = std::max(thisTB->nMaxLength, kul::widthOf(button->szText));
    return kul::append(firstButton, button);
}

int RemoveToolbarButton(KULTOOLBARBUTTON* firstButton)
{
    return kul::removeLast(firstButton);
}

int WipeToolbarButtons(KULTOOLBARBUTTON* firstButton)
{
    return kul::wipe(firstButton);
}

int AttachToolbarComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, TOOLBAR);
}

int ConfigToolbarComponent(GUI* thisGUI, KULTOOLBAR* thisTB)
{
    if (!thisGUI || !thisTB)
        return -1;
    kul::takeColors(*thisGUI, *thisTB);
    kul::setCallbacks(*thisTB, nullptr, nullptr, nullptr, nullptr);
    thisTB->nX = 2;
    thisTB->nY = 2;
    thisTB->Button = nullptr;
    thisTB->nSelect = 0;
    thisTB->nVisible = T;
    thisTB->nOrient = LATERAL;
    thisTB->nButtons = 0;
    thisTB->nMaxLength = 0;
    return 0;
}

int WipeToolbarComponent(KULTOOLBAR* thisTB)
{
    if (thisTB)
        kul::dropToolbar(*thisTB);
    kul::freeRecord(thisTB);
    return 0;
}

int kultoolbar_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, TOOLBAR);
}

int kultoolbar_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                      int nX, int nY, int nOrient, KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                      KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* toolbar =
        kul::resetUI<KULTOOLBAR>(nChain, nRef, TOOLBAR, nColorFocus, nColorUnfocus, nColorDisable);
    if (!toolbar)
        return -1;
    kul::setCallbacks(*toolbar, onFocus, onUnfocus, onSelect, onClick);
    toolbar->nOrient = nOrient == VERTICAL ? VERTICAL : LATERAL;
    toolbar->nX = nX;
    toolbar->nY = nY;
    return 0;
}

int kultoolbar_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kultoolbar_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kultoolbar_addButton(int nChain, int nRef, const char* szText, int, int nEnable,
                         KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* toolbar = kul::findUI<KULTOOLBAR>(nChain, nRef, TOOLBAR);
    if (!toolbar)
        return -1;
    auto* added = AddToolbarButton(toolbar, toolbar->Button, nEnable, szText, onSelect, onClick);
    return kul::takeAdded(toolbar->Button, toolbar->nButtons, toolbar->nSelect, added) ? 0 : -1;
}

int kultoolbar_addOKButton(int, int, const char*, int, int, KULCALLBACK, KULCALLBACK)
{
    return 0;
}

int kultoolbar_addCancelButton(int, int, const char*, int, int, KULCALLBACK, KULCALLBACK)
{
    return 0;
}

int kultoolbar_addExitButton(int, int, const char*, int, int, KULCALLBACK, KULCALLBACK)
{
    return 0;
}

int kultoolbar_remButton(int nChain, int nRef, int)
{
    auto* toolbar = kul::findUI<KULTOOLBAR>(nChain, nRef, TOOLBAR);
    return toolbar ? kul::dropLast(toolbar->Button, toolbar->nButtons, toolbar->nSelect) : -1;
}

KULTOOLBARBUTTON* kultoolbar_getButton(int nChain, int nRef, int nButton)
{
    const auto* toolbar = kul::findUI<KULTOOLBAR>(nChain, nRef, TOOLBAR);
    return toolbar ? kul::cappedLookup(toolbar->Button, nButton) : nullptr;
}

int kultoolbar_count(int nChain, int nRef)
{
    return kul::countUI<kul::Toolbar>(nChain, nRef, TOOLBAR);
}

// The record may be the program's own, that remembers no layout.
void ShowToolbarComponent(GUI* thisGUI, KULTOOLBAR* thisTB, int nFocus)
{
    kul::ToolbarLayout none{};
    auto* inner = kul::innerOf<kul::Toolbar>(thisTB);
    if (thisGUI && thisTB)
        draw(thisGUI, *thisTB, inner ? inner->laidOut : none, nFocus);
}

void ShowToolbarButtonComponent(GUI* thisGUI, KULTOOLBAR* thisTB, KULTOOLBARBUTTON* thisButton,
                                int nFocus)
{
    if (!thisGUI || !thisTB || !thisButton)
        return;
    const int nResting = thisButton->nEnable == 1 ? thisTB->nColorUnfocus : thisTB->nColorDisable;
    DrawButton(thisGUI->winMain, thisButton->nY, thisButton->nX, kul::kButtonHeight,
               kul::shifted(thisTB->nMaxLength, 2), nFocus == 1 ? thisTB->nColorFocus : nResting,
               thisButton->szText);
    if (nFocus == 1)
        kul::showCursorAt(thisGUI->winMain, kul::shifted(thisButton->nY, 1),
                          kul::textColumn(thisButton->nX, kul::shifted(thisTB->nMaxLength, 2),
                                          thisButton->szText ? thisButton->szText : ""));
}

int kultoolbar_execKeys(int nChain, int nRef)
{
    auto* toolbar = kul::findUI<kul::Toolbar>(nChain, nRef, TOOLBAR);
    if (!toolbar)
        return -1;
    if (toolbar->nVisible != T)
        return KUL_NEXT;
    toolbar->nSelect = kul::settled(toolbar->nSelect, stepsOf(*toolbar));
    kul::Handler<kul::Toolbar> handler({nChain, nRef, TOOLBAR, 0, toolbar->nSelect, 0});
    handler.call(&KULTOOLBAR::onFocus);
    while (const int nKey = handler.key(bothShown))
        handleKey(handler, nKey);
    const GUI* gui = GetChain(nChain) ? GetChain(nChain)->Pointer : nullptr;
    const bool dialogHidden = gui && gui->nVisible == F;
    if (dialogHidden)
        kulgui_hide(1); // dialog 1, whichever this one is
    const int nResult = handler.finish(&KULTOOLBAR::onUnfocus);
    return dialogHidden && nResult == 0 ? KUL_GONE : nResult;
}
