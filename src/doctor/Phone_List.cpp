#include "doctor/Phone_List.h"

#include "platform/String_Helpers.h"

#include <QFileInfo>

bool Phone_List::Create_Port_List(const QString& name, const QString& Port_Det, const QString& Port_stat,
                                  const QString& Port_IMEI)
{
    const QString trimmed_name = Trim_Str(name);
    if (trimmed_name.isEmpty())
        return false;
    m_rows.push_back({{QStringLiteral("COM_PORT"), trimmed_name},
                      {QStringLiteral("PORT_DETAL"), Port_Det},
                      {QStringLiteral("PORT_STATUS"), Port_stat},
                      {QStringLiteral("IMEI"), Port_IMEI}});
    return true;
}

QString Phone_List::Value(const QString& identifier, int row) const
{
    return row >= 0 && row < Count() ? m_rows[static_cast<std::size_t>(row)].value(identifier) : QString();
}

QString Phone_List::Display_Name(const QString& path)
{
    // Eight characters are the length of the device directory and the prefix of a call-out device: "/dev/cu.".
    constexpr int Prefix_Length = 8;
    QString name;
    if (path.startsWith(QStringLiteral("/dev/")))
        name = Trim_Str(Read_Str_FromIndex(path, Prefix_Length));
    return name.isEmpty() ? QFileInfo(path).fileName() : name;
}
