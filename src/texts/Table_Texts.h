#pragma once

#include "texts/Fixed_Text.h"

// What the readers of tables say. %1 and %2 are filled in.
namespace Texts::Table {

// Why a file is not read.
inline constexpr Fixed_Text Missing{"there is no such file"};
inline constexpr Fixed_Text No_File{"it is no file"};
inline constexpr Fixed_Text Unreadable{"it is larger than %1 bytes, or may not be read"};
inline constexpr Fixed_Text Empty{"it is empty"};
inline constexpr Fixed_Text No_Text{"it is no text: line %1 holds characters that no list has"};
inline constexpr Fixed_Text Other_Kind{"it is %1, and no list"};
inline constexpr Fixed_Text Pdf{"a PDF document"};
inline constexpr Fixed_Text Program{"a program"};
inline constexpr Fixed_Text Compressed{"a compressed file"};
inline constexpr Fixed_Text Picture{"a picture"};
inline constexpr Fixed_Text Web_Page{"a web page"};
inline constexpr Fixed_Text Xml{"an XML document"};
inline constexpr Fixed_Text Archive{"an archive"};
inline constexpr Fixed_Text Rich_Text{"it is rich text; its numbers can be imported under a name that ends in .rtf"};
inline constexpr Fixed_Text Spreadsheet{"it is a spreadsheet or an archive, and no list of numbers alone"};
inline constexpr Fixed_Text Cards{"it holds contacts, and not numbers alone"};
inline constexpr Fixed_Text Old_Spreadsheet{
    "it is a spreadsheet in an old format; saved as .xlsx, .ods or CSV it can be read"};
inline constexpr Fixed_Text Encrypted{"it is encrypted; saved without a password it can be read"};
inline constexpr Fixed_Text Too_Large{"it holds more than can be read"};
inline constexpr Fixed_Text Too_Many_Columns{"row %1 has more than %2 fields"};
inline constexpr Fixed_Text Header_Is_Number{"its first row holds the number %1, and no names of columns"};

// Text tables.
inline constexpr Fixed_Text Unknown_Encoding{"the encoding \"%1\" is not known"};
inline constexpr Fixed_Text Wrong_Encoding{"it is not encoded in %1"};
inline constexpr Fixed_Text Mixed_Encodings{"it mixes UTF-8 with another encoding; line %1 is not UTF-8"};
inline constexpr Fixed_Text Quote_Not_Closed{"the quote that opens in line %1 is never closed"};

// Spreadsheets and contacts.
inline constexpr Fixed_Text No_Sheets{"it has no sheets"};
inline constexpr Fixed_Text No_Such_Sheet{"it has no sheet \"%1\"; its sheets are %2"};
inline constexpr Fixed_Text More_Sheets{"and %1 more"};
inline constexpr Fixed_Text Damaged{"it is damaged, or only a part of it"};
inline constexpr Fixed_Text Card_Without_End{"the contact that begins in line %1 has no end"};

// A row's trouble.
inline constexpr Fixed_Text Too_Many_Fields{"%1 fields where %2 have names"};
inline constexpr Fixed_Text Stray_Quote{"text follows a closing quote"};

// Why a message cannot be sent to a row, with the placeholder; or how its text is.
inline constexpr Fixed_Text Is_Empty{"%1 is empty"};
inline constexpr Fixed_Text Is_Unknown{"%1 is unknown"};
inline constexpr Fixed_Text No_Text_Left{"its text is empty"};
inline constexpr Fixed_Text Text_Too_Long{"its text is too long"};

// What became of a written number, or why it cannot be used.
inline constexpr Fixed_Text National{"national, taken as one of %1"};
inline constexpr Fixed_Text Code_Added{"the code of %1 was put in front"};
inline constexpr Fixed_Text Zero_Missing{"its first 0 may have been lost; taken as one of %1"};
inline constexpr Fixed_Text Plus_Missing{"its + may have been lost; taken as an international one of %1"};
inline constexpr Fixed_Text No_Number{"there is no number"};
inline constexpr Fixed_Text Rounded{"a spreadsheet has rounded it; its digits are lost"};
inline constexpr Fixed_Text Not_A_Number{"it is no number"};
inline constexpr Fixed_Text Several_Numbers{"these are several numbers"};
inline constexpr Fixed_Text Too_Short{"it has too few digits"};
inline constexpr Fixed_Text Too_Long{"it has too many digits"};
inline constexpr Fixed_Text Unknown_Code{"no country has its code"};

} // namespace Texts::Table
