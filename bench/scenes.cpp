// SPDX-License-Identifier: MIT
#include "scenes.hpp"

#include <algorithm>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <string>

#include <sys/mman.h>
#include <unistd.h>

#include "gui/description.hpp"
#include "gui/draw.hpp"
#include "gui/resize.hpp"
#include "gui/screen.hpp"
#include "kulgui.h"

namespace {

constexpr int kDialog = 1;
constexpr int kX = 20;
constexpr int kY = 5;
constexpr int kWidth = 40;
constexpr int kHeight = 14;
constexpr int kButtonX = 2;
constexpr int kButtonY = 5;
constexpr int kButtonStep = 12;
constexpr int kButtonWidth = 10;

const kulbench::Scene* played = nullptr;
long keysLeft = 0;
int terminal = -1;
long sent = 0;
bool showsCursor = true;

void addButton(int nRef, int nX, int nY, const char* szText)
{
    kulbutton_create(kDialog, nRef);
    kulbutton_config(kDialog, nRef, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, nX, nY, kButtonWidth, 1,
                     szText, nullptr, nullptr, nullptr, [] {});
}

void buildButtons(int nElements)
{
    for (int i = 0; i < nElements; ++i)
        addButton(i + 1, kButtonX + i * kButtonStep, kButtonY, "Button");
}

void addItem(int nRef, int nKind, int nPlace)
{
    const int nX = 1 + nPlace % 4 * 9;
    const int nY = 1 + nPlace / 4 * 2;
    switch (nKind) {
    case 0:
        kullabel_create(kDialog, nRef);
        kullabel_config(kDialog, nRef, KUL_KEEP, KUL_KEEP, nX, nY, 8, 1, LEFT, NOBORDER, "Label");
        break;
    case 1:
        kulprogbar_create(kDialog, nRef);
        kulprogbar_config(kDialog, nRef, KUL_KEEP, KUL_KEEP, nX, nY, 8, nPlace, 20, LATERAL);
        break;
    case 2:
        kulbox_create(kDialog, nRef);
        kulbox_config(kDialog, nRef, KUL_KEEP, nX, nY, 8, 2, BORDER);
        break;
    default:
        kulline_create(kDialog, nRef);
        kulline_config(kDialog, nRef, KUL_KEEP, nX, nY, 7, NOENDS, LATERAL);
    }
}

void buildItems(int nElements)
{
    for (int i = 0; i < nElements; ++i)
        addItem(100 + i, i % 4, i);
    addButton(1, 29, 10, "Button");
}

std::string elementText(int i)
{
    return "Element " + std::to_string(i);
}

void buildMenu(int nElements)
{
    kuldynmenu_create(kDialog, 1);
    kuldynmenu_config(kDialog, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, 20, 10, nullptr, nullptr,
                      nullptr, nullptr);
    for (int i = 0; i < nElements; ++i)
        kuldynmenu_addElement(kDialog, 1, elementText(i).c_str(), nullptr, nullptr, 1);
}

void buildChecks(int nElements)
{
    kulcheckbox_create(kDialog, 1);
    kulcheckbox_config(kDialog, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 1, 30, 12, BORDER, nullptr,
                       nullptr, nullptr, nullptr);
    for (int i = 0; i < nElements; ++i)
        kulcheckbox_addElement(kDialog, 1, elementText(i).c_str(), 0, 1, nullptr, nullptr);
}

// The same with an onSelect of the program's that changes nothing.
void buildSelects(int nElements)
{
    buildChecks(nElements);
    auto* list = static_cast<KULCHECKBOX*>(GetUIComponentByRef(kDialog, 1)->Pointer);
    list->onSelect = [] {};
}

// Texts side by side, above a box of the description.
void buildBar(int nElements)
{
    kulmenu_create(kDialog, 1);
    kulmenu_config(kDialog, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, nullptr, nullptr, nullptr, nullptr);
    for (int i = 0; i < nElements; ++i)
        kulmenu_addElement(kDialog, 1, elementText(i).c_str(), 1, nullptr, nullptr);
}

void buildDescriptions(int nElements)
{
    kuldescrmenu_create(kDialog, 1);
    kuldescrmenu_config(kDialog, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 0, 0, 36, 24, 8, nullptr, nullptr,
                        nullptr, nullptr);
    for (int i = 0; i < nElements; ++i)
        kuldescrmenu_addElement(kDialog, 1, 1, elementText(i).c_str(),
                                (elementText(i) + " is described here").c_str(), nullptr, nullptr);
}

void buildToolbar(int nElements)
{
    kultoolbar_create(kDialog, 1);
    kultoolbar_config(kDialog, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 2, LATERAL, nullptr, nullptr,
                      nullptr, nullptr);
    for (int i = 0; i < nElements; ++i)
        kultoolbar_addButton(kDialog, 1, "Button", 0, 1, nullptr, nullptr);
}

void buildOptions(int nElements)
{
    kuloptions_create(kDialog, 1);
    kuloptions_config(kDialog, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 2, 1, 30, 12, BORDER, 0, 0, nullptr,
                      nullptr, nullptr, nullptr);
    for (int i = 0; i < nElements; ++i)
        kuloptions_addElement(kDialog, 1, elementText(i).c_str(), 1, nullptr, nullptr);
}

// A box of several rows, with so many letters in it already.
void buildText(int nElements)
{
    kultextbox_create(kDialog, 1);
    kultextbox_config(kDialog, 1, KUL_KEEP, KUL_KEEP, KUL_KEEP, 1, 1, 38, 12, NOBORDER, NOMASK,
                      nullptr, nullptr, nullptr, nullptr);
    kultextbox_setLimit(kDialog, 1, 65535);
    kultextbox_setText(kDialog, 1, std::string(static_cast<std::size_t>(nElements), 'a').c_str());
}

void buildLetters(int nElements)
{
    kulgui_setEdition(2);
    buildText(nElements);
}

void updateScreen()
{
    update_panels();
    doupdate();
}

void runDialog(long nKeys)
{
    keysLeft = nKeys;
    kulgui_exec(kDialog);
}

// What curses alone needs: the two buttons that a move of the focus changes.
void repaintButtons(long nTimes)
{
    const GUI* gui = GetChain(kDialog)->Pointer;
    const auto paint = [gui](long nButton, int nColor) {
        const kul::FocusMark mark(gui->nColorFocus);
        DrawButton(gui->winMain, kButtonY, kButtonX + static_cast<int>(nButton % 3) * kButtonStep,
                   3, kButtonWidth, nColor, "Button");
    };
    for (const long nButton : {0, 1, 2}) // as the dialog starts
        paint(nButton, nButton == 0 ? gui->nColorFocus : gui->nColorUnfocus);
    updateScreen();
    for (long i = 0; i < nTimes; ++i) {
        paint(i, gui->nColorUnfocus);
        paint(i + 1, gui->nColorFocus);
        updateScreen();
    }
}

// What curses alone needs: the same cells, written row by row.
void rewriteRows(long nTimes)
{
    WINDOW* win = GetChain(kDialog)->Pointer->winMain;
    cchar_t rows[kHeight][kWidth + 1];
    for (int y = 0; y < kHeight; ++y)
        mvwin_wchnstr(win, y, 0, rows[y], kWidth);
    for (long i = 0; i < nTimes; ++i) {
        for (int y = 0; y < kHeight; ++y)
            mvwadd_wchnstr(win, y, 0, rows[y], kWidth);
        updateScreen();
    }
}

void buildFields(int nElements)
{
    kulstatbar_create(kDialog, 101);
    kulstatbar_config(kDialog, 101, KUL_KEEP, nullptr);
    kuldescrfield_create(kDialog, 102);
    kuldescrfield_config(kDialog, 102, KUL_KEEP, KUL_KEEP, 2, 2, 30, 20, 6);
    for (int i = 0; i < nElements; ++i) {
        kulstatbar_addElement(kDialog, 101, i % 30, 9, elementText(i).c_str(), LEFT, nullptr);
        kuldescrfield_addElement(kDialog, 102, elementText(i).c_str(), "What it means");
    }
}

constexpr char kSentence[] = "The device has been restarted, and its clock was set by a server.";

void buildTexts(int nElements)
{
    buildFields(3);
    buildChecks(nElements);
    kulcheckbox_addElement(kDialog, 1, kSentence, 0, 1, nullptr, nullptr);
    kullabel_create(kDialog, 103);
    kullabel_config(kDialog, 103, KUL_KEEP, KUL_KEEP, 1, 8, 30, 5, CENTER, BORDER, kSentence);
    addButton(2, 26, 9, "Button");
}

void buildTextsInColumns(int nElements)
{
    std::setlocale(LC_CTYPE, "C.UTF-8");
    kulgui_setEdition(2);
    buildTexts(nElements);
}

// Into the dialog's window, and no further.
void drawTexts(long nTimes)
{
    GUI* gui = GetChain(kDialog)->Pointer;
    for (long i = 0; i < nTimes; ++i) {
        ShowDisplayComponents(gui);
        ShowUIComponents(gui);
        NewStrToBox(gui->winMain, 2, 2, 22, GetWrapTextHeight(22, kSentence), RED_BLUE, LEFT,
                    kSentence);
    }
}

// From 80 by 24 to 60 by 18, and back, in turn.
void resizeScreen(long nTimes)
{
    for (long i = 0; i < nTimes; ++i) {
        setenv("LINES", i % 2 == 0 ? "18" : "24", 1);
        setenv("COLUMNS", i % 2 == 0 ? "60" : "80", 1);
        const kul::Pass pass;
        kul::fitScreen();
    }
}

const kulbench::Scene kScenes[] = {
    {"focus", buildButtons, runDialog, KS_TAB},
    {"focus-plain", buildButtons, repaintButtons, 0},
    {"button", buildButtons, runDialog, KS_ENTER},
    {"items", buildItems, runDialog, KS_ENTER},
    {"items-plain", buildItems, rewriteRows, 0},
    {"menu", buildMenu, runDialog, KS_DOWN},
    {"checks", buildChecks, runDialog, KS_DOWN},
    {"options", buildOptions, runDialog, KS_DOWN},
    {"space", buildChecks, runDialog, KS_SPACE},
    {"selects", buildSelects, runDialog, KS_DOWN},
    {"bar", buildBar, runDialog, KS_RIGHT},
    {"descriptions", buildDescriptions, runDialog, KS_RIGHT},
    {"toolbar", buildToolbar, runDialog, KS_RIGHT},
    {"fields", buildFields, runDialog, KS_TAB},
    {"texts", buildTexts, drawTexts, 0},
    {"texts-columns", buildTextsInColumns, drawTexts, 0},
    {"text", buildText, runDialog, 'x'},
    {"letters", buildLetters, runDialog, 'x'},
    {"sizes", buildChecks, resizeScreen, 0},
};

} // namespace

// The linker sends the library's calls of these here.
extern "C" {

int __wrap_NCursesEnv(int)
{
    return 0;
}

void __real__ZN3kul12showCursorAtEP7_win_stii(WINDOW* win, int nY, int nX);

void __wrap__ZN3kul12showCursorAtEP7_win_stii(WINDOW* win, int nY, int nX)
{
    if (showsCursor)
        __real__ZN3kul12showCursorAtEP7_win_stii(win, nY, nX);
}

int __wrap__ZN3kul8awaitKeyEv()
{
    if (keysLeft == 0) {
        kulgui_leave(kDialog);
        return 0;
    }
    --keysLeft;
    return played->key;
}
}

namespace kulbench {

const Scene* findScene(std::string_view name)
{
    const Scene* scene = std::ranges::find(kScenes, name, &Scene::name);
    return scene == std::end(kScenes) ? nullptr : scene;
}

void hideCursor()
{
    showsCursor = false;
}

bool openTerminal(const char* szTerm)
{
    terminal = memfd_create("terminal", MFD_CLOEXEC);
    std::FILE* output = terminal < 0 ? nullptr : fdopen(terminal, "w");
    std::FILE* input = std::fopen("/dev/null", "r");
    if (!output || !input || !kul::openScreen(szTerm, output, input))
        return false;
    InitializeColorSets();
    return true;
}

long bytesSent()
{
    return sent;
}

void makeDialog(const Scene& scene, int nElements)
{
    kulgui_create(0);
    kulgui_configPrime(0, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Bench", nullptr, nullptr,
                       nullptr, nullptr, nullptr);
    kulgui_create(kDialog);
    kulgui_config(kDialog, KUL_KEEP, KUL_KEEP, KUL_KEEP, KUL_KEEP, "Dialog", BORDER, kX, kY, kWidth,
                  kHeight, nullptr, nullptr, nullptr, nullptr, nullptr);
    scene.build(nElements);
    kulgui_setTabbing(kDialog, T);
    kulgui_show(0);
    kulgui_show(kDialog);
}

void pressKeys(const Scene& scene, long nKeys)
{
    played = &scene;
    scene.run(nKeys);
    sent += lseek(terminal, 0, SEEK_CUR);
    lseek(terminal, 0, SEEK_SET);
}

void dropDialogs()
{
    kulgui_destroy(0);
}

} // namespace kulbench
