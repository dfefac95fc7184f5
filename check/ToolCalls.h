// The runs of the backend tool that the checker makes.
#pragma once

#include "check/CallTrace.h"

#include <functional>
#include <map>

/// One run of the tool.
struct ToolCall : ToolRun {
    bool isWithheld = false; ///< not made, as it might write
};

/// Runs the tool once for each list of arguments and keeps what it prints.
class ToolCalls {
public:
    /// Called before a run: its number from 1, and the arguments.
    using Progress = std::function<void(int number, const QStringList &arguments)>;

    /// A tool that still runs after `patienceMs` is killed; a run that takes longer than `slowMs`
    /// is slow.
    explicit ToolCalls(QString tool, Progress progress = {},
        int patienceMs = BackendTool::patienceMs, int slowMs = 1000);

    /// From now on no call is made for which `mayWrite` is true.
    void withhold(std::function<bool(const QStringList &)> mayWrite);

    /// What the tool prints for `arguments`.
    QByteArray run(const QStringList &arguments);

    /// The run with `arguments`, null when there was none.
    const ToolCall *find(const QStringList &arguments) const;

    const std::map<QStringList, ToolCall> &all() const { return made; }

    /// Why the tool cannot be started, which is not tried again then; empty if it can.
    const QString &fault() const { return toolFault; }

    const QString tool;
    const int patienceMs;
    const int slowMs;
    CallTrace trace; ///< receives the runs once it is open

private:
    const Progress progress;
    std::function<bool(const QStringList &)> mayWrite;
    QString toolFault;
    std::map<QStringList, ToolCall> made;
};

/// `arguments` on one line, those with blanks in quotes.
QString shownCall(const QStringList &arguments);
