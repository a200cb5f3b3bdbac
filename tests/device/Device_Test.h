#pragma once

#include "device/MFCSMS.h"
#include "device/Moods.h"
#include "device/Stop_Flag.h"
#include "device/Watched_Calls.h"
#include "phone/Virtual_Phone.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"
#include "support/Log_Lines.h"
#include "support/Own_Seconds.h"
#include "support/Serve_Until.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <sys/ioctl.h>
#include <thread>

/// At this pace a read time-out of a second lasts 50 ms.
constexpr double Test_Pace = 20;

/// The descriptor that exchanges carry along and never use.
constexpr int No_Descriptor = -1;

inline QString Path_Of(const Virtual_Phone& phone)
{
    return QString::fromStdString(phone.Path());
}

/// A port on the phone's line, open, with a read time-out of a second at pace 1.
inline std::shared_ptr<KVSerialPort> Open_Port(const Virtual_Phone& phone, Serial_Calls& calls = Real_Serial_Calls())
{
    const auto port = std::make_shared<KVSerialPort>(Path_Of(phone), Path_Of(phone), "IOModemSerialStream", calls);
    EXPECT_TRUE(port->open()) << strerror(port->lastError());
    port->setReadTimeout(1.0);
    return port;
}

/// Connects a session with the phone, as the send job and the wizard do.
inline void Connect(MFCSMS& session, const Virtual_Phone& phone)
{
    session.initPort(Path_Of(phone));
    ASSERT_TRUE(session.port());
    session.port()->setReadTimeout(1.0);
}

/// Waits until the background reader has read, and has left what it read for the interface thread, which does not serve
/// events meanwhile.
inline void Wait_Until_Posted(const KVSerialPort& port)
{
    while (port.numberOfReadInBackgroundThreads() > 0)
        std::this_thread::yield();
}

inline bool No_Worker_Is_Left()
{
    return Serve_Until([] { return Workers_Running() == 0; });
}

inline termios Settings_Of(int descriptor)
{
    termios settings{};
    EXPECT_EQ(tcgetattr(descriptor, &settings), 0);
    return settings;
}

inline bool Blocks(int descriptor)
{
    return (fcntl(descriptor, F_GETFL) & O_NONBLOCK) == 0;
}

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

/// A phone, and a session whose calls are watched.
class Session_Test : public Device_Test
{
protected:
    void Wears(const Phone_Moods& moods) { m_phone.Set_Moods(moods); }

    /// What the phone has heard, as soon as it is all of this or ends so.
    bool Is_Heard(const std::string& bytes)
    {
        return Serve_Until([&] { return m_phone.Heard_Bytes() == bytes; });
    }
    bool Is_Heard_In_The_End(const std::string& bytes)
    {
        return Serve_Until([&] { return m_phone.Heard_Bytes().ends_with(bytes); });
    }

    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    MFCSMS m_session{m_calls};
};

/// A phone, and an open port on its line whose calls are watched.
class Open_Port_Test : public Device_Test
{
protected:
    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    std::shared_ptr<KVSerialPort> m_port = Open_Port(m_phone, m_calls);
    KVSerialError m_error;
};
