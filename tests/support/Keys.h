#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <QTest>
#include <QTimer>
#include <QWindow>

// What a person does with the keyboard: keys go to the window in front, as the window system hands them out, and from
// there to whatever has the focus. Interface thread.

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
