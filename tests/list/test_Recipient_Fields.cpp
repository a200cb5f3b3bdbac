#include "list/Recipient_List.h"
#include "list/Skip_Words.h"
#include "list/Table_File.h"

#include <QRandomGenerator>
#include <gmock/gmock.h>
#include <malloc.h>
#include <thread>

using testing::ElementsAre;

namespace {

using Shared_Table = std::shared_ptr<const Contact_Table>;

Shared_Table Table_Of(const char* csv)
{
    return std::make_shared<const Contact_Table>(Table_Of_Bytes(csv, QStringLiteral("a.csv"), {}).table);
}

// Every row of the table, its number in the first column.
void Append_All(Recipient_List& list, const Shared_Table& table, const QString& message)
{
    for (int row = 0; row < table->Row_Count(); ++row)
        list.Append_From_Table(table->Field(row, 0), message, table, row);
}

std::vector<std::string> Texts_Of(const Recipient_List& list)
{
    std::vector<std::string> texts;
    for (int index = 0; index < list.Count(); ++index)
        texts.push_back(list.Text_At(index).text.toStdString());
    return texts;
}

std::vector<std::string> Names_Of(const Recipient_List& list)
{
    std::vector<std::string> names;
    for (const QString& name : list.Field_Names())
        names.push_back(name.toStdString());
    return names;
}

class Recipient_Fields_Of_Two_Tables : public testing::Test
{
protected:
    Recipient_Fields_Of_Two_Tables()
    {
        Append_All(m_list, m_friends, QStringLiteral("Dear {{Name}}"));
        m_list.Append(QStringLiteral("5550103"), QStringLiteral("Dear {{Name|all}}"));
        Append_All(m_list, m_clients, QStringLiteral("{{Title}} {{NAME}}"));
    }

    Shared_Table m_friends = Table_Of("Tel,Name,City\n5550101,Ann,Bath\n5550102,Bob,\n");
    Shared_Table m_clients = Table_Of("Tel,Title,name\n5550104,Dr,Cem\n5550105,,Dee\n");
    Recipient_List m_list;
};

} // namespace

TEST(Recipient_Fields, A_List_Without_Them_Sends_Its_Messages_As_They_Are)
{
    Recipient_List list;
    for (const char* message : {"", "{{Name}}", "{{{{", "{{Name|friend}}"})
        list.Append(QStringLiteral("1"), QString::fromLatin1(message));
    EXPECT_FALSE(list.Has_Fields());
    EXPECT_THAT(Texts_Of(list), ElementsAre("", "{{Name}}", "{{{{", "{{Name|friend}}"));
    for (int index = 0; index < list.Count(); ++index)
        EXPECT_EQ(list.Text_At(index).fault, "");
    EXPECT_THAT(Names_Of(list), ElementsAre());
    EXPECT_EQ(list.Field_At(0, 0), "");
    EXPECT_EQ(list.Table_At(0), nullptr);
    EXPECT_EQ(list.Table_Row_At(0), -1);
}

TEST_F(Recipient_Fields_Of_Two_Tables, Are_Joined_By_Name_And_Fill_Each_Message)
{
    EXPECT_TRUE(m_list.Has_Fields());
    EXPECT_THAT(Names_Of(m_list), ElementsAre("Tel", "Name", "City", "Title"));
    EXPECT_THAT(Texts_Of(m_list), ElementsAre("Dear Ann", "Dear Bob", "Dear all", "Dr Cem", "{{Title}} Dee"));
    EXPECT_EQ(m_list.Message_At(0), "Dear {{Name}}") << "the list shows what was written";
    EXPECT_EQ(m_list.Text_At(4).fault, Skip_Words::Empty_Field);
    EXPECT_EQ(Words_For_Fault(m_list.Text_At(4)), "{{Title}} is empty");
    EXPECT_EQ(m_list.Field_At(0, 1), "Ann");
    EXPECT_EQ(m_list.Field_At(2, 1), "");
    EXPECT_EQ(m_list.Field_At(3, 1), "Cem");
    EXPECT_EQ(m_list.Field_At(3, 2), "");
    EXPECT_EQ(m_list.Field_At(3, 3), "Dr");
    EXPECT_EQ(m_list.Field_At(3, 4), "");
    EXPECT_EQ(m_list.Field_At(3, -1), "");
    EXPECT_EQ(m_list.Table_At(1), m_friends);
    EXPECT_EQ(m_list.Table_Row_At(1), 1);
    EXPECT_EQ(m_list.Table_At(2), nullptr);
}

TEST_F(Recipient_Fields_Of_Two_Tables, A_Recipient_Without_Any_Has_No_Values)
{
    m_list.Append(QStringLiteral("5550106"), QStringLiteral("Dear {{Name}}"));
    m_list.Append(QStringLiteral("5550107"), QStringLiteral("{{{{ and {{City|}}{{Name"));
    EXPECT_EQ(m_list.Text_At(5).fault, Skip_Words::Unknown_Field);
    EXPECT_EQ(Words_For_Fault(m_list.Text_At(5)), "{{Name}} is unknown");
    EXPECT_EQ(m_list.Text_At(6).text, "{{ and {{Name");
    EXPECT_EQ(m_list.Text_At(6).fault, "");
}

TEST_F(Recipient_Fields_Of_Two_Tables, Stay_With_A_Recipient_Whose_Number_And_Message_Change)
{
    m_list.Replace(0, QStringLiteral("999"), QStringLiteral("{{City}}!"));
    m_list.Set_Messages({1, 3}, QStringLiteral("Hi {{Name}}"));
    EXPECT_THAT(Texts_Of(m_list), ElementsAre("Bath!", "Hi Bob", "Dear all", "Hi Cem", "{{Title}} Dee"));
    m_list.Remove_Rows({1, 2});
    EXPECT_THAT(Texts_Of(m_list), ElementsAre("Bath!", "Hi Cem", "{{Title}} Dee"));
}

TEST_F(Recipient_Fields_Of_Two_Tables, Go_With_The_Last_Who_Had_Them)
{
    const Recipient_List copy = m_list;
    const std::weak_ptr<const Contact_Table> friends = m_friends;
    m_friends.reset();
    m_list.Remove_Rows({0, 1});
    EXPECT_THAT(Names_Of(m_list), ElementsAre("Tel", "Title", "name"));
    EXPECT_EQ(m_list.Field_At(1, 2), "Cem");
    m_list.Remove_Rows({1, 2});
    EXPECT_FALSE(m_list.Has_Fields());
    EXPECT_THAT(Texts_Of(m_list), ElementsAre("Dear {{Name|all}}")) << "a plain list again";
    EXPECT_FALSE(friends.expired());
    EXPECT_THAT(Texts_Of(copy), ElementsAre("Dear Ann", "Dear Bob", "Dear all", "Dr Cem", "{{Title}} Dee"));
    m_list.Clear();
    m_list.Append(QStringLiteral("1"), QStringLiteral("{{Name}}"));
    EXPECT_FALSE(m_list.Has_Fields());
}

TEST_F(Recipient_Fields_Of_Two_Tables, Do_Not_Come_Back_To_Whoever_Is_Added_Later)
{
    m_list.Remove_Rows({3, 4});
    m_list.Append(QStringLiteral("5550109"), QStringLiteral("{{Name}}"));
    EXPECT_EQ(m_list.Table_At(3), nullptr);
    Append_All(m_list, m_friends, QStringLiteral("{{Name}}"));
    EXPECT_THAT(Texts_Of(m_list), ElementsAre("Dear Ann", "Dear Bob", "Dear all", "{{Name}}", "Ann", "Bob"));
    EXPECT_THAT(Names_Of(m_list), ElementsAre("Tel", "Name", "City"));
}

TEST(Recipient_Fields, Columns_Of_The_Same_Name_Stay_Apart_And_A_Message_Cannot_Mean_Them)
{
    const Shared_Table table = Table_Of("Tel,Name,name\n5550101,Ann,Smith\n");
    Recipient_List list;
    Append_All(list, table, QStringLiteral("{{Name}} {{Name|x}}"));
    EXPECT_THAT(Names_Of(list), ElementsAre("Tel", "Name", "name"));
    EXPECT_EQ(list.Field_At(0, 2), "Smith");
    EXPECT_EQ(list.Text_At(0).fault, Skip_Words::Unknown_Field);
    EXPECT_EQ(list.Text_At(0).text, "{{Name}} {{Name|x}}");
}

TEST(Recipient_Fields, Follow_Their_Recipients_Whatever_Is_Done)
{
    QByteArray csv = "Tel,Tag\n";
    for (int row = 0; row < 200; ++row)
        csv += QByteArray::number(1000 + row) + ",t" + QByteArray::number(row) + '\n';
    const Shared_Table table = Table_Of(csv.constData());
    QRandomGenerator random(20261122);
    Recipient_List list;
    QStringList expected;
    for (int step = 0; step < 3000; ++step) {
        const int what = random.bounded(10);
        const int row = random.bounded(200);
        if (what < 4) {
            list.Append_From_Table(table->Field(row, 0), {}, table, row);
            expected += table->Field(row, 1);
        } else if (what < 7) {
            list.Append(QStringLiteral("7"), {});
            expected += QString();
        } else if (what < 8 && list.Count() > 0) {
            list.Replace(row % list.Count(), QString::number(step), QStringLiteral("x"));
        } else if (what < 9) {
            std::vector<int> removed;
            for (int each = row % 3; each < list.Count(); each += 1 + random.bounded(20)) {
                removed.push_back(each);
                expected.removeAt(each - static_cast<int>(removed.size()) + 1);
            }
            list.Remove_Rows(removed);
        }
        ASSERT_EQ(list.Count(), expected.size()) << step;
        for (int index = 0; index < list.Count(); ++index)
            ASSERT_EQ(list.Field_At(index, 1), expected.at(index)) << step << ", " << index;
    }
    EXPECT_GT(list.Count(), 0) << "nothing was tried";
}

TEST(Recipient_Fields, Rows_Added_Together_Are_Those_Added_One_By_One)
{
    const Shared_Table table = Table_Of("Tel,Name\n5550101,Ann\n5550102,Bob\n");
    Recipient_List one_by_one;
    Recipient_List together;
    for (const int count : {1, 0, 7, 11, 12, 13, 40, 500, 3000}) {
        std::vector<Packed_Number> numbers;
        std::vector<int> rows;
        for (int i = 0; i < count; ++i) { // most numbers come again, in the same stretch and in later ones
            numbers.push_back(*Packed_Number::Of(QString::number(i * 7919 % (count / 2 + 3))));
            rows.push_back(i % 3 == 0 ? 0 : 1);
            one_by_one.Append_From_Table(numbers.back(), QStringLiteral("{{Name}}"), table, rows.back());
        }
        together.Append_From_Table(numbers, QStringLiteral("{{Name}}"), table, rows);
        one_by_one.Append("55", "without fields");
        together.Append("55", "without fields");
    }
    ASSERT_EQ(together.Count(), one_by_one.Count());
    for (int index = 0; index < together.Count(); ++index) {
        const QString number = one_by_one.At(index).Number;
        EXPECT_EQ(together.At(index).Number, number);
        EXPECT_EQ(together.Text_At(index).text, one_by_one.Text_At(index).text);
        EXPECT_EQ(together.Table_Row_At(index), one_by_one.Table_Row_At(index));
        EXPECT_EQ(together.Numbers().Count_Of(number), one_by_one.Numbers().Count_Of(number));
        EXPECT_EQ(together.Numbers().First_Index_Of(number), one_by_one.Numbers().First_Index_Of(number));
    }
}

TEST(Recipient_Fields, A_Worker_Reads_Its_Copy_While_The_List_Changes)
{
    const Shared_Table table = Table_Of("Tel,Name\n5550101,Ann\n5550102,Bob\n");
    Recipient_List list;
    for (int round = 0; round < 500; ++round)
        Append_All(list, table, QStringLiteral("{{Name}}"));
    int wrong = 0;
    std::thread worker([copy = list, &wrong] {
        for (int round = 0; round < 5; ++round)
            for (int index = 0; index < copy.Count(); ++index)
                wrong += copy.Text_At(index).text != (index % 2 == 0 ? "Ann" : "Bob");
    });
    for (int round = 0; round < 200; ++round) {
        list.Remove_Rows({0});
        list.Append_From_Table(QStringLiteral("1"), {}, table, 0);
    }
    list.Clear();
    worker.join();
    EXPECT_EQ(wrong, 0);
}

#if !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__) // which need the memory themselves

TEST(Recipient_Fields, Take_Eight_Bytes_Each_And_Nothing_In_A_List_Without_Them)
{
    constexpr int Size = 1'000'000;
    const auto bytes = [] {
        const struct mallinfo2 info = mallinfo2();
        return static_cast<double>(info.uordblks + info.hblkhd);
    };
    const Shared_Table table = Table_Of("Tel,Name\n5550101,Ann\n");
    const QString message = QStringLiteral("{{Name}}");
    Recipient_List plain;
    Recipient_List with_fields;
    const double before = bytes();
    for (int i = 0; i < Size; ++i)
        plain.Append(*Packed_Number::Of(QString::number(i)), message);
    const double between = bytes();
    for (int i = 0; i < Size; ++i)
        with_fields.Append_From_Table(*Packed_Number::Of(QString::number(i)), message, table, 0);
    const double each = (bytes() - between - (between - before)) / Size;
    EXPECT_GT(each, 7.9) << "nothing was measured";
    EXPECT_LT(each, 9) << "with the room that a deque keeps";
}

#endif
