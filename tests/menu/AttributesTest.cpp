#include "menu/TreeViewItemHandler.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

// A field, or "screen < entry" with the entry that refers to it; behind "=>" its label in quotes,
// "v" when visible, "e" with an access level when editable, the numbers of its words, its numbers.
static const char table[] = R"(=>'' v
i18n:'own' < i18n:'e' =>'own' v | i18n:'',css:'a' < i18n:'e' =>'e' v | css:'Shown' =>'Shown' v
css:'aShow' < i18n:'e' =>'e' v | css:'aMetersShow' =>'meter' v | css:'MetersModifyDo' =>'meter' v
css:'metersShow' =>'compartment' v | css:'aModifyDo' < css:'a' =>'compartment' v
css:'aTODOb',remote:1 =>'aTODOb' | css:'btnServiceLoadingplan' =>'btnServiceLoadingplan'
css:'btnLoadingplan',remote:2 =>'btnLoadingplan' | css:'btnLoadingplans' =>'btnLoadingplans' v
remote:1 < css:'xTODO' =>'' | type:'btn' =>'' t2 | type:'btn' < remote:0 =>'' t2
type:'btn' < remote:2 =>'' v t2 | type:'btn' < type:'compBtnA' =>'' v t2 | < remote:0 =>'' v
type:'btn' < type:'meterBtnA' =>'' v t2 | type:'btn' < type:'cmpBtnSetup' =>'' t2
remote:0 < remote:1 =>'' | remote:2,type:'edit' =>'' v t3 | type:'cmpBtnSetup' =>'' t1
remote:1,type:'cmpBtnStatus' < remote:0 =>'' v t0 | inputType:'Edit' =>'' v
inputType:'separator' =>'' v i0 | inputType:'dropdown' =>'' v e0 e6 i1 | inputType:'label' =>'' v i3
inputType:'button' =>'' v i2 | inputType:'selectlabel' =>'' v i4 | inputType:'input' =>'' v i8
inputType:'edit',accessLvl:0 =>'' v e0 e6 i5 | inputType:'edit',accessLvl:6 =>'' v e6 i5
inputType:'edit',accessLvl:7 =>'' v i5 | inputType:'boolean',remote:1 =>'' v e0 e6 i6
inputType:'boolean',remote:2 =>'' v i6 | inputType:'slider' =>'' v e0 e6 i7
@Spd#,type:'status' =>'i' d1 t4 | @IO#,type:'status' =>'i' d2 t4 | @Tag#,type:'status' =>'i' d4 t4
@Wetleg#,type:'status' =>'i' d3 t4 | @As#,type:'status' =>'i' d5 t4 | @TODO#,remote:1 =>'i'
@Level#,type:'status' =>'i' d6 t4 | @IO#,type:'btn' =>'i' t2 | type:'status' =>'' t4
integer:0,min:1 =>'' v | integer:'no',dbValues:[10] =>'' v 0 0 0 0 -1 -1  false 0
integer:1,min:2.9,max:-2.9,values:['abc',3,2],dbValues:[0,10,10,7] =>'' v 2 -2 3 3 1 -1 3 true 7)";

class AttributesTest : public QObject {
    Q_OBJECT

private slots:
    void describesItems()
    {
        FakeDevice device;
        device.setTool(R"(echo '["i18n_wm_false"]')");
        for (const QByteArray &row : QByteArray(table).replace('\n', '|').split('|')) {
            const QByteArray definition = row.left(row.indexOf("=>"));
            QByteArray script = "[{" + definition + "}]";
            script.replace('<', "}, {")
                .replace('@', "i18n:'i',css:'btnServiceDiagnose")
                .replace('#', "Interfaces'");
            TreeViewItemHandler menu(device.paths());
            const auto list = menu.scriptHelper().scriptEngine().evaluate(QLatin1String(script));
            TreeViewItem root({}, {}, nullptr, -1, 0);
            TreeViewItem &item = root.addChild(list.property(0), list.property(1), -1);
            QByteArray facts = "=>'" + menu.labelKey(item).toUtf8() + '\'';
            const auto add = [&](bool holds, const char *fact, const QVariant &value) {
                facts += holds ? fact + value.toByteArray() : "";
            };
            add(menu.isVisible(item), " v", {});
            add(menu.isEditable(item), " e", 0);
            menu.updateAccessLevel();
            add(menu.isEditable(item), " e", 6);
            add(menu.diagnoseScreen(item) != 0, " d", menu.diagnoseScreen(item));
            add(menu.inputKind(item) != NoInput, " i", menu.inputKind(item));
            add(menu.typeKind(item) != NoType, " t", menu.typeKind(item));
            for (const QVariant &value : QVariantList { menu.minimum(item), menu.maximum(item),
                     menu.valueCount(item), menu.widestValue(item),
                     menu.indexOfDatabaseValue(item, 10.0), menu.indexOfDatabaseValue(item, 7),
                     menu.valueAt(item, 1), menu.valueAt(item, 1).type() == QVariant::LongLong,
                     menu.databaseValueAt(item, 3) })
                add(menu.isInteger(item), " ", value);
            QCOMPARE((definition + facts).trimmed(), row.trimmed());
            item.addChild({}, {}, -1);
            QVERIFY(!menu.isEditable(item));
        }
    }
};

QTEST_GUILESS_MAIN(AttributesTest)
#include "AttributesTest.moc"
