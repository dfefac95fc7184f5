#include "check/CallWords.h"

namespace {

QString firstWord(const QString &words)
{
    return words.section(QLatin1Char(' '), 0, 0);
}

} // namespace

CallWords::CallWords(const LoadedMenu &menu)
    : names(menu.handler.names())
{
    for (int i = 0; i < menu.screens.size(); ++i) {
        const QString read = words(menu.screens.at(i), names.read);
        const QString write = words(menu.screens.at(i), names.write);
        ++reads[firstWord(read)];
        ++writes[firstWord(write)];
        writingCalls += write;
    }
    writingCalls.remove({});
    for (int i = 0; i < menu.screens.size(); ++i) {
        if (looksExchanged(menu.screens.at(i)))
            writingCalls += words(menu.screens.at(i), names.read);
    }
}

bool CallWords::mayWrite(const QStringList &arguments) const
{
    const QString call = arguments.join(QLatin1Char(' ')).simplified();
    const QString withoutNumber = call.section(QLatin1Char(' '), 0, -2);
    bool isRepeated = false;
    call.section(QLatin1Char(' '), -1).toInt(&isRepeated);
    return writingCalls.contains(call) || (isRepeated && writingCalls.contains(withoutNumber));
}

// A definition may read and write with the same first word, as in "menu get" and "menu set".
bool CallWords::looksExchanged(const QScriptValue &screen) const
{
    const QString read = firstWord(words(screen, names.read));
    const bool alsoWrites = firstWord(words(screen, names.write)) == read;
    return !read.isEmpty() && !alsoWrites && reads.value(read) == 1 && writes.value(read) > 0;
}

QString CallWords::words(const QScriptValue &screen, const QScriptString &binding) const
{
    const QScriptValue text = screen.property(binding);
    return text.isValid() ? text.toString().simplified() : QString();
}
