// The menu of a generated definition, drawn into memory as the session draws it on a terminal.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/Screen.h"
#include "render/ViewState.h"

#include "tests/support/FakeDevice.h"

#include <memory>

/// A settings script with `count` screens, at least 20: a tenth of them hold references to the
/// others, which are at the end of the array and hold three fields each.
QByteArray scriptWithScreens(int count);

/// A settings script whose root holds `count` fields.
QByteArray scriptWithFields(int count);

/// Takes the same steps as the session does for a key, but runs no tool: this measures the work of
/// the console itself.
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

    /// The number of bytes written since the last call.
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
