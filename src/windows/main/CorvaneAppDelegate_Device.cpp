#include "device/Chosen_Device.h"
#include "engine/Job_State.h"
#include "texts/Texts.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/Awaited_Reports.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Job_Follow_Up.h"
#include "windows/phone/Connection_Info.h"
#include "windows/phone/Device_Facts.h"
#include "windows/phone/Phone_List_Wnd.h"

// The device that messages go through, and the strip that tells of it.

void CorvaneAppDelegate::No_Device_Ticker_Click()
{
    Search_All_Modem();
}

// Whoever has the device has it alone, however this is pressed.
void CorvaneAppDelegate::Search_All_Modem()
{
    if (Is_Device_Taken())
        return;
    std::shared_ptr<void> device = m_awaited_reports->Device_Turn();
    sel_port_name_str.clear();
    sel_port_bsd_str.clear();
    m_ui->_Device_Name_Ticker->setText(Texts::Main::No_Device);
    Connection_Info::defaultInstance()->exec();
    m_ui->_NO_Device_Ticker->hide();
    Phone_List_Wnd::defaultInstance()->Open_Ph_List_Wnd();
    Show_Device_In_Ticker();
    device.reset();
    m_follow_up->Look_For_Unfinished([this] {
        if (!sel_port_bsd_str.isEmpty())
            m_awaited_reports->Look(sel_port_bsd_str);
    });
}

void CorvaneAppDelegate::Show_Device_In_Ticker()
{
    const bool has_device = !sel_port_name_str.isEmpty();
    m_ui->_Device_Name_Ticker->setText(has_device ? sel_port_name_str : Texts::Main::No_Device);
    m_ui->_NO_Device_Ticker->setVisible(!has_device);
    m_ui->device_icon->Set_Tone(has_device ? Icon_Label::Tone::Ok : Icon_Label::Tone::Soft);
    const QString facts = has_device ? Facts_Of_The_Device(*Phone_List_Wnd::defaultInstance()) : QString();
    m_ui->_Device_Facts->setText(facts);
    m_ui->_Device_Facts->setVisible(!facts.isEmpty());
}

bool CorvaneAppDelegate::Is_Device_Taken() const
{
    return sms_thread_var == 1 || m_awaited_reports->Is_Device_Wanted();
}
