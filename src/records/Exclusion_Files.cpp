#include "records/Exclusion_Files.h"

#include "list/Exclusion_Rules.h"
#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"
#include "records/Data_Paths.h"

#include <QFileInfo>
#include <QStringTokenizer>

namespace {

constexpr unsigned Everything_Allowed = 0777;

// Nothing when the file exists but cannot be read or is not UTF-8; a missing one reads as empty.
std::optional<QString> Usable_Text(const QString& path)
{
    const File_Lock lock(path);
    auto text = Read_Utf8_File(path);
    return text || !Is_Missing(path) ? text : QString();
}

QString Read_Text(const QString& path)
{
    return Usable_Text(path).value_or(QString());
}

bool Has_A_File(const QString& list_name)
{
    const auto path = Exclusion_Files::List_Path(list_name);
    return path && !Is_Missing(*path);
}

template <typename Take>
void For_Each_Entry(const QString& text, const Take& take)
{
    for (const QStringView piece : qTokenize(text, u'\n')) {
        const QStringView entry = Exclusion_Rules::Entry_In_Line(piece);
        if (!entry.isEmpty())
            take(entry.toString());
    }
}

QStringList Names_In(const QString& path)
{
    QStringList names;
    For_Each_Entry(Read_Text(path), [&](const QString& name) { names.append(name); });
    return names;
}

// A name with blanks around it is used unchanged, and so misses the list that people see under that name.
void Add_Numbers_Of_List(const QString& name, Exclusion_Files::Applied_Numbers& applied)
{
    const QString seen_name = Exclusion_Rules::Entry_In_Line(name).toString();
    const auto path = Exclusion_Files::List_Path(name);
    const bool leads_past_it = seen_name != name && !Has_A_File(name) && Has_A_File(seen_name);
    const auto text = path ? Usable_Text(*path) : QString();
    if (text && !leads_past_it)
        For_Each_Entry(*text, [&](const QString& number) { applied.numbers.Append(number); });
    else if (!applied.unusable_lists.contains(seen_name))
        applied.unusable_lists.append(seen_name);
}

bool Rewrite(const QString& path, const QByteArray& bytes)
{
    const File_Lock lock(path);
    if (!Can_Be_Written(path))
        return false;
    if (!Is_Missing(path)) {
        const auto until_now = Read_File(path);
        if (!until_now || !Keep_What_Is_No_Utf8(path, *until_now))
            return false;
    }
    return Replace_File(path, bytes);
}

QByteArray Lines_Of(const QStringList& entries)
{
    QByteArray lines;
    for (const QString& entry : entries)
        lines += entry.toUtf8() + '\n';
    return lines;
}

} // namespace

std::optional<QString> Exclusion_Files::List_Path(const QString& list_name)
{
    if (list_name.contains(u'/') || list_name.contains(QChar(u'\0')))
        return std::nullopt;
    return Exclusion_Folder_Path + QStringLiteral("/") + list_name + QStringLiteral(".ZOVA");
}

QStringList Exclusion_Files::Read_Index()
{
    return Names_In(Exclusion_Index_Path);
}

QStringList Exclusion_Files::Read_Applied()
{
    return Names_In(Applied_Exclusion_Path);
}

Number_List Exclusion_Files::Read_List(const QString& list_name)
{
    Number_List numbers;
    if (const auto path = List_Path(list_name))
        For_Each_Entry(Read_Text(*path), [&](const QString& number) { numbers.Append(number); });
    return numbers;
}

Exclusion_Files::Applied_Numbers Exclusion_Files::Read_Applied_Numbers()
{
    Applied_Numbers applied;
    const auto names = Usable_Text(Applied_Exclusion_Path);
    applied.is_readable = names.has_value();
    for (const QStringView line : qTokenize(names.value_or(QString()), u'\n')) {
        const QString name = Exclusion_Rules::Without_Byte_Order_Mark(line).toString();
        if (!name.isEmpty())
            Add_Numbers_Of_List(name, applied);
    }
    return applied;
}

bool Exclusion_Files::Index_Exists()
{
    return QFileInfo::exists(Exclusion_Index_Path);
}

bool Exclusion_Files::Append_To_Index(const QString& list_name)
{
    const File_Lock lock(Exclusion_Index_Path);
    return Append_To_File(Exclusion_Index_Path, Lines_Of({list_name}));
}

bool Exclusion_Files::Write_Index(const QStringList& list_names)
{
    return Rewrite(Exclusion_Index_Path, Lines_Of(list_names));
}

bool Exclusion_Files::Write_Applied(const QStringList& list_names)
{
    return Rewrite(Applied_Exclusion_Path, Lines_Of(list_names));
}

bool Exclusion_Files::Write_List(const QString& list_name, const Number_List& numbers)
{
    const auto path = List_Path(list_name);
    if (!path)
        return false;
    QByteArray lines;
    for (int row = 0; row < numbers.Count(); ++row)
        lines.append(numbers.At(row).toUtf8()).append('\n');
    return Rewrite(*path, lines);
}

bool Exclusion_Files::Create_List_If_Missing(const QString& list_name)
{
    const auto path = List_Path(list_name);
    if (!path)
        return false;
    const File_Lock lock(*path);
    return Make_Empty_File_If_Missing(*path, Everything_Allowed) && Can_Be_Written(*path);
}

void Exclusion_Files::Delete_List(const QString& list_name)
{
    const auto path = List_Path(list_name);
    if (!path)
        return;
    const File_Lock lock(*path);
    Remove_File(*path);
}
