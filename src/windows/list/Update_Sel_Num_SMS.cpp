#include "windows/list/Update_Sel_Num_SMS.h"

#include "list/Fill_Rules.h"
#include "platform/Interface_Thread.h"
#include "platform/String_Helpers.h"
#include "platform/Waiting.h"
#include "texts/Texts.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Shared_Instance.h"
#include "ui_Update_Sel_Num_SMS.h"
#include "windows/list/Handset_Bubble.h"
#include "windows/list/List_Change.h"

#include <utility>

Update_Sel_Num_SMS* Up_Sel_Num_SMS = nullptr;

namespace {

constexpr double Wait_Before_Opening_Seconds = 1.0;
constexpr std::size_t Redisplay_Count = 10; // the count at which the label reloads the table, once
constexpr std::size_t Largest_Batch = 5000;

} // namespace

Update_Sel_Num_SMS::Update_Sel_Num_SMS(QWidget* parent) : Working_Dialog(parent, Letters{.columns = 100, .lines = 28})
{
    m_rows = std::make_unique<Row_Table_Model>(
        std::vector<Row_Table_Model::Column>{{QStringLiteral("Number"), tr("Number")}},
        [this] { return numberOfRowsInTableView(); },
        [this](const QString& identifier, int row) { return tableView(identifier, row); });
    Prepare_List_Table(*m_ui->List_View, *m_rows);
    m_message = std::make_unique<Counted_Message>(*m_ui->m_msg_str, *m_ui->m_st_msg_cnt);
    m_ui->_Bubble->Follow(*m_ui->m_msg_str, *m_ui->_Part_Count, [this] {
        return m_window ? Handset_Bubble::Terms_For(*m_window, m_first_row) : Handset_Bubble::Terms();
    });
    connect(m_ui->m_msg_str, &QPlainTextEdit::textChanged, this, &Update_Sel_Num_SMS::textDidChange);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Update_Sel_Num_SMS::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Update_Sel_Num_SMS::CancelPressed);
}

Update_Sel_Num_SMS::~Update_Sel_Num_SMS()
{
    m_work.Await();
    if (Up_Sel_Num_SMS == this)
        Up_Sel_Num_SMS = nullptr;
}

Update_Sel_Num_SMS* Update_Sel_Num_SMS::defaultInstance()
{
    Up_Sel_Num_SMS = Shared_Instance<Update_Sel_Num_SMS>::Get();
    return Up_Sel_Num_SMS;
}

int Update_Sel_Num_SMS::Open_Dialog(Main_Window& window)
{
    m_window = &window;
    const auto selected_rows = window.Selected_Recipient_Rows();
    m_first_row = selected_rows.empty() ? 0 : selected_rows.front();
    m_message->Clear();
    m_is_left = false;
    m_is_loading = true;
    m_work.Hold_Input();
    m_work.Start("load selected", [this] { Load_Thread(); });
    Wait_Seconds(Wait_Before_Opening_Seconds);
    m_ui->m_msg_str->setFocus();
    const int code = Run_Dialog_Over(*this, window.Window());
    m_work.Await();
    return code;
}

// -------------------------------------------------------------------------------------------------------- the load

void Update_Sel_Num_SMS::Load_Thread()
{
    // However the load ends, the dialog continues.
    const std::unique_ptr<Update_Sel_Num_SMS, void (*)(Update_Sel_Num_SMS*)> ended_load(
        this, [](Update_Sel_Num_SMS* dialog) { Run_On_Interface_Thread([=] { dialog->End_Load(); }); });
    LoadItems();
}

void Update_Sel_Num_SMS::LoadItems()
{
    Recipient_List recipients;
    std::vector<int> selected_rows;
    std::deque<QString> rows_before; // released here, since there may be a million of them
    Run_On_Interface_Thread([&] {
        rows_before.swap(List_data_Object);
        Update_num_Count();
        m_rows->Reload();
        recipients = m_window->Recipients();
        selected_rows = m_window->Selected_Recipient_Rows();
    });
    m_loaded.clear();
    m_loaded_in_all = 0;
    for (const int row : Fill_Rules::Rows_To_Fill(recipients, Fill_Rules::Choice::Selected, selected_rows)) {
        if (Program_Is_Exiting())
            return;
        Create_Number_List(recipients.At(row).Number);
    }
    Publish_Loaded();
}

void Update_Sel_Num_SMS::Create_Number_List(const QString& number)
{
    const QString trimmed_number = Trim_Str(number);
    if (trimmed_number.isEmpty())
        return;
    m_loaded.push_back(trimmed_number);
    ++m_loaded_in_all;
    if (m_loaded_in_all == Redisplay_Count || m_loaded.size() == Largest_Batch)
        Publish_Loaded();
}

void Update_Sel_Num_SMS::Publish_Loaded()
{
    if (m_loaded.empty())
        return;
    Run_On_Interface_Thread([this] {
        for (QString& number : m_loaded)
            List_data_Object.push_back(std::move(number));
        Update_num_Count();
    });
    m_loaded.clear();
}

void Update_Sel_Num_SMS::Update_num_Count()
{
    m_ui->m_st_num_cnt->setText(Texts::Fill::Selected_Numbers + QString::number(List_data_Object.size()));
    if (List_data_Object.size() == Redisplay_Count)
        m_rows->Reload();
}

void Update_Sel_Num_SMS::End_Load()
{
    m_rows->Reload();
    m_work.Release_Input();
    m_is_loading = false;
    if (m_is_left)
        CancelPressed();
}

QString Update_Sel_Num_SMS::tableView(const QString& objectValueForTableColumn, int row) const
{
    const bool has_value = objectValueForTableColumn == u"Number" && row >= 0 && row < numberOfRowsInTableView();
    return has_value ? List_data_Object[static_cast<std::size_t>(row)] : QString();
}

// --------------------------------------------------------------------------------------------------------- the user

void Update_Sel_Num_SMS::OKPressed()
{
    const QString message = m_message->Text();
    if (message.isEmpty()) {
        Show_MessageBox(Texts::Message_Missing);
        m_ui->m_msg_str->setFocus();
        return;
    }
    if (!Show_YES_NO_MessageBox(Texts::Fill::Typed_Message))
        return;
    auto sheet = m_work.Sheet();
    const auto selected_rows = m_window->Selected_Recipient_Rows();
    Change_Recipients(*m_window, [&](Recipient_List& recipients) {
        recipients.Set_Messages(Fill_Rules::Rows_To_Fill(recipients, Fill_Rules::Choice::Selected, selected_rows),
                                message);
    });
    sheet.reset();
    End_With(1);
}

void Update_Sel_Num_SMS::reject()
{
    if (m_is_loading)
        m_is_left = true;
    else
        CancelPressed();
}

void Update_Sel_Num_SMS::End_With(int code)
{
    m_message->Clear();
    done(code);
}
