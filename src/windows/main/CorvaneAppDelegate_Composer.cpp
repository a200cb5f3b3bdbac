#include "ui_CorvaneAppDelegate.h"
#include "windows/list/Handset_Bubble.h"
#include "windows/main/Composer.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Recipient_Rows.h"

#include <algorithm>

// The main window's operations on the message that is being written.

// For the first of the selected recipients, or the first of all.
void CorvaneAppDelegate::Show_What_Handsets_Show()
{
    auto* bubble = m_ui->_Bubble;
    bubble->Follow(*m_ui->_messageEdit, *m_ui->_Part_Count, [this] {
        const QItemSelection selected = m_ui->idTableView->selectionModel()->selection();
        const int row = selected.isEmpty() ? 0 : m_recipient_rows->List_Row(selected.first().top());
        return Handset_Bubble::Terms_For(*this, std::max(row, 0));
    });
    bubble->Offer_Unicode();
    connect(bubble, &Handset_Bubble::Unicode_Wanted, m_ui->_Unicode_SMS_Chk, &QCheckBox::click);
    for (const QCheckBox* box : {m_ui->_Unicode_SMS_Chk, m_ui->_Confirm_Chk})
        connect(box, &QCheckBox::toggled, bubble, &Handset_Bubble::Look_Again);
    connect(m_ui->_Msg_TypeComboBox, &QComboBox::currentIndexChanged, bubble, &Handset_Bubble::Look_Again);
}

void CorvaneAppDelegate::textDidChange()
{
    m_composer->textDidChange();
}

void CorvaneAppDelegate::Unicode_Chk()
{
    m_composer->Unicode_Chk();
}

QString CorvaneAppDelegate::Long_SMS_Calculation(int length, const QString& msg_char_value, bool open_dlg)
{
    return m_composer->Long_SMS_Calculation(length, msg_char_value, open_dlg);
}

int CorvaneAppDelegate::Composer_Length() const
{
    return m_composer->Length();
}

int CorvaneAppDelegate::Composer_Selection_Length() const
{
    return m_composer->Selection_Length();
}

void CorvaneAppDelegate::Use_In_Composer(const QString& text)
{
    m_composer->Use_Text(text);
}

void CorvaneAppDelegate::Set_Composer_Text(const QString& text)
{
    m_composer->Set_Text(text);
}
