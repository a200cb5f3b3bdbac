#pragma once

#include "engine/Confirmed_Manner.h"
#include "engine/Journal_Fields.h"

// The way of one recipient's message through a confirmed job: its parts in turn, each until it is settled.
class Confirmed_Manner::Row_Walk : private Part_Watcher
{
public:
    Row_Walk(Confirmed_Manner& manner, int index, Job_Row row);

    Submission Run();
    const Row_Details& Details() const { return m_details; }
    /// Whether the device was given the end of one of its parts, in this walk.
    bool Was_Handed_Over() const { return m_has_handed_over; }

private:
    enum class Part_End
    {
        Sent,
        Again,
        Row_Is_Over
    };

    Open_Case This_Part() const { return {m_index, m_part, m_row.parts, m_row.number, m_imsi}; }
    void Count_Sent_Part();
    Part_End Send_Part(const Part_To_Send& part);
    Part_End Take_Accepted(int reference, const QByteArray& time);
    Part_End Take_Refusal(const Device_Cause& cause);
    void Note_Refusal(const Device_Cause& cause, bool goes_again = false);
    Part_End Take_Doubt(Part_Result::Doubt doubt);
    std::optional<Part_End> Take_Late_Result();
    Part_End Take_Obstacle(Part_Result::Obstacle obstacle);
    std::optional<Part_End> Try_Again_Later(const QString& reason);
    Part_End Hold(Device_Hold::Until until, const QString& reason);
    bool May_Be_Tried_Again() const { return static_cast<std::size_t>(m_retries) < Retry_Waits.size(); }
    Part_End Be_Refused(const Device_Cause& cause, const QString& reason, int stops_at);
    Part_End Be_Unknown(const QString& why, const QString& reason);
    void Count_End(const QString& end, const QString& reason, int stops_at);
    void Stop_Job(const QString& notice);
    bool Prepare_Text_Mode();
    Part_End Take_No_Text_Mode();

    bool May_Be_Handed_Over() override;
    bool Is_Asked_To_Stop() override;
    void Still_Waiting(int seconds) override;

    Confirmed_Manner& m_manner;
    const int m_index;
    const Job_Row m_row;
    Row_Details m_details;
    Submission m_submission;
    int m_part = 1;
    int m_tries = 0;                    // of this part
    int m_retries = 0;                  // of this part, after causes that pass by themselves
    int m_vain_holds = 0;               // of this part, for a state that the device denied
    std::optional<double> m_first_hold; // when this part was first held
    bool m_was_handed_over = false;     // by this try
    QString m_imsi;                     // of the SIM card that was in the device then
    bool m_has_handed_over = false;
    bool m_is_waiting = false; // and that is being shown
};
