#include "bench/session/Devices.h"

#include "bench/session/Program.h"

#include <QFile>

namespace {

const QString recorder = QStringLiteral("recorder");
const QString recordedCalls = QStringLiteral("calls");

// Makes the simulated device and ends.
void openPreview(QStringList command, const QString &directory)
{
    command += { QStringLiteral("--state"), directory };
    Program(command).firstFrame();
}

} // namespace

DemoDevice::DemoDevice()
{
    openPreview({ QStringLiteral(DRAVIKON_DEMO) }, files.webRoot());
    // Each call is a line, each of its arguments ends with a zero byte.
    files.write(recorder,
        "#!/bin/sh\nset -e\n{ printf '%s\\0' \"$@\"; echo; } >> \"${0%/*}/calls\"\n"
        "exec \"${0%/*}/DBusController\" \"$@\"\n");
    QFile::setPermissions(files.path(recorder), QFile::ReadOwner | QFile::ExeOwner);
}

QStringList DemoDevice::recordedArguments() const
{
    return { QStringLiteral(DRAVIKON_DEMO_WEB), files.path(recorder) };
}

QVector<QStringList> DemoDevice::takeCalls()
{
    QVector<QStringList> calls;
    QFile log(files.path(recordedCalls));
    if (!log.open(QIODevice::ReadOnly))
        return calls;
    for (const QByteArray &line : log.readAll().split('\n')) {
        if (line.isEmpty())
            continue;
        QStringList call(tool());
        for (const QByteArray &argument : line.left(line.size() - 1).split('\0'))
            call += QString::fromUtf8(argument);
        calls += call;
    }
    log.remove();
    return calls;
}

LargeDevice::LargeDevice(int items, Definition definition)
{
    const QByteArray rest = ", remote: 1, inputType: 'edit', validation: 'C20' }";
    QByteArray fields;
    QByteArray texts = "{ \"dateformat\": \"DD.MM.YYYY\"";
    for (int number = 1; number <= items; ++number) {
        const QByteArray digits = QByteArray::number(number);
        if (definition == SpelledOut)
            fields += "{ i18n: 'field_" + digits + '\'' + rest + ",\n";
        texts += ",\n\"field_" + digits + "\": \"Field number " + digits + '"';
    }
    QByteArray script = "var fields = [" + fields + "];\n";
    if (definition == Loop) {
        script += "for (var number = 1; number <= " + QByteArray::number(items)
            + "; ++number)\n    fields.push({ i18n: 'field_' + number" + rest + ");\n";
    }
    files.writeSettings(
        script + "var Settings = { setupStructureVersion: 1, settings: [{ screens: fields }] };\n");
    files.writeTranslations(texts + " }\n");
    openPreview({ QStringLiteral(DRAVIKON_PREVIEW), QStringLiteral("--web-root"), files.webRoot() },
        files.webRoot());
}

QStringList LargeDevice::arguments() const
{
    return { files.webRoot(), files.path(QStringLiteral("DBusController")) };
}
