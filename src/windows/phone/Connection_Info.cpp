#include "windows/phone/Connection_Info.h"

#include "doctor/Connection_Facts_Finder.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Dialog_Over.h"
#include "ui_Connection_Info.h"

#include <QFontDatabase>

namespace {
constexpr int Done = 1;
}

Connection_Info::Connection_Info(QWidget* parent)
    : Connection_Info(parent, [] { return Connection_Facts_Finder::Find(); })
{
}

Connection_Info::Connection_Info(QWidget* parent, Fact_Finder find_facts)
    : Form_Dialog(parent, Letters{.columns = 92}), m_find_facts(std::move(find_facts))
{
    connect(m_ui->Continue_Btn, &QPushButton::clicked, this, &Connection_Info::Continue_Btn);
}

Connection_Info::~Connection_Info() = default;

int Connection_Info::exec()
{
    Put_Over_Main_Window(*this);
    Connection_Facts facts;
    Run_On_Worker([&] { facts = m_find_facts(); });
    Show_Advice(Connection_Advice::For(facts));
    m_ui->Continue_Btn->setFocus();
    return Program_Is_Exiting() ? Done : QDialog::exec();
}

void Connection_Info::Continue_Btn()
{
    done(Done);
}

void Connection_Info::Show_Advice(const QList<Advice>& advice)
{
    const auto old_rows =
        m_ui->advice_box->findChildren<QWidget*>(QStringLiteral("advice_row"), Qt::FindDirectChildrenOnly);
    qDeleteAll(old_rows);
    for (const auto& piece : advice)
        m_ui->advice_layout->addWidget(Made_Advice_Row(piece));
    m_ui->advice_box->setVisible(!advice.isEmpty());
}

QWidget* Connection_Info::Made_Advice_Row(const Advice& advice)
{
    auto* row = new QWidget(m_ui->advice_box);
    row->setObjectName(QStringLiteral("advice_row"));
    auto* layout = new QVBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);

    auto* text = new QLabel(row);
    text->setObjectName(QStringLiteral("advice_text"));
    text->setTextFormat(Qt::PlainText);
    text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    text->setWordWrap(true);
    text->setText(advice.text);
    layout->addWidget(text);
    if (advice.command.isEmpty())
        return row;

    auto* command = new QLineEdit(advice.command, row);
    command->setObjectName(QStringLiteral("advice_command"));
    command->setAccessibleName(tr("Command to copy"));
    command->setReadOnly(true);
    command->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    layout->addWidget(command);
    return row;
}
