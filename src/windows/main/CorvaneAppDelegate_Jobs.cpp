#include "engine/Confirmed_End.h"
#include "engine/Send_Cause.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "texts/Confirmed_Texts.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/Composer.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Job_Follow_Up.h"
#include "windows/main/Send_Promise.h"
#include "windows/main/Send_Runner.h"

// What a job comes to before it is sent, and what is left of jobs that confirm each message: receipts, jobs that have
// not ended, and another kind of message.

namespace {

constexpr int Normal_Message_Index = 1;
constexpr int Class_Refused = 145; // 3GPP TS 23.040, 9.2.3.22

} // namespace

void CorvaneAppDelegate::Make_Promise()
{
    m_promise = std::make_unique<Send_Promise>(
        Send_Promise::Controls{m_ui->_Promise_Lbl, m_ui->Other_Ways_Btn, m_ui->_sent_btn, m_ui->Check_List}, *this,
        m_send_runner->Pace_So_Far(), Program_Settings(Settings_Path), Local_Time);
    for (QWidget* control : std::initializer_list<QWidget*>{
             m_ui->_Unicode_SMS_Chk, m_ui->_Skip_Duplicate_Chk, m_ui->_Exclusion_Chk, m_ui->_Save_Sent_Item_Chk,
             m_ui->_Save_Templates_Chk, m_ui->_Confirm_Chk, m_ui->_Keep_Receipt_Chk, m_ui->_Delayed_Delivry_Chk,
             m_ui->_delayed_msg_count_combo, m_ui->_delayed_time_combo})
        m_promise->Depend_On(control);
}

// A rest that would be refused like the message before it is not offered to be sent as it is.
void CorvaneAppDelegate::Confirmed_Job_Ended(const Confirmed_End& end)
{
    if (end.refused_kind && Offer_Plain_Kind(*end.refused_kind) && end.record)
        m_follow_up->Let_Go(end.record->Header().id);
    m_follow_up->Job_Ended(end.record);
}

// Says no where nothing about the kind could be chosen otherwise.
bool CorvaneAppDelegate::Offer_Plain_Kind(const Device_Cause& cause)
{
    const Send_Cause& row = Cause_Row(cause);
    m_is_alphabet_refused = row.first != Class_Refused;
    const bool is_flash = m_ui->_Msg_TypeComboBox->currentIndex() != Normal_Message_Index;
    const bool is_of_use = is_flash || (m_is_alphabet_refused && m_ui->_Unicode_SMS_Chk->isChecked());
    if (!m_has_not_taken || !is_of_use)
        return false;
    m_ui->_Plain_Offer_Text->setText(QString(row.sentence) + u' ' + Texts::Confirmed::Plain_May_Pass);
    m_ui->plain_offer->show();
    return true;
}

void CorvaneAppDelegate::Choose_Plain_Kind()
{
    m_ui->plain_offer->hide();
    m_ui->_Msg_TypeComboBox->setCurrentIndex(Normal_Message_Index);
    if (m_is_alphabet_refused && m_ui->_Unicode_SMS_Chk->isChecked()) {
        m_ui->_Unicode_SMS_Chk->setChecked(false);
        m_composer->Refresh_Counter(false);
    }
    Select_Not_Taken();
}

void CorvaneAppDelegate::Show_Receipt()
{
    m_follow_up->Show_Receipt();
}

void CorvaneAppDelegate::View_Receipts_Btn()
{
    m_follow_up->Show_Kept();
}
