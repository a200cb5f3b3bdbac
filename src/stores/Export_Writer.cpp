#include "stores/Export_Writer.h"

#include "platform/Text_Files.h"

#include <optional>

namespace {
constexpr qsizetype Bytes_At_Once = 64 * 1024;
}

bool Write_Export(const QString& path, const Export_Content& content)
{
    Remove_File(path);
    qsizetype next = 0;
    bool has_begun = false;
    const auto next_bytes = [&]() -> std::optional<QByteArray> {
        QByteArray bytes;
        if (!has_begun)
            bytes = content.header;
        has_begun = true;
        while (next < content.count && bytes.size() < Bytes_At_Once)
            bytes.append(content.piece(next++));
        return bytes.isEmpty() ? std::nullopt : std::optional(bytes);
    };
    try {
        return Write_File_In_Pieces(path, next_bytes);
    } catch (const std::exception&) { // no memory for a piece, above all
        return false;
    }
}
