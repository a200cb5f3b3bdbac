#pragma once

#include <QString>

class Settings_File;

// What windows remember of themselves from one start of the program to the next: a word for each thing, in the
// program's settings. Until it is begun nothing is remembered, and nothing written. Interface thread.

namespace Remembered {

void Begin(const Settings_File& settings);
void End();

/// The word for a thing, such as "Size/Sent_Items"; empty when none was written.
QString Word_For(const QString& thing);
/// Writes it, unless it stands there already.
void Put(const QString& thing, const QString& word);

} // namespace Remembered
