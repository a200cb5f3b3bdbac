#pragma once

#include <QString>

// What the data folder is made of. Permissions are set as asked for, whatever the process's umask takes away.

/// Makes a folder, with the folders above it, when nothing stands at the path. Returns whether a folder stands there
/// then.
bool Make_Folder_If_Missing(const QString& path, unsigned permissions);

/// Makes an empty file when nothing stands at the path. Returns whether a file stands there then.
bool Make_Empty_File_If_Missing(const QString& path, unsigned permissions);

/// Moves whatever stands at the path, without opening it, to a name beside it that is free: the one given, or that with
/// a number. Returns whether the path is free then.
bool Move_Beside(const QString& path, const QString& name);

/// Gives a file or folder the permissions of a mode word such as 0700. Returns whether that worked, or can not be had
/// there: on a file system without permissions, or where another account owns it. Whether it can be used tells its use.
bool Set_Permissions(const QString& path, unsigned permissions);

/// Whether it is certain that nothing stands at the path, not even a link; what can not be looked at may be there.
bool Is_Missing(const QString& path);
