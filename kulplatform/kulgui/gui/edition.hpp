// SPDX-License-Identifier: MIT
//
// Which edition of the library's manners runs. Edition 1 is the system as it was first defined;
// edition 2 is what people expect today. It is one decision for the whole program. What differs is
// asked for here by those in whose room the behaviour lives, and nowhere in the middle of drawing:
// a search for isEdition2 finds all of it.
#ifndef KUL_GUI_EDITION_HPP
#define KUL_GUI_EDITION_HPP

namespace kul {

inline int nEdition = 1;

inline bool isEdition2()
{
    return nEdition == 2;
}

} // namespace kul

#endif
