#include "toolkit/Style_Tables.h"

#include "toolkit/Look_Tokens.h"
#include "toolkit/Style_Paint.h"

#include <QPainter>
#include <QStyleOption>

namespace Style_Tables {

namespace {

void Draw_Hairline(const QRect& rect, QPainter& painter)
{
    painter.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), Tokens_Now().line);
}

} // namespace

void Draw_Row(const QStyleOptionViewItem& option, QPainter& painter)
{
    if (option.state & QStyle::State_Selected)
        painter.fillRect(option.rect, Tokens_Now().chosen);
    Draw_Hairline(option.rect, painter);
}

// A selected row is told by a bar at its beginning as well, not by its ground alone.
void Draw_Mark_Of_Row(const QStyleOptionViewItem& cell, QPainter& painter)
{
    if (!(cell.state & QStyle::State_Selected) || cell.index.column() != 0)
        return;
    const QRect& rect = cell.rect;
    const QRect bar(rect.left(), rect.top(), Style_Paint::Scaled(3, &cell), rect.height() - 1);
    painter.fillRect(QStyle::visualRect(cell.direction, rect, bar), Tokens_Now().accent);
}

void Draw_Heading_Ground(const QStyleOption& option, QPainter& painter)
{
    painter.fillRect(option.rect, Tokens_Now().card);
    Draw_Hairline(option.rect, painter);
}

QStyleOptionViewItem On_Its_Row(const QStyleOptionViewItem& cell)
{
    QStyleOptionViewItem own = cell;
    for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled})
        own.palette.setColor(group, QPalette::HighlightedText, cell.palette.color(group, QPalette::Text));
    return own;
}

// With what the newer kind of option says of words that are cut.
QStyleOptionHeaderV2 In_Soft_Words(const QStyleOptionHeader& heading)
{
    QStyleOptionHeaderV2 own;
    if (const auto* newer = qstyleoption_cast<const QStyleOptionHeaderV2*>(&heading))
        own = *newer;
    else
        static_cast<QStyleOptionHeader&>(own) = heading;
    for (const auto role : {QPalette::ButtonText, QPalette::WindowText, QPalette::Text})
        own.palette.setColor(role, Tokens_Now().soft);
    return own;
}

} // namespace Style_Tables
