#pragma once

#include <QAction>
#include <QKeySequence>

class QPushButton;

// A button's twin in menus, with keys: how it is called, whether it is there and whether it can be pressed is as with
// the button, and it does nothing but click that. The button's tool tip tells the keys. Belongs to the button, whose
// window it gives its keys to; interface thread.
class Button_Action : public QAction
{
    Q_OBJECT

public:
    /// Named after the button, with "_Action" behind. The first of the keys is the one that is told.
    explicit Button_Action(QPushButton& button, const QList<QKeySequence>& keys = {});

    /// Takes on what the button is called now.
    void Take_On_Words();

    bool eventFilter(QObject* button, QEvent* event) override;

private:
    void Take_On_State();

    QPushButton& m_button;
};
