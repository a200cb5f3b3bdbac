#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "toolkit/Main_Window.h"
#include "windows/main/Send_Checks.h"

#include "pdu/Text_Printing.h"
#include "platform/Waiting.h"
#include "support/User.h"
#include "support/Window_For_Tests.h"
#include "toolkit/Shared_Instance.h"

#include <QPushButton>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <stdexcept>

namespace {

using Field = Main_Window::Field;
using testing::ElementsAre;
using testing::IsEmpty;

const QString No_Device = QStringLiteral(
    "\nEither Mobile Device is not connected properly or No Mobile Phone Device is selected.\n\nPlease use "
    "Mobile Phone Connection Wizard for finding device or establishing connection.");
const QString No_Values = QStringLiteral("\nNo values have been selected in 'Delayed Delivery Options'.");
const QString Blank_Question = QStringLiteral(
    "\nYou have composed no text message yet for any of the contacts in the entire list. This action will send "
    "blank message to all the contacts in list.\n\nAre you sure you want to continue?");

class Send_Checks_Test : public testing::Test
{
protected:
    Send_Checks_Test()
    {
        sel_port_bsd_str = QStringLiteral("/dev/ttyUSB0");
        Cus_SMS_Num_STR = QStringLiteral("+15551112222");
        Message_IS = QStringLiteral("from before");
        m_window.m_recipients.Append(QStringLiteral("123"), QStringLiteral("Hello"));
        m_window.m_choices.composer_text = QStringLiteral("composed");
        m_window.m_previous_message = m_window.m_choices.composer_text; // nothing new to offer
    }
    ~Send_Checks_Test() override
    {
        sel_port_bsd_str.clear();
        Cus_SMS_Num_STR.clear();
        Message_IS.clear();
        End_Shared_Instances();
    }

    void Will_Answer_The_Offer(const char* button)
    {
        m_user.When_Opens("Send_Msg_Info", [button](QWidget& dialog) {
            QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
        });
    }

    User m_user;
    Window_For_Tests m_window;
};

TEST_F(Send_Checks_Test, An_Order_Holds_Everything_The_Job_Works_From)
{
    m_window.m_choices.flash = true;
    const auto order = Take_Send_Order(m_window);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->device_path, QStringLiteral("/dev/ttyUSB0"));
    EXPECT_EQ(order->service_centre, QStringLiteral("+15551112222"));
    EXPECT_EQ(order->recipients.Count(), 1);
    EXPECT_TRUE(order->choices.flash);
    EXPECT_EQ(Message_IS, QStringLiteral("composed"));
    EXPECT_EQ(m_window.m_previous_message, QStringLiteral("composed"));
    EXPECT_THAT(m_window.m_focused, IsEmpty());
}

TEST_F(Send_Checks_Test, Without_A_Device_Nothing_Is_Sent)
{
    sel_port_bsd_str.clear();
    m_window.m_choices.number_text = QStringLiteral("1"); // the device is looked at first
    m_user.Will_Press("OK");
    EXPECT_FALSE(Take_Send_Order(m_window));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{No_Device});
    EXPECT_THAT(m_window.m_focused, IsEmpty());
    EXPECT_EQ(Message_IS, QStringLiteral("from before"));
}

TEST_F(Send_Checks_Test, A_Number_Left_In_The_Number_Field_Is_To_Be_Inserted_First)
{
    m_window.m_choices.number_text = QStringLiteral(" 12 ");
    m_window.m_recipients.Clear(); // the number field is looked at first
    m_user.Will_Press("OK");
    EXPECT_FALSE(Take_Send_Order(m_window));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nPlease insert entered number to the list.")});
    EXPECT_THAT(m_window.m_focused, ElementsAre(Field::Number));
    EXPECT_EQ(Message_IS, QStringLiteral("from before"));
}

TEST_F(Send_Checks_Test, Blanks_In_The_Number_Field_Are_No_Number)
{
    m_window.m_choices.number_text = QStringLiteral("  \t\n");
    EXPECT_TRUE(Take_Send_Order(m_window));
}

TEST_F(Send_Checks_Test, An_Empty_List_Is_Not_Sent)
{
    m_window.m_recipients.Clear();
    m_user.Will_Press("OK");
    EXPECT_FALSE(Take_Send_Order(m_window));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{QStringLiteral("\nPhone numbers-Messages list is empty.")});
    EXPECT_THAT(m_window.m_focused, ElementsAre(Field::Number));
    EXPECT_EQ(Message_IS, QStringLiteral("from before"));
}

TEST_F(Send_Checks_Test, Delayed_Delivery_Needs_A_Batch_Size_And_A_Pause)
{
    struct Row
    {
        const char* batch_size;
        const char* pause;
        std::vector<Field> focused;
    };
    const Row rows[] = {{"", "", {Field::Batch_Size}},
                        {"  ", " 2  Minutes", {Field::Batch_Size}},
                        {"15", "", {Field::Pause_Choice}},
                        {"15", " \n ", {Field::Pause_Choice}},
                        {"15", " 2  Minutes", {}}};
    m_window.m_choices.delayed_delivery = true;
    QStringList shown;
    for (const auto& row : rows) {
        m_window.m_focused.clear();
        m_window.m_choices.batch_size = QLatin1String(row.batch_size);
        m_window.m_choices.pause_choice = QLatin1String(row.pause);
        if (!row.focused.empty()) {
            m_user.Will_Press("OK");
            shown.append(No_Values);
        }
        EXPECT_EQ(Take_Send_Order(m_window).has_value(), row.focused.empty());
        EXPECT_EQ(m_window.m_focused, row.focused);
        EXPECT_EQ(m_user.Was_Shown(), shown);
    }
}

TEST_F(Send_Checks_Test, Without_Delayed_Delivery_Its_Boxes_Do_Not_Matter)
{
    EXPECT_TRUE(Take_Send_Order(m_window));
}

TEST_F(Send_Checks_Test, Blank_Messages_Are_Sent_Only_When_They_Are_Meant)
{
    m_window.m_recipients.Clear();
    m_window.m_recipients.Append(QStringLiteral("123"), QString());
    m_window.m_choices.composer_text.clear();
    m_window.m_previous_message = QStringLiteral("remembered");
    m_user.Will_Press("No");
    EXPECT_FALSE(Take_Send_Order(m_window));
    EXPECT_EQ(m_window.m_previous_message, QStringLiteral("remembered"));
    EXPECT_EQ(Message_IS, QString());
    m_user.Will_Press("Yes");
    Will_Answer_The_Offer("ContinuePressed"); // the composer's text has changed, to none
    EXPECT_TRUE(Take_Send_Order(m_window));
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Blank_Question, Blank_Question}));
    EXPECT_EQ(m_window.m_previous_message, QString());
}

TEST_F(Send_Checks_Test, A_Composer_Text_That_Changed_Is_Offered_Once)
{
    m_window.m_choices.composer_text = QStringLiteral("changed");
    Will_Answer_The_Offer("CancelPressed");
    EXPECT_FALSE(Take_Send_Order(m_window));
    EXPECT_EQ(m_window.m_previous_message, QStringLiteral("changed"));
    EXPECT_TRUE(Take_Send_Order(m_window));
}

TEST_F(Send_Checks_Test, An_Order_Holds_The_List_As_The_Offer_Left_It)
{
    m_window.m_choices.composer_text = QStringLiteral("changed");
    Will_Answer_The_Offer("OKPressed");
    const auto order = Take_Send_Order(m_window);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->recipients.At(0).Message, QStringLiteral("changed"));
}

TEST_F(Send_Checks_Test, An_Order_Holds_The_List_As_It_Is_When_The_Offer_Is_Declined)
{
    m_window.m_choices.composer_text = QStringLiteral("changed");
    Will_Answer_The_Offer("ContinuePressed");
    const auto order = Take_Send_Order(m_window);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->recipients.At(0).Message, QStringLiteral("Hello"));
}

TEST_F(Send_Checks_Test, An_Offer_That_Can_Not_Be_Made_Does_Not_Hold_The_Job_Up)
{
    class Window_Without_A_Place : public Window_For_Tests
    {
    public:
        QWidget* Window() override { throw std::runtime_error("there is no place for a dialog"); }
    };
    Window_Without_A_Place window;
    window.m_recipients = m_window.m_recipients;
    window.m_choices = m_window.m_choices;
    window.m_choices.composer_text = QStringLiteral("changed");
    const auto order = Take_Send_Order(window);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->recipients.At(0).Message, QStringLiteral("Hello"));
    EXPECT_EQ(window.m_previous_message, QStringLiteral("changed"));
    EXPECT_THAT(m_user.Was_Shown(), IsEmpty());
}

TEST_F(Send_Checks_Test, One_Message_In_The_List_Or_The_Composer_Is_Enough)
{
    m_window.m_choices.composer_text.clear();
    m_window.m_previous_message.clear();
    EXPECT_TRUE(Take_Send_Order(m_window));
    m_window.m_recipients.Clear();
    m_window.m_recipients.Append(QStringLiteral("123"), QString());
    m_window.m_choices.composer_text = QStringLiteral("composed");
    m_window.m_previous_message = m_window.m_choices.composer_text;
    EXPECT_TRUE(Take_Send_Order(m_window));
}

TEST_F(Send_Checks_Test, Once_The_Program_Is_Exiting_Every_Question_Is_Answered_No)
{
    m_window.m_recipients.Clear();
    m_window.m_recipients.Append(QStringLiteral("123"), QString());
    m_window.m_choices.composer_text.clear();
    Begin_Program_Exit();
    EXPECT_FALSE(Take_Send_Order(m_window));
    Forget_Program_Exit();
}

} // namespace
