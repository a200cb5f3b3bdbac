#include "windows/main/Line_Test.h"

#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace {

constexpr double Fast_Pace = 1000;

// Nobody knows when the answer of one who never stops talking has arrived: reads that are judged last longer.
constexpr double Preparing_A_Talker = 10;
constexpr double Sending_To_A_Talker = 100;

int Open_Descriptors()
{
    const QDir descriptors(QStringLiteral("/proc/self/fd"));
    return static_cast<int>(descriptors.entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

// Until a program opens a terminal and makes it raw, the system throws back into the phone what the phone says.
void Make_Raw(const std::string& path)
{
    const int descriptor = ::open(path.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    termios settings{};
    EXPECT_EQ(::tcgetattr(descriptor, &settings), 0);
    cfmakeraw(&settings);
    EXPECT_EQ(::tcsetattr(descriptor, TCSANOW, &settings), 0);
    ::close(descriptor);
}

// A text in which no two pieces are alike. In Unicode every part has an octet above 127.
QString Numbered_Text(const QString& name, bool unicode, int length)
{
    QString text = name;
    for (int word = 1; text.size() < length; ++word)
        text += (unicode ? QString::fromUtf8("-жéň字") : QStringLiteral("-next")) + QString::number(word);
    return text.left(length);
}

const char* const Session_Lines[] = {"Write \"", "Standard SMS ", "Long SMS ", "Short SMS ",
                                     "UNICODE ", "\n------ ",     "Both PDU ", "Only "};

} // namespace

std::vector<Line_Item> Line_Items(const Line_Way& way)
{
    const int length = !way.is_long ? 14 : way.unicode ? 100 : 200;
    return {{"07700900123", Numbered_Text("one", way.unicode, length)},
            {"07700900456", Numbered_Text("two", way.unicode, length)}};
}

Line_Test::Line_Test(const Phone_Moods& moods, const Line_Way& way)
    : Sending_Test(moods), m_way(way), m_items(Line_Items(way))
{
    Set_Pace(Fast_Pace);
    if (moods.m_never_stops_talking)
        Bear_With_A_Talker();
    Link();
    sel_port_bsd_str = Device();
    m_window.m_choices.save_sent_items = m_window.m_choices.save_templates = true;
    m_window.m_choices.unicode = way.unicode;
    for (const auto& item : m_items)
        Add(item.number, item.message);
}

Line_Test::~Line_Test() = default;

void Line_Test::Bear_With_A_Talker()
{
    Make_Raw(m_phone.Path());
    Set_Pace(Preparing_A_Talker);
    At_Step("sending", [] { Set_Pace(Sending_To_A_Talker); });
}

void Line_Test::Link()
{
    m_link.reset();
    m_link = std::make_unique<Handset::Path_Link>();
    EXPECT_EQ(m_link->Make(Device().toStdString(), m_phone.Path()), "");
}

void Line_Test::Pull()
{
    m_phone.Hang_Up();
    m_link.reset();
}

void Line_Test::Lift_Moods()
{
    m_phone.Set_Moods({});
    m_phone.Forget();
    m_progress.m_at_step = nullptr;
    Set_Pace(Fast_Pace);
}

void Line_Test::Plug_In_Again()
{
    m_phone.Set_Moods({});
    Link_To_New_Line();
    Lift_Moods();
}

void Line_Test::Link_To_New_Line()
{
    m_phone.Plug_In_Again();
    Link();
}

QString Line_Test::Text_Of(Line_Box box)
{
    return box == Line_Box::No_Modem ? No_Modem : box == Line_Box::Connection_Error ? Connection_Error : Completed;
}

void Line_Test::Send_With_One_Box()
{
    m_user.Will_Press("OK");
    Send();
    Expect_The_Line_Free();
    Expect_The_List_As_It_Was();
}

void Line_Test::Send_And_Expect(const Line_Outcome& outcome)
{
    Send_With_One_Box();
    EXPECT_EQ(m_user.Was_Shown(), QStringList{Text_Of(outcome.box)});
    EXPECT_EQ(m_progress.Steps().filter(QStringLiteral(" / ")).size(), outcome.shown);
    EXPECT_EQ(m_phone.Is_Hung_Up(), outcome.is_hung_up);
    Expect_On_The_Wire(outcome);
    Expect_Records(outcome.recorded);
}

void Line_Test::Expect_On_The_Wire(const Line_Outcome& outcome)
{
    QStringList heard;
    for (const std::string& line : m_phone.Heard())
        if (line.starts_with("AT")) // a body that no prompt preceded is heard as a line, too
            heard.append(QString::fromStdString(line));
    if (outcome.may_give_up_at_once && heard.size() == 1) {
        EXPECT_EQ(heard, outcome.commands.mid(0, 1));
    } else {
        EXPECT_EQ(heard, outcome.commands);
        EXPECT_EQ(Session_Log(), outcome.log);
    }
    EXPECT_EQ(Received(), outcome.inbox);
    EXPECT_EQ(static_cast<int>(m_phone.Parts().size()), outcome.parts);
}

// What the session logs of its own doing, a PDU as "PDU".
QStringList Line_Test::Session_Log() const
{
    QStringList lines;
    for (const std::string& text : m_log.All()) {
        const bool is_pdu = !m_way.text_mode && text.starts_with("Write \"00");
        if (std::any_of(std::begin(Session_Lines), std::end(Session_Lines),
                        [&](const char* beginning) { return text.starts_with(beginning); }))
            lines.append(is_pdu ? "Write \"PDU\"\n" : QString::fromStdString(text));
    }
    return lines;
}

void Line_Test::Expect_Records(int items)
{
    m_records.clear();
    QByteArray templates;
    for (int item = 0; item < items; ++item) {
        const Line_Item& sent = m_items.at(static_cast<std::size_t>(item));
        m_records += Record(sent.number, sent.message);
        templates += sent.message.toUtf8() + "\n";
    }
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), m_records);
    EXPECT_EQ(Bytes_Of(Templates_Path), templates);
}

void Line_Test::Expect_The_List_As_It_Was()
{
    const auto& list = m_window.Recipients();
    ASSERT_EQ(list.Count(), static_cast<int>(m_items.size()));
    for (int item = 0; item < list.Count(); ++item) {
        EXPECT_EQ(list.At(item).Number, m_items.at(static_cast<std::size_t>(item)).number);
        EXPECT_EQ(list.At(item).Message, m_items.at(static_cast<std::size_t>(item)).message);
    }
}

// Nobody has the phone's line open, and no job leaves a descriptor but those that the program makes once and keeps.
void Line_Test::Expect_The_Line_Free()
{
    constexpr int kept = 4;
    static const int open_at_first = Open_Descriptors();
    EXPECT_FALSE(m_phone.Somebody_Is_There());
    EXPECT_TRUE(Serve_Until([] { return Open_Descriptors() <= open_at_first + kept; }, 5))
        << Open_Descriptors() << " descriptors are open, after the first job " << open_at_first;
}

void Line_Test::Expect_The_Next_Job_To_Work()
{
    m_window.m_recipients.Clear();
    m_window.m_choices.unicode = false;
    Add("07700900789", "ready");
    Send_And_Read({Completed});
    EXPECT_EQ(Received(), QStringList("07700900789: ready"));
    EXPECT_EQ(m_phone.Heard().size(), 7U);
    EXPECT_EQ(Bytes_Of(Sent_Item_Path), m_records + Record("07700900789", "ready"));
    Expect_The_Line_Free();
}

void Line_In_Moods::TestBody()
{
    const Line_Outcome outcome = Expected_Outcome(m_moods, m_way, m_items);
    Send_And_Expect(outcome);
    if (outcome.is_lost)
        Plug_In_Again();
    else
        Lift_Moods();
    Expect_The_Next_Job_To_Work();
}

bool Register_Combinations(const char* suite, const std::vector<Line_Combination>& combinations)
{
    for (const auto& combination : combinations)
        testing::RegisterTest(suite, combination.Name().c_str(), nullptr, nullptr, __FILE__, __LINE__,
                              [combination]() -> Line_Test* { return new Line_In_Moods(combination); });
    return true;
}
