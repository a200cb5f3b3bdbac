#pragma once

#include "victim/Steps.h"

#include <QString>

/// Takes what a spoilt disk needs before the program begins: a small file system with the folder's files on it, or a
/// user without power over others' files. For a process of one thread.
void Prepare_Disk(Disk disk, const QString& folder);

// A disk with no room, or a data folder that nobody can write to, for as long as this lives.
class Spoilt_Disk
{
public:
    Spoilt_Disk(Disk disk, const QString& folder);
    ~Spoilt_Disk();
    Spoilt_Disk(const Spoilt_Disk&) = delete;
    Spoilt_Disk& operator=(const Spoilt_Disk&) = delete;

private:
    void Fill() const;
    void Set_Permissions_In_Data(unsigned of_folders, unsigned of_files) const;

    const Disk m_disk;
    const QString m_folder;
};
