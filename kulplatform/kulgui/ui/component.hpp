// SPDX-License-Identifier: MIT
//
// The table of the kinds of components that take the focus: what the framework has to know of one.
#ifndef KUL_UI_COMPONENT_HPP
#define KUL_UI_COMPONENT_HPP

#include <concepts>
#include <cstddef>
#include <type_traits>

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
    int nBelow = 0; // rows that it draws into below these
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
    bool staysIn = false;   // draws into no column outside of its area, or says so
};

// The colours of a record, which lie next to each other in the records of all kinds and in dialogs.
struct [[gnu::may_alias]] UIColors {
    int nFocus;
    int nUnfocus;
    int nDisable;
};

template <typename Record>
auto& colorsOf(Record& record)
{
    constexpr std::size_t kFirst = offsetof(Record, nColorFocus);
    static_assert(offsetof(Record, nColorUnfocus) == kFirst + offsetof(UIColors, nUnfocus) &&
                  offsetof(Record, nColorDisable) == kFirst + offsetof(UIColors, nDisable));
    using Colors = std::conditional_t<std::is_const_v<Record>, const UIColors, UIColors>;
    return reinterpret_cast<Colors&>(record.nColorFocus);
}

// The callbacks of the kinds that have all four.
struct [[gnu::may_alias]] UICalls {
    KULCALLBACK onFocus;
    KULCALLBACK onUnfocus;
    KULCALLBACK onSelect;
    KULCALLBACK onClick;
};

// Fields that the kinds have in common are named by where they are in a record: in a table of the
// library a number is a byte, and a function is a pointer that each process has to be given anew.
struct UIFields {
    unsigned char visible;
    unsigned char colors;
    unsigned char onClick; // 0 for none
    unsigned char enable;  // 0 for none
};

struct UIKind {
    UITraits traits;
    UIFields fields;
    bool inner;                            // its own records are Inner
    unsigned short size;                   // of those
    int (*config)(GUI*, void*);            // sets the defaults
    void (*show)(GUI*, void*, int nFocus); // draws
    void (*drop)(void*);                   // frees what the record owns
    int (*wipe)(void*);                    // the same, and the record
    int (*execKeys)(int nChain, int nRef); // runs it
    Area (*area)(void*);
    Spot (*ownSpot)(void*);                // null for those that are drawn whole
    bool (*ownClick)(void*);               // null for those whose onClick tells
    bool (*select)(void*, int nElement);   // moves the selection; null for kinds without elements
    bool (*accepts)(int nChain, int nRef); // whether the user may go on from it; null for always

    int& visible(void* record) const { return at<int>(record, fields.visible); }
    UIColors& colors(void* record) const { return at<UIColors>(record, fields.colors); }

    // By the record.
    bool enabled(void* record) const
    {
        return fields.enable == 0 || at<int>(record, fields.enable) == 1;
    }

    // Whether something happens at Enter.
    bool clickable(void* record) const
    {
        if (ownClick)
            return ownClick(record);
        return fields.onClick != 0 && at<KULCALLBACK>(record, fields.onClick);
    }

    // The cells that it draws into.
    Block block(void* record) const
    {
        const Area where = area(record);
        return {{where.nY, shifted(where.nY, where.nHeight + 0LL + where.nBelow)},
                traits.staysIn ? Range{where.nX, shifted(where.nX, where.nWidth)} : kAll};
    }

    Spot spot(void* record) const
    {
        return ownSpot ? ownSpot(record) : Spot{block(record).rows, 0};
    }

private:
    template <typename Field>
    static Field& at(void* record, int nOffset)
    {
        return *reinterpret_cast<Field*>(static_cast<char*>(record) + nOffset);
    }
};

template <typename Record>
constexpr UIFields fieldsOf()
{
    UIFields fields{offsetof(Record, nVisible), offsetof(Record, nColorFocus), 0, 0};
    if constexpr (requires(Record & record) { record.onClick; })
        fields.onClick = offsetof(Record, onClick);
    if constexpr (requires(Record & record) { record.nEnable; })
        fields.enable = offsetof(Record, nEnable);
    return fields;
}

// A row of the table from the functions of a kind, which take its public record.
template <typename Record, auto Config, auto Show, auto Drop, auto Wipe, auto ExecKeys>
constexpr UIKind uiRow(UITraits traits, bool (*accepts)(int, int) = nullptr)
{
    using Public = typename PublicOf<Record>::Type;
    Spot (*spot)(void*) = nullptr;
    if constexpr (requires(Record & record) { spotOf(record); })
        spot = [](void* record) { return spotOf(*static_cast<Record*>(record)); };
    bool (*click)(void*) = nullptr;
    if constexpr (requires(Record & record) { isClickable(record); })
        click = [](void* record) { return isClickable(*static_cast<Record*>(record)); };
    bool (*select)(void*, int) = nullptr;
    if constexpr (requires(Record & record) { selectElement(record, 0); })
        select = [](void* record, int nElement) {
            return selectElement(*static_cast<Record*>(record), nElement);
        };
    return {
        traits,
        fieldsOf<Public>(),
        Inner<Record>,
        sizeof(Record),
        [](GUI* gui, void* record) { return Config(gui, static_cast<Public*>(record)); },
        [](GUI* gui, void* record, int nFocus) { Show(gui, static_cast<Public*>(record), nFocus); },
        [](void* record) { Drop(*static_cast<Public*>(record)); },
        [](void* record) { return Wipe(static_cast<Public*>(record)); },
        ExecKeys,
        [](void* record) { return areaOf(*static_cast<Public*>(record)); },
        spot,
        click,
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

// What every kul<kind>_config begins with: the record, empty and with its defaults but for the
// colours given. Null when there is none or it is of another kind.
void* resetUIRecord(int nChain, int nRef, UI_TYPE type, int nFocus, int nUnfocus, int nDisable);

template <typename Record>
Record* resetUI(int nChain, int nRef, UI_TYPE type, int nFocus, int nUnfocus, int nDisable)
{
    return static_cast<Record*>(resetUIRecord(nChain, nRef, type, nFocus, nUnfocus, nDisable));
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
    colorsOf(record) = colorsOf(gui);
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

// The callbacks that the config calls of the kinds have in common.
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
