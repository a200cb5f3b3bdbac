#pragma once

#include "device/Stop_Flag.h"
#include "engine/Confirmed_Manner.h"
#include "engine/Send_Job.h"
#include "engine/Send_Listener.h"
#include "engine/Send_Progress.h"
#include "phone/Virtual_Phone.h"
#include "platform/Pace.h"
#include "records/Job_Shelf.h"

#include <QStringList>
#include <QTemporaryDir>
#include <gmock/gmock.h>

/// Sees a job as its windows do, and keeps what it saw.
class Job_Witness : public Send_Progress, public Send_Listener, public Confirmed_Watcher
{
public:
    void Begin_Preparing(int) override {}
    void Begin_Sending() override {}
    void Show_Item(int, int, const QString&) override {}
    void Show_Current(const QString& text) override
    {
        m_shown.append(text);
        if (m_on_shown)
            m_on_shown();
    }
    void End() override {}
    void Begin_Pause() override {}
    void Show_Pause(const QString&) override {}
    void End_Pause() override {}
    void startTimerThread() override {}
    void Stop_Timers() override {}

    void Tell(const QString& text) override { m_told.append(text); }
    void Exclusions_Were_Read(const Exclusion_Files::Applied_Numbers&) override {}
    void Row_Ended(int index, const Row_Outcome& outcome) override { m_outcomes.emplace_back(index, outcome.state); }

    void Row_Done(int, const Row_Details& details) override
    {
        m_rows.push_back(details);
        if (m_on_row)
            m_on_row();
    }
    void Held(const QString& reason) override
    {
        m_held.append(reason);
        if (m_on_held)
            m_on_held();
    }
    void Goes_On() override { ++m_goes_on; }
    void Report_Came(int index, int part, int, int status) override { m_reports.push_back({index, part, status}); }
    void Still_Waiting(int seconds) override { m_notices.push_back(seconds); }

    std::vector<Row_State> States() const
    {
        std::vector<Row_State> states;
        for (const Row_Details& row : m_rows)
            states.push_back(row.outcome.state);
        return states;
    }

    QStringList m_shown;
    QStringList m_told;
    QStringList m_held;
    int m_goes_on = 0;
    std::vector<int> m_notices;
    std::vector<std::array<int, 3>> m_reports; // index, part, status
    std::vector<Row_Details> m_rows;
    std::vector<std::pair<int, Row_State>> m_outcomes;
    std::function<void()> m_on_shown;
    std::function<void()> m_on_row;
    std::function<void()> m_on_held;
};

/// Sends lists in the confirmed manner to the virtual phone.
class Confirmed_Test : public testing::Test
{
protected:
    Confirmed_Test()
    {
        Set_Pace(20);
        m_options.folder = m_folder.path() + QStringLiteral("/Jobs");
        m_order.device_path = QString::fromStdString(m_phone.Path());
    }
    ~Confirmed_Test() override
    {
        Forget_Program_Exit();
        Set_Pace(1);
    }

    void Add(const QString& number, const QString& text) { m_order.recipients.Append(number, text); }

    void Run()
    {
        Confirmed_Manner manner(m_order, m_options, m_witness, m_witness, m_stop);
        Send_Job(m_order, manner, m_witness, m_witness, m_stop).Send_SMS_Func();
        m_job = manner.Job_Id();
        m_has_handed_over = manner.Has_Handed_Over();
        m_record = manner.Record();
        m_journal_trouble = manner.Journal_Trouble();
    }

    /// What the handset shows, in the order of arrival.
    std::vector<std::string> Texts() const
    {
        std::vector<std::string> texts;
        for (const Handset_Message& message : m_phone.Inbox())
            texts.push_back(message.m_text);
        return texts;
    }

    QTemporaryDir m_folder;
    Virtual_Phone m_phone;
    Send_Order m_order;
    Confirmed_Options m_options;
    Job_Witness m_witness;
    Stop_Flag m_stop;
    QString m_job;
    bool m_has_handed_over = false;
    std::optional<Job_Record> m_record;
    Job_Trouble m_journal_trouble = Job_Trouble::None;
};
