#include "json/JsonWriter.h"

#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

#include <cmath>

namespace {

using Writer = rapidjson::Writer<rapidjson::StringBuffer>;

bool writeDouble(Writer &writer, double number, int digits)
{
    if (!std::isfinite(number))
        return false;
    // The toolkit writes a negative zero without its sign.
    QByteArray json =
        number == 0 && std::signbit(number) ? "-0" : QByteArray::number(number, 'g', digits);
    if (!json.contains('.') && !json.contains('e'))
        json += ".0";
    return writer.RawValue(json.constData(), size_t(json.size()), rapidjson::kNumberType);
}

// The library fails at half a surrogate pair; this writes each UTF-16 unit as it is.
bool writeText(Writer &writer, const QString &text)
{
    QByteArray json;
    json.reserve(text.size() + 2);
    json += '"';
    for (const QChar character : text) {
        const ushort unit = character.unicode();
        if (unit >= 0x20 && unit < 0x7f) {
            if (unit == '"' || unit == '\\')
                json += '\\';
            json += char(unit);
        } else {
            json += "\\u" + QByteArray::number(unit, 16).rightJustified(4, '0');
        }
    }
    json += '"';
    return writer.RawValue(json.constData(), size_t(json.size()), rapidjson::kStringType);
}

bool writeValue(Writer &writer, const QVariant &value, int digits)
{
    switch (int(value.type())) {
    case QVariant::Invalid:
        return writer.Null();
    case QVariant::Bool:
        return writer.Bool(value.toBool());
    case QVariant::Int:
    case QVariant::LongLong:
        return writer.Int64(value.toLongLong());
    case QVariant::UInt:
    case QVariant::ULongLong:
        return writer.Uint64(value.toULongLong());
    case QVariant::Double:
    case QMetaType::Float:
        return writeDouble(writer, value.toDouble(), digits);
    case QVariant::List:
    case QVariant::StringList: {
        const QVariantList list = value.toList();
        writer.StartArray();
        for (const QVariant &element : list) {
            if (!writeValue(writer, element, digits))
                return false;
        }
        return writer.EndArray();
    }
    case QVariant::Map: {
        const QVariantMap map = value.toMap();
        writer.StartObject();
        for (auto entry = map.cbegin(); entry != map.cend(); ++entry) {
            writeText(writer, entry.key());
            if (!writeValue(writer, entry.value(), digits))
                return false;
        }
        return writer.EndObject();
    }
    default:
        return writeText(writer, value.toString());
    }
}

} // namespace

std::optional<QByteArray> jsonText(const QVariant &value, int digits)
{
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    if (!writeValue(writer, value, digits))
        return std::nullopt;
    return QByteArray(buffer.GetString(), int(buffer.GetSize()));
}
