// The screen of the TAG interface: what the tag reports, one labelled value a line.
#pragma once

#include "render/Frame.h"

#include <QVariantList>

/// Draws the TAG interface into the box `frame`: `versions` is the backend's answer for the
/// interface, `tag` the one for the tag.
void drawTagScreen(Frame &frame, const QVariantList &versions, const QVariantList &tag);
