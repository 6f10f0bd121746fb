// SPDX-License-Identifier: MIT
//
// What all components that take the focus have in common: making, resetting, showing, drawing and
// freeing them by the table of their kinds.
#include "component.hpp"

#include "../gui/chain.hpp"
#include "../gui/draw.hpp"
#include "button.hpp"
#include "descrmenu.hpp"
#include "dynmenu.hpp"
#include "fileview.hpp"
#include "menu.hpp"
#include "ring_list.hpp"
#include "textbox.hpp"
#include "toolbar.hpp"

namespace {

// In the order of UI_TYPE; a kind that is not offered has an empty row.
constexpr kul::UIKind kUIKinds[TEXTBOX + 1] = {
    kul::uiRow<KULMENU, ConfigMenuComponent, ShowMenuComponent, kul::dropMenu, WipeMenuComponent,
               kulmenu_execKeys>(-10018, true, false),
    kul::uiRow<kul::DynMenu, ConfigDynmenuComponent, ShowDynmenuComponent, kul::dropDynmenu,
               WipeDynmenuComponent, kuldynmenu_execKeys>(-10021, true, false),
    kul::uiRow<kul::DescrMenu, ConfigDescrmenuComponent, ShowDescrmenuComponent, kul::dropDescrmenu,
               WipeDescrmenuComponent, kuldescrmenu_execKeys>(-10020, true, false),
    kul::uiRow<KULBUTTON, ConfigButtonComponent, ShowButtonComponent, kul::dropButton,
               WipeButtonComponent, kulbutton_execKeys>(-10022, true, false),
    kul::uiRow<kul::Toolbar, ConfigToolbarComponent, ShowToolbarComponent, kul::dropToolbar,
               WipeToolbarComponent, kultoolbar_execKeys>(-10027, false, false),
    kul::uiRow<kul::CheckList, ConfigCheckboxComponent, ShowCheckboxComponent,
               kul::dropRing<KULCHECKBOX>, WipeCheckboxComponent, kulcheckbox_execKeys>(
        -10023, false, true),
    kul::uiRow<kul::OptionList, ConfigOptionsComponent, ShowOptionsComponent,
               kul::dropRing<KULOPTIONS>, WipeOptionsComponent, kuloptions_execKeys>(-10024, false,
                                                                                     true),
    kul::uiRow<kul::FileView, ConfigFileviewComponent, ShowFileviewComponent, kul::dropFileView,
               WipeFileviewComponent, kulfileview_execKeys>(-10025, false, false),
    kul::uiRow<KULTEXTBOX, ConfigTextboxComponent, ShowTextboxComponent, kul::dropTextbox,
               WipeTextboxComponent, kultextbox_execKeys>(-10026, false, true),
};

// The records that the library keeps more in than the public one shows. A dialog has few of them,
// and the one that was asked for last is asked for again.
struct Known {
    Known* next;
    void* record;
};

Known* knownRecords = nullptr;

// The link to a record's entry, moved to the front; null for an unknown one.
Known* findKnown(const void* record)
{
    for (Known** link = &knownRecords; *link; link = &(*link)->next) {
        Known* known = *link;
        if (known->record != record)
            continue;
        *link = known->next;
        known->next = knownRecords;
        return knownRecords = known;
    }
    return nullptr;
}

} // namespace

namespace kul {

void* newInner(std::size_t size)
{
    auto* known = allocate<Known>();
    void* record = known ? std::calloc(1, size) : nullptr;
    if (!record) {
        std::free(known);
        return nullptr;
    }
    *known = {knownRecords, record};
    knownRecords = known;
    return record;
}

bool isInner(const void* record)
{
    return record && findKnown(record);
}

void freeRecord(void* record)
{
    if (Known* known = record ? findKnown(record) : nullptr) {
        knownRecords = known->next;
        std::free(known);
    }
    std::free(record);
}

const UIKind* uiKind(int nType)
{
    const bool known = nType >= 0 && nType <= TEXTBOX && kUIKinds[nType].allocate;
    return known ? &kUIKinds[nType] : nullptr;
}

void* findUIRecord(int nChain, int nRef, UI_TYPE type)
{
    const UI* ui = GetUIComponentByRef(nChain, nRef);
    if (!ui || ui->nType != type)
        return nullptr;
    return kUIKinds[type].inner && !isInner(ui->Pointer) ? nullptr : ui->Pointer;
}

bool isSelected(int nChain, int nRef, UI_TYPE type)
{
    const CURRENT& current = *GetCurrentSelection();
    return current.nChain == nChain && current.nUserInterface == nRef && current.nType == type;
}

int createUI(int nChain, int nRef, UI_TYPE type)
{
    if (CheckUICompExistence(nChain, nRef) != -1)
        return kUIKinds[type].nTaken;
    return CreateUIComponent(nChain, type, nRef);
}

int attachUI(GUI& gui, UI& ui, int nType)
{
    const int nResult = AttachComponentToUI(&ui, nType);
    if (nResult == 0 && kUIKinds[nType].startsSet) {
        ui.nUpdate = 1;
        kUIKinds[nType].config(&gui, ui.Pointer);
    }
    return nResult;
}

} // namespace kul

int AttachComponentToUI(UI* thisUI, int nType)
{
    const kul::UIKind* kind = kul::uiKind(nType);
    if (!thisUI || !kind)
        return -1;
    thisUI->nType = nType;
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
