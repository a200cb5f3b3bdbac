#include "phone/Phone_Settings.h"

#include "phone/Named_Moods.h"

#include <gtest/gtest.h>

using namespace Handset;

namespace {

Phone_Settings With_Charset(const std::string& charset)
{
    Phone_Settings settings{Phone_Moods()};
    EXPECT_TRUE(settings.Do(Deed::Set_Charset, "\"" + charset + "\""));
    return settings;
}

} // namespace

TEST(Phone_Settings, Arguments_Are_Cut_At_Commas_Outside_Quotes)
{
    EXPECT_EQ(Arguments_Of("\"a,b\",145"), (std::vector<std::string_view>{"\"a,b\"", "145"}));
    EXPECT_EQ(Arguments_Of("17,,0"), (std::vector<std::string_view>{"17", "", "0"}));
    EXPECT_EQ(Arguments_Of(""), std::vector<std::string_view>{""});
}

TEST(Phone_Settings, Only_Whole_Decimal_Numbers_Are_Numbers)
{
    EXPECT_EQ(Number_Of("0"), 0);
    EXPECT_EQ(Number_Of("019"), 19);
    EXPECT_EQ(Number_Of("999999999"), 999999999);
    for (const char* wrong : {"", "-1", "+1", " 1", "1 ", "x", "1e3", "9999999999"})
        EXPECT_FALSE(Number_Of(wrong)) << wrong;
}

TEST(Phone_Settings, Echo_And_Format_Follow_The_Moods_Until_A_Command_Sets_Them)
{
    Phone_Settings settings{Phone_Moods()};
    EXPECT_TRUE(settings.Echo());
    EXPECT_FALSE(settings.Is_Text_Format());
    settings.Set_Moods({.m_no_echo = true, .m_text_only = true});
    EXPECT_FALSE(settings.Echo());
    EXPECT_TRUE(settings.Is_Text_Format());
    EXPECT_TRUE(settings.Do(Deed::Echo_On, ""));
    EXPECT_TRUE(settings.Do(Deed::Set_Format, "0"));
    EXPECT_TRUE(settings.Echo());
    EXPECT_FALSE(settings.Is_Text_Format());
    settings.Plug_In();
    EXPECT_FALSE(settings.Echo());
    EXPECT_TRUE(settings.Is_Text_Format());
}

TEST(Phone_Settings, Values_Out_Of_Range_Are_Refused_And_Change_Nothing)
{
    Phone_Settings settings{Phone_Moods()};
    const std::vector<std::pair<Deed, std::vector<std::string>>> wrong = {
        {Deed::Set_Format, {"2", ""}},
        {Deed::Set_Service, {"2"}},
        {Deed::Set_More, {"3"}},
        {Deed::Set_Centre, {"15550001234", "\"x\"", "\"\"", "\"1\",1,1"}},
        {Deed::Set_Parameters, {"256", "1,2,3,4,5", "1,x", "49,167,0,256"}},
        {Deed::Set_Charset, {"\"EBCDIC\"", "GSM", ""}},
    };
    const std::string values = "{format} {service} {more} {centre} {parameters} {charset}";
    const std::string before = settings.Filled(values);
    for (const auto& [deed, arguments] : wrong)
        for (const auto& argument : arguments)
            EXPECT_FALSE(settings.Do(deed, argument)) << argument;
    EXPECT_EQ(settings.Filled(values), before);
    EXPECT_EQ(before, "0 0 0 +15550009999 17,167,0,0 GSM");
}

TEST(Phone_Settings, What_A_Parameter_Line_Leaves_Out_Keeps_Its_Value)
{
    Phone_Settings settings{Phone_Moods()};
    EXPECT_TRUE(settings.Do(Deed::Set_Parameters, "17,255,0,16"));
    EXPECT_TRUE(settings.Do(Deed::Set_Parameters, "49,,1"));
    EXPECT_EQ(settings.Filled("{parameters}"), "49,255,1,16");
    EXPECT_TRUE(settings.Do(Deed::Set_Parameters, "25,\"26/11/20,18:00:00+00\""));
    EXPECT_EQ(settings.First_Octet(), 25);
}

TEST(Phone_Settings, The_Centre_Takes_The_Type_Of_Address)
{
    Phone_Settings settings{Phone_Moods()};
    EXPECT_TRUE(settings.Do(Deed::Set_Centre, "\"1555\",145"));
    EXPECT_EQ(settings.Filled("{centre},{centre type}"), "+1555,145");
    EXPECT_TRUE(settings.Do(Deed::Set_Centre, "\"0155\",129"));
    EXPECT_EQ(settings.Filled("{centre},{centre type}"), "0155,129");
    settings.Reset();
    EXPECT_EQ(settings.Centre(), "0155") << "a phone keeps its centre";
    settings.Plug_In();
    EXPECT_EQ(settings.Centre(), "+15550009999");
}

TEST(Phone_Settings, Numbers_Are_Shown_And_Understood_In_Hexadecimal_Where_The_Mood_Or_The_Charset_Asks)
{
    EXPECT_EQ(Phone_Settings({.m_smsc = "+1", .m_smsc_in_ucs2 = true}).Filled("{centre}"), "002B0031");
    EXPECT_EQ(With_Charset("UCS2").Filled("{centre}").substr(0, 8), "002B0031");
    EXPECT_EQ(With_Charset("UCS2").Number("002B00340039", ""), "+49");
    EXPECT_EQ(With_Charset("HEX").Number("00340039", "145"), "+49");
    EXPECT_EQ(With_Charset("UCS2").Number("0123456789", ""), "0123456789") << "plain digits stay";
    EXPECT_EQ(With_Charset("IRA").Number("00340039", ""), "00340039");
    EXPECT_EQ(Phone_Settings({.m_charsets = "\"UCS2\",\"IRA\""}).Charset(), "UCS2") << "the first, without GSM";
}

TEST(Phone_Settings, What_Cannot_Be_Dialled_Is_No_Number)
{
    const Phone_Settings settings{Phone_Moods()};
    EXPECT_EQ(settings.Number("+49*#1", ""), "+49*#1");
    for (const char* wrong : {"", "+", "4+9", "x", "4 9", "-1"})
        EXPECT_EQ(settings.Number(wrong, ""), "") << wrong;
}

TEST(Phone_Settings, Braces_That_Name_No_Value_Stay)
{
    const Phone_Settings settings{Phone_Moods()};
    EXPECT_EQ(settings.Filled("{x} {format} {"), "{x} 0 {");
    EXPECT_EQ(settings.Filled("{{format}}"), "{0}");
}
