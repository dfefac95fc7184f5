// The menu of a made-up device, drawn into memory the way the session draws it on a terminal.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/Screen.h"
#include "render/ViewState.h"

#include "tests/support/FakeDevice.h"

#include <memory>

/// A settings script with `count` screens, 20 at least: a tenth of them hold references to the
/// others, which stand at the end of the array and hold three fields each.
QByteArray scriptWithScreens(int count);

/// A settings script whose root holds `count` fields.
QByteArray scriptWithFields(int count);

/// Goes through the same steps as the session does for a key. No tool is run: what is measured is
/// the console's own part.
class MenuSession {
public:
    explicit MenuSession(const QByteArray &script);

    /// Opens everything below the root, with a value in every field.
    void openAll();

    /// Composes the screen and writes the rows that changed.
    void draw();

    /// Moves the selection and draws.
    void move(int lines);

    /// Opens or closes the selected item and draws.
    void toggle();

    /// Bytes written since the last question.
    qint64 takeWritten();

    FakeDevice device;
    TreeViewItemHandler handler;
    std::unique_ptr<TreeViewItem> root;
    ViewState state;

private:
    void numberItems();

    qint64 written = 0;
    Screen screen;
};
