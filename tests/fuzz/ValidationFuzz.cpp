// Whatever the rule and the text: what is accepted keeps the rule's length and range.
#include "render/InputValidation.h"
#include "tests/fuzz/Bytes.h"

#include <QCoreApplication>

namespace {

struct Editor {
    int argc = 0;
    QCoreApplication application { argc, nullptr };
    TreeViewItemHandler handler { DevicePaths() };
};

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static Editor editor;
    QScriptEngine &engine = editor.handler.scriptHelper().scriptEngine();
    Bytes bytes(data, size);
    QScriptValue definition = engine.newObject();
    const QString rule = bytes.text();
    definition.setProperty(QStringLiteral("validation"), rule);
    const int low = bytes.number();
    const int high = bytes.number();
    QScriptValue range = engine.newArray();
    range.setProperty(0, low);
    range.setProperty(1, high);
    definition.setProperty(QStringLiteral("range"), range);
    const TreeViewItem item(definition, QScriptValue(), nullptr, -1, 0);

    const QString text = bytes.text();
    const int length = fieldLength(editor.handler, item);
    if (validateInput(editor.handler, item, text)) {
        expect(text.size() <= length);
        expect(rule.startsWith(QLatin1Char('C'))
            || (low <= text.toLongLong() && text.toLongLong() <= high));
    }
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    const std::optional<qint64> strict = strictInteger(text);
    expect(!strict || (isNumber && *strict == number));
    return 0;
}
