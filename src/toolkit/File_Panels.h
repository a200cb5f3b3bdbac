#pragma once

#include <QString>
#include <optional>

class QWidget;

// The one door for asking the user for a file or a folder, by the panel of the desktop where that offers one. Interface
// thread only; each function runs until the panel is closed, or the program is left.

/// The path of an existing file that the user picked; nothing when the panel was cancelled.
std::optional<QString> Ask_For_File_To_Open(QWidget* over);

/// The path of an existing folder, which the user may have made in the panel; nothing when it was cancelled.
std::optional<QString> Ask_For_Folder(QWidget* over);

/// The path to write to; nothing when the panel was cancelled. A name typed without the extension (given without its
/// dot) gets it, so that the panel's own question is about the very file that will be replaced.
std::optional<QString> Ask_For_File_To_Save(QWidget* over, const QString& extension);

/// The path, with a dot and the extension appended if its own extension differs, ignoring upper and lower case.
QString With_Extension(const QString& path, const QString& extension);
