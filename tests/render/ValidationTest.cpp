// What each rule of an edit item accepts and how long its field is.
#include "render/InputValidation.h"

#include <QtTest>

class ValidationTest : public QObject {
    Q_OBJECT

    TreeViewItemHandler handler { DevicePaths() };
    QScriptValue definition(const QString &attributes)
    {
        QScriptEngine &engine = handler.scriptHelper().scriptEngine();
        return engine.evaluate(QStringLiteral("d = {%1}").arg(attributes));
    }

private slots:
    void judges_data();
    void judges();
    void hasLength_data();
    void hasLength();
};

void ValidationTest::judges_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("accepted");
    const auto row = [](const char *rule, const QByteArray &text, bool accepted) {
        QTest::addRow("%s for \"%s\"", rule, text.constData())
            << QString::fromLatin1(rule) << QString::fromLatin1(text) << accepted;
    };
    const auto judge = [row](const char *rule, const QByteArrayList &accepted,
                           const QByteArrayList &refused) {
        for (const QByteArray &text : accepted)
            row(rule, text, true);
        for (const QByteArray &text : refused)
            row(rule, text, false);
    };
    judge("validation: 'C5'", { "", "a+-.:" }, { "abcdef" });
    judge("validation: 'N3', range: [0, 500]", { "0", "42", "007", "500", "+5" },
        { "", "-1", "501", "0042", "4a", "4.", "4 ", "-" });
    judge("validation: 'N3', range: [-50, -5]", { "-50", "-5" }, { "-51", "-4", "0" });
    judge("validation: 'N3', range: [0.9, 2.9]", { "0", "2" }, { "3" });
    judge("validation: 'N3', range: []", { "0" }, { "1", "-1" });
    judge("validation: 'N3', range: [-5]", { "-5", "0" }, { "1", "-6" });
    judge("validation: 'N16', range: [9007199254740990, 1e16]", { "9007199254740991" },
        { "9007199254740989" });
    judge("validation: 'N30', range: [0, 1e30]", { "9223372036854775807" },
        { "18446744073709551617" });
    judge("validation: 'N5.2', range: [0, 500]", {}, { "1", "1.5" });
    for (const char *refusing : { "range: [0, 9]", "validation: 'N3'", "validation: 'C'",
             "validation: 'C5x'", "validation: 'C 5'", "validation: 'C5.2'", "validation: 'C-1'",
             "validation: 'c5'", "validation: 'n3', range: [0, 9]", "validation: 'FEAT'",
             "validation: 'DATE.1'", "validation: 'GPS9'", "validation: 'IPV4'" })
        judge(refusing, {}, { "", "1" });
}

void ValidationTest::judges()
{
    QFETCH(QString, rule);
    QFETCH(QString, text);
    const TreeViewItem item(definition(rule), {}, nullptr, -1, 0);
    QTEST(validateInput(handler, item, text), "accepted");
}

void ValidationTest::hasLength_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<int>("length");
    const auto row = [](const char *name, const char *rule, int length) {
        QTest::newRow(name) << QString::fromLatin1(rule) << length;
    };
    row("text", "validation: 'C5'", 5);
    row("text without length", "validation: 'C'", 0);
    row("number", "validation: 'N3', range: [0, 9]", 3);
    row("number without range", "validation: 'N3'", 0);
    row("decimal", "validation: 'N5.2', range: [0, 9]", 0);
    row("reserved", "validation: 'GPS9'", 0);
    row("beyond 32 bits", "validation: 'C4294967297'", 2147483647);
    row("no rule", "", 0);
}

void ValidationTest::hasLength()
{
    QFETCH(QString, rule);
    QTEST(fieldLength(handler, TreeViewItem(definition(rule), {}, nullptr, -1, 0)), "length");
}

QTEST_GUILESS_MAIN(ValidationTest)
#include "ValidationTest.moc"
