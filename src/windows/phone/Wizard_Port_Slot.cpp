#include "windows/phone/Wizard_Port_Slot.h"

#include "platform/Log_Line.h"

Wizard_Port_Slot::~Wizard_Port_Slot()
{
    No_More_Calls();
    Close();
}

void Wizard_Port_Slot::initPort(const QString& path)
{
    if (m_port && m_port->bsdPath() == path)
        return;
    Close();
    setPort(std::make_shared<KVSerialPort>(path, path, QStringLiteral("IOModemSerialStream")));
    m_port->setDelegate(this);
    if (!m_port->open()) {
        Show_NSLog_Message(QStringLiteral("Port ( ") + path + QStringLiteral(" ) is NOT OPEN"));
        setPort(nullptr);
        return;
    }
    Show_NSLog_Message(QStringLiteral("Port ( ") + path + QStringLiteral(" ) is OPENED"));
    m_port->readDataInBackground();
}

void Wizard_Port_Slot::Close()
{
    if (m_port)
        m_port->close();
    setPort(nullptr);
}

void Wizard_Port_Slot::serialPortReadData(const std::shared_ptr<KVSerialPort>& serialPort, const QByteArray& data)
{
    if (data.isEmpty()) {
        Show_NSLog_Message(QStringLiteral("port closed\r"));
        return;
    }
    Show_NSLog_Message(QStringLiteral("serialPortReadData ( ") + QString::fromLatin1(data) + QStringLiteral(" )"));
    serialPort->readDataInBackground();
}
