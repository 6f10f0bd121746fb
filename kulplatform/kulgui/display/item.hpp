// SPDX-License-Identifier: MIT
//
// The table of the kinds of items that only show: what the framework has to know of one.
#ifndef KUL_DISPLAY_ITEM_HPP
#define KUL_DISPLAY_ITEM_HPP

#include <algorithm>
#include <climits>
#include <cstddef>

#include "../gui/memory.hpp"
#include "../kulgui.h"
#include "elements.hpp"

namespace kul {

struct DIKind {
    int nTaken;                 // code for a number that is in use
    unsigned char size;         // of a record
    unsigned char nVisible;     // where it has its nVisible
    int (*config)(GUI*, void*); // sets the defaults
    void (*show)(GUI*, void*);  // draws
    void (*drop)(void*);        // frees what the record owns; null for nothing
    int (*wipe)(void*);         // the same, and the record

    int& visible(void* record) const
    {
        return *reinterpret_cast<int*>(static_cast<char*>(record) + nVisible);
    }
};

// A row of the table from the typed functions of a kind. A record that derives from the public one
// names that as its Public.
template <typename Record, auto Config, auto Show, auto Wipe, auto Drop = nullptr>
constexpr DIKind diRow(int nTaken)
{
    unsigned char nVisible = 0;
    if constexpr (requires { typename Record::Public; })
        nVisible = offsetof(typename Record::Public, nVisible);
    else
        nVisible = offsetof(Record, nVisible);
    void (*drop)(void*) = nullptr;
    if constexpr (requires(Record & record) { Drop(record); })
        drop = [](void* record) { Drop(*static_cast<Record*>(record)); };
    return {nTaken,
            sizeof(Record),
            nVisible,
            [](GUI* gui, void* record) { return Config(gui, static_cast<Record*>(record)); },
            [](GUI* gui, void* record) { Show(gui, static_cast<Record*>(record)); },
            drop,
            [](void* record) { return Wipe(static_cast<Record*>(record)); }};
}

// The row of a kind; null for a number that is none.
const DIKind* diKind(int nType);

// The node of an item that has a record; null when there is none or it is of another kind.
DI* findDINode(int nChain, int nRef, DI_TYPE type);

// The record of an item; null when there is none or it is of another kind.
void* findDIRecord(int nChain, int nRef, DI_TYPE type);

template <typename Record>
Record* findDI(int nChain, int nRef, DI_TYPE type)
{
    return static_cast<Record*>(findDIRecord(nChain, nRef, type));
}

// What every kul<kind>_config begins with: the record, empty and with its defaults. Null when there
// is none or it is of another kind.
void* resetDIRecord(int nChain, int nRef, DI_TYPE type);

template <typename Record>
Record* resetDI(int nChain, int nRef, DI_TYPE type)
{
    return static_cast<Record*>(resetDIRecord(nChain, nRef, type));
}

// What the create calls of the kinds do.
int createDI(int nChain, int nRef, DI_TYPE type);

// Has the next update pass draw the item.
void markChanged(int nChain, int nRef);

// Status bars and description fields as they are allocated.
struct StatusBar : KULSTATBAR {
    using Public = KULSTATBAR;
    Tail<KULSTATELEMENT> tail;
};

struct DescrField : KULDESCRFIELD {
    using Public = KULDESCRFIELD;
    Tail<KULDESCRFLDELEMENT> tail;
};

// Free what a record owns and leave it empty.
void dropStatbar(KULSTATBAR& bar);
void dropDescrfield(KULDESCRFIELD& field);
void dropLabel(KULLABEL& label);

// Frees a record with what it owns. 0, -1 for NULL.
template <typename Record>
int wipeRecord(Record* record, void (*drop)(Record&) = nullptr)
{
    if (!record)
        return -1;
    if (drop)
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
