#include "gui/Open_Program.h"
#include "support/Heartbeat.h"
#include "support/Keys.h"

using testing::ElementsAre;
using testing::IsEmpty;

// What was removed from the list comes back as it was, for a while.
class Undo : public Open_Program
{
protected:
    Undo()
    {
        Set_Pace(1); // nothing here waits for the end of an offer, but where it says so
        m_delegate->Set_Composer_Text("hello");
        for (const char* number : {"1", "2", "3"})
            m_delegate->Create_Num_Msg_List(number, QString("for ") + number);
        m_delegate->Redisplay_Recipients();
    }
    void Clear_Selected(const std::vector<int>& rows)
    {
        Select_Rows(rows);
        Click("Clear_Sel_Btn");
    }
    void Clear_All()
    {
        user.Will_Press("Yes");
        Click("Clear_All_Btn");
    }
    /// What is said; nothing while nothing is offered.
    QString Offered()
    {
        return The<QWidget>("_Undo_Strip").isVisible() ? The<QLabel>("_Undo_Words").text() : QString();
    }
    void Press_Undo_In(const char* control)
    {
        The<QWidget>(control).setFocus();
        Press_Key(Qt::Key_Z, Qt::ControlModifier);
    }
};

TEST_F(Undo, Brings_Back_What_Clear_Selected_Removed_In_Its_Place)
{
    EXPECT_EQ(Offered(), "");
    Clear_Selected({1});
    EXPECT_THAT(Numbers(), ElementsAre("1", "3"));
    EXPECT_EQ(Offered(), "1 recipient removed.");
    Click("Undo_Btn");
    EXPECT_THAT(Numbers(), ElementsAre("1", "2", "3"));
    EXPECT_EQ(m_delegate->Recipients().Message_At(1), "for 2");
    EXPECT_EQ(Count_Label(), "Total Numbers : 3");
    EXPECT_THAT(Rows_Of(The<QTableView>("idTableView")), ElementsAre("1", "2", "3"));
    EXPECT_TRUE(m_delegate->Check_Duplicate_Number("2"));
    EXPECT_EQ(Offered(), "");
    EXPECT_TRUE(Has_Focus("idTableView"));
}

TEST_F(Undo, Brings_Back_What_Clear_All_Removed_With_The_Keys_In_The_List)
{
    Clear_All();
    EXPECT_EQ(Offered(), "3 recipients removed.");
    Press_Undo_In("_numberEdit"); // there they are for what was typed
    EXPECT_THAT(Numbers(), IsEmpty());
    Press_Undo_In("idTableView");
    EXPECT_THAT(Numbers(), ElementsAre("1", "2", "3"));
    Press_Undo_In("idTableView");
    EXPECT_THAT(Numbers(), ElementsAre("1", "2", "3"));
    EXPECT_EQ(user.Was_Shown().size(), 1); // the question, and nothing more
}

TEST_F(Undo, Brings_Back_All_That_Reset_Took)
{
    for (const char* box : {"_Skip_Duplicate_Chk", "_Save_Sent_Item_Chk", "_Confirm_Chk", "_Keep_Receipt_Chk"})
        Tick(box);
    The<QCheckBox>("_Delayed_Delivry_Chk").click();
    The<QCheckBox>("_Exclusion_Chk").click();
    The<QComboBox>("_delayed_time_combo").setCurrentIndex(3);
    The<QComboBox>("_delayed_msg_count_combo").setEditText("77");
    The<QComboBox>("_Msg_TypeComboBox").setCurrentIndex(0);
    Type_Number("44");
    const Send_Choices before = m_delegate->Read_Send_Choices();
    Click("Reset_Btn");
    EXPECT_THAT(Numbers(), IsEmpty());
    EXPECT_EQ(m_delegate->Composer_Length(), 0);
    EXPECT_EQ(Offered(), "List, fields and options were reset.");
    Click("Undo_Btn");
    const Send_Choices after = m_delegate->Read_Send_Choices();
    EXPECT_THAT(Numbers(), ElementsAre("1", "2", "3"));
    EXPECT_EQ(after.number_text, "44");
    EXPECT_EQ(after.composer_text, "hello");
    EXPECT_EQ(The<QLabel>("_Msg_char_count").text(), "5 Characters");
    EXPECT_EQ(m_delegate->Previous_Composer_Message(), "hello");
    EXPECT_EQ(after.batch_size, "77");
    EXPECT_EQ(after.pause_choice, before.pause_choice);
    EXPECT_EQ(after.confirm, before.confirm);
    EXPECT_EQ(after.flash, before.flash);
    EXPECT_TRUE(after.skip_duplicates && after.save_sent_items && after.delayed_delivery && after.exclusion);
    EXPECT_FALSE(after.save_templates || after.unicode);
    EXPECT_TRUE(The<QWidget>("idExclusionTableView").isVisible());
    EXPECT_TRUE(The<QWidget>("_delayed_time_combo").isEnabled());
}

TEST_F(Undo, Leaves_What_Was_Written_Since_A_Reset)
{
    Type_Number("44");
    Click("Reset_Btn");
    Type_Number("55");
    m_delegate->Set_Composer_Text("another");
    Click("Undo_Btn");
    EXPECT_EQ(The<QLineEdit>("_numberEdit").text(), "55");
    EXPECT_EQ(m_delegate->Read_Send_Choices().composer_text, "another");
    EXPECT_THAT(Numbers(), ElementsAre("1", "2", "3"));
}

TEST_F(Undo, Is_Offered_For_The_Last_Removal_Alone_And_Until_The_List_Changes)
{
    Clear_Selected({0});
    Clear_Selected({0, 1});
    EXPECT_EQ(Offered(), "2 recipients removed.");
    Click("Undo_Btn");
    EXPECT_THAT(Numbers(), ElementsAre("2", "3"));
    const std::function<void()> changes[] = {
        [this] { Add("9"); },
        [this] { m_delegate->Replace_Recipient(0, "8", "eight"); },
        [this] { m_delegate->Replace_Recipients(m_delegate->Recipients()); },
        [this] { m_delegate->Begin_Outcomes(); },
    };
    for (const auto& change : changes) {
        Add("7");
        Clear_Selected({0});
        EXPECT_EQ(Offered(), "1 recipient removed.");
        change();
        EXPECT_EQ(Offered(), "");
        const QStringList now = Numbers();
        Press_Undo_In("idTableView");
        EXPECT_EQ(Numbers(), now);
    }
}

TEST_F(Undo, Is_Offered_For_Half_A_Minute)
{
    Set_Pace(1000); // 30 ms
    Clear_Selected({0});
    EXPECT_TRUE(Serve_Until([&] { return Offered().isEmpty(); }));
    Press_Undo_In("idTableView");
    EXPECT_THAT(Numbers(), ElementsAre("2", "3"));
}

TEST_F(Undo, Offers_Nothing_Where_Nothing_Was)
{
    user.Will_Press("No");
    Click("Clear_All_Btn");
    EXPECT_EQ(Offered(), "");
    Clear_All();
    m_delegate->Set_Composer_Text({});
    Click("Reset_Btn");
    EXPECT_EQ(Offered(), "");
}

TEST_F(Undo, Outcomes_Come_Back_With_Those_Whose_They_Are)
{
    m_delegate->Begin_Outcomes();
    m_delegate->End_Outcomes();
    const QString outcome = Shown(1, 2);
    EXPECT_FALSE(outcome.isEmpty());
    Clear_All();
    Click("Undo_Btn");
    EXPECT_EQ(Shown(1, 2), outcome);
    EXPECT_TRUE(The<QWidget>("Keep_Not_Taken").isVisible());
}

TEST_F(Undo, Brings_A_Million_Back_At_Once_And_Copies_None)
{
    constexpr int Many = 1'000'000;
    for (int i = 0; i < Many; ++i)
        m_delegate->Create_Num_Msg_List(QString::number(10'000'000'000 + i), "the same for all");
    m_delegate->Redisplay_Recipients();
    const void* message = &m_delegate->Recipients().Message_At(Many);
    Clear_All();
    EXPECT_EQ(m_delegate->Recipients().Count(), 0);
    Heartbeat heartbeat;
    Click("Undo_Btn");
    EXPECT_LT(heartbeat.Longest_Gap(), 1.0);
    EXPECT_EQ(m_delegate->Recipients().Count(), Many + 3);
    EXPECT_EQ(&m_delegate->Recipients().Message_At(Many), message); // the same list, not its like
    EXPECT_EQ(Shown(Many + 2, 0), "10000999999");
}
