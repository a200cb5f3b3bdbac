#include "windows/jobs/Jobs_Test.h"

#include <QItemSelectionModel>

namespace {

class Unfinished_Strip_Test : public Jobs_Test
{
protected:
    Unfinished_Strip& Strip() { return *m_window.m_strip; }
    void Look() { Strip().Show_Jobs(Unfinished_Jobs(m_folder)); }

    QString Words() { return Text_Of(Strip(), "_Strip_Words"); }
    QString Counts() { return Text_Of(Strip(), "_Strip_Counts"); }
    QStringList Offered() { return Offered_In(Strip()); }
    bool Is_Shown(const char* label) { return In<QLabel>(Strip(), label).isVisible(); }
    void Click(const char* button)
    {
        ASSERT_TRUE(In<QPushButton>(Strip(), button).isVisible()) << button;
        Click_In(Strip(), button);
    }

    /// What the person does in the sheet, which is then left with OK or Cancel.
    void In_The_Sheet(const std::function<void(QWidget&)>& act, const char* leave_by = "OKPressed")
    {
        m_user.When_Opens("Unknown_Rows_Sheet", [act, leave_by](QWidget& sheet) {
            act(sheet);
            Click_In(sheet, leave_by);
            EXPECT_FALSE(sheet.isVisible());
        });
    }

    QString States(const QString& id = "1") { return States_Of(Record(id)); }

    Window_With_A_Strip m_window;
    QSignalSpy m_gone_on{&Strip(), &Unfinished_Strip::Go_On};
    QSignalSpy m_asked_for{&Strip(), &Unfinished_Strip::Show_Receipt};
    QSignalSpy m_let_go{&Strip(), &Unfinished_Strip::Let_Go};
    QSignalSpy m_removed{&Strip(), &Unfinished_Strip::Removed};
};

void Choose_For_All(QWidget& sheet, const char* button)
{
    Click_In(sheet, button);
}

} // namespace

TEST_F(Unfinished_Strip_Test, Is_Not_There_Where_There_Is_Nothing_To_Say)
{
    EXPECT_FALSE(Strip().isVisible());
    Look();
    EXPECT_FALSE(Strip().isVisible());
    ASSERT_TRUE(Make({{Row_To("1"), "S"}}, true, "1")->End());
    Look();
    EXPECT_FALSE(Strip().isVisible());
    Strip().Go_On_Btn();
    Strip().Later_Btn();
    EXPECT_EQ(m_gone_on.count() + m_let_go.count(), 0);
}

TEST_F(Unfinished_Strip_Test, Says_What_Was_Sent_And_What_Is_Left)
{
    Leave("1", "SSSEUHWWKW");
    Look();
    EXPECT_TRUE(Strip().isVisible());
    EXPECT_EQ(Words(), "A job that began on " + Moment_In_Words(Record("1").Header().seconds) + " has not ended.");
    EXPECT_EQ(Counts(), "Recipients: 10. Sent: 3. May have been sent: 2. Not tried: 3. Refused: 1. Skipped: 1.");
    EXPECT_EQ(Offered().join(u'|'), "Send the rest|Rows that may have been sent ...|Receipt ...|Remove ...|Later");
    EXPECT_FALSE(Is_Shown("_Strip_More"));
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Unfinished_Strip_Test, Goes_On_With_What_Was_Not_Tried)
{
    Leave("1", "SSWWW");
    const QStringList before = Bytes_Of_All();
    Look();
    EXPECT_EQ(Offered().join(u'|'), "Send the remaining 3|Receipt ...|Remove ...|Later");
    Click("Receipt_Btn");
    EXPECT_EQ(m_asked_for.value(0).value(0).toString(), Path("1"));
    EXPECT_TRUE(Strip().isVisible());
    Click("Go_On_Btn");
    EXPECT_EQ(m_gone_on.value(0).value(0).toString(), Path("1"));
    EXPECT_FALSE(Strip().isVisible());
    EXPECT_EQ(Bytes_Of_All(), before);
}

TEST_F(Unfinished_Strip_Test, Shows_One_Job_After_The_Other_The_Oldest_First)
{
    Leave("1", "SW");
    Leave("2", "WW");
    Leave("3", "WWW");
    Look();
    EXPECT_EQ(Text_Of(Strip(), "_Strip_More"), "2 more");
    Click("Later_Btn");
    EXPECT_EQ(m_let_go.value(0).value(0).toString(), Path("1"));
    EXPECT_EQ(Text_Of(Strip(), "_Strip_More"), "1 more");
    Click("Go_On_Btn");
    EXPECT_EQ(m_gone_on.value(0).value(0).toString(), Path("2"));
    EXPECT_FALSE(Is_Shown("_Strip_More"));
    EXPECT_TRUE(Counts().startsWith("Recipients: 3."));
    Click("Later_Btn");
    EXPECT_EQ(m_let_go.count(), 2);
    EXPECT_FALSE(Strip().isVisible());
    EXPECT_EQ(Names().size(), 6);
}

// ---------------------------------------------------------------------------------- what may have been sent

TEST_F(Unfinished_Strip_Test, Rows_That_May_Have_Been_Sent_Are_Listed_Before_It_Goes_On)
{
    Leave("1", "SUHW");
    const QStringList before = Bytes_Of_All();
    Look();
    In_The_Sheet([](QWidget&) {}, "CancelPressed");
    Click("Go_On_Btn");
    EXPECT_EQ(m_gone_on.count(), 0);
    EXPECT_TRUE(Strip().isVisible());
    In_The_Sheet([](QWidget& sheet) {
        EXPECT_EQ(Text_Of(sheet, "_Choices"), "Leave as it is: 2. Send again: 0. Count as sent: 0.");
    });
    Click("Go_On_Btn");
    EXPECT_EQ(m_gone_on.value(0).value(0).toString(), Path("1"));
    EXPECT_EQ(Bytes_Of_All(), before) << "they were left as they are";
    EXPECT_FALSE(Strip().isVisible());
}

TEST_F(Unfinished_Strip_Test, What_The_Person_Decides_Is_In_The_Journal_Before_It_Goes_On)
{
    Leave("1", "SUHW");
    Look();
    In_The_Sheet([](QWidget& sheet) { Choose_For_All(sheet, "Send_All_Again_Btn"); });
    QString states;
    QObject::connect(&Strip(), &Unfinished_Strip::Go_On, [&] { states = States(); });
    Click("Go_On_Btn");
    EXPECT_EQ(states, "S W W W");
}

TEST_F(Unfinished_Strip_Test, Deciding_Alone_Sends_Nothing)
{
    Leave("1", "SUHU");
    Look();
    EXPECT_EQ(Offered().join(u'|'), "Rows that may have been sent ...|Receipt ...|Remove ...|Later");
    In_The_Sheet([](QWidget& sheet) {
        In<QTableView>(sheet, "_Rows").selectRow(1);
        Click_In(sheet, "Send_Again_Btn");
    });
    Click("Decide_Btn");
    EXPECT_EQ(States(), "S U W U");
    EXPECT_EQ(m_gone_on.count(), 0);
    EXPECT_EQ(Offered().join(u'|'),
              "Send the remaining 1|Rows that may have been sent ...|Receipt ...|Remove ...|Later");
    In_The_Sheet([](QWidget& sheet) { Choose_For_All(sheet, "Count_All_As_Sent_Btn"); });
    Click("Decide_Btn");
    EXPECT_EQ(States(), "S S W S");
    EXPECT_EQ(Offered().join(u'|'), "Send the remaining 1|Receipt ...|Remove ...|Later");
}

TEST_F(Unfinished_Strip_Test, Does_Not_Go_On_Where_Nothing_Is_Left)
{
    Leave("1", "SU");
    Look();
    In_The_Sheet([](QWidget& sheet) { Choose_For_All(sheet, "Count_All_As_Sent_Btn"); });
    Click("Decide_Btn");
    EXPECT_TRUE(Counts().endsWith(" Nothing of it is left to be sent."));
    EXPECT_EQ(Offered().join(u'|'), "Receipt ...|Remove ...|Later");
}

TEST_F(Unfinished_Strip_Test, The_Sheet_Lists_Each_Row_With_Its_Reason_And_Its_Choice)
{
    Make({{Row_To("0041", "Hello\n<b>you</b>"), "U", "line-lost"}, {Row_To("0042"), "S"}, {Row_To("0043"), "H"}}, true,
         "1");
    Look();
    In_The_Sheet([](QWidget& sheet) {
        auto& table = In<QTableView>(sheet, "_Rows");
        ASSERT_EQ(table.model()->rowCount(), 2);
        EXPECT_EQ(Cells(table, 0).mid(0, 3).join(u'|'),
                  "0041|Hello\n<b>you</b>|The device was gone before its result.");
        EXPECT_EQ(Cells(table, 0).at(4), "Leave as it is");
        EXPECT_EQ(Cells(table, 1).at(2), "The program ended before the result.");
        EXPECT_FALSE(Cells(table, 1).at(3).isEmpty()) << "when it was handed over";
        Click_In(sheet, "Count_As_Sent_Btn"); // the first row is selected when it opens
        EXPECT_EQ(Cells(table, 0).at(4), "Count as sent");
        EXPECT_EQ(Cells(table, 1).at(4), "Leave as it is");
        Choose_For_All(sheet, "Send_All_Again_Btn");
        Choose_For_All(sheet, "Leave_All_Btn");
        table.selectRow(1);
        Click_In(sheet, "Send_Again_Btn");
        Click_In(sheet, "Leave_Btn");
        EXPECT_EQ(Text_Of(sheet, "_Choices"), "Leave as it is: 2. Send again: 0. Count as sent: 0.");
    });
    Click("Decide_Btn");
    EXPECT_EQ(States(), "U S H");
}

TEST_F(Unfinished_Strip_Test, A_Decision_That_Cannot_Be_Kept_Is_Told_In_The_Sheet)
{
    struct Case
    {
        const char* name;
        std::function<void()> spoil;
        QString words;
    };
    Job_Journal::Opened in_work;
    const Case cases[] = {
        {"in use", [&] { in_work = Job_Journal::Open_To_Go_On(Path("1")); }, "another program works on it"},
        {"list gone", [&] { ASSERT_TRUE(QFile::remove(List_Path("1"))); }, "the list beside its journal is gone"},
        {"gone", [&] { ASSERT_TRUE(QFile::remove(Path("1"))); }, "there is no such job"},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        in_work = {};
        QDir(m_folder).removeRecursively();
        Leave("1", "UW");
        Look();
        m_user.When_Opens("Unknown_Rows_Sheet", [&](QWidget& sheet) {
            each.spoil();
            Choose_For_All(sheet, "Send_All_Again_Btn");
            EXPECT_FALSE(In<QLabel>(sheet, "_Trouble").isVisible());
            Click_In(sheet, "OKPressed");
            EXPECT_TRUE(sheet.isVisible());
            EXPECT_EQ(Text_Of(sheet, "_Trouble"), "The decisions could not be kept: " + each.words + ".");
            QTest::keyClick(&sheet, Qt::Key_Escape);
            EXPECT_FALSE(sheet.isVisible());
        });
        Click("Go_On_Btn");
        EXPECT_EQ(m_gone_on.count(), 0);
    }
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

TEST_F(Unfinished_Strip_Test, Rows_Decided_About_Elsewhere_Meanwhile_Stay_As_They_Are)
{
    Leave("1", "UUW");
    Look();
    In_The_Sheet([&](QWidget& sheet) {
        const auto other = Job_Journal::Open_To_Go_On(Path("1"));
        ASSERT_TRUE(other.journal->Decide(1, Job_Decision::Count_As_Sent, "other"));
        Choose_For_All(sheet, "Send_All_Again_Btn");
    });
    Click("Decide_Btn");
    EXPECT_EQ(States(), "S W W");
}

// ------------------------------------------------------------------------------------------------- the removal

TEST_F(Unfinished_Strip_Test, A_Job_Goes_When_That_Is_Said_Twice)
{
    Leave("1", "SW");
    Leave("2", "WWW");
    Look();
    Click("Remove_Btn");
    EXPECT_EQ(Offered().join(u'|'), "Keep it|Remove for good");
    Click("Keep_Btn");
    EXPECT_EQ(Strip().window()->focusWidget(), &In<QPushButton>(Strip(), "Remove_Btn"));
    EXPECT_EQ(Names().size(), 4);
    Click("Remove_Btn");
    Click("Remove_For_Good_Btn");
    EXPECT_EQ(m_removed.value(0).value(0).toString(), Path("1"));
    EXPECT_EQ(Names().join(u' '), "2.journal 2.list");
    EXPECT_TRUE(Counts().startsWith("Recipients: 3."));
    EXPECT_EQ(m_gone_on.count() + m_let_go.count(), 0);
    const auto in_work = Job_Journal::Open_To_Go_On(Path("2"));
    Click("Remove_Btn");
    Click("Remove_For_Good_Btn");
    EXPECT_EQ(Text_Of(Strip(), "_Strip_Trouble"), "The job could not be removed: another program works on it.");
    EXPECT_EQ(Names().size(), 2);
    EXPECT_EQ(m_removed.count(), 1);
    EXPECT_TRUE(m_user.Was_Shown().isEmpty());
}

// --------------------------------------------------------------------------------------------- who cannot see it

TEST_F(Unfinished_Strip_Test, Everything_In_It_Has_A_Name_And_Is_Reached_With_The_Keyboard)
{
    Leave("1", "SUWW");
    Look();
    EXPECT_FALSE(Strip().accessibleName().isEmpty());
    QApplication::setActiveWindow(&m_window);
    In<QPushButton>(Strip(), "Go_On_Btn").setFocus();
    QStringList order;
    for (int step = 0; step < 5; ++step) {
        auto* button = qobject_cast<QPushButton*>(m_window.focusWidget());
        ASSERT_TRUE(button);
        EXPECT_FALSE(button->text().isEmpty());
        order.append(button->objectName());
        QTest::keyClick(button, Qt::Key_Tab);
    }
    EXPECT_EQ(order.join(u' '), "Go_On_Btn Decide_Btn Receipt_Btn Remove_Btn Later_Btn");
    In<QPushButton>(Strip(), "Later_Btn").setFocus();
    QTest::keyClick(m_window.focusWidget(), Qt::Key_Space);
    EXPECT_EQ(m_let_go.count(), 1);
}

TEST_F(Unfinished_Strip_Test, Is_Whole_In_A_Narrow_Window)
{
    Leave("1", "SUWW");
    Look();
    for (int round = 0; round < 4; ++round) { // what grows lays itself out anew
        m_window.resize(m_window.minimumSizeHint());
        QCoreApplication::processEvents();
    }
    const int widest = In<QPushButton>(Strip(), "Decide_Btn").sizeHint().width();
    EXPECT_LT(m_window.width(), widest * 2);
    QList<QRect> places;
    for (const auto* control : Strip().findChildren<QWidget*>()) {
        if (!control->isVisible() || control->objectName().isEmpty() || control->objectName().startsWith(u"qt_"))
            continue;
        const QRect place(control->mapTo(&Strip(), QPoint()), control->size());
        EXPECT_TRUE(Strip().rect().contains(place)) << qPrintable(control->objectName());
        if (const auto* label = qobject_cast<const QLabel*>(control)) {
            EXPECT_GE(label->height(), label->heightForWidth(label->width())) << qPrintable(label->objectName());
        }
        if (qobject_cast<const QPushButton*>(control)) {
            EXPECT_GE(place.width(), control->minimumSizeHint().width());
            for (const QRect& other : places)
                EXPECT_FALSE(place.intersects(other)) << qPrintable(control->objectName());
            places.append(place);
        }
    }
    EXPECT_EQ(places.size(), 5);
}
