#include "check/ScriptFindings.h"

namespace {

// Empty when there is none.
QString scriptError(LoadedMenu &menu)
{
    const QScriptSyntaxCheckResult syntax =
        QScriptEngine::checkSyntax(menu.handler.scriptHelper().settingsScript());
    if (syntax.state() != QScriptSyntaxCheckResult::Valid) {
        const QString message = syntax.errorMessage();
        return QStringLiteral("line %1, column %2: %3; correct it, the console shows no menu")
            .arg(syntax.errorLineNumber())
            .arg(syntax.errorColumnNumber())
            .arg(message.isEmpty() ? QStringLiteral("Syntax error") : message);
    }
    const QScriptEngine &engine = menu.handler.scriptHelper().scriptEngine();
    if (engine.hasUncaughtException()) {
        return QStringLiteral("line %1: %2; correct it, the script ends there")
            .arg(engine.uncaughtExceptionLineNumber())
            .arg(engine.uncaughtException().toString());
    }
    if (!menu.settings.property(0).isObject()) {
        return QStringLiteral(
            "it defines no screens; assign an array of them to \"Settings.settings\"");
    }
    return {};
}

} // namespace

Findings scriptFindings(LoadedMenu &menu)
{
    const QString text = scriptError(menu);
    if (!text.isEmpty())
        return { error("script", "%1", text) };
    if (menu.handler.setupStructureVersion().isEmpty()) {
        return { warning("no-version",
            "it has no \"setupStructureVersion\", so the bottom row shows none; add it to "
            "\"Settings\"") };
    }
    return {};
}
