#pragma once

#include "records/Template_Item.h"

#include <QByteArray>
#include <QList>
#include <functional>
#include <optional>

// The format of the template file: one text per line, in UTF-8 without a byte-order mark. Functions on values; any
// thread.
namespace Template_Format {

inline constexpr int Most_Characters = 1600; ///< of a template, in UTF-16 units

/// The bytes of one template, including its "\n".
QByteArray Line(const QString& text);

/// The bytes of a whole file.
QByteArray Lines(const QList<Template_Item>& templates);

/// The template made of a text: trimmed, then cut to its first 1600 characters; what the cut may leave of a surrogate
/// pair is as it comes back from a file. Nothing when the text is blank.
std::optional<Template_Item> Template_Of(const QString& text);

/// Passes on every non-empty line of a file's text, as it was before it was stored.
void Read_Lines(const QString& text, const std::function<void(QString)>& take);

/// Passes on the templates of a file's text in file order, skipping each line equal to an earlier template. A line that
/// differs from one only in surrounding blanks is not skipped: it is passed on, trimmed, once more.
void Read(const QString& text, const std::function<void(Template_Item)>& take);

} // namespace Template_Format
