#include "list/Sheets_Of.h"
#include "list/Shown_Table.h"
#include "list/Spreadsheet_File.h"
#include "list/Zip_Archive.h"

namespace {

struct Sheet
{
    const char* name;
    QByteArray bytes;
    std::string shown;
    const char* sheet = "";
};

void PrintTo(const Sheet& sheet, std::ostream* out)
{
    *out << sheet.name;
}

class Sheets : public testing::TestWithParam<Sheet>
{
};

constexpr char Damaged[] = "it is damaged, or only a part of it";
constexpr char Too_Large[] = "it holds more than can be read";
constexpr char Encrypted[] = "it is encrypted; saved without a password it can be read";

} // namespace

TEST_P(Sheets, Are_Read)
{
    const QByteArray& bytes = GetParam().bytes;
    EXPECT_EQ(Shown(Table_Of_Bytes(bytes, QStringLiteral("list.csv"), {{}, QString::fromUtf8(GetParam().sheet), 0})),
              GetParam().shown);
}

INSTANTIATE_TEST_SUITE_P(
    Xlsx, Sheets,
    testing::Values(
        Sheet{"shared texts",
              Xlsx(Header + "<row r='2'><c r='A2' t='s'><v>2</v></c><c r='B2'><v>7</v></c></row><row r='3'>"
                            "<c r='A3' t='s'><v>3</v></c></row>"),
              "Name|Phone/Ann|7/ B\xC3\xB6"
              "b <\xF0\x9F\x98\x80>"},
        Sheet{"texts in their places",
              Xlsx(Header + "<row><c t='inlineStr'><is><r><t>A</t></r><r><t>b</t></r></is></c>"
                            "<c t='str'><f>1+1</f><v>x&amp;y</v></c></row>"),
              "Name|Phone/Ab|x&y"},
        Sheet{"cells that are left out",
              Xlsx(Header + "<row r='9'><c r='B9'><v>5</v></c></row><row r='10'/>"
                            "<row r='11'><c r='A11'/><c r='B11' s='1'/></row>"),
              "Name|Phone/|5"},
        Sheet{"more cells than names", Xlsx(Header + "<row><c r='D2'><v>5</v></c></row>"), "Name|Phone/|||5"},
        Sheet{"long numbers",
              Xlsx(Header + "<row><c><v>447700900100</v></c><c><v>4.477009001E11</v></c></row>"
                            "<row><c><v>1.7E+20</v></c><c><v>123456789012345678</v></c></row>"),
              "Name|Phone/447700900100|447700900100/1.7E+20|1.23456789012346E+17"},
        Sheet{"numbers with zeros in front, and dates",
              Xlsx(Header + "<row><c s='1'><v>7700900100</v></c><c s='2'><v>46380</v></c></row>"),
              "Name|Phone/07700900100|2026-12-24"},
        Sheet{"truths, errors and dates in words",
              Xlsx(Header + "<row><c t='b'><v>1</v></c><c t='d'><v>2026-12-24T00:00:00</v></c></row>"
                            "<row><c t='e'><v>#N/A</v></c><c t='b'><v>0</v></c></row>"),
              "Name|Phone/TRUE|2026-12-24/|FALSE"},
        Sheet{"a sheet by name", Xlsx(Header), "Tel/1", "june & july "},
        Sheet{"a hidden sheet by name", Xlsx(Header), "Hidden", "Spare"},
        Sheet{"a wrong sheet", Xlsx(Header),
              "it has no sheet \"May\"; its sheets are \"Spare\", \"People\", \"June & July\"", "May"},
        Sheet{"no sheets", Xlsx(Header, Texts, "<workbook/>"), "it has no sheets"},
        Sheet{"an empty sheet", Xlsx(""), "it is empty"},
        Sheet{"a text that is not there", Xlsx(Header + "<row><c t='s'><v>99</v></c><c t='s'><v>-1</v></c></row>"),
              "Name|Phone"},
        Sheet{"a column that no sheet has", Xlsx(Header + "<row><c r='ZZZZ2'><v>1</v></c></row>"), Damaged},
        Sheet{"columns in disorder", Xlsx(Header + "<row><c r='B2'><v>1</v></c><c r='A2'><v>1</v></c></row>"), Damaged},
        Sheet{"a sheet that is cut", Xlsx(Header + "<row><c"), Damaged},
        Sheet{"an open element", Xlsx(Header + "<row>"), Damaged},
        Sheet{"texts that are cut", Xlsx(Header, "<sst><si><t>Name"), Damaged},
        Sheet{"an entity that is declared", Xlsx(Header, "<!DOCTYPE a [<!ENTITY b 'c'>]><sst/>"), Damaged},
        Sheet{"UTF-16", Xlsx(Header, QByteArray("\xFF\xFE<\0s\0s\0t\0/\0>\0", 14)), Damaged},
        Sheet{"Latin-1", Xlsx(Header, "<?xml version='1.0' encoding='ISO-8859-1'?><sst/>"), Damaged},
        Sheet{"a million cells in the last column",
              [] {
                  QByteArray rows = Header;
                  for (int row = 2; row < 2200; ++row)
                      rows += "<row><c r='XFD1'><v>1</v></c></row>";
                  return Xlsx(rows);
              }(),
              Too_Large},
        Sheet{"cut in half", Xlsx(Header).left(700), Damaged},
        Sheet{"cut at its end", Xlsx(Header).chopped(30), Damaged},
        Sheet{"a single bit",
              [] {
                  QByteArray bytes = Xlsx(Header + "<row><c><v>1</v></c></row>");
                  bytes[bytes.indexOf("xl/sheets/2.xml") + 20] =
                      static_cast<char>(bytes[bytes.indexOf("xl/sheets/2.xml") + 20] ^ 1);
                  return bytes;
              }(),
              Damaged},
        Sheet{"an archive of something else", Archive_Of({{"word/document.xml", "<a/>"}}),
              "it is an archive, and no list"},
        Sheet{"a binary workbook", Archive_Of({{"xl/workbook.bin", "x"}}),
              "it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read"},
        Sheet{"an archive with a password",
              Archive_Of({{"[Content_Types].xml", "<Types/>"}, {"xl/workbook.xml", Workbook}}, "secret"), Encrypted},
        Sheet{"a workbook with a password",
              "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + QByteArray(reinterpret_cast<const char*>(u"EncryptedPackage"), 32),
              Encrypted},
        Sheet{"an old workbook", "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1" + QByteArray(100, 'x'),
              "it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read"}));

INSTANTIATE_TEST_SUITE_P(
    Ods, Sheets,
    testing::Values(
        Sheet{
            "texts",
            Ods(Ods_Header +
                Row(Text("A<text:s text:c='2'/>b<text:span>c</text:span><text:tab/>d</text:p><text:p>e") + Text("7"))),
            "Name|Phone/A  bc\td\ne|7"},
        Sheet{"a comment",
              Ods(Ods_Header + Row("<table:table-cell><office:annotation><text:p>no</text:p></office:annotation>"
                                   "<text:p>Ann</text:p></table:table-cell>")),
              "Name|Phone/Ann"},
        Sheet{
            "numbers as they are shown",
            Ods(Ods_Header +
                Row("<table:table-cell office:value-type='float' office:value='7700900100'><text:p>07700900100</text:p>"
                    "</table:table-cell><table:table-cell office:value-type='float' office:value='447700900100'>"
                    "<text:p>4.48E+11</text:p></table:table-cell>")),
            "Name|Phone/07700900100|447700900100"},
        Sheet{"numbers where there is no room, and errors",
              Ods(Ods_Header +
                  Row("<table:table-cell office:value-type='float' office:value='447700900100'><text:p>###</text:p>"
                      "</table:table-cell><table:table-cell calcext:value-type='error'><text:p>#N/A</text:p>"
                      "</table:table-cell>")),
              "Name|Phone/447700900100"},
        Sheet{"repeated cells",
              Ods(Ods_Header + Row("<table:table-cell table:number-columns-repeated='1'/>" + Text("7")) +
                  Row(Text("x", "table:number-columns-repeated='2'") +
                      "<table:table-cell table:number-columns-repeated='16382'/>")),
              "Name|Phone/|7/x|x"},
        Sheet{"repeated rows",
              Ods(Ods_Header + "<table:table-row table:number-rows-repeated='2'>" + Text("x") +
                  "</table:table-row>"
                  "<table:table-row table:number-rows-repeated='1048576'><table:table-cell/></table:table-row>"),
              "Name|Phone/x/x"},
        Sheet{"groups of rows",
              Ods("<table:table-column/><table:table-header-rows>" + Ods_Header +
                  "</table:table-header-rows>"
                  "<table:table-row-group>" +
                  Row(Text("x")) + "</table:table-row-group>"),
              "Name|Phone/x"},
        Sheet{"a hidden sheet first",
              Ods(Ods_Header,
                  "<table:table table:name='Old' table:style-name='h'>" + Row(Text("Tel")) + "</table:table>"),
              "Name|Phone"},
        Sheet{"a sheet by name",
              Ods(Ods_Header,
                  "<table:table table:name='Old' table:style-name='h'>" + Row(Text("Tel")) + "</table:table>"),
              "Tel", "old"},
        Sheet{"a wrong sheet", Ods(Ods_Header), "it has no sheet \"May\"; its sheets are \"People\"", "May"},
        Sheet{"no sheets", Archive_Of({{"content.xml", "<a/>"}}), "it has no sheets"},
        Sheet{"a million repeated cells", Ods(Row(Text("x", "table:number-columns-repeated='1000000'"))), Damaged},
        Sheet{"a million repeated rows of many cells",
              Ods(Ods_Header + "<table:table-row table:number-rows-repeated='1000000'>" +
                  Text("x", "table:number-columns-repeated='16384'") + "</table:table-row>"),
              Too_Large},
        Sheet{"rows beyond the last",
              Ods(Ods_Header + "<table:table-row table:number-rows-repeated='2000000000'>" + Text("x") +
                  "</table:table-row>"),
              Damaged},
        Sheet{"a sheet that is cut", Archive_Of({{"content.xml", "<a><table:table table:name='A'><table:table-row>"}}),
              Damaged},
        Sheet{"a password",
              Archive_Of({{"META-INF/manifest.xml", "<m:file-entry><m:encryption-data/></m:file-entry>"},
                          {"content.xml", "\x01\x02"}}),
              Encrypted},
        Sheet{"a password of today", Archive_Of({{"mimetype", "x"}, {"encrypted-package", "\x01\x02"}}), Encrypted}));

TEST(Zip_Archive, Unpacks_No_More_Than_Its_Limit)
{
    const QByteArray bytes = Archive_Of({{"a", QByteArray(1'000'000, ' ')}});
    EXPECT_LT(bytes.size(), 2000);
    Zip_Archive archive(bytes, 500'000);
    ASSERT_TRUE(archive.Open("a"));
    QByteArray piece(100'000, '\0');
    qint64 read = 0;
    while (const qint64 count = archive.Read(piece.data(), piece.size()))
        read += count;
    EXPECT_EQ(read, 500'000);
    EXPECT_EQ(archive.Trouble_So_Far(), Zip_Archive::Trouble::Too_Large);
    EXPECT_FALSE(archive.Open("a"));
}

TEST(Spreadsheets, Name_Their_Sheets)
{
    const QStringList sheets{QStringLiteral("Spare"), QStringLiteral("People"), QStringLiteral("June & July")};
    EXPECT_EQ(Table_Of_Bytes(Xlsx(Header), {}, {}).facts.sheets, sheets);
    EXPECT_EQ(Table_Of_Bytes(Xlsx(Header), {}, {{}, QStringLiteral("May"), 0}).facts.sheets, sheets);
}
