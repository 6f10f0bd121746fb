// SPDX-License-Identifier: MIT
//
// Boxes: filled rectangles, with a frame or without.
#include "item.hpp"

int AttachBoxComponentToDI(DI* thisDI)
{
    return AttachComponentToDI(thisDI, BOX);
}

int ConfigBoxComponent(GUI* thisGUI, KULBOX* thisBox)
{
    if (!thisGUI || !thisBox)
        return -1;
    thisBox->nColorSet = thisGUI->nColorStandard;
    thisBox->nBorder = BORDER;
    thisBox->nVisible = T;
    return 0;
}

int UpdateBoxComponent(GUI*, KULBOX*)
{
    return 0;
}

int WipeBoxComponent(KULBOX* thisBox)
{
    return kul::wipeRecord(thisBox);
}

int kulbox_create(int nChain, int nRef)
{
    return kul::createDI(nChain, nRef, BOX);
}

int kulbox_config(int nChain, int nRef, int nColorSet, int nX, int nY, int nWidth, int nHeight,
                  int nBorder)
{
    auto* box = kul::resetDI<KULBOX>(nChain, nRef, BOX);
    if (!box)
        return -1;
    SetVar(&box->nColorSet, nColorSet);
    box->nX = nX;
    box->nY = nY;
    box->nWidth = nWidth;
    box->nHeight = nHeight;
    SetVar(&box->nBorder, nBorder);
    kul::markChanged(nChain, nRef);
    return 0;
}

int kulbox_show(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, T);
}

int kulbox_hide(int nChain, int nRef)
{
    return SetDIVisibility(nChain, nRef, F);
}

int kulbox_update(int nChain, int nRef)
{
    return UpdateDIComponent(nChain, nRef);
}

void ShowBoxComponent(GUI* thisGUI, KULBOX* thisBox)
{
    if (!thisGUI || !thisBox || thisBox->nVisible != T)
        return;
    Fill(thisGUI->winMain, thisBox->nY, thisBox->nX, thisBox->nHeight, thisBox->nWidth,
         thisBox->nColorSet);
    if (thisBox->nBorder == BORDER)
        DrawBorder(thisGUI->winMain, thisBox->nY, thisBox->nX, thisBox->nHeight, thisBox->nWidth,
                   thisBox->nColorSet);
}
