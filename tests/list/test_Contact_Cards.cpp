#include "list/Card_Line.h"
#include "list/Card_Numbers.h"
#include "list/Shown_Table.h"

#include <gtest/gtest.h>

namespace {

struct Cards
{
    const char* name;
    QByteArray lines;  ///< between BEGIN and END
    std::string shown; ///< of the fields FN to EMAIL
};

void PrintTo(const Cards& cards, std::ostream* out)
{
    *out << cards.name;
}

class Contact_Cards : public testing::TestWithParam<Cards>
{
};

Table_In_A_File Read(const QByteArray& bytes)
{
    return Table_Of_Bytes(bytes, QStringLiteral("a.vcf"), {});
}

const std::string Header = "FN|N|First name|Last name|TEL|TEL 2|TEL 3|ORG|EMAIL";

} // namespace

TEST_P(Contact_Cards, Are_Read)
{
    const auto file = Read("BEGIN:VCARD\nVERSION:3.0\n" + GetParam().lines + "\nEND:VCARD\n");
    EXPECT_EQ(Shown(file), Header + '/' + GetParam().shown);
    EXPECT_EQ(file.facts.format, "vCard");
    EXPECT_EQ(file.facts.number_column, "TEL");
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Contact_Cards,
    testing::Values(
        Cards{"names", "FN:Ann Hill\nN:Hill;Ann;Mary;Dr.;MD\nTEL:1", "Ann Hill|Dr. Ann Mary Hill MD|Ann|Hill|1||||"},
        Cards{"no full name", "N:Hill;Ann;;;\nTEL:1", "Ann Hill|Ann Hill|Ann|Hill|1||||"},
        Cards{"mobile numbers first",
              "FN:A\nTEL;TYPE=fax,pref:1\nTEL;TYPE=home:2\nTEL;TYPE=cell:3\nTEL;TYPE=work,pref:4\nTEL;CELL;PREF:5",
              "A||||5|3|4||"},
        Cards{"folded lines", "FN:An\n n\n\tHill\nTEL:077\n 00", "AnnHill||||07700||||"},
        Cards{"escapes", "FN:A\\, B\\; C\\\\\\nD\nTEL:1\nORG:X\\;Y;Z", "A, B; C\\\nD||||1|||X;Y, Z|"},
        Cards{"quoted-printable text", "FN;ENCODING=QUOTED-PRINTABLE;CHARSET=UTF-8:J=C3=\n=B6rg=20=3D=\nX\nTEL:1",
              "J\xC3\xB6rg =X||||1||||"},
        Cards{"quoted-printable Latin-1", "FN;CHARSET=ISO-8859-1;QUOTED-PRINTABLE:J=F6rg =ZZ=\nTEL:1",
              "J\xC3\xB6rg =ZZTEL:1||||||||"},
        Cards{"bytes without a charset", "FN:J\xF6rg\nORG:M\xC3\xBCller\nTEL:1", "J\xC3\xB6rg||||1|||M\xC3\xBCller|"},
        Cards{"groups and quoted parameters", "a.FN:A\nitem1.TEL;TYPE=\"cell;x:y\":1\nitem1.X-ABLabel:2", "A||||1||||"},
        Cards{"links", "FN:A\nTEL;VALUE=uri;TYPE=cell:tel:+44-1;ext=2", "A||||tel:+44-1;ext=2||||"},
        Cards{"the first of several", "FN:A\nFN:B\nTEL:1\nORG:C\nORG:D\nEMAIL:e\nEMAIL;PREF=1:f\nEMAIL:g",
              "A||||1|||C|f"},
        Cards{"what is no line", "FN:A\n\nx\n:\n;;;:\nTEL:1", "A||||1||||"},
        Cards{"more numbers than columns", "FN:A\nTEL:1\nTEL:2\nTEL:3\nTEL:4", "A||||1|2|3||"},
        Cards{"a card within", "FN:A\nAGENT:\nBEGIN:VCARD\nFN:B\nTEL:9\nEND:VCARD\nTEL:1", "A||||1||||"}));

TEST(Contact_Card_Files, Have_Cards_In_Rows)
{
    const auto file = Read("\n BEGIN:VCARD\r\nTEL:1\r\nEND:VCARD\r\n\r\nbegin:vcard\rTEL:2\rend:vcard");
    EXPECT_EQ(Shown(file), Header + "/||||1||||/||||2||||");
    EXPECT_EQ(file.table.Source_Row(1), 6);
}

TEST(Contact_Card_Files, May_Be_In_Any_Encoding)
{
    QByteArray utf16("\xFF\xFE", 2);
    for (const char byte : QByteArray("BEGIN:VCARD\nFN:J\xF6rg\nTEL:1\nEND:VCARD\n"))
        utf16 += QByteArray(1, byte) + '\0';
    EXPECT_EQ(Shown(Read(utf16)), Header + "/J\xC3\xB6rg||||1||||");
    EXPECT_EQ(Shown(Read("\xEF\xBB\xBF"
                         "BEGIN:VCARD\nTEL:1\nEND:VCARD\n")),
              Header + "/||||1||||");
    EXPECT_EQ(
        Shown(Table_Of_Bytes("BEGIN:VCARD\nFN:\xE1\nTEL:1\nEND:VCARD\n", {}, {QStringLiteral("ISO-8859-7"), {}, 0})),
        Header + "/\xCE\xB1||||1||||");
}

TEST(Contact_Card_Files, That_Are_Cut_Are_Refused)
{
    const QByteArray whole = "BEGIN:VCARD\nTEL:1\nEND:VCARD\n";
    EXPECT_EQ(Shown(Read(whole + "BEGIN:VCARD\nTEL:2\n")), "the contact that begins in line 4 has no end");
    EXPECT_EQ(Shown(Read("BEGIN:VCARD\nTEL:2\n" + whole)), "the contact that begins in line 1 has no end");
    EXPECT_EQ(Shown(Read("BEGIN:VCARD\nEND:VCARD\n")), Header);
}

TEST(Contact_Card_Files, Can_Have_A_Row_For_Each_Number)
{
    const auto file = Read("BEGIN:VCARD\nFN:A\nTEL:1\nTEL;TYPE=cell:2\nTEL:3\nEND:VCARD\n"
                           "BEGIN:VCARD\nFN:B\nEND:VCARD\nBEGIN:VCARD\nFN:C\nTEL:4\nEND:VCARD\n");
    Table_In_A_File rows;
    rows.table = One_Row_For_Each_Number(file.table);
    EXPECT_EQ(Shown(rows), Header + "/A||||2|1|3||/A||||1|1|3||/A||||3|1|3||/B||||||||/C||||4||||");
    EXPECT_EQ(rows.table.Source_Row(2), 1);
    EXPECT_EQ(rows.table.Source_Row(4), 10);
}

TEST(Card_Line, Quoted_Printable_Text_Is_Undone)
{
    EXPECT_EQ(From_Quoted_Printable("a=3D=e9=4"), "a=\xE9=4");
    EXPECT_EQ(From_Quoted_Printable("=41="), "A=");
    EXPECT_EQ(From_Quoted_Printable("==41=GG"), "=A=GG");
}
