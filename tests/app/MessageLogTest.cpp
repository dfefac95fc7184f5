// Messages to a log daemon or to standard error. A reader that does not read holds up nothing: the
// program does not wait, and what was dropped is counted.
#include "app/MessageLog.h"
#include "tests/support/Rows.h"

#include <array>

#include <fcntl.h>
#include <pty.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <syslog.h>
#include <unistd.h>

namespace {

constexpr int messageCount = 3000; // more than any queue of the system takes

/// The messages that wait in a socket, or in a pipe that keeps them apart.
QByteArrayList waitingMessages(int reader)
{
    std::array<char, 16384> buffer;
    QByteArrayList messages;
    ssize_t size = read(reader, buffer.data(), buffer.size());
    while (size > 0) {
        messages += QByteArray(buffer.data(), int(size)).trimmed();
        size = read(reader, buffer.data(), buffer.size());
    }
    return messages;
}

/// The socket of a log daemon that is not read unless a test does; -1 when it cannot be made.
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

    const QTemporaryDir folder;
    const QByteArray socketPath = folder.filePath("log").toLocal8Bit();
    int terminal = -1; ///< shows what is written to `errorTerminal`
    int errorTerminal = -1;
    int daemon = -1;

    // Of many messages, the reader gets all up to where its queue is full. What comes after them
    // follows the number of the others.
    static void flood(int reader)
    {
        for (int i = 0; i < messageCount; ++i)
            qWarning("message of a usual length, number %d", i);
        const QByteArrayList first = waitingMessages(reader);
        QVERIFY(!first.isEmpty() && first.size() < messageCount);
        for (int i = 0; i < first.size(); ++i)
            QVERIFY2(first[i].endsWith(" number " + QByteArray::number(i)), first[i]);
        qWarning("last message");
        const QByteArrayList rest = waitingMessages(reader);
        QCOMPARE(rest.size(), 2);
        const QByteArray dropped = QByteArray::number(messageCount - first.size());
        QVERIFY2(rest[0].endsWith("Messages dropped: " + dropped), rest[0]);
        QVERIFY2(rest[1].endsWith("last message"), rest[1]);
    }

private slots:
    void initTestCase()
    {
        QVERIFY(openpty(&terminal, &errorTerminal, nullptr, nullptr, nullptr) == 0);
        fcntl(terminal, F_SETFL, O_NONBLOCK);
    }

    // Installs the log with standard error on a terminal. The test reports on standard output.
    void init()
    {
        dup2(errorTerminal, STDERR_FILENO);
        installMessageLog(socketPath);
        daemon = logDaemon(socketPath);
    }

    void cleanup() { close(daemon); }

    void fullPipe()
    {
        std::array<int, 2> ends = {};
        QVERIFY(pipe2(ends.data(), O_CLOEXEC | O_DIRECT | O_NONBLOCK) == 0);
        dup2(ends[1], STDERR_FILENO);
        installMessageLog();
        flood(ends[0]);
    }

    void silentDaemon()
    {
        flood(daemon);
        QVERIFY(waitingMessages(terminal).isEmpty());
    }

    void restartedDaemon()
    {
        qWarning("before");
        close(daemon);
        daemon = logDaemon(socketPath);
        qWarning("at once");
        QVERIFY(waitingMessages(daemon).value(0).endsWith("at once"));
        close(daemon);
        qWarning("to nobody");
        daemon = logDaemon(socketPath);
        qWarning("after");
        const QByteArrayList messages = waitingMessages(daemon);
        QCOMPARE(messages.size(), 2);
        QVERIFY(messages[0].endsWith("Messages dropped: 1") && messages[1].endsWith("after"));
    }

    void priority()
    {
        const Rows row = [this](int type, int priority) {
            qt_message_output(QtMsgType(type), {}, "text");
            const QByteArray message = waitingMessages(daemon).value(0);
            // As in "<12>program[123]: text"; the daemon adds the time.
            const QRegularExpression form(
                QString(R"(^<%1>[\w-]+\[\d+\]: text$)").arg(LOG_USER | priority));
            QVERIFY2(form.match(QString::fromLatin1(message)).hasMatch(), message.constData());
        };
        row("debug", QtDebugMsg, LOG_DEBUG);
        row("warning", QtWarningMsg, LOG_WARNING);
        row("critical", QtCriticalMsg, LOG_ERR);
    }

    void fatalMessageOnTerminal()
    {
        // The handler itself: qFatal() would end the test.
        const QtMessageHandler handler = qInstallMessageHandler(nullptr);
        handler(QtFatalMsg, {}, "why it ends");
        QVERIFY(waitingMessages(terminal).value(0).contains("why it ends"));
        QVERIFY(waitingMessages(daemon).isEmpty());
    }
};

QTEST_APPLESS_MAIN(MessageLogTest)
#include "MessageLogTest.moc"
