#pragma once

// Kept by name; nothing in the program calls what stands here.

#include "device/KVSerialPort.h"

/// Older spellings of a port's operations, without error reports.
namespace Deprecated {

inline QByteArray readData(KVSerialPort& port)
{
    return port.readAndReturnError();
}

inline QByteArray readDataOfLength(KVSerialPort& port, quint64 length)
{
    return port.readBytes(length);
}

inline QByteArray readDataUpToChar(KVSerialPort& port, char stop)
{
    return port.readUpToChar(stop);
}

inline QString readString(KVSerialPort& port)
{
    return port.readStringUsingEncoding(KVText_Encoding::Utf8);
}

inline QString readStringOfLength(KVSerialPort& port, quint64 length)
{
    return port.readBytes(length, KVText_Encoding::Utf8);
}

inline QString readStringUpToChar(KVSerialPort& port, char stop)
{
    return port.readUpToChar(stop, KVText_Encoding::Utf8);
}

/// How many bytes went out, -1 when the line failed before the first.
inline qint64 writeData(KVSerialPort& port, const QByteArray& data)
{
    KVSerialError error;
    port.writeData(data, &error);
    return error.code == KVSerial_System_Error && error.bytesWritten == 0 ? -1
                                                                          : static_cast<qint64>(error.bytesWritten);
}

inline qint64 writeString(KVSerialPort& port, const QString& text)
{
    return writeData(port, text.toUtf8());
}

} // namespace Deprecated
