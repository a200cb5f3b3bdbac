#include "device/Device_Paths.h"

#include <QDir>
#include <QFileInfo>
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

QString Lasting_Device_Path(const QString& path, const QString& folder)
{
    const QString device = QFileInfo(path).canonicalFilePath();
    const QFileInfoList links = QDir(folder).entryInfoList(QDir::Files | QDir::System | QDir::NoDotAndDotDot);
    for (const QFileInfo& link : links)
        if (!device.isEmpty() && link.canonicalFilePath() == device)
            return link.absoluteFilePath();
    return path;
}
