#include "check/Answer.h"

#include "json/JsonWriter.h"
#include "json/Values.h"

std::optional<QVariant> jsonOf(const ToolCall &call, QString *fault)
{
    return parseJson(QString::fromUtf8(call.output).toUtf8(), fault);
}

std::optional<QVariantList> answerOf(const ToolCall &call)
{
    const QVariant value = jsonOf(call).value_or(QVariant());
    return value.type() == QVariant::List ? std::make_optional(value.toList()) : std::nullopt;
}

QString shownValue(const QVariant &value)
{
    return value.type() == QVariant::Double
        ? textOf(value)
        : QString::fromLatin1(jsonText(value).value_or(QByteArray()));
}
