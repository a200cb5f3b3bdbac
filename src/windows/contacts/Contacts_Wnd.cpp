#include "windows/contacts/Contacts_Wnd.h"

#include "list/Card_Numbers.h"
#include "list/Contact_List_File.h"
#include "plan/Chosen_Manner.h"
#include "plan/Job_Plan.h"
#include "plan/Job_Sums.h"
#include "plan/Plan_Pace.h"
#include "platform/Interface_Thread.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Main_Window.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Window_Look.h"
#include "ui_Contacts_Wnd.h"
#include "windows/contacts/Plan_Page.h"
#include "windows/contacts/Table_Page.h"

#include <new>
#include <utility>

namespace {

// Its text can still be mended in the list; its number is needed there.
bool May_Join(Row_Verdict verdict)
{
    return verdict == Row_Verdict::Send || verdict == Row_Verdict::Empty_Field ||
           verdict == Row_Verdict::Unknown_Field || verdict == Row_Verdict::Too_Long;
}

// The rows of a saved list. Those that somebody has spoilt since are at its end: with what stands in place of a number,
// so that they are seen and can be put right, but do not join a list as they are.
Recipient_List Saved_Rows(const Contact_Table& table)
{
    Contact_List_File::Read_List read = Contact_List_File::List_In(table);
    for (const int row : read.left_out) {
        const QString written = Shown_In_Place_Of_A_Number(table.Field(row, 0));
        const QString trouble = table.Words_For_Trouble(row);
        read.recipients.Append(trouble.isEmpty() ? written : QStringLiteral("%1 (%2)").arg(written, trouble),
                               table.Field(row, 1));
    }
    return std::move(read.recipients);
}

// Appends the rows of a saved list, each with its own message and fields. Returns how many.
int Append_Saved(const Recipient_List& saved, const Job_Plan& plan, Recipient_List& list)
{
    int added = 0;
    for (int row = 0; row < plan.Count(); ++row) {
        if (!May_Join(plan.Verdict_Of(row)))
            continue;
        const QString number = plan.Number_Of(row);
        if (const auto table = saved.Table_At(row))
            list.Append_From_Table(number, saved.Message_At(row), table, saved.Table_Row_At(row));
        else
            list.Append(number, saved.Message_At(row));
        ++added;
    }
    return added;
}

// As the promise beside Send says it.
double Seconds_As_Promised(const Plan_Sums& sums, const Plan_Manner& manner, const Plan_Pace* measured)
{
    static const Plan_Pace of_experience;
    const Plan_Pace& pace = measured ? *measured : of_experience;
    return Seconds_For(Job_Sums{sums.send, static_cast<int>(sums.parts), sums.recipients - sums.send}, manner,
                       pace.Seconds_For_A_Part(manner.fixed_waits));
}

} // namespace

Contacts_Wnd::Contacts_Wnd(Main_Window& window, const Plan_Pace* pace)
    : QDialog(window.Window()), m_window(window), m_ui(std::make_unique<Ui::Contacts_Wnd>()),
      plz_wait_Window(std::make_unique<PleaseWait_Modeless>()), m_work(*this, *plz_wait_Window),
      m_table_page(new Table_Page), m_plan_page(new Plan_Page(m_work))
{
    m_ui->setupUi(this);
    m_ui->_Pages->addWidget(m_table_page);
    m_ui->_Pages->addWidget(m_plan_page);
    Apply_Window_Look(*this, Letters{.columns = 150, .lines = 36});
    m_plan_page->Estimate_By([this, pace](const Plan_Sums& sums) {
        return Seconds_As_Promised(sums, Manner_Of(m_window.Read_Send_Choices()), pace);
    });
    connect(m_table_page, &Table_Page::Read_Otherwise, this,
            [this](const Table_Choices& choices) { Read(choices, false); });
    connect(m_table_page, &Table_Page::Choice_Changed, this, &Contacts_Wnd::Show_Buttons);
    connect(m_plan_page, &Plan_Page::Changed, this, &Contacts_Wnd::Show_Buttons);
    connect(m_plan_page, &Plan_Page::Put_Right, this, &Contacts_Wnd::Put_Right);
    connect(m_ui->Other_File_Btn, &QPushButton::clicked, this, &Contacts_Wnd::Other_File_Btn);
    connect(m_ui->Back_Btn, &QPushButton::clicked, this, &Contacts_Wnd::Back_Btn);
    connect(m_ui->Continue_Btn, &QPushButton::clicked, this, &Contacts_Wnd::Continue_Btn);
    connect(m_ui->Add_To_List, &QPushButton::clicked, this, &Contacts_Wnd::Add_To_List);
    connect(m_ui->Close_Btn, &QPushButton::clicked, this, &Contacts_Wnd::reject);
    Show_Buttons();
}

Contacts_Wnd::~Contacts_Wnd()
{
    m_plan_page->Clear(); // which stops what is being made
    m_work.End();
}

void Contacts_Wnd::Import(const Contact_Source& source)
{
    m_is_import = true;
    m_is_added = false;
    m_source = source;
    setWindowTitle(tr("Import contacts"));
    m_plan_page->Clear();
    Show_Page(*m_table_page);
    open();
    Read({}, true);
}

void Contacts_Wnd::Check_List(bool left_out_alone)
{
    m_is_import = false;
    setWindowTitle(tr("Check before sending"));
    Show_Page(*m_plan_page);
    open();
    m_plan_page->Show_Plan([list = m_window.Recipients(), terms = Terms()](const Plan_Watch& watch) {
        return Job_Plan::Of_List(list, terms, watch);
    });
    if (left_out_alone)
        m_plan_page->Show_Left_Out();
}

void Contacts_Wnd::Show_Not_Used()
{
    m_is_import = true;
    m_is_added = true;
    setWindowTitle(tr("Import contacts"));
    Show_Page(*m_plan_page);
    open();
    m_plan_page->Show_Again(m_last_added);
    m_plan_page->Show_Left_Out();
}

void Contacts_Wnd::reject()
{
    if (m_work.Is_Sheet_Shown())
        return;
    ++m_turn;
    m_plan_page->Clear();
    QDialog::reject();
}

// ------------------------------------------------------------------------------------------------- the first page

void Contacts_Wnd::Read(const Table_Choices& choices, bool is_new)
{
    const int turn = ++m_turn;
    m_table_page->Show_Reading(m_source.Name(), is_new);
    m_work.Start("contacts", [this, turn, choices, source = m_source] {
        Contact_Reading reading;
        try {
            reading = Read_Contacts(source, choices);
        } catch (const std::bad_alloc&) {
            reading.trouble = tr("there is not enough memory for it");
        }
        Post_To_Interface_Thread(this, [this, turn, reading = std::move(reading)] {
            if (turn == m_turn)
                m_table_page->Show_Contacts(m_source.Name(), reading);
        });
    });
}

void Contacts_Wnd::Other_File_Btn()
{
    if (const auto path = Ask_For_File_To_Open(this))
        Import({*path});
}

void Contacts_Wnd::Back_Btn()
{
    m_plan_page->Clear();
    Show_Page(*m_table_page);
}

void Contacts_Wnd::Continue_Btn()
{
    m_message = m_window.Read_Send_Choices().composer_text;
    m_saved.reset();
    const auto table = m_table_page->Table();
    if (Contact_List_File::Is_One(*table) && m_table_page->Number_Column() == 0)
        Plan_Saved_List();
    else
        Plan_Table();
    Show_Page(*m_plan_page);
}

void Contacts_Wnd::Plan_Table()
{
    m_plan_page->Show_Plan([table = m_table_page->Table(), column = m_table_page->Number_Column(),
                            each = m_table_page->Wants_Each_Number(), message = m_message,
                            terms = Terms()](const Plan_Watch& watch) {
        return Job_Plan::Of_Table(each ? std::make_shared<const Contact_Table>(One_Row_For_Each_Number(*table)) : table,
                                  column, message, terms, watch);
    });
}

// A list that was saved with its fields: its numbers and messages are as they stand there.
void Contacts_Wnd::Plan_Saved_List()
{
    m_saved = std::make_shared<Recipient_List>();
    Plan_Terms terms = Terms();
    terms.judges_numbers = true;
    terms.country = nullptr;
    m_plan_page->Show_Plan([table = m_table_page->Table(), saved = m_saved, terms](const Plan_Watch& watch) {
        *saved = Saved_Rows(*table);
        return Job_Plan::Of_List(*saved, terms, watch);
    });
}

Plan_Terms Contacts_Wnd::Terms() const
{
    const Send_Choices choices = m_window.Read_Send_Choices();
    Plan_Terms terms;
    terms.manner = Manner_Of(choices);
    terms.skip_duplicates = choices.skip_duplicates;
    if (choices.exclusion)
        terms.excluded = m_window.Exclusions();
    if (m_is_import) {
        terms.country = m_table_page->Chosen_Country();
        terms.present = m_window.Recipients().Numbers();
    }
    return terms;
}

// ------------------------------------------------------------------------------------------------- the second page

void Contacts_Wnd::Add_To_List()
{
    const auto plan = m_plan_page->Plan();
    if (!plan || !m_is_import)
        return;
    Recipient_List list = m_window.Recipients();
    const int recipients = m_plan_page->Sums().recipients;
    int added = m_plan_page->Sums().send;
    {
        const auto sheet = m_work.Sheet();
        Run_On_Worker(
            [&] {
                if (m_saved)
                    added = Append_Saved(*m_saved, *plan, list);
                else
                    plan->Add_To(list, m_message);
            },
            User_Input::Served);
    }
    m_window.Replace_Recipients(std::move(list));
    if (m_window.Previous_Composer_Message().isEmpty() && added > 0)
        m_window.Set_Previous_Composer_Message(m_message);
    m_is_added = true;
    m_last_added = m_plan_page->Shown();
    m_plan_page->Clear();
    accept();
    Q_EMIT Added(added, recipients - added);
}

// Where the list itself is looked at, it gets the numbers that can be used.
void Contacts_Wnd::Put_Right(const std::vector<int>& rows)
{
    const auto plan = m_plan_page->Plan();
    if (m_is_import || !plan)
        return;
    for (const int row : rows) {
        const Recipient_List& list = m_window.Recipients();
        const QString number = plan->Number_Of(row);
        if (!number.isEmpty() && row < list.Count() && number != list.Numbers().At(row))
            m_window.Replace_Recipient(row, number, list.Message_At(row));
    }
}

void Contacts_Wnd::Show_Page(QWidget& page)
{
    m_plan_page->Let_Edit(!m_is_import || !m_is_added);
    m_ui->_Pages->setCurrentWidget(&page);
    Show_Buttons();
    QPushButton* first = m_is_import && &page == m_table_page ? m_ui->Continue_Btn
                         : m_is_import                        ? m_ui->Add_To_List
                                                              : m_ui->Close_Btn;
    first->setDefault(true);
}

void Contacts_Wnd::Show_Buttons()
{
    const bool is_first = m_ui->_Pages->currentWidget() == m_table_page;
    m_ui->Other_File_Btn->setVisible(is_first);
    m_ui->Continue_Btn->setVisible(is_first);
    m_ui->Continue_Btn->setEnabled(m_table_page->Is_Ready());
    m_ui->Back_Btn->setVisible(!is_first && m_is_import && !m_is_added);
    m_ui->Add_To_List->setVisible(!is_first && m_is_import && !m_is_added);
    m_ui->Add_To_List->setEnabled(m_plan_page->Plan() && (m_saved || m_plan_page->Sums().send > 0));
    m_ui->Close_Btn->setText(m_is_import && !m_is_added ? tr("Cancel") : tr("Close"));
}
