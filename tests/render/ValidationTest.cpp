// What each rule of an edit item accepts and how long its field is.
#include "render/InputValidation.h"

#include <QtTest>

// Rule and range ("-" for none), length of the field, texts behind their verdicts.
static const char table[] = R"(C5 - 5 + +abcde +-.:x -abcdef; C - 0 - -a; C5x - 0 - -a; c5 - 0 - -a;
C5.2 - 0 - -a; C-1 - -1 - -a; N3 0,500 3 +42 +0 +007 +500 --1 -501 -1000 -0042 -4a -4. -;
N3 - 0 - -0 -42; N3 -50,-5 3 +-50 +-5 --51 --4 -0 --; N3 0.9,2.9 3 +0 +2 -3; N3 10 3 - -0 -5 -10;
N , 0 - -0; N3 , 3 +0 -1 --1; N3x 0,9 0 - -0; N5.2 0,500 0 - -1 -1.5 -0.25; n3 0,9 0 - -1;
N16 9007199254740990,9007199254740992 16 +9007199254740991 -9007199254740989; GPS9 - 0 - -48.1;
N30 0,9 30 +9 -18446744073709551617; FEAT - 0 - -1 -FEAT; DATE.1 - 0 - -1.1.2020;
IPV4 - 0 - -10.0.0.1; - 0,9 0 - -1)";

class ValidationTest : public QObject {
    Q_OBJECT

private slots:
    void judges()
    {
        TreeViewItemHandler handler { DevicePaths() };
        QScriptEngine &engine = handler.scriptHelper().scriptEngine();
        const QString js = QStringLiteral("d = {}; if ('%1' != '-') d.validation = '%1';"
                                          "if ('%2' != '-') d.range = eval('[%2]'); d");
        for (const QString &row : QString::fromLatin1(table).split(QLatin1Char(';'))) {
            const QStringList words = row.simplified().split(QLatin1Char(' '));
            TreeViewItem item(engine.evaluate(js.arg(words[0], words[1])), {}, nullptr, -1, 0);
            for (const QString &text : words.mid(3))
                QVERIFY2(validateInput(handler, item, text.mid(1)) == (text[0] == QLatin1Char('+')),
                    qPrintable(words[0] + text));
            QVERIFY2(fieldLength(handler, item) == words[2].toInt(), qPrintable(words[0]));
        }
    }
};

QTEST_GUILESS_MAIN(ValidationTest)
#include "ValidationTest.moc"
