#pragma once

#include "device/At_Conversation.h"
#include "device/Delivery_Reports.h"
#include "device/Results_Due.h"
#include "device/Sim_State.h"

#include <QString>

class Stop_Flag;

enum class Registration
{
    Unknown,
    Registered, ///< at home or roaming
    Searching,
    Denied
};

/// What a device says about its readiness to send.
struct Device_Condition
{
    Sim_State m_sim = Sim_State::Unknown;
    Registration m_registration = Registration::Unknown;
    bool m_answers = false;
};

/// What became of one part that was to be handed over.
struct Part_Result
{
    enum class Kind
    {
        Accepted,       ///< the network took it: "+CMGS: n" and OK
        Refused,        ///< the device said an error; m_cause says which
        Unknown,        ///< it may have been sent; m_doubt says why nobody knows
        Not_Handed_Over ///< nothing was sent, and m_obstacle says why
    };
    enum class Doubt
    {
        None,
        No_Result, ///< none came in time
        Ok_Alone,  ///< OK, but no reference
        Line_Lost,
        Broken_Off,    ///< the program was told to end at once
        Not_Told_Apart ///< what came may be the result of an earlier part that had got none
    };
    enum class Obstacle
    {
        None,
        No_Prompt,
        Line_Lost,
        Stopped,
        Not_Recorded ///< what must be on the disk before could not be written
    };
    Kind m_kind = Kind::Not_Handed_Over;
    int m_reference = -1;
    QByteArray m_time; ///< the service centre's, where the device gave it
    std::optional<Device_Cause> m_cause;
    Doubt m_doubt = Doubt::None;
    Obstacle m_obstacle = Obstacle::None;
};

/// What a submission asks and tells while it runs, on its thread.
class Part_Watcher
{
public:
    virtual ~Part_Watcher() = default;

    /// The device takes the part next. Whether it may: what has to be on the disk by then is.
    virtual bool May_Be_Handed_Over() = 0;
    /// Asked while the device has not been given the part: whether to leave it.
    virtual bool Is_Asked_To_Stop() = 0;
    /// The result has not come for so many whole seconds at pace 1; from 10 on, once a second.
    virtual void Still_Waiting(int seconds) = 0;
};

/// One part as the device is given it.
struct Part_To_Send
{
    QByteArray m_command; ///< "AT+CMGS=...", without a line end
    QByteArray m_body;    ///< without the end-of-message character
};

/// Sending that is judged by the device's own answers. Opens the device for itself alone and says what each part came
/// to; between the end of a message and its result it writes nothing. One thread at a time.
class Confirmed_Session
{
public:
    enum class Opening
    {
        Ready,
        Does_Not_Open, ///< Error() is the system's
        No_Modem,      ///< nothing that understands AT
        No_Messages    ///< neither PDU mode nor text mode
    };

    explicit Confirmed_Session(const QString& path, Serial_Calls& calls = Real_Serial_Calls());

    /// Whether the device can be opened; it stays open.
    bool Open_Line() { return m_line.Open(); }
    /// Opens it, calls off what an earlier program may have left begun, and prepares the device for messages.
    Opening Open();
    int Error() const { return m_line.Error(); }
    /// Ends whatever waits for the device, as if it were gone, once this answers yes.
    void Set_End(std::function<bool()> is_over) { m_conversation.Set_End(std::move(is_over)); }
    void Close() { m_line.Close(); }

    bool Is_Text_Mode() const { return m_is_text_mode; }
    /// The SIM card's IMSI and the device's maker as far as they said so; empty otherwise.
    QString Imsi() const { return m_imsi; }
    QString Maker() const { return m_maker; }

    /// Asks whether the device answers, about its SIM card and its network. Never for an operator, which takes minutes.
    Device_Condition Condition();
    /// Whether it answers AT.
    bool Answers();

    /// Text mode only: the coding of the messages that follow (TP-DCS), with the status-report bit where asked for, and
    /// the service centre, which some devices forget over it.
    bool Set_Text_Parameters(int coding, bool asks_for_report, const QString& service_centre);

    Part_Result Submit(const Part_To_Send& part, Part_Watcher& watcher);

    /// A result that came too late for Submit, or was none but a doubt, and has been heard since, be it during a later
    /// Submit. It is that of the last part before that one whose doubt was No_Result or Ok_Alone. What cannot be told
    /// apart from other parts' is never given.
    std::optional<Late_Result> Take_Late_Result();

    /// Asks for delivery reports; whether the device takes a way of saying them.
    bool Ask_For_Reports() { return m_reports.Ask_For(m_maker); }
    /// Reports that have come on the line, and those that the device has announced to lie in a memory. Without waiting
    /// where it has not.
    QList<Told_Report> Take_Reports();
    /// All reports that lie in the device's memory for them.
    QList<Told_Report> Read_Report_Memory() { return m_reports.Read_Memory(m_is_text_mode); }
    /// Takes reports out of a memory, for good.
    void Delete_Reports(const QList<Report_Place>& places) { m_reports.Delete(places); }
    /// Waits for what the device says, for at most a time in seconds at pace 1. Whether the line is still there.
    bool Listen(double seconds);

private:
    bool Choose_Format();
    void Ask_Who_It_Is();
    QString Ask_Identity(const QByteArray& command);
    void Ask_Imsi();
    Sim_State Ask_Sim();
    Registration Ask_Registration();
    std::optional<Part_Result> Await_Prompt(Part_Watcher& watcher);
    std::optional<Part_Result> Judge_Refusal_At_Once(const Device_Cause& cause);
    Part_Result Await_Result(const QByteArray& body, Part_Watcher& watcher);
    Part_Result Look_Again(const Part_Result& first);
    std::optional<Part_Result> Await_Second_Result();
    void Note_What_Is_Due(const Part_Result& result);
    void Hear_Late_Results(At_Conversation::Late_Prompt prompt);
    Part_Result Leave_Prompt(Part_Result::Obstacle obstacle);
    void Keep_Distance() const;

    Device_Line m_line;
    At_Conversation m_conversation{m_line};
    Delivery_Reports m_reports{m_conversation};
    bool m_is_text_mode = false;
    QString m_imsi;
    QString m_maker;
    QString m_own_centre; // as +CSCA? gave it, quotes and type included
    double m_last_result = 0;
    Results_Due m_due;
};
