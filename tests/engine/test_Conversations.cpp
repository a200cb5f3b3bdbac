#include "engine/Confirmed_Test.h"
#include "engine/Conversation_Model.h"
#include "engine/Patient_Line.h"
#include "handset/Submit_Decoder.h"
#include "handset/Unicode_Text.h"
#include "support/Lanes.h"

// Generated conversations, against a model of their own: what is written and when, what the journal says, and what
// becomes of each row.

namespace {

constexpr int Conversations = 500;
constexpr double Talk_Pace = 10'000;
constexpr double Longest_Result = 180; // seconds

// Keeps what passes on the line, in order.
class Noted_Line : public Patient_Line
{
public:
    using Patient_Line::Patient_Line;

    struct Event
    {
        bool is_written = false;
        QByteArray bytes;
        double seconds = 0;
    };

    ssize_t Read(int descriptor, void* buffer, size_t size) override
    {
        const ssize_t count = Patient_Line::Read(descriptor, buffer, size);
        Note(false, static_cast<const char*>(buffer), count);
        return count;
    }

    ssize_t Write(int descriptor, const void* bytes, size_t size) override
    {
        const ssize_t count = Patient_Line::Write(descriptor, bytes, size);
        Note(true, static_cast<const char*>(bytes), count);
        return count;
    }

    std::vector<Event> m_events;

private:
    void Note(bool is_written, const char* bytes, ssize_t count)
    {
        if (count > 0)
            m_events.push_back({is_written, QByteArray(bytes, count), Now_Seconds()});
    }
};

// A message by its number and text, as the frame or the command before it says them.
QString Message_In(const QByteArray& body, const QByteArray& command, bool is_text_mode)
{
    const auto text_of = [](const QByteArray& hex) {
        return QString::fromStdString(Handset::Text_Of_Utf16_Octets(
            Handset::Octets_Of_Hex(hex.toStdString()).value_or(std::vector<std::uint8_t>())));
    };
    if (is_text_mode)
        return text_of(command.split('"').value(1)) + u' ' + text_of(body);
    const auto decoded = Handset::Decode_Submit(body.toStdString());
    return decoded.m_frame ? QString::fromStdString(decoded.m_frame->m_number + ' ' + decoded.m_frame->Text())
                           : QString::fromUtf8(body);
}

std::string Told(const QStringList& lines)
{
    return lines.join(u'\n').toStdString();
}

class Held_Conversation
{
public:
    explicit Held_Conversation(unsigned number)
        : m_talk(Conversation::Numbered(number)), m_expected(Expected_Of(m_talk)), m_phone(m_expected.moods)
    {
        EXPECT_TRUE(QFile::link(QString::fromStdString(m_phone.Path()), Link()));
        m_phone.Set_Listeners({{}, {}, [this] { Plug_In_Again(); }});
        m_order.device_path = Link();
        for (int row = 1; row <= static_cast<int>(m_talk.rows.size()); ++row)
            m_order.recipients.Append(m_talk.Number_Of(row), m_talk.Text_Of(row));
        m_options.folder = m_folder.filePath(QStringLiteral("Jobs"));
        m_options.keeps_journal = true;
    }

    void Take_Place()
    {
        SCOPED_TRACE(m_talk.Description());
        Stop_Flag stop;
        m_witness.m_on_row = [&] {
            if (static_cast<int>(m_witness.m_rows.size()) == m_talk.stop_after)
                stop = 1;
        };
        {
            Confirmed_Manner manner(m_order, m_options, m_witness, m_witness, stop, m_line);
            Send_Job(m_order, manner, m_witness, m_witness, stop).Send_SMS_Func();
        }
        Check_Rows();
        Check_Line();
        EXPECT_EQ(Told(Journal()), Told(m_expected.journal));
        QStringList received;
        for (const Handset_Part& part : m_phone.Parts())
            received.append(QString::fromStdString(part.m_number + ' ' + part.m_text));
        EXPECT_EQ(Told(received), Told(m_expected.received));
    }

private:
    QString Link() const { return m_folder.filePath(QStringLiteral("modem")); }

    void Plug_In_Again()
    {
        QFile::remove(Link());
        QFile::link(QString::fromStdString(m_phone.Plug_In_Again()), Link());
    }

    void Check_Rows() const
    {
        EXPECT_EQ(m_witness.States(), m_expected.states);
        std::vector<int> tries;
        std::vector<int> parts_sent;
        for (const Row_Details& row : m_witness.m_rows) {
            tries.push_back(row.tries);
            parts_sent.push_back(row.parts_sent);
            EXPECT_EQ(row.reason.isEmpty(), row.outcome.state == Row_State::Sent) << row.reason.toStdString();
        }
        EXPECT_EQ(tries, m_expected.tries);
        EXPECT_EQ(parts_sent, m_expected.parts_sent);
        EXPECT_TRUE(m_expected.holds < 0 || m_witness.m_held.size() == m_expected.holds);
        EXPECT_EQ(m_witness.m_goes_on, m_witness.m_held.size());
        const bool is_told = m_talk.stop_after == 0 || m_expected.is_stopped_by_cause ||
                             m_talk.stop_after > static_cast<int>(m_talk.rows.size());
        EXPECT_EQ(m_witness.m_told.size(), is_told ? 1 : 0);
    }

    // What was written, and that nothing was between a message's end and its result.
    void Check_Line() const
    {
        QStringList written;
        QByteArray command;
        std::size_t messages = 0;
        for (std::size_t i = 0; i < m_line.m_events.size(); ++i) {
            const QByteArray& bytes = m_line.m_events[i].bytes;
            if (!m_line.m_events[i].is_written)
                continue;
            if (bytes.endsWith('\x1A')) {
                written.append(Message_In(bytes.chopped(1), command, m_talk.is_text_mode));
                if (messages < m_expected.results.size())
                    Check_Silence_After(i, m_expected.results[messages]);
                ++messages;
            } else if (bytes.endsWith('\r')) {
                command = bytes;
                written.append(QString::fromLatin1(bytes.startsWith("AT+CMGS=") ? "AT+CMGS" : bytes.chopped(1)));
            } else {
                written.append(bytes == "\x1B" ? QStringLiteral("ESC") : QString::fromLatin1(bytes));
            }
        }
        EXPECT_EQ(messages, m_expected.results.size());
        EXPECT_EQ(Told(written), Told(m_expected.written));
    }

    void Check_Silence_After(std::size_t message, Expected_Result result) const
    {
        QByteArray heard;
        for (std::size_t i = message + 1; i < m_line.m_events.size(); ++i) {
            const Noted_Line::Event& event = m_line.m_events[i];
            if (!event.is_written) {
                heard += event.bytes;
                continue;
            }
            const bool has_final = heard.contains("OK\r") || heard.contains("ERROR") || heard.contains("NOT SUPPORT");
            const double waited = event.seconds - m_line.m_events[message].seconds;
            EXPECT_TRUE(result != Expected_Result::Said || has_final) << heard.constData();
            EXPECT_TRUE(result != Expected_Result::Silence || waited >= Paced_Read_Timeout(Longest_Result)) << waited;
            return;
        }
        EXPECT_NE(result, Expected_Result::Silence) << "the job ended without a look at the device";
    }

    // Its lines from the first part on, without times and checksums.
    QStringList Journal() const
    {
        const QDir folder(m_options.folder);
        const QStringList names = folder.entryList({QStringLiteral("*.journal")}, QDir::Files);
        QFile file(folder.filePath(names.value(0)));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QStringList lines;
        for (const QByteArray& line : file.readAll().split('\n')) {
            const QByteArrayList fields = line.split(' ');
            if (fields.size() > 2 && fields[0] != "J1")
                lines.append(QString::fromUtf8(fields.first(fields.size() - 2).join(' ')));
        }
        return lines;
    }

    Conversation m_talk;
    Expected_Talk m_expected;
    QTemporaryDir m_folder;
    Virtual_Phone m_phone;
    Noted_Line m_line{[this] { return Counts_Of(m_phone); }};
    Send_Order m_order;
    Confirmed_Options m_options;
    Job_Witness m_witness;
};

} // namespace

TEST(Generated_Conversations, Go_As_The_Model_Says)
{
    Set_Pace(Talk_Pace);
    EXPECT_TRUE(Do_In_Lanes(Conversations, [](int piece) {
        SCOPED_TRACE("conversation " + std::to_string(piece));
        Held_Conversation(static_cast<unsigned>(piece)).Take_Place();
    }));
    Set_Pace(1);
}
