#include "tests/e2e/TranscriptPlayer.h"

#include "terminal/KeyText.h"

#include <QFile>
#include <QRegularExpression>

static QString quoted(QString text)
{
    return QString("'%1'").arg(text.replace('\'', "'\\''"));
}

// Calls in a row that are alike become one with their number.
static QString listOfCalls(const QStringList &calls)
{
    QStringList list;
    for (int first = 0, next = 0; first < calls.size(); first = next) {
        while (next < calls.size() && calls.at(next) == calls.at(first))
            ++next;
        const QString times = QString("%1 times ").arg(next - first);
        list += (next - first > 1 ? times : QString()) + calls.at(first);
    }
    return list.join("; ");
}

QString TranscriptPlayer::play(const TranscriptEntry &entry)
{
    if (entry.word == ">")
        return doStep(entry.text);
    const QString text = (QStringList(entry.text) + entry.further).join('\n');
    if (entry.word == "tool")
        return setAnswer(text);
    if (entry.word == "menu")
        session.device.setScreens(text.toUtf8());
    else if (entry.word == "translations")
        session.device.setTranslations(text.toUtf8());
    else
        return "a line that is part of nothing";
    return {};
}

QString TranscriptPlayer::setAnswer(const QString &line)
{
    static const QRegularExpression form("^(.*) =>(?: (.*))?$");
    const QRegularExpressionMatch found = form.match(line);
    if (!found.hasMatch())
        return "an answer without =>";
    const QString call = quoted(found.captured(1)).replace('*', "'*'");
    answers.prepend(QString("%1) printf '%s\\n' %2;;")
                        .arg(call, quoted(withCharacterCodes(found.captured(2)))));
    const QString branches = answers.join('\n');
    session.device.setTool(QString("case \"$*\" in\n%1\nesac").arg(branches).toUtf8());
    return {};
}

QString TranscriptPlayer::doStep(const QString &action)
{
    static const QRegularExpression form("^(?:(start|resize) (\\d+)x(\\d+) ?)?(.*)$");
    const QRegularExpressionMatch found = form.match(action);
    const QString verb = found.captured(1);
    const int columns = found.captured(2).toInt();
    const int rows = found.captured(3).toInt();
    const std::optional<QByteArrayList> keys = keysFromText(found.captured(4));
    const bool isStart = verb == "start";
    if (!keys || isStart == isStarted())
        return "unknown words, or not one start before all other steps";
    if (isStart && !start(rows, columns))
        return "the console does not start";
    if (!isStart)
        session.mark();
    if (verb == "resize")
        session.resize(rows, columns);
    const bool isDone = session.waitForRest()
        && std::all_of(keys->begin(), keys->end(), [this](const QByteArray &key) {
               return session.PtySession::press(key) && session.waitForRest();
           });
    return isDone ? QString() : "the console hangs";
}

bool TranscriptPlayer::start(int rows, int columns)
{
    takeCalls();
    return session.run(rows, columns)
        && session.waitFor([this] { return !session.bytesSinceMark().isEmpty(); });
}

QStringList TranscriptPlayer::outcome()
{
    const TerminalEmulator &terminal = session.terminal();
    const std::set<int> &rows = terminal.writtenRows();
    QStringList lines = withoutVersion(notationOfRows(terminal, rows));
    if (terminal.cursorVisible() && rows.count(terminal.cursor().y()) == 0)
        lines +=
            QString("cursor %1,%2").arg(terminal.cursor().y() + 1).arg(terminal.cursor().x() + 1);
    if (!terminal.answerBack().isEmpty())
        lines += "the terminal answers";
    const QStringList calls = takeCalls();
    if (!calls.isEmpty())
        lines += "runs " + listOfCalls(calls);
    const ExitStatus end = session.status();
    if (end.state != ExitStatus::Running)
        lines += QLatin1String(end.state == ExitStatus::Exited ? "exits " : "is killed by ")
            + QString::number(end.value);
    return lines.isEmpty() ? QStringList { "nothing" } : lines;
}

QStringList TranscriptPlayer::takeCalls()
{
    return session.device.takeCalls().replaceInStrings("|", " ");
}
