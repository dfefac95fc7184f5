// Times across zones, and the process's own zone afterwards.
#include "locale/ZoneTime.h"
#include "tests/support/Rows.h"

class ZoneTimeTest : public QObject {
    Q_OBJECT

private slots:
    void converts()
    {
        const Rows row = [](const QByteArray &ownZone, bool from, const QString &time,
                             bool honourDst, const QString &result) {
            if (ownZone.isNull())
                qunsetenv("TZ");
            else
                qputenv("TZ", ownZone);
            const QString zone = "CET-1CEST,M3.5.0,M10.5.0/3";
            const QDateTime input = QDateTime::fromString(time, Qt::ISODate);
            const QDateTime output = (from ? fromZone : toZone)(input, zone, honourDst);
            QCOMPARE(output.toString(Qt::ISODate), result);
            QCOMPARE(output.timeSpec(), Qt::LocalTime);
            QCOMPARE(qEnvironmentVariableIsSet("TZ"), !ownZone.isNull());
            QCOMPARE(qgetenv("TZ"), ownZone);
        };
        row("from summer", {}, true, "2024-07-01T12:00:00", true, "2024-07-01T10:00:00");
        row("from summer as standard time", {}, true, "2024-07-01T12:00:00", false,
            "2024-07-01T11:00:00");
        row("from winter", "UTC0", true, "2024-12-31T12:34:56", true, "2024-12-31T11:34:56");
        row("across the year", "UTC0", true, "2025-01-01T00:30:00", false, "2024-12-31T23:30:00");
        row("to winter", "UTC0", false, "2024-01-01T12:00:00", false, "2024-01-01T13:00:00");
        row("to summer", "UTC0", false, "2024-07-01T12:00:00", true, "2024-07-01T14:00:00");
        // The input's own time, taken as standard time, which in summer is an hour later.
        row("to summer without", "UTC0", false, "2024-07-01T12:00:00", false,
            "2024-07-01T13:00:00");
        row("before the epoch: ~0 in 32 bits", "UTC0", false, "1969-12-31T23:00:00", true,
            sizeof(time_t) > 4 ? "2106-02-07T07:28:15" : "1970-01-01T00:59:59");
        row("to summer from another zone", "EST5", false, "2024-07-01T08:00:00", true,
            "2024-07-01T15:00:00");
    }
};

QTEST_GUILESS_MAIN(ZoneTimeTest)
#include "ZoneTimeTest.moc"
