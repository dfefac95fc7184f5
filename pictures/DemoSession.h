// A session of the console on the simulated device, driven by keys and labels.
#pragma once

#include "terminal/Keys.h"
#include "terminal/KeyText.h"
#include "terminal/PtySession.h"

#include <QTemporaryDir>

class DemoSession : public PtySession {
public:
    ~DemoSession() { kill(); }

    /// Starts the executable `demo` on a device of its own and waits for the first frame.
    bool run(const QString &demo, int rows = 24, int columns = 80)
    {
        setStandardError(directory.filePath(QStringLiteral("messages")));
        return start(demo, { QStringLiteral("--state"), directory.path() }, rows, columns)
            && waitForText(QStringLiteral("Dravikon ver"));
    }

    /// Presses the keys of a text as `keysFromText` takes it, and waits for what each one does.
    bool pressAll(const QString &text)
    {
        const std::optional<QByteArrayList> keys = keysFromText(text);
        return keys && std::all_of(keys->begin(), keys->end(), [this](const QByteArray &key) {
            return press(key) && waitForRest();
        });
    }

    /// Opens the items of `path`, labels with "/" between, each below the one before.
    bool open(const QString &path)
    {
        for (const QString &label : path.split(QLatin1Char('/'))) {
            QString before;
            while (!selected().contains(label) && selected() != before) {
                before = selected();
                if (!pressAll(QStringLiteral("Down")))
                    return false;
            }
            if (!selected().contains(label) || !pressAll(QStringLiteral("Return")))
                return false;
        }
        return true;
    }

private:
    QString selected() const
    {
        for (int row = 0; row < terminal().screen().size(); ++row) {
            if (terminal().backgrounds(row).startsWith(QLatin1Char('m')))
                return terminal().row(row);
        }
        return {};
    }

    QTemporaryDir directory;
};
