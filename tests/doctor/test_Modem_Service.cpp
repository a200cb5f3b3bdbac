#include "doctor/Modem_Service.h"

#include "doctor/Fake_System.h"
#include "doctor/Port_Doctor.h"
#include "platform/Interface_Thread.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QProcess>
#include <gmock/gmock.h>

// What ModemManager says about a port: its name and kind.
struct Told_Port
{
    QString name;
    uint kind = 0;
};
Q_DECLARE_METATYPE(Told_Port)

inline QDBusArgument& operator<<(QDBusArgument& argument, const Told_Port& port)
{
    argument.beginStructure();
    argument << port.name << port.kind;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, Told_Port& port)
{
    argument.beginStructure();
    argument >> port.name >> port.kind;
    argument.endStructure();
    return argument;
}

using Told_Interfaces = QMap<QString, QVariantMap>;
using Told_Objects = QMap<QDBusObjectPath, Told_Interfaces>;
Q_DECLARE_METATYPE(Told_Interfaces)
Q_DECLARE_METATYPE(Told_Objects)

namespace {

enum class Manner
{
    Tells,
    Tells_Something_Else,
    Refuses,
    Is_Silent
};

// The service as far as it is asked here.
class A_Service : public QDBusVirtualObject
{
public:
    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override
    {
        if (message.member() != "GetManagedObjects")
            return false;
        ++m_questions;
        switch (m_manner) {
        case Manner::Tells:
            return connection.send(message.createReply(QVariant::fromValue(m_objects)));
        case Manner::Tells_Something_Else:
            return connection.send(message.createReply(QStringList{"ttyUSB2"}));
        case Manner::Refuses:
            return connection.send(message.createErrorReply(QDBusError::AccessDenied, "no"));
        case Manner::Is_Silent:
            break;
        }
        return true;
    }

    Manner m_manner = Manner::Tells;
    Told_Objects m_objects;
    int m_questions = 0;
};

class Modem_Service_Test : public testing::Test
{
protected:
    Modem_Service_Test()
    {
        qDBusRegisterMetaType<Told_Port>();
        qDBusRegisterMetaType<QList<Told_Port>>();
        qDBusRegisterMetaType<Told_Interfaces>();
        qDBusRegisterMetaType<Told_Objects>();
        m_bus.start("dbus-daemon", {"--session", "--nofork", "--nopidfile", "--print-address"});
        EXPECT_TRUE(m_bus.waitForReadyRead(20'000)) << m_bus.errorString().toStdString();
        m_system.roots.bus = QString::fromUtf8(m_bus.readLine()).trimmed();
        m_system.Add_Process(50, "ModemManager");
    }
    ~Modem_Service_Test() override
    {
        QDBusConnection::disconnectFromBus("the service");
        m_bus.kill();
        m_bus.waitForFinished();
    }

    void Start_Service()
    {
        auto bus = QDBusConnection::connectToBus(m_system.roots.bus, "the service");
        ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/ModemManager1", &m_service));
        ASSERT_TRUE(bus.registerService("org.freedesktop.ModemManager1"));
    }

    void Has(const QString& path, const QList<Told_Port>& ports)
    {
        m_service.m_objects[QDBusObjectPath(path)] = {
            {"org.freedesktop.ModemManager1.Modem", {{"Ports", QVariant::fromValue(ports)}, {"Model", "EC25"}}},
            {"org.freedesktop.ModemManager1.Modem.Messaging", {}}};
    }

    QList<QStringList> Ports() const
    {
        QList<Service_Modem> modems;
        Run_On_Worker([&] { modems = Modems_Of_The_Service(m_system.roots); });
        QList<QStringList> ports;
        for (const Service_Modem& modem : modems)
            ports.append(modem.ports);
        return ports;
    }

    Fake_System m_system;
    QProcess m_bus;
    A_Service m_service;
};

TEST_F(Modem_Service_Test, The_Ports_Of_Every_Modem_Are_Told)
{
    Start_Service();
    EXPECT_TRUE(Ports().isEmpty());
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"ttyUSB2", 3}, {"ttyUSB3", 3}, {"wwan0", 2}});
    Has("/org/freedesktop/ModemManager1/Modem/1", {});
    EXPECT_EQ(Ports(), QList<QStringList>({{"ttyUSB2", "ttyUSB3", "wwan0"}, {}}));
    EXPECT_EQ(m_service.m_questions, 2);
}

TEST_F(Modem_Service_Test, A_Port_That_It_Has_Is_Said_To_Be_In_Use_With_The_Command_That_Helps)
{
    Start_Service();
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"ttyUSB0", 3}});
    const QString path = m_system.Add({});
    QList<Finding> findings;
    Port_Doctor::Wishes wishes;
    wishes.paths = {path};
    wishes.roots = m_system.roots;
    wishes.on_finding = [&](const Finding& finding) { findings.append(finding); };
    Run_On_Worker([&] { EXPECT_TRUE(Port_Doctor(wishes).Look().isEmpty()); });
    ASSERT_EQ(findings.size(), 1);
    EXPECT_EQ(findings[0].check, Finding::Check::Holder);
    EXPECT_TRUE(findings[0].sentence.contains("ModemManager"));
    EXPECT_EQ(findings[0].command, "sudo systemctl stop ModemManager");
}

TEST_F(Modem_Service_Test, Anything_Else_Than_An_Answer_Means_Nothing_And_Takes_No_Longer_Than_It_Should)
{
    EXPECT_TRUE(Ports().isEmpty()) << "no service on the bus";
    Start_Service();
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"ttyUSB2", 3}});
    for (const Manner manner : {Manner::Tells_Something_Else, Manner::Refuses, Manner::Is_Silent}) {
        m_service.m_manner = manner;
        EXPECT_TRUE(Ports().isEmpty()) << static_cast<int>(manner);
    }
    m_service.m_manner = Manner::Tells;
    EXPECT_EQ(Ports().size(), 1);
    m_service.m_objects[QDBusObjectPath("/x")] = {
        {"org.freedesktop.ModemManager1.Modem", {{"Ports", QStringList{"ttyUSB7"}}}}};
    EXPECT_EQ(Ports(), QList<QStringList>({{"ttyUSB2"}, {}})) << "ports of another shape";
}

TEST_F(Modem_Service_Test, Without_The_Service_Or_A_Bus_Nobody_Is_Asked)
{
    Start_Service();
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"ttyUSB2", 3}});
    ASSERT_TRUE(QDir(m_system.Path("proc/50")).removeRecursively());
    EXPECT_TRUE(Ports().isEmpty());
    EXPECT_EQ(m_service.m_questions, 0);
    m_system.Add_Process(50, "ModemManager");
    for (const char* address : {"unix:path=/nowhere/bus", "nonsense", "tcp:host=,port="}) {
        m_system.roots.bus = address;
        EXPECT_TRUE(Ports().isEmpty()) << address;
    }
}

} // namespace
