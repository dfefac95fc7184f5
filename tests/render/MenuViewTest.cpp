// The menu's lines and the page of them that is shown.
#include "render/MenuView.h"
#include "locale/CTranslationHandler.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

static const char shown[] = R"(->  Parameters| +   *  edit            2|    ->  group|
     -  fixed           0|     *  long label of wotruerds|     #  press|        --|
     -  gps             48.111.5|     -  date            Yes|     -  mark            Yes|
     -  no|     -  raw             I18n_ 2J|     -  db|     -  list            Yes|
     *  list            no|     *  int             1|     *  db              Yes|->  group|
 +   *  a b|     -  c|->  tanks| +  ->  Tank 1|     +   -  level|    ->  Tank 2| $  tag)";

class MenuViewTest : public QObject {
    Q_OBJECT

private slots:
    void showsLinesAndPages()
    {
        FakeDevice device;
        device.setScreens(R"([{screens:[{css:'setup',remote:1},{css:'group'},{css:'tanks',remote:1},
{css:'btnServiceDiagnoseTagInterfaces',remote:1}]},
{css:'setup',i18n:'setup',type:'btn','ajax-read':'r',screens:[{i18n:'edit',inputType:'edit'},
{css:'group'},{i18n:'fixed',remote:2,inputType:'edit'},{i18n:'hidden',remote:0},
{i18n:'long label of words',inputType:'boolean'},{i18n:'press',inputType:'button'},
{i18n:'--',inputType:'separator'},{i18n:'gps'},{i18n:'date'},{i18n:'mark'},{i18n:'no'},{i18n:'raw'},
{i18n:'db',inputType:'selectlabel',values:['no','yes'],dbValues:[7,8]},
{i18n:'list',inputType:'selectlabel',values:['no','yes']},{i18n:'list',inputType:'dropdown',
values:['no','yes']},{i18n:'int',inputType:'dropdown',integer:true,values:['no','yes']},
{i18n:'db',inputType:'dropdown',values:['no','yes'],dbValues:[7,'a']}]},
{css:'group',inputType:'button',screens:[{i18n:'a\tb',inputType:'slider'},{i18n:'c'}]},
{css:'btnServiceDiagnoseTagInterfaces',i18n:'tag',type:'status'},{css:'tanksModifyDo',
screens:[{i18n:'level'}]},{css:'tanks',type:'compBtn',screens:{}},{css:'btnParameterTruckSetup',
'ajax-read':'r',screens:[{i18n:'truck_setup_compartments'}]}])");
        device.setTool(R"(echo '[2,0,"x",true,"i18n_gps_lat_48.1__sep__i18n_gps_lon_11.5",
"i18n_datetime_yi18n_datetime_es","i18n_yi18n_es","","I18n_\\n2J",1,"1","yes",1,"a"]')");
        device.setTranslations(R"({"setup":"Parameters","yes":"Yes","compartment":"Tank"})");
        CTranslationHandler::setInstanceRoot(device.paths().webRoot);
        TreeViewItemHandler handler(device.paths());
        const auto root = handler.build();
        for (const auto &child : root->children)
            handler.toggleItem(*root, child.get(), false);
        handler.toggleItem(*root, root->children[2]->children[0].get(), false);
        QString status;
        const Frame frame = menuLines(handler, *root, 36, &status);
        const QString seen = QStringList(frame.values()).join(QLatin1Char('|'));
        QCOMPARE(seen.toLatin1(), QByteArray(shown).replace('\n', ""));
        QCOMPARE(status, QStringLiteral("hasDBValues: 1"));
        const std::array<int, 3> table[] { { 24, 0, 0 }, { 24, 21, 0 }, { 24, 22, 21 },
            { 24, 42, 21 }, { 24, 43, 42 }, { 5, 3, 2 }, { 4, 2, 1 }, { 4, 9, 8 }, { 3, 7, 7 },
            { 2, 7, 7 }, { 1, 7, 7 } };
        for (const auto &[rows, selected, first] : table)
            QCOMPARE(firstShownLine(selected, rows), first);
    }
};

QTEST_GUILESS_MAIN(MenuViewTest)
#include "MenuViewTest.moc"
