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

// The system gives the name of a line that has gone to whatever is plugged in next; a link is made for one device.
bool Stays_With_Its_Device(const QString& path)
{
    return QFileInfo(path).isSymLink();
}

} // namespace

void Awaited_Reports::Look(const QString& device_path)
{
    if (m_wanted > 0 || sms_thread_var == 1 || Program_Is_Exiting() || !QFileInfo::exists(Jobs_Folder_Path))
        return;
    m_stop = 0; // whoever wants the device from here on is counted
    m_work.Start_If_Possible("late reports", [this, device_path, folder = Jobs_Folder_Path] {
        if (Collect(device_path, folder) > 0)
            Run_On_Interface_Thread([this] { Q_EMIT Came(); });
    });
}

// The journals are read first: that may take longer than anybody should wait for the device.
int Awaited_Reports::Collect(const QString& device_path, const QString& folder)
{
    const auto job = Job_That_Awaits_Reports(folder);
    if (!job || (device_path.isEmpty() && !Stays_With_Its_Device(job->device)))
        return 0;
    const std::unique_lock look(m_looking, std::try_to_lock);
    if (!look || m_wanted > 0 || m_stop == 1)
        return 0;
    return Collect_Late_Reports(device_path.isEmpty() ? job->device : device_path, folder, Seconds_To_Listen, m_stop);
}

std::shared_ptr<void> Awaited_Reports::Device_Turn()
{
    ++m_wanted;
    std::shared_ptr<void> turn(nullptr, [this](void* /*unused*/) { --m_wanted; });
    Stop();
    std::unique_lock look_has_ended(m_looking, std::try_to_lock);
    if (!look_has_ended && Is_Interface_Thread())
        Await_Worker([&look_has_ended] { return look_has_ended.try_lock(); });
    else if (!look_has_ended)
        look_has_ended.lock();
    return turn;
}
