#include "device/Device_Test.h"

namespace {

class Queries : public Device_Test
{
protected:
    Queries() { Connect(m_session, m_phone); }

    void Answers(const std::string& command, const std::string& text)
    {
        m_phone.Will_Answer(command, "\r\n" + text + "\r\n\r\nOK\r\n");
    }

    std::string Shown(Phone_Value value) const { return m_values.Text(value).toStdString(); }

    Virtual_Phone m_phone;
    Watched_Calls m_calls;
    MFCSMS m_session{m_calls};
    Phone_Values m_values;
};

// A display whose fields hold something already.
class Filled_Values : public Phone_Values
{
public:
    Filled_Values()
    {
        for (int value = 0; value < Phone_Value_Count; ++value)
            Set_Phone_Value(static_cast<Phone_Value>(value), QStringLiteral("as it was"));
    }
};

class Burning_Display : public Phone_Values_Display
{
public:
    void Set_Phone_Value(Phone_Value, const QString&) override { throw Device_Exception("no display"); }
};

class Broken_Display : public Phone_Values_Display
{
public:
    void Set_Phone_Value(Phone_Value, const QString&) override { throw std::logic_error("no display"); }
};

} // namespace

TEST_F(Queries, The_Nine_Values_Are_Asked_For_In_Their_Order)
{
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, m_values));
    EXPECT_EQ(m_phone.Heard_Bytes(),
              "AT\r\nAT+GMI\r\nAT+GMM\rAT+CGSN\rAT+CIMI\rAT+CBC\rAT+CSQ\rAT+COPS?\rAT+GMR\rAT+CSCA?\r");
    EXPECT_EQ(Shown(Phone_Value::Manufacturer), "Corvane");
    EXPECT_EQ(Shown(Phone_Value::Model), "Virtual Phone");
    EXPECT_EQ(Shown(Phone_Value::Imei), "490154203237518");
    EXPECT_EQ(Shown(Phone_Value::Imsi), "001010123456789");
    EXPECT_EQ(Shown(Phone_Value::Battery), "85%");
    EXPECT_EQ(Shown(Phone_Value::Signal), "High (20)");
    EXPECT_EQ(Shown(Phone_Value::Network_Operator), "Corvane Test");
    EXPECT_EQ(Shown(Phone_Value::Revision), "1.0");
    EXPECT_EQ(Shown(Phone_Value::Default_Smsc), "+15550009999");
}

TEST_F(Queries, Each_Value_Has_Its_Field)
{
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Manufacturer), "_manfacturer_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Model), "_model_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Imei), "_imei_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Imsi), "_imsi_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Battery), "_battery_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Signal), "_signal_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Network_Operator), "_operator_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Revision), "_revision_edit");
    EXPECT_STREQ(Phone_Value_Field(Phone_Value::Default_Smsc), "_def_smsc_edit");
}

TEST_F(Queries, An_Undefined_Identity_Is_Asked_For_The_Other_Way)
{
    Phone_Moods moods;
    moods.m_undefined_identity = true;
    m_phone.Set_Moods(moods);
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, m_values));
    EXPECT_EQ(m_phone.Heard_Bytes(),
              "AT\r\nAT+GMI\r\nAT+CGMI\rAT+GMM\rAT+CGMM\rAT+CGSN\rAT+GSN\rAT+CIMI\rAT+CBC\rAT+CSQ\r"
              "AT+COPS?\rAT+GMR\rAT+CGMR\rAT+CSCA?\r");
    EXPECT_EQ(Shown(Phone_Value::Manufacturer), "Corvane");
    EXPECT_EQ(Shown(Phone_Value::Model), "Virtual Phone");
    EXPECT_EQ(Shown(Phone_Value::Imei), "490154203237518");
    EXPECT_EQ(Shown(Phone_Value::Revision), "1.0");
}

TEST_F(Queries, What_The_Device_Refuses_Stays_As_It_Was_But_For_The_Battery)
{
    Filled_Values values;
    for (const char* command :
         {"AT+GMI", "AT+GMM", "AT+CGSN", "AT+CIMI", "AT+CBC", "AT+CSQ", "AT+COPS?", "AT+GMR", "AT+CSCA?"})
        m_phone.Will_Answer(command, "\r\nERROR\r\n");
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, values));
    for (int value = 0; value < Phone_Value_Count; ++value) {
        const auto which = static_cast<Phone_Value>(value);
        EXPECT_EQ(values.Text(which).toStdString(),
                  which == Phone_Value::Battery ? "Device does not have a battery connected." : "as it was");
    }
}

TEST_F(Queries, A_Fallback_That_Is_Refused_Leaves_The_Value_As_It_Was)
{
    Filled_Values values;
    Answers("AT+GMI", "Undefined");
    m_phone.Will_Answer("AT+CGMI", "\r\nERROR\r\n");
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, values));
    EXPECT_EQ(values.Text(Phone_Value::Manufacturer), QStringLiteral("as it was"));
}

TEST_F(Queries, Answers_Are_Cleaned_And_Put_Into_Words)
{
    Answers("AT+GMI", "+GMI: \"NOKIA\"");
    Answers("AT+GMM", "MODEL=V70");
    Answers("AT+CGSN", "+CGSN: IMEI 490154203237518");
    Answers("AT+CIMI", "IMSI001010123456789");
    Answers("AT+CBC", "+CBC: 1,40");
    Answers("AT+CSQ", "+CSQ: 8,99");
    Answers("AT+COPS?", "+COPS: 0");
    Answers("AT+CSCA?", "+CSCA: \"002B0031003500350035\",145");
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, m_values));
    EXPECT_EQ(Shown(Phone_Value::Manufacturer), "NIA");
    EXPECT_EQ(Shown(Phone_Value::Model), "V70");
    EXPECT_EQ(Shown(Phone_Value::Imei), "490154203237518");
    EXPECT_EQ(Shown(Phone_Value::Imsi), "001010123456789");
    EXPECT_EQ(Shown(Phone_Value::Battery), "40% ( Charging )");
    EXPECT_EQ(Shown(Phone_Value::Signal), "Low (8)");
    EXPECT_EQ(Shown(Phone_Value::Network_Operator), "0");
    EXPECT_EQ(Shown(Phone_Value::Default_Smsc), "+1555");
}

TEST_F(Queries, A_Device_Without_A_Service_Centre_Command_Is_Shown_So)
{
    Phone_Moods moods;
    moods.m_smsc_not_supported = true;
    m_phone.Set_Moods(moods);
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, m_values));
    EXPECT_EQ(Shown(Phone_Value::Default_Smsc), "COMMAND NOT SUPPORT");
}

TEST_F(Queries, A_Device_Without_A_Service_Centre_Shows_None)
{
    Phone_Moods moods;
    moods.m_no_smsc = true;
    m_phone.Set_Moods(moods);
    Filled_Values values;
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, values));
    EXPECT_EQ(values.Text(Phone_Value::Default_Smsc), QString());
}

TEST_F(Queries, A_Command_That_Cannot_Be_Written_Ends_The_Run_And_Keeps_What_Is_There)
{
    int turn = 0;
    m_calls.Will_Do("write", [&](void*) {
        if (++turn > 3) {
            errno = EIO;
            return -1;
        }
        m_phone.Says("\r\nvalue\r\n\r\nOK\r\n");
        return 100;
    });
    Filled_Values values;
    EXPECT_FALSE(m_session.Read_Ph_Values(No_Descriptor, values));
    EXPECT_EQ(values.Text(Phone_Value::Manufacturer), QStringLiteral("value"));
    EXPECT_EQ(values.Text(Phone_Value::Model), QStringLiteral("value"));
    EXPECT_EQ(values.Text(Phone_Value::Imei), QStringLiteral("as it was"));
    EXPECT_EQ(turn, 4);
}

TEST_F(Queries, A_Hang_Up_Fails_Every_Query)
{
    m_phone.Hang_Up();
    EXPECT_FALSE(m_session.Read_Ph_Values(No_Descriptor, m_values));
    EXPECT_TRUE(m_session.Get_IMEI_Number(No_Descriptor).isNull());
    EXPECT_TRUE(m_session.Model_Name(No_Descriptor).isNull());
    EXPECT_FALSE(m_session.Default_SMSC_Hai(No_Descriptor));
}

TEST_F(Queries, An_Exception_Of_The_Device_Kind_Ends_The_Run_With_Its_Line)
{
    Burning_Display display;
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, display));
    EXPECT_EQ(m_log.Count("\nException CATCH\n"), 1);
    EXPECT_EQ(m_phone.Heard(), Lines("AT", "AT+GMI"));
}

TEST_F(Queries, An_Exception_Of_Another_Kind_Passes_Through)
{
    Broken_Display display;
    EXPECT_THROW(m_session.Read_Ph_Values(No_Descriptor, display), std::logic_error);
    EXPECT_FALSE(m_log.Has("\nException CATCH\n"));
}

TEST_F(Queries, A_Single_Imei_Is_Asked_For_With_Its_Fallback)
{
    EXPECT_EQ(m_session.Get_IMEI_Number(No_Descriptor), QStringLiteral("490154203237518"));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CGSN\r");
    m_phone.Forget();
    Answers("AT+CGSN", "Undefined");
    Answers("AT+GSN", "IMEI 123");
    EXPECT_EQ(m_session.Get_IMEI_Number(No_Descriptor), QStringLiteral("123"));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CGSN\rAT+GSN\r");
    m_phone.Will_Answer("AT+CGSN", "\r\nERROR\r\n");
    EXPECT_TRUE(m_session.Get_IMEI_Number(No_Descriptor).isNull());
}

TEST_F(Queries, A_Single_Model_Is_Asked_For_With_Its_Fallback)
{
    Answers("AT+GMM", "Undefined");
    Answers("AT+CGMM", "MODEL V70");
    EXPECT_EQ(m_session.Model_Name(No_Descriptor), QStringLiteral("V70"));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+GMM\rAT+CGMM\r");
    m_phone.Will_Answer("AT", "\r\nERROR\r\n");
    EXPECT_TRUE(m_session.Model_Name(No_Descriptor).isNull());
}

TEST_F(Queries, A_Service_Centre_Counts_When_Its_Number_Is_Not_Empty)
{
    EXPECT_TRUE(m_session.Default_SMSC_Hai(No_Descriptor));
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CSCA?\r");
    for (const char* answer : {"+CSCA: \"\",129", "+CSCA: \"  \",129", "+CSCA: 1555"}) {
        Answers("AT+CSCA?", answer);
        EXPECT_FALSE(m_session.Default_SMSC_Hai(No_Descriptor)) << answer;
    }
    m_phone.Will_Answer("AT+CSCA?", "\r\nERROR\r\n");
    EXPECT_FALSE(m_session.Default_SMSC_Hai(No_Descriptor));
}
