#include "device/Answer_Cleaning.h"

#include <gmock/gmock.h>

namespace {

// Each a value and what is shown of it.
using Rows = std::vector<std::pair<const char*, const char*>>;

template <typename Shaping>
void Expect_Rows(Shaping shaping, const Rows& rows)
{
    for (const auto& [value, shown] : rows)
        EXPECT_EQ(shaping(value), shown) << value;
}

} // namespace

TEST(Answer_Cleaning, An_Answer_Loses_Echo_Prefix_Marks_And_Ok)
{
    const QStringList words = {"AT+GMI", "AT+CGMI", "+GMI", "+CGMI"};
    const Rows rows = {{"AT+GMI\r\r\nCorvane\r\n\r\nOK", "Corvane"},
                       {"Corvane\r\n\r\nOK", "Corvane"},
                       {"AT+CGMI\r\r\n+CGMI: \"Corvane\"\r\n\r\nOK", "Corvane"},
                       {"+GMI: <Corvane?>\r\nOK", "Corvane"},
                       {": Corvane OK", "Corvane"},
                       {":: Corvane", ": Corvane"},
                       {"NOKIA\r\n\r\nOK", "NIA"},
                       {"Cor\\r\\nva\\nne\\r OK", "Corvane"},
                       {"two\r\nlines\r\n\r\nOK", "two\r\nlines"},
                       {"Undefined\r\n\r\nOK", "Undefined"},
                       {"OK", ""},
                       {"", ""}};
    Expect_Rows([&](const QString& answer) { return Clean_Answer(answer, words); }, rows);
}

TEST(Answer_Cleaning, Quotes_Are_Kept_Where_They_Hold_The_Value_And_The_First_Two_Enclose_It)
{
    EXPECT_EQ(Clean_Answer("+COPS: 0,0,\"Net\"\r\n\r\nOK", {"+COPS"}, Quotes::Kept), "0,0,\"Net\"");
    EXPECT_EQ(Quoted_Text("0,0,\"Net\",\"More\""), "Net");
    EXPECT_EQ(Quoted_Text("\"\",129"), QString());
    EXPECT_FALSE(Quoted_Text("no quotes"));
    EXPECT_FALSE(Quoted_Text("one \" quote"));
}

TEST(Answer_Cleaning, A_Leading_Word_Is_Dropped)
{
    const Rows rows = {{"IMEI 490154203237518", "490154203237518"},
                       {"IMEI490154203237518", "490154203237518"},
                       {"490154203237518", "490154203237518"},
                       {"490 IMEI", "490 IMEI"},
                       {"IMEI", ""},
                       {"", ""}};
    Expect_Rows([](const QString& value) { return Without_Leading_Word(value, "IMEI"); }, rows);
    EXPECT_EQ(Without_Leading_Word(" kept ", QString()), " kept ");
}

TEST(Answer_Cleaning, The_Model_Is_What_Follows_Its_Word_And_One_Separator)
{
    const Rows rows = {{"MODEL=V70", "V70"}, {"MODEL: V70", "V70"}, {"the MODEL V70 ", "V70"}, {"MODELV70", "70"},
                       {"MODEL", ""},        {"V70", "V70"},        {"model V70", "model V70"}};
    Expect_Rows(Model_Text, rows);
}

TEST(Answer_Cleaning, The_Battery_In_Words)
{
    const Rows rows = {{"0,85", "85%"}, {"0, 85", " 85%"}, {"4,77", "77"}, {"7", ""}, {"0", "%"}, {"", ""}};
    Expect_Rows(Battery_Text, rows);
    for (const char* value : {"2,0", "2"})
        EXPECT_EQ(Battery_Text(value), "Device does not have a battery connected.");
    EXPECT_EQ(Battery_Text("1,40"), "40% ( Charging )");
    EXPECT_EQ(Battery_Text("12,50"), "% ( Charging )");
    EXPECT_EQ(Battery_Text("3,12"), "Recognized power fault.");
}

TEST(Answer_Cleaning, The_Signal_In_Words)
{
    const Rows rows = {{"0,99", "Low (0)"},   {"8,0", "Low (8)"},    {"9,0", "Medium (9)"},    {"14,0", "Medium (14)"},
                       {"15,0", "Good (15)"}, {"18,0", "Good (18)"}, {"19,0", "High (19)"},    {"31,0", "High (31)"},
                       {"99,99", "Unknown"},  {"20", "High (20)"},   {"99", "Unknown"},        {"099,0", "High (99)"},
                       {"", "Low (0)"},       {"x,1", "Low (0)"},    {"12abc", "Medium (12)"}, {"-5,0", "Low (-5)"}};
    Expect_Rows(Signal_Text, rows);
    EXPECT_EQ(Signal_Text("99999999999,1"), "High (2147483647)");
}

TEST(Answer_Cleaning, The_Operator_Is_The_Quoted_Name_Or_The_Whole_Value)
{
    const Rows rows = {{"0,0,\"Corvane Test\",2", "Corvane Test"}, {"0", "0"}, {"0,2,\"26201", "0,2,\"26201"}};
    Expect_Rows(Operator_Text, rows);
}

TEST(Answer_Cleaning, A_Service_Centre_Is_Decoded_Unless_It_Begins_With_A_Plus)
{
    const Rows rows = {{"\"+15550009999\",145", "+15550009999"},
                       {"\"002B0031003500350035\",145", "+1555"},
                       {"\"\",129", ""},
                       {"COMMAND NOT SUPPORT", "COMMAND NOT SUPPORT"},
                       {"+15550009999", "+15550009999"}};
    Expect_Rows(Service_Centre_Text, rows);
}
