#include "check/ScriptFindings.h"

#include "check/Utf8Findings.h"
#include "platform/FileContent.h"

namespace {

// Of an exception that left the script. The engine does not know the line of each.
QString exceptionText(const QScriptEngine &engine)
{
    const int line = engine.uncaughtExceptionLineNumber();
    const QString text = engine.uncaughtException().toString();
    return line > 0 ? QStringLiteral("line %1: ").arg(line) + text : text;
}

Findings errorFindings(LoadedMenu &menu)
{
    const QScriptSyntaxCheckResult syntax =
        QScriptEngine::checkSyntax(menu.handler.scriptHelper().settingsScript());
    // The check does not know all that the engine does, such as getters.
    if (menu.settings.isError() && syntax.state() != QScriptSyntaxCheckResult::Valid) {
        const QString message = syntax.errorMessage();
        return { error("script", "line %1, column %2: %3; correct it, the console shows no menu",
            syntax.errorLineNumber(), syntax.errorColumnNumber(),
            message.isEmpty() ? QStringLiteral("Syntax error") : message) };
    }
    const QScriptEngine &engine = menu.handler.scriptHelper().scriptEngine();
    const bool hasThrown = engine.hasUncaughtException();
    if (menu.settings.isError()) {
        return { error("script", "%1; correct it, the console shows no menu",
            hasThrown
                ? exceptionText(engine)
                : QStringLiteral("the script ends with the value ") + menu.settings.toString()) };
    }
    Findings findings;
    if (hasThrown) {
        findings << error("script",
            "%1 is thrown; correct it, the console ignores what follows in the script",
            exceptionText(engine));
    }
    if (!menu.settings.property(0).isObject()) {
        findings << error(
            "script", "it defines no screens; assign an array of them to \"Settings.settings\"");
    }
    return findings;
}

} // namespace

Findings scriptFindings(LoadedMenu &menu)
{
    const QByteArray script = fileContent(menu.paths.settingsScript).value_or(QByteArray());
    const Findings findings =
        utf8Findings(script, QStringLiteral("the script")) + errorFindings(menu);
    const bool hasScreens = menu.settings.property(0).isObject();
    if (!hasScreens || !menu.handler.setupStructureVersion().isEmpty())
        return findings;
    return findings
        + Findings { warning("no-version",
            "it has no \"setupStructureVersion\", so the bottom row shows none; add it to "
            "\"Settings\"") };
}
