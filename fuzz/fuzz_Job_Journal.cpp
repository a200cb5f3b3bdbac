#include "fuzz/Fuzz_Input.h"
#include "platform/Text_Files.h"
#include "records/Job_List_Format.h"
#include "records/Job_Paths.h"
#include "records/Job_Reader.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>

namespace {

const QString Id = QStringLiteral("1");

// The journal of the one job. Its folder goes with the run and has the same name each time: a path's letters are data,
// too.
QString Path()
{
    static const QString folder = QDir::temp().filePath(QStringLiteral("jobs"));
    MUST(QDir().mkpath(folder));
    return Job_Journal_Path(folder, Id);
}

void Put(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    MUST(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}

// A header that fits the list, if that says how many rows and parts it has.
QByteArray Header_For(const QByteArray& list)
{
    const QByteArrayList end = list.mid(list.lastIndexOf('\n', -2) + 1).chopped(list.endsWith('\n')).split('\t');
    return Job_Line::Whole({"J1", "1", "2026-11-21T09:15:00Z", "-", "-", end.value(1, "0"), end.value(2, "0"),
                            QCryptographicHash::hash(list, QCryptographicHash::Sha256).toHex()});
}

void Check_Row(const Job_Record& record, int row)
{
    const Job_Row_State state = record.State_Of(row);
    MUST(state.parts == record.Parts_Of(row) && state.parts_sent <= state.parts);
    MUST(state.state != Sending_State::Accepted || state.parts_sent == state.parts);
    MUST(state.references.size() <= state.parts);
    for (int part = 1; part <= state.parts; ++part) {
        const Job_Part told = record.Part(row, part);
        MUST(told.reference >= -1 && told.reference <= 255);
        MUST(told.state <= state.state || told.state == Sending_State::Waiting);
        MUST(!May_Have_Been_Sent(told.state) || May_Have_Been_Sent(state.state));
    }
    if (const auto frozen = record.Row(row)) {
        MUST(frozen->parts == state.parts);
        const QByteArray line = Job_List_Format::Line(*frozen);
        MUST(Job_List_Format::Row_Of(QByteArrayView(line).chopped(1)) == frozen);
    }
}

// Whatever is read makes sense, and the same again without its torn end.
void Check_Job(const QByteArray& list, const QByteArray& journal)
{
    Put(Job_List_Path(Path()), list);
    Put(Path(), journal);
    const Job_Reading reading = Read_Job(Path());
    MUST(Read_File(Path()) == journal);
    MUST(reading.record.has_value() == (reading.trouble == Job_Trouble::None));
    if (!reading.record)
        return;
    const Job_Counts counts = reading.record->Counts();
    MUST(counts.rows == counts.sent + counts.refused + counts.unknown + counts.skipped + counts.not_tried);
    for (int row = 1; row <= qMin(counts.rows, 1000); ++row)
        Check_Row(*reading.record, row);
    MUST(reading.whole_size <= journal.size() && reading.is_torn == (reading.whole_size < journal.size()));
    Put(Path(), journal.first(reading.whole_size));
    const Job_Reading again = Read_Job(Path());
    MUST(again.record && !again.is_torn && again.whole_size == reading.whole_size);
    MUST(again.record->Counts().sent == counts.sent && again.record->Counts().unknown == counts.unknown);
    MUST(again.record->Has_Ended() == reading.record->Has_Ended());
}

// Lines with the checksums that they ought to have; behind the last piece, bytes as they are.
QByteArray Journal_From(Fuzz_Input& input, const QByteArray& list)
{
    QByteArray journal = Header_For(list);
    const QByteArrayList lines = input.Piece().split('\n');
    for (const QByteArray& line : lines)
        journal += Job_Line::Whole(line.split(' '));
    return journal + input.Document();
}

void Check_Line(Fuzz_Input& input)
{
    const QString text = input.Text();
    const QByteArray field = Job_Line::Field(text);
    MUST(!field.contains(' ') && !field.contains('\n') && !field.isEmpty());
    MUST(Job_Line::Text_Of(field) == QString::fromUtf8(text.toUtf8()));
    Job_Row row;
    row.number = row.skipped = text;
    row.text = input.Text();
    const QByteArray line = Job_List_Format::Line(row);
    MUST(line.count('\n') == 1 && Is_Valid_Utf8(line));
    MUST(Job_List_Format::Row_Of(QByteArrayView(line).chopped(1)) == row);
    const QByteArray bytes = input.Document();
    if (const auto seconds = Job_Line::Seconds_Of(bytes))
        MUST(Job_Line::Time(*seconds) == bytes);
    if (const auto told = Job_Line::Text_Of(bytes))
        MUST(Job_Line::Field(*told) == bytes);
    if (const auto read = Job_List_Format::Row_Of(bytes)) {
        MUST(Job_List_Format::Line(*read) == bytes + '\n');
        MUST(Job_List_Format::Extent_Of(bytes)->parts == read->parts);
    }
    if (const auto options = Job_List_Format::Options_Of(bytes))
        MUST(Job_List_Format::Options_Of(QByteArrayView(Job_List_Format::Line(*options)).chopped(1)) == options);
    Job_Line::Begins_With_A_Whole_Line(bytes);
}

} // namespace

// 0: a list and a journal of any bytes; 1: a list, and lines to which the checksums are added; 2: single lines.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned kind = input.Octet() % 3;
    if (kind == 2) {
        Check_Line(input);
        return 0;
    }
    const QByteArray list = input.Piece();
    const QByteArray journal = kind == 0 ? input.Document() : Journal_From(input, list);
    Check_Job(list, journal);
    return 0;
}
