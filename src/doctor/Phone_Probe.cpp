#include "doctor/Phone_Probe.h"

#include "device/MFCSMS.h"

#include <QFile>

namespace {

constexpr char Could_Not_Open[] = "Selected device is not working properly.\nCould not open modem.\n";
constexpr char Not_Working[] = "Selected device is not working properly.";
constexpr char Default_Smsc_Blank[] = "Default SMSC No. details should not be blanked.";
constexpr char Custom_Smsc_Blank[] = "Custom SMSC No. details should not be blanked.";
constexpr char No_Sending[] =
    "Selected device do not provide a modem in the computer or the modem does not support SMS sending command.";

constexpr double Read_Timeout_Seconds = 1.0;

class Port_Let_Go_At_End
{
public:
    explicit Port_Let_Go_At_End(MFCSMS& session) : m_session(session) {}
    ~Port_Let_Go_At_End() { Phone_Probe::Let_Go_Of_Port(m_session); }
    Port_Let_Go_At_End(const Port_Let_Go_At_End&) = delete;
    Port_Let_Go_At_End& operator=(const Port_Let_Go_At_End&) = delete;

private:
    MFCSMS& m_session;
};

} // namespace

void Phone_Probe::Let_Go_Of_Port(MFCSMS& session)
{
    if (const auto port = session.port())
        port->close();
    session.setPort(nullptr);
}

QString Phone_Probe::Read_Details(const QString& path)
{
    const int handle = m_session.OpenSerialPort(QFile::encodeName(path));
    if (handle == -1)
        return Could_Not_Open;
    const Port_Let_Go_At_End port_end(m_session);
    if (!Connect(handle, path))
        return Not_Working;
    m_session.Read_Ph_Values(handle, m_display);
    return {};
}

bool Phone_Probe::Check_For_Sending(const QString& path, const Chosen_Centre& centre)
{
    const QString fault = Find_Fault(path, centre);
    if (!fault.isEmpty())
        m_display.Tell_About_Device(fault);
    return fault.isEmpty();
}

QString Phone_Probe::Find_Fault(const QString& path, const Chosen_Centre& centre)
{
    const int handle = m_session.OpenSerialPort(QFile::encodeName(path));
    if (handle == -1)
        return Could_Not_Open;
    const Shown_Sheet sheet(m_display);
    return Find_Fault_When_Open(handle, path, centre);
}

QString Phone_Probe::Find_Fault_When_Open(int handle, const QString& path, const Chosen_Centre& centre)
{
    if (!Connect(handle, path)) {
        Let_Go_Of_Port(m_session);
        return Not_Working;
    }
    if (!centre.is_custom && centre.default_smsc.isEmpty())
        return Default_Smsc_Blank;
    if (centre.is_custom && centre.custom_smsc.isEmpty())
        return Custom_Smsc_Blank;
    if (!m_session.Check_Msg_Sending_Supported(handle))
        return No_Sending;
    m_session.More_SMS_Comnd(handle);
    Let_Go_Of_Port(m_session);
    return {};
}

// The open was a test: its handle is closed at once and from then on only a number that the exchanges carry along.
bool Phone_Probe::Connect(int handle, const QString& path)
{
    m_session.CloseSerialPort(handle);
    // A port that was left open by an earlier check may be another device's.
    if (const auto port = m_session.port(); port && (!port->isOpen() || port->bsdPath() != path))
        Let_Go_Of_Port(m_session);
    if (!m_session.port())
        m_session.initPort(path);
    const auto port = m_session.port();
    if (!port)
        return false;
    port->setReadTimeout(Read_Timeout_Seconds);
    return m_session.Check_Connection(handle);
}
