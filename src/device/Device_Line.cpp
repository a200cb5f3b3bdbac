#include "device/Device_Line.h"

#include "platform/Waiting.h"

Device_Line::Device_Line(const QString& path, Serial_Calls& calls)
    : m_port(std::make_shared<KVSerialPort>(path, path, QString(), calls))
{
}

Device_Line::~Device_Line()
{
    Close();
}

bool Device_Line::Open()
{
    return m_port->isOpen() || m_port->openExclusively() != nullptr;
}

bool Device_Line::Write(const QByteArray& bytes)
{
    return Program_Is_Exiting() ? m_port->writeInLeaving(bytes) : m_port->writeData(bytes);
}

Device_Line::Event Device_Line::Read(QByteArray& bytes, double seconds)
{
    KVSerialError outcome;
    bytes = m_port->readAvailable(seconds, &outcome);
    if (!bytes.isEmpty())
        return Event::Bytes;
    return outcome.code == KVSerial_System_Error ? Event::Gone : Event::Timed_Out;
}
