#include "preview/SimulatedTool.h"

#include "json/JsonReader.h"
#include "preview/FieldInterfaces.h"
#include "preview/MenuValues.h"

#include <QFile>

#include <cstdio>

namespace {

struct Call {
    QStringList words; ///< of the command, the number of a compartment or meter included
    QVariantList values; ///< to be written
    bool isWrite = false;
};

// The command's words are separate arguments or a single one; the last argument of a write is the
// list of values.
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

// The tool is called by a link in the device's directory.
QString directoryOf(const char *program)
{
    const QString path = QFile::decodeName(program);
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? QStringLiteral(".") : path.left(slash + 1);
}

QVariant answerTo(const Call &call, DeviceState &state, const std::function<bool()> &save)
{
    const auto writeAnswer = [&](bool isAccepted) { return QVariantList { isAccepted && save() }; };
    const QString command = call.words.value(0);
    if (command == QLatin1String("get_menu_electronic_seal_status")) {
        const bool isClosed = sealValue(state).toBool();
        return QVariantList { QLatin1String(isClosed ? "i18n_wm_true" : "i18n_wm_false") };
    }
    if (command == QLatin1String("button_service_diagnose_enable_if"))
        return writeAnswer(switchInterface(state, call.values));
    const QString words = call.words.join(QLatin1Char(' '));
    if (call.isWrite)
        return writeAnswer(acceptWrite(state, words, call.values));
    if (const auto group = state.groups.find(words); group != state.groups.end())
        return group->second.values;
    QVariant answer = interfaceAnswer(state, command, call.words.value(1));
    if (answer.isValid())
        save();
    return answer;
}

} // namespace

QByteArray simulatedAnswer(
    DeviceState &state, const QStringList &arguments, const std::function<bool()> &save)
{
    if (arguments.value(0) == QLatin1String("--version"))
        return state.version.toUtf8();
    const QVariant answer = answerTo(callFrom(arguments), state, save);
    return answer.isValid() ? deviceJson(answer) : QByteArray();
}

int runSimulatedTool(int argc, char **argv)
{
    const QString directory = directoryOf(argv[0]);
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments += QString::fromUtf8(argv[index]);
    const StateLock lock(directory);
    const QString file = stateFile(directory);
    DeviceState state = loadState(file).value_or(DeviceState());
    const QByteArray answer =
        simulatedAnswer(state, arguments, [&] { return saveState(file, state); });
    if (answer.isEmpty())
        return 1;
    const bool isPrinted = std::puts(answer.constData()) >= 0 && std::fflush(stdout) == 0;
    return isPrinted ? 0 : 1;
}
