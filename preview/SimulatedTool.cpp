#include "preview/SimulatedTool.h"

#include "json/JsonReader.h"
#include "preview/DeviceState.h"
#include "preview/FieldInterfaces.h"
#include "preview/MenuValues.h"

#include <QFile>
#include <QStringList>

#include <cstdio>

namespace {

struct Call {
    QStringList words; ///< command words and instance number
    QVariantList values; ///< to be written
    bool isWrite = false;
};

// Command words come one by one or in a single argument, the values of a write always last.
Call callFrom(QStringList arguments)
{
    Call call;
    if (!arguments.isEmpty() && arguments.constLast().startsWith(QLatin1Char('['))) {
        call.isWrite = true;
        call.values = parseJson(arguments.takeLast().toUtf8()).value_or(QVariant()).toList();
    }
    call.words = arguments.join(QLatin1Char(' ')).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    return call;
}

// The directory of the name that the tool was called by: it is a link beside its state.
QString directoryOf(const char *program)
{
    const QString path = QFile::decodeName(program);
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? QStringLiteral(".") : path.left(slash + 1);
}

void logCall(const QString &directory, const QStringList &arguments)
{
    QFile log(directory + QLatin1String("/calls.log"));
    if (!log.open(QIODevice::Append | QIODevice::ExistingOnly))
        return;
    const QVariantList line(arguments.begin(), arguments.end());
    log.write(deviceJson(line) + '\n');
}

QVariant sealStatus(const QVariant &state)
{
    const bool isClosed =
        valueAt(state, valueAt(state, { QStringLiteral("seal") }).toList()).toBool();
    return QVariantList { isClosed ? QStringLiteral("i18n_wm_true")
                                   : QStringLiteral("i18n_wm_false") };
}

QVariant answerOfWrite(bool isAccepted, const QString &file, const QVariant &state)
{
    return QVariantList { isAccepted && saveState(file, state) };
}

QVariant answerTo(const Call &call, const QString &file, QVariant &state)
{
    const QString command = call.words.value(0);
    if (command == QLatin1String("get_menu_electronic_seal_status"))
        return sealStatus(state);
    if (command == QLatin1String("button_service_diagnose_enable_if"))
        return answerOfWrite(enableInterface(state, call.values), file, state);
    if (call.isWrite)
        return answerOfWrite(writeValues(state, call.words, call.values), file, state);
    QVariant answer = interfaceAnswer(state, command, call.words.value(1));
    if (!answer.isValid())
        return readValues(state, call.words);
    saveState(file, state);
    return answer;
}

} // namespace

int runSimulatedTool(int argc, char **argv)
{
    const QString directory = directoryOf(argv[0]);
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments += QString::fromUtf8(argv[index]);
    logCall(directory, arguments);

    const QString file = stateFile(directory);
    QVariant state = loadState(file);
    QByteArray answer;
    if (arguments.value(0) == QLatin1String("--version"))
        answer = valueAt(state, { QStringLiteral("version") }).toByteArray();
    else if (const QVariant values = answerTo(callFrom(arguments), file, state); values.isValid())
        answer = deviceJson(values);
    if (answer.isEmpty())
        return 1;
    std::puts(answer.constData());
    return 0;
}
