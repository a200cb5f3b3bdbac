#include "windows/jobs/Kept_Receipts.h"

#include "engine/Job_Receipt.h"
#include "engine/Receipt_Cells.h"
#include "platform/One_Line.h"
#include "platform/Waiting.h"
#include "toolkit/Named_Combo_Box.h"
#include "windows/jobs/Removal_Question.h"

#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

namespace {

constexpr double Seconds_Between_Readings = 1;
constexpr int Letters_Always_In_Sight = 30;

QString Name_Of_Job(const Kept_Job& kept)
{
    const Unfinished_Job& job = kept.job;
    if (job.trouble != Job_Trouble::None)
        return Kept_Receipts::tr("%1: cannot be read").arg(Receipt_Cells::Printable(On_One_Line(job.id)));
    const QString name =
        Kept_Receipts::tr("%1: %n recipients", nullptr, job.counts.rows).arg(Moment_In_Words(job.seconds));
    if (job.is_in_use)
        return Kept_Receipts::tr("%1, in work").arg(name);
    return kept.has_ended ? name : Kept_Receipts::tr("%1, not ended").arg(name);
}

} // namespace

Kept_Receipts::Kept_Receipts(QWidget* parent)
    : QWidget(parent), m_jobs(new Named_Combo_Box), m_remove(new QPushButton(tr("Re&move ..."))),
      m_question(new Removal_Question)
{
    setObjectName(QStringLiteral("Kept_Receipts"));
    m_jobs->setObjectName(QStringLiteral("_Jobs"));
    m_jobs->setAccessibleName(tr("Job"));
    m_jobs->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_jobs->setMinimumContentsLength(Letters_Always_In_Sight);
    m_remove->setObjectName(QStringLiteral("Remove_Btn"));
    m_remove->setToolTip(tr("Removes the list and the record of this job"));
    m_remove->setAutoDefault(false);
    auto* caption = new QLabel(tr("&Job:"));
    caption->setObjectName(QStringLiteral("jobs_caption"));
    caption->setBuddy(m_jobs);
    auto* row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(caption);
    row->addWidget(m_jobs, 1);
    row->addWidget(m_remove);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->addLayout(row);
    column->addWidget(m_question);
    m_rest.setSingleShot(true);
    connect(m_jobs, &QComboBox::currentIndexChanged, this, &Kept_Receipts::Take_Choice);
    connect(m_remove, &QPushButton::clicked, m_question, &Removal_Question::Ask);
    connect(m_question, &Removal_Question::Kept, this, [this] { m_remove->setFocus(); });
    connect(m_question, &Removal_Question::Confirmed, this, [this] { Q_EMIT To_Be_Removed(Chosen_Path()); });
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &Kept_Receipts::Take_Change);
    connect(&m_rest, &QTimer::timeout, this, [this] {
        if (std::exchange(m_has_changed, false))
            Take_Change();
    });
}

void Kept_Receipts::Offer(const QList<Kept_Job>& jobs, const QString& chosen_path)
{
    {
        const QSignalBlocker muted(m_jobs);
        m_offered = jobs;
        m_jobs->clear();
        int chosen = 0;
        for (const Kept_Job& kept : jobs) {
            if (kept.job.path == chosen_path)
                chosen = m_jobs->count();
            m_jobs->addItem(Name_Of_Job(kept), kept.job.path);
        }
        m_jobs->setCurrentIndex(jobs.isEmpty() ? -1 : chosen);
    }
    setVisible(!jobs.isEmpty());
    Take_Choice();
}

QString Kept_Receipts::Chosen_Path() const
{
    return m_jobs->currentData().toString();
}

void Kept_Receipts::Take_Choice()
{
    m_question->hide();
    if (const QStringList watched = m_watcher.files(); !watched.isEmpty())
        m_watcher.removePaths(watched);
    const QString path = Chosen_Path();
    if (!path.isEmpty())
        m_watcher.addPath(path);
    const int index = m_jobs->currentIndex();
    m_remove->setEnabled(index >= 0 && !m_offered.at(index).job.is_in_use);
    m_has_changed = false;
    Q_EMIT Chosen(path);
}

void Kept_Receipts::Take_Change()
{
    if (m_rest.isActive()) {
        m_has_changed = true;
        return;
    }
    m_rest.start(static_cast<int>(Paced(Seconds_Between_Readings) * 1000));
    Q_EMIT Chosen(Chosen_Path());
}
