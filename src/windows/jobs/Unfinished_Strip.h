#pragma once

#include "records/Job_Shelf.h"
#include "toolkit/Quiet_Strip.h"

#include <QList>

class Removal_Question;

// A quiet strip for a window: the jobs that have not ended, one at a time, and what can be done about them. It opens
// nothing by itself and sends nothing. Part of its window, hidden as long as there is nothing to say; interface thread,
// which goes on serving everything but input while files are read or written.
class Unfinished_Strip : public Quiet_Strip
{
    Q_OBJECT

public:
    explicit Unfinished_Strip(QWidget* parent = nullptr);

    /// Shows the first of these jobs, and says how many more there are; hides itself where there is none. Takes the
    /// place of those that were shown before.
    void Show_Jobs(const QList<Unfinished_Job>& jobs);

    void Go_On_Btn();
    void Decide_Btn();
    void Later_Btn();

Q_SIGNALS:
    /// The job is to be gone on with: what was not tried is to be sent, and what the person has decided. Decisions on
    /// rows that may have been sent are in the journal by then. The strip shows the job no longer.
    void Go_On(const QString& journal_path);
    /// The job's receipt is asked for.
    void Show_Receipt(const QString& journal_path);
    /// Not now: not to be offered again in this session. The strip shows the job no longer.
    void Let_Go(const QString& journal_path);
    /// The strip has removed the job's files, as the person wanted.
    void Removed(const QString& journal_path);

private:
    enum class Answer
    {
        Given,   ///< and in the journal, where there is anything to write
        Refused, ///< or there was nothing to be asked
        Gone     ///< and the strip with it
    };

    void Lay_Out();
    QString Shown_Path() const;
    void Show_First();
    void Show_Buttons(const Unfinished_Job& job);
    void Say(QLabel& label, const QString& text);
    Answer Decide();
    bool Look_Again(const QString& path);
    void Remove_Now();
    void Drop(const QString& path);

    QList<Unfinished_Job> m_jobs; // the first is shown
    QLabel* m_words;
    QLabel* m_counts;
    QLabel* m_more;
    QLabel* m_trouble;
    QWidget* m_buttons;
    QPushButton* m_go_on;
    QPushButton* m_decide;
    QPushButton* m_receipt;
    QPushButton* m_remove;
    QPushButton* m_later;
    Removal_Question* m_question;
};
