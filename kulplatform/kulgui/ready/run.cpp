// SPDX-License-Identifier: MIT
//
// A command's output as it comes.
#include <cerrno>
#include <csignal>

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include "frame.hpp"
#include "output.hpp"

namespace {

using kulready::Frame;

constexpr int kMostReads = 16; // before keys are looked at again

struct Command {
    pid_t nProcess;
    int nOutput;
    int nResult; // -1 while it runs
    bool ending; // the user wants it to end
    kulready::Output output;
    Frame* frame;
};

Command* running = nullptr;

int resultOf(int nStatus)
{
    return WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : 128 + WTERMSIG(nStatus);
}

// Waits for a command whose output is over.
void finish(Command& command)
{
    kulgui_watch(command.nOutput, nullptr);
    close(command.nOutput);
    command.nOutput = -1;
    int nStatus = 0;
    pid_t nEnded = 0;
    while ((nEnded = waitpid(command.nProcess, &nStatus, 0)) < 0 && errno == EINTR) {
    }
    // A program that takes its children's ends by itself leaves no status.
    command.nResult = nEnded == command.nProcess ? resultOf(nStatus) : 0;
    if (command.ending)
        command.frame->end(0);
}

void readOutput()
{
    Command& command = *running;
    const bool following = command.frame->isFollowing();
    char bytes[1024];
    for (int i = 0; i < kMostReads; ++i) {
        const ssize_t size = read(command.nOutput, bytes, sizeof bytes);
        if (size < 0 && (errno == EAGAIN || errno == EINTR))
            break;
        if (size <= 0) {
            finish(command);
            break;
        }
        command.output.feed(bytes, static_cast<std::size_t>(size));
    }
    command.frame->setText(command.output.text(), following);
    command.frame->show();
}

// Leaves when the command is over; else asks, and sends a signal, the second time one that cannot
// be refused.
bool mayEnd(Frame& frame, int)
{
    Command& command = *static_cast<Command*>(frame.body);
    if (command.nResult >= 0)
        return true;
    if (kuldialog_ask("", kulready::word(KULWORD_END), nullptr, 1) == 0 && command.nResult < 0) {
        kill(-command.nProcess, command.ending ? SIGKILL : SIGTERM);
        command.ending = true;
    }
    return command.nResult >= 0;
}

int commandKey(Frame& frame, int nKey)
{
    if (nKey != KS_ESC)
        return nKey;
    if (mayEnd(frame, 0))
        frame.end(0);
    return 0;
}

// The command's end of the pipe, in the child. Only calls that a child of a program with threads
// may make.
[[noreturn]] void runChild(const char* szCommand, int nOutput)
{
    setpgid(0, 0);
    const int nInput = open("/dev/null", O_RDONLY);
    if (nInput >= 0)
        dup2(nInput, STDIN_FILENO);
    dup2(nOutput, STDOUT_FILENO);
    dup2(nOutput, STDERR_FILENO);
    execl("/bin/sh", "sh", "-c", szCommand, static_cast<char*>(nullptr));
    _exit(127);
}

bool start(Command& command, const char* szCommand)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return false;
    command.nProcess = fork();
    if (command.nProcess == 0)
        runChild(szCommand, ends[1]);
    close(ends[1]);
    if (command.nProcess < 0) {
        close(ends[0]);
        return false;
    }
    setpgid(command.nProcess, command.nProcess);
    fcntl(ends[0], F_SETFL, O_NONBLOCK);
    command.nOutput = ends[0];
    return true;
}

int runCommand(Frame& frame, const char* szCommand)
{
    Command command = {-1, -1, -1, false, {}, &frame};
    frame.want(0, 0, kulgui_getColumns());
    frame.wantText(kulgui_getRows());
    frame.addButtons(kulready::word(KULWORD_CLOSE), nullptr);
    if (!frame.open() || !start(command, szCommand))
        return kulready::kUnusable;
    Command* outer = running;
    running = &command;
    frame.body = &command;
    frame.onKey = commandKey;
    frame.mayEnd = mayEnd;
    kulgui_watch(command.nOutput, readOutput);
    const int nEnd = frame.run();
    if (command.nResult < 0) { // the line is gone, or the program left the dialog
        kill(-command.nProcess, SIGHUP);
        finish(command);
    }
    running = outer;
    return nEnd == kulready::kGone ? nEnd : command.nResult;
}

} // namespace

int kuldialog_run(const char* szTitle, const char* szCommand)
{
    if (!szCommand)
        return kulready::kUnusable;
    return kulready::runReady(szTitle ? szTitle : szCommand, nullptr,
                              [=](Frame& frame) { return runCommand(frame, szCommand); });
}
