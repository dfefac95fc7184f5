// The screen of the AS interface: its sensors, one a line.
#pragma once

#include "render/Frame.h"

#include <QVariantList>

/// Draws the AS interface that `answer` describes into the box `frame`, which grows with the number
/// of sensors; leaves that number in `statusText`.
void drawAsScreen(Frame &frame, const QVariantList &answer, QString &statusText);
