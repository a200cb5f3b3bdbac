#pragma once

#include <QtGlobal>

/// The domain of the codes below.
inline constexpr char KVSerialErrorDomain[] = "org.corvane.serialport";

/// What a read or write reports in addition to its result.
enum KVSerial_Code
{
    KVSerial_Ended_Normally = 0,
    KVSerial_System_Error =
        99, ///< waiting, read or write failed; the system's error number is attached when there is one
    KVSerial_Read_Timeout = 100, ///< the data read so far is still returned
    KVSerial_Buffer_Full = 101,  ///< 4096 bytes read before any other end
    KVSerial_Nothing_To_Write = 200,
    KVSerial_Write_Incomplete = 201 ///< fewer bytes went out than were given
};

/// How a read that ended normally came to its end.
enum KVSerial_End_Code
{
    KVSerial_No_End = 0,
    KVSerial_Stop_Character = 1,
    KVSerial_Requested_Length = 2,
    KVSerial_More_Than_Requested = 3
};

/// An operation's outcome in full.
struct KVSerialError
{
    const char* domain = KVSerialErrorDomain;
    int code = KVSerial_Ended_Normally;
    quint64 bytesRead = 0;
    quint64 bytesWritten = 0;
    int endCode = KVSerial_No_End;
    int underlyingError = 0; ///< errno, 0 when the system reported none
};
