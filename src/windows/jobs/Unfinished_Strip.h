#pragma once

#include "records/Job_Shelf.h"

#include <QList>
#include <QWidget>
#include <memory>

// A quiet strip for a window: the jobs that have not ended, one at a time, and what can be done about them. It opens
// nothing by itself and sends nothing. Part of its window, hidden as long as there is nothing to say; interface thread,
// with workers of its own that its end waits for.
class Unfinished_Strip : public QWidget
{
    Q_OBJECT

public:
    explicit Unfinished_Strip(QWidget* parent = nullptr);
    ~Unfinished_Strip() override;

    /// Shows the first of these jobs, and says how many more there are; hides itself where there is none. Takes the
    /// place of those that were shown before.
    void Show_Jobs(const QList<Unfinished_Job>& jobs);

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
    struct Private;
    const std::unique_ptr<Private> m_private;
};
