#pragma once

#include <QString>
#include <cstdio>
#include <nlohmann/json_fwd.hpp>

/// Writes a text as UTF-8; it is out when this returns.
void Print_Text(std::FILE* stream, const QString& text);

/// Writes one JSON object as one line. Text that is no Unicode is replaced, never refused.
void Print_Json(std::FILE* stream, const nlohmann::ordered_json& object);
