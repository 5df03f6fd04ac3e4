#include "headless/print.h"

#include "headless/patient_output.h"

#include <nlohmann/json.hpp>

void Print_Text(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    Write_Patiently(stream, bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

void Print_Json(std::FILE* stream, const nlohmann::ordered_json& object)
{
    const std::string line = object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
    Write_Patiently(stream, line.data(), line.size());
}
