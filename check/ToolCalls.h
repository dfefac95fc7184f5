// The runs of the backend tool that the checker makes.
#pragma once

#include "check/CallTrace.h"

#include <functional>
#include <map>

/// One run of the tool.
struct ToolCall {
    QByteArray output;
    qint64 durationMs = 0;
};

/// Runs the tool once for each list of arguments and keeps what it prints.
class ToolCalls {
public:
    /// Called before a run: its number from 1, and the arguments.
    using Progress = std::function<void(int number, const QStringList &arguments)>;

    /// A tool that still runs after `patienceMs` is killed.
    explicit ToolCalls(
        QString tool, Progress progress = {}, int patienceMs = BackendTool::patienceMs)
        : tool(std::move(tool))
        , patienceMs(patienceMs)
        , progress(std::move(progress))
    {
    }

    /// What the tool prints for `arguments`.
    QByteArray run(const QStringList &arguments);

    /// The run with `arguments`, null when there was none.
    const ToolCall *find(const QStringList &arguments) const;

    const std::map<QStringList, ToolCall> &all() const { return made; }

    const QString tool;
    const int patienceMs;
    CallTrace trace; ///< receives the runs once it is open

private:
    const Progress progress;
    std::map<QStringList, ToolCall> made;
};

/// `arguments` on one line, those with blanks in quotes.
QString shownCall(const QStringList &arguments);
