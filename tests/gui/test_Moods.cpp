#include "gui/Sending_Program.h"
#include "support/Patient_Calls.h"

#include <fcntl.h>
#include <unistd.h>

using testing::ElementsAre;

// What a person sees of phones in their moods and of phones that are pulled out: a job or a visit to the wizard, and
// then one with everything in order. What the phone makes of each command is told below.

namespace {

using Mood = Phone_Moods;

// An open descriptor of a phone's line in the test's own hand. While it is held, no other phone on this computer gets
// the line's number, so that the path of a phone that has hung up leads nowhere.
class Held_Line
{
public:
    explicit Held_Line(const std::string& path)
        : m_descriptor(::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC))
    {
        EXPECT_NE(m_descriptor, -1) << path;
    }
    ~Held_Line() { ::close(m_descriptor); }
    Held_Line(const Held_Line&) = delete;

private:
    const int m_descriptor;
};

class Moods : public Sending_Program
{
protected:
    ~Moods() override { The_Patient_Calls().Look_After_Each_Write({}); }

    /// Pulls the cable once it is time; looks after each write to the phone, before its answer is read.
    void Pull_When(const std::function<bool()>& is_time)
    {
        The_Patient_Calls().Look_After_Each_Write([this, is_time] {
            if (!phone->Is_Hung_Up() && is_time())
                phone->Hang_Up();
        });
    }

    /// The path of the phone leads nowhere once it has hung up: its number is kept from other phones.
    void Keep_The_Number()
    {
        m_held = std::make_unique<Held_Line>(phone->Path());
        m_lines_held = 1;
    }

    void Expect_That_It_Works_When_Plugged_In_Again()
    {
        The_Patient_Calls().Look_After_Each_Write({});
        m_held.reset();
        m_lines_held = 0;
        Plug_In_Again();
        Expect_That_Sending_Works();
    }

    /// From the wizard, which takes a phone without a service centre only with a custom one, to the handset.
    void Send_Through_A_Custom_Centre(const Way& way)
    {
        Mood mood;
        mood.m_no_smsc = true;
        mood.m_text_only = way.m_text_mode;
        phone->Set_Moods(mood);
        Visit_Wizard([this] {
            Click_The_Phone();
            user.Will_Press("OK");
            Click_In_Wizard("_Select_Btn");
            EXPECT_EQ(Boxes_Shown().back(), Box::Default_Smsc_Blank);
            Type_Custom_Smsc("+447700900999");
            Click_In_Wizard("_Select_Btn");
        });
        EXPECT_EQ(sel_port_bsd_str.toStdString(), phone->Path());
        Fill_The_List(way);
        EXPECT_EQ(Send(), Box::Completed);
        EXPECT_EQ(Inbox(), Everything(way));
        for (const auto& message : phone->Inbox())
            EXPECT_EQ(message.m_smsc, "+447700900999");
    }

private:
    std::unique_ptr<Held_Line> m_held;
};

// ---- Jobs

struct Job
{
    const char* name;
    void (*mood)(Mood&);
    const char* box = Box::Completed;
    std::size_t arrived = 4; // messages, of those there are
    Way way = {};
    bool is_lost = false; // only plugging in again helps
};

constexpr Way Flash{false, false, true};
constexpr Way Unicode{false, true, false};
constexpr Way Text{true, false, false};
constexpr Way Text_As_Unicode_Flash{true, true, true};

const Job Jobs[] = {
    {"Gets_Everything", [](Mood&) {}},
    {"Gets_Everything_As_Flash", [](Mood&) {}, Box::Completed, 4, Flash},
    {"Gets_Everything_In_Unicode", [](Mood&) {}, Box::Completed, 4, Unicode},
    {"With_Text_Mode_Gets_Everything", [](Mood&) {}, Box::Completed, 4, Text},
    {"With_Text_Mode_Gets_Everything_As_Flash_In_Unicode", [](Mood&) {}, Box::Completed, 4, Text_As_Unicode_Flash},
    {"Without_Echo_And_Prompt_Gets_Everything", [](Mood& m) { m.m_no_echo = m.m_no_prompt = true; }},
    {"That_Ends_Lines_In_CR_Alone_Gets_Everything", [](Mood& m) { m.m_cr_only = true; }},
    {"That_Answers_Byte_By_Byte_Gets_Everything", [](Mood& m) { m.m_split_answers = true; }},
    {"That_Never_Stops_Talking_Gets_Everything", [](Mood& m) { m.m_never_stops_talking = true; }},
    {"That_Refuses_Every_Message_Gets_None_Unnoticed", [](Mood& m) { m.m_error_for["AT+CMGS=*"] = "no credit"; },
     Box::Completed, 0},
    {"That_Is_Silent_Is_No_Modem", [](Mood& m) { m.m_silent = true; }, Box::No_Modem, 0},
    {"That_Only_Echoes_Has_No_Mode", [](Mood& m) { m.m_echo_only = true; }, Box::No_Modem, 0},
    {"That_Hangs_Up_Ends_The_Job", [](Mood& m) { m.m_hang_up_at = 2; }, Box::Connection_Error, 1, {}, true},
    {"With_Text_Mode_That_Stops_Reading_Ends_The_Job", [](Mood& m) { m.m_stop_reading_at = 2; }, Box::Connection_Error,
     1, Text, true},
};

class Jobs_In_A_Mood : public Moods, public testing::WithParamInterface<Job>
{
};

TEST_P(Jobs_In_A_Mood, End_In_Their_Box_And_The_Next_One_Works)
{
    const Job& job = GetParam();
    Mood mood;
    mood.m_text_only = job.way.m_text_mode;
    job.mood(mood);
    phone->Set_Moods(mood);
    Slow_Down(mood.m_split_answers ? 3 : 1);
    Select_The_Phone();
    Fill_The_List(job.way);
    EXPECT_EQ(Send(), job.box);
    auto arrived = Everything(job.way);
    arrived.resize(std::min(arrived.size(), job.arrived));
    EXPECT_EQ(Inbox(), arrived);
    Slow_Down(1);
    if (job.is_lost)
        Plug_In_Again();
    else
        phone->Set_Moods({});
    Expect_That_Sending_Works();
}

INSTANTIATE_TEST_SUITE_P(A_Phone, Jobs_In_A_Mood, testing::ValuesIn(Jobs),
                         [](const auto& row) { return std::string(row.param.name); });

// ---- Visits to the wizard

struct Visit
{
    const char* name;
    void (*mood)(Mood&) = [](Mood&) {};
    std::size_t pulled_at = 100; // command, if it comes so far
    std::size_t told = 9;        // details
    const char* probe_box = nullptr;
    const char* select_box = nullptr; // none: the phone is taken
};

const auto Minds_Its_Manners = [](Mood&) {};

const Visit Visits[] = {
    {"That_Minds_Its_Manners_Is_Taken"},
    {"That_Is_Silent_Does_Not_Work", [](Mood& m) { m.m_silent = true; }, 100, 0, Box::Not_Working, Box::Not_Working},
    {"That_Can_Not_Send_Is_Refused", [](Mood& m) { m.m_no_sms_sending = true; }, 100, 9, nullptr, Box::No_Sending},
    {"Pulled_At_The_First_Question", Minds_Its_Manners, 1, 0, Box::Not_Working, Box::Could_Not_Open},
    {"Pulled_At_The_Battery", Minds_Its_Manners, 7, 4, nullptr, Box::Could_Not_Open},
    {"Pulled_At_The_First_Question_Of_Select", Minds_Its_Manners, 12, 9, nullptr, Box::Not_Working},
    {"Pulled_At_The_Question_For_The_Service", Minds_Its_Manners, 14, 9, nullptr, Box::No_Sending},
    {"Pulled_When_The_Link_Is_Kept_Open_Is_Taken", Minds_Its_Manners, 17},
};

class Visits_In_A_Mood : public Moods, public testing::WithParamInterface<Visit>
{
protected:
    static std::vector<std::string> Details_Told(std::size_t count)
    {
        auto details = Usual_Details();
        std::fill(details.begin() + static_cast<std::ptrdiff_t>(count), details.end(), std::string());
        constexpr std::size_t battery = 4; // the one that has a text for it when its question is not answered
        if (count == battery)
            details.at(battery) = "Device does not have a battery connected.";
        return details;
    }

    void Probe_And_Select(const Visit& visit)
    {
        std::vector<std::string> boxes;
        for (const char* box : {visit.probe_box, visit.select_box}) {
            if (!box)
                continue;
            boxes.emplace_back(box);
            user.Will_Press("OK");
        }
        Click_The_Phone();
        EXPECT_EQ(Details(), Details_Told(visit.told));
        Click_In_Wizard("_Select_Btn");
        EXPECT_EQ(Boxes_Shown(), boxes);
        EXPECT_EQ(Wizard_Is_Open(), visit.select_box != nullptr);
    }
};

TEST_P(Visits_In_A_Mood, End_In_Their_Boxes_And_The_Next_One_Works)
{
    const Visit& visit = GetParam();
    Mood mood;
    visit.mood(mood);
    phone->Set_Moods(mood);
    const std::string path = phone->Path();
    Keep_The_Number();
    Pull_When([&] { return phone->Heard().size() >= visit.pulled_at; });
    Visit_Wizard([&] { Probe_And_Select(visit); });
    EXPECT_EQ(sel_port_bsd_str.toStdString(), visit.select_box ? "" : path);
    EXPECT_EQ(phone->Is_Hung_Up(), visit.pulled_at < 100);
    Expect_That_It_Works_When_Plugged_In_Again();
    Expect_That_The_Wizard_Takes_The_Phone();
}

INSTANTIATE_TEST_SUITE_P(A_Phone, Visits_In_A_Mood, testing::ValuesIn(Visits),
                         [](const auto& row) { return std::string(row.param.name); });

TEST_F(Moods, A_Custom_Service_Centre_Goes_From_The_Wizard_To_The_Handset)
{
    Send_Through_A_Custom_Centre({});
    phone->Forget();
    Send_Through_A_Custom_Centre(Text);
    EXPECT_THAT(phone->Heard(), testing::Contains("AT+CSCA=\"+447700900999\",145"));
}

} // namespace
