#include "windows/main/Job_Follow_Up.h"

#include "device/Chosen_Device.h"
#include "engine/Confirmed_Manner.h"
#include "engine/Job_Order.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "records/Job_Reader.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Window_Work.h"
#include "windows/jobs/Receipt_Wnd.h"
#include "windows/jobs/Unfinished_Strip.h"
#include "windows/main/Send_Runner.h"

#include <QFileInfo>
#include <QPushButton>
#include <utility>

Job_Follow_Up::Job_Follow_Up(Main_Window& window, Window_Work& work, Send_Runner& runner, Unfinished_Strip& strip,
                             QPushButton& receipt_button)
    : m_window(window), m_work(work), m_runner(runner), m_strip(strip), m_receipt_button(receipt_button)
{
    connect(&strip, &Unfinished_Strip::Go_On, this, &Job_Follow_Up::Go_On);
    connect(&strip, &Unfinished_Strip::Show_Receipt, this,
            [this](const QString& path) { Receipt_Window().Show_Kept(Jobs_Folder_Path, path); });
    connect(&strip, &Unfinished_Strip::Let_Go, this, [this](const QString& path) { Let_Go(Job_Id_Of(path)); });
}

void Job_Follow_Up::Look_For_Unfinished(const std::function<void()>& and_then)
{
    const int look = ++m_look;
    if (Program_Is_Exiting())
        return;
    if (!QFileInfo::exists(Jobs_Folder_Path)) {
        Show_Unfinished({});
        return;
    }
    m_work.Start("unfinished jobs", [this, look, and_then, folder = Jobs_Folder_Path] {
        const QList<Unfinished_Job> jobs = Unfinished_Jobs(folder);
        Run_On_Interface_Thread([&] {
            if (look == m_look)
                Show_Unfinished(jobs);
            if (and_then)
                and_then();
        });
    });
}

// A job that a program works on at this moment is no matter of this one.
void Job_Follow_Up::Show_Unfinished(const QList<Unfinished_Job>& jobs)
{
    QList<Unfinished_Job> offered;
    for (const Unfinished_Job& job : jobs) {
        if (!job.is_in_use && !m_let_go.contains(job.id))
            offered.append(job);
    }
    m_strip.Show_Jobs(offered);
}

void Job_Follow_Up::Job_Ended(std::shared_ptr<const Job_Record> record)
{
    if (record)
        m_last_record = std::move(record);
    m_receipt_button.setVisible(m_last_record != nullptr);
    Look_For_Unfinished();
}

void Job_Follow_Up::Take_Reports()
{
    if (!m_last_record)
        return;
    const QString path = Job_Journal_Path(Jobs_Folder_Path, m_last_record->Header().id);
    m_work.Start("reports of the last job", [this, path] {
        Job_Reading reading = Read_Job(path);
        if (!reading.record)
            return;
        const auto record = std::make_shared<const Job_Record>(std::move(*reading.record));
        Run_On_Interface_Thread([&] {
            if (record->Header().id != m_last_record->Header().id)
                return;
            m_last_record = record;
            if (m_receipt_window)
                m_receipt_window->Take_Later(*m_last_record);
        });
    });
}

Receipt_Wnd& Job_Follow_Up::Receipt_Window()
{
    if (!m_receipt_window)
        m_receipt_window = new Receipt_Wnd(m_window.Window());
    return *m_receipt_window;
}

void Job_Follow_Up::Show_Receipt()
{
    if (m_last_record)
        Receipt_Window().Show_Record(*m_last_record);
}

void Job_Follow_Up::Show_Kept()
{
    Receipt_Window().Show_Kept(Jobs_Folder_Path);
}

// Outcomes are shown where the list is the job's; an empty one becomes it.
void Job_Follow_Up::Go_On(const QString& journal_path)
{
    auto sheet = m_work.Sheet();
    Job_Reading reading;
    std::optional<Recipient_List> recipients;
    bool is_the_list = m_window.Recipients().Count() == 0;
    Run_On_Worker([&, shown = m_window.Recipients()] {
        reading = Read_Job(journal_path);
        if (reading.record)
            recipients = Recipients_Of(*reading.record);
        is_the_list = is_the_list || (recipients && Are_The_Same(shown, *recipients));
    });
    sheet.reset();
    if (Program_Is_Exiting())
        return;
    if (!recipients) {
        Look_For_Unfinished();
        return;
    }
    if (m_window.Recipients().Count() == 0)
        m_window.Replace_Recipients(*recipients);
    Send_The_Rest(journal_path, *reading.record, std::move(*recipients), is_the_list);
}

// What is not in the journal is as the boxes say it now.
void Job_Follow_Up::Send_The_Rest(const QString& journal_path, const Job_Record& record, Recipient_List recipients,
                                  bool is_the_list)
{
    const Send_Choices choices = m_window.Read_Send_Choices();
    Send_Order order =
        Order_Of(record.Options(), sel_port_bsd_str.isEmpty() ? record.Header().device : sel_port_bsd_str);
    order.recipients = std::move(recipients);
    order.choices.exclusion = choices.exclusion;
    order.choices.save_sent_items = choices.save_sent_items;
    order.choices.save_templates = choices.save_templates;
    Confirmed_Options options;
    options.resumed_path = journal_path;
    options.job = record.Options();
    options.keeps_journal = record.Header().keeps_receipt.value_or(choices.confirm.keeps_receipt);
    m_runner.Send_Confirmed(std::move(order), options, is_the_list);
}
