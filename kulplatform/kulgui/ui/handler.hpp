// SPDX-License-Identifier: MIT
//
// What every key handler stands on: taking the focus, waiting for a key, running callbacks, and
// noticing that it has to end. Callbacks and polls may do anything, so the record is looked up
// again after each; a handler that keeps a pointer across one is wrong.
//
//     kul::Handler<KULBUTTON> handler({nChain, nRef, BUTTON, 0, 0, 0});
//     handler.call(&KULBUTTON::onFocus);
//     while (const int nKey = handler.key()) { ... handler.show(); }
//     return handler.finish(&KULBUTTON::onUnfocus);
#ifndef KUL_UI_HANDLER_HPP
#define KUL_UI_HANDLER_HPP

#include <bit>
#include <cstddef>

#include "../gui/chain.hpp"
#include "../gui/screen.hpp"
#include "component.hpp"
#include "selection.hpp"

namespace kul {

// Lets the dialog's onKey see a key and exchange it. The key that is left, 0 for none.
int offerKey(int nChain, int nKey);

// Keeps the key that kulgui_getKey tells while another loop runs.
class KeyKeeper {
public:
    KeyKeeper();
    ~KeyKeeper();
    KeyKeeper(const KeyKeeper&) = delete;
    KeyKeeper& operator=(const KeyKeeper&) = delete;

private:
    int nKey_;
};

// A loop of a dialog while it runs, or a handler that a program runs by itself: the dialog stands
// on top. What callbacks ask is asked of the innermost loop, and of no other one: it begins without
// requests, and those of the loop around it are there again after it.
class Loop {
public:
    explicit Loop(int nChain);
    ~Loop();
    Loop(const Loop&) = delete;
    Loop& operator=(const Loop&) = delete;

private:
    int nChain_;
    bool own_; // not the handler of a loop, which shares that one's requests
    Requests outer_;
    KeyKeeper key_;
    OnTop onTop_;
};

// Runs a component as the handler of the loop that calls this.
int runHandler(const UIKind& kind, int nChain, int nRef);

// Spends one wait for a key, and the poll pass if it is due. The key, or 0; waits are counted, so
// that a loop without any can be noticed.
int waitOnce();
unsigned waits();

// Whether the dialog's loop was asked to end, or to go on with another component; forgets it.
bool takeLeaving(int nChain);
bool takeRefocus(int nChain);

class HandlerBase {
public:
    HandlerBase(const HandlerBase&) = delete;
    HandlerBase& operator=(const HandlerBase&) = delete;

    // What the current selection is to say; the kinds keep it up to date.
    CURRENT selection;

    // Stores the selection and draws what has changed; what a callback did is found out.
    void show(Changed changed = Changed::Component);

    // Runs any callback, NULL for none, unless the handler is over.
    void run(KULCALLBACK callback);

    // Ends the loop with this result.
    void end(int nResult);

    // Waits for a key. 0 when the handler is over, or when goOn, asked before each wait, says no.
    int key(bool (*goOn)(const GUI&, const void* record) = nullptr);

protected:
    explicit HandlerBase(const CURRENT& start);
    ~HandlerBase() = default;

    void* findRecord();

    // The callback in a field, which is where it is in the record: one code for all kinds. Null
    // when the handler is over with an error.
    KULCALLBACK callbackAt(std::ptrdiff_t nField);
    void callAt(std::ptrdiff_t nField) { run(callbackAt(nField)); }
    int finishAt(std::ptrdiff_t nField);

    bool isOver();

private:
    int nextKey();
    int navigate(int nKey);
    int followHotkey(int nKey);
    bool isTab(int nKey) const;
    bool mayGoOn();
    bool clickDefault();
    void cancel();
    void clickButton(int nRef, KULCALLBACK onClick);

    Pass pass_;
    Loop loop_;
    bool ended_ = false;
    int nResult_ = 0;
};

template <typename Record>
class Handler : public HandlerBase {
public:
    // Takes the focus: the selection names the component, and the dialog is drawn so.
    explicit Handler(const CURRENT& start) : HandlerBase(start) { show(); }

    // The component's record as it is now; null, and the handler over, when it is gone.
    Record* record() { return static_cast<Record*>(findRecord()); }

    // Runs the callback that the record holds in this field.
    template <typename Public>
    void call(KULCALLBACK Public::*callback)
    {
        callAt(std::bit_cast<std::ptrdiff_t>(callback));
    }

    // What the handler returns: runs onUnfocus, and lets requests of callbacks come before its own
    // result.
    template <typename Public>
    int finish(KULCALLBACK Public::*onUnfocus)
    {
        return finishAt(std::bit_cast<std::ptrdiff_t>(onUnfocus));
    }
};

// The same where the kinds' records have their callbacks at different places.
class CallsHandler : public HandlerBase {
public:
    CallsHandler(const CURRENT& start, std::ptrdiff_t nFirst) : HandlerBase(start), nFirst_(nFirst)
    {
        show();
    }

    void call(KULCALLBACK UICalls::*callback)
    {
        callAt(nFirst_ + std::bit_cast<std::ptrdiff_t>(callback));
    }

    int finish() { return finishAt(nFirst_ + std::bit_cast<std::ptrdiff_t>(&UICalls::onUnfocus)); }

private:
    std::ptrdiff_t nFirst_; // where the callbacks are in the record
};

// For HandlerBase::key: goes on while the component is shown.
template <typename Record>
bool isShown(const GUI&, const void* record)
{
    return static_cast<const Record*>(record)->nVisible == T;
}

} // namespace kul

#endif
