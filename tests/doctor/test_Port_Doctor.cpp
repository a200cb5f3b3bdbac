#include "doctor/Port_Doctor.h"

#include "doctor/Doctor_Report.h"
#include "doctor/Fake_System.h"
#include "phone/Virtual_Phone.h"
#include "platform/Interface_Thread.h"
#include "platform/Pace.h"

#include <gmock/gmock.h>
#include <set>

namespace {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class Finds_These : public Port_Finder
{
public:
    explicit Finds_These(const QStringList& paths) : m_paths(paths) {}
    int Find_Ports(Modem_Iterator& iterator) const override
    {
        QList<Modem_Entry> entries;
        for (const QString& path : m_paths)
            entries.append({QFile::encodeName(path)});
        iterator = Modem_Iterator(entries);
        return 0;
    }

private:
    QStringList m_paths;
};

// What a look brought out.
struct Looked
{
    QList<Finding> findings;
    QStringList ready;

    /// "card:bad" and so on, in order.
    std::vector<std::string> Marks() const
    {
        std::vector<std::string> marks;
        for (const Finding& finding : findings)
            marks.push_back((Code_Of(finding.check) + ':' + Code_Of(finding.mark)).toStdString());
        return marks;
    }
    std::string Sentence(Finding::Check check) const
    {
        for (const Finding& finding : findings)
            if (finding.check == check)
                return finding.sentence.toStdString();
        return {};
    }
};

class The_Doctor : public testing::Test
{
protected:
    The_Doctor() { Set_Pace(20); }
    ~The_Doctor() override
    {
        Finish_Workers();
        Set_Pace(1);
    }

    Looked Look(const QStringList& paths, bool are_named = true)
    {
        Looked looked;
        Port_Doctor::Wishes wishes;
        wishes.paths = are_named ? paths : QStringList();
        wishes.roots = m_system.roots;
        wishes.on_finding = [&](const Finding& finding) { looked.findings.append(finding); };
        wishes.is_over = m_is_over;
        const Finds_These finder(paths);
        Run_On_Worker([&] { looked.ready = Port_Doctor(wishes, finder).Look(); });
        return looked;
    }
    Looked Look(const Virtual_Phone& phone) { return Look(QStringList{QString::fromStdString(phone.Path())}); }

    // Plugs a phone into the fake system as a port of a USB device.
    QString Plug_In(const Virtual_Phone& phone, Fake_Port port)
    {
        const QString node = m_system.Add(port);
        QFile::remove(node);
        EXPECT_TRUE(QFile::link(QString::fromStdString(phone.Path()), node));
        return node;
    }

    Fake_System m_system;
    std::function<bool()> m_is_over;
};

// ------------------------------------------------------------------------------------------- what a device says

struct Answer
{
    const char* command;
    const char* answer;
};

struct State
{
    const char* name;
    void (*set)(Phone_Moods& moods);
    std::vector<Answer> answers;
    Finding::Check check;
    const char* mark;
    const char* sentence; ///< a part of it
    bool could_send;
};

void PrintTo(const State& state, std::ostream* out)
{
    *out << state.name;
}

class A_Device : public The_Doctor, public testing::WithParamInterface<State>
{
};

void As_Usual(Phone_Moods&) {}

using Check = Finding::Check;

} // namespace

TEST_P(A_Device, Is_Asked_And_Each_State_Has_Its_Sentence_And_Where_It_Is_Not_Good_Its_Remedy)
{
    Phone_Moods moods;
    GetParam().set(moods);
    Virtual_Phone phone(moods);
    for (const Answer& each : GetParam().answers)
        phone.Will_Answer(each.command, each.answer);
    const Looked looked = Look(phone);
    bool is_told = false;
    for (const Finding& finding : looked.findings) {
        EXPECT_EQ(finding.remedy.isEmpty(), finding.mark == Finding::Mark::Good) << finding.sentence.toStdString();
        is_told = is_told || finding.check == GetParam().check;
        if (finding.check == GetParam().check) {
            EXPECT_EQ(Code_Of(finding.mark), GetParam().mark);
            EXPECT_THAT(finding.sentence.toStdString(), HasSubstr(GetParam().sentence));
        }
    }
    EXPECT_TRUE(is_told);
    EXPECT_EQ(!looked.ready.isEmpty(), GetParam().could_send);
    for (const std::string& command : phone.Heard()) {
        EXPECT_FALSE(command.starts_with("AT+CPIN=")) << "no PIN is tried";
        EXPECT_FALSE(command.starts_with("AT+CMGS=") && command != "AT+CMGS=?") << "nothing is sent";
        EXPECT_FALSE(command.starts_with("AT+CIMI") || command.starts_with("AT+CGSN") ||
                     command.starts_with("AT+CNUM"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Every, A_Device,
    testing::Values(
        State{"Ready", As_Usual, {}, Check::Answer, "good", "answers", true},
        State{"Silent", [](Phone_Moods& m) { m.m_silent = true; }, {}, Check::Answer, "bad", "does not answer", false},
        State{"Noise", [](Phone_Moods& m) { m.m_garbage = true; }, {}, Check::Answer, "bad", "does not answer", false},
        State{"Pin", [](Phone_Moods& m) { m.m_pin = "1234"; }, {}, Check::Card, "bad", "wants its PIN.", false},
        State{"Pin_Without_Ok",
              [](Phone_Moods& m) { m.m_pin = "1234", m.m_cpin_without_ok = true; },
              {},
              Check::Card,
              "bad",
              "wants its PIN.",
              false},
        State{"Pin_And_Tries",
              [](Phone_Moods& m) { m.m_pin = "1234"; },
              {{"AT+CPINR=\"SIM PIN\"", "\r\n+CPINR: SIM PIN,2,3\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "Tries left: 2.",
              false},
        State{"Pin_And_Tries_Of_Huawei",
              [](Phone_Moods& m) { m.m_pin = "1234"; },
              {{"AT^CPIN?", "\r\n^CPIN: SIM PIN,3,10,3,10,3\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "Tries left: 3.",
              false},
        State{"Pin_And_Tries_Of_Simcom",
              [](Phone_Moods& m) { m.m_pin = "1234"; },
              {{"AT+SPIC", "\r\n+SPIC: 1,10,0,10\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "Tries left: 1.",
              false},
        State{"Pin_And_Tries_Of_Quectel",
              [](Phone_Moods& m) { m.m_pin = "1234"; },
              {{"AT+QPINC=\"SC\"", "\r\n+QPINC: \"SC\",3,10\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "Tries left: 3.",
              false},
        State{"Pin_And_Tries_Of_Telit",
              [](Phone_Moods& m) { m.m_pin = "1234"; },
              {{"AT#PCT", "\r\n#PCT: 3\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "Tries left: 3.",
              false},
        State{"Pin_And_Tries_That_Cannot_Be",
              [](Phone_Moods& m) { m.m_pin = "1234"; },
              {{"AT+SPIC", "\r\n+SPIC: 99,x\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "wants its PIN.",
              false},
        State{"Puk", [](Phone_Moods& m) { m.m_puk_needed = true; }, {}, Check::Card, "bad", "PUK", false},
        State{"Puk_And_Tries",
              [](Phone_Moods& m) { m.m_puk_needed = true; },
              {{"AT^CPIN?", "\r\n^CPIN: SIM PUK,10,10,0,10,3\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "Tries left: 10.",
              false},
        State{"No_Card", As_Usual, {{"AT+CPIN?", "\r\n+CME ERROR: 10\r\n"}}, Check::Card, "bad", "no SIM card", false},
        State{"No_Card_In_Words",
              As_Usual,
              {{"AT+CPIN?", "\r\n+CME ERROR: SIM not inserted\r\n"}},
              Check::Card,
              "bad",
              "no SIM card",
              false},
        State{"Broken_Card",
              As_Usual,
              {{"AT+CPIN?", "\r\n+CME ERROR: 13\r\n"}},
              Check::Card,
              "bad",
              "cannot be read",
              false},
        State{"Busy_Card",
              As_Usual,
              {{"AT+CPIN?", "\r\n+CME ERROR: 14\r\n"}},
              Check::Card,
              "bad",
              "still being read",
              false},
        State{"Locked_Phone",
              As_Usual,
              {{"AT+CPIN?", "\r\n+CPIN: PH-NET PIN\r\n\r\nOK\r\n"}},
              Check::Card,
              "bad",
              "wants a code",
              false},
        State{"Card_Not_Told", As_Usual, {{"AT+CPIN?", "\r\nERROR\r\n"}}, Check::Card, "note", "does not say", true},
        State{"No_Network", [](Phone_Moods& m) { m.m_no_network = true; }, {}, Check::Network, "bad", "network", false},
        State{"Roaming",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: 0,5\r\n\r\nOK\r\n"},
               {"AT+CGREG?", "\r\n+CGREG: 0,5\r\n\r\nOK\r\n"},
               {"AT+CEREG?", "\r\nERROR\r\n"}},
              Check::Network,
              "note",
              "roaming",
              true},
        State{"Lte_Alone",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: 0,0\r\n\r\nOK\r\n"},
               {"AT+CGREG?", "\r\n+CGREG: 0,4\r\n\r\nOK\r\n"},
               {"AT+CEREG?", "\r\n+CEREG: 2,1,\"1A2B\",\"01C3D4E5\",7\r\n\r\nOK\r\n"}},
              Check::Network,
              "good",
              "registered",
              true},
        State{"Messages_Alone",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: 0,6\r\n\r\nOK\r\n"},
               {"AT+CGREG?", "\r\n+CGREG: 0,0\r\n\r\nOK\r\n"},
               {"AT+CEREG?", "\r\n+CEREG: 0,0\r\n\r\nOK\r\n"}},
              Check::Network,
              "good",
              "registered",
              true},
        State{"As_If_Unasked",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: 1,\"1234\",\"5678\"\r\n\r\nOK\r\n"}},
              Check::Network,
              "good",
              "registered",
              true},
        State{"Denied",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: 0,3\r\n\r\nOK\r\n"},
               {"AT+CGREG?", "\r\n+CGREG: 0,2\r\n\r\nOK\r\n"},
               {"AT+CEREG?", "\r\nERROR\r\n"}},
              Check::Network,
              "bad",
              "does not accept",
              false},
        State{"Emergency_Calls",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: 0,8\r\n\r\nOK\r\n"},
               {"AT+CGREG?", "\r\nERROR\r\n"},
               {"AT+CEREG?", "\r\nERROR\r\n"}},
              Check::Network,
              "bad",
              "emergency",
              false},
        State{"Not_Searching",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: 0,0\r\n\r\nOK\r\n"},
               {"AT+CGREG?", "\r\nERROR\r\n"},
               {"AT+CEREG?", "\r\nERROR\r\n"}},
              Check::Network,
              "bad",
              "looks for none",
              false},
        State{"Network_Not_Told",
              As_Usual,
              {{"AT+CREG?", "\r\n+CREG: x\r\n\r\nOK\r\n"},
               {"AT+CGREG?", "\r\nERROR\r\n"},
               {"AT+CEREG?", "\r\n+CEREG: 0,99999999999\r\n\r\nOK\r\n"}},
              Check::Network,
              "note",
              "does not say",
              true},
        State{
            "Weak_Signal", [](Phone_Moods& m) { m.m_signal = 4; }, {}, Check::Signal, "note", "weak (-105 dBm)", true},
        State{"Fair_Signal", [](Phone_Moods& m) { m.m_signal = 5; }, {}, Check::Signal, "good", "-103 dBm", true},
        State{
            "Unknown_Signal", [](Phone_Moods& m) { m.m_signal = 99; }, {}, Check::Signal, "note", "does not say", true},
        State{"No_Centre",
              [](Phone_Moods& m) { m.m_no_smsc = true; },
              {},
              Check::Centre,
              "bad",
              "No service centre",
              false},
        State{"Centre_In_Ucs2",
              [](Phone_Moods& m) { m.m_smsc_in_ucs2 = true; },
              {},
              Check::Centre,
              "good",
              "stored",
              true},
        State{"Centre_Not_Told",
              [](Phone_Moods& m) { m.m_smsc_not_supported = true; },
              {},
              Check::Centre,
              "note",
              "does not say",
              true},
        State{"Odd_Centre",
              As_Usual,
              {{"AT+CSCA?", "\r\n+CSCA: \"Orange\",145\r\n\r\nOK\r\n"}},
              Check::Centre,
              "bad",
              "no number",
              false},
        State{"No_Messages",
              [](Phone_Moods& m) { m.m_no_sms_sending = true; },
              {},
              Check::Messages,
              "bad",
              "takes no messages",
              false},
        State{"Text_Mode_Alone",
              [](Phone_Moods& m) { m.m_text_only = true; },
              {},
              Check::Messages,
              "good",
              "takes",
              true}),
    [](const auto& one) { return std::string(one.param.name); });

namespace {

// ---------------------------------------------------------------------------------------------- what is plugged in

TEST_F(The_Doctor, Without_A_Port_Says_So_And_Names_Sticks_In_Another_Mode_First)
{
    EXPECT_THAT(Look(QStringList(), false).Marks(), ElementsAre("port:bad"));
    m_system.Add_Without_Port("12d1", "1f01", "HUAWEI");
    const Looked looked = Look(QStringList(), false);
    ASSERT_EQ(looked.findings.size(), 2);
    EXPECT_THAT(looked.findings[0].sentence.toStdString(), HasSubstr("HUAWEI (12d1:1f01) is connected as a disc"));
    EXPECT_THAT(looked.findings[0].command.toStdString(), HasSubstr("usb-modeswitch"));
}

TEST_F(The_Doctor, One_Port_Of_A_Device_Is_Enough_And_Those_For_Something_Else_Are_Named_And_Never_Opened)
{
    const Virtual_Phone positions;
    const Virtual_Phone commands;
    const Virtual_Phone second;
    const auto port = [](const char* name, const char* interface) {
        return Fake_Port{.name = name,
                         .vendor = "2c7c",
                         .product = "0125",
                         .interface = interface,
                         .maker_name = "Quectel",
                         .product_name = "EC25"};
    };
    const QStringList paths{Plug_In(positions, port("ttyUSB1", "01")), Plug_In(second, port("ttyUSB3", "03")),
                            Plug_In(commands, port("ttyUSB2", "02"))};
    // The node that a link leads to is the phone's own: the fake system knows it by that name as well.
    const System_Roots& roots = m_system.roots;
    for (const auto& [phone, name] : {std::pair(&positions, "ttyUSB1"), {&second, "ttyUSB3"}, {&commands, "ttyUSB2"}}) {
        const QString tty = roots.sys + "/class/tty/" + QFileInfo(QString::fromStdString(phone->Path())).fileName();
        ASSERT_TRUE(QFile::link(roots.sys + "/class/tty/" + name, tty));
    }
    const Looked looked = Look(paths, false);
    EXPECT_EQ(looked.ready, QStringList(paths[2]));
    EXPECT_THAT(positions.Heard(), IsEmpty());
    EXPECT_THAT(second.Heard(), IsEmpty());
    EXPECT_THAT(looked.Sentence(Finding::Check::Answer), HasSubstr("Quectel EC25 ("));
    std::string all;
    for (const Finding& finding : looked.findings)
        all += finding.sentence.toStdString() + '\n';
    EXPECT_THAT(all, HasSubstr("ttyUSB1) is for positions (GPS)"));
}

TEST_F(The_Doctor, A_Port_With_A_Lock_File_Or_A_Lock_Is_Not_Opened_And_Its_Program_Is_Named)
{
    const Virtual_Phone phone;
    const QString path = QString::fromStdString(phone.Path());
    m_system.Add_Process(1234567, "minicom");
    Write_Bytes(m_system.Path("lock/LCK.." + QFileInfo(path).fileName()), "   1234567\n");
    const Looked looked = Look(phone);
    EXPECT_THAT(looked.Marks(), ElementsAre("holder:bad"));
    EXPECT_THAT(looked.Sentence(Finding::Check::Holder), HasSubstr("in use by minicom (process 1234567)."));
    EXPECT_THAT(Doctor_Report(looked.findings).toStdString(), HasSubstr("minicom (process 1234567). End"))
        << "whoever is to end it needs its number";
    EXPECT_THAT(phone.Heard(), IsEmpty());
}

TEST_F(The_Doctor, What_Hangs_Up_Or_Is_No_Terminal_Or_Is_Not_There_Is_Said_And_Nothing_Worse)
{
    Phone_Moods moods;
    moods.m_hang_up_after_heard = 20;
    const Virtual_Phone phone(moods);
    const QString link = m_system.Node("modem");
    ASSERT_TRUE(QFile::link(QString::fromStdString(phone.Path()), link));
    EXPECT_THAT(Look(QStringList(link)).ready, IsEmpty());
    const QString file = m_system.Path("file");
    Write_Bytes(file, "no terminal");
    EXPECT_THAT(Look(QStringList(file)).Marks(), Contains("answer:bad"));
    EXPECT_EQ(Bytes_Of(file), "no terminal");
    EXPECT_THAT(Look(QStringList(m_system.Path("none"))).Marks(), ElementsAre("port:bad"));
}

TEST_F(The_Doctor, Ends_When_It_Is_Told_To)
{
    const Virtual_Phone phone;
    m_is_over = [] { return true; };
    EXPECT_THAT(Look(phone).ready, IsEmpty());
    EXPECT_THAT(phone.Heard(), IsEmpty());
}

// ------------------------------------------------------------------------------------------------------ the report

// Runs of digits that a person, a card or a device could be known by.
std::set<std::string> Long_Numbers(const std::string& text)
{
    std::set<std::string> numbers;
    std::string run;
    for (const char c : text + "\n") {
        if (c >= '0' && c <= '9') {
            run += c;
            continue;
        }
        if (run.size() > 5)
            numbers.insert(run);
        run.clear();
    }
    return numbers;
}

TEST_F(The_Doctor, The_Report_Has_Every_Line_And_No_Number_Of_A_Person_A_Card_Or_A_Device)
{
    Virtual_Phone phone;
    phone.Will_Answer("AT+CGMM", "\r\nE1550 IMEI 490154203237518\r\n\r\nOK\r\n");
    phone.Will_Answer("AT+CGMI", "\r\nof +44 7700 900-100\r\n\r\nOK\r\n");
    phone.Will_Answer("AT+CSCA?", "\r\n+CSCA: \"+447785016005\",145\r\n\r\nOK\r\n");
    phone.Says("\r\n+CMT: \"+447700900123\"\r\nMeet me at ten\r\n");
    const QString link = m_system.Node("serial/by-id/usb-HUAWEI_0123456789ABCDEF-if00-port0");
    ASSERT_TRUE(QFile::link(QString::fromStdString(phone.Path()), link));
    const Looked looked = Look(QStringList(link));
    ASSERT_EQ(looked.ready.size(), 1);
    const std::string report = Doctor_Report(looked.findings).toStdString();
    EXPECT_EQ(std::count(report.begin(), report.end(), '\n'), looked.findings.size() + 1);
    EXPECT_THAT(Long_Numbers(report), IsEmpty()) << report;
    EXPECT_THAT(report, AllOf(HasSubstr("E1550 IMEI"), Not(HasSubstr("7700")), Not(HasSubstr("ABCDEF")),
                              Not(HasSubstr("Meet me")), HasSubstr("✓ OK: The SIM card is ready.")));
}

// Numbers and texts in every place from which a device can tell any, also where nobody asks.
TEST_F(The_Doctor, Nothing_That_A_Device_Keeps_Of_People_Gets_Into_The_Report)
{
    const struct
    {
        const char* command;
        const char* answer;
    } told[] = {{"AT+CGMI", "\r\n+CMT: \"+447700900101\",,\"26/11/23\"\r\nSecret meeting\r\n\r\nMaker\r\n\r\nOK\r\n"},
                {"AT+CGMM", "\r\nE173 490154203237518\r\n\r\nOK\r\n"},
                {"AT+CGSN", "\r\n490154203237518\r\n\r\nOK\r\n"},
                {"AT+CIMI", "\r\n262071234567890\r\n\r\nOK\r\n"},
                {"AT+CNUM", "\r\n+CNUM: \"Secret\",\"+447700900102\",145\r\n\r\nOK\r\n"},
                {"AT+COPS?", "\r\n+COPS: 0,0,\"Secret 447700900103\"\r\n\r\nOK\r\n"},
                {"AT+CPBR=1,9", "\r\n+CPBR: 1,\"+447700900104\",145,\"Secret\"\r\n\r\nOK\r\n"},
                {"AT+CMGL=4", "\r\n+CMGL: 1,1,,5\r\n0791447758\r\n\r\nOK\r\n"},
                {"AT+CSCA?", "\r\n+CSCA: \"+447785016005\",145\r\n\r\nOK\r\n"},
                {"AT+CREG?", "\r\n+CREG: 2,1,\"447700\",\"90010600\"\r\n\r\nOK\r\n"},
                {"AT+CSQ", "\r\n+CSQ: 20,99\r\n\r\nOK\r\n\r\n+CLIP: \"+447700900107\",145\r\n"}};
    Virtual_Phone phone;
    for (const auto& each : told)
        phone.Will_Answer(each.command, each.answer);
    phone.Says("\r\n+CUSD: 0,\"Secret balance of 447700900108\",15\r\n");
    const Looked looked = Look(phone);
    EXPECT_EQ(looked.ready.size(), 1);
    const std::string report = Doctor_Report(looked.findings).toStdString();
    EXPECT_THAT(report, HasSubstr("Maker E(number left out)"));
    EXPECT_THAT(Long_Numbers(report), IsEmpty()) << report;
    for (const char* canary : {"Secret", "7700", "9001", "2620", "4901", "7785"})
        EXPECT_THAT(report, Not(HasSubstr(canary)));
}

TEST(Doctor_Report, Numbers_Go_However_They_Are_Written_And_What_Is_None_Stays)
{
    const struct
    {
        const char* text;
        const char* left;
    } cases[] = {
        {"+447700900100", "(number left out)"},
        {"call 0044 7700-900.100 now", "call (number left out) now"},
        {"(020) 7946 0018", "((number left out)"},
        {"\u0664\u0664\u0667\u0667\u0660\u0660\u0669", "(number left out)"},
        {"12d1:1f01", "12d1:1f01"},
        {"-105 dBm, process 12345", "-105 dBm, process 12345"},
        {"/dev/ttyUSB2", "/dev/ttyUSB2"},
        {"", ""},
    };
    for (const auto& one : cases)
        EXPECT_EQ(Without_Numbers(one.text), one.left) << Without_Numbers(one.text).toStdString();
}

} // namespace
