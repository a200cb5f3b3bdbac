#include "platform/File_Lock.h"

#include <QDir>
#include <QFileInfo>
#include <map>
#include <memory>
#include <mutex>

namespace {

// One name for a file, however its folder is written. The file itself may be missing.
QString Lock_Key(const QString& path)
{
    if (path.contains(QChar::Null))
        return path; // no file can have this name
    const QFileInfo file(path);
    const QString folder = QFileInfo(file.absolutePath()).canonicalFilePath();
    return (folder.isEmpty() ? QDir::cleanPath(file.absolutePath()) : folder) + QLatin1Char('/') + file.fileName();
}

} // namespace

// One file's mutex, and the list of all that are held or waited for.
struct File_Lock::Entry
{
    std::recursive_mutex mutex;
    int users = 0;

    static Entry* Of(const QString& key)
    {
        const std::lock_guard guard(All_Mutex());
        std::unique_ptr<Entry>& entry = All()[key];
        if (!entry)
            entry = std::make_unique<Entry>();
        ++entry->users;
        return entry.get();
    }

    static void Let_Go(const Entry* entry)
    {
        const std::lock_guard guard(All_Mutex());
        std::erase_if(All(), [&](auto& each) { return each.second.get() == entry && --each.second->users == 0; });
    }

private:
    static std::mutex& All_Mutex()
    {
        static std::mutex mutex;
        return mutex;
    }

    static std::map<QString, std::unique_ptr<Entry>>& All()
    {
        static std::map<QString, std::unique_ptr<Entry>> entries;
        return entries;
    }
};

File_Lock::File_Lock(const QString& path) : m_entry(Entry::Of(Lock_Key(path)))
{
    m_entry->mutex.lock();
}

File_Lock::~File_Lock()
{
    m_entry->mutex.unlock();
    Entry::Let_Go(m_entry);
}
