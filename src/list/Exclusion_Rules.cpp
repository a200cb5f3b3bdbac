#include "list/Exclusion_Rules.h"

#include "list/Number_File.h"
#include "platform/String_Helpers.h"
#include "platform/Text_Files.h"

#include <QHash>
#include <QSet>
#include <QStringTokenizer>
#include <algorithm>

namespace {

const QString Forbidden_Sequence = QStringLiteral("\\/:*?\"<>|");
const QString Name_Of_Index = QStringLiteral("ExListIndex");

constexpr int Numbers_Between_Reports = 20000;

} // namespace

QString Exclusion_Rules::List_Name(const QString& typed)
{
    const QString decoded = Decode_Utf8(typed.toUtf8()).value_or(QString()); // as the files are decoded
    return Entry_In_Line(decoded).toString();
}

QStringView Exclusion_Rules::Without_Byte_Order_Mark(QStringView line)
{
    while (line.startsWith(QChar(QChar::ByteOrderMark)))
        line = line.sliced(1);
    return line;
}

QStringView Exclusion_Rules::Entry_In_Line(QStringView line)
{
    QStringView entry = line.trimmed();
    while (entry.startsWith(QChar(QChar::ByteOrderMark)))
        entry = Without_Byte_Order_Mark(entry).trimmed();
    return entry;
}

Exclusion_Rules::Name_Verdict Exclusion_Rules::Judge_List_Name(const QString& name, const QStringList& existing_names)
{
    if (name.isEmpty())
        return Name_Verdict::Empty;
    if (Find_Str(name, Forbidden_Sequence))
        return Name_Verdict::Forbidden_Sequence;
    if (name == Name_Of_Index)
        return Name_Verdict::Name_Of_Index;
    return existing_names.contains(name) ? Name_Verdict::Exists : Name_Verdict::Accepted;
}

Import_Report Exclusion_Rules::Add_Numbers_Of_Text(const QString& text, Number_List& numbers,
                                                   const std::function<void(int)>& progress)
{
    Import_Report report;
    for (const QStringView line : qTokenize(text, u'\n')) {
        const Packed_Number number = Number_In_Line(line);
        if (!report.Accepts(line, number, {&numbers, nullptr}))
            continue;
        numbers.Append(number);
        report.Count_Added();
        if (report.Added() % Numbers_Between_Reports == 0)
            progress(numbers.Count());
    }
    return report;
}

QStringList Exclusion_Rules::Not_Yet_Applied(const QStringList& chosen, const QStringList& applied)
{
    QSet<QString> taken(applied.begin(), applied.end());
    QStringList left;
    for (const QString& name : chosen) {
        if (!taken.contains(name)) {
            taken.insert(name);
            left.append(name);
        }
    }
    return left;
}

QStringList Exclusion_Rules::Names_At(const QStringList& names, const std::vector<int>& rows)
{
    QStringList found;
    for (const int row : rows)
        found.append(names.value(row));
    return found;
}

void Exclusion_Rules::Remove_Rows(QStringList& names, const std::vector<int>& rows)
{
    QStringList kept;
    auto next_removed = rows.begin();
    for (int row = 0; row < names.size(); ++row) {
        if (next_removed != rows.end() && *next_removed == row)
            ++next_removed;
        else
            kept.append(names.at(row));
    }
    names.swap(kept);
}

void Exclusion_Rules::Remove_Deleted(QStringList& applied, const QStringList& deleted)
{
    QHash<QString, int> still_to_remove;
    for (const QString& name : deleted)
        ++still_to_remove[name];
    QStringList kept;
    for (auto name = applied.rbegin(); name != applied.rend(); ++name) {
        const auto to_remove = still_to_remove.find(*name);
        if (to_remove != still_to_remove.end() && *to_remove > 0)
            --*to_remove;
        else
            kept.append(*name);
    }
    std::reverse(kept.begin(), kept.end());
    applied.swap(kept);
}
