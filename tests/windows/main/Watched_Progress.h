#pragma once

#include "engine/Send_Progress.h"

#include <QStringList>
#include <functional>
#include <mutex>

// Passes a job's steps on to the real progress window and keeps them as text. What happens at a step does so on its
// thread.
class Watched_Progress : public Send_Progress
{
public:
    explicit Watched_Progress(Send_Progress& progress) : m_progress(progress) {}

    void Begin_Preparing(int total) override
    {
        m_progress.Begin_Preparing(total);
        Note("preparing " + QString::number(total));
    }
    void Show_Item(int position, int total, const QString& number) override
    {
        m_progress.Show_Item(position, total, number);
        Note(QString::number(position) + " / " + QString::number(total) + ' ' + number);
    }
    void Show_Current(const QString& text) override
    {
        m_progress.Show_Current(text);
        Note(text);
    }
    void Show_Waiting(const QString& text) override
    {
        m_progress.Show_Waiting(text);
        Note("waiting: " + text);
    }
    void Show_Pause(const QString& text) override
    {
        m_progress.Show_Pause(text);
        Note(text);
    }
    void Tell_Time_Left(std::function<QString()> words) override { m_progress.Tell_Time_Left(std::move(words)); }
    void Begin_Sending() override { Pass_On(&Send_Progress::Begin_Sending, "sending"); }
    void End() override { Pass_On(&Send_Progress::End, "end"); }
    void Begin_Pause() override { Pass_On(&Send_Progress::Begin_Pause, "pause"); }
    void End_Pause() override { Pass_On(&Send_Progress::End_Pause, "pause over"); }
    void startTimerThread() override { Pass_On(&Send_Progress::startTimerThread, "timer on"); }
    void Stop_Timers() override { Pass_On(&Send_Progress::Stop_Timers, "timer off"); }

    void Forget_Steps()
    {
        const std::lock_guard guard(m_lock);
        m_steps.clear();
    }

    QStringList Steps() const
    {
        const std::lock_guard guard(m_lock);
        return m_steps;
    }

    std::function<void(const QString&)> m_at_step; // set before the job starts

private:
    void Pass_On(void (Send_Progress::*step)(), const char* note)
    {
        (m_progress.*step)();
        Note(note);
    }

    void Note(const QString& step)
    {
        {
            const std::lock_guard guard(m_lock);
            m_steps.append(step);
        }
        if (m_at_step)
            m_at_step(step);
    }

    Send_Progress& m_progress;
    mutable std::mutex m_lock;
    QStringList m_steps;
};
