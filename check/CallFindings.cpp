#include "check/CallFindings.h"

#include "check/Answer.h"
#include "check/Utf8Findings.h"

namespace {

QString durationText(qint64 us)
{
    return QString::number(double(us) / 1e6, 'f', 1);
}

// The beginning of what the tool printed, in quotes.
QString excerpt(const QByteArray &printed)
{
    constexpr int longest = 60;
    const QString line =
        QString::fromUtf8(printed).trimmed().section(QLatin1Char('\n'), 0, 0).trimmed();
    return QLatin1Char('"') + shortened(line, longest) + QLatin1Char('"');
}

// How the run ended, where that is no success, and what it wrote to standard error.
QString endText(const ToolCall &call)
{
    QStringList texts;
    if (call.end.kind == ToolEnd::Signalled)
        texts += QStringLiteral("signal %1 ended it").arg(call.end.number);
    else if (call.end.kind == ToolEnd::Exited && call.end.number != 0)
        texts += QStringLiteral("its exit status was %1").arg(call.end.number);
    if (!call.errors.trimmed().isEmpty())
        texts += QStringLiteral("it wrote to standard error: ") + excerpt(call.errors);
    return texts.join(QLatin1String(", "));
}

// For the end of a report.
QString andEnd(const ToolCall &call)
{
    const QString end = endText(call);
    return end.isEmpty() ? end : QLatin1String("; ") + end;
}

QString whyNoArray(const QStringList &arguments, const ToolCall &call)
{
    QStringList texts;
    QString fault;
    if (call.end.kind == ToolEnd::PrintedTooMuch)
        texts += QStringLiteral("printed more than 16 MiB, which is no answer");
    else if (call.output.trimmed().isEmpty())
        texts += QStringLiteral("printed nothing; it failed, or does not know these words");
    else if (jsonOf(call, &fault))
        texts += QStringLiteral("printed JSON that is no array; put the values between [ and ]");
    else
        texts += QStringLiteral("printed no JSON, %1; the answer begins with ").arg(fault)
            + excerpt(call.output);
    if (arguments.size() == 1 && arguments.first().contains(QLatin1Char(' ')))
        texts += QStringLiteral("for this number all words come as one argument");
    return texts.join(QLatin1String("; ")) + andEnd(call);
}

// What concerns any call, also one that answers in plain text.
Findings runFindings(const ToolCalls &calls, const QStringList &arguments)
{
    const ToolCall &call = *calls.find(arguments);
    const QString words = shownCall(arguments);
    if (call.isWithheld) {
        return { error("write-call",
            "<%1> was not run, as screens write with these words; correct the \"ajax-read\"",
            words) };
    }
    if (call.end.kind == ToolEnd::TimedOut) {
        return { error("hanging-call",
            "<%1> did not end within %2 s and was killed; what it printed until then is its "
            "answer%3",
            words, durationText(calls.patienceMs * 1000LL), andEnd(call)) };
    }
    if (call.durationUs > calls.slowMs * 1000LL) {
        return { warning("slow-call",
            "<%1> took %2 s, and the console waits for it; answer within a few ten milliseconds",
            words, durationText(call.durationUs)) };
    }
    return {};
}

// True if the output of the run needs no findings of its own.
bool isDead(const Findings &ofRun)
{
    return !ofRun.isEmpty() && ofRun.first().severity == Severity::Error;
}

// The console uses an answer however its run has ended.
Findings badEndFindings(const QStringList &arguments, const ToolCall &call)
{
    if (call.end.kind == ToolEnd::Exited && call.end.number == 0)
        return {};
    return { warning("tool-end", "<%1> answered, but %2; end with 0 after an answer",
        shownCall(arguments), endText(call)) };
}

} // namespace

Findings callFindings(const ToolCalls &calls, const QStringList &arguments)
{
    const Findings findings = runFindings(calls, arguments);
    if (isDead(findings))
        return findings;
    const ToolCall &call = *calls.find(arguments);
    if (!answerOf(call)) {
        return findings
            + Findings { error(
                "no-array", "<%1> %2", shownCall(arguments), whyNoArray(arguments, call)) };
    }
    return findings + badEndFindings(arguments, call)
        + utf8Findings(call.output, QStringLiteral("the answer to <%1>").arg(shownCall(arguments)));
}

Findings versionFindings(const ToolCalls &calls, const QStringList &arguments)
{
    const Findings findings = runFindings(calls, arguments);
    if (isDead(findings))
        return findings;
    const ToolCall &call = *calls.find(arguments);
    if (!call.output.split('/').first().trimmed().isEmpty())
        return findings + badEndFindings(arguments, call);
    return findings
        + Findings { warning("no-tool-version",
            "<%1> printed no text before the first \"/\", so the bottom row shows no version; "
            "print one%2",
            shownCall(arguments), andEnd(call)) };
}

Findings sealFindings(const QVariantList &answer)
{
    const QString state = answer.value(0).toString();
    if (state == QLatin1String("i18n_wm_false") || state == QLatin1String("i18n_wm_true"))
        return {};
    return { error("seal-status",
        "the seal's state is %1, which counts as closed; answer [\"i18n_wm_false\"] while it is "
        "open, otherwise [\"i18n_wm_true\"]",
        shownValue(answer)) };
}
