#include "toolkit/Button_Action.h"

#include "toolkit/Key_Actions.h"

#include <QEvent>
#include <QPushButton>

Button_Action::Button_Action(QPushButton& button, const QList<QKeySequence>& keys) : QAction(&button), m_button(button)
{
    setObjectName(button.objectName() + QStringLiteral("_Action"));
    setAutoRepeat(false);
    setShortcuts(keys);
    if (!keys.isEmpty())
        button.setToolTip(
            tr("%1 (%2)", "tool tip and keys").arg(button.toolTip(), keys.front().toString(QKeySequence::NativeText)));
    Take_On_Words();
    Take_On_State();
    button.installEventFilter(this);
    button.window()->addAction(this);
    connect(this, &QAction::triggered, this, [this] {
        Drop_Repeats(); // of the keys, which may answer what opens now
        m_button.click();
    });
}

void Button_Action::Take_On_Words()
{
    setText(m_button.text().simplified());
}

bool Button_Action::eventFilter(QObject* button, QEvent* event)
{
    const auto type = event->type();
    if (type == QEvent::EnabledChange || type == QEvent::ShowToParent || type == QEvent::HideToParent)
        Take_On_State();
    return QAction::eventFilter(button, event);
}

void Button_Action::Take_On_State()
{
    setEnabled(m_button.isEnabled());
    setVisible(!m_button.isHidden());
}
