// Plays the entries of a transcript.
#pragma once

#include "terminal/ScreenNotation.h"
#include "tests/e2e/Session.h"

#include <Version.h>

struct TranscriptEntry {
    QString word; ///< "menu", "translations", "tool" or ">"
    QString text; ///< what follows the word
    QStringList further; ///< the lines after: more of the text, or what comes of a step
};

class TranscriptPlayer {
public:
    TranscriptPlayer() { session.device.setTool(":"); }

    /// Plays an entry. Returns why that is not possible; nothing when it is done.
    QString play(const TranscriptEntry &entry);
    /// What came of the last step since it began, in the notation of expectations.
    QStringList outcome();
    /// The whole screen in the same notation.
    QStringList screen() const { return withoutVersion(notationOfScreen(session.terminal())); }
    /// True after the first step.
    bool isStarted() const { return session.pid() != -1; }

private:
    // The expectations outlive a version.
    static QStringList withoutVersion(QStringList rows)
    {
        return rows.replaceInStrings("ver: " + consoleVersion, "ver: VERSION");
    }
    QString setAnswer(const QString &line);
    QString doStep(const QString &action);
    bool start(int rows, int columns);
    QStringList takeCalls();

    Session session;
    QStringList answers; ///< branches of the tool's `case`, the last one first
};
