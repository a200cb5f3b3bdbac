#pragma once

#include <QAbstractButton>
#include <QTest>
#include <QWindow>

/// Leaves a click on a button in the queue of the window system, where a real one arrives: it takes effect when events
/// from the user are next served, and not before.
inline void Post_A_Click(QAbstractButton& button)
{
    QWindow* window = button.window()->windowHandle();
    const QPointF place = button.mapTo(button.window(), button.rect().center());
    const QPointF on_screen = button.mapToGlobal(button.rect().center());
    qt_handleMouseEvent(window, place, on_screen, Qt::LeftButton, Qt::LeftButton, QEvent::MouseButtonPress,
                        Qt::NoModifier, 1);
    qt_handleMouseEvent(window, place, on_screen, Qt::NoButton, Qt::LeftButton, QEvent::MouseButtonRelease,
                        Qt::NoModifier, 2);
}
