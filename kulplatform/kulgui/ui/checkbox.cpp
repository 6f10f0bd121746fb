// SPDX-License-Identifier: MIT
//
// Check box lists: any number of elements is checked, each by itself.
#include "ring_list.hpp"

namespace {

using Handler = kul::Handler<kul::CheckList>;

void toggle(KULCHECKELEMENT& element)
{
    element.nSelect = element.nSelect != 0 ? 0 : 1;
}

// The element at an index of a list of any length; null for none.
KULCHECKELEMENT* anyElement(int nChain, int nRef, int nElement)
{
    auto* list = kul::findUI<kul::CheckList>(nChain, nRef, CHECKBOX);
    return list ? kul::elementsOf(*list)(nElement) : nullptr;
}

// The element of a public call that changes or reads one; null when it cannot be named by it.
KULCHECKELEMENT* findElement(int nChain, int nRef, int nElement)
{
    const bool named = nElement >= 0 && nElement < kul::kLookupSteps;
    return named ? kulcheckbox_getElement(nChain, nRef, nElement) : nullptr;
}

void click(Handler& handler)
{
    kul::CheckList* list = handler.record();
    if (auto* element = list ? kul::cursorElement(*list) : nullptr) {
        if (!kul::isUsable(*element))
            return;
        toggle(*element);
    }
    handler.call(&KULCHECKBOX::onClick);
}

void moved(Handler& handler)
{
    kul::callElement(handler, &KULCHECKELEMENT::onSelect);
    handler.call(&KULCHECKBOX::onSelect);
}

} // namespace

KULCHECKELEMENT* AddCheckElement(KULCHECKELEMENT* firstElement, int nEnable, const char* szText,
                                 KULCALLBACK onSelect)
{
    auto* element = kul::newElement<KULCHECKELEMENT>(nEnable, szText, nullptr);
    if (element)
        element->onSelect = onSelect;
    return kul::appendToRing(firstElement, element);
}

int RemoveCheckElement(KULCHECKELEMENT* firstElement)
{
    return kul::removeLastOfRing(firstElement);
}

int WipeCheckElements(KULCHECKELEMENT* firstElement)
{
    return kul::wipeRing(firstElement);
}

int AttachCheckboxComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, CHECKBOX);
}

int ConfigCheckboxComponent(GUI* thisGUI, KULCHECKBOX* thisCheck)
{
    return kul::setListDefaults(thisGUI, thisCheck);
}

int WipeCheckboxComponent(KULCHECKBOX* thisCheck)
{
    return kul::wipeList(thisCheck);
}

void SetFirstCheckElement(KULCHECKBOX* thisCheckbox)
{
    if (thisCheckbox)
        kul::setFirst(*thisCheckbox);
}

void SetFirstCheckElementFromEnd(KULCHECKBOX* thisCheckbox)
{
    if (thisCheckbox)
        kul::setFirstFromEnd(*thisCheckbox);
}

void SetLastCheckElement(KULCHECKBOX* thisCheckbox)
{
    if (thisCheckbox)
        kul::setLast(*thisCheckbox);
}

int CheckLastCheckElementForSpillover(const KULCHECKBOX* thisCheckbox)
{
    return thisCheckbox && kul::spills(*thisCheckbox) ? T : F;
}

int GetTotalCheckElementHeights(const KULCHECKBOX* thisCheckbox)
{
    return thisCheckbox ? kul::shifted(0, kul::rowsOfAll(*thisCheckbox)) : 0;
}

int kulcheckbox_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, CHECKBOX);
}

int kulcheckbox_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                       int nX, int nY, int nWidth, int nHeight, int nBorder, KULCALLBACK onFocus,
                       KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* list = kul::resetUI<kul::CheckList>(nChain, nRef, CHECKBOX);
    if (!list)
        return -1;
    kul::setColors(*list, nColorFocus, nColorUnfocus, nColorDisable);
    kul::setCallbacks(*list, onFocus, onUnfocus, onSelect, onClick);
    kul::setBox(*list, nX, nY, nWidth, nHeight, nBorder);
    return 0;
}

int kulcheckbox_addElement(int nChain, int nRef, const char* szText, int nSelect, int nEnable,
                           KULCALLBACK onSelect, KULCALLBACK)
{
    auto* list = kul::findUI<kul::CheckList>(nChain, nRef, CHECKBOX);
    auto* element = list ? AddCheckElement(list->Element, nEnable, szText, onSelect) : nullptr;
    if (!element)
        return -1;
    element->nSelect = nSelect;
    kul::takeElement(*list, *element);
    return 0;
}

int kulcheckbox_remElement(int, int, int)
{
    return 0;
}

KULCHECKELEMENT* kulcheckbox_getElement(int nChain, int nRef, int nElement)
{
    const auto* list = kul::findUI<kul::CheckList>(nChain, nRef, CHECKBOX);
    return list ? kul::cappedLookup(list->Element, nElement) : nullptr;
}

int kulcheckbox_setSelect(int nChain, int nRef, int nElement)
{
    KULCHECKELEMENT* element = findElement(nChain, nRef, nElement);
    if (!element)
        return -1;
    toggle(*element);
    return 0;
}

int kulcheckbox_getSelect(int nChain, int nRef, int nElement)
{
    const KULCHECKELEMENT* element = findElement(nChain, nRef, nElement);
    return element ? element->nSelect : -1;
}

int kulcheckbox_isChecked(int nChain, int nRef, int nElement)
{
    const KULCHECKELEMENT* element = anyElement(nChain, nRef, nElement);
    return element ? element->nSelect == 1 : -1;
}

int kulcheckbox_check(int nChain, int nRef, int nElement, int bChecked)
{
    KULCHECKELEMENT* element = anyElement(nChain, nRef, nElement);
    if (!element)
        return -1;
    element->nSelect = bChecked == T ? 1 : 0;
    return 0;
}

int kulcheckbox_count(int nChain, int nRef)
{
    return kul::countUI<kul::CheckList>(nChain, nRef, CHECKBOX);
}

int kulcheckbox_getFocus(int nChain, int nRef)
{
    return kul::isSelected(nChain, nRef, CHECKBOX) ? GetCurrentSelection()->nSelect : -1;
}

int kulcheckbox_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulcheckbox_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

void ShowCheckboxComponent(GUI* thisGUI, KULCHECKBOX* thisCheckbox, int nFocus)
{
    kul::showList(thisGUI, thisCheckbox, nFocus, [](const KULCHECKELEMENT& element, int) {
        return element.nSelect == 1 ? "[X]" : "[ ]";
    });
}

int kulcheckbox_execKeys(int nChain, int nRef)
{
    const auto* list = kul::findUI<kul::CheckList>(nChain, nRef, CHECKBOX);
    if (!list)
        return KUL_GONE;
    if (list->nVisible != T)
        return KUL_NEXT;
    return kul::runList<KULCHECKBOX>(
        nChain, nRef, {CHECKBOX, kul::Changed::Selected, kul::isEdition2(), click, moved});
}
