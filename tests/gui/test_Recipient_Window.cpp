#include "gui/Open_Program.h"
#include "toolkit/List_Tables.h"
#include "windows/main/Hyperlink.h"
#include "windows/main/List_Cells.h"

using testing::ElementsAre;
using testing::IsEmpty;

class Recipient_Window : public Open_Program
{
protected:
    void Add_Up_To(int last)
    {
        for (int number = 1; number <= last; ++number)
            Add(QString::number(number));
    }

    void Click_Row(int row, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(The<QTableView>("idTableView").viewport(), button, {}, Middle_Of(row));
    }
    void Double_Click_Row(int row, Qt::MouseButton button = Qt::LeftButton)
    {
        Click_Row(row, button);
        QTest::mouseDClick(The<QTableView>("idTableView").viewport(), button, {}, Middle_Of(row));
    }
    QPoint Middle_Of(int row) { return ::Middle_Of(The<QTableView>("idTableView"), row); }

    /// Adds a number that is refused with a box.
    void Expect_Refused(const QString& number, const char* box)
    {
        The<QLineEdit>("_numberEdit").setText(number);
        user.Will_Press("OK");
        Click("Add_Number");
        EXPECT_EQ(user.Was_Shown().constLast(), box) << number.toStdString();
        EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), number);
        EXPECT_TRUE(Has_Focus("_numberEdit"));
    }

    /// Presses a button that asks or refuses.
    void Expect_Box(const char* button, const char* answer, const char* box)
    {
        user.Will_Press(answer);
        Click(button);
        EXPECT_EQ(user.Was_Shown().constLast(), box);
    }

    static constexpr const char* Options[] = {"_Delayed_Delivry_Chk", "_Exclusion_Chk",      "_Save_Sent_Item_Chk",
                                              "_Save_Templates_Chk",  "_Skip_Duplicate_Chk", "_Unicode_SMS_Chk"};
    static constexpr const char* Delays[] = {"_delayed_time_combo", "_delayed_msg_count_combo"};
    static constexpr char Empty_List[] = "\nPhone numbers-Messages list is empty.";
};

TEST_F(Recipient_Window, A_Plus_Becomes_Two_Zeros_And_Dashes_Are_Left_Out_And_The_Field_Keeps_Twenty_Characters)
{
    Add("+447700-900123");
    EXPECT_THAT(Numbers(), ElementsAre("00447700900123"));
    EXPECT_EQ(Shown(0, 0), "00447700900123");
    EXPECT_EQ(Count_Label(), "Total Numbers : 1");
    auto& field = The<QLineEdit>("_numberEdit");
    EXPECT_EQ(field.text(), "");
    EXPECT_TRUE(Has_Focus("_numberEdit"));
    QApplication::clipboard()->setText("1234567890123456789012345");
    QTest::keyClick(&field, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(field.text(), "12345678901234567890");
}

TEST_F(Recipient_Window, What_Is_No_Number_Is_Refused_And_Stays_In_The_Field)
{
    for (const char* number : {"+44 7700 900123", "44+1", "", "12,34", "+1234567890123456789"})
        Expect_Refused(number, "\nPlease enter a valid phone number.");
    EXPECT_THAT(Numbers(), IsEmpty());
}

TEST_F(Recipient_Window, Duplicates_And_Then_Excluded_Numbers_Are_Refused_Only_While_They_Are_Looked_For)
{
    Add("123");
    Add("123");
    EXPECT_THAT(Numbers(), ElementsAre("123", "123"));
    for (const char* excluded : {"123", " 555 ", "  "})
        m_delegate->Create_Exclusion_List(excluded);
    Tick("_Skip_Duplicate_Chk");
    Tick("_Exclusion_Chk");
    Expect_Refused("123", "\nEntered number already exists.");
    Expect_Refused("555", "\nEntered number is in exclusion list.");
    The<QCheckBox>("_Exclusion_Chk").setChecked(false);
    Add("555");
    EXPECT_THAT(Numbers(), ElementsAre("123", "123", "555"));
}

TEST_F(Recipient_Window, A_Number_From_A_File_Is_Judged_By_The_Same_Rules_Without_A_Word)
{
    EXPECT_EQ(m_delegate->Num_Able_To_insert(" +44-1\r"), "00441");
    EXPECT_EQ(m_delegate->Num_Able_To_insert("44+1"), "");
    Add("00441");
    m_delegate->Create_Exclusion_List("9");
    EXPECT_EQ(m_delegate->Num_Able_To_insert("00441"), "00441");
    Tick("_Skip_Duplicate_Chk");
    Tick("_Exclusion_Chk");
    EXPECT_EQ(m_delegate->Num_Able_To_insert("+441"), "");
    EXPECT_EQ(m_delegate->Num_Able_To_insert("9"), "");
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number("00441"));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number("+441"));
    EXPECT_TRUE(m_delegate->Check_Exclusion_Number("9"));
    EXPECT_FALSE(m_delegate->Check_Exclusion_Number("09"));
}

TEST_F(Recipient_Window, An_Item_Carries_The_Composer_Text_Of_Its_Moment_Unchanged)
{
    Add("1");
    auto& composer = The<QPlainTextEdit>("_messageEdit");
    QTest::keyClicks(&composer, "  two lines ");
    QTest::keyClick(&composer, Qt::Key_Return);
    QTest::keyClicks(&composer, "%1 %2");
    Add("2");
    EXPECT_EQ(m_delegate->Recipients().At(0).Message, "");
    EXPECT_EQ(m_delegate->Recipients().At(1).Message, "  two lines \n%1 %2");
}

TEST_F(Recipient_Window, The_First_Composer_Text_Taken_Is_The_Remembered_One)
{
    m_delegate->Create_Num_Msg_List(" \n ", "own"); // blanks are no number
    m_delegate->Create_Num_Msg_List(" 1 ", "own");
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "");
    The<QPlainTextEdit>("_messageEdit").setPlainText("first");
    m_delegate->Create_Num_Msg_List("2", "own");
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "first");
    The<QPlainTextEdit>("_messageEdit").setPlainText("second");
    m_delegate->Create_Num_Msg_List("3", "own");
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "first");
    EXPECT_THAT(Numbers(), ElementsAre("1", "2", "3"));
}

TEST_F(Recipient_Window, Reaching_Exactly_Ten_Redraws_The_Table_From_The_Count)
{
    const auto* rows = The<QTableView>("idTableView").model();
    for (int number = 1; number <= 11; ++number) {
        EXPECT_EQ(rows->rowCount(), number <= 10 ? 0 : 10) << number;
        m_delegate->Create_Num_Msg_List(QString::number(number), QString());
    }
    EXPECT_EQ(rows->rowCount(), 10);
    EXPECT_EQ(Count_Label(), "Total Numbers : 11");
}

TEST_F(Recipient_Window, Clearing_A_Selection_Needs_A_List_And_A_Selection)
{
    Expect_Box("Clear_Sel_Btn", "OK", Empty_List);
    EXPECT_TRUE(Has_Focus("idTableView"));
    Add("1");
    Expect_Box("Clear_Sel_Btn", "OK",
               "\nPlease select at least one record from the phone numbers-messages list to continue.");
    EXPECT_TRUE(Has_Focus("idTableView"));
    EXPECT_EQ(m_delegate->Recipients().Count(), 1);
}

TEST_F(Recipient_Window, The_Selected_Items_Go_At_Once_And_The_First_Row_Is_Selected)
{
    Add_Up_To(5);
    Select_Rows({1, 3, 4});
    Click("Clear_Sel_Btn");
    EXPECT_THAT(Numbers(), ElementsAre("1", "3"));
    EXPECT_EQ(Count_Label(), "Total Numbers : 2");
    EXPECT_EQ(The<QTableView>("idTableView").model()->rowCount(), 2);
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(0));
    EXPECT_EQ(Shown(1, 0), "3");
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number("3"));
    EXPECT_FALSE(m_delegate->Check_Duplicate_Number("2"));
    Type_Number("77");
    Select_Rows({0, 1});
    Click("Clear_Sel_Btn");
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "");
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Recipient_Window, Clearing_All_Asks_First)
{
    const char* question = "\nThis option will clear the entire list contents. Are you sure you want to continue "
                           "clearing the entire list?";
    Expect_Box("Clear_All_Btn", "OK", Empty_List);
    Add_Up_To(2);
    Expect_Box("Clear_All_Btn", "No", question);
    EXPECT_EQ(m_delegate->Recipients().Count(), 2);
    Type_Number("7");
    Expect_Box("Clear_All_Btn", "Yes", question);
    EXPECT_EQ(m_delegate->Recipients().Count(), 0);
    EXPECT_EQ(Count_Label(), "Total Numbers : 0");
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "");
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Recipient_Window, Reset_Puts_Everything_Back_Without_A_Question)
{
    The<QPlainTextEdit>("_messageEdit").setPlainText(QString(150, u'x'));
    Add("1");
    Type_Number("22");
    The<QComboBox>("_Msg_TypeComboBox").setCurrentIndex(0);
    for (const char* option : Options)
        Tick(option);
    for (const char* delay : Delays) {
        The<QComboBox>(delay).setEnabled(true);
        The<QComboBox>(delay).setCurrentIndex(3);
    }
    Click("Reset_Btn");
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "");
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "");
    EXPECT_EQ(The<QPlainTextEdit>("_messageEdit").toPlainText(), "");
    EXPECT_EQ(The<QTableView>("idTableView").model()->rowCount(), 0);
    EXPECT_EQ(Count_Label(), "Total Numbers : 0");
    EXPECT_EQ(The<QLabel>("_Msg_char_count").text(), "0 Characters");
    EXPECT_EQ(The<QComboBox>("_Msg_TypeComboBox").currentIndex(), 1);
    for (const char* option : Options)
        EXPECT_FALSE(The<QCheckBox>(option).isChecked()) << option;
    for (const char* delay : Delays) {
        EXPECT_FALSE(The<QComboBox>(delay).isEnabled()) << delay;
        EXPECT_EQ(The<QComboBox>(delay).currentIndex(), -1) << delay;
        EXPECT_EQ(The<QComboBox>(delay).currentText(), "") << delay;
    }
    EXPECT_TRUE(Has_Focus("_numberEdit"));
}

TEST_F(Recipient_Window, A_Double_Click_On_One_Of_Several_Selected_Rows_Asks_For_One)
{
    Add_Up_To(3);
    m_delegate->doubleClickInTable(); // with nothing selected it does nothing
    Select_Rows({0, 1});
    user.Will_Press("OK");
    Double_Click_Row(1);
    EXPECT_THAT(user.Was_Shown(), ElementsAre("\nPlease select only one record to update."));
    EXPECT_THAT(m_delegate->Selected_Recipient_Rows(), ElementsAre(0, 1));
    Click_Row(2);
    user.When_Opens("Update_Num_SMS", [](QWidget& dialog) {
        EXPECT_EQ(In<QLineEdit>(dialog, "m_num_str").text(), "3");
        dialog.close();
    });
    Double_Click_Row(2, Qt::RightButton);
    Double_Click_Row(2);
}

TEST_F(Recipient_Window, Blank_Messages_Are_Seen_Only_When_Nothing_Is_Written_Anywhere)
{
    EXPECT_TRUE(m_delegate->Blank_Msg_Chk());
    The<QPlainTextEdit>("_messageEdit").setPlainText("x");
    EXPECT_FALSE(m_delegate->Blank_Msg_Chk());
    Add("1");
    The<QPlainTextEdit>("_messageEdit").clear();
    EXPECT_FALSE(m_delegate->Blank_Msg_Chk());
    user.Will_Press("Yes");
    Click("Clear_All_Btn");
    Add("1");
    EXPECT_TRUE(m_delegate->Blank_Msg_Chk());
}

TEST_F(Recipient_Window, A_Row_Outside_The_List_Shows_Nothing_And_Says_Why_Inside)
{
    Add("1");
    const auto* table = &The<QTableView>("idTableView");
    const auto* exclusion_table = &The<QTableView>("idExclusionTableView");
    EXPECT_EQ(m_delegate->tableView(table, "Number", 0), "1");
    EXPECT_EQ(m_delegate->tableView(table, "Other", 0), "");
    EXPECT_EQ(m_delegate->tableView(table, "Number", 1), "");
    EXPECT_EQ(m_delegate->tableView(table, "Number", -1), "");
    EXPECT_EQ(m_delegate->tableView(exclusion_table, "Number", 0), "");
    EXPECT_EQ(m_delegate->numberOfRowsInTableView(table), 1);
    EXPECT_EQ(m_delegate->numberOfRowsInTableView(exclusion_table), 0);
    const std::string reason = "Invalid parameter not satisfying: pRowIndex >= 0 && pRowIndex < [";
    EXPECT_THAT([&] { Recipient_Cell(m_delegate->Recipients(), "Number", 1); },
                testing::ThrowsMessage<Invalid_Parameter>(reason + "nsListDataObject count]"));
    EXPECT_THAT([&] { Exclusion_Cell(m_delegate->Exclusions(), "Number", -1); },
                testing::ThrowsMessage<Invalid_Parameter>(reason + "nsExclusionListDataObject count]"));
}

TEST_F(Recipient_Window, The_Table_Has_Headings_Hairlines_And_Whole_Rows_And_Stays_Selected)
{
    const auto& table = The<QTableView>("idTableView");
    EXPECT_FALSE(table.showGrid());
    EXPECT_TRUE(table.verticalHeader()->isHidden());
    EXPECT_EQ(table.selectionMode(), QAbstractItemView::ExtendedSelection);
    EXPECT_EQ(table.selectionBehavior(), QAbstractItemView::SelectRows);
    EXPECT_EQ(table.editTriggers(), QAbstractItemView::NoEditTriggers);
    EXPECT_EQ(table.model()->headerData(0, Qt::Horizontal).toString(), "Number");
    EXPECT_EQ(table.model()->headerData(1, Qt::Horizontal).toString(), "Message");
    Add_Up_To(4);
    Select_Rows({1, 2});
    Add("5");
    EXPECT_THAT(Rows_Selected_In(table), ElementsAre(1, 2));
}

TEST_F(Recipient_Window, A_Link_Is_Blue_Underlined_And_Leads_Somewhere)
{
    QLabel field;
    setHyperlinkWithTextField(field);
    EXPECT_TRUE(field.text().contains(
        "No Mobile Phone Device is selected. Click here to start Mobile Phone Connection Wizard."));
    EXPECT_TRUE(field.textInteractionFlags() & Qt::TextSelectableByMouse);
    EXPECT_TRUE(field.textInteractionFlags() & Qt::LinksAccessibleByMouse);
    EXPECT_EQ(field.cursor().shape(), Qt::OpenHandCursor);
    EXPECT_EQ(hyperlinkFromString("<b>", "x:\"y\""),
              "<a href=\"x:&quot;y&quot;\"><span style=\"color:#0000ff; text-decoration:underline;\">"
              "&lt;b&gt;</span></a>");
}
