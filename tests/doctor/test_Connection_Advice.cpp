#include "doctor/Connection_Advice.h"

#include <gmock/gmock.h>

namespace {

using Barred = Connection_Facts::Barred_Port;

Connection_Facts Facts(int ports, const QList<Barred>& barred, bool modem_manager)
{
    Connection_Facts facts;
    facts.ports_found = ports;
    facts.barred_ports = barred;
    facts.modem_manager_runs = modem_manager;
    return facts;
}

const char* const Join_Dialout = "sudo usermod -aG dialout $USER";
const char* const Join_Uucp = "sudo usermod -aG uucp $USER";
const char* const Stop_Manager = "sudo systemctl stop ModemManager";

TEST(Connection_Advice, Each_Piece_Is_Given_Exactly_When_It_Applies)
{
    const Barred usb{"/dev/ttyUSB0", "dialout"};
    const Barred acm{"/dev/ttyACM0", "dialout"};
    const Barred other{"/dev/ttyX0", "uucp"};
    const Barred root_only{"/dev/ttyACM9", ""};
    const struct
    {
        const char* what;
        Connection_Facts facts;
        QStringList commands; // "" where a piece has none
    } cases[] = {
        {"all is well", Facts(2, {}, false), {}},
        {"no port", Facts(0, {}, false), {""}},
        {"a barred port", Facts(1, {usb}, false), {Join_Dialout}},
        {"two of one group need one command", Facts(2, {usb, acm}, false), {Join_Dialout}},
        {"two groups", Facts(3, {usb, other, acm}, false), {Join_Dialout, Join_Uucp}},
        {"for root alone", Facts(1, {root_only}, false), {""}},
        {"the service runs", Facts(1, {}, true), {Stop_Manager}},
        {"no port and the service", Facts(0, {}, true), {"", Stop_Manager}},
        {"everything", Facts(2, {usb, root_only}, true), {Join_Dialout, "", Stop_Manager}},
    };
    for (const auto& one : cases) {
        QStringList commands;
        const auto advice = Connection_Advice::For(one.facts);
        for (const auto& piece : advice) {
            commands.append(piece.command.isNull() ? QString("") : piece.command);
            EXPECT_FALSE(piece.text.isEmpty()) << one.what;
        }
        EXPECT_EQ(commands, one.commands) << one.what;
    }
}

TEST(Connection_Advice, A_Barred_Port_Is_Named_With_Its_Group_And_What_To_Do_After_Joining_It)
{
    const auto advice =
        Connection_Advice::For(Facts(2, {{"/dev/ttyUSB0", "dialout"}, {"/dev/ttyACM0", "dialout"}}, false));
    ASSERT_EQ(advice.size(), 1);
    for (const char* part : {"/dev/ttyUSB0, /dev/ttyACM0", "dialout", "log out and in again"})
        EXPECT_TRUE(advice.first().text.contains(part)) << part;
}

TEST(Connection_Advice, Without_A_Device_It_Is_To_Be_Connected_And_Nobody_Is_Blamed)
{
    const auto advice = Connection_Advice::For(Facts(0, {}, false));
    ASSERT_EQ(advice.size(), 1);
    EXPECT_TRUE(advice.first().text.contains("connect it as described above"));
    for (const char* part : {"administrator", "Your account may not"})
        EXPECT_FALSE(advice.first().text.contains(part)) << part;
}

TEST(Connection_Advice, A_Port_For_Root_Alone_Is_Left_To_The_Administrator)
{
    const auto advice = Connection_Advice::For(Facts(1, {{"/dev/ttyACM9", ""}}, false));
    ASSERT_EQ(advice.size(), 1);
    EXPECT_TRUE(advice.first().text.contains("/dev/ttyACM9"));
    EXPECT_TRUE(advice.first().text.contains("administrator"));
}

} // namespace
