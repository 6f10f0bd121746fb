// SPDX-License-Identifier: MIT
//
// Scroll bars and progress bars: a rail with a bar on it. The lists draw their scroll bars here.
#include "../clamp.hpp"
#include "../gui/draw.hpp"
#include "../gui/edition.hpp"
#include "item.hpp"

namespace {

constexpr int kScrollStyle = 1;
constexpr int kProgressStyle = 2;

// Draws nCount cells of the bar from a place of the rail on, in the window's attributes.
void drawCells(WINDOW* win, const KULGAUGEBAR& bar, int nFrom, int nCount)
{
    if (bar.nOrient == LATERAL)
        kul::hRun(win, bar.nY, kul::shifted(bar.nX, nFrom), nCount, ' ');
    else
        kul::vRun(win, kul::shifted(bar.nY, nFrom), bar.nX, nCount, ' ');
}

// The thumb is to the rail as the rail is to the range, and never leaves the rail. In edition 2 it
// is as far down as the position is on its way to the end.
void drawThumb(WINDOW* win, const KULGAUGEBAR& bar)
{
    const long long length = bar.nLength;
    long long thumb = length;
    long long offset = 0;
    if (bar.nRange > length) {
        thumb = std::max(length * length / bar.nRange, 1LL);
        const long long last = bar.nRange - length;
        offset = kul::isEdition2()       ? bar.nPosition * (length - thumb) / last
                 : bar.nPosition == last ? length
                                         : bar.nPosition / (bar.nRange / length);
        offset = kul::clamp(offset, 0LL, length - thumb);
    }
    wattr_on(win, A_REVERSE, nullptr);
    drawCells(win, bar, static_cast<int>(offset), static_cast<int>(thumb));
    wattr_off(win, A_REVERSE, nullptr);
}

// Covers one cell more than its part of the rail: the first cell shows at once, and the last one
// lies past the rail's end. A standing bar grows upwards from there.
void drawProgress(WINDOW* win, const KULGAUGEBAR& bar)
{
    const double part = bar.nRange != 0 ? static_cast<double>(bar.nPosition) / bar.nRange : 0;
    const int nFill = static_cast<int>(kul::clamp<double>(bar.nLength * part, -1, bar.nLength));
    const int nFrom = bar.nOrient == LATERAL ? 0 : kul::shifted(bar.nLength, -nFill);
    drawCells(win, bar, nFrom, kul::shifted(nFill, 1));
}

// The item when it is a gauge, of either kind.
DI* findGauge(int nChain, int nRef)
{
    DI* di = GetDIComponentByRef(nChain, nRef);
    return di && (di->nType == SCROLLBAR || di->nType == PROGBAR) ? di : nullptr;
}

// Changes a gauge and has it drawn again.
template <typename Change>
int changeGauge(int nChain, int nRef, Change change)
{
    DI* di = findGauge(nChain, nRef);
    if (!di)
        return -1;
    if (!di->Pointer)
        return KUL_NO_RECORD;
    change(*static_cast<KULGAUGEBAR*>(di->Pointer));
    di->nUpdate = 0;
    return 0;
}

void showGauge(GUI* thisGUI, const KULGAUGEBAR* thisBar, int nType)
{
    if (thisBar && thisBar->nVisible == T)
        BarShow(thisGUI, thisBar, nType);
}

} // namespace

void BarShow(GUI* thisGUI, const KULGAUGEBAR* thisBar, int nType)
{
    BarRail(thisGUI, thisBar, nType);
    BarPosition(thisGUI, thisBar, nType);
}

void BarRail(GUI* thisGUI, const KULGAUGEBAR* thisBar, int nType)
{
    if (!thisGUI || !thisBar || thisBar->nLength < 1)
        return;
    const int nX = thisBar->nX;
    const int nY = thisBar->nY;
    const int nLength = thisBar->nLength;
    WINDOW* win = thisGUI->winMain;
    const bool lateral = thisBar->nOrient == LATERAL;
    if (nType == kScrollStyle)
        (lateral ? DrawHTeeLine : DrawVTeeLine)(win, nY, nX, nLength, thisBar->nColorRail);
    else
        (lateral ? DrawThickHLine : DrawThickVLine)(win, nY, nX, nLength - 1, thisBar->nColorRail);
}

void BarPosition(GUI* thisGUI, const KULGAUGEBAR* thisBar, int nType)
{
    if (!thisGUI || !thisBar || thisBar->nLength < 1)
        return;
    const kul::Attribute color(thisGUI->winMain, thisBar->nColorBar);
    if (nType == kScrollStyle)
        drawThumb(thisGUI->winMain, *thisBar);
    else
        drawProgress(thisGUI->winMain, *thisBar);
}

// Scroll bars, and what progress bars share with them.

int AttachScrollbarComponentToDI(DI* thisDI)
{
    return AttachComponentToDI(thisDI, SCROLLBAR);
}

int ConfigScrollbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar)
{
    if (!thisGUI || !thisBar)
        return -1;
    thisBar->nColorBar = thisGUI->nColorUnfocus;
    thisBar->nColorRail = thisGUI->nColorStandard;
    thisBar->nRange = 10;
    thisBar->nPosition = 1;
    thisBar->nOrient = VERTICAL;
    thisBar->nVisible = T;
    return 0;
}

int UpdateScrollbarComponent(GUI*, KULGAUGEBAR*)
{
    return 0;
}

int WipeScrollbarComponent(KULGAUGEBAR* thisBar)
{
    return kul::wipeRecord(thisBar);
}

void ShowScrollbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar)
{
    showGauge(thisGUI, thisBar, kScrollStyle);
}

int kulscrollbar_create(int nChain, int nRef)
{
    return kul::createDI(nChain, nRef, SCROLLBAR);
}

int kulscrollbar_config(int nChain, int nRef, int nColorBar, int nColorRail, int nX, int nY,
                        int nLength, int nPosition, int nRange, int nOrient)
{
    if (!findGauge(nChain, nRef) || ConfigDIComponent(nChain, nRef) < 0)
        return -1;
    return changeGauge(nChain, nRef, [&](KULGAUGEBAR& bar) {
        SetVar(&bar.nColorBar, nColorBar);
        SetVar(&bar.nColorRail, nColorRail);
        bar.nX = nX;
        bar.nY = nY;
        bar.nLength = nLength;
        SetVar(&bar.nPosition, nPosition);
        SetVar(&bar.nRange, nRange);
        SetVar(&bar.nOrient, nOrient);
    });
}

int kulscrollbar_setPosition(int nChain, int nRef, int nPosition)
{
    return changeGauge(nChain, nRef, [&](KULGAUGEBAR& bar) { SetVar(&bar.nPosition, nPosition); });
}

int kulscrollbar_setByPercent(int nChain, int nRef, int nPercent)
{
    return changeGauge(nChain, nRef, [&](KULGAUGEBAR& bar) {
        // Whole ranges only: that is how the call is defined.
        const long long wholes = nPercent / 100;
        bar.nPosition = kul::shifted(0, wholes * bar.nRange);
    });
}

int kulscrollbar_show(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, T);
}

int kulscrollbar_hide(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, F);
}

// Progress bars.

int AttachProgbarComponentToDI(DI* thisDI)
{
    return AttachComponentToDI(thisDI, PROGBAR);
}

int ConfigProgbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar)
{
    return ConfigScrollbarComponent(thisGUI, thisBar);
}

int UpdateProgbarComponent(GUI*, KULGAUGEBAR*)
{
    return 0;
}

int WipeProgbarComponent(KULGAUGEBAR* thisBar)
{
    return WipeScrollbarComponent(thisBar);
}

void ShowProgBarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar)
{
    showGauge(thisGUI, thisBar, kProgressStyle);
}

int kulprogbar_create(int nChain, int nRef)
{
    return kul::createDI(nChain, nRef, PROGBAR);
}

int kulprogbar_config(int nChain, int nRef, int nColorBar, int nColorRail, int nX, int nY,
                      int nLength, int nPosition, int nRange, int nOrient)
{
    return kulscrollbar_config(nChain, nRef, nColorBar, nColorRail, nX, nY, nLength, nPosition,
                               nRange, nOrient);
}

int kulprogbar_setPosition(int nChain, int nRef, int nPosition)
{
    return kulscrollbar_setPosition(nChain, nRef, nPosition);
}

int kulprogbar_setByPercent(int nChain, int nRef, int nPercent)
{
    return kulscrollbar_setByPercent(nChain, nRef, nPercent);
}

int kulprogbar_show(int nChain, int nRef)
{
    return kulscrollbar_show(nChain, nRef);
}

int kulprogbar_hide(int nChain, int nRef)
{
    return kulscrollbar_hide(nChain, nRef);
}
