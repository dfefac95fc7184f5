// JSON as the simulated device keeps and exchanges it: numbers stay as exact as they were written.
#pragma once

#include <QByteArray>

#include <rapidjson/document.h>

using Json = rapidjson::Value;
using JsonDocument = rapidjson::Document;

/// Reads `text` into `document`; false when it is no JSON.
bool parseJson(const QByteArray &text, JsonDocument &document);

/// `value` on one line.
QByteArray compactJson(const Json &value);

/// `value` for a reader: one member a line, lists on one line.
QByteArray indentedJson(const Json &value);

/// The member `name` of `value`; nullptr when there is none or `value` is no object.
Json *member(Json *value, const QByteArray &name);
const Json *member(const Json *value, const QByteArray &name);

/// The element `index` of `value`; nullptr when there is none or `value` is no list.
Json *element(Json *value, int index);
const Json *element(const Json *value, int index);
