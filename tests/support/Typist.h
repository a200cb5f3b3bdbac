#pragma once

#include "platform/Waiting.h"

#include <QGuiApplication>
#include <QTest>
#include <QTimer>
#include <QWindow>
#include <cmath>

/// Presses a key and lets it go, in the window that has the keyboard at this moment.
inline void Press_Key(Qt::Key key, const QString& text = {}, Qt::KeyboardModifiers modifiers = {})
{
    QWindow* window = QGuiApplication::focusWindow();
    qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
    qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
}

// Somebody who types nine keys a second without looking up. Lives in a test, on the interface thread.
class Typist : public QObject
{
public:
    explicit Typist(QString text) : m_text(std::move(text)) { Type_The_Next_Soon(); }

    bool Is_Done() const { return m_typed == m_text.size(); }

private:
    void Type_The_Next_Soon()
    {
        constexpr double Keys_A_Second = 9;
        QTimer::singleShot(static_cast<int>(std::ceil(Paced(1 / Keys_A_Second) * 1000)), Qt::PreciseTimer, this,
                           &Typist::Type_The_Next);
    }

    void Type_The_Next()
    {
        const QChar letter = m_text.at(m_typed++);
        if (!Is_Done())
            Type_The_Next_Soon(); // before the key, which may open a window and not come back until that is closed
        if (letter == u'\n')
            Press_Key(Qt::Key_Return, QStringLiteral("\r"));
        else
            Press_Key(QTest::asciiToKey(letter.toLatin1()), letter);
    }

    QString m_text;
    int m_typed = 0;
};
