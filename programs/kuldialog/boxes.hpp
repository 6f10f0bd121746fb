// SPDX-License-Identifier: MIT
//
// The table of boxes: what each one is called, by which names of the program, and its arguments.
#ifndef KULDIALOG_BOXES_HPP
#define KULDIALOG_BOXES_HPP

#include "buffer.hpp"
#include "settings.hpp"

namespace kuldialog {

struct Box {
    char name[13];
    unsigned char names; // of the program
    unsigned char shape; // of its arguments
    unsigned char kind;
    unsigned char variant;

    Answer run(const Call& call) const;
    bool answers() const; // in words, not by its status alone
};

// Variants of one kind each.
enum MessageKind : unsigned char { kMessage, kQuestion, kInformation };
enum EntryKind : unsigned char { kPlain, kSecret };
enum ListKind : unsigned char {
    kMenuList,
    kRenamedList,
    kCheckedList,
    kChosenList,
    kBuiltList,
    kTree
};
enum FormKind : unsigned char { kPlainForm, kSecretForm, kMixedForm };
enum GaugeKind : unsigned char { kReadGauge, kCountedGauge, kMixedGauge };
enum ViewKind : unsigned char { kWhole, kFollowed };
enum CommandKind : unsigned char { kPassedOn, kPiped, kStarted };
enum PickKind : unsigned char { kFiles, kDirectories };

// The kinds.
Answer runMessage(const Call& call);
Answer runEntry(const Call& call);
Answer runList(const Call& call);
Answer runForm(const Call& call);
Answer runEditor(const Call& call);
Answer runGauge(const Call& call);
Answer runView(const Call& call);
Answer runCommand(const Call& call);
Answer runPick(const Call& call);
Answer runRange(const Call& call);

// The box of that name for this program's name; null for none.
const Box* findBox(const char* szName);

// Whether a box's arguments are as many as they should be, and numbers where they should be. Says
// what is wrong.
bool checkArguments(const Box& box, const Call& call);

// How many tokens an item of a list has.
int itemSize(const Settings& settings, int nVariant);

// Adds a line for each.
void addBoxes(Buffer& text);

} // namespace kuldialog

#endif
