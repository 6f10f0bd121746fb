// SPDX-License-Identifier: MIT
//
// What signals do while the terminal is open. Only those that the program has left to their
// defaults are taken; the others are its own business.
#ifndef KUL_GUI_SIGNALS_HPP
#define KUL_GUI_SIGNALS_HPP

#include <csignal>

namespace kul {

// Takes those for this process, before curses takes some for itself; and gives them back.
void takeSignals();
void giveBackSignals();

// While it lives, handlers wait: all, or those that stop and continue the process. What is done
// meanwhile is whole before one of them looks. All of them wait only for what is over soon.
class HandlersWait {
public:
    enum class Which { OfStops, All };

    explicit HandlersWait(Which which);
    ~HandlersWait();
    HandlersWait(const HandlersWait&) = delete;
    HandlersWait& operator=(const HandlersWait&) = delete;

private:
    sigset_t before_;
};

// Whether this process took them last. A child that was forked has its parent's handlers, but the
// terminal is not the child's to give back.
bool isOwner();

// Whether the process was stopped and continued since this was last taken: the terminal shows
// something else now.
bool resumed();
bool takeResumed();

// Whether the terminal was told to have another size; forgets it.
bool takeSizeSignal();

// A descriptor of a poll() to come, until there is none (null). News of the two since the last one
// was set makes it a number that is never open, so that poll() returns although the signal came
// before it.
void setAlarm(int* descriptor);

} // namespace kul

#endif
