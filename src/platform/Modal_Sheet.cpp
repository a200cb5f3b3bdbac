#include "platform/Modal_Sheet.h"

#include "platform/Interface_Thread.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QPainter>

Modal_Sheet::Modal_Sheet(QWidget* parent) : QDialog(parent)
{
    setWindowFlags(Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint);
    setWindowModality(Qt::WindowModal);
}

void Modal_Sheet::Begin_Sheet(QWidget* over)
{
    if (parentWidget() != over)
        setParent(over, windowFlags());
    show();
    if (over) {
        const QPoint middle = over->mapToGlobal(over->rect().center());
        move(middle - rect().center());
    }
    raise();
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    Wake_Interface_Thread();
}

void Modal_Sheet::End_Sheet()
{
    m_is_ending = true;
    hide();
    m_is_ending = false;
}

void Modal_Sheet::reject() {}

void Modal_Sheet::closeEvent(QCloseEvent* event)
{
    if (m_is_ending)
        QDialog::closeEvent(event);
    else
        event->ignore();
}

void Modal_Sheet::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Mid));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}
