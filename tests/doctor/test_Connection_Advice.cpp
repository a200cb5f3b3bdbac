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

TEST(Connection_Advice, Each_Piece_Is_Given_Exactly_When_It_Applies_Names_The_Ports_And_Says_Who_Can_Help)
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
        QStringList said;     // by the first piece
    } cases[] = {
        {"all is well", Facts(2, {}, false), {}, {}},
        {"no port", Facts(0, {}, false), {""}, {"connect it as described above"}},
        {"a barred port", Facts(1, {usb}, false), {Join_Dialout}, {"/dev/ttyUSB0", "dialout", "log out and in again"}},
        {"two of one group need one command",
         Facts(2, {usb, acm}, false),
         {Join_Dialout},
         {"/dev/ttyUSB0, /dev/ttyACM0"}},
        {"two groups", Facts(3, {usb, other, acm}, false), {Join_Dialout, Join_Uucp}, {"/dev/ttyUSB0, /dev/ttyACM0"}},
        {"for root alone", Facts(1, {root_only}, false), {""}, {"/dev/ttyACM9", "administrator"}},
        {"the service runs", Facts(1, {}, true), {Stop_Manager}, {"ModemManager"}},
        {"no port and the service", Facts(0, {}, true), {"", Stop_Manager}, {}},
        {"everything", Facts(2, {usb, root_only}, true), {Join_Dialout, "", Stop_Manager}, {}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.what);
        QStringList commands;
        const auto advice = Connection_Advice::For(one.facts);
        for (const auto& piece : advice) {
            commands.append(piece.command.isNull() ? QString("") : piece.command);
            EXPECT_FALSE(piece.text.isEmpty());
        }
        EXPECT_EQ(commands, one.commands);
        for (const QString& part : one.said)
            EXPECT_TRUE(advice.first().text.contains(part)) << part.toStdString();
    }
    for (const char* blame : {"administrator", "Your account may not"})
        EXPECT_FALSE(Connection_Advice::For(Facts(0, {}, false)).first().text.contains(blame)) << blame;
}

} // namespace
