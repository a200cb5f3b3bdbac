#include "windows/phone/Doctor_Wnd.h"

#include "doctor/Doctor_Report.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Activity_Bar.h"
#include "ui_Doctor_Wnd.h"
#include "windows/phone/Finding_Row.h"
#include "windows/phone/Virtual_Phone_Offer.h"

#include <QClipboard>

Doctor_Wnd::Doctor_Wnd(QWidget* parent)
    : Doctor_Wnd(parent, [](const Port_Doctor::Wishes& wishes) { return Port_Doctor(wishes).Look(); })
{
}

Doctor_Wnd::Doctor_Wnd(QWidget* parent, Look look)
    : Working_Dialog(parent, Letters{.columns = 92, .lines = 30}), m_look(std::move(look))
{
    connect(m_ui->Look_Again, &QPushButton::clicked, this, &Doctor_Wnd::Look_Again);
    connect(m_ui->Copy_Report, &QPushButton::clicked, this, &Doctor_Wnd::Copy_Report);
    connect(m_ui->Try_Virtual_Phone, &QPushButton::clicked, this, &Doctor_Wnd::Try_Virtual_Phone);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Doctor_Wnd::CancelPressed);
    m_ui->virtual_box->setVisible(Virtual_Phone_Offer::Is_Installed());
    Show_Looking(false);
}

Doctor_Wnd::~Doctor_Wnd()
{
    m_is_over = true;
    m_work.End();
}

int Doctor_Wnd::exec()
{
    if (Program_Is_Exiting())
        return Rejected;
    m_is_over = false;
    Begin_Look();
    return QDialog::exec();
}

void Doctor_Wnd::done(int result)
{
    if (m_is_over.exchange(true)) // a second press, while the first waits for the look
        return;
    m_work.Await();
    QDialog::done(result);
}

void Doctor_Wnd::CancelPressed()
{
    done(Rejected);
}

void Doctor_Wnd::Look_Again()
{
    if (m_ui->Look_Again->isEnabled())
        Begin_Look();
}

void Doctor_Wnd::Begin_Look()
{
    m_findings.clear();
    qDeleteAll(m_ui->finding_box->findChildren<QWidget*>(QStringLiteral("finding_row"), Qt::FindDirectChildrenOnly));
    Show_Looking(true);
    m_ui->_Progress_Text->setText(tr("Looking at what is connected ..."));
    m_work.Start("look at ports", [this] {
        Port_Doctor::Wishes wishes;
        wishes.is_over = [this] { return m_is_over.load(); };
        wishes.on_finding = [this](const Finding& finding) { Run_On_Interface_Thread([&] { Show_Finding(finding); }); };
        wishes.on_looking_at = [this](const QString& name) {
            Run_On_Interface_Thread([&] { m_ui->_Progress_Text->setText(tr("Asking %1 ...").arg(name)); });
        };
        const bool has_ready_device = !m_look(wishes).isEmpty();
        Run_On_Interface_Thread([&] { Show_End(has_ready_device); });
    });
}

void Doctor_Wnd::Show_Finding(const Finding& finding)
{
    m_findings.append(finding);
    m_ui->finding_layout->addWidget(Made_Finding_Row(finding, m_ui->finding_box));
}

void Doctor_Wnd::Show_End(bool has_ready_device)
{
    Show_Looking(false);
    m_ui->_Progress_Text->setText(has_ready_device ? tr("A device is there that could send.")
                                                   : tr("No device could send. What helps stands above."));
}

void Doctor_Wnd::Show_Looking(bool is_looking)
{
    m_ui->_Progress->setVisible(is_looking);
    m_ui->Look_Again->setEnabled(!is_looking);
    m_ui->Copy_Report->setEnabled(!is_looking);
}

void Doctor_Wnd::Copy_Report()
{
    QGuiApplication::clipboard()->setText(Doctor_Report(m_findings));
    m_ui->_Progress_Text->setText(tr("The report is copied. It holds no numbers and no texts of messages."));
}

// The start waits, and what assistive tools press is served meanwhile.
void Doctor_Wnd::Try_Virtual_Phone()
{
    m_ui->Try_Virtual_Phone->setEnabled(false);
    const QString error = Virtual_Phone_Offer::Start();
    m_ui->Try_Virtual_Phone->setEnabled(true);
    if (error.isEmpty())
        done(Virtual_Phone_Is_There);
    else
        m_ui->_Progress_Text->setText(error);
}
