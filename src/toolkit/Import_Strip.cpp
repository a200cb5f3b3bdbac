#include "toolkit/Import_Strip.h"

#include "toolkit/Status_Label.h"
#include "toolkit/Unused_Lines_Wnd.h"

#include <QHBoxLayout>
#include <QHideEvent>
#include <QPushButton>
#include <utility>

QString Import_In_Words(const Import_Report& report)
{
    const int unused = report.Unused();
    if (report.Ended() == Import_Report::End::Unread)
        return Import_Strip::tr("0 added: the file could not be read.");
    QString words = Import_Strip::tr("%1 added.").arg(report.Added());
    if (unused == 1)
        words = Import_Strip::tr("%1 added, 1 line not used.").arg(report.Added());
    else if (unused > 1)
        words = Import_Strip::tr("%1 added, %n lines not used.", nullptr, unused).arg(report.Added());
    if (report.Ended() == Import_Report::End::Early)
        return Import_Strip::tr("%1\nThen it ended early.").arg(words);
    return report.Added() + unused > 0 ? words : Import_Strip::tr("0 added: there was no text that could be read.");
}

Import_Strip::Import_Strip(QWidget* parent)
    : Quiet_Strip("Import_Strip", parent), m_words(new Status_Label),
      m_show(Made_Button("Show_Unused_Btn", tr("Show ..."), tr("Shows what was not used, and why"))),
      m_dismiss(Made_Button("Dismiss_Import_Btn", tr("Dismiss"), tr("Takes this notice away")))
{
    setAccessibleName(tr("What the last import did"));
    m_words->setObjectName(QStringLiteral("_Import_Words"));
    m_words->setTextFormat(Qt::PlainText);
    // The words do not wrap: beside a height that depends on the width, layouts cut what is below and beside the strip.
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 4, 4, 4);
    row->setSpacing(4);
    row->addWidget(m_words, 1);
    for (QPushButton* button : {m_show, m_dismiss}) {
        button->setFlat(true);
        row->addWidget(button, 0, Qt::AlignVCenter);
    }
    connect(m_show, &QPushButton::clicked, this, &Import_Strip::Show_Unused_Btn);
    connect(m_dismiss, &QPushButton::clicked, this, &Import_Strip::Dismiss_Btn);
    hide();
}

void Import_Strip::Follow(QWidget& control)
{
    QWidget::setTabOrder(&control, m_show);
    QWidget::setTabOrder(m_show, m_dismiss);
}

void Import_Strip::Give_Letters()
{
    m_show->setText(tr("&Show ..."));
    m_dismiss->setText(tr("&Dismiss"));
}

void Import_Strip::Show_Report(const Import_Report& report)
{
    if (m_lines)
        m_lines->close();
    m_report = report;
    m_look = nullptr;
    m_has_report = true;
    m_show->setVisible(!m_report.Noted().isEmpty());
    show();
    m_words->Say(Import_In_Words(m_report));
}

void Import_Strip::Show_News(const QString& words, std::function<void()> look)
{
    Forget();
    m_look = std::move(look);
    m_has_report = true;
    m_show->setVisible(m_look != nullptr);
    show();
    m_words->Say(words);
}

void Import_Strip::Forget()
{
    m_has_report = false;
    hide();
    m_report = {};
    m_look = nullptr;
}

void Import_Strip::Show_Unused_Btn()
{
    if (m_look) {
        m_look();
        return;
    }
    if (!m_lines)
        m_lines = new Unused_Lines_Wnd(window());
    m_lines->Show_Report(m_report);
}

void Import_Strip::setVisible(bool visible)
{
    QWidget::setVisible(visible && m_has_report);
}

// The lines go with what speaks of them, but not when the window is put away for a while.
void Import_Strip::hideEvent(QHideEvent* event)
{
    if (m_lines && !event->spontaneous())
        m_lines->close();
    QWidget::hideEvent(event);
}
