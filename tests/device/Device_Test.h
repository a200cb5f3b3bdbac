#pragma once

#include "device/MFCSMS.h"
#include "device/Stop_Flag.h"
#include "device/Watched_Calls.h"
#include "phone/Virtual_Phone.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "support/Log_Lines.h"
#include "support/Own_Seconds.h"
#include "support/Serve_Until.h"

#include <gmock/gmock.h>
#include <thread>

/// At this pace a read time-out of a second lasts 50 ms.
constexpr double Test_Pace = 20;

/// What the tests of this room share: a fast pace, the log's lines, and no thread left behind.
class Device_Test : public testing::Test
{
protected:
    Device_Test() { Set_Pace(Test_Pace); }

    ~Device_Test() override
    {
        Stop_SMS_Sending_Now = 0;
        Finish_Workers();
        QCoreApplication::sendPostedEvents();
        Set_Pace(1);
    }

    Log_Lines m_log;
};

/// A port on the phone's line, open, with a read time-out of a second at pace 1.
inline std::shared_ptr<KVSerialPort> Open_Port(const Virtual_Phone& phone, Serial_Calls& calls = Real_Serial_Calls())
{
    const QString path = QString::fromStdString(phone.Path());
    const auto port = std::make_shared<KVSerialPort>(path, path, QStringLiteral("IOModemSerialStream"), calls);
    EXPECT_TRUE(port->open()) << strerror(port->lastError());
    port->setReadTimeout(1.0);
    return port;
}

/// Waits until the background reader has read, and has left what it read for the interface thread, which does not serve
/// events meanwhile.
inline void Wait_Until_Posted(const KVSerialPort& port)
{
    while (port.numberOfReadInBackgroundThreads() > 0)
        std::this_thread::yield();
}

/// Connects a session with the phone, as the send job and the wizard do.
inline void Connect(MFCSMS& session, const Virtual_Phone& phone)
{
    session.initPort(QString::fromStdString(phone.Path()));
    ASSERT_TRUE(session.port());
    session.port()->setReadTimeout(1.0);
}

/// The descriptor that exchanges carry along and never use.
constexpr int No_Descriptor = -1;
