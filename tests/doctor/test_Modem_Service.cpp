#include "doctor/Modem_Service.h"

#include "doctor/Doctor_Report.h"
#include "doctor/Fake_System.h"
#include "doctor/Port_Doctor.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "support/Private_Bus.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusMetaType>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QRegularExpression>
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

// Percent, and whether it is of late.
struct Told_Signal
{
    uint percent = 0;
    bool is_of_late = false;
};
Q_DECLARE_METATYPE(Told_Signal)

inline QDBusArgument& operator<<(QDBusArgument& argument, const Told_Signal& signal)
{
    argument.beginStructure();
    argument << signal.percent << signal.is_of_late;
    argument.endStructure();
    return argument;
}

inline const QDBusArgument& operator>>(const QDBusArgument& argument, Told_Signal& signal)
{
    argument.beginStructure();
    argument >> signal.percent >> signal.is_of_late;
    argument.endStructure();
    return argument;
}

using Told_Tries = QMap<uint, uint>;
Q_DECLARE_METATYPE(Told_Tries)

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
        qDBusRegisterMetaType<Told_Signal>();
        qDBusRegisterMetaType<Told_Tries>();
        qDBusRegisterMetaType<Told_Interfaces>();
        qDBusRegisterMetaType<Told_Objects>();
        m_system.roots.bus = m_bus.Address();
        m_system.Add_Process(50, "ModemManager");
    }
    ~Modem_Service_Test() override { QDBusConnection::disconnectFromBus("the service"); }

    void Start_Service()
    {
        auto bus = QDBusConnection::connectToBus(m_system.roots.bus, "the service");
        ASSERT_TRUE(bus.registerVirtualObject("/org/freedesktop/ModemManager1", &m_service));
        ASSERT_TRUE(bus.registerService("org.freedesktop.ModemManager1"));
    }

    void Has(const QString& path, const QList<Told_Port>& ports, const QVariantMap& modem = {},
             const QVariantMap& network = {})
    {
        QVariantMap values{{"Ports", QVariant::fromValue(ports)}, {"Manufacturer", "Quectel"}, {"Model", "EC25"}};
        values.insert(modem);
        m_service.m_objects[QDBusObjectPath(path)] = {{"org.freedesktop.ModemManager1.Modem", values},
                                                      {"org.freedesktop.ModemManager1.Modem.Modem3gpp", network},
                                                      {"org.freedesktop.ModemManager1.Modem.Messaging", {}}};
    }

    QList<Finding> Look(const QStringList& paths = {}) const
    {
        QList<Finding> findings;
        Port_Doctor::Wishes wishes;
        wishes.paths = paths;
        wishes.roots = m_system.roots;
        wishes.asks_devices = false;
        wishes.on_finding = [&](const Finding& finding) { findings.append(finding); };
        Run_On_Worker([&] { EXPECT_TRUE(Port_Doctor(wishes, m_finder).Look().isEmpty()); });
        return findings;
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
    Private_Bus m_bus;
    A_Service m_service;

private:
    class Finds_Nothing : public Port_Finder
    {
    public:
        int Find_Ports(Modem_Iterator& iterator) const override
        {
            iterator = Modem_Iterator(QList<Modem_Entry>());
            return 0;
        }
    } m_finder;
};

std::string Marks(const QList<Finding>& findings)
{
    QStringList marks;
    for (const Finding& finding : findings)
        marks.append(Code_Of(finding.check) + ':' + Code_Of(finding.mark));
    return marks.join(' ').toStdString();
}

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
    const auto findings = Look({m_system.Add({})});
    ASSERT_FALSE(findings.isEmpty());
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

TEST_F(Modem_Service_Test, A_Bus_That_Hangs_Is_Left_Alone_After_Two_Seconds)
{
    Start_Service();
    m_bus.Hang();
    const double begin = Now_Seconds();
    EXPECT_TRUE(Ports().isEmpty());
    EXPECT_LT(Now_Seconds() - begin, 10) << "the library's own end is after 25";
}

TEST_F(Modem_Service_Test, A_Modem_With_Several_Ports_Is_Told_About_Once)
{
    Start_Service();
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"ttyUSB0", 3}, {"ttyUSB1", 3}}, {{"UnlockRequired", 1U}},
        {{"RegistrationState", 1U}});
    EXPECT_EQ(Marks(Look({m_system.Add({}), m_system.Add({.name = "ttyUSB1"})})),
              "holder:bad card:good network:good signal:note messages:good holder:bad");
}

// ------------------------------------------------------------------------------------------------ mobile data ports

TEST_F(Modem_Service_Test, A_Built_In_Modem_Is_Named_By_What_Its_Ports_Speak_And_What_The_Service_Says)
{
    Start_Service();
    m_system.Add_Wwan("wwan0", "");
    m_system.Add_Wwan("wwan0mbim0", "MBIM");
    EXPECT_EQ(Marks(Look()), "port:note");
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"wwan0", 2}, {"wwan0mbim0", 7}}, {{"UnlockRequired", 2U}});
    m_system.Add_Wwan("wwan0at0", "AT");
    m_system.Add_Wwan("wwan0qcdm0", "QCDM");
    const auto findings = Look();
    QStringList sentences;
    for (const Finding& finding : findings)
        if (finding.check == Finding::Check::Port)
            sentences.append(QString(finding.sentence).replace(m_system.Path("dev"), "/dev"));
    EXPECT_EQ(sentences, QStringList({"/dev/wwan0at0 takes AT commands, but is no serial port.",
                                      "Quectel EC25 (/dev/wwan0mbim0) speaks QMI or MBIM, and no AT commands.",
                                      "/dev/wwan0qcdm0 is for the maker's diagnostics, not for messages."}))
        << sentences.join('\n').toStdString();
    EXPECT_EQ(Marks(findings), "port:note port:note card:bad port:note");
    for (const Finding& finding : findings)
        EXPECT_FALSE(finding.remedy.isEmpty());
}

TEST_F(Modem_Service_Test, A_Port_That_Speaks_No_At_Is_Not_Opened_Though_Somebody_Names_It)
{
    m_system.Add_Wwan("wwan0qmi0", "QMI");
    EXPECT_EQ(Marks(Look({m_system.Node("wwan0qmi0")})), "port:note");
}

// ------------------------------------------------------------------------------------------------ what it says

struct Told_State
{
    const char* name;
    QVariantMap modem;
    QVariantMap network;
    const char* marks;    ///< behind the holder's
    const char* sentence; ///< a part of one
};

void PrintTo(const Told_State& state, std::ostream* out)
{
    *out << state.name;
}

class Modem_Of_The_Service : public Modem_Service_Test, public testing::WithParamInterface<Told_State>
{
};

TEST_P(Modem_Of_The_Service, Has_Its_State_Told_Without_Being_Asked)
{
    Start_Service();
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"ttyUSB0", 3}}, GetParam().modem, GetParam().network);
    const auto findings = Look({m_system.Add({})});
    EXPECT_EQ(Marks(findings), std::string("holder:bad ") + GetParam().marks);
    QStringList sentences;
    for (const Finding& finding : findings) {
        sentences.append(finding.sentence);
        EXPECT_EQ(finding.remedy.isEmpty(), finding.mark == Finding::Mark::Good) << finding.sentence.toStdString();
    }
    EXPECT_TRUE(sentences.join('\n').contains(GetParam().sentence)) << sentences.join('\n').toStdString();
    EXPECT_EQ(m_service.m_questions, 1) << "properties alone";
}

const QVariant Strong = QVariant::fromValue(Told_Signal{71, true});
const QVariant Tries = QVariant::fromValue(Told_Tries{{2, 3}, {4, 9}});

INSTANTIATE_TEST_SUITE_P(
    Every, Modem_Of_The_Service,
    testing::Values(
        Told_State{"Ready",
                   {{"State", 8}, {"UnlockRequired", 1U}, {"SignalQuality", Strong}},
                   {{"RegistrationState", 1U}},
                   "card:good network:good signal:good messages:good",
                   "strong enough (71 %)"},
        Told_State{
            "Weak_Abroad",
            {{"State", 8}, {"UnlockRequired", 3U}, {"SignalQuality", QVariant::fromValue(Told_Signal{15, true})}},
            {{"RegistrationState", 5U}},
            "card:good network:note signal:note messages:good",
            "weak (15 %)"},
        Told_State{"Denied",
                   {{"State", 7}, {"UnlockRequired", 1U}, {"SignalQuality", QVariant::fromValue(Told_Signal{})}},
                   {{"RegistrationState", 3U}},
                   "card:good network:bad signal:note messages:good",
                   "does not accept"},
        Told_State{"Pin",
                   {{"State", 2}, {"UnlockRequired", 2U}, {"UnlockRetries", Tries}},
                   {},
                   "card:bad",
                   "wants its PIN. Tries left: 3."},
        Told_State{"Puk",
                   {{"State", 2}, {"UnlockRequired", 4U}, {"UnlockRetries", Tries}},
                   {},
                   "card:bad",
                   "PUK. Tries left: 9."},
        Told_State{"Puk_Without_Tries", {{"State", 2}, {"UnlockRequired", 4U}}, {}, "card:bad", "wants its PUK."},
        Told_State{"Locked", {{"State", 2}, {"UnlockRequired", 8U}}, {}, "card:bad", "wants a code"},
        Told_State{"No_Card", {{"State", -1}, {"StateFailedReason", 2U}}, {}, "card:bad", "no SIM card"},
        Told_State{"Broken_Card", {{"State", -1}, {"StateFailedReason", 3U}}, {}, "card:bad", "cannot be read"},
        Told_State{"Beginning", {{"State", 1}, {"UnlockRequired", 0U}}, {}, "card:bad", "still being read"},
        Told_State{"Other_Shapes",
                   {{"State", "8"},
                    {"UnlockRequired", QStringList{"1"}},
                    {"UnlockRetries", Strong},
                    {"SignalQuality", Tries},
                    {"Manufacturer", 5}},
                   {{"RegistrationState", "1"}},
                   "card:note network:note signal:note messages:good",
                   "does not say whether its SIM card"},
        Told_State{"Numbers_Out_Of_Bounds",
                   {{"State", 2},
                    {"UnlockRequired", 2U},
                    {"UnlockRetries", QVariant::fromValue(Told_Tries{{2, 4'000'000'000U}})},
                    {"SignalQuality", QVariant::fromValue(Told_Signal{4'000'000'000U, true})}},
                   {{"RegistrationState", 4'000'000'000U}},
                   "card:bad",
                   "wants its PIN."}),
    [](const auto& one) { return std::string(one.param.name); });

// Numbers and texts wherever the service and the system tell any, in places that are read and in others.
TEST_F(Modem_Service_Test, No_Number_And_No_Text_That_It_Tells_Gets_Into_The_Report)
{
    Start_Service();
    Has("/org/freedesktop/ModemManager1/Modem/0", {{"ttyUSB0", 3}, {"wwan0mbim0", 7}},
        {{"State", 8},
         {"UnlockRequired", 1U},
         {"Manufacturer", "Canary +44 7700 900-101"},
         {"Model", "490154203237518 of 0049 170 1234567"},
         {"Revision", "Canary-Revision"},
         {"EquipmentIdentifier", "490154203237518"},
         {"DeviceIdentifier", "deadbeefcafe4444777700090010"},
         {"Device", "/sys/devices/447700900101"},
         {"OwnNumbers", QStringList{"+447700900101"}}},
        {{"RegistrationState", 1U},
         {"OperatorName", "Secret 447700900102"},
         {"OperatorCode", "26207123456"},
         {"Imei", "490154203237518"}});
    m_service.m_objects[QDBusObjectPath("/org/freedesktop/ModemManager1/SMS/0")] = {
        {"org.freedesktop.ModemManager1.Sms",
         {{"Number", "+447700900103"}, {"Text", "Secret meeting"}, {"SMSC", "+447785016005"}}}};
    m_system.Add_Wwan("wwan0mbim0", "MBIM");
    m_system.Add_Process(447700900, "447700900104");
    const auto findings = Look() + Look({m_system.Add({.vendor = "2c7c",
                                                       .product = "0125",
                                                       .maker_name = "447700900105",
                                                       .product_name = "SN 0123456789 of +44.7700.900106",
                                                       .udev = "E:ID_SERIAL_SHORT=490154203237518\n"})});
    EXPECT_GE(findings.size(), 7);
    QString report = Doctor_Report(findings);
    report.remove(m_system.Path("dev"));
    EXPECT_TRUE(report.contains("(number left out)"));
    EXPECT_EQ(QRegularExpression("[0-9]{4,}|77|Secret|beef|4901").match(report).captured(), "") << report.toStdString();
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
