#include "doctor/Device_Modes.h"

#include "doctor/Port_Facts.h"
#include "doctor/Small_Files.h"

#include <QDir>
#include <algorithm>
#include <iterator>

namespace {

using Mode = Device_In_Another_Mode::Mode;

struct Row
{
    const char* numbers;
    Mode mode;
    const char* maker;
};

constexpr Row Rows[] = {
    {"12d1:14db", Mode::Network_Card, "Huawei"}, {"12d1:14dc", Mode::Network_Card, "Huawei"},
    {"12d1:1f01", Mode::Storage, "Huawei"},      {"12d1:14fe", Mode::Storage, "Huawei"},
    {"12d1:1446", Mode::Storage, "Huawei"},      {"19d2:2000", Mode::Storage, "ZTE"},
};

} // namespace

QList<Device_In_Another_Mode> Devices_In_Another_Mode(const System_Roots& roots)
{
    QList<Device_In_Another_Mode> found;
    const QDir devices(roots.sys + QStringLiteral("/bus/usb/devices"));
    for (const QString& name : devices.entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name)) {
        const QString folder = devices.filePath(name);
        const QString numbers = Name_In_File(folder + QStringLiteral("/idVendor")) + u':' +
                                Name_In_File(folder + QStringLiteral("/idProduct"));
        const auto* row = std::find_if(std::begin(Rows), std::end(Rows),
                                       [&](const Row& each) { return numbers == QLatin1String(each.numbers); });
        if (row == std::end(Rows))
            continue;
        Port_Facts names;
        names.maker = Name_In_File(folder + QStringLiteral("/manufacturer"));
        names.product = Name_In_File(folder + QStringLiteral("/product"));
        const QString label = names.Label().isEmpty() ? QString::fromLatin1(row->maker) : names.Label();
        found.append({row->mode, label + QStringLiteral(" (") + numbers + u')'});
    }
    return found;
}
