#include "windows/main/CorvaneAppDelegate.h"

#include "device/Chosen_Device.h"
#include "engine/Delayed_Delivery.h"
#include "list/Number_Import.h"
#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "records/Data_Paths.h"
#include "records/Template_Store.h"
#include "texts/Texts.h"
#include "toolkit/Column_Widths.h"
#include "toolkit/Heading_Font.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/Line_Edit_Limit.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Row_Finder.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Window_Look.h"
#include "toolkit/Window_Work.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/exclusion/Exclusion_Wizard.h"
#include "windows/list/Handset_Bubble.h"
#include "windows/main/Appearance_Menu.h"
#include "windows/main/Awaited_Reports.h"
#include "windows/main/Composer.h"
#include "windows/main/Confirm_Boxes.h"
#include "windows/main/Contact_Desk.h"
#include "windows/main/Guide_Page.h"
#include "windows/main/Help_Wnd.h"
#include "windows/main/Job_Follow_Up.h"
#include "windows/main/Language_Menu.h"
#include "windows/main/List_Arrivals.h"
#include "windows/main/Recipient_Rows.h"
#include "windows/main/Send_Modeless.h"
#include "windows/main/Send_Promise.h"
#include "windows/main/Send_Runner.h"
#include "windows/main/Undo_Strip.h"
#include "windows/phone/Doctor_Wnd.h"
#include "windows/stores/Sent_Items.h"
#include "windows/stores/Templates.h"

#include <QCloseEvent>
#include <utility>

namespace {

CorvaneAppDelegate* The_Delegate = nullptr;

constexpr int Normal_Message_Index = 1;
constexpr int Send_Button_Letters = 22;
constexpr int Digits_In_Sight = 15; // most numbers have no more

} // namespace

CorvaneAppDelegate::CorvaneAppDelegate()
    : m_ui(std::make_unique<Ui::CorvaneAppDelegate>()), mfc_sms_obj(std::make_unique<MFCSMS>())
{
    The_Delegate = this;
    m_ui->setupUi(this);
    setCentralWidget(m_ui->panel);
    m_composer = std::make_unique<Composer>(m_ui->_messageEdit, m_ui->_Msg_char_count, m_ui->_Unicode_SMS_Chk);
    m_please_wait = new PleaseWait_Modeless(this);
    m_work = std::make_unique<Window_Work>(*this, *m_please_wait);
    m_arrivals = std::make_unique<List_Arrivals>(*m_ui->recipients_group, *m_ui->idTableView, *m_ui->_Import_Strip);
    m_ui->_Undo_Strip->Serve(*m_ui->idTableView);
    Connect_Controls();
}

CorvaneAppDelegate::~CorvaneAppDelegate()
{
    if (m_awaited_reports)
        m_awaited_reports->Stop();
    The_Delegate = nullptr;
    Main_App_wnd = nullptr;
}

CorvaneAppDelegate* CorvaneAppDelegate::defaultInstance()
{
    return The_Delegate;
}

bool CorvaneAppDelegate::awakeFromNib()
{
    Apply_Window_Look(*this, Letters{.columns = 146, .lines = 44});
    QFont link_font = font();
    link_font.setBold(true);
    link_font.setUnderline(true);
    m_ui->_NO_Device_Ticker->setFont(link_font);
    m_ui->_NO_Device_Ticker->setCursor(Qt::OpenHandCursor);
    m_ui->_Device_Name_Ticker->setFont(Heading_Font(font()));
    const QFontMetrics letters = fontMetrics();
    m_ui->_sent_btn->setMinimumSize(letters.averageCharWidth() * Send_Button_Letters,
                                    m_ui->_sent_btn->sizeHint().height() + letters.descent());
    Keep_Room_For(*m_ui->_numberEdit, QString(Digits_In_Sight, u'0'));
    // A device's name may be long: it is cut off rather than widening the window.
    m_ui->_Device_Name_Ticker->ensurePolished();
    m_ui->_Device_Name_Ticker->setMinimumWidth(m_ui->_Device_Name_Ticker->sizeHint().width());
    Give_Tables_Their_Models();
    Set_Data_Paths(Default_Resource_Path());
    if (!Create_Resource_Folder()) {
        Show_MessageBox(Texts::Main::No_Data);
        return false;
    }
    for (int type = 0; type < m_ui->_Msg_TypeComboBox->count(); ++type)
        m_ui->_Msg_TypeComboBox->setItemData(type, type != Normal_Message_Index); // whether it is sent as flash
    m_ui->_Msg_TypeComboBox->setCurrentIndex(Normal_Message_Index);
    Check_Path_And_Create_Files();
    m_ui->Fill_Msg_Btn->setText(Texts::Main::Apply_To_List);
    m_ui->_delayed_msg_count_combo->addItems(Delayed_Delivery::Batch_Sizes());
    m_ui->_delayed_time_combo->addItems(Delayed_Delivery::Shown_Pause_Choices());
    for (auto* box : {m_ui->_delayed_msg_count_combo, m_ui->_delayed_time_combo}) {
        box->setCompleter(nullptr);
        box->setCurrentIndex(-1);
        box->lineEdit()->setAccessibleName(box->accessibleName()); // the keyboard focus is here when it is in the box
    }
    const auto say_wait = [this](const QString& count) {
        constexpr int several = 2; // which is read where there is no number
        m_ui->delay_caption->setText(tr("messages wait", nullptr, count.toInt() > 0 ? count.toInt() : several));
    };
    connect(m_ui->_delayed_msg_count_combo, &QComboBox::currentTextChanged, m_ui->delay_caption, say_wait);
    say_wait({});
    m_confirm_boxes = std::make_unique<Confirm_Boxes>(
        Confirm_Boxes::Boxes{m_ui->_Confirm_Chk, m_ui->_Reports_Chk, m_ui->_Keep_Receipt_Chk,
                             m_ui->_Remember_Confirm_Chk, m_ui->confirm_more},
        Program_Settings(Settings_Path));
    m_appearance = std::make_unique<Appearance_Menu>(*m_ui->_Appearance_Btn, Program_Settings(Settings_Path));
    Add_Language_Menu(*m_ui->_Appearance_Btn->menu(), Program_Settings(Settings_Path));
    Show_What_Handsets_Show();
    m_import = std::make_unique<Number_Import>(
        Number_Import::Target{[this](int count, int percent) { Show_Import_Progress(count, percent); },
                              [this](Recipient_List& recipients) { Take_Over_Imported(recipients); },
                              [this] { Leave_Import_Unread(); }, [this] { Finish_Import(); }, [this] { End_Import(); },
                              [this](const Import_Report& report) { m_arrivals->Note(report); }});
    m_awaited_reports = std::make_unique<Awaited_Reports>(*m_work);
    m_send_runner = std::make_unique<Send_Runner>(
        *this, *mfc_sms_obj, *Send_Modeless::defaultInstance(), [this] { return m_awaited_reports->Device_Turn(); },
        [this] { return m_awaited_reports->Is_Device_Wanted(); });
    m_follow_up =
        std::make_unique<Job_Follow_Up>(*this, *m_work, *m_send_runner, *m_ui->_Job_Strip, *m_ui->Show_Receipt);
    connect(m_awaited_reports.get(), &Awaited_Reports::Came, m_follow_up.get(), &Job_Follow_Up::Take_Reports);
    Make_Contact_Desk();
    Make_Promise();
    Make_Menu();
    Main_App_wnd = this;
    Show_Device_In_Ticker();
    return true;
}

void CorvaneAppDelegate::applicationDidFinishLaunching()
{
    show();
    raise();
    activateWindow();
    Focus(Field::Number);
    m_follow_up->Look_For_Unfinished([this] { m_awaited_reports->Look(sel_port_bsd_str); });
}

void CorvaneAppDelegate::Connect_Controls()
{
    connect(m_ui->_numberEdit, &QLineEdit::textChanged, this, &CorvaneAppDelegate::controlTextDidChange);
    connect(m_ui->Add_Number, &QPushButton::clicked, this, &CorvaneAppDelegate::Add_Number);
    connect(m_ui->Clear_Sel_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Clear_Sel_Btn);
    connect(m_ui->Clear_All_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Clear_All_Btn);
    connect(m_ui->Select_Not_Taken, &QPushButton::clicked, this, &CorvaneAppDelegate::Select_Not_Taken);
    connect(m_ui->Keep_Not_Taken, &QPushButton::clicked, this, &CorvaneAppDelegate::Keep_Not_Taken);
    connect(m_ui->Choose_Plain_Kind, &QPushButton::clicked, this, &CorvaneAppDelegate::Choose_Plain_Kind);
    connect(m_ui->Show_Receipt, &QPushButton::clicked, this, &CorvaneAppDelegate::Show_Receipt);
    connect(m_ui->View_Receipts_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::View_Receipts_Btn);
    connect(m_ui->Reset_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Reset_Btn);
    connect(m_ui->Help_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Help_Btn);
    connect(m_ui->Exit_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Exit_Btn);
    connect(m_ui->_sent_btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Send_SMS_Btn);
    connect(m_ui->_NO_Device_Ticker, &QPushButton::clicked, this, &CorvaneAppDelegate::No_Device_Ticker_Click);
    connect(m_ui->Search_All_Modem, &QPushButton::clicked, this, &CorvaneAppDelegate::Search_All_Modem);
    connect(m_ui->_messageEdit, &QPlainTextEdit::textChanged, this, &CorvaneAppDelegate::textDidChange);
    connect(m_ui->_Unicode_SMS_Chk, &QCheckBox::clicked, this, &CorvaneAppDelegate::Unicode_Chk);
    connect(m_ui->Load_Number, &QPushButton::clicked, this, &CorvaneAppDelegate::Load_Number);
    connect(m_ui->Import_Contacts, &QPushButton::clicked, this, &CorvaneAppDelegate::Import_Contacts);
    connect(m_ui->Check_List, &QPushButton::clicked, this, &CorvaneAppDelegate::Check_List);
    connect(m_arrivals.get(), &List_Arrivals::Paste_Wanted, this, &CorvaneAppDelegate::Paste_Numbers);
    connect(m_arrivals.get(), &List_Arrivals::Dropped, this, &CorvaneAppDelegate::Dropped_File);
    connect(m_ui->Export_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Export_Btn);
    connect(m_ui->Fill_Msg_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Fill_Msg_Btn);
    connect(m_ui->Update_Sel_Msgs_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Update_Sel_Msgs_Btn);
    connect(m_ui->Sent_Item_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Sent_Item_Btn);
    connect(m_ui->View_Templates_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::View_Templates_Btn);
    connect(m_ui->View_ExclusionWizrd_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::View_ExclusionWizrd_Btn);
    connect(m_ui->_Exclusion_Chk, &QCheckBox::clicked, this, &CorvaneAppDelegate::Exclusion_Chk);
    connect(m_ui->_Delayed_Delivry_Chk, &QCheckBox::clicked, this, &CorvaneAppDelegate::Delayed_Delivery_Chk);
    connect(m_ui->idTableView, &QTableView::doubleClicked, this, &CorvaneAppDelegate::doubleClickInTable);
    Act_On_Keys(*m_ui->_numberEdit, Return_Keys, [this] { Add_Number(); });
    Give_Table_Keys(*m_ui->idTableView, {[this] { doubleClickInTable(); }, [this] { Clear_Sel_Btn(); }});
}

void CorvaneAppDelegate::Give_Tables_Their_Models()
{
    using Columns = std::vector<Row_Table_Model::Column>;
    const auto rows_of = [this](const QTableView* table) {
        return [this, table] { return numberOfRowsInTableView(table); };
    };
    const auto cells_of = [this](const QTableView* table) {
        return [this, table](const QString& identifier, int row) { return tableView(table, identifier, row); };
    };
    m_recipient_rows = new Recipient_Rows(
        Columns{{QStringLiteral("Number"), tr("Number")}, {QStringLiteral("Message"), tr("Message")}},
        rows_of(m_ui->idTableView), cells_of(m_ui->idTableView), [this](int row) { return Outcome_Of(row); }, this);
    m_exclusion_rows =
        new Row_Table_Model(Columns{{QStringLiteral("Number"), tr("Excluded number")}},
                            rows_of(m_ui->idExclusionTableView), cells_of(m_ui->idExclusionTableView), this);
    Prepare_List_Table(*m_ui->idTableView, *m_recipient_rows);
    m_recipient_widths = new Column_Widths(*m_ui->idTableView); // the table owns it
    connect(m_ui->idTableView->selectionModel(), &QItemSelectionModel::selectionChanged, m_ui->_Bubble,
            &Handset_Bubble::Look_Again);
    Prepare_List_Table(*m_ui->idExclusionTableView, *m_exclusion_rows);
    Make_Finder();
}

void CorvaneAppDelegate::Exit_App()
{
    if (Show_YES_NO_MessageBox(Texts::Main::Exit))
        Q_EMIT Exit_Wanted();
}

void CorvaneAppDelegate::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the window goes when the program does, which is for Exit_App to ask
    windowWillClose();
}

void CorvaneAppDelegate::Check_Path_And_Create_Files()
{
    ::Check_Path_And_Create_Files();
}

// ---- Sending

void CorvaneAppDelegate::Delayed_Delivery_Chk()
{
    const bool is_on = m_ui->_Delayed_Delivry_Chk->isChecked();
    for (auto* box : {m_ui->_delayed_msg_count_combo, m_ui->_delayed_time_combo}) {
        box->setEnabled(is_on);
        box->setCurrentIndex(-1);
        box->clearEditText();
    }
    if (!is_on)
        return;
    m_ui->_delayed_time_combo->setCurrentIndex(Delayed_Delivery::Preselected_Pause_Choice);
    m_ui->_delayed_msg_count_combo->setCurrentIndex(Delayed_Delivery::Preselected_Batch_Size);
}

void CorvaneAppDelegate::Send_SMS_Btn()
{
    m_send_runner->Send_SMS_Btn();
}

Send_Choices CorvaneAppDelegate::Read_Send_Choices() const
{
    Send_Choices choices;
    choices.number_text = m_ui->_numberEdit->text();
    choices.composer_text = m_composer->Text();
    choices.batch_size = m_ui->_delayed_msg_count_combo->currentText();
    choices.pause_choice = Delayed_Delivery::Pause_Choice_Of(m_ui->_delayed_time_combo->currentText());
    choices.delayed_delivery = m_ui->_Delayed_Delivry_Chk->isChecked();
    choices.exclusion = m_ui->_Exclusion_Chk->isChecked();
    choices.skip_duplicates = m_ui->_Skip_Duplicate_Chk->isChecked();
    choices.save_sent_items = m_ui->_Save_Sent_Item_Chk->isChecked();
    choices.save_templates = m_ui->_Save_Templates_Chk->isChecked();
    choices.unicode = m_ui->_Unicode_SMS_Chk->isChecked();
    choices.flash = m_ui->_Msg_TypeComboBox->currentData().toBool();
    choices.confirm = m_confirm_boxes->Choices();
    return choices;
}

void CorvaneAppDelegate::Hold_Input()
{
    m_work->Hold_Input();
}

void CorvaneAppDelegate::Release_Input()
{
    m_work->Release_Input();
}

// ---- The other windows

void CorvaneAppDelegate::Sent_Item_Btn()
{
    auto* window = Sent_Items::defaultInstance();
    connect(window, &Sent_Items::Saving_Wanted, m_ui->_Save_Sent_Item_Chk, &QCheckBox::click, Qt::UniqueConnection);
    window->Open_Sent_Item_Wnd();
}

void CorvaneAppDelegate::View_Templates_Btn()
{
    Templates::defaultInstance()->Open_Template_Wnd();
}

void CorvaneAppDelegate::View_ExclusionWizrd_Btn()
{
    Exclusion_Wizard::defaultInstance()->Open_Exclusion_Wnd();
}

bool CorvaneAppDelegate::Check_Duplicate_Template(const QString& text) const
{
    bool is_there = false;
    Run_On_Worker([&] { is_there = Template_Store::Contains(text); });
    return is_there;
}

void CorvaneAppDelegate::Help_Btn()
{
    Help_Wnd help(this, Guide_Page());
    bool wants_virtual_phone = false;
    connect(&help, &Help_Wnd::Doctor_Wanted, this, [&] {
        if (Is_Device_Taken())
            return;
        const std::shared_ptr<void> device = m_awaited_reports->Device_Turn();
        wants_virtual_phone = Doctor_Wnd(&help).exec() == Doctor_Wnd::Virtual_Phone_Is_There;
        if (wants_virtual_phone)
            help.accept();
    });
    help.exec();
    if (wants_virtual_phone && !Program_Is_Exiting())
        Search_All_Modem();
}

// ---- Shared services

void CorvaneAppDelegate::Show_Create_Modeless()
{
    m_work->Show_Sheet();
}

void CorvaneAppDelegate::Hide_Destroy_Modeless()
{
    m_work->Hide_Sheet();
}

void CorvaneAppDelegate::Focus(Field field)
{
    switch (field) {
    case Field::Number:
        m_ui->_numberEdit->setFocus();
        break;
    case Field::Composer:
        m_ui->_messageEdit->setFocus();
        break;
    case Field::Recipient_Table:
        m_ui->idTableView->setFocus();
        break;
    case Field::Batch_Size:
        m_ui->_delayed_msg_count_combo->setFocus();
        break;
    case Field::Pause_Choice:
        m_ui->_delayed_time_combo->setFocus();
        break;
    }
}
