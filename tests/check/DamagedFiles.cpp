// Checks randomly damaged copies of the demo's definition, table and tool. DRAVIKON_TEST_DAMAGES
// and DRAVIKON_TEST_SEED in the environment ask for another number of copies and for other damages.
#include "tests/support/Chance.h"
#include "tests/support/FakeDevice.h"
#include "tests/support/Files.h"
#include "tests/support/RunProgram.h"

namespace {

const QByteArrayList hostileTexts = { "null", "[]", "{}", "\"\"", "-1", "1e999", "0.5", "undefined",
    "true", "9007199254740993", "\"", "'", "{", "]", ",", ":", "//", "\n", "\r", "\x1b[2J", "\xff",
    "\xc3\xa4", "\xc2\x9b", "\xe2\x80\xa8", "\\u001b", "%1", "screens", "css: 5", "length" };

const QByteArrayList answers = { "[\"i18n_wm_true\"]", "[3,2.5,true,null,\"a\"]",
    "[[\"1.0\",\"A\",[1,2]],\"off\"]" };
const QByteArrayList toolEnds = { "", "", "exit 3", "kill -9 $$", "printf '\\033[1m' >&2" };

} // namespace

class DamagedFiles : public QObject {
    Q_OBJECT

    FakeDevice device;
    const QByteArray script = sourceFile("demo/web/scripts/settings.js");
    const QByteArray table = sourceFile("demo/web/locales/en/translation.json");
    QRandomGenerator random;

    int below(int limit) { return limit > 0 ? random.bounded(limit) : 0; }

    QByteArray damaged(QByteArray bytes)
    {
        for (int damages = 1 + below(4); damages > 0; --damages) {
            const int at = below(bytes.size());
            const int length = 1 + below(40);
            const int damage = below(4);
            if (damage == 0)
                bytes.replace(at, 1, QByteArray(1, char(below(256))));
            else if (damage == 1)
                bytes.remove(at, length);
            else if (damage == 2)
                bytes.insert(at, bytes.mid(below(bytes.size()), length));
            else
                bytes.insert(at, oneOf(hostileTexts, random));
        }
        return bytes;
    }

private slots:
    void areReported_data() { addSeeds(setting("DRAVIKON_TEST_DAMAGES", 20)); }

    void areReported()
    {
        QFETCH(int, seed);
        random.seed(quint32(seed));
        device.setScript(below(3) == 0 ? script : damaged(script));
        device.setTranslations(below(3) == 0 ? table : damaged(table));
        QString options = " --web-root=" + device.paths().webRoot;
        if (below(4) == 0)
            options += " --tree";
        if (below(4) == 0) {
            device.setTool("cat <<'END'\n" + damaged(oneOf(answers, random)) + "\nEND\n"
                + oneOf(toolEnds, random));
            options += " --device --tool=" + device.paths().backendTool;
        }
        const ProgramResult checker = runShell(CHECKER + options);
        QVERIFY(checker.status >= 0 && checker.status <= 3);
        const QString printed = checker.output + checker.messages;
        // Control characters but the end of a line.
        const int control =
            printed.indexOf(QRegularExpression("[\\x{0}-\\x{9}\\x{b}-\\x{1f}\\x{7f}-\\x{9f}]"));
        QVERIFY2(control < 0, qPrintable(printed.mid(qMax(control - 99, 0), 200)));
    }
};

QTEST_GUILESS_MAIN(DamagedFiles)
#include "DamagedFiles.moc"
