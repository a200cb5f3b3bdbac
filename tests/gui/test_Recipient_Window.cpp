#include "gui/Open_Program.h"
#include "toolkit/List_Tables.h"
#include "windows/main/Hyperlink.h"
#include "windows/main/List_Cells.h"

#include <QHeaderView>

using testing::ElementsAre;
using testing::IsEmpty;

class Recipient_Window : public Open_Program
{
protected:
    QPoint Middle_Of(int row)
    {
        const auto& table = The<QTableView>("idTableView");
        return table.visualRect(table.model()->index(row, 0)).center();
    }
    void Click_Row(int row, Qt::MouseButton button = Qt::LeftButton, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(The<QTableView>("idTableView").viewport(), button, keys, Middle_Of(row));
    }
    void Double_Click_Row(int row, Qt::MouseButton button = Qt::LeftButton)
    {
        Click_Row(row, button);
        QTest::mouseDClick(The<QTableView>("idTableView").viewport(), button, {}, Middle_Of(row));
    }
};

TEST_F(Recipient_Window, A_Plus_Becomes_Two_Zeros_And_Dashes_Are_Left_Out)
{
    Add(QStringLiteral("+447700-900123"));
    EXPECT_THAT(Numbers(), ElementsAre(QStringLiteral("00447700900123")));
    EXPECT_EQ(Shown(0, 0), QStringLiteral("00447700900123"));
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 1"));
    EXPECT_TRUE(The<QLineEdit>("_numberEdit").text().isEmpty());
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Recipient_Window, What_Is_No_Number_Is_Refused_And_Stays_In_The_Field)
{
    const QStringList refused = {QStringLiteral("+44 7700 900123"),
                                 QStringLiteral("44+1"),
                                 QStringLiteral("++44"),
                                 QStringLiteral("   "),
                                 QString(),
                                 QStringLiteral("-"),
                                 QStringLiteral("12,34"),
                                 QStringLiteral("abc"),
                                 QStringLiteral("\u0661\u0662\u0663"),
                                 QStringLiteral("+1234567890123456789")};
    for (const QString& number : refused) {
        The<QLineEdit>("_numberEdit").setText(number);
        user.Will_Press(QStringLiteral("OK"));
        Click("Add_Number");
        EXPECT_EQ(user.Was_Shown().constLast(), QStringLiteral("\nPlease enter a valid phone number."))
            << qPrintable(number);
        EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), number);
        EXPECT_TRUE(Has_Focus("_numberEdit"));
    }
    EXPECT_THAT(Numbers(), IsEmpty());
}

TEST_F(Recipient_Window, Twenty_Digits_Are_A_Number)
{
    Add(QStringLiteral("12345678901234567890"));
    EXPECT_THAT(Numbers(), ElementsAre(QStringLiteral("12345678901234567890")));
}

TEST_F(Recipient_Window, The_Number_Field_Keeps_The_First_Twenty_Characters_Of_A_Paste)
{
    auto& field = The<QLineEdit>("_numberEdit");
    field.setFocus();
    QApplication::clipboard()->setText(QStringLiteral("1234567890123456789012345"));
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), QStringLiteral("12345678901234567890"));
    QApplication::clipboard()->setText(QString(1024 * 1024, u'7'));
    field.clear();
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), QString(20, u'7'));
}

TEST_F(Recipient_Window, The_Same_Number_Can_Be_Added_Twice_While_Duplicates_Are_Not_Skipped)
{
    Add(QStringLiteral("123"));
    Add(QStringLiteral("123"));
    EXPECT_THAT(Numbers(), ElementsAre(QStringLiteral("123"), QStringLiteral("123")));
}

TEST_F(Recipient_Window, A_Duplicate_Is_Refused_Before_An_Exclusion)
{
    Add(QStringLiteral("123"));
    m_delegate->Create_Exclusion_List(QStringLiteral("123"));
    Tick("_Skip_Duplicate_Chk");
    Tick("_Exclusion_Chk");
    user.Will_Press(QStringLiteral("OK"));
    Add(QStringLiteral("123"));
    EXPECT_THAT(user.Was_Shown(), ElementsAre(QStringLiteral("\nEntered number already exists.")));
    EXPECT_EQ(m_delegate->Recipients().Count(), 1);
}

TEST_F(Recipient_Window, An_Excluded_Number_Is_Refused_Only_While_Exclusions_Are_Heeded)
{
    m_delegate->Create_Exclusion_List(QStringLiteral(" 555 "));
    m_delegate->Create_Exclusion_List(QStringLiteral("  "));
    Tick("_Exclusion_Chk");
    user.Will_Press(QStringLiteral("OK"));
    Add(QStringLiteral("555"));
    EXPECT_THAT(user.Was_Shown(), ElementsAre(QStringLiteral("\nEntered number is in exclusion list.")));
    The<QCheckBox>("_Exclusion_Chk").setChecked(false);
    Add(QStringLiteral("555"));
    EXPECT_THAT(Numbers(), ElementsAre(QStringLiteral("555")));
}

TEST_F(Recipient_Window, A_Number_From_A_File_Is_Judged_By_The_Same_Rules_Without_A_Word)
{
    EXPECT_EQ(m_delegate->Num_Able_To_insert(QStringLiteral(" +44-1\r")), QStringLiteral("00441"));
    EXPECT_TRUE(m_delegate->Num_Able_To_insert(QStringLiteral("44+1")).isEmpty());
    Add(QStringLiteral("00441"));
    m_delegate->Create_Exclusion_List(QStringLiteral("9"));
    EXPECT_FALSE(m_delegate->Num_Able_To_insert(QStringLiteral("00441")).isEmpty());
    Tick("_Skip_Duplicate_Chk");
    Tick("_Exclusion_Chk");
    EXPECT_TRUE(m_delegate->Num_Able_To_insert(QStringLiteral("+441")).isEmpty());
    EXPECT_TRUE(m_delegate->Num_Able_To_insert(QStringLiteral("9")).isEmpty());
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number(QStringLiteral("00441")));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number(QStringLiteral("+441")));
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number(QStringLiteral("9")));
    EXPECT_FALSE(m_delegate->Check_Exclusion_Number(QStringLiteral("09")));
}

TEST_F(Recipient_Window, An_Item_Carries_The_Composer_Text_Of_Its_Moment_Unchanged)
{
    Add(QStringLiteral("1"));
    QTest::keyClicks(&The<QPlainTextEdit>("_messageEdit"), QStringLiteral("  two lines "));
    QTest::keyClick(&The<QPlainTextEdit>("_messageEdit"), Qt::Key_Return);
    QTest::keyClicks(&The<QPlainTextEdit>("_messageEdit"), QStringLiteral("%1 %2"));
    Add(QStringLiteral("2"));
    EXPECT_TRUE(m_delegate->Recipients().At(0).Message.isEmpty());
    EXPECT_EQ(m_delegate->Recipients().At(1).Message, QStringLiteral("  two lines \n%1 %2"));
}

TEST_F(Recipient_Window, The_First_Composer_Text_Taken_Is_The_Remembered_One)
{
    m_delegate->Create_Num_Msg_List(QStringLiteral(" 1 "), QStringLiteral("own"));
    EXPECT_TRUE(m_delegate->Previous_Composer_Message().isEmpty());
    The<QPlainTextEdit>("_messageEdit").setPlainText(QStringLiteral("first"));
    m_delegate->Create_Num_Msg_List(QStringLiteral("2"), QStringLiteral("own"));
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), QStringLiteral("first"));
    The<QPlainTextEdit>("_messageEdit").setPlainText(QStringLiteral("second"));
    m_delegate->Create_Num_Msg_List(QStringLiteral("3"), QStringLiteral("own"));
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), QStringLiteral("first"));
    EXPECT_EQ(m_delegate->Recipients().At(0).Number, QStringLiteral("1"));
}

TEST_F(Recipient_Window, A_Number_Of_Blanks_Adds_Nothing_At_All)
{
    m_delegate->Create_Num_Msg_List(QStringLiteral(" \n "), QStringLiteral("text"));
    EXPECT_EQ(m_delegate->Recipients().Count(), 0);
}

TEST_F(Recipient_Window, Reaching_Exactly_Ten_Redraws_The_Table_From_The_Count)
{
    auto* rows = The<QTableView>("idTableView").model();
    for (int i = 1; i <= 9; ++i)
        m_delegate->Create_Num_Msg_List(QString::number(i), QString());
    EXPECT_EQ(rows->rowCount(), 0);
    m_delegate->Create_Num_Msg_List(QStringLiteral("10"), QString());
    EXPECT_EQ(rows->rowCount(), 10);
    m_delegate->Create_Num_Msg_List(QStringLiteral("11"), QString());
    EXPECT_EQ(rows->rowCount(), 10);
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 11"));
}

TEST_F(Recipient_Window, Clearing_A_Selection_Needs_A_List_And_A_Selection)
{
    user.Will_Press(QStringLiteral("OK"));
    Click("Clear_Sel_Btn");
    EXPECT_EQ(user.Was_Shown().constLast(), QStringLiteral("\nPhone numbers-Messages list is empty."));
    EXPECT_TRUE(Has_Focus("idTableView"));
    Add(QStringLiteral("1"));
    user.Will_Press(QStringLiteral("OK"));
    Click("Clear_Sel_Btn");
    EXPECT_EQ(user.Was_Shown().constLast(),
              QStringLiteral("\nPlease select at least one record from the phone numbers-messages list to continue."));
    EXPECT_TRUE(Has_Focus("idTableView"));
    EXPECT_EQ(m_delegate->Recipients().Count(), 1);
}

TEST_F(Recipient_Window, The_Selected_Items_Go_At_Once_And_The_First_Row_Is_Selected)
{
    for (int i = 1; i <= 5; ++i)
        Add(QString::number(i));
    Select_Rows({1, 3, 4});
    Click("Clear_Sel_Btn");
    EXPECT_THAT(Numbers(), ElementsAre(QStringLiteral("1"), QStringLiteral("3")));
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 2"));
    EXPECT_EQ(The<QTableView>("idTableView").model()->rowCount(), 2);
    EXPECT_THAT(Rows_Selected_In(The<QTableView>("idTableView")), ElementsAre(0));
    EXPECT_EQ(Shown(1, 0), QStringLiteral("3"));
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number(QStringLiteral("3")));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number(QStringLiteral("2")));
}

TEST_F(Recipient_Window, Clearing_The_Last_Item_Empties_And_Focuses_The_Number_Field)
{
    Add(QStringLiteral("1"));
    Type_Number(QStringLiteral("77"));
    Select_Rows({0});
    Click("Clear_Sel_Btn");
    EXPECT_TRUE(The<QLineEdit>("_numberEdit").text().isEmpty());
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Recipient_Window, Clearing_All_Asks_First)
{
    user.Will_Press(QStringLiteral("OK"));
    Click("Clear_All_Btn");
    EXPECT_EQ(user.Was_Shown().constLast(), QStringLiteral("\nPhone numbers-Messages list is empty."));
    Add(QStringLiteral("1"));
    Add(QStringLiteral("2"));
    user.Will_Press(QStringLiteral("No"));
    Click("Clear_All_Btn");
    EXPECT_EQ(user.Was_Shown().constLast(),
              QStringLiteral("\nThis option will clear the entire list contents. Are you sure "
                             "you want to continue clearing the entire list?"));
    EXPECT_EQ(m_delegate->Recipients().Count(), 2);
    Type_Number(QStringLiteral("7"));
    user.Will_Press(QStringLiteral("Yes"));
    Click("Clear_All_Btn");
    EXPECT_EQ(m_delegate->Recipients().Count(), 0);
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 0"));
    EXPECT_TRUE(The<QLineEdit>("_numberEdit").text().isEmpty());
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Recipient_Window, Reset_Puts_Everything_Back_Without_A_Question)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText(QString(150, u'x'));
    Add(QStringLiteral("1"));
    Type_Number(QStringLiteral("22"));
    The<QComboBox>("_Msg_TypeComboBox").setCurrentIndex(0);
    for (const char* box : {"_Delayed_Delivry_Chk", "_Exclusion_Chk", "_Save_Sent_Item_Chk", "_Save_Templates_Chk",
                            "_Skip_Duplicate_Chk", "_Unicode_SMS_Chk"})
        Tick(box);
    for (const char* box : {"_delayed_time_combo", "_delayed_msg_count_combo"}) {
        The<QComboBox>(box).setEnabled(true);
        The<QComboBox>(box).setCurrentIndex(3);
    }
    Click("Reset_Btn");
    EXPECT_TRUE(m_delegate->Previous_Composer_Message().isEmpty());
    EXPECT_TRUE(The<QLineEdit>("_numberEdit").text().isEmpty());
    EXPECT_TRUE(The<QPlainTextEdit>("_messageEdit").toPlainText().isEmpty());
    EXPECT_EQ(The<QTableView>("idTableView").model()->rowCount(), 0);
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 0"));
    EXPECT_EQ(The<QLabel>("_Msg_char_count").text(), QStringLiteral("0 Characters"));
    EXPECT_EQ(The<QComboBox>("_Msg_TypeComboBox").currentIndex(), 1);
    for (const char* box : {"_Delayed_Delivry_Chk", "_Exclusion_Chk", "_Save_Sent_Item_Chk", "_Save_Templates_Chk",
                            "_Skip_Duplicate_Chk", "_Unicode_SMS_Chk"})
        EXPECT_FALSE(The<QCheckBox>(box).isChecked()) << box;
    for (const char* box : {"_delayed_time_combo", "_delayed_msg_count_combo"}) {
        EXPECT_FALSE(The<QComboBox>(box).isEnabled()) << box;
        EXPECT_EQ(The<QComboBox>(box).currentIndex(), -1) << box;
        EXPECT_TRUE(The<QComboBox>(box).currentText().isEmpty()) << box;
    }
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Recipient_Window, Double_Click_On_Several_Selected_Rows_Asks_For_One)
{
    Add(QStringLiteral("1"));
    Add(QStringLiteral("2"));
    m_delegate->doubleClickInTable();
    EXPECT_THAT(user.Was_Shown(), IsEmpty());
    Select_Rows({0, 1});
    user.Will_Press(QStringLiteral("OK"));
    m_delegate->doubleClickInTable();
    EXPECT_THAT(user.Was_Shown(), ElementsAre(QStringLiteral("\nPlease select only one record to update.")));
}

TEST_F(Recipient_Window, A_Double_Click_On_One_Of_Several_Selected_Rows_Asks_For_One)
{
    for (const char* number : {"1", "2", "3"})
        Add(QLatin1String(number));
    Select_Rows({0, 1});
    user.Will_Press(QStringLiteral("OK"));
    Double_Click_Row(1);
    EXPECT_THAT(user.Was_Shown(), ElementsAre(QStringLiteral("\nPlease select only one record to update.")));
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(0, 1));
    Click_Row(2);
    user.When_Opens("Update_Num_SMS", [](QWidget& dialog) {
        EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("m_num_str"))->text(), QStringLiteral("3"));
        dialog.close();
    });
    Double_Click_Row(2, Qt::RightButton);
    Double_Click_Row(2);
}

TEST_F(Recipient_Window, After_A_Delete_Row_0_Alone_Is_Selected_Whatever_Keys_Are_Held)
{
    for (const Qt::KeyboardModifier key : {Qt::ControlModifier, Qt::ShiftModifier}) {
        Click("Reset_Btn");
        for (const char* number : {"1", "2", "3", "4", "5"})
            Add(QLatin1String(number));
        Click_Row(1);
        Click_Row(3, Qt::LeftButton, Qt::ControlModifier);
        EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(1, 3));
        auto& table = The<QTableView>("idTableView");
        QTest::keyPress(&table, key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control, key);
        QTest::mouseClick(&The<QPushButton>("Clear_Sel_Btn"), Qt::LeftButton, key);
        EXPECT_EQ(QGuiApplication::keyboardModifiers(), key);
        EXPECT_THAT(Numbers(), ElementsAre(QStringLiteral("1"), QStringLiteral("3"), QStringLiteral("5")));
        EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(0));
        QTest::keyRelease(&table, key == Qt::ShiftModifier ? Qt::Key_Shift : Qt::Key_Control);
    }
}

TEST_F(Recipient_Window, Blank_Messages_Are_Seen_Only_When_Nothing_Is_Written_Anywhere)
{
    EXPECT_TRUE(m_delegate->Blank_Msg_Chk());
    The<QPlainTextEdit>("_messageEdit").setPlainText(QStringLiteral("x"));
    EXPECT_FALSE(m_delegate->Blank_Msg_Chk());
    Add(QStringLiteral("1"));
    The<QPlainTextEdit>("_messageEdit").clear();
    EXPECT_FALSE(m_delegate->Blank_Msg_Chk());
    user.Will_Press(QStringLiteral("Yes"));
    Click("Clear_All_Btn");
    Add(QStringLiteral("1"));
    EXPECT_TRUE(m_delegate->Blank_Msg_Chk());
}

TEST_F(Recipient_Window, A_Row_Outside_The_List_Shows_Nothing_And_Says_Why_Inside)
{
    Add(QStringLiteral("1"));
    const auto* table = &The<QTableView>("idTableView");
    const auto* exclusion_table = &The<QTableView>("idExclusionTableView");
    EXPECT_EQ(m_delegate->tableView(table, QStringLiteral("Number"), 0), QStringLiteral("1"));
    EXPECT_TRUE(m_delegate->tableView(table, QStringLiteral("Other"), 0).isEmpty());
    EXPECT_TRUE(m_delegate->tableView(table, QStringLiteral("Number"), 1).isEmpty());
    EXPECT_TRUE(m_delegate->tableView(table, QStringLiteral("Number"), -1).isEmpty());
    EXPECT_TRUE(m_delegate->tableView(exclusion_table, QStringLiteral("Number"), 0).isEmpty());
    EXPECT_EQ(m_delegate->numberOfRowsInTableView(table), 1);
    EXPECT_EQ(m_delegate->numberOfRowsInTableView(exclusion_table), 0);
    const auto reason = [](const auto& read) {
        try {
            read();
        } catch (const Invalid_Parameter& failure) {
            return std::string(failure.what());
        }
        return std::string();
    };
    EXPECT_EQ(reason([&] { Recipient_Cell(m_delegate->Recipients(), QStringLiteral("Number"), 1); }),
              "Invalid parameter not satisfying: pRowIndex >= 0 && pRowIndex < [nsListDataObject count]");
    EXPECT_EQ(reason([&] { Exclusion_Cell(m_delegate->Exclusions(), QStringLiteral("Number"), -1); }),
              "Invalid parameter not satisfying: pRowIndex >= 0 && pRowIndex < [nsExclusionListDataObject count]");
}

TEST_F(Recipient_Window, The_Tables_Have_Headings_Stripes_And_Whole_Rows)
{
    auto& table = The<QTableView>("idTableView");
    EXPECT_TRUE(table.alternatingRowColors());
    EXPECT_EQ(table.selectionMode(), QAbstractItemView::ExtendedSelection);
    EXPECT_EQ(table.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(table.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(table.model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Number"));
    EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Message"));
}

TEST_F(Recipient_Window, A_Redraw_Keeps_The_Selection)
{
    for (int i = 1; i <= 4; ++i)
        Add(QString::number(i));
    Select_Rows({1, 2});
    Add(QStringLiteral("5"));
    EXPECT_THAT(Rows_Selected_In(The<QTableView>("idTableView")), ElementsAre(1, 2));
}

TEST_F(Recipient_Window, A_Link_Is_Blue_Underlined_And_Leads_Somewhere)
{
    QLabel field;
    setHyperlinkWithTextField(field);
    EXPECT_TRUE(field.text().contains(
        QStringLiteral("No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard.")));
    EXPECT_TRUE(field.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(field.textInteractionFlags() & Qt::LinksAccessibleByMouse);
    EXPECT_EQ(field.cursor().shape(), Qt::OpenHandCursor);
    const QString link = hyperlinkFromString(QStringLiteral("<b>"), QStringLiteral("x:\"y\""));
    EXPECT_EQ(link,
              QStringLiteral("<a href=\"x:&quot;y&quot;\"><span style=\"color:#0000ff; text-decoration:underline;\">"
                             "&lt;b&gt;</span></a>"));
}

TEST_F(Recipient_Window, A_Million_Recipients_Are_Shown_On_Demand_And_Half_Of_Them_Cleared_At_Once)
{
    constexpr int Many = 1'000'000;
    const QString message = QStringLiteral("the same for all");
    for (int i = 0; i < Many; ++i)
        m_delegate->Create_Num_Msg_List(QString::number(i), message);
    m_delegate->Redisplay_Recipients();
    EXPECT_EQ(Count_Label(), QStringLiteral("Total Numbers : 1000000"));
    auto& table = The<QTableView>("idTableView");
    table.scrollToBottom();
    QCoreApplication::processEvents();
    EXPECT_EQ(Shown(Many - 1, 0), QStringLiteral("999999"));
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number(QStringLiteral("123456")));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number(QStringLiteral("1000000")));

    table.selectionModel()->select(QItemSelection(table.model()->index(0, 0), table.model()->index(Many / 2 - 1, 1)),
                                   QItemSelectionModel::ClearAndSelect);
    Click("Clear_Sel_Btn");
    EXPECT_EQ(m_delegate->Recipients().Count(), Many / 2);
    EXPECT_EQ(Shown(0, 0), QStringLiteral("500000"));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number(QStringLiteral("123456")));
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number(QStringLiteral("999999")));
    EXPECT_THAT(Rows_Selected_In(table), ElementsAre(0));
}
