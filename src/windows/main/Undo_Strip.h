#pragma once

#include "toolkit/Quiet_Strip.h"

#include <QTimer>
#include <functional>

class QAction;
class QTableView;
class Status_Label;

// A quiet strip that offers for a while to take back what was just removed: with its button, or with the keys for
// "undo", which in a field are for what was typed there. It takes no focus, and is hidden, whoever shows what it lies
// in, as long as there is nothing to take back. Part of the main window; interface thread.
class Undo_Strip : public Quiet_Strip
{
    Q_OBJECT

public:
    explicit Undo_Strip(QWidget* parent = nullptr);

    /// Has the window act on the keys, the table offer it in its menu, and the Tab key come here from the table.
    void Serve(QTableView& table);

    /// Offers to undo something, in the place of what was offered before. What undo holds may be large: when the offer
    /// is over, a worker releases it.
    void Offer(const QString& words, std::function<void()> undo);
    /// For menus; it can be triggered while something is offered.
    QAction& Action() { return *m_keys; }
    bool Has_Offer() const { return m_undo != nullptr; }
    /// There is nothing to take back any more.
    void Forget();

    void Undo_Btn();

    void setVisible(bool visible) override;

private:
    std::function<void()> Taken_Offer();

    Status_Label* m_words;
    QPushButton* m_button;
    QAction* m_keys;
    QTimer m_rest; // of the time for which it is offered
    std::function<void()> m_undo;
};
