#pragma once

#include "list/Recipient_List.h"
#include "records/Job_Shelf.h"

#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <functional>
#include <memory>

class Main_Window;
class QPushButton;
class Receipt_Wnd;
class Send_Runner;
class Unfinished_Strip;
class Window_Work;

// What there is to do about confirmed jobs that are over, or that broke off: the receipt of the last one, and the strip
// with those that have not ended. Owned by the main window, which outlives its workers; interface thread.
class Job_Follow_Up : public QObject
{
    Q_OBJECT

public:
    /// All outlive it.
    Job_Follow_Up(Main_Window& window, Window_Work& work, Send_Runner& runner, Unfinished_Strip& strip,
                  QPushButton& receipt_button);

    /// Looks through the jobs' folder, behind the window, and has the strip show those that have not ended, but for
    /// those that were let go in this session; does the other thing when it has looked, if there is such a folder.
    void Look_For_Unfinished(const std::function<void()>& and_then = {});
    /// A job is over; this is its record, if it has one.
    void Job_Ended(std::shared_ptr<const Job_Record> record);
    /// Reports have come for earlier jobs: the last one's receipt tells them, too.
    void Take_Reports();
    /// Something else than the strip is offered for a job.
    void Let_Go(const QString& id) { m_let_go.insert(id); }

    /// The receipt of the last job.
    void Show_Receipt();
    /// The receipts that were kept.
    void Show_Kept();

private:
    void Show_Unfinished(const QList<Unfinished_Job>& jobs);
    void Go_On(const QString& journal_path);
    void Send_The_Rest(const QString& journal_path, const Job_Record& record, Recipient_List recipients,
                       bool is_the_list);
    Receipt_Wnd& Receipt_Window();

    Main_Window& m_window;
    Window_Work& m_work;
    Send_Runner& m_runner;
    Unfinished_Strip& m_strip;
    QPushButton& m_receipt_button;
    Receipt_Wnd* m_receipt_window = nullptr; // the main window's child
    std::shared_ptr<const Job_Record> m_last_record;
    QSet<QString> m_let_go; // ids
    int m_look = 0;         // the latest; what an earlier one has found is out of date
};
