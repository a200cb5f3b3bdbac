#include "engine/Send_Cause.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <set>

namespace {

using Kind = Device_Cause::Kind;
using enum Cause_Class;

struct Row
{
    Cause_Class m_class;
    std::vector<int> m_numbers;
};

// 3GPP TS 24.011 annex E.2, 23.040 9.2.3.22 and 27.005 3.2.5, by what is done about each.
const std::vector<Row> Cms_Rows = {
    {This_Number, {1, 21, 195, 196}},
    {Stop, {8, 10, 28, 29, 30, 50, 69, 193, 303, 310, 313, 315, 316, 318, 330}},
    {Retry, {17, 22, 41, 47, 98, 192, 212, 314, 514, 515}},
    {Retry_Slowly, {42, 194}},
    {Ask, {27, 31, 34, 38, 81, 127, 209, 210, 213, 224, 225, 240, 253, 254, 255, 300, 500, 512, 516, 517, 600, 4096}},
    {Protocol, {95, 96, 97, 99, 111, 128, 129, 130, 143, 144, 145, 159, 160, 161, 175, 176, 198, 199, 304, 305, 321}},
    {Hold, {208, 211, 301, 302, 311, 312, 317, 320, 322, 331}},
    {Unknown_Outcome, {332, 513}},
    {Counts_As_Sent, {197}},
    {Ignore, {340}},
};

// 27.007 9.2.
const std::vector<Row> Cme_Rows = {
    {Stop, {10, 12, 13}}, {Hold, {11, 30, 32}}, {Retry, {14, 515}}, {Unknown_Outcome, {31}}, {Ask, {100}}};

const Send_Cause& Row_Of(Kind kind, int number)
{
    return Cause_Row({kind, number, {}});
}

std::map<int, Cause_Class> By_Number(const std::vector<Row>& rows)
{
    std::map<int, Cause_Class> classes;
    for (const Row& row : rows) {
        for (const int number : row.m_numbers)
            EXPECT_TRUE(classes.emplace(number, row.m_class).second) << number;
    }
    return classes;
}

} // namespace

TEST(Send_Cause, Every_Row_Of_The_Standards_Has_Its_Class_And_Every_Other_Number_Is_Asked_About)
{
    const std::pair<Kind, std::map<int, Cause_Class>> kinds[] = {{Kind::Cms, By_Number(Cms_Rows)},
                                                                 {Kind::Cme, By_Number(Cme_Rows)}};
    for (const auto& [kind, classes] : kinds) {
        for (int number = -1; number <= 5000; ++number) {
            const auto found = classes.find(number);
            EXPECT_EQ(Row_Of(kind, number).cause_class, found == classes.end() ? Ask : found->second) << number;
        }
    }
}

TEST(Send_Cause, Every_Number_Has_A_Row_Of_Its_Kind_With_A_Short_Sentence)
{
    for (const Kind kind : {Kind::Cms, Kind::Cme, Kind::Error, Kind::Words}) {
        for (int number = 0; number <= 600; ++number) {
            const Send_Cause& row = Row_Of(kind, number);
            EXPECT_EQ(row.kind, kind);
            EXPECT_TRUE(row.first <= number && number <= row.last) << number;
            const QString sentence = row.sentence;
            EXPECT_FALSE(sentence.isEmpty());
            EXPECT_LT(sentence.size(), 60) << sentence.toStdString();
            EXPECT_FALSE(sentence.contains(u'\n'));
        }
    }
}

TEST(Send_Cause, Numbers_Out_Of_All_Bounds_Are_Asked_About)
{
    for (const int number : {std::numeric_limits<int>::min(), -2, -1, std::numeric_limits<int>::max()}) {
        for (const Kind kind : {Kind::Cms, Kind::Cme})
            EXPECT_EQ(Row_Of(kind, number).cause_class, Ask);
    }
}

TEST(Send_Cause, A_Refusal_Without_A_Reason_Is_Asked_About)
{
    EXPECT_EQ(Cause_Row({}).cause_class, Ask);
    EXPECT_EQ(Reason_Of({}), QStringLiteral("The modem refuses and gives no reason."));
}

TEST(Send_Cause, So_Many_Alike_In_A_Row_Stop_The_Job)
{
    for (int number = 0; number <= 600; ++number) {
        for (const Kind kind : {Kind::Cms, Kind::Cme}) {
            const Send_Cause& row = Row_Of(kind, number);
            int expected = 3;
            if (row.cause_class == Stop || row.cause_class == Protocol)
                expected = 1;
            else if (row.cause_class == Counts_As_Sent || row.cause_class == Ignore)
                expected = 0;
            else if (kind == Kind::Cms && number == 1)
                expected = 2;
            EXPECT_EQ(row.stops_at, expected) << number;
        }
    }
    EXPECT_EQ(Cause_Row({}).stops_at, 3);
}

TEST(Send_Cause, A_Plain_Message_Is_Offered_Where_The_Alphabet_Or_The_Class_Is_Refused)
{
    const std::set<int> offered = {144, 145, 159};
    const std::set<int> own_fault = {304, 305};
    for (int number = 0; number <= 600; ++number) {
        EXPECT_EQ(Row_Of(Kind::Cms, number).offers_plain, offered.contains(number)) << number;
        EXPECT_EQ(Row_Of(Kind::Cms, number).this_number_if_others_passed, own_fault.contains(number)) << number;
        EXPECT_FALSE(Row_Of(Kind::Cme, number).offers_plain || Row_Of(Kind::Cme, number).this_number_if_others_passed);
    }
}

TEST(Send_Cause, Attempts_Wait_Longer_And_Longer)
{
    EXPECT_EQ(Retry_Waits, (std::array{5, 30, 120}));
}

TEST(Send_Cause, A_Reason_Is_The_Rows_Sentence_Or_The_Devices_Words_On_One_Line)
{
    EXPECT_EQ(Reason_Of({Kind::Cms, 500, {}}), QStringLiteral("Unknown error"));
    EXPECT_EQ(Reason_Of({Kind::Cms, 311, {}}), QStringLiteral("The SIM card wants its PIN."));
    EXPECT_EQ(Reason_Of({Kind::Words, -1, QStringLiteral("SIM PIN required")}), QStringLiteral("SIM PIN required"));
    EXPECT_EQ(Reason_Of({Kind::Words, -1, QStringLiteral("one\r\ntwo")}), QStringLiteral("one two"));
}

namespace {

struct Known_Words
{
    const char* m_words;
    Kind m_kind;
    int m_number;
};

// As phones say them that were asked for words.
constexpr Known_Words Known[] = {
    {"SIM PIN required", Kind::Cms, 311},
    {"SIM PUK required", Kind::Cms, 316},
    {"SIM not inserted", Kind::Cms, 310},
    {"SIM failure", Kind::Cms, 313},
    {"SIM busy", Kind::Cms, 314},
    {"SIM wrong", Kind::Cms, 315},
    {"(U)SIM busy", Kind::Cms, 314},
    {"USIM busy", Kind::Cms, 314},
    {"PH-SIM PIN required", Kind::Cms, 312},
    {"SIM PIN2 required", Kind::Cms, 317},
    {"no network service", Kind::Cms, 331},
    {"No network service", Kind::Cms, 331},
    {"network timeout", Kind::Cms, 332},
    {"Network Timeout.", Kind::Cms, 332},
    {"memory full", Kind::Cms, 322},
    {"memory failure", Kind::Cms, 320},
    {"invalid memory index", Kind::Cms, 321},
    {"SMSC address unknown", Kind::Cms, 330},
    {"operation not allowed", Kind::Cms, 302},
    {"operation not supported", Kind::Cms, 303},
    {"COMMAND NOT SUPPORT", Kind::Cms, 303},
    {"SMS service of ME reserved", Kind::Cms, 301},
    {"ME failure", Kind::Cms, 300},
    {"phone failure", Kind::Cms, 300},
    {"Invalid PDU mode parameter", Kind::Cms, 304},
    {"Invalid text mode parameter", Kind::Cms, 305},
    {"no +CNMA acknowledgement expected", Kind::Cms, 340},
    {"unknown error", Kind::Cms, 500},
    {"unknown", Kind::Cms, 500},
    {"Unassigned (unallocated) number", Kind::Cms, 1},
    {"Operator determined barring", Kind::Cms, 8},
    {"Call barred", Kind::Cms, 10},
    {"Short message transfer rejected", Kind::Cms, 21},
    {"Destination out of service", Kind::Cms, 27},
    {"Network out of order", Kind::Cms, 38},
    {"Temporary failure", Kind::Cms, 41},
    {"Congestion", Kind::Cms, 42},
    {"Message class not supported", Kind::Cms, 145},
    {"SC busy", Kind::Cms, 192},
    {"Invalid SME address", Kind::Cms, 195},
    {"SM Rejected-Duplicate SM", Kind::Cms, 197},
    {"network not allowed - emergency calls only", Kind::Cme, 32},
    {"network not allowed, emergency calls only", Kind::Cme, 32},
};

} // namespace

TEST(Send_Cause, Known_Words_Count_As_Their_Number)
{
    for (const auto& row : Known) {
        const Device_Cause words{Kind::Words, -1, QString::fromUtf8(row.m_words)};
        EXPECT_EQ(&Cause_Row(words), &Row_Of(row.m_kind, row.m_number)) << row.m_words;
    }
}

TEST(Send_Cause, Other_Words_Are_Asked_About)
{
    for (const char* words : {"", "-", "MODEM ERROR: 5", "NA", "SIM", "500,1", "something else", "\xC3\xA9"}) {
        const Send_Cause& row = Cause_Row({Kind::Words, -1, QString::fromUtf8(words)});
        EXPECT_EQ(row.kind, Kind::Words) << words;
        EXPECT_EQ(row.cause_class, Ask) << words;
    }
}

TEST(Send_Cause, Words_Behind_A_Final_Line_Find_Their_Row)
{
    const auto cause = Cause_Of_Line(QStringLiteral("+CMS ERROR: network timeout"));
    ASSERT_TRUE(cause);
    EXPECT_EQ(cause->kind, Kind::Words);
    EXPECT_EQ(Cause_Row(*cause).cause_class, Unknown_Outcome);
}
