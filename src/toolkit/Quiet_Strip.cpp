#include "toolkit/Quiet_Strip.h"

#include <QLabel>
#include <QPainter>
#include <QPushButton>

Quiet_Strip::Quiet_Strip(const char* name, QWidget* parent) : QWidget(parent)
{
    setObjectName(QLatin1String(name));
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    setSizePolicy(policy);
}

QLabel* Quiet_Strip::Made_Label(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

QPushButton* Quiet_Strip::Made_Button(const char* name, const QString& text, const QString& tool_tip)
{
    auto* button = new QPushButton(text);
    button->setObjectName(QLatin1String(name));
    button->setToolTip(tool_tip);
    button->setAutoDefault(false);
    return button;
}

void Quiet_Strip::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.setBrush(palette().color(QPalette::Base));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
