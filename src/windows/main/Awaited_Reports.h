#pragma once

#include "platform/Waiting.h"

#include <QObject>
#include <QString>
#include <atomic>
#include <memory>
#include <mutex>

class Window_Work;

// Collects the delivery reports that have come since their jobs, behind the main window and without a word, where a job
// awaits any. It has the device only as long as nobody else wants it. Owned by the main window, which outlives its
// workers; interface thread, but for Device_Turn.
class Awaited_Reports : public QObject
{
    Q_OBJECT

public:
    explicit Awaited_Reports(Window_Work& work) : m_work(work) {}

    /// Looks for them on the device at a path, or, where that is empty, on the one that the newest job that awaits some
    /// was sent with. Not while a job runs.
    void Look(const QString& device_path);
    /// Ends the look that there may be, as soon as the device has answered.
    void Stop() { m_stop = 1; }
    /// The same, and returns when the device is free; nothing looks for reports for as long as what it returns lives.
    /// The interface thread is served meanwhile. Any thread.
    [[nodiscard]] std::shared_ptr<void> Device_Turn();
    /// Whether anything that Device_Turn has returned lives: a job, the wizard or the doctor has the device.
    bool Is_Device_Wanted() const { return m_wanted > 0; }

Q_SIGNALS:
    /// Some have been noted in the journals of their jobs.
    void Came();

private:
    int Collect(const QString& device_path, const QString& folder);

    Window_Work& m_work;
    Stop_Flag m_stop;
    std::atomic<int> m_wanted{0}; // by so many others is the device
    std::mutex m_looking;         // held by the look that has the device
};
