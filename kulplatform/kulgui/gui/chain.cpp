// SPDX-License-Identifier: MIT
//
// The ring of dialogs and the lists of what is in them. The primary chain comes first; with two
// chains or more the links close to a ring in the order of creation:
//
//     primary <-> 1st dialog <-> 2nd dialog <-> ... <-> primary
//
// Numbers are looked up by walking; a device has a handful of dialogs.
#include "chain.hpp"

#include <climits>

#include "marks.hpp"
#include "memory.hpp"
#include "place.hpp"
#include "screen.hpp"

namespace {

CHAIN* Primary = nullptr;
int nPrimaryFlag = F;
int nActiveChain = -1;

// Where a chain that is made without a number finds one: counting up from one above the number of
// dialogs, the first number that is in use; past the largest int the count goes on at the
// smallest. That number then names two chains.
int firstNumberInUse()
{
    const unsigned start = static_cast<unsigned>(CountChains()) + 1;
    unsigned nearest = UINT_MAX;
    for (const CHAIN* chain = Primary; chain; chain = kul::nextChain(chain)) {
        const unsigned distance = static_cast<unsigned>(chain->nRef) - start;
        nearest = distance < nearest ? distance : nearest;
    }
    return static_cast<int>(start + nearest);
}

// Walks a list to the record numbered nRef.
template <typename Node>
Node* findByRef(Node* node, int nRef)
{
    while (node && node->nRef != nRef)
        node = node->Next;
    return node;
}

template <typename Node>
Node* lastOf(Node* node)
{
    while (node && node->Next)
        node = node->Next;
    return node;
}

// Frees a list record by record, so that one whose kind reports an error does not keep the rest.
// wipe frees what it documents; freeNode says whether the node itself is left to us.
template <typename Node>
void wipeList(Node* node, int (*wipe)(Node*), bool freeNode)
{
    while (node) {
        Node* next = node->Next;
        node->Next = nullptr;
        wipe(node);
        if (freeNode)
            std::free(node);
        node = next;
    }
}

// The checks and the record that components and items begin with.
template <typename Node>
int createNode(int nChain, int nType, int nRef, int nNoMemory, int (*add)(GUI*, Node*),
               int (*attach)(GUI&, Node&, int))
{
    if (ComponentTypeByRef(nChain, nRef) != 0)
        return 0;
    const CHAIN* chain = GetChain(nChain);
    if (!chain)
        return KUL_NO_CHAIN;
    if (!chain->Pointer)
        return KUL_NO_DIALOG;
    Node* node = kul::allocate<Node>();
    if (!node)
        return nNoMemory;
    node->nRef = nRef;
    node->nType = nType;
    add(chain->Pointer, node);
    return attach(*chain->Pointer, *node, nType);
}

} // namespace

namespace kul {

CHAIN* nextChain(const CHAIN* thisChain)
{
    CHAIN* next = thisChain ? thisChain->Next : nullptr;
    return next == Primary ? nullptr : next;
}

Dialog* findDialog(int nChain)
{
    const CHAIN* chain = GetChain(nChain);
    return chain ? static_cast<Dialog*>(chain->Pointer) : nullptr;
}

Dialog* findDialog(const GUI* thisGUI)
{
    CHAIN* chain = Primary;
    while (chain && chain->Pointer != thisGUI)
        chain = nextChain(chain);
    return chain ? static_cast<Dialog*>(chain->Pointer) : nullptr;
}

Dialog* newDialog(CHAIN* thisChain)
{
    Dialog* dialog = allocate<Dialog>();
    if (dialog) {
        dialog->nCurrentUI = dialog->nDefault = dialog->nCancel = -1;
        thisChain->Pointer = dialog;
    }
    return dialog;
}

void emptyDialog(GUI* thisGUI)
{
    auto* dialog = static_cast<Dialog*>(thisGUI);
    dialog->nDefault = dialog->nCancel = -1;
    freeMarks(*dialog);
    DI* items = thisGUI->Display;
    UI* components = thisGUI->UserInterface;
    thisGUI->Display = nullptr;
    thisGUI->UserInterface = nullptr;
    wipeList(items, WipeAllDIComponents, true);
    wipeList(components, WipeAllUIComponents, false);
    deleteWindows(*dialog);
}

void destroyChain(CHAIN* thisChain)
{
    const Pass pass(Pass::End::Later);
    if (thisChain != Primary) {
        CHAIN* before = thisChain->Prev;
        CHAIN* after = thisChain->Next;
        const bool pair = before == after;
        before->Next = pair ? nullptr : after;
        after->Prev = pair ? nullptr : before;
        WipeChain(thisChain);
        return;
    }
    GetFinalChain()->Next = nullptr;
    Primary = nullptr;
    nPrimaryFlag = F;
    WipeAllChains(thisChain);
}

} // namespace kul

CHAIN* PrimaryChain(int nFlag)
{
    if (nFlag != 0 && !Primary)
        Primary = kul::allocate<CHAIN>();
    return Primary;
}

CHAIN* SetPrimaryChain()
{
    return PrimaryChain(1);
}

CHAIN* GetPrimaryChain()
{
    return PrimaryChain(0);
}

int PrimaryFlag(int nSetting)
{
    if (nSetting != 0)
        nPrimaryFlag = T;
    return nPrimaryFlag;
}

int SetPrimaryFlag()
{
    return PrimaryFlag(1);
}

int GetPrimaryFlag()
{
    return PrimaryFlag(0);
}

int CreateChain(int nRef)
{
    if (!Primary) {
        if (!PrimaryChain(1))
            return -1;
        Primary->nRef = nRef == KUL_KEEP ? 0 : nRef;
        return Primary->nRef;
    }
    if (GetChain(nRef))
        return KUL_TAKEN;
    CHAIN* chain = kul::allocate<CHAIN>();
    if (!chain)
        return -1;
    CHAIN* last = GetFinalChain();
    chain->nRef = nRef == KUL_KEEP ? firstNumberInUse() : nRef;
    chain->Prev = last;
    chain->Next = Primary;
    last->Next = chain;
    Primary->Prev = chain;
    return chain->nRef;
}

CHAIN* GetChain(int nRef)
{
    ++kul::nCalls;
    CHAIN* chain = Primary;
    while (chain && chain->nRef != nRef)
        chain = kul::nextChain(chain);
    return chain;
}

CHAIN* GetFinalChain()
{
    CHAIN* chain = Primary;
    while (CHAIN* next = kul::nextChain(chain))
        chain = next;
    return chain;
}

int CountChains()
{
    int count = -1;
    for (const CHAIN* chain = Primary; chain; chain = kul::nextChain(chain))
        ++count;
    return count;
}

int WipeChain(CHAIN* thisChain)
{
    if (!thisChain)
        return -1;
    if (thisChain->Pointer) {
        kul::emptyDialog(thisChain->Pointer);
        std::free(thisChain->Pointer);
    }
    if (thisChain == Primary)
        Primary = nullptr;
    std::free(thisChain);
    return 0;
}

int WipeAllChains(CHAIN* firstChain)
{
    int result = -1;
    while (firstChain) {
        CHAIN* next = firstChain->Next;
        result = WipeChain(firstChain);
        if (result != 0)
            break;
        firstChain = next;
    }
    return result;
}

int ActiveChain(int nRef)
{
    if (nRef != -1)
        nActiveChain = nRef;
    return nActiveChain;
}

int GetActiveChain()
{
    return ActiveChain(-1);
}

int SetActiveChain(int nChain)
{
    return ActiveChain(nChain);
}

int CreateUIComponent(int nChain, int nType, int nRef)
{
    return createNode<UI>(nChain, nType, nRef, KUL_NO_MEMORY_UI, AddUIComponent, kul::attachUI);
}

int CreateDIComponent(int nChain, int nType, int nRef)
{
    return createNode<DI>(nChain, nType, nRef, KUL_NO_MEMORY_DI, AddDIComponent,
                          [](GUI&, DI& di, int nKind) { return AttachComponentToDI(&di, nKind); });
}

int AddUIComponent(GUI* thisGUI, UI* thisUI)
{
    if (!thisGUI || !thisUI)
        return 0;
    UI* last = GetLastUIComponent(thisGUI);
    thisUI->Prev = last;
    thisUI->Next = nullptr;
    if (last) {
        last->Next = thisUI;
        return 0;
    }
    thisGUI->UserInterface = thisUI;
    if (thisGUI->nCurrentUI == -1)
        thisGUI->nCurrentUI = thisUI->nRef;
    return 0;
}

int AddDIComponent(GUI* thisGUI, DI* thisDI)
{
    if (!thisGUI || !thisDI)
        return 0;
    DI* last = GetLastDIComponent(thisGUI);
    thisDI->Next = nullptr;
    (last ? last->Next : thisGUI->Display) = thisDI;
    return 0;
}

UI* GetLastUIComponent(const GUI* thisGUI)
{
    return thisGUI ? lastOf(thisGUI->UserInterface) : nullptr;
}

DI* GetLastDIComponent(const GUI* thisGUI)
{
    return thisGUI ? lastOf(thisGUI->Display) : nullptr;
}

UI* GetLastUIByGUI(const GUI* thisGUI)
{
    return GetLastUIComponent(thisGUI);
}

DI* GetLastDIByGUI(const GUI* thisGUI)
{
    return GetLastDIComponent(thisGUI);
}

UI* GetUIComponentByRef(int nChain, int nRef)
{
    return findByRef(GetFirstUIComponentInChain(nChain), nRef);
}

DI* GetDIComponentByRef(int nChain, int nRef)
{
    const GUI* gui = kul::findDialog(nChain);
    return gui ? findByRef(gui->Display, nRef) : nullptr;
}

int CheckUICompExistence(int nChain, int nRef)
{
    return GetUIComponentByRef(nChain, nRef) ? 0 : -1;
}

int CheckDICompExistence(int nChain, int nRef)
{
    return GetDIComponentByRef(nChain, nRef) ? 0 : -1;
}

int ComponentTypeByRef(int nChain, int nComp)
{
    return ComponentTypeByChain(GetChain(nChain), nComp);
}

int ComponentTypeByChain(const CHAIN* thisChain, int nComp)
{
    if (!thisChain || !thisChain->Pointer)
        return 0;
    const GUI* gui = thisChain->Pointer;
    const bool found = findByRef(gui->Display, nComp) || findByRef(gui->UserInterface, nComp);
    return found ? nComp : 0;
}

UI* GetFirstUIComponentInChain(int nChain)
{
    const GUI* gui = kul::findDialog(nChain);
    return gui ? gui->UserInterface : nullptr;
}

void SetVar(int* nCurrValue, int nNewValue)
{
    ++kul::nCalls;
    if (nCurrValue && nNewValue != KUL_KEEP)
        *nCurrValue = nNewValue;
}
