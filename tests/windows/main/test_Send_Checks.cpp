#include "windows/main/Send_Checks.h"

#include "windows/main/Sending_Test.h"

namespace {

using Field = Main_Window::Field;
using testing::IsEmpty;

const QString No_Device = "\nEither Mobile Device is not connected properly or No Mobile Phone Device is selected.\n\n"
                          "Please use Mobile Phone Connection Wizard for finding device or establishing connection.";
const QString Number_Left_Over = "\nPlease insert entered number to the list.";
const QString No_Values = "\nNo values have been selected in 'Delayed Delivery Options'.";
const QString Blank_Question =
    "\nYou have composed no text message yet for any of the contacts in the entire list. This action will send "
    "blank message to all the contacts in list.\n\nAre you sure you want to continue?";

class Send_Checks_Test : public Sending_Test
{
public:
    Send_Checks_Test()
    {
        Message_IS = "from before";
        Add("123");
        Compose("composed");
        m_window.m_previous_message = "composed"; // nothing new to offer
    }

    using Sending_Test::m_window;
    using Sending_Test::Pause_After_Each;
    void Compose(const QString& text) { m_window.m_choices.composer_text = text; }
    void Leave_A_Number_And_No_Device()
    {
        m_window.m_choices.number_text = "1";
        sel_port_bsd_str.clear();
    }
    void Leave_A_Number_And_No_List()
    {
        m_window.m_choices.number_text = " 12 ";
        m_window.m_recipients.Clear();
    }
    void Leave_The_List_Blank()
    {
        m_window.m_recipients.Clear();
        Add("123", "");
    }
};

TEST_F(Send_Checks_Test, An_Order_Holds_Everything_The_Job_Works_From)
{
    Cus_SMS_Num_STR = "+15551112222";
    m_window.m_choices.flash = true;
    const auto order = Take_Send_Order(m_window);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->device_path, sel_port_bsd_str);
    EXPECT_EQ(order->service_centre, "+15551112222");
    EXPECT_EQ(order->recipients.Count(), 1);
    EXPECT_TRUE(order->choices.flash);
    EXPECT_EQ(Message_IS, "composed");
    EXPECT_EQ(m_window.m_previous_message, "composed");
    EXPECT_THAT(m_window.m_focused, IsEmpty());
}

struct Refusal
{
    const char* name;
    void (*prepare)(Send_Checks_Test& test);
    QString box;
    std::vector<Field> focused;
    const char* message; ///< the shared one, afterwards
};

class Send_Refusals : public Send_Checks_Test, public testing::WithParamInterface<Refusal>
{
};

TEST_P(Send_Refusals, Tell_What_Is_Missing_And_Put_The_Focus_There)
{
    GetParam().prepare(*this);
    m_user.Will_Press("OK");
    EXPECT_FALSE(Take_Send_Order(m_window));
    EXPECT_EQ(m_user.Was_Shown(), QStringList{GetParam().box});
    EXPECT_EQ(m_window.m_focused, GetParam().focused);
    EXPECT_EQ(Message_IS, GetParam().message);
}

using Test = Send_Checks_Test;
const std::vector<Field> Nowhere;
const std::vector<Field> Number = {Field::Number};
const std::vector<Field> Batch_Size = {Field::Batch_Size};
const std::vector<Field> Pause = {Field::Pause_Choice};
const Refusal Refusals[] = {
    // Each of the first two would fail the next check as well.
    {"Without_A_Device", [](Test& test) { test.Leave_A_Number_And_No_Device(); }, No_Device, Nowhere, "from before"},
    {"Number_Left", [](Test& test) { test.Leave_A_Number_And_No_List(); }, Number_Left_Over, Number, "from before"},
    {"Empty_List", [](Test& test) { test.m_window.m_recipients.Clear(); }, List_Is_Empty, Number, "from before"},
    {"No_Values", [](Test& test) { test.Pause_After_Each("", ""); }, No_Values, Batch_Size, "composed"},
    {"No_Size", [](Test& test) { test.Pause_After_Each("  ", " 2  Minutes"); }, No_Values, Batch_Size, "composed"},
    {"No_Pause", [](Test& test) { test.Pause_After_Each("15", ""); }, No_Values, Pause, "composed"},
    {"Blank_Pause", [](Test& test) { test.Pause_After_Each("15", " \n "); }, No_Values, Pause, "composed"},
};
INSTANTIATE_TEST_SUITE_P(Where, Send_Refusals, testing::ValuesIn(Refusals),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Send_Checks_Test, Blanks_In_The_Number_Field_And_A_Whole_Choice_Of_Delivery_Pass)
{
    m_window.m_choices.number_text = "  \t\n";
    EXPECT_TRUE(Take_Send_Order(m_window)) << "without delayed delivery its boxes do not matter";
    Pause_After_Each("15", " 2  Minutes");
    EXPECT_TRUE(Take_Send_Order(m_window));
    EXPECT_THAT(m_window.m_focused, IsEmpty());
}

TEST_F(Send_Checks_Test, Blank_Messages_Are_Sent_Only_When_They_Are_Meant)
{
    Leave_The_List_Blank();
    EXPECT_TRUE(Take_Send_Order(m_window)) << "the composer's text is enough";
    Compose("");
    m_window.m_previous_message = "remembered";
    m_user.Will_Press("No");
    EXPECT_FALSE(Take_Send_Order(m_window));
    EXPECT_EQ(m_window.m_previous_message, "remembered");
    EXPECT_EQ(Message_IS, "");
    m_user.Will_Press("Yes");
    Will_Answer_The_Offer("ContinuePressed"); // the composer's text has changed, to none
    EXPECT_TRUE(Take_Send_Order(m_window));
    EXPECT_EQ(m_user.Was_Shown(), (QStringList{Blank_Question, Blank_Question}));
    EXPECT_EQ(m_window.m_previous_message, "");
    Add("456", "one message in the list is enough");
    EXPECT_TRUE(Take_Send_Order(m_window));
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
    window.m_choices.composer_text = "changed";
    const auto order = Take_Send_Order(window);
    ASSERT_TRUE(order);
    EXPECT_EQ(order->recipients.At(0).Message, "Hello");
    EXPECT_EQ(window.m_previous_message, "changed");
    EXPECT_THAT(m_user.Was_Shown(), IsEmpty());
}

TEST_F(Send_Checks_Test, Once_The_Program_Is_Exiting_Every_Question_Is_Answered_No)
{
    Leave_The_List_Blank();
    Compose("");
    Begin_Program_Exit();
    EXPECT_FALSE(Take_Send_Order(m_window));
}

} // namespace
