#include "device/Device_Test.h"

#include "device/Line_Speeds.h"

#include <array>

using Serial_Port_Options = Open_Port_Test;

TEST_F(Serial_Port_Options, A_Setting_Reaches_The_Line_Only_When_Committed)
{
    ASSERT_TRUE(m_port->setSpeed(115200));
    EXPECT_EQ(m_port->speed(), 115200);
    const termios before = Settings_Of(m_port->fileDescriptor());
    EXPECT_NE(cfgetospeed(&before), static_cast<speed_t>(B115200));
    ASSERT_TRUE(m_port->commitChanges());
    const termios after = Settings_Of(m_port->fileDescriptor());
    EXPECT_EQ(cfgetospeed(&after), static_cast<speed_t>(B115200));
}

TEST_F(Serial_Port_Options, Every_Setting_Is_Told_As_It_Was_Given)
{
    using Port = KVSerialPort;
    const auto expect_told = [this](auto set, auto told, auto values) {
        for (const auto value : values) {
            ((*m_port).*set)(value);
            EXPECT_EQ(((*m_port).*told)(), value);
        }
    };
    expect_told(&Port::setDataBits, &Port::dataBits, std::array{5, 6, 7, 8});
    expect_told(&Port::setStopBits, &Port::stopBits, std::array{2, 1});
    expect_told(&Port::setParity, &Port::parity,
                std::array{KVSerialParity::Odd, KVSerialParity::Even, KVSerialParity::None});
    constexpr std::array both{true, false};
    expect_told(&Port::setEchoEnabled, &Port::echoEnabled, both);
    expect_told(&Port::setRTSInputFlowControl, &Port::RTSInputFlowControl, both);
    expect_told(&Port::setCTSOutputFlowControl, &Port::CTSOutputFlowControl, both);
    expect_told(&Port::setHangupOnClose, &Port::hangupOnClose, both);
    expect_told(&Port::setLocalMode, &Port::localMode, both);
    expect_told(&Port::setCanonicalMode, &Port::canonicalMode, both);
    expect_told(&Port::setEndOfLineCharacter, &Port::endOfLineCharacter, std::array{';'});
    EXPECT_TRUE(m_port->setDataBits(7));
    EXPECT_TRUE(m_port->setStopBits(2));
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
    EXPECT_EQ(m_port->options().value(KVSerialOptionParity), "Odd");
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
