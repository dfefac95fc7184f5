// A session on a small device in good order, whose every part a test can replace.
#pragma once

#include "terminal/Keys.h"
#include "terminal/PtySession.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Files.h"

#include <QElapsedTimer>

const ExitStatus endedWell = { ExitStatus::Exited, 0 };

const QByteArray screens =
    R"([{css:'root', screens:[{css:'truck', remote:1}, {css:'status', remote:1},
    {css:'many', remote:1}]},
{css:'truck', 'ajax-read':'get truck', 'ajax-write':'set truck',
    screens:[{i18n:'name', inputType:'edit', validation:'C8'}, {i18n:'on', inputType:'boolean'}]},
{css:'status', screens:[{css:'btnServiceDiagnoseAsInterfaces', remote:1}]},
{css:'btnServiceDiagnoseAsInterfaces', type:'status'},
{css:'many', screens:[{i18n:'a'},{i18n:'b'},{i18n:'c'},{i18n:'d'}]}])";
const QByteArray script = "var Settings = { setupStructureVersion: 7, settings: " + screens + "};";

/// Never ends by itself, nor by SIGINT or SIGTERM.
const QByteArray hang = "trap '' INT TERM; sleep 100; true";

inline QByteArray toolThatReadsBy(const QByteArray &command)
{
    return "case $* in --version) echo 1.4.2/build7;; get*seal*) echo '[\"x\"]';; get*) " + command
        + ";; set*) echo '[true]';; esac";
}

const QByteArray goodTool = toolThatReadsBy("echo '[\"Emma\",true,[]]'");

const QByteArrayList keysToEditField = { Key::enter, Key::down, Key::enter };
const QByteArrayList keysToDiagnoseScreen = { Key::down, Key::enter, Key::down, Key::enter };

class Session : public PtySession {
public:
    FakeDevice device;
    QElapsedTimer sinceStart;

    Session()
    {
        device.setScript(script);
        device.setTool(goodTool);
        device.setTranslations("{}");
    }

    ~Session() { kill(); }

    /// Starts the console, its messages going to a file, and does not wait for its first frame.
    bool run(int rows = 24, int columns = 80, int idleMs = 180000)
    {
        setStandardError(messagePath());
        sinceStart.start();
        return PtySession::start(TEST_SESSION, arguments(idleMs), rows, columns);
    }

    bool start(int idleMs = 180000) { return run(24, 80, idleMs) && hasTitle(); }

    /// Runs a command of the shell, for which "$@" starts the console.
    bool startBy(const QString &command, int idleMs = 180000)
    {
        sinceStart.start();
        return PtySession::start("/bin/bash",
            QStringList { "-c", command, "bash", TEST_SESSION } + arguments(idleMs), 24, 80);
    }

    /// Waits for the title bar of the first frame.
    bool hasTitle() { return waitForText("Drav"); }

    /// Waits until the screen is drawn again since the last mark.
    bool waitForRedraw()
    {
        return waitFor([this] { return bytesSinceMark().contains("Drav"); });
    }

    /// Presses all keys, one by one.
    bool press(const QByteArrayList &keys)
    {
        return std::all_of(keys.begin(), keys.end(),
            [this](const QByteArray &key) { return PtySession::press(key); });
    }

    /// Sends the key that ends the session, and returns how it ended.
    ExitStatus endBy(const QByteArray &key)
    {
        send(key);
        return waitForExit();
    }

    /// Waits until the tool was called with these arguments, joined by "|", since the last
    /// question.
    bool waitForCall(const QString &call)
    {
        QStringList calls;
        return waitFor([&] { return (calls += device.takeCalls()).contains(call); });
    }

    QString messages() const { return fileContent(messagePath()).value_or(QByteArray()); }

    bool isTerminalRestored() const
    {
        return (attributes().c_lflag & (ICANON | ECHO)) == (ICANON | ECHO)
            && terminal().cursorVisible();
    }

private:
    QStringList arguments(int idleMs) const
    {
        const DevicePaths &paths = device.paths();
        return { paths.webRoot, paths.settingsScript, paths.backendTool, QString::number(idleMs) };
    }

    QString messagePath() const { return device.paths().webRoot + "/messages"; }
};
