// Compares what the checker reports.
#pragma once

#include <QtTest>

/// `names` has severity and name of each finding, joined by commas; `says` is a part of the report.
inline void compareFindings(QStringList findings, const QString &names, const QString &says)
{
    const QString report = findings.join('\n');
    const QRegularExpression form(R"(^(\w+): .*\[(.*)\]$)");
    QCOMPARE(findings.replaceInStrings(form, "\\1 \\2").join(", "), names);
    QVERIFY2(report.contains(says), qPrintable(report));
}
