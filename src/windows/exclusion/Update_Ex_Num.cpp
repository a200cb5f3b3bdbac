#include "windows/exclusion/Update_Ex_Num.h"

#include "list/Number_Rules.h"
#include "texts/Texts.h"
#include "toolkit/Line_Edit_Limit.h"
#include "ui_Update_Ex_Num.h"
#include "windows/exclusion/Edited_Numbers.h"
#include "windows/exclusion/Page_Work.h"

#include <QSignalBlocker>

Update_Ex_Num::Update_Ex_Num(Edited_Numbers& numbers, QWidget* parent) : Form_Dialog(parent), m_numbers(numbers)
{
    m_ui->m_s_number->hide();
    m_ui->m_ex_num_index->hide();
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Update_Ex_Num::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Update_Ex_Num::CancelPressed);
    connect(m_ui->m_ex_num_str, &QLineEdit::textChanged, this, &Update_Ex_Num::controlTextDidChange);
}

Update_Ex_Num::~Update_Ex_Num() = default;

int Update_Ex_Num::Edit(const QString& number, int row)
{
    {
        const QSignalBlocker muted(*m_ui->m_ex_num_str); // a number that stands there is not cut, only a typed one
        m_ui->m_ex_num_str->setText(number);
    }
    m_ui->m_s_number->setText(number);
    m_ui->m_ex_num_index->setText(QString::number(row));
    m_ui->m_ex_num_str->selectAll();
    m_ui->m_ex_num_str->setFocus();
    return exec();
}

void Update_Ex_Num::OKPressed()
{
    if (m_ui->m_ex_num_str->text() == m_ui->m_s_number->text()) {
        done(1);
        return;
    }
    const QString number = Number_Rules::Normalised_Number(m_ui->m_ex_num_str->text());
    if (number.isEmpty()) {
        Tell_And_Focus(Texts::Not_A_Number, *m_ui->m_ex_num_str);
        return;
    }
    if (m_numbers.Skip_Duplicate_Number(number)) {
        Tell_And_Focus(Texts::Number_Exists, *m_ui->m_ex_num_str);
        return;
    }
    m_numbers.Replace_Number(m_ui->m_ex_num_index->text().toInt(), number);
    Clear_Fields();
    done(1);
}

void Update_Ex_Num::CancelPressed()
{
    Clear_Fields();
    done(0);
}

void Update_Ex_Num::controlTextDidChange()
{
    Cut_Line(*m_ui->m_ex_num_str, Number_Rules::Longest_Number);
}

void Update_Ex_Num::Clear_Fields()
{
    for (QLineEdit* field : {m_ui->m_ex_num_str, m_ui->m_s_number, m_ui->m_ex_num_index})
        field->clear();
}
