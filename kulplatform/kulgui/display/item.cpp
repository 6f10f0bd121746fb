// SPDX-License-Identifier: MIT
//
// What all items that only show have in common: making, resetting, showing, drawing and freeing
// them by the table of their kinds.
#include "item.hpp"

#include <utility>

#include "../gui/chain.hpp"
#include "../gui/text.hpp"

namespace {

// In the order of DI_TYPE.
constexpr kul::DIKind kDIKinds[LABEL + 1] = {
    kul::diRow<kul::StatusBar, ConfigStatbarComponent, ShowStatusBarComponent, WipeStatbarComponent,
               kul::dropStatbar>(KUL_TAKEN_STATBAR),
    kul::diRow<KULGAUGEBAR, ConfigScrollbarComponent, ShowScrollbarComponent,
               WipeScrollbarComponent>(KUL_TAKEN_SCROLLBAR),
    kul::diRow<KULGAUGEBAR, ConfigProgbarComponent, ShowProgBarComponent, WipeProgbarComponent>(
        KUL_TAKEN_PROGBAR),
    kul::diRow<kul::DescrField, ConfigDescrfieldComponent, ShowDescrfieldComponent,
               WipeDescrfieldComponent, kul::dropDescrfield>(KUL_TAKEN_DESCRFIELD),
    kul::diRow<KULBOX, ConfigBoxComponent, ShowBoxComponent, WipeBoxComponent>(KUL_TAKEN_BOX),
    kul::diRow<KULLINE, ConfigLineComponent, ShowLineComponent, WipeLineComponent>(KUL_TAKEN_LINE),
    kul::diRow<KULLABEL, ConfigLabelComponent, ShowLabelComponent, WipeLabelComponent,
               kul::dropLabel>(KUL_TAKEN_LABEL),
};

constexpr int kChanged = 0;
constexpr int kDrawn = -1;

void drawItem(GUI* thisGUI, const DI& item)
{
    const kul::DIKind* kind = kul::diKind(item.nType);
    if (kind && item.Pointer)
        kind->show(thisGUI, item.Pointer);
}

} // namespace

namespace kul {

const DIKind* diKind(int nType)
{
    return nType >= 0 && nType <= LABEL ? &kDIKinds[nType] : nullptr;
}

DI* findDINode(int nChain, int nRef, DI_TYPE type)
{
    DI* di = GetDIComponentByRef(nChain, nRef);
    return di && di->nType == type && di->Pointer ? di : nullptr;
}

void* findDIRecord(int nChain, int nRef, DI_TYPE type)
{
    const DI* di = findDINode(nChain, nRef, type);
    return di ? di->Pointer : nullptr;
}

void* resetDIRecord(int nChain, int nRef, DI_TYPE type)
{
    void* record = findDIRecord(nChain, nRef, type);
    return record && ConfigDIComponent(nChain, nRef) >= 0 ? record : nullptr;
}

int createDI(int nChain, int nRef, DI_TYPE type)
{
    if (CheckDICompExistence(nChain, nRef) != -1)
        return kDIKinds[type].nTaken;
    return CreateDIComponent(nChain, type, nRef);
}

char* newText(long long nCapacity, const char* szText)
{
    if (nCapacity > INT_MAX)
        return nullptr;
    const std::string_view text = cutText(szText, nCapacity);
    const std::size_t nMost = std::max(text.size(), static_cast<std::size_t>(nCapacity));
    char* szBuffer = static_cast<char*>(std::calloc(nMost + 1, 1));
    if (szBuffer)
        std::copy(text.begin(), text.end(), szBuffer);
    return szBuffer;
}

bool setText(char*& szBuffer, long long nCapacity, const char* szText)
{
    const std::string_view text = cutText(szText, nCapacity);
    if (static_cast<long long>(text.size()) <= nCapacity) {
        std::memmove(szBuffer, text.data(), text.size());
        szBuffer[text.size()] = '\0';
        return true;
    }
    char* szNew = newText(nCapacity, szText);
    if (szNew)
        std::free(std::exchange(szBuffer, szNew));
    return szNew != nullptr;
}

void markChanged(int nChain, int nRef)
{
    if (DI* di = GetDIComponentByRef(nChain, nRef))
        di->nUpdate = kChanged;
}

} // namespace kul

int AttachComponentToDI(DI* thisDI, int nType)
{
    const kul::DIKind* kind = kul::diKind(nType);
    if (!thisDI || !kind)
        return -1;
    thisDI->nType = nType;
    thisDI->Pointer = std::calloc(1, kind->size);
    return thisDI->Pointer ? 0 : -1;
}

int ConfigDIComponent(int nChain, int nRef)
{
    DI* di = GetDIComponentByRef(nChain, nRef);
    if (!di)
        return -1;
    di->nUpdate = 1;
    const kul::DIKind* kind = kul::diKind(di->nType);
    if (!kind || !di->Pointer)
        return -1;
    if (kind->drop)
        kind->drop(di->Pointer);
    return kind->config(kul::findDialog(nChain), di->Pointer);
}

int SetDIVisibility(int nChain, int nRef, int nVisible)
{
    if (DI* di = GetDIComponentByRef(nChain, nRef)) {
        const kul::DIKind* kind = kul::diKind(di->nType);
        di->nUpdate = kChanged;
        if (kind && di->Pointer)
            kind->visible(di->Pointer) = nVisible;
    }
    return -1;
}

int UpdateDIComponent(int nChain, int nRef)
{
    DI* di = GetDIComponentByRef(nChain, nRef);
    if (!di)
        return -1;
    di->nUpdate = 1;
    const kul::DIKind* kind = kul::diKind(di->nType);
    return kind && di->Pointer ? 0 : -1; // no kind does anything here
}

void ShowDisplayComponents(GUI* thisGUI)
{
    for (DI* di = thisGUI ? thisGUI->Display : nullptr; di; di = di->Next)
        drawItem(thisGUI, *di);
}

void UpdateDisplayComponents(GUI* thisGUI)
{
    for (DI* di = thisGUI ? thisGUI->Display : nullptr; di; di = di->Next) {
        if (di->nUpdate != kChanged)
            continue;
        drawItem(thisGUI, *di);
        di->nUpdate = kDrawn;
    }
}

int WipeAllDIComponents(DI* firstDI)
{
    int nResult = -1;
    for (DI* di = firstDI; di; di = di->Next) {
        const kul::DIKind* kind = kul::diKind(di->nType);
        nResult = kind ? kind->wipe(di->Pointer) : -1;
        if (nResult != 0)
            break;
        di->Pointer = nullptr;
    }
    return nResult;
}
