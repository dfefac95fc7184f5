// The backend tool of the simulated device: one command a run, one JSON list as the answer.
#include "demo/FieldInterfaces.h"
#include "demo/Json.h"
#include "demo/MenuValues.h"
#include "demo/StateFile.h"

#include <QByteArrayList>
#include <QFile>

#include <cstdio>

namespace {

struct Call {
    QByteArrayList words; ///< command words and instance number
    QByteArray values; ///< JSON text of the values to be written, empty when reading
};

// Command words come one by one or in a single argument, the values of a write always last.
Call callFrom(QByteArrayList arguments)
{
    Call call;
    if (!arguments.isEmpty() && arguments.constLast().startsWith('['))
        call.values = arguments.takeLast();
    for (const QByteArray &word : arguments.join(' ').simplified().split(' ')) {
        if (!word.isEmpty())
            call.words += word;
    }
    return call;
}

// The directory of the name that the tool was called by: it is a link beside its state.
QString directoryOf(const char *program)
{
    const QString path = QFile::decodeName(program);
    const int slash = path.lastIndexOf(QLatin1Char('/'));
    return slash < 0 ? QStringLiteral(".") : path.left(slash + 1);
}

void logCall(const QString &directory, const QByteArrayList &arguments)
{
    QFile log(directory + QLatin1String("/calls.log"));
    if (!log.open(QIODevice::Append | QIODevice::ExistingOnly))
        return;
    JsonDocument line;
    line.SetArray();
    for (const QByteArray &argument : arguments) {
        line.PushBack(Json(rapidjson::StringRef(argument.constData(), size_t(argument.size()))),
            line.GetAllocator());
    }
    log.write(compactJson(line) + '\n');
}

int instanceOf(const Call &call, bool &ok)
{
    ok = call.words.size() == 2;
    if (ok)
        return -1;
    const int instance = call.words.value(2).toInt(&ok);
    ok = ok && instance >= 0 && call.words.size() == 3;
    return instance;
}

QByteArray version(JsonDocument &state)
{
    const Json *const text = member(&state, "version");
    return text && text->IsString() ? QByteArray(text->GetString()) : QByteArray();
}

QByteArray sealStatus(JsonDocument &state)
{
    const Json *const seal = member(&state, "seal");
    const Json *const group = member(seal, "group");
    const Json *const position = member(seal, "position");
    if (!group || !group->IsString() || !position || !position->IsInt())
        return {};
    const Json *const closed =
        element(menuValues(state, group->GetString(), -1), position->GetInt());
    return closed && closed->IsTrue() ? "[\"i18n_wm_true\"]" : "[\"i18n_wm_false\"]";
}

QByteArray readMenu(JsonDocument &state, const Call &call)
{
    bool ok = false;
    const int instance = instanceOf(call, ok);
    const Json *const values = ok ? menuValues(state, call.words.value(1), instance) : nullptr;
    return values ? compactJson(*values) : QByteArray();
}

bool writeMenu(JsonDocument &state, const Call &call)
{
    bool ok = false;
    const int instance = instanceOf(call, ok);
    JsonDocument values;
    return ok && parseJson(call.values, values)
        && setMenuValues(state, call.words.value(1), instance, values);
}

bool switchInterface(JsonDocument &state, const Call &call)
{
    JsonDocument request;
    return parseJson(call.values, request) && enableInterface(state, request);
}

QByteArray answerOfWrite(bool accepted, const QString &directory, const JsonDocument &state)
{
    return accepted && saveState(directory, state) ? "[true]" : "[false]";
}

QByteArray diagnose(JsonDocument &state, const Call &call, const QString &directory)
{
    JsonDocument answer;
    if (!interfaceAnswer(state, call.words.value(0), call.words.value(1), answer))
        return {};
    saveState(directory, state);
    return compactJson(answer);
}

QByteArray answerTo(const Call &call, const QString &directory, JsonDocument &state)
{
    const QByteArray command = call.words.value(0);
    if (command == "--version")
        return version(state);
    if (command == "get_menu_electronic_seal_status")
        return sealStatus(state);
    if (command == "get_menu")
        return readMenu(state, call);
    if (command == "set_menu")
        return answerOfWrite(writeMenu(state, call), directory, state);
    if (command == "button_service_diagnose_enable_if")
        return answerOfWrite(switchInterface(state, call), directory, state);
    return diagnose(state, call, directory);
}

} // namespace

int main(int argc, char **argv)
{
    const QString directory = directoryOf(argv[0]);
    const QByteArrayList arguments(argv + 1, argv + argc);
    logCall(directory, arguments);

    JsonDocument state;
    if (!loadState(directory, state))
        return 1;
    const QByteArray answer = answerTo(callFrom(arguments), directory, state);
    if (answer.isEmpty())
        return 1;
    std::puts(answer.constData());
    return 0;
}
