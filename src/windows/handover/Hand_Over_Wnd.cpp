#include "windows/handover/Hand_Over_Wnd.h"

#include "plan/Hand_Over.h"
#include "plan/Job_Sums.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Thread_Shortage.h"
#include "platform/Waiting.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Window_Look.h"
#include "ui_Hand_Over_Wnd.h"

#include <QDir>
#include <QScopeGuard>
#include <QSignalBlocker>
#include <functional>
#include <semaphore>
#include <utility>

namespace {

constexpr double Seconds_Between_Words = 0.1;

// A message without a text is none to a provider.
bool Is_Handed_Over(const Planned_Row& row)
{
    return row.Is_To_Be_Sent() && !row.text.isEmpty();
}

Hand_Over_Wnd::Handed_Over Write_All(const Hand_Over_Wnd::Plan& plan, const QString& folder,
                                     const std::function<bool()>& is_stopped, const std::function<void(int)>& progress)
{
    Hand_Over hand_over(folder, plan.manner);
    Hand_Over_Wnd::Handed_Over done;
    done.trouble = hand_over.Begin();
    double told = Now_Seconds();
    const Job_Plan rows = Plan_Of(plan.order, plan.manner, is_stopped);
    for (int index = 0; index < plan.order.recipients.Count() && !done.trouble; ++index) {
        if (is_stopped()) {
            done.is_stopped = true;
            return done;
        }
        const Planned_Row row = rows.At(index);
        if (!Is_Handed_Over(row)) {
            ++done.left_out;
            continue;
        }
        done.trouble = hand_over.Add(row, Preview_Of(row, plan.manner));
        ++done.messages;
        if (Now_Seconds() - told > Seconds_Between_Words) {
            told = Now_Seconds();
            progress(index + 1);
        }
    }
    if (!done.trouble)
        done.trouble = hand_over.End();
    return done;
}

} // namespace

QString Hand_Over_Wnd::End_In_Words(const Handed_Over& done, const QString& folder)
{
    if (done.trouble)
        return tr("Not handed over: %1 (%2).").arg(done.trouble.what, done.trouble.why);
    if (done.is_stopped)
        return tr("Stopped. What is in the folder is not whole: remove it before it is used.");
    QString words = done.messages == 1
                        ? tr("Handed over: one message, in %1. Nothing was sent.")
                        : tr("Handed over: %n messages, in %1. Nothing was sent.", nullptr, done.messages);
    words = words.arg(QDir::toNativeSeparators(folder));
    if (done.left_out > 0)
        words += u' ' + tr("Recipients left out: %1.").arg(done.left_out);
    return words;
}

// What its worker shares with the window.
struct Hand_Over_Wnd::Work
{
    Plan plan;
    std::atomic<bool> is_stopped{false};
    std::binary_semaphore has_ended{0};
};

Hand_Over_Wnd::Hand_Over_Wnd(std::function<Plan()> plan, Program_Settings settings, QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Hand_Over_Wnd>()), m_plan(std::move(plan)),
      m_settings(std::move(settings))
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this, Letters{.columns = 84, .lines = 35}); // with room for the result
    m_caption = m_ui->Hand_Over_Btn->text();
    m_ui->_Hand_Over_Result->hide();
    connect(m_ui->Hand_Over_Btn, &QPushButton::clicked, this, &Hand_Over_Wnd::Hand_Over_Btn);
    connect(m_ui->_Do_Not_Tell_Chk, &QCheckBox::clicked, this, &Hand_Over_Wnd::Do_Not_Tell_Chk);
    connect(m_ui->Close_Btn, &QPushButton::clicked, this, &Hand_Over_Wnd::close);
}

Hand_Over_Wnd::~Hand_Over_Wnd()
{
    if (!m_work)
        return;
    m_work->is_stopped = true;
    m_work->has_ended.acquire();
}

void Hand_Over_Wnd::Bring_Up()
{
    Show_Notice_Choice();
    show();
    raise();
    activateWindow();
}

void Hand_Over_Wnd::Show_Notice_Choice()
{
    const QSignalBlocker nothing_is_chosen(m_ui->_Do_Not_Tell_Chk);
    m_ui->_Do_Not_Tell_Chk->setChecked(!m_settings.Wants_Notice(QLatin1String(Notice)));
}

// The box says what is so: it goes back where that cannot be brought about.
void Hand_Over_Wnd::Do_Not_Tell_Chk()
{
    const bool is_wanted = !m_ui->_Do_Not_Tell_Chk->isChecked();
    if (m_settings.Want_Notice(QLatin1String(Notice), is_wanted)) {
        Q_EMIT Notice_Chosen(is_wanted);
        return;
    }
    Show_NSLog_Message(QStringLiteral("What is to be remembered cannot be written."));
    Show_Notice_Choice();
}

void Hand_Over_Wnd::Hand_Over_Btn()
{
    if (m_work) {
        m_work->is_stopped = true;
        return;
    }
    if (const auto folder = Ask_For_Folder(this))
        Write_To(*folder);
}

void Hand_Over_Wnd::Write_To(const QString& folder)
{
    auto work = std::make_shared<Work>();
    work->plan = m_plan();
    m_ui->_Hand_Over_Result->show();
    if (work->plan.order.recipients.Count() == 0) {
        m_ui->_Hand_Over_Result->setText(tr("There is nobody in the list."));
        return;
    }
    m_ui->_Hand_Over_Result->setText(tr("Writing ..."));
    const bool is_started = Start_Worker_If_Possible("hand-over", [this, work, folder] {
        const auto end = qScopeGuard([&] { work->has_ended.release(); });
        const int count = work->plan.order.recipients.Count();
        const Handed_Over done = Write_All(
            work->plan, folder, [&] { return work->is_stopped.load() || Program_Is_Exiting(); },
            [&](int row) {
                Post_To_Interface_Thread(this, [this, row, count] {
                    m_ui->_Hand_Over_Result->setText(tr("Writing %1 of %2 ...").arg(row).arg(count));
                });
            });
        work->plan = {}; // which may have been the last to hold a long list
        const QString words = End_In_Words(done, folder);
        Post_To_Interface_Thread(this, [this, words] { Take_End(words); });
    });
    if (!is_started) {
        m_ui->_Hand_Over_Result->setText(tr("Not handed over: the system gives the program no further thread."));
        return;
    }
    m_work = std::move(work);
    m_ui->Hand_Over_Btn->setText(tr("&Stop"));
}

void Hand_Over_Wnd::Take_End(const QString& words)
{
    m_work.reset();
    m_ui->Hand_Over_Btn->setText(m_caption);
    m_ui->_Hand_Over_Result->setText(words);
}
