#pragma once

#include <QList>
#include <functional>

class QTableView;
class QWidget;

// What single keys do in a control, the same in every window. A key held down acts once: its repeats are dropped until
// it is released, whichever window its action has opened. Interface thread only.

/// Acts each time one of the keys (Qt::Key) is pressed in a control, without modifiers.
void Act_On_Keys(QWidget& control, const QList<int>& keys, std::function<void()> action);

/// Drops what a key that is held down repeats, whichever window is in front, until it is released or another is
/// pressed.
void Drop_Repeats();

/// Return, and Enter on the number pad.
inline const QList<int> Return_Keys = {Qt::Key_Return, Qt::Key_Enter};

struct Table_Actions
{
    std::function<void()> edit;   ///< what F2 and Return do
    std::function<void()> remove; ///< what Delete does
};

/// Makes a table usable with keys: an action that is not given leaves its keys as they are. While nothing is selected,
/// the navigation keys select the current row, which may be the only one.
void Give_Table_Keys(QTableView& table, const Table_Actions& actions);
