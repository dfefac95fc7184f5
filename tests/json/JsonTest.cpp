// JSON text and variants, and what values read as.
#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "json/Values.h"

#include <QtTest>

class JsonTest : public QObject {
    Q_OBJECT

private slots:
    void readsAndWrites_data();
    void readsAndWrites();
    void refuses_data();
    void refuses();
    void knowsLimits();
    void readsValues_data();
    void readsValues();
};

void JsonTest::readsAndWrites_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QByteArray>("type");
    QTest::addColumn<QByteArray>("written");
    const auto row = [](const char *type, const char *json, const char *written) {
        QTest::newRow(json) << QByteArray(json) << QByteArray(type) << QByteArray(written);
    };
    const auto same = [row](const char *type, std::initializer_list<const char *> texts) {
        for (const char *json : texts)
            row(type, json, json);
    };
    same("", { "null" });
    same("bool", { "true", "false" });
    same("qlonglong", { "0", "4294967296", "-9223372036854775808", "9223372036854775807" });
    same("qulonglong", { "9223372036854775808", "18446744073709551615" });
    same("double",
        { "1.0", "0.10000000000000000555", "-0.0", "4.9406564584124654418e-324",
            "1.7976931348623157081e+308" });
    row("double", "18446744073709551616", "18446744073709551616.0");
    row("double", "1e2", "100.0");
    row("double", "1E22", "1e+22");
    row("double", "0e5", "0.0");
    same("QString", { R"("a\u0000")" });
    row("QString", R"("ß\u00E4\/\"\\\n😀")", R"("\u00df\u00e4/\"\\\u000a\ud83d\ude00")");
    row("QVariantList", "[ ]", "[]");
    row("QVariantList", "[[],[null,[-1 ]]]", "[[],[null,[-1]]]");
    row("QVariantMap", R"({"ä":1,"ä":{}})", R"({"\u00e4":{}})");
}

void JsonTest::readsAndWrites()
{
    QFETCH(QByteArray, json);
    const std::optional<QVariant> value = parseJson(json);
    QVERIFY(value);
    QTEST(QByteArray(value->typeName()), "type");
    QTEST(*jsonText(*value), "written");
}

void JsonTest::refuses_data()
{
    QTest::addColumn<QByteArray>("json");
    for (const char *json : { "", "[1", "[1,]", "[1 2]", "[1] x", "{\"a\"}", "{1:2}", "'a'",
             "\"\\x\"", "\"a", "nul", "NaN", "01", "1.", "1e400" })
        QTest::newRow(*json ? json : "nothing") << QByteArray(json);
    QTest::newRow("NUL after the value") << QByteArray("[1]\0x", 5);
}

void JsonTest::refuses()
{
    QFETCH(QByteArray, json);
    QVERIFY(!parseJson(json));
}

void JsonTest::knowsLimits()
{
    const QByteArray deepest = QByteArray(512, '[').append(512, ']');
    QCOMPARE(*jsonText(*parseJson(deepest)), deepest);
    QVERIFY(!parseJson('[' + deepest + ']'));
    QVERIFY(!parseJson(QByteArray("{\"a\":").repeated(512) + "{}" + QByteArray(512, '}')));
    QVERIFY(!jsonText(qQNaN()));
    QVERIFY(!jsonText(QVariantList { 1, QVariantList { qInf() } }));
    QCOMPARE(*jsonText(QChar(0xd83d)), QByteArray(R"("\ud83d")"));
}

void JsonTest::readsValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("integer");
    QTest::addColumn<qint64>("wideInteger");
    QTest::addColumn<bool>("truth");
    const auto row = [](const char *name, const QVariant &value, const char *text, int integer,
                         qint64 wideInteger, bool truth) {
        QTest::newRow(name) << value << QString::fromLatin1(text) << integer << wideInteger
                            << truth;
    };
    const qint64 smallest = std::numeric_limits<qint64>::min();
    row("nothing", {}, "", 0, 0, false);
    row("true", true, "true", 1, 1, true);
    row("a million", 1000000.0, "1000000", 1000000, 1000000, true);
    row("15 digits", 0.1 + 0.2, "0.3", 0, 0, true);
    row("half", 2.5, "2.5", 3, 3, true);
    row("negative half", -2.5, "-2.5", -2, -2, true);
    row("below half", 0.4, "0.4", 0, 0, true);
    row("largest int, nearly", 2147483647.4, "2147483647.4", 2147483647, 2147483647, true);
    row("beyond an int", 2147483647.5, "2147483647.5", 0, 2147483648, true);
    row("beyond 64 bits", 9223372036854775808.0, "9.22337203685478e+18", 0, 0, true);
    row("smallest 64 bits", -9223372036854775808.0, "-9.22337203685478e+18", 0, smallest, true);
    row("far beyond", -1e20, "-1e+20", 0, 0, true);
    row("integer beyond an int", 4294967298LL, "4294967298", 0, 4294967298, true);
    row("integer below an int", -4294967293LL, "-4294967293", 0, -4294967293, true);
    row("integer without a sign", ~0ULL, "18446744073709551615", 0, 0, true);
    row("text of an integer", QStringLiteral("-7"), "-7", -7, -7, true);
    row("text of a fraction", QStringLiteral("7.0"), "7.0", 0, 0, true);
    row("other text", QStringLiteral("error"), "error", 0, 0, true);
    row("text of false", QStringLiteral("FALSE"), "FALSE", 0, 0, false);
    row("text of zero", QStringLiteral("0"), "0", 0, 0, false);
    row("empty text", QString(), "", 0, 0, false);
    row("list", QVariantList { 1 }, "", 0, 0, false);
}

void JsonTest::readsValues()
{
    QFETCH(QVariant, value);
    QTEST(textOf(value), "text");
    QTEST(integerOf(value), "integer");
    QTEST(wideIntegerOf(value), "wideInteger");
    QTEST(truthOf(value), "truth");
}

QTEST_APPLESS_MAIN(JsonTest)
#include "JsonTest.moc"
