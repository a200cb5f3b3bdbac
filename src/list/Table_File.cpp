#include "list/Table_File.h"

#include "list/Contact_Cards.h"
#include "list/Delimited_Text.h"
#include "list/Number_File.h"
#include "list/Spreadsheet_File.h"
#include "list/Text_Encoding.h"
#include "texts/Table_Texts.h"

#include <QFileInfo>
#include <algorithm>
#include <array>

namespace {

struct Other_Kind
{
    QByteArrayView beginning;
    Fixed_Text name;
};

constexpr std::array Other_Kinds{Other_Kind{"%PDF-", Texts::Table::Pdf},
                                 Other_Kind{{"\x7F"
                                             "ELF",
                                             4},
                                            Texts::Table::Program},
                                 Other_Kind{{"\x1F\x8B", 2}, Texts::Table::Compressed},
                                 Other_Kind{"\x89PNG", Texts::Table::Picture},
                                 Other_Kind{{"\xFF\xD8\xFF", 3}, Texts::Table::Picture},
                                 Other_Kind{"<!DOCTYPE", Texts::Table::Web_Page},
                                 Other_Kind{"<!doctype", Texts::Table::Web_Page},
                                 Other_Kind{"<html", Texts::Table::Web_Page},
                                 Other_Kind{"<HTML", Texts::Table::Web_Page},
                                 Other_Kind{"<table", Texts::Table::Web_Page},
                                 Other_Kind{"<?xml", Texts::Table::Xml}};

constexpr QByteArrayView Rich_Text_Mark = "{\\rtf";
constexpr qsizetype Header_Of_A_Program = 64; // bytes, and some of them are 0; a table may begin with "MZ", too

bool Is_Program_Of_Another_System(QByteArrayView bytes)
{
    return bytes.startsWith("MZ") && bytes.first(std::min(bytes.size(), Header_Of_A_Program)).contains('\0');
}

QString Of_Another_Kind(QByteArrayView bytes)
{
    if (bytes.startsWith(Rich_Text_Mark))
        return Texts::Table::Rich_Text;
    if (Is_Program_Of_Another_System(bytes))
        return QString(Texts::Table::Other_Kind).arg(Texts::Table::Program);
    for (const Other_Kind& kind : Other_Kinds)
        if (bytes.startsWith(kind.beginning))
            return QString(Texts::Table::Other_Kind).arg(kind.name);
    return {};
}

Table_In_A_File Failed(const QString& trouble)
{
    Table_In_A_File file;
    file.trouble = trouble;
    return file;
}

QString Delimiter_Name(char delimiter)
{
    return delimiter == '\t' ? QStringLiteral("tab") : QString(QLatin1Char(delimiter));
}

Table_In_A_File Delimited(QByteArray text, const QString& name, const Table_Choices& choices)
{
    const bool prefers_tab = QFileInfo(name).suffix().compare(QLatin1String("tsv"), Qt::CaseInsensitive) == 0;
    const char delimiter = choices.delimiter != 0 ? choices.delimiter : Guessed_Delimiter(text, prefers_tab);
    Table_In_A_File file;
    file.facts.format = QStringLiteral("CSV");
    file.facts.delimiter = Delimiter_Name(delimiter);
    Table_Builder builder(0, !choices.has_no_names);
    file.trouble = Read_Delimited(std::move(text), delimiter, builder);
    file.table = builder.Take();
    return file;
}

// The values of cards may each be in an encoding of their own, so that only one that is no ASCII is undone for all.
Table_In_A_File Cards(const QByteArray& bytes, const QString& encoding)
{
    Table_In_A_File file;
    file.facts.format = QStringLiteral("vCard");
    file.facts.encoding = encoding;
    file.facts.number_column = QLatin1String(Card_Number_Column);
    Table_Builder builder(bytes.size());
    file.trouble = Read_Contact_Cards(bytes, builder);
    file.table = builder.Take();
    return file;
}

Table_In_A_File Spreadsheet(const QByteArray& bytes, const Table_Choices& choices)
{
    Table_In_A_File file;
    Table_Builder builder(0, !choices.has_no_names);
    const Read_Sheet read = Read_Spreadsheet(bytes, choices.sheet, builder);
    file.facts.format = read.format;
    file.facts.sheet = read.sheet;
    file.facts.sheets = read.sheets;
    file.trouble = read.trouble;
    file.table = builder.Take();
    return file;
}

Table_In_A_File Table_Of_Text(QByteArray bytes, const QString& name, const Table_Choices& choices)
{
    if (!choices.sheet.isEmpty())
        return Failed(Texts::Table::No_Sheets);
    QString encoding = choices.encoding;
    bool is_valid = false;
    bool is_told = true;
    if (encoding.isEmpty() && Is_Contact_Cards(bytes))
        return Cards(bytes, encoding);
    if (encoding.isEmpty()) {
        const Encoding_Guess guess = Guess_Encoding(bytes, choices.usual_encoding);
        if (!guess.trouble.isEmpty())
            return Failed(guess.trouble);
        encoding = guess.name;
        is_valid = guess.is_valid;
        is_told = guess.is_told;
    }
    Utf8_Text text = Text_In_Utf8(std::move(bytes), encoding, is_valid);
    if (!text.trouble.isEmpty())
        return Failed(text.trouble);
    if (Is_Contact_Cards(text.bytes))
        return Cards(text.bytes, encoding);
    Table_In_A_File file = Delimited(std::move(text.bytes), name, choices);
    file.facts.encoding = encoding;
    file.facts.encoding_is_told = is_told;
    return file;
}

} // namespace

QString Why_No_Plain_Text(QByteArrayView beginning)
{
    if (const QString trouble = Of_Another_Kind(beginning); !trouble.isEmpty())
        return trouble;
    if (const QString trouble = Trouble_Of_Old_Spreadsheet(beginning); !trouble.isEmpty())
        return trouble;
    if (Is_Archive(beginning))
        return Texts::Table::Spreadsheet;
    return Is_Contact_Cards(beginning) ? QString(Texts::Table::Cards) : QString();
}

Table_In_A_File Read_Table(const QString& path, const Table_Choices& choices)
{
    const QFileInfo file(path);
    if (!file.exists())
        return Failed(Texts::Table::Missing);
    if (!file.isFile())
        return Failed(Texts::Table::No_File);
    auto bytes = Bytes_Of_Number_File(path);
    if (!bytes || (bytes->isEmpty() && file.size() > 0))
        return Failed(QString(Texts::Table::Unreadable).arg(Largest_Number_File));
    return Table_Of_Bytes(std::exchange(*bytes, {}), path, choices);
}

Table_In_A_File Table_Of_Bytes(QByteArray bytes, const QString& name, const Table_Choices& choices)
{
    if (bytes.isEmpty())
        return Failed(Texts::Table::Empty);
    if (const QString trouble = Of_Another_Kind(bytes); !trouble.isEmpty())
        return Failed(trouble);
    if (const QString trouble = Trouble_Of_Old_Spreadsheet(bytes); !trouble.isEmpty())
        return Failed(trouble);
    return Is_Archive(bytes) ? Spreadsheet(bytes, choices) : Table_Of_Text(std::move(bytes), name, choices);
}
