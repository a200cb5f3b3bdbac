#pragma once

#include <QObject>
#include <memory>

struct Desktop_Buses;

// What the desktop does for a job: the computer does not go to sleep by itself, the program's icon shows how far the
// job is, and a notification says what happens while no window of the program has the keyboard. Every call is made on
// the thread of a job, and returns at once: a worker, which there is only while there is something to do, talks to the
// desktop's services. Nothing is opened before the first job. Belongs to the main window, which outlives the workers.
class Desktop_Help : public QObject
{
    Q_OBJECT

public:
    explicit Desktop_Help(const Desktop_Buses& buses, QObject* parent = nullptr);
    ~Desktop_Help() override;

    /// That of a main window, made when it is first asked for, with the buses of this session.
    static Desktop_Help& Of(QObject& main_window);

    void Job_Begins();
    /// The item at a position from 1 to total is being handled.
    void Job_At(int position, int total);
    /// The job has to wait, for this reason; and need not wait any more.
    void Job_Waits(const QString& reason);
    void Job_Goes_On();
    /// The job's window is about to close. Until the next one is active, none is, though nobody has gone away.
    void Window_Closes();
    /// The job is over, and this is what there is to say about it, if it has not been stopped.
    void Job_Says(const QString& text);
    /// A second end is none.
    void Job_Ends();

private:
    class Errands;

    void Notify(const QString& title, const QString& text);

    std::shared_ptr<Errands> m_errands; // none where there is no bus
    int m_percent = -1;                 // as shown
    bool m_runs = false;
    bool m_waits = false;
    bool m_was_in_front = false; // when the job's window closed
};
