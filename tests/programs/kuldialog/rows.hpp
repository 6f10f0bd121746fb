// Command lines, keys, and what comes of them: the same for kuldialog under each of its names, which
// the tests run, and for the programs whose names these are, which the bench runs.
#pragma once

#include <string>
#include <vector>

namespace kuldialog_rows {

enum Name { kWhiptail = 1, kDialog = 2, kOwn = 4, kOthers = kDialog | kOwn, kAll = 7 };

struct Row {
    int names;         // that it holds for
    const char* shell; // "$D" is the program; what it writes to descriptor 3 counts as well
    const char* keys;  // names of keys, or characters, with blanks between
    int status;
    const char* error;      // what comes on standard error; "?" for anything, but something
    const char* other = ""; // what comes on descriptor 3
    bool peers = true;      // holds for the other programs as well
};

extern const std::vector<Row> kRows;

struct Outcome {
    int status;
    std::string error;
    std::string other;
};

// Runs a row with a program in place of "$D". One that throws away keys that come early is pressed
// patiently.
Outcome run(const Row& row, const std::string& program, bool patiently);

// Whether it is what the row says.
bool agrees(const Row& row, const Outcome& outcome);

} // namespace kuldialog_rows
