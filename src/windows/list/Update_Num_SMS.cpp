#include "windows/list/Update_Num_SMS.h"

#include "list/Number_Judge.h"
#include "list/Number_Rules.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Line_Edit_Limit.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "ui_Update_Num_SMS.h"
#include "windows/list/List_Change.h"

#include <QSignalBlocker>

Update_Num_SMS::Update_Num_SMS(QWidget* parent) : Form_Dialog(parent, Letters{.columns = 66, .lines = 32})
{
    m_message = std::make_unique<Counted_Message>(*m_ui->m_msg_str, *m_ui->m_st_msg_cnt);
    m_ui->_Bubble->Follow(*m_ui->m_msg_str, *m_ui->_Part_Count, [this] { return Terms_Of_Message(); });
    connect(m_ui->m_num_str, &QLineEdit::textChanged, this, &Update_Num_SMS::controlTextDidChange);
    connect(m_ui->m_msg_str, &QPlainTextEdit::textChanged, this, &Update_Num_SMS::textDidChange);
    connect(m_ui->_Exclusion_Chk, &QCheckBox::clicked, this, &Update_Num_SMS::Exclusion_Chk);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Update_Num_SMS::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Update_Num_SMS::CancelPressed);
}

Update_Num_SMS::~Update_Num_SMS() = default;

int Update_Num_SMS::Open_Dialog(Main_Window& window, int row)
{
    m_window = &window;
    const Recipient recipient = window.Recipients().At(row);
    {
        const QSignalBlocker muted(*m_ui->m_num_str); // an existing number is not cut, only a typed one
        m_ui->m_num_str->setText(recipient.Number);
    }
    m_ui->m_s_str->setText(recipient.Number);
    m_ui->m_s_indx_str->setText(QString::number(row));
    m_message->Show(recipient.Message, window);
    const Send_Choices choices = window.Read_Send_Choices();
    m_ui->_Exclusion_Chk->setChecked(choices.exclusion);
    m_ui->_Skip_Duplicate_Chk->setChecked(choices.skip_duplicates);
    m_ui->m_num_str->setFocus();
    return Run_Dialog_Over(*this, window.Window());
}

Handset_Bubble::Terms Update_Num_SMS::Terms_Of_Message() const
{
    if (!m_window)
        return {};
    auto terms = Handset_Bubble::Terms_For(*m_window, m_ui->m_s_indx_str->text().toInt());
    const QString number = Number_Rules::Normalised_Number(m_ui->m_num_str->text());
    if (!number.isEmpty()) // the one that OK would save
        terms.number = number;
    return terms;
}

// While the main window's own box is off, its exclusion set is not kept up to date and may never have been filled.
void Update_Num_SMS::Exclusion_Chk()
{
    if (m_ui->_Exclusion_Chk->isChecked() && !m_window->Read_Send_Choices().exclusion)
        m_applied_exclusions = m_window->Read_Applied_Exclusions();
}

void Update_Num_SMS::OKPressed()
{
    const auto judge = [this](const Number_List& exclusions) {
        return Judge_Edited_Number(
            m_ui->m_num_str->text(), m_ui->m_s_str->text(),
            {m_ui->_Skip_Duplicate_Chk->isChecked() ? &m_window->Recipients().Numbers() : nullptr,
             m_ui->_Exclusion_Chk->isChecked() ? &exclusions : nullptr});
    };
    auto judged = judge(m_window->Exclusions());
    if (judged.verdict == Number_Verdict::Accepted)
        judged = judge(m_applied_exclusions);
    if (judged.verdict != Number_Verdict::Accepted) {
        Tell_And_Focus(Refusal(judged.verdict), *m_ui->m_num_str);
        return;
    }
    const QString message = m_message->Text();
    const int row = m_ui->m_s_indx_str->text().toInt();
    m_window->Replace_Recipient(row, judged.number, message);
    End_With(1);
}

void Update_Num_SMS::controlTextDidChange()
{
    Cut_Line(*m_ui->m_num_str, Number_Rules::Longest_Number);
    m_ui->_Bubble->Look_Again();
}

void Update_Num_SMS::End_With(int code)
{
    m_ui->m_num_str->clear();
    m_ui->m_s_str->clear();
    m_ui->m_s_indx_str->clear();
    m_message->Clear();
    m_applied_exclusions.Clear();
    done(code);
}
