#include "toolkit/Key_Marks.h"

#include "toolkit/Look_Tokens.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QWidget>

namespace {

bool Alt_Is_Held = false;

void Hold(bool is_held)
{
    if (is_held == Alt_Is_Held)
        return;
    Alt_Is_Held = is_held;
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (!window->isVisible())
            continue;
        const auto parts = window->findChildren<QWidget*>();
        for (QWidget* part : parts)
            part->update();
    }
}

class Alt_Watch : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            if (static_cast<QKeyEvent*>(event)->key() == Qt::Key_Alt)
                Hold(event->type() == QEvent::KeyPress);
            break;
        case QEvent::WindowDeactivate: // the key may be let go elsewhere
            Hold(false);
            break;
        default:
            break;
        }
        return false;
    }
};

} // namespace

void Key_Marks::Follow(QApplication& application)
{
    application.installEventFilter(new Alt_Watch(&application));
}

bool Key_Marks::Are_Shown_In(const QWidget* widget)
{
    return Alt_Is_Held || Look_Now() == Look::High_Contrast || qobject_cast<const QMenu*>(widget);
}
