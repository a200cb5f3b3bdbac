#pragma once

#include <QString>

/// Holds a file's lock for as long as it lives: whoever loads, appends to or rewrites a data file does it under the
/// lock of that path. One lock a path for the whole process; a thread that holds it may take it again.
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
