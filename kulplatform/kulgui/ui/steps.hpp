// SPDX-License-Identifier: MIT
//
// Where a key takes the selection of a list in edition 2, whatever the list is made of: along the
// elements and round, by pages, to the ends, and to the next element that begins with a letter.
// Disabled elements are passed over.
#ifndef KUL_UI_STEPS_HPP
#define KUL_UI_STEPS_HPP

#include "../gui/edition.hpp"
#include "../kulgui.h"
#include "element_list.hpp"

namespace kul {

struct StepKeys {
    int nBack;
    int nForward;
    int nPage; // elements that PageUp and PageDown go over
};

// What of an element matters here. One that is not there cannot be selected.
struct Step {
    const char* szText;
    bool enabled;
};

// The elements of a list by index, of any kind: find gives one.
struct Steps {
    void* list;
    int nCount;
    Step (*find)(void* list, int nIndex);

    Step at(int nIndex) const { return find(list, nIndex); }
};

inline Step stepOf(ElementShape shape, AnyElement* element)
{
    return element ? Step{shape.textOf(element), shape.isEnabled(element)} : Step{nullptr, false};
}

// Whether Enter does something to an element: edition 1 asks nothing.
inline bool isUsable(const auto& element)
{
    return !isEdition2() || element.nEnable == 1;
}

// The element that a selection stands for: itself where it can be selected, else one near it. In
// edition 1 a selection may be anywhere.
int settled(int nSelect, const Steps& steps);

// Where a key takes a selection; where it is for other keys, and where nothing else can be
// selected.
int stepped(int nSelect, int nKey, const StepKeys& keys, const Steps& steps);

} // namespace kul

#endif
