#include "device/Device_Test.h"

#include "device/Line_Speeds.h"

namespace {

class Serial_Port_Options : public Device_Test
{
protected:
    termios On_The_Line()
    {
        termios settings{};
        EXPECT_EQ(tcgetattr(m_port->fileDescriptor(), &settings), 0);
        return settings;
    }

    Virtual_Phone m_phone;
    std::shared_ptr<KVSerialPort> m_port = Open_Port(m_phone);
};

} // namespace

TEST_F(Serial_Port_Options, A_Setting_Reaches_The_Line_Only_When_Committed)
{
    ASSERT_TRUE(m_port->setSpeed(115200));
    EXPECT_EQ(m_port->speed(), 115200);
    const termios before = On_The_Line();
    EXPECT_NE(cfgetospeed(&before), static_cast<speed_t>(B115200));
    ASSERT_TRUE(m_port->commitChanges());
    const termios after = On_The_Line();
    EXPECT_EQ(cfgetospeed(&after), static_cast<speed_t>(B115200));
}

TEST_F(Serial_Port_Options, Every_Setting_Is_Told_As_It_Was_Given)
{
    for (const int bits : {5, 6, 7, 8}) {
        EXPECT_TRUE(m_port->setDataBits(bits));
        EXPECT_EQ(m_port->dataBits(), bits);
    }
    for (const auto parity : {KVSerialParity::Odd, KVSerialParity::Even, KVSerialParity::None}) {
        m_port->setParity(parity);
        EXPECT_EQ(m_port->parity(), parity);
    }
    for (const int bits : {2, 1}) {
        EXPECT_TRUE(m_port->setStopBits(bits));
        EXPECT_EQ(m_port->stopBits(), bits);
    }
    for (const bool on : {true, false}) {
        m_port->setEchoEnabled(on);
        EXPECT_EQ(m_port->echoEnabled(), on);
        m_port->setRTSInputFlowControl(on);
        EXPECT_EQ(m_port->RTSInputFlowControl(), on);
        m_port->setCTSOutputFlowControl(!on);
        EXPECT_EQ(m_port->CTSOutputFlowControl(), !on);
        m_port->setHangupOnClose(on);
        EXPECT_EQ(m_port->hangupOnClose(), on);
        m_port->setLocalMode(on);
        EXPECT_EQ(m_port->localMode(), on);
        m_port->setCanonicalMode(on);
        EXPECT_EQ(m_port->canonicalMode(), on);
    }
    m_port->setEndOfLineCharacter(';');
    EXPECT_EQ(m_port->endOfLineCharacter(), ';');
    EXPECT_FALSE(m_port->gotError());
}

TEST_F(Serial_Port_Options, A_Setting_That_Cannot_Be_Is_An_Error_Until_It_Is_Cleared)
{
    EXPECT_FALSE(m_port->setSpeed(12345));
    EXPECT_TRUE(m_port->gotError());
    EXPECT_EQ(m_port->lastError(), EINVAL);
    m_port->clearError();
    EXPECT_FALSE(m_port->gotError());
    EXPECT_EQ(m_port->lastError(), 0);
    EXPECT_FALSE(m_port->setDataBits(9));
    EXPECT_FALSE(m_port->setStopBits(3));
    EXPECT_FALSE(m_port->setDTRInputFlowControl(true));
    EXPECT_FALSE(m_port->setDSROutputFlowControl(true));
    EXPECT_FALSE(m_port->setCAROutputFlowControl(true));
    EXPECT_EQ(m_port->lastError(), ENOTSUP);
    EXPECT_FALSE(m_port->DTRInputFlowControl() || m_port->DSROutputFlowControl() || m_port->CAROutputFlowControl());
    EXPECT_TRUE(m_port->setDTRInputFlowControl(false));
}

TEST_F(Serial_Port_Options, The_Options_Are_A_Dictionary_Of_Texts)
{
    const KVSerialOptions given = {{KVSerialOptionSpeed, "38400"},
                                   {KVSerialOptionDataBits, "7"},
                                   {KVSerialOptionParity, "Even"},
                                   {KVSerialOptionStopBits, "2"},
                                   {KVSerialOptionInputFlowControl, "RTS"},
                                   {KVSerialOptionOutputFlowControl, "CTS"},
                                   {KVSerialOptionEcho, "YES"},
                                   {KVSerialOptionCanonicalMode, "YES"}};
    EXPECT_TRUE(m_port->setOptions(given));
    KVSerialOptions told = m_port->options();
    EXPECT_EQ(told.take(KVSerialOptionServiceName), m_port->name());
    EXPECT_EQ(told, given);
    EXPECT_TRUE(m_port->setOptions({{KVSerialOptionParity, "Odd"}}));
    EXPECT_EQ(m_port->options().value(KVSerialOptionParity), QStringLiteral("Odd"));
    EXPECT_TRUE(m_port->setOptions({}));
    told = m_port->options();
    EXPECT_FALSE(told.contains(KVSerialOptionParity) || told.contains(KVSerialOptionEcho) ||
                 told.contains(KVSerialOptionInputFlowControl) || told.contains(KVSerialOptionCanonicalMode));
    EXPECT_FALSE(m_port->setOptions({{KVSerialOptionSpeed, "fast"}}));
    EXPECT_FALSE(m_port->setOptions({{KVSerialOptionOutputFlowControl, "DSR"}}));
}

TEST(Line_Speeds, Every_Speed_And_Its_Code_Belong_Together)
{
    for (const long speed :
         {50L, 110L, 300L, 1200L, 9600L, 19200L, 38400L, 57600L, 115200L, 230400L, 921600L, 4000000L}) {
        EXPECT_NE(Code_Of_Speed(speed), static_cast<speed_t>(B0)) << speed;
        EXPECT_EQ(Speed_Of_Code(Code_Of_Speed(speed)), speed);
    }
    EXPECT_EQ(Code_Of_Speed(19200), static_cast<speed_t>(B19200));
    EXPECT_EQ(Code_Of_Speed(14400), static_cast<speed_t>(B0));
    EXPECT_EQ(Speed_Of_Code(B0), 0);
}
