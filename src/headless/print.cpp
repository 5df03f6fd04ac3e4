#include "headless/print.h"

#include "headless/patient_output.h"

#include <algorithm>
#include <nlohmann/json.hpp>

/// In pieces that a pipe takes whole once it takes anything, so that no write waits for a reader.
static void Print_Bytes(std::FILE* stream, const char* bytes, std::size_t size)
{
    constexpr std::size_t piece = 4096;
    for (std::size_t done = 0; done < size; done += piece) {
        Wait_For_Reader(stream);
        std::fwrite(bytes + done, 1, std::min(piece, size - done), stream);
        std::fflush(stream);
    }
}

void Print_Text(std::FILE* stream, const QString& text)
{
    const QByteArray bytes = text.toUtf8();
    Print_Bytes(stream, bytes.constData(), static_cast<std::size_t>(bytes.size()));
}

void Print_Json(std::FILE* stream, const nlohmann::ordered_json& object)
{
    const std::string line = object.dump(-1, ' ', false, nlohmann::ordered_json::error_handler_t::replace) + '\n';
    Print_Bytes(stream, line.data(), line.size());
}
