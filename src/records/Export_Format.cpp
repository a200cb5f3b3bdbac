#include "records/Export_Format.h"

#include "platform/Replace_Each.h"

#include <QStringEncoder>

namespace {

const QString Rule_Line(76, u'=');

// The page's own style. Its two dots, one missing and one too many, and its tabs are part of the format.
const QString Html_Style =
    QStringLiteral("<style type=text/css>Body,Td,Th{font-family:Verdana, Arial, Helvetica, sans-serif; font-size:11px}"
                   ".style1 {font-size: 16px;font-weight: bold; color: #000000;}"
                   ".style2 {font-size: 11px;font-weight: normal; color: #000000;}"
                   ".style3 {font-size: 16px;font-weight: bold;\tcolor: #ffffff;\t}"
                   "style4 {font-size: 12px;font-weight: bold;\tcolor: #000000;\t}.</style></head>");

const QString Html_Table =
    QStringLiteral("<table width=1000 border=%1 align=center cellpadding=0 cellspacing=0 bordercolor=#000000>");

QByteArray Piece(const QString& text)
{
    return QStringEncoder(QStringConverter::Utf16LE, QStringConverter::Flag::WriteBom).encode(text);
}

QString Text_Header(const QString& name)
{
    return Rule_Line + QStringLiteral("\n\n\t\t\t[ Corvane - ") + name + QStringLiteral("]\t\t\t\n\n") + Rule_Line +
           QChar(u'\n');
}

QString Html_Header(const QString& name)
{
    const QString title = QStringLiteral("[ Corvane - ") + name + QStringLiteral(" ]");
    const QString plain_table = Html_Table.arg(0);
    return QStringLiteral("<html><meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">"
                          "<head><title>") +
           title + QStringLiteral("</title>") + Html_Style + QStringLiteral("<body bgcolor =#f1f4fa>") + plain_table +
           QStringLiteral("<tr><td align = center class= style1>") + title + QStringLiteral("</td></tr></table><br>") +
           plain_table + QStringLiteral("<tr></tr></table><br><br>") + Html_Table.arg(1) +
           QStringLiteral("<tr><th height = 30 bgcolor = #647dbe align = Left class =style3>") + name +
           QStringLiteral(":</th></tr>");
}

QString Html_Message(const QString& message)
{
    return Replace_Each(Replace_Each(message, u"\n", u"<br>"), u" ", u"&nbsp;");
}

QString Html_Field(const QString& name, const QString& value)
{
    return QStringLiteral("<tr><td width=60>") + name + QStringLiteral("</td><td>:&nbsp;&nbsp;</td><td>") + value +
           QStringLiteral("</td>");
}

QString Html_Row(const QString& cells)
{
    return QStringLiteral("<tr><td  height = 50 class = style2><table>") + cells + QStringLiteral("</table></td></tr>");
}

QByteArray Header(int mode, const QString& name)
{
    return Piece(mode == Export_Format::Html_Mode ? Html_Header(name) : Text_Header(name));
}

} // namespace

QString Export_Format::Extension(int mode)
{
    return mode == Html_Mode ? QStringLiteral("html") : QStringLiteral("txt");
}

QByteArray Export_Format::Sent_Items_Header(int mode)
{
    return Header(mode, QStringLiteral("Sent Items"));
}

QByteArray Export_Format::Sent_Item_Piece(int mode, const Sent_Item& item)
{
    if (mode == Html_Mode)
        return Piece(Html_Row(Html_Field(QStringLiteral("Date"), item.Date) +
                              Html_Field(QStringLiteral("Number"), item.Number) +
                              Html_Field(QStringLiteral("Message"), Html_Message(item.Message))));
    return Piece(QStringLiteral("Date\t: ") + item.Date + QStringLiteral("\nNumber\t: ") + item.Number +
                 QStringLiteral("\nMessage\t: ") + item.Message + QChar(u'\n') + Rule_Line + QChar(u'\n'));
}

QByteArray Export_Format::Templates_Header(int mode)
{
    return Header(mode, QStringLiteral("Templates"));
}

QByteArray Export_Format::Template_Piece(int mode, const Template_Item& item)
{
    if (mode == Html_Mode)
        return Piece(Html_Row(QStringLiteral("<tr><td width=1></td><td></td><td>") + Html_Message(item.Message) +
                              QStringLiteral("</td>")));
    return Piece(item.Message + QChar(u'\n') + Rule_Line + QChar(u'\n'));
}
