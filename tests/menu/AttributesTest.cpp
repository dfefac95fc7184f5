// What an item's definition, and the entry that refers to it, say about the item.
#include "menu/TreeViewItemHandler.h"
#include "tests/support/Rows.h"

class AttributesTest : public QObject {
    Q_OBJECT

    TreeViewItemHandler menu { DevicePaths() };
    std::unique_ptr<TreeViewItem> item; ///< of the definition and the entry that were set last

    void setItem(const QByteArray &definition, const QByteArray &entry = {})
    {
        const QByteArray script = "[{" + definition + "}, {" + entry + "}]";
        const auto list = menu.scriptHelper().scriptEngine().evaluate(QString::fromLatin1(script));
        item = std::make_unique<TreeViewItem>(list.property(0), list.property(1), nullptr, -1, 0);
    }

private slots:
    void label()
    {
        const Rows row = [this](const QByteArray &definition, const QByteArray &entry,
                             const QString &label) {
            setItem(definition, entry);
            QCOMPARE(menu.labelKey(*item), label);
        };
        row("own", "i18n: 'own'", "i18n: 'entry'", "own");
        row("of the entry", "i18n: '', css: 'aShow'", "i18n: 'entry'", "entry");
        row("compartment", "css: 'aShow'", "", "compartment");
        row("meter", "css: 'aMetersShow'", "", "meter");
        row("name", "css: 'Shown'", "css: 'a'", "Shown");
    }

    void visibility()
    {
        const Rows row = [this](const QByteArray &definition, const QByteArray &entry,
                             bool isVisible) {
            setItem(definition, entry);
            QCOMPARE(menu.isVisible(*item), isVisible);
        };
        row("hidden by itself", "remote: 0", "remote: 1", false);
        row("shown in spite of its entry", "remote: 2", "remote: 0", true);
        row("type, and shown by itself", "type: 'btn', remote: 1", "remote: 0", true);
        row("type, and shown by its entry", "type: 'btn'", "remote: 2", true);
        row("type, and hidden by its entry", "type: 'btn'", "remote: 0", false);
        row("type", "type: 'btn'", "css: 'a'", false);
        row("type of a compartment", "type: 'btn'", "type: 'compBtnA'", true);
        row("type of a meter", "type: 'btn'", "type: 'meterBtnA'", true);
        row("type of something else", "type: 'btn'", "type: 'cmpBtnSetup'", false);
        row("no type", "", "remote: 0", true);

        row("TODO within the name", "css: 'aTODOb', remote: 1", "", false);
        row("TODO in the entry's name", "", "css: 'xTODO'", false);
        row("loading plan", "css: 'btnLoadingplan'", "", false);
        row("service loading plan", "css: 'btnServiceLoadingplan', remote: 2", "", false);
        row("loading plans", "css: 'btnLoadingplans'", "", true);
    }

    void kinds()
    {
        setItem("inputType: 'input'"); // of the web interface
        QVERIFY(!menu.isEditable(*item));
        setItem("inputType: 'edit'");
        QVERIFY(menu.isEditable(*item));
        item->addChild({}, {}, -1);
        QVERIFY(!menu.isEditable(*item));
        setItem("css: 'btnServiceDiagnoseAsInterfaces', type: 'btn'");
        QCOMPARE(menu.diagnoseScreen(*item), NoInterface);
    }

    void limits()
    {
        setItem("min: -2.9, max: 1e10");
        QCOMPARE(menu.minimum(*item), -2);
        QCOMPARE(menu.maximum(*item), std::numeric_limits<int>::max());
    }

    void texts()
    {
        setItem("values: ['abc', 3]");
        QCOMPARE(menu.valueCount(*item), 2);
        QCOMPARE(menu.valueAt(*item, 1), QVariant(3LL));
        setItem("values: {length: 1e10}");
        QCOMPARE(menu.valueCount(*item), 100000);
    }

    void codes()
    {
        const Rows row = [this](const QByteArray &code, const QString &written) {
            setItem("dbValues: [0, " + code + ']');
            QCOMPARE(ScriptHelper::variantListToJson({ menu.databaseValueAt(*item, 1) }), written);
        };
        row("fraction", "2.5", "[2.5]");
        row("beyond 2^53", "9007199254740994", "[9007199254740994]");
        row("lowest of 64 bits", "-9223372036854775808", "[-9223372036854775808]");
        row("highest of 64 bits", "18446744073709549568", "[18446744073709549568]");
        row("beyond 64 bits", "18446744073709551616", "[18446744073709551616.0]");
        row("text", "'1'", "[\"1\"]");
        row("list", "[1, [2]]", "[\"1,2\"]");
    }

    void placeOfCode()
    {
        setItem("values: ['a', 'b', 'c'], dbValues: [0, 10, '10']");
        QCOMPARE(menu.indexOfDatabaseValue(*item, 10.0), 1);
        setItem("values: ['a'], dbValues: [0, 10]");
        QCOMPARE(menu.indexOfDatabaseValue(*item, 10.0), -1);
        setItem("values: ['a', 'b'], dbValues: ['x']"); // what is missing is no value
        QCOMPARE(menu.indexOfDatabaseValue(*item, QString()), -1);
    }
};

QTEST_GUILESS_MAIN(AttributesTest)
#include "AttributesTest.moc"
