// What can be found wrong with a device's answers, a subject a source file.
#pragma once

#include "check/Findings.h"
#include "check/ToolCalls.h"

/// True for what the console reads as a number, texts included.
bool isNumber(const QVariant &value);

/// `value` as it is in the answer.
QString shownValue(const QVariant &value);

/// The elements of the JSON array that the tool printed; nothing when it printed anything else.
std::optional<QVariantList> answerOf(const ToolCall &call);

/// Why a call gave no JSON array, and a call that took too long.
Findings callFindings(const ToolCalls &calls, const QStringList &arguments);

/// A version that the bottom row cannot show.
Findings versionFindings(const ToolCalls &calls, const QStringList &arguments);

/// A seal status that is neither open nor closed.
Findings sealFindings(const QVariantList &answer);

/// A number of compartments or meters, at `place` of the answer, that is not from 0 to 999.
Findings countFindings(const QVariantList &answer, int place, const QString &field);

/// More or fewer values than the screen has entries for.
Findings lengthFindings(
    const TreeViewItemHandler &handler, const TreeViewItem &screen, const QVariantList &answer);

/// A value that the item cannot show, or that its dialog does not offer.
Findings storedValueFindings(const TreeViewItemHandler &handler, const TreeViewItem &item);

/// A state of field interfaces that their screen cannot show; `tagNumber` counts for TAG only.
Findings interfaceFindings(InterfaceKind kind, int tagNumber, const QVariantList &answer);
