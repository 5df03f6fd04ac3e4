#include "headless/print.h"

#include <nlohmann/json.hpp>

void Print_Text(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    std::fwrite(bytes.constData(), 1, static_cast<std::size_t>(bytes.size()), stream);
    std::fflush(stream);
}

void Print_Json(std::FILE* stream, const nlohmann::ordered_json& object)
{
    const std::string line = object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
    std::fwrite(line.data(), 1, line.size(), stream);
    std::fflush(stream);
}
