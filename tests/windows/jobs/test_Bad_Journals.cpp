#include "windows/jobs/Jobs_Test.h"

namespace {

// A journal that something is wrong with, and what is said of it.
struct Bad_Journal
{
    const char* name;
    std::function<void(const QString& journal, const QString& list)> spoil;
    QString words; ///< of the trouble; empty where it can be used all the same
};

void PrintTo(const Bad_Journal& journal, std::ostream* out)
{
    *out << journal.name;
}

void Change(const QString& path, const std::function<void(QByteArray&)>& change)
{
    QByteArray bytes = Bytes_Of(path);
    change(bytes);
    Write_Bytes(path, bytes);
}

const QString Damaged = QStringLiteral("its journal is damaged, so that it is unknown what was sent");
const QString List_Changed = QStringLiteral("the list beside its journal is not the one that the job began with");
const QString No_Journal = QStringLiteral("the file is not the journal of a job");

class Bad_Journals : public Jobs_Test, public testing::WithParamInterface<Bad_Journal>
{
protected:
    Bad_Journals()
    {
        // Texts and numbers that would be more than themselves where markup or a terminal reads them.
        Make({{Row_To("<b>1</b>\x7", "<a href='file:///'>\x1B[2J</a>"), "S"}, {Row_To("0042"), ""}}, true, "1");
        GetParam().spoil(Path("1"), List_Path("1"));
    }
};

} // namespace

TEST_P(Bad_Journals, Are_Said_In_Words_And_Nothing_Of_Them_Is_Sent_Or_Lost)
{
    const QStringList before = Bytes_Of_All();
    Window_With_A_Strip window;
    Unfinished_Strip& strip = *window.m_strip;
    const QSignalSpy gone_on(&strip, &Unfinished_Strip::Go_On);
    strip.Show_Jobs(Unfinished_Jobs(m_folder));
    ASSERT_TRUE(strip.isVisible());
    Receipt_Wnd receipt;
    receipt.Show_Kept(m_folder);
    const auto& notice = In<QLabel>(receipt, "_Notice");
    const auto& sums = In<QLabel>(receipt, "_Sums");
    const QString& words = GetParam().words;
    if (words.isEmpty()) {
        EXPECT_EQ(Offered_In(strip).join(u'|'), "Send the remaining 1|Receipt ...|Remove ...|Later");
        EXPECT_TRUE(Serve_Until([&] { return sums.text() == "Recipients: 2. Sent: 1. Not tried: 1. No report: 1."; }));
        EXPECT_EQ(Cells(In<QTableView>(receipt, "_Rows"), 0).mid(1, 2).join(u'|'),
                  "<b>1</b>\x7|<a href='file:///'>\x1B[2J</a>");
    } else {
        EXPECT_EQ(Text_Of(strip, "_Strip_Words"), "The job 1 cannot be gone on with: " + words + ".");
        EXPECT_EQ(Offered_In(strip).join(u'|'), "Remove ...|Later");
        EXPECT_TRUE(Serve_Until([&] { return notice.text() == "There is no receipt of this job: " + words + "."; }))
            << qPrintable(notice.text());
        EXPECT_EQ(In<QTableView>(receipt, "_Rows").model()->rowCount(), 0);
        strip.Go_On_Btn();
    }
    EXPECT_EQ(gone_on.count(), 0);
    EXPECT_EQ(Bytes_Of_All(), before);
    for (const QWidget* shown : {static_cast<QWidget*>(&strip), static_cast<QWidget*>(&receipt)}) {
        for (const auto* label : shown->findChildren<QLabel*>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << qPrintable(label->objectName());
    }
    Click_In(strip, "Remove_Btn");
    Click_In(strip, "Remove_For_Good_Btn");
    EXPECT_TRUE(Names().isEmpty()) << "each can be removed";
    EXPECT_FALSE(strip.isVisible());
}

INSTANTIATE_TEST_SUITE_P(
    That_Are, Bad_Journals,
    testing::Values(
        Bad_Journal{"Whole", [](const QString&, const QString&) {}, {}},
        Bad_Journal{"Torn_At_Their_End",
                    [](const QString& journal, const QString&) {
                        Change(journal, [](QByteArray& bytes) { bytes += "H 2 1 1 2026-11"; });
                    },
                    {}},
        Bad_Journal{"Cut_In_Their_Header",
                    [](const QString& journal, const QString&) {
                        Change(journal, [](QByteArray& bytes) { bytes.truncate(30); });
                    },
                    Damaged},
        Bad_Journal{"Empty", [](const QString& journal, const QString&) { Write_Bytes(journal, {}); }, Damaged},
        Bad_Journal{"Changed_In_The_Middle",
                    [](const QString& journal, const QString&) {
                        Change(journal, [](QByteArray& bytes) { bytes[bytes.indexOf("\nH 1") + 3] = '2'; });
                    },
                    Damaged},
        Bad_Journal{"Something_Else",
                    [](const QString& journal, const QString&) {
                        Write_Bytes(journal, "\x89PNG\r\n\x1A\n\x00\xFF\n<script>\n");
                    },
                    No_Journal},
        Bad_Journal{"Full_Of_Zeros",
                    [](const QString& journal, const QString&) { Write_Bytes(journal, QByteArray(4096, '\0')); },
                    No_Journal},
        Bad_Journal{"Of_A_Newer_Version",
                    [](const QString& journal, const QString&) {
                        Change(journal, [](QByteArray& bytes) { bytes.replace(0, 3, "J2 "); });
                    },
                    "its journal was written by a newer version of the program"},
        Bad_Journal{"Without_Their_List", [](const QString&, const QString& list) { ASSERT_TRUE(QFile::remove(list)); },
                    "the list beside its journal is gone"},
        Bad_Journal{"Beside_Another_List",
                    [](const QString&, const QString& list) {
                        Change(list, [](QByteArray& bytes) { bytes.replace("0042", "0043"); });
                    },
                    List_Changed},
        Bad_Journal{"Beside_A_Cut_List",
                    [](const QString&, const QString& list) { Change(list, [](QByteArray& bytes) { bytes.chop(9); }); },
                    List_Changed}),
    [](const auto& row) { return std::string(row.param.name); });

TEST_F(Jobs_Test, A_Job_In_Use_Can_Only_Be_Put_Off)
{
    Leave("1", "SW");
    const auto in_work = Job_Journal::Open_To_Go_On(Path("1"));
    Window_With_A_Strip window;
    window.m_strip->Show_Jobs(Unfinished_Jobs(m_folder));
    EXPECT_EQ(Text_Of(*window.m_strip, "_Strip_Words"),
              "The job 1 cannot be gone on with: another program works on it.");
    EXPECT_EQ(Offered_In(*window.m_strip).join(u'|'), "Later");
}

TEST_F(Jobs_Test, A_Name_Of_A_File_Is_Shown_As_It_Is)
{
    ASSERT_TRUE(QDir().mkpath(m_folder));
    Write_Bytes(m_folder + "/<b>x<\n\x1B[2J.journal", "?");
    Window_With_A_Strip window;
    window.m_strip->Show_Jobs(Unfinished_Jobs(m_folder));
    EXPECT_TRUE(Text_Of(*window.m_strip, "_Strip_Words").startsWith(QStringLiteral("The job <b>x< ␛[2J cannot be ")));
    Click_In(*window.m_strip, "Remove_Btn");
    Click_In(*window.m_strip, "Remove_For_Good_Btn");
    EXPECT_TRUE(window.m_strip->isVisible());
    EXPECT_EQ(Text_Of(*window.m_strip, "_Strip_Trouble"), "The job could not be removed: there is no such job.");
}
