#include "check/ToolCalls.h"

#include <QElapsedTimer>
#include <QFileInfo>

ToolCalls::ToolCalls(QString tool, Progress progress, int patienceMs)
    : program(std::move(tool))
    , progress(std::move(progress))
    , patienceMs(patienceMs)
{
}

QByteArray ToolCalls::run(const QStringList &arguments)
{
    const auto known = calls.find(arguments);
    if (known != calls.cend())
        return known->second.output;
    if (progress)
        progress(int(calls.size()) + 1, arguments);
    QElapsedTimer timer;
    timer.start();
    const QByteArray output = BackendTool::run(program, arguments, patienceMs);
    calls[arguments] = { output, timer.elapsed() };
    return output;
}

ToolCall ToolCalls::find(const QStringList &arguments) const
{
    const auto known = calls.find(arguments);
    return known == calls.cend() ? ToolCall() : known->second;
}

bool ToolCalls::isStartable() const
{
    const QFileInfo file(program);
    return file.isFile() && file.isExecutable();
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
