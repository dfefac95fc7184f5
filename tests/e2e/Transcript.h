// A transcript of sessions: what the device is like, what is done, what comes of it.
// tests/e2e/README.md describes the notation.
#pragma once

#include <QStringList>
#include <QVector>

struct TranscriptEntry {
    enum Kind { Screens, Translations, Answer, Step };
    Kind kind;
    QString text; ///< the definition, the table, a call and its answer, or what is done
    int line; ///< 1-based line of the file
    QStringList source; ///< the lines of the file since the entry before, expectations left out
    QStringList expected; ///< of a step: what comes of it
};

struct Transcript {
    QVector<TranscriptEntry> entries;
    QStringList rest; ///< the lines after the last entry
    QString error; ///< why the text is no transcript; empty when it is one

    /// The text of the file.
    QString text() const;
};

Transcript parseTranscript(const QString &text);
