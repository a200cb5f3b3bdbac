#include "device/Device_Paths.h"

#include <mutex>

namespace {
std::mutex Paths_Lock;
QStringList Extra_Paths;
} // namespace

void Set_Extra_Device_Paths(const QStringList& paths)
{
    const std::lock_guard guard(Paths_Lock);
    Extra_Paths = paths;
}

QStringList Extra_Device_Paths()
{
    const std::lock_guard guard(Paths_Lock);
    return Extra_Paths;
}
