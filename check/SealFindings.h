// seal-status: the state of the electronic seal.
#pragma once

#include "check/Finding.h"

#include <QVariantList>

/// A seal status that is neither open nor closed.
Findings sealFindings(const QVariantList &answer);
