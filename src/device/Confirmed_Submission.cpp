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
    m_conversation.Hear_What_Came();
    m_conversation.Expect_Late_Result(false);
    if (!m_conversation.Begin(part.m_command))
        return Kept_Back(Part_Result::Obstacle::Line_Lost);
    if (const auto end = Await_Prompt(watcher)) {
        m_last_result = Now_Seconds();
        return *end;
    }
    if (!watcher.May_Be_Handed_Over())
        return Leave_Prompt(Part_Result::Obstacle::Not_Recorded);
    const Part_Result result = Await_Result(part.m_body, watcher);
    m_last_result = Now_Seconds();
    m_conversation.Expect_Late_Result(result.m_kind == Part_Result::Kind::Unknown);
    return result;
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
        if (heard.m_kind == Heard::Kind::Gone)
            return Kept_Back(Part_Result::Obstacle::Line_Lost);
        if (heard.m_kind == Heard::Kind::Line) {
            if (const auto cause = Cause_Of_Line(QString::fromUtf8(heard.m_line)))
                return Refused(*cause);
        }
        if (watcher.Is_Asked_To_Stop() || Program_Is_Exiting())
            return Leave_Prompt(Part_Result::Obstacle::Stopped);
        if (Is_Over(heard, end))
            return Leave_Prompt(Part_Result::Obstacle::No_Prompt);
    }
}

// The device answers the end of a message that it was never given with OK.
Part_Result Confirmed_Session::Leave_Prompt(Part_Result::Obstacle obstacle)
{
    m_conversation.Call_Off_Message();
    const double end = Now_Seconds() + Paced_Read_Timeout(Longest_Cancel);
    bool is_over = false;
    while (!is_over && Now_Seconds() < end) {
        const Heard heard = m_conversation.Hear(end);
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
