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

// The widget that an event is for; a shortcut's event goes to an object of its own that hangs on one.
const QWidget* Widget_Of(const QObject* object)
{
    while (object && !object->isWidgetType())
        object = object->parent();
    return static_cast<const QWidget*>(object);
}

// A drop-down list or a menu is a window of its own, but belongs to the window that opened it.
bool Belongs_To(const QWidget* widget, const QWidget* window)
{
    while (widget) {
        const QWidget* top = widget->window();
        if (top == window)
            return true;
        widget = top->windowType() == Qt::Popup ? top->parentWidget() : nullptr;
    }
    return false;
}

} // namespace

Input_Hold::Input_Hold(QWidget* window) : m_window(window)
{
    qApp->installEventFilter(this);
}

Input_Hold::~Input_Hold() = default;

bool Input_Hold::eventFilter(QObject* watched, QEvent* event)
{
    if (!Comes_From_The_User(event->type()))
        return false;
    return m_window && Belongs_To(Widget_Of(watched), m_window);
}
