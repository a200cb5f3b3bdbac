#include "doctor/Port_Facts.h"

#include "device/Device_Paths.h"
#include "doctor/Small_Files.h"
#include "doctor/Wwan_Ports.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <algorithm>

namespace {

// What the device manager's record of a port says: "E:NAME=value" and "S:link".
struct Record
{
    QHash<QByteArray, QByteArray> values;
    QString link_by_id;
};

Record Record_Of(const QString& name, const System_Roots& roots)
{
    Record record;
    const QString number = Name_In_File(roots.sys + QStringLiteral("/class/tty/") + name + QStringLiteral("/dev"));
    if (number.isEmpty())
        return record;
    const auto lines = Small_File(roots.udev + QStringLiteral("/c") + number).split('\n');
    for (const QByteArray& line : lines) {
        const qsizetype equals = line.indexOf('=');
        if (line.startsWith("E:") && equals > 0)
            record.values.insert(line.mid(2, equals - 2), line.mid(equals + 1));
        else if (line.startsWith("S:serial/by-id/"))
            record.link_by_id = roots.devices + u'/' + QString::fromUtf8(line.mid(2));
    }
    return record;
}

// The system's own hints, where its modem service is installed.
Port_Use Use_In_Record(const Record& record)
{
    struct Hint
    {
        const char* name;
        Port_Use use;
    };
    for (const Hint& hint :
         {Hint{"ID_MM_DEVICE_IGNORE", Port_Use::Left_Alone}, Hint{"ID_MM_PORT_IGNORE", Port_Use::Left_Alone},
          Hint{"ID_MM_PORT_TYPE_AT_PRIMARY", Port_Use::Commands},
          Hint{"ID_MM_PORT_TYPE_AT_SECONDARY", Port_Use::Second_Commands},
          Hint{"ID_MM_PORT_TYPE_AT_PPP", Port_Use::Calls}, Hint{"ID_MM_PORT_TYPE_GPS", Port_Use::Positions},
          Hint{"ID_MM_PORT_TYPE_QCDM", Port_Use::Diagnostics}, Hint{"ID_MM_PORT_TYPE_AUDIO", Port_Use::Sound}})
        if (record.values.value(hint.name) == "1")
            return hint.use;
    return Port_Use::Unknown;
}

// The folder or the nearest one above it, within the tree, in which there is a file of this name.
QString Folder_With(const QString& file, const QString& folder, const QString& tree)
{
    for (QString at = folder; at.startsWith(tree + u'/'); at = QFileInfo(at).path())
        if (QFileInfo::exists(at + u'/' + file))
            return at;
    return {};
}

int Hexadecimal_In(const QString& path)
{
    bool is_number = false;
    const int number = Name_In_File(path).toInt(&is_number, 16);
    return is_number ? number : -1;
}

Usb_Interface Interface_In(const QString& interface, const QString& device)
{
    return {Hexadecimal_In(device + QStringLiteral("/idVendor")),
            Hexadecimal_In(device + QStringLiteral("/idProduct")),
            Hexadecimal_In(interface + QStringLiteral("/bInterfaceNumber")),
            Hexadecimal_In(interface + QStringLiteral("/bInterfaceClass")),
            Hexadecimal_In(interface + QStringLiteral("/bInterfaceSubClass")),
            Hexadecimal_In(interface + QStringLiteral("/bInterfaceProtocol"))};
}

QString First_Name(const QString& name, const Record& record, const char* in_record)
{
    return name.isEmpty() ? Shown_Name(QString::fromUtf8(record.values.value(in_record))) : name;
}

void Read_Usb(Port_Facts& facts, const Record& record, const QString& folder, const QString& tree)
{
    facts.device = Folder_With(QStringLiteral("idVendor"), folder, tree);
    if (facts.device.isEmpty())
        return;
    const QString interface = Folder_With(QStringLiteral("bInterfaceNumber"), folder, tree);
    const Usb_Interface described = Interface_In(interface, facts.device);
    facts.place = Port_Facts::Place::Usb;
    facts.interface = described.number;
    facts.driver = QFileInfo(QFileInfo(interface + QStringLiteral("/driver")).canonicalFilePath()).fileName();
    facts.maker =
        First_Name(Name_In_File(facts.device + QStringLiteral("/manufacturer")), record, "ID_VENDOR_FROM_DATABASE");
    facts.product =
        First_Name(Name_In_File(facts.device + QStringLiteral("/product")), record, "ID_MODEL_FROM_DATABASE");
    if (facts.use == Port_Use::Unknown)
        facts.use = Use_Of_Interface(described);
}

Port_Facts::Place Place_Without_Usb(const QString& name, const QString& folder)
{
    if (name.startsWith(QLatin1String("rfcomm")))
        return Port_Facts::Place::Bluetooth;
    return folder.isEmpty() && !name.startsWith(QLatin1String("ttyS")) ? Port_Facts::Place::Elsewhere
                                                                       : Port_Facts::Place::Mainboard;
}

int Rank(const Port_Facts& facts)
{
    constexpr int Behind_All = 100;
    constexpr int Places_Apart = 10;
    if (!May_Take_Commands(facts.use))
        return Behind_All;
    return Places_Apart * static_cast<int>(facts.place) + static_cast<int>(facts.use);
}

} // namespace

QString Port_Facts::Label() const
{
    if (product.startsWith(maker, Qt::CaseInsensitive))
        return product;
    return maker + (maker.isEmpty() || product.isEmpty() ? QString() : QStringLiteral(" ")) + product;
}

QString Port_Facts::Name() const
{
    const QString label = Label();
    return label.isEmpty() ? Short_Path(path) : label + QStringLiteral(" (") + Short_Path(path) + u')';
}

Port_Facts Facts_Of_Port(const QString& path, const System_Roots& roots)
{
    Port_Facts facts;
    facts.path = path;
    facts.node = QFileInfo(path).canonicalFilePath();
    if (facts.node.isEmpty())
        facts.node = path;
    const QString name = QFileInfo(facts.node).fileName();
    const QString tree = QFileInfo(roots.sys).canonicalFilePath();
    const QString folder =
        QFileInfo(roots.sys + QStringLiteral("/class/tty/") + name + QStringLiteral("/device")).canonicalFilePath();
    const Record record = Record_Of(name, roots);
    facts.lasting_path = record.link_by_id.isEmpty()
                             ? Lasting_Device_Path(path, roots.devices + QStringLiteral("/serial/by-id"))
                             : record.link_by_id;
    facts.use = Use_In_Record(record);
    facts.place = Place_Without_Usb(name, folder);
    if (facts.use == Port_Use::Unknown)
        facts.use = Use_Of_Wwan_Port(name, roots);
    if (!folder.isEmpty() && !tree.isEmpty())
        Read_Usb(facts, record, folder, tree);
    return facts;
}

QList<Port_Facts> Facts_In_Order(const QStringList& paths, const System_Roots& roots)
{
    QList<Port_Facts> ports;
    for (const QString& path : paths)
        ports.append(Facts_Of_Port(path, roots));
    std::stable_sort(ports.begin(), ports.end(),
                     [](const Port_Facts& one, const Port_Facts& other) { return Rank(one) < Rank(other); });
    return ports;
}
