#pragma once

#include <QString>

// Holds a file's lock for as long as it lives: every load, append or rewrite of a data file happens under the lock of
// its path. One lock per path for the whole process; the thread that holds it may take it again.
class File_Lock
{
public:
    explicit File_Lock(const QString& path);
    ~File_Lock();
    File_Lock(const File_Lock&) = delete;
    File_Lock& operator=(const File_Lock&) = delete;

private:
    struct Entry;
    Entry* m_entry;
};
