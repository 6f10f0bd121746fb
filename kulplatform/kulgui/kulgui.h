/* SPDX-License-Identifier: MIT
 *
 * kulgui: dialogs on a character terminal, for small Linux devices.
 *
 * A program describes its dialogs with the calls below, hands over control with kulgui_exec and
 * gets its callbacks run. This header is the manual; what holds for every call stands here once.
 *
 *  1. References. A dialog lives in a chain and is named by the chain's number (nChain); what is
 *     in the dialog is named by that number and one of its own (nRef), unique in the dialog. The
 *     program chooses both. Use 1 and up for nRef: ComponentTypeByRef cannot tell 0 from "none".
 *  2. Truth is 0. T is 0 and F is -1, and visibility, borders and flags follow: 0 is shown, -1 is
 *     hidden. Do not test them as C truth values.
 *  3. Results. 0 is success and a negative number an error, where a call says nothing else. The
 *     calls print nothing, set no errno and never end the program. Unknown references, NULL and
 *     numbers out of range get the documented code or do nothing.
 *  4. Keep value. Where a call says so, the argument KUL_KEEP leaves a setting at its default.
 *  5. Places. nX counts columns and nY rows from 0 at the top left corner of the dialog's window,
 *     frame included; only a dialog's own nX and nY count from the corner of the screen. nWidth
 *     and nHeight are columns and rows. What lies outside of the window is not drawn.
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
 *     a signal that ends the program.
 */
#ifndef KULGUI_H
#define KULGUI_H

#include <curses.h>
#include <panel.h>

#if defined(__GNUC__)
#define KULGUI_API __attribute__((visibility("default")))
#else
#define KULGUI_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Constants ------------------------------------------------------------------------------ */

/** Keep the default (numeric settings), or: choose a number (kulgui_create). */
#define KUL_KEEP (-11111)

/** Result of kulgui_exec and of key handlers: the dialog was left by kulgui_leave. */
#define KUL_LEFT 123456

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
typedef enum comp_type { NONE = 0, DICOMP = 1, UICOMP = 2 } COMP_TYPE;

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

/** Kinds of items that only show. */
typedef enum di_type { STATBAR, SCROLLBAR, PROGBAR, DESCRFIELD, BOX, LINE, LABEL } DI_TYPE;

/** What Inkeys returns for keys that have a name; other keys are their byte, as a signed char. */
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
    KS_RIGHT
};

/** Tails of the escape sequences behind the keys from KS_F1 to KS_RIGHT, in that order. */
#define KUL_KEYSTROKES 22
KULGUI_API extern const char* const szKeystrokes[KUL_KEYSTROKES];

/* ---- Records -------------------------------------------------------------------------------- */

typedef void (*KULCALLBACK)(void);

/** One interactive component of a dialog. Pointer leads to the record of its kind. */
typedef struct ui {
    int nType; /* UI_TYPE */
    int nRef;
    struct ui* Prev;
    struct ui* Next;
    void* Pointer;
    int nUpdate;
} UI;

/** One display item of a dialog. Pointer leads to the record of its kind. */
typedef struct di {
    int nType; /* DI_TYPE */
    int nRef;
    struct di* Next;
    void* Pointer;
    int nUpdate; /* 0: changed, -1: drawn, 1: configured */
} DI;

/** One dialog. */
typedef struct gui {
    WINDOW* winMain; /* NULL until first shown; the standard screen for the primary dialog */
    WINDOW* winShadow;
    PANEL* pnlMain;
    PANEL* pnlShadow;
    int nX;
    int nY;
    int nWidth;
    int nHeight;
    const char* szTitle;
    int nBorder;        /* BORDERS; kept, the frame is drawn in any case */
    int nVisible;       /* T or F */
    int nCurrentUI;     /* nRef of the component that has the focus, -1 for none */
    int nColorStandard; /* COLORSET of the dialog itself */
    int nColorFocus;    /* and what its components start with */
    int nColorUnfocus;
    int nColorDisable;
    const char* szLangFile;
    KULCALLBACK onFocus;   /* kept, not run */
    KULCALLBACK onUnfocus; /* kept, not run */
    KULCALLBACK onPoll;    /* run about once a second while the dialog is shown */
    KULCALLBACK onDestroy; /* kept, not run */
    UI* UserInterface;
    DI* Display;
} GUI;

/** One node of the ring of dialogs. */
typedef struct chain {
    struct chain* Prev; /* both NULL while the primary is alone */
    struct chain* Next;
    int nRef;
    GUI* Pointer;
} CHAIN;

/** A frame with a shadow that is no dialog. The program makes the windows and panels. */
typedef struct dlg {
    WINDOW* winMain;
    WINDOW* winShadow;
    PANEL* pnlMain;
    PANEL* pnlShadow;
    int nVisible;
    const char* szTitle;
} DLG;

/** What has the focus, and what is selected in it. Callbacks read it. */
typedef struct current {
    int nChain;
    int nUserInterface; /* nRef of the component */
    int nType;          /* UI_TYPE */
    int nPosition;
    int nSelect;
    int nSubSelect;
} CURRENT;

/** Navigation flags, T or F each. */
typedef struct control {
    int bMoveToNextUI;
    int bMoveToPrevUI;
    int bExitGUI;
    int bExitProgram;
} CONTROL;

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

/** Makes a chain numbered nChain. With KUL_KEEP the first chain becomes 0; a later one gets the
 * first number above the count of dialogs that is already in use, wrapping round, so name later
 * chains yourself. Returns the number, -10000 if it is in use, -1 without memory. */
KULGUI_API int kulgui_create(int nChain);

/** Gives the primary chain its full-screen dialog and the number nChain, in place of what it had.
 * Colour sets: KUL_KEEP takes BLACK_WHITE, CYAN_BLUE, BLUE_WHITE, CYAN_WHITE. szTitle stands in
 * the top row. szFilePath is kept as the language file's name. Returns 0, -10001 when
 * SetPrimaryFlag was called before, -10006 without a primary chain or memory. */
KULGUI_API int kulgui_configPrime(int nChain, int nColorStandard, int nColorFocus,
                                  int nColorUnfocus, int nColorDisable, const char* szTitle,
                                  KULCALLBACK onFocus, KULCALLBACK onPoll, KULCALLBACK onUnfocus,
                                  KULCALLBACK onDestroy, const char* szFilePath);

/** Gives chain nChain its dialog, not yet shown; one that is there already starts anew, without
 * components. Colour sets: KUL_KEEP takes RED_BLUE, RED_MAGENTA, RED_WHITE, RED_CYAN. nBorder is
 * a BORDERS. nX and nY are the screen's column and row of the top left corner, nWidth and nHeight
 * the size with the frame; the shadow adds one of each. KUL_KEEP leaves nBorder at BORDER and a
 * place or size as it was, 0 at first. The primary chain must have its dialog first. szFilePath
 * is not used. Returns 0, -10009 for an unknown chain. */
KULGUI_API int kulgui_config(int nChain, int nColorStandard, int nColorFocus, int nColorUnfocus,
                             int nColorDisable, const char* szTitle, int nBorder, int nX, int nY,
                             int nWidth, int nHeight, KULCALLBACK onFocus, KULCALLBACK onPoll,
                             KULCALLBACK onUnfocus, KULCALLBACK onDestroy, const char* szFilePath);

/** Opens the terminal if needed, shows the dialog if it never was, and runs it: the component in
 * focus gets the keys until the dialog is left. May be called from a callback. Returns KUL_LEFT
 * after kulgui_leave; -10000 when the dialog has no component to focus, its component or itself
 * was destroyed, or the line was hung up; -1 for an unknown chain, one without dialog, or without
 * a usable terminal. The primary dialog is not drawn first: kulgui_show does that. */
KULGUI_API int kulgui_exec(int nChain);

/** Shows a dialog with all that is in it; the terminal must be open. Always 0. */
KULGUI_API int kulgui_show(int nChain);

/** Takes a dialog off the screen; it keeps what is in it. Always 0. */
KULGUI_API int kulgui_hide(int nChain);

/** Frees a chain with its dialog, windows and components, also while it runs: its kulgui_exec
 * then returns -10000. Destroying the primary chain destroys all; kulgui_create begins anew.
 * Returns 0, -1 for an unknown chain. */
KULGUI_API int kulgui_destroy(int nChain);

/** Gives the terminal back. Frees no chain. Always 0. */
KULGUI_API int kulgui_destroyAll(void);

/** These four do nothing and return 0. */
KULGUI_API int kulgui_exit(void);
KULGUI_API int kulgui_hasExited(void);
KULGUI_API int kulgui_getExitValue(void);
KULGUI_API int kulgui_update(void);

/** Ends the running loop of a dialog: once the callback that calls this is over, the component in
 * focus gets its onUnfocus and kulgui_exec returns KUL_LEFT. Forgotten when no loop of the dialog
 * runs. Returns 0, -1 for an unknown chain or one without dialog. */
KULGUI_API int kulgui_leave(int nChain);

/** Moves the focus to component nRef; a running loop follows once the callback is over, after the
 * onUnfocus of the component that had it. Returns 0, -1 when there is no such component. */
KULGUI_API int kulgui_setFocus(int nChain, int nRef);

/** With T, Tab and Escape go to the next and the previous component from every kind, also from
 * those that keep these keys by themselves (buttons and menus). F, the start, leaves that to the
 * kinds. Returns 0, -1 for an unknown chain or one without dialog. */
KULGUI_API int kulgui_setTabbing(int nChain, int bTabbing);

/* ---- Buttons -------------------------------------------------------------------------------- *
 *
 *     ┌───────┐
 *     │  Yes  │      Enter: onClick
 *     └───────┘
 */

typedef struct kulbutton {
    int nColorFocus;
    int nColorUnfocus;
    int nColorDisable;
    int nX;
    int nY;
    int nWidth; /* with the frame; the height is 3 */
    char* szText;
    int nVisible;
    int nEnable; /* 1: enabled; else drawn in nColorDisable */
    int nExitCode;
    int* nExitFlag;
    struct kulbutton* Prev;
    struct kulbutton* Next;
    KULCALLBACK onFocus;
    KULCALLBACK onUnfocus;
    KULCALLBACK onSelect;
    KULCALLBACK onClick;
} KULBUTTON;

/** Adds a button to a dialog. Returns 0, -10022 when a component has that nRef, -10009 for an
 * unknown chain, -10010 for one without dialog, -10019 or -1 without memory. The variants make
 * the same button. */
KULGUI_API int kulbutton_create(int nChain, int nRef);
KULGUI_API int kulokbutton_create(int nChain, int nRef);
KULGUI_API int kulcancelbutton_create(int nChain, int nRef);
KULGUI_API int kulexitbutton_create(int nChain, int nRef);

/** Sets a button up. The three colour sets: KUL_KEEP takes the dialog's; nColorBorder is not used.
 * nX, nY: top left corner; nWidth: columns with the frame. nEnable: 1 or not; a disabled button
 * looks so, and works. szText is copied and centred. onFocus and onSelect run when the button
 * gets the focus, onClick at Enter, onUnfocus when tabbing or one of kulgui_leave and
 * kulgui_setFocus takes the focus away. Returns 0, -1 for an unknown component or without memory.
 */
KULGUI_API int kulbutton_config(int nChain, int nRef, int nColorFocus, int nColorUnfocus,
                                int nColorDisable, int nColorBorder, int nX, int nY, int nWidth,
                                int nEnable, const char* szText, KULCALLBACK onFocus,
                                KULCALLBACK onUnfocus, KULCALLBACK onSelect, KULCALLBACK onClick);

/** Reset the button to its defaults and store none of the arguments: it has no text. Use
 * kulbutton_config for a button with a caption. Return 0, -1 for an unknown component. */
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

/** Show or hide the component from the next drawing on. Always -1, also when all is well. */
KULGUI_API int kulbutton_show(int nChain, int nRef);
KULGUI_API int kulbutton_hide(int nChain, int nRef);
KULGUI_API int kulokbutton_show(int nChain, int nRef);
KULGUI_API int kulokbutton_hide(int nChain, int nRef);
KULGUI_API int kulcancelbutton_show(int nChain, int nRef);
KULGUI_API int kulcancelbutton_hide(int nChain, int nRef);
KULGUI_API int kulexitbutton_show(int nChain, int nRef);
KULGUI_API int kulexitbutton_hide(int nChain, int nRef);

/** Gives a button the keys until it loses the focus. Returns 10 or -10 for the next or previous
 * component (10 at once when it is hidden or no button), 0 after kulgui_setFocus, KUL_LEFT after
 * kulgui_leave, -10000 when it is gone or the line was hung up. */
KULGUI_API int kulbutton_execKeys(int nChain, int nRef);

/* ---- Selection and navigation --------------------------------------------------------------- */

/** The record of what has the focus; always the same one, the library's. */
KULGUI_API CURRENT* GetCurrentSelection(void);

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

/** -1 while neither bExitGUI nor bExitProgram is T, else 0. */
KULGUI_API int ExitUIorGUIorChains(void);

/** These five change no flag. */
KULGUI_API void SetExitUI(void);
KULGUI_API void SetExitGUI(void);
KULGUI_API void SetExitChain(void);
KULGUI_API void GotoNextUserInterface(void);
KULGUI_API void GotoPreviousUserInterface(void);

/** nComp when the chain has an item or component of that number, else 0. */
KULGUI_API int UIComponentTypeByChain(const CHAIN* thisChain, int nComp);

/** The UI_TYPE of what has the focus. */
KULGUI_API int GetCurrentComponentType(void);

/** The selected element of what has the focus, counted from 0, whatever its kind. */
KULGUI_API int GetCurrentOptionSelection(void);
KULGUI_API int GetCurrentCheckboxSelection(void);
KULGUI_API int GetCurrentSelectedToolbarButton(void);
KULGUI_API int GetCurrentSelectedMenuElement(void);

/** Runs a callback and puts the selection back as it was before; NULL does nothing. */
KULGUI_API void ExecOnFunction(KULCALLBACK Function);

/** Draws the dialog that has the focus, its component in focus in the colours of the focus. */
KULGUI_API void ShowUIColors(void);

/** Draw one component in the colours of the focus, or without. */
KULGUI_API void ShowUIComponentFocused(GUI* thisGUI, UI* thisUI);
KULGUI_API void ShowUIComponentUnfocused(GUI* thisGUI, UI* thisUI);

/* ---- Components in general ------------------------------------------------------------------ */

/** Resets the component to the defaults of its kind. 0, -1 for an unknown one. */
KULGUI_API int ConfigUIComponent(int nChain, int nRef);

/** Sets nVisible (T or F) of the component's record. Always -1, also when all is well. */
KULGUI_API int SetUIVisibility(int nChain, int nRef, int nVisible);

/** Gives a component its record of kind nType (UI_TYPE), cleared. 0, -1 for NULL, an unknown kind
 * or without memory. The calls below do so for one kind each. */
KULGUI_API int AttachComponentToUI(UI* thisUI, int nType);
KULGUI_API int AttachButtonComponentToUI(UI* thisUI);

/** Set a record to its defaults, with the dialog's colours. 0, -1 for NULL. */
KULGUI_API int ConfigButtonComponent(GUI* thisGUI, KULBUTTON* thisButton);

/** Draws every component; the one at position nCurrentUI of the list, from 0, as focused. */
KULGUI_API void ShowUIComponents(GUI* thisGUI);

/** Draw one component; nFocus 1 takes the colours of the focus. */
KULGUI_API void ShowButtonComponent(GUI* thisGUI, KULBUTTON* thisButton, int nFocus);

/** Draws a button 3 rows high, its text centred; nHeight is not used. */
KULGUI_API void DrawButton(WINDOW* win, int nY, int nX, int nHeight, int nWidth, int nColorSet,
                           const char* szName);

/** Free components from firstUI on, with their records; stop after the first whose kind reports
 * an error. Returns the last result, -1 for NULL. */
KULGUI_API int WipeAllUIComponents(UI* firstUI);

/** Free one record. 0, -1 for NULL. */
KULGUI_API int WipeButtonComponent(KULBUTTON* thisButton);

/* ---- Display items in general --------------------------------------------------------------- */

/** Resets the item to the defaults of its kind. 0, -1 for an unknown one. */
KULGUI_API int ConfigDIComponent(int nChain, int nRef);

/** Sets nVisible (T or F) of the item's record. Always -1, also when all is well. */
KULGUI_API int SetDIVisibility(int nChain, int nRef, int nVisible);

/** Marks the item as configured; draws nothing. 0, -1 for an unknown one. */
KULGUI_API int UpdateDIComponent(int nChain, int nRef);

/** Gives an item its record of kind nType (DI_TYPE), cleared. 0, -1 for NULL, an unknown kind or
 * without memory. */
KULGUI_API int AttachComponentToDI(DI* thisDI, int nType);

/** Draws every item of a dialog that is shown. */
KULGUI_API void ShowDisplayComponents(GUI* thisGUI);

/** Draws the items that changed (nUpdate 0) and marks them drawn (-1). */
KULGUI_API void UpdateDisplayComponents(GUI* thisGUI);

/** Frees the records of the items from firstDI on, not the DI nodes; stops at the first whose kind
 * reports an error. Returns the last result, -1 for NULL. */
KULGUI_API int WipeAllDIComponents(DI* firstDI);

/* ---- Chains and component lists ------------------------------------------------------------- */

/** The primary chain. PrimaryChain and SetPrimaryChain make it if there is none (nFlag not 0);
 * NULL without one. */
KULGUI_API CHAIN* PrimaryChain(int nFlag);
KULGUI_API CHAIN* SetPrimaryChain(void);
KULGUI_API CHAIN* GetPrimaryChain(void);

/** A flag of the program's that forbids kulgui_configPrime: -1 until set, 0 after. */
KULGUI_API int PrimaryFlag(int nSetting);
KULGUI_API int SetPrimaryFlag(void);
KULGUI_API int GetPrimaryFlag(void);

/** What kulgui_create does. */
KULGUI_API int CreateChain(int nRef);

/** The first chain of that number, from the primary on; NULL for none. */
KULGUI_API CHAIN* GetChain(int nRef);

/** The newest chain; the primary when it is alone; NULL without one. */
KULGUI_API CHAIN* GetFinalChain(void);

/** Number of chains besides the primary; -1 without one. */
KULGUI_API int CountChains(void);

/** Frees a chain and all that is in it; does not take it out of the ring first. 0, -1 for NULL. */
KULGUI_API int WipeChain(CHAIN* thisChain);

/** Frees a chain and those after it up to a NULL link: open the ring before. Returns the last
 * result, -1 for NULL. */
KULGUI_API int WipeAllChains(CHAIN* firstChain);

/** Number of the chain that runs; -1 before the first. ActiveChain stores any number but -1. */
KULGUI_API int ActiveChain(int nRef);
KULGUI_API int GetActiveChain(void);
KULGUI_API int SetActiveChain(int nChain);

/** Add a component or an item of kind nType to a dialog. An nRef that is taken, by either, gives
 * 0 and adds nothing. -10009 for an unknown chain, -10010 for one without dialog, -10019 (UI) or
 * -10011 (DI) without memory, else the result of AttachComponentToUI or ..DI. */
KULGUI_API int CreateUIComponent(int nChain, int nType, int nRef);
KULGUI_API int CreateDIComponent(int nChain, int nType, int nRef);

/** Append a record to a dialog's list, which owns it from then on. The first component takes the
 * focus when none has it. 0 always; NULL is not added. */
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

/** 0 when there is a record of that number, else -1. */
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

/** nRef 1 opens the terminal, 2 closes it, 0 says whether it is open (0) or not (-1). Opening
 * gives 0, or -1 without a usable terminal; closing 0; any other nRef comes back as it is. */
KULGUI_API int NCursesEnv(int nRef);

/** What NCursesEnv calls to open and to close. */
KULGUI_API int SetupGUIEnvironment(void);
KULGUI_API int EndGUIEnvironment(void);

/** Defines the 56 colour pairs. 0. */
KULGUI_API int InitializeColorSets(void);

/** Gives a chain a dialog without contents. 0, -1 for NULL, -10008 if it has one, -10007 without
 * memory. */
KULGUI_API int CreateGUI(CHAIN* thisChain);

/** Sets a dialog to the defaults: those of the primary when its window is the standard screen.
 * Component lists are forgotten, not freed. 0, -1 for NULL or without primary dialog. */
KULGUI_API int LoadGUIDefaults(GUI* thisGUI);

/** Gives the primary dialog the standard screen and its defaults. 0, -10002 without a primary
 * chain, -10004 if it has no dialog. */
KULGUI_API int ConfigGUIPrime(void);

/** Draws the chain's dialog frame. 0, -1 for NULL. */
KULGUI_API int ConfigGUI(CHAIN* thisChain);

/** Columns and rows of a window; -1 for NULL. */
KULGUI_API int GetWindowWidth(const WINDOW* win);
KULGUI_API int GetWindowHeight(const WINDOW* win);

/** Draws a dialog's frame, title and shadow, with its windows made on first use; shows it. */
KULGUI_API void DlgBox(GUI* thisGUI);

/** Show and hide a frame's panels; KillDlg also deletes its windows. */
KULGUI_API void ShowDlg(DLG* dialog);
KULGUI_API void HideDlg(DLG* dialog);
KULGUI_API void KillDlg(DLG* dialog);

/** Draws the background and title of the primary dialog, or the frame of any other. */
KULGUI_API void BackgroundDisplay(CHAIN* thisChain);

/* ---- Keys and polling ----------------------------------------------------------------------- */

/** Throws away what was typed ahead, waits up to 50 ms for a key and returns its code; 0 for none
 * or for an unknown sequence. */
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

#ifdef __cplusplus
}
#endif

#endif
