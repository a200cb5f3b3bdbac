#pragma once

#include "records/Program_Settings.h"

#include <QObject>

class QActionGroup;
class QPushButton;

// Light, dark, the highest contrast, or what the desktop has: a menu at a button. What is chosen is seen in every
// window at once, and remembered. Part of the main window; interface thread.
class Appearance_Menu : public QObject
{
    Q_OBJECT

public:
    /// Puts back what was chosen; light at first.
    Appearance_Menu(QPushButton& button, const Program_Settings& settings);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void Choose(const QString& name);
    void Take_On(const QString& name);

    Program_Settings m_settings;
    QActionGroup* m_choices;
};
