#include "toolkit/Style_Paint.h"

#include "toolkit/Look_Tokens.h"

#include <QAbstractScrollArea>
#include <QFrame>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QStyleOption>

namespace Style_Paint {

namespace {

constexpr double Usual_Dots = 96;

} // namespace

int Scaled(double length, const QStyleOption* option)
{
    const double dots = option ? option->fontMetrics.fontDpi() : Usual_Dots;
    return qRound(length * dots / Usual_Dots);
}

void Draw_Box(QPainter& painter, const QRectF& rect, const Box& box)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(box.line.isValid() ? QPen(box.line, box.width) : QPen(Qt::NoPen));
    painter.setBrush(box.fill.isValid() ? QBrush(box.fill) : QBrush());
    const double half = box.line.isValid() ? box.width / 2 : 0;
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), box.radius, box.radius);
    painter.restore();
}

void Draw_Focus(QPainter& painter, const QRectF& rect, double radius)
{
    Draw_Box(painter, rect, {.fill = {}, .line = Tokens_Now().accent, .radius = radius, .width = 2});
}

void Draw_Angle(QPainter& painter, const QRectF& rect, const QColor& colour)
{
    const double half = rect.width() / 2;
    const QPointF tip = rect.center() + QPointF(0, half / 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour, 1.6, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    const QPointF points[] = {tip + QPointF(-half, -half), tip, tip + QPointF(half, -half)};
    painter.drawPolyline(points, 3);
    painter.restore();
}

bool Is_On_A_Card(const QWidget& widget)
{
    for (const QWidget* ground = widget.parentWidget(); ground && !widget.isWindow(); ground = ground->parentWidget()) {
        const auto* frame = qobject_cast<const QFrame*>(ground);
        if (qobject_cast<const QGroupBox*>(ground) || (frame && frame->frameShape() == QFrame::StyledPanel))
            return true;
        if (ground->isWindow())
            return false;
    }
    return false;
}

} // namespace Style_Paint
