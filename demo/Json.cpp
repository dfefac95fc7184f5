#include "demo/Json.h"

#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>

namespace {

template <typename Writer>
QByteArray written(const Json &value, rapidjson::StringBuffer &buffer, Writer &writer)
{
    value.Accept(writer);
    return QByteArray(buffer.GetString(), int(buffer.GetSize()));
}

} // namespace

bool parseJson(const QByteArray &text, JsonDocument &document)
{
    constexpr unsigned flags = rapidjson::kParseFullPrecisionFlag
        | rapidjson::kParseValidateEncodingFlag | rapidjson::kParseIterativeFlag;
    document.Parse<flags>(text.constData(), size_t(text.size()));
    return !document.HasParseError();
}

QByteArray compactJson(const Json &value)
{
    rapidjson::StringBuffer buffer;
    rapidjson::Writer<rapidjson::StringBuffer> writer(buffer);
    return written(value, buffer, writer);
}

QByteArray indentedJson(const Json &value)
{
    rapidjson::StringBuffer buffer;
    rapidjson::PrettyWriter<rapidjson::StringBuffer> writer(buffer);
    writer.SetFormatOptions(rapidjson::kFormatSingleLineArray);
    return written(value, buffer, writer);
}

const Json *member(const Json *value, const QByteArray &name)
{
    if (!value || !value->IsObject())
        return nullptr;
    const Json key(rapidjson::StringRef(name.constData(), size_t(name.size())));
    const auto found = value->FindMember(key);
    return found == value->MemberEnd() ? nullptr : &found->value;
}

Json *member(Json *value, const QByteArray &name)
{
    return const_cast<Json *>(member(const_cast<const Json *>(value), name));
}

const Json *element(const Json *value, int index)
{
    if (!value || !value->IsArray() || index < 0 || index >= int(value->Size()))
        return nullptr;
    return &(*value)[rapidjson::SizeType(index)];
}

Json *element(Json *value, int index)
{
    return const_cast<Json *>(element(const_cast<const Json *>(value), index));
}
