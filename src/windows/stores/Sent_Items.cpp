#include "windows/stores/Sent_Items.h"

#include "records/Export_Format.h"
#include "records/Sent_Item_Format.h"
#include "texts/Texts.h"
#include "toolkit/Column_Widths.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Row_Finder.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Table_Menu.h"
#include "toolkit/Window_Look.h"
#include "ui_Sent_Items.h"
#include "windows/stores/Store_Globals.h"

#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>
#include <utility>

namespace {

// As much of a value as can be laid out at once. A message never exceeds 1600 characters, but the file may hold
// anything.
constexpr int Longest_Shown = 10'000;

QString As_Far_As_Shown(const QString& value)
{
    if (value.size() <= Longest_Shown)
        return value;
    return value.left(Longest_Shown) + QChar(0x2026) + u'\n' +
           Sent_Items::tr("[ The first %1 of %2 characters ]").arg(Longest_Shown).arg(value.size());
}

constexpr int Date_Column = 2;

// So that a later date is a greater text. One that is none stays as it is.
QString Year_First(const QString& date)
{
    return date.size() == 10 ? date.mid(6) + date.mid(3, 2) + date.left(2) : date;
}

// A record is built from its line for each row, and not for each of its cells.
class Item_Cells
{
public:
    Item_Cells(Sent_Item_List list, QStringList columns) : m_list(std::move(list)), m_columns(std::move(columns)) {}

    QString operator()(int column, int row)
    {
        if (std::exchange(m_row, row) != row)
            m_item = m_list.at(row);
        return m_item.Value(m_columns.at(column));
    }

private:
    Sent_Item_List m_list;
    QStringList m_columns;
    Sent_Item m_item;
    int m_row = -1;
};

} // namespace

Sent_Items::Sent_Items(QWidget* parent)
    : Store_Window(parent,
                   {Texts::Stores::Sent_Items_Empty, Texts::Stores::Sent_Items_Empty, Texts::Stores::Sent_Items_Empty,
                    Texts::Stores::No_Sent_Item_Selected},
                   nsSendListData),
      m_ui(std::make_unique<Ui::Sent_Items>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this, Letters{.columns = 120, .lines = 38});
    Set_Up_Table();
    Make_Finder();
    Set_Up_Detail(*m_ui->_Mess_det_edit);
    m_ui->_Mess_det_edit->setTabStopDistance(m_ui->_Mess_det_edit->fontMetrics().averageCharWidth() * 12);
    connect(m_ui->Clear_Sel_Btn, &QPushButton::clicked, this, &Sent_Items::Clear_Sel_Btn);
    connect(m_ui->Clear_All_Btn, &QPushButton::clicked, this, &Sent_Items::Clear_All_Btn);
    connect(m_ui->Export_Btn, &QPushButton::clicked, this, &Sent_Items::Export_Btn);
    connect(m_ui->Cancel_Btn, &QPushButton::clicked, this, &Sent_Items::Cancel_Btn);
    Give_Table_Keys(*m_ui->idSendList, {nullptr, [this] { Clear_Sel_Btn(); }});
    connect(m_ui->idSendList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Sent_Items::tableViewSelectionDidChange);
    SENT_WND = this;
}

Sent_Items::~Sent_Items()
{
    Await_Load();
    if (SENT_WND == this)
        SENT_WND = nullptr;
}

Sent_Items* Sent_Items::defaultInstance()
{
    return Shared_Instance<Sent_Items>::Get();
}

void Sent_Items::Set_Up_Table()
{
    const auto* table = m_ui->idSendList;
    std::vector<Row_Table_Model::Column> columns{{QStringLiteral("Number"), tr("Number")},
                                                 {QStringLiteral("Message"), tr("Message")},
                                                 {QStringLiteral("Date"), tr("Date")},
                                                 {QStringLiteral("Status"), tr("Status")}};
    Set_Up_List(*m_ui->idSendList,
                std::make_unique<Row_Table_Model>(
                    std::move(columns), [this, table] { return numberOfRowsInTableView(table); },
                    [this, table](const QString& identifier, int row) { return tableView(table, identifier, row); }),
                *m_ui->_sent_list_count);
    const int letter = table->fontMetrics().averageCharWidth();
    auto* header = m_ui->idSendList->horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(1, QHeaderView::Stretch); // the message takes the room that is left
    m_ui->idSendList->setColumnWidth(2, letter * 14);
    m_ui->idSendList->setColumnWidth(3, letter * 14);
    new Column_Widths(*m_ui->idSendList); // the table owns it
    m_ui->idSendList->verticalScrollBar()->setObjectName(QStringLiteral("idSendListsclview"));
    connect(&Hint(), &Empty_List_Hint::Step_Wanted, this, [this] {
        Q_EMIT Saving_Wanted();
        Say_What_Is_Kept();
    });
}

// While the table is empty.
void Sent_Items::Say_What_Is_Kept()
{
    if (Main_App_wnd && Main_App_wnd->Read_Send_Choices().save_sent_items)
        Hint().Say(tr("No message is kept here yet. Those that are handed to the phone from now on will be."));
    else
        Hint().Say(tr("No message is kept here yet, and those that are sent will not be."),
                   tr("Keep messages from now on"));
}

void Sent_Items::Make_Finder()
{
    const auto take_source = [this] {
        const QStringList columns{QStringLiteral("Number"), QStringLiteral("Message"), QStringLiteral("Date"),
                                  QStringLiteral("Status")};
        Item_Cells cells(nsSendListData, columns);
        const auto key = [cells](int column, int row) mutable {
            const QString cell = cells(column, row);
            return column == Date_Column ? Year_First(cell) : cell;
        };
        return Row_Source{Count(), static_cast<int>(columns.size()), cells, key};
    };
    QTableView& table = *m_ui->idSendList;
    m_finder = std::make_unique<Row_Finder>(table, Rows(), *m_ui->_Find_Strip, take_source);
    Give_Table_Menu(table, take_source, {m_ui->Clear_Sel_Btn, m_ui->Clear_All_Btn, m_ui->Export_Btn});
    table.addActions({&m_finder->Find_Action(), m_finder->Orders().menuAction()});
}

void Sent_Items::List_Will_Load()
{
    m_finder->End(); // what was sought the last time
    Say_What_Is_Kept();
}

void Sent_Items::Open_Sent_Item_Wnd()
{
    Open_Window();
}

// ---------------------------------------------------------------------------------------------------- the list

void Sent_Items::Create_Sent_Item_List(const QString& number, const QString& Message_str, const QString& Date_str,
                                       const QString& Status_str)
{
    Add(Sent_Item_Format::Record(number, Message_str, Date_str, Status_str));
}

void Sent_Items::Update_Send_List_Count()
{
    Update_Count();
}

QString Sent_Items::tableView(const QTableView* table, const QString& objectValueForTableColumn, int pRowIndex) const
{
    return Value_In(table, objectValueForTableColumn, pRowIndex,
                    "pRowIndex >= 0 && pRowIndex < [nsSendListData count]");
}

// ------------------------------------------------------------------------------------------- the selected record

void Sent_Items::tableViewSelectionDidChange()
{
    const int row = First_Selected_Row();
    if (row < 0 || row >= Count() || static_cast<unsigned>(row) == Prev_Index)
        return;
    Prev_Index = static_cast<unsigned>(row);
    const Sent_Item item = nsSendListData.at(row);
    m_ui->_Mess_det_edit->setPlainText(
        QString(Texts::Stores::Sent_Item)
            .arg(As_Far_As_Shown(item.Number), As_Far_As_Shown(item.Message), As_Far_As_Shown(item.Date)));
}

void Sent_Items::List_Became_Empty()
{
    m_ui->_Mess_det_edit->clear();
}

// -------------------------------------------------------------------------------------------------- the export

Export_Content Sent_Items::Content_To_Export(int mode) const
{
    return Content(mode, Export_Format::Sent_Items_Header(mode), Export_Format::Sent_Item_Piece);
}
