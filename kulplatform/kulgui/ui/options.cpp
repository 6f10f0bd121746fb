// SPDX-License-Identifier: MIT
//
// Option lists: one element is chosen, wherever the cursor is.
#include "ring_list.hpp"

namespace {

void click(kul::ListHandler& handler)
{
    if (const auto list = handler.list()) {
        const auto* element = reinterpret_cast<KULOPTIONELEMENT*>(kul::cursorElement(*list));
        if (element && !kul::isUsable(*element))
            return;
        list->box.nSelect = list->nCursor;
    }
    handler.noteSelection();
    handler.call(&kul::UICalls::onClick);
    handler.callElement(&kul::ElementLinks::onClick);
}

void moved(kul::ListHandler& handler)
{
    handler.call(&kul::UICalls::onSelect);
    handler.callElement(&kul::ElementLinks::onSelect);
}

const char* marker(const kul::List& list, kul::AnyElement*, int nIndex)
{
    return nIndex == list.box.nSelect ? "(o)" : "( )";
}

} // namespace

KULOPTIONELEMENT* AddOptionElement(KULOPTIONELEMENT* firstElement, int nEnable, const char* szText,
                                   KULCALLBACK onSelect, KULCALLBACK onClick)
{
    return kul::appendToRing(firstElement,
                             kul::newElement<KULOPTIONELEMENT>(nEnable, szText, onSelect, onClick));
}

int RemoveOptionElement(KULOPTIONELEMENT* firstElement)
{
    return kul::removeLastOfRing(firstElement);
}

int WipeOptionElements(KULOPTIONELEMENT* firstElement)
{
    return kul::wipeRing(firstElement);
}

int AttachOptionsComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, OPTIONS);
}

int ConfigOptionsComponent(GUI* thisGUI, KULOPTIONS* thisList)
{
    if (!thisGUI || !thisList)
        return -1;
    kul::setListDefaults(*thisGUI, kul::listOf(*thisList));
    return 0;
}

int WipeOptionsComponent(KULOPTIONS* thisList)
{
    return thisList ? kul::wipeList(thisList, kul::listOf(*thisList)) : 0;
}

void SetFirstOptionElement(KULOPTIONS* theseOptions)
{
    if (theseOptions)
        kul::setFirst(kul::listOf(*theseOptions));
}

void SetFirstOptionElementFromEnd(KULOPTIONS* theseOptions)
{
    if (theseOptions)
        kul::setFirstFromEnd(kul::listOf(*theseOptions));
}

void SetLastOptionElement(KULOPTIONS* theseOptions)
{
    if (theseOptions)
        kul::setLast(kul::listOf(*theseOptions));
}

int CheckLastOptionElementForSpillover(const KULOPTIONS* theseOptions)
{
    return theseOptions && kul::spills(kul::listOf(*theseOptions)) ? T : F;
}

int GetTotalOptionElementHeights(const KULOPTIONS* theseOptions)
{
    return theseOptions ? kul::shifted(0, kul::rowsOfAll(kul::listOf(*theseOptions))) : 0;
}

int kuloptions_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, OPTIONS);
}

int kuloptions_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                      int nX, int nY, int nWidth, int nHeight, int nBorder, int nSelect,
                      int nPosition, KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                      KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* list = kul::resetUI<kul::OptionList>(nChain, nRef, OPTIONS, nColorFocus, nColorUnfocus,
                                               nColorDisable);
    if (!list)
        return -1;
    kul::setCallbacks(*list, onFocus, onUnfocus, onSelect, onClick);
    kul::setBox(*list, nX, nY, nWidth, nHeight, nBorder);
    SetVar(&list->nSelect, nSelect);
    SetVar(&list->nPosition, nPosition);
    return 0;
}

int kuloptions_addElement(int nChain, int nRef, const char* szText, int nEnable,
                          KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    auto* element =
        list ? AddOptionElement(list->Element, nEnable, szText, onSelect, onClick) : nullptr;
    if (!element)
        return -1;
    kul::takeElement(kul::listOf(*list), kul::asAny(element));
    return 0;
}

int kuloptions_remElement(int, int, int)
{
    return 0;
}

KULOPTIONELEMENT* kuloptions_getElement(int nChain, int nRef, int nElement)
{
    const auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    return list ? kul::cappedLookup(list->Element, nElement) : nullptr;
}

int kuloptions_setClicked(int nChain, int nRef, int nSelect)
{
    auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    return list ? list->nSelect = nSelect : -1;
}

int kuloptions_getClicked(int nChain, int nRef)
{
    const auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    return list ? list->nSelect : -1;
}

int kuloptions_getChosen(int nChain, int nRef)
{
    auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    return list && kul::elementAt(kul::listOf(*list), list->nSelect) ? list->nSelect : -1;
}

int kuloptions_choose(int nChain, int nRef, int nElement)
{
    auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    if (!list || !kul::elementAt(kul::listOf(*list), nElement))
        return -1;
    list->nSelect = nElement;
    return 0;
}

int kuloptions_count(int nChain, int nRef)
{
    return kul::countUI<kul::OptionList>(nChain, nRef, OPTIONS);
}

int kuloptions_getSelected(int nChain, int nRef)
{
    return kul::isSelected(nChain, nRef, OPTIONS) ? GetCurrentSelection()->nPosition : -1;
}

int kuloptions_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kuloptions_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

void ShowOptionsComponent(GUI* thisGUI, KULOPTIONS* theseOptions, int nFocus)
{
    if (thisGUI && theseOptions)
        kul::showList(*thisGUI, kul::listOf(*theseOptions, kul::ringOf(*theseOptions)), nFocus,
                      marker);
}

int kuloptions_execKeys(int nChain, int nRef)
{
    auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    if (!list || list->nVisible != T)
        return -1;
    return kul::runList(nChain, nRef, kul::listOf(*list),
                        {OPTIONS, kul::Changed::Component, true, click, moved});
}
