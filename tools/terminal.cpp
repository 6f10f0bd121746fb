#include "terminal.hpp"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <fstream>
#include <iterator>
#include <poll.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <system_error>
#include <termios.h>
#include <unistd.h>
#include <utility>

extern char** environ;

namespace kultools {
namespace {

constexpr std::pair<std::string_view, std::string_view> kKeys[] = {
    {"tab", "\t"},         {"enter", "\r"},         {"esc", "\033"},     {"space", " "},
    {"backspace", "\177"}, {"quote", "'"},          {"up", "\033[A"},    {"down", "\033[B"},
    {"right", "\033[C"},   {"left", "\033[D"},      {"home", "\033[H"},  {"end", "\033[F"},
    {"insert", "\033[2~"}, {"delete", "\033[3~"},   {"f1", "\033OP"},    {"f2", "\033[[B"},
    {"pageup", "\033[5~"}, {"pagedown", "\033[6~"}, {"f3", "\033[[C"},   {"f4", "\033[[D"},
    {"f5", "\033[[E"},     {"f6", "\033[17~"},      {"f7", "\033[18~"},  {"f8", "\033[19~"},
    {"f9", "\033[20~"},    {"f10", "\033[21~"},     {"f11", "\033[23~"}, {"f12", "\033[24~"},
};

int checked(int result, const char* what)
{
    if (result < 0)
        throw std::system_error(errno, std::generic_category(), what);
    return result;
}

// A point in time to wait for.
class Deadline {
public:
    explicit Deadline(int milliseconds)
        : end_(Clock::now() + std::chrono::milliseconds(milliseconds))
    {
    }
    int left() const // rounded up, so that poll() does not spin through the last millisecond
    {
        const auto left = std::chrono::ceil<std::chrono::milliseconds>(end_ - Clock::now());
        return static_cast<int>(std::max<std::int64_t>(left.count(), 0));
    }

private:
    using Clock = std::chrono::steady_clock;
    Clock::time_point end_;
};

std::vector<std::string> environmentOf(const Launch& launch)
{
    std::vector<std::string> result;
    for (char** entry = environ; *entry; ++entry)
        result.emplace_back(*entry);
    std::vector<std::string> changes = {"LINES", "COLUMNS", "TERM=" + launch.term};
    changes.insert(changes.end(), launch.environment.begin(), launch.environment.end());
    for (const std::string& change : changes) {
        const std::string name = change.substr(0, change.find('=')) + '=';
        std::erase_if(result, [&](const std::string& entry) { return entry.starts_with(name); });
        if (change.find('=') != change.npos)
            result.push_back(change);
    }
    return result;
}

std::vector<char*> pointers(std::vector<std::string>& strings)
{
    std::vector<char*> result;
    for (std::string& string : strings)
        result.push_back(string.data());
    result.push_back(nullptr);
    return result;
}

// In the new process: makes `tty` its terminal and becomes the program; returns if it cannot.
void become(int tty, char* const* argv, char* const* environment)
{
    for (int signal = 1; signal < NSIG; ++signal)
        ::signal(signal, SIG_DFL); // a hang-up must end it even if we were told to ignore ours
    sigset_t none;
    sigemptyset(&none);
    sigprocmask(SIG_SETMASK, &none, nullptr);
    setsid();
    ioctl(tty, TIOCSCTTY, 0);
    for (int standard : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
        dup2(tty, standard);
    execvpe(argv[0], argv, environment);
}

} // namespace

std::optional<std::string_view> keyBytes(std::string_view name)
{
    const auto* key = std::ranges::find(kKeys, name, [](const auto& row) { return row.first; });
    return key == std::end(kKeys) ? std::nullopt : std::optional(key->second);
}

void Descriptor::reset(int number)
{
    if (number_ >= 0)
        ::close(number_);
    number_ = number;
}

Terminal::Terminal(const Launch& launch) : Emulator(launch.columns, launch.rows, launch.term)
{
    if (launch.argv.empty())
        throw std::invalid_argument("a terminal needs a program");
    start(launch);
}

void Terminal::start(const Launch& launch)
{
    line_.reset(checked(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK), "posix_openpt"));
    checked(grantpt(line_.get()), "grantpt");
    checked(unlockpt(line_.get()), "unlockpt");
    tty_.reset(checked(::open(ptsname(line_.get()), O_RDWR | O_NOCTTY | O_CLOEXEC), "open"));
    winsize size{};
    if (!launch.withoutSize) {
        size.ws_col = static_cast<unsigned short>(launch.columns);
        size.ws_row = static_cast<unsigned short>(launch.rows);
    }
    checked(ioctl(tty_.get(), TIOCSWINSZ, &size), "TIOCSWINSZ");

    // The pipe closes when the program runs; before that, it brings the reason why it does not.
    int ends[2];
    checked(pipe2(ends, O_CLOEXEC), "pipe");
    const Descriptor reason(ends[0]);
    Descriptor report(ends[1]);
    std::vector<std::string> words = launch.argv;
    std::vector<std::string> settings = environmentOf(launch);
    const std::vector<char*> argv = pointers(words);
    const std::vector<char*> environment = pointers(settings);
    pid_ = checked(fork(), "fork");
    if (pid_ == 0) {
        become(tty_.get(), argv.data(), environment.data());
        const int error = errno;
        [[maybe_unused]] const ssize_t written = ::write(report.get(), &error, sizeof error);
        _exit(127);
    }
    report.reset();
    int error = 0;
    if (::read(reason.get(), &error, sizeof error) > 0) {
        waitpid(pid_, nullptr, 0);
        throw std::system_error(error, std::generic_category(), launch.argv[0]);
    }
    // Not every C++ compiler is offered the library function; the system call is always there.
    const auto processEnd = static_cast<int>(syscall(SYS_pidfd_open, pid_, 0));
    processEnd_.reset(processEnd);
    if (processEnd < 0) {
        kill(SIGKILL);
        waitpid(pid_, nullptr, 0);
        checked(processEnd, "pidfd_open");
    }
}

Terminal::~Terminal()
{
    if (status_)
        return;
    kill(SIGKILL);
    waitpid(pid_, nullptr, 0);
}

void Terminal::reap()
{
    int status = 0;
    if (waitpid(pid_, &status, WNOHANG) != pid_)
        return;
    status_ = status;
    processEnd_.reset();
}

bool Terminal::running()
{
    if (!status_)
        reap();
    return !status_;
}

void Terminal::kill(int signal)
{
    if (!status_)
        ::kill(pid_, signal);
}

void Terminal::resize(int columns, int rows)
{
    winsize size{};
    size.ws_col = static_cast<unsigned short>(columns);
    size.ws_row = static_cast<unsigned short>(rows);
    Emulator::resize(columns, rows);
    checked(ioctl(tty_.get(), TIOCSWINSZ, &size), "TIOCSWINSZ");
}

void Terminal::hangUp()
{
    line_.reset();
}

std::optional<int> Terminal::wait(int deadline)
{
    const Deadline end(deadline);
    while (end.left() > 0 && (pump(end.left()) || running()))
        continue;
    return status_;
}

void Terminal::send(std::string_view bytes)
{
    while (!bytes.empty())
        bytes.remove_prefix(static_cast<size_t>(
            checked(static_cast<int>(::write(line_.get(), bytes.data(), bytes.size())), "send")));
}

void Terminal::press(std::string_view bytes, int quiet)
{
    settle(quiet);
    send(bytes);
}

void Terminal::paste(std::string_view bytes, int bytesASecond)
{
    const int flags = fcntl(line_.get(), F_GETFL);
    fcntl(line_.get(), F_SETFL, flags | O_NONBLOCK);
    const auto start = std::chrono::steady_clock::now();
    size_t sent = 0;
    for (size_t received = 0; sent < bytes.size() && running();) {
        const std::chrono::duration<double> passed = std::chrono::steady_clock::now() - start;
        const size_t carried =
            bytesASecond ? static_cast<size_t>(passed.count() * bytesASecond) : bytes.size();
        const size_t due = std::min(carried, bytes.size());
        const ssize_t count =
            due > sent ? ::write(line_.get(), bytes.data() + sent, due - sent) : 0;
        sent += count > 0 ? static_cast<size_t>(count) : 0;
        if (bytesASecond && carried <= received) {
            poll(nullptr, 0, 1);
            continue;
        }
        const size_t before = this->received().size();
        pump(1, bytesASecond ? carried - received : 4096);
        received += this->received().size() - before;
    }
    fcntl(line_.get(), F_SETFL, flags);
}

bool Terminal::pump(int atMost, size_t most)
{
    // Poll ignores closed descriptors. What a program wrote last may arrive after its end has.
    constexpr int kAfterglow = 20;
    pollfd watched[] = {{line_.get(), POLLIN, 0}, {processEnd_.get(), POLLIN, 0}};
    if (poll(watched, 2, status_ ? kAfterglow : atMost) <= 0)
        return false;
    if (watched[1].revents) {
        reap();
        return pump(0);
    }
    char bytes[4096];
    const ssize_t count = ::read(line_.get(), bytes, std::min(most, sizeof bytes));
    if (count <= 0)
        return false;
    feed(std::string_view(bytes, static_cast<size_t>(count)));
    send(takeAnswers());
    return true;
}

// Whether the program has nothing to do but to wait. Silence alone does not tell: on a busy
// machine a program may be silent because it does not get its turn.
bool Terminal::sleeping() const
{
    const pid_t foreground = line_.get() < 0 ? -1 : tcgetpgrp(line_.get());
    std::ifstream file("/proc/" + std::to_string(foreground > 0 ? foreground : pid_) + "/stat");
    const std::string stat{std::istreambuf_iterator<char>(file), {}};
    const size_t name = stat.rfind(") "); // the state comes after the name in parentheses
    return status_ || name == stat.npos || !std::strchr("RD", stat[name + 2]);
}

bool Terminal::settle(int quiet, int deadline)
{
    for (const Deadline end(deadline); end.left() > 0;)
        if (!pump(quiet) && sleeping())
            return true;
    return false;
}

bool Terminal::waitFor(const std::function<bool()>& holds, int deadline)
{
    const Deadline end(deadline);
    while (!holds())
        if (end.left() == 0 || (!pump(end.left()) && !running()))
            return holds();
    return true;
}

bool Terminal::waitForText(std::string_view wanted, int deadline)
{
    return waitFor([&] { return text().find(wanted) != std::string::npos; }, deadline);
}

} // namespace kultools
