#include "toolkit/Whole_Text_Delegate.h"

#include "platform/One_Line.h"

#include <QAbstractItemView>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>

namespace {

constexpr qsizetype Most_Painted = 600; // a cell across a very wide screen
constexpr qsizetype Most_In_Tool_Tip = 4000;
constexpr int Lines_In_Tool_Tip = 30;
constexpr int Letters_In_Tool_Tip_Line = 80;

// The first characters of a text, up to a limit, without half of a surrogate pair at the end.
QString Beginning(const QString& text, qsizetype at_most)
{
    if (text.size() <= at_most)
        return text;
    return text.left(text.at(at_most - 1).isHighSurrogate() ? at_most - 1 : at_most);
}

QString Painted(const QString& text)
{
    const QString line = On_One_Line(Beginning(text, Most_Painted));
    return text.size() > Most_Painted ? line + QChar(0x2026) : line;
}

// Among words that are read from right to left, the plus would go behind its number.
QString With_Its_Plus_In_Front(const QString& text)
{
    constexpr QChar left_to_right(0x2066);
    constexpr QChar end(0x2069);
    const bool is_number =
        text.startsWith(u'+') && std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
    return QGuiApplication::isRightToLeft() && is_number ? left_to_right + text + end : text;
}

QStringList In_Lines(const QString& paragraph, const QFont& font, qreal width)
{
    QStringList lines;
    QTextLayout layout(paragraph, font);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines.append(paragraph.mid(line.textStart(), line.textLength()));
    }
    layout.endLayout();
    return lines;
}

} // namespace

QString Tool_Tip_Of(const QString& text)
{
    // The program's tool tips show every text literally, and so do not break lines themselves.
    const QFont font = QToolTip::font();
    const qreal width = QFontMetricsF(font).averageCharWidth() * Letters_In_Tool_Tip_Line;
    const QString beginning = Beginning(text, Most_In_Tool_Tip);
    QStringList lines;
    for (const QString& paragraph :
         QString(beginning).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).split(u'\n')) {
        if (lines.size() > Lines_In_Tool_Tip)
            break;
        lines += paragraph.isEmpty() ? QStringList(QString()) : In_Lines(On_One_Line(paragraph), font, width);
    }
    if (lines.size() > Lines_In_Tool_Tip || beginning.size() < text.size())
        lines = lines.mid(0, Lines_In_Tool_Tip) + QStringList(QChar(0x2026));
    return lines.join(u'\n');
}

QString Whole_Text_Delegate::displayText(const QVariant& value, const QLocale&) const
{
    return With_Its_Plus_In_Front(Painted(value.toString()));
}

bool Whole_Text_Delegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                    const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip || !index.isValid())
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const QString text = index.data().toString();
    const bool is_shown_whole = Painted(text) == text && sizeHint(option, index).width() <= option.rect.width();
    QToolTip::showText(event->globalPos(), is_shown_whole ? QString() : Tool_Tip_Of(text), view->viewport(),
                       option.rect);
    return true;
}
