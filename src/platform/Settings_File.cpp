#include "platform/Settings_File.h"

#include "platform/File_Steps.h"
#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"

#include <QFileInfo>
#include <QSettings>

namespace {

constexpr unsigned Only_The_User = 0600;
constexpr qint64 Largest_File = 1 << 16;

// The lock of a write that was killed would be waited for; nobody else writes here.
bool Has_No_Lock_Left(const QString& path)
{
    return Remove_File(path + QStringLiteral(".lock"));
}

// What is wrong with a file shows only once all of it was looked at.
bool Is_Of_No_Use(const QString& path)
{
    const QSettings settings(path, QSettings::IniFormat);
    const bool is_empty = settings.allKeys().isEmpty();
    return is_empty || settings.status() != QSettings::NoError;
}

bool Is_Written(QSettings& settings)
{
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

// Neither a pipe nor a disk image that somebody put there is opened.
bool Settings_File::Is_Usable() const
{
    return File_Steps::Is_Regular_Or_Missing(File_Steps::Native_Name(m_path)) &&
           QFileInfo(m_path).size() <= Largest_File;
}

bool Settings_File::Has_Nothing() const
{
    return Is_Missing(m_path) || !Is_Usable() || Is_Of_No_Use(m_path);
}

bool Settings_File::Make_Usable() const
{
    return Is_Usable() && Has_No_Lock_Left(m_path) && (!Is_Of_No_Use(m_path) || Remove_File(m_path));
}

void Settings_File::Clear_Up() const
{
    Has_No_Lock_Left(m_path);
}

QString Settings_File::Word_At(const QString& key) const
{
    return Has_Nothing() ? QString() : QSettings(m_path, QSettings::IniFormat).value(key).toString();
}

bool Settings_File::Put_Word(const QString& key, const QString& word) const
{
    if (word.isEmpty())
        return Remove_Key(key);
    if (!Make_Usable())
        return false;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.setValue(key, word);
    return Is_Written(settings) && Set_Permissions(m_path, Only_The_User);
}

bool Settings_File::Remove_Key(const QString& key) const
{
    if (Is_Missing(m_path))
        return true;
    if (!Is_Usable() || !Has_No_Lock_Left(m_path))
        return false;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.remove(key);
    const bool is_empty = settings.allKeys().isEmpty();
    return Is_Written(settings) && (!is_empty || Remove_File(m_path));
}
