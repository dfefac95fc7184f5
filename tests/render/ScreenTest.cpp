// What is written to the terminal: changed rows, the text cursor, the bars.
#include "render/Screen.h"
#include "render/Bars.h"

#include <QtTest>

#include <Version.h>

static const char written[] =
    "\x1b[1;0H\x1b[41mQuenstadel\x1b[K\x1b[0m\x1b[2;0H\x1b[44mDravikon "
    "ver: VERSION|Setup ver: 4 2|DBC ver: 4 2| exit: Key (Q)\x1b[K\x1b[0m & \x1b[3;0H\xe4\xff?? & "
    "\x1b[0;0H\x1b[?25h\n & \x1b[1;0H\x1b[2;0H\x1b[5;7H & \x1b[5;7H & \x1b[?25l\n & "
    "\x1b[2J\n & \x1b[3;0H\xe4\xff??";

class ScreenTest : public QObject {
    Q_OBJECT

private slots:
    void writesWhatChanged()
    {
        QByteArrayList flushes;
        Screen screen([&flushes](const QByteArray &bytes) { flushes += bytes; });
        const QString version = QStringLiteral("4\t2\r\n");
        Frame frame { { 0, headerBar() }, { 1, titleBar(version, version) } };
        screen.show(frame, 3, { 5, 7 });
        screen.show(frame, 3, { 5, 7 });
        frame[2] = QString::fromUtf8("\u00e4\u00ff\u0100\u20ac");
        screen.show(frame, 3, { 5, 7 });
        frame = { { 2, frame[2] } };
        screen.moveCursorTo(0, 0);
        screen.setCursorVisible(true);
        screen.show(frame, 3, { 5, 7 });
        screen.show(frame, 3, { 5, 7 });
        screen.setCursorVisible(false);
        screen.clear();
        screen.show(frame, 3, { 5, 7 });
        QCOMPARE(
            flushes.join(" & ").replace(consoleVersion.data(), "VERSION"), QByteArray(written));
    }
};

QTEST_APPLESS_MAIN(ScreenTest)
#include "ScreenTest.moc"
