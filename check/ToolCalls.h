// The runs of the backend tool that the checker makes.
#pragma once

#include "backend/BackendTool.h"

#include <QStringList>
#include <QVariantList>

#include <functional>
#include <map>
#include <optional>
#include <set>

/// One run of the tool.
struct ToolCall {
    QByteArray output;
    qint64 durationMs = 0;
};

/// Runs the tool once for each list of arguments and keeps what it prints.
class ToolCalls {
public:
    /// Called before a run: its number from 1, the number of all runs, the arguments.
    using Progress = std::function<void(int number, int count, const QStringList &arguments)>;

    explicit ToolCalls(
        QString tool, Progress progress = {}, int patienceMs = BackendTool::patienceMs)
        : tool(std::move(tool))
        , patienceMs(patienceMs)
        , progress(std::move(progress))
    {
    }

    /// What the tool prints for `arguments`; nothing while `plan` runs.
    QByteArray run(const QStringList &arguments);

    /// Counts the runs that `calls` will make, for the progress. The tool is not run.
    void plan(const std::function<void()> &calls);

    /// The run with `arguments`, null when there was none.
    const ToolCall *find(const QStringList &arguments) const;

    const std::map<QStringList, ToolCall> &all() const { return made; }

    const QString tool;
    const int patienceMs; ///< a tool that still runs then is killed

private:
    const Progress progress;
    bool isPlanning = false;
    std::set<QStringList> planned;
    std::map<QStringList, ToolCall> made;
};

/// `arguments` on one line, those with blanks in quotes.
QString shownCall(const QStringList &arguments);
