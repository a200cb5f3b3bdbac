#include "device/MFCSMS.h"

#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"

namespace {

// Lines up to this length, such as a message's terminator, are not logged.
constexpr qsizetype Short_Log_Line = 12;

QString Port_Log_Line(const QString& path, const char* state)
{
    return QLatin1String("Port ( ") + path + QLatin1String(" ) is ") + QLatin1String(state);
}

} // namespace

MFCSMS::MFCSMS(Serial_Calls& calls, Port_Finder& finder) : m_calls(calls), m_finder(finder)
{
    mfc_sms_instance = this;
}

MFCSMS::~MFCSMS()
{
    No_More_Calls();
    if (const auto open_port = port())
        open_port->close();
    const auto descriptors = m_descriptors;
    for (const int descriptor : descriptors)
        CloseSerialPort(descriptor);
}

void MFCSMS::initPort(const QString& path)
{
    if (const auto present = port()) {
        if (present->bsdPath() == path)
            return;
        present->close();
    }
    const auto made = std::make_shared<KVSerialPort>(path, path, QStringLiteral("IOModemSerialStream"), m_calls);
    setPort(made);
    m_message_is_begun = false;
    made->setDelegate(this);
    if (!made->open()) {
        Show_NSLog_Message(Port_Log_Line(path, "NOT OPEN"));
        setPort(nullptr);
        return;
    }
    Show_NSLog_Message(Port_Log_Line(path, "OPENED"));
    made->readDataInBackground();
}

void MFCSMS::setPort(const std::shared_ptr<KVSerialPort>& port)
{
    const auto previous = this->port(); // released after the lock
    const std::lock_guard guard(m_fields_lock);
    m_port = port;
}

std::shared_ptr<KVSerialPort> MFCSMS::port() const
{
    const std::lock_guard guard(m_fields_lock);
    return m_port;
}

QString MFCSMS::m_sLastResponse() const
{
    const std::lock_guard guard(m_fields_lock);
    return m_last_response;
}

void MFCSMS::setM_sLastResponse(const QString& response)
{
    const std::lock_guard guard(m_fields_lock);
    m_last_response = response;
}

bool MFCSMS::Write_Command(int, const QByteArray& command_str)
{
    try {
        const QString command = QString::fromUtf8(command_str.constData());
        const QString line = QLatin1String("Write \"") + command + QLatin1String("\"\n");
        if (line.size() > Short_Log_Line)
            Show_NSLog_Message(line);
        const auto line_port = port();
        return line_port && line_port->writeString(command, KVText_Encoding::Utf8);
    } catch (const Device_Exception&) {
        return true;
    }
}

bool MFCSMS::Read_Command(int, const QByteArray& response_str)
{
    try {
        const auto line_port = port();
        const QString answer =
            Trim_Str(line_port ? line_port->readStringUsingEncoding(KVText_Encoding::Utf8) : QString());
        setM_sLastResponse(answer);
        const QString line = Trim_Str(QLatin1String("Read \"") + answer + QLatin1String("\"\n"));
        Show_NSLog_Message(line);
        if (answer.isEmpty() || Find_Str(line, QStringLiteral("ERROR")))
            return false;
        return Find_Str(line, Trim_Str(QString::fromUtf8(response_str.constData())));
    } catch (const Device_Exception& exception) {
        // The caller deliberately carries on; the last response says what went wrong.
        setM_sLastResponse(QString::fromUtf8(exception.what()));
        return true;
    }
}

bool MFCSMS::Check_Connection(int descriptor)
{
    setM_sLastResponse(QString());
    if (!Write_Command(descriptor, "AT\r\n"))
        return false;
    if (Read_Command(descriptor, "\r\nOK\r\n"))
        return Find_Str(m_sLastResponse(), QStringLiteral("OK"));
    // A device that echoes but does not answer.
    return m_sLastResponse() == u"AT";
}

void MFCSMS::serialPortReadData(const std::shared_ptr<KVSerialPort>& serialPort, const QByteArray& data)
{
    if (data.isEmpty()) {
        Show_NSLog_Message(QStringLiteral("port closed\r"));
        return;
    }
    Show_NSLog_Message(QLatin1String("serialPortReadData ( ") + Decoded_Text(data, KVText_Encoding::Ascii) +
                       QLatin1String(" )"));
    serialPort->readDataInBackground();
}
