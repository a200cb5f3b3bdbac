#include "app/Contact_Export.h"

#include "platform/Text_Files.h"

#include <algorithm>
#include <optional>

namespace {

constexpr int Numbers_In_Piece = 4096;

QByteArray Banner()
{
    const QByteArray rule(76, '=');
    return rule + "\n\n\t\t\t[ Corvane - Contact List ]\t\t\t\n\n" + rule + "\n";
}

} // namespace

bool Write_Contact_List(const QString& path, const Recipient_List& list)
{
    Remove_File(path);
    bool has_banner = false;
    int next = 0;
    return Write_File_In_Pieces(path, [&]() -> std::optional<QByteArray> {
        if (!has_banner) {
            has_banner = true;
            return Banner();
        }
        if (next >= list.Count())
            return std::nullopt;
        QByteArray piece;
        for (const int end = std::min(next + Numbers_In_Piece, list.Count()); next < end; ++next)
            piece += list.At(next).Number.toUtf8() + '\n';
        return piece;
    });
}
