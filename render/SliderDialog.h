// The dialog that moves a mark along a bar.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/ViewState.h"

/// Returns the box and takes the slider's bounds and step over into the state, on opening the
/// item's value as well. The mark can go one beyond the maximum.
Frame sliderDialog(ViewState &state, const TreeViewItemHandler &handler, const TreeViewItem &item);

/// The place of the mark on a bar of `barLength` characters, from 0; `barLength` is right behind
/// the bar, and what is greater is not on it.
int sliderMark(const ViewState &state, int barLength);
