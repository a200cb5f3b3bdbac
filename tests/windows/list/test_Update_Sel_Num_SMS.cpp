#include "windows/list/Update_Sel_Num_SMS.h"

#include "windows/list/Dialogs_Test.h"

#include <numeric>

const QString Question =
    "This action will copy the above message to the selected numbers in the list. The messages of rest of "
    "the numbers remain unchanged.\n\nDo you want to continue?";

class Update_Sel_Num_SMS_Test : public Dialogs_Test
{
protected:
    Update_Sel_Num_SMS_Test() : Dialogs_Test("Update_Sel_Num_SMS", [this] { Open_Update_Selected(m_window); })
    {
        for (const char* number : {"1", "2", "3", "4", "5"})
            Add(number, "old");
        m_window.m_selected_rows = {0, 2, 4};
    }

    void Cancel() const { Click("CancelPressed"); }
    /// Types the message and presses OK.
    void Fill_With(const QString& message) const
    {
        Type_Message(message);
        Click("OKPressed");
    }

    QStringList Shown() const { return Rows_Of(In<QTableView>("List_View")); }
    QString Count() const { return In<QLabel>("m_st_num_cnt").text(); }
    void Select_Many(int many)
    {
        Put_Many(many, "old");
        m_window.m_selected_rows.resize(static_cast<std::size_t>(many));
        std::iota(m_window.m_selected_rows.begin(), m_window.m_selected_rows.end(), 0);
    }
};

// Does something at the very moment the dialog is shown, before it serves its first event.
class At_Show : public QObject
{
public:
    explicit At_Show(std::function<void(QDialog&)> step) : m_step(std::move(step)) { qApp->installEventFilter(this); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == QStringLiteral("Update_Sel_Num_SMS"))
            m_step(static_cast<QDialog&>(*watched));
        return false;
    }

private:
    std::function<void(QDialog&)> m_step;
};

TEST_F(Update_Sel_Num_SMS_Test, No_Selected_Row_Is_Refused_And_So_Is_An_Empty_List)
{
    m_user.Will_Press("OK");
    m_user.Will_Press("OK");
    m_window.m_selected_rows.clear();
    Open_Update_Selected(m_window);
    m_window.m_recipients.Clear();
    Open_Update_Selected(m_window);
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{None_Selected, List_Empty}));
}

TEST_F(Update_Sel_Num_SMS_Test, It_Shows_The_Selected_Numbers_In_List_Order_And_Their_Count_Anew_At_Each_Opening)
{
    Add(" ");
    const struct
    {
        std::vector<int> selected;
        QStringList shown;
    } rows[] = {{{0, 2, 4}, {"1", "3", "5"}}, {{3}, {"4"}}, {{5}, {}}};
    for (const auto& [selected, shown] : rows) {
        m_window.m_selected_rows = selected;
        Run([&, shown = shown] {
            EXPECT_EQ(Shown(), shown);
            EXPECT_EQ(Count(), "Total Selected Numbers : " + QString::number(shown.size()));
            EXPECT_EQ(In<QTableView>("List_View").editTriggers(), QTableView::NoEditTriggers);
            Cancel();
        });
    }
}

TEST_F(Update_Sel_Num_SMS_Test, It_Asks_For_A_Message_And_Whether_It_Is_Meant_And_Fills_Exactly_The_Selected_Recipients)
{
    Add("   ", "old");
    Add(" 7 ", "old");
    m_window.m_selected_rows = {0, 2, 5, 6};
    for (const char* answer : {"OK", "No", "Yes"})
        m_user.Will_Press(answer);
    const int result = Run([&] {
        EXPECT_EQ(Shown(), (QStringList{"1", "3", "7"})) << "a number of blanks is not shown";
        EXPECT_EQ(Count(), "Total Selected Numbers : 3");
        In<QWidget>("List_View").setFocus();
        Click("OKPressed");
        EXPECT_TRUE(m_dialog->isVisible()) << "without a message";
        EXPECT_EQ(Focused(), "m_msg_str");
        Fill_With("new");
        EXPECT_TRUE(m_dialog->isVisible()) << "after No";
        EXPECT_EQ(Message(), "new");
        EXPECT_EQ(List().first(), "1: old");
        EXPECT_EQ(m_window.m_redisplays, 0);
        Click("OKPressed");
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Enter_Message, Question, Question}));
    EXPECT_EQ(List(), (QStringList{"1: new", "2: old", "3: new", "4: old", "5: old", "   : new", " 7 : new"}));
    EXPECT_GT(m_window.m_redisplays, 0);
}

TEST_F(Update_Sel_Num_SMS_Test, The_Selection_Is_Read_Again_When_The_Message_Is_Copied)
{
    m_user.Will_Handle([&](QMessageBox& box) {
        m_window.m_selected_rows = {1, 3};
        QTest::keyClick(&box, Qt::Key_Return); // Yes is the default
    });
    Run([&] {
        EXPECT_EQ(Shown(), (QStringList{"1", "3", "5"}));
        Fill_With("new");
    });
    EXPECT_EQ(List(), (QStringList{"1: old", "2: new", "3: old", "4: new", "5: old"}));
}

TEST_F(Update_Sel_Num_SMS_Test, It_Opens_A_Second_After_It_Was_Asked_For)
{
    Set_Pace(10);
    double opened = 0;
    const At_Show at_show([&](QDialog&) { opened = Now_Seconds(); });
    const double begin = Now_Seconds();
    Run([&] { Cancel(); });
    EXPECT_GE(opened - begin, 0.099);
}

TEST_F(Update_Sel_Num_SMS_Test, The_Table_Is_Reloaded_At_Ten_Numbers_And_At_The_End)
{
    for (const auto& [many, expected] :
         {std::pair(9, std::vector{9}), {10, {10}}, {11, {10, 11}}, {12'000, {10, 12'000}}}) {
        Select_Many(many);
        auto& rows = *Update_Sel_Num_SMS::defaultInstance()->findChild<QTableView*>("List_View")->model();
        std::vector<int> shown;
        const auto watch =
            QObject::connect(&rows, &QAbstractItemModel::rowsInserted, [&] { shown.push_back(rows.rowCount()); });
        Run([&] { Cancel(); });
        QObject::disconnect(watch);
        EXPECT_EQ(shown, expected) << many;
    }
}

TEST_F(Update_Sel_Num_SMS_Test, No_Input_Is_Taken_And_It_Does_Not_Close_Before_The_Whole_List_Is_In)
{
    Select_Many(50'000);
    Set_Pace(1'000'000); // so that not one event is served before the window is shown
    {
        const At_Show at_show([&](QDialog& dialog) {
            m_dialog = &dialog;
            QTest::keyClicks(&In<QWidget>("m_msg_str"), "lost");
            QTest::keyClick(&In<QWidget>("CancelPressed"), Qt::Key_Space);
            QTest::keyClick(&In<QWidget>("OKPressed"), Qt::Key_Space);
            EXPECT_EQ(Message(), "");
            EXPECT_FALSE(dialog.close());
            EXPECT_TRUE(dialog.isVisible());
        });
        Open_Update_Selected(m_window);
    }
    ASSERT_TRUE(m_dialog);
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(Count(), "Total Selected Numbers : 50000");
    EXPECT_EQ(Shown().size(), 50'000);
    EXPECT_EQ(Shown().last(), "10000049999");

    m_user.Will_Press("Yes");
    Run([&] { Fill_With("new"); });
    EXPECT_EQ(List().first(), "10000000000: new") << "it opens and works as ever";
}

TEST_F(Update_Sel_Num_SMS_Test, A_Program_That_Exits_Meanwhile_Is_Not_Held_Up_And_The_Load_Has_Ended_When_It_Returns)
{
    Run([&] { Cancel(); });
    EXPECT_EQ(Count(), "Total Selected Numbers : 3");
    Select_Many(100'000);
    Begin_Program_Exit();
    Open_Update_Selected(m_window);
    EXPECT_EQ(Count(), "Total Selected Numbers : 0");
    EXPECT_EQ(Shown(), QStringList());
    EXPECT_FALSE(m_dialog->isVisible());
    EXPECT_EQ(List().first(), "10000000000: old");
}

TEST_F(Update_Sel_Num_SMS_Test, The_Table_Answers_With_An_Empty_Text_Where_There_Is_No_Value)
{
    Run([&] { Cancel(); });
    EXPECT_EQ(Up_Sel_Num_SMS, m_dialog);
    EXPECT_EQ(Up_Sel_Num_SMS->numberOfRowsInTableView(), 3);
    EXPECT_EQ(Up_Sel_Num_SMS->tableView("Number", 1), "3");
    EXPECT_EQ(Up_Sel_Num_SMS->tableView("Message", 1), "");
    EXPECT_EQ(Up_Sel_Num_SMS->tableView("Number", -1), "");
    EXPECT_EQ(Up_Sel_Num_SMS->tableView("Number", 3), "");
    End_Shared_Instances();
    EXPECT_EQ(Up_Sel_Num_SMS, nullptr);
}
