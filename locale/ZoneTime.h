// Wall-clock times in other time zones.
#pragma once

#include <QDateTime>
#include <QString>

/// Both conversions switch the process's "TZ" while they run and give it back as it was; they must
/// not run beside other code that asks for the time zone. `zone` is a zone's name or a POSIX zone
/// text. Results are local times by their fields, without milliseconds.

/// The wall-clock time in `zone` at the instant `dateTime`. Where daylight saving is in effect
/// there and `honourDst` is false: the wall-clock time of `dateTime` itself, taken as standard
/// time.
QDateTime toZone(const QDateTime &dateTime, const QString &zone, bool honourDst);

/// The UTC wall-clock time at which clocks in `zone` show `dateTime`; without `honourDst` these run
/// on standard time all year.
QDateTime fromZone(const QDateTime &dateTime, const QString &zone, bool honourDst);
