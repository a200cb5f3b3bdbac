#include "windows/jobs/Unknown_Rows_Sheet.h"

#include "platform/Interface_Thread.h"
#include "records/Job_Journal.h"
#include "texts/Receipt_Texts.h"
#include "toolkit/Column_Widths.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/List_Tables.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Window_Look.h"
#include "ui_Unknown_Rows_Sheet.h"

#include <QHeaderView>
#include <algorithm>
#include <numeric>
#include <utility>

namespace {

const QString Decided_By = QStringLiteral("user");

QString Words_Of(const std::optional<Job_Decision>& choice)
{
    if (!choice)
        return Unknown_Rows_Sheet::tr("Leave as it is");
    return *choice == Job_Decision::Send_Again ? Unknown_Rows_Sheet::tr("Send again")
                                               : Unknown_Rows_Sheet::tr("Count as sent");
}

} // namespace

Unknown_Rows_Sheet::Unknown_Rows_Sheet(QString journal_path, std::shared_ptr<const Job_Receipt> receipt,
                                       QWidget* parent)
    : QDialog(parent), m_journal_path(std::move(journal_path)), m_receipt(std::move(receipt)),
      m_rows(m_receipt->Rows_Of(Receipt_Kind::May_Have_Been_Sent)), m_choices(m_rows.size()),
      m_ui(std::make_unique<Ui::Unknown_Rows_Sheet>()), plz_wait_Window(std::make_unique<PleaseWait_Modeless>()),
      m_work(*this, *plz_wait_Window)
{
    m_ui->setupUi(this);
    m_ui->_Trouble->hide();
    Apply_Window_Look(*this, Letters{.columns = 160, .lines = 30});
    Set_Up_Table();
    Connect_Buttons();
    Say_Choices();
}

Unknown_Rows_Sheet::~Unknown_Rows_Sheet()
{
    m_work.End();
}

void Unknown_Rows_Sheet::Set_Up_Table()
{
    QTableView& table = *m_ui->_Rows;
    m_table_model = std::make_unique<Row_Table_Model>(
        std::vector<Row_Table_Model::Column>{{QStringLiteral("Number"), Texts::Receipts::Number},
                                             {QStringLiteral("Message"), Texts::Receipts::Message},
                                             {QStringLiteral("Reason"), Texts::Receipts::Reason},
                                             {QStringLiteral("Time"), Texts::Receipts::Time},
                                             {QStringLiteral("Choice"), tr("What to do")}},
        [this] { return static_cast<int>(m_rows.size()); },
        [this](const QString& identifier, int index) { return Cell(identifier, index); });
    Prepare_List_Table(table, *m_table_model);
    const int letter = table.fontMetrics().averageCharWidth();
    table.horizontalHeader()->setStretchLastSection(false);
    for (const int column : {1, 2})
        table.horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    table.setColumnWidth(3, letter * 23);
    table.setColumnWidth(4, letter * 19);
    new Column_Widths(table); // the table owns it
    Give_Table_Keys(table, {});
    m_table_model->Reload();
    if (!m_rows.empty())
        Select_Alone(table, 0);
}

void Unknown_Rows_Sheet::Connect_Buttons()
{
    using Decide = void (Unknown_Rows_Sheet::*)(Choice);
    const auto connect_to = [this](QPushButton* button, Decide decide, Choice choice) {
        connect(button, &QPushButton::clicked, this, [this, decide, choice] { (this->*decide)(choice); });
    };
    connect_to(m_ui->Leave_Btn, &Unknown_Rows_Sheet::Choose_Selected, std::nullopt);
    connect_to(m_ui->Send_Again_Btn, &Unknown_Rows_Sheet::Choose_Selected, Job_Decision::Send_Again);
    connect_to(m_ui->Count_As_Sent_Btn, &Unknown_Rows_Sheet::Choose_Selected, Job_Decision::Count_As_Sent);
    connect_to(m_ui->Leave_All_Btn, &Unknown_Rows_Sheet::Choose_For_All, std::nullopt);
    connect_to(m_ui->Send_All_Again_Btn, &Unknown_Rows_Sheet::Choose_For_All, Job_Decision::Send_Again);
    connect_to(m_ui->Count_All_As_Sent_Btn, &Unknown_Rows_Sheet::Choose_For_All, Job_Decision::Count_As_Sent);
    connect(m_ui->OKPressed, &QPushButton::clicked, this, &Unknown_Rows_Sheet::OKPressed);
    connect(m_ui->CancelPressed, &QPushButton::clicked, this, &Unknown_Rows_Sheet::CancelPressed);
}

QString Unknown_Rows_Sheet::Cell(const QString& identifier, int index) const
{
    const auto place = static_cast<std::size_t>(index);
    if (identifier == u"Choice")
        return Words_Of(m_choices[place]);
    const Receipt_Row row = m_receipt->Row(m_rows[place]);
    if (identifier == u"Number")
        return row.number;
    if (identifier == u"Message")
        return row.message;
    return identifier == u"Reason" ? row.reason : row.time;
}

// ------------------------------------------------------------------------------------------------- the choices

void Unknown_Rows_Sheet::Choose_Selected(Choice choice)
{
    Choose(Rows_Selected_In(*m_ui->_Rows), choice);
}

void Unknown_Rows_Sheet::Choose_For_All(Choice choice)
{
    std::vector<int> all(m_rows.size());
    std::iota(all.begin(), all.end(), 0);
    Choose(all, choice);
}

void Unknown_Rows_Sheet::Choose(const std::vector<int>& indexes, Choice choice)
{
    for (const int index : indexes)
        m_choices[static_cast<std::size_t>(index)] = choice;
    m_table_model->Reload();
    Say_Choices();
}

void Unknown_Rows_Sheet::Say_Choices()
{
    QStringList sums;
    for (const Choice& choice : {Choice(), Choice(Job_Decision::Send_Again), Choice(Job_Decision::Count_As_Sent)}) {
        const auto count = std::count(m_choices.begin(), m_choices.end(), choice);
        sums.append(QString(Texts::Receipts::Sum).arg(Words_Of(choice), QString::number(count)));
    }
    m_ui->_Choices->setText(sums.join(u' '));
}

// --------------------------------------------------------------------------------------------------- the journal

void Unknown_Rows_Sheet::OKPressed()
{
    const bool decides = std::any_of(m_choices.begin(), m_choices.end(), [](const Choice& choice) { return choice; });
    auto trouble = Job_Trouble::None;
    if (decides) {
        const auto sheet = m_work.Sheet();
        Run_On_Worker([&] { trouble = Write_Decisions(); }, User_Input::Served);
    }
    if (trouble == Job_Trouble::None) {
        accept();
        return;
    }
    m_ui->_Trouble->setText(tr("The decisions could not be kept: %1.").arg(Job_Trouble_Sentence(trouble)));
    m_ui->_Trouble->show();
}

// Rows that have been decided about elsewhere meanwhile stay as they are.
Job_Trouble Unknown_Rows_Sheet::Write_Decisions() const
{
    const Job_Journal::Opened opened = Job_Journal::Open_To_Go_On(m_journal_path);
    if (!opened.journal)
        return opened.trouble;
    for (std::size_t place = 0; place < m_rows.size(); ++place) {
        const int row = m_rows[place];
        if (m_choices[place] && May_Have_Been_Sent(opened.record->State_Of(row).state) &&
            !opened.journal->Decide(row, *m_choices[place], Decided_By))
            return opened.journal->Trouble();
    }
    return opened.journal->Sync() ? Job_Trouble::None : opened.journal->Trouble();
}

void Unknown_Rows_Sheet::reject()
{
    if (!m_work.Is_Sheet_Shown())
        QDialog::reject();
}
