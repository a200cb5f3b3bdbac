#include "list/Exclusion_Rules.h"
#include "list/Import_Report.h"
#include "list/Number_File.h"

#include <gmock/gmock.h>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

Number_List Holding(std::initializer_list<const char*> numbers)
{
    Number_List list;
    for (const char* number : numbers)
        list.Append(QString(number));
    return list;
}

/// What becomes of a text's lines, where 111 is in the list and 222 is excluded.
Import_Report Report_Of(const QString& text, bool skip_duplicates = true, bool heed_exclusions = true)
{
    const Number_List present = Holding({"111"});
    const Number_List excluded = Holding({"111", "222"});
    Import_Report report;
    for (const QString& line : text.split(u'\n')) {
        const Number_Terms terms{skip_duplicates ? &present : nullptr, heed_exclusions ? &excluded : nullptr};
        if (report.Accepts(line, Number_In_Line(line), terms))
            report.Count_Added();
    }
    return report;
}

/// "2 Not_Valid name" for each line that was noted.
std::vector<std::string> Noted(const Import_Report& report)
{
    const char* const Names[] = {"Accepted", "Not_Valid", "Repeated", "Excluded"};
    std::vector<std::string> noted;
    for (const auto& line : report.Noted())
        noted.push_back(std::to_string(line.line) + ' ' + Names[static_cast<int>(line.reason)] + ' ' +
                        line.text.toStdString() + (line.is_cut ? "..." : ""));
    return noted;
}

TEST(Import_Report_Test, Every_Line_Is_Added_Or_Noted_With_Its_Reason_And_Its_Place_But_For_Blank_Ones)
{
    const Import_Report report = Report_Of("333\n111\r\n\n \t\r\n  name; 5 \n+222\n222\n-{}\n12 34\n+44-1\n");
    EXPECT_EQ(report.Added(), 3); // +222 is 00222
    EXPECT_EQ(report.Unused(), 5);
    EXPECT_EQ(report.Unused(Number_Verdict::Not_Valid), 3);
    EXPECT_EQ(report.Unused(Number_Verdict::Repeated), 1);
    EXPECT_EQ(report.Unused(Number_Verdict::Excluded), 1);
    EXPECT_THAT(Noted(report), ElementsAre("2 Repeated 111", "5 Not_Valid name; 5", "7 Excluded 222", "8 Not_Valid -{}",
                                           "9 Not_Valid 12 34"));
}

TEST(Import_Report_Test, What_Is_Not_Looked_For_Is_No_Reason)
{
    EXPECT_THAT(Noted(Report_Of("111\n222", true, false)), ElementsAre("1 Repeated 111"));
    EXPECT_THAT(Noted(Report_Of("111\n222", false, true)), ElementsAre("1 Excluded 111", "2 Excluded 222"));
    EXPECT_THAT(Noted(Report_Of("111\n222", false, false)), IsEmpty());
}

TEST(Import_Report_Test, Nothing_Comes_Of_Nothing)
{
    for (const char* text : {"", "\n\n", " \r\n\t", "\u00A0"}) {
        const Import_Report report = Report_Of(text);
        EXPECT_EQ(report.Added() + report.Unused(), 0) << text;
        EXPECT_TRUE(report.Noted().isEmpty()) << text;
    }
}

TEST(Import_Report_Test, A_Long_Line_Is_Cut_Between_Two_Characters)
{
    const int most = Import_Report::Longest_Noted;
    const QString emoji("\U0001F600");
    struct Case
    {
        QString line;
        QString kept;
        bool is_cut;
    };
    const Case cases[] = {
        {QString(most, u'x'), QString(most, u'x'), false},
        {QString(most + 1, u'x'), QString(most, u'x'), true},
        {QString(1000, u' ') + QString(most, u'x') + QString(1000, u' '), QString(most, u'x'), false},
        {QString(most - 1, u'x') + emoji, QString(most - 1, u'x'), true},
        {QString(most - 2, u'x') + emoji, QString(most - 2, u'x') + emoji, false},
        {QString(10'000'000, u'1'), QString(most, u'1'), true},
    };
    for (const Case& each : cases) {
        const Import_Report report = Report_Of(each.line);
        ASSERT_EQ(report.Noted().size(), 1);
        EXPECT_EQ(report.Noted().at(0).text, each.kept);
        EXPECT_EQ(report.Noted().at(0).is_cut, each.is_cut) << each.line.size();
    }
}

TEST(Import_Report_Test, Only_The_First_Lines_Are_Kept_And_All_Are_Counted)
{
    const int most = Import_Report::Most_Noted;
    const Import_Report report = Report_Of(QString("name\n").repeated(most + 5) + QString("222\n").repeated(7) + "\n1");
    EXPECT_EQ(report.Noted().size(), most);
    EXPECT_EQ(report.Noted().last().line, most);
    EXPECT_EQ(report.Unused(Number_Verdict::Not_Valid), most + 5);
    EXPECT_EQ(report.Unused(Number_Verdict::Excluded), 7);
    EXPECT_EQ(report.Added(), 1);
}

TEST(Import_Report_Test, A_List_Of_Exclusions_Notes_The_Repeats_Within_The_Text_As_Well)
{
    Number_List numbers = Holding({"1"});
    const auto report = Exclusion_Rules::Add_Numbers_Of_Text("1\n2\r\n\nname\n2\n+3\n003\n4", numbers, [](int) {});
    EXPECT_EQ(report.Added(), 3);
    EXPECT_THAT(Noted(report), ElementsAre("1 Repeated 1", "4 Not_Valid name", "5 Repeated 2", "7 Repeated 003"));
}

} // namespace
