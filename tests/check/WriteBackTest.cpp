#include "check/WriteBack.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Findings.h"
#include "tests/support/Rows.h"

class WriteBackTest : public QObject {
    Q_OBJECT

private slots:
    void findsWhatToolsDoToValues()
    {
        const Rows row = [](const QByteArray &fault, const QString &problems, const QString &says,
                             int written) {
            FakeDevice device;
            device.setScreens(R"([{ css: 'start', screens: [{ css: 'page' }, { css: 'tanks' }] },
                { css: 'page', 'ajax-read': 'get page', 'ajax-write': 'set page', screens: [
                  { inputType: 'slider', min: 0, max: 9, step: 1 }, { i18n: 'level' },
                  { remote: 0 }, { inputType: 'separator' }, { inputType: 'boolean' }] },
                { css: 'tanks', type: 'compBtnA', remote: 1, screens: [] },
                { css: 'tanksModifyDo', 'ajax-read': 'get', 'ajax-write': 'set', screens: [
                  { i18n: 'volume', inputType: 'dropdown', values: ['a'], accessLvl: 6 }] },
                { css: 'btnParameterTruckSetup', 'ajax-read': 'count', screens: [
                  { i18n: 'truck_setup_compartments' }] }])");
            device.setTool("folder=${0%/*}; values=$3; open=false\n" + fault + R"(
                case $1 in
                count) echo '[2]' ;;
                get) cat $folder/$2 2>/dev/null || { [ $2 = page ] && echo '[5,14.3,"A7",true]'; } ||
                    echo '[7]' ;;
                set) echo "$values" >$folder/$2; echo '[true]' ;;
                *_seal_status) echo '["i18n_wm_'$open'"]' ;;
                esac)");
            CallTrace trace;
            const WriteBackReport report = writeBack(device.paths(), trace);
            compareFindings(report.problems, problems, says);
            const auto start = QString("%1 of 3 screens written").arg(written);
            QVERIFY2(report.summary.startsWith(start), qPrintable(report.summary));
            QCOMPARE(device.takeCalls().filter("set|").size(), written);
        };
        row("keeps values", "", "", "", 3);
        row("refuses", "[ $1 = set ] && [ $2 = 1 ] && echo '[\"0\"]' && exit",
            "error refused-write", "<set 1 [7]> was refused with <[\"0\"]>", 3);
        row("rounds decimals", "values=$(echo $values | sed 's/14.3[0-9]*/14/')",
            "error changed-value",
            "page: page > level: value 2 was written as 14.3 and is read as 14;", 3);
        row("texts for numbers", "values=$(echo $values | sed 's/^.7.$/[\"7\"]/')",
            "error changed-value, error changed-value", "written as 7 and is read as \"7\"", 3);
        row("shifts", "[ $2 = page ] && values=$(echo $values | sed 's/.5,/[/')",
            "error changed-value, error changed-value, error changed-value, error changed-value",
            "value 4 was written as true and is read as nothing", 3);
        row("loses hidden values", "values=$(echo $values | sed 's/\"A7\"/null/')",
            "error changed-value", "value 3 was written as \"A7\" and is read as null", 3);
        row("mixes screens up", "[ $1 = set ] && [ $2 = 1 ] && echo [8] >$folder/0",
            "error changed-screen", "its write changes value 1 of <get 0> from 7 to 8", 3);
        row("measures", "[ $1 = get ] && [ $2 = page ] && echo [5,$$,$$,true] && exit", "", "", 3);
        row("lacks values", "[ $1 = get ] && [ $2 = page ] && echo [5,14.3,null] && exit",
            "error not-written", "the answer has 3 of 4 values", 2);
        row("seal closed", "open=true", "", "", 1);
    }
};

QTEST_GUILESS_MAIN(WriteBackTest)
#include "WriteBackTest.moc"
