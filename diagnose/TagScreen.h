// The screen of the TAG interface: what the tag reports, one labelled value a line.
#pragma once

#include "render/Frame.h"

#include <QVariantList>

/// The fields of a tag that have a line.
constexpr int tagFieldCount = 9;

/// Draws the TAG interface into the box `frame`: `versions` is the backend's answer for the
/// interface, `tag` the one for the tag.
void drawTagScreen(Frame &frame, const QVariantList &versions, const QVariantList &tag);
