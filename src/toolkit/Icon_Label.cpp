#include "toolkit/Icon_Label.h"

#include "toolkit/Line_Icons.h"
#include "toolkit/Look_Tokens.h"

#include <QPainter>

Icon_Label::Icon_Label(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void Icon_Label::Set_Tone(Tone tone)
{
    m_tone = tone;
    update();
}

QSize Icon_Label::sizeHint() const
{
    const int side = fontMetrics().height() * 5 / 4;
    return {side, side};
}

void Icon_Label::paintEvent(QPaintEvent* /*event*/)
{
    const Look_Tokens& tokens = Tokens_Now();
    QPainter painter(this);
    Paint_Line_Icon(painter, rect(), m_icon,
                    m_tone == Tone::Ok       ? tokens.ok
                    : m_tone == Tone::Accent ? tokens.accent
                                             : tokens.soft);
}
