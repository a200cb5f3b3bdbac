#include "device/Chosen_Device.h"
#include "gui/Sending_Program.h"

#include <algorithm>

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::StartsWith;

// The wizard with a phone in each of its moods: what a click on its row shows, and what Select makes of it.

namespace {

using Mood = Phone_Moods;

enum Detail
{
    Manufacturer,
    Model,
    Imei,
    Imsi,
    Battery,
    Signal,
    Operator,
    Revision,
    Default_Smsc
};

enum class Shown
{
    As_It_Is,
    With_More_Behind, // status lines of the phone stand behind the value
    With_More_Around  // they may stand anywhere, and what is made of numbers in between is not told
};

struct Row
{
    const char* name;
    void (*mood)(Mood&);
    std::map<Detail, std::string> other = {}; // details that differ from the usual ones
    const char* select_box = nullptr;         // none: the phone is taken
    const char* custom_smsc = nullptr;
    bool no_details = false; // the click shows Box::Not_Working
    bool mended_by_plug = false;
    Shown shown = Shown::As_It_Is;
};

// What is left where no question is answered: one detail has a text for it.
const std::map<Detail, std::string> Nothing_Told = {{Manufacturer, ""},
                                                    {Model, ""},
                                                    {Imei, ""},
                                                    {Imsi, ""},
                                                    {Battery, "Device does not have a battery connected."},
                                                    {Signal, ""},
                                                    {Operator, ""},
                                                    {Revision, ""},
                                                    {Default_Smsc, ""}};

constexpr char Custom[] = "+447700900999";

const Row Rows[] = {
    {"That_Minds_Its_Manners_Is_Taken", [](Mood&) {}},
    {"That_Does_Not_Echo_Is_Taken", [](Mood& m) { m.m_no_echo = true; }},
    {"That_Only_Echoes_Tells_Nothing_And_Lacks_A_Service_Centre", [](Mood& m) { m.m_echo_only = true; }, Nothing_Told,
     Box::Default_Smsc_Blank},
    {"That_Only_Echoes_Cannot_Send_Through_A_Custom_Service_Centre_Either", [](Mood& m) { m.m_echo_only = true; },
     Nothing_Told, Box::No_Sending, Custom},
    {"That_Is_Silent_Does_Not_Work", [](Mood& m) { m.m_silent = true; }, {}, Box::Not_Working, nullptr, true},
    {"With_PDU_Mode_Alone_Is_Taken", [](Mood& m) { m.m_pdu_only = true; }},
    {"With_Text_Mode_Alone_Is_Taken", [](Mood& m) { m.m_text_only = true; }},
    {"Without_Character_Sets_Is_Taken", [](Mood& m) { m.m_charsets.clear(); }},
    {"Without_A_Service_Centre_Is_Refused",
     [](Mood& m) { m.m_no_smsc = true; },
     {{Default_Smsc, ""}},
     Box::Default_Smsc_Blank},
    {"Without_A_Service_Centre_Is_Taken_With_A_Custom_One",
     [](Mood& m) { m.m_no_smsc = true; },
     {{Default_Smsc, ""}},
     nullptr,
     Custom},
    {"That_Tells_Its_Service_Centre_In_UCS2_Is_Understood", [](Mood& m) { m.m_smsc_in_ucs2 = true; }},
    {"That_Does_Not_Tell_Its_Service_Centre_Is_Taken",
     [](Mood& m) { m.m_smsc_not_supported = true; },
     {{Default_Smsc, "COMMAND NOT SUPPORT"}}},
    {"That_Refuses_To_Tell_Its_Service_Centre_Is_Refused",
     [](Mood& m) { m.m_error_for["AT+CSCA?"] = "locked"; },
     {{Default_Smsc, ""}},
     Box::Default_Smsc_Blank},
    {"With_No_Name_Is_Asked_In_Other_Words", [](Mood& m) { m.m_undefined_identity = true; }},
    {"That_Is_Charging_Says_So",
     [](Mood& m) {
         m.m_battery_status = 1;
         m.m_battery_charge = 40;
     },
     {{Battery, "40% ( Charging )"}}},
    {"Without_A_Battery_Says_So",
     [](Mood& m) { m.m_battery_status = 2; },
     {{Battery, "Device does not have a battery connected."}}},
    {"With_A_Power_Fault_Says_So", [](Mood& m) { m.m_battery_status = 3; }, {{Battery, "Recognized power fault."}}},
    {"That_Does_Not_Know_Its_Signal_Says_So", [](Mood& m) { m.m_signal = 99; }, {{Signal, "Unknown"}}},
    {"With_A_Low_Signal_Says_So", [](Mood& m) { m.m_signal = 8; }, {{Signal, "Low (8)"}}},
    {"With_No_SMS_Support_Is_Refused", [](Mood& m) { m.m_no_sms_sending = true; }, {}, Box::No_Sending},
    {"That_Refuses_The_Message_Service_Is_Refused",
     [](Mood& m) { m.m_error_for["AT+CSMS=?"] = "none"; },
     {},
     Box::No_Sending},
    {"That_Keeps_No_Link_Open_Is_Taken", [](Mood& m) { m.m_error_for["AT+CMMS=2"] = "none"; }},
    {"That_Refuses_AT_Does_Not_Work",
     [](Mood& m) { m.m_error_for["AT"] = "busy"; },
     {},
     Box::Not_Working,
     nullptr,
     true},
    {"That_Refuses_To_Name_Its_Maker_Leaves_It_Blank",
     [](Mood& m) { m.m_error_for["AT+GMI"] = "?"; },
     {{Manufacturer, ""}}},
    {"That_Refuses_To_Tell_Its_Battery_Is_Said_To_Have_None",
     [](Mood& m) { m.m_error_for["AT+CBC"] = "?"; },
     {{Battery, "Device does not have a battery connected."}}},
    {"That_Refuses_To_Name_Its_Network_Leaves_It_Blank",
     [](Mood& m) { m.m_error_for["AT+COPS?"] = "no network"; },
     {{Operator, ""}}},
    {"That_Answers_Byte_By_Byte_Is_Taken", [](Mood& m) { m.m_split_answers = true; }},
    {"That_Answers_A_Little_Late_Is_Taken", [](Mood& m) { m.m_answer_delay_ms = 5; }},
    {"That_Echoes_And_Answers_Too_Late_Lacks_A_Service_Centre", [](Mood& m) { m.m_answer_delay_ms = 20000; },
     Nothing_Told, Box::Default_Smsc_Blank},
    {"That_Answers_Too_Late_Without_Echo_Does_Not_Work",
     [](Mood& m) {
         m.m_answer_delay_ms = 20000;
         m.m_no_echo = true;
     },
     {},
     Box::Not_Working,
     nullptr,
     true},
    {"That_Speaks_Unasked_Between_Answers_Is_Taken",
     [](Mood& m) { m.m_unsolicited = true; },
     {{Battery, "85"}},
     nullptr,
     nullptr,
     false,
     false,
     Shown::With_More_Behind},
    {"That_Ends_Lines_In_CR_Alone_Is_Taken", [](Mood& m) { m.m_cr_only = true; }},
    {"That_Talks_Garbage_Does_Not_Work", [](Mood& m) { m.m_garbage = true; }, {}, Box::Not_Working, nullptr, true},
    {"That_Never_Stops_Talking_Is_Taken_With_A_Custom_Service_Centre",
     [](Mood& m) { m.m_never_stops_talking = true; },
     {},
     nullptr,
     Custom,
     false,
     false,
     Shown::With_More_Around},
    {"That_Takes_No_Byte_Does_Not_Work",
     [](Mood& m) { m.m_stop_reading_after = 0; },
     {},
     Box::Not_Working,
     nullptr,
     true,
     true},
    {"That_Stops_Reading_At_The_Battery_Keeps_What_It_Told",
     [](Mood& m) { m.m_stop_reading_after = 40; },
     {{Battery, "Device does not have a battery connected."},
      {Signal, ""},
      {Operator, ""},
      {Revision, ""},
      {Default_Smsc, ""}},
     Box::Not_Working,
     nullptr,
     false,
     true},
};

std::vector<testing::Matcher<std::string>> Matchers(const std::vector<std::string>& details, Shown shown)
{
    std::vector<testing::Matcher<std::string>> matchers;
    for (const auto& detail : details) {
        if (shown == Shown::As_It_Is)
            matchers.emplace_back(detail);
        else if (shown == Shown::With_More_Behind)
            matchers.emplace_back(StartsWith(detail));
        else if (matchers.size() <= Imei)
            matchers.emplace_back(HasSubstr(detail));
        else
            matchers.emplace_back(testing::_);
    }
    return matchers;
}

class Wizard_In_A_Mood : public Sending_Program
{
public:
    using Fixture = Sending_Program;

    explicit Wizard_In_A_Mood(const Row& row) : m_row(row) {}
    void TestBody() override;

private:
    void Probe();
    void Press_Select();

    const Row& m_row;
};

void Wizard_In_A_Mood::Probe()
{
    if (m_row.no_details)
        user.Will_Press(QStringLiteral("OK"));
    Click_The_Phone();
    if (m_row.no_details) {
        EXPECT_THAT(Boxes_Shown(), ElementsAre(Box::Not_Working));
        EXPECT_THAT(Details(), testing::Each(""));
        return;
    }
    EXPECT_THAT(Boxes_Shown(), testing::IsEmpty());
    auto details = Usual_Details();
    for (const auto& [detail, text] : m_row.other)
        details.at(detail) = text;
    EXPECT_THAT(Details(), ElementsAreArray(Matchers(details, m_row.shown)));
}

void Wizard_In_A_Mood::Press_Select()
{
    if (m_row.custom_smsc)
        Type_Custom_Smsc(QString::fromLatin1(m_row.custom_smsc));
    if (m_row.select_box)
        user.Will_Press(QStringLiteral("OK"));
    Click_In_Wizard("_Select_Btn");
    EXPECT_EQ(Wizard_Is_Open(), m_row.select_box != nullptr);
    const auto boxes = Boxes_Shown();
    EXPECT_EQ(m_row.select_box ? boxes.back() : "", m_row.select_box ? m_row.select_box : "");
}

void Wizard_In_A_Mood::TestBody()
{
    Phone_Moods moods;
    m_row.mood(moods);
    Slow_Down(moods.m_split_answers ? 3 : 1);
    phone->Set_Moods(moods);
    Visit_Wizard([this] {
        Probe();
        Press_Select();
    });
    const bool is_taken = !m_row.select_box;
    EXPECT_EQ(sel_port_bsd_str.toStdString(), is_taken ? phone->Path() : "");
    EXPECT_EQ(Cus_SMS_Num_STR.toStdString(), is_taken && m_row.custom_smsc ? m_row.custom_smsc : "");

    if (m_row.mended_by_plug)
        Plug_In_Again();
    else
        phone->Set_Moods({});
    if (!is_taken)
        Expect_That_The_Wizard_Takes_The_Phone();
    Expect_That_Sending_Works();
}

const bool Rows_Registered = Register_Each<Wizard_In_A_Mood>("Wizard_In_Every_Mood", "A_Phone_", Rows);

} // namespace

// ---- The whole road

class Wizard_And_Job : public Sending_Program
{
};

TEST_F(Wizard_And_Job, From_The_Wizard_Through_A_Custom_Service_Centre_To_The_Handset)
{
    Phone_Moods moods;
    moods.m_no_smsc = true;
    phone->Set_Moods(moods);
    Visit_Wizard([this] {
        Click_The_Phone();
        Type_Custom_Smsc(QStringLiteral("+447700900999"));
        Click_In_Wizard("_Select_Btn");
    });
    ASSERT_EQ(sel_port_bsd_str.toStdString(), phone->Path());
    EXPECT_EQ(Cus_SMS_Num_STR, QStringLiteral("+447700900999"));
    Fill_The_List();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_EQ(Inbox(), Everything({}));
    for (const auto& message : phone->Inbox())
        EXPECT_EQ(message.m_smsc, "+447700900999");
}

TEST_F(Wizard_And_Job, A_Text_Mode_Phone_Is_Told_The_Custom_Service_Centre)
{
    Phone_Moods moods;
    moods.m_no_smsc = true;
    moods.m_text_only = true;
    phone->Set_Moods(moods);
    Visit_Wizard([this] {
        Click_The_Phone();
        Type_Custom_Smsc(QStringLiteral("+447700900999"));
        Click_In_Wizard("_Select_Btn");
    });
    Fill_The_List();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_EQ(Inbox(), Everything({.m_text_mode = true, .m_unicode = false, .m_flash = false}));
    EXPECT_THAT(phone->Heard(), testing::Contains("AT+CSCA=\"+447700900999\",145"));
    for (const auto& message : phone->Inbox())
        EXPECT_EQ(message.m_smsc, "+447700900999");
}

// The dashes stand in the place of digits in the frame, which no phone takes; the program does not notice.
TEST_F(Wizard_And_Job, A_Custom_Service_Centre_With_Dashes_Is_Handed_On_As_Typed_And_The_Phone_Refuses_Every_Message)
{
    Visit_Wizard([this] {
        Click_The_Phone();
        Type_Custom_Smsc(QStringLiteral("+44-7700-900"));
        Click_In_Wizard("_Select_Btn");
    });
    EXPECT_EQ(Cus_SMS_Num_STR, QStringLiteral("+44-7700-900"));
    Fill_The_List();
    EXPECT_EQ(Send(), Box::Completed);
    EXPECT_THAT(Inbox(), testing::IsEmpty());
    Cus_SMS_Num_STR.clear();
    Expect_That_Sending_Works();
}

TEST_F(Wizard_And_Job, Two_Clicks_On_The_Same_Row_Probe_Once)
{
    Visit_Wizard([this] {
        Click_The_Phone();
        const auto heard = phone->Heard();
        Click_In_Wizard("_cus_smsc_chk");
        phone->Forget();
        auto* table = QApplication::activeModalWidget()->findChild<QTableView*>(QStringLiteral("idPortList"));
        QTest::mouseClick(table->viewport(), Qt::LeftButton, {},
                          table->visualRect(table->selectionModel()->selectedRows().constFirst()).center());
        EXPECT_EQ(Workers_Running(), 0);
        EXPECT_TRUE(phone->Is_Silent());
        EXPECT_EQ(heard.size(), 11U);
    });
}
