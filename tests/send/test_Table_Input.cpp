#include "send/Inputs.h"
#include "send/Send_Test.h"

using testing::HasSubstr;

namespace {

using Verdicts = std::vector<std::string>;

// Each row as "number verdict text".
class Tables : public testing::Test
{
protected:
    Verdicts Read(const QByteArray& bytes, const QString& message)
    {
        Write_Bytes(m_folder.filePath("list.csv"), bytes);
        m_arguments.table_file = m_folder.filePath("list.csv");
        m_arguments.message = message;
        m_inputs = Read_Inputs(m_arguments);
        Verdicts verdicts;
        for (const Planned_Row& row : m_inputs.rows) {
            EXPECT_EQ(row.row, static_cast<int>(verdicts.size()) + 1);
            const QString verdict = row.Is_To_Be_Sent() ? QStringLiteral("send") : row.skipped;
            verdicts.push_back((row.number + u' ' + verdict + u' ' + row.text).toStdString());
        }
        return verdicts;
    }

    std::string Trouble_With(const QByteArray& bytes, const QString& message = QStringLiteral("Hi"))
    {
        Read(bytes, message);
        return m_inputs.trouble.Line().toStdString();
    }

    QTemporaryDir m_folder;
    Arguments m_arguments;
    Inputs m_inputs;
};

} // namespace

TEST_F(Tables, Fill_A_Message_For_Each_Row)
{
    m_arguments.numbers = QStringList{"0170"};
    EXPECT_EQ(
        Read("Name,Phone,City\nAnn,+44 7700 900100,Bath\n\nBob,(07700) 900101,\n", "{{name|Friend}} in {{City|town}}"),
        (Verdicts{"0170 send Friend in town", "00447700900100 send Ann in Bath", "07700900101 send Bob in town"}));
    ASSERT_TRUE(m_inputs.table);
    EXPECT_EQ(m_inputs.table->number_column, "Phone");
    EXPECT_EQ(m_inputs.table->facts.encoding, "UTF-8");
}

TEST_F(Tables, Give_Each_Row_One_Verdict)
{
    Write_Bytes(m_folder.filePath("stop"), "07700 900 109\n");
    m_arguments.country = Country_With_Letters(u"GB");
    m_arguments.exclude_files = QStringList{m_folder.filePath("stop")};
    m_arguments.skip_duplicates = true;
    const QByteArray rows = "Name,Phone\n"
                            "Ann,07700 900100\n"
                            "Bob,+447700900100\n"
                            "Cy,07700900101,more\n"
                            "Dee,\n"
                            "Eve,4.477E+11\n"
                            ",07700900102\n"
                            "Fay,7700900103\n"
                            "\"Gil\"x,07700900104\n"
                            "Hal,+44 7700 900109\n" +
                            QByteArray(1601, 'x') + ",07700900105\n" + QByteArray(1600, 'x') + ",07700900106\n";
    const Verdicts verdicts = Read(rows, "{{Name}}");
    ASSERT_EQ(verdicts.size(), 11U);
    EXPECT_EQ(verdicts[0], "00447700900100 send Ann");
    EXPECT_EQ(verdicts[1], "00447700900100 duplicate Bob");
    EXPECT_EQ(verdicts[2], "00447700900101 wrong-columns Cy");
    EXPECT_EQ(verdicts[3], "- invalid-number Dee");
    EXPECT_EQ(verdicts[4], "4.477E+11 invalid-number Eve");
    EXPECT_EQ(verdicts[5], "00447700900102 empty-field {{Name}}");
    EXPECT_EQ(verdicts[6], "00447700900103 send Fay");
    EXPECT_EQ(verdicts[7], "00447700900104 wrong-columns Gilx");
    EXPECT_EQ(verdicts[8], "00447700900109 excluded Hal");
    EXPECT_THAT(verdicts[9], HasSubstr("00447700900105 too-long xxx"));
    EXPECT_THAT(verdicts[10], HasSubstr("00447700900106 send xxx"));
    EXPECT_EQ(m_inputs.rows[4].note, "a spreadsheet has rounded it; its digits are lost");
    EXPECT_EQ(m_inputs.rows[6].note, "its first 0 may have been lost; taken as one of United Kingdom");
    EXPECT_EQ(Read(rows, "{{Nmae}}")[0], "00447700900100 unknown-field {{Nmae}}");
}

TEST_F(Tables, Name_Their_Columns_Where_None_Can_Be_Chosen)
{
    const QByteArray two = "Name,Home,Mobile\nAnn,02079460000,07700900100\n";
    EXPECT_THAT(Trouble_With(two),
                HasSubstr("several columns that hold numbers (\"Home\", \"Mobile\"; --number-column names one)"));
    EXPECT_THAT(Trouble_With("Name,Phone\nAnn,\n"),
                HasSubstr("no column that holds numbers (its columns are \"Name\", \"Phone\";"));
    m_arguments.number_column = "mobile ";
    EXPECT_EQ(Read(two, "{{Home}}"), Verdicts{"07700900100 send 02079460000"});
    m_arguments.number_column = "Work";
    EXPECT_THAT(Trouble_With(two),
                HasSubstr("has no column \"Work\" (its columns are \"Name\", \"Home\", \"Mobile\")"));
    m_arguments.number_column = "Tel";
    EXPECT_THAT(Trouble_With("Tel,tel\n1,2\n"), HasSubstr("has several columns \"Tel\""));
    m_arguments.number_column.clear();
    QByteArray header = "Phone";
    for (int column = 1; column < 10'000; ++column)
        header += ",c" + QByteArray::number(column);
    EXPECT_THAT(Trouble_With(header + "\nAnn\n"), HasSubstr("\"c19\", and 9980 more"));
}

TEST_F(Tables, That_Cannot_Be_Used_Are_Refused_In_Words)
{
    EXPECT_THAT(Trouble_With("Name,Tel,name\nAnn,07700900100,B\n", "{{Name}}"),
                HasSubstr("{{Name}} could stand for several columns"));
    EXPECT_THAT(Trouble_With("Name,Phone\n"), HasSubstr("no recipients"));
    EXPECT_THAT(Trouble_With(""), HasSubstr("list.csv cannot be read (it is empty)"));
    EXPECT_THAT(Trouble_With("Name,Phone\n\"Ann,1"), HasSubstr("(the quote that opens in line 2 is never closed)"));
    m_arguments.table_choices.sheet = "June";
    EXPECT_THAT(Trouble_With("Name,Phone\nAnn,07700900100"), HasSubstr("(it has no sheets)"));
    m_arguments.table_file = m_folder.filePath("missing");
    EXPECT_THAT(Read_Inputs(m_arguments).trouble.Line().toStdString(),
                HasSubstr("missing cannot be read (there is no such file)"));
    m_arguments.table_file = m_folder.path();
    EXPECT_THAT(Read_Inputs(m_arguments).trouble.Line().toStdString(), HasSubstr("(it is no file)"));
}

TEST_F(Tables, A_Country_Reads_Plain_Numbers_As_Well)
{
    m_arguments.country = Country_With_Letters(u"DE");
    m_arguments.numbers = QStringList{"0170 1234567", "+44 (0)7700 900100", "Ann"};
    Write_Bytes(m_folder.filePath("numbers"), "{0170/1234568}\\\n\n0170\n");
    m_arguments.numbers_file = m_folder.filePath("numbers");
    EXPECT_EQ(Read("Tel\n0170-1234569\n", "Hi"),
              (Verdicts{"00491701234567 send Hi", "00447700900100 send Hi", "Ann invalid-number Hi",
                        "00491701234568 send Hi", "0170 invalid-number Hi", "00491701234569 send Hi"}));
}

using Table_Runs = Send_Test;

TEST_F(Table_Runs, A_Table_Is_Sent)
{
    const QString table = Write("list.csv", "Name;Phone\nJos\xE9;07700 900100\nBob;1.7E+10\nCy;07700 900101\n");
    const auto run = Run_With_Device({"--table", table, "--country", "GB", "--message", "Dear {{Name}}"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.Outcomes(), (std::vector<std::string>{"sent", "skipped", "sent"}));
    EXPECT_EQ(run.Outcome(2).value("reason"), "invalid-number");
    EXPECT_EQ(Texts(), (std::vector<std::string>{"Dear Jos\xC3\xA9", "Dear Cy"}));
    EXPECT_EQ(m_phone.Inbox().front().m_number, "+447700900100");
}

TEST_F(Table_Runs, A_Dry_Run_Says_How_The_Table_Was_Read)
{
    const QString table = Write("list.csv", "Name;Phone\nJos\xE9;07700 900100\n");
    const auto run = Run({"--json", "--dry-run", "--table", table, "--country", "GB", "--message", "Dear {{Name}}"});
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.lines.first().value("note"), "national, taken as one of United Kingdom");
    EXPECT_EQ(
        run.lines.last().value("table"),
        (QJsonObject{{"format", "CSV"}, {"encoding", "windows-1252"}, {"delimiter", ";"}, {"number_column", "Phone"}}));
    EXPECT_THAT(Run({"--dry-run", "--table", table, "--message", "Hi"}).output,
                HasSubstr("Table: CSV in windows-1252, \";\" between fields, numbers in \"Phone\"\n"));
    EXPECT_EQ(Run({"--dry-run", "--table", table, "--delimiter", ",", "--message", "Hi"}).status, 1);
}
