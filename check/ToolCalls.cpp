#include "check/ToolCalls.h"

#include <QElapsedTimer>

QByteArray ToolCalls::run(const QStringList &arguments)
{
    if (const ToolCall *const call = find(arguments))
        return call->output;
    if (progress)
        progress(int(made.size()) + 1, arguments);
    QElapsedTimer timer;
    timer.start();
    ToolCall &call = made[arguments];
    call.output = trace.run(tool, arguments, patienceMs).output;
    call.durationMs = timer.elapsed();
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
        const bool isWord = !argument.contains(QLatin1Char(' '));
        words += isWord ? argument : QLatin1Char('\'') + argument + QLatin1Char('\'');
    }
    return words.join(QLatin1Char(' '));
}
