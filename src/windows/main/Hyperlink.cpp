#include "windows/main/Hyperlink.h"

#include "texts/Texts.h"

#include <QLabel>

QString hyperlinkFromString(const QString& text, const QString& url)
{
    return QStringLiteral("<a href=\"") + url.toHtmlEscaped() +
           QStringLiteral("\"><span style=\"color:#0000ff; text-decoration:underline;\">") + text.toHtmlEscaped() +
           QStringLiteral("</span></a>");
}

void setHyperlinkWithTextField(QLabel& text_field)
{
    text_field.setTextFormat(Qt::RichText);
    text_field.setText(hyperlinkFromString(Texts::Main::Choose_Device, QStringLiteral("corvane:connection-wizard")));
    text_field.setTextInteractionFlags(Qt::TextBrowserInteraction);
    text_field.setCursor(Qt::OpenHandCursor);
}
