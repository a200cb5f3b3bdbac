#pragma once

#include "device/KVSerialPort.h"
#include "device/KVSerialPortDelegate.h"

#include <QString>
#include <memory>

// The wizard's own place for a port, besides the session's. Unsolicited data from it is only logged. Owned by the
// wizard's window; interface thread.
class Wizard_Port_Slot : public KVSerialPortDelegate
{
public:
    ~Wizard_Port_Slot() override;

    /// Opens the device and starts reading it in the background; the slot is empty if that fails. Does nothing if the
    /// slot already holds a port on that path, open or not.
    void initPort(const QString& path);
    void setPort(const std::shared_ptr<KVSerialPort>& port) { m_port = port; }
    std::shared_ptr<KVSerialPort> port() const { return m_port; }
    /// Closes the port, if any, and drops it.
    void Close();

    bool handlesReadInBackground() const override { return true; }
    void serialPortReadData(const std::shared_ptr<KVSerialPort>& serialPort, const QByteArray& data) override;

private:
    std::shared_ptr<KVSerialPort> m_port;
};
