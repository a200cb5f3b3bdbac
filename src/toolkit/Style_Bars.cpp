#include "toolkit/Style_Bars.h"

#include "toolkit/Look_Tokens.h"
#include "toolkit/Style_Paint.h"

#include <QPainter>
#include <QPainterPath>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>

using namespace Style_Paint;

namespace Style_Bars {

namespace {

double Radius_Of(const QRect& rect)
{
    return std::min(rect.height() / 2.0, double(Field_Radius));
}

} // namespace

void Draw_Groove(const QStyleOptionProgressBar& option, QPainter& painter)
{
    const Look_Tokens& tokens = Tokens_Now();
    Draw_Box(painter, option.rect, {.fill = tokens.bubble, .line = tokens.outline, .radius = Radius_Of(option.rect)});
}

void Draw_Done(const QStyleOptionProgressBar& option, QPainter& painter)
{
    const double all = double(option.maximum) - option.minimum;
    const double done = all > 0 ? (double(option.progress) - option.minimum) / all : 0;
    QRect bar = option.rect;
    bar.setWidth(qRound(bar.width() * std::clamp(done, 0.0, 1.0)));
    if (option.invertedAppearance)
        bar.moveRight(option.rect.right());
    painter.save();
    painter.setClipRect(QStyle::visualRect(option.direction, option.rect, bar));
    Draw_Box(painter, option.rect, {.fill = Tokens_Now().accent, .line = {}, .radius = Radius_Of(option.rect)});
    painter.restore();
}

void Draw_Busy(const QStyleOptionProgressBar& option, QPainter& painter, double share)
{
    const QRect& room = option.rect;
    const int length = room.width() / 3;
    const int start = room.left() - length + qRound((room.width() + length) * share);
    const QRect part = QStyle::visualRect(option.direction, room, QRect(start, room.top(), length, room.height()));
    painter.save();
    QPainterPath groove;
    groove.addRoundedRect(room, Radius_Of(room), Radius_Of(room));
    painter.setClipPath(groove);
    Draw_Box(painter, part, {.fill = Tokens_Now().accent, .line = {}, .radius = Radius_Of(room)});
    painter.restore();
}

QRect Handle_Of(const QStyleOptionSlider& option)
{
    const bool is_flat = option.orientation == Qt::Horizontal;
    const int length = is_flat ? option.rect.width() : option.rect.height();
    const qint64 range = qint64(option.maximum) - option.minimum;
    if (range <= 0)
        return option.rect;
    const int smallest = std::min(length, Scaled(28, &option));
    const int size = std::max(smallest, int(qint64(length) * option.pageStep / (range + option.pageStep)));
    const int start = QStyle::sliderPositionFromValue(option.minimum, option.maximum, option.sliderPosition,
                                                      length - size, option.upsideDown);
    return is_flat ? QRect(option.rect.left() + start, option.rect.top(), size, option.rect.height())
                   : QRect(option.rect.left(), option.rect.top() + start, option.rect.width(), size);
}

void Draw_Scroll_Bar(const QStyleOptionSlider& option, QPainter& painter)
{
    if (option.maximum <= option.minimum)
        return;
    const Look_Tokens& tokens = Tokens_Now();
    const bool is_held = option.state & QStyle::State_Sunken || option.state & QStyle::State_MouseOver;
    const QRectF handle = QStyle::visualRect(option.direction, option.rect, Handle_Of(option));
    const QRectF inner = handle.adjusted(3, 3, -3, -3);
    Draw_Box(painter, inner,
             {.fill = is_held ? tokens.soft : tokens.edge,
              .line = {},
              .radius = std::min(inner.width(), inner.height()) / 2});
}

} // namespace Style_Bars
