#include "device/Device_Test.h"

namespace {

class Queries : public Session_Test
{
protected:
    Queries() { Connect(m_session, m_phone); }

    void Answers(const std::string& command, const std::string& text)
    {
        m_phone.Will_Answer(command, "\r\n" + text + "\r\n\r\nOK\r\n");
    }

    // All nine values, in their order.
    static std::vector<std::string> Shown(const Phone_Values& values)
    {
        std::vector<std::string> shown;
        for (int value = 0; value < Phone_Value_Count; ++value)
            shown.push_back(values.Text(static_cast<Phone_Value>(value)).toStdString());
        return shown;
    }

    std::vector<std::string> Read()
    {
        EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, m_values));
        return Shown(m_values);
    }

    Phone_Values m_values;
};

constexpr char As_It_Was[] = "as it was";

// Fields that hold something already.
Phone_Values Filled()
{
    Phone_Values values;
    for (int value = 0; value < Phone_Value_Count; ++value)
        values.Set_Phone_Value(static_cast<Phone_Value>(value), As_It_Was);
    return values;
}

template <typename Exception>
class Display_That_Throws : public Phone_Values_Display
{
public:
    void Set_Phone_Value(Phone_Value, const QString&) override { throw Exception("no display"); }
};

} // namespace

TEST_F(Queries, The_Nine_Values_Are_Asked_For_In_Their_Order)
{
    EXPECT_EQ(Read(), Lines("Corvane", "Virtual Phone", "490154203237518", "001010123456789", "85%", "High (20)",
                            "Corvane Test", "1.0", "+15550009999"));
    EXPECT_EQ(m_phone.Heard_Bytes(),
              "AT\r\nAT+GMI\r\nAT+GMM\rAT+CGSN\rAT+CIMI\rAT+CBC\rAT+CSQ\rAT+COPS?\rAT+GMR\rAT+CSCA?\r");
}

TEST_F(Queries, Each_Value_Has_Its_Field)
{
    std::vector<std::string> fields;
    for (int value = 0; value < Phone_Value_Count; ++value)
        fields.emplace_back(Phone_Value_Field(static_cast<Phone_Value>(value)));
    EXPECT_EQ(fields, Lines("_manfacturer_edit", "_model_edit", "_imei_edit", "_imsi_edit", "_battery_edit",
                            "_signal_edit", "_operator_edit", "_revision_edit", "_def_smsc_edit"));
}

TEST_F(Queries, An_Undefined_Identity_Is_Asked_For_The_Other_Way)
{
    Wears(Mood(&Phone_Moods::m_undefined_identity));
    EXPECT_EQ(Read(), Lines("Corvane", "Virtual Phone", "490154203237518", "001010123456789", "85%", "High (20)",
                            "Corvane Test", "1.0", "+15550009999"));
    EXPECT_EQ(m_phone.Heard_Bytes(),
              "AT\r\nAT+GMI\r\nAT+CGMI\rAT+GMM\rAT+CGMM\rAT+CGSN\rAT+GSN\rAT+CIMI\rAT+CBC\rAT+CSQ\r"
              "AT+COPS?\rAT+GMR\rAT+CGMR\rAT+CSCA?\r");
}

TEST_F(Queries, What_The_Device_Refuses_Stays_As_It_Was_But_For_The_Battery)
{
    for (const char* command :
         {"AT+CGMI", "AT+GMM", "AT+CGSN", "AT+CIMI", "AT+CBC", "AT+CSQ", "AT+COPS?", "AT+GMR", "AT+CSCA?"})
        m_phone.Will_Answer(command, "\r\nERROR\r\n");
    const std::string same = As_It_Was;
    const auto expected =
        Lines(same, same, same, same, "Device does not have a battery connected.", same, same, same, same);
    for (const char* first : {"\r\nERROR\r\n", "\r\nUndefined\r\n\r\nOK\r\n"}) { // and then its fallback
        m_phone.Will_Answer("AT+GMI", first);
        Phone_Values values = Filled();
        EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, values));
        EXPECT_EQ(Shown(values), expected) << first;
    }
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
    EXPECT_EQ(Read(), Lines("NIA", "V70", "490154203237518", "001010123456789", "40% ( Charging )", "Low (8)", "0",
                            "1.0", "+1555"));
}

TEST_F(Queries, A_Device_Without_A_Service_Centre_Or_The_Command_Is_Shown_So)
{
    Wears(Mood(&Phone_Moods::m_smsc_not_supported));
    EXPECT_EQ(Read().back(), "COMMAND NOT SUPPORT");
    Wears(Mood(&Phone_Moods::m_no_smsc));
    EXPECT_EQ(Read().back(), "");
}

TEST_F(Queries, A_Command_That_Cannot_Be_Written_Ends_The_Run_And_Keeps_What_Is_There)
{
    int turn = 0;
    m_calls.Will_Do("write", [&](void*) {
        if (++turn > 3)
            return Watched_Calls::Failed(EIO);
        m_phone.Says("\r\nvalue\r\n\r\nOK\r\n");
        return 100;
    });
    Phone_Values values = Filled();
    EXPECT_FALSE(m_session.Read_Ph_Values(No_Descriptor, values));
    EXPECT_EQ(values.Text(Phone_Value::Manufacturer), "value");
    EXPECT_EQ(values.Text(Phone_Value::Model), "value");
    EXPECT_EQ(values.Text(Phone_Value::Imei), As_It_Was);
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

TEST_F(Queries, An_Exception_Of_The_Device_Kind_Ends_The_Run_With_Its_Line_And_Another_Passes_Through)
{
    Display_That_Throws<std::logic_error> broken;
    EXPECT_THROW(m_session.Read_Ph_Values(No_Descriptor, broken), std::logic_error);
    EXPECT_FALSE(m_log.Has("\nException CATCH\n"));
    m_phone.Forget();
    Display_That_Throws<Device_Exception> burning;
    EXPECT_TRUE(m_session.Read_Ph_Values(No_Descriptor, burning));
    EXPECT_EQ(m_log.Count("\nException CATCH\n"), 1);
    EXPECT_EQ(m_phone.Heard(), Lines("AT", "AT+GMI"));
}

TEST_F(Queries, A_Single_Imei_Is_Asked_For_With_Its_Fallback)
{
    EXPECT_EQ(m_session.Get_IMEI_Number(No_Descriptor), "490154203237518");
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CGSN\r");
    m_phone.Forget();
    Answers("AT+CGSN", "Undefined");
    Answers("AT+GSN", "IMEI 123");
    EXPECT_EQ(m_session.Get_IMEI_Number(No_Descriptor), "123");
    EXPECT_EQ(m_phone.Heard_Bytes(), "AT\r\nAT+CGSN\rAT+GSN\r");
    m_phone.Will_Answer("AT+CGSN", "\r\nERROR\r\n");
    EXPECT_TRUE(m_session.Get_IMEI_Number(No_Descriptor).isNull());
}

TEST_F(Queries, A_Single_Model_Is_Asked_For_With_Its_Fallback)
{
    Answers("AT+GMM", "Undefined");
    Answers("AT+CGMM", "MODEL V70");
    EXPECT_EQ(m_session.Model_Name(No_Descriptor), "V70");
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
