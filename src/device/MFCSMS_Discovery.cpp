#include "device/Device_Log.h"
#include "device/MFCSMS.h"
#include "platform/Log_Line.h"

#include <QFile>
#include <cerrno>

namespace {

constexpr int No_Modem_Found = 5;

// Whether the path and its zero byte fit.
bool Fits(const QByteArray& path, int room)
{
    return path.size() < room;
}

} // namespace

int MFCSMS::FindModems(Modem_Iterator& iterator)
{
    if (!m_finder.Can_Ask())
        Show_NSLog_Message(QString());
    const int status = m_finder.Find_Ports(iterator);
    if (status != 0)
        Log_Number(QStringLiteral("IOServiceGetMatchingServices returned"), status);
    return status;
}

int MFCSMS::GetModemPath(Modem_Iterator& iterator, QString& bsdPath, int maxPathSize, Found_Port_List& list)
{
    bsdPath.clear();
    int result = No_Modem_Found;
    while (const auto entry = iterator.Next()) {
        if (!entry->m_callout_path)
            continue;
        const QByteArray& path = *entry->m_callout_path;
        if (!Fits(path, maxPathSize)) {
            Show_NSLog_Message(QLatin1String("error CFStringGetCString: ") + Error_And_Number(ENAMETOOLONG) +
                               QLatin1Char('\n'));
            continue;
        }
        bsdPath = QFile::decodeName(path);
        const int descriptor = OpenSerialPort(path);
        if (descriptor == -1)
            continue;
        CloseSerialPort(descriptor);
        list.Insert_port_in_List(bsdPath);
        Show_NSLog_Message(QLatin1String("Modem found with BSD path: ") + bsdPath + QLatin1Char('\n'));
        result = 0;
    }
    return result;
}
