// The devices that the console is measured on.
#include "bench/session/Devices.h"

#include <cstdlib>
#include <fstream>

#include <err.h>

namespace fs = std::filesystem;

namespace {

fs::path makeDirectory()
{
    std::string name = fs::temp_directory_path() / "dravikon-bench-XXXXXX";
    if (!mkdtemp(name.data()))
        err(EXIT_FAILURE, "%s", name.c_str());
    return name;
}

// The arguments in a line of the log: a JSON array of texts that contain no quotes.
Command argumentsIn(const std::string &line)
{
    Command arguments;
    size_t end = 0;
    for (size_t begin = line.find('"'); begin != std::string::npos; begin = line.find('"', end)) {
        const size_t close = line.find('"', begin + 1);
        arguments.push_back(line.substr(begin + 1, close - begin - 1));
        end = close + 1;
    }
    return arguments;
}

} // namespace

void writeFile(const fs::path &path, const std::string &content)
{
    std::ofstream(path, std::ios::binary) << content;
}

TemporaryDirectory::TemporaryDirectory()
    : path(makeDirectory())
{
}

TemporaryDirectory::~TemporaryDirectory()
{
    fs::remove_all(path);
}

DemoDevice::DemoDevice()
{
    Program({ DRAVIKON_DEMO, "--state", directory.path }).firstFrame();
    fs::create_symlink(DRAVIKON_DEMO_WEB "/scripts/settings.js", directory.path / "settings.js");
    fs::create_symlink(DRAVIKON_DEMO_WEB "/locales", directory.path / "locales");
}

Command DemoDevice::console() const
{
    return { DRAVIKON_BENCH_CONSOLE, directory.path };
}

void DemoDevice::recordCalls(bool on)
{
    if (on)
        writeFile(directory.path / "calls.log", {});
    else
        fs::remove(directory.path / "calls.log");
}

std::vector<Command> DemoDevice::takeCalls()
{
    std::vector<Command> calls;
    std::ifstream log(directory.path / "calls.log");
    for (std::string line; std::getline(log, line);) {
        Command call = argumentsIn(line);
        call.insert(call.begin(), directory.path / "DBusController");
        calls.push_back(std::move(call));
    }
    recordCalls(true);
    return calls;
}

LargeDevice::LargeDevice(int items, Definition definition)
{
    const std::string rest = ", remote: 1, inputType: 'edit', validation: 'C20' }";
    std::string fields;
    std::string texts = "{ \"dateformat\": \"DD.MM.YYYY\"";
    for (int number = 1; number <= items; ++number) {
        const std::string key = "field_" + std::to_string(number);
        if (definition == SpelledOut)
            fields += "{ i18n: '" + key + '\'' + rest + ",\n";
        texts += ",\n\"" + key + "\": \"Field number " + std::to_string(number) + '"';
    }
    std::string script = "var fields = [" + fields + "];\n";
    if (definition == Loop) {
        script += "for (var number = 1; number <= " + std::to_string(items)
            + "; ++number)\n    fields.push({ i18n: 'field_' + number" + rest + ");\n";
    }
    writeFile(directory.path / "settings.js",
        script + "var Settings = { setupStructureVersion: 1, settings: [{ screens: fields }] };\n");
    fs::create_directories(directory.path / "locales/en");
    writeFile(directory.path / "locales/en/translation.json", texts + " }\n");
    fs::copy_file(DRAVIKON_DEMO_STATE, directory.path / "state.json");
    fs::create_symlink(DRAVIKON_DEMO_TOOL, directory.path / "DBusController");
}

Command LargeDevice::console() const
{
    return { DRAVIKON_BENCH_CONSOLE, directory.path };
}
