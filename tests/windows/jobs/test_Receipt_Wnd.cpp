#include "windows/jobs/Jobs_Test.h"

#include "support/Seen_Colours.h"
#include "support/Table_Menus.h"
#include "toolkit/Look.h"
#include "toolkit/Outcome_Colours.h"

#include <QItemSelectionModel>
#include <QMenu>

namespace {

class Receipt_Wnd_Test : public Jobs_Test
{
protected:
    void Show_The_Job()
    {
        m_window.Show_Record(Record());
        Await();
    }

    void Show_Kept()
    {
        m_window.Show_Kept(m_folder);
        Await();
    }

    void Await()
    {
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        QCoreApplication::processEvents(); // what the last of them has handed over
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        QCoreApplication::processEvents();
    }

    QTableView& Table() { return In<QTableView>(m_window, "_Rows"); }
    int Row_Count() { return Table().model()->rowCount(); }
    QString Sums() { return Text_Of(m_window, "_Sums"); }
    QString Notice() { return Text_Of(m_window, "_Notice"); }

    QStringList Column(int column)
    {
        QStringList cells;
        for (int row = 0; row < Row_Count(); ++row)
            cells.append(Cells(Table(), row).at(column));
        return cells;
    }

    static QStringList Choices_In(const QComboBox& box)
    {
        QStringList texts;
        for (int index = 0; index < box.count(); ++index)
            texts.append(box.itemText(index));
        return texts;
    }

    QComboBox& Filter() { return In<QComboBox>(m_window, "_Filter"); }
    QComboBox& Jobs() { return In<QComboBox>(m_window, "_Jobs"); }

    void Export(const char* action, const QString& path)
    {
        Will_Enter_Path(m_user, path);
        In<QAction>(m_window, action).trigger();
    }

    template <typename Control>
    static Control& In(const QWidget& window, const char* name)
    {
        auto* control = window.findChild<Control*>(name);
        if (!control)
            qFatal("there is no %s", name);
        return *control;
    }

    Receipt_Wnd m_window;
};

constexpr int Outcome = 3;

} // namespace

TEST_F(Receipt_Wnd_Test, Says_What_Became_Of_Each_Message_With_Sums_On_Top)
{
    const auto journal = Make({{Row_To("0041", "Hello\nyou"), "S"},
                               {Row_To("0042"), "E"},
                               {Row_To("0043"), "U", "no-result"},
                               {Row_To("0044"), ""}});
    ASSERT_TRUE(journal->Report("234150000000001", 11, "0041", 1795252560, 0));
    Show_The_Job();
    EXPECT_TRUE(m_window.isVisible());
    EXPECT_TRUE(Text_Of(m_window, "_Facts").startsWith("Job: " + Sample_Id + ". Began: ")) << qPrintable(Notice());
    EXPECT_TRUE(Text_Of(m_window, "_Facts").contains("SIM card: ends with 0001. State: not ended."));
    EXPECT_EQ(Sums(), "Recipients: 4. Sent: 1. May have been sent: 1. Not tried: 1. Refused: 1. Delivered: 1.");
    ASSERT_EQ(Row_Count(), 4);
    QStringList first = Cells(Table(), 0);
    EXPECT_EQ(first.mid(1, 6).join(u'|'), QStringLiteral("0041|Hello\nyou|✓ sent||1 / 1|delivered"));
    EXPECT_EQ(Cells(Table(), 1).mid(3, 3).join(u'|'),
              QStringLiteral("✗ refused (500: unknown error)|Unknown error|0 / 1"));
    EXPECT_EQ(Cells(Table(), 2).mid(3, 2).join(u'|'),
              QStringLiteral("? may have been sent|The device gave no result in time."));
    EXPECT_EQ(Column(Outcome).at(3), QStringLiteral("· not tried"));
    EXPECT_FALSE(m_window.findChild<QWidget*>("Kept_Receipts")->isVisible());
    EXPECT_FALSE(Table().isColumnHidden(6));
}

TEST_F(Receipt_Wnd_Test, An_Outcome_Has_The_Colour_That_It_Has_In_The_List_And_Is_Told_Without_Its_Sign)
{
    Make({{Row_To("0041"), "S"}, {Row_To("0042"), "E"}, {Row_To("0043"), "U", "no-result"}, {Row_To("0044"), ""}});
    Show_The_Job();
    m_window.resize(2400, 1200);
    Enlarge_Letters_Of(Table());
    const std::pair<Row_State, const char*> expected[] = {{Row_State::Sent, "sent"},
                                                          {Row_State::Refused, "refused (500: unknown error)"},
                                                          {Row_State::May_Have_Been_Sent, "may have been sent"},
                                                          {Row_State::Not_Tried, "not tried"}};
    for (const Look look : {Look::Light, Look::Dark, Look::High_Contrast}) {
        Choose_Look(look);
        QCoreApplication::processEvents();
        for (int row = 0; row < 4; ++row) {
            const QModelIndex cell = Table().model()->index(row, Outcome);
            EXPECT_TRUE(Shows_Words_In(Table(), cell, Colour_Of(expected[row].first))) << row;
            EXPECT_EQ(cell.data(Qt::AccessibleTextRole), expected[row].second);
            EXPECT_FALSE(cell.siblingAtColumn(1).data(Qt::ForegroundRole).isValid());
        }
    }
    Choose_Look(Look::Light);
}

TEST_F(Receipt_Wnd_Test, Says_Nothing_Of_Deliveries_That_Nobody_Asked_For)
{
    Make({{Row_To("0041"), "S"}}, false);
    Show_The_Job();
    EXPECT_TRUE(Table().isColumnHidden(6));
    EXPECT_EQ(Sums(), "Recipients: 1. Sent: 1.");
    EXPECT_FALSE(Choices_In(Filter()).join(u'|').contains("report"));
}

TEST_F(Receipt_Wnd_Test, Shows_One_Kind_Alone)
{
    Leave(Sample_Id, "SESUWE");
    Show_The_Job();
    EXPECT_EQ(Choices_In(Filter()).join(u'|'),
              "Recipients (6)|Sent (2)|May have been sent (1)|Not tried (1)|Refused (2)|Skipped (0)|Delivered (0)|"
              "Still trying (0)|Not delivered (0)|No report (2)");
    Table().selectRow(0);
    Filter().setCurrentText("Refused (2)");
    EXPECT_EQ(Column(1).join(u'|'), "00447700900101|00447700900105");
    EXPECT_FALSE(Table().selectionModel()->hasSelection()) << "another message stands there now";
    Filter().setCurrentText("Skipped (0)");
    EXPECT_EQ(Row_Count(), 0);
    Filter().setCurrentIndex(0);
    EXPECT_EQ(Row_Count(), 6);
}

TEST_F(Receipt_Wnd_Test, A_Later_Record_Of_The_Job_Changes_Nothing_That_The_Person_Has_Set)
{
    auto journal = Make({{Row_To("0041"), "E"}, {Row_To("0042"), "E"}, {Row_To("0043"), ""}});
    Show_The_Job();
    Filter().setCurrentText("Refused (2)");
    Table().selectRow(1);
    ASSERT_TRUE(journal->Hand_Over(3, 1, 1) && journal->Refused(3, 1, "cms:21"));
    Show_The_Job();
    EXPECT_EQ(Filter().currentText(), "Refused (3)");
    EXPECT_EQ(Row_Count(), 3);
    EXPECT_TRUE(Table().selectionModel()->isRowSelected(1));
    Make({{Row_To("0045"), "S"}}, true, "another");
    m_window.Show_Record(Record("another"));
    Await();
    EXPECT_EQ(Filter().currentText(), "Recipients (1)");
    EXPECT_FALSE(Table().selectionModel()->hasSelection());
}

TEST_F(Receipt_Wnd_Test, Ten_Thousand_Messages_Are_Shown_As_One_Is)
{
    Make(QList<Receipt_Job_Row>(10'000, {Plain_Row("0041"), ""}));
    Show_The_Job();
    EXPECT_EQ(Sums(), "Recipients: 10000. Sent: 0. Not tried: 10000.");
    ASSERT_EQ(Row_Count(), 10'000);
    EXPECT_EQ(Cells(Table(), 9'999).at(1), "0041");
}

// ------------------------------------------------------------------------------------------------ kept receipts

TEST_F(Receipt_Wnd_Test, Nothing_Kept_Is_Said_And_Nothing_Offered)
{
    Show_Kept();
    EXPECT_EQ(Notice(), "No receipts are kept yet.");
    EXPECT_EQ(Row_Count(), 0);
    EXPECT_EQ(Offered_In(m_window).join(u'|'), "&Export|&Close");
    EXPECT_FALSE(In<QPushButton>(m_window, "Export_Btn").isEnabled());
    EXPECT_FALSE(Filter().isEnabled());
}

TEST_F(Receipt_Wnd_Test, The_Newest_Is_Shown_First_And_Every_Other_Can_Be_Chosen)
{
    ASSERT_TRUE(Make({{Row_To("0041"), "S"}}, true, "1-oldest")->End());
    Leave("2-broken-off", "SW");
    const auto in_work = Make({{Row_To("0043"), ""}}, true, "3-in-work");
    Show_Kept();
    const QString began = Moment_In_Words(Record("2-broken-off").Header().seconds);
    EXPECT_EQ(Choices_In(Jobs()), QStringList({began + ": 1 recipients, in work", began + ": 2 recipients, not ended",
                                               began + ": 1 recipients"}));
    EXPECT_EQ(Column(1).join(u'|'), "0043");
    EXPECT_FALSE(In<QPushButton>(m_window, "Remove_Btn").isEnabled()) << "a program works on it";
    Jobs().setCurrentIndex(1);
    Await();
    EXPECT_EQ(Sums(), "Recipients: 2. Sent: 1. Not tried: 1. No report: 1.");
    EXPECT_TRUE(In<QPushButton>(m_window, "Remove_Btn").isEnabled());
    m_window.Show_Kept(m_folder, Path("1-oldest"));
    Await();
    EXPECT_EQ(Jobs().currentIndex(), 2);
    EXPECT_EQ(Column(1).join(u'|'), "0041");
    m_window.Show_Record(Record("2-broken-off"));
    Await();
    EXPECT_FALSE(m_window.findChild<QWidget*>("Kept_Receipts")->isVisible());
}

TEST_F(Receipt_Wnd_Test, Follows_The_Chosen_Journal_While_Reports_Come)
{
    const auto journal = Make({{Row_To("00447700900100"), "S"}});
    Show_Kept();
    EXPECT_EQ(Sums(), "Recipients: 1. Sent: 1. No report: 1.");
    ASSERT_TRUE(journal->Report("234150000000001", 11, "+447700900100", 1795252560, 0x22));
    EXPECT_TRUE(Serve_Until([&] { return Sums() == "Recipients: 1. Sent: 1. Still trying: 1."; }));
    ASSERT_TRUE(journal->Report("234150000000001", 11, "+447700900100", 1795252561, 0));
    EXPECT_TRUE(Serve_Until([&] { return Sums() == "Recipients: 1. Sent: 1. Delivered: 1."; }));
    EXPECT_EQ(Cells(Table(), 0).at(6), "delivered");
}

TEST_F(Receipt_Wnd_Test, A_Receipt_Goes_When_That_Is_Said_Twice)
{
    Leave("1", "S");
    Leave("2", "SS");
    Show_Kept();
    auto& remove = In<QPushButton>(m_window, "Remove_Btn");
    QTest::mouseClick(&remove, Qt::LeftButton);
    QTest::mouseDClick(&remove, Qt::LeftButton); // as the system tells the second press of a double click
    QTest::mouseRelease(&remove, Qt::LeftButton);
    EXPECT_TRUE(In<QWidget>(m_window, "Removal_Question").isVisible());
    EXPECT_EQ(m_window.focusWidget(), &In<QPushButton>(m_window, "Keep_Btn"));
    Click_In(m_window, "Keep_Btn");
    EXPECT_FALSE(In<QWidget>(m_window, "Removal_Question").isVisible());
    EXPECT_EQ(Names().size(), 4);
    QTest::mouseClick(&remove, Qt::LeftButton);
    Click_In(m_window, "Remove_For_Good_Btn");
    Await();
    EXPECT_EQ(Names().join(u' '), "1.journal 1.list");
    EXPECT_EQ(Sums(), "Recipients: 1. Sent: 1. No report: 1.");
    QTest::mouseClick(&remove, Qt::LeftButton);
    Click_In(m_window, "Remove_For_Good_Btn");
    Await();
    EXPECT_TRUE(Names().isEmpty());
    EXPECT_EQ(Notice(), "No receipts are kept yet.");
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Receipt_Wnd_Test, One_That_Has_Come_Into_Use_Meanwhile_Stays)
{
    Leave("1", "SW");
    Show_Kept();
    const auto in_work = Job_Journal::Open_To_Go_On(Path("1"));
    ASSERT_TRUE(in_work.journal);
    Click_In(m_window, "Remove_Btn");
    Click_In(m_window, "Remove_For_Good_Btn");
    EXPECT_EQ(Notice(), "The job could not be removed: another program works on it.");
    EXPECT_EQ(Names().size(), 2);
    EXPECT_EQ(Row_Count(), 2);
}

TEST_F(Receipt_Wnd_Test, Closed_While_It_Reads_It_Waits_For_Its_Worker)
{
    Make(QList<Receipt_Job_Row>(2'000, {Plain_Row("0041"), ""}));
    auto window = std::make_unique<Receipt_Wnd>();
    window->Show_Kept(m_folder);
    window->Show_Record(Record());
    window.reset();
    EXPECT_EQ(Workers_Running(), 0);
}

// ------------------------------------------------------------------------------------------------- the exports

TEST_F(Receipt_Wnd_Test, Is_Exported_In_Three_Formats)
{
    Leave(Sample_Id, "SE");
    Show_The_Job();
    ASSERT_TRUE(In<QPushButton>(m_window, "Export_Btn").menu());
    Export("Export_Text", m_home.filePath("receipt"));
    EXPECT_EQ(Notice(), "Written to " + m_home.filePath("receipt.txt") + ".");
    EXPECT_TRUE(QString::fromUtf8(Bytes_Of(m_home.filePath("receipt.txt")))
                    .contains(QStringLiteral("✗ refused (500: unknown error)")));
    Export("Export_Html", m_home.filePath("receipt"));
    EXPECT_TRUE(Bytes_Of(m_home.filePath("receipt.html")).startsWith("<!DOCTYPE html>"));
    Export("Export_Csv", m_home.filePath("receipt.csv"));
    EXPECT_TRUE(Bytes_Of(m_home.filePath("receipt.csv")).contains("\"'00447700900100\",\"Dear Ann,\",\"sent\""));
    EXPECT_EQ(Notice(), "Written to " + m_home.filePath("receipt.csv") +
                            ". An apostrophe is in front of each number, and of whatever else a spreadsheet would take "
                            "for a formula.");
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Receipt_Wnd_Test, An_Export_That_Fails_Is_Told_In_The_Window)
{
    Leave(Sample_Id, "S");
    Show_The_Job();
    ASSERT_TRUE(QDir().mkpath(m_home.filePath("gone")));
    m_user.Will_Do([&](QDialog* panel) {
        Enter_Path(*panel, m_home.filePath("gone/receipt.txt"));
        EXPECT_TRUE(QDir(m_home.filePath("gone")).removeRecursively());
    });
    In<QAction>(m_window, "Export_Text").trigger();
    EXPECT_EQ(Notice(), "The file " + m_home.filePath("gone/receipt.txt") + " could not be written.");
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Receipt_Wnd_Test, Its_Rows_Can_Be_Copied_And_Exported_From_Their_Menu)
{
    Make({{Row_To("0041", "Hello"), "S"}, {Row_To("0042"), "E"}});
    Show_The_Job();
    EXPECT_EQ(Menu_Of(Table(), Opened_By::Mouse, "Copy"), QStringList({"Copy", "Export"}));
    const QStringList copied = Copied().split(u'\t');
    QStringList shown = Cells(Table(), 0);
    shown.last().append(u'\n');
    EXPECT_EQ(copied, shown);
    Table().clearSelection();
    Filter().setCurrentIndex(Filter().findText("Refused", Qt::MatchStartsWith));
    ASSERT_EQ(Row_Count(), 1);
    Table().selectAll();
    Menu_Of(Table(), Opened_By::Key, "Copy");
    EXPECT_TRUE(Copied().contains("\t0042\t") && Copied().count(u'\n') == 1) << Copied().toStdString();
}

TEST_F(Receipt_Wnd_Test, Without_Reports_None_Are_Copied_And_Without_A_Receipt_Nothing_Is_Exported)
{
    Show_Kept();
    EXPECT_EQ(Menu_Of(Table(), Opened_By::Key), QStringList({"Copy", "[Export]"}));
    Make({{Row_To("0041", "Hello"), "S"}}, false);
    Show_The_Job();
    ASSERT_TRUE(Table().isColumnHidden(6));
    Menu_Of(Table(), Opened_By::Mouse, "Copy");
    QStringList shown = Cells(Table(), 0);
    shown.removeAt(6);
    EXPECT_EQ(Copied(), shown.join(u'\t') + u'\n');
}
