#pragma once

#include "platform/Descriptor.h"

#include <QByteArray>
#include <QString>
#include <optional>
#include <sys/types.h>

// The single steps that reading and writing files consist of, each repeated while a signal interrupts it. For those
// that put them together to something that a crash leaves whole. After a failure, errno says why. Any thread.
namespace File_Steps {

/// A path as the system takes it. A text with a NUL in it names no file: it becomes the empty name, which never opens.
QByteArray Native_Name(const QString& path);

/// Opens without waiting for anybody, not even for a pipe that has appeared at the path.
Descriptor Open(const QByteArray& name, int flags, mode_t permissions = 0);

/// The size of the regular file that is open; nothing for anything else a path can lead to.
std::optional<off_t> Regular_Size(const Descriptor& file);

/// Whether opening the path disturbs nobody: opening a pipe wakes its writer, opening a serial line raises DTR.
bool Is_Regular_Or_Missing(const QByteArray& name);

/// Gives a file that this user has just made its permissions. They are refused only by a file system that has none, as
/// on a memory stick: no reason to lose what is to be written, and the answer is yes.
bool Give_Permissions(const Descriptor& file, mode_t permissions);

/// Writes all of the bytes, or answers no with a part of them written.
bool Write_All(const Descriptor& file, const QByteArray& bytes);

/// Brings a file or folder to the disk. Some file systems, such as those served by another program, cannot: what was
/// written there is as safe as it gets, and the answer is yes. What failed once must not be asked again: the system has
/// forgotten by then what it could not write.
bool Sync(const Descriptor& file);

/// The same for what is needed to read the file's content again, which leaves out its times.
bool Sync_Content(const Descriptor& file);

bool Cut(const Descriptor& file, off_t size);

/// Sets room aside for so many bytes behind a place in the file, whose size stays as it is. Answers no when the disk
/// has too little of it; where room cannot be set aside, the answer is yes.
bool Reserve(const Descriptor& file, off_t from, off_t bytes);

/// Takes the file's lock, which goes with the descriptor. Answers no when another program has it. Where there are no
/// locks, the answer is yes.
bool Lock(const Descriptor& file);

/// Whether the open file still is in a folder, and was not removed meanwhile.
bool Has_A_Name(const Descriptor& file);

/// Whether errno says that the disk, or what this user may have of it, is full.
bool Is_Disk_Full();

} // namespace File_Steps
