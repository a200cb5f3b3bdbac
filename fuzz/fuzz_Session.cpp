#include "device/MFCSMS.h"
#include "fuzz/Fuzz_Input.h"
#include "fuzz/Scripted_Line.h"
#include "list/Custom_Smsc_Rules.h"
#include "list/Number_Rules.h"

#include <algorithm>
#include <utility>

// A whole session with a device that answers anything: each line that the session writes gets the next piece of the
// input. In it, 0x1F ends what one read gives, 0x04 hangs up and 0x05 breaks the line.
namespace {

class Answering_Device
{
public:
    explicit Answering_Device(Fuzz_Input& input) : m_input(input) {}

    void Hear(Scripted_Line& line, const std::string& bytes)
    {
        m_heard += bytes;
        if (!bytes.empty() && (bytes.back() == '\r' || bytes.back() == '\n'))
            Answer(line, m_input.Piece().toStdString());
    }

    const std::string& Heard() const { return m_heard; }

private:
    void Answer(Scripted_Line& line, const std::string& script)
    {
        std::string said;
        for (const char byte : script) {
            if (byte != 0x1F && byte != 0x04 && byte != 0x05) {
                said += byte;
                continue;
            }
            line.Say(std::exchange(said, {}));
            if (byte == 0x04)
                line.Hang_Up();
            else if (byte == 0x05)
                line.Break();
        }
        line.Say(said);
    }

    Fuzz_Input& m_input;
    std::string m_heard;
};

// What a window would show of the device.
class Checked_Values : public Phone_Values_Display
{
public:
    void Set_Phone_Value(Phone_Value value, const QString& text) override
    {
        MUST(static_cast<int>(value) == m_next || m_next < Phone_Value_Count);
        m_next = static_cast<int>(value) + 1;
        MUST(text.size() <= KVSerialPort::Buffer_Size + 64);
    }

private:
    int m_next = 0;
};

// The reads with an end of their own, which give what came before it and never more than was asked for.
void Read_Directly(MFCSMS& session, unsigned how_many)
{
    const auto port = session.port();
    session.Write_Command(-1, "AT\r");
    KVSerialError error;
    MUST(port->readBytes(how_many, &error).size() <= static_cast<qsizetype>(how_many));
    const QByteArray line = port->readUpToChar('\n', &error);
    MUST(line.size() <= KVSerialPort::Buffer_Size);
    MUST(error.endCode != KVSerial_Stop_Character || line.endsWith('\n'));
    MUST(port->readBytes(how_many, '\n', KVText_Encoding::Ascii, &error).size() <= static_cast<qsizetype>(how_many));
    session.Write_Command(-1, "AT\r");
    MUST(port->readBytes(how_many, KVText_Encoding::Utf8, &error).isValidUtf16());
    MUST(port->readUpToChar('\r', KVText_Encoding::Utf8, &error).isValidUtf16());
}

void Ask(MFCSMS& session, unsigned what)
{
    switch (what % 8) {
    case 0: {
        Checked_Values values;
        session.Read_Ph_Values(-1, values);
        break;
    }
    case 1:
        session.Get_IMEI_Number(-1);
        session.Model_Name(-1);
        break;
    case 2:
        session.Default_SMSC_Hai(-1);
        break;
    case 3: {
        const int mode = session.PDU_or_Text_SMS(-1);
        MUST(mode >= 0 && mode <= 2);
        break;
    }
    case 4:
        session.Check_Connection(-1);
        session.Check_Msg_Sending_Supported(-1);
        session.More_SMS_Comnd(-1);
        break;
    case 5:
        session.Prepare_Modem_For_PDU_SMS(-1);
        break;
    case 6:
        session.Prepare_Modem_For_Text_SMS(-1);
        break;
    default:
        Read_Directly(session, what + 1);
        break;
    }
}

void Send(MFCSMS& session, Fuzz_Input& input, unsigned how)
{
    const QString number = Number_Rules::Normalised_Number(input.Text());
    const QString message = input.Text().left(1600);
    const QString typed_smsc = input.Text().left(Custom_Smsc_Rules::Longest_Typed);
    const bool is_typed_smsc_used =
        Custom_Smsc_Rules::Is_Valid(typed_smsc) && !typed_smsc.contains(u'\n') && !typed_smsc.contains(u'\r');
    const QString smsc = is_typed_smsc_used ? typed_smsc : QString();
    if (number.isEmpty())
        return;
    if ((how & 4) == 0)
        session.Send_PDU_SMS(-1, number, message, smsc, (how & 1) != 0, (how & 2) != 0);
    else
        session.Send_Text_SMS(-1, number, message, smsc, (how & 1) != 0, (how & 2) != 0);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    Answering_Device device(input);
    Scripted_Line line([&](Scripted_Line& line_in_use, const std::string& heard) { device.Hear(line_in_use, heard); });
    MFCSMS session(line);
    line.Put_Under(session);
    const unsigned what = input.Octet();
    const unsigned how = input.Octet();
    if ((how & 8) != 0)
        Send(session, input, how);
    for (unsigned step = 0; step < 2; ++step)
        Ask(session, (what >> (4 * step)) & 0xF);

    // Whatever it was told, a device gets no more than a message's parts, and never the key that cancels one.
    MUST(device.Heard().find('\x1B') == std::string::npos);
    MUST(std::count(device.Heard().begin(), device.Heard().end(), '\x1A') <= 25);
    MUST(device.Heard().size() < 20000);
    return 0;
}
