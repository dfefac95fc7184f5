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

/// Standard error replaced for a scope, together with the handler of messages.
class OtherStandardError {
public:
    explicit OtherStandardError(int descriptor)
    {
        dup2(descriptor, STDERR_FILENO);
        close(descriptor);
    }
    ~OtherStandardError()
    {
        dup2(saved, STDERR_FILENO);
        close(saved);
        qInstallMessageHandler(handler);
    }
    Q_DISABLE_COPY(OtherStandardError)

private:
    const int saved = dup(STDERR_FILENO);
    const QtMessageHandler handler = qInstallMessageHandler(nullptr);
};

QByteArrayList waitingLines(int reader)
{
    QByteArray text;
    QByteArray piece(16384, 0);
    for (ssize_t size = 1; size > 0; text += piece.left(int(size)) + (size < 200 ? "\n" : ""))
        size = qMax<ssize_t>(read(reader, piece.data(), size_t(piece.size())), 0);
    QByteArrayList lines = text.split('\n');
    lines.removeAll(QByteArray());
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

// What arrives of many messages, and of one more after the reader has taken these.
QByteArrayList arrivingLines(int reader)
{
    for (int i = 0; i < messageCount; ++i)
        qWarning("message of a usual length, number %d", i);
    const QByteArrayList first = waitingLines(reader);
    qWarning("last message");
    return first + waitingLines(reader);
}

} // namespace

class MessageLogTest : public QObject {
    Q_OBJECT

private:
    // All lines in order up to where the queue was full, the number of the others, the last one.
    static void check(const QByteArrayList &lines)
    {
        int delivered = 0;
        while (lines.value(delivered).endsWith(" number " + QByteArray::number(delivered)))
            ++delivered;
        QVERIFY(delivered > 0 && delivered < messageCount);
        const QByteArrayList rest = lines.mid(lines.size() - 2);
        QVERIFY2(rest.value(0).endsWith(
                     "Messages dropped: " + QByteArray::number(messageCount - delivered)),
            rest.value(0).constData());
        QVERIFY2(rest.value(1).endsWith("last message"), rest.value(1).constData());
    }

private slots:
    void fullPipe()
    {
        int ends[2];
        QVERIFY(pipe2(ends, O_CLOEXEC) == 0);
        fcntl(ends[0], F_SETFL, O_NONBLOCK);
        QByteArrayList lines;
        {
            const OtherStandardError standardError(ends[1]);
            installMessageLog();
            lines = arrivingLines(ends[0]);
        }
        close(ends[0]);
        check(lines);
    }

    void silentDaemon()
    {
        const QTemporaryDir folder;
        const QByteArray path = folder.filePath(QStringLiteral("log")).toLocal8Bit();
        int daemon = logDaemon(path);
        int master = -1;
        int slave = -1;
        QVERIFY(daemon >= 0 && openpty(&master, &slave, nullptr, nullptr, nullptr) == 0);
        QByteArrayList lines;
        QByteArrayList linesAfterRestart;
        {
            const OtherStandardError standardError(slave);
            installMessageLog(path);
            lines = arrivingLines(daemon);
            close(daemon);
            daemon = logDaemon(path);
            qWarning("to the new daemon");
            linesAfterRestart = waitingLines(daemon);
        }
        close(daemon);
        close(master);
        check(lines);
        // "<12>Nov  1 12:34:56 program[123]: text"
        const QRegularExpression form(QStringLiteral(
            R"(^<12>[A-Z][a-z]{2} [ 123]\d \d\d:\d\d:\d\d [\w-]+\[\d+\]: to the new daemon$)"));
        QCOMPARE(linesAfterRestart.size(), 1);
        QVERIFY2(form.match(QString::fromLatin1(linesAfterRestart[0])).hasMatch(),
            linesAfterRestart[0].constData());
    }
};

QTEST_APPLESS_MAIN(MessageLogTest)
#include "MessageLogTest.moc"
