// A program on a terminal of its own, watched from the outside.
#include "bench/session/Program.h"

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <err.h>
#include <fcntl.h>
#include <poll.h>
#include <pty.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

std::vector<char *> argumentsOf(const Command &command)
{
    std::vector<char *> arguments;
    for (const std::string &word : command)
        arguments.push_back(const_cast<char *>(word.c_str()));
    arguments.push_back(nullptr);
    return arguments;
}

std::string contentOf(const std::filesystem::path &path)
{
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

// The number behind a label as /proc writes it.
double numberBehind(const std::string &text, const std::string &label)
{
    const size_t place = text.find('\n' + label + ':');
    return place == std::string::npos ? 0 : std::atof(text.c_str() + place + label.size() + 2);
}

bool hasOutput(int descriptor, int timeoutMs)
{
    pollfd request = { descriptor, POLLIN, 0 };
    return poll(&request, 1, timeoutMs) > 0 && (request.revents & POLLIN);
}

} // namespace

double nowUs()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::micro>(time).count();
}

Program::Program(const Command &command)
{
    const winsize size = { 24, 80, 0, 0 };
    const std::vector<char *> arguments = argumentsOf(command);
    startedUs = nowUs();
    process = forkpty(&terminal, nullptr, nullptr, &size);
    if (process < 0)
        err(EXIT_FAILURE, "no terminal");
    if (process == 0) {
        // Its keys have the sequences that the console knows.
        setenv("TERM", "linux", true);
        execvp(arguments[0], arguments.data());
        _exit(127);
    }
    fcntl(terminal, F_SETFD, FD_CLOEXEC);
}

Program::~Program()
{
    if (isRunning()) {
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    close(terminal);
}

Reply Program::firstFrame(int quietMs)
{
    constexpr int patienceMs = 30000;
    constexpr double restUs = 1000;
    Reply frame;
    double cpuUs = 0;
    do {
        cpuUs = usage().cpuUs;
        collect(frame, startedUs, frame.bytes.empty() ? patienceMs : quietMs, quietMs);
    } while (isRunning() && usage().cpuUs - cpuUs > restUs);
    return frame;
}

Reply Program::press(const std::string &key, int quietMs)
{
    constexpr int patienceMs = 500;
    const double start = nowUs();
    if (write(terminal, key.data(), key.size()) < 0)
        return {};
    Reply answer;
    collect(answer, start, patienceMs, quietMs);
    return answer;
}

void Program::collect(Reply &reply, double startUs, int firstMs, int quietMs)
{
    char buffer[65536];
    for (int waitMs = firstMs; hasOutput(terminal, waitMs); waitMs = quietMs) {
        const ssize_t length = read(terminal, buffer, sizeof buffer);
        if (length <= 0)
            break;
        reply.us = nowUs() - startUs;
        reply.bytes.append(buffer, size_t(length));
    }
}

bool Program::isRunning()
{
    if (!hasEnded)
        hasEnded = waitpid(process, nullptr, WNOHANG) == process;
    return !hasEnded;
}

Usage Program::usage() const
{
    namespace fs = std::filesystem;
    Usage usage;
    const fs::path directory = fs::path("/proc") / std::to_string(process);
    for (const fs::directory_entry &thread : fs::directory_iterator(directory / "task")) {
        double runNs = 0;
        double waitNs = 0;
        double slices = 0;
        std::istringstream(contentOf(thread.path() / "schedstat")) >> runNs >> waitNs >> slices;
        usage.cpuUs += runNs / 1000;
        usage.wakeUps += slices;
        const std::string status = contentOf(thread.path() / "status");
        usage.switches += numberBehind(status, "voluntary_ctxt_switches")
            + numberBehind(status, "nonvoluntary_ctxt_switches");
    }
    usage.writes = numberBehind(contentOf(directory / "io"), "syscw");
    return usage;
}

double Program::peakMemory() const
{
    return numberBehind(contentOf("/proc/" + std::to_string(process) + "/status"), "VmHWM");
}

double runUs(const Command &command)
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        err(EXIT_FAILURE, "no pipe");
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
    const std::vector<char *> arguments = argumentsOf(command);
    pid_t process = -1;
    const double start = nowUs();
    const int failure =
        posix_spawn(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
    if (failure != 0)
        errx(EXIT_FAILURE, "cannot run %s", arguments[0]);
    close(ends[1]);
    char buffer[65536];
    while (read(ends[0], buffer, sizeof buffer) > 0) { }
    waitpid(process, nullptr, 0);
    const double duration = nowUs() - start;
    close(ends[0]);
    posix_spawn_file_actions_destroy(&actions);
    return duration;
}
