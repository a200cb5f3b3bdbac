#pragma once

#include <QString>

// What the data folder is made of. Permissions are exactly those asked for, whatever the process's umask.

/// Makes a folder, and those above it, when nothing exists at the path. Returns whether there is a folder there
/// afterwards.
bool Make_Folder_If_Missing(const QString& path, unsigned permissions);

/// Makes an empty file when nothing exists at the path. Returns whether there is a file there afterwards.
bool Make_Empty_File_If_Missing(const QString& path, unsigned permissions);

/// Moves whatever is at the path, without opening it, to a free name beside it: the one given, or that with a number.
/// Returns whether the path is free afterwards.
bool Move_Beside(const QString& path, const QString& name);

/// Gives a file or folder the permissions of a mode word such as 0700. Returns whether that worked or is not possible
/// there: on a file system without permissions, or where another account owns it. Whether it is usable shows in use.
bool Set_Permissions(const QString& path, unsigned permissions);

/// Whether it is certain that nothing is at the path, not even a link; what cannot be looked at may exist.
bool Is_Missing(const QString& path);
