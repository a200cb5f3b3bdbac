#include "list/Exclusion_Rules.h"

#include <gtest/gtest.h>

using namespace Exclusion_Rules;

namespace {

const char* const Forbidden = "\\/:*?\"<>|";

Name_Verdict Judged(const QString& typed, const QStringList& existing = {})
{
    return Judge_List_Name(List_Name(typed), existing);
}

TEST(Exclusion_Rules, A_Name_Is_Judged_After_Trimming_And_In_The_Order_Of_The_Verdicts)
{
    for (const char* name : {"", " ", "\t \r\n"})
        EXPECT_EQ(Judged(name), Name_Verdict::Empty);
    EXPECT_EQ(Judged(Forbidden), Name_Verdict::Forbidden_Sequence);
    EXPECT_EQ(Judged(QString("a%1b").arg(Forbidden)), Name_Verdict::Forbidden_Sequence);
    EXPECT_EQ(Judged("|><\"?*:/\\"), Name_Verdict::Accepted) << "only the nine characters in one piece";
    EXPECT_EQ(Judged("\\/:*?\"<>"), Name_Verdict::Accepted);
    for (const QChar character : QString(Forbidden))
        EXPECT_EQ(Judged(QString("a%1b").arg(character)), Name_Verdict::Accepted);
    EXPECT_EQ(Judged(" ExListIndex "), Name_Verdict::Name_Of_Index);
    EXPECT_EQ(Judged("ExListIndex", {"ExListIndex"}), Name_Verdict::Name_Of_Index);
    for (const char* name : {"exlistindex", "ExListIndex.ZOVA", "ExListIndex1"})
        EXPECT_EQ(Judged(name), Name_Verdict::Accepted) << name;
    EXPECT_EQ(Judged("Staff", {"staff", "Staf"}), Name_Verdict::Accepted);
    EXPECT_EQ(Judged("Staff ", {"Admin", "Staff"}), Name_Verdict::Exists);
}

TEST(Exclusion_Rules, Half_Of_A_Character_Is_Named_As_It_Comes_Back_From_Its_File)
{
    const QString emoji = QString::fromUtf8("\xF0\x9F\x98\x80");
    EXPECT_EQ(List_Name(" a" + emoji + " "), "a" + emoji);
    const QString half = List_Name("a" + emoji.left(1));
    EXPECT_EQ(half, QString::fromUtf8(half.toUtf8()));
    EXPECT_EQ(Judged("a" + emoji.left(1), {half}), Name_Verdict::Exists);
}

TEST(Exclusion_Rules, A_Mark_At_The_Front_Of_A_Name_Goes_As_It_Does_When_Its_File_Is_Read)
{
    const QString mark{QChar(QChar::ByteOrderMark)};
    EXPECT_EQ(List_Name(mark + "Staff"), "Staff");
    EXPECT_EQ(List_Name(" " + mark + " " + mark + "Sta" + mark + "ff "), "Sta" + mark + "ff");
    EXPECT_EQ(List_Name(mark), "");
    EXPECT_EQ(Judged(mark + "Staff", {"Staff"}), Name_Verdict::Exists);
    EXPECT_EQ(Entry_In_Line(mark + " 7\r"), u"7");
    EXPECT_EQ(Without_Byte_Order_Mark(mark + " 7 "), u" 7 ") << "and otherwise as it stands";
}

TEST(Exclusion_Rules, A_Text_Adds_Each_New_Number_Once_Skips_The_Rest_And_Tells_In_Batches)
{
    Number_List numbers;
    numbers.Append("1");
    EXPECT_EQ(Add_Numbers_Of_Text("1\n2\r\n\nname\n2\n+3\n003\n4", numbers, [](int) {}).Added(), 3);
    ASSERT_EQ(numbers.Count(), 4);
    EXPECT_EQ(numbers.At(1), "2");
    EXPECT_EQ(numbers.At(2), "003");
    EXPECT_EQ(numbers.At(3), "4");
    EXPECT_EQ(Add_Numbers_Of_Text("", numbers, [](int) {}).Added(), 0);

    numbers.Clear();
    QString text;
    for (int number = 0; number < 50000; ++number)
        text += QString::number(number) + "\n";
    std::vector<int> told;
    EXPECT_EQ(Add_Numbers_Of_Text(text, numbers, [&](int count) { told.push_back(count); }).Added(), 50000);
    EXPECT_EQ(told, (std::vector<int>{20000, 40000}));
}

TEST(Exclusion_Rules, Names_Not_Yet_Applied_Come_In_Their_Order_And_Once)
{
    EXPECT_EQ(Not_Yet_Applied({"c", "a", "b", "c"}, {"b", "x"}), QStringList({"c", "a"}));
    EXPECT_EQ(Not_Yet_Applied({"a"}, {"a"}), QStringList());
    EXPECT_EQ(Not_Yet_Applied({"A"}, {"a"}), QStringList("A"));
}

TEST(Exclusion_Rules, Each_Deleted_Name_Takes_One_Applied_Entry_The_Last)
{
    QStringList applied = {"a", "b", "a", "c", "a"};
    Remove_Deleted(applied, {"a"});
    EXPECT_EQ(applied, QStringList({"a", "b", "a", "c"}));
    Remove_Deleted(applied, {"a", "c", "x"});
    EXPECT_EQ(applied, QStringList({"a", "b"}));
    applied = {"a", "b", "a", "c", "a"};
    Remove_Deleted(applied, {"a", "a"});
    EXPECT_EQ(applied, QStringList({"a", "b", "c"}));
}

TEST(Exclusion_Rules, Rows_Of_Names_Are_Taken_Out)
{
    QStringList names = {"a", "b", "c", "d"};
    EXPECT_EQ(Names_At(names, {0, 3}), QStringList({"a", "d"}));
    Remove_Rows(names, {0, 3});
    EXPECT_EQ(names, QStringList({"b", "c"}));
}

} // namespace
