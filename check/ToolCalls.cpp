#include "check/ToolCalls.h"

#include <QElapsedTimer>

QByteArray ToolCalls::run(const QStringList &arguments)
{
    if (const ToolCall *const call = find(arguments))
        return call->output;
    planned.insert(arguments);
    if (isPlanning)
        return {};
    if (progress)
        progress(int(made.size()) + 1, int(planned.size()), arguments);
    QElapsedTimer timer;
    timer.start();
    ToolCall &call = made[arguments];
    call.output = BackendTool::run(tool, arguments, patienceMs);
    call.durationMs = timer.elapsed();
    return call.output;
}

void ToolCalls::plan(const std::function<void()> &calls)
{
    planned.clear();
    for (const auto &call : made)
        planned.insert(call.first);
    isPlanning = true;
    calls();
    isPlanning = false;
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
