// The lines that every diagnose screen is made of.
#pragma once

#include "render/Frame.h"

#include <QVariant>

/// Places `text` on `line`, from the first column inside the border.
void placeLeft(Frame &frame, int line, const QString &text);

/// Places `text` in the middle of `line`.
void placeMessage(Frame &frame, int line, const QString &text);

/// Places what the backend reports after its label.
void placeLabelled(Frame &frame, int line, const char *label, const QVariant &value);

/// Places the versions of an interface's software and hardware on lines 2 and 3.
void placeVersions(Frame &frame, const QVariantList &interface);

/// Places the first lines of a screen with a single interface: `title`, then its versions, or what
/// the backend reports instead. False when the answer holds nothing more to draw.
bool placeSingleInterface(Frame &frame, const char *title, const QVariantList &answer);

/// Places the message for an interface that the backend does not know.
void placeNotAvailable(Frame &frame);
