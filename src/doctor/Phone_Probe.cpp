#include "doctor/Phone_Probe.h"

#include "device/MFCSMS.h"
#include "texts/Texts.h"

#include <QFile>

namespace {

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
        return Texts::Phone::Could_Not_Open;
    const Port_Let_Go_At_End port_end(m_session);
    if (!Connect(handle, path))
        return Texts::Phone::Not_Working;
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
        return Texts::Phone::Could_Not_Open;
    const Shown_Sheet sheet(m_display);
    return Find_Fault_When_Open(handle, path, centre);
}

QString Phone_Probe::Find_Fault_When_Open(int handle, const QString& path, const Chosen_Centre& centre)
{
    if (!Connect(handle, path)) {
        Let_Go_Of_Port(m_session);
        return Texts::Phone::Not_Working;
    }
    if (!centre.is_custom && centre.default_smsc.isEmpty())
        return Texts::Phone::Default_Smsc_Blank;
    if (centre.is_custom && centre.custom_smsc.isEmpty())
        return Texts::Phone::Custom_Smsc_Blank;
    if (!m_session.Check_Msg_Sending_Supported(handle))
        return Texts::Phone::No_Sending;
    m_session.More_SMS_Comnd(handle);
    Let_Go_Of_Port(m_session);
    return {};
}

// The open was a test: its handle is closed at once, and from then on is only a number that the exchanges carry along.
bool Phone_Probe::Connect(int handle, const QString& path)
{
    m_session.CloseSerialPort(handle);
    // A port left open by an earlier check may belong to another device.
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
