#include "list/Number_File.h"

#include "platform/Rich_Text.h"
#include "platform/Text_Files.h"

#include <QFileInfo>

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
