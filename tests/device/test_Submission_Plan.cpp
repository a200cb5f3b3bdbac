#include "device/Submission_Plan.h"

#include "device/Submission_Rules.h"

#include <gmock/gmock.h>

namespace {

constexpr QChar Plain = u'A';
constexpr QChar Escaped = u'['; // two septets in a single message

// A message to a number of ten digits: what is announced before its first and its last frame.
struct Row
{
    int m_length;
    QChar m_character;
    bool m_is_unicode;
    bool m_is_single;
    int m_parts;
    int m_first_length;
    int m_last_length;
};

const Row Table[] = {
    {0, Plain, false, true, 1, 13, 13},       {1, Plain, false, true, 1, 14, 14},
    {70, Plain, false, true, 1, 75, 75},      {71, Plain, false, true, 1, 76, 76},
    {159, Plain, false, true, 1, 153, 153},   {160, Plain, false, true, 1, 153, 153},
    {161, Plain, false, false, 2, 153, 28},   {304, Plain, false, false, 2, 153, 153},
    {1600, Plain, false, false, 11, 153, 90}, {1, Escaped, false, true, 1, 15, 15},
    {80, Escaped, false, true, 1, 153, 153},  {81, Escaped, false, false, 1, 91, 91},
    {159, Escaped, false, false, 2, 153, 27}, {160, Escaped, false, false, 2, 153, 27},
    {0, Plain, true, true, 1, 13, 13},        {1, Plain, true, true, 1, 15, 15},
    {70, Plain, true, true, 1, 153, 153},     {71, Plain, true, false, 2, 152, 30},
    {70, Escaped, true, true, 1, 153, 153},   {159, Plain, true, false, 3, 152, 74},
    {160, Plain, true, false, 3, 152, 76},    {161, Plain, true, false, 3, 152, 78},
    {1600, Plain, true, false, 25, 152, 52},
};

const QString Number = "0123456789";

QString Encoded(const Outgoing_Message& message, bool is_single, int parts, int part)
{
    const PDU encoder;
    return is_single ? encoder.EncodePDU(message.m_text, message.m_number, message.m_smsc, 0, true, message.m_is_flash,
                                         message.m_is_unicode)
                     : encoder.Encode_UDH_PDU(message.m_text, message.m_number, message.m_smsc, 0, true,
                                              message.m_is_flash, parts, part, message.m_is_unicode);
}

// One frame or parts of the lengths in the table, each the encoder's and as long as announced.
void Expect_Plan(const Row& row, const Outgoing_Message& message)
{
    SCOPED_TRACE(testing::Message() << row.m_length << " of " << QString(row.m_character).toStdString() << " through \""
                                    << message.m_smsc.toStdString() << "\", flash: " << message.m_is_flash);
    const Submission_Plan plan = Plan_Pdu(message, {});
    EXPECT_EQ(plan.m_is_single, row.m_is_single);
    EXPECT_EQ(plan.m_parts, row.m_parts);
    EXPECT_EQ(Parts_In_Pdu_Mode(message), row.m_parts);
    ASSERT_EQ(plan.m_frames.size(), static_cast<size_t>(row.m_parts));
    EXPECT_EQ(plan.m_frames.front().m_length, row.m_first_length);
    EXPECT_EQ(plan.m_frames.back().m_length, row.m_last_length);
    int part = 0;
    for (const Pdu_Frame& frame : plan.m_frames) {
        EXPECT_TRUE(frame.Is_Made());
        EXPECT_EQ(QString::fromLatin1(frame.m_digits), Encoded(message, row.m_is_single, row.m_parts, ++part));
        EXPECT_EQ(frame.m_digits.size(), frame.m_length * 2 + PDU::EncodeSMSCAddress(message.m_smsc).size());
    }
    const auto single = Single_Frame(message, {});
    ASSERT_EQ(single.has_value(), row.m_is_single);
    EXPECT_EQ(single.value_or(plan.m_frames.front()).m_digits, plan.m_frames.front().m_digits);
}

} // namespace

TEST(Submission_Plan, A_Message_Goes_As_The_Table_Says_With_And_Without_A_Centre_And_As_Either_Class)
{
    for (const Row& row : Table) {
        for (const char* smsc : {"", "+15550009999", "12345", "+"}) {
            for (const bool is_flash : {false, true})
                Expect_Plan(row, {QString(row.m_length, row.m_character), Number, smsc, is_flash, row.m_is_unicode});
        }
    }
}

TEST(Submission_Plan, A_Longer_Number_Makes_A_Full_Message_Go_In_Parts)
{
    for (const bool is_unicode : {false, true}) {
        const QString full(is_unicode ? 70 : 160, Plain);
        EXPECT_TRUE(Plan_Pdu({full, Number, QString(), false, is_unicode}, {}).m_is_single);
        const Submission_Plan plan = Plan_Pdu({full, Number + u'0', QString(), false, is_unicode}, {});
        EXPECT_FALSE(plan.m_is_single);
        EXPECT_EQ(plan.m_frames.size(), 2u);
        EXPECT_EQ(Parts_In_Pdu_Mode({full, Number + u'0', QString(), false, is_unicode}), 2);
    }
    // Nothing to cut up is no part at all.
    const Outgoing_Message empty{QString(), QString(300, u'1'), QString(), false, false};
    EXPECT_TRUE(Plan_Pdu(empty, {}).m_frames.empty());
    EXPECT_EQ(Parts_In_Pdu_Mode(empty), Plan_Pdu(empty, {}).m_parts);
}

TEST(Submission_Plan, It_Ends_With_The_Frame_That_Cannot_Be_Made)
{
    const QChar only = u'1';
    const QString endless = QString::fromRawData(&only, qsizetype{1} << 62); // refused before it is looked at
    for (const bool is_unicode : {false, true}) {
        for (const int length : {5, 320}) {
            const Submission_Plan plan = Plan_Pdu({QString(length, Plain), endless, QString(), false, is_unicode}, {});
            EXPECT_EQ(plan.m_is_single, length == 5);
            EXPECT_EQ(plan.m_parts, length == 5 ? 1 : is_unicode ? 5 : 3);
            ASSERT_EQ(plan.m_frames.size(), 1u);
            EXPECT_FALSE(plan.m_frames[0].Is_Made());
        }
    }
}
