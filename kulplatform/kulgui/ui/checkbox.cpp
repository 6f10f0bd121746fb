// SPDX-License-Identifier: MIT
//
// Check box lists: any number of elements is checked, each by itself.
#include "ring_list.hpp"

namespace {

KULCHECKELEMENT* checkOf(kul::AnyElement* element)
{
    return reinterpret_cast<KULCHECKELEMENT*>(element);
}

void toggle(KULCHECKELEMENT& element)
{
    element.nSelect = element.nSelect != 0 ? 0 : 1;
}

// The element at an index of a list of any length; null for none.
KULCHECKELEMENT* anyElement(int nChain, int nRef, int nElement)
{
    auto* list = kul::findUI<kul::CheckList>(nChain, nRef, CHECKBOX);
    return list ? checkOf(kul::elementAt(kul::listOf(*list), nElement)) : nullptr;
}

// The element of a public call that changes or reads one; null when it cannot be named by it.
KULCHECKELEMENT* findElement(int nChain, int nRef, int nElement)
{
    const bool named = nElement >= 0 && nElement < kul::kLookupSteps;
    return named ? kulcheckbox_getElement(nChain, nRef, nElement) : nullptr;
}

void click(kul::ListHandler& handler)
{
    const auto list = handler.list();
    if (auto* element = list ? checkOf(kul::cursorElement(*list)) : nullptr) {
        if (!kul::isUsable(*element))
            return;
        toggle(*element);
    }
    handler.call(&kul::UICalls::onClick);
}

void moved(kul::ListHandler& handler)
{
    handler.callElement(&kul::ElementLinks::onSelect);
    handler.call(&kul::UICalls::onSelect);
}

const char* marker(const kul::List&, kul::AnyElement* element, int)
{
    return checkOf(element)->nSelect == 1 ? "[X]" : "[ ]";
}

} // namespace

KULCHECKELEMENT* AddCheckElement(KULCHECKELEMENT* firstElement, int nEnable, const char* szText,
                                 KULCALLBACK onSelect)
{
    return kul::appendToRing(firstElement,
                             kul::newElement<KULCHECKELEMENT>(nEnable, szText, onSelect, nullptr));
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
    if (!thisGUI || !thisCheck)
        return -1;
    kul::setListDefaults(*thisGUI, kul::listOf(*thisCheck));
    return 0;
}

int WipeCheckboxComponent(KULCHECKBOX* thisCheck)
{
    return thisCheck ? kul::wipeList(thisCheck, kul::listOf(*thisCheck)) : 0;
}

void SetFirstCheckElement(KULCHECKBOX* thisCheckbox)
{
    if (thisCheckbox)
        kul::setFirst(kul::listOf(*thisCheckbox));
}

void SetFirstCheckElementFromEnd(KULCHECKBOX* thisCheckbox)
{
    if (thisCheckbox)
        kul::setFirstFromEnd(kul::listOf(*thisCheckbox));
}

void SetLastCheckElement(KULCHECKBOX* thisCheckbox)
{
    if (thisCheckbox)
        kul::setLast(kul::listOf(*thisCheckbox));
}

int CheckLastCheckElementForSpillover(const KULCHECKBOX* thisCheckbox)
{
    return thisCheckbox && kul::spills(kul::listOf(*thisCheckbox)) ? T : F;
}

int GetTotalCheckElementHeights(const KULCHECKBOX* thisCheckbox)
{
    return thisCheckbox ? kul::shifted(0, kul::rowsOfAll(kul::listOf(*thisCheckbox))) : 0;
}

int kulcheckbox_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, CHECKBOX);
}

int kulcheckbox_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                       int nX, int nY, int nWidth, int nHeight, int nBorder, KULCALLBACK onFocus,
                       KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* list = kul::resetUI<kul::CheckList>(nChain, nRef, CHECKBOX, nColorFocus, nColorUnfocus,
                                              nColorDisable);
    if (!list)
        return -1;
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
    kul::takeElement(kul::listOf(*list), kul::asAny(element));
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
    if (thisGUI && thisCheckbox)
        kul::showList(*thisGUI, kul::listOf(*thisCheckbox, kul::ringOf(*thisCheckbox)), nFocus,
                      marker);
}

int kulcheckbox_execKeys(int nChain, int nRef)
{
    auto* list = kul::findUI<kul::CheckList>(nChain, nRef, CHECKBOX);
    if (!list)
        return KUL_GONE;
    if (list->nVisible != T)
        return KUL_NEXT;
    return kul::runList(nChain, nRef, kul::listOf(*list),
                        {CHECKBOX, kul::Changed::Selected, kul::isEdition2(), click, moved});
}
