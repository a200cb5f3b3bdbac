#pragma once

#include "support/Serve_Until.h"

#include <QtTest>
#include <QtWidgets>
#include <gtest/gtest.h>

// Keys go to the window in front, and from there to whatever has the focus. Interface thread.

inline QWindow& Window_In_Front()
{
    QWidget* window = QApplication::activeModalWidget();
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* shown : windows) {
        if (!window && shown->isVisible() && shown->windowType() == Qt::Window)
            window = shown;
    }
    if (!window)
        qFatal("no window is in front");
    QApplication::setActiveWindow(window); // which a desktop does, also when the dialog over it has closed
    return *window->windowHandle();
}

inline void Press_Key(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
{
    QTest::keyClick(&Window_In_Front(), key, modifiers);
}

// A key that is held down: once pressed it repeats itself for as long as this lives, in whichever window is in front.
class Held_Key
{
public:
    explicit Held_Key(Qt::Key key) : m_key(key)
    {
        QObject::connect(&m_timer, &QTimer::timeout, [this] {
            Say(QEvent::KeyRelease, true);
            Say(QEvent::KeyPress, true);
            ++m_repeats;
        });
    }
    ~Held_Key()
    {
        m_timer.stop();
        Say(QEvent::KeyRelease, false);
    }
    Held_Key(const Held_Key&) = delete;
    Held_Key& operator=(const Held_Key&) = delete;

    /// Returns when all that the press leads to is over.
    void Press()
    {
        m_timer.start(1);
        Say(QEvent::KeyPress, false);
    }
    int Repeats() const { return m_repeats; }

private:
    void Say(QEvent::Type type, bool is_repeat)
    {
        QKeyEvent event(type, m_key, Qt::NoModifier, QString(), is_repeat);
        QApplication::sendEvent(&Window_In_Front(), &event);
    }

    const Qt::Key m_key;
    QTimer m_timer;
    int m_repeats = 0;
};

/// Until it has repeated itself some more times.
inline void Serve_Repeats(const Held_Key& key)
{
    const int enough = key.Repeats() + 10;
    EXPECT_TRUE(Serve_Until([&] { return key.Repeats() >= enough; }));
}

inline void Hold_Down(Qt::Key key)
{
    Held_Key held(key);
    held.Press();
    Serve_Repeats(held);
}
