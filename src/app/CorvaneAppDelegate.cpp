#include "app/CorvaneAppDelegate.h"

#include "app/Help_Wnd.h"
#include "app/List_Cells.h"
#include "app/Number_Acceptance.h"
#include "app/basics/String_Helpers.h"
#include "app/shared/Data_Paths.h"
#include "app/shared/Globals.h"
#include "app/shared/Line_Edit_Limit.h"
#include "app/shared/List_Tables.h"
#include "app/shared/Message_Boxes.h"
#include "app/shared/Number_Rules.h"
#include "app/shared/PleaseWait_Modeless.h"
#include "app/shared/Window_Look.h"
#include "platform/Interface_Thread.h"
#include "platform/Row_Table_Model.h"
#include "sending/Composer.h"
#include "sending/Delayed_Delivery.h"
#include "sending/Send_Modeless.h"
#include "sending/Send_Runner.h"
#include "ui_CorvaneAppDelegate.h"
#include "wizard/Connection_Info.h"
#include "wizard/Phone_List_Wnd.h"

#include <QCloseEvent>
#include <utility>

namespace {

CorvaneAppDelegate* The_Delegate = nullptr;

constexpr int Normal_Message_Index = 1;
constexpr int Redisplay_Count = 10; // reaching exactly this many recipients redraws the table from the count itself

const QString Text_No_Data = QStringLiteral("Can not access Corvane Data file.");
const QString Text_Exit = QStringLiteral("\nDo you really want to exit from 'Corvane'?");
const QString Text_Not_A_Number = QStringLiteral("Please enter a valid phone number.");
const QString Text_Exists = QStringLiteral("Entered number already exists.");
const QString Text_Excluded = QStringLiteral("Entered number is in exclusion list.");
const QString Text_List_Empty = QStringLiteral("Phone numbers-Messages list is empty.");
const QString Text_None_Selected =
    QStringLiteral("Please select at least one record from the phone numbers-messages list to continue.");
const QString Text_Select_One = QStringLiteral("Please select only one record to update.");
const QString Text_Clear_All =
    QStringLiteral("\nThis option will clear the entire list contents. Are you sure you want to "
                   "continue clearing the entire list?");
const QString Text_No_Device = QStringLiteral("No Mobile Phone Device is selected.");

// To let go of a million recipients takes its time, like everything that is done with each of them.
void Let_Go_Of(Recipient_List& list)
{
    Run_On_Worker([&] { list.Clear(); });
}

} // namespace

CorvaneAppDelegate::CorvaneAppDelegate()
    : m_ui(std::make_unique<Ui::CorvaneAppDelegate>()), mfc_sms_obj(std::make_unique<MFCSMS>())
{
    The_Delegate = this;
    m_ui->setupUi(this);
    setCentralWidget(m_ui->panel);
    m_composer = std::make_unique<Composer>(m_ui->_messageEdit, m_ui->_Msg_char_count, m_ui->_Unicode_SMS_Chk);
    m_please_wait = new PleaseWait_Modeless(this);
    Connect_Controls();
}

CorvaneAppDelegate::~CorvaneAppDelegate()
{
    The_Delegate = nullptr;
    Main_App_wnd = nullptr;
}

CorvaneAppDelegate* CorvaneAppDelegate::defaultInstance()
{
    return The_Delegate;
}

bool CorvaneAppDelegate::awakeFromNib()
{
    Apply_Window_Look(*this);
    QFont link_font = font();
    link_font.setBold(true);
    link_font.setUnderline(true);
    m_ui->_NO_Device_Ticker->setFont(link_font);
    m_ui->_NO_Device_Ticker->setCursor(Qt::OpenHandCursor);
    m_ui->_NO_Device_Ticker->setStyleSheet(QStringLiteral("QPushButton { color: #d00000; border: none; background: ") +
                                           Window_Background().name() + QStringLiteral("; padding: 4px; }"));
    // A device's name may be long: it is cut off rather than make the window grow with it.
    m_ui->_Device_Name_Ticker->ensurePolished();
    m_ui->_Device_Name_Ticker->setMinimumWidth(m_ui->_Device_Name_Ticker->sizeHint().width());
    Give_Tables_Their_Models();
    Set_Data_Paths(Default_Resource_Path());
    if (!Create_Resource_Folder()) {
        Show_MessageBox(Text_No_Data);
        return false;
    }
    m_ui->_Msg_TypeComboBox->setCurrentIndex(Normal_Message_Index);
    Check_Path_And_Create_Files();
    m_ui->_delayed_msg_count_combo->addItems(Delayed_Delivery::Batch_Sizes());
    m_ui->_delayed_time_combo->addItems(Delayed_Delivery::Pause_Choices());
    for (auto* box : {m_ui->_delayed_msg_count_combo, m_ui->_delayed_time_combo}) {
        box->setCompleter(nullptr);
        box->setCurrentIndex(-1);
    }
    m_send_runner = std::make_unique<Send_Runner>(*this, *mfc_sms_obj, *Send_Modeless::defaultInstance());
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
}

void CorvaneAppDelegate::Connect_Controls()
{
    connect(m_ui->_numberEdit, &QLineEdit::textChanged, this, &CorvaneAppDelegate::controlTextDidChange);
    connect(m_ui->Add_Number, &QPushButton::clicked, this, &CorvaneAppDelegate::Add_Number);
    connect(m_ui->Clear_Sel_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Clear_Sel_Btn);
    connect(m_ui->Clear_All_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Clear_All_Btn);
    connect(m_ui->Reset_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Reset_Btn);
    connect(m_ui->Help_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Help_Btn);
    connect(m_ui->Exit_Btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Exit_Btn);
    connect(m_ui->_sent_btn, &QPushButton::clicked, this, &CorvaneAppDelegate::Send_SMS_Btn);
    connect(m_ui->_NO_Device_Ticker, &QPushButton::clicked, this, &CorvaneAppDelegate::No_Device_Ticker_Click);
    connect(m_ui->Search_All_Modem, &QPushButton::clicked, this, &CorvaneAppDelegate::Search_All_Modem);
    connect(m_ui->_messageEdit, &QPlainTextEdit::textChanged, this, &CorvaneAppDelegate::textDidChange);
    connect(m_ui->_Unicode_SMS_Chk, &QCheckBox::clicked, this, &CorvaneAppDelegate::Unicode_Chk);
    connect(m_ui->idTableView, &QTableView::doubleClicked, this, &CorvaneAppDelegate::doubleClickInTable);
}

void CorvaneAppDelegate::Give_Tables_Their_Models()
{
    const auto rows_of = [this](QTableView* table, std::vector<Row_Table_Model::Column> columns) {
        return new Row_Table_Model(
            std::move(columns), [this, table] { return numberOfRowsInTableView(table); },
            [this, table](const QString& identifier, int row) { return tableView(table, identifier, row); }, this);
    };
    m_recipient_rows = rows_of(m_ui->idTableView,
                               {{QStringLiteral("Number"), tr("Number")}, {QStringLiteral("Message"), tr("Message")}});
    m_exclusion_rows = rows_of(m_ui->idExclusionTableView, {{QStringLiteral("Number"), tr("Excluded number")}});
    Prepare_List_Table(*m_ui->idTableView, *m_recipient_rows);
    Prepare_List_Table(*m_ui->idExclusionTableView, *m_exclusion_rows);
}

void CorvaneAppDelegate::windowWillClose()
{
    Exit_App();
}

void CorvaneAppDelegate::Exit_Btn()
{
    Exit_App();
}

void CorvaneAppDelegate::Exit_App()
{
    if (Show_YES_NO_MessageBox(Text_Exit))
        Q_EMIT Exit_Wanted();
}

void CorvaneAppDelegate::closeEvent(QCloseEvent* event)
{
    event->ignore(); // the window goes when the program does, and that is for Exit_App to ask
    windowWillClose();
}

void CorvaneAppDelegate::Check_Path_And_Create_Files()
{
    ::Check_Path_And_Create_Files();
}

// ---- The recipient list and the number rules

void CorvaneAppDelegate::Create_Num_Msg_List(const QString& number, const QString& message_val)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    nsListDataObject.Append(trimmed_number, message_val);
    Update_List_Count();
    // The first composer text that an item was made with is the remembered one; later ones do not replace it here.
    if (prev_composer_msg.isEmpty())
        prev_composer_msg = m_composer->Text();
}

bool CorvaneAppDelegate::Check_Ph_Number(const QString& number, bool test_flag) const
{
    return Number_Rules::Check_Ph_Number(number, test_flag);
}

QString CorvaneAppDelegate::Num_Able_To_insert(const QString& number) const
{
    const auto judged = Judge_Number(number, nsListDataObject, nsExclusionListDataObject,
                                     m_ui->_Skip_Duplicate_Chk->isChecked(), m_ui->_Exclusion_Chk->isChecked());
    return judged.verdict == Number_Acceptance::Verdict::Accepted ? judged.number : QString();
}

bool CorvaneAppDelegate::Check_Duplicate_Number(const QString& number) const
{
    return nsListDataObject.Count_Of(number) > 0;
}

bool CorvaneAppDelegate::Check_Exclusion_Number(const QString& number) const
{
    return nsExclusionListDataObject.Count_Of(number) > 0;
}

void CorvaneAppDelegate::Create_Exclusion_List(const QString& number)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    nsExclusionListDataObject.Append(trimmed_number);
    m_exclusion_rows->Reload();
}

void CorvaneAppDelegate::Fill_Exclusion_Num_List() {}

void CorvaneAppDelegate::Update_List_Count()
{
    m_ui->_gsm_list_count->setText(QStringLiteral("Total Numbers : ") + QString::number(nsListDataObject.Count()));
    if (nsListDataObject.Count() == Redisplay_Count)
        Redisplay_Recipients();
}

bool CorvaneAppDelegate::Blank_Msg_Chk() const
{
    for (int index = 0; index < nsListDataObject.Count(); ++index) {
        if (!nsListDataObject.At(index).Message.isEmpty())
            return false;
    }
    return m_composer->Text().isEmpty();
}

int CorvaneAppDelegate::numberOfRowsInTableView(const QTableView* table) const
{
    return table == m_ui->idTableView ? nsListDataObject.Count() : nsExclusionListDataObject.Count();
}

QString CorvaneAppDelegate::tableView(const QTableView* table, const QString& objectValueForTableColumn, int row) const
{
    try {
        if (table == m_ui->idTableView)
            return Recipient_Cell(nsListDataObject, objectValueForTableColumn, row);
        return Exclusion_Cell(nsExclusionListDataObject, objectValueForTableColumn, row);
    } catch (const Invalid_Parameter&) {
        return {};
    }
}

void CorvaneAppDelegate::Add_Number()
{
    const auto judged = Judge_Number(m_ui->_numberEdit->text(), nsListDataObject, nsExclusionListDataObject,
                                     m_ui->_Skip_Duplicate_Chk->isChecked(), m_ui->_Exclusion_Chk->isChecked());
    switch (judged.verdict) {
    case Number_Acceptance::Verdict::Not_Valid:
        Show_MessageBox(Text_Not_A_Number);
        break;
    case Number_Acceptance::Verdict::Duplicate:
        Show_MessageBox(Text_Exists);
        break;
    case Number_Acceptance::Verdict::Excluded:
        Show_MessageBox(Text_Excluded);
        break;
    case Number_Acceptance::Verdict::Accepted:
        Create_Num_Msg_List(judged.number, m_composer->Text());
        Redisplay_Recipients();
        m_ui->_numberEdit->clear();
        break;
    }
    Focus(Field::Number);
}

void CorvaneAppDelegate::Clear_Sel_Btn()
{
    if (nsListDataObject.Count() == 0) {
        Tell_And_Focus(Text_List_Empty, Field::Recipient_Table);
        return;
    }
    const auto rows = Selected_Recipient_Rows();
    if (rows.empty()) {
        Tell_And_Focus(Text_None_Selected, Field::Recipient_Table);
        return;
    }
    Show_Create_Modeless();
    Recipient_List list = nsListDataObject; // the table shows the present one until this one is whole
    Run_On_Worker([&] { list.Remove_Rows(rows); });
    std::swap(nsListDataObject, list);
    Redisplay_Recipients();
    m_ui->idTableView->selectRow(0);
    Update_List_Count();
    Let_Go_Of(list);
    Hide_Destroy_Modeless();
    if (nsListDataObject.Count() == 0) {
        m_ui->_numberEdit->clear();
        Focus(Field::Number);
    }
}

void CorvaneAppDelegate::Clear_All_Btn()
{
    if (nsListDataObject.Count() == 0) {
        Show_MessageBox(Text_List_Empty);
        return;
    }
    if (!Show_YES_NO_MessageBox(Text_Clear_All))
        return;
    Show_Create_Modeless();
    Recipient_List list = std::exchange(nsListDataObject, Recipient_List());
    Redisplay_Recipients();
    Update_List_Count();
    m_ui->_numberEdit->clear();
    Focus(Field::Number);
    Let_Go_Of(list);
    Hide_Destroy_Modeless();
}

void CorvaneAppDelegate::Reset_Btn()
{
    prev_composer_msg.clear();
    m_ui->_numberEdit->clear();
    m_composer->Clear();
    Recipient_List list = std::exchange(nsListDataObject, Recipient_List());
    Redisplay_Recipients();
    Update_List_Count();
    m_ui->_Msg_char_count->setText(QStringLiteral("0 Characters"));
    m_ui->_Msg_TypeComboBox->setCurrentIndex(Normal_Message_Index);
    for (auto* box : {m_ui->_Delayed_Delivry_Chk, m_ui->_Exclusion_Chk, m_ui->_Save_Sent_Item_Chk,
                      m_ui->_Save_Templates_Chk, m_ui->_Skip_Duplicate_Chk, m_ui->_Unicode_SMS_Chk})
        box->setChecked(false);
    for (auto* box : {m_ui->_delayed_time_combo, m_ui->_delayed_msg_count_combo}) {
        box->setEnabled(false);
        box->setCurrentIndex(-1);
        box->clearEditText();
    }
    Update_List_Count();
    Focus(Field::Number);
    Let_Go_Of(list);
}

void CorvaneAppDelegate::doubleClickInTable()
{
    if (Selected_Recipient_Rows().size() > 1)
        Show_MessageBox(Text_Select_One);
}

std::vector<int> CorvaneAppDelegate::Selected_Recipient_Rows() const
{
    return Rows_Selected_In(*m_ui->idTableView);
}

void CorvaneAppDelegate::controlTextDidChange()
{
    Cut_Line(*m_ui->_numberEdit, Number_Rules::Longest_Number);
}

// ---- The composer

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

// ---- Sending

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
    choices.pause_choice = m_ui->_delayed_time_combo->currentText();
    choices.delayed_delivery = m_ui->_Delayed_Delivry_Chk->isChecked();
    choices.exclusion = m_ui->_Exclusion_Chk->isChecked();
    choices.skip_duplicates = m_ui->_Skip_Duplicate_Chk->isChecked();
    choices.save_sent_items = m_ui->_Save_Sent_Item_Chk->isChecked();
    choices.save_templates = m_ui->_Save_Templates_Chk->isChecked();
    choices.unicode = m_ui->_Unicode_SMS_Chk->isChecked();
    choices.flash = m_ui->_Msg_TypeComboBox->currentText() == QStringLiteral("Notification");
    return choices;
}

void CorvaneAppDelegate::Hold_Input()
{
    m_input_hold = std::make_unique<Input_Hold>(this);
}

void CorvaneAppDelegate::Release_Input()
{
    m_input_hold.reset();
}

// ---- The device and its ticker

void CorvaneAppDelegate::No_Device_Ticker_Click()
{
    Search_All_Modem();
}

void CorvaneAppDelegate::Search_All_Modem()
{
    sel_port_name_str.clear();
    sel_port_bsd_str.clear();
    m_ui->_Device_Name_Ticker->setText(Text_No_Device);
    Connection_Info::defaultInstance()->exec();
    m_ui->_NO_Device_Ticker->hide();
    Phone_List_Wnd::defaultInstance()->Open_Ph_List_Wnd();
    Show_Device_In_Ticker();
}

void CorvaneAppDelegate::Show_Device_In_Ticker()
{
    const bool has_device = !sel_port_name_str.isEmpty();
    m_ui->_Device_Name_Ticker->setText(has_device ? sel_port_name_str : Text_No_Device);
    m_ui->_NO_Device_Ticker->setVisible(!has_device);
}

void CorvaneAppDelegate::Help_Btn()
{
    Help_Wnd help(this);
    help.exec();
}

// ---- Shared services

void CorvaneAppDelegate::Show_Create_Modeless()
{
    m_please_wait->Begin_Sheet(this);
}

void CorvaneAppDelegate::Hide_Destroy_Modeless()
{
    m_please_wait->End_Sheet();
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

void CorvaneAppDelegate::Replace_Recipients(Recipient_List recipients)
{
    std::swap(nsListDataObject, recipients);
    Redisplay_Recipients();
    Let_Go_Of(recipients);
}

void CorvaneAppDelegate::Redisplay_Recipients()
{
    m_recipient_rows->Reload();
}

void CorvaneAppDelegate::Tell_And_Focus(const QString& text, Field field)
{
    Show_MessageBox(text);
    Focus(field);
}
