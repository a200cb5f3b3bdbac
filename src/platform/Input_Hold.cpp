#include "platform/Input_Hold.h"

#include <QApplication>
#include <QEvent>

namespace {

bool Comes_From_The_User(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::InputMethod:
    case QEvent::ContextMenu:
    case QEvent::DragEnter:
    case QEvent::Drop:
    case QEvent::TouchBegin:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
        return true;
    default:
        return false;
    }
}

} // namespace

Input_Hold::Input_Hold(QWidget* window)
    : m_window(window)
{
    qApp->installEventFilter(this);
}

Input_Hold::~Input_Hold() = default;

bool Input_Hold::eventFilter(QObject* watched, QEvent* event)
{
    if (!Comes_From_The_User(event->type()))
        return false;
    const auto* widget = qobject_cast<QWidget*>(watched);
    return widget && m_window && widget->window() == m_window;
}
