#pragma once

#include "engine/Send_Manner.h"

class MFCSMS;

// Hands messages over by fixed waits: a read lasts its whole time-out, two seconds follow each message, and no answer
// is judged. The outcomes are read from what the device happened to answer in time. Uses the session alone meanwhile.
class Fixed_Wait_Manner : public Send_Manner
{
public:
    /// Both outlive it.
    Fixed_Wait_Manner(const Send_Order& order, MFCSMS& session);

    bool Opens() override;
    bool Connect() override;
    void Prepare() override;
    bool Takes_Messages() const override { return m_mode != 0; }
    QString Trouble() const override;
    QString Completed() const override;
    void Begin_Sending() override;
    Submission Submit(int index, const Recipient& recipient) override;
    void Skipped(int index, Skip_Reason reason) override;
    void Pause_Begins() override;
    void End_Sending() override {}
    void Close() override;

private:
    Row_Outcome Outcome_Of(const Recipient& recipient) const;
    void Set_Read_Timeout(double seconds);
    void Close_Handle();
    void Close_Port();

    const Send_Order& m_order;
    MFCSMS& m_session;
    int m_handle = -1; // the direct descriptor, forgotten as soon as it is closed
    int m_mode = 0;    // 0 = none, 1 = PDU, 2 = text
};

/// What a device's answers to the parts of one message say about it: the worst of the parts. An answer is what came in
/// the time of the read that follows a part's end.
Row_Outcome Outcome_Of_Answers(const QStringList& answers);
