// The backend tool of the simulated device: one command a run, one JSON list as the answer.
#include "demo/DeviceState.h"
#include "demo/FieldInterfaces.h"
#include "demo/MenuValues.h"
#include "json/JsonReader.h"

#include <QFile>
#include <QStringList>

#include <cstdio>
#include <optional>

namespace {

struct Call {
    QStringList words; ///< command words and instance number
    QVariantList values; ///< values to be written, empty when reading
};

// Command words come one by one or in a single argument, the values of a write always last.
Call callFrom(QStringList arguments)
{
    Call call;
    if (!arguments.isEmpty() && arguments.constLast().startsWith(QLatin1Char('[')))
        call.values = parseJson(arguments.takeLast().toUtf8()).value_or(QVariant()).toList();
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

// -1 for none, nothing when the call is not made of command, group and instance.
std::optional<int> instanceOf(const Call &call)
{
    if (call.words.size() == 2)
        return -1;
    bool isNumber = false;
    const int instance = call.words.value(2).toInt(&isNumber);
    if (call.words.size() != 3 || !isNumber || instance < 0)
        return std::nullopt;
    return instance;
}

QVariant sealStatus(const QVariant &state)
{
    const QVariantMap seal = valueAt(state, { QStringLiteral("seal") }).toMap();
    const QVariant closed =
        valueAt(menuValues(state, seal.value(QStringLiteral("group")).toString(), -1),
            { seal.value(QStringLiteral("position")).toInt() });
    return QVariantList { closed == true ? QStringLiteral("i18n_wm_true")
                                         : QStringLiteral("i18n_wm_false") };
}

QVariant answerOfWrite(bool isAccepted, const QString &directory, const QVariant &state)
{
    return QVariantList { isAccepted && saveState(directory, state) };
}

QVariant answerTo(const Call &call, const QString &directory, QVariant &state)
{
    const QString command = call.words.value(0);
    const QString group = call.words.value(1);
    const std::optional<int> instance = instanceOf(call);
    if (command == QLatin1String("get_menu_electronic_seal_status"))
        return sealStatus(state);
    if (command == QLatin1String("get_menu"))
        return instance ? menuValues(state, group, *instance) : QVariant();
    if (command == QLatin1String("set_menu")) {
        const bool isAccepted = instance && setMenuValues(state, group, *instance, call.values);
        return answerOfWrite(isAccepted, directory, state);
    }
    if (command == QLatin1String("button_service_diagnose_enable_if"))
        return answerOfWrite(enableInterface(state, call.values), directory, state);
    const QVariant answer = interfaceAnswer(state, command, group);
    if (answer.isValid())
        saveState(directory, state);
    return answer;
}

} // namespace

int main(int argc, char **argv)
{
    const QString directory = directoryOf(argv[0]);
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments += QString::fromUtf8(argv[index]);
    logCall(directory, arguments);

    QVariant state = loadState(directory);
    QByteArray answer;
    if (arguments.value(0) == QLatin1String("--version"))
        answer = valueAt(state, { QStringLiteral("version") }).toByteArray();
    else if (const QVariant values = answerTo(callFrom(arguments), directory, state);
             values.isValid())
        answer = deviceJson(values);
    if (answer.isEmpty())
        return 1;
    std::puts(answer.constData());
    return 0;
}
