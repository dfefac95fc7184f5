#include "check/Layout.h"
#include "tests/support/FakeDevice.h"

#include <QtTest>

class LayoutTest : public QObject {
    Q_OBJECT

private slots:
    void printsWhatTheConsoleCanCall()
    {
        FakeDevice device;
        device.setScreens(
            R"([{ css: 'btnParameterTruckSetup', 'ajax-read': 'at start', screens: [{ css: 'a' }, { css: 'a' },
            { i18n: 'truck_setup_compartments', remote: 0 },
            { css: 'tanks' }, { css: 'h', remote: 0 }, { i18n: 'x', inputType: 'button', 'ajax-read': 'pressed' }] },
            { css: 'tanks', type: 'compBtnA', remote: 1, screens: [] },
            { css: 'tanksModifyDo', 'ajax-read': 'get', 'ajax-write': 'set', screens: [
              { i18n: 'x ' + Array(23).join('w'), inputType: 'dropdown', values: ['y'], dbValues: [Array(40).join('z')] }] },
            { css: 'h', type: 'btn', 'ajax-read': 'hidden', screens: [{ i18n: 'x' }] },
            { css: 'a', 'ajax-read': '\x1b "b  c"', 'ajax-write': 'locked', screens: [
              { i18n: Array(5).join('key_ words '), inputType: 'edit', validation: 'N5.2',
                accessLvl: 9 }, { css: 'h' }, { inputType: 'separator' },
              { i18n: 'x', inputType: 'selectlabel', values: ['y'], dbValues: ['1'] }] }])");
        const QStringList lines = menuLayout(device.paths());
        QCOMPARE(lines.mid(lines.indexOf("a (a)")).join('\n'),
            R"(a (a)
  read      "b c"
   1 key_ words key_ words key_    key_ words key_ words  edit, read-only    accepts no text
     words key_ words              key_ words key_ words
   2 h                             h                      reference, hidden
   3 x                             x                      selectlabel        "1" = y

tanks > compartment (tanksModifyDo)
  read    get NUMBER
  write   set NUMBER VALUES
   1 x wwwwwwwwwwwwwwwwwwwwww      x                      dropdown           "zzzzzzzzzzzzzzzzzzzzzz
                                   wwwwwwwwwwwwwwwwwwwwww                    zzzzzzzzzzzzzzzzz" = y

x
  read    pressed)");
        QVERIFY(lines.join(' ').contains("btnParameterTruckSetup; value 3 is the number"));
        QVERIFY(device.takeCalls().isEmpty());
    }
};

QTEST_GUILESS_MAIN(LayoutTest)
#include "LayoutTest.moc"
