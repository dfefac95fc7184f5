// The devices that the console is measured on.
#pragma once

#include "bench/session/Program.h"

#include <filesystem>

/// A directory that is gone with the object.
class TemporaryDirectory {
public:
    TemporaryDirectory();
    ~TemporaryDirectory();
    TemporaryDirectory(const TemporaryDirectory &) = delete;
    TemporaryDirectory &operator=(const TemporaryDirectory &) = delete;

    const std::filesystem::path path;
};

/// The simulated device of the demo, with a record of the calls of its tool.
class DemoDevice {
public:
    DemoDevice();

    /// The console on this device.
    Command console() const;

    /// Writes the calls from now on down, or does so no longer.
    void recordCalls(bool on);

    /// The recorded calls since the last question, as commands that repeat them.
    std::vector<Command> takeCalls();

private:
    TemporaryDirectory directory;
};

/// A device with a single page of fields.
class LargeDevice {
public:
    /// How its definition is written: a loop that makes the fields, or every field by itself.
    enum Definition { Loop, SpelledOut };

    LargeDevice(int items, Definition definition);

    /// The console on this device.
    Command console() const;

private:
    TemporaryDirectory directory;
};

/// Writes `content` to the file `path`.
void writeFile(const std::filesystem::path &path, const std::string &content);
