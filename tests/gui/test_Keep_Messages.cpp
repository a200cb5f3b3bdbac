#include "gui/Sending_Program.h"

// The window of the sent items, opened by the main window's button, switches on that messages are kept.
class Keep_Messages : public Sending_Program
{
protected:
    Keep_Messages() { Write_Bytes(Sent_Item_Path, {}); }
    ~Keep_Messages() override { Write_Bytes(Sent_Item_Path, {}); }

    QCheckBox& Keep_Box() { return The<QCheckBox>("_Save_Sent_Item_Chk"); }
    /// Opens the window by the button, does something once it is filled, and closes it.
    void Visit(const std::function<void(QWidget&)>& steps)
    {
        When_Filled(user, "Sent_Items", [steps](QWidget& window) {
            steps(window);
            Click_In(window, "Cancel_Btn");
            EXPECT_FALSE(window.isVisible());
        });
        Click("Sent_Item_Btn");
    }
    static QPushButton& Step_In(const QWidget& window) { return In<QPushButton>(window, "First_Step_Here"); }
};

TEST_F(Keep_Messages, The_Offer_In_The_Empty_Window_Ticks_The_Box_And_The_Next_Job_Is_Kept)
{
    if (Keep_Box().isChecked())
        Keep_Box().click();
    for (int time = 0; time < 2; ++time) { // the second opening must not have a second say
        Visit([this](QWidget& window) {
            ASSERT_TRUE(Step_In(window).isVisible());
            EXPECT_EQ(Step_In(window).text(), "Keep messages from now on");
            QTest::mouseClick(&Step_In(window), Qt::LeftButton);
            EXPECT_TRUE(Keep_Box().isChecked());
            EXPECT_FALSE(Step_In(window).isVisible());
        });
        EXPECT_TRUE(Keep_Box().isChecked());
        if (time == 0)
            Keep_Box().click();
    }
    Select_The_Phone();
    Fill_The_List({}, 2);
    if (!Keep_Box().isChecked()) // which Reset has taken back
        Visit([](QWidget& window) { QTest::mouseClick(&Step_In(window), Qt::LeftButton); });
    EXPECT_EQ(Send(), Box::Completed);
    Visit([this](QWidget& window) {
        EXPECT_EQ(Rows_Of(In<QTableView>(window, "idSendList")), Numbers());
        EXPECT_FALSE(Step_In(window).isVisible());
    });
}

TEST_F(Keep_Messages, Where_They_Are_Kept_Nothing_Is_Offered)
{
    if (!Keep_Box().isChecked())
        Keep_Box().click();
    Visit([](QWidget& window) { EXPECT_FALSE(Step_In(window).isVisible()); });
    EXPECT_TRUE(Keep_Box().isChecked());
}
