// SPDX-License-Identifier: MIT
//
// The table of the kinds of items that only show: what the framework has to know of one.
#ifndef KUL_DISPLAY_ITEM_HPP
#define KUL_DISPLAY_ITEM_HPP

#include <algorithm>
#include <climits>

#include "../gui/memory.hpp"
#include "../kulgui.h"
#include "elements.hpp"

namespace kul {

struct DIKind {
    int nTaken;                 // code for a number that is in use
    void* (*allocate)();        // a cleared record
    int (*config)(GUI*, void*); // sets the defaults
    void (*show)(GUI*, void*);  // draws
    int (*update)(GUI*, void*); // what an explicit update does
    void (*drop)(void*);        // frees what the record owns
    int (*wipe)(void*);         // the same, and the record
    int& (*visible)(void*);     // nVisible of the record
};

// A row of the table from the typed functions of a kind. Record may derive from the public one.
template <typename Record, auto Config, auto Show, auto Update, auto Drop, auto Wipe>
constexpr DIKind diRow(int nTaken)
{
    return {nTaken,
            []() -> void* { return allocate<Record>(); },
            [](GUI* gui, void* record) { return Config(gui, static_cast<Record*>(record)); },
            [](GUI* gui, void* record) { Show(gui, static_cast<Record*>(record)); },
            [](GUI* gui, void* record) { return Update(gui, static_cast<Record*>(record)); },
            [](void* record) { Drop(*static_cast<Record*>(record)); },
            [](void* record) { return Wipe(static_cast<Record*>(record)); },
            [](void* record) -> int& { return static_cast<Record*>(record)->nVisible; }};
}

// The row of a kind; null for a number that is none.
const DIKind* diKind(int nType);

// The node of an item that has a record; null when there is none or it is of another kind.
DI* findDINode(int nChain, int nRef, DI_TYPE type);

// The record of an item; null when there is none or it is of another kind.
template <typename Record>
Record* findDI(int nChain, int nRef, DI_TYPE type)
{
    const DI* di = findDINode(nChain, nRef, type);
    return di ? static_cast<Record*>(di->Pointer) : nullptr;
}

// What every kul<kind>_config begins with: the record, empty and with its defaults. Null when there
// is none or it is of another kind.
template <typename Record>
Record* resetDI(int nChain, int nRef, DI_TYPE type)
{
    auto* record = findDI<Record>(nChain, nRef, type);
    return record && ConfigDIComponent(nChain, nRef) >= 0 ? record : nullptr;
}

// What the create calls of the kinds do.
int createDI(int nChain, int nRef, DI_TYPE type);

// Has the next update pass draw the item.
void markChanged(int nChain, int nRef);

// Status bars and description fields as they are allocated.
struct StatusBar : KULSTATBAR {
    Tail<KULSTATELEMENT> tail;
};

struct DescrField : KULDESCRFIELD {
    Tail<KULDESCRFLDELEMENT> tail;
};

// Free what a record owns and leave it empty.
template <typename Record>
void dropNothing(Record&)
{
}
void dropStatbar(KULSTATBAR& bar);
void dropDescrfield(KULDESCRFIELD& field);
void dropLabel(KULLABEL& label);

// Frees a record with what it owns. 0, -1 for NULL.
template <typename Record>
int wipeRecord(Record* record, void (*drop)(Record&))
{
    if (!record)
        return -1;
    drop(*record);
    std::free(record);
    return 0;
}

// Cells of a rectangle; 0 when it has none.
constexpr long long area(int nWidth, int nHeight)
{
    return std::max<long long>(nWidth, 0) * std::max(nHeight, 0);
}

// A buffer for nCapacity characters, or columns of them, that holds the text, cut to that; NULL
// counts as the empty text. Null without memory.
char* newText(long long nCapacity, const char* szText);

// Puts another text into such a buffer, or makes another one where columns take more bytes than it
// has. The text may lie in the buffer. False without memory, and nothing is changed.
bool setText(char*& szBuffer, long long nCapacity, const char* szText);

} // namespace kul

#endif
