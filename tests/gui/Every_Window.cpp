#include "gui/Every_Window.h"

#include "engine/Composer_Rules.h"
#include "records/Exclusion_Files.h"
#include "records/Exclusion_Trouble.h"
#include "records/Job_Journal.h"
#include "support/In_Windows.h"
#include "texts/Cause_Texts.h"
#include "texts/Confirmed_Texts.h"
#include "toolkit/Find_Strip.h"
#include "toolkit/Import_Strip.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Unused_Lines_Wnd.h"
#include "windows/contacts/Contacts_Wnd.h"
#include "windows/contacts/Fields_Strip.h"
#include "windows/exclusion/Exclusion_Wizard.h"
#include "windows/handover/Hand_Over_Wnd.h"
#include "windows/jobs/Receipt_Wnd.h"
#include "windows/jobs/Unfinished_Strip.h"
#include "windows/jobs/Unknown_Rows_Sheet.h"
#include "windows/list/Fill_Msg_In_List.h"
#include "windows/list/Handset_Bubble.h"
#include "windows/list/Send_Msg_Info.h"
#include "windows/list/Update_Num_SMS.h"
#include "windows/list/Update_Sel_Num_SMS.h"
#include "windows/main/Help_Wnd.h"
#include "windows/main/Load_Num_Info.h"
#include "windows/main/Long_SMS_Dlg.h"
#include "windows/main/Send_Modeless.h"
#include "windows/main/Undo_Strip.h"
#include "windows/phone/Connection_Info.h"
#include "windows/phone/Doctor_Wnd.h"
#include "windows/phone/Phone_List_Wnd.h"
#include "windows/stores/Export_Option.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Sent_Items.h"
#include "windows/stores/Templates.h"
#include "windows/stores/UpdateTemp.h"

#include <QCheckBox>
#include <QLabel>
#include <QTableView>
#include <QTemporaryDir>

namespace {

// Something of every kind gets lost, or makes it Unicode.
const QString Costly_Message = QStringLiteral("Grüße – “10 €” für ő, \u00A0Привет, ΐ 🙂");

const char* const Longest_Count = "1600 Characters (Each Message will now consume 23 SMS)";

const char* const Longest_Promise = "1000000 recipients, 1000000 messages, about 23 h 59 min, until 30 September 2026, "
                                    "23:59, to be kept: sent items and "
                                    "templates and a receipt\nThat is much for one phone.";

/// A million lines of which half were used, and an early end.
const Import_Report& Longest_Report()
{
    static const Import_Report report = [] {
        Import_Report made;
        for (int line = 0; line < 1'000'000; ++line) {
            made.Count_Added();
            made.Accepts(QString(200, u'W'), {}, {});
        }
        made.Set_End(Import_Report::End::Early);
        return made;
    }();
    return report;
}

QWidget& Main_Window_With_Everything(CorvaneAppDelegate& main)
{
    In<QTableView>(main, "idExclusionTableView").show();
    In<QCheckBox>(main, "_Delayed_Delivry_Chk").setChecked(true);
    In<QCheckBox>(main, "_Confirm_Chk").setChecked(true);
    for (const char* name :
         {"Select_Not_Taken", "Keep_Not_Taken", "Show_Receipt", "plain_offer", "Other_Ways_Btn", "Insert_Field"})
        In<QWidget>(main, name).show();
    Unfinished_Job job;
    job.id = "20261121-101500-3f9a";
    job.counts = {1000000, 499999, 1, 100000, 100000, 300000};
    In<Unfinished_Strip>(main, "_Job_Strip").Show_Jobs({job, job});
    main.Set_Composer_Text(Costly_Message);
    In<Import_Strip>(main, "_Import_Strip").Show_Report(Longest_Report());
    In<Undo_Strip>(main, "_Undo_Strip").Offer("1000000 recipients removed.", [] {});
    In<Fields_Strip>(main, "_Fields_Strip").Show_Fields(QStringList(20, QString(40, u'W')));
    return main;
}

/// The sheet with people whose numbers are in no column that is known by its looks.
QWidget& Contacts_As_Read(CorvaneAppDelegate& main)
{
    auto& window = *new Contacts_Wnd(main);
    QByteArray lines = "Name,Town,Remarks about what was said when we met\n";
    for (int row = 0; row < 30; ++row)
        lines += "Ann " + QByteArray::number(row) + ",Llanfairpwllgwyngyll,\"She said \"\"yes\"\"\"\n";
    window.Import({{}, lines.replace(',', '\t')});
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    QCoreApplication::processEvents();
    for (const char* name : {"encoding_caption", "_Encoding", "sheet_caption", "_Sheet"})
        In<QWidget>(window, name).show();
    return window;
}

QWidget& Contacts_As_Sent(CorvaneAppDelegate& main)
{
    auto& window = Contacts_As_Read(main);
    In<QComboBox>(window, "_Number_Column").setCurrentIndex(0);
    In<QPushButton>(window, "Continue_Btn").click();
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    QCoreApplication::processEvents();
    return window;
}

QWidget& Check_Of_The_List(CorvaneAppDelegate& main)
{
    auto& window = *new Contacts_Wnd(main);
    window.Check_List();
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    QCoreApplication::processEvents();
    return window;
}

QWidget& Connection_Help(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Connection_Info::defaultInstance();
    window.Show_Advice(
        {{"This computer shows no serial port of a phone or modem yet. When the phone is connected, it takes "
          "some seconds until there is one.",
          {}},
         {"Your account may not use serial ports. Let somebody who may add it to the group:",
          "sudo usermod -aG dialout somebody"}});
    return window;
}

QWidget& Wizard_With_A_Device(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Phone_List_Wnd::defaultInstance();
    window.Insert_port_in_List("/dev/serial/by-id/usb-" + QString(300, u'L') + "-if00-port0");
    return window;
}

/// The longest things that are found, and every sign.
QWidget& Doctor_With_Findings(CorvaneAppDelegate& main)
{
    auto& window = *new Doctor_Wnd(&main, [](const Port_Doctor::Wishes&) { return QStringList(); });
    Port_Facts port;
    port.product = "Quectel EC25";
    port.path = "/dev/serial/by-id/usb-" + QString(80, u'L') + "-if00-port0";
    const QString path = port.path;
    using Check = Finding::Check;
    window.Show_Finding({Check::Port, Finding::Mark::Good, path, port.Name() + " is connected."});
    window.Show_Finding({Check::Right, Finding::Mark::Bad, path, "Your account may not open it.",
                         "Members of the group dialout may. Join it with this command, then log out and in again:",
                         "sudo usermod -aG dialout $USER"});
    window.Show_Finding({Check::Network, Finding::Mark::Note, path,
                         "The device is registered with a foreign network (roaming).",
                         "Messages can be sent; ask your operator what they cost abroad."});
    window.Show_End(false);
    return window;
}

QWidget& Exclusion_Lists(CorvaneAppDelegate& /*main*/)
{
    auto& wizard = *Exclusion_Wizard::defaultInstance();
    wizard.Show_Hide_First_Screen(false);
    return wizard;
}

QWidget& Exclusion_Name(CorvaneAppDelegate& main)
{
    Exclusion_Lists(main);
    Exclusion_Wizard::defaultInstance()->AddNew_Btn();
    return *Exclusion_Wizard::defaultInstance();
}

QWidget& Exclusion_Numbers(CorvaneAppDelegate& main)
{
    auto& wizard = Exclusion_Name(main);
    In<QLineEdit>(wizard, "m_ex_list_name_edit").setText("Customers of the northern region, without Scotland");
    Exclusion_Wizard::defaultInstance()->Next_Btn();
    return wizard;
}

QWidget& Exclusion_Numbers_Loaded(CorvaneAppDelegate& main)
{
    auto& wizard = Exclusion_Numbers(main);
    In<Import_Strip>(wizard, "m_import_strip").Show_Report(Longest_Report());
    return wizard;
}

QWidget& Unused_Lines(CorvaneAppDelegate& main)
{
    auto& window = *new Unused_Lines_Wnd(&main);
    window.Show_Report(Longest_Report());
    return window;
}

/// The record of a job with one row that may have been sent.
Job_Record Doubtful_Job()
{
    const QTemporaryDir folder;
    auto made = Job_Journal::Create(folder.path(), {New_Job_Id(), "234150000000001", "/dev/ttyUSB0", {}},
                                    [is_made = false]() mutable {
                                        Job_Row row;
                                        row.number = "00447700900100";
                                        return std::exchange(is_made, true) ? std::nullopt : std::optional(row);
                                    });
    made.journal->Hand_Over(1, 1, 1);
    made.journal->Unknown(1, 1, "no-result");
    return *Read_Job(made.journal->Path()).record;
}

const QString Longest_Sums =
    "Recipients: 1000000. Sent: 1000000. May have been sent: 1000000. Not tried: 1000000. Refused: 1000000. Skipped: "
    "1000000. Delivered: 1000000. Still trying: 1000000. Not delivered: 1000000. No report: 1000000.";

QWidget& Receipts_With_Everything(CorvaneAppDelegate& main)
{
    auto& window = *new Receipt_Wnd(&main);
    const QTemporaryDir none;
    window.Show_Kept(none.path());
    EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
    QCoreApplication::processEvents(); // what the worker has found hides it
    In<QWidget>(window, "Kept_Receipts").show();
    In<QWidget>(window, "Removal_Question").show();
    return window;
}

template <class Window>
QWidget& With_A_Message(CorvaneAppDelegate& /*main*/)
{
    auto& window = *Window::defaultInstance();
    In<Handset_Bubble>(window, "_Bubble").Show_Message(Costly_Message, {});
    return window;
}

template <class Window>
QWidget& Shared(CorvaneAppDelegate& /*main*/)
{
    return *Window::defaultInstance();
}

template <class Window>
QWidget& Made_Over(CorvaneAppDelegate& main)
{
    return *new Window(&main);
}

} // namespace

QWidget& Sight::Prepared(CorvaneAppDelegate& main) const
{
    QWidget& prepared = window(main);
    for (const auto& [name, text] : labels) {
        auto& label = In<QLabel>(prepared, name);
        label.setText(text);
        label.show();
    }
    return prepared;
}

const std::vector<Sight>& Every_Window()
{
    static const std::vector<Sight> sights = {
        {"main window", [](auto& main) -> QWidget& { return main; }},
        {"main window with a search",
         [](auto& main) -> QWidget& {
             In<Find_Strip>(main, "_Find_Strip").Open();
             return main;
         },
         {{"_Find_Count", "1000000 of 1000000"}}},
        {"main window with everything",
         Main_Window_With_Everything,
         {{"_Msg_char_count", Longest_Count},
          {"_gsm_list_count", "Total Numbers : 1000000"},
          {"_Plain_Offer_Text", QString(Texts::Causes::Flash_Refused) + ' ' + Texts::Confirmed::Plain_May_Pass},
          {"_Device_Name_Ticker", "usb-Sierra_Wireless_EM7455-if03"},
          {"_Promise_Lbl", Longest_Promise},
          {"_Exclusion_Trouble", Exclusion_Trouble({{}, QStringList(5, QString(50, u'W'))})}}},
        {"contacts as they were read",
         Contacts_As_Read,
         {{"_Words", "The customers of the northern region, without Scotland.xlsx: 1000000 rows in 16384 columns."},
          {"_Trouble", "No column looks as if it held numbers. Choose the one that does."}}},
        {"contacts as they are sent to",
         Contacts_As_Sent,
         {{"_Sums",
           "1000000 messages to be sent, 1000000 parts, about 23 h 59 min, until 30 September 2026, 23:59. 1000000 "
           "left "
           "out: 100000 repeated, 100000 excluded, 100000 no usable number, 100000 empty field, 100000 unknown field, "
           "100000 too long, 100000 fields misplaced."},
          {"_Causes", "1000000 messages go as Unicode, because of \u2019 (999999), \u201C (999999), U+200B (100000), "
                      "\u0151 (1000), \u2026 (1000), \u2013 (1000), others."},
          {"_Notice", "Looking at the rows: 100 % ..."}}},
        {"check of the list", Check_Of_The_List},
        {"help", [](CorvaneAppDelegate& main) -> QWidget& { return *new Help_Wnd(&main, "/a/guide"); }},
        {"import question", Made_Over<Load_Num_Info>},
        {"connection help", Connection_Help},
        {"connection wizard", Wizard_With_A_Device},
        {"port doctor", Doctor_With_Findings},
        {"notice of a long message", Shared<Long_SMS_Dlg>, {{"_Msg_Val", Composer_Rules::Long_SMS_Text(true)}}},
        {"progress in a pause",
         Shared<Send_Modeless>,
         {{"_curr_msg_cnt", "Initializing mobile phone device to send sms ..."},
          {"_tot_msg_cnt", "1000000"},
          {"_current_send_msg", Texts::Causes::Phone_Pin_Wanted},
          {"_Time_Left_Lbl", "about 23 h 59 min left, until 30 September 2026, 23:59"},
          {"_pause_timer", "Pausing the process for 1 Hour 59 Minute 59 Seconds."}}},
        {"other ways to send",
         [](CorvaneAppDelegate& main) -> QWidget& {
             return *new Hand_Over_Wnd([] { return Hand_Over_Wnd::Plan(); }, Program_Settings({}), &main);
         },
         {{"_Hand_Over_Result", "Handed over: 1000000 messages, in /home/somebody/Documents/Newsletter for the "
                                "northern region. Nothing was sent. Recipients left out: 1000000."}}},
        {"please wait", Made_Over<PleaseWait_Modeless>},
        {"fill", With_A_Message<Fill_Msg_In_List>},
        {"before sending", Shared<Send_Msg_Info>},
        {"edit of one", With_A_Message<Update_Num_SMS>, {{"m_st_msg_cnt", Longest_Count}}},
        {"edit of the selected",
         With_A_Message<Update_Sel_Num_SMS>,
         {{"m_st_msg_cnt", Longest_Count}, {"m_st_num_cnt", "Total Selected Numbers : 1000000"}}},
        {"sent items", Shared<Sent_Items>},
        {"templates", Shared<Templates>},
        {"templates with notices",
         Shared<Templates>,
         {{"_notice",
           "Templates that could not be saved the last time are in the list again. They are saved when this window "
           "closes.\nThe templates stored so far can not be read. They are kept in a file of their own when this "
           "list is saved.\nChanges can not be saved at present: the folder "
           "/home/somebody/.local/share/corvane/Resources/CORVANE_DATA can not be written to."}}},
        {"template editor", Shared<UpdateTemp>, {{"m_st_msg_cnt", "1600 Characters"}}},
        {"export option", Shared<Export_Option>},
        {"export done", Shared<Open_Export_Log>},
        {"export that nothing opens",
         [](CorvaneAppDelegate&) -> QWidget& {
             In<QLabel>(*Open_Export_Log::defaultInstance(), "_notice").show();
             return *Open_Export_Log::defaultInstance();
         }},
        {"receipt", Made_Over<Receipt_Wnd>, {{"_Sums", Longest_Sums}}},
        {"receipts with everything",
         Receipts_With_Everything,
         {{"_Facts", "Job: 20261121-101500-3f9a. Began: 21 November 2026, 10:15. Device: /dev/serial/by-id/usb-" +
                         QString(60, u'L') + ". SIM card: ends with 0001. State: not ended."},
          {"_Sums", Longest_Sums},
          {"_Notice", "Written to /home/somebody/Documents/receipt.csv. An apostrophe is in front of each number, and "
                      "of whatever else a spreadsheet would take for a formula."}}},
        {"rows that may have been sent",
         [](CorvaneAppDelegate& main) -> QWidget& {
             return *new Unknown_Rows_Sheet({}, std::make_shared<const Job_Receipt>(Doubtful_Job()), &main);
         },
         {{"_Choices", "Leave as it is: 1000000. Send again: 1000000. Count as sent: 1000000."},
          {"_Trouble", "The decisions could not be kept: the list beside its journal is not the one that the job began "
                       "with."}}},
        {"exclusion lists", Exclusion_Lists},
        {"name of an exclusion list", Exclusion_Name},
        {"numbers of an exclusion list", Exclusion_Numbers, {{"m_st_num_count", "Total Numbers : 1000000"}}},
        {"numbers of an exclusion list after a file",
         Exclusion_Numbers_Loaded,
         {{"m_st_num_count", "Total Numbers : 1000000"}}},
        {"lines that were not used",
         Unused_Lines,
         {{"_Sums",
           "Lines not used: 1000000. No phone number: 1000000. Already in the list: 1000000. In an exclusion list: "
           "1000000. These are the first 10000."}}},
        {"edit of an excluded number",
         [](CorvaneAppDelegate&) -> QWidget& {
             return In<QDialog>(*Exclusion_Wizard::defaultInstance(), "Update_Ex_Num");
         }},
    };
    return sights;
}
