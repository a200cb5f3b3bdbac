#include "windows/list/Send_Msg_Info.h"

#include "engine/Job_State.h"
#include "list/Fill_Rules.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Main_Window.h"
#include "ui_Send_Msg_Info.h"
#include "windows/list/List_Change.h"

#include <QPointer>

Send_Msg_Info::Send_Msg_Info(QWidget* parent) : Working_Dialog(parent, Letters{.columns = 68})
{
    connect(m_ui->_fill_msg_all, &QRadioButton::clicked, this, &Send_Msg_Info::Fill_To_ALL_Pressed);
    connect(m_ui->_fill_msg_blank, &QRadioButton::clicked, this, &Send_Msg_Info::Fill_To_Blank_Pressed);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Send_Msg_Info::OKPressed);
    connect(m_ui->ContinuePressed, &QPushButton::clicked, this, &Send_Msg_Info::ContinuePressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Send_Msg_Info::CancelPressed);
}

Send_Msg_Info::~Send_Msg_Info() = default;

int Send_Msg_Info::Open_Dialog(Main_Window& window)
{
    m_window = &window;
    m_code = Cancelled; // an event loop that ends without an answer must not send
    Fill_To_ALL_Pressed();
    m_ui->explanation->setText(
        Message_IS.isEmpty()
            ? tr("The composer is empty. If you copy it to all numbers, every message in the list becomes blank.")
            : tr("The message in the composer is not yet in the list. You can copy it there before the list is sent."));
    m_ui->_fill_msg_all->setFocus();
    const QPointer<Send_Msg_Info> still_there(this);
    Run_Dialog_Over(*this, window.Window());
    return still_there ? m_code : Cancelled;
}

void Send_Msg_Info::Fill_To_ALL_Pressed()
{
    m_ui->_fill_msg_all->setChecked(true);
}

void Send_Msg_Info::Fill_To_Blank_Pressed()
{
    m_ui->_fill_msg_blank->setChecked(true);
}

void Send_Msg_Info::OKPressed()
{
    auto sheet = m_work.Sheet();
    const auto choice = m_ui->_fill_msg_blank->isChecked() ? Fill_Rules::Choice::Blank : Fill_Rules::Choice::All;
    const QString message = Message_IS;
    Change_Recipients(*m_window, [&](Recipient_List& recipients) {
        recipients.Set_Messages(Fill_Rules::Rows_To_Fill(recipients, choice, {}), message);
    });
    sheet.reset();
    End_With(Filled);
}

void Send_Msg_Info::End_With(int code)
{
    Fill_To_ALL_Pressed();
    m_code = code;
    done(code);
}
