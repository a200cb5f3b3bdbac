#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

/// Whether a widget is a field to type in.
bool Takes_Text(const QWidget* widget);

enum class Typing
{
    Held_Back, ///< like everything else
    Served     ///< keys and clicks for a text field work as usual; nothing else can be pressed
};

// Keeps mouse and keyboard away from one window, without greying it, for as long as the object lives: clicks and keys
// that arrive meanwhile are dropped. Dialogs over the window work as usual. Interface thread only.
class Input_Hold : public QObject
{
public:
    explicit Input_Hold(QWidget* window, Typing typing = Typing::Held_Back);
    ~Input_Hold() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

    /// When something was last typed into a field that received it, in Now_Seconds; 0 when nothing was.
    double Last_Typed() const { return m_last_typed; }

private:
    QPointer<QWidget> m_window;
    Typing m_typing;
    double m_last_typed = 0;
};
