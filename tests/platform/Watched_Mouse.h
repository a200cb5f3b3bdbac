#pragma once

#include <QCursor>
#include <QMouseEvent>
#include <QTest>
#include <QWidget>
#include <atomic>

// Counts the moves of the mouse over it. A move comes in through the queue of the window system and takes effect when
// the user's events are next served. (Clicks made by a test are delivered at once and prove nothing about waiting.)
class Watched_Mouse : public QWidget
{
public:
    Watched_Mouse()
    {
        setMouseTracking(true);
        setGeometry(100, 100, 200, 200);
        show();
        m_is_ready = QTest::qWaitForWindowExposed(this);
        QCoreApplication::processEvents();
        m_moves = 0;
    }

    /// Moves the mouse to another place over the window.
    void Move()
    {
        const QPoint place = geometry().topLeft() + QPoint(50, 50);
        QCursor::setPos(QCursor::pos() == place ? place + QPoint(10, 0) : place);
    }

    bool m_is_ready = false;
    std::atomic<int> m_moves{0};

protected:
    void mouseMoveEvent(QMouseEvent*) override { ++m_moves; }
};
