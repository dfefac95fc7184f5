#include "json/JsonReader.h"
#include "json/JsonWriter.h"

#include <QtTest>

// The type, "-" for what is no JSON, the text, and behind "=>" what is written when that differs.
static const char table[] = R"(null null | bool true | qlonglong 0 | qlonglong 4294967296
qlonglong -9223372036854775808 | qlonglong 9223372036854775807 | qulonglong 9223372036854775808
qulonglong 18446744073709551615 | double 1.0 | double 0.10000000000000000555 | double 1e2 => 100.0
double 4.9406564584124654418e-324 | double 1.7976931348623157081e+308 | double 1E22 => 1e+22
double 18446744073709551616 => 18446744073709551616.0 | double 0e5 => 0.0 | double -0.0 | QString "a\u0000"
QString "ß\u00E4\/\"\\\n😀" => "\u00df\u00e4/\"\\\u000a\ud83d\ude00" | QVariantList [ ] => []
QVariantList [[],[null,[-1 ]]] => [[],[null,[-1]]] | QVariantMap {"ä":1,"ä":{}} => {"\u00e4":{}}
- [1 | - [1,] | - [1 2] | - [1] x | - {"a"} | - {1:2} | - 'a' | - "\x" | - "a | - nul | - NaN
- 01 | - 1. | - 1e400)";

class JsonTest : public QObject {
    Q_OBJECT

private slots:
    void readsAndWrites()
    {
        for (const QByteArray &line : QByteArray(table).replace('\n', '|').split('|')) {
            const QByteArray row = line.trimmed();
            const int start = row.indexOf(' ') + 1;
            const int end = (row + " => ").indexOf(" => ");
            const QByteArray json = row.mid(start, end - start);
            const std::optional<QVariant> value = parseJson(json);
            const QByteArray type = !value ? "-" : value->isValid() ? value->typeName() : "null";
            const QByteArray written = value ? *jsonText(*value) : json;
            QCOMPARE(type + ' ' + json + (written == json ? "" : " => " + written), row);
        }
    }

    void knowsLimits()
    {
        const QByteArray deep = QByteArray(512, '[').append(512, ']');
        QCOMPARE(*jsonText(*parseJson(deep)), deep);
        QVERIFY(!parseJson({}) && !parseJson('[' + deep + ']') && !parseJson({ "[1]\0x", 5 }));
        QVERIFY(!parseJson(QByteArray("{\"a\":").repeated(512) + "{}" + QByteArray(512, '}')));
        QVERIFY(!jsonText(qQNaN()) && !jsonText(QVariantList { 1, QVariantList { qInf() } }));
        QCOMPARE(*jsonText(QChar(0xd83d)), QByteArray("\"\\ud83d\""));
    }
};

QTEST_APPLESS_MAIN(JsonTest)
#include "JsonTest.moc"
