#include "fuzz/Fuzz_Input.h"
#include "list/Cell_Format.h"
#include "list/Spreadsheet_File.h"

#include <utility>
#include <vector>
#include <zip.h>

namespace {

// Stored, not compressed: the reader is tried here, not the library beneath it.
QByteArray Archive_Of(const std::vector<std::pair<const char*, QByteArray>>& files)
{
    zip_source_t* source = zip_source_buffer_create(nullptr, 0, 0, nullptr);
    zip_t* archive = zip_open_from_source(source, ZIP_TRUNCATE, nullptr);
    zip_source_keep(source);
    for (const auto& [name, content] : files) {
        zip_source_t* bytes =
            zip_source_buffer(archive, content.constData(), static_cast<zip_uint64_t>(content.size()), 0);
        const zip_int64_t index = zip_file_add(archive, name, bytes, 0);
        zip_set_file_compression(archive, static_cast<zip_uint64_t>(index), ZIP_CM_STORE, 0);
    }
    MUST(zip_close(archive) == 0);
    MUST(zip_source_open(source) == 0);
    QByteArray whole(1 << 20, '\0');
    whole.truncate(zip_source_read(source, whole.data(), static_cast<zip_uint64_t>(whole.size())));
    zip_source_free(source);
    return whole;
}

QByteArray Workbook_Of(Fuzz_Input& input)
{
    const QByteArray texts = input.Piece();
    const QByteArray styles = input.Piece();
    const QByteArray relations = "<R><Relationship Id='a' Type='/worksheet' Target='s.xml'/>"
                                 "<Relationship Type='/sharedStrings' Id='t' Target='t.xml'/>"
                                 "<Relationship Id='f' Type='/styles' Target='f.xml'/></R>";
    return Archive_Of({{"[Content_Types].xml", "<T/>"},
                       {"xl/workbook.xml", "<w><sheets><sheet name='A' r:id='a'/></sheets></w>"},
                       {"xl/_rels/workbook.xml.rels", relations},
                       {"xl/t.xml", texts},
                       {"xl/f.xml", styles},
                       {"xl/s.xml", input.Document(1 << 16)}});
}

void Check_Format(Fuzz_Input& input)
{
    const QByteArray code = input.Piece();
    const Cell_Format format(code.toStdString());
    const double value = input.Rest().toDouble();
    for (const double number : {value, -value, value * 1e6, 46380.75})
        MUST(format.Shown(number, code.size() % 2 == 0).size() <= 400 * (code.size() + 1));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Fuzz_Input input(data, size);
    const unsigned choices = input.Octet() & 3;
    if (choices == 3) {
        Check_Format(input);
        return 0;
    }
    const QByteArray bytes = choices == 0   ? input.Rest()
                             : choices == 1 ? Workbook_Of(input)
                                            : Archive_Of({{"content.xml", input.Document(1 << 16)}});
    Table_Builder builder;
    const Read_Sheet read = Read_Spreadsheet(bytes, {}, builder);
    const Contact_Table table = builder.Take();
    MUST(!read.trouble.isEmpty() || table.Column_Count() > 0);
    for (int row = 0; row < table.Row_Count(); ++row)
        MUST(table.Field_Count(row) > 0 && table.Field_Count(row) <= Table_Builder::Most_Columns);
    return 0;
}
