// A record of the runs of the backend tool, for those who write one.
#pragma once

#include "backend/BackendTool.h"

#include <QTime>

/// A file that receives a JSON object on a line for each run of the tool. It may be a terminal or a
/// pipe: what cannot be written at once is dropped, a line as a whole.
class CallTrace {
public:
    CallTrace() = default;
    Q_DISABLE_COPY(CallTrace)
    ~CallTrace();

    /// Opens the file and empties it. Returns why that is not possible; empty when it is done.
    QString open(const QString &path);
    bool isOpen() const { return file >= 0; }

    /// Runs the tool as `BackendTool::observedRun` does, and writes a line if the file is open.
    ToolRun run(
        const QString &tool, const QStringList &arguments, int timeoutMs = BackendTool::patienceMs);

private:
    void write(const QByteArray &line);
    bool writeRest();

    int file = -1;
    QByteArray rest; ///< of a line that was written in part
};
