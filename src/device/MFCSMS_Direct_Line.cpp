#include "device/Device_Log.h"
#include "device/Driver_Requests.h"
#include "device/Line_Speeds.h"
#include "device/MFCSMS.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/ioctl.h>

termios gOriginalTTYAttrs;

namespace {

std::mutex Original_Settings_Lock; // sessions may open and close concurrently

constexpr long Final_Speed = 19200;
constexpr long Requested_Speed = 14400;

// The steps of opening, in order. Each logs its own failure and returns whether to go on.
class Direct_Line
{
public:
    Direct_Line(Serial_Calls& calls, int descriptor, const QByteArray& path)
        : m_calls(calls), m_descriptor(descriptor), m_path(path)
    {
    }

    bool Set_Up() { return Claim() && Make_Blocking() && Take_Settings() && Apply_Settings() && Speed_Up_Reading(); }

private:
    bool Claim()
    {
        if (m_calls.Control(m_descriptor, TIOCEXCL, nullptr) != -1)
            return true;
        return Fails("Error setting TIOCEXCL on");
    }

    bool Make_Blocking()
    {
        if (m_calls.Set_Status_Flags(m_descriptor, 0) != -1)
            return true;
        return Fails("Error clearing O_NONBLOCK");
    }

    bool Take_Settings()
    {
        termios found{};
        if (m_calls.Get_Attributes(m_descriptor, found) == -1)
            return Fails("Error getting tty attributes");
        const std::lock_guard guard(Original_Settings_Lock);
        gOriginalTTYAttrs = found;
        m_settings = found;
        return true;
    }

    bool Apply_Settings()
    {
        Log_Speeds("Current input baud rate is", "Current output baud rate is");
        cfmakeraw(&m_settings);
        m_settings.c_cc[VMIN] = 1;
        m_settings.c_cc[VTIME] = 10;
        cfsetspeed(&m_settings, Code_Of_Speed(Final_Speed));
        // CS7 on top of the eight bits of raw mode leaves them eight: the line has eight data bits, even parity and
        // RTS/CTS.
        m_settings.c_cflag |= CS7 | PARENB | CRTSCTS;
        if (Request_Arbitrary_Speed(m_calls, m_descriptor, Requested_Speed) == -1)
            Fails("Error calling ioctl(..., IOSSIOSPEED, ...)");
        Log_Speeds("Input baud rate changed to", "Output baud rate changed to");
        if (m_calls.Set_Attributes(m_descriptor, m_settings) == -1)
            return Fails("Error setting tty attributes");
        Pulse_Dtr();
        Set_Handshake_Lines();
        return true;
    }

    void Pulse_Dtr()
    {
        int line = TIOCM_DTR;
        if (m_calls.Control(m_descriptor, TIOCMBIS, &line) == -1)
            Fails("Error asserting DTR");
        if (m_calls.Control(m_descriptor, TIOCMBIC, &line) == -1)
            Fails("Error clearing DTR");
    }

    void Set_Handshake_Lines()
    {
        int lines = TIOCM_DTR | TIOCM_RTS | TIOCM_CTS | TIOCM_DSR;
        if (m_calls.Control(m_descriptor, TIOCMSET, &lines) == -1)
            Fails("Error setting handshake lines");
        if (m_calls.Control(m_descriptor, TIOCMGET, &lines) == -1)
            Fails("Error getting handshake lines");
        Log_Number(QStringLiteral("Handshake lines currently set to"), lines);
    }

    bool Speed_Up_Reading()
    {
        if (Request_Low_Latency(m_calls, m_descriptor) != -1)
            return true;
        return Fails("Error setting read latency");
    }

    void Log_Speeds(const char* input, const char* output)
    {
        Log_Number(QString::fromLatin1(input), Speed_Of_Code(cfgetispeed(&m_settings)));
        Log_Number(QString::fromLatin1(output), Speed_Of_Code(cfgetospeed(&m_settings)));
    }

    bool Fails(const char* step)
    {
        Log_Failed_Step(QString::fromLatin1(step), m_path, errno);
        return false;
    }

    Serial_Calls& m_calls;
    const int m_descriptor;
    const QByteArray& m_path;
    termios m_settings{};
};

} // namespace

int MFCSMS::OpenSerialPort(const QByteArray& path)
{
    const int descriptor = m_calls.Open(path.constData(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor == -1) {
        Log_Failed_Step(QStringLiteral("Error opening serial port"), path, errno);
        return -1;
    }
    // Exclusive use does not keep privileged users out, so a claimed line may still have opened.
    if (Is_Claimed_Exclusively(m_calls, descriptor)) {
        Log_Failed_Step(QStringLiteral("Error opening serial port"), path, EBUSY);
        m_calls.Close(descriptor);
        return -1;
    }
    if (!Direct_Line(m_calls, descriptor, path).Set_Up()) {
        Release_Exclusive_Use(m_calls, descriptor);
        m_calls.Close(descriptor);
        return -1;
    }
    const std::lock_guard guard(m_fields_lock);
    m_descriptors.insert(descriptor);
    return descriptor;
}

void MFCSMS::CloseSerialPort(int descriptor)
{
    if (descriptor < 0)
        return;
    const std::lock_guard closing(m_close_lock);
    if (!Let_Go_Of(descriptor))
        return;
    const int flags = m_calls.Get_Status_Flags(descriptor);
    if (flags != -1)
        m_calls.Set_Status_Flags(descriptor, flags | O_NONBLOCK);
    if (Drain_With_An_End(m_calls, descriptor) == -1)
        Log_Failed_Step(QStringLiteral("Error waiting for drain"), errno);
    termios original{};
    {
        const std::lock_guard guard(Original_Settings_Lock);
        original = gOriginalTTYAttrs;
    }
    if (m_calls.Set_Attributes(descriptor, original) == -1)
        Log_Failed_Step(QStringLiteral("Error resetting tty attributes"), errno);
    Release_Exclusive_Use(m_calls, descriptor);
    m_calls.Close(descriptor);
}

bool MFCSMS::Let_Go_Of(int descriptor)
{
    const std::lock_guard guard(m_fields_lock);
    return m_descriptors.erase(descriptor) > 0;
}
