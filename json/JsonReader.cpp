#include "json/JsonReader.h"

#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>

#include <limits>
#include <vector>

namespace {

constexpr size_t maximumDepth = 512;

/// Receives the reader's events and builds the variant from the leaves up.
class VariantBuilder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, VariantBuilder> {
public:
    QVariant value;

    bool Null() { return add(QVariant()); }
    bool Bool(bool flag) { return add(flag); }
    bool Int(int number) { return add(qlonglong(number)); }
    bool Uint(unsigned number) { return add(qlonglong(number)); }
    bool Int64(int64_t number) { return add(qlonglong(number)); }
    bool Uint64(uint64_t number)
    {
        const bool fitsSigned = number <= uint64_t(std::numeric_limits<qlonglong>::max());
        return add(fitsSigned ? QVariant(qlonglong(number)) : QVariant(qulonglong(number)));
    }
    bool Double(double number) { return add(number); }
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
    // The iterative parser keeps hostile nesting off the stack.
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseFullPrecisionFlag;
    rapidjson::MemoryStream stream(json.constData(), size_t(json.size()));
    rapidjson::Reader reader;
    VariantBuilder builder;
    if (!reader.Parse<flags>(stream, builder))
        return std::nullopt;
    return builder.value;
}
