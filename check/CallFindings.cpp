#include "check/CallFindings.h"

#include "check/Answer.h"

#include <QFileInfo>

namespace {

constexpr int slowMs = 1000;

QString durationText(qint64 ms)
{
    return QString::number(double(ms) / 1000, 'f', 1);
}

QString whyNoArray(const ToolCall &call)
{
    if (call.output.trimmed().isEmpty())
        return QStringLiteral("printed nothing; it failed, or does not know these words");
    JsonFault fault;
    if (jsonOf(call, &fault))
        return QStringLiteral("printed JSON that is no array; put the values between [ and ]");
    return QStringLiteral("printed no JSON, ") + fault.text();
}

// What concerns any call, also one that answers in plain text.
Findings runFindings(const ToolCalls &calls, const QStringList &arguments)
{
    const ToolCall &call = *calls.find(arguments);
    const QFileInfo tool(calls.tool);
    if (!tool.isFile() || !tool.isExecutable()) {
        return { error("no-tool",
            "<%1> was not asked, as the tool cannot be started; correct its path or permissions",
            shownCall(arguments)) };
    }
    if (call.durationMs >= calls.patienceMs) {
        return { error("hanging-call",
            "<%1> did not end within %2 s and was killed; what it printed until then is its answer",
            shownCall(arguments), durationText(calls.patienceMs)) };
    }
    if (call.durationMs > slowMs) {
        return { warning("slow-call",
            "<%1> took %2 s, and the console waits for it; answer within a few ten milliseconds",
            shownCall(arguments), durationText(call.durationMs)) };
    }
    return {};
}

// True if the output of the run needs no findings of its own.
bool isDead(const Findings &ofRun)
{
    return !ofRun.isEmpty() && ofRun.first().severity == Severity::Error;
}

} // namespace

Findings callFindings(const ToolCalls &calls, const QStringList &arguments)
{
    Findings findings = runFindings(calls, arguments);
    const ToolCall &call = *calls.find(arguments);
    if (!isDead(findings) && !answerOf(call)) {
        findings << error("no-array", "<%1> %2", shownCall(arguments), whyNoArray(call));
    }
    return findings;
}

Findings versionFindings(const ToolCalls &calls, const QStringList &arguments)
{
    Findings findings = runFindings(calls, arguments);
    const QByteArray output = calls.find(arguments)->output;
    if (!isDead(findings) && output.split('/').first().trimmed().isEmpty()) {
        findings << warning("no-tool-version",
            "<%1> printed no text before the first \"/\", so the bottom row shows no version; "
            "print one",
            shownCall(arguments));
    }
    return findings;
}
