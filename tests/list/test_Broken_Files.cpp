#include "list/Sheets_Of.h"
#include "list/Table_File.h"

#include <QFile>
#include <ctime>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

// Files that are spoilt, or made to spoil a program: each is read by a process of its own that has little time and
// little memory, and what it says is compared word for word.

namespace {

constexpr double Megabyte = 1024 * 1024;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr double Slowness = 20; // and the memory is the sanitizer's
constexpr bool Memory_Is_Bounded = false;
#else
constexpr double Slowness = 1;
constexpr bool Memory_Is_Bounded = true;
#endif

struct Broken_File
{
    const char* name;
    QByteArray (*bytes)();
    const char* words; ///< its trouble; for one that can be read all the same, how much there is in it
    Table_Choices choices = {};
    double megabytes = 32; ///< besides four times its size
    double seconds = 2;    ///< of the processor
};

void PrintTo(const Broken_File& file, std::ostream* out)
{
    *out << file.name;
}

class Broken_Files : public testing::TestWithParam<Broken_File>
{
};

double Address_Space_In_Use()
{
    QFile status(QStringLiteral("/proc/self/statm"));
    return status.open(QIODevice::ReadOnly)
               ? status.readAll().split(' ').at(0).toDouble() * static_cast<double>(getpagesize())
               : 0;
}

std::string Words_For(const Table_In_A_File& file)
{
    if (!file.trouble.isEmpty())
        return file.trouble.toStdString();
    return std::to_string(file.table.Column_Count()) + " columns, " + std::to_string(file.table.Row_Count()) + " rows";
}

// Ends the process: 0 where the words come in time and in little memory.
[[noreturn]] void Read_And_Leave(const Broken_File& file, const QByteArray& bytes)
{
    if (Memory_Is_Bounded) {
        const double most = Address_Space_In_Use() + file.megabytes * Megabyte + 4 * static_cast<double>(bytes.size());
        const auto limit = static_cast<rlim_t>(most);
        const rlimit bound{limit, limit};
        setrlimit(RLIMIT_AS, &bound);
    }
    const auto seconds = static_cast<rlim_t>(file.seconds * Slowness + 1);
    const rlimit time{seconds, seconds};
    setrlimit(RLIMIT_CPU, &time); // ends the process where it is not enough
    std::string words;
    try {
        words = Words_For(Table_Of_Bytes(bytes, QStringLiteral("list.csv"), file.choices));
    } catch (const std::bad_alloc&) {
        words = "out of memory";
    }
    if (words != file.words)
        fprintf(stderr, "%s\n", words.c_str());
    const double used = static_cast<double>(std::clock()) / CLOCKS_PER_SEC;
    std::_Exit(words != file.words ? 1 : used > file.seconds * Slowness ? 2 : 0);
}

QByteArray Text_Of(const char* text)
{
    return text;
}

constexpr char Damaged[] = "it is damaged, or only a part of it";
constexpr char Too_Large[] = "it holds more than can be read";
constexpr char Encrypted[] = "it is encrypted; saved without a password it can be read";
constexpr char Old[] = "it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read";
constexpr char Compound[] = "\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1";

} // namespace

TEST_P(Broken_Files, Are_Named_In_Little_Time_And_Memory)
{
    const QByteArray bytes = GetParam().bytes();
    const pid_t child = fork();
    ASSERT_GE(child, 0);
    if (child == 0)
        Read_And_Leave(GetParam(), bytes);
    int status = 0;
    ASSERT_EQ(waitpid(child, &status, 0), child);
    EXPECT_FALSE(WIFSIGNALED(status)) << "ended by signal " << WTERMSIG(status);
    EXPECT_EQ(WEXITSTATUS(status), 0) << "1: other words, 2: too slow";
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Text, Broken_Files, testing::Values(
    Broken_File{"nothing", [] { return QByteArray(); }, "it is empty"},
    Broken_File{"a million blank rows", [] { return QByteArray("  \t \r\n").repeated(1'000'000); }, "it is empty"},
    Broken_File{"a quote that opens in front of five megabytes",
                [] { return "Name,Phone\n\"Ann,1\n" + QByteArray("Bob,2\n").repeated(900'000); },
                "the quote that opens in line 2 is never closed"},
    Broken_File{"a quote in the last line", [] { return "Name,Phone\n" + QByteArray("Ann,1\n").repeated(1000) + "\"Bob"; },
                "the quote that opens in line 1002 is never closed"},
    Broken_File{"nothing but quotes", [] { return QByteArray(1'000'001, '"'); },
                "the quote that opens in line 1 is never closed"},
    Broken_File{"a field of ten megabytes", [] { return "Name,Phone\n" + QByteArray(10'000'000, 'x') + ",1\n"; }, "2 columns, 1 rows"},
    Broken_File{"ten thousand columns",
                [] { return "Phone" + QByteArray(",x").repeated(9'999) + '\n' + (QByteArray(9'999, ',') + "1\n").repeated(50); },
                "10000 columns, 50 rows"},
    Broken_File{"more columns than there can be", [] { return "Phone" + QByteArray(16'384, ',') + "\n1\n"; },
                "row 1 has more than 16384 fields"},
    Broken_File{"five million commas in a row", [] { return "Name,Phone\n" + QByteArray(5'000'000, ',') + "1\n"; },
                "row 2 has more than 16384 fields"},
    Broken_File{"more fields than there can be", [] { return "Name,Phone\n" + (QByteArray(16'000, ',') + "1\n").repeated(2'100); },
                Too_Large, {}, 200, 4},
    Broken_File{"a number in place of names", [] { return Text_Of("+44 7700 900100\n+44 7700 900101\n"); },
                "its first row holds the number +44 7700 900100, and no names of columns"},
    Broken_File{"two encodings", [] { return Text_Of("Name,Phone\nJ\xC3\xB6rg,1\nJ\xF6rg,2\n"); },
                "it mixes UTF-8 with another encoding; line 3 is not UTF-8"},
    Broken_File{"another encoding than was said", [] { return Text_Of("Name,Phone\nJ\xF6rg,1\n"); }, "it is not encoded in UTF-8",
                {QStringLiteral("UTF-8"), {}, 0}},
    Broken_File{"an encoding that nobody knows", [] { return Text_Of("Name,Phone\nAnn,1\n"); },
                "the encoding \"EBCDIC-9\" is not known", {QStringLiteral("EBCDIC-9"), {}, 0}},
    Broken_File{"UTF-16 that is cut", [] { return QByteArray("\xFF\xFE" "A\0\n\0x", 7); }, "it is not encoded in UTF-16LE"},
    Broken_File{"half a pair of UTF-16", [] { return QByteArray("\xFF\xFE" "A\0\n\0\x01\xD8\n\0", 10); }, "it is not encoded in UTF-16LE"},
    Broken_File{"a zero behind a megabyte", [] { return "Name,Phone\n" + QByteArray("Ann,1\n").repeated(170'000) + QByteArray(1, '\0'); },
                "it is no text: line 170002 holds characters that no list has"},
    Broken_File{"bytes of any kind",
                [] { QByteArray bytes; for (unsigned at = 1; at < 100'000; ++at) bytes += static_cast<char>(at * 2654435761U >> 13); return bytes; },
                "it is no text: line 1 holds characters that no list has"}));

INSTANTIATE_TEST_SUITE_P(Other_Kinds, Broken_Files, testing::Values(
    Broken_File{"a program called .csv", [] { return QByteArray("\x7F" "ELF\x02\x01\x01\0", 8) + QByteArray(100'000, '\x90'); },
                "it is a program, and no list"},
    Broken_File{"a program of another system", [] { return "MZ" + QByteArray(100'000, '\0'); }, "it is a program, and no list"},
    Broken_File{"a table that begins like one", [] { return Text_Of("MZ,Phone\nAnn,07700900100\n"); }, "2 columns, 1 rows"},
    Broken_File{"a PDF document", [] { return "%PDF-1.7\n" + QByteArray(1000, 'x'); }, "it is a PDF document, and no list"},
    Broken_File{"a picture", [] { return Text_Of("\xFF\xD8\xFF\xE0"); }, "it is a picture, and no list"},
    Broken_File{"rich text", [] { return "{\\rtf1 " + QByteArray("{").repeated(100'000); }, "it is rich text; its numbers can be imported under a name that ends in .rtf"},
    Broken_File{"a web page", [] { return Text_Of("<!DOCTYPE html><table><tr><td>1"); }, "it is a web page, and no list"},
    Broken_File{"an XML document", [] { return Text_Of("<?xml version=\"1.0\"?><list/>"); }, "it is an XML document, and no list"},
    Broken_File{"something compressed", [] { return QByteArray("\x1F\x8B\x08\0", 4) + QByteArray(1000, 'x'); }, "it is a compressed file, and no list"},
    Broken_File{"an old spreadsheet", [] { return Compound + QByteArray(100'000, '\0'); }, Old},
    Broken_File{"a spreadsheet with a password",
                [] { return Compound + QByteArray(reinterpret_cast<const char*>(u"EncryptedPackage"), 32); }, Encrypted},
    Broken_File{"a contact without an end", [] { return "BEGIN:VCARD\n" + QByteArray("TEL:1\n").repeated(200'000); },
                "the contact that begins in line 1 has no end"},
    Broken_File{"a contact in a line that goes on and on",
                [] { return "BEGIN:VCARD\nFN;QUOTED-PRINTABLE:" + QByteArray("=\n").repeated(500'000); },
                "the contact that begins in line 1 has no end"}));

INSTANTIATE_TEST_SUITE_P(Spreadsheets, Broken_Files, testing::Values(
    Broken_File{"cut in half", [] { return Xlsx(Header).left(700); }, Damaged},
    Broken_File{"cut at its end", [] { return Xlsx(Header).chopped(30); }, Damaged},
    Broken_File{"a flipped bit",
                [] { QByteArray bytes = Xlsx(Header + "<row><c><v>1</v></c></row>"); const qsizetype at = bytes.indexOf("xl/sheets/2.xml") + 20;
                     bytes[at] = static_cast<char>(bytes[at] ^ 1); return bytes; }, Damaged},
    Broken_File{"a document of another kind", [] { return Archive_Of({{"word/document.xml", "<a/>"}}); }, "it is an archive, and no list"},
    Broken_File{"a binary one", [] { return Archive_Of({{"xl/workbook.bin", "x"}}); }, Old},
    Broken_File{"an archive with a password",
                [] { return Archive_Of({{"[Content_Types].xml", "<Types/>"}, {"xl/workbook.xml", Workbook}}, "secret"); }, Encrypted},
    Broken_File{"a sheet that it lacks", [] { return Xlsx(Header); },
                "it has no sheet \"May\"; its sheets are \"Spare\", \"People\", \"June & July\"", {{}, QStringLiteral("May"), 0}},
    Broken_File{"no sheets", [] { return Xlsx(Header, Texts, "<workbook/>"); }, "it has no sheets"},
    Broken_File{"entities that multiply",
                [] { return Xlsx(Header, "<!DOCTYPE a [<!ENTITY a 'xxxxxxxxxx'><!ENTITY b '&a;&a;&a;&a;'>]><sst><si><t>&b;</t></si></sst>"); }, Damaged},
    Broken_File{"a hundred megabytes of blanks", [] { return Xlsx(Header + QByteArray(100'000'000, ' ')); }, "2 columns, 0 rows", {}, 32, 4},
    Broken_File{"a hundred megabytes in one text", [] { return Xlsx(Header, "<sst><si><t>" + QByteArray(100'000'000, 'x')); }, Damaged, {}, 400, 4},
    Broken_File{"ten million empty rows", [] { return Xlsx(Header + QByteArray("<row/>").repeated(10'000'000)); }, "2 columns, 0 rows", {}, 32, 4},
    Broken_File{"a million elements within each other", [] { return Xlsx(Header + QByteArray("<a>").repeated(1'000'000)); }, Damaged},
    Broken_File{"a name without an end", [] { return Xlsx(Header + '<' + QByteArray(5'000'000, 'a')); }, Damaged, {}, 64},
    Broken_File{"a column that no sheet has", [] { return Xlsx(Header + "<row><c r='ZZZZZZZZZZ2'><v>1</v></c></row>"); }, Damaged},
    Broken_File{"a cell at the end of each of many rows",
                [] { return Xlsx(Header + QByteArray("<row><c r='XFD1'><v>1</v></c></row>").repeated(2'200)); }, Too_Large, {}, 200, 4},
    Broken_File{"a million repeated cells", [] { return Ods(Row(Text("x", "table:number-columns-repeated='1000000'"))); }, Damaged},
    Broken_File{"a million repeated rows of many cells",
                [] { return Ods(Ods_Header + "<table:table-row table:number-rows-repeated='1000000'>" +
                                Text("x", "table:number-columns-repeated='16384'") + "</table:table-row>"); }, Too_Large, {}, 250, 4},
    Broken_File{"rows beyond the last", [] { return Ods(Ods_Header + "<table:table-row table:number-rows-repeated='2147483647'>" +
                                                        Text("x") + "</table:table-row>"); }, Damaged},
    Broken_File{"blanks without number", [] { return Ods(Ods_Header + Row(Text(QByteArray("<text:s text:c='2000000000'/>").repeated(1000)))); },
                "2 columns, 0 rows"},
    Broken_File{"a key and no text", [] { return Archive_Of({{"META-INF/manifest.xml", "<m:file-entry><m:encryption-data/></m:file-entry>"},
                                                            {"content.xml", "\x01\x02"}}); }, Encrypted}));
// clang-format on
