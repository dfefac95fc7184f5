// unknown-finding: the names by which a definition allows findings.
#pragma once

#include "check/Finding.h"

#include <QScriptValue>
#include <QStringList>

/// The names of all findings.
const QStringList &findingNames();

/// The findings that `definition` allows in its "checkIgnore".
QStringList allowedFindings(const QScriptValue &definition);

/// Names in the "checkIgnore" of `definition` that no finding has.
Findings nameFindings(const QScriptValue &definition);
