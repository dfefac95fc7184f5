// Screens of a terminal as SVG pictures. The same screens give the same bytes.
#pragma once

#include "terminal/TerminalEmulator.h"

/// The screen with its colours and its text cursor.
QByteArray svgOf(const TerminalEmulator &terminal);

/// Screens that follow each other in an endless loop.
class SvgFilm {
public:
    /// Adds what the terminal shows for a time in milliseconds, with the keys that led to it in a
    /// corner. All screens have the same size.
    void add(const TerminalEmulator &terminal, const QString &keys, int ms);
    /// Makes the last screen the one for viewers that do not animate or ask for reduced motion.
    void chooseStill() { still = frames.size() - 1; }
    QByteArray svg() const;

private:
    struct Frame {
        QString shapes;
        int ms;
    };

    QSize size; ///< in columns and rows
    QVector<Frame> frames;
    int still = 0;
};
