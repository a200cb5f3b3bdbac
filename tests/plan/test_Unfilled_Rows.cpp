#include "list/Table_File.h"
#include "plan/Job_Plan.h"
#include "plan/Unfilled_Rows.h"

#include <gtest/gtest.h>

namespace {

// Who gets nothing of a list of four people, of whom two have no name and one no town.
struct Messages
{
    const char* name;
    QStringList messages; ///< of each of them; the last for all others
    const char* words;
};

void PrintTo(const Messages& messages, std::ostream* out)
{
    *out << messages.name;
}

class Unfilled : public testing::TestWithParam<Messages>
{
protected:
    QString Words() const
    {
        const auto table = std::make_shared<const Contact_Table>(
            Table_Of_Bytes("Tel,Name,Town\n1001,Ann,Bath\n1002,,Ely\n1003,Cem,\n1004, ,York\n", "a.csv", {}).table);
        Recipient_List list;
        for (int row = 0; row < table->Row_Count(); ++row) {
            const QStringList& messages = GetParam().messages;
            list.Append_From_Table(table->Field(row, 0), messages.value(row, messages.constLast()), table, row);
        }
        return Unfilled_Rows_Of(Job_Plan::Of_List(list, {})).In_Words();
    }
};

} // namespace

TEST_P(Unfilled, Are_Named)
{
    EXPECT_EQ(Words().toStdString(), GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Unfilled,
    testing::Values(
        Messages{"none", {"Hi {{Name|friend}}"}, ""}, Messages{"braces alone", {"{{ Hi }"}, ""},
        Messages{"one", {"Hi {{town}}"}, "1 recipient has no town: it gets nothing."},
        Messages{"two", {"Hi {{Name}}"}, "2 recipients have no Name: they get nothing."},
        Messages{"a field that is not there", {"Hi {{Age}}"}, "There is no field Age: 4 recipients get nothing."},
        Messages{
            "one field that is not there", {"Hi {{Age}}", "Hi"}, "There is no field Age: 1 recipient gets nothing."},
        Messages{"different ones", {"{{Name}} {{Town}}"}, "3 recipients get nothing. Of the first, {{Name}} is empty."},
        Messages{"one that is empty and one that is not there",
                 {"{{Town}}", "{{Name}}", "{{Age}}", "x"},
                 "2 recipients get nothing. Of the first, {{Name}} is empty."},
        Messages{"nothing left", {"x", "{{Name|}}", "x"}, "1 recipient gets nothing: its text is empty."},
        Messages{"too long", {QString(1601, u'x'), "x"}, "1 recipient gets nothing: its text is too long."},
        Messages{"a long name",
                 {"Hi", "Hi {{" + QString(100, u'n') + "|}}{{" + QString(40, u'm') + "}}", "Hi"},
                 "There is no field mmmmmmmmmmmmmmmmmmmmmmmmmmmmmm\xE2\x80\xA6: 1 recipient gets nothing."}));

TEST(Unfilled_Rows, Of_Very_Many_Are_Counted_And_The_First_Is_Named)
{
    const auto table = std::make_shared<const Contact_Table>(Table_Of_Bytes("Tel,Name\n1001,\n", "a.csv", {}).table);
    Recipient_List list;
    for (int row = 0; row < 20'000; ++row)
        list.Append_From_Table(QString::number(1000 + row), QStringLiteral("{{Name}}"), table, 0);
    EXPECT_EQ(Unfilled_Rows_Of(Job_Plan::Of_List(list, {})).In_Words(),
              "20000 recipients get nothing. Of the first, {{Name}} is empty.");
}
