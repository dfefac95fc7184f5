#include "locale/CTranslationHandler.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

class TranslationTest : public QObject {
    Q_OBJECT

private slots:
    void translates()
    {
        FakeDevice device;
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        device.setTranslations(R"({"text": "Fläche", "Text": "x", "empty": "", "zero": 0,
            "flag": true, "list": ["a"], "map": {"a": "b"}, "null": null})");
        for (const char *row : { "text Fläche", "zero 0", "flag true", "TEXT TEXT", "empty empty",
                 "list list", "map map", "null null", "dateformat dateformat", " " }) {
            const QStringList words = QString::fromUtf8(row).split(QLatin1Char(' '));
            QCOMPARE(translate(words[0]), words[1]);
        }
    }

    void loads()
    {
        const QString key = QStringLiteral("dateformat");
        const QString language = QStringLiteral("en");
        for (const QByteArray row :
            { R"({"dateformat": "Do.MM.YYYY"} => do.MM.yyyy)", R"({"dateformat": 7} => )",
                R"({"a": 1} => )", "", R"([{"a": "b"}])", "\"text\"", " ", "{\"a\"", "{} x" }) {
            const int split = row.indexOf(" => ");
            const QVariant format = split < 0 ? QVariant() : QString::fromUtf8(row.mid(split + 4));
            FakeDevice device;
            if (!row.isEmpty())
                device.setTranslations(row.mid(0, split).append("\0 x", 3));
            const QString locales = device.paths().webRoot + QStringLiteral("/locales/");
            const QString path = locales + QStringLiteral("en/translation.json");
            QFile::link(path, locales + QStringLiteral("database_to_gui.json"));
            if (split < 0)
                QTest::ignoreMessage(QtDebugMsg,
                    "CTranslationHandler::loadTranslationMap => Loading translation map for \"en\" "
                    "failed \""
                        + path.toUtf8() + '"');
            CTranslationHandler handler(device.paths().webRoot);
            QCOMPARE(handler.translationMap(language).value(key), format);
            QCOMPARE(handler.databaseToGuiMap().isEmpty(), split < 0);
            device.setTranslations("{\"dateformat\": \"D\"}");
            QCOMPARE(handler.translationMap(language).value(key) == QStringLiteral("d"), split < 0);
            QCOMPARE(handler.databaseToGuiMap().value(key) == QStringLiteral("D"), split < 0);
        }
    }
};

QTEST_APPLESS_MAIN(TranslationTest)
#include "TranslationTest.moc"
