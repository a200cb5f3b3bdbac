#include "list/Number_Import.h"
#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Waiting.h"
#include "records/Contact_Export.h"
#include "texts/Texts.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Window_Work.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/Composer.h"
#include "windows/main/Contact_Desk.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/List_Arrivals.h"
#include "windows/main/Load_Num_Info.h"
#include "windows/main/Send_Promise.h"
#include "windows/main/Send_Runner.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Store_Globals.h"

#include <QClipboard>
#include <QGuiApplication>
#include <exception>
#include <utility>

// The ways of many numbers at once: into the recipient list, from a file or the clipboard, and out of it.

void CorvaneAppDelegate::Load_Number()
{
    if (!May_Import_File())
        return;
    if (const auto path = Ask_For_File_To_Open(this))
        Load_NUM_Thread(*path);
}

void CorvaneAppDelegate::Make_Contact_Desk()
{
    m_contacts = std::make_unique<Contact_Desk>(
        *this, *m_work, m_send_runner->Pace_So_Far(),
        Contact_Desk::Controls{*m_ui->Insert_Field, *m_ui->idTableView, *m_ui->_Fields_Strip, *m_ui->_Import_Strip});
}

void CorvaneAppDelegate::Import_Contacts()
{
    m_contacts->Import_Contacts();
}

void CorvaneAppDelegate::Check_List()
{
    m_contacts->Check_List(m_promise->Names_Unfilled_Rows());
}

// A list of numbers, as if it had been picked in the panel, or contacts.
void CorvaneAppDelegate::Dropped_File(const QString& path)
{
    if (!m_contacts->Import_Dropped(path) && May_Import_File())
        Load_NUM_Thread(path);
}

// Asks what is to become of the recipients that are there. Says no when nothing is to be imported.
bool CorvaneAppDelegate::May_Import_File()
{
    m_ui->_numberEdit->clear();
    if (nsListDataObject.Count() == 0)
        return true;
    const int answer = Load_Num_Info(this).exec();
    if (Program_Is_Exiting() || (answer != Load_Num_Info::Remove_Numbers && answer != Load_Num_Info::Keep_Numbers))
        return false; // leaving ends the dialog as well
    if (answer == Load_Num_Info::Remove_Numbers)
        Offer_Undo(Remove_All_Recipients()); // for as long as the panel is open: what it brings is another list
    return true;
}

void CorvaneAppDelegate::Load_NUM_Thread(const QString& path)
{
    Start_Import(path, std::nullopt);
}

void CorvaneAppDelegate::Paste_Numbers()
{
    if (!m_contacts->Import_Clipboard_Table())
        Start_Import({}, QGuiApplication::clipboard()->text());
}

void CorvaneAppDelegate::Start_Import(const QString& path, const std::optional<QString>& pasted)
{
    prev_list_item = nsListDataObject.Count();
    m_is_pasting = pasted.has_value();
    m_arrivals->Forget();
    m_ui->_sent_btn->setEnabled(false);
    Show_Create_Modeless();
    m_import->Load_NUM_Thread({path, nsListDataObject, nsExclusionListDataObject, m_composer->Text(),
                               m_ui->_Skip_Duplicate_Chk->isChecked(), m_ui->_Exclusion_Chk->isChecked(), pasted});
}

// What broke off an import is in the log; the recipients imported so far stay.
void CorvaneAppDelegate::End_Import()
{
    Hide_Destroy_Modeless();
    Redisplay_Recipients();
    m_ui->_sent_btn->setEnabled(true);
    m_arrivals->Tell();
}

void CorvaneAppDelegate::Show_Import_Progress(int count, int percent)
{
    Show_List_Count(count);
    m_please_wait->Show_Progress(percent);
}

void CorvaneAppDelegate::Take_Over_Imported(Recipient_List& recipients)
{
    recipients = Exchange_List(std::move(recipients));
    if (nsListDataObject.Count() != prev_list_item)
        Remember_Composer_Text();
    Update_List_Count();
}

void CorvaneAppDelegate::Leave_Import_Unread()
{
    Redisplay_Recipients();
    m_ui->_sent_btn->setEnabled(true);
    m_please_wait->Let_Go(); // no box tells of it: the sheet stays, and the user closes it
    m_arrivals->Tell();
}

void CorvaneAppDelegate::Finish_Import()
{
    Hide_Destroy_Modeless();
    Redisplay_Recipients();
    const bool is_in_vain = nsListDataObject.Count() == 0 || nsListDataObject.Count() == prev_list_item;
    if (is_in_vain && !m_is_pasting) // of what was pasted the strip tells enough
        Show_MessageBox(Texts::Main::Nothing_Imported);
    End_Import();
}

void CorvaneAppDelegate::Export_Btn()
{
    if (nsListDataObject.Count() == 0) {
        Tell_And_Focus(Texts::Main::List_Empty, Field::Number);
        return;
    }
    const auto path = Ask_For_File_To_Save(this, QStringLiteral("txt"));
    if (!path)
        return;
    auto sheet = m_work->Sheet();
    Export_File_Path = With_Extension(*path, QStringLiteral("txt"));
    bool is_written = false;
    try {
        Run_On_Worker(
            [&, path = Export_File_Path, list = nsListDataObject] { is_written = Write_Contact_List(path, list); });
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QString::fromLocal8Bit(failure.what()));
    }
    sheet.reset();
    if (!is_written) {
        Show_MessageBox(Texts::File_Error);
        return;
    }
    raise();
    activateWindow();
    Open_Export_Log::defaultInstance()->Open_Dialog(this);
}
