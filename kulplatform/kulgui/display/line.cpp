// SPDX-License-Identifier: MIT
//
// Lines, upright or level. With tees at the ends a line is exactly as long as it says; a plain one
// has a cell more.
#include "item.hpp"

int AttachLineComponentToDI(DI* thisDI)
{
    return AttachComponentToDI(thisDI, LINE);
}

int ConfigLineComponent(GUI* thisGUI, KULLINE* thisLine)
{
    if (!thisGUI || !thisLine)
        return -1;
    thisLine->nColorSet = thisGUI->nColorStandard;
    thisLine->nLength = 20;
    thisLine->nEnds = NOENDS;
    thisLine->nOrient = LATERAL;
    thisLine->nVisible = T;
    return 0;
}

int UpdateLineComponent(GUI*, KULLINE*)
{
    return 0;
}

int WipeLineComponent(KULLINE* thisLine)
{
    return kul::wipeRecord(thisLine);
}

int kulline_create(int nChain, int nRef)
{
    return kul::createDI(nChain, nRef, LINE);
}

int kulline_config(int nChain, int nRef, int nColorSet, int nX, int nY, int nLength, int nEnds,
                   int nOrient)
{
    auto* line = kul::resetDI<KULLINE>(nChain, nRef, LINE);
    if (!line)
        return -1;
    SetVar(&line->nColorSet, nColorSet);
    line->nX = nX;
    line->nY = nY;
    line->nLength = nLength;
    SetVar(&line->nEnds, nEnds);
    SetVar(&line->nOrient, nOrient);
    kul::markChanged(nChain, nRef);
    return 0;
}

int kulline_show(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, T);
}

int kulline_hide(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, F);
}

int kulline_update(int nChain, int nRef)
{
    return UpdateDIComponent(nChain, nRef);
}

void ShowLineComponent(GUI* thisGUI, KULLINE* thisLine)
{
    if (!thisGUI || !thisLine || thisLine->nVisible != T)
        return;
    const bool ends = thisLine->nEnds == ENDS;
    const auto draw = thisLine->nOrient == VERTICAL ? (ends ? DrawVTeeLine : DrawVLine)
                                                    : (ends ? DrawHTeeLine : DrawHLine);
    draw(thisGUI->winMain, thisLine->nY, thisLine->nX, thisLine->nLength, thisLine->nColorSet);
}
