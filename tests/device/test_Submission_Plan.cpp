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

const QString Number = QStringLiteral("0123456789");

std::string In_Words(const Row& row, const Outgoing_Message& message)
{
    return std::to_string(row.m_length) + " of " + QString(row.m_character).toStdString() +
           (row.m_is_unicode ? " in UCS2" : "") + (message.m_is_flash ? ", flash" : "") + " through \"" +
           message.m_smsc.toStdString() + "\"";
}

// Every row, with and without a centre and as either class.
template <typename Check>
void For_Each_Message(Check check)
{
    for (const Row& row : Table) {
        const QString text(row.m_length, row.m_character);
        for (const char* smsc : {"", "+15550009999", "12345", "+"}) {
            for (const bool is_flash : {false, true}) {
                const Outgoing_Message message{text, Number, QString::fromLatin1(smsc), is_flash, row.m_is_unicode};
                SCOPED_TRACE(In_Words(row, message));
                check(row, message, Plan_Pdu(message, {}));
            }
        }
    }
}

QString Encoded(const Outgoing_Message& message, bool is_single, int parts, int part)
{
    const PDU encoder;
    return is_single ? encoder.EncodePDU(message.m_text, message.m_number, message.m_smsc, 0, true, message.m_is_flash,
                                         message.m_is_unicode)
                     : encoder.Encode_UDH_PDU(message.m_text, message.m_number, message.m_smsc, 0, true,
                                              message.m_is_flash, parts, part, message.m_is_unicode);
}

} // namespace

TEST(Submission_Plan, A_Message_Is_One_Frame_Or_Parts_Of_The_Lengths_In_The_Table)
{
    For_Each_Message([](const Row& row, const Outgoing_Message&, const Submission_Plan& plan) {
        EXPECT_EQ(plan.m_is_single, row.m_is_single);
        EXPECT_EQ(plan.m_parts, row.m_parts);
        ASSERT_EQ(plan.m_frames.size(), static_cast<size_t>(row.m_parts));
        EXPECT_EQ(plan.m_frames.front().m_length, row.m_first_length);
        EXPECT_EQ(plan.m_frames.back().m_length, row.m_last_length);
    });
}

TEST(Submission_Plan, The_Frames_Are_The_Encoders_And_Each_Is_As_Long_As_Announced)
{
    For_Each_Message([](const Row& row, const Outgoing_Message& message, const Submission_Plan& plan) {
        for (int part = 1; part <= row.m_parts; ++part) {
            const Pdu_Frame& frame = plan.m_frames.at(static_cast<size_t>(part - 1));
            EXPECT_TRUE(frame.Is_Made());
            EXPECT_EQ(QString::fromLatin1(frame.m_digits), Encoded(message, row.m_is_single, row.m_parts, part));
            EXPECT_EQ(frame.m_digits.size(), frame.m_length * 2 + PDU::EncodeSMSCAddress(message.m_smsc).size());
        }
    });
}

TEST(Submission_Plan, A_Message_Without_A_Single_Frame_Is_Planned_In_Parts)
{
    For_Each_Message([](const Row& row, const Outgoing_Message& message, const Submission_Plan& plan) {
        const auto single = Single_Frame(message, {});
        ASSERT_EQ(single.has_value(), row.m_is_single);
        if (single) {
            EXPECT_EQ(single->m_digits, plan.m_frames.front().m_digits);
        }
    });
}

TEST(Submission_Plan, A_Longer_Number_Makes_A_Full_Message_Go_In_Parts)
{
    for (const bool is_unicode : {false, true}) {
        const QString full(is_unicode ? 70 : 160, Plain);
        EXPECT_TRUE(Plan_Pdu({full, Number, QString(), false, is_unicode}, {}).m_is_single);
        const Submission_Plan plan = Plan_Pdu({full, Number + u'0', QString(), false, is_unicode}, {});
        EXPECT_FALSE(plan.m_is_single);
        EXPECT_EQ(plan.m_frames.size(), 2u);
    }
    // Nothing to cut up is no part at all.
    EXPECT_TRUE(Plan_Pdu({QString(), QString(300, u'1'), QString(), false, false}, {}).m_frames.empty());
}

TEST(Submission_Plan, It_Ends_With_The_Frame_That_Cannot_Be_Made)
{
    const QChar only = u'1';
    const QString endless = QString::fromRawData(&only, qsizetype{1} << 62); // refused before it is looked at
    for (const bool is_unicode : {false, true}) {
        const Submission_Plan single = Plan_Pdu({QStringLiteral("hello"), endless, QString(), false, is_unicode}, {});
        EXPECT_TRUE(single.m_is_single);
        ASSERT_EQ(single.m_frames.size(), 1u);
        EXPECT_FALSE(single.m_frames[0].Is_Made());
        const Submission_Plan parts = Plan_Pdu({QString(320, Plain), endless, QString(), false, is_unicode}, {});
        EXPECT_FALSE(parts.m_is_single);
        EXPECT_EQ(parts.m_parts, is_unicode ? 5 : 3);
        ASSERT_EQ(parts.m_frames.size(), 1u);
        EXPECT_FALSE(parts.m_frames[0].Is_Made());
    }
}
