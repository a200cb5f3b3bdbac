#include "toolkit/Style_Cards.h"

#include "toolkit/Heading_Font.h"
#include "toolkit/Look_Tokens.h"
#include "toolkit/Style_Paint.h"

#include <QPainter>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>

using namespace Style_Paint;

namespace Style_Cards {

namespace {

constexpr int Above_Heading = 10;
constexpr int Beside_Heading = 15; // the layout's margin and the card's line

QFont Heading(const QWidget* widget)
{
    return Heading_Font(widget ? widget->font() : QFont());
}

} // namespace

void Draw_Group(const QStyleOptionGroupBox& option, QPainter& painter, const QWidget* widget)
{
    const Look_Tokens& tokens = Tokens_Now();
    Draw_Box(painter, option.rect, {.fill = tokens.card, .line = tokens.line, .radius = Card_Radius});
    if (option.text.isEmpty())
        return;
    painter.save();
    painter.setFont(Heading(widget));
    painter.setPen(option.state & QStyle::State_Enabled ? tokens.ink : tokens.soft);
    painter.drawText(QStyle::visualRect(option.direction, option.rect, Heading_Of_Group(option, widget)),
                     static_cast<int>(QStyle::visualAlignment(option.direction, Qt::AlignLeft)) | Qt::TextShowMnemonic,
                     option.text);
    painter.restore();
}

QRect Heading_Of_Group(const QStyleOptionGroupBox& option, const QWidget* widget)
{
    const int beside = Scaled(Beside_Heading, &option);
    return {option.rect.left() + beside, option.rect.top() + Scaled(Above_Heading, &option),
            option.rect.width() - 2 * beside, QFontMetrics(Heading(widget)).height()};
}

QRect Room_Of_Group(const QStyleOptionGroupBox& option, const QWidget* widget)
{
    QRect room = option.rect.adjusted(1, 1, -1, -1);
    if (!option.text.isEmpty())
        room.setTop(Heading_Of_Group(option, widget).bottom() + 1 - Scaled(4, &option)); // the layout has a margin, too
    return room;
}

void Draw_Panel(const QStyleOption& option, QPainter& painter, const QWidget& panel)
{
    const Look_Tokens& tokens = Tokens_Now();
    const bool is_bubble = panel.property("is_bubble").toBool();
    Draw_Box(painter, option.rect,
             {.fill = is_bubble ? tokens.bubble : tokens.card,
              .line = is_bubble ? QColor() : tokens.line,
              .radius = Card_Radius});
}

} // namespace Style_Cards
