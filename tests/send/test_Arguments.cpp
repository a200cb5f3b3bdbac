#include "send/Arguments.h"
#include "send/Help_Text.h"
#include "send/Send_Test.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;

namespace {

Read_Arguments_Result Read(const QStringList& arguments)
{
    return Read_Arguments(QStringList(QStringLiteral("corvane-send")) + arguments);
}

struct Mistake
{
    const char* name;
    QStringList arguments;
    const char* words; ///< of the line
};

void PrintTo(const Mistake& mistake, std::ostream* out)
{
    *out << mistake.name;
}

class Mistakes : public testing::TestWithParam<Mistake>
{
};

} // namespace

TEST_P(Mistakes, Are_Named_On_One_Line)
{
    const Trouble trouble = Read(GetParam().arguments).trouble;
    ASSERT_TRUE(trouble);
    EXPECT_EQ(trouble.status, Exit_Status::Unusable_Input);
    const std::string line = trouble.Line().toStdString();
    EXPECT_THAT(line, HasSubstr(GetParam().words));
    EXPECT_THAT(line, testing::MatchesRegex("corvane-send: .+ \\(.+\\)"));
}

INSTANTIATE_TEST_SUITE_P(
    Arguments, Mistakes,
    testing::Values(
        Mistake{"nothing", {}, "no recipients"}, Mistake{"no message", {"--to", "1"}, "no message"},
        Mistake{"no recipients", {"--message", "Hi"}, "no recipients"},
        Mistake{"an empty message", {"--to", "1", "--message", ""}, "--message is given without a value"},
        Mistake{"an empty number", {"--to", "", "--message", "Hi"}, "--to is given without a value"},
        Mistake{"a missing value", {"--message", "Hi", "--to"}, "to"},
        Mistake{"a stray word", {"--to", "1", "--message", "Hi", "there"}, "\"there\" belongs to no option"},
        Mistake{"two tables", {"--table", "a.csv", "--table", "b.csv", "--message", "Hi"}, "more than once"},
        Mistake{"a country that is none", {"--country", "XX", "--to", "1", "--message", "Hi"}, "\"XX\""},
        Mistake{"a column without a table", {"--number-column", "A", "--to", "1", "--message", "Hi"}, "--table"},
        Mistake{
            "a sheet without a table", {"--sheet", "A", "--to", "1", "--message", "Hi"}, "--sheet goes with --table"},
        Mistake{"two delimiters", {"--table", "a", "--delimiter", ",;", "--message", "Hi"}, "\",;\""},
        Mistake{"a letter as delimiter", {"--table", "a", "--delimiter", "x", "--message", "Hi"}, "\"x\""},
        Mistake{"a quote as delimiter", {"--table", "a", "--delimiter", "\"", "--message", "Hi"}, "--delimiter takes"},
        Mistake{"a resumed job with a table", {"--resume", "x", "--table", "a"}, "--table"},
        Mistake{"two messages", {"--to", "1", "--message", "Hi", "--message-file", "f"}, "exclude each other"},
        Mistake{"a message twice", {"--to", "1", "--message", "Hi", "--message", "Ho"}, "more than once"},
        Mistake{"two lists", {"--numbers", "a", "--numbers", "b", "--message", "Hi"}, "more than once"},
        Mistake{"an alphabet that is none", {"--to", "1", "--message", "Hi", "--alphabet", "greek"}, "\"greek\""},
        Mistake{"no fixed alphabet", {"--to", "1", "--message", "Hi", "--fixed-waits", "--alphabet", "auto"}, "auto"},
        Mistake{"two manners", {"--to", "1", "--message", "Hi", "--fixed-waits", "--confirm"}, "exclude each other"},
        Mistake{
            "fixed waits with reports", {"--to", "1", "--message", "Hi", "--fixed-waits", "--reports"}, "--reports"},
        Mistake{"a batch alone", {"--to", "1", "--message", "Hi", "--batch", "5"}, "go together"},
        Mistake{"a pause alone", {"--to", "1", "--message", "Hi", "--pause", "5"}, "go together"},
        Mistake{"no batch", {"--to", "1", "--message", "Hi", "--batch", "0", "--pause", "1"}, "at least 1"},
        Mistake{"a pause of words", {"--to", "1", "--message", "Hi", "--batch", "1", "--pause", "long"}, "\"long\""},
        Mistake{"a negative hold", {"--to", "1", "--message", "Hi", "--hold", "-1"}, "\"-1\""},
        Mistake{"reports for no number", {"--to", "1", "--message", "Hi", "--reports=soon"}, "\"soon\""},
        Mistake{"a centre of words", {"--to", "1", "--message", "Hi", "--service-centre", "here"}, "\"here\""},
        Mistake{"a long centre", {"--to", "1", "--message", "Hi", "--service-centre", "123456789012345678901"}, "20"},
        Mistake{"both journals", {"--to", "1", "--message", "Hi", "--journal", "d", "--no-journal"}, "--no-journal"},
        Mistake{"a resumed job with recipients", {"--resume", "x", "--to", "1"}, "--to"},
        Mistake{"a resumed job without a journal", {"--resume", "x", "--no-journal"}, "--no-journal"},
        Mistake{"again without a job", {"--to", "1", "--message", "Hi", "--again-unknown"}, "--resume"},
        Mistake{"two tasks", {"--to", "1", "--message", "Hi", "--dry-run", "--hand-over", "d"}, "--hand-over"}));

TEST(Arguments_Reading, Takes_Every_Option)
{
    const auto [arguments, trouble] = Read({"--to",
                                            "1",
                                            "--to=+2",
                                            "--numbers",
                                            "-",
                                            "--message",
                                            "--reports",
                                            "--flash",
                                            "--skip-duplicates",
                                            "--exclude",
                                            "x",
                                            "--exclude",
                                            "y",
                                            "--device",
                                            "/dev/a",
                                            "--device",
                                            "/dev/b",
                                            "--service-centre",
                                            "+15550001111",
                                            "--confirm",
                                            "--batch",
                                            "3",
                                            "--pause",
                                            "0",
                                            "--journal",
                                            "j",
                                            "--hold",
                                            "7",
                                            "--table",
                                            "t.csv",
                                            "--number-column",
                                            "Mobile",
                                            "--sheet",
                                            "June",
                                            "--encoding",
                                            "koi8-r",
                                            "--delimiter",
                                            "tab",
                                            "--country",
                                            "gb",
                                            "--keep",
                                            "--json",
                                            "--alphabet",
                                            "unicode"});
    EXPECT_FALSE(trouble) << trouble.Line().toStdString();
    EXPECT_THAT(arguments.numbers, ElementsAre(QString("1"), QString("+2")));
    EXPECT_EQ(arguments.numbers_file, "-");
    EXPECT_EQ(arguments.message, "--reports") << "a value is no option";
    EXPECT_EQ(arguments.report_seconds, -1);
    EXPECT_TRUE(arguments.flash && arguments.skip_duplicates && arguments.keeps_journal && arguments.json);
    EXPECT_THAT(arguments.exclude_files, ElementsAre(QString("x"), QString("y")));
    EXPECT_THAT(arguments.devices, ElementsAre(QString("/dev/a"), QString("/dev/b")));
    EXPECT_EQ(arguments.service_centre, "+15550001111");
    EXPECT_EQ(arguments.batch, 3);
    EXPECT_EQ(arguments.pause_seconds, 0);
    EXPECT_EQ(arguments.journal_folder, "j");
    EXPECT_EQ(arguments.hold_seconds, 7);
    EXPECT_EQ(arguments.table_file, "t.csv");
    EXPECT_EQ(arguments.number_column, "Mobile");
    EXPECT_EQ(arguments.table_choices.sheet, "June");
    EXPECT_EQ(arguments.table_choices.encoding, "koi8-r");
    EXPECT_EQ(arguments.table_choices.delimiter, '\t');
    ASSERT_NE(arguments.country, nullptr);
    EXPECT_STREQ(arguments.country->letters, "GB");
    EXPECT_EQ(arguments.alphabet, Job_Alphabet_Choice::Unicode);
}

TEST(Arguments_Reading, Reports_Come_With_And_Without_Seconds)
{
    EXPECT_EQ(Read({"--to", "1", "--message", "Hi", "--reports"}).arguments.report_seconds, 60);
    EXPECT_EQ(Read({"--to", "1", "--message", "Hi", "--reports=5"}).arguments.report_seconds, 5);
    EXPECT_EQ(Read({"--to", "1", "--message", "Hi"}).arguments.report_seconds, -1);
}

TEST(Arguments_Reading, Fixed_Waits_Have_The_Seven_Bit_Alphabet_By_Default)
{
    EXPECT_EQ(Read({"--to", "1", "--message", "Hi", "--fixed-waits"}).arguments.alphabet, Job_Alphabet_Choice::Gsm);
    EXPECT_EQ(Read({"--to", "1", "--message", "Hi"}).arguments.alphabet, Job_Alphabet_Choice::Auto);
}

TEST(Help, Names_Every_Option)
{
    const std::string help = Help_Text().toStdString();
    for (const char* option : {"--to NUMBER",
                               "--numbers FILE",
                               "--table FILE",
                               "--number-column NAME",
                               "--sheet NAME",
                               "--encoding NAME",
                               "--delimiter CHARACTER",
                               "--country CC",
                               "--message TEXT",
                               "--message-file FILE",
                               "--alphabet auto|gsm|unicode",
                               "--flash",
                               "--skip-duplicates",
                               "--exclude FILE",
                               "--device PATH",
                               "--service-centre NUMBER",
                               "--confirm",
                               "--fixed-waits",
                               "--reports[=SECONDS]",
                               "--batch N --pause SECONDS",
                               "--dry-run",
                               "--hand-over DIR",
                               "--journal DIR",
                               "--no-journal",
                               "--resume JOB",
                               "--again-unknown",
                               "--list-jobs",
                               "--hold SECONDS",
                               "--keep",
                               "--json",
                               "--version",
                               "--help"})
        EXPECT_THAT(help, HasSubstr(option));
}

using Program = Send_Test;

TEST_F(Program, Help_And_Version_Are_Answers)
{
    EXPECT_EQ(Run({"--help"}).status, 0);
    EXPECT_EQ(Run({"--help"}).output, Help_Text().toStdString() + "\n");
    EXPECT_THAT(Run({"--version"}).output,
                MatchesRegex("corvane-send [0-9.]+ \\(commit ([0-9a-f]+|unknown), Qt [0-9.]+\\)\n"));
}

TEST_F(Program, A_Mistake_Goes_To_Standard_Error_And_Ends_With_2)
{
    const auto run = Run({"--table", "missing.csv", "--message", "Hi", "--json"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.output, IsEmpty());
    EXPECT_THAT(run.errors, testing::MatchesRegex("corvane-send: [^\n]+ \\([^\n]+\\)\n"));
}

TEST_F(Program, A_Pace_That_Is_None_Is_Refused)
{
    m_environment.insert("CORVANE_PACE", "fast");
    const auto run = Run(With_Device(To_So_Many(1)));
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, HasSubstr("CORVANE_PACE"));
    EXPECT_THAT(m_phone.Heard(), IsEmpty());
}
