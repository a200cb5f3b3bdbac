#include "toolkit/Remembered.h"

#include "platform/Log_Line.h"
#include "platform/Settings_File.h"

#include <optional>

namespace Remembered {

namespace {

std::optional<Settings_File> Settings;

QString Key_Of(const QString& thing)
{
    return QStringLiteral("Windows/") + thing;
}

} // namespace

void Begin(const Settings_File& settings)
{
    Settings = settings;
}

void End()
{
    Settings.reset();
}

QString Word_For(const QString& thing)
{
    return Settings ? Settings->Word_At(Key_Of(thing)) : QString();
}

void Put(const QString& thing, const QString& word)
{
    if (Settings && Word_For(thing) != word && !Settings->Put_Word(Key_Of(thing), word))
        Show_NSLog_Message(QStringLiteral("What is to be remembered cannot be written."));
}

} // namespace Remembered
