#pragma once

#include "records/Job_Shelf.h"

#include <QFileSystemWatcher>
#include <QList>
#include <QTimer>
#include <QWidget>
#include <functional>

class QComboBox;
class QLabel;
class QPushButton;
class Removal_Question;

// The choice among the jobs of a folder, the newest first: each can be looked at, and removed unless a program works on
// it. Part of the window of receipts; interface thread, and its work is done by the window.
class Kept_Receipts : public QWidget
{
    Q_OBJECT

public:
    explicit Kept_Receipts(QWidget* parent = nullptr);

    /// Offers these jobs, and chooses the one with this journal, or else the newest.
    void Offer(const QList<Kept_Job>& jobs, const QString& chosen_path);
    /// The journal that is chosen; empty when there is none.
    QString Chosen_Path() const;

Q_SIGNALS:
    /// Another journal has been chosen, or the chosen one has changed.
    void Chosen(const QString& path);
    /// The person wants the chosen job to go.
    void To_Be_Removed(const QString& path);

private:
    void Take_Choice();
    void Take_Change();

    QComboBox* m_jobs;
    QPushButton* m_remove;
    Removal_Question* m_question;
    QList<Kept_Job> m_offered;
    QFileSystemWatcher m_watcher;
    QTimer m_rest; // so that a journal that is being written is not read without end
    bool m_has_changed = false;
};
