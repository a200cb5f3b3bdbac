#include "device/Submission_Rules.h"

#include "pdu/PDU.h"

#include <gmock/gmock.h>

TEST(Submission_Rules, The_Length_Leaves_The_Service_Centre_Out)
{
    // Numbers past 255 digits and centres past 255 octets have a length of three digits: frames of odd sizes, too.
    for (qsizetype length = 0; length <= 1100; ++length) {
        const QString digits(length, u'7');
        for (const QString& smsc : {digits, u'+' + digits, QString(length, u'+'), "٠ " + digits}) {
            for (const qsizetype number_length : {0, 11, 256}) {
                const QString pdu = PDU().EncodePDU("hello", QString(number_length, u'1'), smsc, 0, true, false, false);
                ASSERT_EQ(Submit_Length(pdu, smsc), pdu.size() / 2 - PDU::EncodeSMSCAddress(smsc).size() / 2) << length;
            }
        }
    }
}

TEST(Submission_Rules, A_Message_May_Be_Single_Up_To_160_Or_70_Characters)
{
    for (const auto& [length, seven_bit, ucs2] :
         {std::tuple(0, true, true), std::tuple(70, true, true), std::tuple(71, true, false),
          std::tuple(160, true, false), std::tuple(161, false, false)}) {
        EXPECT_EQ(May_Be_Single(length, false), seven_bit) << length;
        EXPECT_EQ(May_Be_Single(length, true), ucs2) << length;
    }
}

TEST(Submission_Rules, Parts_Are_Counted_Rounded_Up)
{
    struct Row
    {
        int m_length, m_pdu_7_bit, m_pdu_ucs2, m_text_7_bit, m_text_ucs2;
    };
    for (const Row& row : {Row{1, 1, 1, 1, 1}, Row{66, 1, 1, 1, 1}, Row{67, 1, 2, 1, 1}, Row{71, 1, 2, 1, 2},
                           Row{152, 1, 3, 1, 3}, Row{153, 2, 3, 1, 3}, Row{161, 2, 3, 2, 3}, Row{304, 2, 5, 2, 5},
                           Row{305, 3, 5, 2, 5}, Row{320, 3, 5, 2, 5}, Row{1600, 11, 25, 10, 23}}) {
        EXPECT_EQ(Pdu_Part_Count(row.m_length, false), row.m_pdu_7_bit) << row.m_length;
        EXPECT_EQ(Pdu_Part_Count(row.m_length, true), row.m_pdu_ucs2) << row.m_length;
        EXPECT_EQ(Text_Part_Count(row.m_length, false), row.m_text_7_bit) << row.m_length;
        EXPECT_EQ(Text_Part_Count(row.m_length, true), row.m_text_ucs2) << row.m_length;
    }
}

TEST(Submission_Rules, The_Text_Parts_Of_A_Message_Make_It_Up_Again)
{
    for (const bool unicode : {false, true}) {
        for (int length = 1; length <= 500; ++length) {
            const QString message = QString("abcdefghijklmnopqrstuvwxyz").repeated(20).left(length);
            QString joined;
            for (int part = 1; part <= Text_Part_Count(length, unicode); ++part) {
                const QString piece = Text_Part(message, part, unicode);
                ASSERT_GT(piece.size(), 0);
                ASSERT_LE(piece.size(), unicode ? 70 : 160);
                joined += piece;
            }
            ASSERT_EQ(joined, message);
        }
    }
}

TEST(Submission_Rules, No_Character_Of_A_Body_Ends_Or_Cancels_It)
{
    EXPECT_EQ(Harmless_Body(QString("a\x1A") + "b\x1B" + "c" + QChar(0) + "d\r\n\t"), "a b c d\r\n\t");
    EXPECT_EQ(Harmless_Body(QString()), QString());
}
