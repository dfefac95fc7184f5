// The words with which the screens of a definition read and write.
#pragma once

#include "check/LoadedMenu.h"

#include <QHash>
#include <QSet>

class CallWords {
public:
    explicit CallWords(const LoadedMenu &menu);

    /// True if the call `arguments` has the words with which a screen writes, or words that read
    /// but whose first word only writes elsewhere, as if they were exchanged.
    bool mayWrite(const QStringList &arguments) const;

private:
    bool looksExchanged(const QScriptValue &screen) const;
    QString words(const QScriptValue &screen, const QScriptString &binding) const;

    const PropertyNames &names;
    QHash<QString, int> reads; ///< the number of screens by the first word of their "ajax-read"
    QHash<QString, int> writes;
    QSet<QString> writingCalls;
};
