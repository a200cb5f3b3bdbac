#include "exclusion/Number_File.h"

#include "platform/Rich_Text.h"
#include "platform/Text_Files.h"

QString Text_Of_Number_File(const QString& path)
{
    if (Is_Rich_Text_Path(path))
        return Plain_Text_Of_Rich_Text(Read_File(path).value_or(QByteArray()));
    QString text = Read_Utf8_File(path).value_or(QString());
    if (text.startsWith(QChar(QChar::ByteOrderMark)))
        text.remove(0, 1);
    return text;
}
