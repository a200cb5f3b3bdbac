#include "list/Delimited_Text.h"
#include "list/Shown_Table.h"

#include <gtest/gtest.h>
#include <sstream>

using namespace std::string_literals;

namespace {

struct Written_Table
{
    const char* name;
    std::string text;
    std::string shown;
    char delimiter = 0;
};

void PrintTo(const Written_Table& table, std::ostream* out)
{
    *out << table.name;
}

Table_In_A_File Read(const std::string& text, char delimiter = 0)
{
    return Table_Of_Bytes(QByteArray::fromStdString(text), QStringLiteral("list.csv"), {{}, {}, delimiter});
}

class Delimited_Texts : public testing::TestWithParam<Written_Table>
{
};

} // namespace

TEST_P(Delimited_Texts, Are_Read)
{
    EXPECT_EQ(Shown(Read(GetParam().text, GetParam().delimiter)), GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Rows, Delimited_Texts,
    testing::Values(Written_Table{"plain", "A,B\n1,2\n3,4\n", "A|B/1|2/3|4"},
                    Written_Table{"no last line end", "A,B\n1,2", "A|B/1|2"},
                    Written_Table{"line ends of three kinds", "A,B\r\n1,2\r3,4\n5,6\r\n", "A|B/1|2/3|4/5|6"},
                    Written_Table{"blank rows", "\n\nA,B\n,\n  , \n1,2\n\n,\n", "A|B/1|2"},
                    Written_Table{"a header alone", "A,B\n", "A|B"},
                    Written_Table{"one column", "Phone\n1\n2\n", "Phone/1/2"},
                    Written_Table{"fewer fields", "A,B,C\n1\n1,2\n", "A|B|C/1/1|2"},
                    Written_Table{"more fields", "A,B\n1,2,3\n", "A|B/1|2|3"},
                    Written_Table{"empty fields", "A,B\n,2\n1,\n", "A|B/|2/1|"},
                    Written_Table{"columns without names", "A,,\n1,2,3\n", "A|Column 2|Column 3/1|2|3"},
                    Written_Table{"marks of the byte order in names",
                                  "\xEF\xBB\xBF\f\xEF\xBB\xBF"
                                  "A,\xEF\xBB\xBF\n1,2\n",
                                  "A|Column 2/1|2"},
                    Written_Table{"blanks around names", " A ,\tFirst  name \n 1 , 2\n", "A|First name/ 1 | 2"}));

INSTANTIATE_TEST_SUITE_P(
    Quotes, Delimited_Texts,
    testing::Values(Written_Table{"a delimiter inside", "A,B\n\"1,2\",3\n", "A|B/1,2|3"},
                    Written_Table{"line ends inside", "A,B\n\"1\n2\r\n3\",4\n", "A|B/1\n2\r\n3|4"},
                    Written_Table{"doubled", "A,B\n\"say \"\"hi\"\"\",4\n", "A|B/say \"hi\"|4"},
                    Written_Table{"nothing but doubled", "A,B\n\"\"\"\",\"\"\n", "A|B/\"|"},
                    Written_Table{"in the middle of a field", "A,B\n5\" pipe,4\n", "A|B/5\" pipe|4"},
                    Written_Table{"blanks after one", "A,B\n\"1\" ,2\n", "A|B/1|2"},
                    Written_Table{"text after one", "A,B\n\"1\"x,2\n", "A|B/1x|2"},
                    Written_Table{"in the header", "\"First, last\",B\n1,2\n", "First, last|B/1|2"},
                    Written_Table{"at the end of the file", "A,B\n1,\"2\"", "A|B/1|2"}));

INSTANTIATE_TEST_SUITE_P(
    Delimiters, Delimited_Texts,
    testing::Values(
        Written_Table{"semicolons", "A;B\n1,5;2\n", "A|B/1,5|2"}, Written_Table{"tabs", "A\tB\n1\t2\n", "A|B/1|2"},
        Written_Table{"bars", "A|B\n1|2\n", "A|B/1|2"},
        Written_Table{"commas in quotes, semicolons between", "Name;Phone\n\"Smith, Ann\";1\n\"Jones, Bob\";2\n",
                      "Name|Phone/Smith, Ann|1/Jones, Bob|2"},
        Written_Table{"commas in names, semicolons between", "Name;Phone\nSmith, Ann;1\nJones, Bob;2\n",
                      "Name|Phone/Smith, Ann|1/Jones, Bob|2"},
        Written_Table{"a comma in the header", "Name, first;Phone\nAnn;1\nBob;2\n", "Name, first|Phone/Ann|1/Bob|2"},
        Written_Table{"a line that says it", "sep=|\nA|B\n1,2|3\n", "A|B/1,2|3"},
        Written_Table{"a line that says a strange one", "sep=^\r\nA^B\r\n1^2\r\n", "A|B/1|2"},
        Written_Table{"one that is given", "A,B;C\n1,2;3\n", "A,B|C/1,2|3", ';'},
        Written_Table{"one that is given, and said otherwise", "sep=;\nA,B\n1,2\n", "A|B/1|2", ','}));

INSTANTIATE_TEST_SUITE_P(
    Broken, Delimited_Texts,
    testing::Values(Written_Table{"a quote that never closes", "A,B\n1,2\n3,\"4\n5,6\n",
                                  "the quote that opens in line 3 is never closed"},
                    Written_Table{"one after a field of several lines", "A,B\n\"1\n\r\n2\r3\",4\n5,\"",
                                  "the quote that opens in line 6 is never closed"},
                    Written_Table{"nothing", "", "it is empty"},
                    Written_Table{"blanks", " \n\t\r\n,,,\n", "it is empty"},
                    Written_Table{"a number in the header", "Ann,+44 7700 900100\nBob,+44 7700 900101\n",
                                  "its first row holds the number +44 7700 900100, and no names of columns"},
                    Written_Table{"a zero in the middle", "A,B\n1,2\n3\0,4\n"s,
                                  "it is no text: line 3 holds characters that no list has"},
                    Written_Table{"too many columns", "A,B\n1,2\n" + std::string(16385, ',') + "1\n",
                                  "row 3 has more than 16384 fields"},
                    Written_Table{"very many columns", "A,B\n1,2\n\n" + std::string(100'000, ',') + "1\n",
                                  "row 4 has more than 16384 fields"}));

TEST(Delimited_Text, Blank_Rows_Keep_Their_Lines)
{
    const auto file = Read("A,B\n\n\"1\n2\",3\n\n4,5\n");
    ASSERT_EQ(file.table.Row_Count(), 2);
    EXPECT_EQ(file.table.Source_Row(0), 3);
    EXPECT_EQ(file.table.Source_Row(1), 6);
}

TEST(Delimited_Text, Rows_Whose_Fields_May_Be_Elsewhere_Are_Named)
{
    const auto table = Read("A,B\n1,2\n1,2,3\n1\n\"1\n\"2,3\n\" 1 \"  ,\"2\"\n").table;
    ASSERT_EQ(table.Row_Count(), 5);
    EXPECT_EQ(table.Words_For_Trouble(0), "");
    EXPECT_EQ(table.Words_For_Trouble(1), "3 fields where 2 have names");
    EXPECT_EQ(table.Words_For_Trouble(2), "");
    EXPECT_EQ(table.Words_For_Trouble(3), "text follows a closing quote");
    EXPECT_EQ(table.Words_For_Trouble(4), "");
}

TEST(Delimited_Text, Ten_Thousand_Columns_Are_Read)
{
    std::string text = "Phone";
    for (int column = 1; column < 10'000; ++column)
        text += ",c" + std::to_string(column);
    const auto table = Read(text + "\n1" + std::string(9'999, ',') + "\n").table;
    EXPECT_EQ(table.Column_Count(), 10'000);
    EXPECT_EQ(table.Field_Count(0), 10'000);
    EXPECT_EQ(table.Columns_Named(u"C9999"), std::vector<int>{9'999});
}

// What is found sixty-four bytes at a time is found wherever it stands.
TEST(Delimited_Text, Fields_Of_Every_Length_Are_Read)
{
    for (const char* line_end : {"\n", "\r", "\r\n"}) {
        std::string text = std::string("A,B") + line_end;
        for (std::size_t length = 1; length < 70; ++length)
            text += std::string(length, 'x') + ',' + std::string(70 - length, 'y') + line_end;
        const auto table = Read(text).table;
        ASSERT_EQ(table.Row_Count(), 69);
        for (int row = 0; row < 69; ++row) {
            EXPECT_EQ(table.Field(row, 0), QString(row + 1, u'x'));
            EXPECT_EQ(table.Field(row, 1), QString(69 - row, u'y'));
        }
    }
}

// They move up to where the quotes were, and those of the next row stay.
TEST(Delimited_Text, Fields_Behind_One_In_Quotes_Are_Read)
{
    std::ostringstream text;
    text << "A,B,C,D,E\r\n";
    for (std::size_t length = 0; length < 140; ++length) {
        const std::string x(length, 'x');
        text << "1,\"" << x << "\"\"" << x << "\"," << x << ",\"\"," << std::string(140 - length, 'z') << "\r\n";
        text << "2," << x << ",,\"" << x << "\",\"\n\"\r\n";
    }
    const auto table = Read(text.str()).table;
    ASSERT_EQ(table.Row_Count(), 280);
    for (int length = 0; length < 140; ++length) {
        const QString x(length, u'x');
        const QStringList quoted{"1", x + u'"' + x, x, "", QString(140 - length, u'z')};
        const QStringList plain{"2", x, "", x, "\n"};
        for (int column = 0; column < 5; ++column) {
            EXPECT_EQ(table.Field(2 * length, column), quoted[column]) << length;
            EXPECT_EQ(table.Field(2 * length + 1, column), plain[column]) << length;
        }
        EXPECT_EQ(table.Field_Count(2 * length), 5);
    }
}

TEST(Delimited_Text, Names_Are_Compared_Without_Case_Blanks_And_What_Is_Invisible)
{
    const auto table = Read("First Name,\xC3\x84hre,first\xC2\xA0name\xE2\x80\x8B\n1,2,3\n").table;
    EXPECT_EQ(table.Columns_Named(u" FIRSTNAME"), (std::vector<int>{0, 2}));
    EXPECT_EQ(table.Columns_Named(u"A\u0308HRE"), std::vector<int>{1});
    EXPECT_TRUE(table.Columns_Named(u"").empty());
    EXPECT_TRUE(table.Columns_Named(u"Name").empty());
}

TEST(Delimited_Text, A_Tab_Is_Preferred_By_Name)
{
    const auto file = Table_Of_Bytes("A\n1\n", QStringLiteral("list.TSV"), {});
    EXPECT_EQ(file.facts.delimiter, "tab");
    EXPECT_EQ(Read("A\n1\n").facts.delimiter, ",");
}

TEST(Delimited_Text_Files, May_Have_No_Names_For_Their_Columns)
{
    Table_Choices choices;
    choices.has_no_names = true;
    const auto shown = [&](const char* text) { return Shown(Table_Of_Bytes(text, QStringLiteral("a.csv"), choices)); };
    EXPECT_EQ(shown("\n+44 7700 900100,Ann\n2,Bob\n"), "Column 1|Column 2/+44 7700 900100|Ann/2|Bob");
    EXPECT_EQ(shown("Ann\nBob,2\n"), "Column 1/Ann/Bob|2");
    EXPECT_EQ(shown("\n \n"), "it is empty");
}
