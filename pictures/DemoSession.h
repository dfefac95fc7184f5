// A session of the console on the simulated device, driven by names of keys and labels.
#pragma once

#include "terminal/Keys.h"
#include "terminal/PtySession.h"
#include "json/JsonReader.h"

#include <QFile>
#include <QHash>
#include <QTemporaryDir>

#include <algorithm>

/// The JSON value in the file at `path`; invalid when there is none.
inline QVariant readJson(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    return parseJson(file.readAll()).value_or(QVariant());
}

class DemoSession : public PtySession {
public:
    ~DemoSession() { kill(); }

    /// Starts the executable `demo` on a device of its own and waits for the first frame.
    bool run(const QString &demo, int rows = 24, int columns = 80)
    {
        setStandardError(directory.filePath(QStringLiteral("messages")));
        takeCalls();
        return start(demo, { QStringLiteral("--state"), directory.path() }, rows, columns)
            && waitForText(QStringLiteral("Dravikon ver"));
    }

    /// Types a key and waits until the console has done all that it is for.
    bool act(const QByteArray &key) { return press(key) && waitForRest(); }

    /// Acts on keys by their names; what is no name is typed.
    bool actAll(const QStringList &names)
    {
        static const QHash<QString, QByteArray> keys { { QStringLiteral("Up"), Key::up },
            { QStringLiteral("Down"), Key::down }, { QStringLiteral("Left"), Key::left },
            { QStringLiteral("Right"), Key::right }, { QStringLiteral("PageUp"), Key::pageUp },
            { QStringLiteral("PageDown"), Key::pageDown }, { QStringLiteral("Return"), Key::enter },
            { QStringLiteral("Escape"), Key::escape },
            { QStringLiteral("Backspace"), Key::backspace } };
        return std::all_of(names.begin(), names.end(),
            [this](const QString &name) { return act(keys.value(name, name.toLatin1())); });
    }

    /// Text of the selected row.
    QString selected() const
    {
        for (int row = 0; row < terminal().screen().size(); ++row) {
            if (terminal().backgrounds(row).startsWith(QLatin1Char('m')))
                return terminal().row(row);
        }
        return {};
    }

    /// Opens the items of `path`, labels with "/" between, one below the other.
    bool open(const QString &path)
    {
        for (const QString &label : path.split(QLatin1Char('/'))) {
            QString before;
            while (!selected().contains(label) && selected() != before) {
                before = selected();
                if (!act(Key::down))
                    return false;
            }
            if (!selected().contains(label) || !act(Key::enter))
                return false;
        }
        return true;
    }

    /// Text of the first row that contains `text`; empty when none does.
    QString rowWith(const QString &text) const { return terminal().screen().filter(text).value(0); }

    /// The calls of the backend tool since the last question, each with its words in one text.
    QStringList takeCalls()
    {
        QFile log(directory.filePath(QStringLiteral("calls.log")));
        QStringList calls;
        if (log.open(QIODevice::ReadWrite)) {
            while (!log.atEnd())
                calls += parseJson(log.readLine())->toStringList().join(QLatin1Char(' '));
            log.resize(0);
        }
        return calls;
    }

    /// The values of a group as the device holds them.
    QVariantList stored(const QString &group) const
    {
        const QVariantMap state =
            readJson(directory.filePath(QStringLiteral("state.json"))).toMap();
        const QVariantMap groups = state.value(QStringLiteral("groups")).toMap();
        return groups.value(group).toMap().value(QStringLiteral("values")).toList();
    }

private:
    QTemporaryDir directory;
};
