#pragma once

#include "records/Template_Item.h"

#include <QByteArray>
#include <QList>
#include <functional>
#include <optional>

// The format of the file of templates: one text a line, in UTF-8 without a byte-order mark. Functions on values; any
// thread.
namespace Template_Format {

inline constexpr int Most_Characters = 1600; ///< of a template; UTF-16 units

/// The bytes of one template, its "\n" included.
QByteArray Line(const QString& text);

/// The bytes of a whole file.
QByteArray Lines(const QList<Template_Item>& templates);

/// The template of a text: trimmed, then cut to its first 1600 characters, and with what the cut may leave of a
/// surrogate pair as it comes back from a file. Nothing when the text is blank.
std::optional<Template_Item> Template_Of(const QString& text);

/// Hands on every line of a file's text that is not empty, as it was before it was stored.
void Read_Lines(const QString& text, const std::function<void(QString)>& take);

/// Hands on the templates of a file's text in the order of the file, leaving out each line that equals a template
/// before it. A line that differs from one by blanks around it only is none of those: it comes trimmed, once more.
void Read(const QString& text, const std::function<void(Template_Item)>& take);

} // namespace Template_Format
