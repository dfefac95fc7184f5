// What each rule of an edit item accepts and how long its field is.
#include "render/InputValidation.h"
#include "tests/support/Rows.h"

class ValidationTest : public QObject {
    Q_OBJECT

private slots:
    void judges_data()
    {
        const Rows<QString, int, QString, bool> row("rule", "length", "text", "accepted");
        const auto judge = [&row](const char *rule, int length, const QByteArrayList &accepted,
                               const QByteArrayList &refused) {
            for (const QByteArray &text : accepted + refused)
                row(rule + (" for \"" + text + '"'), rule, length, text, accepted.contains(text));
        };
        judge("validation: 'C5'", 5, { "", "a+-.:" }, { "abcdef" });
        judge("validation: 'C4294967297'", 2147483647, { "a" }, {});
        judge("validation: 'N3', range: [0, 500]", 3, { "0", "42", "007", "500", "+5" },
            { "", "-1", "501", "0042", "4a", "4.", "4 ", "-" });
        judge("validation: 'N3', range: [-50, -5]", 3, { "-50", "-5" }, { "-51", "-4", "0" });
        judge("validation: 'N3', range: [0.9, 2.9]", 3, { "0", "2" }, { "3" });
        judge("validation: 'N3', range: []", 3, { "0" }, { "1", "-1" });
        judge("validation: 'N3', range: [-5]", 3, { "-5", "0" }, { "1", "-6" });
        judge("validation: 'N16', range: [9007199254740990, 1e16]", 16, { "9007199254740991" },
            { "9007199254740989" });
        judge("validation: 'N30', range: [0, 1e30]", 30, { "9223372036854775807" },
            { "18446744073709551617" });
        for (const char *refusing : { "", "range: [0, 9]", "validation: 'N3'", "validation: 'C'",
                 "validation: 'C5x'", "validation: 'C 5'", "validation: 'N5.2', range: [0, 9]",
                 "validation: 'c5'", "validation: 'n3', range: [0, 9]", "validation: 'FEAT'",
                 "validation: 'DATE.1'", "validation: 'GPS9'", "validation: 'IPV4'" })
            judge(refusing, 0, {}, { "", "1" });
    }

    void judges()
    {
        QFETCH(QString, rule);
        QFETCH(QString, text);
        TreeViewItemHandler handler { DevicePaths() };
        const QScriptValue definition = handler.scriptHelper().scriptEngine().evaluate(
            QStringLiteral("definition = {%1}").arg(rule));
        const TreeViewItem item(definition, {}, nullptr, -1, 0);
        QTEST(validateInput(handler, item, text), "accepted");
        QTEST(fieldLength(handler, item), "length");
    }
};

QTEST_GUILESS_MAIN(ValidationTest)
#include "ValidationTest.moc"
