// SPDX-License-Identifier: MIT
#include "boxes.hpp"

#include <algorithm>
#include <cstring>

#include "options.hpp"
#include "text.hpp"

namespace kuldialog {

namespace {

enum ShapeName : unsigned char {
    kInitial,
    kItems,
    kMarked,
    kLevels,
    kFields,
    kTypedFields,
    kMeter,
    kPercent,
    kSeconds,
    kStates,
    kRange,
    kText, // the first of those without anything behind the size
    kFileName,
    kOutput,
    kCommand
};

// How many arguments a box has, -1 for items without end, and which of them are numbers.
struct Shape {
    signed char least;
    signed char most;
    signed char firstNumber; // from the end if negative
    signed char numbers;
};

constexpr Shape kShapes[] = {
    {3, 4, 1, 2},  {4, -1, 1, 3}, {4, -1, 1, 3}, {4, -1, 1, 3}, {4, -1, 1, 3},
    {4, -1, 1, 3}, {4, 4, 1, 3},  {3, 4, 1, 3},  {4, 4, 1, 3},  {4, -1, 1, 3},
    {6, 6, 1, 5},  {3, 3, 1, 2},  {3, 3, 1, 2},  {2, 3, -2, 2}, {3, 4, -2, 2},
};

// What they are called: before the size, a text up to kText, and behind it, nothing from there on.
constexpr char kBefore[] = "<text>\0<file>\0[<text>]\0[<text>] <command>";
constexpr char kBehind[] =
    "[<init>]\0<rows> <tag item>...\0<rows> <tag item on|off>...\0"
    "<rows> <tag item on|off depth>...\0<rows> <label y x item y x length limit>...\0"
    "<rows> <label y x item y x length limit type>...\0<percent>\0[<percent>]\0<seconds>\0"
    "<percent> <tag state>...\0<least> <most> <value>\0";

void addUsage(Buffer& text, const Box& box)
{
    const int nShape = box.shape;
    text.add("--").add(box.name).add(' ').add(textAt(kBefore, nShape - kText));
    text.add(" <height> <width>");
    if (nShape < kText)
        text.add(' ').add(textAt(kBehind, nShape));
}

constexpr unsigned char kOthers = kDialog | kOwn;
constexpr unsigned char kAll = kWhiptail | kOthers;

enum Kind : unsigned char {
    kEntries,
    kLists,
    kForms,
    kEditors,
    kPicks,
    kRanges,
    kMessages, // the first of those without an answer in words
    kGauges,
    kViews,
    kCommands
};

constexpr Box kBoxes[] = {
    {"buildlist", kOthers, kMarked, kLists, kBuiltList},
    {"checklist", kAll, kMarked, kLists, kCheckedList},
    {"dselect", kOthers, kFileName, kPicks, kDirectories},
    {"editbox", kOthers, kFileName, kEditors, 0},
    {"form", kOthers, kFields, kForms, kPlainForm},
    {"fselect", kOthers, kFileName, kPicks, kFiles},
    {"gauge", kWhiptail, kMeter, kGauges, kReadGauge},
    {"gauge", kOthers, kPercent, kGauges, kReadGauge},
    {"guage", kOthers, kPercent, kGauges, kReadGauge},
    {"infobox", kAll, kText, kMessages, kInformation},
    {"inputbox", kAll, kInitial, kEntries, kPlain},
    {"inputmenu", kOthers, kItems, kLists, kRenamedList},
    {"menu", kAll, kItems, kLists, kMenuList},
    {"mixedform", kOthers, kTypedFields, kForms, kMixedForm},
    {"mixedgauge", kOthers, kStates, kGauges, kMixedGauge},
    {"msgbox", kAll, kText, kMessages, kMessage},
    {"passwordbox", kAll, kInitial, kEntries, kSecret},
    {"passwordform", kOthers, kFields, kForms, kSecretForm},
    {"pause", kOthers, kSeconds, kGauges, kCountedGauge},
    {"prgbox", kOthers, kCommand, kCommands, kStarted},
    {"programbox", kOthers, kOutput, kCommands, kPiped},
    {"progressbox", kOthers, kOutput, kCommands, kPassedOn},
    {"radiolist", kAll, kMarked, kLists, kChosenList},
    {"rangebox", kOthers, kRange, kRanges, 0},
    {"tailbox", kOthers, kFileName, kViews, kFollowed},
    {"tailboxbg", kOthers, kFileName, kViews, kFollowed},
    {"textbox", kAll, kFileName, kViews, kWhole},
    {"treeview", kOthers, kLevels, kLists, kTree},
    {"yesno", kAll, kText, kMessages, kQuestion},
};

bool wrong(const char* szWhat, const Box& box)
{
    Buffer text;
    addUsage(text.add(szWhat).add(": "), box);
    complain("wrong arguments,", text.text());
    return false;
}

// Tokens of an item, 1 for boxes without any.
int groupSize(const Box& box, const Settings& settings)
{
    switch (box.shape) {
    case kItems:
    case kMarked:
    case kLevels:
        return itemSize(settings, box.variant);
    case kStates:
        return 2;
    case kFields:
        return 8;
    case kTypedFields:
        return 9;
    default:
        return 1;
    }
}

} // namespace

Answer Box::run(const Call& call) const
{
    // No table: each address in one would be put right at the start.
    switch (kind) {
    case kMessages:
        return runMessage(call);
    case kEntries:
        return runEntry(call);
    case kLists:
        return runList(call);
    case kForms:
        return runForm(call);
    case kEditors:
        return runEditor(call);
    case kGauges:
        return runGauge(call);
    case kViews:
        return runView(call);
    case kCommands:
        return runCommand(call);
    case kPicks:
        return runPick(call);
    default:
        return runRange(call);
    }
}

bool Box::answers() const
{
    return kind < kMessages;
}

int itemSize(const Settings& settings, int nVariant)
{
    constexpr int kTagAndItem = 2;
    const bool marked = nVariant >= kCheckedList;
    int nSize = kTagAndItem + marked + (nVariant == kTree) + settings.is(kItemHelp);
    // One of the programs wants the items of a menu in any case.
    if (settings.is(kNoItems) && !settings.is(kNoTags) && (name != kWhiptail || marked))
        --nSize;
    return nSize;
}

const Box* findBox(const char* szName)
{
    for (const Box& box : kBoxes) {
        if ((box.names & name) && std::strcmp(box.name, szName) == 0)
            return &box;
    }
    return nullptr;
}

bool checkArguments(const Box& box, const Call& call)
{
    const Shape& shape = kShapes[box.shape];
    const bool tooMany = shape.most > 0 && call.count > shape.most && name != kWhiptail;
    const bool severalAnswers =
        box.kind == kLists &&
        (box.variant == kCheckedList || box.variant == kBuiltList || box.variant == kTree);
    if (name == kDialog && call.settings.is(kSeparateOutput) && !severalAnswers)
        return wrong("not with --separate-output", box);
    if (call.count < shape.least || tooMany)
        return wrong("too few or too many", box);
    const int nFirst = shape.firstNumber < 0 ? call.count + shape.firstNumber : shape.firstNumber;
    for (int i = nFirst; i < nFirst + shape.numbers && i < call.count; ++i) {
        int nNumber;
        if (!readNumber(call.arguments[i], nNumber))
            return wrong("not a number", box);
    }
    if (shape.most > 0)
        return true;
    const int nItems = call.count - shape.least;
    if (nItems % groupSize(box, call.settings) != 0)
        return wrong("an item is not whole", box);
    // A list that can be empty is one of a single program's, of a single kind.
    const bool mayBeEmpty = name == kWhiptail && box.shape == kMarked;
    return nItems > 0 || mayBeEmpty || box.shape == kStates ? true : wrong("no items", box);
}

void addBoxes(Buffer& text)
{
    for (const Box& box : kBoxes) {
        if (!(box.names & name))
            continue;
        addUsage(text.add("  "), box);
        text.add('\n');
    }
}

} // namespace kuldialog
