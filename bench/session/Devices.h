// The devices that the console is measured on.
#pragma once

#include "bench/session/Program.h"

#include <filesystem>

/// A temporary directory, removed by the destructor.
class TemporaryDirectory {
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;

    const std::filesystem::path path;
};

/// The simulated device of the demo, with a log of the calls of its tool.
class DemoDevice {
public:
    DemoDevice();

    /// The console on this device.
    Command console() const;

    /// Starts or stops logging the calls.
    void recordCalls(bool on);

    /// The calls logged since the last query, as commands that repeat them.
    std::vector<Command> takeCalls();

private:
    TemporaryDirectory directory;
};

/// A device with a single page of fields.
class LargeDevice {
public:
    /// Whether its definition makes the fields in a loop or spells each one out.
    enum Definition { Loop, SpelledOut };

    LargeDevice(int items, Definition definition);

    /// The console on this device.
    Command console() const;

private:
    TemporaryDirectory directory;
};

/// Writes `content` to the file `path`.
void writeFile(const std::filesystem::path &path, const std::string &content);
