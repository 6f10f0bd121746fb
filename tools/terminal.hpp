// A terminal without a window: runs a program on a pseudo terminal of its own, feeds what the
// program writes to an emulator, and tells what stands on the screen. The tests press keys and
// compare screens with it; kulshot prints what it sees.
//
// Everything that waits, waits for output, for the end of the program or for a deadline, never
// for a fixed time. Times are milliseconds, places are (row, column) from 0. What the system
// refuses (no pseudo terminal, no such program) is thrown as std::system_error.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <sys/types.h>
#include <vector>

#include "emulator.hpp"

namespace kultools {

inline constexpr int kQuiet = 40;      // silence after which a program is taken to wait for a key
inline constexpr int kDeadline = 5000; // patience with a program that does not do what it should

struct Launch {
    std::vector<std::string> argv = {}; // the program, looked up in PATH, and its arguments
    int columns = 80;
    int rows = 24;
    std::string term = "xterm-256color";
    std::vector<std::string> environment = {}; // "NAME=value" sets, "NAME" removes
    bool withoutSize = false;                  // the kernel reports 0 x 0, as a serial line does
};

// A file descriptor that closes itself.
class Descriptor {
public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { reset(); }
    int get() const { return number_; }
    void reset(int number = -1);

private:
    int number_;
};

// The bytes a key sends, by its name ("down", "f6", "enter"); nothing for an unknown name.
std::optional<std::string_view> keyBytes(std::string_view name);

class Terminal : public Emulator {
public:
    explicit Terminal(const Launch& launch); // starts the program
    ~Terminal();                             // kills it if it still runs
    Terminal(const Terminal&) = delete;
    Terminal& operator=(const Terminal&) = delete;

    // Keys. A program may throw away what was typed before it waits for a key: press() lets it
    // come to rest first, send() does not.
    void press(std::string_view bytes, int quiet = kQuiet);
    void send(std::string_view bytes);

    // Sends more than the line holds, and reads meanwhile; both as a line of so many bytes a second
    // does, or as fast as the program takes it. Stops when the program ends.
    void paste(std::string_view bytes, int bytesASecond = 0);

    // Waiting. Each returns whether what it waits for came before the deadline.
    // The next output of the program, and no more than that; false also for its end.
    bool pump(int atMost, size_t bytes = 4096);
    bool settle(int quiet = kQuiet, int deadline = kDeadline); // no output and nothing being done
    bool waitFor(const std::function<bool()>& holds, int deadline = kDeadline);
    bool waitForText(std::string_view text, int deadline = kDeadline); // anywhere on the screen

    // The program.
    pid_t pid() const { return pid_; }
    bool running();
    void kill(int signal);
    void resize(int columns, int rows);                // as a window does
    void hangUp();                                     // the line goes dead; the screen stays
    std::optional<int> wait(int deadline = kDeadline); // as from waitpid(); empty: still running

    // The program's side of the line. It shares the open file description of the program's
    // descriptors 0 to 2, so that flags and modes can be looked at also after its end.
    int tty() const { return tty_.get(); }

private:
    void start(const Launch& launch);
    void reap();
    bool sleeping() const;

    Descriptor line_;       // our side of the line
    Descriptor tty_;        // the program's side
    Descriptor processEnd_; // readable when the program has ended
    pid_t pid_ = -1;
    std::optional<int> status_;
};

} // namespace kultools
