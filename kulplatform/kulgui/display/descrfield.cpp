// SPDX-License-Identifier: MIT
//
// Description fields: a row of short texts and, below a bar, a box that explains the selected one.
//
//     nY       First   Second   Third
//     nY + 1   ┌────────────────┐          the bar, nBarLength wide, under the frame
//     nY + 2   │ box text       │
//              └────────────────┘
#include "../gui/print.hpp"
#include "../gui/text.hpp"
#include "elements.hpp"
#include "item.hpp"

namespace {

constexpr int kFrame = 2;
constexpr int kGap = 3;

// Number of columns that a box text has at the most: what fits into the frame.
long long boxCapacity(const KULDESCRFIELD& field)
{
    return kul::area(kul::shifted(field.nRefWidth, -kFrame),
                     kul::shifted(field.nRefHeight, -kFrame));
}

void dropElement(KULDESCRFLDELEMENT& element)
{
    std::free(element.szText);
    std::free(element.szBoxText);
}

void drawElement(WINDOW* win, const KULDESCRFIELD& field, const KULDESCRFLDELEMENT& element, int nX,
                 bool selected)
{
    const int nColor = selected ? field.nColorSelect : field.nColorBack;
    // Without colours, what is selected must be seen as well as the focus.
    const kul::FocusMark mark(selected ? nColor : -1);
    const kul::Attribute color(win, nColor);
    if (element.szText)
        kul::printOnRow(win, field.nY, nX, element.szText);
}

void drawElements(WINDOW* win, const KULDESCRFIELD& field)
{
    int nX = field.nX;
    int nPosition = 0;
    for (const KULDESCRFLDELEMENT* element = field.Element; element; element = element->Next) {
        drawElement(win, field, *element, nX, nPosition++ == field.nSelect);
        nX = kul::shifted(nX, kul::widthOf(element->szText) + static_cast<long long>(kGap));
    }
}

} // namespace

namespace kul {

void dropDescrfield(KULDESCRFIELD& field)
{
    freeElements(field.Element, dropElement);
    field.Element = nullptr;
}

} // namespace kul

int AttachDescrfieldComponentToDI(DI* thisDI)
{
    return AttachComponentToDI(thisDI, DESCRFIELD);
}

int ConfigDescrfieldComponent(GUI* thisGUI, KULDESCRFIELD* thisField)
{
    if (!thisGUI || !thisField)
        return -1;
    // A dialog that was never shown has no window yet; it will get one of its size.
    const WINDOW* win = thisGUI->winMain;
    const int nWidth = win ? GetWindowWidth(win) : thisGUI->nWidth;
    const int nHeight = win ? GetWindowHeight(win) : thisGUI->nHeight;
    thisField->nColorSelect = thisGUI->nColorUnfocus;
    thisField->nColorBack = thisGUI->nColorStandard;
    thisField->nX = 2;
    thisField->nY = 3;
    thisField->nBarLength = kul::shifted(nWidth, -4);
    thisField->nRefWidth = 20;
    thisField->nRefHeight = kul::shifted(nHeight, -5);
    thisField->Element = nullptr;
    thisField->nSelect = -1;
    thisField->nVisible = T;
    return 0;
}

int UpdateDescrfieldComponent(GUI*, KULDESCRFIELD*)
{
    return 0;
}

int WipeDescrfieldElements(KULDESCRFLDELEMENT* firstElement)
{
    kul::freeElements(firstElement, dropElement);
    return firstElement ? 0 : -1;
}

int WipeDescrfieldComponent(KULDESCRFIELD* thisField)
{
    return thisField ? kul::wipeRecord(thisField, kul::dropDescrfield) : 0;
}

int kuldescrfield_create(int nChain, int nRef)
{
    return kul::createDI(nChain, nRef, DESCRFIELD);
}

int kuldescrfield_config(int nChain, int nRef, int nColorSelect, int nColorBack, int nX, int nY,
                         int nBarLength, int nRefWidth, int nRefHeight)
{
    auto* field = kul::resetDI<KULDESCRFIELD>(nChain, nRef, DESCRFIELD);
    if (!field)
        return -1;
    SetVar(&field->nColorSelect, nColorSelect);
    SetVar(&field->nColorBack, nColorBack);
    SetVar(&field->nX, nX);
    SetVar(&field->nY, nY);
    SetVar(&field->nBarLength, nBarLength);
    SetVar(&field->nRefWidth, nRefWidth);
    SetVar(&field->nRefHeight, nRefHeight);
    return 0;
}

int kuldescrfield_addElement(int nChain, int nRef, const char* szText, const char* szBoxText)
{
    auto* field = kul::findDI<kul::DescrField>(nChain, nRef, DESCRFIELD);
    if (!field)
        return -1;
    kul::markChanged(nChain, nRef);
    const bool first = !field->Element;
    KULDESCRFLDELEMENT* element = kul::appendElement(field->Element, field->tail);
    if (!element)
        return -1;
    if (first)
        field->nSelect = 0;
    element->szText = kul::copyText(szText);
    element->szBoxText = kul::newText(boxCapacity(*field), szBoxText);
    return element->szText && element->szBoxText ? 0 : -1;
}

int kuldescrfield_setElement(int nChain, int nRef, int nSelect, const char* szText,
                             const char* szBoxText)
{
    auto* field = kul::findDI<KULDESCRFIELD>(nChain, nRef, DESCRFIELD);
    if (!field)
        return -1;
    kul::markChanged(nChain, nRef);
    KULDESCRFLDELEMENT* element = kul::elementAt(field->Element, nSelect);
    if (!element)
        return 0;
    const long long capacity = boxCapacity(*field);
    if (szBoxText && (!element->szBoxText || kul::widthOf(szBoxText) > capacity))
        return -1;
    // A text of the same length as before is not taken: that is how the call is defined.
    char* copy = nullptr;
    if (szText && (!element->szText || kul::widthOf(szText) != kul::widthOf(element->szText))) {
        copy = kul::copyText(szText);
        if (!copy)
            return -1;
    }
    if (szBoxText && !kul::setText(element->szBoxText, capacity, szBoxText)) {
        std::free(copy);
        return -1;
    }
    if (copy) { // only now: the box text may have been the text before
        std::free(element->szText);
        element->szText = copy;
    }
    return 0;
}

int kuldescrfield_remElement(int nChain, int nRef)
{
    auto* field = kul::findDI<KULDESCRFIELD>(nChain, nRef, DESCRFIELD);
    if (!field)
        return -1;
    kul::markChanged(nChain, nRef);
    return kul::removeLastElement(field->Element, dropElement) ? 0 : -1;
}

int kuldescrfield_selElement(int nChain, int nRef, int nSelect)
{
    auto* field = kul::findDI<KULDESCRFIELD>(nChain, nRef, DESCRFIELD);
    if (!field)
        return -1;
    kul::markChanged(nChain, nRef);
    const bool found = kul::elementAt(field->Element, nSelect);
    field->nSelect = found && nSelect > 0 ? nSelect : 0;
    return found ? 0 : -1;
}

int kuldescrfield_update(int nChain, int nRef)
{
    return UpdateDIComponent(nChain, nRef);
}

void ShowDescrfieldComponent(GUI* thisGUI, KULDESCRFIELD* thisField)
{
    if (!thisGUI || !thisField || thisField->nVisible != T)
        return;
    WINDOW* win = thisGUI->winMain;
    const KULDESCRFIELD& field = *thisField;
    const int nBar = kul::shifted(field.nY, 1);
    const int nText = kul::shifted(field.nY, 2);
    Fill(win, nText, field.nX, field.nRefHeight, field.nRefWidth, field.nColorSelect);
    Fill(win, nBar, field.nX, 1, field.nBarLength, field.nColorSelect);
    DrawBorder(win, nBar, field.nX, kul::shifted(field.nRefHeight, 1), field.nRefWidth,
               field.nColorSelect);
    drawElements(win, field);
    const auto* selected =
        field.nSelect >= 0 ? kul::elementAt(field.Element, field.nSelect) : nullptr;
    if (selected)
        NewStrToBox(win, kul::shifted(field.nX, 1), nText, kul::shifted(field.nRefWidth, -kFrame),
                    kul::shifted(field.nRefHeight, -kFrame), field.nColorSelect, LEFT,
                    selected->szBoxText);
}
