// SPDX-License-Identifier: MIT
//
// Waiting for keys, timers and descriptors together.
#ifndef KUL_GUI_WAITING_HPP
#define KUL_GUI_WAITING_HPP

namespace kul {

// Sleeps until there is a key, a pass is due, a signal comes, or a timer or a descriptor has had
// its callback; then what that changed is drawn. The key, or 0.
int awaitKey();

} // namespace kul

#endif
