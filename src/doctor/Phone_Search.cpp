#include "doctor/Phone_Search.h"

#include "device/MFCSMS.h"
#include "doctor/Port_Facts.h"

#include <QFile>

std::atomic<int> ph_find_thread{0};

namespace {

// The ports that are worth a try come first.
Modem_Iterator In_Order(Modem_Iterator found)
{
    QStringList paths;
    while (const auto entry = found.Next())
        if (entry->m_callout_path)
            paths.append(QFile::decodeName(*entry->m_callout_path));
    QList<Modem_Entry> entries;
    for (const Port_Facts& port : Facts_In_Order(paths))
        entries.append({QFile::encodeName(port.path)});
    return Modem_Iterator(entries);
}

} // namespace

void Search_Phones(MFCSMS& session, Found_Port_List& found)
{
    constexpr int Path_Buffer_Size = 1024;
    Modem_Iterator modems;
    session.FindModems(modems);
    modems = In_Order(modems);
    QString last_path;
    session.GetModemPath(modems, last_path, Path_Buffer_Size, found);
}
