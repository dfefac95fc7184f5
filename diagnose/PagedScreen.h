// The screens of the SPD, IO and Wetleg interfaces: one interface a page, with its channels.
#pragma once

#include "render/Frame.h"

#include <QVariantList>

#include <array>

/// Channels side by side, their numbers on one line and their values on another.
struct ChannelRow {
    int element; ///< where the interface's list has the channels' values
    int firstChannel; ///< counted from 1 within these values
    int channelCount;
    int numberLine;
    int valueLine;
};

/// What makes the screens differ.
struct PageLayout {
    const char *label;
    int columnsPerBox; ///< a channel takes this part of the box width
    int firstColumn; ///< of the first channel, in channel widths
    bool centred;
    std::array<ChannelRow, 2> rows;
};

constexpr PageLayout spdLayout = { "SPD IF: ", 11, 1, false,
    { { { 2, 1, 10, 6, 5 }, { 2, 11, 10, 10, 9 } } } };
constexpr PageLayout ioLayout = { "IO IF: ", 8, 0, true,
    { { { 2, 1, 2, 5, 6 }, { 3, 1, 8, 9, 10 } } } };
constexpr PageLayout wetlegLayout = { "Wetleg IF: ", 6, 0, true,
    { { { 2, 1, 6, 5, 6 }, { 3, 1, 2, 9, 10 } } } };

/// The interfaces of each kind.
constexpr int interfaceCount = 4;

/// Draws interface number `shown`, from 0, into the box `frame`: `answer` has one element for each
/// interface, and that is a list of its versions and its lists of channel values.
void drawPagedScreen(Frame &frame, const PageLayout &layout, int shown, const QVariantList &answer);
