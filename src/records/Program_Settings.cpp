#include "records/Program_Settings.h"

#include "platform/Folders_And_Files.h"
#include "platform/Settings_File.h"

#include <QSettings>

namespace {

constexpr unsigned Only_The_User = 0600;

constexpr char Group[] = "Confirming";
constexpr char Not_Wanted[] = "false";
constexpr char Chosen_Look[] = "Windows/Appearance";
constexpr char Chosen_Language[] = "Windows/Language";

// The fields, each with the name that it has in the file.
constexpr std::pair<const char*, bool Confirm_Choices::*> Fields[] = {
    {"Confirming/ConfirmEachMessage", &Confirm_Choices::confirms},
    {"Confirming/AskForReports", &Confirm_Choices::asks_for_reports},
    {"Confirming/KeepReceipt", &Confirm_Choices::keeps_receipt},
};

QString Key_Of_Notice(const QString& name)
{
    return QStringLiteral("Notices/") + name;
}

} // namespace

std::optional<Confirm_Choices> Program_Settings::Remembered() const
{
    if (Settings_File(m_path).Has_Nothing())
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
    return Settings_File(m_path).Make_Usable();
}

bool Program_Settings::Remember(const Confirm_Choices& choices) const
{
    if (!Make_Usable())
        return false;
    QSettings settings(m_path, QSettings::IniFormat);
    for (const auto& [name, field] : Fields)
        settings.setValue(QLatin1String(name), choices.*field);
    settings.sync();
    return settings.status() == QSettings::NoError && Set_Permissions(m_path, Only_The_User);
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
    return Write_Word(QLatin1String(Chosen_Look), name);
}

QString Program_Settings::Language() const
{
    return Word_At(QLatin1String(Chosen_Language));
}

bool Program_Settings::Choose_Language(const QString& letters) const
{
    return Write_Word(QLatin1String(Chosen_Language), letters);
}

QString Program_Settings::Word_At(const QString& key) const
{
    return Settings_File(m_path).Word_At(key);
}

bool Program_Settings::Write_Word(const QString& key, const QString& word) const
{
    return Settings_File(m_path).Put_Word(key, word);
}

bool Program_Settings::Remove_Key(const QString& key) const
{
    return Settings_File(m_path).Remove_Key(key);
}

bool Program_Settings::Is_Usable() const
{
    return Settings_File(m_path).Is_Usable();
}
