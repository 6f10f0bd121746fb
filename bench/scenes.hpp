// SPDX-License-Identifier: MIT
//
// The dialogs that are measured, and what drives them: keys from a script instead of a keyboard,
// and a terminal that is a file in memory.
#ifndef KUL_BENCH_SCENES_HPP
#define KUL_BENCH_SCENES_HPP

#include <string_view>

namespace kulbench {

struct Scene {
    std::string_view name;
    void (*build)(int nElements); // fills the dialog
    void (*run)(long nKeys);
    int key; // pressed over and over
};

// A scene by its name; null for none.
const Scene* findScene(std::string_view name);

// Leaves the terminal's cursor hidden in edition 2 as well, to tell what it costs.
void hideCursor();

// Opens the terminal of that name. False when there is none.
bool openTerminal(const char* szTerm);

// Bytes that the terminal has got until the last pressKeys() ended.
long bytesSent();

// Makes the dialog of a scene, with the primary dialog below it, and shows both.
void makeDialog(const Scene& scene, int nElements);

// Presses the scene's key so often, and ends the dialog; or does what it is compared with.
void pressKeys(const Scene& scene, long nKeys);

// Frees all dialogs.
void dropDialogs();

} // namespace kulbench

#endif
