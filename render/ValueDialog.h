// The value dialogs: what they show, what the keys do in them, what they give their item.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/Screen.h"
#include "render/ViewState.h"

/// The start menu, which is a list as well. On opening it sets the bounds of `state`.
Frame startMenu(ViewState &state);

/// The dialog of the item's input kind; empty where the kind has none. On opening it takes the
/// item's value and its bounds over into `state`.
Frame valueDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item);

/// Inserts the byte `key` at the cursor while the text is shorter than its field. Keys that are no
/// byte type nothing.
void typeCharacter(ViewState &state, const TreeViewItemHandler &handler, int key);

/// Moves one to the left and removes the character there.
void removeCharacter(ViewState &state, const TreeViewItemHandler &handler);

/// The place of an edit field's cursor, kept on the terminal.
CursorPosition editPosition(const ViewState &state, const TreeViewItemHandler &handler);

/// Gives the item on menu line `index` the value chosen in its dialog, in the type of its input
/// kind, and keeps what it had in `formerValue`. False, and the item unchanged, when there is no
/// such item, when its kind has no dialog, or when its rule refuses the text.
bool commitValue(ViewState &state, const TreeViewItemHandler &handler, int index);

/// Gives the selected item its `formerValue` back, if there is one.
void dropValue(ViewState &state);
