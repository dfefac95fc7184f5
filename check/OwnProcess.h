// Work with a settings script, which can crash the script engine, away from this process.
#pragma once

#include <QString>

#include <functional>

/// How the work ended.
struct WorkEnd {
    int status = -1; ///< what the work returned, from 0 to 255; -1 when a signal ended it
    int signal = 0; ///< that signal; 0 also when there could be no process

    /// True when a fault of the work ended it, or its time was over.
    bool hasCrashed() const;
};

/// Does `work` in a child process and waits for it. The child gets SIGTERM when this process ends,
/// and SIGALRM after half a minute unless it calls `takeTime`. SIGINT and SIGQUIT end the work
/// first and then this process.
WorkEnd doInOwnProcess(const std::function<int()> &work);

/// Allows the work in this process to take longer, when it no longer depends on the script alone.
void takeTime();

/// What to report when the work with the settings script at `path` has crashed or did not end.
QString crashText(const QString &path, const WorkEnd &end);
