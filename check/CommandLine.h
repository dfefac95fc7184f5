// What the checker and the preview do alike on their command lines and their output.
#pragma once

#include <QCommandLineParser>

#include <cstdio>
#include <optional>

/// The exit status for a command line that cannot be understood.
constexpr int wrongUsage = 2;

/// The exit status when a line could not be printed, as on a full disk.
constexpr int outputLost = 2;

/// Prints a line. Foreign text is made printable: a control character becomes a blank.
void print(std::FILE *file, const QString &line);

/// The exit status of a program that ends with `status`, once all is printed: `outputLost`, after a
/// line on standard error, when this process could not print some line.
int statusOfOutput(int status);

/// Prints a message of the console on standard error; to be installed as a message handler.
void printMessage(QtMsgType type, const QMessageLogContext &context, const QString &text);

/// Prints `text` on standard error after the name of the application and returns `status`.
int failure(int status, const QString &text);

/// Adds an option to the command line and its help text; `value` names the value that it takes.
void addOption(QCommandLineParser &parser, const char *name, const char *text,
    const char *value = "", const QString &byDefault = {});

/// Parses the application's arguments; `--help` and `--version` are added to the options. Returns
/// the exit status when there is nothing more to do: after help or version, and for wrong usage.
std::optional<int> parseCommandLine(QCommandLineParser &parser);
