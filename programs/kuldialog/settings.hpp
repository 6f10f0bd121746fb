// SPDX-License-Identifier: MIT
//
// What the command line asks for: the name that the program was called by, the common options and
// the arguments of one box.
#ifndef KULDIALOG_SETTINGS_HPP
#define KULDIALOG_SETTINGS_HPP

namespace kuldialog {

// By its name the program takes another one's options, defaults and manners.
enum Name : unsigned char { kWhiptail = 1, kDialog = 2, kOwn = 4 };

enum Flag : unsigned char {
    kIgnoredFlag,
    kAsciiLines,
    kClear,
    kColors,
    kCrWrap,
    kDefaultNo,
    kExtraButton,
    kHelpButton,
    kHelpStatus,
    kHelpTags,
    kItemHelp,
    kLastKey,
    kNoCancel,
    kNoCollapse,
    kNoHotList,
    kNoItems,
    kNoNlExpand,
    kNoOk,
    kNoTags,
    kPrintMaxsize,
    kPrintSize,
    kPrintVersion,
    kQuoted,
    kReorder,
    kSeparateOutput,
    kSingleQuoted,
    kToStderr,
    kToStdout,
    kTopLeft,
    kTrim,
    kVisitItems,
    kFlags
};

enum Text : unsigned char {
    kIgnoredText,
    kBacktitle,
    kCancelLabel,
    kColumnSeparator,
    kDefaultButton,
    kDefaultItem,
    kExitLabel,
    kExtraLabel,
    kHelpFile,
    kHelpLabel,
    kHline,
    kNewFile,
    kNoLabel,
    kOkLabel,
    kOutputSeparator,
    kSeparateWidget,
    kTitle,
    kYesLabel,
    kTexts
};

enum Number : unsigned char {
    kIgnoredNumber,
    kBeginY,
    kBeginX,
    kMaxInput,
    kOutputFd,
    kSleep,
    kTimeLimit,
    kNumbers
};

constexpr int kNone = -1; // a number that was not given

struct Settings {
    bool flags[kFlags];
    const char* texts[kTexts]; // null where not given
    int numbers[kNumbers];

    bool is(Flag flag) const { return flags[flag]; }
    const char* text(Text which, const char* otherwise) const
    {
        return texts[which] ? texts[which] : otherwise;
    }
};

// How a box ends. Those up to kTimedOut are their exit status as well.
enum Answer : signed char {
    kAccepted,
    kCancelled,
    kHelped,
    kExtra,
    kHelpedItem,
    kTimedOut,
    kEscaped,
    kFailed,
    kAnswers
};

// One box of the command line.
struct Call {
    const Settings& settings;
    char** arguments; // from its text on
    int count;
    int variant; // of its kind; see the table of boxes

    int number(int nPlace) const;
    const char* argument(int nPlace) const { return nPlace < count ? arguments[nPlace] : ""; }
};

inline Name name = kOwn;
inline const char* program = "kuldialog";

} // namespace kuldialog

#endif
