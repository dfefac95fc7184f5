#include "check/ToolCalls.h"

#include "check/ToolFault.h"

#include <cstring>

ToolCalls::ToolCalls(QString tool, Progress progress, int patienceMs, int slowMs)
    : tool(std::move(tool))
    , patienceMs(patienceMs)
    , slowMs(slowMs)
    , progress(std::move(progress))
    , toolFault(::toolFault(this->tool))
{
}

void ToolCalls::withhold(std::function<bool(const QStringList &)> mayWrite)
{
    this->mayWrite = std::move(mayWrite);
}

QByteArray ToolCalls::run(const QStringList &arguments)
{
    if (const ToolCall *const call = find(arguments))
        return call->output;
    if (!toolFault.isEmpty())
        return {};
    ToolCall &call = made[arguments];
    call.isWithheld = mayWrite && mayWrite(arguments);
    if (call.isWithheld)
        return {};
    if (progress)
        progress(int(made.size()), arguments);
    static_cast<ToolRun &>(call) = trace.run(tool, arguments, patienceMs);
    if (call.end.kind == ToolEnd::NotStarted) {
        toolFault = QString::fromLocal8Bit(std::strerror(call.end.number));
        made.erase(arguments);
        return {};
    }
    return call.output;
}

const ToolCall *ToolCalls::find(const QStringList &arguments) const
{
    const auto call = made.find(arguments);
    return call == made.cend() ? nullptr : &call->second;
}

QString shownCall(const QStringList &arguments)
{
    QStringList words;
    for (const QString &argument : arguments) {
        const bool isWord = !argument.isEmpty() && !argument.contains(QLatin1Char(' '));
        words += isWord ? argument : QLatin1Char('\'') + argument + QLatin1Char('\'');
    }
    return words.join(QLatin1Char(' '));
}
