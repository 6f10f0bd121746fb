// SPDX-License-Identifier: MIT
//
// What all components that take the focus have in common: making, resetting, showing, drawing and
// freeing them by the table of their kinds.
#include "component.hpp"

#include "../gui/chain.hpp"
#include "../gui/draw.hpp"
#include "button.hpp"

namespace {

// In the order of UI_TYPE; a kind that is not offered has an empty row.
constexpr kul::UIKind kUIKinds[TEXTBOX + 1] = {
    {},
    {},
    {},
    kul::uiRow<KULBUTTON, ConfigButtonComponent, ShowButtonComponent, kul::dropButton,
               WipeButtonComponent, kulbutton_execKeys>(-10022, true),
};

} // namespace

namespace kul {

const UIKind* uiKind(int nType)
{
    const bool known = nType >= 0 && nType <= TEXTBOX && kUIKinds[nType].allocate;
    return known ? &kUIKinds[nType] : nullptr;
}

void* findUIRecord(int nChain, int nRef, UI_TYPE type)
{
    const UI* ui = GetUIComponentByRef(nChain, nRef);
    return ui && ui->nType == type ? ui->Pointer : nullptr;
}

int createUI(int nChain, int nRef, UI_TYPE type)
{
    if (CheckUICompExistence(nChain, nRef) != -1)
        return kUIKinds[type].nTaken;
    return CreateUIComponent(nChain, type, nRef);
}

} // namespace kul

int AttachComponentToUI(UI* thisUI, int nType)
{
    const kul::UIKind* kind = kul::uiKind(nType);
    if (!thisUI || !kind)
        return -1;
    thisUI->Pointer = kind->allocate();
    return thisUI->Pointer ? 0 : -1;
}

int ConfigUIComponent(int nChain, int nRef)
{
    UI* ui = GetUIComponentByRef(nChain, nRef);
    if (!ui)
        return -1;
    ui->nUpdate = 1;
    const kul::UIKind* kind = kul::uiKind(ui->nType);
    if (!kind || !ui->Pointer)
        return -1;
    kind->drop(ui->Pointer);
    return kind->config(kul::findDialog(nChain), ui->Pointer);
}

int SetUIVisibility(int nChain, int nRef, int nVisible)
{
    if (UI* ui = GetUIComponentByRef(nChain, nRef)) {
        const kul::UIKind* kind = kul::uiKind(ui->nType);
        ui->nUpdate = 0;
        if (kind && ui->Pointer)
            kind->visible(ui->Pointer) = nVisible;
    }
    return -1;
}

void ShowUIComponents(GUI* thisGUI)
{
    int nPosition = 0;
    for (UI* ui = thisGUI ? thisGUI->UserInterface : nullptr; ui; ui = ui->Next) {
        if (nPosition++ == thisGUI->nCurrentUI)
            ShowUIComponentFocused(thisGUI, ui);
        else
            ShowUIComponentUnfocused(thisGUI, ui);
    }
}

void ShowUIComponentFocused(GUI* thisGUI, UI* thisUI)
{
    const kul::UIKind* kind = thisGUI && thisUI ? kul::uiKind(thisUI->nType) : nullptr;
    if (!kind || !thisUI->Pointer)
        return;
    const kul::FocusMark mark(kind->focusColor(thisUI->Pointer));
    kind->show(thisGUI, thisUI->Pointer, 1);
}

void ShowUIComponentUnfocused(GUI* thisGUI, UI* thisUI)
{
    const kul::UIKind* kind = thisGUI && thisUI ? kul::uiKind(thisUI->nType) : nullptr;
    if (kind && thisUI->Pointer)
        kind->show(thisGUI, thisUI->Pointer, 0);
}

int WipeAllUIComponents(UI* firstUI)
{
    int nResult = -1;
    while (firstUI) {
        UI* next = firstUI->Next;
        const kul::UIKind* kind = kul::uiKind(firstUI->nType);
        nResult = kind ? kind->wipe(firstUI->Pointer) : 0;
        std::free(firstUI);
        if (nResult != 0)
            break;
        firstUI = next;
    }
    return nResult;
}
