#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "gui/Sending_Program.h"

#include "windows/main/Send_Modeless.h"

// A phone whose cable is pulled, at every step of a job and of a visit to the wizard. Each command line heard is a
// step; whatever the phone answered to it is lost with the line.

class Vanishing : public Sending_Program
{
protected:
    /// The path of the phone leads nowhere once it has hung up: its number is kept from other phones.
    void Keep_The_Number()
    {
        m_held = std::make_unique<Held_Line>(phone->Path());
        m_lines_held = 1;
    }
    void Let_The_Number_Go()
    {
        m_held.reset();
        m_lines_held = 0;
    }

    /// Sends the list; the cable is pulled when it is time.
    std::string Send_Until(std::function<bool()> is_time)
    {
        Keep_The_Number();
        Select_The_Phone();
        Fill_The_List();
        const Cable_Puller puller(*phone, std::move(is_time));
        return Send();
    }

    std::vector<std::string> First_Of_Everything(std::size_t count) const
    {
        auto messages = Everything({});
        messages.resize(count);
        return messages;
    }

    void Expect_That_It_Works_When_Plugged_In_Again()
    {
        Let_The_Number_Go();
        Plug_In_Again();
        Expect_That_Sending_Works();
    }

private:
    std::unique_ptr<Held_Line> m_held;
};

// ---- At every command of a job

namespace {

struct Command
{
    const char* name;
    std::size_t number; // of the command line, or of the part, at which the cable is pulled
    const char* box;
    std::size_t arrived; // whole messages
};

const Command Commands_Of_A_Job[] = {
    {"When_Its_Connection_Is_Checked", 1, Box::No_Modem, 0},
    {"Before_It_Is_Asked_For_Its_Modes", 2, Box::No_Modem, 0},
    {"When_It_Is_Asked_For_Its_Modes", 3, Box::No_Modem, 0},
    {"Before_It_Is_Prepared", 4, Box::Connection_Error, 0},
    {"While_It_Is_Prepared", 5, Box::Connection_Error, 0},
    {"When_Its_Mode_Is_Set", 6, Box::Connection_Error, 0},
    {"When_The_First_Message_Is_Announced", 7, Box::Connection_Error, 0},
    {"When_The_Second_Message_Is_Announced", 8, Box::Connection_Error, 1},
    {"When_The_Long_Message_Is_Announced", 9, Box::Connection_Error, 2},
    {"When_Its_Last_Part_Is_Announced", 10, Box::Connection_Error, 2},
};

} // namespace

class Vanishing_At_A_Command : public Vanishing
{
public:
    using Fixture = Sending_Program;

    explicit Vanishing_At_A_Command(const Command& command) : m_command(command) {}
    void TestBody() override;

private:
    const Command& m_command;
};

void Vanishing_At_A_Command::TestBody()
{
    const auto box = Send_Until([this] { return phone->Heard().size() >= m_command.number; });
    EXPECT_EQ(box, m_command.box);
    EXPECT_TRUE(phone->Is_Hung_Up());
    EXPECT_EQ(phone->Heard().size(), m_command.number);
    EXPECT_EQ(Inbox(), First_Of_Everything(m_command.arrived));
    EXPECT_EQ(Send(), Box::Does_Not_Open) << "as long as it is gone";
    Expect_That_It_Works_When_Plugged_In_Again();
}

static const bool Commands_Registered =
    Register_Each<Vanishing_At_A_Command>("Vanishing_In_A_Job", "Ends_It_", Commands_Of_A_Job);

// ---- After every part received

namespace {

const Command Parts_Of_A_Job[] = {
    {"After_The_First_Message", 1, Box::Connection_Error, 1},
    {"After_The_Second_Message", 2, Box::Connection_Error, 2},
    {"Between_The_Parts_Of_The_Long_Message", 3, Box::Connection_Error, 2},
    {"After_Everything", 4, Box::Completed, 3},
};

} // namespace

class Vanishing_After_A_Part : public Vanishing
{
public:
    using Fixture = Sending_Program;

    explicit Vanishing_After_A_Part(const Command& part) : m_part(part) {}
    void TestBody() override;

private:
    const Command& m_part;
};

void Vanishing_After_A_Part::TestBody()
{
    const auto box = Send_Until([this] { return phone->Parts().size() >= m_part.number; });
    EXPECT_EQ(box, m_part.box);
    EXPECT_TRUE(phone->Is_Hung_Up());
    EXPECT_EQ(phone->Parts().size(), m_part.number);
    EXPECT_EQ(Inbox(), First_Of_Everything(m_part.arrived));
    Expect_That_It_Works_When_Plugged_In_Again();
}

static const bool Parts_Registered =
    Register_Each<Vanishing_After_A_Part>("Vanishing_In_A_Job", "Ends_It_", Parts_Of_A_Job);

// ---- Around the commands

TEST_F(Vanishing, Before_Send_Is_Pressed_The_Device_Does_Not_Open)
{
    Keep_The_Number();
    Select_The_Phone();
    Fill_The_List();
    phone->Hang_Up();
    EXPECT_EQ(Send(), Box::Does_Not_Open);
    Expect_That_It_Works_When_Plugged_In_Again();
}

// Pulls the cable at the moment at which a window shows.
class Pulls_When_Shown : public QObject
{
public:
    explicit Pulls_When_Shown(Virtual_Phone& phone) : m_phone(phone) {}
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Show)
            m_phone.Hang_Up();
        return false;
    }

private:
    Virtual_Phone& m_phone;
};

TEST_F(Vanishing, Between_The_Test_Of_The_Device_And_The_First_Command_It_Is_No_Modem)
{
    Keep_The_Number();
    Select_The_Phone();
    Fill_The_List();
    Pulls_When_Shown puller(*phone);
    Send_Modeless::defaultInstance()->installEventFilter(&puller);
    EXPECT_EQ(Send(), Box::No_Modem);
    Send_Modeless::defaultInstance()->removeEventFilter(&puller);
    EXPECT_TRUE(phone->Is_Hung_Up());
    Expect_That_It_Works_When_Plugged_In_Again();
}

TEST_F(Vanishing, With_The_Box_Still_Open_The_Job_Ends_As_Ever)
{
    Keep_The_Number();
    Select_The_Phone();
    Fill_The_List();
    user.Will_Handle([this](QMessageBox& box) {
        EXPECT_EQ(box.text(), QLatin1String(Box::Completed));
        EXPECT_EQ(sms_thread_var, 1);
        EXPECT_NE(m_delegate->Session().port(), nullptr) << "the port is closed after the box";
        phone->Hang_Up();
        box.accept();
    });
    Press_Send();
    EXPECT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }));
    Expect_That_All_Is_Quiet();
    EXPECT_EQ(Inbox(), Everything({}));
    Expect_That_It_Works_When_Plugged_In_Again();
}

// ---- At every command of a visit to the wizard

namespace {

struct Visit
{
    const char* name;
    std::size_t number;     // of the command line at which the cable is pulled
    const char* probe_box;  // none: the click shows no box
    std::size_t told;       // details that were told until then
    const char* select_box; // none: the phone is taken
};

constexpr std::size_t All_Details = 9;

const Visit Commands_Of_A_Visit[] = {
    {"At_The_First_Question", 1, Box::Not_Working, 0, Box::Could_Not_Open},
    {"Before_The_Details", 2, nullptr, 0, Box::Could_Not_Open},
    {"At_The_Manufacturer", 3, nullptr, 0, Box::Could_Not_Open},
    {"At_The_Model", 4, nullptr, 1, Box::Could_Not_Open},
    {"At_The_IMEI", 5, nullptr, 2, Box::Could_Not_Open},
    {"At_The_IMSI", 6, nullptr, 3, Box::Could_Not_Open},
    {"At_The_Battery", 7, nullptr, 4, Box::Could_Not_Open},
    {"At_The_Signal", 8, nullptr, 5, Box::Could_Not_Open},
    {"At_The_Operator", 9, nullptr, 6, Box::Could_Not_Open},
    {"At_The_Revision", 10, nullptr, 7, Box::Could_Not_Open},
    {"At_The_Service_Centre", 11, nullptr, 8, Box::Could_Not_Open},
    {"At_The_First_Question_Of_Select", 12, nullptr, All_Details, Box::Not_Working},
    {"Before_The_Question_For_The_Service", 13, nullptr, All_Details, Box::No_Sending},
    {"At_The_Question_For_The_Service", 14, nullptr, All_Details, Box::No_Sending},
    {"At_The_Question_For_Sending", 15, nullptr, All_Details, Box::No_Sending},
    {"Before_The_Link_Is_Kept_Open", 16, nullptr, All_Details, nullptr},
    {"When_The_Link_Is_Kept_Open", 17, nullptr, All_Details, nullptr},
};

} // namespace

class Vanishing_In_The_Wizard : public Vanishing
{
public:
    using Fixture = Sending_Program;

    explicit Vanishing_In_The_Wizard(const Visit& visit) : m_visit(visit) {}
    void TestBody() override;

private:
    std::vector<std::string> Details_Told() const;
    void Probe_And_Select();

    const Visit& m_visit;
};

std::vector<std::string> Vanishing_In_The_Wizard::Details_Told() const
{
    auto details = Usual_Details();
    std::fill(details.begin() + std::ptrdiff_t(m_visit.told), details.end(), std::string());
    constexpr std::size_t battery = 4; // the one that has a text for it when its question is not answered
    if (m_visit.told == battery)
        details.at(battery) = "Device does not have a battery connected.";
    return details;
}

void Vanishing_In_The_Wizard::Probe_And_Select()
{
    std::vector<std::string> boxes;
    for (const char* box : {m_visit.probe_box, m_visit.select_box}) {
        if (!box)
            continue;
        boxes.emplace_back(box);
        user.Will_Press(QStringLiteral("OK"));
    }
    Click_The_Phone();
    EXPECT_EQ(Details(), Details_Told());
    Click_In_Wizard("_Select_Btn");
    EXPECT_EQ(Boxes_Shown(), boxes);
    EXPECT_EQ(Wizard_Is_Open(), m_visit.select_box != nullptr);
}

void Vanishing_In_The_Wizard::TestBody()
{
    const std::string path = phone->Path();
    Keep_The_Number();
    {
        const Cable_Puller puller(*phone, [this] { return phone->Heard().size() >= m_visit.number; });
        Visit_Wizard([this] { Probe_And_Select(); });
    }
    EXPECT_TRUE(phone->Is_Hung_Up());
    EXPECT_EQ(sel_port_bsd_str.toStdString(), m_visit.select_box ? "" : path);
    if (!m_visit.select_box) {
        Fill_The_List({}, 1);
        EXPECT_EQ(Send(), Box::Does_Not_Open);
    }
    Expect_That_It_Works_When_Plugged_In_Again();
}

static const bool Visits_Registered =
    Register_Each<Vanishing_In_The_Wizard>("Vanishing_In_The_Wizard", "Is_Noticed_", Commands_Of_A_Visit);

TEST_F(Vanishing, Between_The_Search_And_The_Click_The_Device_Does_Not_Open)
{
    Keep_The_Number();
    Visit_Wizard([this] {
        phone->Hang_Up();
        user.Will_Press(QStringLiteral("OK"));
        Click_The_Phone();
        EXPECT_EQ(Boxes_Shown().back(), Box::Could_Not_Open);
        user.Will_Press(QStringLiteral("OK"));
        Click_In_Wizard("_Select_Btn");
        EXPECT_EQ(Boxes_Shown().back(), Box::Could_Not_Open);
    });
    Let_The_Number_Go();
    Plug_In_Again();
    Expect_That_The_Wizard_Takes_The_Phone();
}
