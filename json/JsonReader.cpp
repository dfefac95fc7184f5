#include "json/JsonReader.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <cmath>
#include <vector>

namespace {

constexpr size_t maximumDepth = 512;

// Invalid when the number is too large for any type; one too small for a double is zero.
QVariant numberOf(const QByteArray &digits)
{
    bool fits = false;
    if (const qlonglong number = digits.toLongLong(&fits); fits)
        return number;
    if (const qulonglong number = digits.toULongLong(&fits); fits)
        return number;
    const double number = digits.toDouble();
    return std::isfinite(number) ? QVariant(number) : QVariant();
}

/// Receives the reader's events and builds the variant from the leaves up.
class VariantBuilder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, VariantBuilder> {
public:
    QVariant value;

    bool Null() { return add(QVariant()); }
    bool Bool(bool flag) { return add(flag); }
    bool RawNumber(const char *text, rapidjson::SizeType length, bool)
    {
        const QVariant number = numberOf(QByteArray::fromRawData(text, int(length)));
        return number.isValid() && add(number);
    }
    bool String(const char *text, rapidjson::SizeType length, bool)
    {
        return add(QString::fromUtf8(text, int(length)));
    }
    bool Key(const char *text, rapidjson::SizeType length, bool)
    {
        open.back().key = QString::fromUtf8(text, int(length));
        return true;
    }
    bool StartObject() { return enter(true); }
    bool EndObject(rapidjson::SizeType)
    {
        const QVariantMap map = open.back().map;
        open.pop_back();
        return add(map);
    }
    bool StartArray() { return enter(false); }
    bool EndArray(rapidjson::SizeType)
    {
        const QVariantList list = open.back().list;
        open.pop_back();
        return add(list);
    }

private:
    struct Container {
        bool isMap;
        QString key;
        QVariantMap map;
        QVariantList list;
    };

    bool enter(bool isMap)
    {
        if (open.size() == maximumDepth)
            return false;
        open.push_back({ isMap, {}, {}, {} });
        return true;
    }

    bool add(const QVariant &element)
    {
        if (open.empty())
            value = element;
        else if (open.back().isMap)
            open.back().map.insert(open.back().key, element);
        else
            open.back().list.append(element);
        return true;
    }

    std::vector<Container> open;
};

} // namespace

std::optional<QVariant> parseJson(const QByteArray &json)
{
    // The iterative parser keeps hostile nesting off the stack; the library's own way to read
    // numbers is either inexact or undefined for a zero with an exponent.
    constexpr unsigned flags =
        rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag;
    rapidjson::MemoryStream stream(json.constData(), size_t(json.size()));
    rapidjson::Reader reader;
    VariantBuilder builder;
    const bool isParsed = reader.Parse<flags>(stream, builder);
    // The library takes a NUL byte for the end.
    if (!isParsed || stream.Tell() != size_t(json.size()))
        return std::nullopt;
    return builder.value;
}
