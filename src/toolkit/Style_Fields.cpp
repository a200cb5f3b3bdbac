#include "toolkit/Style_Fields.h"

#include "toolkit/Look_Tokens.h"
#include "toolkit/Style_Paint.h"

#include <QPainter>
#include <QPlainTextEdit>
#include <QStyle>
#include <QStyleOption>
#include <QTextEdit>

using namespace Style_Paint;

namespace Style_Fields {

namespace {

constexpr int Room_Beside_Words = 8;
constexpr int Room_Of_Arrow = 26;

void Draw_Field(const QStyleOption& option, QPainter& painter, bool has_focus)
{
    const Look_Tokens& tokens = Tokens_Now();
    const bool is_enabled = option.state & QStyle::State_Enabled;
    Draw_Box(painter, option.rect,
             {.fill = is_enabled ? tokens.field : tokens.ground, .line = is_enabled ? tokens.edge : tokens.outline});
    if (has_focus && is_enabled)
        Draw_Focus(painter, option.rect, Field_Radius);
}

} // namespace

void Draw_Line(const QStyleOptionFrame& option, QPainter& painter, const QWidget* widget)
{
    const bool has_focus = option.state & QStyle::State_HasFocus;
    if (option.state & QStyle::State_ReadOnly) {
        if (has_focus)
            Draw_Focus(painter, option.rect, Field_Radius);
    } else if (!widget || option.lineWidth > 0) { // else it lies in a box, which draws the field
        Draw_Field(option, painter, has_focus);
    }
}

QRect Words_Of_Line(const QStyleOptionFrame& option)
{
    if (option.lineWidth == 0)
        return option.rect;
    const int beside = option.state & QStyle::State_ReadOnly ? 2 : Room_Beside_Words - 2;
    return option.rect.adjusted(Scaled(beside, &option), 2, -Scaled(beside, &option), -2);
}

void Draw_Combo(const QStyleOptionComboBox& option, QPainter& painter)
{
    const Look_Tokens& tokens = Tokens_Now();
    Draw_Field(option, painter, option.state & QStyle::State_HasFocus);
    const int side = Scaled(8, &option);
    QRectF angle(0, 0, side, side);
    angle.moveCenter(QRectF(QStyle::visualRect(option.direction, option.rect, Arrow_Of_Combo(option))).center());
    Draw_Angle(painter, angle, option.state & QStyle::State_Enabled ? tokens.ink : tokens.soft);
}

QRect Words_Of_Combo(const QStyleOptionComboBox& option)
{
    const int beside = Scaled(Room_Beside_Words - 2, &option);
    return option.rect.adjusted(beside, 2, -Scaled(Room_Of_Arrow, &option), -2);
}

QRect Arrow_Of_Combo(const QStyleOptionComboBox& option)
{
    const int room = Scaled(Room_Of_Arrow, &option);
    return {option.rect.right() + 1 - room, option.rect.top(), room, option.rect.height()};
}

void Draw_Area(const QStyleOption& option, QPainter& painter, const QWidget& area)
{
    const Look_Tokens& tokens = Tokens_Now();
    const auto* plain = qobject_cast<const QPlainTextEdit*>(&area);
    const auto* rich = qobject_cast<const QTextEdit*>(&area);
    const bool is_written_in = (plain && !plain->isReadOnly()) || (rich && !rich->isReadOnly());
    const bool has_focus = option.state & QStyle::State_HasFocus;
    if (is_written_in) {
        Draw_Field(option, painter, has_focus);
        return;
    }
    const double radius = plain || rich ? Field_Radius : Card_Radius;
    Draw_Box(painter, option.rect,
             {.fill = area.palette().color(QPalette::Base), .line = tokens.line, .radius = radius});
    if (has_focus)
        Draw_Focus(painter, option.rect, radius);
}

} // namespace Style_Fields
