#include "send/Input_Files.h"

#include "list/Number_File.h"
#include "list/Table_File.h"
#include "platform/Descriptor.h"
#include "platform/Rich_Text.h"
#include "platform/Text_Files.h"
#include "platform/Waiting.h"

#include <QFileInfo>
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <optional>
#include <poll.h>
#include <unistd.h>

namespace {

constexpr char Standard_Input[] = "standard input";

Trouble Unreadable(const QString& name, const QString& why)
{
    return {name + QLatin1String(" cannot be read"), why};
}

QString Why_Unreadable(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists())
        return QStringLiteral("there is no such file");
    if (!file.isFile())
        return QStringLiteral("it is no file");
    if (!file.isReadable())
        return QStringLiteral("this account may not");
    return QStringLiteral("it is larger than %1 bytes, or the system fails").arg(Largest_Number_File);
}

// Nothing when the program is asked to stop or the system fails; errno says which.
std::optional<QByteArray> Read_Standard_Input()
{
    QByteArray bytes;
    std::array<char, 65536> piece;
    for (;;) {
        if (Wait_For_Descriptor(STDIN_FILENO, POLLIN, -1) == Line_Event::Timed_Out) {
            errno = ECANCELED;
            return std::nullopt;
        }
        const ssize_t count = Uninterrupted([&] { return read(STDIN_FILENO, piece.data(), piece.size()); });
        if (count == 0)
            return bytes;
        if (count < 0)
            return std::nullopt;
        bytes.append(piece.data(), count);
        if (bytes.size() > Largest_Number_File) {
            errno = EFBIG;
            return std::nullopt;
        }
    }
}

Trouble No_Text(const QString& name)
{
    return Unreadable(name, QStringLiteral("it is neither UTF-8 nor rich text"));
}

Input_Text Text_Of(const QString& name, const QByteArray& bytes)
{
    Input_Text input;
    if (!Is_Rich_Text_Path(name))
        if (const QString why = Why_No_Plain_Text(bytes); !why.isEmpty())
            return {{}, Unreadable(name, why)};
    input.text = Text_Of_Number_File(name, bytes);
    if (input.text.isEmpty() && !bytes.isEmpty())
        input.trouble = No_Text(name);
    return input;
}

} // namespace

Input_Text Read_Numbers_File(const QString& path)
{
    if (path == QLatin1String("-")) {
        const auto bytes = Read_Standard_Input();
        if (!bytes)
            return {{}, Unreadable(QLatin1String(Standard_Input), QString::fromLocal8Bit(std::strerror(errno)))};
        return Text_Of(QLatin1String(Standard_Input), *bytes);
    }
    const QFileInfo file(path);
    const auto bytes = Bytes_Of_Number_File(path);
    if (!bytes || (bytes->isEmpty() && (!file.isFile() || file.size() > 0)))
        return {{}, Unreadable(path, Why_Unreadable(path))};
    return Text_Of(path, *bytes);
}

Input_Text Read_Message_File(const QString& path)
{
    const auto bytes = Read_File(path);
    if (!bytes)
        return {{}, Unreadable(path, Why_Unreadable(path))};
    auto text = Decode_Utf8(*bytes);
    if (!text)
        return {{}, Unreadable(path, QStringLiteral("it is no UTF-8"))};
    if (text->startsWith(QChar(QChar::ByteOrderMark)))
        text->remove(0, 1);
    if (text->endsWith(u'\n'))
        text->chop(1);
    if (text->endsWith(u'\r'))
        text->chop(1);
    return {*text, {}};
}

bool Is_Blank_Line(QStringView line)
{
    constexpr QStringView passed_over = u"\\{}-";
    return std::all_of(line.begin(), line.end(), [&](QChar character) {
        return character.isSpace() || character.isNull() || passed_over.contains(character);
    });
}
