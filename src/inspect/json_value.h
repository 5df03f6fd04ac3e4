#pragma once

#include <QByteArray>
#include <QString>
#include <nlohmann/json.hpp>

/// What the readers of both tools' JSON have in common. Nothing here throws, whatever the text holds.

// Keeps the order of keys, and 64-bit numbers as they are.
using Tool_Json = nlohmann::ordered_json;

/// The text as JSON; discarded for one that is none.
Tool_Json Parse_Tool_Json(const QByteArray& text);

/// The member of an object; null where there is none.
const Tool_Json& Json_Member(const Tool_Json& value, const char* key);

/// The member whose key is `key` in any case; null where there is none.
const Tool_Json& Json_Member_In_Any_Case(const Tool_Json& value, const QString& key);

/// A single value as text: numbers as they stand, true and false as 1 and 0, all else empty.
QString Json_Text(const Tool_Json& value);
