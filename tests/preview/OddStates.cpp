// Damages the state of the demo's device, as a person who edits its file could, and plays random
// keys on it. DRAVIKON_TEST_STATES and _SEED in the environment ask for others than the usual.
#include "app/TerminalGui.h"
#include "diagnose/DiagnoseScreen.h"
#include "json/JsonReader.h"
#include "preview/DeviceFromMenu.h"
#include "preview/SimulatedTool.h"
#include "tests/support/Chance.h"
#include "tests/support/SimulatedLine.h"

namespace {

constexpr int statesOfSession = 100;

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
    enum Change { Odd, Gone, Again };
    const int change = random.bounded(18); // the others: further within
    QVariantMap map = value.toMap();
    QVariantList list = value.toList();
    if (change == Odd || (map.isEmpty() && list.isEmpty())) {
        value = oneOf(oddValues, random);
    } else if (!map.isEmpty()) {
        const auto entry = std::next(map.begin(), random.bounded(map.size()));
        if (change == Gone)
            map.erase(entry);
        else if (change == Again)
            map.insert(entry.key() + " 0", entry.value());
        else
            damage(*entry, random);
        value = map;
    } else {
        const int place = random.bounded(list.size());
        if (change == Gone)
            list.removeAt(place);
        else if (change == Again)
            list.insert(place, QVariant(list.at(place)));
        else
            damage(list[place], random);
        value = list;
    }
}

} // namespace

class OddStates : public QObject {
    Q_OBJECT

    const DevicePaths demo { SOURCES "/demo/web" };
    DeviceState state;
    const ToolRunner tool = [this](const QStringList &arguments) {
        return simulatedAnswer(state, arguments, [] { return true; });
    };
    TreeViewItemHandler menu { demo, tool };
    SimulatedLine line;

    // Random keys seldom come to them.
    void showInterfaces(const TreeViewItem &item)
    {
        ViewState view;
        const InterfaceKind kind = menu.diagnoseScreen(item);
        if (kind != NoInterface)
            menu.enableInterface(kind, true);
        for (int times = 0; kind != NoInterface && times < 3; ++times)
            diagnoseScreen(view, menu, &item);
        for (const auto &child : item.children)
            showInterfaces(*child);
    }

private slots:
    void staySound_data()
    {
        addSeeds(setting("DRAVIKON_TEST_STATES", statesOfSession) / statesOfSession);
    }

    void staySound()
    {
        QFETCH(int, seed);
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
        QRandomGenerator random { quint32(seed) };
        const auto values = loadState(SOURCES "/demo/device.json");
        state = deviceFromMenu(demo, *values, { 2, 1, true });
        const QVariant sound = *parseJson(stateJson(state));
        TerminalGui gui(demo, line, tool);
        gui.initTerminal();
        const auto root = menu.build();
        for (int number = 0; number < statesOfSession; ++number) {
            QVariant damaged = sound;
            for (int places = 1 + random.bounded(8); places > 0; --places)
                damage(damaged, random);
            const auto edited = stateFromJson(deviceJson(damaged));
            if (!edited)
                continue; // it is no object any more
            // The file is edited during a session, sometimes before a start.
            const bool isStart = random.bounded(10) == 0;
            state = isStart ? deviceFromMenu(demo, *edited, {}) : *edited;
            for (int count = 0; count < 15; ++count) {
                gui.processKeyEvent(oneOf(keys, random));
                line.nowUs += 10000000;
                gui.shownScreen().beforeWait(false);
            }
            if (number % 4 == 0)
                showInterfaces(*root);
            const QByteArray answer = tool({ "get_menu display" });
            QVERIFY2(answer.isEmpty() || parseJson(answer), answer);
            QVERIFY(stateFromJson(stateJson(state)));
            QVERIFY(line.terminal.answerBack().isEmpty());
        }
    }
};

QTEST_GUILESS_MAIN(OddStates)
#include "OddStates.moc"
