/* SPDX-License-Identifier: MIT
 *
 * The demonstration: a desktop, a menu of pages, and a dialog for each page. Pages are made anew
 * whenever they are opened and destroyed when they are left.
 */
#ifndef DEMO_H
#define DEMO_H

#include <kulgui.h>

#include <stddef.h>

/* Chains. */
enum { DESKTOP, MENU_OF_PAGES, PAGE };

/* Components that every page may have; its own start after them. */
enum { BACK_BAR = 1, OWN };

/* Colours of what stands on a page. */
enum { PAGE_COLOR = BLACK_WHITE, HERE = WHITE_BLUE, THERE = BLACK_CYAN, OFF = BLUE_WHITE };

/* Makes the dialog of a page, in the middle of the screen and no larger than it; nWidth and
 * nHeight are what it would like to have. Returns it, its size filled in; NULL without memory. */
const GUI* openPage(const char* szTitle, int nWidth, int nHeight, KULCALLBACK onPoll);

/* Adds the toolbar with Back and Quit in the last rows above the frame. */
void addBackBar(const GUI* page);

/* Runs the page until it is left. */
void runPage(void);

/* Leaves the page; leaves the demonstration. */
void goBack(void);
void quit(void);

/* Sets up a label without frame on a page: one row of nWidth columns, of which a text that is shown
 * whole leaves two free. */
void addText(int nRef, int nX, int nY, int nWidth, const char* szText);

/* The pages. */
void machinePage(void);
void displayPage(void);
void zonesPage(void);
void networkPage(void);
void accessPage(void);
void languagesPage(void);
void aboutPage(void);
void logPage(void);

/* The file that the last page shows. */
void setLogFile(const char* szFile);

/* Facts of this machine, as short texts. Each has some forms, counted by nForm from 0. */
enum { HOST, KERNEL, UPTIME, LOAD, MEMORY, FACTS };
const char* factText(int nFact, int nForm);

/* One entry of the memory statistics, in MiB; 0 when there is none. */
long memoryEntry(const char* szName);

/* Percent of memory and of the root file system in use; load of the last minute, in percent. */
int memoryPercent(void);
int diskPercent(void);
int loadPercent(void);

/* Read the start of a file, or of one below /proc (the environment variable KULGUI_DEMO_PROC names
 * another directory), into a text; an empty one when it cannot be read. */
void readText(const char* szFile, char* szText, size_t size);
void readProc(const char* szName, char* szText, size_t size);

#endif
