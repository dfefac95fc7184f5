// Damages the state of the demo's device, as a person who edits its file could, and plays random
// keys on it. DRAVIKON_TEST_STATES and _SEED in the environment ask for others than the usual.
#include "app/TerminalGui.h"
#include "diagnose/DiagnoseScreen.h"
#include "json/JsonReader.h"
#include "preview/DeviceFromMenu.h"
#include "preview/SimulatedTool.h"
#include "render/Line.h"

#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct NoLine : Line {
    void write(const QByteArray &) override { }
    int queuedBytes() const override { return 0; }
    int bytesPerSecond() const override { return 960; }
    qint64 milliseconds() const override { return 0; }
};

const QVariantList oddValues = parseJson(R"([null, true, -1, 0, 1, 3, 999, 1073741824, 2147483647,
    -2147483648, 4294967296, 9223372036854775807, -9223372036854775808, 18446744073709551615, 0.5,
    -0.0, 1e-300, 1.7e308, -1.7e308, "", "1", "groups", "i18n_", "\u001b[2J", "\ud83d\ude00", [], {},
    [[]], [[[1, 2.5]]], [1, "a", null], {"": 1}, {"0": [1], "1": ["1.0", 7]}])")
                                   ->toList();

const Qt::Key keys[] = { Qt::Key_Return, Qt::Key_Return, Qt::Key_Return, Qt::Key_Down, Qt::Key_Down,
    Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp, Qt::Key_Left, Qt::Key_Right,
    Qt::Key_Backspace, Qt::Key_7, Qt::Key_Escape };

// Damages one place in `value`: it becomes odd or goes, or one comes again.
void damage(QVariant &value, QRandomGenerator &random)
{
    const bool goesOn = random.bounded(6) != 0;
    if (value.type() == QVariant::Map && !value.toMap().isEmpty()) {
        QVariantMap map = value.toMap();
        const auto entry = std::next(map.begin(), random.bounded(map.size()));
        const int change = random.bounded(3);
        if (goesOn)
            damage(*entry, random);
        else if (change == 0)
            map.erase(entry);
        else
            map.insert(change == 1 ? entry.key() : entry.key() + QLatin1String(" 0"),
                oddValues.at(random.bounded(oddValues.size())));
        value = map;
    } else if (value.type() == QVariant::List && !value.toList().isEmpty()) {
        QVariantList list = value.toList();
        const int place = random.bounded(list.size());
        const int change = random.bounded(3);
        if (goesOn)
            damage(list[place], random);
        else if (change == 0)
            list.removeAt(place);
        else
            list.insert(place, QVariant(list.at(random.bounded(list.size()))));
        value = list;
    } else {
        value = oddValues.at(random.bounded(oddValues.size()));
    }
}

} // namespace

class OddStates : public QObject {
    Q_OBJECT

    const QTemporaryDir directory;
    const QString file = stateFile(directory.path());
    const DevicePaths demo { QStringLiteral(SOURCES "/demo/web") };
    const ToolRunner tool = [this](const QStringList &arguments) {
        return simulatedAnswer(directory.path(), arguments);
    };
    TreeViewItemHandler menu { demo, tool };
    NoLine line;

    // Random keys seldom come to them.
    void showInterfaces(const TreeViewItem &item)
    {
        ViewState state;
        const InterfaceKind kind = menu.diagnoseScreen(item);
        if (kind != NoInterface)
            menu.enableInterface(kind, true);
        for (int times = 0; kind != NoInterface && times < 3; ++times)
            diagnoseScreen(state, menu, &item);
        for (const auto &child : item.children)
            showInterfaces(*child);
    }

private slots:
    void staySound_data()
    {
        QTest::addColumn<int>("states");
        constexpr int session = 100;
        int left = qEnvironmentVariable("DRAVIKON_TEST_STATES", QStringLiteral("20")).toInt();
        int seed = qEnvironmentVariable("DRAVIKON_TEST_SEED", QStringLiteral("1")).toInt();
        for (; left > 0; left -= session, ++seed)
            QTest::newRow("seed " + QByteArray::number(seed)) << qMin(left, session);
    }

    void staySound()
    {
        QFETCH(int, states);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        const QByteArray seed = QByteArray(QTest::currentDataTag()).split(' ').last();
        QRandomGenerator random { seed.toUInt() };
        const auto values = loadState(QStringLiteral(SOURCES "/demo/device.json"));
        const DeviceState whole = deviceFromMenu(demo, *values, { 2, 1, true });
        const QVariant sound = *parseJson(stateJson(whole));
        QVERIFY(saveState(file, whole));
        TerminalGui gui(demo, line, tool);
        gui.initTerminal();
        const auto root = menu.build();
        for (int number = 0; number < states; ++number) {
            QVariant damaged = sound;
            for (int places = 1 + random.bounded(8); places > 0; --places)
                damage(damaged, random);
            const auto state = stateFromJson(deviceJson(damaged));
            if (!state)
                continue; // it is no object any more
            // The file is edited during a session, sometimes before a start.
            const bool isStart = random.bounded(10) == 0;
            QVERIFY(saveState(file, isStart ? deviceFromMenu(demo, *state, {}) : *state));
            for (int count = 0; count < 15; ++count)
                gui.processKeyEvent(keys[random.bounded(int(std::size(keys)))]);
            if (number % 4 == 0)
                showInterfaces(*root);
            const QByteArray answer = tool({ QStringLiteral("get_menu display") });
            QVERIFY2(answer.isEmpty() || parseJson(answer), answer);
            QVERIFY(loadState(file).has_value());
        }
    }
};

QTEST_GUILESS_MAIN(OddStates)
#include "OddStates.moc"
