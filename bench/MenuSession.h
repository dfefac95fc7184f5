// Menus of generated definitions, without a terminal and without runs of a tool.
#pragma once

#include "app/TerminalGui.h"
#include "bench/DeviceFiles.h"

/// The answer of a tool that fails.
inline QByteArray noAnswer(const QStringList &)
{
    return {};
}

/// The tree of a menu definition.
class MenuTree {
public:
    explicit MenuTree(const QByteArray &script);

    /// Opens everything below the root, with a value in every field.
    void openAll();

    DeviceFiles device;
    TreeViewItemHandler handler;
    const std::unique_ptr<TreeViewItem> root;
};

/// A session on a menu definition: takes keys and counts what it would write to the terminal.
class MenuSession {
public:
    explicit MenuSession(const QByteArray &script, const ToolRunner &tool = noAnswer);

    void press(Qt::Key key, int times = 1);

    /// Opens everything, with a value in every field. The selected item must be a screen of fields.
    void openAll();

    /// The item on a line of the menu, from 0.
    TreeViewItem &itemAt(int line) const { return *gui.viewState().visibleItems.at(line); }

    /// The number of bytes written since the last call.
    qint64 takeWritten();

private:
    /// A line that has transmitted everything at once.
    class CountingLine : public Line {
    public:
        void write(const QByteArray &bytes) override { written += bytes.size(); }
        int queuedBytes() const override { return 0; }
        int bytesPerSecond() const override { return 1; }
        qint64 milliseconds() const override { return 0; }

        qint64 written = 0;
    };

    DeviceFiles device;
    CountingLine line;
    TerminalGui gui;
};
