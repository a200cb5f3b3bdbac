#include "doctor/Wwan_Ports.h"

#include "doctor/Small_Files.h"

#include <QDir>

namespace {

// "AT", "QMI", "MBIM" and others, in the kernel's words. The modem itself is listed as well, and has none.
QString Type_Of(const QString& name, const System_Roots& roots)
{
    return Name_In_File(roots.sys + QStringLiteral("/class/wwan/") + name + QStringLiteral("/type"));
}

} // namespace

QStringList Wwan_Ports(const System_Roots& roots)
{
    QStringList paths;
    const QDir folder(roots.sys + QStringLiteral("/class/wwan"));
    for (const QString& name : folder.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name))
        if (!Type_Of(name, roots).isEmpty())
            paths.append(roots.devices + u'/' + name);
    return paths;
}

Port_Use Use_Of_Wwan_Port(const QString& name, const System_Roots& roots)
{
    const QString type = Type_Of(name, roots);
    if (type.isEmpty())
        return Port_Use::Unknown;
    if (type == u"AT")
        return Port_Use::Commands;
    return type == u"QMI" || type == u"MBIM" ? Port_Use::Packets : Port_Use::Diagnostics;
}
