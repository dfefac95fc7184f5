// The runs of the backend tool that the checker makes.
#pragma once

#include "device/BackendTool.h"

#include <QStringList>

#include <functional>
#include <map>

/// One run of the tool.
struct ToolCall {
    QByteArray output;
    qint64 durationMs = 0;
};

/// Runs the tool once for each list of arguments and keeps its answer.
class ToolCalls {
public:
    /// Called before each run with the number of the run, counted from 1.
    using Progress = std::function<void(int number, const QStringList &arguments)>;

    /// A tool that still runs after `patienceMs` is killed; one without a name is never run.
    explicit ToolCalls(
        QString tool, Progress progress = {}, int patienceMs = BackendTool::patienceMs);

    /// What the tool prints for `arguments`.
    QByteArray run(const QStringList &arguments);

    /// The run with `arguments`; empty when there was none.
    ToolCall find(const QStringList &arguments) const;

    const std::map<QStringList, ToolCall> &all() const { return calls; }
    const QString &tool() const { return program; }
    bool isStartable() const;
    bool wasKilled(const ToolCall &call) const { return call.durationMs >= patienceMs; }

private:
    const QString program;
    const Progress progress;
    const int patienceMs;
    std::map<QStringList, ToolCall> calls;
};

/// `arguments` on one line; one that has blanks itself is in quotes.
QString shownCall(const QStringList &arguments);
