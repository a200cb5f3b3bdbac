#include "engine/Conversation_Model.h"

#include "phone/Phone_Voice.h"

#include <algorithm>
#include <iterator>
#include <random>

namespace {

using Kind = Planned_Trouble::Kind;

enum class Deal
{
    Again,     // up to three times more
    Wait_Card, // until the card is ready
    Wait_Net,  // until the network is there
    Wait_Time, // for a while
    Pass_Over, // this row
    Stop,      // the job
    Doubt,     // it may have been sent
    Counts,    // as sent
};

struct Cause
{
    const char* said;
    const char* field; // in the journal
    Deal deal;
    int stops_at = 3; // rows in a row that end so
};

constexpr Cause Causes[] = {
    {"+CMS ERROR: 1", "cms:1", Deal::Pass_Over, 2},
    {"+CMS ERROR: 8", "cms:8", Deal::Stop},
    {"+CMS ERROR: 17", "cms:17", Deal::Again},
    {"+CMS ERROR: 21", "cms:21", Deal::Pass_Over},
    {"+CMS ERROR: 27", "cms:27", Deal::Pass_Over},
    {"+CMS ERROR: 38", "cms:38", Deal::Pass_Over},
    {"+CMS ERROR: 41", "cms:41", Deal::Again},
    {"+CMS ERROR: 42", "cms:42", Deal::Again},
    {"+CMS ERROR: 50", "cms:50", Deal::Stop},
    {"+CMS ERROR: 96", "cms:96", Deal::Stop},
    {"+CMS ERROR: 195", "cms:195", Deal::Pass_Over},
    {"+CMS ERROR: 196", "cms:196", Deal::Pass_Over},
    {"+CMS ERROR: 197", "cms:197", Deal::Counts},
    {"+CMS ERROR: 302", "cms:302", Deal::Wait_Time},
    {"+CMS ERROR: 310", "cms:310", Deal::Stop},
    {"+CMS ERROR: 311", "cms:311", Deal::Wait_Card},
    {"+CMS ERROR: 314", "cms:314", Deal::Again},
    {"+CMS ERROR: 322", "cms:322", Deal::Wait_Time},
    {"+CMS ERROR: 331", "cms:331", Deal::Wait_Net},
    {"+CMS ERROR: 332", "cms:332", Deal::Doubt},
    {"+CMS ERROR: 500", "cms:500", Deal::Pass_Over},
    {"+CMS ERROR: 513", "cms:513", Deal::Doubt},
    {"+CMS ERROR: 515", "cms:515", Deal::Again},
    {"+CMS ERROR: 9999", "cms:9999", Deal::Pass_Over},
    {"+CME ERROR: 13", "cme:13", Deal::Stop},
    {"+CME ERROR: 14", "cme:14", Deal::Again},
    {"+CME ERROR: 30", "cme:30", Deal::Wait_Net},
    {"+CME ERROR: 31", "cme:31", Deal::Doubt},
    {"+CME ERROR: 100", "cme:100", Deal::Pass_Over},
    {"+CMS ERROR: network timeout", "words:network%20timeout", Deal::Doubt},
    {"+CMS ERROR: Temporary failure", "words:Temporary%20failure", Deal::Again},
    {"+CMS ERROR: no reason at all", "words:no%20reason%20at%20all", Deal::Pass_Over},
    {"COMMAND NOT SUPPORT", "words:COMMAND%20NOT%20SUPPORT", Deal::Stop},
    {"MODEM ERROR: 7", "words:MODEM%20ERROR:%207", Deal::Pass_Over},
    {"ERROR", "error", Deal::Pass_Over},
};
constexpr Cause Plain_Error{"ERROR", "error", Deal::Pass_Over};

// How a phone can say all the same.
struct Way
{
    const char* name;
    void (*set)(Phone_Moods&);
};

constexpr Way Ways[] = {
    {"plain", [](Phone_Moods&) {}},
    {"no echo", [](Phone_Moods& moods) { moods.m_no_echo = true; }},
    {"prompt without a blank", [](Phone_Moods& moods) { moods.m_prompt_without_blank = true; }},
    {"prompt with a line end", [](Phone_Moods& moods) { moods.m_prompt_with_line_end = true; }},
    {"byte by byte", [](Phone_Moods& moods) { moods.m_split_answers = true; }},
    {"carriage returns alone", [](Phone_Moods& moods) { moods.m_cr_only = true; }},
    {"unsolicited lines", [](Phone_Moods& moods) { moods.m_unsolicited = true; }},
    {"lines between", [](Phone_Moods& moods) { moods.m_between_lines = Handset::Unsolicited_Lines("all"); }},
    {"no OK after CPIN", [](Phone_Moods& moods) { moods.m_cpin_without_ok = true; }},
    {"late prompt", [](Phone_Moods& moods) { moods.m_late_prompt_ms = 3; }},
    {"late answers", [](Phone_Moods& moods) { moods.m_answer_delay_ms = 2; }},
};

constexpr int Most_Retries = 3;
constexpr int First_Reference = 100;

QString Part_Name(int row, int part)
{
    return QStringLiteral("%1 %2").arg(row).arg(part);
}

// Goes through a conversation attempt by attempt.
class Walk
{
public:
    explicit Walk(const Conversation& talk) : m_talk(talk)
    {
        Ways[talk.manner].set(m_expected.moods);
        m_expected.moods.m_text_only = talk.is_text_mode;
        m_expected.moods.m_no_prompt = talk.has_no_prompt;
        m_expected.moods.m_first_reference = First_Reference;
        m_expected.moods.m_pace = 10'000;
    }

    Expected_Talk Run()
    {
        Open();
        Ask_Condition();
        Ask_Condition();
        for (m_row = 1; m_row <= Rows() && !m_is_over; ++m_row) {
            Go_Through_Row();
            m_is_over = m_is_over || m_row == m_talk.stop_after;
        }
        for (const Row_State state : m_expected.states)
            m_expected.is_ended = m_expected.is_ended && (state == Row_State::Sent || state == Row_State::Refused);
        m_expected.is_ended = m_expected.is_ended && static_cast<int>(m_expected.states.size()) == Rows();
        if (m_expected.is_ended)
            m_expected.journal.append(QStringLiteral("Z"));
        return m_expected;
    }

private:
    int Rows() const { return static_cast<int>(m_talk.rows.size()); }
    const Planned_Row& Row() const { return m_talk.rows[static_cast<std::size_t>(m_row - 1)]; }
    void Write(const char* what) { m_expected.written.append(QLatin1String(what)); }
    void Note(const QString& line) { m_expected.journal.append(line); }

    void Open()
    {
        for (const char* command : {"ESC", "AT", "ATE0", "AT+CMEE=1", "AT+CMGF=0"})
            Write(command);
        if (m_talk.is_text_mode)
            Write("AT+CMGF=1");
        for (const char* command : {"AT+CGMI", "AT+CIMI", "AT+CSCA?"})
            Write(command);
        m_coding = -1;
    }

    void Ask_Condition()
    {
        for (const char* command : {"AT", "AT+CPIN?", "AT+CREG?"})
            Write(command);
    }

    void Go_Through_Row()
    {
        m_state = Row_State::Sent;
        m_parts_sent = 0;
        m_tries = 0;
        for (m_part = 1; m_part <= Row().parts && m_state == Row_State::Sent; ++m_part) {
            m_retries = 0;
            m_vain_holds = 0;
            m_attempt = 0;
            do {
                m_is_again = false;
                Attempt();
                m_tries = std::max(m_tries, m_attempt);
            } while (m_is_again);
        }
        if (m_state == Row_State::Sent) {
            m_alike = 0;
        }
        m_expected.states.push_back(m_state);
        m_expected.tries.push_back(m_tries);
        m_expected.parts_sent.push_back(m_parts_sent);
    }

    void Attempt()
    {
        ++m_attempt;
        ++m_submissions;
        const Planned_Trouble& planned = Row().trouble;
        const bool is_hit = planned.part == m_part && m_attempt <= planned.times;
        const Kind kind = is_hit ? planned.kind : Kind::None;
        Set_Text_Mode();
        Write("AT+CMGS");
        if (m_talk.has_no_prompt)
            Give_No_Prompt();
        else if (kind == Kind::Refused_At_Once)
            Refuse_At_Once(Causes[planned.cause]);
        else if (kind == Kind::Pulled_At_The_Prompt)
            Pull_At_The_Prompt();
        else
            Hand_Over(kind, Causes[planned.cause]);
    }

    // The coding of what follows, and the centre, which some devices forget over it.
    void Set_Text_Mode()
    {
        const int coding = Row().is_ucs2 ? 8 : 0;
        if (!m_talk.is_text_mode || m_coding == coding)
            return;
        m_coding = coding;
        Write("AT+CSCS=\"GSM\"");
        m_expected.written.append(QStringLiteral("AT+CSMP=17,167,0,%1").arg(coding));
        Write("AT+CSCA=\"+15550009999\",145");
        Write("AT+CSCS=\"UCS2\"");
    }

    void Give_No_Prompt()
    {
        Write("ESC");
        Write("AT");
        m_is_again = m_retries++ < Most_Retries;
        if (m_is_again)
            return;
        Note(QStringLiteral("E %1 no-prompt").arg(Part_Name(m_row, m_part)));
        End_Row(Row_State::Refused, "no prompt", 3);
    }

    void Refuse_At_Once(const Cause& cause)
    {
        Add_Manner(Message_Manner::Kind::Refused_At_Once, cause.said);
        const bool is_plain = cause.deal == Deal::Doubt || cause.deal == Deal::Counts; // nothing has gone out
        if (m_is_result_due)
            Write("ESC"); // the prompt may come after what looks like a refusal
        Refuse(is_plain ? Cause{cause.said, cause.field, Deal::Pass_Over} : cause, false);
    }

    void Pull_At_The_Prompt()
    {
        m_expected.moods.m_hang_up_at = m_submissions;
        m_is_result_due = false;
        Come_Back();
        m_is_again = true;
    }

    void Come_Back()
    {
        m_expected.holds = -1;
        Open();
    }

    void Hand_Over(Kind kind, const Cause& cause)
    {
        Note(QStringLiteral("H %1 %2").arg(Part_Name(m_row, m_part)).arg(Row().parts));
        const QString message = m_talk.Number_Of(m_row) + u' ' + m_talk.Text_Of_Part(m_row, m_part);
        m_expected.written.append(message);
        m_expected.results.push_back(kind == Kind::Pulled_In_The_Body                     ? Expected_Result::Gone
                                     : kind == Kind::Late || kind == Kind::Without_Result ? Expected_Result::Silence
                                                                                          : Expected_Result::Said);
        const bool is_taken = kind != Kind::Refused && kind != Kind::Second_Prompt && kind != Kind::Pulled_In_The_Body;
        if (is_taken)
            m_expected.received.append(message);
        const int reference = (First_Reference + m_taken) % 256;
        m_taken += is_taken ? 1 : 0;
        End_Attempt(kind, cause, reference);
    }

    // While a result is due that has not come, a refusal may be that one.
    bool Is_Doubtful(Kind kind) const
    {
        return m_is_result_due && (kind == Kind::Refused || kind == Kind::Refused_Though_Sent ||
                                   kind == Kind::Second_Prompt || kind == Kind::Without_Reference);
    }

    void Add_Doubtful_Manner(Kind kind, const Cause& cause)
    {
        switch (kind) {
        case Kind::Refused:
            Add_Manner(Message_Manner::Kind::Refused, cause.said);
            break;
        case Kind::Refused_Though_Sent:
            Add_Manner(Message_Manner::Kind::Refused_Though_Sent, cause.said);
            break;
        case Kind::Second_Prompt:
            Add_Manner(Message_Manner::Kind::Second_Prompt);
            break;
        default:
            Add_Manner(Message_Manner::Kind::Without_Reference);
            break;
        }
    }

    void End_Attempt(Kind kind, const Cause& cause, int reference)
    {
        if (Is_Doubtful(kind)) {
            Add_Doubtful_Manner(kind, cause);
            Write("AT");
            Leave_In_Doubt("not-told-apart");
            return;
        }
        switch (kind) {
        case Kind::Refused:
        case Kind::Refused_Though_Sent:
            Add_Manner(kind == Kind::Refused ? Message_Manner::Kind::Refused
                                             : Message_Manner::Kind::Refused_Though_Sent,
                       cause.said);
            Refuse(cause);
            return;
        case Kind::Second_Prompt:
            Add_Manner(Message_Manner::Kind::Second_Prompt);
            Refuse(Plain_Error);
            return;
        case Kind::Without_Reference:
            Add_Manner(Message_Manner::Kind::Without_Reference);
            Write("AT");
            Leave_In_Doubt("ok-alone");
            return;
        case Kind::Without_Result:
            Add_Manner(Message_Manner::Kind::Without_Result);
            Write("AT");
            Leave_In_Doubt("no-result");
            m_is_result_due = true;
            return;
        case Kind::Pulled_In_The_Body:
            m_expected.moods.m_hang_up_in_body_at = m_submissions;
            Leave_In_Doubt("line-lost");
            m_is_result_due = false;
            if (!m_is_over)
                Come_Back();
            return;
        case Kind::Late:
            Add_Manner(Message_Manner::Kind::At_The_Next_Command);
            Write("AT");
            if (m_is_result_due) { // and may be the earlier one
                Leave_In_Doubt("no-result");
                return;
            }
            break;
        case Kind::Slow:
            Add_Manner(Message_Manner::Kind::Delayed);
            break;
        default:
            break;
        }
        Be_Sent(QString::number(reference));
    }

    // Devices answer in order: what an earlier message has not been told by now it never will be.
    void Be_Sent(const QString& reference)
    {
        m_is_result_due = false;
        Note(QStringLiteral("S %1 %2").arg(Part_Name(m_row, m_part), reference));
        ++m_parts_sent;
    }

    void Leave_In_Doubt(const char* why)
    {
        Note(QStringLiteral("U %1 %2").arg(Part_Name(m_row, m_part), QLatin1String(why)));
        End_Row(Row_State::May_Have_Been_Sent, why, 3);
    }

    // A row that waits before anything was handed over is as it was.
    void Refuse(const Cause& cause, bool is_handed_over = true)
    {
        if (cause.deal == Deal::Doubt) {
            Leave_In_Doubt(cause.field);
            return;
        }
        if (cause.deal == Deal::Counts) {
            Be_Sent(QStringLiteral("-"));
            return;
        }
        const bool waits =
            cause.deal == Deal::Wait_Card || cause.deal == Deal::Wait_Net || cause.deal == Deal::Wait_Time;
        // The phone always says that its card is ready and its network there.
        const bool is_in_vain = cause.deal == Deal::Wait_Card || cause.deal == Deal::Wait_Net;
        m_is_again = (cause.deal == Deal::Again && m_retries++ < Most_Retries) || cause.deal == Deal::Wait_Time ||
                     (is_in_vain && m_vain_holds++ < Most_Retries);
        if (is_handed_over || !waits || !m_is_again)
            Note(QStringLiteral("E %1 %2").arg(Part_Name(m_row, m_part),
                                               QLatin1String(m_is_again ? "again:" : "") + QLatin1String(cause.field)));
        if (m_is_again && is_in_vain) {
            Write("AT");
            Ask_Condition();
        }
        if (m_is_again && waits)
            Hold();
        if (!m_is_again)
            End_Row(Row_State::Refused, cause.field, cause.deal == Deal::Stop ? 1 : cause.stops_at);
    }

    void Hold()
    {
        m_expected.holds += m_expected.holds >= 0 ? 1 : 0;
        m_coding = -1;
    }

    void End_Row(Row_State state, const char* end, int stops_at)
    {
        m_state = state;
        m_alike = m_last_end == end && m_alike > 0 ? m_alike + 1 : 1;
        m_last_end = end;
        m_expected.is_stopped_by_cause = m_alike >= stops_at;
        m_is_over = m_expected.is_stopped_by_cause;
    }

    void Add_Manner(Message_Manner::Kind kind, const char* text = "")
    {
        Message_Manner manner;
        manner.m_kind = kind;
        manner.m_from = manner.m_to = m_submissions;
        manner.m_text = text;
        manner.m_seconds = 40;
        m_expected.moods.m_message_manners.push_back(manner);
    }

    const Conversation& m_talk;
    Expected_Talk m_expected;
    int m_row = 1;
    int m_part = 1;
    int m_attempt = 0;     // at this part
    int m_submissions = 0; // AT+CMGS in all
    int m_taken = 0;       // by the network
    int m_retries = 0;
    int m_vain_holds = 0;
    int m_tries = 0;
    int m_parts_sent = 0;
    int m_coding = -1;
    int m_alike = 0;
    std::string m_last_end;
    bool m_is_result_due = false;
    bool m_is_again = false;
    bool m_is_over = false;
    Row_State m_state = Row_State::Sent;
};

// What else can go wrong is chosen as often as a cause.
Planned_Trouble Random_Trouble(std::mt19937& dice, int parts, bool may_be_pulled)
{
    const auto roll = [&](int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); };
    Planned_Trouble trouble;
    const int most = may_be_pulled ? 11 : 9;
    trouble.kind = roll(10) < 3 ? Kind::None : static_cast<Kind>(1 + roll(most - 1));
    trouble.cause = roll(std::size(Causes));
    trouble.part = 1 + roll(parts);
    const bool is_pulled = trouble.kind == Kind::Pulled_At_The_Prompt || trouble.kind == Kind::Pulled_In_The_Body;
    trouble.times = is_pulled ? 1 : 1 + roll(5);
    return trouble;
}

} // namespace

Conversation Conversation::Numbered(unsigned number)
{
    std::mt19937 dice(number);
    const auto roll = [&](int sides) { return static_cast<int>(dice() % static_cast<unsigned>(sides)); };
    Conversation talk;
    talk.is_text_mode = roll(3) == 0;
    talk.has_no_prompt = roll(25) == 0;
    talk.manner = roll(std::size(Ways));
    talk.rows.resize(3 + static_cast<std::size_t>(roll(3)));
    talk.stop_after = roll(6) == 0 ? 1 + roll(3) : 0;
    const bool are_alike = roll(5) == 0;
    bool may_be_pulled = roll(4) == 0;
    for (Planned_Row& row : talk.rows) {
        row.parts = 1 + roll(3);
        row.is_ucs2 = roll(4) == 0;
        row.trouble = Random_Trouble(dice, row.parts, may_be_pulled);
        may_be_pulled = may_be_pulled && row.trouble.kind < Kind::Pulled_At_The_Prompt;
        const Planned_Trouble& first = talk.rows.front().trouble;
        if (are_alike && first.kind < Kind::Pulled_At_The_Prompt) {
            row.trouble = first;
            row.trouble.part = 1;
        }
    }
    return talk;
}

std::string Conversation::Description() const
{
    std::string text = std::string(is_text_mode ? "text mode, " : "PDU mode, ") + Ways[manner].name;
    text += has_no_prompt ? ", no prompt" : "";
    text += stop_after > 0 ? ", stopped after " + std::to_string(stop_after) : "";
    for (const Planned_Row& row : rows)
        text += "; " + std::to_string(row.parts) + (row.is_ucs2 ? " parts in UCS2" : " parts") + ", trouble " +
                std::to_string(static_cast<int>(row.trouble.kind)) + " at " + std::to_string(row.trouble.part) + " x" +
                std::to_string(row.trouble.times) + " " + Causes[row.trouble.cause].said;
    return text;
}

QString Conversation::Number_Of(int row) const
{
    return QStringLiteral("07009001%1").arg(row, 2, 10, QLatin1Char('0'));
}

// 3GPP TS 23.040, 9.2.3.24.1: what a part has room for beside its header; in text mode there is none.
QString Conversation::Text_Of(int row) const
{
    const Planned_Row& planned = rows[static_cast<std::size_t>(row - 1)];
    QString text;
    for (int part = 1; part <= planned.parts; ++part)
        text += Text_Of_Part(row, part);
    return text;
}

QString Conversation::Text_Of_Part(int row, int part) const
{
    const Planned_Row& planned = rows[static_cast<std::size_t>(row - 1)];
    const int whole = planned.is_ucs2 ? (is_text_mode ? 70 : 67) : (is_text_mode ? 160 : 153);
    const QString name = QStringLiteral("Row %1, part %2 ").arg(row).arg(part);
    const QChar filling = planned.is_ucs2 ? QChar(0x42F) : QChar(u'x');
    return name.leftJustified(part < planned.parts ? whole : 30, filling);
}

Expected_Talk Expected_Of(const Conversation& conversation)
{
    return Walk(conversation).Run();
}
