#include "send/Inputs.h"
#include "send/Send_Test.h"

using testing::ElementsAre;
using testing::HasSubstr;

namespace {

using Verdicts = std::vector<std::pair<std::string, std::string>>;

class Inputs_Of_Files : public testing::Test
{
protected:
    Inputs_Of_Files() { m_arguments.message = QStringLiteral("Hello"); }

    QString File(const QString& name, const QByteArray& bytes) const
    {
        Write_Bytes(m_folder.filePath(name), bytes);
        return m_folder.filePath(name);
    }

    Verdicts Read()
    {
        m_inputs = Read_Inputs(m_arguments);
        Verdicts verdicts;
        for (const Planned_Row& row : m_inputs.rows) {
            EXPECT_EQ(row.row, static_cast<int>(verdicts.size()) + 1);
            verdicts.emplace_back(row.number.toStdString(), row.Is_To_Be_Sent() ? "send" : row.skipped.toStdString());
        }
        return verdicts;
    }

    QTemporaryDir m_folder;
    Arguments m_arguments;
    Inputs m_inputs;
};

} // namespace

TEST_F(Inputs_Of_Files, A_List_Is_Read_As_The_Desktop_Program_Imports_It)
{
    m_arguments.numbers = QStringList{"+44-7700-900100"};
    m_arguments.numbers_file = File("list.txt", "\xEF\xBB\xBF+447700900101\r\n\n  \n0170-{123}\nAnn\n"
                                                "123456789012345678901\n00\n+\n07700900102");
    EXPECT_EQ(Read(), (Verdicts{{"00447700900100", "send"},
                                {"00447700900101", "send"},
                                {"0170123", "send"},
                                {"Ann", "invalid-number"},
                                {"123456789012345678901", "invalid-number"},
                                {"00", "invalid-number"},
                                {"00", "invalid-number"},
                                {"07700900102", "send"}}));
    EXPECT_EQ(m_inputs.rows[1].text, "Hello");
}

TEST_F(Inputs_Of_Files, Rich_Text_Is_Read_By_Its_Name)
{
    m_arguments.numbers_file = File("list.RTF", "{\\rtf1\\ansi 07700900100\\par 07700900101\\par}");
    EXPECT_EQ(Read(), (Verdicts{{"07700900100", "send"}, {"07700900101", "send"}}));
}

TEST_F(Inputs_Of_Files, A_List_Of_Another_Kind_Is_Named_Whatever_It_Is_Called)
{
    for (const auto& [bytes, words] : std::vector<std::pair<QByteArray, const char*>>{
             {"{\\rtf1\\ansi 07700900100\\par}", "it is rich text"},
             {"BEGIN:VCARD\nTEL:07700\n 900100\nEND:VCARD\n", "it holds contacts"},
             {Bytes_Of(QStringLiteral(CORVANE_TEST_DATA "/tables/libreoffice.xlsx")), "it is a spreadsheet"},
             {"\x7F"
              "ELF 07700900100\n",
              "it is a program"}}) {
        m_arguments.numbers_file = File("list.txt", bytes);
        EXPECT_EQ(Read(), Verdicts());
        EXPECT_THAT(m_inputs.trouble.Line().toStdString(), HasSubstr(words));
    }
}

TEST_F(Inputs_Of_Files, Exclusions_Come_Before_Repeats)
{
    m_arguments.numbers = QStringList{"+441", "00441", "442", "443", "442"};
    m_arguments.exclude_files = QStringList{File("stop.txt", "+4-41\nnobody\n"), File("more.txt", "443")};
    EXPECT_EQ(
        Read(),
        (Verdicts{
            {"00441", "excluded"}, {"00441", "excluded"}, {"442", "send"}, {"443", "excluded"}, {"442", "send"}}));
    m_arguments.skip_duplicates = true;
    EXPECT_EQ(Read().back(), std::make_pair(std::string("442"), std::string("duplicate")));
}

TEST_F(Inputs_Of_Files, A_Text_May_Suit_Nobody)
{
    m_arguments.numbers = QStringList{"441", "Ann"};
    m_arguments.message = QStringLiteral("Dear {{Name}}");
    EXPECT_EQ(Read(), (Verdicts{{"441", "unknown-field"}, {"Ann", "invalid-number"}}));
    m_arguments.message = QStringLiteral("{{Name|}}");
    EXPECT_EQ(Read().front().second, "empty-field");
    m_arguments.message = QString(1601, u'x');
    EXPECT_EQ(Read().front().second, "too-long");
    m_arguments.message = QString(1598, u'x') + QStringLiteral("{{{{");
    EXPECT_EQ(Read().front().second, "send");
}

TEST_F(Inputs_Of_Files, A_Message_Comes_From_A_File_Without_Its_Last_Line_End)
{
    m_arguments.numbers = QStringList{"441"};
    m_arguments.message_file = File("text", "\xEF\xBB\xBFGr\xC3\xBC\xC3\x9F\n\nGott\r\n");
    Read();
    EXPECT_EQ(m_inputs.rows.front().text, QStringLiteral("Grüß\n\nGott"));
}

TEST_F(Inputs_Of_Files, What_Cannot_Be_Used_Is_Named)
{
    const auto why = [this] {
        Read();
        return m_inputs.trouble.Line().toStdString();
    };
    m_arguments.numbers_file = m_folder.filePath("missing");
    EXPECT_THAT(why(), HasSubstr("missing cannot be read (there is no such file)"));
    m_arguments.numbers_file = m_folder.path();
    EXPECT_THAT(why(), HasSubstr("(it is no file)"));
    m_arguments.numbers_file = File("latin", "M\xFCller\n");
    EXPECT_THAT(why(), HasSubstr("UTF-8"));
    m_arguments.numbers_file = File("blank", " \n\n");
    EXPECT_THAT(why(), HasSubstr("no recipients"));
    m_arguments.numbers_file = File("list", "441");
    m_arguments.exclude_files = QStringList{m_folder.filePath("stop")};
    EXPECT_THAT(why(), HasSubstr("stop cannot be read"));
    m_arguments.exclude_files.clear();
    m_arguments.message_file = File("empty", "\n");
    EXPECT_THAT(why(), HasSubstr("no message"));
    m_arguments.message_file = File("bytes", "\xFF");
    EXPECT_THAT(why(), HasSubstr("no UTF-8"));
}
