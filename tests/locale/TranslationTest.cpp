#include "locale/CTranslationHandler.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Rows.h"

class TranslationTest : public QObject {
    Q_OBJECT

    FakeDevice device;

private slots:
    void translates()
    {
        device.setTranslations(R"({"text": "Fläche", "Text": "x", "empty": "", "zero": 0,
            "million": 1000000.0, "flag": true, "list": ["a"], "map": {"a": "b"}, "null": null})");
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        QCOMPARE(translate("text"), QString("Fläche"));
        QCOMPARE(translate("zero"), QString("0"));
        QCOMPARE(translate("million"), QString("1000000"));
        QCOMPARE(translate("flag"), QString("true"));
        for (const char *key :
            { "TEXT", "missing", "empty", "list", "map", "null", "dateformat", "" })
            QCOMPARE(translate(key), QString(key));
    }

    void loads()
    {
        const Rows row = [this](const QByteArray &table, const QVariant &dateFormat) {
            const auto loadedFormat = [](CTranslationHandler &handler) {
                return handler.translationMap("en").value("dateformat");
            };
            device.setTranslations(table);
            CTranslationHandler handler(device.paths().webRoot);
            QCOMPARE(handler.loadTranslationMap("en"), dateFormat.isValid());
            QCOMPARE(loadedFormat(handler), dateFormat);
            // What was loaded is kept, what failed is tried again.
            device.setTranslations(R"({"dateformat": "D"})");
            QCOMPARE(loadedFormat(handler) == "d", !dateFormat.isValid());
        };
        row("date format", R"({"dateformat": "Do.MM.YYYY"})", "do.MM.yyyy");
        row("up to a NUL byte", QByteArray("{}\0 x", 5), QString());
        for (const char *table : { R"([{"a": "b"}])", " ", R"({"a")", "{} x" })
            row(table, table, {}); // cannot be loaded
    }

    void loadsDatabaseNames()
    {
        const QString root = device.paths().webRoot;
        device.setTranslations(R"({"a": "b"})");
        QVERIFY(QFile::link("en/translation.json", root + "/locales/database_to_gui.json"));
        QCOMPARE(CTranslationHandler(root).databaseToGuiMap().size(), 1);
    }
};

QTEST_APPLESS_MAIN(TranslationTest)
#include "TranslationTest.moc"
