// SPDX-License-Identifier: MIT
//
// The table of the kinds of components that take the focus: what the framework has to know of one.
#ifndef KUL_UI_COMPONENT_HPP
#define KUL_UI_COMPONENT_HPP

#include <concepts>
#include <cstddef>

#include "../gui/chain.hpp"
#include "../gui/draw.hpp"
#include "../gui/memory.hpp"
#include "../kulgui.h"

namespace kul {

// Records that the library keeps more in than the public one shows: they derive from it and name it
// as their Public. A program may hand in public records of its own, so one that was not made here
// is never taken for such a record.
template <typename Record>
concept Inner = requires
{
    typename Record::Public;
};

template <typename Record>
struct PublicOf {
    using Type = Record;
};

template <Inner Record>
struct PublicOf<Record> {
    using Type = typename Record::Public;
};

// Cleared memory for a record, known as the library's until it is freed. Null without memory.
void* newInner(std::size_t size);
bool isInner(const void* record);

// Frees a record, whoever made it.
void freeRecord(void* record);

// A record as the library made it; null for one of the program's.
template <Inner Record>
Record* innerOf(typename Record::Public* record)
{
    return isInner(record) ? static_cast<Record*>(record) : nullptr;
}

// Where a component is in its dialog's window. Menus go on to the right as far as they have texts.
struct Area {
    int nX, nY, nWidth, nHeight;
    bool framed;
};

template <typename Record>
Area areaOf(const Record& box)
{
    return {box.nX, box.nY, box.nWidth, box.nHeight, box.nBorder == BORDER};
}

Area areaOf(const KULMENU& menu);
Area areaOf(const KULDYNMENU& menu);
Area areaOf(const KULDESCRMENU& menu);
Area areaOf(const KULBUTTON& button);
Area areaOf(const KULTOOLBAR& toolbar);

// The rows that a component draws into. A description menu's are not known from its record.
template <typename Record>
Rows rowsOf(const Record& record)
{
    const Area area = areaOf(record);
    return {area.nY, shifted(area.nY, area.nHeight)};
}

Rows rowsOf(const KULDESCRMENU& menu);

// The rows of the selected element. While the view stays the same, a move of the selection changes
// nothing else.
struct Spot {
    Rows rows;
    int nView; // which elements are shown; -1 where more may change
};

// What the kinds differ in without a function of their own.
struct UITraits {
    int nTaken;             // code for a number that is in use
    bool keepsTab = false;  // leaves by Tab and Escape only where tabbing is on
    bool startsSet = false; // has its defaults before its config call
    bool ownsEnter = false; // does something at Enter, callback or not
    bool hasEnable = false; // nEnable of its record says whether it can be used
};

struct UIKind {
    UITraits traits;
    bool inner;                            // its own records are Inner
    void* (*allocate)();                   // a cleared record
    int (*config)(GUI*, void*);            // sets the defaults
    void (*show)(GUI*, void*, int nFocus); // draws
    void (*drop)(void*);                   // frees what the record owns
    int (*wipe)(void*);                    // the same, and the record
    int (*execKeys)(int nChain, int nRef); // runs it
    int& (*visible)(void*);                // nVisible of the record
    bool (*enabled)(void*);                // by the record
    bool (*clickable)(void*);              // something happens at Enter
    Area (*area)(void*);
    Rows (*rows)(void*);
    Spot (*spot)(void*);
    int (*focusColor)(void*); // nColorFocus of the record
    int (*unfocusColor)(void*);
    int (*disableColor)(void*);
    bool (*select)(void*, int nElement);   // moves the selection; null for kinds without elements
    bool (*accepts)(int nChain, int nRef); // whether the user may go on from it; null for always
};

// A row of the table from the functions of a kind, which take its public record.
template <typename Record, auto Config, auto Show, auto Drop, auto Wipe, auto ExecKeys>
constexpr UIKind uiRow(UITraits traits, bool (*accepts)(int, int) = nullptr)
{
    using Public = typename PublicOf<Record>::Type;
    bool (*select)(void*, int) = nullptr;
    if constexpr (requires(Record & record) { selectElement(record, 0); })
        select = [](void* record, int nElement) {
            return selectElement(*static_cast<Record*>(record), nElement);
        };
    return {
        traits,
        Inner<Record>,
        []() -> void* { return Inner<Record> ? newInner(sizeof(Record)) : allocate<Record>(); },
        [](GUI* gui, void* record) { return Config(gui, static_cast<Public*>(record)); },
        [](GUI* gui, void* record, int nFocus) { Show(gui, static_cast<Public*>(record), nFocus); },
        [](void* record) { Drop(*static_cast<Public*>(record)); },
        [](void* record) { return Wipe(static_cast<Public*>(record)); },
        ExecKeys,
        [](void* record) -> int& { return static_cast<Public*>(record)->nVisible; },
        [](void* record) {
            if constexpr (requires(Public * p) { p->nEnable; })
                return static_cast<Public*>(record)->nEnable == 1;
            return true;
        },
        [](void* record) {
            if constexpr (requires(Record & own) { isClickable(own); })
                return isClickable(*static_cast<Record*>(record));
            else if constexpr (requires(Public * p) { p->onClick; })
                return static_cast<Public*>(record)->onClick != nullptr;
            return false;
        },
        [](void* record) { return areaOf(*static_cast<Public*>(record)); },
        [](void* record) { return rowsOf(*static_cast<Public*>(record)); },
        [](void* record) {
            if constexpr (requires(Record & own) { spotOf(own); })
                return spotOf(*static_cast<Record*>(record));
            return Spot{rowsOf(*static_cast<Public*>(record)), 0};
        },
        [](void* record) { return static_cast<Public*>(record)->nColorFocus; },
        [](void* record) { return static_cast<Public*>(record)->nColorUnfocus; },
        [](void* record) { return static_cast<Public*>(record)->nColorDisable; },
        select,
        accepts};
}

// The row of a kind; null for a number that is none.
const UIKind* uiKind(int nType);

// The record of a component; null when there is none, it is of another kind, or it is a program's
// own where the library needs one of its making.
void* findUIRecord(int nChain, int nRef, UI_TYPE type);

template <typename Record>
Record* findUI(int nChain, int nRef, UI_TYPE type)
{
    return static_cast<Record*>(findUIRecord(nChain, nRef, type));
}

// Whether a component can be used by its user, and whether a loop may give it the keys.
bool isDisabled(const Dialog& dialog, const UI& ui);
bool takesFocus(const Dialog& dialog, const UI& ui);

// What every kul<kind>_config begins with: the record, empty and with its defaults. Null when there
// is none or it is of another kind.
template <typename Record>
Record* resetUI(int nChain, int nRef, UI_TYPE type)
{
    auto* record = findUI<Record>(nChain, nRef, type);
    return record && ConfigUIComponent(nChain, nRef) >= 0 ? record : nullptr;
}

// What the count calls of the kinds with elements do: their number, -1 for an unknown component.
template <typename Record>
int countUI(int nChain, int nRef, UI_TYPE type)
{
    auto* record = findUI<Record>(nChain, nRef, type);
    return record ? countElements(*record) : -1;
}

// Whether the current selection names this component.
bool isSelected(int nChain, int nRef, UI_TYPE type);

// What the create calls of the kinds do.
int createUI(int nChain, int nRef, UI_TYPE type);

// The colours that every kind starts with.
template <typename Record>
void takeColors(const GUI& gui, Record& record)
{
    record.nColorFocus = gui.nColorFocus;
    record.nColorUnfocus = gui.nColorUnfocus;
    record.nColorDisable = gui.nColorDisable;
}

// A box as its config call gives it; it has a border or, with any other number, none.
template <typename Record>
void setBox(Record& record, int nX, int nY, int nWidth, int nHeight, int nBorder)
{
    record.nX = nX;
    record.nY = nY;
    record.nWidth = nWidth;
    record.nHeight = nHeight;
    record.nBorder = nBorder == BORDER ? BORDER : NOBORDER;
}

// The colours and callbacks that the config calls of the kinds have in common.
template <typename Record>
void setColors(Record& record, int nColorFocus, int nColorUnfocus, int nColorDisable)
{
    SetVar(&record.nColorFocus, nColorFocus);
    SetVar(&record.nColorUnfocus, nColorUnfocus);
    SetVar(&record.nColorDisable, nColorDisable);
}

template <typename Record>
void setCallbacks(Record& record, KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                  KULCALLBACK onClick)
{
    record.onFocus = onFocus;
    record.onUnfocus = onUnfocus;
    record.onSelect = onSelect;
    record.onClick = onClick;
}

} // namespace kul

#endif
