#include "plan/Hand_Over.h"

#include "handset/Address.h"
#include "handset/Text_Parts.h"
#include "platform/Folders_And_Files.h"
#include "platform/Text_Files.h"
#include "platform/Utf16_Units.h"
#include "texts/Plan_Texts.h"

#include <QDir>
#include <QtEndian>
#include <algorithm>
#include <cerrno>
#include <cstring>

namespace {

constexpr unsigned Only_The_User = 0700;

Hand_Over_Trouble Not_Written(const QString& path)
{
    return {QString(Texts::Plan::Not_Written).arg(path), QString::fromLocal8Bit(std::strerror(errno))};
}

// RFC 4180, 2.
QByteArray Csv_Field(const QString& text)
{
    QByteArray field = text.toUtf8();
    field.replace('"', "\"\"");
    return '"' + field + '"';
}

// As a handset is to get it: what has no place in the alphabet is replaced already.
QString Text_As_Written(const Planned_Row& row, const Row_Preview& preview)
{
    return Text_Of_Units(Handset::Written_Text(Units_Of(row.text), preview.alphabet == Job_Alphabet::Ucs2
                                                                       ? Handset::Alphabet::Ucs2
                                                                       : Handset::Alphabet::Gsm_7_Bit));
}

// ISO 8859-1 and 8859-15 read it alike, so that it does not matter which of them is meant.
bool Is_Latin(const QString& text)
{
    constexpr QStringView differ = u"\u00A4\u00A6\u00A8\u00B4\u00B8\u00BC\u00BD\u00BE";
    return std::all_of(text.begin(), text.end(),
                       [&](QChar character) { return character.unicode() < 0x100 && !differ.contains(character); });
}

QByteArray Utf_16_Big_Endian(const QString& text)
{
    QByteArray bytes(text.size() * 2, '\0');
    qToBigEndian<quint16>(text.utf16(), text.size(), bytes.data());
    return bytes;
}

// ITU-T E.164 with + in front; a national number stays as it is, since nobody knows its country.
QByteArray Number_For_Providers(const QString& number)
{
    const Handset::Address address = Handset::Destination_Of(number.toStdString());
    return (address.m_international ? "+" : "") + QByteArray::fromStdString(address.m_digits);
}

// A number with 00 in front is an international one and goes without it.
QByteArray Recipient_Lines(const QString& number)
{
    const Handset::Address address = Handset::Destination_Of(number.toStdString());
    return "To: " + QByteArray::fromStdString(address.m_digits) +
           (address.m_international ? "\n" : "\nTo_TOA: unknown\n");
}

} // namespace

Hand_Over_Trouble Hand_Over::Begin()
{
    const QString folder = m_folder;
    const QString spool = folder + QLatin1String("/spool");
    const bool has_files = !QDir(spool).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).isEmpty();
    if (has_files || QFile::exists(folder + QLatin1String("/list.csv")))
        return {QString(Texts::Plan::Not_Used).arg(folder), Texts::Plan::Holds_Another};
    if (!Make_Folder_If_Missing(folder, Only_The_User) || !Make_Folder_If_Missing(spool, Only_The_User))
        return Not_Written(spool);
    m_list = "\xEF\xBB\xBFnumber,text,encoding,parts\r\n"; // with the mark by which spreadsheets know UTF-8
    return {};
}

Hand_Over_Trouble Hand_Over::Add(const Planned_Row& row, const Row_Preview& preview)
{
    const QString text = Text_As_Written(row, preview);
    const bool is_unicode = preview.alphabet == Job_Alphabet::Ucs2;
    m_list += Number_For_Providers(row.number) + ',' + Csv_Field(text) + ',' + (is_unicode ? "unicode" : "gsm") + ',' +
              QByteArray::number(preview.parts) + "\r\n";
    const QString path =
        QStringLiteral("%1/spool/corvane-%2").arg(m_folder, QString::number(row.row).rightJustified(7, u'0'));
    return Replace_File(path, Spool_File(row, preview)) ? Hand_Over_Trouble() : Not_Written(path);
}

QByteArray Hand_Over::Spool_File(const Planned_Row& row, const Row_Preview& preview) const
{
    const QString text = Text_As_Written(row, preview);
    QByteArray file = Recipient_Lines(row.number);
    if (!m_manner.service_centre.isEmpty())
        file += "SMSC: " +
                QByteArray::fromStdString(Handset::Destination_Of(m_manner.service_centre.toStdString()).m_digits) +
                '\n';
    if (m_manner.is_flash)
        file += "Flash: yes\n";
    if (m_manner.asks_for_reports)
        file += "Report: yes\n";
    if (preview.alphabet == Job_Alphabet::Ucs2)
        return file + "Alphabet: UCS\n\n" + Utf_16_Big_Endian(text);
    if (Is_Latin(text))
        return file + "Alphabet: ISO\n\n" + text.toLatin1();
    return file + "Alphabet: UTF-8\n\n" + text.toUtf8();
}

Hand_Over_Trouble Hand_Over::End()
{
    const QString path = m_folder + QLatin1String("/list.csv");
    return Replace_File(path, m_list) ? Hand_Over_Trouble() : Not_Written(path);
}
