#pragma once

#include <QList>
#include <QObject>
#include <QString>

class Button_Action;
class QAction;
class QMenu;
class QPushButton;

// Everything that the main window does, in one menu at a button, with the keys for it. Part of the main window;
// interface thread.
class Main_Menu : public QObject
{
    Q_OBJECT

public:
    explicit Main_Menu(QPushButton& button);

    /// Begins a menu of the next ones to be added.
    void Begin(const QString& title);
    /// The next ones stand in the menu itself, under a line.
    void End();
    /// Returns what stands for the button.
    QAction& Add(QPushButton& button, const QList<QKeySequence>& keys = {});
    void Add(QAction& action);

private:
    void Take_On_Words();

    QMenu* m_menu;
    QMenu* m_part;
    QList<Button_Action*> m_actions;
};
