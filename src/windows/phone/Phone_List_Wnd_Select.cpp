#include "device/Chosen_Device.h"
#include "doctor/Phone_Search.h"
#include "list/Custom_Smsc_Rules.h"
#include "platform/Interface_Thread.h"
#include "texts/Texts.h"
#include "toolkit/Input_Hold.h"
#include "toolkit/Line_Edit_Limit.h"
#include "toolkit/Message_Boxes.h"
#include "ui_Phone_List_Wnd.h"
#include "windows/phone/Phone_List_Wnd.h"

#include <QScopedValueRollback>

// The wizard's end: a device is selected, or none.

void Phone_List_Wnd::Custom_SMSC_Pressed()
{
    const bool is_custom = m_ui->_cus_smsc_chk->isChecked();
    m_ui->_def_smsc_edit->setEnabled(!is_custom);
    m_ui->_cus_smsc_edit->setEnabled(is_custom);
}

void Phone_List_Wnd::controlTextDidChange()
{
    Cut_Line(*m_ui->_cus_smsc_edit, Custom_Smsc_Rules::Longest_Typed);
}

void Phone_List_Wnd::Sel_Device_Pressed()
{
    Phone_Selected_Func();
}

void Phone_List_Wnd::Phone_Selected_Func()
{
    if (m_is_selecting || m_is_asking_why || !May_Be_Selected())
        return;
    Show_Picked_Row();
    const QString name = nsPortListData.Name(Prev_Index);
    const QString path = nsPortListData.Path(Prev_Index);
    if (!Check_Picked_Device(path))
        return;
    sel_port_name_str = name;
    sel_port_bsd_str = path;
    Cus_SMS_Num_STR = m_ui->_cus_smsc_chk->isChecked() ? m_ui->_cus_smsc_edit->text() : QString();
    done(Accepted);
}

bool Phone_List_Wnd::May_Be_Selected()
{
    if (!nsPortListData.Is_Row(Prev_Index)) {
        const auto& empty = ph_find_thread == 1 ? Texts::Phone::Still_Searching : Texts::Phone::List_Empty;
        Show_MessageBox(nsPortListData.Count() == 0 ? empty : Texts::Phone::None_Selected);
        m_ui->idPortList->setFocus();
        return false;
    }
    if (m_ui->_cus_smsc_chk->isChecked() && !Custom_Smsc_Rules::Is_Valid(m_ui->_cus_smsc_edit->text())) {
        Show_MessageBox(Texts::Phone::Custom_Smsc_Invalid);
        m_ui->_cus_smsc_edit->setFocus();
        return false;
    }
    return true;
}

bool Phone_List_Wnd::Check_Picked_Device(const QString& path)
{
    const Chosen_Centre centre{m_ui->_cus_smsc_chk->isChecked(), m_ui->_def_smsc_edit->text(),
                               m_ui->_cus_smsc_edit->text()};
    const QScopedValueRollback selecting(m_is_selecting, true);
    // The window stays as it is until the check has ended: until its sheet is up, clicks and keys are dropped.
    const Input_Hold input_hold(this);
    bool is_fit = false;
    Run_On_Worker(
        [&] {
            const auto turn = Device_Turn();
            is_fit = Phone_Probe(mfc_sms_obj, *this).Check_For_Sending(path, centre);
        },
        User_Input::Served);
    return is_fit;
}

void Phone_List_Wnd::ContinueOfflinePressed()
{
    sel_port_name_str.clear();
    sel_port_bsd_str.clear();
    done(Rejected);
}

void Phone_List_Wnd::reject()
{
    // While a device is being talked to, the window must wait for it.
    if (!m_is_selecting && !m_work.Is_Sheet_Shown())
        ContinueOfflinePressed();
}
