#include "toolkit/Style_Buttons.h"

#include "toolkit/Line_Icons.h"
#include "toolkit/Look_Tokens.h"
#include "toolkit/Style_Paint.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <QVariant>
#include <QWidget>
#include <algorithm>

using namespace Style_Paint;

namespace Style_Buttons {

namespace {

constexpr int Beside_Flat = 6;
constexpr int Beside_Words = 11; // of buttons with a ground of their own
constexpr int Beside_Icon = 6;
constexpr int Room_Of_Angle = 16; // of a button with a menu

enum class Kind
{
    First,
    Outlined,
    Flat,
    Link
};

Kind Kind_Of(const QStyleOptionButton& option, const QWidget* widget)
{
    if (widget && widget->property("is_link").toBool())
        return Kind::Link;
    if (widget && widget->property("is_first").toBool())
        return Kind::First;
    return option.features & QStyleOptionButton::Flat ? Kind::Flat : Kind::Outlined;
}

bool Is_On(const QStyleOption& option, QStyle::StateFlag state)
{
    return option.state & state;
}

QString Icon_Of(const QWidget* widget)
{
    const QString name = widget ? widget->property("line_icon").toString() : QString();
    return Is_Line_Icon(name) ? name : QString();
}

QFont Font_Of(Kind kind, const QFont& font)
{
    QFont own = font;
    if (kind == Kind::First)
        own.setWeight(QFont::DemiBold);
    return own;
}

QColor Text_Colour(Kind kind, const QStyleOption& option)
{
    const Look_Tokens& tokens = Tokens_Now();
    if (!Is_On(option, QStyle::State_Enabled))
        return tokens.soft;
    switch (kind) {
    case Kind::First:
        return tokens.on_accent;
    case Kind::Flat:
        return tokens.accent;
    case Kind::Link:
        return tokens.link;
    case Kind::Outlined:
        break;
    }
    return tokens.ink;
}

QColor Pressed(const QColor& colour)
{
    return Look_Now() == Look::Light ? colour.darker(112) : colour.lighter(112);
}

// The icon before the words, both in the middle.
struct Places
{
    QRect icon;
    QRect words;
};

int Icon_Side(const QStyleOption& option)
{
    return option.fontMetrics.height() * 11 / 10;
}

// A flat button with an icon begins where others of its column begin; all others have their words in the middle.
Places Places_In(const QStyleOptionButton& option, const QFont& font, Kind kind, bool has_icon)
{
    QRect room = option.rect;
    if (option.features & QStyleOptionButton::HasMenu)
        room.setRight(room.right() - Scaled(Room_Of_Angle, &option));
    if (!has_icon)
        return {{}, QStyle::visualRect(option.direction, option.rect, room)};
    const int side = Icon_Side(option);
    const int gap = option.text.isEmpty() ? 0 : Scaled(Beside_Icon, &option);
    const int words = QFontMetrics(font).size(Qt::TextShowMnemonic, option.text).width();
    const int middle = std::max(0, (room.width() - side - gap - words) / 2);
    const int left = room.left() + (kind == Kind::Flat ? std::min(middle, Scaled(Beside_Flat, &option)) : middle);
    const QRect icon(left, room.center().y() - side / 2 + 1, side, side);
    const QRect rest(left + side + gap, room.top(), room.right() - left - side - gap + 1, room.height());
    return {QStyle::visualRect(option.direction, option.rect, icon),
            QStyle::visualRect(option.direction, option.rect, rest)};
}

} // namespace

void Draw_Panel(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget)
{
    const Look_Tokens& tokens = Tokens_Now();
    const bool is_enabled = Is_On(option, QStyle::State_Enabled);
    const bool is_down = is_enabled && (Is_On(option, QStyle::State_Sunken) || Is_On(option, QStyle::State_On));
    const bool is_near = is_enabled && Is_On(option, QStyle::State_MouseOver);
    Box box{.fill = tokens.card, .line = tokens.outline};
    switch (Kind_Of(option, widget)) {
    case Kind::First:
        box.fill = is_down || is_near ? Pressed(tokens.accent) : tokens.accent;
        box.line = QColor();
        if (!is_enabled)
            box = {.fill = tokens.bubble, .line = tokens.outline};
        break;
    case Kind::Flat:
        box = {.fill = is_down || is_near ? tokens.bubble : QColor(), .line = {}};
        break;
    case Kind::Link:
        box = {.fill = tokens.ground, .line = {}};
        break;
    case Kind::Outlined:
        if (is_down || is_near)
            box.fill = tokens.bubble;
        if (!is_enabled)
            box = {.fill = {}, .line = tokens.line};
        break;
    }
    Draw_Box(painter, option.rect, box);
}

void Draw_Label(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget)
{
    const Kind kind = Kind_Of(option, widget);
    const QColor colour = Text_Colour(kind, option);
    const QFont font = Font_Of(kind, painter.font());
    const QString icon = Icon_Of(widget);
    const Places places = Places_In(option, font, kind, !icon.isEmpty());
    painter.save();
    painter.setFont(font);
    painter.setPen(colour);
    if (!icon.isEmpty())
        Paint_Line_Icon(painter, places.icon, icon, colour);
    if (option.features & QStyleOptionButton::HasMenu) {
        const int side = Scaled(8, &option);
        const QRect angle(option.rect.right() - Scaled(Room_Of_Angle, &option), option.rect.center().y() - side / 2,
                          side, side);
        Draw_Angle(painter, QStyle::visualRect(option.direction, option.rect, angle), colour);
    }
    const bool shows_keys = !widget || widget->style()->styleHint(QStyle::SH_UnderlineShortcut, &option, widget);
    const Qt::Alignment place = icon.isEmpty() ? Qt::Alignment(Qt::AlignCenter) : Qt::AlignLeft | Qt::AlignVCenter;
    painter.drawText(places.words,
                     static_cast<int>(QStyle::visualAlignment(option.direction, place).toInt()) |
                         (shows_keys ? Qt::TextShowMnemonic : Qt::TextHideMnemonic),
                     option.text);
    painter.restore();
}

void Draw_Focus_Of(const QStyleOptionButton& option, QPainter& painter, const QWidget* widget)
{
    if (!Is_On(option, QStyle::State_HasFocus))
        return;
    if (Kind_Of(option, widget) == Kind::First) // a gap, or the ring would be one with the filling
        Draw_Box(painter, QRectF(option.rect).adjusted(2, 2, -2, -2),
                 {.fill = {}, .line = Tokens_Now().on_accent, .radius = Field_Radius - 2, .width = 2});
    Draw_Focus(painter, option.rect, Field_Radius);
}

QSize Size_Of(const QStyleOptionButton& option, const QWidget* widget)
{
    const Kind kind = Kind_Of(option, widget);
    const QFont font = Font_Of(kind, widget ? widget->font() : QFont());
    QSize size = QFontMetrics(font).size(Qt::TextShowMnemonic, option.text);
    if (!Icon_Of(widget).isEmpty())
        size.rwidth() += Icon_Side(option) + (option.text.isEmpty() ? 0 : Scaled(Beside_Icon, &option));
    if (option.features & QStyleOptionButton::HasMenu)
        size.rwidth() += Scaled(Room_Of_Angle, &option);
    const bool is_flat = kind == Kind::Flat || kind == Kind::Link;
    size += QSize(2 * Scaled(is_flat ? Beside_Flat : Beside_Words, &option), 2 * Scaled(is_flat ? 4 : 7, &option) + 2);
    return size.expandedTo(QSize(kind == Kind::Flat ? 0 : Scaled(72, &option), 0));
}

void Draw_Check_Mark(const QStyleOption& option, QPainter& painter)
{
    const Look_Tokens& tokens = Tokens_Now();
    const bool is_on = Is_On(option, QStyle::State_On) || Is_On(option, QStyle::State_NoChange);
    const bool is_enabled = Is_On(option, QStyle::State_Enabled);
    const QColor fill = is_on ? (is_enabled ? tokens.accent : tokens.edge) : is_enabled ? tokens.field : QColor();
    Draw_Box(painter, option.rect, {.fill = fill, .line = is_on ? fill : tokens.edge, .radius = Mark_Radius});
    if (!is_on)
        return;
    const QRectF place = option.rect;
    const auto at = [&](double x, double y) {
        return place.topLeft() + QPointF(x * place.width(), y * place.height());
    };
    const QPointF tick[] = {at(0.26, 0.52), at(0.43, 0.69), at(0.74, 0.33)};
    const QPointF dash[] = {at(0.27, 0.5), at(0.73, 0.5)};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(tokens.on_accent, place.width() / 9, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    if (Is_On(option, QStyle::State_On))
        painter.drawPolyline(tick, 3);
    else
        painter.drawPolyline(dash, 2);
    painter.restore();
}

void Draw_Radio_Mark(const QStyleOption& option, QPainter& painter)
{
    const Look_Tokens& tokens = Tokens_Now();
    const bool is_on = Is_On(option, QStyle::State_On);
    const bool is_enabled = Is_On(option, QStyle::State_Enabled);
    const QColor fill = is_on ? (is_enabled ? tokens.accent : tokens.edge) : is_enabled ? tokens.field : QColor();
    const QRectF place = option.rect;
    Draw_Box(painter, place, {.fill = fill, .line = is_on ? fill : tokens.edge, .radius = place.width() / 2});
    if (!is_on)
        return;
    const double third = place.width() / 3;
    Draw_Box(painter, place.adjusted(third, third, -third, -third),
             {.fill = tokens.on_accent, .line = {}, .radius = third / 2});
}

} // namespace Style_Buttons
