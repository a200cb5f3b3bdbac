#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

// Keeps mouse and keyboard away from one window, without greying it, for as long as the object lives: clicks and keys
// that come meanwhile are dropped. Dialogs over the window work as ever. Interface thread only.
class Input_Hold : public QObject
{
public:
    explicit Input_Hold(QWidget* window);
    ~Input_Hold() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QWidget> m_window;
};
