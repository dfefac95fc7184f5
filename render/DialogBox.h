// The box that all value dialogs share.
#pragma once

#include "render/Frame.h"
#include "render/ViewState.h"

/// The width of a box around lines of `contentLength` characters: half the terminal's, more where
/// the content needs it.
int boxWidthFor(const ViewState &state, qint64 contentLength);

/// The width of a box whose content fits anywhere: half the terminal's, but at least a border's.
int plainBoxWidth(const ViewState &state);

/// A box of seven lines with `title` on its border.
Frame dialogBox(const ViewState &state, int width, const QString &title);
