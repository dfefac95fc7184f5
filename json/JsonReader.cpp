#include "json/JsonReader.h"

#include <rapidjson/error/en.h>
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
        containers.back().key = QString::fromUtf8(text, int(length));
        return true;
    }
    bool StartObject() { return enter(true); }
    bool EndObject(rapidjson::SizeType) { return leave(); }
    bool StartArray() { return enter(false); }
    bool EndArray(rapidjson::SizeType) { return leave(); }

private:
    struct Container {
        bool isMap;
        QString key;
        QVariantMap map;
        QVariantList list;
    };

    bool enter(bool isMap)
    {
        if (containers.size() == maximumDepth)
            return false;
        containers.push_back({ isMap, {}, {}, {} });
        return true;
    }

    bool leave()
    {
        const Container done = std::move(containers.back());
        containers.pop_back();
        return done.isMap ? add(done.map) : add(done.list);
    }

    bool add(const QVariant &element)
    {
        if (containers.empty())
            value = element;
        else if (containers.back().isMap)
            containers.back().map.insert(containers.back().key, element);
        else
            containers.back().list.append(element);
        return true;
    }

    std::vector<Container> containers; ///< those that are not complete, outermost first
};

QString faultAt(const QByteArray &json, size_t offset, rapidjson::ParseErrorCode error)
{
    const QByteArray before = json.left(int(offset));
    const QByteArray line = before.mid(before.lastIndexOf('\n') + 1);
    QString reason = QString::fromLatin1(rapidjson::GetParseError_En(error));
    if (error == rapidjson::kParseErrorNone)
        reason = QStringLiteral("A zero byte ends the text");
    else if (error == rapidjson::kParseErrorTermination)
        reason = QStringLiteral("A number is too large, or the nesting too deep");
    else
        reason.chop(1); // the full stop
    return QStringLiteral("line %1, column %2: %3")
        .arg(before.count('\n') + 1)
        .arg(QString::fromUtf8(line).size() + 1)
        .arg(reason);
}

} // namespace

std::optional<QVariant> parseJson(const QByteArray &json, QString *fault)
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
    if (isParsed && stream.Tell() == size_t(json.size()))
        return builder.value;
    if (fault) {
        const size_t offset = isParsed ? stream.Tell() : reader.GetErrorOffset();
        *fault = faultAt(json, offset, reader.GetParseErrorCode());
    }
    return std::nullopt;
}
