// What an item's definition, and the entry that refers to it, say about the item, as far as no
// transcript shows it.
#include "menu/TreeViewItemHandler.h"
#include "tests/support/Rows.h"

#include <functional>

class AttributesTest : public QObject {
    Q_OBJECT

    TreeViewItemHandler menu { DevicePaths() };

    QVariant answer(const QByteArray &query, const TreeViewItem &item) const
    {
        const QMap<QByteArray, std::function<QVariant()>> answers {
            { "label", [&] { return menu.labelKey(item); } },
            { "visible", [&] { return menu.isVisible(item); } },
            { "editable", [&] { return menu.isEditable(item); } },
            { "screen", [&] { return int(menu.diagnoseScreen(item)); } },
            { "minimum", [&] { return menu.minimum(item); } },
            { "maximum", [&] { return menu.maximum(item); } },
            { "count", [&] { return menu.valueCount(item); } },
            { "text 1", [&] { return menu.valueAt(item, 1); } },
            { "code 3", [&] { return menu.databaseValueAt(item, 3); } },
            { "place of 10", [&] { return menu.indexOfDatabaseValue(item, 10.0); } },
        };
        return answers[query]();
    }

private slots:
    void describes_data()
    {
        const Rows<QByteArray, QByteArray, QByteArray, QVariant> add(
            "query", "definition", "entry", "answer");
        const auto row = [&add](const QByteArray &query, const QByteArray &definition,
                             const QVariant &answer, const QByteArray &entry = {}) {
            add(query + " of {" + definition + "} < {" + entry + '}', query, definition, entry,
                answer);
        };
        row("label", "i18n: 'own'", QStringLiteral("own"), "i18n: 'entry'");
        row("label", "i18n: '', css: 'aShow'", QStringLiteral("entry"), "i18n: 'entry'");
        row("label", "css: 'aShow'", QStringLiteral("compartment"));
        row("label", "css: 'aMetersShow'", QStringLiteral("meter"));
        row("label", "css: 'Shown'", QStringLiteral("Shown"), "css: 'a'");

        for (const char *item :
            { "", "remote: 2", "remote: 1, type: 'btn'", "css: 'btnLoadingplans'" })
            row("visible", item, true, "remote: 0");
        for (const char *item : { "remote: 0", "css: 'aTODOb', remote: 1", "css: 'btnLoadingplan'",
                 "css: 'btnServiceLoadingplan', remote: 2", "type: 'btn', css: 'xTODO'" })
            row("visible", item, false, "remote: 1");
        for (const char *entry : { "remote: 2", "type: 'compBtnA'", "type: 'meterBtnA'" })
            row("visible", "type: 'btn'", true, entry);
        for (const char *entry : { "", "remote: 0", "type: 'cmpBtnSetup'", "css: 'a'" })
            row("visible", "type: 'btn'", false, entry);
        row("visible", "", false, "css: 'xTODO'");

        row("editable", "inputType: 'edit'", true);
        for (const char *item : { "inputType: 'input'", "inputType: 'Edit'", "" })
            row("editable", item, false);
        row("screen", "css: 'btnServiceDiagnoseAsInterfaces', type: 'btn'", 0);

        row("minimum", "min: -2.9", -2);
        row("maximum", "max: 1e10", std::numeric_limits<int>::max());
        row("count", "values: ['abc', 3, 2]", 3);
        row("count", "values: {length: 1e10}", 100000);
        row("text 1", "values: ['abc', 3]", 3LL);
        row("code 3", "dbValues: [0, 10, 10, 9007199254740992]", 9007199254740992LL);
        row("place of 10", "values: ['a', 'b', 'c'], dbValues: [0, 10, '10']", 1);
        row("place of 10", "values: ['a'], dbValues: [0, 10]", -1);
    }

    void describes()
    {
        QFETCH(QByteArray, query);
        QFETCH(QByteArray, definition);
        QFETCH(QByteArray, entry);
        QFETCH(QVariant, answer);
        const QByteArray script = "[{" + definition + "}, {" + entry + "}]";
        const auto list = menu.scriptHelper().scriptEngine().evaluate(QString::fromLatin1(script));
        TreeViewItem item(list.property(0), list.property(1), nullptr, -1, 0);
        const QVariant actual = this->answer(query, item);
        QCOMPARE(actual, answer);
        QCOMPARE(actual.type(), answer.type());
        item.addChild({}, {}, -1);
        QVERIFY(!menu.isEditable(item));
    }
};

QTEST_GUILESS_MAIN(AttributesTest)
#include "AttributesTest.moc"
