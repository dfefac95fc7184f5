// slider-number, slider, slider-step, slider-value: sliders and their ends.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// A slider without whole numbers, that cannot move, or that misses its end.
Findings sliderFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A value of the device beyond its slider's ends.
Findings sliderValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
