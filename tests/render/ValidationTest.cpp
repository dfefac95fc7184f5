// What each rule of an edit item accepts and how long its field is.
#include "render/InputValidation.h"

#include <QtTest>

class ValidationTest : public QObject {
    Q_OBJECT

private slots:
    void judges()
    {
        TreeViewItemHandler handler { DevicePaths() };
        const auto row = [&](const char *rule, int length, const QStringList &accepted,
                             const QStringList &refused) {
            const QScriptValue definition = handler.scriptHelper().scriptEngine().evaluate(
                QString("definition = {%1}").arg(rule));
            const TreeViewItem item(definition, {}, nullptr, -1, 0);
            QVERIFY2(fieldLength(handler, item) == length, rule);
            for (const QString &text : accepted)
                QVERIFY2(validateInput(handler, item, text), qPrintable(text + " for " + rule));
            for (const QString &text : refused)
                QVERIFY2(!validateInput(handler, item, text), qPrintable(text + " for " + rule));
        };
        row("validation: 'C5'", 5, { "", "a+-.:" }, { "abcdef" });
        row("validation: 'C4294967297'", 2147483647, { "a" }, {});
        row("validation: 'N3', range: [0, 500]", 3, { "0", "42", "007", "500", "+5" },
            { "", "-1", "501", "0042", "4a", "4.", "4 ", "-" });
        row("validation: 'N3', range: [-50, -5]", 3, { "-50", "-5" }, { "-51", "-4", "0" });
        row("validation: 'N3', range: [0.9, 2.9]", 3, { "0", "2" }, { "3" });
        row("validation: 'N3', range: [-5]", 3, { "-5", "0" }, { "1", "-6" });
        row("validation: 'N16', range: [9007199254740990, 1e16]", 16, { "9007199254740991" },
            { "9007199254740989" });
        row("validation: 'N30', range: [0, 1e30]", 30, { "9223372036854775807" },
            { "18446744073709551617" });
        for (const char *refusing : { "", "range: [0, 9]", "validation: 'N3'", "validation: 'C'",
                 "validation: 'C5x'", "validation: 'C 5'", "validation: 'N5.2', range: [0, 9]",
                 "validation: 'c5'", "validation: 'n3', range: [0, 9]", "validation: 'FEAT'",
                 "validation: 'DATE.1'", "validation: 'GPS9'", "validation: 'IPV4'" })
            row(refusing, 0, {}, { "", "1" });
    }
};

QTEST_GUILESS_MAIN(ValidationTest)
#include "ValidationTest.moc"
