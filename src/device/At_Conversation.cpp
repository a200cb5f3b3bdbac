#include "device/At_Conversation.h"

#include "handset/Report_Line.h"
#include "platform/Log_Line.h"
#include "platform/Waiting.h"

#include <QLatin1String>
#include <algorithm>
#include <string_view>

namespace {

constexpr double Longest_Drop = 2;
constexpr double Longest_Wait_For_Ok = 0.5;
constexpr double Longest_Hearing = 0.02;   // real seconds
constexpr double Between_Questions = 0.05; // real seconds
constexpr double Longest_Talk = 0.5;       // real seconds of reports in a row
constexpr qsizetype Most_Lines = 4096;     // of one answer

void Log_Exchange(const char* what, const QByteArray& bytes)
{
    Show_NSLog_Message(QLatin1String(what) + QLatin1String(" \"") + QString::fromUtf8(bytes) + QLatin1Char('"'));
}

// A received message and a broadcast always stand below their line, a status report in PDU mode alone.
bool Announces_Frame(const QByteArray& line)
{
    return line.startsWith("+CMT:") || line.startsWith("+CBM:") ||
           Handset::Announces_A_Report(std::string_view(line.constData(), static_cast<std::size_t>(line.size())));
}

// A value alone begins with none of the signs of other lines, and is not the command's echo.
bool Answers(const QByteArray& line, const QByteArray& prefix)
{
    if (prefix == At_Conversation::Any_Line)
        return true;
    if (prefix != At_Conversation::Any_Value)
        return !prefix.isEmpty() && line.startsWith(prefix);
    return !QByteArrayView("+^*$%_").contains(line.front()) && !line.startsWith("AT") && line != "RING";
}

} // namespace

std::optional<Late_Result> Submission_Result(const QByteArray& line)
{
    constexpr QByteArrayView prefix = "+CMGS:";
    if (!line.startsWith(prefix))
        return std::nullopt;
    const QByteArray fields = line.mid(prefix.size());
    const qsizetype comma = fields.indexOf(',');
    bool is_number = false;
    const int reference = fields.first(comma < 0 ? fields.size() : comma).trimmed().toInt(&is_number);
    if (!is_number || reference < 0 || reference > 255)
        return std::nullopt;
    return Late_Result{reference, comma < 0 ? QByteArray() : fields.mid(comma + 1).trimmed(), std::nullopt};
}

bool At_Conversation::Begin(const QByteArray& command)
{
    Log_Exchange("Write", command);
    return m_line.Write(command + '\r');
}

At_Answer At_Conversation::Ask(const QByteArray& command, double seconds, const QByteArray& prefix, Ok_Line ok_line)
{
    if (!Begin(command))
        return {At_End::Gone, {}, {}};
    At_Answer answer;
    double end = Now_Seconds() + Paced_Read_Timeout(seconds);
    do { // what has come when the time is over is heard, but some devices never stop talking
        const Heard heard = Hear(end);
        switch (heard.m_kind) {
        case Heard::Kind::Gone:
            answer.m_end = At_End::Gone;
            return answer;
        case Heard::Kind::Silence:
            if (ok_line == Ok_Line::May_Be_Missing && !answer.m_lines.isEmpty())
                answer.m_end = At_End::Ok;
            return answer;
        case Heard::Kind::Prompt:
        case Heard::Kind::Line:
            break;
        }
        if (heard.Is_Prompt()) {
            Call_Off_Message();
            continue;
        }
        if (Is_Late(heard.m_line, command == "AT" ? Late_Errors::Are_Noted : Late_Errors::May_Be_The_Commands))
            continue;
        answer.m_cause = Cause_Of_Line(QString::fromUtf8(heard.m_line));
        if (answer.m_cause || heard.m_line == "OK") {
            answer.m_end = answer.m_cause ? At_End::Refused : At_End::Ok;
            return answer;
        }
        if (answer.m_lines.size() < Most_Lines && Answers(heard.m_line, prefix)) {
            answer.m_lines.append(heard.m_line);
            if (ok_line == Ok_Line::May_Be_Missing)
                end = std::min(end, Now_Seconds() + Paced_Read_Timeout(Longest_Wait_For_Ok));
        }
    } while (Now_Seconds() < end + Longest_Talk);
    return answer;
}

At_Conversation::Heard At_Conversation::Hear(double end)
{
    const double end_of_talk = std::max(end, Now_Seconds() + Longest_Talk);
    while (Now_Seconds() < end_of_talk) {
        while (const auto line = m_lines.Next()) {
            Log_Exchange("Read", *line);
            if (!Is_Report(*line))
                return {Heard::Kind::Line, *line};
        }
        if (m_lines.Take_Prompt())
            return {Heard::Kind::Prompt, {}};
        QByteArray bytes;
        const double left = std::max(end - Now_Seconds(), 0.0);
        switch (m_line.Read(bytes, m_is_over ? std::min(left, Between_Questions) : left)) {
        case Device_Line::Event::Bytes:
            m_lines.Take(bytes);
            break;
        case Device_Line::Event::Timed_Out:
            if (!m_is_over || Program_Is_Exiting() || Now_Seconds() >= end)
                return {Heard::Kind::Silence, {}};
            if (m_is_over())
                return {Heard::Kind::Gone, {}};
            break;
        case Device_Line::Event::Gone:
            return {Heard::Kind::Gone, {}};
        }
    }
    return {Heard::Kind::Silence, {}};
}

void At_Conversation::Drop_Input(double silent_seconds)
{
    const double end = Now_Seconds() + Paced_Read_Timeout(Longest_Drop);
    QByteArray bytes;
    while (Now_Seconds() < end && m_line.Read(bytes, Paced_Read_Timeout(silent_seconds)) == Device_Line::Event::Bytes) {
        m_lines.Take(bytes);
        while (const auto line = m_lines.Next())
            Is_Late(*line, Late_Errors::May_Be_The_Commands);
    }
    m_lines.Forget();
    m_frame_is_due.reset();
}

void At_Conversation::Expect_Late_Results(bool are_expected)
{
    m_are_late_expected = are_expected;
    m_late_taken.reset();
    m_late_results.clear();
}

void At_Conversation::Hear_What_Came(Late_Prompt prompt)
{
    // Some devices never stop talking.
    for (const double end = Now_Seconds() + Longest_Hearing; Now_Seconds() < end;) {
        const Heard heard = Hear(0);
        if (heard.m_kind == Heard::Kind::Silence || heard.m_kind == Heard::Kind::Gone)
            return;
        if (!heard.Is_Prompt())
            Is_Late(heard.m_line, Late_Errors::Are_Noted);
        else if (prompt == Late_Prompt::Is_Called_Off)
            Call_Off_Message();
    }
}

bool At_Conversation::Is_Late(const QByteArray& line, Late_Errors errors)
{
    if (!m_are_late_expected)
        return false;
    if (const auto result = Submission_Result(line)) {
        m_late_taken = result;
        return true;
    }
    if (m_late_taken && line == "OK") {
        m_late_results.append(*std::exchange(m_late_taken, std::nullopt));
        return true;
    }
    if (errors == Late_Errors::Are_Noted && line.startsWith("+CMS ERROR")) {
        m_late_results.append({-1, {}, Cause_Of_Line(QString::fromUtf8(line))});
        return true;
    }
    return false;
}

// A report's frame is the next line, and nothing may stand between the two.
bool At_Conversation::Is_Report(const QByteArray& line)
{
    if (m_frame_is_due) {
        const Raw_Report report{*std::exchange(m_frame_is_due, std::nullopt), line};
        if (report.m_line.startsWith("+CDS:") && m_on_report)
            m_on_report(report);
        return true;
    }
    if (Announces_Frame(line)) {
        m_frame_is_due = line;
        return true;
    }
    if (!line.startsWith("+CDS:") && !line.startsWith("+CDSI:"))
        return false;
    if (m_on_report)
        m_on_report({line, {}});
    return true;
}
