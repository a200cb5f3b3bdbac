#include "toolkit/Window_Look.h"
#include "windows/list/Dialogs_Test.h"
#include "windows/list/Update_Sel_Num_SMS.h"

#include <QAbstractItemModel>
#include <numeric>

namespace {

const QString Question = QStringLiteral(
    "This action will copy the above message to the selected numbers in the list. The messages of rest of "
    "the numbers remain unchanged.\n\nDo you want to continue?");

class Update_Sel_Num_SMS_Test : public Dialogs_Test
{
protected:
    Update_Sel_Num_SMS_Test()
    {
        for (const char* number : {"1", "2", "3", "4", "5"})
            Add(QLatin1String(number), QStringLiteral("old"));
        m_window.m_selected_rows = {0, 2, 4};
    }

    /// Opens the dialog; what is to be done begins when the whole list is in.
    void Open(const std::function<void(QWidget&)>& meanwhile)
    {
        m_user.When_Opens(QStringLiteral("Update_Sel_Num_SMS"), [&](QWidget& dialog) {
            Finish_Workers();
            meanwhile(dialog);
        });
        Open_Update_Selected(m_window);
        auto& dialog = *Update_Sel_Num_SMS::defaultInstance();
        EXPECT_FALSE(dialog.isVisible());
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), QString());
        EXPECT_EQ(In<QLabel>(dialog, "m_st_msg_cnt").text(), QStringLiteral("0 Characters"));
        EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    }

    static void Type(QWidget& dialog, const QString& message)
    {
        QTest::keyClicks(&In<QPlainTextEdit>(dialog, "m_msg_str"), message);
    }

    static void Cancel(QWidget& dialog) { Click(dialog, "CancelPressed"); }

    static QStringList Shown(QWidget& dialog)
    {
        const auto& rows = *In<QTableView>(dialog, "List_View").model();
        QStringList numbers;
        for (int row = 0; row < rows.rowCount(); ++row)
            numbers.append(rows.index(row, 0).data().toString());
        return numbers;
    }

    static QString Count(QWidget& dialog) { return In<QLabel>(dialog, "m_st_num_cnt").text(); }

    void Select_Many(int many)
    {
        m_window.m_recipients.Clear();
        for (int row = 0; row < many; ++row)
            Add(QString::number(10'000'000'000 + row), QStringLiteral("old"));
        m_window.m_selected_rows.resize(static_cast<std::size_t>(many));
        std::iota(m_window.m_selected_rows.begin(), m_window.m_selected_rows.end(), 0);
    }
};

// Does something at the very moment a window of a name is shown, before it serves its first event.
class At_Show : public QObject
{
public:
    At_Show(const QString& name, std::function<void(QWidget&)> step) : m_name(name), m_step(std::move(step))
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && watched->objectName() == m_name)
            m_step(static_cast<QWidget&>(*watched));
        return false;
    }

private:
    QString m_name;
    std::function<void(QWidget&)> m_step;
};

TEST_F(Update_Sel_Num_SMS_Test, An_Empty_List_Is_Refused)
{
    m_window.m_recipients.Clear();
    m_user.Will_Press("OK");
    Open_Update_Selected(m_window);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Boxed(List_Empty)});
}

TEST_F(Update_Sel_Num_SMS_Test, No_Selected_Row_Is_Refused)
{
    m_window.m_selected_rows.clear();
    m_user.Will_Press("OK");
    Open_Update_Selected(m_window);
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Boxed(None_Selected)});
}

TEST_F(Update_Sel_Num_SMS_Test, It_Shows_The_Selected_Numbers_In_List_Order_And_Their_Count)
{
    Open([&](QWidget& dialog) {
        EXPECT_TRUE(dialog.isModal());
        EXPECT_EQ(dialog.parentWidget(), &m_window);
        EXPECT_EQ(Shown(dialog), (QStringList{"1", "3", "5"}));
        EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 3"));
        EXPECT_EQ(Focused(dialog), QStringLiteral("m_msg_str"));
        EXPECT_EQ(In<QTableView>(dialog, "List_View").editTriggers(), QTableView::NoEditTriggers);
        Cancel(dialog);
    });
    EXPECT_EQ(Up_Sel_Num_SMS, Update_Sel_Num_SMS::defaultInstance());
}

TEST_F(Update_Sel_Num_SMS_Test, It_Fills_Exactly_The_Selected_Recipients)
{
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) {
        Type(dialog, "new");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Question});
    EXPECT_EQ(List(), (QStringList{"1: new", "2: old", "3: new", "4: old", "5: new"}));
    EXPECT_EQ(Update_Sel_Num_SMS::defaultInstance()->result(), 1);
    EXPECT_GT(m_window.m_redisplays, 0);
}

TEST_F(Update_Sel_Num_SMS_Test, The_Selection_Is_Read_Again_When_The_Message_Is_Copied)
{
    m_user.Will_Handle([&](QMessageBox& box) {
        m_window.m_selected_rows = {1, 3};
        QTest::keyClick(&box, Qt::Key_Return); // Yes is the default
    });
    Open([&](QWidget& dialog) {
        EXPECT_EQ(Shown(dialog), (QStringList{"1", "3", "5"}));
        Type(dialog, "new");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List(), (QStringList{"1: old", "2: new", "3: old", "4: new", "5: old"}));
}

TEST_F(Update_Sel_Num_SMS_Test, A_Number_Of_Blanks_Is_Not_Shown_But_Receives_The_Message)
{
    Add("   ", "old");
    Add(" 7 ", "old");
    m_window.m_selected_rows = {1, 5, 6};
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) {
        EXPECT_EQ(Shown(dialog), (QStringList{"2", "7"}));
        EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 2"));
        Type(dialog, "new");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List(), (QStringList{"1: old", "2: new", "3: old", "4: old", "5: old", "   : new", " 7 : new"}));
}

TEST_F(Update_Sel_Num_SMS_Test, An_Empty_Message_Is_Refused_And_The_Message_Gets_The_Focus)
{
    m_user.Will_Press("OK");
    Open([](QWidget& dialog) {
        In<QWidget>(dialog, "List_View").setFocus();
        Click(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(Focused(dialog), QStringLiteral("m_msg_str"));
        Cancel(dialog);
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Boxed(Enter_Message)});
}

TEST_F(Update_Sel_Num_SMS_Test, A_Message_Of_Blanks_Is_Not_Empty)
{
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) {
        Type(dialog, " ");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List().first(), QStringLiteral("1:  "));
}

TEST_F(Update_Sel_Num_SMS_Test, No_Changes_Nothing_And_Keeps_The_Message)
{
    m_user.Will_Press("No");
    Open([](QWidget& dialog) {
        Type(dialog, "new");
        Click(dialog, "OKPressed");
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), QStringLiteral("new"));
        Cancel(dialog);
    });
    EXPECT_EQ(List().first(), QStringLiteral("1: old"));
}

TEST_F(Update_Sel_Num_SMS_Test, A_Message_Is_Copied_Byte_For_Byte)
{
    const QString message = QStringLiteral(" a\u00A0b\n\n \U0001F600 ");
    m_user.Will_Press("Yes");
    Open([&](QWidget& dialog) {
        Paste(dialog, "m_msg_str", message);
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_window.m_recipients.At(4).Message, message);
}

TEST_F(Update_Sel_Num_SMS_Test, A_Pasted_Message_Of_1700_Characters_Is_Cut_At_Once_And_Counted_Once)
{
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) {
        Paste(dialog, "m_msg_str", QString(1600, u'a') + QString(100, u'b'));
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), QString(1600, u'a'));
        EXPECT_EQ(In<QLabel>(dialog, "m_st_msg_cnt").text(), QStringLiteral("1600 counted"));
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(m_window.m_recipients.At(0).Message, QString(1600, u'a'));
    ASSERT_EQ(m_window.m_counted.size(), 1U);
    EXPECT_EQ(m_window.m_counted[0].counter_before, QStringLiteral("0 Characters"));
    EXPECT_TRUE(m_window.m_counted[0].open_dialog);
}

TEST_F(Update_Sel_Num_SMS_Test, Cancel_Escape_And_The_Close_Button_End_It_With_Zero_And_Change_Nothing)
{
    const std::function<void(QWidget&)> ways[] = {
        Cancel,
        [](QWidget& dialog) { QTest::keyClick(&In<QWidget>(dialog, "m_msg_str"), Qt::Key_Escape); },
        [](QWidget& dialog) { dialog.close(); },
    };
    for (const auto& way : ways) {
        Open([&](QWidget& dialog) {
            Type(dialog, "new");
            way(dialog);
        });
        EXPECT_EQ(Update_Sel_Num_SMS::defaultInstance()->result(), 0);
        EXPECT_EQ(List().first(), QStringLiteral("1: old"));
        EXPECT_EQ(m_window.m_redisplays, 0);
    }
}

TEST_F(Update_Sel_Num_SMS_Test, Its_List_Is_Built_Anew_At_Each_Opening)
{
    Open(Cancel);
    m_window.m_selected_rows = {3};
    Open([](QWidget& dialog) {
        EXPECT_EQ(Shown(dialog), QStringList{"4"});
        EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 1"));
        Cancel(dialog);
    });
    Add(" ");
    m_window.m_selected_rows = {5};
    Open([](QWidget& dialog) {
        EXPECT_EQ(Shown(dialog), QStringList());
        EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 0"));
        Cancel(dialog);
    });
}

TEST_F(Update_Sel_Num_SMS_Test, It_Opens_A_Second_After_It_Was_Asked_For)
{
    Set_Pace(10);
    double opened = 0;
    const At_Show at_show(QStringLiteral("Update_Sel_Num_SMS"), [&](QWidget&) { opened = Now_Seconds(); });
    const double begin = Now_Seconds();
    Open(Cancel);
    EXPECT_GE(opened - begin, 0.099);
}

TEST_F(Update_Sel_Num_SMS_Test, The_Table_Is_Reloaded_At_Ten_Numbers_And_At_The_End)
{
    for (const auto& [many, expected] :
         {std::pair(9, std::vector{9}), std::pair(10, std::vector{10}), std::pair(11, std::vector{10, 11}),
          std::pair(12'000, std::vector{10, 12'000})}) {
        Select_Many(many);
        auto& rows = *In<QTableView>(*Update_Sel_Num_SMS::defaultInstance(), "List_View").model();
        std::vector<int> shown;
        const auto watch =
            QObject::connect(&rows, &QAbstractItemModel::rowsInserted, [&] { shown.push_back(rows.rowCount()); });
        Open(Cancel);
        QObject::disconnect(watch);
        EXPECT_EQ(shown, expected) << many;
    }
}

TEST_F(Update_Sel_Num_SMS_Test, No_Input_Is_Taken_And_It_Does_Not_Close_Before_The_Whole_List_Is_In)
{
    Select_Many(50'000);
    Set_Pace(1'000'000); // so that not one event is served before the window is shown
    bool was_shown = false;
    const At_Show at_show(QStringLiteral("Update_Sel_Num_SMS"), [&](QWidget& dialog) {
        was_shown = true;
        Type(dialog, "lost");
        QTest::keyClick(&In<QWidget>(dialog, "CancelPressed"), Qt::Key_Space);
        QTest::keyClick(&In<QWidget>(dialog, "OKPressed"), Qt::Key_Space);
        EXPECT_EQ(In<QPlainTextEdit>(dialog, "m_msg_str").toPlainText(), QString());
        EXPECT_FALSE(dialog.close());
        EXPECT_TRUE(dialog.isVisible());
    });
    Open_Update_Selected(m_window);
    EXPECT_TRUE(was_shown);
    auto& dialog = *Update_Sel_Num_SMS::defaultInstance();
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 50000"));
    EXPECT_EQ(Shown(dialog).size(), 50'000);
    Finish_Workers();
}

TEST_F(Update_Sel_Num_SMS_Test, After_Such_A_Close_It_Opens_And_Works_As_Ever)
{
    Set_Pace(1'000'000);
    {
        const At_Show at_show(QStringLiteral("Update_Sel_Num_SMS"), [&](QWidget& dialog) { dialog.close(); });
        Open_Update_Selected(m_window);
    }
    m_user.Will_Press("Yes");
    Open([](QWidget& dialog) {
        Type(dialog, "new");
        Click(dialog, "OKPressed");
    });
    EXPECT_EQ(List().first(), QStringLiteral("1: new"));
}

TEST_F(Update_Sel_Num_SMS_Test, Two_Hundred_Thousand_Recipients_Are_Filled_While_The_Window_Serves_Events_Under_A_Sheet)
{
    constexpr int Many = 200'000;
    Select_Many(Many);
    m_user.Will_Press("Yes");
    const Pulse pulse;
    Open([](QWidget& dialog) {
        EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 200000"));
        EXPECT_EQ(Shown(dialog).last(), QStringLiteral("10000199999"));
        Type(dialog, "new");
        Click(dialog, "OKPressed");
    });
    EXPECT_GE(pulse.Beats(), Beats_Of_A_Worker);
    for (const int row : {0, Many / 2, Many - 1})
        EXPECT_EQ(m_window.m_recipients.At(row).Message, QStringLiteral("new"));
}

TEST_F(Update_Sel_Num_SMS_Test, A_Program_That_Exits_Meanwhile_Is_Not_Held_Up_And_The_Load_Has_Ended_When_It_Returns)
{
    Open(Cancel);
    auto& dialog = *Update_Sel_Num_SMS::defaultInstance();
    EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 3"));
    Select_Many(100'000);
    Begin_Program_Exit();
    Open_Update_Selected(m_window);
    EXPECT_EQ(Count(dialog), QStringLiteral("Total Selected Numbers : 0"));
    EXPECT_EQ(Shown(dialog), QStringList());
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(List().first(), QStringLiteral("10000000000: old"));
}

TEST_F(Update_Sel_Num_SMS_Test, The_Table_Answers_With_An_Empty_Text_Where_There_Is_No_Value)
{
    Open(Cancel);
    const auto& dialog = *Update_Sel_Num_SMS::defaultInstance();
    EXPECT_EQ(dialog.numberOfRowsInTableView(), 3);
    EXPECT_EQ(dialog.tableView(QStringLiteral("Number"), 1), QStringLiteral("3"));
    EXPECT_EQ(dialog.tableView(QStringLiteral("Message"), 1), QString());
    EXPECT_EQ(dialog.tableView(QStringLiteral("Number"), -1), QString());
    EXPECT_EQ(dialog.tableView(QStringLiteral("Number"), 3), QString());
}

TEST_F(Update_Sel_Num_SMS_Test, It_Has_The_Programs_Background_And_One_Shared_Instance)
{
    const auto* dialog = Update_Sel_Num_SMS::defaultInstance();
    EXPECT_EQ(dialog, Update_Sel_Num_SMS::defaultInstance());
    EXPECT_EQ(dialog, Up_Sel_Num_SMS);
    EXPECT_EQ(dialog->objectName(), QStringLiteral("Update_Sel_Num_SMS"));
    EXPECT_EQ(dialog->palette().color(QPalette::Window), Window_Background());
    End_Shared_Instances();
    EXPECT_EQ(Up_Sel_Num_SMS, nullptr);
}

} // namespace
