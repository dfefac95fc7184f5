#include "check/DeviceFindings.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "json/Values.h"

#include <QFileInfo>

namespace {

constexpr int slowMs = 1000;

QString durationText(qint64 ms)
{
    return QString::number(double(ms) / 1000, 'f', 1);
}

// Decoded as the console does it.
std::optional<QVariant> valueOf(const ToolCall &call, JsonFault *fault)
{
    return parseJson(QString::fromUtf8(call.output).toUtf8(), fault);
}

QString whyNoArray(const ToolCall &call)
{
    if (call.output.trimmed().isEmpty())
        return QStringLiteral("printed nothing; it failed, or does not know these words");
    JsonFault fault;
    if (valueOf(call, &fault))
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
            QStringLiteral("<%1> was not asked, as the tool cannot be started; correct its path or "
                           "permissions")
                .arg(shownCall(arguments))) };
    }
    if (call.durationMs >= calls.patienceMs) {
        return { error("hanging-call",
            QStringLiteral(
                "<%1> did not end within %2 s and was killed; what it printed until then "
                "is its answer")
                .arg(shownCall(arguments), durationText(calls.patienceMs))) };
    }
    if (call.durationMs > slowMs) {
        return { warning("slow-call",
            QStringLiteral("<%1> took %2 s, and the console waits for it; answer within a few ten "
                           "milliseconds")
                .arg(shownCall(arguments), durationText(call.durationMs))) };
    }
    return {};
}

// True if the output of the run needs no findings of its own.
bool isDead(const Findings &ofRun)
{
    return !ofRun.isEmpty() && ofRun.first().severity == Severity::Error;
}

} // namespace

bool isNumber(const QVariant &value)
{
    bool isNumber = false;
    value.toDouble(&isNumber);
    return isNumber && value.type() != QVariant::Bool;
}

QString shownValue(const QVariant &value)
{
    return value.type() == QVariant::Double
        ? textOf(value)
        : QString::fromLatin1(jsonText(value).value_or(QByteArray()));
}

std::optional<QVariantList> answerOf(const ToolCall &call)
{
    const QVariant value = valueOf(call, nullptr).value_or(QVariant());
    return value.type() == QVariant::List ? std::make_optional(value.toList()) : std::nullopt;
}

Findings callFindings(const ToolCalls &calls, const QStringList &arguments)
{
    Findings findings = runFindings(calls, arguments);
    const ToolCall &call = *calls.find(arguments);
    if (!isDead(findings) && !answerOf(call)) {
        findings << error(
            "no-array", QStringLiteral("<%1> %2").arg(shownCall(arguments), whyNoArray(call)));
    }
    return findings;
}

Findings versionFindings(const ToolCalls &calls, const QStringList &arguments)
{
    Findings findings = runFindings(calls, arguments);
    const QByteArray output = calls.find(arguments)->output;
    if (!isDead(findings) && output.split('/').first().trimmed().isEmpty()) {
        findings << warning("no-tool-version",
            QStringLiteral(
                "<%1> printed no text before the first \"/\", so the bottom row shows no "
                "version; print one")
                .arg(shownCall(arguments)));
    }
    return findings;
}
