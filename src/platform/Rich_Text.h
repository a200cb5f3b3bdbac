#pragma once

#include <QByteArray>
#include <QString>

/// The plain text of a document in the Rich Text Format, as far as it can be read. Paragraphs, lines and table cells
/// each end in "\n". What the document does not show is left out: hidden and deleted text, annotations, field
/// instructions, headers and footers; font, colour, style, information and picture groups. Truncated and hostile
/// documents yield the text before the damage. Bytes that are no rich text at all are read leniently as UTF-8. Source:
/// Rich Text Format, version 1.9.1.
QString Plain_Text_Of_Rich_Text(const QByteArray& bytes);

/// Whether a path's extension is "rtf", in upper or lower case.
bool Is_Rich_Text_Path(const QString& path);
