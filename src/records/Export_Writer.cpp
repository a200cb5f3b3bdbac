#include "records/Export_Writer.h"

#include "platform/Text_Files.h"
#include "records/Data_Paths.h"

#include <QFileInfo>
#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype Bytes_At_Once = 64 * 1024;

// Whether a path leads to one of the stores, as a link may.
bool Leads_To_A_Store(const QString& path)
{
    const QString there = QFileInfo(path).canonicalFilePath();
    const QString stores[] = {Sent_Item_Path, Templates_Path};
    return !there.isEmpty() && std::any_of(std::begin(stores), std::end(stores), [&](const QString& store) {
        return QFileInfo(store).canonicalFilePath() == there;
    });
}

} // namespace

bool Write_Export(const QString& path, const Export_Content& content)
{
    if (!Remove_File(path) && Leads_To_A_Store(path))
        return false;
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
    } catch (const std::exception&) { // mostly for lack of memory for a piece
        return false;
    }
}
