#include "fuzz/Fuzz_Input.h"
#include "list/Exclusion_Rules.h"
#include "list/Number_File.h"
#include "list/Number_Rules.h"
#include "platform/Text_Files.h"
#include "records/Data_Paths.h"
#include "records/Exclusion_Files.h"

#include <QTemporaryDir>
#include <algorithm>
#include <utility>

namespace {

// One folder for all runs; it goes with the process.
void Set_Paths()
{
    static const QTemporaryDir folder;
    MUST(folder.isValid());
    Exclusion_Folder_Path = folder.path();
    Exclusion_Index_Path = folder.filePath(QStringLiteral("ExListIndex.ZOVA"));
    Applied_Exclusion_Path = folder.filePath(QStringLiteral("AppExclusion.ZOVA"));
}

// The rule, said once more and without regard to how long a line is.
QString Number_By_The_Rule(QString line)
{
    for (const QChar left_out : {u'\\', u'{', u'}', u'-'})
        line.remove(left_out);
    return Number_Rules::Normalised_Number(line);
}

// Each line is blank, gave a number, or is noted as it stood.
void Check_Report(const Import_Report& report, const QString& text)
{
    const QStringList lines = text.split(u'\n');
    const auto blank =
        std::count_if(lines.begin(), lines.end(), [](const QString& line) { return line.trimmed().isEmpty(); });
    MUST(report.Added() + report.Unused() + blank == lines.size());
    MUST(report.Noted().size() == std::min(report.Unused(), Import_Report::Most_Noted));
    int before = 0;
    for (const Import_Report::Unused_Line& noted : report.Noted()) {
        MUST(noted.line > std::exchange(before, noted.line));
        const QString line = lines.value(noted.line - 1).trimmed();
        MUST(!noted.text.isEmpty() && noted.text.size() <= Import_Report::Longest_Noted);
        MUST(noted.is_cut ? line.startsWith(noted.text) && line != noted.text : line == noted.text);
        MUST(Number_By_The_Rule(line).isEmpty() == (noted.reason == Number_Verdict::Not_Valid));
    }
}

Number_List Check_Numbers(const QString& text)
{
    Number_List numbers;
    const Import_Report report = Exclusion_Rules::Add_Numbers_Of_Text(text, numbers, [](int) {});
    MUST(report.Added() == numbers.Count());
    MUST(Exclusion_Rules::Add_Numbers_Of_Text(text, numbers, [](int) {}).Added() == 0);
    Check_Report(report, text);
    int row = 0;
    Number_List again;
    for (const QString& line : text.split(u'\n')) {
        const QString number = Number_Texts().Text_Of(Number_In_Line(line));
        MUST(number == Number_By_The_Rule(line));
        if (number.isEmpty() || again.Contains(number))
            continue;
        MUST(row < numbers.Count() && numbers.At(row++) == number);
        again.Append(number);
    }
    MUST(row == numbers.Count());
    return numbers;
}

void Check_List_File(const QString& typed_name, const Number_List& numbers)
{
    const QString name = Exclusion_Rules::List_Name(typed_name).left(Exclusion_Rules::Longest_Name);
    if (Exclusion_Rules::Judge_List_Name(name, {}) != Exclusion_Rules::Name_Verdict::Accepted)
        return;
    const auto path = Exclusion_Files::List_Path(name);
    MUST(!path || path->startsWith(Exclusion_Folder_Path + u'/'));
    MUST(!path || path->count(u'/') == Exclusion_Folder_Path.count(u'/') + 1);
    if (!Exclusion_Files::Create_List_If_Missing(name))
        return;
    if (Exclusion_Files::Write_List(name, numbers)) {
        const Number_List stored = Exclusion_Files::Read_List(name);
        MUST(stored.Count() == numbers.Count());
        for (int row = 0; row < numbers.Count(); ++row)
            MUST(stored.At(row) == numbers.At(row));
    }
    Exclusion_Files::Delete_List(name);
}

// An index and a list of applied names with anything in them; the applied names lead to files of their own folder only.
void Check_Index_Files(const QByteArray& index)
{
    MUST(Replace_File(Exclusion_Index_Path, index));
    for (const QString& name : Exclusion_Files::Read_Index())
        MUST(!name.isEmpty() && name == name.trimmed());
    const QStringList names = Exclusion_Files::Read_Index();
    MUST(Exclusion_Files::Write_Index(names) && Exclusion_Files::Read_Index() == names);
    MUST(Replace_File(Applied_Exclusion_Path, index));
    const QStringList applied = Exclusion_Files::Read_Applied();
    MUST(applied == names);
    Exclusion_Files::Read_Applied_Numbers();
    MUST(Remove_File(Applied_Exclusion_Path) && Remove_File(Exclusion_Index_Path));
    Remove_File(Kept_Path(Exclusion_Index_Path));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Set_Paths();
    Fuzz_Input input(data, size);
    const unsigned kind = input.Octet() % 8;
    const QString name = input.Text();
    const QByteArray document = input.Document();
    const Number_List numbers = Check_Numbers(Fuzz_Input::Text_Of(document));
    if (kind == 1)
        Check_List_File(name, numbers);
    else if (kind == 2 && document.size() < 4096)
        Check_Index_Files(document);
    return 0;
}
