#include "list/Number_File.h"

#include "list/Number_Rules.h"
#include "platform/Rich_Text.h"
#include "platform/Text_Files.h"

#include <QFileInfo>

namespace {

// The number on a line in its usual form: digits, perhaps with a leading "+" and with "-" between them. Nothing when
// the line holds anything else, which is for the rules to judge.
std::optional<Packed_Number> Number_In_Plain_Line(QStringView line)
{
    Packed_Number number;
    bool fits = true;
    for (const QChar character : line.endsWith(u'\r') ? line.chopped(1) : line) {
        if (character >= u'0' && character <= u'9')
            fits = fits && number.Add_Digit(character.unicode());
        else if (character == u'+' && number.Is_Empty())
            fits = number.Add_Digit(u'0') && number.Add_Digit(u'0');
        else if (character != u'-')
            return std::nullopt;
    }
    return fits ? number : Packed_Number();
}

bool Is_Passed_Over(QChar character)
{
    return character == u'\\' || character == u'{' || character == u'}' || character == u'-';
}

} // namespace

std::optional<QByteArray> Bytes_Of_Number_File(const QString& path, qint64 largest)
{
    const QFileInfo file(path);
    if (file.exists() && !file.isFile())
        return QByteArray();
    if (file.size() > largest && file.isReadable())
        return QByteArray();
    return Read_File(path);
}

QString Text_Of_Number_File(const QString& path)
{
    return Text_Of_Number_File(path, Bytes_Of_Number_File(path).value_or(QByteArray()));
}

QString Text_Of_Number_File(const QString& path, const QByteArray& bytes)
{
    QString text = Is_Rich_Text_Path(path) ? Plain_Text_Of_Rich_Text(bytes) : Decode_Utf8(bytes).value_or(QString());
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    return text;
}

Packed_Number Number_In_Line(QStringView line)
{
    if (const auto number = Number_In_Plain_Line(line))
        return *number;
    QString kept;
    for (const QChar character : line) {
        if (Is_Passed_Over(character))
            continue;
        if (kept.size() <= Number_Rules::Longest_Number && !(kept.isEmpty() && character.isSpace()))
            kept += character;
        else if (!character.isSpace())
            return {}; // longer than any number, however it is trimmed
    }
    return Packed_Number::Of(Number_Rules::Normalised_Number(kept)).value_or(Packed_Number());
}
