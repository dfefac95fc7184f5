// Messages whose reader does not read: the program does not wait, and what was dropped is counted.
#include "app/MessageLog.h"

#include <QtTest>

#include <fcntl.h>
#include <pty.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr int messageCount = 3000; // more than any queue of the system takes

QByteArrayList waitingLines(int reader)
{
    QByteArray text;
    QByteArray piece(16384, 0);
    for (ssize_t size = 1; size > 0; text += piece.left(int(size)) + (size < 200 ? "\n" : ""))
        size = qMax<ssize_t>(read(reader, piece.data(), size_t(piece.size())), 0);
    QByteArrayList lines = text.split('\n');
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

int logDaemon(const QByteArray &path)
{
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    unlink(path.constData());
    const int reader = socket(AF_UNIX, SOCK_DGRAM | SOCK_NONBLOCK, 0);
    return bind(reader, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0 ? reader : -1;
}

} // namespace

class MessageLogTest : public QObject {
    Q_OBJECT

    // Of many messages the reader gets all up to where its queue was full, then the number of the
    // others, and what comes after them.
    static void dropsWhatDoesNotFit(int reader)
    {
        for (int i = 0; i < messageCount; ++i)
            qWarning("message of a usual length, number %d", i);
        const QByteArrayList first = waitingLines(reader);
        qWarning("last message");
        const QByteArrayList rest = waitingLines(reader);
        QVERIFY(!first.isEmpty() && first.size() < messageCount);
        for (int i = 0; i < first.size(); ++i)
            QVERIFY2(first[i].endsWith(" number " + QByteArray::number(i)), first[i].constData());
        QCOMPARE(rest.size(), 2);
        const QByteArray dropped = QByteArray::number(messageCount - first.size());
        QVERIFY2(rest[0].endsWith("Messages dropped: " + dropped), rest[0].constData());
        QVERIFY2(rest[1].endsWith("last message"), rest[1].constData());
    }

private slots:
    void fullPipe()
    {
        int ends[2];
        QVERIFY(pipe2(ends, O_CLOEXEC) == 0);
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
        dup2(ends[1], STDERR_FILENO); // the test reports on standard output
        installMessageLog();
        dropsWhatDoesNotFit(ends[0]);
    }

    void silentDaemon()
    {
        const QTemporaryDir folder;
        const QByteArray path = folder.filePath(QStringLiteral("log")).toLocal8Bit();
        int daemon = logDaemon(path);
        int master = -1;
        int slave = -1;
        QVERIFY(daemon >= 0 && openpty(&master, &slave, nullptr, nullptr, nullptr) == 0);
        dup2(slave, STDERR_FILENO);
        installMessageLog(path);
        dropsWhatDoesNotFit(daemon);
        close(daemon);
        qWarning("to nobody");
        // The reason of a sudden end goes to the terminal.
        qInstallMessageHandler(nullptr)(QtFatalMsg, {}, QStringLiteral("fatal"));
        fcntl(master, F_SETFL, O_NONBLOCK);
        QVERIFY(waitingLines(master).join().contains("fatal"));
        installMessageLog(path);
        daemon = logDaemon(path);
        qWarning("to the new daemon");
        // "<12>Nov  1 12:34:56 program[123]: text"
        const QRegularExpression form(QStringLiteral(
            R"(^<12>[A-Z][a-z]{2} [ 123]\d \d\d:\d\d:\d\d [\w-]+\[\d+\]: to the new daemon$)"));
        const QByteArray line = waitingLines(daemon).value(1);
        QVERIFY2(form.match(QString::fromLatin1(line)).hasMatch(), line.constData());
    }
};

QTEST_APPLESS_MAIN(MessageLogTest)
#include "MessageLogTest.moc"
