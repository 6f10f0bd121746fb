// SPDX-License-Identifier: MIT
//
// Lists to choose from. In all of them Enter accepts; Space sets the markers.
#include <algorithm>
#include <climits>

#include "frame.hpp"

namespace {

using kulready::BODY;
using kulready::Frame;

struct List {
    const char* const* items;
    int nItems;
    int nSelected;
    int* checked; // of a check list
};

// What the three lists differ in.
struct ListKind {
    int nFrame;   // rows and columns around the items
    int nMarkers; // columns in front of them
    void (*create)(const Frame& frame);
    int (*add)(int nChain, const char* szItem, bool checked);
    int (*result)(int nChain, const List& list);
};

void createMenu(const Frame& frame)
{
    kuldynmenu_create(frame.chain(), BODY);
    kuldynmenu_config(frame.chain(), BODY, KUL_KEEP, KUL_KEEP, KUL_KEEP, frame.bodyX(),
                      frame.bodyY(), frame.bodyWidth() - 2, frame.bodyHeight() - 2, nullptr,
                      nullptr, nullptr, nullptr);
}

void createChecks(const Frame& frame)
{
    kulcheckbox_create(frame.chain(), BODY);
    kulcheckbox_config(frame.chain(), BODY, KUL_KEEP, KUL_KEEP, KUL_KEEP, frame.bodyX(),
                       frame.bodyY(), frame.bodyWidth(), frame.bodyHeight(), NOBORDER, nullptr,
                       nullptr, nullptr, nullptr);
}

void createOptions(const Frame& frame)
{
    kuloptions_create(frame.chain(), BODY);
    kuloptions_config(frame.chain(), BODY, KUL_KEEP, KUL_KEEP, KUL_KEEP, frame.bodyX(),
                      frame.bodyY(), frame.bodyWidth(), frame.bodyHeight(), NOBORDER, -1, 0,
                      nullptr, nullptr, nullptr, nullptr);
}

int cursorOf(int nChain)
{
    const UI* ui = GetUIComponentByRef(nChain, BODY);
    if (!ui || !ui->Pointer)
        return -1;
    return ui->nType == OPTIONS ? static_cast<KULOPTIONS*>(ui->Pointer)->nPosition
                                : static_cast<KULDYNMENU*>(ui->Pointer)->nSelect;
}

constexpr ListKind kMenu = {2, 0, createMenu,
                            [](int nChain, const char* szItem, bool) {
                                return kuldynmenu_addElement(nChain, BODY, szItem, nullptr, nullptr,
                                                             1);
                            },
                            [](int nChain, const List&) { return cursorOf(nChain); }};

constexpr ListKind kChecks = {0, 5, createChecks,
                              [](int nChain, const char* szItem, bool checked) {
                                  return kulcheckbox_addElement(
                                      nChain, BODY, szItem, checked ? 1 : 0, 1, nullptr, nullptr);
                              },
                              [](int nChain, const List& list) {
                                  for (int i = 0; list.checked && i < list.nItems; ++i)
                                      list.checked[i] = kulcheckbox_isChecked(nChain, BODY, i) == 1;
                                  return 0;
                              }};

constexpr ListKind kOptions = {0, 5, createOptions,
                               [](int nChain, const char* szItem, bool) {
                                   return kuloptions_addElement(nChain, BODY, szItem, 1, nullptr,
                                                                nullptr);
                               },
                               [](int nChain, const List&) {
                                   const int nChosen = kuloptions_getChosen(nChain, BODY);
                                   return nChosen >= 0 ? nChosen : cursorOf(nChain);
                               }};

int runList(Frame& frame, const List& list, const ListKind& kind)
{
    int nWidest = 0;
    for (int i = 0; i < list.nItems; ++i)
        nWidest = std::max(nWidest, kulready::columns(list.items[i] ? list.items[i] : ""));
    frame.want(kulready::plus(list.nItems, kind.nFrame), std::min(list.nItems, 2) + kind.nFrame,
               kulready::plus(nWidest, kind.nFrame + kind.nMarkers));
    frame.addButtons(kulready::word(KULWORD_OK), kulready::word(KULWORD_CANCEL));
    if (!frame.open())
        return kulready::kUnusable;
    kind.create(frame);
    for (int i = 0; i < list.nItems; ++i) {
        if (kind.add(frame.chain(), list.items[i] ? list.items[i] : "",
                     list.checked && list.checked[i] != 0) != 0)
            return kulready::kUnusable; // without memory
    }
    kulgui_select(frame.chain(), BODY, list.nSelected);
    kuloptions_choose(frame.chain(), BODY, list.nSelected);
    if (list.nItems == 0)
        frame.focusButtons();
    const int nResult = frame.run();
    if (nResult != 0)
        return nResult == 1 ? kulready::kCancelled : nResult;
    return list.nItems > 0 ? kind.result(frame.chain(), list) : kulready::kCancelled;
}

int runList(const char* szTitle, const char* szText, const List& list, const ListKind& kind)
{
    return kulready::runReady(szTitle, szText,
                              [&](Frame& frame) { return runList(frame, list, kind); });
}

int itemCount(const char* const* items, int nItems)
{
    return items ? std::max(nItems, 0) : 0;
}

} // namespace

int kuldialog_choose(const char* szTitle, const char* szText, const char* const szItems[],
                     int nItems, int nSelected)
{
    return runList(szTitle, szText, {szItems, itemCount(szItems, nItems), nSelected, nullptr},
                   kMenu);
}

int kuldialog_check(const char* szTitle, const char* szText, const char* const szItems[],
                    int nChecked[], int nItems)
{
    return runList(szTitle, szText, {szItems, itemCount(szItems, nItems), 0, nChecked}, kChecks);
}

int kuldialog_option(const char* szTitle, const char* szText, const char* const szItems[],
                     int nItems, int nSelected)
{
    return runList(szTitle, szText, {szItems, itemCount(szItems, nItems), nSelected, nullptr},
                   kOptions);
}
