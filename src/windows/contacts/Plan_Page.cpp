#include "windows/contacts/Plan_Page.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Column_Widths.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Table_Menu.h"
#include "toolkit/Window_Work.h"
#include "ui_Plan_Page.h"
#include "windows/contacts/Plan_Words.h"

#include <QHeaderView>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

namespace {

// In place of a verdict.
constexpr int All_Rows = -1;
constexpr int Left_Out = -2;
constexpr int As_Unicode = -3;

constexpr int Whole = 100;

bool Is_Of(const Job_Plan& plan, int row, int filter)
{
    const Row_Verdict verdict = plan.Verdict_Of(row);
    if (filter == Left_Out)
        return verdict != Row_Verdict::Send;
    if (filter == As_Unicode)
        return verdict == Row_Verdict::Send && plan.Is_Unicode(row);
    return static_cast<int>(verdict) == filter;
}

std::shared_ptr<const Plan_View> View_Of(std::shared_ptr<const Job_Plan> plan, Plan_Sums sums, int filter,
                                         const QString& refused = {})
{
    auto view = std::make_shared<Plan_View>();
    view->refused = refused;
    view->plan = std::move(plan);
    view->sums = std::move(sums);
    view->is_filtered = filter != All_Rows;
    for (int row = 0; view->is_filtered && row < view->plan->Count(); ++row) {
        if (Is_Of(*view->plan, row, filter))
            view->rows.push_back(row);
    }
    return view;
}

// How wide the widest of them is in the language that is read, with what is around it.
int Letters_Of_A_Verdict(const QFontMetrics& letters)
{
    constexpr int around = 3;
    int widest = 0;
    for (const QString& verdict : Plan_Words::Signed_Verdicts())
        widest = std::max(widest, letters.horizontalAdvance(verdict));
    return widest / letters.averageCharWidth() + around;
}

} // namespace

Plan_Page::Plan_Page(Window_Work& work, QWidget* parent)
    : QWidget(parent), m_ui(std::make_unique<Ui::Plan_Page>()), m_work(work), m_rows(new Plan_Rows(this))
{
    m_ui->setupUi(this);
    Set_Up_Table();
    connect(m_ui->_Filter, &QComboBox::activated, this, [this] {
        m_next_filter = Filter();
        Work_On();
    });
    connect(m_ui->Longest_Btn, &QPushButton::clicked, this, &Plan_Page::Go_To_Longest);
    connect(m_rows, &Plan_Rows::Number_Written, this, [this](int row, const QString& number) {
        m_edits.push_back({row, number});
        Work_On();
    });
    m_more_rows.setSingleShot(true);
    connect(&m_more_rows, &QTimer::timeout, this, &Plan_Page::Show_More_Rows);
    Clear();
}

Plan_Page::~Plan_Page()
{
    if (m_is_stopped)
        *m_is_stopped = true;
}

void Plan_Page::Set_Up_Table()
{
    QTableView& table = *m_ui->_Rows;
    Prepare_List_Table(table, *m_rows);
    table.verticalHeader()->hide(); // the rows have numbers of their own
    table.setEditTriggers(QAbstractItemView::DoubleClicked);
    QHeaderView& header = *table.horizontalHeader();
    header.setStretchLastSection(false);
    for (const Plan_Rows::Column column : {Plan_Rows::Text, Plan_Rows::Reason})
        header.setSectionResizeMode(column, QHeaderView::Stretch);
    const QFontMetrics letters = table.fontMetrics();
    const std::pair<Plan_Rows::Column, int> Widths[] = {{Plan_Rows::Row, 8},
                                                        {Plan_Rows::Written, 24},
                                                        {Plan_Rows::Number, 18},
                                                        {Plan_Rows::Parts, 8},
                                                        {Plan_Rows::Verdict, Letters_Of_A_Verdict(letters)}};
    for (const auto& [column, columns] : Widths)
        table.setColumnWidth(column, letters.averageCharWidth() * columns);
    new Column_Widths(table); // the table owns it
    Give_Table_Menu(table, [this] { return m_rows->Source(); }, {m_ui->Longest_Btn});
    Give_Table_Keys(table, {[&table] {
                                const QModelIndex row = table.currentIndex();
                                if (row.isValid() && table.hasFocus()) // and no editor in it has
                                    table.edit(row.siblingAtColumn(Plan_Rows::Written));
                            },
                            {}});
}

std::shared_ptr<const Job_Plan> Plan_Page::Plan() const
{
    return m_is_busy || !m_view ? nullptr : m_view->plan;
}

const Plan_Sums& Plan_Page::Sums() const
{
    static const Plan_Sums None{};
    return m_view ? m_view->sums : None;
}

void Plan_Page::Clear()
{
    if (m_is_stopped)
        *m_is_stopped = true;
    m_is_stopped.reset();
    m_is_busy = false;
    m_more_rows.stop();
    m_put_right.clear();
    m_edits.clear();
    m_next_filter.reset();
    m_goes_to_longest = false;
    Take(nullptr);
}

// ------------------------------------------------------------------------------------------------- on workers

void Plan_Page::Show_Plan(Make_Plan make)
{
    Clear();
    Start([make = std::move(make)](const Plan_Watch& watch, int) {
        auto plan = std::make_shared<const Job_Plan>(make(watch));
        Plan_Sums sums = plan->Sums();
        return View_Of(std::move(plan), std::move(sums), All_Rows);
    });
}

void Plan_Page::Show_Again(const std::shared_ptr<const Plan_View>& view)
{
    Clear();
    m_is_busy = true;
    Take(view);
    Show_More_Rows();
}

void Plan_Page::Start(std::function<View(const Plan_Watch&, int filter)> make, const std::vector<int>& put_right)
{
    m_is_busy = true;
    m_is_stopped = std::make_shared<std::atomic<bool>>(false);
    Show_Progress(0);
    Q_EMIT Changed();
    m_work.Start("plan", [this, put_right, stopped = m_is_stopped, filter = m_view ? Filter() : All_Rows,
                          make = std::move(make)] {
        Plan_Watch watch;
        watch.is_stopped = [stopped] { return stopped->load(); };
        watch.progress = [this, stopped, shown = 0](int done, int of) mutable {
            const int percent = of > 0 ? static_cast<int>(qint64{done} * Whole / of) : 0;
            if (std::exchange(shown, percent) != percent)
                Post_To_Interface_Thread(this, [this, stopped, percent] {
                    if (!*stopped)
                        Show_Progress(percent);
                });
        };
        const View view = make(watch, filter);
        Post_To_Interface_Thread(this, [this, stopped, view, put_right] {
            if (*stopped)
                return;
            Take(view);
            m_put_right = put_right;
            Show_More_Rows();
        });
    });
}

// Other events have their turn in between.
void Plan_Page::Show_More_Rows()
{
    if (!m_rows->Shows_All()) {
        m_rows->Show_More();
        m_more_rows.start(0);
        return;
    }
    m_is_busy = false;
    Q_EMIT Changed();
    if (const auto put_right = std::exchange(m_put_right, {}); !put_right.empty())
        Q_EMIT Put_Right(put_right);
    Work_On();
}

// Does what has come up while a worker was busy.
void Plan_Page::Work_On()
{
    if (m_is_busy || !m_view)
        return;
    if (!m_edits.empty()) {
        Put_Numbers_Right();
    } else if (m_next_filter) {
        m_ui->_Filter->setCurrentIndex(std::max(0, m_ui->_Filter->findData(*m_next_filter)));
        m_next_filter.reset();
        Start([view = m_view](const Plan_Watch&, int filter) { return View_Of(view->plan, view->sums, filter); });
    } else if (std::exchange(m_goes_to_longest, false)) {
        if (const int index = m_view->Index_Of(m_view->sums.longest_row); index >= 0) {
            Select_Alone(*m_ui->_Rows, index);
            m_ui->_Rows->scrollTo(m_rows->index(index, 0), QAbstractItemView::PositionAtCenter);
        }
    }
}

void Plan_Page::Put_Numbers_Right()
{
    const auto edits = std::exchange(m_edits, {});
    std::vector<int> rows;
    for (const Edit& edit : edits)
        rows.push_back(edit.row);
    Start(
        [view = m_view, edits](const Plan_Watch&, int filter) {
            auto plan = std::make_shared<Job_Plan>(*view->plan);
            QString refused;
            for (const Edit& edit : edits) {
                if (!plan->Set_Number(edit.row, edit.number))
                    refused = edit.number;
            }
            Plan_Sums sums = plan->Sums();
            return View_Of(std::move(plan), std::move(sums), filter, refused);
        },
        rows);
}

void Plan_Page::Let_Edit(bool can_edit)
{
    m_rows->Let_Edit(can_edit);
}

void Plan_Page::Show_Left_Out()
{
    m_next_filter = Left_Out;
    Work_On();
}

void Plan_Page::Go_To_Longest()
{
    if (!m_view || m_view->sums.longest_row < 0)
        return;
    m_goes_to_longest = true;
    if (m_view->Index_Of(m_view->sums.longest_row) < 0)
        m_next_filter = All_Rows;
    Work_On();
}

// ------------------------------------------------------------------------------------------------- what is shown

void Plan_Page::Take(const View& view)
{
    m_view = view;
    m_ui->_Sums->setText(view ? Plan_Words::Sums(view->sums, m_seconds_for(view->sums), Local_Time()) : QString());
    const QString causes = view ? Plan_Words::Causes(view->sums) : QString();
    m_ui->_Causes->setText(causes);
    m_ui->_Causes->setVisible(!causes.isEmpty());
    Show_Filter();
    m_rows->Take(view);
    m_ui->Longest_Btn->setEnabled(view && view->sums.send > 0);
    const bool is_refused = view && !view->refused.isEmpty();
    if (is_refused)
        m_ui->_Notice->setText(
            tr("%1 cannot be dialled: the row stays as it was.").arg(Shown_In_Place_Of_A_Number(view->refused)));
    m_ui->_Notice->setVisible(is_refused);
    Q_EMIT Changed();
}

// What there is, with its sums; the chosen one stays chosen.
void Plan_Page::Show_Filter()
{
    const QSignalBlocker muted(m_ui->_Filter);
    const int chosen = m_view && m_ui->_Filter->count() > 0 ? Filter() : All_Rows;
    m_ui->_Filter->clear();
    m_ui->_Filter->setEnabled(m_view != nullptr);
    if (!m_view)
        return;
    const Plan_Sums& sums = m_view->sums;
    const auto add = [this](const QString& name, int count, int filter) {
        m_ui->_Filter->addItem(QStringLiteral("%1 (%2)").arg(name).arg(count), filter);
    };
    add(tr("All rows"), sums.recipients, All_Rows);
    add(tr("Rows left out"), sums.recipients - sums.send, Left_Out);
    for (std::size_t verdict = 0; verdict < sums.by_verdict.size(); ++verdict) {
        const auto filter = static_cast<int>(verdict);
        if (sums.by_verdict[verdict] > 0 || filter == chosen)
            add(Plan_Words::Signed_Verdict(static_cast<Row_Verdict>(verdict)), sums.by_verdict[verdict], filter);
    }
    if (sums.unicode > 0 || chosen == As_Unicode)
        add(tr("Unicode messages"), sums.unicode, As_Unicode);
    m_ui->_Filter->setCurrentIndex(std::max(m_ui->_Filter->findData(chosen), 0));
}

void Plan_Page::Show_Progress(int percent)
{
    m_ui->_Notice->setText(percent > 0 ? tr("Looking at the rows: %1 % ...").arg(percent)
                                       : tr("Looking at the rows ..."));
    m_ui->_Notice->setVisible(true);
}

int Plan_Page::Filter() const
{
    return m_ui->_Filter->currentIndex() < 0 ? All_Rows : m_ui->_Filter->currentData().toInt();
}
