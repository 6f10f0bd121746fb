// SPDX-License-Identifier: MIT
//
// What has the focus and what is selected in it, the navigation flags, and the two things that
// depend on them: running a callback, and drawing the dialog in focus.
#include "selection.hpp"
#include "../gui/chain.hpp"
#include "../gui/screen.hpp"
#include "component.hpp"

namespace {

CURRENT defCurrent;
CONTROL defControls = {F, F, F, F};

} // namespace

CURRENT* CurrentSelection(const CURRENT* thisCurrent, int nSetting)
{
    if (nSetting == 1 && thisCurrent)
        defCurrent = *thisCurrent;
    return &defCurrent;
}

CURRENT* GetCurrentSelection()
{
    return CurrentSelection(nullptr, 0);
}

void SetCurrentSelection(const CURRENT* thisCurrent)
{
    CurrentSelection(thisCurrent, 1);
}

CONTROL* Controls(const CONTROL* theseControls, int nSetting)
{
    if (nSetting == 1 && theseControls)
        defControls = *theseControls;
    return &defControls;
}

CONTROL* GetControls()
{
    return Controls(nullptr, 0);
}

void SetControls(const CONTROL* theseControls)
{
    Controls(theseControls, 1);
}

int ExitUIorGUIorChains()
{
    return defControls.bExitGUI != T && defControls.bExitProgram != T ? -1 : 0;
}

void SetExitUI() {}
void SetExitGUI() {}
void SetExitChain() {}
void GotoNextUserInterface() {}
void GotoPreviousUserInterface() {}

int UIComponentTypeByChain(const CHAIN* thisChain, int nComp)
{
    return ComponentTypeByChain(thisChain, nComp);
}

int GetCurrentComponentType()
{
    return defCurrent.nType;
}

int GetCurrentOptionSelection()
{
    return defCurrent.nSelect;
}

int GetCurrentCheckboxSelection()
{
    return defCurrent.nSelect;
}

int GetCurrentSelectedToolbarButton()
{
    return defCurrent.nSelect;
}

int GetCurrentSelectedMenuElement()
{
    return defCurrent.nSelect;
}

char* GetCurrentTextboxData()
{
    return kultextbox_getText(defCurrent.nChain, defCurrent.nUserInterface);
}

void ExecOnFunction(KULCALLBACK Function)
{
    if (!Function)
        return;
    const kul::Pause pause(kul::Turn::Program);
    const CURRENT before = defCurrent;
    Function();
    defCurrent = before;
}

// ---- Drawing --------------------------------------------------------------------------------

namespace {

// What was drawn last of the dialog that had the focus then, all of it as changes() says.
struct {
    int nChain;
    int nRef;
    const WINDOW* win;
    unsigned nChanges;
    kul::Exact exact;
    kul::Spot spot;
} drawn = {-1, -1, nullptr, 0, kul::Exact::Never, {}};

void drawDialog(CHAIN* chain)
{
    kul::forgetCursor();
    BackgroundDisplay(chain);
    ShowDisplayComponents(chain->Pointer);
    for (UI* ui = chain->Pointer->UserInterface; ui; ui = ui->Next) {
        if (ui->nRef == defCurrent.nUserInterface)
            ShowUIComponentFocused(chain->Pointer, ui);
        else
            ShowUIComponentUnfocused(chain->Pointer, ui);
    }
}

// A component's record; null when there is none that can tell where it is.
void* findShown(int nRef, const kul::UIKind*& kind)
{
    const UI* ui = GetUIComponentByRef(defCurrent.nChain, nRef);
    kind = ui ? kul::uiKind(ui->nType) : nullptr;
    return kind ? kul::findUIRecord(defCurrent.nChain, nRef, static_cast<UI_TYPE>(ui->nType))
                : nullptr;
}

void noteDrawn(const GUI& gui, kul::Exact exact)
{
    const kul::UIKind* kind = nullptr;
    void* record = findShown(defCurrent.nUserInterface, kind);
    drawn = {defCurrent.nChain,
             defCurrent.nUserInterface,
             gui.winMain,
             kul::changes(),
             record ? exact : kul::Exact::Never,
             record ? kind->spot(record) : kul::Spot{}};
}

// The cells that can have changed since the last drawing; false when that may be any.
bool findChanged(kul::Changed changed, kul::Block& block)
{
    const kul::UIKind* kind = nullptr;
    void* record = findShown(defCurrent.nUserInterface, kind);
    if (!record)
        return false;
    block = kind->block(record);
    const kul::Spot spot = kind->spot(record);
    if (defCurrent.nUserInterface != drawn.nRef) {
        if (!(record = findShown(drawn.nRef, kind)))
            return false;
        block = kul::joined(block, kind->block(record));
    } else if (changed == kul::Changed::Selected && spot.nView != -1 &&
               spot.nView == drawn.spot.nView) {
        block.rows = kul::joined(spot.rows, drawn.spot.rows);
    }
    if (drawn.exact == kul::Exact::ByRow)
        block.columns = kul::kAll;
    return true;
}

} // namespace

namespace {

// Draws the dialog as far as a block goes; false where that cannot be.
bool drawPart(CHAIN* chain, const kul::Block& block)
{
    const kul::Clip clip(chain->Pointer->winMain, block);
    drawDialog(chain);
    if (!clip.isExact())
        return false;
    noteDrawn(*chain->Pointer, std::min(drawn.exact, clip.exact()));
    return true;
}

// Whether something that is drawn later lies over the component in focus: it would be scrolled too.
bool isCovered(const GUI& gui)
{
    const UI* ui = GetUIComponentByRef(defCurrent.nChain, defCurrent.nUserInterface);
    const kul::Area area = kul::uiKind(ui->nType)->area(ui->Pointer);
    const kul::Clip clip(gui.winMain, {{area.nY, kul::shifted(area.nY, area.nHeight)},
                                       {area.nX, kul::shifted(area.nX, area.nWidth)}});
    while ((ui = ui->Next)) {
        const kul::UIKind* kind = kul::uiKind(ui->nType);
        if (kind && ui->Pointer && kul::isDrawn(gui.winMain, kind->block(ui->Pointer)))
            return true;
    }
    return false;
}

// What lies beside a block that was scrolled, as high as its component, whose scroll bar may be
// higher than the block; and the rows that came into it.
bool drawScrolled(CHAIN* chain, const kul::Moved& moved, const kul::Rows& all)
{
    const auto& [rows, columns] = moved.block;
    const kul::Rows in = moved.nRows > 0 ? kul::Rows{rows.nEnd - moved.nRows, rows.nEnd}
                                         : kul::Rows{rows.nFirst, rows.nFirst - moved.nRows};
    return (columns.nFirst <= 0 || drawPart(chain, {all, {0, columns.nFirst}})) &&
           drawPart(chain, {all, {columns.nEnd, kul::kAll.nEnd}}) &&
           drawPart(chain, {in, kul::kAll});
}

} // namespace

void kul::drawFocused(Changed changed)
{
    CHAIN* chain = GetChain(defCurrent.nChain);
    Block block{};
    if (!chain || !chain->Pointer || chain->Pointer->nVisible != T)
        return;
    const Pass pass;
    const bool inParts = drawn.exact != Exact::Never && drawn.nChanges == changes() &&
                         drawn.nChain == defCurrent.nChain &&
                         drawn.win == chain->Pointer->winMain && findChanged(changed, block);
    if (inParts && changed == Changed::Nothing && drawn.nRef == defCurrent.nUserInterface)
        return;
    const Moved moved =
        scrollMoved(chain->Pointer->winMain, inParts && drawn.exact == Exact::ByCell &&
                                                 drawn.nRef == defCurrent.nUserInterface &&
                                                 !isCovered(*chain->Pointer));
    if (!inParts ||
        !(moved.nRows != 0 ? drawScrolled(chain, moved, block.rows) : drawPart(chain, block)))
        ShowUIColors();
}

void ShowUIColors()
{
    CHAIN* chain = GetChain(defCurrent.nChain);
    if (!chain || !chain->Pointer || chain->Pointer->nVisible != T)
        return;
    const kul::Pass pass;
    const bool hadWindow = chain->Pointer->winMain;
    const kul::Clip clip(chain->Pointer->winMain, {kul::kAll, kul::kAll});
    drawDialog(chain);
    noteDrawn(*chain->Pointer, hadWindow ? clip.exact() : kul::Exact::Never);
}
