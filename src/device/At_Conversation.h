#pragma once

#include "device/Answer_Lines.h"
#include "device/Device_Cause.h"
#include "device/Device_Line.h"

#include <QByteArrayList>
#include <functional>

/// What a device says about a message after nobody waits for it any longer.
struct Late_Result
{
    int m_reference = -1; ///< of a message that the network took
    QByteArray m_time;    ///< the service centre's time stamp where the device gave one
    std::optional<Device_Cause> m_cause;
};

/// What a device says unasked and somebody may want: "+CDS: ..." or "+CDSI: ..." and, for the former, the line with its
/// frame, empty where the report stands on one line.
struct Raw_Report
{
    QByteArray m_line;
    QByteArray m_frame;
};

/// The end of an exchange.
enum class At_End
{
    Ok,
    Refused,   ///< an error line; the cause says which
    No_Answer, ///< not in time, or the program is exiting
    Gone       ///< the line hung up
};

struct At_Answer
{
    At_End m_end = At_End::No_Answer;
    QByteArrayList m_lines; ///< those that begin with the prefix that was asked for
    std::optional<Device_Cause> m_cause;
};

/// Commands and their answers on a device's line, driven by what comes: an exchange ends with its last line and waits
/// for nothing else. Lines that the device says unasked may stand anywhere. One thread at a time.
class At_Conversation
{
public:
    /// What was heard next.
    struct Heard
    {
        enum class Kind
        {
            Line,
            Prompt,
            Silence,
            Gone
        };
        Kind m_kind = Kind::Silence;
        QByteArray m_line;

        bool Is_Prompt() const { return m_kind == Kind::Prompt || m_line == ">"; }
    };

    explicit At_Conversation(Device_Line& line) : m_line(line) {}

    /// Long enough for a command that waits for nothing but the device itself, in seconds at pace 1.
    static constexpr double Usual_Answer = 5;

    /// Stand for lines that say a value alone, such as an identity, and for all lines, such as those of a list.
    static constexpr char Any_Value[] = "*";
    static constexpr char Any_Line[] = "**";

    enum class Ok_Line
    {
        Comes,
        May_Be_Missing ///< some devices leave it out after the line with the prefix
    };

    /// Writes a command, which gets its carriage return here, and hears its answer, for at most a time in seconds at
    /// pace 1.
    At_Answer Ask(const QByteArray& command, double seconds, const QByteArray& prefix = {},
                  Ok_Line ok_line = Ok_Line::Comes);

    /// Writes a command alone, with its carriage return; whether it went out.
    bool Begin(const QByteArray& command);
    bool Write(const QByteArray& bytes) { return m_line.Write(bytes); }
    /// The next line or prompt that is not a report; Silence at the end, on the clock of Now_Seconds.
    Heard Hear(double end);
    /// Reads until the device has been silent for a time, at most two seconds, both at pace 1. Nothing is kept but late
    /// results.
    void Drop_Input(double silent_seconds);

    enum class Late_Errors
    {
        Are_Noted,
        May_Be_The_Commands ///< a refusal of the command that was asked; only what a message alone gets is noted
    };
    enum class Late_Prompt
    {
        Is_Called_Off, ///< what came next would become a message's text
        Is_Wanted
    };

    /// From now on, until it is said otherwise, results of earlier messages are noted that come apart from a message's
    /// own. What was noted before and not taken is forgotten.
    void Expect_Late_Results(bool are_expected);
    /// Takes in what has come since the last exchange, without waiting.
    void Hear_What_Came(Late_Prompt prompt = Late_Prompt::Is_Called_Off);
    QList<Late_Result> Take_Late_Results() { return std::exchange(m_late_results, {}); }
    /// Whether a line belongs to an earlier message; it has been noted then.
    bool Is_Late(const QByteArray& line, Late_Errors errors);
    /// Leaves a prompt that nobody wants: what came next would become a message's text.
    void Call_Off_Message() { Write("\x1B"); }

    /// Asked time and again while nothing comes: as soon as it answers yes the line counts as gone. Empty for never.
    void Set_End(std::function<bool()> is_over) { m_is_over = std::move(is_over); }

    /// Receives the reports that come; empty for nobody.
    void Set_Report_Listener(std::function<void(const Raw_Report&)> listener) { m_on_report = std::move(listener); }

private:
    bool Is_Report(const QByteArray& line);

    Device_Line& m_line;
    Answer_Lines m_lines;
    std::function<void(const Raw_Report&)> m_on_report;
    std::function<bool()> m_is_over;
    std::optional<QByteArray> m_frame_is_due; // the first line of a report whose frame follows
    bool m_are_late_expected = false;
    std::optional<Late_Result> m_late_taken; // "+CMGS" has come, its OK has not
    QList<Late_Result> m_late_results;
};

/// What "+CMGS: <mr>[,<scts>]" says (3GPP TS 27.005, 3.5.1); nothing for any other line and where no reference from 0
/// to 255 stands there.
std::optional<Late_Result> Submission_Result(const QByteArray& line);
