#pragma once

#include <QString>

class QLabel;

/// A text that is a link as a whole: blue, with a single underline, leading to url. The text is taken literally.
QString hyperlinkFromString(const QString& text, const QString& url);

/// Makes a text field show the sentence that offers the connection wizard, as a link that can be selected, under an
/// open-hand cursor.
void setHyperlinkWithTextField(QLabel& text_field);
