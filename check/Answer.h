// What the backend tool printed, read as the console reads it.
#pragma once

#include "check/ToolCalls.h"
#include "json/JsonReader.h"

/// The JSON value that the tool printed; nothing, and the reason in `fault`, when it is none.
std::optional<QVariant> jsonOf(const ToolCall &call, QString *fault = nullptr);

/// The elements of the JSON array that the tool printed; nothing when it printed anything else.
std::optional<QVariantList> answerOf(const ToolCall &call);

/// `value` as JSON, decimals with up to 15 digits.
QString shownValue(const QVariant &value);
