#include "windows/main/Main_Menu.h"

#include "toolkit/Button_Action.h"

#include <QMenu>
#include <QPushButton>

Main_Menu::Main_Menu(QPushButton& button) : QObject(&button), m_menu(new QMenu(&button)), m_part(m_menu)
{
    m_menu->setObjectName(QStringLiteral("Main_Menu"));
    button.setMenu(m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, &Main_Menu::Take_On_Words);
}

void Main_Menu::Begin(const QString& title)
{
    m_part = m_menu->addMenu(title);
}

void Main_Menu::End()
{
    m_part = m_menu;
    m_menu->addSeparator();
}

QAction& Main_Menu::Add(QPushButton& button, const QList<QKeySequence>& keys)
{
    m_actions.append(new Button_Action(button, keys)); // the button owns it
    Add(*m_actions.constLast());
    return *m_actions.constLast();
}

void Main_Menu::Add(QAction& action)
{
    m_part->addAction(&action);
}

void Main_Menu::Take_On_Words()
{
    for (Button_Action* action : std::as_const(m_actions))
        action->Take_On_Words();
}
