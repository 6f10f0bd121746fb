// SPDX-License-Identifier: MIT
//
// The command line: common options, and where the boxes are in it.
//
// There are two ways to read it. One takes a single box and finds options anywhere, between its
// arguments as well. The other one goes from left to right, through any number of boxes; the
// arguments of a box go up to the next token that is an option, and "--" makes an argument of the
// token that follows it.
#ifndef KULDIALOG_OPTIONS_HPP
#define KULDIALOG_OPTIONS_HPP

#include "boxes.hpp"
#include "settings.hpp"

namespace kuldialog {

// What a reader found.
enum class Found {
    Box,  // with its settings and arguments
    End,  // nothing more
    Help, // asked for
    Version,
    Error, // told already
};

class CommandLine {
public:
    CommandLine(int count, char** tokens);

    // The next box with its settings.
    Found next();

    bool isEmpty() const { return count_ <= 1; }
    const Settings& settings() const { return settings_; }
    const kuldialog::Box* box() const { return box_; }
    Call call() const { return {settings_, arguments_, argumentCount_, box_->variant}; }
    bool goesOn() const { return goesOn_; } // the next box comes after Cancel as well
    int errorStatus() const { return errorStatus_; }

private:
    void reset();
    Found nextInOrder();
    Found anywhere();
    bool takeOption(bool& taken);
    bool takeValue(const struct Option& option, const char* szValue);
    void takeArguments();
    bool insert(const char* szText, int nRemoved);
    bool insertFile(const char* szFile);
    bool fail(const char* szWhat, const char* szAbout);
    const char* token(int nPlace) const { return nPlace < count_ ? tokens_[nPlace] : nullptr; }

    Settings settings_{};
    const Box* box_ = nullptr;
    char** tokens_;
    int count_;
    int place_ = 1;
    char** arguments_ = nullptr;
    int argumentCount_ = 0;
    bool goesOn_ = false;
    int errorStatus_ = 255;
};

// One line on standard error: the program, what is wrong and with what.
void complain(const char* szWhat, const char* szAbout);

// A whole number in decimal, limited to what a screen could have any use for. False where it is
// none.
bool readNumber(const char* szText, int& nNumber);

// The number that a text begins with, 0 for none; limited to 65535 on both sides.
int integer(const char* szText);

void printHelp();

} // namespace kuldialog

#endif
