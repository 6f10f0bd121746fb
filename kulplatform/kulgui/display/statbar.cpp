// SPDX-License-Identifier: MIT
//
// Status bars: the bottom row of a dialog in reverse video, with fields of text.
#include "../gui/print.hpp"
#include "../gui/text.hpp"
#include "elements.hpp"
#include "item.hpp"

namespace {

void dropElement(KULSTATELEMENT& element)
{
    std::free(element.szText);
}

// The column where a field's text starts.
int textColumn(const KULSTATELEMENT& element)
{
    switch (element.nAlignment) {
    case CENTER:
        return kul::shifted(element.nX, Offset(element.nWidth, kul::widthOf(element.szText)));
    case RIGHT:
        return kul::shifted(element.nX, element.nWidth - 1LL * kul::widthOf(element.szText));
    default:
        return element.nX;
    }
}

} // namespace

namespace kul {

void dropStatbar(KULSTATBAR& bar)
{
    freeElements(bar.Element, dropElement);
    bar.Element = nullptr;
}

} // namespace kul

int AttachStatbarComponentToDI(DI* thisDI)
{
    return AttachComponentToDI(thisDI, STATBAR);
}

int ConfigStatbarComponent(GUI* thisGUI, KULSTATBAR* thisBar)
{
    if (!thisGUI || !thisBar)
        return -1;
    *thisBar = {thisGUI->nColorStandard, nullptr, T, nullptr};
    return 0;
}

int UpdateStatbarComponent(GUI*, KULSTATBAR*)
{
    return 0;
}

int WipeStatbarElements(KULSTATELEMENT* firstElement)
{
    kul::freeElements(firstElement, dropElement);
    return firstElement ? 0 : -1;
}

int WipeStatbarComponent(KULSTATBAR* thisBar)
{
    return thisBar ? kul::wipeRecord(thisBar, kul::dropStatbar) : 0;
}

int kulstatbar_create(int nChain, int nRef)
{
    return kul::createDI(nChain, nRef, STATBAR);
}

int kulstatbar_config(int nChain, int nRef, int nColor, KULCALLBACK)
{
    auto* bar = kul::resetDI<KULSTATBAR>(nChain, nRef, STATBAR);
    if (!bar)
        return -1;
    SetVar(&bar->nColor, nColor);
    return 0;
}

int kulstatbar_addElement(int nChain, int nRef, int nX, int nWidth, const char* szText,
                          int nAlignment, KULCALLBACK onUpdate)
{
    auto* bar = kul::findDI<kul::StatusBar>(nChain, nRef, STATBAR);
    auto* element = bar && nWidth >= 0 ? kul::appendElement(bar->Element, bar->tail) : nullptr;
    if (!element)
        return -1;
    kul::markChanged(nChain, nRef);
    *element = {nX, nWidth, kul::newText(nWidth, szText), nAlignment, nullptr, onUpdate};
    return element->szText ? 0 : -1;
}

int kulstatbar_setElement(int nChain, int nRef, int nElement, const char* szText)
{
    KULSTATELEMENT* element = GetStatbarElementByRef(nChain, nRef, nElement);
    if (!element || !element->szText)
        return -1;
    if (!kul::setText(element->szText, element->nWidth, szText))
        return -1;
    kul::markChanged(nChain, nRef);
    return 0;
}

int kulstatbar_remElement(int nChain, int nRef)
{
    auto* bar = kul::findDI<KULSTATBAR>(nChain, nRef, STATBAR);
    if (!bar)
        return -1;
    kul::markChanged(nChain, nRef);
    return kul::removeLastElement(bar->Element, dropElement) ? 0 : -1;
}

char* kulstatbar_getElement(int nChain, int nRef, int nElement)
{
    return ReturnStatbarElementText(nChain, nRef, nElement);
}

char* ReturnStatbarElementText(int nChain, int nRef, int nElement)
{
    KULSTATELEMENT* element = GetStatbarElementByRef(nChain, nRef, nElement);
    return element ? element->szText : nullptr;
}

KULSTATELEMENT* GetStatbarElementByRef(int nChain, int nRef, int nElement)
{
    return GetStatbarElement(kul::findDI<KULSTATBAR>(nChain, nRef, STATBAR), nElement);
}

KULSTATELEMENT* GetStatbarElement(KULSTATBAR* thisBar, int nElement)
{
    return thisBar ? kul::elementAt(thisBar->Element, nElement) : nullptr;
}

int kulstatbar_show(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, T);
}

int kulstatbar_hide(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, F);
}

void ShowStatusBarComponent(GUI* thisGUI, KULSTATBAR* thisBar)
{
    if (!thisGUI || !thisBar || thisBar->nVisible != T)
        return;
    WINDOW* win = thisGUI->winMain;
    FillReverse(win, getmaxy(win) - 1, 0, 1, getmaxx(win), thisBar->nColor);
    for (KULSTATELEMENT* element = thisBar->Element; element; element = element->Next)
        ShowThisStatusbarElement(thisGUI, thisBar, element);
}

void ShowThisStatusbarElement(GUI* thisGUI, KULSTATBAR* thisBar, KULSTATELEMENT* thisElement)
{
    if (!thisGUI || !thisGUI->winMain || !thisBar || !thisElement || !thisElement->szText)
        return;
    WINDOW* win = thisGUI->winMain;
    wattrset(win, static_cast<int>(A_REVERSE));
    wattr_on(win, A_BOLD, nullptr);
    const kul::Attribute color(win, thisBar->nColor);
    kul::print(win, getmaxy(win) - 1, textColumn(*thisElement), thisElement->szText);
    wattrset(win, static_cast<int>(A_NORMAL));
}
