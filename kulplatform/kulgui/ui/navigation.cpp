// SPDX-License-Identifier: MIT
//
// What keys do before a component gets them: they come to the dialog's onKey, find the component of
// a hotkey, and lead the user through the dialog and out of it.
#include <cstdlib>
#include <utility>

#include "../gui/edition.hpp"
#include "../gui/keys.hpp"
#include "../gui/marks.hpp"
#include "handler.hpp"

namespace {

int nKeyNow = 0;

// A button that the user could click; null for none.
KULBUTTON* findUsableButton(const kul::Dialog& dialog, int nChain, int nRef)
{
    const UI* ui = nRef == -1 ? nullptr : GetUIComponentByRef(nChain, nRef);
    const bool usable = ui && ui->nType == BUTTON && kul::takesFocus(dialog, *ui);
    return usable ? static_cast<KULBUTTON*>(ui->Pointer) : nullptr;
}

// The component of a hotkey; null for a key that is none or of one that cannot be used now.
const UI* findHotkey(const kul::Dialog& dialog, int nKey)
{
    for (const UI* ui = dialog.UserInterface; ui && dialog.marks; ui = ui->Next) {
        const kul::Mark* mark = kul::findMark(dialog, ui->nRef);
        if (mark && mark->nHotkey == nKey && kul::takesFocus(dialog, *ui))
            return ui;
    }
    return nullptr;
}

int setButton(int nChain, int nRef, int kul::Dialog::*button)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog || (nRef != -1 && !kul::findUIRecord(nChain, nRef, BUTTON)))
        return -1;
    dialog->*button = nRef;
    return 0;
}

} // namespace

namespace kul {

int offerKey(int nChain, int nKey)
{
    nKeyNow = nKey;
    const Dialog* dialog = findDialog(nChain);
    if (nKey != 0 && dialog && dialog->onKey)
        ExecOnFunction(dialog->onKey);
    return nKeyNow;
}

KeyKeeper::KeyKeeper() : nKey_(nKeyNow) {}

KeyKeeper::~KeyKeeper()
{
    nKeyNow = nKey_;
}

// Whether the component lets the user go on; what its check did is drawn if not.
bool HandlerBase::mayGoOn()
{
    const UIKind& kind = *uiKind(selection.nType);
    if (!kind.accepts || kind.accepts(selection.nChain, selection.nUserInterface))
        return true;
    show();
    return false;
}

// Runs a button's onClick as if it had the focus.
void HandlerBase::clickButton(int nRef, KULCALLBACK onClick)
{
    const CURRENT button = {selection.nChain, nRef, BUTTON, 0, 0, 0};
    SetCurrentSelection(&button);
    run(onClick);
    SetCurrentSelection(&selection);
    show();
}

void HandlerBase::cancel()
{
    const Dialog& dialog = *findDialog(selection.nChain);
    const KULBUTTON* button = findUsableButton(dialog, selection.nChain, dialog.nCancel);
    if (button)
        clickButton(dialog.nCancel, button->onClick);
    else
        end(KUL_CANCELLED);
}

// Whether there is a default button for Enter, or it was refused; else Enter is the component's.
bool HandlerBase::clickDefault()
{
    const UIKind& kind = *uiKind(selection.nType);
    if (kind.traits.ownsEnter || kind.clickable(findRecord()))
        return false;
    const Dialog& dialog = *findDialog(selection.nChain);
    if (!findUsableButton(dialog, selection.nChain, dialog.nDefault))
        return false;
    const int nDefault = dialog.nDefault;
    if (!mayGoOn() || isOver())
        return true;
    const Dialog& now = *findDialog(selection.nChain);
    if (const KULBUTTON* button = findUsableButton(now, selection.nChain, nDefault))
        clickButton(nDefault, button->onClick);
    return true;
}

// Gives the focus to the component of a hotkey, and clicks that if it is a button. 0 when the key
// is none, -1 when it was one, the key to go on with when the component has the focus already.
int HandlerBase::followHotkey(int nKey)
{
    const UI* ui = findHotkey(*findDialog(selection.nChain), nKey);
    if (!ui)
        return 0;
    const int nRef = ui->nRef;
    const bool isButton = ui->nType == BUTTON;
    if (nRef == selection.nUserInterface)
        return isButton ? KS_ENTER : -1;
    if (mayGoOn() && !isOver() && kulgui_setFocus(selection.nChain, nRef) == 0)
        findDialog(selection.nChain)->asked.pressed = isButton;
    return -1;
}

bool HandlerBase::isTab(int nKey) const
{
    return uiKind(selection.nType)->traits.keepsTab && findDialog(selection.nChain)->tabs &&
           (nKey == KS_TAB || nKey == KS_ESC);
}

// What a key does in the dialog; the key that is left for the component, 0 for none.
int HandlerBase::navigate(int nKey)
{
    if (const int nFollowed = followHotkey(nKey))
        return std::max(nFollowed, 0);
    if (!isEdition2()) {
        if (!isTab(nKey))
            return nKey;
        end(nKey == KS_TAB ? KUL_NEXT : KUL_PREVIOUS);
        return 0;
    }
    if (nKey == KS_TAB || nKey == KS_BACKTAB) {
        if (mayGoOn())
            end(nKey == KS_TAB ? KUL_NEXT : KUL_PREVIOUS);
        return 0;
    }
    if (nKey == KS_ESC)
        cancel();
    return nKey == KS_ESC || (nKey == KS_ENTER && clickDefault()) ? 0 : nKey;
}

} // namespace kul

int kulgui_setDefault(int nChain, int nRef)
{
    return setButton(nChain, nRef, &kul::Dialog::nDefault);
}

int kulgui_setCancel(int nChain, int nRef)
{
    return setButton(nChain, nRef, &kul::Dialog::nCancel);
}

int kulgui_setOnKey(int nChain, KULCALLBACK onKey)
{
    kul::Dialog* dialog = kul::findDialog(nChain);
    if (!dialog)
        return -1;
    dialog->onKey = onKey;
    return 0;
}

int kulgui_getKey()
{
    return nKeyNow;
}

int kulgui_setKey(int nKey)
{
    nKeyNow = nKey;
    return 0;
}
