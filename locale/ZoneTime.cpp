#include "locale/ZoneTime.h"

#include <cstdlib>
#include <ctime>

namespace {

/// The process's time zone while it exists.
class ZoneSwitch {
public:
    explicit ZoneSwitch(const QString &zone)
    {
        tzset();
        saved = getenv("TZ");
        setenv("TZ", zone.toLocal8Bit().constData(), 1);
        tzset();
    }
    ~ZoneSwitch()
    {
        if (saved.isNull())
            unsetenv("TZ");
        else
            setenv("TZ", saved.constData(), 1);
        tzset();
    }
    Q_DISABLE_COPY(ZoneSwitch)

private:
    QByteArray saved; ///< null when "TZ" was not set
};

tm fieldsOf(const QDateTime &dateTime)
{
    const QDate date = dateTime.date();
    const QTime time = dateTime.time();
    tm fields = {};
    fields.tm_sec = time.second();
    fields.tm_min = time.minute();
    fields.tm_hour = time.hour();
    fields.tm_mday = date.day();
    fields.tm_mon = date.month() - 1;
    fields.tm_year = date.year() - 1900;
    fields.tm_isdst = -1;
    return fields;
}

QDateTime dateTimeOf(const tm &fields)
{
    return { QDate(fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday),
        QTime(fields.tm_hour, fields.tm_min, fields.tm_sec) };
}

// Seconds since the epoch as the device's toolkit counts them: in 32 bits without a sign, all ones
// for an invalid date-time and for what does not fit. Qt 5 deprecates its function, which also
// takes a time that the process's zone skips for invalid.
time_t toTime_t(const QDateTime &dateTime)
{
    constexpr qint64 none = 0xffffffff;
    const qint64 seconds = dateTime.toMSecsSinceEpoch() / 1000;
    const bool fits =
        dateTime.date().isValid() && dateTime.time().isValid() && seconds >= 0 && seconds < none;
    return time_t(fits ? seconds : none);
}

tm toZoneFields(const QDateTime &dateTime, const QString &zone, bool honourDst)
{
    const time_t seconds = toTime_t(dateTime);
    const ZoneSwitch zoneSwitch(zone);
    tm fields = {};
    localtime_r(&seconds, &fields);
    if (!honourDst && fields.tm_isdst == 1) {
        fields = fieldsOf(dateTime);
        fields.tm_isdst = 0;
        mktime(&fields);
    }
    return fields;
}

tm fromZoneFields(const QDateTime &dateTime, const QString &zone, bool honourDst)
{
    const ZoneSwitch zoneSwitch(zone);
    tm local = fieldsOf(dateTime);
    if (!honourDst)
        local.tm_isdst = 0;
    const time_t seconds = mktime(&local);
    tm fields = {};
    gmtime_r(&seconds, &fields);
    return fields;
}

} // namespace

// The results are made in the process's own zone again. Where that zone skips their hour, Qt calls
// them invalid, but their date and time are right.
QDateTime toZone(const QDateTime &dateTime, const QString &zone, bool honourDst)
{
    return dateTimeOf(toZoneFields(dateTime, zone, honourDst));
}

QDateTime fromZone(const QDateTime &dateTime, const QString &zone, bool honourDst)
{
    return dateTimeOf(fromZoneFields(dateTime, zone, honourDst));
}
