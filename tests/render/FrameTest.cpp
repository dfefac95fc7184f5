// What no transcript shows of frames: the start menu, which no key reaches at present, and texts
// that are as wide as their lines.
#include "render/FrameComposer.h"
#include "render/ValueDialog.h"
#include "tests/support/ScreenNotation.h"

#include <QtTest>

class FrameTest : public QObject {
    Q_OBJECT

private slots:
    void startMenuOffersTheMenuAndTheShell()
    {
        ViewState state;
        state.currentView = StartView;
        state.termColumns = 50;
        state.termRows = 8;
        state.menuLines.insert(1, QStringLiteral("hidden by the box, and never selected"));
        state.resetDialog();
        const TreeViewItemHandler handler { DevicePaths() };
        TerminalEmulator terminal(state.termRows, state.termColumns);
        terminal.feed("\x1b[?25l");
        Screen screen([&terminal](const QByteArray &bytes) { terminal.feed(bytes); });
        const auto rowsAfterDrawing = [&] {
            terminal.forgetWrittenRows();
            if (state.overlayLines.isEmpty())
                state.overlayLines = startMenu(state);
            screen.show(composeFrame(state, QString()), state.termRows, { 1, 1 });
            return notationOfRows(terminal, terminal.writtenRows()).join(QLatin1Char('\n'));
        };

        QCOMPARE(rowsAfterDrawing(), QStringLiteral(R"(     1r:Quenstadel
     2 :             +---Select next Step----+
     3 :hidden by the|                       |
     4 :             |                       |
     5 :             |  start Dravikon Menu  |  <- magenta 15-37
     6 :             |continue to local shell|
     7 :             +-----------------------+)"));
        moveSelection(state, handler, false, +1);
        QCOMPARE(
            rowsAfterDrawing(), QStringLiteral(R"(     4 :             |  start Dravikon Menu  |
     5 :             |continue to local shell|  <- magenta 15-37
     6 :             |                       |)"));
        moveSelection(state, handler, false, +1);
        QCOMPARE(rowsAfterDrawing(), QString());
    }

    void staysWithinTheLine()
    {
        Frame frame { { 0, QStringLiteral("x") }, { 1, QStringLiteral("xxx") },
            { 2, QStringLiteral("+-------+") } };
        highlightLine(frame, 0);
        colourSegment(frame, 3, 1, 9, false);
        placeCentred(frame, 9, 2, QStringLiteral("ab"), 8);
        TerminalEmulator terminal(3, 20);
        terminal.feed(QStringList(frame.values()).join(QStringLiteral("\x1b[K\r\n")).toLatin1());
        QCOMPARE(notationOfRows(terminal, { 0, 1, 2 }).join(QLatin1Char('\n')),
            QStringLiteral(
                "     1 :x\n     2 :xxx  <- green 1-3\n     3 :+ab-----+  <- cursor 10"));
    }
};

QTEST_GUILESS_MAIN(FrameTest)
#include "FrameTest.moc"
