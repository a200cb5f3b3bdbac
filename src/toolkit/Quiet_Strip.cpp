#include "toolkit/Quiet_Strip.h"

#include "toolkit/Look_Tokens.h"
#include "toolkit/Style_Paint.h"

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
    const Look_Tokens& tokens = Tokens_Now();
    const bool is_on_a_card = Style_Paint::Is_On_A_Card(*this); // no box in a box
    Style_Paint::Draw_Box(painter, rect(),
                          {.fill = is_on_a_card ? tokens.bubble : tokens.card,
                           .line = is_on_a_card ? QColor() : tokens.line,
                           .radius = Style_Paint::Card_Radius});
}
