#include "list/Spreadsheet_File.h"

#include "list/Ods_Sheet.h"
#include "list/Xlsx_Sheet.h"
#include "texts/Table_Texts.h"

namespace {

constexpr QByteArrayView Compound_File("\xD0\xCF\x11\xE0\xA1\xB1\x1A\xE1"); // [MS-CFB] 2.2
constexpr char16_t Encrypted_Stream[] = u"EncryptedPackage";                // [MS-OFFCRYPTO] 2.3.4

} // namespace

bool Is_Archive(QByteArrayView bytes)
{
    return bytes.startsWith("PK\x03\x04") || bytes.startsWith("PK\x05\x06");
}

QString Trouble_Of_Old_Spreadsheet(QByteArrayView bytes)
{
    if (!bytes.startsWith(Compound_File))
        return {};
    const QByteArrayView name(reinterpret_cast<const char*>(Encrypted_Stream), sizeof(Encrypted_Stream) - 2);
    return bytes.indexOf(name) >= 0 ? Texts::Table::Encrypted : Texts::Table::Old_Spreadsheet;
}

Read_Sheet Read_Spreadsheet(const QByteArray& bytes, const QString& sheet, Table_Builder& builder)
{
    Zip_Archive archive(bytes);
    Read_Sheet read;
    if (!archive.Is_Open())
        read.trouble = Texts::Table::Damaged;
    else if (Is_Ods(archive))
        read = Read_Ods(archive, sheet, builder);
    else if (Is_Xlsx(archive))
        read = Read_Xlsx(archive, sheet, builder);
    else
        read.trouble = archive.Has("xl/workbook.bin") ? QString(Texts::Table::Old_Spreadsheet)
                                                      : QString(Texts::Table::Other_Kind).arg(Texts::Table::Archive);
    switch (archive.Trouble_So_Far()) {
    case Zip_Archive::Trouble::Damaged:
        read.trouble = Texts::Table::Damaged;
        break;
    case Zip_Archive::Trouble::Encrypted:
        read.trouble = Texts::Table::Encrypted;
        break;
    case Zip_Archive::Trouble::Too_Large:
        read.trouble = Texts::Table::Too_Large;
        break;
    case Zip_Archive::Trouble::None:
        break;
    }
    return read;
}
