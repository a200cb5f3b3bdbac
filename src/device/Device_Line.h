#pragma once

#include "device/KVSerialPort.h"

/// The line to a device, held for one program alone, as a conversation needs it: what is written goes out whole or
/// fails, and bytes are handed on as soon as they come. Nobody else reads it. One thread at a time.
class Device_Line
{
public:
    enum class Event
    {
        Bytes,
        Timed_Out, ///< nothing came in time, or the program is exiting
        Gone       ///< hung up, unplugged or closed
    };

    explicit Device_Line(const QString& path, Serial_Calls& calls = Real_Serial_Calls());
    ~Device_Line();
    Device_Line(const Device_Line&) = delete;
    Device_Line& operator=(const Device_Line&) = delete;

    /// Whether the device is open now; Error says why not.
    bool Open();
    int Error() const { return m_port->lastError(); }
    void Close() { m_port->close(); }

    /// Whether every byte went out, in one write where the device has room for it.
    bool Write(const QByteArray& bytes);

    /// Waits for the first bytes and takes what there is, at most KVSerialPort::Buffer_Size. The seconds are real ones;
    /// 0 takes what has come.
    Event Read(QByteArray& bytes, double seconds);

private:
    const std::shared_ptr<KVSerialPort> m_port;
};
