// not-utf8: files and answers in another encoding.
#pragma once

#include "check/Finding.h"

/// Where `bytes` stop to be UTF-8; `what` names them in the report, for example "the file".
Findings utf8Findings(const QByteArray &bytes, const QString &what);
