#include "doctor/Port_Facts.h"

#include "doctor/Device_Modes.h"
#include "doctor/Fake_System.h"
#include "doctor/Wwan_Ports.h"

#include <gmock/gmock.h>

namespace {

using testing::ElementsAre;
using Use = Port_Use;
using Place = Port_Facts::Place;

struct Case
{
    const char* name;
    Fake_Port port;
    Use use;
    Place place = Place::Usb;
    const char* label = "";
};

void PrintTo(const Case& one, std::ostream* out)
{
    *out << one.name;
}

class Ports : public testing::TestWithParam<Case>
{
};

Fake_Port Usb(const char* vendor, const char* product, const char* interface, const char* classes = "ff/ff/ff")
{
    return {.vendor = vendor, .product = product, .interface = interface, .interface_class = classes};
}

Fake_Port With_Record(Fake_Port port, const QByteArray& record)
{
    port.udev = record;
    return port;
}

Fake_Port Named(Fake_Port port, const char* maker, const char* product)
{
    port.maker_name = maker;
    port.product_name = product;
    return port;
}

} // namespace

TEST_P(Ports, Are_Known_By_What_The_System_Tells)
{
    Fake_System system;
    const QString path = system.Add(GetParam().port);
    const Port_Facts facts = Facts_Of_Port(path, system.roots);
    EXPECT_EQ(facts.use, GetParam().use);
    EXPECT_EQ(facts.place, GetParam().place);
    EXPECT_EQ(facts.Label().toStdString(), GetParam().label);
    EXPECT_EQ(facts.device.isEmpty(), GetParam().port.vendor.isEmpty());
}

INSTANTIATE_TEST_SUITE_P(
    Every, Ports,
    testing::Values(
        Case{"Quectel_Commands", Usb("2c7c", "0125", "02"), Use::Commands},
        Case{"Quectel_Second", Usb("2c7c", "0125", "03"), Use::Second_Commands},
        Case{"Quectel_Diagnostics", Usb("2c7c", "0125", "00"), Use::Diagnostics},
        Case{"Quectel_Positions", Usb("2c7c", "0125", "01"), Use::Positions},
        Case{"Quectel_Other", Usb("2c7c", "0125", "05"), Use::Unknown},
        Case{"Simcom_Commands", Usb("1e0e", "9001", "02"), Use::Commands},
        Case{"Simcom_Sound", Usb("1e0e", "9001", "04"), Use::Sound},
        Case{"Simcom_A7600", Usb("1e0e", "9011", "04"), Use::Commands},
        Case{"Simcom_Old", Usb("1e0e", "9100", "01"), Use::Second_Commands},
        Case{"Simcom_Another", Usb("1e0e", "ffff", "02"), Use::Unknown},
        Case{"Sierra_Commands", Usb("1199", "9071", "03"), Use::Commands},
        Case{"Sierra_Positions", Usb("1199", "9091", "02"), Use::Positions},
        Case{"Sierra_HL7812", Usb("1199", "c001", "00"), Use::Commands},
        Case{"U_Blox", Usb("1546", "1141", "00"), Use::Commands},
        Case{"Lara_R6", Usb("05c6", "908b", "01"), Use::Commands},
        Case{"Huawei_Pcui", Usb("12d1", "1506", "04", "ff/02/02"), Use::Commands},
        Case{"Huawei_Calls", Usb("12d1", "1506", "00", "ff/01/01"), Use::Calls},
        Case{"Huawei_Other", Usb("12d1", "1506", "01", "ff/03/16"), Use::Unknown},
        Case{"Class_Of_Another_Maker", Usb("19d2", "0016", "01", "ff/02/02"), Use::Unknown},
        Case{"Standard_Modem", Usb("0421", "0106", "01", "02/02/01"), Use::Commands},
        Case{"Adapter", Named(Usb("0403", "6001", "00"), "FTDI", "FT232R"), Use::Unknown, Place::Usb, "FTDI FT232R"},
        Case{"Record_Primary", With_Record(Usb("19d2", "0016", "03"), "E:ID_MM_PORT_TYPE_AT_PRIMARY=1\n"),
             Use::Commands},
        Case{"Record_Wins", With_Record(Usb("2c7c", "0125", "02"), "I:1\nE:ID_MM_PORT_TYPE_GPS=1\n"), Use::Positions},
        Case{"Record_Ignored_Device",
             With_Record(Usb("2c7c", "0125", "02"), "E:ID_MM_PORT_TYPE_AT_PRIMARY=1\nE:ID_MM_DEVICE_IGNORE=1\n"),
             Use::Left_Alone},
        Case{"Record_Candidate_Means_Nothing",
             With_Record(Usb("19d2", "0016", "03"), "E:ID_MM_CANDIDATE=1\nE:ID_MM_PORT_IGNORE=0\n=\nE:\n"),
             Use::Unknown},
        Case{"Maker_In_Product", Named(Usb("12d1", "1506", "00"), "HUAWEI", "HUAWEI Mobile"), Use::Unknown, Place::Usb,
             "HUAWEI Mobile"},
        Case{"Names_In_Record", With_Record(Usb("1e0e", "9001", "02"), "E:ID_VENDOR_FROM_DATABASE=Qualcomm / Option\n"),
             Use::Commands, Place::Usb, "Qualcomm / Option"},
        Case{"Names_That_Do_Harm", Named(Usb("0000", "0000", "00"), "\x1b[31mBad\x07", "a\tb"), Use::Unknown,
             Place::Usb, "[31mBad a b"},
        Case{"Mainboard", {.name = "ttyS0"}, Use::Unknown, Place::Mainboard},
        Case{"Another_Socket", {.name = "ttyAMA0"}, Use::Unknown, Place::Mainboard},
        Case{"Bluetooth", {.name = "rfcomm0"}, Use::Unknown, Place::Bluetooth}),
    [](const auto& one) { return std::string(one.param.name); });

TEST(Port_Facts, A_Path_That_The_System_Does_Not_Tell_About_Is_Elsewhere)
{
    const Fake_System system;
    for (const QString path : {"/dev/null", "/nowhere/at/all", "", "/"}) {
        const Port_Facts facts = Facts_Of_Port(path, system.roots);
        EXPECT_EQ(facts.place, Place::Elsewhere) << path.toStdString();
        EXPECT_EQ(facts.Name(), path);
        EXPECT_EQ(facts.lasting_path, path);
    }
}

TEST(Port_Facts, A_Lasting_Name_Comes_From_The_Record_Or_From_The_Links_And_Leads_To_The_Same_Facts)
{
    Fake_System system;
    Fake_Port recorded = Usb("2c7c", "0125", "02");
    recorded.udev = "S:serial/by-path/x\nS:serial/by-id/usb-EC25-if02-port0\n";
    EXPECT_EQ(Facts_Of_Port(system.Add(recorded), system.roots).lasting_path,
              system.Node("serial/by-id/usb-EC25-if02-port0"));
    Fake_Port linked = Usb("2c7c", "0125", "03");
    linked.name = "ttyUSB1";
    const QString node = system.Add(linked);
    const QString link = system.Node("serial/by-id/usb-EC25-if03-port0");
    ASSERT_TRUE(QFile::link(node, link));
    EXPECT_EQ(Facts_Of_Port(node, system.roots).lasting_path, link);
    const Port_Facts by_link = Facts_Of_Port(link, system.roots);
    EXPECT_EQ(by_link.use, Use::Second_Commands);
    EXPECT_EQ(by_link.interface, 3);
    EXPECT_EQ(by_link.driver, "option");
    EXPECT_EQ(by_link.path, link);
    EXPECT_EQ(by_link.node, node);
}

TEST(Port_Facts, Usb_Comes_Before_The_Mainboard_And_What_Takes_No_Commands_Is_Last)
{
    Fake_System system;
    QStringList paths;
    const auto add = [&](const char* name, Fake_Port port) {
        port.name = name;
        port.device = port.vendor == "0403" ? "usb1/1-2" : port.device;
        paths.append(system.Add(port));
    };
    add("ttyS0", {});
    add("ttyUSB0", Usb("2c7c", "0125", "00"));
    add("ttyUSB1", Usb("2c7c", "0125", "01"));
    add("rfcomm0", {});
    add("ttyUSB3", Usb("2c7c", "0125", "03"));
    add("ttyUSB2", Usb("2c7c", "0125", "02"));
    add("ttyUSB9", Usb("0403", "6001", "00"));
    paths.append("/dev/null");
    QStringList names;
    for (const Port_Facts& port : Facts_In_Order(paths, system.roots))
        names.append(QFileInfo(port.path).fileName());
    EXPECT_EQ(names, QStringList({"ttyUSB2", "ttyUSB3", "ttyUSB9", "null", "rfcomm0", "ttyS0", "ttyUSB0", "ttyUSB1"}))
        << names.join(' ').toStdString();
}

TEST(Wwan_Ports, Are_Those_That_Have_A_Type_And_Are_For_What_It_Says)
{
    Fake_System system;
    EXPECT_THAT(Wwan_Ports(system.roots), testing::IsEmpty());
    system.Add_Wwan("wwan0", "");
    for (const auto& [name, type, use] : {std::tuple("wwan0at0", "AT", Use::Commands),
                                          {"wwan0mbim0", "MBIM", Use::Packets},
                                          {"wwan0qmi0", "QMI", Use::Packets},
                                          {"wwan0xmmrpc0", "XMMRPC", Use::Diagnostics}}) {
        system.Add_Wwan(name, type);
        EXPECT_EQ(Facts_Of_Port(system.Node(name), system.roots).use, use) << name;
    }
    EXPECT_EQ(Wwan_Ports(system.roots), QStringList({system.Node("wwan0at0"), system.Node("wwan0mbim0"),
                                                     system.Node("wwan0qmi0"), system.Node("wwan0xmmrpc0")}));
    EXPECT_EQ(Use_Of_Wwan_Port("../../udev", system.roots), Use::Unknown);
}

TEST(Device_Modes, Sticks_That_Are_Network_Cards_Or_Discs_Are_Known_By_Their_Numbers)
{
    Fake_System system;
    EXPECT_TRUE(Devices_In_Another_Mode(system.roots).isEmpty());
    system.Add_Without_Port("12d1", "14dc", "HUAWEI");
    system.Add_Without_Port("12d1", "1f01", "");
    system.Add_Without_Port("12d1", "1506", "HUAWEI");
    system.Add_Without_Port("046d", "c52b", "Mouse");
    const auto found = Devices_In_Another_Mode(system.roots);
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].mode, Device_In_Another_Mode::Mode::Network_Card);
    EXPECT_EQ(found[0].label, "HUAWEI (12d1:14dc)");
    EXPECT_EQ(found[1].mode, Device_In_Another_Mode::Mode::Storage);
    EXPECT_EQ(found[1].label, "Huawei (12d1:1f01)");
}
