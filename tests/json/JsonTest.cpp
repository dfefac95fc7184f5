// JSON text and variants, and what values read as.
#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "json/Values.h"

#include <QtTest>

class JsonTest : public QObject {
    Q_OBJECT

private slots:
    void readsAndWrites()
    {
        // Nothing is written of texts that are refused.
        const auto row = [](const char *type, const QByteArray &json, const QByteArray &written) {
            const std::optional<QVariant> value = parseJson(json);
            QVERIFY2((value ? *jsonText(*value) : QByteArray()) == written, json);
            QVERIFY2(QByteArray(value ? value->typeName() : "") == type, json);
        };
        row("", "null", "null");
        row("bool", "true", "true");
        for (const char *json : { "0", "-9223372036854775808", "9223372036854775807" })
            row("qlonglong", json, json);
        for (const char *json : { "9223372036854775808", "18446744073709551615" })
            row("qulonglong", json, json);
        for (const char *json : { "1.0", "0.10000000000000000555", "-0.0",
                 "4.9406564584124654418e-324", "1.7976931348623157081e+308" })
            row("double", json, json);
        row("double", "18446744073709551616", "18446744073709551616.0");
        row("QString", "\"a\\u0000\"", "\"a\\u0000\"");
        row("QString", "\"ß\\u00E4\\/\\\"\\\\\\n😀\"",
            "\"\\u00df\\u00e4/\\\"\\\\\\u000a\\ud83d\\ude00\"");
        row("QVariantList", "[[],[null,[-1 ]]]", "[[],[null,[-1]]]");
        row("QVariantMap", R"({"ä":1,"ä":{}})", R"({"\u00e4":{}})");

        for (const char *json :
            { "", "[1", "[1,]", "[1] x", "'a'", "\"\\x\"", "NaN", "01", "1.8e308" })
            row("", json, {});
        row("", QByteArray("[1]\0x", 5), {});
        const QByteArray deepest = QByteArray(512, '[').append(512, ']');
        row("QVariantList", deepest, deepest);
        row("", '[' + deepest + ']', {});
        row("", QByteArray("{\"a\":").repeated(512) + "{}" + QByteArray(512, '}'), {});
    }

    void refusesWhatIsNoJson()
    {
        QString fault;
        QVERIFY(!parseJson({ "1\0", 2 }, &fault) && fault.endsWith("2: A zero byte ends the text"));
        QVERIFY(!jsonText(QVariantList { 1, QVariantMap { { "a", qInf() } } }));
    }

    void readsValues()
    {
        const auto row = [](const QVariant &value, const char *text, int integer,
                             qint64 wideInteger, bool truth) {
            QCOMPARE(textOf(value), QString(text));
            QCOMPARE(integerOf(value), integer);
            QCOMPARE(wideIntegerOf(value), wideInteger);
            QVERIFY2(truthOf(value) == truth, text);
        };
        row({}, "", 0, 0, false);
        row(true, "true", 1, 1, true);
        row(0.1 + 0.2, "0.3", 0, 0, true);
        row(-2.7, "-2.7", -3, -3, true);
        row(-2.5, "-2.5", -2, -2, true);
        row(2147483647.4, "2147483647.4", 2147483647, 2147483647, true);
        row(2147483647.5, "2147483647.5", 0, 2147483648, true);
        row(9223372036854775808.0, "9.22337203685478e+18", 0, 0, true);
        row(-9223372036854775808.0, "-9.22337203685478e+18", 0, std::numeric_limits<qint64>::min(),
            true);
        row(~0ULL, "18446744073709551615", 0, 0, true);
        row("-7", "-7", -7, -7, true);
        row("7.0", "7.0", 0, 0, true);
        row("FALSE", "FALSE", 0, 0, false);
        row(QVariantList { 1 }, "", 0, 0, false);
    }
};

QTEST_APPLESS_MAIN(JsonTest)
#include "JsonTest.moc"
