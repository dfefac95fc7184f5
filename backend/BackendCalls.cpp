// The tool's wire format: calls with command words, answers and values as JSON arrays.
#include "menu/ScriptHelper.h"

#include "backend/BackendTool.h"
#include "json/JsonReader.h"
#include "json/JsonWriter.h"
#include "json/Values.h"

#include <QDebug>

QByteArray ScriptHelper::run(const QStringList &arguments) const
{
    return runTool ? runTool(arguments) : BackendTool::run(paths.backendTool, arguments);
}

QVariantList ScriptHelper::read(const QStringList &arguments, bool force)
{
    if (force || arguments != lastArguments) {
        lastResult = byteArray2VariantList(run(arguments));
        lastArguments = arguments;
    }
    return lastResult;
}

bool ScriptHelper::write(QStringList &arguments, const QVariantList &values)
{
    const QString json = variantListToJson(values);
    if (json.isNull()) {
        qWarning() << "Not written, a value is no finite number:" << arguments;
        return false;
    }
    arguments.append(json);
    return truthOf(byteArray2VariantList(run(arguments)).value(0));
}

QVariantList ScriptHelper::byteArray2VariantList(const QByteArray &bytes)
{
    const QString text = QString::fromUtf8(bytes);
    const std::optional<QVariant> value = parseJson(text.toUtf8());
    if (!value)
        qDebug().noquote() << "byteArray2VariantList: parsing failed. Input was: "
                           << QStringLiteral("\"%1\"").arg(text);
    return value.value_or(QVariant()).toList();
}

QString ScriptHelper::variantListToJson(const QVariantList &values)
{
    const std::optional<QByteArray> json = jsonText(values);
    return json ? QString::fromLatin1(*json) : QString();
}
