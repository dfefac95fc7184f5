// interface-type, interface-css, interface-answer: the screens of the field interfaces.
#pragma once

#include "check/Finding.h"
#include "menu/TreeViewItemHandler.h"

/// A screen with the css of an interface screen that opens none.
Findings interfaceFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A state of field interfaces that their screen cannot show; `tagNumber` counts for TAG only.
Findings interfaceAnswerFindings(InterfaceKind kind, int tagNumber, const QVariantList &answer);
