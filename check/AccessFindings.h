// access-level, remote: what is to protect or hide an item and does not.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// "accessLvl" and "remote" of a visible item, or of the reference to it, without their effect.
Findings accessFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);
