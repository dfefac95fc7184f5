// The screens of the SPD, IO and Wetleg interfaces: one interface a page, with its channels.
#pragma once

#include "menu/TreeViewItemHandler.h"
#include "render/Frame.h"

/// Draws interface number `shown` (from 0) of `count` into the box `frame`: `answer` has one
/// element for each interface, and that is a list of its versions and its lists of channel values.
void drawPagedScreen(
    Frame &frame, InterfaceKind kind, int shown, int count, const QVariantList &answer);
