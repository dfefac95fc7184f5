// The start menu, which no key reaches at present.
#include "render/FrameComposer.h"
#include "render/ValueDialog.h"
#include "tests/support/ScreenNotation.h"

#include <QtTest>

class StartMenuTest : public QObject {
    Q_OBJECT

private slots:
    void offersTheMenuAndTheShell()
    {
        ViewState state;
        state.currentView = StartView;
        state.termColumns = 50;
        state.termRows = 9;
        state.menuLines.insert(1, QStringLiteral("hidden by the box, and never selected"));
        state.resetDialog();
        const TreeViewItemHandler handler { DevicePaths() };
        TerminalEmulator terminal(state.termRows, state.termColumns);
        Screen screen([&terminal](const QByteArray &bytes) { terminal.feed(bytes); });
        const auto rowsAfterDrawing = [&] {
            terminal.forgetWrittenRows();
            if (state.overlayLines.isEmpty())
                state.overlayLines = startMenu(state);
            screen.show(composeFrame(state, QString()), state.termRows, { 1, 1 });
            return notationOfRows(terminal, terminal.writtenRows());
        };

        QCOMPARE(rowsAfterDrawing(),
            QStringLiteral(R"(     1r:Quenstadel
     2 :             +---Select next Step----+
     3 :hidden by the|                       |
     4 :             |                       |
     5 :             |  start Dravikon Menu  |
       :              mmmmmmmmmmmmmmmmmmmmmmm
     6 :             |continue to local shell|
     7 :             |                       |
     8 :             +-----------------------+)")
                .split(QLatin1Char('\n')));
        moveSelection(state, handler, false, +1);
        QCOMPARE(rowsAfterDrawing(),
            QStringLiteral(R"(     4 :             |  start Dravikon Menu  |
     5 :             |continue to local shell|
       :              mmmmmmmmmmmmmmmmmmmmmmm
     6 :             |                       |)")
                .split(QLatin1Char('\n')));
        moveSelection(state, handler, false, +1);
        QCOMPARE(rowsAfterDrawing(), QStringList());
    }
};

QTEST_GUILESS_MAIN(StartMenuTest)
#include "StartMenuTest.moc"
