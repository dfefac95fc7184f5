#include "bench/MenuSession.h"

#include <utility>

namespace {

void open(TreeViewItem &item)
{
    item.expanded = true;
    for (const auto &child : item.children) {
        child->value = child->position % 2;
        open(*child);
    }
}

DevicePaths pathsOf(DeviceFiles &device, const QByteArray &script)
{
    device.writeSettings(script);
    DevicePaths paths;
    paths.webRoot = device.webRoot();
    paths.settingsScript = paths.webRoot + QLatin1String("/scripts/settings.js");
    return paths;
}

std::unique_ptr<TreeViewItem> build(TreeViewItemHandler &handler)
{
    handler.updateAccessLevel();
    return handler.build();
}

} // namespace

MenuTree::MenuTree(const QByteArray &script)
    : handler(pathsOf(device, script), noAnswer)
    , root(build(handler))
{
}

void MenuTree::openAll()
{
    open(*root);
}

MenuSession::MenuSession(const QByteArray &script, const ToolRunner &tool)
    : gui(pathsOf(device, script), line, tool)
{
    gui.initTerminal();
}

void MenuSession::press(Qt::Key key, int times)
{
    for (int i = 0; i < times; ++i) {
        gui.processKeyEvent(key);
        gui.shownScreen().beforeWait(false);
    }
}

void MenuSession::openAll()
{
    open(*itemAt(0).parentItem);
    // Closed and opened again, the menu is numbered anew.
    press(Qt::Key_Return, 2);
}

qint64 MenuSession::takeWritten()
{
    return std::exchange(line.written, 0);
}
