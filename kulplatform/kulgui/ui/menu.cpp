// SPDX-License-Identifier: MIT
//
// Menus: a bar of texts. Their elements, which dynamic menus have as well, are here too.
#include "menu.hpp"

#include <optional>

namespace {

constexpr kul::MenuKeys kMenuKeys = {MENU, KS_LEFT, KS_RIGHT, true};

bool nothingPending(const GUI&, const void*)
{
    return ExitUIorGUIorChains() == -1;
}

class MenuHandler : public kul::CallsHandler {
public:
    using MenuOf = kul::AnyMenu (*)(void* record);

    MenuHandler(const CURRENT& start, std::ptrdiff_t nFirst, MenuOf menuOf)
        : CallsHandler(start, nFirst), menuOf_(menuOf)
    {
    }

    // The menu as it is now; none, and the handler over, when it is gone.
    std::optional<kul::AnyMenu> menu()
    {
        void* record = findRecord();
        return record ? std::optional(menuOf_(record)) : std::nullopt;
    }

private:
    MenuOf menuOf_;
};

kul::Steps stepsOf(const kul::AnyMenu& menu)
{
    return {const_cast<kul::AnyMenu*>(&menu), menu.count(), [](void* any, int nIndex) {
                const auto& list = *static_cast<const kul::AnyMenu*>(any);
                return kul::stepOf(list.shape, list.find(nIndex));
            }};
}

// Moves a menu's selection by a key: round the elements and one place after them, on which none is
// selected. Whether the key is one that moves.
bool stepMenu(const kul::AnyMenu& menu, int nKey, const kul::MenuKeys& keys)
{
    const bool back = nKey == keys.nBack;
    if (!back && nKey != keys.nForward)
        return false;
    if (menu.nSelect == (back ? 0 : menu.nElements))
        menu.nSelect = back ? menu.nElements : 0;
    else
        menu.nSelect = kul::shifted(menu.nSelect, back ? -1 : 1);
    return true;
}

// The menus' keys in edition 2, where all that callbacks are for runs.
void handleKey(MenuHandler& handler, int nKey, const kul::MenuKeys& keys)
{
    auto menu = handler.menu();
    if (!menu)
        return;
    const int nBefore = menu->nSelect;
    if (nKey == KS_ENTER) {
        handler.call(&kul::UICalls::onClick);
        const auto now = handler.menu();
        kul::AnyElement* element = now ? now->find(nBefore) : nullptr;
        if (kul::stepOf(menu->shape, element).enabled)
            handler.run(now->shape.linksOf(element).onClick);
        return;
    }
    menu->nSelect =
        kul::stepped(nBefore, nKey, {keys.nBack, keys.nForward, menu->nPage}, stepsOf(*menu));
    handler.selection.nSelect = menu->nSelect;
    if (menu->nSelect == nBefore)
        return;
    SetCurrentSelection(&handler.selection);
    handler.call(&kul::UICalls::onSelect);
}

} // namespace

namespace kul {

void dropMenu(KULMENU& menu)
{
    dropAll(menu.Element);
}

bool selectElement(const AnyMenu& menu, int nElement)
{
    if (nElement < 0 || nElement >= menu.count())
        return false;
    menu.nSelect = nElement;
    return true;
}

bool isClickable(const AnyMenu& menu)
{
    AnyElement* element = menu.find(menu.nSelect);
    return menu.calls.onClick || (element && menu.shape.linksOf(element).onClick);
}

int runMenu(int nChain, int nRef, const MenuKeys& keys, AnyMenu (*menuOf)(void* record))
{
    void* record = findUIRecord(nChain, nRef, keys.type);
    if (!record || (uiKind(keys.type)->visible(record) != T && findDialog(nChain)->tabs))
        return KUL_NEXT;
    const AnyMenu start = menuOf(record);
    start.nSelect = settled(start.nSelect, stepsOf(start));
    MenuHandler handler({nChain, nRef, keys.type, 0, start.nSelect, 0},
                        reinterpret_cast<char*>(&start.calls) - static_cast<char*>(record), menuOf);
    handler.call(&UICalls::onFocus);
    while (const int nKey = handler.key(keys.obeysControls ? nothingPending : nullptr)) {
        const auto menu = handler.menu();
        if (isEdition2())
            handleKey(handler, nKey, keys);
        else if (menu && stepMenu(*menu, nKey, keys))
            handler.selection.nSelect = menu->nSelect;
        else if (nKey == KS_ENTER)
            handler.call(&UICalls::onClick);
        handler.show(Changed::Selected);
    }
    if (keys.obeysControls && ExitUIorGUIorChains() != -1)
        handler.end(KUL_NEXT);
    return handler.finish();
}

} // namespace kul

KULMENUELEMENT* AddMenuElement(KULMENUELEMENT* firstElement, int nEnable, const char* szText,
                               KULCALLBACK, KULCALLBACK onClick)
{
    return kul::append(firstElement,
                       kul::newElement<KULMENUELEMENT>(nEnable, szText, nullptr, onClick));
}

int RemoveMenuElement(KULMENUELEMENT* firstElement)
{
    return kul::removeLast(firstElement);
}

int WipeMenuElements(KULMENUELEMENT* firstElement)
{
    return kul::wipe(firstElement);
}

int AttachMenuComponentToUI(UI* thisUI)
{
    return AttachComponentToUI(thisUI, MENU);
}

int ConfigMenuComponent(GUI* thisGUI, KULMENU* thisMenu)
{
    if (!thisGUI || !thisMenu)
        return -1;
    kul::takeColors(*thisGUI, *thisMenu);
    kul::setCallbacks(*thisMenu, nullptr, nullptr, nullptr, nullptr);
    thisMenu->nX = 2;
    thisMenu->nY = 2;
    thisMenu->Element = nullptr;
    thisMenu->nSelect = 0;
    thisMenu->nElements = 0;
    thisMenu->nVisible = T;
    return 0;
}

int WipeMenuComponent(KULMENU* thisMenu)
{
    if (thisMenu)
        kul::dropMenu(*thisMenu);
    kul::freeRecord(thisMenu);
    return 0;
}

int kulmenu_create(int nChain, int nRef)
{
    return kul::createUI(nChain, nRef, MENU);
}

int kulmenu_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus, int nColorDisable,
                   KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                   KULCALLBACK onClick)
{
    auto* menu =
        kul::resetUI<KULMENU>(nChain, nRef, MENU, nColorFocus, nColorUnfocus, nColorDisable);
    if (!menu)
        return -1;
    kul::setCallbacks(*menu, onFocus, onUnfocus, onSelect, onClick);
    return 0;
}

int kulmenu_show(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, T);
}

int kulmenu_hide(int nChain, int nRef)
{
    return SetUIVisibility(nChain, nRef, F);
}

int kulmenu_addElement(int nChain, int nRef, const char* szText, int nEnable, KULCALLBACK onSelect,
                       KULCALLBACK onClick)
{
    auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    if (!menu)
        return -1;
    auto* added = AddMenuElement(menu->Element, nEnable, szText, onSelect, onClick);
    return kul::takeAdded(menu->Element, menu->nElements, menu->nSelect, added) ? 0 : -1;
}

int kulmenu_remElement(int nChain, int nRef, int)
{
    auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    return menu ? kul::dropLast(menu->Element, menu->nElements, menu->nSelect) : -1;
}

KULMENUELEMENT* kulmenu_getElement(int nChain, int nRef, int nElement)
{
    const auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    return menu ? kul::cappedLookup(menu->Element, nElement) : nullptr;
}

int kulmenu_count(int nChain, int nRef)
{
    return kul::countUI<kul::Menu>(nChain, nRef, MENU);
}

void ShowMenuComponent(GUI* thisGUI, KULMENU* thisMenu, int nFocus)
{
    if (!thisGUI || !thisMenu || thisMenu->nVisible != T)
        return;
    // The record may be the program's own, that remembers no place.
    kul::Finger<KULMENUELEMENT> start{};
    auto* inner = kul::innerOf<kul::Menu>(thisMenu);
    auto& place = inner ? inner->place : start;
    kul::drawBar(thisGUI->winMain, thisMenu->nY, thisMenu->nX, thisMenu->Element,
                 place.find(thisMenu->Element, thisMenu->nSelect),
                 kul::menuColors(*thisMenu, nFocus), [] {});
}

int kulmenu_execKeys(int nChain, int nRef)
{
    const auto* menu = kul::findUI<KULMENU>(nChain, nRef, MENU);
    if (!menu || menu->nVisible != T)
        return KUL_NEXT;
    return kul::runMenu(nChain, nRef, kMenuKeys, kul::anyMenu<kul::Menu>);
}
