#include "windows/jobs/Unfinished_Strip.h"

#include "engine/Job_Receipt.h"
#include "engine/Receipt_Cells.h"
#include "platform/Interface_Thread.h"
#include "platform/One_Line.h"
#include "records/Job_Reader.h"
#include "texts/Receipt_Texts.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Flow_Layout.h"
#include "windows/jobs/Removal_Question.h"
#include "windows/jobs/Unknown_Rows_Sheet.h"

#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QVBoxLayout>
#include <algorithm>

namespace {

QString Printable_Line(const QString& text)
{
    return Receipt_Cells::Printable(On_One_Line(text));
}

QString Counts_In_Words(const Job_Counts& counts)
{
    const std::pair<Receipt_Kind, int> Sums[] = {{Receipt_Kind::All, counts.rows},
                                                 {Receipt_Kind::Sent, counts.sent},
                                                 {Receipt_Kind::May_Have_Been_Sent, counts.unknown},
                                                 {Receipt_Kind::Not_Tried, counts.not_tried},
                                                 {Receipt_Kind::Refused, counts.refused},
                                                 {Receipt_Kind::Skipped, counts.skipped}};
    QStringList sums;
    for (const auto& [kind, count] : Sums)
        sums.append(QString(Texts::Receipts::Sum).arg(Name_Of(kind), QString::number(count)));
    return sums.join(u' ');
}

bool Can_Be_Gone_On_With(const Unfinished_Job& job)
{
    return job.trouble == Job_Trouble::None && !job.is_in_use;
}

} // namespace

Unfinished_Strip::Unfinished_Strip(QWidget* parent)
    : Quiet_Strip("Unfinished_Strip", parent), m_words(Made_Label("_Strip_Words")),
      m_counts(Made_Label("_Strip_Counts")), m_more(Made_Label("_Strip_More")), m_trouble(Made_Label("_Strip_Trouble")),
      m_buttons(new QWidget),
      m_go_on(Made_Button("Go_On_Btn", {}, tr("Sends what was not sent. What was sent is not sent again."))),
      m_decide(Made_Button("Decide_Btn", tr("Rows that may have been sent ..."),
                           tr("Lists them, so that you can say what is to become of each"))),
      m_receipt(Made_Button("Receipt_Btn", tr("Receipt ..."), tr("Shows what became of each message so far"))),
      m_remove(Made_Button("Remove_Btn", tr("Remove ..."), tr("Removes the job's list and its record"))),
      m_later(Made_Button("Later_Btn", tr("Later"), tr("Leaves the job as it is and says no more of it for now"))),
      m_question(new Removal_Question)
{
    setAccessibleName(tr("Job that has not ended"));
    m_receipt->setAccessibleName(tr("Receipt of the job that has not ended ...")); // the window may have another
    Lay_Out();
    connect(m_go_on, &QPushButton::clicked, this, &Unfinished_Strip::Go_On_Btn);
    connect(m_decide, &QPushButton::clicked, this, &Unfinished_Strip::Decide_Btn);
    connect(m_receipt, &QPushButton::clicked, this, [this] { Q_EMIT Show_Receipt(Shown_Path()); });
    connect(m_remove, &QPushButton::clicked, this, [this] {
        m_buttons->hide();
        m_question->Ask();
    });
    connect(m_later, &QPushButton::clicked, this, &Unfinished_Strip::Later_Btn);
    connect(m_question, &Removal_Question::Kept, this, [this] {
        m_buttons->show();
        m_remove->setFocus();
    });
    connect(m_question, &Removal_Question::Confirmed, this, &Unfinished_Strip::Remove_Now);
    hide();
}

void Unfinished_Strip::Lay_Out()
{
    auto* buttons = new Flow_Layout(m_buttons);
    for (QPushButton* button : {m_go_on, m_decide, m_receipt, m_remove, m_later})
        buttons->addWidget(button);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(14, 8, 14, 8);
    column->setSpacing(8);
    auto* heading = new QHBoxLayout;
    heading->addWidget(m_words, 1);
    heading->addWidget(m_more, 0, Qt::AlignTop);
    m_more->setWordWrap(false);
    column->addLayout(heading);
    for (QWidget* row : {static_cast<QWidget*>(m_counts), static_cast<QWidget*>(m_trouble), m_buttons,
                         static_cast<QWidget*>(m_question)})
        column->addWidget(row);
    QFont bold = font();
    bold.setBold(true);
    m_words->setFont(bold);
}

void Unfinished_Strip::Show_Jobs(const QList<Unfinished_Job>& jobs)
{
    m_jobs = jobs;
    Show_First();
}

void Unfinished_Strip::Say(QLabel& label, const QString& text)
{
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

void Unfinished_Strip::Show_First()
{
    m_question->hide();
    m_buttons->show();
    Say(*m_trouble, {});
    if (m_jobs.isEmpty()) {
        hide();
        return;
    }
    const Unfinished_Job& job = m_jobs.constFirst();
    const QString sentence = Job_Trouble_Sentence(job.is_in_use ? Job_Trouble::In_Use : job.trouble);
    if (sentence.isEmpty()) {
        Say(*m_words, tr("A job that began on %1 has not ended.").arg(Moment_In_Words(job.seconds)));
        const QString nothing = tr("Nothing of it is left to be sent.");
        const bool has_work = job.counts.not_tried > 0 || job.counts.unknown > 0;
        Say(*m_counts, Counts_In_Words(job.counts) + (has_work ? QString() : u' ' + nothing));
    } else {
        Say(*m_words, tr("The job %1 cannot be gone on with: %2.").arg(Printable_Line(job.id), sentence));
        Say(*m_counts, {});
    }
    const auto more = m_jobs.size() - 1;
    Say(*m_more, more > 0 ? tr("%n more", nullptr, static_cast<int>(more)) : QString());
    Show_Buttons(job);
    show();
}

void Unfinished_Strip::Show_Buttons(const Unfinished_Job& job)
{
    const bool can_go_on = Can_Be_Gone_On_With(job);
    const Job_Counts& counts = job.counts;
    m_go_on->setText(counts.refused == 0 ? tr("Send the remaining %n", nullptr, counts.not_tried)
                                         : tr("Send the rest"));
    m_go_on->setVisible(can_go_on && counts.not_tried > 0);
    m_decide->setVisible(can_go_on && counts.unknown > 0);
    m_receipt->setVisible(can_go_on);
    m_remove->setVisible(!job.is_in_use);
}

// ------------------------------------------------------------------------------------------------- the buttons

QString Unfinished_Strip::Shown_Path() const
{
    return m_jobs.isEmpty() ? QString() : m_jobs.constFirst().path;
}

void Unfinished_Strip::Go_On_Btn()
{
    const QString path = Shown_Path();
    if (path.isEmpty() || !Can_Be_Gone_On_With(m_jobs.constFirst()))
        return;
    if (m_jobs.constFirst().counts.unknown > 0 && Decide() != Answer::Given)
        return;
    if (m_jobs.constFirst().counts.not_tried == 0)
        return;
    Drop(path);
    Q_EMIT Go_On(path);
}

void Unfinished_Strip::Decide_Btn()
{
    if (!m_jobs.isEmpty() && Can_Be_Gone_On_With(m_jobs.constFirst()) && Decide() != Answer::Gone)
        m_later->setFocus();
}

void Unfinished_Strip::Later_Btn()
{
    const QString path = Shown_Path();
    if (path.isEmpty())
        return;
    Drop(path);
    Q_EMIT Let_Go(path);
}

// Shows the rows that may have been sent over the window.
Unfinished_Strip::Answer Unfinished_Strip::Decide()
{
    const QPointer<Unfinished_Strip> alive = this;
    const QString path = Shown_Path();
    std::shared_ptr<const Job_Receipt> receipt;
    Run_On_Worker([&] {
        if (Job_Reading reading = Read_Job(path); reading.record)
            receipt = std::make_shared<const Job_Receipt>(std::move(*reading.record));
    });
    if (!alive)
        return Answer::Gone;
    int code = QDialog::Rejected;
    if (receipt) {
        const QPointer<Unknown_Rows_Sheet> sheet = new Unknown_Rows_Sheet(path, receipt);
        code = Run_Dialog_Over(*sheet, window());
        delete sheet.data();
    }
    if (!alive || !Look_Again(path))
        return alive ? Answer::Refused : Answer::Gone;
    return code == QDialog::Accepted ? Answer::Given : Answer::Refused;
}

// What is to be said of a job may have changed. Answers no when the strip has gone, or shows another job now.
bool Unfinished_Strip::Look_Again(const QString& path)
{
    const QPointer<Unfinished_Strip> alive = this;
    std::optional<Kept_Job> kept;
    Run_On_Worker([&] { kept = Look_At_Job(path); });
    if (!alive || Shown_Path() != path)
        return false;
    if (kept)
        m_jobs.first() = kept->job;
    else
        m_jobs.removeFirst();
    Show_First();
    return kept && Can_Be_Gone_On_With(kept->job);
}

void Unfinished_Strip::Remove_Now()
{
    const QPointer<Unfinished_Strip> alive = this;
    const QString path = Shown_Path();
    auto trouble = Job_Trouble::None;
    Run_On_Worker([&] { trouble = Remove_Job(path); });
    if (!alive)
        return;
    if (trouble == Job_Trouble::None || !QFile::exists(path)) {
        Drop(path);
        Q_EMIT Removed(path);
        return;
    }
    if (Shown_Path() != path)
        return;
    m_buttons->show();
    m_later->setFocus();
    Say(*m_trouble, tr("The job could not be removed: %1.").arg(Job_Trouble_Sentence(trouble)));
}

void Unfinished_Strip::Drop(const QString& path)
{
    m_jobs.removeIf([&](const Unfinished_Job& job) { return job.path == path; });
    Show_First();
}
