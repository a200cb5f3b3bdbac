#include "toolkit/Modal_Sheet.h"

#include "platform/Interface_Thread.h"
#include "toolkit/Dialog_Over.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QPainter>

Modal_Sheet::Modal_Sheet(QWidget* parent) : QDialog(parent)
{
    Become(Qt::WindowModal, m_sheet_flags);
}

void Modal_Sheet::Begin_Sheet(QWidget* over)
{
    if (m_is_let_go) {
        End_Sheet();
        m_is_let_go = false;
        Become(Qt::WindowModal, m_sheet_flags);
    }
    Put_Over(*this, over);
    if (!isVisible())
        setAttribute(Qt::WA_Moved, false); // a dialog that was not moved is centred over its window
    show();
    raise();
    repaint();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    Wake_Interface_Thread();
}

void Modal_Sheet::Offer_Close_Button()
{
    m_sheet_flags |= Qt::WindowCloseButtonHint;
    setWindowFlags(m_sheet_flags);
}

void Modal_Sheet::End_Sheet()
{
    m_is_ending = true;
    hide();
    m_is_ending = false;
}

void Modal_Sheet::Let_Go()
{
    if (m_is_let_go || !isVisible())
        return;
    m_is_let_go = true;
    const QPoint place = pos();
    End_Sheet(); // the modality of a visible window cannot change
    Become(Qt::NonModal, Qt::Dialog);
    move(place);
    show();
}

void Modal_Sheet::Become(Qt::WindowModality modality, Qt::WindowFlags flags)
{
    setWindowFlags(flags);
    setWindowModality(modality);
}

void Modal_Sheet::reject()
{
    if (m_is_let_go)
        QDialog::reject();
}

void Modal_Sheet::closeEvent(QCloseEvent* event)
{
    if (m_is_ending || m_is_let_go)
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
