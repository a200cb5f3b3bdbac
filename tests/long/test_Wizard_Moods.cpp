// What the wizard tells of a phone in each mood and in every two of them, with its own service centre and a custom one.
#include "doctor/Phone_Probe.h"
#include "long/Wizard_Oracle.h"
#include "windows/main/Line_Test.h"

#include <cstring>

namespace {

using Moods = Phone_Moods;

struct Mood
{
    const char* name;
    void (*put)(Moods& moods);
    const char* topic = ""; // two moods of one topic exclude each other
};

const Mood All_Moods[] = {
    {"No_Echo", [](Moods& m) { m.m_no_echo = true; }},
    {"Echo_Only", [](Moods& m) { m.m_echo_only = true; }},
    {"No_Answer", [](Moods& m) { m.m_silent = true; }},
    {"Pdu_Alone", [](Moods& m) { m.m_pdu_only = true; }, "mode"},
    {"Text_Alone", [](Moods& m) { m.m_text_only = true; }, "mode"},
    {"No_Sending", [](Moods& m) { m.m_no_sms_sending = true; }},
    {"No_Centre", [](Moods& m) { m.m_no_smsc = true; }},
    {"Centre_In_Ucs2", [](Moods& m) { m.m_smsc_in_ucs2 = true; }},
    {"Centre_Not_Told", [](Moods& m) { m.m_smsc_not_supported = true; }},
    {"No_Identity", [](Moods& m) { m.m_undefined_identity = true; }},
    {"No_Battery", [](Moods& m) { m.m_battery_status = 2; }},
    {"No_Signal", [](Moods& m) { m.m_signal = 99; }},
    {"Answers_In_Single_Bytes", [](Moods& m) { m.m_split_answers = true; }},
    {"Late_Answers", [](Moods& m) { m.m_answer_delay_ms = 5; }, "answer time"},
    {"Answers_Too_Late", [](Moods& m) { m.m_answer_delay_ms = 60'000; }, "answer time"},
    {"Unsolicited", [](Moods& m) { m.m_unsolicited = true; }},
    {"Cr_Alone", [](Moods& m) { m.m_cr_only = true; }},
    {"Garbage", [](Moods& m) { m.m_garbage = true; }},
    {"Endless_Talk", [](Moods& m) { m.m_never_stops_talking = true; }},
    {"Error_For_AT", [](Moods& m) { m.m_error_for["AT"] = "not now"; }},
    {"Error_For_Maker", [](Moods& m) { m.m_error_for["AT+GMI"] = "unknown"; }},
    {"Error_For_Battery", [](Moods& m) { m.m_error_for["AT+CBC"] = "none"; }},
    {"Error_For_Centre", [](Moods& m) { m.m_error_for["AT+CSCA?"] = "locked"; }},
    {"Error_For_Service", [](Moods& m) { m.m_error_for["AT+CSMS=?"] = "no such service"; }},
    {"Error_For_Link", [](Moods& m) { m.m_error_for["AT+CMMS=2"] = "none"; }},
    {"Takes_Nothing", [](Moods& m) { m.m_stop_reading_after = 0; }, "bytes"},
    {"Takes_Forty_Bytes", [](Moods& m) { m.m_stop_reading_after = 40; }, "bytes"},
};

// What the wizard's window would show.
class Seen : public Probe_Display
{
public:
    Seen() { m_details.resize(Phone_Value_Count); }

    void Set_Phone_Value(Phone_Value value, const QString& text) override { m_details[static_cast<int>(value)] = text; }
    void Show_Create_Modeless() override { ++m_sheets; }
    void Hide_Destroy_Modeless() override { --m_sheets; }
    void Tell_About_Device(const QString& text) override { m_told.append(text); }

    QStringList m_details;
    QStringList m_told;
    int m_sheets = 0;
};

struct Combination
{
    std::string name;
    Moods moods;
    bool with_custom_centre = false;
};

class Wizard_Moods : public Line_Test, public testing::WithParamInterface<Combination>
{
protected:
    Wizard_Moods() : Line_Test(GetParam().moods, {}) {}

    void Visit(const Wizard_Outcome& expected);
    bool Mixes_Words_Into_Answers() const { return m_moods.m_unsolicited || m_moods.m_never_stops_talking; }

    const Moods m_moods = GetParam().moods;
    const QString m_custom_centre = GetParam().with_custom_centre ? "+447700900999" : "";
};

void Wizard_Moods::Visit(const Wizard_Outcome& expected)
{
    Seen seen;
    Phone_Probe probe(m_session, seen);
    EXPECT_EQ(probe.Read_Details(Device()), expected.told_at_click);
    if (!Mixes_Words_Into_Answers()) {
        EXPECT_EQ(seen.m_details, expected.details);
    }
    // The background reader holds the line for a moment longer than the port.
    EXPECT_TRUE(Serve_Until([this] { return !m_phone.Somebody_Is_There(); }, 5));

    EXPECT_EQ(seen.m_told, QStringList()); // the window tells it once its sheet has gone
    const bool is_taken =
        probe.Check_For_Sending(Device(), {!m_custom_centre.isEmpty(), seen.m_details.last(), m_custom_centre});
    EXPECT_EQ(is_taken, expected.told_at_select.isEmpty());
    EXPECT_EQ(seen.m_told, is_taken ? QStringList() : QStringList{expected.told_at_select});
    EXPECT_EQ(seen.m_sheets, 0);
    Phone_Probe::Let_Go_Of_Port(m_session); // as the wizard does when it is left

    QStringList heard;
    for (const std::string& line : m_phone.Heard())
        heard.append(QString::fromStdString(line));
    EXPECT_EQ(heard, expected.commands);
    EXPECT_TRUE(m_phone.Parts().empty());
}

TEST_P(Wizard_Moods, Tell_What_Is_Expected_And_The_Next_Job_Works)
{
    const Wizard_Outcome expected = Expected_Visit(m_moods, m_custom_centre);
    Visit(expected);
    ASSERT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    Expect_Everything_Tidy();
    Expect_The_Line_Free();
    if (expected.is_lost)
        Plug_In_Again();
    else
        Lift_Moods();
    Expect_The_Next_Job_To_Work();
}

// Whether what a phone says of its own accord can be told from its service centre.
bool Tells_Its_Centre_Clearly(const Phone_Moods& moods)
{
    return !moods.m_never_stops_talking && !(moods.m_unsolicited && moods.m_smsc_not_supported);
}

bool Makes_A_Pair(const Mood& one, const Mood& other)
{
    const bool exclude_each_other = *one.topic != '\0' && std::strcmp(one.topic, other.topic) == 0;
    Phone_Moods both;
    one.put(both);
    other.put(both);
    // Whether something of the talk comes with the first echo nobody can say.
    const bool is_luck = both.m_never_stops_talking && both.m_answer_delay_ms > 1000;
    // A write that nobody takes lasts a second of real time, and whatever else the phone does is never seen.
    const bool is_deaf = both.m_stop_reading_after >= 0;
    return &one < &other && !exclude_each_other && !is_luck && !is_deaf;
}

std::vector<Combination> All_Combinations()
{
    std::vector<Combination> all;
    const auto add = [&](const std::string& name, const Moods& moods, bool with_custom_centre) {
        all.push_back({name + (with_custom_centre ? "_Custom_Centre" : "_Own_Centre"), moods, with_custom_centre});
    };
    add("Good_Manners", {}, false);
    add("Good_Manners", {}, true);
    bool with_custom_centre = false;
    for (const Mood& one : All_Moods) {
        Moods alone;
        one.put(alone);
        if (Tells_Its_Centre_Clearly(alone))
            add(one.name, alone, false);
        add(one.name, alone, true);
        for (const Mood& other : All_Moods) {
            if (!Makes_A_Pair(one, other))
                continue;
            Moods both = alone;
            other.put(both);
            with_custom_centre = !with_custom_centre;
            add(std::string(one.name) + "_And_" + other.name, both,
                with_custom_centre || !Tells_Its_Centre_Clearly(both));
        }
    }
    return all;
}

INSTANTIATE_TEST_SUITE_P(, Wizard_Moods, testing::ValuesIn(All_Combinations()),
                         [](const auto& row) { return row.param.name; });

} // namespace
