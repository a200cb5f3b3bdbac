#include "send/Send_Test.h"

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class Planning : public Send_Test
{
protected:
    QByteArray Bytes(const QString& name) const { return Bytes_Of(Path(name)); }
};

} // namespace

TEST_F(Planning, A_Dry_Run_Says_What_Would_Be_Sent_And_Opens_Nothing)
{
    const auto run = Run_With_Device({"--dry-run", "--to", "+447700900100", "--to", "0170", "--to", "0170", "--to",
                                      "Ann", "--skip-duplicates", "--message", "10 \xE2\x82\xAC"});
    EXPECT_EQ(run.status, 1);
    const auto rows = run.Of("row");
    ASSERT_EQ(rows.size(), 4);
    EXPECT_EQ(rows[0], (QJsonObject{{"event", "row"},
                                    {"row", 1},
                                    {"number", "00447700900100"},
                                    {"text", "10 \u20AC"},
                                    {"alphabet", "gsm"},
                                    {"units", 5},
                                    {"parts", 1},
                                    {"shown", "10 \u20AC"},
                                    {"changed", QJsonArray()},
                                    {"verdict", "send"}}));
    EXPECT_EQ(rows[2].value("verdict"), "duplicate");
    EXPECT_EQ(rows[3].value("verdict"), "invalid-number");
    EXPECT_EQ(
        run.lines.last(),
        (QJsonObject{{"event", "plan"}, {"recipients", 4}, {"send", 2}, {"parts", 2}, {"unicode", 0}, {"seconds", 8}}));
    EXPECT_TRUE(m_phone.Is_Silent());
    EXPECT_FALSE(QFile::exists(Path("corvane")));
}

TEST_F(Planning, A_Dry_Run_In_Order_Ends_With_0_And_Counts_Pauses)
{
    const auto run = Run(QStringList{"--json", "--dry-run", "--batch", "2", "--pause", "100"} + To_So_Many(5));
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.lines.last().value("seconds"), 5 * 4 + 2 * 100);
}

TEST_F(Planning, A_Character_Without_A_Place_Is_Named)
{
    const auto run = Run({"--json", "--dry-run", "--to", "1", "--alphabet", "gsm", "--message", "\xD0\xB6!"});
    const QJsonObject row = run.lines.first();
    EXPECT_EQ(row.value("shown"), "?!");
    EXPECT_EQ(row.value("changed"), (QJsonArray{QJsonObject{{"at", 0}, {"from", "\u0436"}, {"to", "?"}}}));
}

TEST_F(Planning, Unicode_Is_Counted)
{
    const auto run = Run({"--json", "--dry-run", "--to", "1", "--message", "\xF0\x9F\x98\x80"});
    EXPECT_EQ(run.lines.first().value("alphabet"), "unicode");
    EXPECT_EQ(run.lines.first().value("units"), 2);
    EXPECT_EQ(run.lines.last().value("unicode"), 1);
}

TEST_F(Planning, Standard_Input_Is_A_List)
{
    const auto run = Run({"--json", "--dry-run", "--numbers", "-", "--message", "Hi"}, "0171\n\n0172\n");
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.lines.last().value("send"), 2);
    EXPECT_EQ(run.lines[1].value("row"), 2);
}

TEST_F(Planning, Words_Name_The_Same)
{
    const auto run = Run({"--dry-run", "--to", "0171", "--to", "Ann", "--message", "Hi\nthere"});
    EXPECT_THAT(run.output, HasSubstr("1  0171  send  1 part, 8 septets  Hi there\n"));
    EXPECT_THAT(run.output, HasSubstr("2  Ann  invalid-number"));
    EXPECT_THAT(run.output, HasSubstr("Plan: 2 recipients, 1 to be sent, 1 part, 0 in Unicode, about 4 seconds\n"));
    EXPECT_THAT(run.errors, IsEmpty());
}

TEST_F(Planning, A_Hand_Over_Is_A_List_And_A_Spool)
{
    const auto run = Run_With_Device({"--hand-over", Path("out"), "--to", "+447700900100", "--to", "0170", "--to",
                                      "Ann", "--flash", "--message", "Say \"hi\", \xC3\xBC"});
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.Of("row").size(), 3);
    EXPECT_EQ(Bytes("out/list.csv"), "\xEF\xBB\xBFnumber,text,encoding,parts\r\n"
                                     "+447700900100,\"Say \"\"hi\"\", \xC3\xBC\",gsm,1\r\n"
                                     "0170,\"Say \"\"hi\"\", \xC3\xBC\",gsm,1\r\n");
    EXPECT_EQ(Bytes("out/spool/corvane-0000001"), "To: 447700900100\nFlash: yes\nAlphabet: ISO\n\nSay \"hi\", \xFC");
    EXPECT_EQ(Bytes("out/spool/corvane-0000002"),
              "To: 0170\nTo_TOA: unknown\nFlash: yes\nAlphabet: ISO\n\nSay \"hi\", \xFC");
    EXPECT_EQ(QDir(Path("out/spool")).entryList(QDir::Files).size(), 2);
    EXPECT_TRUE(m_phone.Is_Silent());
}

TEST_F(Planning, A_Hand_Over_Keeps_Every_Alphabet)
{
    Run({"--hand-over", Path("a"), "--to", "1", "--message", "\xD0\xB6\xF0\x9F\x98\x80"});
    EXPECT_EQ(Bytes("a/spool/corvane-0000001"),
              "To: 1\nTo_TOA: unknown\nAlphabet: UCS\n\n" + QByteArray::fromHex("0436D83DDE00"));
    // Whose bytes stand as those of a byte order mark do, the wrong way round.
    Run({"--hand-over", Path("c"), "--to", "1", "--message", "\xEF\xBF\xBE\xD0\xB6"});
    EXPECT_EQ(Bytes("c/spool/corvane-0000001"),
              "To: 1\nTo_TOA: unknown\nAlphabet: UCS\n\n" + QByteArray::fromHex("FFFE0436"));
    Run({"--hand-over", Path("b"), "--to", "1", "--reports", "--service-centre", "+4917", "--message",
         "\xCE\xA9 \xE2\x82\xAC"});
    EXPECT_EQ(Bytes("b/spool/corvane-0000001"),
              "To: 1\nTo_TOA: unknown\nSMSC: 4917\nReport: yes\nAlphabet: UTF-8\n\n\xCE\xA9 \xE2\x82\xAC");
}

TEST_F(Planning, An_Earlier_Hand_Over_Is_Not_Added_To)
{
    EXPECT_EQ(Run({"--hand-over", Path("out"), "--to", "1", "--message", "Hi"}).status, 0);
    const auto run = Run({"--hand-over", Path("out"), "--to", "2", "--message", "Ho", "--json"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, HasSubstr("(it holds an earlier hand-over)"));
    EXPECT_THAT(Bytes("out/spool/corvane-0000001").toStdString(), HasSubstr("Hi"));
}

TEST_F(Planning, A_Folder_That_Cannot_Be_Made_Is_Named)
{
    const QString file = Write("file", "in the way");
    const auto run = Run({"--hand-over", file, "--to", "1", "--message", "Hi"});
    EXPECT_EQ(run.status, 2);
    EXPECT_THAT(run.errors, testing::MatchesRegex("corvane-send: [^\n]+ cannot be written \\([^\n]+\\)\n"));
}
