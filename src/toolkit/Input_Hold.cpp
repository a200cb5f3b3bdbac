#include "toolkit/Input_Hold.h"

#include "platform/Waiting.h"

#include <QApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPlainTextEdit>

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

// The widget that an event is for; a shortcut's event goes to an object of its own below one.
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

// A menu over a field, and a drag out of it, would outlive the hold.
bool Is_Typing(QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::InputMethod:
        return true;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton;
    default:
        return false;
    }
}

} // namespace

bool Takes_Text(const QWidget* widget)
{
    if (!widget || !widget->isEnabled())
        return false;
    if (const auto* edit = qobject_cast<const QPlainTextEdit*>(widget))
        return !edit->isReadOnly();
    const auto* line = qobject_cast<const QLineEdit*>(widget);
    return line && !line->isReadOnly();
}

Input_Hold::Input_Hold(QWidget* window, Typing typing) : m_window(window), m_typing(typing)
{
    qApp->installEventFilter(this);
}

Input_Hold::~Input_Hold() = default;

bool Input_Hold::eventFilter(QObject* watched, QEvent* event)
{
    if (!Comes_From_The_User(event->type()))
        return false;
    const QWidget* widget = Widget_Of(watched);
    if (m_typing == Typing::Served && Is_Typing(event)) {
        // An area with text takes its clicks through its viewport.
        if (Takes_Text(widget) || (widget && Takes_Text(qobject_cast<QPlainTextEdit*>(widget->parentWidget())))) {
            if (event->type() == QEvent::KeyPress || event->type() == QEvent::InputMethod)
                m_last_typed = Now_Seconds();
            return false;
        }
    }
    return m_window && Belongs_To(widget, m_window);
}
