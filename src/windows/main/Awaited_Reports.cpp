#include "windows/main/Awaited_Reports.h"

#include "engine/Job_State.h"
#include "engine/Late_Reports.h"
#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"
#include "records/Data_Paths.h"
#include "records/Job_Record.h"
#include "toolkit/Window_Work.h"

#include <QFileInfo>

namespace {

constexpr double Seconds_To_Listen = 30;

} // namespace

void Awaited_Reports::Look(const QString& device_path)
{
    if (sms_thread_var == 1 || Program_Is_Exiting() || !QFileInfo::exists(Jobs_Folder_Path))
        return;
    m_stop = 0; // no job runs that could have set it
    m_work.Start_If_Possible("late reports", [this, device_path, folder = Jobs_Folder_Path] {
        if (Collect(device_path, folder) > 0)
            Run_On_Interface_Thread([this] { Q_EMIT Came(); });
    });
}

// The journals are read first: that may take longer than anybody should wait for the device.
int Awaited_Reports::Collect(const QString& device_path, const QString& folder)
{
    const auto job = Job_That_Awaits_Reports(folder);
    if (!job)
        return 0;
    const std::unique_lock turn(m_turn, std::try_to_lock);
    if (!turn || m_stop == 1)
        return 0;
    return Collect_Late_Reports(device_path.isEmpty() ? job->device : device_path, folder, Seconds_To_Listen, m_stop);
}

std::shared_ptr<void> Awaited_Reports::Device_Turn()
{
    Stop();
    auto turn = std::make_shared<std::unique_lock<std::mutex>>(m_turn, std::try_to_lock);
    if (*turn)
        return turn;
    if (Is_Interface_Thread())
        Await_Worker([&turn] { return turn->try_lock(); });
    else
        turn->lock();
    return turn;
}
