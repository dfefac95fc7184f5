// Whatever the tool prints: what is understood of it can be written back and is the same again.
#include "menu/ScriptHelper.h"

// Ends the run and keeps the input when an expectation does not hold.
static void expect(bool holds)
{
    if (!holds)
        __builtin_trap();
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    const QVariantList values = ScriptHelper::byteArray2VariantList(
        QByteArray(reinterpret_cast<const char *>(data), int(size)));
    const QString json = ScriptHelper::variantListToJson(values);
    expect(!json.isNull());
    for (const QChar character : json)
        expect(character >= QLatin1Char(' ') && character <= QLatin1Char('~'));
    expect(ScriptHelper::byteArray2VariantList(json.toLatin1()) == values);
    return 0;
}
