#include "records/Job_Line.h"

#include <gtest/gtest.h>

using namespace Job_Line;

TEST(Job_Line_Test, The_Checksum_Is_The_One_Of_The_Standard)
{
    EXPECT_EQ(Crc_32(""), 0U);
    EXPECT_EQ(Crc_32("a"), 0xE8B7BE43U);
    EXPECT_EQ(Crc_32("123456789"), 0xCBF43926U);
    EXPECT_EQ(Crc_32("The quick brown fox jumps over the lazy dog"), 0x414FA339U);
    EXPECT_EQ(Crc_32(QByteArray(4, '\0')), 0x2144DF1CU);
    EXPECT_EQ(Crc_32(QByteArray(4, '\xFF')), 0xFFFFFFFFU);
}

TEST(Job_Line_Test, A_Field_Holds_Any_Text_Without_A_Blank)
{
    const std::pair<QString, QByteArray> Table[] = {
        {"", "-"},
        {"-", "%2D"},
        {"--", "--"},
        {"/dev/ttyUSB0", "/dev/ttyUSB0"},
        {"no word", "no%20word"},
        {"100 %", "100%20%25"},
        {"%20", "%2520"},
        {"a\r\nb\tc", "a%0D%0Ab%09c"},
        {QString(QChar(0)), "%00"},
        {QString(QChar(0x7F)), "%7F"},
        {QStringLiteral("żółć 🙂"), "żółć%20🙂"},
    };
    for (const auto& [text, field] : Table) {
        EXPECT_EQ(Field(text), field);
        EXPECT_EQ(Text_Of(field), text) << field.constData();
    }
    for (const char* field : {"", "a b", "%", "%2", "%2d", "%41", "%zz", "a\tb", "\xFF", "\xED\xA0\x80"})
        EXPECT_EQ(Text_Of(field), std::nullopt) << field;
}

TEST(Job_Line_Test, A_Time_Is_Written_In_Full_And_Read_Back_To_The_Second)
{
    const std::pair<qint64, QByteArray> Table[] = {
        {0, "1970-01-01T00:00:00Z"},
        {951782399, "2000-02-28T23:59:59Z"},
        {951782400, "2000-02-29T00:00:00Z"},
        {1795252500, "2026-11-21T09:15:00Z"},
        {253402300799, "9999-12-31T23:59:59Z"},
    };
    for (const auto& [seconds, field] : Table) {
        EXPECT_EQ(Time(seconds), field);
        EXPECT_EQ(Seconds_Of(field), seconds);
    }
    EXPECT_EQ(Time(-1), "1970-01-01T00:00:00Z");
    EXPECT_EQ(Time(std::numeric_limits<qint64>::max()), "9999-12-31T23:59:59Z");
    for (const char* field : {"", "2026-11-21", "2026-11-21T09:15:00", "2026-11-21 09:15:00Z", "2026-02-29T00:00:00Z",
                              "2026-11-21T24:00:00Z", "2026-11-21T09:60:00Z", "2026-11-21T09:15:60Z",
                              "1969-12-31T23:59:59Z", "0000-01-01T00:00:00Z", "+026-11-21T09:15:00Z",
                              "2026-1a-21T09:15:00Z", "2026-11-21T09:15:00z", "2026-11-21T09:15:00Z0"})
        EXPECT_EQ(Seconds_Of(field), std::nullopt) << field;
}

TEST(Job_Line_Test, A_Number_Is_Plain_Digits_Within_Its_Limits)
{
    EXPECT_EQ(Number_Of("0", 0, 255), 0);
    EXPECT_EQ(Number_Of("255", 0, 255), 255);
    EXPECT_EQ(Number_Of("999999999999999999", 0, std::numeric_limits<qint64>::max()), 999999999999999999);
    for (const char* field : {"", "256", "-1", "+1", "01", "00", "1 ", "1a", "9999999999999999999", "4294967297"})
        EXPECT_EQ(Number_Of(field, 0, 255), std::nullopt) << field;
    EXPECT_EQ(Number_Of("0", 1, 255), std::nullopt);
}

TEST(Job_Line_Test, A_Whole_Line_Ends_With_Its_Checksum)
{
    EXPECT_EQ(Whole({"H", "1", "1", "1", "2026-11-21T09:15:01Z"}), "H 1 1 1 2026-11-21T09:15:01Z 803fabd9\n");
    const Fields fields = Fields_Of("H 1 1 1 2026-11-21T09:15:01Z 803fabd9");
    ASSERT_EQ(fields.size(), 5);
    EXPECT_EQ(fields[0], "H");
    EXPECT_EQ(fields[4], "2026-11-21T09:15:01Z");
    EXPECT_EQ(Fields_Of(Whole({"", ""}).chopped(1)).size(), 2) << "empty fields are for those who want them to refuse";
}

TEST(Job_Line_Test, A_Line_With_Any_Bit_Changed_Has_No_Fields)
{
    const QByteArray line = Whole({"S", "12", "1", "17", "2026-11-21T09:15:01Z"}).chopped(1);
    ASSERT_FALSE(Fields_Of(line).isEmpty());
    for (qsizetype at = 0; at < line.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            QByteArray changed = line;
            changed[at] = static_cast<char>(changed.at(at) ^ 1 << bit);
            EXPECT_TRUE(Fields_Of(changed).isEmpty()) << changed.constData();
        }
        EXPECT_TRUE(Fields_Of(line.left(at)).isEmpty()) << at;
    }
    for (const char* odd : {"", " ", " 00000000", "00000000", "H 803fabd", "H  00000000"})
        EXPECT_TRUE(Fields_Of(odd).isEmpty()) << odd;
}

TEST(Job_Line_Test, A_Whole_Line_Is_Seen_In_Front_Of_Something_Else)
{
    const QByteArray line = Whole({"H", "1", "1", "1", "2026-11-21T09:15:01Z"}).chopped(1);
    EXPECT_TRUE(Begins_With_A_Whole_Line(line + "S"));
    EXPECT_TRUE(Begins_With_A_Whole_Line(line + '\0' + line));
    EXPECT_FALSE(Begins_With_A_Whole_Line(line)) << "only its LF is missing";
    for (qsizetype size = 0; size < line.size(); ++size)
        EXPECT_FALSE(Begins_With_A_Whole_Line(line.left(size) + '\0' + line.mid(size + 1))) << size;
    EXPECT_FALSE(Begins_With_A_Whole_Line(QByteArray(10000, '\0')));
}
