#include "device/Answer_Cleaning.h"

#include <gmock/gmock.h>

namespace {

struct Row
{
    const char* m_value;
    const char* m_shown;
};

template <typename Shaping>
void Expect_Rows(Shaping shaping, std::initializer_list<Row> rows)
{
    for (const Row& row : rows)
        EXPECT_EQ(shaping(QString::fromUtf8(row.m_value)), QString::fromUtf8(row.m_shown)) << row.m_value;
}

} // namespace

TEST(Answer_Cleaning, An_Answer_Loses_Echo_Prefix_Marks_And_Ok)
{
    const QStringList words = {QStringLiteral("AT+GMI"), QStringLiteral("AT+CGMI"), QStringLiteral("+GMI"),
                               QStringLiteral("+CGMI")};
    Expect_Rows([&](const QString& answer) { return Clean_Answer(answer, words); },
                {{"AT+GMI\r\r\nCorvane\r\n\r\nOK", "Corvane"},
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
                 {"", ""}});
}

TEST(Answer_Cleaning, Quotes_Are_Kept_Where_They_Hold_The_Value)
{
    EXPECT_EQ(Clean_Answer(QStringLiteral("+COPS: 0,0,\"Net\"\r\n\r\nOK"), {QStringLiteral("+COPS")}, Quotes::Kept),
              QStringLiteral("0,0,\"Net\""));
}

TEST(Answer_Cleaning, The_Text_Between_The_First_Two_Quotes)
{
    EXPECT_EQ(Quoted_Text(QStringLiteral("0,0,\"Net\",\"More\"")), QStringLiteral("Net"));
    EXPECT_EQ(Quoted_Text(QStringLiteral("\"\",129")), QString());
    EXPECT_FALSE(Quoted_Text(QStringLiteral("no quotes")));
    EXPECT_FALSE(Quoted_Text(QStringLiteral("one \" quote")));
}

TEST(Answer_Cleaning, A_Leading_Word_Is_Dropped)
{
    Expect_Rows([](const QString& value) { return Without_Leading_Word(value, QStringLiteral("IMEI")); },
                {{"IMEI 490154203237518", "490154203237518"},
                 {"IMEI490154203237518", "490154203237518"},
                 {"490154203237518", "490154203237518"},
                 {"490 IMEI", "490 IMEI"},
                 {"IMEI", ""},
                 {"", ""}});
    EXPECT_EQ(Without_Leading_Word(QStringLiteral(" kept "), QString()), QStringLiteral(" kept "));
}

TEST(Answer_Cleaning, The_Model_Is_What_Follows_Its_Word_And_One_Separator)
{
    Expect_Rows(Model_Text, {{"MODEL=V70", "V70"},
                             {"MODEL: V70", "V70"},
                             {"the MODEL V70 ", "V70"},
                             {"MODELV70", "70"},
                             {"MODEL", ""},
                             {"V70", "V70"},
                             {"model V70", "model V70"}});
}

TEST(Answer_Cleaning, The_Battery_In_Words)
{
    Expect_Rows(Battery_Text, {{"0,85", "85%"},
                               {"0, 85", " 85%"},
                               {"1,40", "40% ( Charging )"},
                               {"2,0", "Device does not have a battery connected."},
                               {"2", "Device does not have a battery connected."},
                               {"3,12", "Recognized power fault."},
                               {"4,77", "77"},
                               {"7", ""},
                               {"0", "%"},
                               {"12,50", "% ( Charging )"},
                               {"", ""}});
}

TEST(Answer_Cleaning, The_Signal_In_Words)
{
    Expect_Rows(Signal_Text, {{"99,99", "Unknown"},
                              {"0,99", "Low (0)"},
                              {"8,0", "Low (8)"},
                              {"9,0", "Medium (9)"},
                              {"14,0", "Medium (14)"},
                              {"15,0", "Good (15)"},
                              {"18,0", "Good (18)"},
                              {"19,0", "High (19)"},
                              {"31,0", "High (31)"},
                              {"20", "High (20)"},
                              {"99", "Unknown"},
                              {"099,0", "High (99)"},
                              {"", "Low (0)"},
                              {"x,1", "Low (0)"},
                              {"12abc", "Medium (12)"},
                              {"-5,0", "Low (-5)"},
                              {"99999999999,1", "High (2147483647)"}});
}

TEST(Answer_Cleaning, The_Operator_Is_The_Quoted_Name_Or_The_Whole_Value)
{
    Expect_Rows(Operator_Text,
                {{"0,0,\"Corvane Test\",2", "Corvane Test"}, {"0", "0"}, {"0,2,\"26201", "0,2,\"26201"}});
}

TEST(Answer_Cleaning, A_Service_Centre_Is_Decoded_Unless_It_Begins_With_A_Plus)
{
    Expect_Rows(Service_Centre_Text, {{"\"+15550009999\",145", "+15550009999"},
                                      {"\"002B0031003500350035\",145", "+1555"},
                                      {"\"\",129", ""},
                                      {"COMMAND NOT SUPPORT", "COMMAND NOT SUPPORT"},
                                      {"+15550009999", "+15550009999"}});
}
