// SPDX-License-Identifier: MIT
//
// Option lists: one element is chosen, wherever the cursor is.
#include "ring_list.hpp"

namespace {

using Handler = kul::Handler<kul::OptionList>;

void click(Handler& handler)
{
    if (kul::OptionList* list = handler.record()) {
        const auto* element = kul::cursorElement(*list);
        if (element && !kul::isUsable(*element))
            return;
        list->nSelect = list->nPosition;
    }
    kul::noteSelection(handler);
    handler.call(&KULOPTIONS::onClick);
    kul::callElement(handler, &KULOPTIONELEMENT::onClick);
}

void moved(Handler& handler)
{
    handler.call(&KULOPTIONS::onSelect);
    kul::callElement(handler, &KULOPTIONELEMENT::onSelect);
}

} // namespace

KULOPTIONELEMENT* AddOptionElement(KULOPTIONELEMENT* firstElement, int nEnable, const char* szText,
                                   KULCALLBACK onSelect, KULCALLBACK onClick)
{
    auto* element = kul::newElement<KULOPTIONELEMENT>(nEnable, szText, onClick);
    if (element)
        element->onSelect = onSelect;
    return kul::appendToRing(firstElement, element);
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
    return kul::setListDefaults(thisGUI, thisList);
}

int WipeOptionsComponent(KULOPTIONS* thisList)
{
    return kul::wipeList(thisList);
}

void SetFirstOptionElement(KULOPTIONS* theseOptions)
{
    if (theseOptions)
        kul::setFirst(*theseOptions);
}

void SetFirstOptionElementFromEnd(KULOPTIONS* theseOptions)
{
    if (theseOptions)
        kul::setFirstFromEnd(*theseOptions);
}

void SetLastOptionElement(KULOPTIONS* theseOptions)
{
    if (theseOptions)
        kul::setLast(*theseOptions);
}

int CheckLastOptionElementForSpillover(const KULOPTIONS* theseOptions)
{
    return theseOptions && kul::spills(*theseOptions) ? T : F;
}

int GetTotalOptionElementHeights(const KULOPTIONS* theseOptions)
{
    return theseOptions ? kul::shifted(0, kul::rowsOfAll(*theseOptions)) : 0;
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
    auto* list = kul::resetUI<kul::OptionList>(nChain, nRef, OPTIONS);
    if (!list)
        return -1;
    kul::setColors(*list, nColorFocus, nColorUnfocus, nColorDisable);
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
    kul::takeElement(*list, *element);
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
    return list && kul::elementsOf(*list)(list->nSelect) ? list->nSelect : -1;
}

int kuloptions_choose(int nChain, int nRef, int nElement)
{
    auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    if (!list || !kul::elementsOf(*list)(nElement))
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
    kul::showList(thisGUI, theseOptions, nFocus, [&](const KULOPTIONELEMENT&, int nIndex) {
        return nIndex == theseOptions->nSelect ? "(o)" : "( )";
    });
}

int kuloptions_execKeys(int nChain, int nRef)
{
    const auto* list = kul::findUI<kul::OptionList>(nChain, nRef, OPTIONS);
    if (!list || list->nVisible != T)
        return -1;
    return kul::runList<KULOPTIONS>(nChain, nRef,
                                    {OPTIONS, kul::Changed::Component, true, click, moved});
}
