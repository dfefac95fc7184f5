#include "locale/CTranslationHandler.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

class TranslationTest : public QObject {
    Q_OBJECT

private slots:
    void translates_data();
    void translates();
    void loads_data();
    void loads();
};

void TranslationTest::translates_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("translation");
    const auto row = [](const char *key, const char *translation) {
        QTest::newRow(key) << QString::fromUtf8(key) << QString::fromUtf8(translation);
    };
    row("text", "Fläche");
    row("zero", "0");
    row("million", "1000000");
    row("flag", "true");
    for (const char *key : { "TEXT", "missing", "empty", "list", "map", "null", "dateformat", "" })
        row(key, key);
}

void TranslationTest::translates()
{
    static FakeDevice device;
    device.setTranslations(R"({"text": "Fläche", "Text": "x", "empty": "", "zero": 0,
        "million": 1000000.0, "flag": true, "list": ["a"], "map": {"a": "b"}, "null": null})");
    CTranslationHandler::setInstanceRoot(device.paths().webRoot);
    QFETCH(QString, key);
    QTEST(translate(key), "translation");
}

void TranslationTest::loads_data()
{
    QTest::addColumn<QByteArray>("table");
    QTest::addColumn<QVariant>("dateFormat"); ///< invalid: the table cannot be loaded
    QTest::newRow("date format") << QByteArray(R"({"dateformat": "Do.MM.YYYY"})")
                                 << QVariant(QStringLiteral("do.MM.yyyy"));
    QTest::newRow("no text") << QByteArray(R"({"dateformat": 7})") << QVariant(QString());
    QTest::newRow("none") << QByteArray(R"({"a": 1})") << QVariant(QString());
    QTest::newRow("up to a NUL byte") << QByteArray("{}\0 x", 5) << QVariant(QString());
    QTest::newRow("missing file") << QByteArray() << QVariant();
    for (const char *table : { R"([{"a": "b"}])", R"("text")", " ", R"({"a")", "{} x" })
        QTest::newRow(table) << QByteArray(table) << QVariant();
}

void TranslationTest::loads()
{
    QFETCH(QByteArray, table);
    QFETCH(QVariant, dateFormat);
    const bool isLoaded = dateFormat.isValid();
    const QString key = QStringLiteral("dateformat");
    const QString language = QStringLiteral("en");
    FakeDevice device;
    if (!table.isNull())
        device.setTranslations(table);
    const QString locales = device.paths().webRoot + QStringLiteral("/locales/");
    const QString path = locales + QStringLiteral("en/translation.json");
    QFile::link(path, locales + QStringLiteral("database_to_gui.json"));
    if (!isLoaded)
        QTest::ignoreMessage(QtDebugMsg,
            "CTranslationHandler::loadTranslationMap => Loading translation map for \"en\" "
            "failed \""
                + path.toUtf8() + '"');
    CTranslationHandler handler(device.paths().webRoot);
    QCOMPARE(handler.translationMap(language).value(key), dateFormat);
    QCOMPARE(handler.databaseToGuiMap().isEmpty(), !isLoaded || table.startsWith("{}"));
    // What was loaded is kept, what failed is tried again.
    device.setTranslations(R"({"dateformat": "D"})");
    QCOMPARE(handler.translationMap(language).value(key) == QStringLiteral("d"), !isLoaded);
}

QTEST_APPLESS_MAIN(TranslationTest)
#include "TranslationTest.moc"
