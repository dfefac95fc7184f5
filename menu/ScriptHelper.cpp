#include "menu/ScriptHelper.h"

#include "platform/FileContent.h"
#include "platform/SignalBlocker.h"

#include <QDebug>
#include <QScriptValueIterator>
#include <QTextStream>

namespace {

void warnOf(const QScriptValue &error)
{
    QScriptValueIterator property(error);
    while (property.hasNext()) {
        property.next();
        qWarning().noquote()
            << "scriptValues.isError())"
            << QStringLiteral("\"%1\" \"%2\"").arg(property.name(), property.value().toString());
    }
}

// The engine starts a thread, which inherits the signal mask. Signals are for the session's thread.
std::unique_ptr<QScriptEngine> makeEngine()
{
    const SignalBlocker blocker(asynchronousSignals());
    return std::make_unique<QScriptEngine>();
}

} // namespace

ScriptHelper::ScriptHelper(const DevicePaths &paths, ToolRunner runTool)
    : engine(makeEngine())
    , paths(paths)
    , runTool(std::move(runTool))
{
}

QString ScriptHelper::settingsScript() const
{
    return QTextStream(fileContent(paths.settingsScript).value_or(QByteArray())).readAll();
}

QScriptValue ScriptHelper::load()
{
    const QString script = settingsScript();
    // The script assigns members of this object, which the web interface provides.
    engine->evaluate(QStringLiteral("var datatransferLogbookHandler ={} "));
    const QScriptValue result = engine->evaluate(script, paths.settingsScript);
    if (result.isError()) {
        warnOf(result);
        return result;
    }
    const QScriptValue definition = engine->globalObject().property(QStringLiteral("Settings"));
    structureVersion = definition.property(QStringLiteral("setupStructureVersion")).toString();
    const QScriptValue settings = definition.property(QStringLiteral("settings"));
    if (engine->hasUncaughtException()) {
        qWarning() << "The settings script threw" << engine->uncaughtException().toString() << "in"
                   << paths.settingsScript << "line" << engine->uncaughtExceptionLineNumber();
    }
    if (!settings.isObject() && !script.isEmpty())
        qWarning() << "The settings script defines no array of screens:" << paths.settingsScript;
    return settings;
}
