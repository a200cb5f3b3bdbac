// Kept by name; nothing in the program calls what stands here.

#include "device/MFCSMS.h"

#include "device/Answer_Cleaning.h"
#include "device/Bounded_Write.h"
#include "device/Device_Log.h"
#include "device/MFCSMS_Queries.h"
#include "device/Non_Blocking_Transfer.h"
#include "device/Printable_Text.h"
#include "device/Submission_Steps.h"
#include "platform/Log_Line.h"
#include "platform/String_Helpers.h"

#include <cerrno>
#include <poll.h>

std::atomic<MFCSMS*> mfc_sms_instance{nullptr};

namespace {

bool Answer_Comes(Serial_Calls& calls, int descriptor)
{
    switch (calls.Wait(descriptor, POLLIN, Paced_Read_Timeout(5))) {
    case Line_Event::Ready:
        Show_NSLog_Message(QStringLiteral("\neverything is ok\n"));
        return true;
    case Line_Event::Timed_Out:
        Show_NSLog_Message(QStringLiteral("\nTIME OUT HAS OCCUR\n"));
        return false;
    default:
        Show_NSLog_Message(QStringLiteral("\nSOME Other\n"));
        return false;
    }
}

// A null text when a write or read failed.
QString Single_Value(MFCSMS& session, int descriptor, Phone_Value wanted)
{
    QString value;
    if (!session.Write_Command(descriptor, "AT\r\n") || !session.Read_Command(descriptor, Expect_Ok) ||
        Ask_For(session, descriptor, wanted, value) != Asked::Answered)
        return {};
    return value.isNull() ? QString(QLatin1String("")) : value;
}

} // namespace

const char* MFCSMS::LogString(const char* text)
{
    static thread_local QByteArray printable;
    printable = Printable_Text(QByteArray(text));
    return printable.constData();
}

bool MFCSMS::InitializeModem(int descriptor)
{
    static constexpr char command[] = "AT\r\n";
    constexpr qsizetype command_length = sizeof command - 1;
    constexpr qsizetype most_bytes = 4095;

    Show_NSLog_Message(QStringLiteral("Try #1\n")); // the only one
    Write_Outcome written{0, EBADF};
    if (Owns(descriptor))
        written =
            Write_With_An_End(m_calls, descriptor, command, command_length, -1, [&](const char* bytes, size_t size) {
                return Write_Without_Blocking(m_calls, descriptor, bytes, size);
            });
    if (written.m_error != 0) {
        Log_Failed_Step(QStringLiteral("Error writing to modem"), written.m_error);
        return false;
    }
    Show_NSLog_Message(QLatin1String("Wrote ") + QString::number(written.m_bytes_written) + QLatin1String(" bytes \"") +
                       QLatin1String(LogString(command)) + QLatin1String("\"\n"));
    if (written.m_bytes_written < command_length)
        return false;
    Show_NSLog_Message(QLatin1String("Looking for \"") + QLatin1String(LogString("\r\nOK\r\n")) +
                       QLatin1String("\"\n"));
    if (!Answer_Comes(m_calls, descriptor))
        return false;

    QByteArray buffer(most_bytes, '\0');
    const ssize_t length = Read_Without_Blocking(m_calls, descriptor, buffer.data(), static_cast<size_t>(most_bytes));
    if (length == -1)
        Log_Failed_Step(QStringLiteral("Error reading from modem"), errno);
    else if (length == 0)
        Show_NSLog_Message(QStringLiteral("Nothing read.\n"));
    buffer.truncate(length > 0 ? length : 0);
    // The printable form is searched for the line end, too, which it cannot contain; the echo's "AT" is found there.
    const QByteArray line = QByteArray("Read \"") + LogString(buffer.constData()) + "\"\n";
    return line.contains("\r\nOK\r\n") || buffer.startsWith("\r\nOK\r\n") || line.contains("AT");
}

bool MFCSMS::Owns(int descriptor) const
{
    const std::lock_guard guard(m_fields_lock);
    return m_descriptors.count(descriptor) > 0;
}

QString MFCSMS::Get_IMEI_Number(int descriptor)
{
    return Single_Value(*this, descriptor, Phone_Value::Imei);
}

QString MFCSMS::Model_Name(int descriptor)
{
    return Single_Value(*this, descriptor, Phone_Value::Model);
}

bool MFCSMS::Default_SMSC_Hai(int descriptor)
{
    if (!Write_Command(descriptor, "AT\r\n") || !Read_Command(descriptor, Expect_Ok) ||
        !Write_Command(descriptor, "AT+CSCA?\r") || !Read_Command(descriptor, Expect_Ok))
        return false;
    const QString value =
        Clean_Answer(m_sLastResponse(), {QStringLiteral("AT+CSCA"), QStringLiteral("+CSCA")}, Quotes::Kept);
    return !Trim_Str(Quoted_Text(value).value_or(QString())).isEmpty();
}
