#include "bench/session/Program.h"

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>

#include <err.h>
#include <fcntl.h>
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

// The number after a label in a file of /proc.
double numberAfter(const std::string &text, const std::string &label)
{
    const size_t place = text.find('\n' + label + ':');
    return place == std::string::npos ? 0 : std::atof(text.c_str() + place + label.size() + 2);
}

} // namespace

double nowUs()
{
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double, std::micro>(time).count();
}

Program::Program(const Command &command)
{
    QStringList words;
    for (const std::string &word : command)
        words += QString::fromLocal8Bit(word.c_str());
    process.setStandardError(QStringLiteral("/dev/tty"));
    startedUs = nowUs();
    if (!process.start(words.takeFirst(), words, 24, 80))
        err(EXIT_FAILURE, "no terminal");
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
    if (!process.send(QByteArray::fromStdString(key)))
        return {};
    Reply answer;
    collect(answer, start, patienceMs, quietMs);
    return answer;
}

void Program::collect(Reply &reply, double startUs, int firstMs, int quietMs)
{
    QByteArray output = process.read(firstMs);
    while (!output.isEmpty()) {
        reply.us = nowUs() - startUs;
        reply.bytes += output.toStdString();
        output = process.read(quietMs);
    }
}

bool Program::isRunning()
{
    return process.status().state == ExitStatus::Running;
}

Usage Program::usage() const
{
    namespace fs = std::filesystem;
    Usage usage;
    const fs::path directory = fs::path("/proc") / std::to_string(process.pid());
    for (const fs::directory_entry &thread : fs::directory_iterator(directory / "task")) {
        double runNs = 0;
        double waitNs = 0;
        double slices = 0;
        std::istringstream(contentOf(thread.path() / "schedstat")) >> runNs >> waitNs >> slices;
        usage.cpuUs += runNs / 1000;
        usage.wakeUps += slices;
        const std::string status = contentOf(thread.path() / "status");
        usage.switches += numberAfter(status, "voluntary_ctxt_switches")
            + numberAfter(status, "nonvoluntary_ctxt_switches");
    }
    usage.writes = numberAfter(contentOf(directory / "io"), "syscw");
    return usage;
}

double Program::peakMemory() const
{
    return numberAfter(contentOf("/proc/" + std::to_string(process.pid()) + "/status"), "VmHWM");
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
