#pragma once

#include <QList>
#include <functional>

class QTableView;
class QWidget;

// What single keys do in a control, the same way in every window. A key that is held down acts once: what it goes on to
// say is dropped until it is let go, in whichever window that its action has opened. Interface thread only.

/// Acts each time one of the keys (Qt::Key) is pressed in a control, alone.
void Act_On_Keys(QWidget& control, const QList<int>& keys, std::function<void()> action);

/// Return, and the one beside the digits.
inline const QList<int> Return_Keys = {Qt::Key_Return, Qt::Key_Enter};

struct Table_Actions
{
    std::function<void()> edit;   ///< what F2 and Return do
    std::function<void()> remove; ///< what Delete does
};

/// Lets a table be worked with by keys: an action that is not given leaves its keys as they are. While nothing is
/// selected, the keys that move select the row that they stand on, which may be the only one.
void Give_Table_Keys(QTableView& table, const Table_Actions& actions);
