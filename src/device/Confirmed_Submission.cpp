#include "device/Confirmed_Session.h"

#include "platform/Waiting.h"

#include <algorithm>

namespace {

constexpr char End_Of_Message[] = "\x1A";
constexpr double Longest_Prompt = 10;
constexpr double Longest_Result = 180;
constexpr double Longest_Cancel = 1;
constexpr double Seconds_To_Notice = 10;
constexpr double Longest_Slice = 0.1; // real seconds, after which the clock and a stop are looked at
constexpr double Longest_Rest = 0.5;  // real seconds, of what had come when the time was over
constexpr double Second_Look = 0.3;

// A Telit takes no command earlier after a result.
constexpr char Slow_Maker[] = "Telit";
constexpr double Seconds_After_Result = 0.02;

using Heard = At_Conversation::Heard;

// Whether the time is over, and what had come by then has been heard.
bool Is_Over(const Heard& heard, double end)
{
    const double now = Now_Seconds();
    return now >= end && (heard.m_kind == Heard::Kind::Silence || now >= end + Longest_Rest);
}

Part_Result Kept_Back(Part_Result::Obstacle obstacle)
{
    Part_Result result;
    result.m_obstacle = obstacle;
    return result;
}

Part_Result Refused(const Device_Cause& cause)
{
    Part_Result result;
    result.m_kind = Part_Result::Kind::Refused;
    result.m_cause = cause;
    return result;
}

Part_Result Doubtful(Part_Result::Doubt doubt)
{
    Part_Result result;
    result.m_kind = Part_Result::Kind::Unknown;
    result.m_doubt = doubt;
    return result;
}

// Judges the lines that follow a message. Some devices show their prompt again, and some repeat the text, whose lines
// must not be taken for the result.
class Result_Reader
{
public:
    explicit Result_Reader(const QByteArray& body)
    {
        Answer_Lines lines;
        lines.Take(body + '\n');
        while (const auto line = lines.Next())
            m_echo.append(*line);
    }

    std::optional<Part_Result> Take(QByteArray line)
    {
        while (line.startsWith('>'))
            line = line.mid(1).trimmed();
        if (!m_echo.isEmpty() && m_echo.first() == line) {
            m_echo.removeFirst();
            return std::nullopt;
        }
        if (const auto accepted = Submission_Result(line)) {
            m_accepted.emplace();
            m_accepted->m_kind = Part_Result::Kind::Accepted;
            m_accepted->m_reference = accepted->m_reference;
            m_accepted->m_time = accepted->m_time;
            return std::nullopt;
        }
        if (line == "OK")
            return m_accepted ? *m_accepted : Doubtful(Part_Result::Doubt::Ok_Alone);
        const auto cause = Cause_Of_Line(QString::fromUtf8(line));
        if (!cause)
            return std::nullopt;
        return m_accepted ? Doubtful(Part_Result::Doubt::No_Result) : Refused(*cause);
    }

private:
    QByteArrayList m_echo;
    std::optional<Part_Result> m_accepted;
};

} // namespace

Part_Result Confirmed_Session::Submit(const Part_To_Send& part, Part_Watcher& watcher)
{
    Keep_Distance();
    Hear_Late_Results(At_Conversation::Late_Prompt::Is_Called_Off);
    if (!m_conversation.Begin(part.m_command)) {
        m_due.Clear();
        return Kept_Back(Part_Result::Obstacle::Line_Lost);
    }
    if (const auto end = Await_Prompt(watcher)) {
        m_last_result = Now_Seconds();
        return *end;
    }
    if (!watcher.May_Be_Handed_Over())
        return Leave_Prompt(Part_Result::Obstacle::Not_Recorded);
    Hear_Late_Results(At_Conversation::Late_Prompt::Is_Wanted); // what came by now cannot be this part's
    Part_Result result = Await_Result(part.m_body, watcher);
    if (m_due.May_Be_Mistaken())
        result = Look_Again(result);
    else
        Note_What_Is_Due(result);
    m_conversation.Expect_Late_Results(m_due.Are_There());
    m_last_result = Now_Seconds();
    return result;
}

void Confirmed_Session::Hear_Late_Results(At_Conversation::Late_Prompt prompt)
{
    if (m_due.Are_There() || prompt == At_Conversation::Late_Prompt::Is_Called_Off)
        m_conversation.Hear_What_Came(prompt);
    for (const Late_Result& late : m_conversation.Take_Late_Results()) {
        if (late.m_cause && prompt == At_Conversation::Late_Prompt::Is_Wanted)
            m_due.Mix(1); // it may be about this part after its prompt
        else
            m_due.Take(late);
    }
}

void Confirmed_Session::Note_What_Is_Due(const Part_Result& result)
{
    if (result.m_kind != Part_Result::Kind::Unknown)
        return;
    if (result.m_doubt == Part_Result::Doubt::No_Result)
        m_due.Add();
    else if (result.m_doubt == Part_Result::Doubt::Ok_Alone)
        m_due.Add_Reference();
    else
        m_due.Clear();
}

// What has come may be the result of an earlier part. That is sure only where two have come that say the same, or
// where a network's acceptance stays alone: then the earlier part's would have come before it.
Part_Result Confirmed_Session::Look_Again(const Part_Result& first)
{
    using Kind = Part_Result::Kind;
    const bool is_silence = first.m_kind == Kind::Unknown && first.m_doubt != Part_Result::Doubt::Ok_Alone;
    if (is_silence) {
        Note_What_Is_Due(first);
        return first;
    }
    const auto second = Await_Second_Result();
    if (first.m_kind == Kind::Accepted && !second) {
        m_due.Pass();
        return first;
    }
    if (second && first.m_kind == Kind::Accepted && second->m_kind == Kind::Accepted && m_due.Is_One()) {
        m_due.Take({first.m_reference, first.m_time, {}});
        return *second;
    }
    m_due.Mix(second ? 2 : 1);
    return Doubtful(Part_Result::Doubt::Not_Told_Apart);
}

std::optional<Part_Result> Confirmed_Session::Await_Second_Result()
{
    Result_Reader reader({});
    const double end = Now_Seconds() + Paced_Read_Timeout(Second_Look);
    for (;;) {
        const Heard heard = m_conversation.Hear(end);
        if (heard.m_kind == Heard::Kind::Gone)
            return std::nullopt;
        if (heard.m_kind == Heard::Kind::Line) {
            if (const auto result = reader.Take(heard.m_line))
                return result;
        }
        if (Is_Over(heard, end))
            return std::nullopt;
    }
}

void Confirmed_Session::Keep_Distance() const
{
    const double since_result = (Now_Seconds() - m_last_result) / Paced(1);
    if (m_maker.contains(QLatin1String(Slow_Maker), Qt::CaseInsensitive) && since_result < Seconds_After_Result)
        Wait_Seconds(Seconds_After_Result - since_result);
}

// Nothing when the prompt came.
std::optional<Part_Result> Confirmed_Session::Await_Prompt(Part_Watcher& watcher)
{
    const double end = Now_Seconds() + Paced_Read_Timeout(Longest_Prompt);
    for (;;) {
        const Heard heard = m_conversation.Hear(std::min(end, Now_Seconds() + Longest_Slice));
        if (heard.Is_Prompt())
            return std::nullopt;
        if (heard.m_kind == Heard::Kind::Gone) {
            m_due.Clear();
            return Kept_Back(Part_Result::Obstacle::Line_Lost);
        }
        const bool is_line = heard.m_kind == Heard::Kind::Line &&
                             !m_conversation.Is_Late(heard.m_line, At_Conversation::Late_Errors::May_Be_The_Commands);
        if (const auto cause = is_line ? Cause_Of_Line(QString::fromUtf8(heard.m_line)) : std::nullopt)
            return m_due.May_Be_Mistaken() ? Judge_Refusal_At_Once(*cause) : Refused(*cause);
        if (watcher.Is_Asked_To_Stop() || Program_Is_Exiting())
            return Leave_Prompt(Part_Result::Obstacle::Stopped);
        if (Is_Over(heard, end))
            return Leave_Prompt(Part_Result::Obstacle::No_Prompt);
    }
}

// An error line that may be an earlier part's result: the prompt comes all the same then.
std::optional<Part_Result> Confirmed_Session::Judge_Refusal_At_Once(const Device_Cause& cause)
{
    const double end = Now_Seconds() + Paced_Read_Timeout(Second_Look);
    for (;;) {
        const Heard heard = m_conversation.Hear(end);
        if (heard.Is_Prompt()) {
            m_due.Take({-1, {}, cause});
            return std::nullopt;
        }
        if (heard.m_kind == Heard::Kind::Gone || Is_Over(heard, end))
            break;
        if (heard.m_kind == Heard::Kind::Line)
            m_conversation.Is_Late(heard.m_line, At_Conversation::Late_Errors::May_Be_The_Commands);
    }
    Leave_Prompt(Part_Result::Obstacle::None); // it may come later than that
    return Refused(cause);
}

// The device answers the end of a message that it was never given with OK.
Part_Result Confirmed_Session::Leave_Prompt(Part_Result::Obstacle obstacle)
{
    m_conversation.Call_Off_Message();
    const double end = Now_Seconds() + Paced_Read_Timeout(Longest_Cancel);
    bool is_over = false;
    while (!is_over && Now_Seconds() < end) {
        const Heard heard = m_conversation.Hear(end);
        if (heard.m_kind == Heard::Kind::Line &&
            m_conversation.Is_Late(heard.m_line, At_Conversation::Late_Errors::May_Be_The_Commands))
            continue;
        is_over = heard.m_kind == Heard::Kind::Silence || heard.m_kind == Heard::Kind::Gone || heard.m_line == "OK" ||
                  Cause_Of_Line(QString::fromUtf8(heard.m_line));
    }
    return Kept_Back(obstacle);
}

Part_Result Confirmed_Session::Await_Result(const QByteArray& body, Part_Watcher& watcher)
{
    if (!m_conversation.Write(body + End_Of_Message)) {
        m_conversation.Call_Off_Message(); // its end has not gone out
        return Doubtful(Part_Result::Doubt::Line_Lost);
    }
    Result_Reader reader(body);
    const double begin = Now_Seconds();
    const double end = begin + Paced_Read_Timeout(Longest_Result);
    double next_notice = Seconds_To_Notice;
    for (;;) {
        const Heard heard = m_conversation.Hear(std::min(end, Now_Seconds() + Longest_Slice));
        if (heard.m_kind == Heard::Kind::Gone)
            return Doubtful(Part_Result::Doubt::Line_Lost);
        if (heard.m_kind == Heard::Kind::Line) {
            if (const auto result = reader.Take(heard.m_line))
                return *result;
        }
        if (Program_Is_Exiting())
            return Doubtful(Part_Result::Doubt::Broken_Off);
        if (Is_Over(heard, end))
            return Doubtful(Part_Result::Doubt::No_Result);
        const double waited = (Now_Seconds() - begin) / Paced(1);
        if (waited >= next_notice) {
            watcher.Still_Waiting(static_cast<int>(waited));
            next_notice = waited + 1;
        }
    }
}
