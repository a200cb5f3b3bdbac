#include "windows/jobs/Receipt_Wnd.h"

#include "engine/Outcome_Words.h"
#include "engine/Receipt_Csv.h"
#include "engine/Receipt_Html.h"
#include "engine/Receipt_Text.h"
#include "platform/Interface_Thread.h"
#include "records/Job_Reader.h"
#include "records/Job_Shelf.h"
#include "toolkit/Column_Widths.h"
#include "toolkit/File_Panels.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/List_Tables.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Table_Menu.h"
#include "toolkit/Window_Look.h"
#include "ui_Receipt_Wnd.h"
#include "windows/jobs/Kept_Receipts.h"

#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QSignalBlocker>
#include <algorithm>
#include <new>
#include <utility>

Receipt_Wnd::Receipt_Wnd(QWidget* parent)
    : QDialog(parent), m_ui(std::make_unique<Ui::Receipt_Wnd>()), m_kept(new Kept_Receipts),
      plz_wait_Window(std::make_unique<PleaseWait_Modeless>()), m_work(*this, *plz_wait_Window)
{
    m_ui->setupUi(this);
    m_ui->layout->insertWidget(0, m_kept);
    setTabOrder(m_kept, m_ui->_Filter);
    m_kept->hide();
    Apply_Window_Look(*this, Letters{.columns = 195, .lines = 40});
    Set_Up_Table();
    Set_Up_Exports();
    Show_Empty({});
    connect(m_ui->_Filter, &QComboBox::currentIndexChanged, this, [this] {
        m_ui->_Rows->clearSelection();
        Show_Rows();
        m_ui->_Rows->scrollToTop();
    });
    connect(m_ui->Close_Btn, &QPushButton::clicked, this, &Receipt_Wnd::reject);
    connect(m_kept, &Kept_Receipts::Chosen, this, &Receipt_Wnd::Read_Journal);
    connect(m_kept, &Kept_Receipts::To_Be_Removed, this, &Receipt_Wnd::Remove);
}

Receipt_Wnd::~Receipt_Wnd()
{
    m_work.End();
}

void Receipt_Wnd::Set_Up_Table()
{
    QTableView& table = *m_ui->_Rows;
    Prepare_List_Table(table, m_rows);
    table.verticalHeader()->hide(); // the rows have numbers of their own
    QHeaderView& header = *table.horizontalHeader();
    header.setStretchLastSection(false);
    for (const int column : {Receipt_Rows::Message_Column, Receipt_Rows::Reason_Column})
        header.setSectionResizeMode(column, QHeaderView::Stretch);
    const QFontMetrics letters = table.fontMetrics();
    const auto set_width = [&](int column, int columns) {
        table.setColumnWidth(column, letters.averageCharWidth() * columns);
    };
    int outcome_width = 0;
    for (const QString& outcome : Usual_Signed_Outcomes())
        outcome_width = std::max(outcome_width, letters.horizontalAdvance(outcome));
    set_width(0, 8);
    set_width(Receipt_Rows::Number_Column, 20);
    table.setColumnWidth(Receipt_Rows::Outcome_Column, outcome_width + letters.averageCharWidth() * 3);
    set_width(Receipt_Rows::Parts_Column, 13);
    set_width(Receipt_Rows::Delivery_Column, 20);
    set_width(Receipt_Rows::Time_Column, 24);
    m_widths = new Column_Widths(table); // the table owns it
    Give_Table_Menu(table, [this] { return m_rows.Source(); }, {});
    Give_Table_Keys(table, {});
}

void Receipt_Wnd::Set_Up_Exports()
{
    struct Format
    {
        const char* name;
        QString caption;
        QString extension;
        Make_Export make;
        QString remark;
    };
    const Format formats[] = {
        {"Export_Text", tr("As a &text ..."), QStringLiteral("txt"), Receipt_Text, {}},
        {"Export_Html", tr("As a web &page ..."), QStringLiteral("html"), Receipt_Html, {}},
        {"Export_Csv", tr("As a table for &spreadsheets (CSV) ..."), QStringLiteral("csv"), Receipt_Csv,
         tr("An apostrophe is in front of each number, and of whatever else a spreadsheet would take for a formula.")}};
    auto* menu = new QMenu(m_ui->Export_Btn);
    menu->setToolTipsVisible(true);
    for (const Format& format : formats) {
        auto* action = menu->addAction(format.caption);
        action->setObjectName(QLatin1String(format.name));
        action->setToolTip(format.remark);
        connect(action, &QAction::triggered, this,
                [this, format] { Export_As(format.extension, format.make, format.remark); });
    }
    m_ui->Export_Btn->setMenu(menu);
    menu->setTitle(m_ui->Export_Btn->text());
    m_ui->_Rows->addAction(menu->menuAction());
}

// ------------------------------------------------------------------------------------------------- what is shown

void Receipt_Wnd::Show_Record(const Job_Record& record)
{
    ++m_list_turn;
    m_kept->hide();
    Bring_Up();
    Read_Record(record);
}

// A journal that was chosen is watched anyway.
void Receipt_Wnd::Take_Later(const Job_Record& record)
{
    if (m_kept->isHidden() && m_receipt && m_receipt->Id() == record.Header().id)
        Read_Record(record);
}

void Receipt_Wnd::Read_Record(const Job_Record& record)
{
    Read([record] { return Reading{std::make_shared<const Job_Receipt>(record), Job_Trouble::None}; });
}

void Receipt_Wnd::Show_Kept(const QString& folder, const QString& chosen_path)
{
    m_folder = folder;
    Bring_Up();
    Load_Kept(chosen_path);
}

void Receipt_Wnd::Bring_Up()
{
    show();
    raise();
    activateWindow();
}

// What is shown stays until the other is there.
void Receipt_Wnd::Read(std::function<Reading()> read)
{
    const int turn = ++m_turn;
    if (!m_receipt)
        Say(tr("Reading ..."));
    m_work.Start("receipt", [this, turn, read = std::move(read)] {
        Reading reading;
        try {
            reading = read();
        } catch (const std::bad_alloc&) {
            reading.trouble = Job_Trouble::Unreadable;
        }
        Post_To_Interface_Thread(this, [this, turn, reading] {
            if (turn == m_turn)
                Take(reading);
        });
    });
}

void Receipt_Wnd::Read_Journal(const QString& path)
{
    if (path.isEmpty()) {
        ++m_turn;
        Show_Empty(tr("No receipts are kept yet."));
        return;
    }
    Read([path] {
        Job_Reading reading = Read_Job(path);
        if (!reading.record)
            return Reading{nullptr, reading.trouble};
        return Reading{std::make_shared<const Job_Receipt>(std::move(*reading.record)), Job_Trouble::None};
    });
}

void Receipt_Wnd::Load_Kept(const QString& chosen_path)
{
    const int turn = ++m_list_turn;
    m_work.Start("kept receipts", [this, turn, folder = m_folder, chosen_path] {
        Post_To_Interface_Thread(this, [this, turn, chosen_path, jobs = Kept_Jobs(folder)] {
            if (turn == m_list_turn)
                m_kept->Offer(jobs, chosen_path);
        });
    });
}

void Receipt_Wnd::Remove(const QString& path)
{
    auto trouble = Job_Trouble::None;
    {
        const auto sheet = m_work.Sheet();
        Run_On_Worker([&] { trouble = Remove_Job(path); }, User_Input::Served);
    }
    if (trouble == Job_Trouble::None || trouble == Job_Trouble::Missing)
        Load_Kept({});
    else
        Say(tr("The job could not be removed: %1.").arg(Job_Trouble_Sentence(trouble)));
}

void Receipt_Wnd::Take(const Reading& reading)
{
    if (!reading.receipt) {
        Show_Empty(tr("There is no receipt of this job: %1.").arg(Job_Trouble_Sentence(reading.trouble)));
        return;
    }
    const bool is_another = !m_receipt || m_receipt->Id() != reading.receipt->Id();
    m_receipt = reading.receipt;
    if (is_another)
        m_ui->_Filter->setCurrentIndex(0);
    QStringList facts;
    for (const auto& [name, fact] : m_receipt->Facts())
        facts.append(name + QStringLiteral(": ") + fact + u'.');
    m_ui->_Facts->setText(facts.join(u' '));
    m_ui->_Sums->setText(Sums_In_Words(*m_receipt));
    m_ui->_Rows->setColumnHidden(Receipt_Rows::Delivery_Column, !m_receipt->Asks_For_Reports());
    m_widths->Columns_Changed();
    Let_Use(true);
    Say({});
    Show_Filter();
    Show_Rows();
    if (is_another)
        m_ui->_Rows->clearSelection();
}

void Receipt_Wnd::Show_Empty(const QString& notice)
{
    m_receipt.reset();
    m_ui->_Facts->clear();
    m_ui->_Sums->clear();
    Let_Use(false);
    {
        const QSignalBlocker muted(m_ui->_Filter);
        m_ui->_Filter->clear();
    }
    Say(notice);
    Show_Rows();
}

void Receipt_Wnd::Let_Use(bool is_there)
{
    m_ui->_Filter->setEnabled(is_there);
    m_ui->Export_Btn->setEnabled(is_there);
    m_ui->Export_Btn->menu()->menuAction()->setEnabled(is_there);
}

// The kinds with their sums; the chosen one stays chosen.
void Receipt_Wnd::Show_Filter()
{
    const QSignalBlocker muted(m_ui->_Filter);
    const int chosen = static_cast<int>(Chosen_Kind());
    m_ui->_Filter->clear();
    for (const Receipt_Kind kind : m_receipt->Kinds())
        m_ui->_Filter->addItem(QStringLiteral("%1 (%2)").arg(Name_Of(kind)).arg(m_receipt->Count_Of(kind)),
                               static_cast<int>(kind));
    m_ui->_Filter->setCurrentIndex(std::max(m_ui->_Filter->findData(chosen), 0));
}

Receipt_Kind Receipt_Wnd::Chosen_Kind() const
{
    return static_cast<Receipt_Kind>(m_ui->_Filter->currentData().toInt());
}

void Receipt_Wnd::Show_Rows()
{
    m_rows.Take(m_receipt, Chosen_Kind());
}

void Receipt_Wnd::Say(const QString& notice)
{
    m_ui->_Notice->setText(notice);
    m_ui->_Notice->setVisible(!notice.isEmpty());
}

void Receipt_Wnd::reject()
{
    if (!m_work.Is_Sheet_Shown())
        QDialog::reject();
}

// ------------------------------------------------------------------------------------------------- the exports

void Receipt_Wnd::Export_As(const QString& extension, Make_Export make, const QString& remark)
{
    if (!m_receipt)
        return;
    const Made_Receipt receipt = m_receipt;
    const auto chosen = Ask_For_File_To_Save(this, extension);
    if (!chosen)
        return;
    const QString path = With_Extension(*chosen, extension);
    bool is_written = false;
    {
        const auto sheet = m_work.Sheet();
        Run_On_Worker([&] { is_written = Write_Export(path, make(receipt)); }, User_Input::Served);
    }
    const QString shown_path = QDir::toNativeSeparators(path);
    if (!is_written)
        Say(tr("The file %1 could not be written.").arg(shown_path));
    else
        Say(tr("Written to %1.").arg(shown_path) + (remark.isEmpty() ? QString() : u' ' + remark));
}
