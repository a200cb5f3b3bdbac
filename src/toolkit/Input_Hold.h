#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Whether a widget is a field that is typed into.
bool Takes_Text(const QWidget* widget);

enum class Typing
{
    Held_Back, ///< like everything else
    Served     ///< keys and clicks that go to a field with text work as ever; nothing else can be pressed
};

// Keeps mouse and keyboard away from one window, without greying it, for as long as the object lives: clicks and keys
// that come meanwhile are dropped. Dialogs over the window work as ever. Interface thread only.
class Input_Hold : public QObject
{
public:
    explicit Input_Hold(QWidget* window, Typing typing = Typing::Held_Back);
    ~Input_Hold() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// When something was typed last that went to its field, as Now_Seconds tells it; 0 when nothing was.
    double Last_Typed() const { return m_last_typed; }

private:
    QPointer<QWidget> m_window;
    Typing m_typing;
    double m_last_typed = 0;
};
