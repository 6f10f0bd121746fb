// SPDX-License-Identifier: MIT
//
// What all components that take the focus have in common: making, resetting, showing, drawing and
// freeing them by the table of their kinds.
#include "component.hpp"

#include "../gui/draw.hpp"
#include "../gui/edition.hpp"
#include "../gui/marks.hpp"
#include "../gui/screen.hpp"
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
    kul::uiRow<kul::Menu, ConfigMenuComponent, ShowMenuComponent, kul::dropMenu, WipeMenuComponent,
               kulmenu_execKeys>({.nTaken = KUL_TAKEN_MENU, .keepsTab = true}),
    kul::uiRow<kul::DynMenu, ConfigDynmenuComponent, ShowDynmenuComponent, kul::dropDynmenu,
               WipeDynmenuComponent, kuldynmenu_execKeys>(
        {.nTaken = KUL_TAKEN_DYNMENU, .keepsTab = true, .staysIn = true}),
    kul::uiRow<kul::DescrMenu, ConfigDescrmenuComponent, ShowDescrmenuComponent, kul::dropDescrmenu,
               WipeDescrmenuComponent, kuldescrmenu_execKeys>(
        {.nTaken = KUL_TAKEN_DESCRMENU, .keepsTab = true}),
    kul::uiRow<KULBUTTON, ConfigButtonComponent, ShowButtonComponent, kul::dropButton,
               WipeButtonComponent, kulbutton_execKeys>({.nTaken = KUL_TAKEN_BUTTON,
                                                         .keepsTab = true,
                                                         .ownsEnter = true,
                                                         .hasEnable = true,
                                                         .staysIn = true}),
    kul::uiRow<kul::Toolbar, ConfigToolbarComponent, ShowToolbarComponent, kul::dropToolbar,
               WipeToolbarComponent, kultoolbar_execKeys>(
        {.nTaken = KUL_TAKEN_TOOLBAR, .ownsEnter = true, .staysIn = true}),
    kul::uiRow<kul::CheckList, ConfigCheckboxComponent, ShowCheckboxComponent,
               kul::dropList<KULCHECKBOX>, WipeCheckboxComponent, kulcheckbox_execKeys>(
        {.nTaken = KUL_TAKEN_CHECKBOX, .startsSet = true, .ownsEnter = true, .staysIn = true}),
    kul::uiRow<kul::OptionList, ConfigOptionsComponent, ShowOptionsComponent,
               kul::dropList<KULOPTIONS>, WipeOptionsComponent, kuloptions_execKeys>(
        {.nTaken = KUL_TAKEN_OPTIONS, .startsSet = true, .ownsEnter = true, .staysIn = true}),
    kul::uiRow<kul::FileView, ConfigFileviewComponent, ShowFileviewComponent, kul::dropFileView,
               WipeFileviewComponent, kulfileview_execKeys>({.nTaken = KUL_TAKEN_FILEVIEW}),
    kul::uiRow<kul::TextBox, ConfigTextboxComponent, ShowTextboxComponent, kul::dropTextbox,
               WipeTextboxComponent, kultextbox_execKeys>(
        {.nTaken = KUL_TAKEN_TEXTBOX, .startsSet = true, .hasEnable = true, .staysIn = true},
        kul::textboxAccepts),
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

// The kind of a component whose record says whether it can be used and seen; null in edition 1,
// where it does not.
const kul::UIKind* askedKind(const UI& ui)
{
    return kul::isEdition2() && ui.Pointer ? kul::uiKind(ui.nType) : nullptr;
}

// Puts a disabled component between parentheses, where the terminal has nothing else to tell it.
void drawParentheses(WINDOW* win, const kul::Area& area, int nColor)
{
    const int nOutside = area.framed ? 0 : 1;
    const int nY = kul::shifted(area.nY, area.framed ? 1 : 0);
    const kul::Attribute color(win, nColor);
    kul::hRun(win, nY, kul::shifted(area.nX, -nOutside), 1, '(');
    if (area.nWidth > 0)
        kul::hRun(win, nY, kul::shifted(area.nX, area.nWidth - 1LL + nOutside), 1, ')');
}

void showDisabled(GUI* gui, const kul::UIKind& kind, void* record)
{
    const int nColor = kind.colors(record).nDisable;
    {
        const kul::DisabledMark mark(kind.colors(record).nUnfocus, nColor);
        kind.show(gui, record, 0);
    }
    if (kul::needsParentheses() && kind.visible(record) == T)
        drawParentheses(gui->winMain, kind.area(record), nColor);
}

void show(GUI* gui, UI* ui, bool focused)
{
    const kul::UIKind* kind = gui && ui ? kul::uiKind(ui->nType) : nullptr;
    if (!kind || !ui->Pointer)
        return;
    const kul::Dialog* dialog = kul::findDialog(gui);
    if (dialog && kul::isDisabled(*dialog, *ui)) {
        showDisabled(gui, *kind, ui->Pointer);
        return;
    }
    // What it draws outside of its block has been told when all was drawn, and it would be drawn
    // so.
    if (!focused && !kul::isDrawn(gui->winMain, kind->block(ui->Pointer)))
        return;
    if (focused) {
        const kul::Area area = kind->area(ui->Pointer);
        kul::showComponent(gui->winMain, area.nY, area.nX, area.nHeight, area.nWidth);
    }
    {
        // In edition 2 a program that gives both the same colours wants no mark.
        const kul::UIColors& colors = kind->colors(ui->Pointer);
        const bool same = colors.nFocus == colors.nUnfocus && kul::isEdition2();
        const kul::FocusMark mark(focused && !same ? colors.nFocus : kul::FocusMark::kNone);
        kind->show(gui, ui->Pointer, focused ? 1 : 0);
    }
    if (dialog && ui->nType == BUTTON && ui->nRef == dialog->nDefault)
        kul::markDefault(*gui, *static_cast<KULBUTTON*>(ui->Pointer), focused);
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
    const bool known = nType >= 0 && nType <= TEXTBOX && kUIKinds[nType].size != 0;
    return known ? &kUIKinds[nType] : nullptr;
}

void* findUIRecord(int nChain, int nRef, UI_TYPE type)
{
    const UI* ui = GetUIComponentByRef(nChain, nRef);
    if (!ui || ui->nType != type)
        return nullptr;
    return kUIKinds[type].inner && !isInner(ui->Pointer) ? nullptr : ui->Pointer;
}

void* resetUIRecord(int nChain, int nRef, UI_TYPE type, int nFocus, int nUnfocus, int nDisable)
{
    void* record = findUIRecord(nChain, nRef, type);
    if (!record || ConfigUIComponent(nChain, nRef) < 0)
        return nullptr;
    UIColors& colors = kUIKinds[type].colors(record);
    SetVar(&colors.nFocus, nFocus);
    SetVar(&colors.nUnfocus, nUnfocus);
    SetVar(&colors.nDisable, nDisable);
    return record;
}

bool isDisabled(const Dialog& dialog, const UI& ui)
{
    const Mark* mark = findMark(dialog, ui.nRef);
    if (mark && mark->disabled)
        return true;
    const UIKind* kind = askedKind(ui);
    return kind && kind->traits.hasEnable && !kind->enabled(ui.Pointer);
}

bool takesFocus(const Dialog& dialog, const UI& ui)
{
    const UIKind* kind = askedKind(ui);
    return (!kind || kind->visible(ui.Pointer) == T) && !isDisabled(dialog, ui);
}

Area areaOf(const KULMENU& menu)
{
    return {menu.nX, menu.nY, 0, 1, false};
}

Area areaOf(const KULDYNMENU& menu)
{
    return {menu.nX, menu.nY, shifted(menu.nWidth, 2), shifted(menu.nHeight, 2), true};
}

// Its box hangs below, and ends where the border does.
Area areaOf(const KULDESCRMENU& menu)
{
    const int nBelow = shifted(std::max(menu.nBoxHeight, 0), 1);
    return {menu.nX, menu.nY, menu.nBarLength, 1, false, nBelow};
}

Area areaOf(const KULBUTTON& button)
{
    return {button.nX, button.nY, button.nWidth, kButtonHeight, true};
}

Area areaOf(const KULTOOLBAR& toolbar)
{
    const int nLength = shifted(toolbar.nMaxLength, 2);
    const long long nMore = std::max(toolbar.nButtons, 1) - 1LL;
    if (toolbar.nOrient == LATERAL)
        return {toolbar.nX, toolbar.nY, shifted(nLength, nMore * (nLength + 1LL)), kButtonHeight,
                true};
    return {toolbar.nX, toolbar.nY, nLength, shifted(kButtonHeight, nMore * (kButtonHeight + 1)),
            true};
}

bool isSelected(int nChain, int nRef, UI_TYPE type)
{
    const CURRENT& current = *GetCurrentSelection();
    return current.nChain == nChain && current.nUserInterface == nRef && current.nType == type;
}

int createUI(int nChain, int nRef, UI_TYPE type)
{
    if (CheckUICompExistence(nChain, nRef) != -1)
        return kUIKinds[type].traits.nTaken;
    return CreateUIComponent(nChain, type, nRef);
}

int attachUI(GUI& gui, UI& ui, int nType)
{
    const int nResult = AttachComponentToUI(&ui, nType);
    if (nResult == 0 && kUIKinds[nType].traits.startsSet) {
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
    thisUI->Pointer = kind->inner ? kul::newInner(kind->size) : std::calloc(1, kind->size);
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

// Edition 1 takes the number of what has the focus for its place in the list.
void ShowUIComponents(GUI* thisGUI)
{
    int nPosition = 0;
    for (UI* ui = thisGUI ? thisGUI->UserInterface : nullptr; ui; ui = ui->Next, ++nPosition) {
        if ((kul::isEdition2() ? ui->nRef : nPosition) == thisGUI->nCurrentUI)
            ShowUIComponentFocused(thisGUI, ui);
        else
            ShowUIComponentUnfocused(thisGUI, ui);
    }
}

void ShowUIComponentFocused(GUI* thisGUI, UI* thisUI)
{
    show(thisGUI, thisUI, true);
}

void ShowUIComponentUnfocused(GUI* thisGUI, UI* thisUI)
{
    show(thisGUI, thisUI, false);
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

int kulgui_select(int nChain, int nRef, int nElement)
{
    const UI* ui = GetUIComponentByRef(nChain, nRef);
    const kul::UIKind* kind = ui ? kul::uiKind(ui->nType) : nullptr;
    void* record = kind && kind->select
                       ? kul::findUIRecord(nChain, nRef, static_cast<UI_TYPE>(ui->nType))
                       : nullptr;
    return record && kind->select(record, nElement) ? 0 : -1;
}
