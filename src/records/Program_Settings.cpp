#include "records/Program_Settings.h"

#include "platform/File_Steps.h"
#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"

#include <QFileInfo>
#include <QSettings>

namespace {

constexpr unsigned Only_The_User = 0600;
constexpr qint64 Largest_File = 1 << 16;

constexpr char Group[] = "Confirming";
constexpr char Not_Wanted[] = "false";
constexpr char Chosen_Look[] = "Windows/Appearance";

// The fields, each with the name that it has in the file.
constexpr std::pair<const char*, bool Confirm_Choices::*> Fields[] = {
    {"Confirming/ConfirmEachMessage", &Confirm_Choices::confirms},
    {"Confirming/AskForReports", &Confirm_Choices::asks_for_reports},
    {"Confirming/KeepReceipt", &Confirm_Choices::keeps_receipt},
};

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

QString Key_Of_Notice(const QString& name)
{
    return QStringLiteral("Notices/") + name;
}

bool Is_Written(QSettings& settings)
{
    settings.sync();
    return settings.status() == QSettings::NoError;
}

} // namespace

// Neither a pipe nor a disk image that somebody put there is opened.
bool Program_Settings::Is_Usable() const
{
    return File_Steps::Is_Regular_Or_Missing(File_Steps::Native_Name(m_path)) &&
           QFileInfo(m_path).size() <= Largest_File;
}

std::optional<Confirm_Choices> Program_Settings::Remembered() const
{
    if (Is_Missing(m_path) || !Is_Usable() || Is_Of_No_Use(m_path))
        return std::nullopt;
    const QSettings settings(m_path, QSettings::IniFormat);
    Confirm_Choices choices;
    for (const auto& [name, field] : Fields) {
        const QString value = settings.value(QLatin1String(name)).toString();
        if (value != QLatin1String("true") && value != QLatin1String("false"))
            return std::nullopt;
        choices.*field = value == QLatin1String("true");
    }
    return choices;
}

bool Program_Settings::Make_Usable() const
{
    return Is_Usable() && Has_No_Lock_Left(m_path) && (!Is_Of_No_Use(m_path) || Remove_File(m_path));
}

bool Program_Settings::Remember(const Confirm_Choices& choices) const
{
    if (!Make_Usable())
        return false;
    QSettings settings(m_path, QSettings::IniFormat);
    for (const auto& [name, field] : Fields)
        settings.setValue(QLatin1String(name), choices.*field);
    return Is_Written(settings) && Set_Permissions(m_path, Only_The_User);
}

bool Program_Settings::Forget() const
{
    return Remove_Key(QLatin1String(Group));
}

bool Program_Settings::Wants_Notice(const QString& name) const
{
    return Word_At(Key_Of_Notice(name)) != QLatin1String(Not_Wanted);
}

bool Program_Settings::Want_Notice(const QString& name, bool is_wanted) const
{
    return is_wanted ? Remove_Key(Key_Of_Notice(name)) : Write_Word(Key_Of_Notice(name), QLatin1String(Not_Wanted));
}

QString Program_Settings::Appearance() const
{
    return Word_At(QLatin1String(Chosen_Look));
}

bool Program_Settings::Choose_Appearance(const QString& name) const
{
    return name.isEmpty() ? Remove_Key(QLatin1String(Chosen_Look)) : Write_Word(QLatin1String(Chosen_Look), name);
}

QString Program_Settings::Word_At(const QString& key) const
{
    if (Is_Missing(m_path) || !Is_Usable() || Is_Of_No_Use(m_path))
        return {};
    const QSettings settings(m_path, QSettings::IniFormat);
    return settings.value(key).toString();
}

bool Program_Settings::Write_Word(const QString& key, const QString& word) const
{
    if (!Make_Usable())
        return false;
    QSettings settings(m_path, QSettings::IniFormat);
    settings.setValue(key, word);
    return Is_Written(settings) && Set_Permissions(m_path, Only_The_User);
}

// A key with all below it.
bool Program_Settings::Remove_Key(const QString& key) const
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
