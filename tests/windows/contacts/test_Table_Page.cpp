#include "windows/contacts/Contacts_Test.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class Table_Page_Test : public Contacts_Test
{
protected:
    Table_Page_Test() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom)); }
    ~Table_Page_Test() override { QLocale::setDefault(m_locale_before); }

    QString Words() const { return Text_Of("_Words"); }
    bool Can_Go_On() const { return In<QPushButton>(*m_sheet, "Continue_Btn").isEnabled(); }
    std::string First_Row() const { return Row(Sample(), 0).toStdString(); }

private:
    const QLocale m_locale_before;
};

// A list of tests/data/tables, and how it is read: what was guessed, and what the page says of it.
struct Guess
{
    const char* file;
    const char* encoding; ///< "" for a choice that is not offered
    const char* delimiter;
    const char* sheet;
    const char* number_column; ///< "" for none
};

void PrintTo(const Guess& guess, std::ostream* out)
{
    *out << guess.file;
}

class Guesses : public Table_Page_Test, public testing::WithParamInterface<Guess>
{
protected:
    QString Offered(const char* box) const { return Is_Offered(box) ? Chosen(box) : QString(); }
};

} // namespace

TEST_P(Guesses, Are_Chosen_And_Shown)
{
    Import(QStringLiteral(CORVANE_TEST_DATA "/tables/") + GetParam().file);
    EXPECT_EQ(Offered("_Encoding"), GetParam().encoding);
    EXPECT_EQ(Offered("_Delimiter"), GetParam().delimiter);
    EXPECT_EQ(Offered("_Sheet"), GetParam().sheet);
    EXPECT_EQ(Chosen("_Number_Column"), GetParam().number_column);
    EXPECT_EQ(Can_Go_On(), *GetParam().number_column != 0);
    EXPECT_TRUE(Words().startsWith(GetParam().file)) << Words().toStdString();
    EXPECT_GT(Sample().model()->rowCount(), 0);
}

INSTANTIATE_TEST_SUITE_P(Of_Golden_Lists, Guesses,
                         testing::Values(Guess{"comma.csv", "UTF-8", "Comma", "", "Phone"},
                                         Guess{"semicolon.csv", "windows-1252", "Semicolon", "", "Phone"},
                                         Guess{"tab.tsv", "UTF-16LE", "Tab", "", "Phone"},
                                         Guess{"openpyxl.xlsx", "", "", "People", "Phone"},
                                         Guess{"libreoffice.ods", "", "", "People", "Phone"},
                                         Guess{"cards_3.0.vcf", "", "", "", "One for each person, mobile ones first"}));

TEST_F(Table_Page_Test, The_First_Twenty_Rows_Are_Shown_Under_Their_Names_With_The_Column_Of_The_Numbers_Marked)
{
    QByteArray lines = "Name,Phone\n";
    for (int row = 0; row < 30; ++row)
        lines += "Ann " + QByteArray::number(row) + ",0770090010" + QByteArray::number(row % 10) + '\n';
    Import_Csv(lines);
    EXPECT_EQ(Headings(Sample()), (QStringList{"Name", "Phone (number)"}));
    EXPECT_EQ(Sample().model()->rowCount(), 20);
    EXPECT_EQ(First_Row(), "Ann 0|07700900100");
    EXPECT_EQ(Words(), "list.csv: 30 rows in 2 columns.");
    EXPECT_TRUE(m_sheet->isModal());
    EXPECT_TRUE(Can_Go_On());
}

TEST_F(Table_Page_Test, Another_Encoding_And_Another_Delimiter_Read_The_File_Again)
{
    Import_Csv("Name,City;Phone\nJ\xF6rg,Y\xF6rk;07700900100\n");
    EXPECT_EQ(Chosen("_Encoding"), "windows-1252");
    Choose("_Encoding", "windows-1251");
    EXPECT_EQ(First_Row(), "J\xD1\x86rg|Y\xD1\x86rk;07700900100");
    Choose("_Delimiter", "Semicolon");
    EXPECT_EQ(Chosen("_Encoding"), "windows-1251");
    EXPECT_EQ(First_Row(), "J\xD1\x86rg,Y\xD1\x86rk|07700900100");
    EXPECT_EQ(Chosen("_Number_Column"), "Phone");
}

// A list as an office in Poland has it, which says nowhere in which encoding it is.
TEST_F(Table_Page_Test, An_Encoding_That_The_File_Does_Not_Tell_Is_The_Usual_One_Here_And_Is_Said_To_Be_A_Guess)
{
    const char guess[] = "The file does not tell its encoding: look whether the letters are right.";
    QLocale::setDefault(QLocale(QLocale::Polish));
    Import(QStringLiteral(CORVANE_TEST_DATA "/tables/libreoffice_1250.csv"));
    EXPECT_EQ(Chosen("_Encoding"), "windows-1250");
    EXPECT_TRUE(Words().endsWith(guess)) << Words().toStdString();
    const std::string in_polish = First_Row();
    Choose("_Encoding", "windows-1252");
    EXPECT_NE(First_Row(), in_polish);
    EXPECT_FALSE(Words().contains(guess)) << "somebody has chosen it";
    Choose("_Encoding", "windows-1250");
    EXPECT_EQ(First_Row(), in_polish);
}

TEST_F(Table_Page_Test, Another_Sheet_Is_Read)
{
    Import(QStringLiteral(CORVANE_TEST_DATA "/tables/openpyxl.xlsx"));
    Choose("_Sheet", "Spare");
    EXPECT_THAT(First_Row(), HasSubstr("Gil"));
    EXPECT_EQ(Chosen("_Sheet"), "Spare");
}

TEST_F(Table_Page_Test, A_Click_On_A_Heading_Chooses_The_Column_Of_The_Numbers)
{
    Import_Csv("Home,Mobile\n07700900100,07700900200\n");
    EXPECT_EQ(Chosen("_Number_Column"), "Home");
    auto& headings = *Sample().horizontalHeader();
    QTest::mouseClick(headings.viewport(), Qt::LeftButton, {},
                      {headings.sectionViewportPosition(1) + headings.sectionSize(1) / 2, headings.height() / 2});
    EXPECT_EQ(Chosen("_Number_Column"), "Mobile");
    EXPECT_EQ(Headings(Sample()), (QStringList{"Home", "Mobile (number)"}));
}

TEST_F(Table_Page_Test, Where_No_Column_Looks_Like_Numbers_Somebody_Has_To_Choose)
{
    Import_Csv("Name,City\nAnn,Bath\n");
    EXPECT_EQ(Chosen("_Number_Column"), "");
    EXPECT_EQ(Text_Of("_Trouble"), "No column looks as if it held numbers. Choose the one that does.");
    EXPECT_FALSE(Can_Go_On());
    Choose("_Number_Column", "City");
    EXPECT_TRUE(Can_Go_On());
}

TEST_F(Table_Page_Test, A_First_Row_With_A_Number_Is_Taken_As_A_Row_And_Names_Can_Be_Made_Rows)
{
    Import_Csv("Ann,07700900100\nBob,07700900101\n");
    EXPECT_FALSE(In<QCheckBox>(*m_sheet, "_Names_Chk").isChecked());
    EXPECT_EQ(Headings(Sample()), (QStringList{"Column 1", "Column 2 (number)"}));
    EXPECT_EQ(Sample().model()->rowCount(), 2);
    Import_Csv("Name,Phone\nBob,07700900101\n");
    EXPECT_TRUE(In<QCheckBox>(*m_sheet, "_Names_Chk").isChecked());
    EXPECT_EQ(Sample().model()->rowCount(), 1);
    Press("_Names_Chk");
    EXPECT_EQ(First_Row(), "Name|Phone");
    Press("_Names_Chk");
    EXPECT_EQ(First_Row(), "Bob|07700900101");
}

TEST_F(Table_Page_Test, What_Cannot_Be_Read_Is_Told_In_Words)
{
    const std::pair<QByteArray, const char*> Cases[] = {
        {"%PDF-1.4", "list.csv can not be used: it is a PDF document, and no list."},
        {"", "list.csv can not be used: it is empty."},
        {"Name,Phone\n\"Ann", "list.csv can not be used: the quote that opens in line 2 is never closed."},
        {"Name,Phone\n", "list.csv holds no rows below the names of its columns."}};
    for (const auto& [bytes, words] : Cases) {
        Import_Csv(bytes);
        EXPECT_EQ(Words(), words);
        EXPECT_FALSE(Can_Go_On());
        EXPECT_EQ(Sample().model()->rowCount(), 0);
    }
    Import(m_folder.filePath("none.csv"));
    EXPECT_EQ(Words(), "none.csv can not be used: there is no such file.");
}

TEST_F(Table_Page_Test, A_Choice_That_Cannot_Be_Right_Can_Be_Made_Otherwise)
{
    Import_Csv("Name,Phone\nJ\xF6rg,07700900100\n");
    Choose("_Encoding", "UTF-8");
    EXPECT_EQ(Words(), "list.csv can not be used: it is not encoded in UTF-8.");
    EXPECT_TRUE(Is_Offered("_Encoding"));
    Choose("_Encoding", "windows-1252");
    EXPECT_EQ(First_Row(), "J\xC3\xB6rg|07700900100");
    EXPECT_TRUE(Can_Go_On());
}

TEST_F(Table_Page_Test, Cells_From_The_Clipboard_Need_No_Encoding)
{
    m_sheet->Import({{}, "Name\tPhone\nJ\xC3\xB6rg\t07700900100\n"});
    Await();
    EXPECT_FALSE(Is_Offered("_Encoding"));
    EXPECT_EQ(Words(), "The clipboard: 1 row in 2 columns.");
    EXPECT_EQ(First_Row(), "J\xC3\xB6rg|07700900100");
    EXPECT_TRUE(Can_Go_On());
}

TEST_F(Table_Page_Test, Numbers_Stay_As_Written_Or_Get_A_Country_That_Stays_Chosen)
{
    EXPECT_EQ(In<QComboBox>(*m_sheet, "_Country").itemText(0), "As written");
    Import_Csv("Phone\n07700900100\n");
    Choose("_Country", "United Kingdom (+44)");
    Press("Continue_Btn");
    EXPECT_EQ(Rows_Of(Rows(), 2), QStringList("00447700900100"));
    Press("Back_Btn");
    Choose("_Country", "As written");
    Press("Continue_Btn");
    EXPECT_EQ(Rows_Of(Rows(), 2), QStringList("07700900100"));
    Press("Back_Btn");
    Choose("_Country", "Germany (+49)");
    Press("Close_Btn");
    EXPECT_FALSE(m_sheet->isVisible());
    Import_Csv("Phone\n07700900100\n");
    EXPECT_EQ(Chosen("_Country"), "Germany (+49)");
}

TEST_F(Table_Page_Test, A_Contact_Gets_One_Message_Or_One_For_Each_Number)
{
    const QByteArray card = "BEGIN:VCARD\nFN:Ann\nTEL;TYPE=home:020 7946 0100\nTEL;TYPE=cell:07700 900100\nEND:VCARD\n";
    Import(File("ann.vcf", card));
    Choose("_Country", "As written");
    Press("Continue_Btn");
    EXPECT_EQ(Rows_Of(Rows(), 2), QStringList("07700900100"));
    Press("Back_Btn");
    Choose("_Number_Column", "Each number");
    Press("Continue_Btn");
    EXPECT_EQ(Rows_Of(Rows(), 2), (QStringList{"07700900100", "02079460100"}));
}

TEST_F(Table_Page_Test, Ten_Thousand_Columns_Can_Be_Chosen_From)
{
    QByteArray names, fields;
    for (int column = 0; column < 10'000; ++column) {
        names += "c" + QByteArray::number(column) + ',';
        fields += column == 9'000 ? "07700900100," : "x,";
    }
    Import_Csv(names + "z\n" + fields + "z\n");
    EXPECT_EQ(Chosen("_Number_Column"), "c9000");
    EXPECT_EQ(In<QComboBox>(*m_sheet, "_Number_Column").count(), 10'001);
    EXPECT_EQ(Sample().model()->columnCount(), 200);
    EXPECT_TRUE(Can_Go_On());
}

TEST_F(Table_Page_Test, Another_File_Takes_The_Place_Of_The_First)
{
    Import_Csv("Phone\n07700900100\n");
    Will_Enter_Path(user, File("other.csv", "Tel,Name\n07700900101,Bob\n"));
    Press("Other_File_Btn");
    EXPECT_EQ(First_Row(), "07700900101|Bob");
    EXPECT_TRUE(Words().startsWith("other.csv: ")) << Words().toStdString();
}
