/* SPDX-License-Identifier: MIT
 *
 * kulgui: dialogs on a character terminal, for small Linux devices.
 *
 * A program describes its dialogs with the calls below, hands over control with kulgui_exec and
 * gets its callbacks run. This header is the manual:
 *
 *     Rules           1 to 19, below: what holds for every call stands here once
 *     Names           Version, Constants, Keys, Results
 *     Dialogs         Dialogs, Edition 2, What the user is at
 *     Ready dialogs   a message, a question, a list, a form and more with one call each
 *     Components      Buttons, Menus, Dynamic menus, Description menus, Toolbars, File viewers,
 *                     Check box lists, Option lists, Text boxes
 *     Items           Status bars, Scroll bars and progress bars, Description fields, Boxes and
 *                     lines, Labels
 *     Letters         what a text takes on the screen
 *     The inside      Records, and the calls that all of that is made of
 *
 * Programs need the kul... calls, and of the others NCursesEnv and the GetCurrent... calls of "What
 * the user is at". What stands under "The inside" is for those that draw or build something of
 * their own. A program that defines KULGUI_NO_INSIDE before it includes this header does not see
 * it, nor curses.h and panel.h: names like Fill, Poll, BOX or LINES are its own then. Linked with
 * libkulgui.a it may define functions of those names even if it sees them.
 *
 *  1. References. A dialog lives in a chain and is named by the chain's number (nChain); what is
 *     in the dialog is named by that number and one of its own (nRef), unique in the dialog. The
 *     program chooses both. Use 1 and up for nRef: ComponentTypeByRef cannot tell 0 from "none".
 *  2. Truth is 0. T is 0 and F is -1, and visibility, borders and flags follow: 0 is shown, -1 is
 *     hidden. Do not test them as C truth values; arguments whose names begin with b take T or F,
 *     and 1 is not T. What marks elements is a number: nEnable, nSelect and kulcheckbox_isChecked
 *     have 1 for yes.
 *  3. Results. KUL_OK, 0, is success and a negative number an error, where a call says nothing
 *     else; the chapter "Results" has the names. The calls print nothing, set no errno and never
 *     end the program. Unknown references, NULL and numbers out of range get the documented code or
 *     do nothing. One thing is left to curses: it ends the process where it finds no memory while
 *     it opens the terminal. NCursesEnv sees first that enough can be had, and returns KUL_ERROR if
 *     not; what other threads take meanwhile it cannot know.
 *  4. Keep value. Where a call says so, the argument KUL_KEEP leaves a setting at its default.
 *  5. Places. nX counts columns and nY rows from 0 at the top left corner of the dialog's window,
 *     frame included; only a dialog's own nX and nY count from the corner of the screen. nWidth
 *     and nHeight are columns and rows. What lies outside of the window is not drawn. In edition 1
 *     a text that is not wrapped (a caption, an element of a menu, a field of a status bar) and
 *     reaches beyond the right edge goes on at the start of the next row.
 *     A dialog lies where it was configured as long as all of it is on the screen there, else it is
 *     moved in; its record says where. One that is larger than the screen is shown in part: the
 *     part follows the user, and an arrow or page key that changes nothing moves it. When the
 *     screen gets another size all dialogs find their places anew, and keep their own sizes.
 *  6. Colours. A colour set is one of the 56 pairs of COLORSET, foreground_background. Fields and
 *     arguments are ints, so that KUL_KEEP and a plain number can be given as well.
 *  7. Ownership. The library owns every record, window and panel that it makes and frees them
 *     with their dialog. Titles, the language file's name and callbacks are the program's: they
 *     are not copied and must outlive the dialog. Texts of components are copied. A const char *
 *     argument is only read; a char * result belongs to the library, do not free it.
 *  8. Callbacks take nothing and return nothing; NULL means none. They run on the caller's thread
 *     while a dialog runs, and may call everything here: change, hide or destroy the dialog that
 *     runs them, or run another one. GetCurrentSelection says what the user was at.
 *  9. One thread. All calls come from the same thread.
 * 10. The terminal. kulgui_exec opens it; a program that wants to draw before that calls
 *     NCursesEnv(1) first. It is given back as it was found by kulgui_destroyAll, by exit, and by
 *     a signal that ends the program, but not by KILL, nor by _exit; kulgui_destroyAll leaves
 *     standard input's status flags at O_APPEND.
 * 11. Texts are in the encoding of the program's locale. A program calls setlocale(LC_ALL, "") from
 *     locale.h before anything else: without that every text is taken for ASCII, other letters are
 *     rubbish, and so are frames on terminals in UTF-8 that know no other lines than Unicode's. In
 *     edition 2 texts are wrapped, centred and cut by columns: an East Asian letter takes two, a
 *     combining mark none, and a letter that would be cut in half is left out. Where this header
 *     counts the characters of a text, these are columns; edition 1 and a program without a locale
 *     count bytes. What cannot be shown (bytes that are no letter of the locale, C1, a mark without
 *     a letter before it, marks that turn the direction of writing) is one '?' each; what has no
 *     picture (a soft hyphen, joiners, variation selectors, blanks of no width) is left out. No
 *     text does anything to the terminal.
 * 12. Keys. Which keys arrive is up to the terminal; the chapter "Keys" has a table. What can be
 *     done should be possible with the arrows, Tab, Enter and Escape alone: those are everywhere.
 * 13. Ctrl-C and its like. The open terminal is in raw mode: Ctrl-C, Ctrl-Z and Ctrl-\ are the keys
 *     3, 26 and 28, which the components do nothing with, and send no signal; kulgui_setOnKey can
 *     give them a meaning (kulgui_leave, or raise after kulgui_suspend). Signals that come from
 *     elsewhere do what they did before.
 * 14. Flow control. Ctrl-S and Ctrl-Q are the keys 19 and 17, and stop nothing. Where the line has
 *     wires for that (stty crtscts) they keep working: a write waits as long as they say so. A
 *     terminal that sends XOFF is not heard while a dialog runs; give it a rate that it can follow.
 * 15. Other programs. What writes to the terminal by itself spoils the screen: call kulgui_run in
 *     place of system, kuldialog_run to show what a command writes, and kulgui_suspend and
 *     kulgui_resume around anything else. While the terminal is open standard input does not block,
 *     also for those that inherit it: give a command another one. A child of fork calls nothing
 *     here and goes on with exec or _exit; exit, and a signal that ends it, leave the terminal to
 *     its parent. SIGCHLD is the program's.
 * 16. Sizes. A window tells of its new size by SIGWINCH, which is taken unless the program has a
 *     handler of its own; besides, and on a serial line alone, the size is asked once a second.
 *     LINES and COLUMNS of the environment come before what the terminal says, and 24 rows of 80
 *     columns behind it. Rule 5 says what happens to the dialogs; kulgui_setOnResize tells the
 *     program.
 * 17. Editions. kulgui_setEdition(2) as the first call gives a program today's manners; write new
 *     ones so. Edition 1 is for programs that were made for it: it stays as it is, bytes, blinks
 *     and all. An edition is the whole program's, and every call works in both.
 * 18. Records. A field that is marked rw is free to write, from callbacks and between calls; what
 *     is written shows when the component is drawn next. One that is marked ro is read-only: the
 *     library keeps it in step with others. Use the call that changes it. Records may grow at their
 *     end: do not make, copy or measure one that the library hands out.
 * 19. Compatibility. What is built with version 1.0.0 or a later one runs with every later one
 * below 2.0.0 without being built anew, and its dialogs look and answer as they did: no call,
 * record field, number or name goes or gets another meaning, in both editions and both halves of
 * this header. New calls, names and fields at the end of records may come. CURRENT, CONTROL, DLG
 * and KULFIELD, which programs make, keep their size. The shared library is libkulgui.so.0: that
 *     number counts interfaces that older programs cannot run with, and is not the version's.
 */
#ifndef KULGUI_H
#define KULGUI_H

#ifndef KULGUI_NO_INSIDE
#include <curses.h>
#include <panel.h>
#endif

#if defined(__GNUC__)
#define KULGUI_API __attribute__((visibility("default")))
#else
#define KULGUI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Version -------------------------------------------------------------------------------- */

/** The version of this header, and as a number: major * 10000 + minor * 100 + patch. */
#define KULGUI_VERSION "1.0.0"
#define KULGUI_VERSION_NUMBER 10000

/** The KULGUI_VERSION of the library that runs. */
KULGUI_API const char* kulgui_version(void);

/* ---- Constants ------------------------------------------------------------------------------ */

/** Keep the default (numeric settings), or: choose a number (kulgui_create). */
#define KUL_KEEP (-11111)

/** As nRef of kulgui_setUser and kulgui_getUser: the dialog itself. */
#define KUL_DIALOG (-11113)

/** In place of a dialog's nX or nY: in the middle of the screen, whatever its size is. */
#define KUL_CENTER (-11112)

/** Every pair of two different curses colours; also the number of the curses colour pair. Once a
 * dialog has been shown GREEN_YELLOW is black on black, the colour of shadows. */
typedef enum colorset {
    /* clang-format off */
    BLACK_RED, BLACK_GREEN, BLACK_YELLOW, BLACK_BLUE, BLACK_MAGENTA, BLACK_CYAN, BLACK_WHITE,
    RED_BLACK, RED_GREEN, RED_YELLOW, RED_BLUE, RED_MAGENTA, RED_CYAN, RED_WHITE,
    GREEN_BLACK, GREEN_RED, GREEN_YELLOW, GREEN_BLUE, GREEN_MAGENTA, GREEN_CYAN, GREEN_WHITE,
    YELLOW_BLACK, YELLOW_RED, YELLOW_GREEN, YELLOW_BLUE, YELLOW_MAGENTA, YELLOW_CYAN, YELLOW_WHITE,
    BLUE_BLACK, BLUE_RED, BLUE_GREEN, BLUE_YELLOW, BLUE_MAGENTA, BLUE_CYAN, BLUE_WHITE,
    MAGENTA_BLACK, MAGENTA_RED, MAGENTA_GREEN, MAGENTA_YELLOW, MAGENTA_BLUE, MAGENTA_CYAN,
    MAGENTA_WHITE,
    CYAN_BLACK, CYAN_RED, CYAN_GREEN, CYAN_YELLOW, CYAN_BLUE, CYAN_MAGENTA, CYAN_WHITE,
    WHITE_BLACK, WHITE_RED, WHITE_GREEN, WHITE_YELLOW, WHITE_BLUE, WHITE_MAGENTA, WHITE_CYAN
    /* clang-format on */
} COLORSET;

typedef enum borders { NOBORDER = -1, BORDER = 0 } BORDERS;
typedef enum lineends { NOENDS = -1, ENDS = 0 } LINEENDS;
typedef enum orientation { VERTICAL = 0, LATERAL = 1 } ORIENTATION;
typedef enum align { LEFT = -1, CENTER = 0, RIGHT = 1 } ALIGN;
typedef enum boolean { F = -1, T = 0 } BOOLEAN;

/** Kinds of components that take the focus. */
typedef enum ui_type {
    MENU,
    DYNMENU,
    DESCRMENU,
    BUTTON,
    TOOLBAR,
    CHECKBOX,
    OPTIONS,
    FILEVIEW,
    TEXTBOX
} UI_TYPE;

/** A callback. */
typedef void (*KULCALLBACK)(void);

/* ---- Keys ----------------------------------------------------------------------------------- *
 *
 *     key                          edition 1 knows it from      edition 2
 *
 *     Tab, Enter, Escape, arrows   every terminal               every terminal
 *     Backspace, byte 127          most; byte 8 of others is 8  both are KS_BACKSPACE
 *     Insert, Delete, PageUp,      linux, xterm and their like  all that have them
 *         PageDown, F6 to F12
 *     Home, End                    xterm, not linux             all that have them
 *     F1                           hardly any                   all that have it
 *     F2 to F5                     linux alone                  all that have them
 *     Shift, Control, Alt and      none                         as the key itself; KS_BACKTAB,
 *         a key                                                 KS_ALT plus a letter or digit
 *     letters beyond ASCII         one key for each byte        KUL_CHARACTER plus the code
 *
 * linux is the console of a PC or a board, xterm stands for what runs in a window. A vt100 has the
 * arrows and F1 to F4 and none of the other ones; a serial line has those of the terminal program
 * at its other end. Edition 2 knows what the terminal's description says, and besides it the common
 * sequences of all, whatever TERM says. Escape begins such a sequence: alone it is a key once 25 ms
 * have passed with nothing behind it.
 */

/** Keys that have a name; other keys are their byte, as a signed char. */
enum kul_keys {
    KS_TAB = 9,
    KS_ENTER = 13,
    KS_ESC = 27,
    KS_SPACE = 32,
    KS_BACKSPACE = 127,
    KS_F1 = 1000,
    KS_F2,
    KS_F3,
    KS_F4,
    KS_F5,
    KS_F6,
    KS_F7,
    KS_F8,
    KS_F9,
    KS_F10,
    KS_F11,
    KS_F12,
    KS_INSERT,
    KS_DELETE,
    KS_HOME,
    KS_PAGEUP,
    KS_PAGEDOWN,
    KS_END,
    KS_LEFT,
    KS_UP,
    KS_DOWN,
    KS_RIGHT,
    KS_BACKTAB /* from here on edition 2 only */
};

/** Edition 2: Alt with a letter or digit is KS_ALT plus that character. */
#define KS_ALT 2000

/** Edition 2: a character above 127 is KUL_CHARACTER plus its code, as mbrtowc gives it. */
#define KUL_CHARACTER 0x1000000

/* ---- Results -------------------------------------------------------------------------------- *
 *
 * What calls return; each says which of these and when. Test for success with KUL_OK, or for an
 * error with "below 0": several names share a number, and KUL_LEFT is none.
 */

/** Success. */
#define KUL_OK 0

/** Something that was named does not exist, is not valid, or there is no memory; of calls that
 * return an index or a number: there is none. */
#define KUL_ERROR (-1)

/** What was taken out of a list was the only element. */
#define KUL_EMPTIED 1

/** Of key handlers: the focus goes to the next component, or to the previous one. */
#define KUL_NEXT 10
#define KUL_PREVIOUS (-10)

/** Of kulgui_exec and key handlers: the dialog was left by kulgui_leave. */
#define KUL_LEFT 123456

/** The same: the dialog was left by Escape. Edition 2 only. */
#define KUL_CANCELLED 123457

/** Of kulgui_exec, key handlers and ready dialogs: what ran was destroyed, or the line was hung
 * up. */
#define KUL_GONE (-10000)

/** Of ready dialogs: the user left it by Escape or Cancel. */
#define KUL_DISMISSED (-1)

/** Of ready dialogs: no usable terminal, no memory, or a file that cannot be opened. */
#define KUL_UNUSABLE (-2)

/** The number of the chain is in use. */
#define KUL_TAKEN (-10000)

/** The nRef of the component or item is in use; each kind has a number of its own. */
#define KUL_TAKEN_STATBAR (-10012)
#define KUL_TAKEN_DESCRFIELD (-10012)
#define KUL_TAKEN_BOX (-10013)
#define KUL_TAKEN_LINE (-10014)
#define KUL_TAKEN_LABEL (-10015)
#define KUL_TAKEN_SCROLLBAR (-10016)
#define KUL_TAKEN_PROGBAR (-10017)
#define KUL_TAKEN_MENU (-10018)
#define KUL_TAKEN_DESCRMENU (-10020)
#define KUL_TAKEN_DYNMENU (-10021)
#define KUL_TAKEN_BUTTON (-10022)
#define KUL_TAKEN_CHECKBOX (-10023)
#define KUL_TAKEN_OPTIONS (-10024)
#define KUL_TAKEN_FILEVIEW (-10025)
#define KUL_TAKEN_TEXTBOX (-10026)
#define KUL_TAKEN_TOOLBAR (-10027)

/** There is no such chain; or the chain has no dialog yet. */
#define KUL_NO_CHAIN (-10009)
#define KUL_NO_DIALOG (-10010)

/** No memory for a dialog, an item or a component. */
#define KUL_NO_MEMORY (-10007)
#define KUL_NO_MEMORY_DI (-10011)
#define KUL_NO_MEMORY_UI (-10019)

/** The file cannot be opened or read, or is no regular file. */
#define KUL_UNREADABLE (-10028)

/** Of bars: the item has no record. */
#define KUL_NO_RECORD (-10028)

/** Of kulgui_configPrime: the program has forbidden it; no primary chain or no memory. */
#define KUL_PRIMARY_BARRED (-10001)
#define KUL_PRIMARY_FAILED (-10006)

/** Of the inside: no primary chain; one without dialog; a chain that has a dialog already. */
#define KUL_NO_PRIMARY (-10002)
#define KUL_NO_PRIMARY_DIALOG (-10004)
#define KUL_HAS_DIALOG (-10008)

/* ---- Dialogs -------------------------------------------------------------------------------- *
 *
 * The first chain is the primary one: it covers the whole screen and lies below all others.
 *
 *     kulgui_create(0);                  the primary chain
 *     kulgui_configPrime(0, ...);        its dialog
 *     kulgui_create(1);                  a chain for a dialog
 *     kulgui_config(1, ...);             the dialog
 *     kulbutton_create(1, 1);            what is in it
 *     kulbutton_config(1, 1, ...);
 *     kulgui_exec(1);                    runs until it is left
 *     kulgui_destroyAll();               gives the terminal back
 */

/** Chooses the manners of the whole program: 1, the start, or 2, what people expect today. To be
 * called before the terminal is opened; between dialogs it works as well. Returns KUL_OK, KUL_ERROR
 * for any other number, which changes nothing. */
KULGUI_API int kulgui_setEdition(int nEdition);

/** The edition that runs, 1 or 2. */
KULGUI_API int kulgui_getEdition(void);

/** Columns and rows of the screen as it is now; 0 before the terminal was first opened. */
KULGUI_API int kulgui_getColumns(void);
KULGUI_API int kulgui_getRows(void);

/** Makes a chain numbered nChain. With KUL_KEEP the first chain becomes 0; a later one gets the
 * first number above the count of dialogs that is already in use, wrapping round, so name later
 * chains yourself. Returns the number, KUL_TAKEN if it is in use, KUL_ERROR without memory. */
KULGUI_API int kulgui_create(int nChain);

/** Gives the primary chain its full-screen dialog and the number nChain, in place of what it had.
 * Colour sets: KUL_KEEP takes BLACK_WHITE, CYAN_BLUE, BLUE_WHITE, CYAN_WHITE in edition 1. szTitle
 * stands in the top row. The callbacks are as those of kulgui_config. szFilePath is kept as the
 * language file's name. Returns KUL_OK, KUL_PRIMARY_BARRED when a program has forbidden it (the
 * inside), KUL_PRIMARY_FAILED without a primary chain or memory. */
KULGUI_API int kulgui_configPrime(int nChain, int nColorStandard, int nColorFocus,
                                  int nColorUnfocus, int nColorDisable, const char* szTitle,
                                  KULCALLBACK onFocus, KULCALLBACK onPoll, KULCALLBACK onUnfocus,
                                  KULCALLBACK onDestroy, const char* szFilePath);

/** Gives chain nChain its dialog, not yet shown; one that is there already starts anew, without
 * components, but keeps its tabbing and the number of what has the focus (see kulgui_setFocus).
 * Colour sets: KUL_KEEP takes RED_BLUE, RED_MAGENTA, RED_WHITE, RED_CYAN in edition 1; the chapter
 * "Edition 2" has those of the other one. nBorder is a BORDERS. nX and nY are the screen's column
 * and row of the top left corner, nWidth and nHeight the size with the frame; the shadow adds one
 * of each. KUL_KEEP leaves nBorder at BORDER and a place or size as it was, 0 at first. szTitle
 * stands in the middle of the frame; a blank at either end keeps it off the line. onPoll runs about
 * once a second while the dialog is shown and some dialog waits for a key; the other three are kept
 * and never run. The primary chain must have its dialog first: without it nothing is set.
 * szFilePath is not used. Returns KUL_OK, KUL_NO_CHAIN for an unknown chain, KUL_NO_MEMORY without
 * memory. */
KULGUI_API int kulgui_config(int nChain, int nColorStandard, int nColorFocus, int nColorUnfocus,
                             int nColorDisable, const char* szTitle, int nBorder, int nX, int nY,
                             int nWidth, int nHeight, KULCALLBACK onFocus, KULCALLBACK onPoll,
                             KULCALLBACK onUnfocus, KULCALLBACK onDestroy, const char* szFilePath);

/** Moves a dialog with what is in it, and gives it another size; its items and components stay
 * where they are in it. nX, nY, nWidth, nHeight as for kulgui_config, KUL_KEEP for what it has.
 * Returns KUL_OK, KUL_ERROR for an unknown chain, one without dialog or the primary one. */
KULGUI_API int kulgui_place(int nChain, int nX, int nY, int nWidth, int nHeight);

/** Has onResize run when the screen has got another size, after the dialogs were fitted into it and
 * before that is shown; NULL for none. It runs whether the dialog is shown or not, from the wait
 * for a key. Returns KUL_OK, KUL_ERROR for an unknown chain or one without dialog. */
KULGUI_API int kulgui_setOnResize(int nChain, KULCALLBACK onResize);

/** Opens the terminal if needed, shows the dialog if it never was, and runs it: the component in
 * focus gets the keys until the dialog is left. May be called from a callback. Returns KUL_LEFT
 * after kulgui_leave; in edition 2 KUL_CANCELLED after Escape; KUL_GONE when the dialog has no
 * component to focus, its component or itself was destroyed, or the line was hung up; KUL_ERROR for
 * an unknown chain, one without dialog, without a usable terminal or memory to show it. The primary
 * dialog is not drawn first: kulgui_show does that. What changes at its end is shown with the next
 * call that draws or waits, so that a program that ends does not paint what is gone at once. */
KULGUI_API int kulgui_exec(int nChain);

/** Shows a dialog with all that is in it; the terminal must be open. Always KUL_OK. */
KULGUI_API int kulgui_show(int nChain);

/** Takes a dialog off the screen; it keeps what is in it. Always KUL_OK. */
KULGUI_API int kulgui_hide(int nChain);

/** Frees a chain with its dialog, windows and components, also while it runs: its kulgui_exec then
 * returns KUL_GONE. What lay below is shown with the next call that draws or waits; kulgui_hide
 * shows it at once. Destroying the primary chain destroys all; kulgui_create begins anew. Returns
 * KUL_OK, KUL_ERROR for an unknown chain. */
KULGUI_API int kulgui_destroy(int nChain);

/** nRef 1 opens the terminal, before kulgui_exec does, 2 closes it, 0 says whether it is open, T or
 * F. Opening gives KUL_OK, or KUL_ERROR without a usable terminal; closing KUL_OK; any other nRef
 * comes back as it is. */
KULGUI_API int NCursesEnv(int nRef);

/** Gives the terminal back. Frees no chain. Always KUL_OK. */
KULGUI_API int kulgui_destroyAll(void);

/** Gives the terminal back, runs a command by /bin/sh -c, and takes the terminal again if it was
 * open; everything is as it was. Returns the command's wait status, KUL_ERROR where it cannot be
 * run or is NULL. */
KULGUI_API int kulgui_run(const char* szCommand);

/** The same in two steps, for a program that runs something itself. Meanwhile the terminal counts
 * as closed: nothing is drawn, and kulgui_exec takes it again as kulgui_resume does. Both return
 * KUL_OK, KUL_ERROR when the terminal is not open, or was not suspended. */
KULGUI_API int kulgui_suspend(void);
KULGUI_API int kulgui_resume(void);

/** With T, giving the terminal back leaves on the screen what is there; F, the start, clears it
 * away. Returns KUL_OK, KUL_ERROR where the terminal shows another screen then, as most do that are
 * windows, and where it is not open. */
KULGUI_API int kulgui_keepScreen(int bKeep);

/** With T, lines, frames and bars are made of '+', '-', '|' and ':' on a terminal that is opened
 * after it, as where somebody reads along whose font has no others; F, the start: of what the
 * terminal draws best. Returns KUL_OK, KUL_ERROR for another bAscii. */
KULGUI_API int kulgui_setAsciiLines(int bAscii);

/** With T, the bar on the cursor's row of check lists and option lists is over the marker alone, so
 * that a move costs the same few bytes however long the texts are; F, the start: over the row. For
 * lists of both editions that are drawn after it. Returns KUL_OK, KUL_ERROR for another bMarker. */
KULGUI_API int kulgui_setMarkerBars(int bMarker);

/** These four do nothing and return KUL_OK. */
KULGUI_API int kulgui_exit(void);
KULGUI_API int kulgui_hasExited(void);
KULGUI_API int kulgui_getExitValue(void);
KULGUI_API int kulgui_update(void);

/** Ends the running loop of a dialog, the innermost one: once the callback that calls this is over,
 * the component that has the keys gets its onUnfocus and kulgui_exec returns KUL_LEFT. Forgotten
 * when no loop of the dialog runs. Returns KUL_OK, KUL_ERROR for an unknown chain or one without
 * dialog. */
KULGUI_API int kulgui_leave(int nChain);

/** Moves the focus to component nRef; a running loop follows once the callback is over, after the
 * onUnfocus of the component that had it; without a running loop the next one begins there. Returns
 * KUL_OK, KUL_ERROR when there is no such component. */
KULGUI_API int kulgui_setFocus(int nChain, int nRef);

/** With T, Tab and Escape go to the next and the previous component from every kind, also from
 * those that keep these keys by themselves (buttons and menus). F, the start, leaves that to the
 * kinds. A hidden component passes the focus on to its next one. Returns KUL_OK, KUL_ERROR for an
 * unknown chain or one without dialog. */
KULGUI_API int kulgui_setTabbing(int nChain, int bTabbing);

/** Moves the selection of a menu, description menu, dynamic menu or toolbar, or the cursor of a
 * list, to the element at index nElement, from 0; a list shows it. No callback runs. Returns
 * KUL_OK, KUL_ERROR for an unknown component, one without elements, or an index that has none. */
KULGUI_API int kulgui_select(int nChain, int nRef, int nElement);

/** With F the component is disabled: it is drawn in its nColorDisable (dim where there are no
 * colours, else in parentheses), is passed over by the focus and gets no keys; one that has the
 * focus loses it. T, the start, enables it. nEnable of the records is another thing: of a button or
 * text box it says so too in edition 2, in edition 1 it is a colour alone. Returns KUL_OK,
 * KUL_ERROR for an unknown component or without memory. */
KULGUI_API int kulgui_enable(int nChain, int nRef, int bEnable);

/** Keeps a pointer of the program's for a component or item, or with KUL_DIALOG as nRef for the
 * dialog; the library does nothing with it. kulgui_getUser gives it back, NULL where none was set.
 * kulgui_setUser returns KUL_OK, KUL_ERROR for an unknown chain or component or without memory. */
KULGUI_API int kulgui_setUser(int nChain, int nRef, void* user);
KULGUI_API void* kulgui_getUser(int nChain, int nRef);

/** Has every key of a dialog come to onKey first, NULL for none; then hotkeys are looked for, then
 * the component in focus gets it. In onKey kulgui_getKey says which key it is and kulgui_setKey
 * gives the component another one, 0 for none. kulgui_getKey goes on to tell that key to the other
 * callbacks that it leads to; before the first key it is 0. kulgui_setOnKey returns KUL_OK,
 * KUL_ERROR for an unknown chain or one without dialog; kulgui_setKey returns KUL_OK. */
KULGUI_API int kulgui_setOnKey(int nChain, KULCALLBACK onKey);
KULGUI_API int kulgui_getKey(void);
KULGUI_API int kulgui_setKey(int nKey);

/** Makes a key give the focus to a component from anywhere in its dialog, and click it if it is a
 * button; 0 for no key. Letters are hotkeys as well, also where a text box would have taken them. A
 * component that is hidden (edition 2) or disabled does not answer. Returns KUL_OK, KUL_ERROR for
 * an unknown component or without memory. */
KULGUI_API int kulgui_setHotkey(int nChain, int nRef, int nKey);

/** Throws away what was typed and not read yet, in front of a question that must not be answered by
 * keys that were meant for something else. Always KUL_OK. */
KULGUI_API int kulgui_dropKeys(void);

/** Runs onTime once, nMilliseconds from now (below 0: at once), while a dialog waits for a key: the
 * wait ends in time for it, and what it changes is shown with one update of the terminal. 16 timers
 * can wait. Returns the timer's number, from 1, for kulgui_stopTimer; KUL_ERROR for NULL or when
 * none is free. A timer that has run is free again; its number is not given to another one soon. */
KULGUI_API int kulgui_setTimer(int nMilliseconds, KULCALLBACK onTime);

/** Ends a timer before it runs. Returns KUL_OK, KUL_ERROR when none of that number waits. */
KULGUI_API int kulgui_stopTimer(int nTimer);

/** Runs onReady whenever a descriptor has something to read, or its other end is closed, while a
 * dialog waits for a key; what it changes is shown with one update of the terminal. onReady must
 * read what is there, or it runs again at once. Another onReady takes the place of the one before,
 * NULL ends the watch; do that before closing the descriptor. 32 descriptors can be watched.
 * Returns KUL_OK; KUL_ERROR for standard input, for a number below, when there is no room, and for
 * NULL when the descriptor is not watched. */
KULGUI_API int kulgui_watch(int nFd, KULCALLBACK onReady);

/* ---- Edition 2 ------------------------------------------------------------------------------ *
 *
 * kulgui_setEdition(2), before the terminal is opened, gives a program today's manners. A program
 * that does not ask sees no difference. What differs:
 *
 *   keys              of every terminal are known, whatever TERM says; with Shift, Control or Alt
 *                     they are the same keys, but for Shift-Tab, KS_BACKTAB, and for Alt with a
 *                     letter or digit, KS_ALT plus that. Byte 8 is KS_BACKSPACE and 10 KS_ENTER. A
 *                     character above 127 is one key, KUL_CHARACTER plus its code.
 *   typing ahead      and pasting: every key arrives, one at a time; kulgui_dropKeys throws away
 *                     what has not been read. A newline of a paste that the terminal marks as one
 *                     is a blank in a text box, and no key elsewhere.
 *   Tab, Shift-Tab    to the next and the previous component, from every kind; hidden and disabled
 *                     components are passed over. kulgui_setTabbing changes nothing.
 *   Escape            leaves the dialog: kulgui_exec and the handlers return KUL_CANCELLED. With
 *                     kulgui_setCancel it clicks that button instead.
 *   Enter             in a component that does nothing with it (a text box, a menu or file viewer
 *                     without onClick) clicks the button of kulgui_setDefault.
 *   arrow keys        on a button go to the nearest button in that direction.
 *   menus and lists   have no empty place; Home, End, PageUp and PageDown move as well; a letter
 *                     goes to the next element that begins with it; disabled elements are passed
 *                     over. Scroll bars tell where the view is. A menu runs onSelect after a move,
 *                     and at Enter its own onClick, then that of the element. Check lists end when
 *                     they are hidden.
 *   text boxes        insert letters and scroll; what counts are characters. See their chapter.
 *   focus             a dialog whose component in focus is gone begins with its first one.
 *   texts             are laid out by columns, in the language of the program's locale. A word of
 *                     letters beyond ASCII that is wider than its row breaks between letters.
 *                     Nothing goes on in the next row that the window cannot show: it is cut.
 *   the cursor        of the terminal stands where the user is, for braille displays and screen
 *                     readers.
 *   colours           by default dialogs are black on white on a desktop of white on blue, the
 *                     focus is white on blue, a text box without it black on cyan, and what is
 *                     disabled blue on white. The line below the desktop's title has its colours.
 */

/** Says which button Enter clicks where the component in focus does nothing with it, and which one
 * Escape; -1 for none, the start. The focus stays where it is while onClick runs, and the current
 * selection names the button. One that is hidden or disabled is not clicked: Escape then leaves the
 * dialog. The default button is marked by > and <. Edition 2 only: edition 1 keeps them for later.
 * Return KUL_OK, KUL_ERROR for an unknown chain, one without dialog, or an nRef that is no button.
 */
KULGUI_API int kulgui_setDefault(int nChain, int nRef);
KULGUI_API int kulgui_setCancel(int nChain, int nRef);

/* ---- What the user is at --------------------------------------------------------------------- */

/** What has the focus, and what is selected in it. Callbacks read it. */
typedef struct current {
    int nChain;         /* ro */
    int nUserInterface; /* ro: nRef of the component */
    int nType;          /* ro: UI_TYPE */
    int nPosition;      /* ro: of a list the cursor's element, of a file viewer 0 to 100 */
    int nSelect;        /* ro: the selected element, from 0; of an option list the chosen one */
    int nSubSelect;     /* ro: not used */
} CURRENT;

/** The record of what has the focus; always the same one, the library's. */
KULGUI_API CURRENT* GetCurrentSelection(void);

/** The UI_TYPE of what has the focus. */
KULGUI_API int GetCurrentComponentType(void);

/** All four: nSelect of the current selection, whatever its kind. */
KULGUI_API int GetCurrentOptionSelection(void);
KULGUI_API int GetCurrentCheckboxSelection(void);
KULGUI_API int GetCurrentSelectedToolbarButton(void);
KULGUI_API int GetCurrentSelectedMenuElement(void);

/** The text of the text box that has the focus, the library's own; NULL when it is none. */
KULGUI_API char* GetCurrentTextboxData(void);

/* ---- Ready dialogs -------------------------------------------------------------------------- *
 *
 * A message, a question, an input and the like with one call each, from anywhere in a program, also
 * while other dialogs run. They open the terminal if it is closed and close it then; a program that
 * has no primary dialog gets one as long. They are sized by their texts, centred, never larger than
 * the screen, and have the manners of edition 2, whatever the program's is. Callbacks of the
 * program that run meanwhile (onPoll, timers) find edition 2.
 *
 *     ┌──────── Title ─────────┐      Tab, Shift-Tab: between the body and the buttons
 *     │ The text, which scrolls│      Enter: the selected button, in the body the first one
 *     │ when it is long.       │      Escape: leaves, with KUL_DISMISSED
 *     │ ┌────────────────────┐ │      Up, Down, PageUp, PageDown, Home, End: move the text where
 *     │ │ The body           │ │          the buttons have the focus
 *     │ └────────────────────┘ │
 *     │     <OK>   <Cancel>    │
 *     └────────────────────────┘
 *
 * Texts are only read, NULL counts as empty; indexes begin at 0. Each returns KUL_OK where
 * nothing else is said; KUL_DISMISSED for Escape or Cancel, when what was handed in is as it was;
 * KUL_UNUSABLE where there is no usable terminal, no memory, or a file cannot be opened; KUL_GONE
 * when the line is gone.
 */

/** Words of the ready dialogs, for kuldialog_setWord. */
enum kul_words {
    KULWORD_OK,
    KULWORD_CANCEL,
    KULWORD_YES,
    KULWORD_NO,
    KULWORD_CLOSE,
    KULWORD_SEARCH,
    KULWORD_END, /* asks whether to end a command */
    KULWORDS
};

/** Sets a word of the ready dialogs, English at the start; szText is the program's and must stay.
 * Returns KUL_OK, KUL_ERROR for an unknown word or NULL. */
KULGUI_API int kuldialog_setWord(int nWord, const char* szText);

/** Shows a text until its button is clicked. */
KULGUI_API int kuldialog_tell(const char* szTitle, const char* szText);

/** Asks a question: szButtons are the buttons' texts, a newline between two; NULL for yes and no.
 * nDefault is selected at first. Returns the index of the button, or as above. */
KULGUI_API int kuldialog_ask(const char* szTitle, const char* szText, const char* szButtons,
                             int nDefault);

/** Has a line of text edited. szBuffer holds nSize bytes, the terminator included, and the text to
 * begin with; it is changed with OK alone. nMask: MASK shows stars, NOMASK the text. */
KULGUI_API int kuldialog_enter(const char* szTitle, const char* szText, char* szBuffer, int nSize,
                               int nMask);

/** A line of a form. The record is the program's. */
typedef struct kulfield {
    const char* szLabel;                /* in front of it; NULL for none */
    char* szText;                       /* in and out */
    int nSize;                          /* its bytes, the terminator included */
    int nMask;                          /* MASK or NOMASK */
    const char* szCharSet;              /* the characters that may be typed; NULL for any */
    int (*onCheck)(const char* szText); /* 0 for a good text; NULL for none */
} KULFIELD;

/** Has several lines edited; they scroll where they are many. A line whose onCheck says no, or
 * whose text does not fit, keeps the user. The texts are changed with OK alone. */
KULGUI_API int kuldialog_form(const char* szTitle, const char* szText, KULFIELD* Fields,
                              int nFields);

/** Has one item chosen; nSelected is selected at first. A letter goes to the next item that begins
 * with it. Returns the index of the item, or as above. */
KULGUI_API int kuldialog_choose(const char* szTitle, const char* szText,
                                const char* const szItems[], int nItems, int nSelected);

/** Has several items checked by Space. nChecked has a number for each item, 1 for checked and 0 for
 * not; it is changed with OK alone. NULL: none is checked, and nobody is told. */
KULGUI_API int kuldialog_check(const char* szTitle, const char* szText, const char* const szItems[],
                               int nChecked[], int nItems);

/** Has one item chosen by Space, with markers; nSelected has it at first, -1 for none. Returns the
 * index of the item that has the marker, else of that which has the cursor, or as above. */
KULGUI_API int kuldialog_option(const char* szTitle, const char* szText,
                                const char* const szItems[], int nItems, int nSelected);

/** Shows a file of any size. Its Search button or a slash asks for a text to find, n finds it
 * again. bFollow: T begins at the end and shows what is appended. A title of NULL is the file's
 * name. */
KULGUI_API int kuldialog_view(const char* szTitle, const char* szFileName, int bFollow);

/** Long work of the program's: kuldialog_progress shows a text and a bar, kuldialog_advance moves
 * the bar to nPercent, 0 to 100, and changes the text unless it is NULL; kuldialog_done ends it.
 * None waits for a key: work that the user may cancel goes on by a timer, in a dialog of its own.
 * The title must stay until the end, and so must the first text. Without kuldialog_progress before,
 * KUL_ERROR. */
KULGUI_API int kuldialog_progress(const char* szTitle, const char* szText);
KULGUI_API int kuldialog_advance(int nPercent, const char* szText);
KULGUI_API int kuldialog_done(void);

/** Runs a command by /bin/sh and shows what it writes, the last 64 KiB of it, without its escape
 * sequences. Escape or the button asks whether to end it, by TERM and the next time by KILL; when
 * it is over they close the dialog. A title of NULL is the command. Returns the command's exit
 * status, 128 and the number for a signal, or KUL_UNUSABLE, KUL_GONE as above. */
KULGUI_API int kuldialog_run(const char* szTitle, const char* szCommand);

/** Has a file picked, from szDirectory on, NULL for the current one: Enter goes into a directory,
 * Backspace to the one above. szBuffer of nSize bytes gets its absolute path; a file whose path
 * does not fit cannot be picked. */
KULGUI_API int kuldialog_pick(const char* szTitle, const char* szDirectory, char* szBuffer,
                              int nSize);

/* ---- Buttons -------------------------------------------------------------------------------- *
 *
 *     ┌───────┐
 *     │  Yes  │      Enter: onClick
 *     └───────┘
 */

/** Adds a button to a dialog. Returns KUL_OK, KUL_TAKEN_BUTTON when a component has that nRef,
 * KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG for one without dialog, KUL_NO_MEMORY_UI or
 * KUL_ERROR without memory. The variants make the same button. */
KULGUI_API int kulbutton_create(int nChain, int nRef);
KULGUI_API int kulokbutton_create(int nChain, int nRef);
KULGUI_API int kulcancelbutton_create(int nChain, int nRef);
KULGUI_API int kulexitbutton_create(int nChain, int nRef);

/** Sets a button up. The three colour sets: KUL_KEEP takes the dialog's; nColorBorder is not used.
 * nX, nY: top left corner; nWidth: columns with the frame. nEnable: 1 or not; a disabled button
 * looks so, and works. szText is copied and centred. onFocus and onSelect run when the button gets
 * the focus, onClick at Enter, onUnfocus when tabbing or one of kulgui_leave and kulgui_setFocus
 * takes the focus away. Returns KUL_OK, KUL_ERROR for an unknown component or, with the defaults in
 * place, without memory. */
KULGUI_API int kulbutton_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                int nColorDisable, int nColorBorder, int nX, int nY, int nWidth,
                                int nEnable, const char* szText, KULCALLBACK onFocus,
                                KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick);

/** Reset the button to its defaults and store none of the arguments: it has no text. Use
 * kulbutton_config for a button with a caption. Return KUL_OK, KUL_ERROR for an unknown component.
 */
KULGUI_API int kulokbutton_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                  int nColorDisable, int nColorBorder, int nX, int nY, int nWidth,
                                  int nEnable, const char* szText, KULCALLBACK onFocus,
                                  KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick);
KULGUI_API int kulcancelbutton_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                      int nColorDisable, int nColorBorder, int nX, int nY,
                                      int nWidth, int nEnable, const char* szText,
                                      KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                                      KULCALLBACK onSelect, KULCALLBACK onClick);
KULGUI_API int kulexitbutton_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                    int nColorDisable, int nColorBorder, int nX, int nY, int nWidth,
                                    int nEnable, const char* szText, KULCALLBACK onFocus,
                                    KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                                    KULCALLBACK onClick);

/** Show or hide the component from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kulbutton_show(int nChain, int nRef);
KULGUI_API int kulbutton_hide(int nChain, int nRef);
KULGUI_API int kulokbutton_show(int nChain, int nRef);
KULGUI_API int kulokbutton_hide(int nChain, int nRef);
KULGUI_API int kulcancelbutton_show(int nChain, int nRef);
KULGUI_API int kulcancelbutton_hide(int nChain, int nRef);
KULGUI_API int kulexitbutton_show(int nChain, int nRef);
KULGUI_API int kulexitbutton_hide(int nChain, int nRef);

/** Gives a button the keys until it loses the focus. Returns KUL_NEXT or KUL_PREVIOUS for the next
 * or previous component (KUL_NEXT at once when it is hidden or no button), KUL_OK after
 * kulgui_setFocus, KUL_LEFT after kulgui_leave, KUL_GONE when it is gone or the line was hung up.
 */
KULGUI_API int kulbutton_execKeys(int nChain, int nRef);

/* ---- Menus ---------------------------------------------------------------------------------- *
 *
 *     File   Edit   Help        Left, Right: select; Enter: onClick
 *
 * GetCurrentSelectedMenuElement says which element is selected. In edition 1 menus of all kinds go
 * round their elements and one place more, after the last, on which none is selected; elements have
 * no callbacks of their own, and a menu keeps Tab and Escape (kulgui_setTabbing gives them away).
 */

/** One element of a menu or dynamic menu. */
typedef struct kulmenuelement {
    int nEnable;    /* rw: 1: enabled; else drawn in nColorDisable while the menu has the focus */
    int nExitCode;  /* rw: not used */
    int* nExitFlag; /* rw: not used */
    char* szText;   /* ro */
    struct kulmenuelement* Prev; /* ro: of the first one: the last, NULL when it is alone */
    struct kulmenuelement* Next; /* ro: of the last one: NULL */
    KULCALLBACK onSelect;        /* rw: not run */
    KULCALLBACK onClick;         /* rw: run in edition 2 */
} KULMENUELEMENT;

/** Adds a menu to a dialog. Returns KUL_OK, KUL_TAKEN_MENU when a component has that nRef, else as
 * kulbutton_create. */
KULGUI_API int kulmenu_create(int nChain, int nRef);

/** Sets a menu up, without elements, at column 2 of row 2. The three colour sets: KUL_KEEP takes
 * the dialog's; in focus the selected element is in nColorFocus, the other ones in nColorUnfocus
 * or nColorDisable, without focus all are in nColorUnfocus; in edition 2 the selected one is told
 * then as well, black on cyan among black on white ones, else underlined, and where all do not fit
 * the first ones give way to it. onFocus and onUnfocus run when the menu gets and loses the focus,
 * onSelect after a move in edition 2, onClick at Enter; so do those of other menus and toolbars.
 * Returns KUL_OK, KUL_ERROR for an unknown component. */
KULGUI_API int kulmenu_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                              int nColorDisable, KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                              KULCALLBACK onSelect, KULCALLBACK onClick);

/** Appends an element. szText is copied; nEnable: 1 or not; onSelect is not kept. Returns KUL_OK,
 * KUL_ERROR for an unknown menu or without memory. */
KULGUI_API int kulmenu_addElement(int nChain, int nRef, const char* szText, int nEnable,
                                  KULCALLBACK onSelect, KULCALLBACK onClick);

/** Removes the last element, whatever nSelection is; nSelect goes no further than the place after
 * the last. Returns KUL_OK, KUL_EMPTIED when it was the only one, KUL_ERROR for an unknown menu or
 * one without elements. */
KULGUI_API int kulmenu_remElement(int nChain, int nRef, int nSelection);

/** The element at a position from 0, the library's; its fields may be changed. Positions above 30
 * and negative ones give the element at 30. NULL for an unknown menu or when there is none. */
KULGUI_API KULMENUELEMENT* kulmenu_getElement(int nChain, int nRef, int nElement);

/** Number of its elements; KUL_ERROR for an unknown menu. */
KULGUI_API int kulmenu_count(int nChain, int nRef);

/** Show or hide the component from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kulmenu_show(int nChain, int nRef);
KULGUI_API int kulmenu_hide(int nChain, int nRef);

/** Gives a menu the keys until it loses the focus. Returns KUL_NEXT for the next component when it
 * is hidden or no menu, or when a navigation flag is set (the inside); KUL_NEXT or KUL_PREVIOUS
 * when tabbing, KUL_OK after kulgui_setFocus, KUL_LEFT after kulgui_leave, KUL_GONE when it is gone
 * or the line was hung up. */
KULGUI_API int kulmenu_execKeys(int nChain, int nRef);

/* ---- Dynamic menus -------------------------------------------------------------------------- *
 *
 *     ┌──────────────┬
 *     │Berlin        █      Up, Down: select; Enter: onClick
 *     │Bern          │
 *     └──────────────┴
 *
 * The list scrolls with the selection. The bar is there when there are more elements than rows; in
 * edition 1 it stands still.
 */

/** Adds a dynamic menu to a dialog. Returns KUL_OK, KUL_TAKEN_DYNMENU when a component has that
 * nRef, else as kulbutton_create. */
KULGUI_API int kuldynmenu_create(int nChain, int nRef);

/** Sets a dynamic menu up, without elements. Colour sets as kulmenu_config, and the frame in
 * nColorFocus or nColorUnfocus. nX, nY: corner of the frame; nWidth, nHeight: columns and rows
 * inside of it; below 1 nothing is drawn. Returns KUL_OK, KUL_ERROR for an unknown component. */
KULGUI_API int kuldynmenu_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                 int nColorDisable, int nX, int nY, int nWidth, int nHeight,
                                 KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                                 KULCALLBACK onClick);

/** As kulmenu_addElement; texts are cut to the menu's width, and show a question mark for what is
 * no character of the locale. Mind the place of nEnable. */
KULGUI_API int kuldynmenu_addElement(int nChain, int nRef, const char* szText, KULCALLBACK onSelect,
                                     KULCALLBACK onClick, int nEnable);

/** As kulmenu_remElement, but nElements and nSelect stay as they are. */
KULGUI_API int kuldynmenu_remElement(int nChain, int nRef, int nSelection);

/** As kulmenu_getElement. */
KULGUI_API KULMENUELEMENT* kuldynmenu_getElement(int nChain, int nRef, int nElement);

/** Show or hide the component from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kuldynmenu_show(int nChain, int nRef);
KULGUI_API int kuldynmenu_hide(int nChain, int nRef);

/** Number of its elements; KUL_ERROR for an unknown dynamic menu. */
KULGUI_API int kuldynmenu_count(int nChain, int nRef);

/** As kulmenu_execKeys; a hidden one gets the keys as well, unless it is passed over: in edition 2
 * and with kulgui_setTabbing. */
KULGUI_API int kuldynmenu_execKeys(int nChain, int nRef);

/* ---- Description menus ---------------------------------------------------------------------- *
 *
 *     Network   Storage   About
 *     ┌──────────────────┐_____________      Left, Right: select; Enter: onClick
 *     │Host name and     │
 *     │addresses.        │
 *     └──────────────────┘
 */

typedef struct kuldescrmenuelement {
    int nEnable;     /* rw: 1: enabled; else drawn in nColorDisable while the menu has the focus */
    int nExitCode;   /* rw: not used */
    int* nExitFlag;  /* rw: not used */
    char* szText;    /* ro */
    char* szBoxText; /* ro */
    struct kuldescrmenuelement* Prev; /* ro: of the first one: the last, NULL when it is alone */
    struct kuldescrmenuelement* Next; /* ro: of the last one: NULL */
    KULCALLBACK onSelect;             /* rw: not run */
    KULCALLBACK onClick;              /* rw: run in edition 2 */
} KULDESCRMENUELEMENT;

/** Adds a description menu to a dialog. Returns KUL_OK, KUL_TAKEN_DESCRMENU when a component has
 * that nRef, else as kulbutton_create. */
KULGUI_API int kuldescrmenu_create(int nChain, int nRef);

/** Sets a description menu up, without elements, at column 2 of row 2: nX and nY are not used.
 * Colour sets as kulmenu_config; frame and description are in nColorFocus or nColorUnfocus.
 * nBarLength, nBoxWidth, nBoxHeight: KUL_KEEP takes 75, 20 and 19. The description has nBoxWidth -
 * 3 columns and nBoxHeight - 2 rows. Returns KUL_OK, KUL_ERROR for an unknown component. */
KULGUI_API int kuldescrmenu_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                   int nColorDisable, int nX, int nY, int nBarLength, int nBoxWidth,
                                   int nBoxHeight, KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                                   KULCALLBACK onSelect, KULCALLBACK onClick);

/** Appends an element. szText, for the bar, and szBoxText, its description, are copied; nEnable: 1
 * or not; onSelect is not kept. Returns KUL_OK, KUL_ERROR for an unknown menu or without memory. */
KULGUI_API int kuldescrmenu_addElement(int nChain, int nRef, int nEnable, const char* szText,
                                       const char* szBoxText, KULCALLBACK onSelect,
                                       KULCALLBACK onClick);

/** As kulmenu_remElement, but nElements and nSelect stay as they are. */
KULGUI_API int kuldescrmenu_remElement(int nChain, int nRef, int nSelection);

/** As kulmenu_getElement. */
KULGUI_API KULDESCRMENUELEMENT* kuldescrmenu_getElement(int nChain, int nRef, int nElement);

/** Show or hide the component from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kuldescrmenu_show(int nChain, int nRef);
KULGUI_API int kuldescrmenu_hide(int nChain, int nRef);

/** Number of its elements; KUL_ERROR for an unknown description menu. */
KULGUI_API int kuldescrmenu_count(int nChain, int nRef);

/** Gives a description menu the keys until it loses the focus, hidden or not. Returns KUL_NEXT at
 * once when it is none; KUL_NEXT or KUL_PREVIOUS when tabbing, KUL_OK after kulgui_setFocus,
 * KUL_LEFT after kulgui_leave, KUL_GONE when it is gone or the line was hung up. */
KULGUI_API int kuldescrmenu_execKeys(int nChain, int nRef);

/* ---- Toolbars ------------------------------------------------------------------------------- *
 *
 *     ┌──────┐ ┌──────┐      Left, Right (Up, Down when VERTICAL): next enabled button
 *     │ Back │ │ Quit │      Enter: onClick of the toolbar, then of the button
 *     └──────┘ └──────┘      Tab, Escape: next, previous component
 */

typedef struct kultoolbarbutton {
    int nX;                        /* ro: where it was drawn */
    int nY;                        /* ro */
    char* szText;                  /* ro */
    int nEnable;                   /* rw: 1: enabled; else drawn in nColorDisable and passed over */
    int nExitCode;                 /* rw: not used */
    int* nExitFlag;                /* rw: not used */
    struct kultoolbarbutton* Prev; /* ro: of the first one: the last, NULL when it is alone */
    struct kultoolbarbutton* Next; /* ro: of the last one: NULL */
    KULCALLBACK onSelect;          /* rw: not run */
    KULCALLBACK onClick;           /* rw */
} KULTOOLBARBUTTON;

/** Adds a toolbar to a dialog. Returns KUL_OK, KUL_TAKEN_TOOLBAR when a component has that nRef,
 * else as kulbutton_create. */
KULGUI_API int kultoolbar_create(int nChain, int nRef);

/** Sets a toolbar up, without buttons. The three colour sets: KUL_KEEP takes the dialog's; the
 * selected button is in nColorFocus while the toolbar has the focus, the other ones in
 * nColorUnfocus or nColorDisable. nX, nY: corner of the first button. nOrient: an ORIENTATION;
 * anything else is LATERAL. onFocus and onUnfocus run when the toolbar gets and loses the focus.
 * Returns KUL_OK, KUL_ERROR for an unknown component. */
KULGUI_API int kultoolbar_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                 int nColorDisable, int nX, int nY, int nOrient,
                                 KULCALLBACK onFocus, KULCALLBACK onUnfocus, KULCALLBACK onSelect,
                                 KULCALLBACK onClick);

/** Appends a button. szText is copied; nSelect is not used; nEnable: 1 or not; onClick runs at
 * Enter while the button is selected. Returns KUL_OK, KUL_ERROR for an unknown toolbar or without
 * memory. */
KULGUI_API int kultoolbar_addButton(int nChain, int nRef, const char* szText, int nSelect,
                                    int nEnable, KULCALLBACK onSelect, KULCALLBACK onClick);

/** These three do nothing and return KUL_OK. */
KULGUI_API int kultoolbar_addOKButton(int nChain, int nRef, const char* szText, int nSelect,
                                      int nEnable, KULCALLBACK onSelect, KULCALLBACK onClick);
KULGUI_API int kultoolbar_addCancelButton(int nChain, int nRef, const char* szText, int nSelect,
                                          int nEnable, KULCALLBACK onSelect, KULCALLBACK onClick);
KULGUI_API int kultoolbar_addExitButton(int nChain, int nRef, const char* szText, int nSelect,
                                        int nEnable, KULCALLBACK onSelect, KULCALLBACK onClick);

/** As kulmenu_remElement. */
KULGUI_API int kultoolbar_remButton(int nChain, int nRef, int nSelection);

/** As kulmenu_getElement. */
KULGUI_API KULTOOLBARBUTTON* kultoolbar_getButton(int nChain, int nRef, int nButton);

/** Show or hide the component from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kultoolbar_show(int nChain, int nRef);
KULGUI_API int kultoolbar_hide(int nChain, int nRef);

/** Number of its buttons; KUL_ERROR for an unknown toolbar. */
KULGUI_API int kultoolbar_count(int nChain, int nRef);

/** Gives a toolbar the keys until it loses the focus. An arrow key looks at 30 buttons at most for
 * an enabled one. Returns KUL_NEXT after Tab and when it is hidden, KUL_PREVIOUS after Escape;
 * KUL_ERROR when it is no toolbar; KUL_OK when it gets hidden meanwhile and after kulgui_setFocus;
 * KUL_LEFT after kulgui_leave; KUL_GONE when it is gone, the line was hung up, or its dialog gets
 * hidden, which hides dialog 1 as well. */
KULGUI_API int kultoolbar_execKeys(int nChain, int nRef);

/* ---- File viewers --------------------------------------------------------------------------- *
 *
 *     ┌──────────────────────┬   Up, Down: a row             Home, End: start and end of the file
 *     │12:00:01 link is up   │   PageUp, PageDown: a view    Enter: onClick
 *     │12:00:04 eth0: 100    █   Backspace, Space: as these  Tab, Escape: next, previous component
 *     │Mbit/s, full duplex   │
 *     └──────────────────────┴   Pages keep one row in view. onSelect runs after each move.
 *
 * A text file of any size, also while it grows or shrinks; it takes less than 0.5 MiB of memory.
 * Lines wrap at blanks; only a word that is wider than a row is cut. Lines are those between
 * newlines, counted from 0, whatever rows they take. A tab goes to the next multiple of 8 columns
 * of its row, a carriage return at the end of a line is not shown, and '?' stands for each
 * character that cannot be shown in the program's locale. Lines above 64 KiB wrap anew at multiples
 * of 64 KiB of the file. The scroll bar is there while not all of the file is in view. In edition 2
 * a letter keeps its combining marks, what has neither width nor picture is left out, and the
 * terminal's cursor stands at the left of the first row.
 *
 * Only the number of a line and a search read through the file; what was counted is remembered.
 * nPosition of the selection is how far the view is in the file: 0 at its start, 100 when its end
 * is in view.
 */

/** Adds a file viewer to a dialog. Returns KUL_OK, KUL_TAKEN_FILEVIEW when a component has that
 * nRef, KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG for one without dialog, KUL_NO_MEMORY_UI
 * or KUL_ERROR without memory. */
KULGUI_API int kulfileview_create(int nChain, int nRef);

/** Sets a file viewer up. The three colour sets: KUL_KEEP takes the dialog's. nX, nY: top left
 * corner; nWidth, nHeight: the size with the frame. nBorder: BORDER draws a frame, NOBORDER, the
 * default, none; other values count as the default. szFileName is shown as by kulfileview_load;
 * following is off. onFocus and onUnfocus run when the viewer gets and loses the focus, onSelect
 * after a move, onClick for Enter. Returns KUL_OK, KUL_ERROR for an unknown component,
 * KUL_UNREADABLE when the file cannot be loaded: the viewer is set up then, and empty. */
KULGUI_API int kulfileview_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                  int nColorDisable, int nX, int nY, int nWidth, int nHeight,
                                  int nBorder, const char* szFileName, KULCALLBACK onFocus,
                                  KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick);

/** Shows a file from its start, or from its end while following. NULL shows nothing. The name is
 * copied. Returns KUL_OK, KUL_ERROR for an unknown component, KUL_UNREADABLE for what cannot be
 * opened or read or is no regular file (never waits for a pipe or device), or without memory: what
 * was shown stays. */
KULGUI_API int kulfileview_load(int nChain, int nRef, const char* szFileName);

/** With T the view goes to the end of the file and stays there while the file grows, by a look once
 * a second; who moves up stays where he is until he is back at the end. A file that was cut short,
 * or replaced by another one of its name, is shown from its end. F, the start, leaves the view
 * where it is. Returns KUL_OK, KUL_ERROR for an unknown component. */
KULGUI_API int kulfileview_setFollow(int nChain, int nRef, int bFollow);

/** Finds the first line from line nFrom on that contains szText, byte by byte, and moves the view
 * there. Returns the line, KUL_ERROR when there is none, which leaves the view, or for an unknown
 * component. Line + 1 is where to go on; near the end the found line is not the first in view. */
KULGUI_API int kulfileview_find(int nChain, int nRef, const char* szText, int nFrom);

/** The first line in view, 0 without a file; moving to a line, or as near as there are lines to
 * fill the view. KUL_ERROR for an unknown component; setting gives KUL_OK. */
KULGUI_API int kulfileview_getPosition(int nChain, int nRef);
KULGUI_API int kulfileview_setPosition(int nChain, int nRef, int nLine);

/** Show or hide the component from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kulfileview_show(int nChain, int nRef);
KULGUI_API int kulfileview_hide(int nChain, int nRef);

/** Gives a file viewer the keys until it loses the focus. Returns KUL_NEXT after Tab and at once
 * when it is hidden, KUL_PREVIOUS after Escape, KUL_OK when it gets hidden meanwhile and after
 * kulgui_setFocus, KUL_LEFT after kulgui_leave, KUL_GONE when it is gone or none, or the line was
 * hung up. */
KULGUI_API int kulfileview_execKeys(int nChain, int nRef);

/* ---- Check box lists ------------------------------------------------------------------------ *
 *
 *     ┌──────────────────◆
 *     │[X] Wake on LAN   │     Up, Down: move the cursor, round the list
 *     │[ ] Log to flash  │     Space, Enter: check or uncheck, onClick
 *     │    (wears it out)│     Tab, Escape: next and previous component
 *     └──────────────────┘
 *
 * Every element can be checked by itself. Texts are wrapped to nWidth - 4 columns, two less with a
 * border; a list that is longer than its box scrolls and gets a scroll bar in its last column.
 */

/** An element. They form a ring, where a lone one has no links. */
typedef struct kulcheckelement {
    int nEnable;    /* rw: 1: enabled; else in nColorDisable while in focus; can still be checked */
    int nExitCode;  /* rw: not used */
    int* nExitFlag; /* rw: not used */
    int nSelect;    /* rw: 1: checked */
    char* szText;   /* ro */
    int nHeight;    /* ro: rows of the wrapped text */
    struct kulcheckelement* Prev; /* ro */
    struct kulcheckelement* Next; /* ro */
    KULCALLBACK onSelect;         /* rw */
    KULCALLBACK onUnselect;       /* rw: not run */
} KULCHECKELEMENT;

/** Adds a check box list to a dialog. Returns KUL_OK, KUL_TAKEN_CHECKBOX when a component has that
 * nRef, else as kulbutton_create. */
KULGUI_API int kulcheckbox_create(int nChain, int nRef);

/** Sets a list up, without elements: those that it had are freed. The three colour sets: KUL_KEEP
 * takes the dialog's. nX, nY: top left corner; nWidth, nHeight: size with the border. nBorder:
 * BORDERS, anything else is NOBORDER. onFocus runs when the list gets the focus, onUnfocus when it
 * loses it, onSelect after the cursor moved and the element's own, onClick after Space and Enter.
 * Returns KUL_OK, KUL_ERROR for an unknown component. */
KULGUI_API int kulcheckbox_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                  int nColorDisable, int nX, int nY, int nWidth, int nHeight,
                                  int nBorder, KULCALLBACK onFocus, KULCALLBACK onUnfocus,
                                  KULCALLBACK onSelect, KULCALLBACK onClick);

/** Appends an element. szText is copied. nSelect: 1 is checked; nEnable: 1 or not. onSelect runs
 * when the cursor comes to it; onClick is not used. Returns KUL_OK, KUL_ERROR for an unknown
 * component or without memory. */
KULGUI_API int kulcheckbox_addElement(int nChain, int nRef, const char* szText, int nSelect,
                                      int nEnable, KULCALLBACK onSelect, KULCALLBACK onClick);

/** Does nothing and returns KUL_OK: elements cannot be taken out. */
KULGUI_API int kulcheckbox_remElement(int nChain, int nRef, int nSelection);

/** The element at an index from 0, counted round the ring; a negative index and one above 30 count
 * as 30. NULL for an unknown component or an empty list, and for any other index than 0 in a list
 * of one. */
KULGUI_API KULCHECKELEMENT* kulcheckbox_getElement(int nChain, int nRef, int nElement);

/** Checks or unchecks the element at an index below 30. Returns KUL_OK, KUL_ERROR for an unknown
 * component, another index or where getElement gives NULL. */
KULGUI_API int kulcheckbox_setSelect(int nChain, int nRef, int nElement);

/** 1 when that element is checked, 0 when not; KUL_ERROR where setSelect gives it. */
KULGUI_API int kulcheckbox_getSelect(int nChain, int nRef, int nElement);

/** Index of the cursor's element while the list has the focus, else KUL_ERROR. */
KULGUI_API int kulcheckbox_getFocus(int nChain, int nRef);

/** Show or hide the list from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kulcheckbox_show(int nChain, int nRef);
KULGUI_API int kulcheckbox_hide(int nChain, int nRef);

/** Whether the element at an index from 0 is checked: 1, or 0 when it is not; KUL_ERROR for an
 * unknown list or when there is none. */
KULGUI_API int kulcheckbox_isChecked(int nChain, int nRef, int nElement);

/** Checks the element at an index from 0 with T, unchecks it with F; no callback runs. Returns
 * KUL_OK, KUL_ERROR for an unknown list or when there is none. */
KULGUI_API int kulcheckbox_check(int nChain, int nRef, int nElement, int bChecked);

/** Number of its elements; KUL_ERROR for an unknown list. */
KULGUI_API int kulcheckbox_count(int nChain, int nRef);

/** Gives a list the keys until it loses the focus; one that a callback hides goes on unseen. Space
 * and Enter check any element, also those that setSelect cannot name. Returns KUL_NEXT after Tab
 * and KUL_PREVIOUS after Escape, KUL_NEXT at once when it is hidden, KUL_OK after kulgui_setFocus,
 * KUL_LEFT after kulgui_leave, KUL_GONE when it is gone or no check box list, or the line was hung
 * up. */
KULGUI_API int kulcheckbox_execKeys(int nChain, int nRef);

/* ---- Option lists --------------------------------------------------------------------------- *
 *
 *     ( ) Europe/Athens        Up, Down: move the cursor, round the list
 *     (o) Europe/Berlin        Space, Enter: choose, onClick of the list, then of the element
 *     ( ) Europe/Dublin        Tab, Escape: next and previous component
 *
 * One element is chosen, wherever the cursor is. Texts and scrolling as in check box lists.
 */

/** An element. Linked as in check box lists. */
typedef struct kuloptionelement {
    int nEnable;    /* rw: 1: enabled; else in nColorDisable while in focus; can still be chosen */
    int nExitCode;  /* rw: not used */
    int* nExitFlag; /* rw: not used */
    char* szText;   /* ro */
    int nHeight;    /* ro: rows of the wrapped text */
    struct kuloptionelement* Prev; /* ro */
    struct kuloptionelement* Next; /* ro */
    KULCALLBACK onSelect;          /* rw */
    KULCALLBACK onClick;           /* rw */
} KULOPTIONELEMENT;

/** Adds an option list to a dialog. Returns KUL_OK, KUL_TAKEN_OPTIONS when a component has that
 * nRef, else as kulbutton_create. */
KULGUI_API int kuloptions_create(int nChain, int nRef);

/** As kulcheckbox_config. nSelect is the index of the chosen element, nPosition that of the
 * cursor's, KUL_KEEP for 0; an index that no element has chooses none. onSelect runs before the
 * element's own, onClick too. */
KULGUI_API int kuloptions_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                 int nColorDisable, int nX, int nY, int nWidth, int nHeight,
                                 int nBorder, int nSelect, int nPosition, KULCALLBACK onFocus,
                                 KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick);

/** Appends an element. szText is copied. nEnable: 1 or not. onSelect runs when the cursor comes to
 * it, onClick when it is chosen. Returns KUL_OK, KUL_ERROR for an unknown component or without
 * memory. */
KULGUI_API int kuloptions_addElement(int nChain, int nRef, const char* szText, int nEnable,
                                     KULCALLBACK onSelect, KULCALLBACK onClick);

/** Does nothing and returns KUL_OK: elements cannot be taken out. */
KULGUI_API int kuloptions_remElement(int nChain, int nRef, int nSelection);

/** As kulcheckbox_getElement. */
KULGUI_API KULOPTIONELEMENT* kuloptions_getElement(int nChain, int nRef, int nElement);

/** Choose the element at an index from 0, or ask which one is chosen. An index that no element has
 * chooses none. Both return the index, KUL_ERROR for an unknown component. */
KULGUI_API int kuloptions_setClicked(int nChain, int nRef, int nSelect);
KULGUI_API int kuloptions_getClicked(int nChain, int nRef);

/** Index of the cursor's element while the list has the focus, else KUL_ERROR. */
KULGUI_API int kuloptions_getSelected(int nChain, int nRef);

/** Show or hide the list from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kuloptions_show(int nChain, int nRef);
KULGUI_API int kuloptions_hide(int nChain, int nRef);

/** Index from 0 of the chosen element; KUL_ERROR for an unknown list or while none is. */
KULGUI_API int kuloptions_getChosen(int nChain, int nRef);

/** Chooses the element at an index from 0; no callback runs. Returns KUL_OK, KUL_ERROR for an
 * unknown list or when there is none. */
KULGUI_API int kuloptions_choose(int nChain, int nRef, int nElement);

/** Number of its elements; KUL_ERROR for an unknown list. */
KULGUI_API int kuloptions_count(int nChain, int nRef);

/** As kulcheckbox_execKeys, but Space and Enter choose an element. Returns KUL_ERROR at once when
 * the list is hidden, unknown or no option list, and KUL_OK when a callback hides it. */
KULGUI_API int kuloptions_execKeys(int nChain, int nRef);

/* ---- Text boxes ----------------------------------------------------------------------------- *
 *
 *     ┌────────────┐      Letters overwrite; Backspace, Delete
 *     │gateway     │      Arrows, Home, End: move the cursor
 *     └────────────┘      Tab, Enter: next component; Escape: previous one
 *
 * onKey runs after every key, whether the box has a use for it or not. A text is bytes, one a cell,
 * row by row; blanks at the start of a row after the first are skipped, unless they fill all but
 * its last cell.
 *
 * In edition 2 a character is a letter of the locale with the marks on it, and may take two
 * columns: the keys, the limit, the cursor and the character set count these. nLength and
 * nCursorPos of the record are places in szText, in bytes. Letters are inserted; Insert switches to
 * overwriting and back. PageUp and PageDown move by as many rows as the box has. Control with A and
 * E goes to the start and the end, with K and U clears the text behind and before the cursor, with
 * W the word before it. A text that is longer than the box scrolls in it. No blanks are skipped.
 * The terminal's own cursor stands at the place of the next letter.
 */

typedef enum masking { NOMASK = -1, MASK = 0 } MASKING;

/** Adds a text box to a dialog. Returns KUL_OK, KUL_TAKEN_TEXTBOX when a component has that nRef,
 * else as kulbutton_create. */
KULGUI_API int kultextbox_create(int nChain, int nRef);

/** Sets a box up, with an empty text; the earlier one is freed. The three colour sets: KUL_KEEP
 * takes the dialog's. nX, nY: top left corner; nWidth, nHeight: size with the border, and so the
 * room for text. nBorder: BORDERS, anything else is NOBORDER. nMask: MASK shows asterisks, anything
 * else is NOMASK. szCharSet: the characters that can be typed, NULL for all that print; it is not
 * copied and must outlive the box. onFocus runs when the box gets the focus, onUnfocus when it
 * loses it, onKey after each key. Returns KUL_OK; KUL_ERROR for an unknown component, and without
 * memory, for a negative number of cells or more than 16 million: then the box has no text and
 * takes none. */
KULGUI_API int kultextbox_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                 int nColorDisable, int nX, int nY, int nWidth, int nHeight,
                                 int nBorder, int nMask, const char* szCharSet, KULCALLBACK onFocus,
                                 KULCALLBACK onUnfocus, KULCALLBACK onKey);

/** Copies a text into the box. The cursor stays at its index, or goes to the end of a text that is
 * shorter; in edition 2 it goes behind the text. Returns KUL_OK, KUL_ERROR for an unknown
 * component, one that was not set up or NULL, and for a text that is too long: then the box is
 * empty. Too long is one of nMaxLength characters or more, in edition 2 one of more than
 * nMaxLength. */
KULGUI_API int kultextbox_setText(int nChain, int nRef, const char* szText);

/** The text in the locale's bytes, the library's own, until the box is set up again, gets another
 * limit or is destroyed; its memory is cleared then. NULL for an unknown component or one that was
 * not set up. */
KULGUI_API char* kultextbox_getText(int nChain, int nRef);

/** How many characters may be entered, 65,535 at the most, in place of the cells inside the border;
 * until the next kultextbox_config. In edition 2 a longer text scrolls in the box. Returns KUL_OK;
 * KUL_ERROR for an unknown component, one that was not set up, a number out of range, less than the
 * text has already, and without memory: then nothing has changed. */
KULGUI_API int kultextbox_setLimit(int nChain, int nRef, int nCharacters);

/** What judges the text when the user goes on to another component or to the default button, until
 * the next kultextbox_config; NULL for none. 0 lets him go, anything else keeps the focus in the
 * box; onCheck can say why in a label or a dialog. It is not asked on Escape, for the cancel
 * button, by kulgui_leave or kulgui_setFocus, so that a wrong text traps nobody. The texts of the
 * dialog's other boxes are not looked at then: a button's onClick does that. szText is the
 * library's own. Returns KUL_OK, KUL_ERROR for an unknown component. */
KULGUI_API int kultextbox_setCheck(int nChain, int nRef, int (*onCheck)(const char* szText));

/** Puts the cursor on a character, counted from 0; as many as the text has put it behind the last
 * one. Returns KUL_OK, KUL_ERROR for an unknown component or a number out of range. */
KULGUI_API int kultextbox_setCursor(int nChain, int nRef, int nCharacter);

/** Show or hide the box from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kultextbox_show(int nChain, int nRef);
KULGUI_API int kultextbox_hide(int nChain, int nRef);

/** Gives a box the keys until it loses the focus. Returns KUL_NEXT after Tab and Enter,
 * KUL_PREVIOUS after Escape, KUL_NEXT at once when it is hidden, KUL_OK when a callback hides it or
 * after kulgui_setFocus, KUL_LEFT after kulgui_leave, KUL_GONE when it is gone or no text box, or
 * the line was hung up. */
KULGUI_API int kultextbox_execKeys(int nChain, int nRef);

/* ---- Status bars ---------------------------------------------------------------------------- *
 *
 *     Ready           3 files      12:30      the bottom row of a dialog, in reverse video
 *
 * Elements are counted from 0 in the order of adding; any number below 1 means the first.
 */

/** Adds a status bar to a dialog. Returns KUL_OK, KUL_TAKEN_STATBAR when an item has that nRef,
 * KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG for one without dialog, KUL_NO_MEMORY_DI or
 * KUL_ERROR without memory. */
KULGUI_API int kulstatbar_create(int nChain, int nRef);

/** Sets a status bar up, without elements. nColor: KUL_KEEP takes the dialog's nColorStandard.
 * onPoll is not used. Returns KUL_OK, KUL_ERROR for an unknown item. */
KULGUI_API int kulstatbar_config(int nChain, int nRef, int nColor, KULCALLBACK onPoll);

/** Adds a field at the end, at column nX and nWidth wide; the text is copied and cut to that.
 * nAlignment is an ALIGN, anything else LEFT; onUpdate is not run. Returns KUL_OK, KUL_ERROR for an
 * unknown item, a negative width or without memory. */
KULGUI_API int kulstatbar_addElement(int nChain, int nRef, int nX, int nWidth, const char* szText,
                                     int nAlignment, KULCALLBACK onUpdate);

/** Gives a field another text, cut to its width. Returns KUL_OK, KUL_ERROR for an unknown item or
 * field. */
KULGUI_API int kulstatbar_setElement(int nChain, int nRef, int nElement, const char* szText);

/** Removes the last field. Returns KUL_OK, KUL_ERROR for an unknown item or when there is none. */
KULGUI_API int kulstatbar_remElement(int nChain, int nRef);

/** The text of a field, the library's own; NULL for an unknown item or field. */
KULGUI_API char* kulstatbar_getElement(int nChain, int nRef, int nElement);

/** Show or hide the bar from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kulstatbar_show(int nChain, int nRef);
KULGUI_API int kulstatbar_hide(int nChain, int nRef);

/* ---- Scroll bars and progress bars ---------------------------------------------------------- *
 *
 *     ├──███─────┤      a scroll bar: a rail with a thumb in reverse video
 *     ████▒▒▒▒▒▒▒▒      a progress bar; one that stands grows from its foot
 */

/** Add a scroll or progress bar to a dialog. Return KUL_OK, KUL_TAKEN_SCROLLBAR (scroll bar) or
 * KUL_TAKEN_PROGBAR when an item has that nRef, KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG
 * for one without dialog, KUL_NO_MEMORY_DI or KUL_ERROR without memory. */
KULGUI_API int kulscrollbar_create(int nChain, int nRef);
KULGUI_API int kulprogbar_create(int nChain, int nRef);

/** Set a bar up: colour sets of the bar and of its rail, place and length of the rail, position,
 * range, ORIENTATION. A scroll bar's position is the first row in view, its range all rows, its
 * length those in view. KUL_KEEP takes the dialog's nColorUnfocus and nColorStandard, 1, 10 and
 * VERTICAL. Return KUL_OK, KUL_ERROR for an unknown item. */
KULGUI_API int kulscrollbar_config(int nChain, int nRef, int nColorBar, int nColorRail, int nX,
                                   int nY, int nLength, int nPosition, int nRange, int nOrient);
KULGUI_API int kulprogbar_config(int nChain, int nRef, int nColorBar, int nColorRail, int nX,
                                 int nY, int nLength, int nPosition, int nRange, int nOrient);

/** Move a bar; KUL_KEEP leaves it where it is. Return KUL_OK, KUL_ERROR for an unknown item,
 * KUL_NO_RECORD for one without record. */
KULGUI_API int kulscrollbar_setPosition(int nChain, int nRef, int nPosition);
KULGUI_API int kulprogbar_setPosition(int nChain, int nRef, int nPosition);

/** Move a bar by whole ranges: below 100 to 0, from 100 on to the end of its range, from 200 on to
 * twice that. Use setPosition for what lies between. Results as there. */
KULGUI_API int kulscrollbar_setByPercent(int nChain, int nRef, int nPercent);
KULGUI_API int kulprogbar_setByPercent(int nChain, int nRef, int nPercent);

/** Show or hide the bar from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kulscrollbar_show(int nChain, int nRef);
KULGUI_API int kulscrollbar_hide(int nChain, int nRef);
KULGUI_API int kulprogbar_show(int nChain, int nRef);
KULGUI_API int kulprogbar_hide(int nChain, int nRef);

/* ---- Description fields --------------------------------------------------------------------- *
 *
 *      Name   Size   Owner          the texts, from column nX and row nY on
 *     ┌──────────────────┐░░░░░     the bar, nBarLength wide
 *     │ What is selected │          the box, nRefWidth wide: the frame takes nRefHeight + 1 rows,
 *     │ is explained.    │          the text in it nRefHeight - 2
 *     └──────────────────┘
 *
 * Elements are counted from 0 in the order of adding. There is no call to show or hide one.
 */

/** Adds a description field to a dialog. Returns KUL_OK, KUL_TAKEN_DESCRFIELD when an item has that
 * nRef, KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG for one without dialog, KUL_NO_MEMORY_DI
 * or KUL_ERROR without memory. */
KULGUI_API int kuldescrfield_create(int nChain, int nRef);

/** Sets a description field up, without elements. KUL_KEEP takes the dialog's nColorUnfocus and
 * nColorStandard, 2, 3, the dialog's width - 4, 20 and its height - 5. Returns KUL_OK, KUL_ERROR
 * for an unknown item. */
KULGUI_API int kuldescrfield_config(int nChain, int nRef, int nColorSelect, int nColorBack, int nX,
                                    int nY, int nBarLength, int nRefWidth, int nRefHeight);

/** Adds an element at the end; the first one becomes selected. Both texts are copied, the box text
 * cut to the cells inside of the frame. Returns KUL_OK, KUL_ERROR for an unknown item or without
 * memory. */
KULGUI_API int kuldescrfield_addElement(int nChain, int nRef, const char* szText,
                                        const char* szBoxText);

/** Changes the texts of an element; NULL keeps one, and so does a szText as long as the present
 * one. Returns KUL_OK, also when there is no such element; KUL_ERROR for an unknown item, a box
 * text that is longer than the box holds or without memory, with nothing changed. */
KULGUI_API int kuldescrfield_setElement(int nChain, int nRef, int nSelect, const char* szText,
                                        const char* szBoxText);

/** Removes the last element. Returns KUL_OK, KUL_ERROR for an unknown item or when there is none.
 */
KULGUI_API int kuldescrfield_remElement(int nChain, int nRef);

/** Selects an element; the first one for a number below 1 and, with the result KUL_ERROR, for one
 * past the end. Returns KUL_OK, KUL_ERROR also for an unknown item or without elements. */
KULGUI_API int kuldescrfield_selElement(int nChain, int nRef, int nSelect);

/** Marks the item as configured; draws nothing. Returns KUL_OK, KUL_ERROR for an unknown item. */
KULGUI_API int kuldescrfield_update(int nChain, int nRef);

/* ---- Boxes and lines ------------------------------------------------------------------------ */

/** Add a box or a line to a dialog. Return KUL_OK, KUL_TAKEN_BOX (box) or KUL_TAKEN_LINE when an
 * item has that nRef, KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG for one without dialog,
 * KUL_NO_MEMORY_DI or KUL_ERROR without memory. */
KULGUI_API int kulbox_create(int nChain, int nRef);
KULGUI_API int kulline_create(int nChain, int nRef);

/** Sets a filled rectangle up. KUL_KEEP takes the dialog's nColorStandard, and BORDER; the frame
 * counts in the size. Returns KUL_OK, KUL_ERROR for an unknown item. */
KULGUI_API int kulbox_config(int nChain, int nRef, int nColorSet, int nX, int nY, int nWidth,
                             int nHeight, int nBorder);

/** Sets a line up, to the right or down from its first cell. KUL_KEEP takes the dialog's
 * nColorStandard, NOENDS and LATERAL. Returns KUL_OK, KUL_ERROR for an unknown item. */
KULGUI_API int kulline_config(int nChain, int nRef, int nColorSet, int nX, int nY, int nLength,
                              int nEnds, int nOrient);

/** Show or hide the item from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kulbox_show(int nChain, int nRef);
KULGUI_API int kulbox_hide(int nChain, int nRef);
KULGUI_API int kulline_show(int nChain, int nRef);
KULGUI_API int kulline_hide(int nChain, int nRef);

/** Marks the item as configured; draws nothing. Returns KUL_OK, KUL_ERROR for an unknown item. */
KULGUI_API int kulbox_update(int nChain, int nRef);
KULGUI_API int kulline_update(int nChain, int nRef);

/* ---- Labels --------------------------------------------------------------------------------- *
 *
 *     ┌──────────┐
 *     │Hello     │      rows are wrapped at blanks and newlines, and aligned one by one
 *     │world     │
 *     └──────────┘
 */

/** Adds a label to a dialog. Returns KUL_OK, KUL_TAKEN_LABEL when an item has that nRef,
 * KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG for one without dialog, KUL_NO_MEMORY_DI or
 * KUL_ERROR without memory. */
KULGUI_API int kullabel_create(int nChain, int nRef);

/** Sets a label up; the frame counts in the size. KUL_KEEP takes the dialog's nColorStandard and
 * nColorUnfocus, and BORDER; an alignment stays as it was, CENTER at first. szText is copied, of
 * any length, and wrapped to rows of nWidth - 2 characters, with a frame of nWidth - 4: a label is
 * that much wider than its text, or loses the text's end. NULL is no text. Returns KUL_OK,
 * KUL_ERROR for an unknown item or without memory. */
KULGUI_API int kullabel_config(int nChain, int nRef, int nColorSet, int nColorBorder, int nX,
                               int nY, int nWidth, int nHeight, int nAlignment, int nBorder,
                               const char* szText);

/** Gives a label another text. Returns KUL_OK; KUL_ERROR for an unknown or not configured item, or
 * for a text with more characters than the label has cells, inside of its frame. */
KULGUI_API int kullabel_setText(int nChain, int nRef, const char* szText);

/** Show or hide the label from the next drawing on. Always KUL_ERROR, also when all is well. */
KULGUI_API int kullabel_show(int nChain, int nRef);
KULGUI_API int kullabel_hide(int nChain, int nRef);

/** Marks the item as configured; draws nothing. Returns KUL_OK, KUL_ERROR for an unknown item. */
KULGUI_API int kullabel_update(int nChain, int nRef);

/* ---- Letters --------------------------------------------------------------------------------- */

/** Bytes of the first letter of a text, with the marks that belong to it, in the encoding of the
 * program's locale; 0 for an empty text or NULL. Stores its columns on the screen, 0 to 2, in
 * *nColumns unless that is NULL. What the library cannot show counts as what it shows for it. */
KULGUI_API int kulgui_nextLetter(const char* szText, int* nColumns);

#ifndef KULGUI_NO_INSIDE

/* ==== The inside ============================================================================= *
 *
 * What the calls above are made of, for programs that draw, scroll or keep components of their own.
 * It is kept as it is like the rest; but nothing here looks after a whole dialog, and what it says
 * of order and ownership has to be minded.
 */

/* ---- Records -------------------------------------------------------------------------------- */

typedef enum comp_type { NONE = 0, DICOMP = 1, UICOMP = 2 } COMP_TYPE;

/** Kinds of items that only show. */
typedef enum di_type { STATBAR, SCROLLBAR, PROGBAR, DESCRFIELD, BOX, LINE, LABEL } DI_TYPE;

typedef enum cursor { SHOWCURSOR = 0, HIDECURSOR = 1 } CURSOR;

/** Tails of the escape sequences behind the keys from KS_F1 to KS_RIGHT, in that order. */
#define KUL_KEYSTROKES 22
KULGUI_API extern const char* const szKeystrokes[KUL_KEYSTROKES];

/** One interactive component of a dialog. Pointer leads to the record of its kind. */
typedef struct ui {
    int nType;       /* ro: UI_TYPE */
    int nRef;        /* ro */
    struct ui* Prev; /* ro */
    struct ui* Next; /* ro */
    void* Pointer;   /* ro */
    int nUpdate;     /* ro */
} UI;

/** One display item of a dialog. Pointer leads to the record of its kind. */
typedef struct di {
    int nType;       /* ro: DI_TYPE */
    int nRef;        /* ro */
    struct di* Next; /* ro */
    void* Pointer;   /* ro */
    int nUpdate;     /* rw: 0: changed, -1: drawn, 1: configured */
} DI;

/** One dialog. */
typedef struct gui {
    WINDOW* winMain;   /* ro: NULL until first shown; the standard screen for the primary dialog */
    WINDOW* winShadow; /* ro */
    PANEL* pnlMain;    /* ro */
    PANEL* pnlShadow;  /* ro */
    int nX;            /* ro: where it lies; kulgui_place moves it */
    int nY;            /* ro */
    int nWidth;        /* ro */
    int nHeight;       /* ro */
    const char* szTitle;    /* rw */
    int nBorder;            /* ro: BORDERS; not used, the frame is drawn in any case */
    int nVisible;           /* ro: T or F */
    int nCurrentUI;         /* ro: nRef of the component that has the focus, -1 for none */
    int nColorStandard;     /* rw: COLORSET of the dialog itself */
    int nColorFocus;        /* rw: and what its components start with */
    int nColorUnfocus;      /* rw */
    int nColorDisable;      /* rw */
    const char* szLangFile; /* rw */
    KULCALLBACK onFocus;    /* rw: not run */
    KULCALLBACK onUnfocus;  /* rw: not run */
    KULCALLBACK onPoll;     /* rw: run about once a second while the dialog is shown */
    KULCALLBACK onDestroy;  /* rw: not run */
    UI* UserInterface;      /* ro */
    DI* Display;            /* ro */
} GUI;

/** One node of the ring of dialogs. */
typedef struct chain {
    struct chain* Prev; /* ro: both NULL while the primary is alone */
    struct chain* Next; /* ro */
    int nRef;           /* ro */
    GUI* Pointer;       /* ro */
} CHAIN;

/** A frame with a shadow that is no dialog. The program makes it with its windows and panels. */
typedef struct dlg {
    WINDOW* winMain;     /* rw */
    WINDOW* winShadow;   /* rw */
    PANEL* pnlMain;      /* rw */
    PANEL* pnlShadow;    /* rw */
    int nVisible;        /* rw */
    const char* szTitle; /* rw */
} DLG;

/** Navigation flags, T or F each. */
typedef struct control {
    int bMoveToNextUI; /* rw */
    int bMoveToPrevUI; /* rw */
    int bExitGUI;      /* rw */
    int bExitProgram;  /* rw */
} CONTROL;

typedef struct kulbutton {
    int nColorFocus;        /* rw */
    int nColorUnfocus;      /* rw */
    int nColorDisable;      /* rw */
    int nX;                 /* rw */
    int nY;                 /* rw */
    int nWidth;             /* rw: with the frame; the height is 3 */
    char* szText;           /* ro */
    int nVisible;           /* rw: T or F */
    int nEnable;            /* rw: 1: enabled; else drawn in nColorDisable */
    int nExitCode;          /* rw: not used */
    int* nExitFlag;         /* rw: not used */
    struct kulbutton* Prev; /* ro: not used */
    struct kulbutton* Next; /* ro: not used */
    KULCALLBACK onFocus;    /* rw */
    KULCALLBACK onUnfocus;  /* rw */
    KULCALLBACK onSelect;   /* rw */
    KULCALLBACK onClick;    /* rw */
} KULBUTTON;

typedef struct kulmenu {
    int nColorFocus;         /* rw */
    int nColorUnfocus;       /* rw */
    int nColorDisable;       /* rw */
    int nX;                  /* rw */
    int nY;                  /* rw */
    KULMENUELEMENT* Element; /* ro: the first one */
    int nSelect;             /* rw: position from 0; nElements selects none */
    int nEnable;             /* rw: not used */
    int nElements;           /* ro */
    int nVisible;            /* rw */
    KULCALLBACK onFocus;     /* rw */
    KULCALLBACK onUnfocus;   /* rw */
    KULCALLBACK onSelect;    /* rw: run in edition 2 */
    KULCALLBACK onClick;     /* rw */
} KULMENU;

typedef struct kuldynmenu {
    int nColorFocus;         /* rw */
    int nColorUnfocus;       /* rw */
    int nColorDisable;       /* rw */
    int nX;                  /* rw: of the frame */
    int nY;                  /* rw */
    int nWidth;              /* rw: inside of the frame */
    int nHeight;             /* rw */
    int nVisible;            /* rw */
    int Enable;              /* rw: not used */
    int nMaxLength;          /* ro: of the texts added so far */
    int nElements;           /* ro: added so far; not counted down */
    int nSelect;             /* rw: position from 0; nElements selects none */
    KULMENUELEMENT* Element; /* ro */
    KULCALLBACK onFocus;     /* rw */
    KULCALLBACK onUnfocus;   /* rw */
    KULCALLBACK onSelect;    /* rw: run in edition 2 */
    KULCALLBACK onClick;     /* rw */
} KULDYNMENU;

typedef struct kuldescrmenu {
    int nColorFocus;   /* rw */
    int nColorUnfocus; /* rw */
    int nColorDisable; /* rw */
    int nX;            /* rw */
    int nY;            /* rw */
    int nBarLength;    /* rw: of the line below the texts */
    int nBoxWidth;     /* rw: with the frame */
    int nBoxHeight;    /* rw: with the lower edge of the frame; the upper one is on the line */
    KULDESCRMENUELEMENT* Element; /* ro */
    int nVisible;                 /* rw */
    int nElements;                /* ro */
    int nSelect;                  /* rw: position from 0; -1 and nElements select none */
    KULCALLBACK onFocus;          /* rw */
    KULCALLBACK onUnfocus;        /* rw */
    KULCALLBACK onSelect;         /* rw: run in edition 2 */
    KULCALLBACK onClick;          /* rw */
} KULDESCRMENU;

typedef struct kultoolbar {
    int nColorFocus;          /* rw */
    int nColorUnfocus;        /* rw */
    int nColorDisable;        /* rw */
    int nX;                   /* rw: of the first button */
    int nY;                   /* rw */
    KULTOOLBARBUTTON* Button; /* ro: the first one */
    int nSelect;              /* rw: position from 0 */
    int nButtons;             /* ro */
    int nMaxLength;           /* ro: of the texts; buttons are two columns wider */
    int nVisible;             /* rw */
    int nExitCode;            /* rw: not used */
    int* nExitFlag;           /* rw: not used */
    int nOrient;              /* rw: ORIENTATION */
    KULCALLBACK onFocus;      /* rw */
    KULCALLBACK onUnfocus;    /* rw */
    KULCALLBACK onSelect;     /* rw: run in edition 2 */
    KULCALLBACK onClick;      /* rw */
} KULTOOLBAR;

typedef struct kulfileview {
    int nColorFocus;       /* rw: text, with the focus */
    int nColorUnfocus;     /* rw: text without; frame and scroll bar */
    int nColorDisable;     /* rw: not used */
    int nX;                /* rw */
    int nY;                /* rw */
    int nWidth;            /* rw: with the frame, or with the scroll bar in the last column */
    int nHeight;           /* rw */
    char* szFileName;      /* ro: what is shown; NULL for nothing */
    int nVisible;          /* rw */
    int nBorder;           /* rw: BORDERS */
    KULCALLBACK onFocus;   /* rw */
    KULCALLBACK onUnfocus; /* rw */
    KULCALLBACK onSelect;  /* rw */
    KULCALLBACK onClick;   /* rw */
} KULFILEVIEW;

typedef struct kulcheckbox {
    int nColorFocus;              /* rw: of the cursor's element, while the list has the focus */
    int nColorUnfocus;            /* rw */
    int nColorDisable;            /* rw */
    int nX;                       /* rw */
    int nY;                       /* rw */
    int nWidth;                   /* ro: with the border */
    int nHeight;                  /* ro */
    KULCHECKELEMENT* Element;     /* ro: the head */
    KULCHECKELEMENT* FirstShowed; /* ro: first and last element in view */
    KULCHECKELEMENT* LastShowed;  /* ro */
    int nVisible;                 /* rw */
    int nSelect;                  /* ro: index of the cursor's element */
    int nFirstShowed;      /* ro: indexes of the elements in view; -1 before the first element */
    int nLastShowed;       /* ro */
    int nElements;         /* ro */
    int bScrollbar;        /* ro: T once the elements did not fit */
    int nBorder;           /* ro: BORDERS */
    KULCALLBACK onFocus;   /* rw */
    KULCALLBACK onUnfocus; /* rw */
    KULCALLBACK onSelect;  /* rw */
    KULCALLBACK onClick;   /* rw */
} KULCHECKBOX;

typedef struct kuloptions {
    int nColorFocus;               /* rw: of the cursor's element, while the list has the focus */
    int nColorUnfocus;             /* rw */
    int nColorDisable;             /* rw */
    int nX;                        /* rw */
    int nY;                        /* rw */
    int nWidth;                    /* ro: with the border */
    int nHeight;                   /* ro */
    KULOPTIONELEMENT* Element;     /* ro: the head */
    KULOPTIONELEMENT* FirstShowed; /* ro: first and last element in view */
    KULOPTIONELEMENT* LastShowed;  /* ro */
    int nVisible;                  /* rw */
    int nSelect;                   /* rw: index of the chosen element */
    int nFirstShowed;      /* ro: indexes of the elements in view; -1 before the first element */
    int nLastShowed;       /* ro */
    int nPosition;         /* ro: index of the cursor's element */
    int nElements;         /* ro */
    int bScrollbar;        /* ro: T once the elements did not fit */
    int nBorder;           /* ro: BORDERS */
    KULCALLBACK onFocus;   /* rw */
    KULCALLBACK onUnfocus; /* rw */
    KULCALLBACK onSelect;  /* rw */
    KULCALLBACK onClick;   /* rw */
} KULOPTIONS;

typedef struct kultextbox {
    int nColorFocus;       /* rw */
    int nColorUnfocus;     /* rw */
    int nColorDisable;     /* rw */
    int nX;                /* rw */
    int nY;                /* rw */
    int nWidth;            /* ro: with the border */
    int nHeight;           /* ro */
    int nBorder;           /* ro: BORDERS */
    int nCursor;           /* rw: CURSOR; for DrawTextBox */
    int nCursorPos;        /* rw: index into the text */
    int nLength;           /* ro: of the text, in bytes */
    int nMaxLength;        /* ro: cells inside the border, or the limit */
    char* szText;          /* ro: nMaxLength + 1 bytes at least; NULL before kultextbox_config */
    const char* szCharSet; /* rw: the program's */
    int nMask;             /* rw: MASKING */
    int nVisible;          /* rw */
    int nEnable;           /* rw: 1: enabled; else drawn in nColorDisable */
    KULCALLBACK onFocus;   /* rw */
    KULCALLBACK onUnfocus; /* rw */
    KULCALLBACK onKey;     /* rw */
} KULTEXTBOX;

typedef struct kulstatelement {
    int nX;                      /* rw */
    int nWidth;                  /* ro: columns of the field; also the most characters it keeps */
    char* szText;                /* ro: nWidth + 1 characters */
    int nAlignment;              /* rw: ALIGN */
    struct kulstatelement* Next; /* ro */
    KULCALLBACK onUpdate;        /* rw: not run */
} KULSTATELEMENT;

typedef struct kulstatbar {
    int nColor;              /* rw */
    KULSTATELEMENT* Element; /* ro */
    int nVisible;            /* rw */
    KULCALLBACK onUpdate;    /* rw: not run */
} KULSTATBAR;

typedef struct kulgaugebar {
    int nColorBar;        /* rw */
    int nColorRail;       /* rw */
    int nX;               /* rw: first cell of the rail, at the left or the top */
    int nY;               /* rw */
    int nLength;          /* rw: cells of the rail */
    int nRange;           /* rw: what the rail stands for */
    int nPosition;        /* rw */
    int nOrient;          /* rw: ORIENTATION */
    int nVisible;         /* rw */
    KULCALLBACK onUpdate; /* rw: not run */
} KULGAUGEBAR;

typedef struct kuldescrfldelement {
    char* szText;                    /* ro */
    char* szBoxText;                 /* ro: (nRefWidth - 2) * (nRefHeight - 2) + 1 characters */
    struct kuldescrfldelement* Next; /* ro */
    KULCALLBACK onUpdate;            /* rw: not used */
} KULDESCRFLDELEMENT;

typedef struct kuldescrfield {
    int nColorSelect;            /* rw: of the selected text, the bar and the box */
    int nColorBack;              /* rw: of the other texts */
    int nX;                      /* rw */
    int nY;                      /* rw */
    int nBarLength;              /* rw */
    int nRefWidth;               /* ro */
    int nRefHeight;              /* ro */
    KULDESCRFLDELEMENT* Element; /* ro */
    int nSelect;                 /* rw: position of the selected element, -1 for none */
    int nVisible;                /* rw */
    KULCALLBACK onUpdate;        /* rw: not run */
} KULDESCRFIELD;

typedef struct kulbox {
    int nColorSet;        /* rw */
    int nX;               /* rw */
    int nY;               /* rw */
    int nWidth;           /* rw */
    int nHeight;          /* rw */
    int nBorder;          /* rw: BORDERS */
    int nVisible;         /* rw */
    KULCALLBACK onUpdate; /* rw: not run */
} KULBOX;

typedef struct kulline {
    int nColorSet;        /* rw */
    int nX;               /* rw */
    int nY;               /* rw */
    int nLength;          /* rw: cells; one more is drawn without ends */
    int nEnds;            /* rw: LINEENDS: with tees that join a frame, or plain */
    int nOrient;          /* rw: VERTICAL, anything else is LATERAL */
    int nVisible;         /* rw */
    KULCALLBACK onUpdate; /* rw: not run */
} KULLINE;

typedef struct kullabel {
    int nColorSet;        /* rw */
    int nColorBorder;     /* rw: not used */
    int nX;               /* rw */
    int nY;               /* rw */
    int nWidth;           /* ro */
    int nHeight;          /* ro */
    int nAlignment;       /* rw: ALIGN */
    int nBorder;          /* ro: BORDERS */
    char* szText;         /* ro */
    int nVisible;         /* rw */
    KULCALLBACK onUpdate; /* rw: not run */
} KULLABEL;

/* ---- Selection and navigation --------------------------------------------------------------- */

/** Copies thisCurrent into that record; NULL changes nothing. */
KULGUI_API void SetCurrentSelection(const CURRENT* thisCurrent);

/** Both in one: stores when nSetting is 1, returns the record in any case. */
KULGUI_API CURRENT* CurrentSelection(const CURRENT* thisCurrent, int nSetting);

/** The navigation flags, all F at first; always the same record, the library's. */
KULGUI_API CONTROL* GetControls(void);

/** Copies theseControls into that record; NULL changes nothing. */
KULGUI_API void SetControls(const CONTROL* theseControls);

/** Both in one: stores when nSetting is 1, returns the record in any case. */
KULGUI_API CONTROL* Controls(const CONTROL* theseControls, int nSetting);

/** T when bExitGUI or bExitProgram is T, else F. */
KULGUI_API int ExitUIorGUIorChains(void);

/** These five change no flag. */
KULGUI_API void SetExitUI(void);
KULGUI_API void SetExitGUI(void);
KULGUI_API void SetExitChain(void);
KULGUI_API void GotoNextUserInterface(void);
KULGUI_API void GotoPreviousUserInterface(void);

/** nComp when the chain has an item or component of that number, else 0. */
KULGUI_API int UIComponentTypeByChain(const CHAIN* thisChain, int nComp);

/** Runs a callback and puts the selection back as it was before; NULL does nothing. */
KULGUI_API void ExecOnFunction(KULCALLBACK Function);

/** Draws the dialog that has the focus, its component in focus in the colours of the focus. */
KULGUI_API void ShowUIColors(void);

/** Draw one component in the colours of the focus, or without. */
KULGUI_API void ShowUIComponentFocused(GUI* thisGUI, UI* thisUI);
KULGUI_API void ShowUIComponentUnfocused(GUI* thisGUI, UI* thisUI);

/* ---- Components in general ------------------------------------------------------------------ */

/** Resets the component to the defaults of its kind. KUL_OK, KUL_ERROR for an unknown one. */
KULGUI_API int ConfigUIComponent(int nChain, int nRef);

/** Sets nVisible (T or F) of the component's record. Always KUL_ERROR, also when all is well. */
KULGUI_API int SetUIVisibility(int nChain, int nRef, int nVisible);

/** Makes a component one of kind nType (UI_TYPE) and gives it a cleared record; one that it had is
 * not freed. KUL_OK, KUL_ERROR for NULL, an unknown kind or without memory. The calls below do so
 * for one kind each. */
KULGUI_API int AttachComponentToUI(UI* thisUI, int nType);
KULGUI_API int AttachMenuComponentToUI(UI* thisUI);
KULGUI_API int AttachDynmenuComponentToUI(UI* thisUI);
KULGUI_API int AttachDescrmenuComponentToUI(UI* thisUI);
KULGUI_API int AttachButtonComponentToUI(UI* thisUI);
KULGUI_API int AttachToolbarComponentToUI(UI* thisUI);
KULGUI_API int AttachCheckboxComponentToUI(UI* thisUI);
KULGUI_API int AttachOptionsComponentToUI(UI* thisUI);
KULGUI_API int AttachTextboxComponentToUI(UI* thisUI);
KULGUI_API int AttachFileviewComponentToUI(UI* thisUI);

/** Set a record to its defaults, with the dialog's colours. KUL_OK, KUL_ERROR for NULL. */
KULGUI_API int ConfigMenuComponent(GUI* thisGUI, KULMENU* thisMenu);
KULGUI_API int ConfigDynmenuComponent(GUI* thisGUI, KULDYNMENU* thisMenu);
KULGUI_API int ConfigDescrmenuComponent(GUI* thisGUI, KULDESCRMENU* thisMenu);
KULGUI_API int ConfigButtonComponent(GUI* thisGUI, KULBUTTON* thisButton);
KULGUI_API int ConfigToolbarComponent(GUI* thisGUI, KULTOOLBAR* thisTB);
KULGUI_API int ConfigCheckboxComponent(GUI* thisGUI, KULCHECKBOX* thisCheck);
KULGUI_API int ConfigOptionsComponent(GUI* thisGUI, KULOPTIONS* thisList);
KULGUI_API int ConfigTextboxComponent(GUI* thisGUI, KULTEXTBOX* thisTB);
KULGUI_API int ConfigFileviewComponent(GUI* thisGUI, KULFILEVIEW* thisView);

/** Draws every component; the one at position nCurrentUI of the list, from 0, as focused. */
KULGUI_API void ShowUIComponents(GUI* thisGUI);

/** Draw one component; nFocus 1 takes the colours of the focus. */
KULGUI_API void ShowMenuComponent(GUI* thisGUI, KULMENU* thisMenu, int nFocus);
KULGUI_API void ShowDynmenuComponent(GUI* thisGUI, KULDYNMENU* thisMenu, int nFocus);
KULGUI_API void ShowDescrmenuComponent(GUI* thisGUI, KULDESCRMENU* thisMenu, int nFocus);
KULGUI_API void ShowButtonComponent(GUI* thisGUI, KULBUTTON* thisButton, int nFocus);
KULGUI_API void ShowToolbarComponent(GUI* thisGUI, KULTOOLBAR* thisTB, int nFocus);
KULGUI_API void ShowCheckboxComponent(GUI* thisGUI, KULCHECKBOX* thisCheckbox, int nFocus);
KULGUI_API void ShowOptionsComponent(GUI* thisGUI, KULOPTIONS* theseOptions, int nFocus);
KULGUI_API void ShowTextboxComponent(GUI* thisGUI, KULTEXTBOX* thisTB, int nFocus);
KULGUI_API void ShowFileviewComponent(GUI* thisGUI, KULFILEVIEW* thisView, int nFocus);

/** Draws one button of a toolbar where its nX and nY say. */
KULGUI_API void ShowToolbarButtonComponent(GUI* thisGUI, KULTOOLBAR* thisTB,
                                           KULTOOLBARBUTTON* thisButton, int nFocus);

/** Draws a button 3 rows high, its text centred; nHeight is not used. */
KULGUI_API void DrawButton(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nColorSet,
                           const char* szName);

/** Free components from firstUI on, with their records; stop after the first whose kind reports an
 * error. Returns the last result, KUL_ERROR for NULL. */
KULGUI_API int WipeAllUIComponents(UI* firstUI);

/** Free one record and what it owns. KUL_OK; for NULL KUL_ERROR (button) or KUL_OK (the other
 * ones). */
KULGUI_API int WipeMenuComponent(KULMENU* thisMenu);
KULGUI_API int WipeDynmenuComponent(KULDYNMENU* thisMenu);
KULGUI_API int WipeDescrmenuComponent(KULDESCRMENU* thisMenu);
KULGUI_API int WipeButtonComponent(KULBUTTON* thisButton);
KULGUI_API int WipeToolbarComponent(KULTOOLBAR* thisTB);

/** The same, with another result for what was empty: KUL_ERROR for a list without elements (KUL_OK
 * for NULL), and for a text box without text or NULL. */
KULGUI_API int WipeCheckboxComponent(KULCHECKBOX* thisCheck);
KULGUI_API int WipeOptionsComponent(KULOPTIONS* thisList);
KULGUI_API int WipeTextboxComponent(KULTEXTBOX* thisTB);
KULGUI_API int WipeFileviewComponent(KULFILEVIEW* thisView);

/** Make an element and append it to the list of firstElement, NULL for an empty one, which the
 * caller hooks up and counts: kulmenu_addElement and its like do. Return it; NULL without memory,
 * or for a NULL toolbar, whose nMaxLength grows with the text. */
KULGUI_API KULMENUELEMENT* AddMenuElement(KULMENUELEMENT* firstElement, int nEnable,
                                          const char* szText, KULCALLBACK onSelect,
                                          KULCALLBACK onClick);
KULGUI_API KULDESCRMENUELEMENT* AddDescrmenuElement(KULDESCRMENUELEMENT* firstElement, int nEnable,
                                                    const char* szText, const char* szBoxText,
                                                    KULCALLBACK onSelect, KULCALLBACK onClick);
KULGUI_API KULTOOLBARBUTTON* AddToolbarButton(KULTOOLBAR* thisTB, KULTOOLBARBUTTON* firstButton,
                                              int nEnable, const char* szText, KULCALLBACK onSelect,
                                              KULCALLBACK onClick);
KULGUI_API KULCHECKELEMENT* AddCheckElement(KULCHECKELEMENT* firstElement, int nEnable,
                                            const char* szText, KULCALLBACK onSelect);
KULGUI_API KULOPTIONELEMENT* AddOptionElement(KULOPTIONELEMENT* firstElement, int nEnable,
                                              const char* szText, KULCALLBACK onSelect,
                                              KULCALLBACK onClick);

/** Free the last element of a list. KUL_OK, KUL_EMPTIED when it was the only one (the caller
 * forgets the list), KUL_ERROR for NULL. */
KULGUI_API int RemoveMenuElement(KULMENUELEMENT* firstElement);
KULGUI_API int RemoveDescrmenuElement(KULDESCRMENUELEMENT* firstElement);
KULGUI_API int RemoveToolbarButton(KULTOOLBARBUTTON* firstButton);
KULGUI_API int RemoveCheckElement(KULCHECKELEMENT* firstElement);
KULGUI_API int RemoveOptionElement(KULOPTIONELEMENT* firstElement);

/** Free an element and all after it. KUL_OK, KUL_ERROR for NULL. */
KULGUI_API int WipeMenuElements(KULMENUELEMENT* firstElement);
KULGUI_API int WipeDescrmenuElements(KULDESCRMENUELEMENT* firstElement);
KULGUI_API int WipeToolbarButtons(KULTOOLBARBUTTON* firstButton);
KULGUI_API int WipeCheckElements(KULCHECKELEMENT* firstElement);
KULGUI_API int WipeOptionElements(KULOPTIONELEMENT* firstElement);

/* ---- Lists and text boxes -------------------------------------------------------------------- */

/** The steps of scrolling, by the record alone; a list without rows has an empty view.
 * SetFirst... begins the view with the element at nFirstShowed, SetFirst...FromEnd where the last
 * elements fill the box, SetLast... ends it where the box is full. Check... gives T when
 * the last element in view is cut, else F. GetTotal... gives the rows of all elements. */
KULGUI_API void SetFirstCheckElement(KULCHECKBOX* thisCheckbox);
KULGUI_API void SetFirstCheckElementFromEnd(KULCHECKBOX* thisCheckbox);
KULGUI_API void SetLastCheckElement(KULCHECKBOX* thisCheckbox);
KULGUI_API int CheckLastCheckElementForSpillover(const KULCHECKBOX* thisCheckbox);
KULGUI_API int GetTotalCheckElementHeights(const KULCHECKBOX* thisCheckbox);

/** As their like of the check box lists. */
KULGUI_API void SetFirstOptionElement(KULOPTIONS* theseOptions);
KULGUI_API void SetFirstOptionElementFromEnd(KULOPTIONS* theseOptions);
KULGUI_API void SetLastOptionElement(KULOPTIONS* theseOptions);
KULGUI_API int CheckLastOptionElementForSpillover(const KULOPTIONS* theseOptions);
KULGUI_API int GetTotalOptionElementHeights(const KULOPTIONS* theseOptions);

/** The steps of editing, in the manners of the edition that runs. They change the record and draw
 * nothing. Up and Down move by a row where the box has more than one, Delete at the end of the text
 * takes off its last character. */
KULGUI_API void TextBoxGoHome(KULTEXTBOX* thisBox);
KULGUI_API void TextBoxGoEnd(KULTEXTBOX* thisBox);
KULGUI_API void TextBoxGoRight(KULTEXTBOX* thisBox);
KULGUI_API void TextBoxGoLeft(KULTEXTBOX* thisBox);
KULGUI_API void TextBoxGoUp(KULTEXTBOX* thisBox);
KULGUI_API void TextBoxGoDown(KULTEXTBOX* thisBox);
KULGUI_API void TextBoxBackspace(KULTEXTBOX* thisBox);
KULGUI_API void TextBoxDelete(KULTEXTBOX* thisBox);

/** Writes the character of a key over the one at the cursor, if it is allowed and there is room.
 * With a character set the low byte of the key counts; without one 32 to 255 are allowed. In
 * edition 2 the character is inserted; without a set all that print are allowed. */
KULGUI_API void TextBoxCharacter(KULTEXTBOX* thisBox, int szKeystroke);

/** Draws the inside of a box in a colour set, its cursor if nCursor is SHOWCURSOR. In edition 1
 * with a border its rows go over the right side of it, and with MASK the end of the text shows as
 * one more asterisk. The boxes of dialogs are not drawn by it. */
KULGUI_API void DrawTextBox(GUI* thisGUI, KULTEXTBOX* thisBox, int nColor);

/** Index of the first such character in a text; KUL_ERROR for none or NULL. */
KULGUI_API int FindChar(char cOneChar, const char* szWholeString);

/** Index of the first szStr in szIn, gone through once: a character that breaks a match begins
 * none. KUL_ERROR for none or NULL. */
KULGUI_API int FindString(const char* szStr, const char* szIn);

/* ---- Display items in general --------------------------------------------------------------- */

/** Resets the item to the defaults of its kind. KUL_OK, KUL_ERROR for an unknown one. */
KULGUI_API int ConfigDIComponent(int nChain, int nRef);

/** Sets nVisible (T or F) of the item's record. Always KUL_ERROR, also when all is well. */
KULGUI_API int SetDIVisibility(int nChain, int nRef, int nVisible);

/** Marks the item as configured; draws nothing. KUL_OK, KUL_ERROR for an unknown one. */
KULGUI_API int UpdateDIComponent(int nChain, int nRef);

/** Makes an item one of kind nType (DI_TYPE) and gives it a cleared record; one that it had is not
 * freed. KUL_OK, KUL_ERROR for NULL, an unknown kind or without memory. The calls below do so for
 * one kind each. */
KULGUI_API int AttachComponentToDI(DI* thisDI, int nType);
KULGUI_API int AttachStatbarComponentToDI(DI* thisDI);
KULGUI_API int AttachScrollbarComponentToDI(DI* thisDI);
KULGUI_API int AttachProgbarComponentToDI(DI* thisDI);
KULGUI_API int AttachDescrfieldComponentToDI(DI* thisDI);
KULGUI_API int AttachBoxComponentToDI(DI* thisDI);
KULGUI_API int AttachLineComponentToDI(DI* thisDI);
KULGUI_API int AttachLabelComponentToDI(DI* thisDI);

/** Set a record to its defaults, with the dialog's colours; elements and texts are forgotten, not
 * freed. KUL_OK, KUL_ERROR for NULL. */
KULGUI_API int ConfigStatbarComponent(GUI* thisGUI, KULSTATBAR* thisBar);
KULGUI_API int ConfigScrollbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar);
KULGUI_API int ConfigProgbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar);
KULGUI_API int ConfigDescrfieldComponent(GUI* thisGUI, KULDESCRFIELD* thisField);
KULGUI_API int ConfigBoxComponent(GUI* thisGUI, KULBOX* thisBox);
KULGUI_API int ConfigLineComponent(GUI* thisGUI, KULLINE* thisLine);
KULGUI_API int ConfigLabelComponent(GUI* thisGUI, KULLABEL* thisLabel);

/** These change and draw nothing. KUL_OK. */
KULGUI_API int UpdateStatbarComponent(GUI* thisGUI, KULSTATBAR* thisBar);
KULGUI_API int UpdateScrollbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar);
KULGUI_API int UpdateProgbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar);
KULGUI_API int UpdateDescrfieldComponent(GUI* thisGUI, KULDESCRFIELD* thisField);
KULGUI_API int UpdateBoxComponent(GUI* thisGUI, KULBOX* thisBox);
KULGUI_API int UpdateLineComponent(GUI* thisGUI, KULLINE* thisLine);
KULGUI_API int UpdateLabelComponent(GUI* thisGUI, KULLABEL* thisLabel);

/** Draw one item, unless it is hidden. */
KULGUI_API void ShowStatusBarComponent(GUI* thisGUI, KULSTATBAR* thisBar);
KULGUI_API void ShowScrollbarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar);
KULGUI_API void ShowProgBarComponent(GUI* thisGUI, KULGAUGEBAR* thisBar);
KULGUI_API void ShowDescrfieldComponent(GUI* thisGUI, KULDESCRFIELD* thisField);
KULGUI_API void ShowBoxComponent(GUI* thisGUI, KULBOX* thisBox);
KULGUI_API void ShowLineComponent(GUI* thisGUI, KULLINE* thisLine);
KULGUI_API void ShowLabelComponent(GUI* thisGUI, KULLABEL* thisLabel);

/** Draws one field of a status bar. Leaves the window's attributes cleared. */
KULGUI_API void ShowThisStatusbarElement(GUI* thisGUI, KULSTATBAR* thisBar,
                                         KULSTATELEMENT* thisElement);

/** Draws every item of a dialog that is shown. */
KULGUI_API void ShowDisplayComponents(GUI* thisGUI);

/** Draws the items that changed (nUpdate 0) and marks them drawn (-1). */
KULGUI_API void UpdateDisplayComponents(GUI* thisGUI);

/** Frees the records of the items from firstDI on, not the DI nodes; stops at the first whose kind
 * reports an error. Returns the last result, KUL_ERROR for NULL. */
KULGUI_API int WipeAllDIComponents(DI* firstDI);

/** Free one record with what it owns. KUL_OK; for NULL KUL_OK from the first two, KUL_ERROR from
 * the others. */
KULGUI_API int WipeStatbarComponent(KULSTATBAR* thisBar);
KULGUI_API int WipeDescrfieldComponent(KULDESCRFIELD* thisField);
KULGUI_API int WipeScrollbarComponent(KULGAUGEBAR* thisBar);
KULGUI_API int WipeProgbarComponent(KULGAUGEBAR* thisBar);
KULGUI_API int WipeBoxComponent(KULBOX* thisBox);
KULGUI_API int WipeLineComponent(KULLINE* thisLine);
KULGUI_API int WipeLabelComponent(KULLABEL* thisLabel);

/** Free elements with their texts, from the first on. KUL_OK, KUL_ERROR for NULL. */
KULGUI_API int WipeStatbarElements(KULSTATELEMENT* firstElement);
KULGUI_API int WipeDescrfieldElements(KULDESCRFLDELEMENT* firstElement);

/* ---- Status bars and gauges ------------------------------------------------------------------ */

/** What kulstatbar_getElement does. */
KULGUI_API char* ReturnStatbarElementText(int nChain, int nRef, int nElement);

/** A field of a status bar; NULL for none. */
KULGUI_API KULSTATELEMENT* GetStatbarElementByRef(int nChain, int nRef, int nElement);
KULGUI_API KULSTATELEMENT* GetStatbarElement(KULSTATBAR* thisBar, int nElement);

/** Draws rail and bar into a dialog's window, whether visible or not; nType 1 is a scroll bar, any
 * other a progress bar. A progress bar at the end of its range takes one cell more than its rail.
 */
KULGUI_API void BarShow(GUI* thisGUI, const KULGAUGEBAR* thisBar, int nType);

/** The two halves of BarShow: the rail, and what moves on it. */
KULGUI_API void BarRail(GUI* thisGUI, const KULGAUGEBAR* thisBar, int nType);
KULGUI_API void BarPosition(GUI* thisGUI, const KULGAUGEBAR* thisBar, int nType);

/* ---- Chains and component lists ------------------------------------------------------------- */

/** The primary chain. PrimaryChain and SetPrimaryChain make it if there is none (nFlag not 0);
 * NULL without one. */
KULGUI_API CHAIN* PrimaryChain(int nFlag);
KULGUI_API CHAIN* SetPrimaryChain(void);
KULGUI_API CHAIN* GetPrimaryChain(void);

/** A flag of the program's that forbids kulgui_configPrime: F until set, T after. */
KULGUI_API int PrimaryFlag(int nSetting);
KULGUI_API int SetPrimaryFlag(void);
KULGUI_API int GetPrimaryFlag(void);

/** What kulgui_create does. */
KULGUI_API int CreateChain(int nRef);

/** The first chain of that number, from the primary on; NULL for none. */
KULGUI_API CHAIN* GetChain(int nRef);

/** The newest chain; the primary when it is alone; NULL without one. */
KULGUI_API CHAIN* GetFinalChain(void);

/** Number of chains besides the primary; KUL_ERROR without one. */
KULGUI_API int CountChains(void);

/** Frees a chain and all that is in it; does not take it out of the ring first. KUL_OK, KUL_ERROR
 * for NULL. */
KULGUI_API int WipeChain(CHAIN* thisChain);

/** Frees a chain and those after it up to a NULL link: open the ring before. Returns the last
 * result, KUL_ERROR for NULL. */
KULGUI_API int WipeAllChains(CHAIN* firstChain);

/** Number of the chain that runs; -1 before the first. ActiveChain stores any number but -1. */
KULGUI_API int ActiveChain(int nRef);
KULGUI_API int GetActiveChain(void);
KULGUI_API int SetActiveChain(int nChain);

/** Add a component or an item of kind nType to a dialog. An nRef that is taken, by either, gives
 * KUL_OK and adds nothing. KUL_NO_CHAIN for an unknown chain, KUL_NO_DIALOG for one without dialog,
 * KUL_NO_MEMORY_UI (UI) or KUL_NO_MEMORY_DI (DI) without memory, else the result of
 * AttachComponentToUI or ..DI. */
KULGUI_API int CreateUIComponent(int nChain, int nType, int nRef);
KULGUI_API int CreateDIComponent(int nChain, int nType, int nRef);

/** Append a record to a dialog's list, which owns it from then on. The first component takes the
 * focus when none has it. KUL_OK always; NULL is not added. */
KULGUI_API int AddUIComponent(GUI* thisGUI, UI* thisUI);
KULGUI_API int AddDIComponent(GUI* thisGUI, DI* thisDI);

/** Last of a dialog's list; NULL for an empty list or a NULL dialog. */
KULGUI_API UI* GetLastUIComponent(const GUI* thisGUI);
KULGUI_API DI* GetLastDIComponent(const GUI* thisGUI);
KULGUI_API UI* GetLastUIByGUI(const GUI* thisGUI);
KULGUI_API DI* GetLastDIByGUI(const GUI* thisGUI);

/** The record of that number; NULL for none. */
KULGUI_API UI* GetUIComponentByRef(int nChain, int nRef);
KULGUI_API DI* GetDIComponentByRef(int nChain, int nRef);

/** T when there is a record of that number, else F. */
KULGUI_API int CheckUICompExistence(int nChain, int nRef);
KULGUI_API int CheckDICompExistence(int nChain, int nRef);

/** nComp when the dialog has an item or component of that number, else 0. */
KULGUI_API int ComponentTypeByRef(int nChain, int nComp);
KULGUI_API int ComponentTypeByChain(const CHAIN* thisChain, int nComp);

/** First component of a dialog; NULL for none. */
KULGUI_API UI* GetFirstUIComponentInChain(int nChain);

/** Stores nNewValue in *nCurrValue, unless it is KUL_KEEP. */
KULGUI_API void SetVar(int* nCurrValue, int nNewValue);

/* ---- Terminal and frames -------------------------------------------------------------------- */

/** What NCursesEnv calls to open and to close. */
KULGUI_API int SetupGUIEnvironment(void);
KULGUI_API int EndGUIEnvironment(void);

/** Defines the 56 colour pairs. KUL_OK. */
KULGUI_API int InitializeColorSets(void);

/** Gives a chain a dialog without contents. KUL_OK, KUL_ERROR for NULL, KUL_HAS_DIALOG if it has
 * one, KUL_NO_MEMORY without memory. */
KULGUI_API int CreateGUI(CHAIN* thisChain);

/** Sets a dialog to the defaults: those of the primary when its window is the standard screen.
 * Component lists are forgotten, not freed. KUL_OK, KUL_ERROR for NULL or without primary dialog.
 */
KULGUI_API int LoadGUIDefaults(GUI* thisGUI);

/** Gives the primary dialog the standard screen and its defaults. KUL_OK, KUL_NO_PRIMARY without a
 * primary chain, KUL_NO_PRIMARY_DIALOG if it has no dialog. */
KULGUI_API int ConfigGUIPrime(void);

/** Draws the chain's dialog frame. KUL_OK, KUL_ERROR for NULL. */
KULGUI_API int ConfigGUI(CHAIN* thisChain);

/** Columns and rows of a window; KUL_ERROR for NULL. */
KULGUI_API int GetWindowWidth(const WINDOW* win);
KULGUI_API int GetWindowHeight(const WINDOW* win);

/** Draws a dialog's frame, title and shadow, with its windows made on first use; shows it. */
KULGUI_API void DlgBox(GUI* thisGUI);

/** Show and hide a frame's panels; KillDlg also deletes its windows; the panels
 * stay, for the program to delete. */
KULGUI_API void ShowDlg(DLG* dialog);
KULGUI_API void HideDlg(DLG* dialog);
KULGUI_API void KillDlg(DLG* dialog);

/** Draws the background and title of the primary dialog, or the frame of any other. */
KULGUI_API void BackgroundDisplay(CHAIN* thisChain);

/* ---- Keys and polling ----------------------------------------------------------------------- */

/** Throws away what was typed ahead, waits up to 50 ms for a key and returns its code; 0 for none
 * or for an unknown sequence. Inside of a sequence it waits up to 25 ms more for each byte. A line
 * at its end takes the 50 ms and gives 0. Edition 2: throws nothing away; inside of a sequence it
 * waits up to a second. */
KULGUI_API int Inkeys(void);

/** 1 when nPollingValue seconds have passed since the first call after the last 1, else 0. */
KULGUI_API int Poll(int nPollingValue);

/** About once a second: runs onPoll of every dialog that is shown and draws those again, and the
 * one in focus. */
KULGUI_API void ExecPolling(void);

/** These do nothing. */
KULGUI_API void ExecuteFocusFunction(GUI* thisGUI);
KULGUI_API void ExecuteUnfocusFunction(GUI* thisGUI);
KULGUI_API void ExecutePollFunction(GUI* thisGUI);
KULGUI_API void ExecuteDestroyFunction(GUI* thisGUI);
KULGUI_API void RunUserInterface(void);
KULGUI_API void ExecCurrentChain(void);

/* ---- Drawing -------------------------------------------------------------------------------- *
 *
 * All draw into a window in a colour set; none updates the terminal. Cells outside are skipped.
 */

/** A frame of nHeight by nWidth cells. */
KULGUI_API void DrawBorder(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nBackColor);

/** Lines of nWidth + 1 or nHeight + 1 cells to the right or down; the thick ones are checkered. */
KULGUI_API void DrawHLine(WINDOW* win, int nY, int nX, int nWidth, int nColorSet);
KULGUI_API void DrawVLine(WINDOW* win, int nY, int nX, int nHeight, int nColorSet);
KULGUI_API void DrawThickHLine(WINDOW* win, int nY, int nX, int nWidth, int nColorSet);
KULGUI_API void DrawThickVLine(WINDOW* win, int nY, int nX, int nHeight, int nColorSet);

/** Lines of exactly nWidth or nHeight cells that end in tees; nTee is the row, the column. */
KULGUI_API void DrawHTeeLine(WINDOW* win, int nTee, int nX, int nWidth, int nBackColor);
KULGUI_API void DrawVTeeLine(WINDOW* win, int nY, int nTee, int nHeight, int nBackColor);

/** Blanks in a rectangle or the whole window. The reverse ones leave the window's attributes
 * cleared. */
KULGUI_API void Fill(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nFillColor);
KULGUI_API void FillReverse(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nFillColor);
KULGUI_API void WinFill(WINDOW* win, int nColorset);
KULGUI_API void WinFillReverse(WINDOW* win, int nColorset);

/** Column offset that centres nStrLen characters in nSpace columns; odd in even leans left. */
KULGUI_API int Offset(int nSpace, int nStrLen);

/** Writes cOneChar nLength times, without a terminator. */
KULGUI_API void FillString(char* szBuffer, int nLength, char cOneChar);

/* ---- Texts ---------------------------------------------------------------------------------- *
 *
 * A text is wrapped to rows of nWidth columns. A row ends at a newline, or when it is full: the
 * word that it cuts then starts the next row, even one that ends with the row, unless the row's
 * last column holds a space. A word that is as long as a row is taken off from its front, an empty
 * row for each character, until the rest fits; in edition 2 one with a letter beyond ASCII breaks
 * between letters, and all of it is shown. A width below 1 gives no rows.
 */

/** A place in a list of starts of lines. */
typedef struct textline {
    long int nLine;
    struct textline* Prev;
    struct textline* Next;
} TEXTLINE;

/** Draws a text in a colour set from column nXPos and row nYPos on, without clearing the rest of
 * its rows. Returns the number of rows. */
KULGUI_API int WrapText(WINDOW* win, int nXPos, int nYPos, int nWidth, int nColor,
                        const char* szText);

/** The same for nHeight rows at most. nAlignment is not used: rows start at nXPos. */
KULGUI_API void NewStrToBox(WINDOW* win, int nXPos, int nYPos, int nWidth, int nHeight, int nColor,
                            int nAlignment, const char* szText);

/** Number of rows of a text. */
KULGUI_API int GetWrapTextHeight(int nWidth, const char* szText);

/** Always NULL; the file is not opened. */
KULGUI_API TEXTLINE* GenerateWrapMarks(const char* szFileName, int nWidth, int bIndent);

/** Where a line at nStart begins behind its leading spaces, as an index; nStart when there are
 * none, or nothing else within nLength. */
KULGUI_API int ReturnLineStart(const char* szText, int nStart, int nLength);

/** Index of the last character of a line at nStart that has nLength columns: the end of a text
 * shorter than nLength or than what is left, else the first newline, else where a word ends with
 * the line, else the space before the word that is cut, nStart without one. Where a blank follows
 * the line, blanks at its end are left out. KUL_ERROR for a start outside of the text. Indexes are
 * bytes, nLength is columns; a word that fills the line and has a letter beyond ASCII is cut where
 * the line is full (edition 2). */
KULGUI_API int ReturnLineEnd(const char* szText, int nStart, int nLength);

/** Distance from nStart to the next newline; KUL_ERROR for none, or when its index is above
 * nLength. */
KULGUI_API int ReturnEOLPosition(const char* szText, int nStart, int nLength);

/** Replace a character: everywhere, or from index 0 up to and with nLength; the terminator counts
 * as well. */
KULGUI_API void SwapChar(char* str, char this_char, char that_char);
KULGUI_API void SwapnChar(char* str, char this_char, char that_char, int nLength);

/** Copies nLength characters, or up to the terminator, which is not copied. */
KULGUI_API void CopyStrWithoutEOS(char* szDest, const char* szSrc, int nLength);

#endif /* KULGUI_NO_INSIDE */

#ifdef __cplusplus
}
#endif

#endif
