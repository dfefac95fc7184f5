#include "demo/MenuValues.h"

#include <QString>

#include <charconv>
#include <cmath>

namespace {

bool isInteger(const Json &value)
{
    return value.IsInt64() || value.IsUint64();
}

template <typename Number> bool readNumber(const Json &text, Number &number)
{
    const char *const end = text.GetString() + text.GetStringLength();
    const auto result = std::from_chars(text.GetString(), end, number);
    return result.ec == std::errc() && result.ptr == end;
}

// The console sends a typed number as the text that was typed.
void convertTypedNumber(const Json &stored, Json &value)
{
    if (!value.IsString())
        return;
    int64_t integer = 0;
    double decimal = 0;
    if (isInteger(stored) && readNumber(value, integer))
        value.SetInt64(integer);
    else if (stored.IsDouble() && readNumber(value, decimal) && std::isfinite(decimal))
        value.SetDouble(decimal);
}

bool hasTypeOf(const Json &stored, const Json &value)
{
    if (stored.IsNumber())
        return isInteger(stored) ? isInteger(value) : value.IsDouble();
    if (stored.IsBool())
        return value.IsBool();
    if (stored.IsNull())
        return value.IsNull() || value.IsString();
    return stored.GetType() == value.GetType();
}

bool isWithin(const Json *limit, const Json &value)
{
    if (value.IsString()) {
        const Json *const maxLength = member(limit, "maxLength");
        const QString text = QString::fromUtf8(value.GetString(), int(value.GetStringLength()));
        return !maxLength || text.size() <= maxLength->GetInt();
    }
    if (value.IsNumber()) {
        const Json *const min = member(limit, "min");
        const Json *const max = member(limit, "max");
        return (!min || value.GetDouble() >= min->GetDouble())
            && (!max || value.GetDouble() <= max->GetDouble());
    }
    return true;
}

Json *groupOf(JsonDocument &state, const QByteArray &group)
{
    return member(member(&state, "groups"), group);
}

} // namespace

Json *menuValues(JsonDocument &state, const QByteArray &group, int instance)
{
    Json *const entry = groupOf(state, group);
    return instance < 0 ? member(entry, "values") : element(member(entry, "instances"), instance);
}

bool setMenuValues(
    JsonDocument &state, const QByteArray &group, int instance, const Json &newValues)
{
    Json *const stored = menuValues(state, group, instance);
    if (!stored || !newValues.IsArray() || newValues.Size() != stored->Size())
        return false;
    const Json *const limits = member(groupOf(state, group), "limits");
    Json accepted(newValues, state.GetAllocator());
    for (int index = 0; index < int(accepted.Size()); ++index) {
        const Json &before = *element(stored, index);
        Json &value = *element(&accepted, index);
        convertTypedNumber(before, value);
        if (!hasTypeOf(before, value))
            return false;
        if (value != before && !isWithin(member(limits, QByteArray::number(index)), value))
            return false;
    }
    stored->Swap(accepted);
    return true;
}
