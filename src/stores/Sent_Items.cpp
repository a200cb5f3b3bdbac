#include "stores/Sent_Items.h"

#include "app/shared/List_Tables.h"
#include "app/shared/Shared_Instance.h"
#include "app/shared/Window_Look.h"
#include "platform/Interface_Thread.h"
#include "platform/Row_Table_Model.h"
#include "stores/Export_Format.h"
#include "stores/Sent_Item_Format.h"
#include "stores/Shared_Rows.h"
#include "stores/Store_Globals.h"
#include "ui_Sent_Items.h"

#include <QHeaderView>
#include <QScrollBar>

namespace {

// As much of a value as can be laid out at once. A message is never longer than 1600 characters, but the file may hold
// anything.
constexpr int Longest_Shown = 10'000;

} // namespace

Sent_Items::Sent_Items(QWidget* parent)
    : List_Window(parent, {"Sent items list is empty.", "Sent items list is empty.", "Sent items list is empty.",
                           "Please select at least one record from the sent items list to continue."}),
      m_ui(std::make_unique<Ui::Sent_Items>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this);
    Set_Up_Table();
    QPalette palette = m_ui->_Mess_det_edit->palette();
    palette.setColor(QPalette::Base, Window_Background());
    m_ui->_Mess_det_edit->setPalette(palette);
    m_ui->_Mess_det_edit->setTabStopDistance(m_ui->_Mess_det_edit->fontMetrics().averageCharWidth() * 12);
    connect(m_ui->Clear_Sel_Btn, &QPushButton::clicked, this, &Sent_Items::Clear_Sel_Btn);
    connect(m_ui->Clear_All_Btn, &QPushButton::clicked, this, &Sent_Items::Clear_All_Btn);
    connect(m_ui->Export_Btn, &QPushButton::clicked, this, &Sent_Items::Export_Btn);
    connect(m_ui->Cancel_Btn, &QPushButton::clicked, this, &Sent_Items::Cancel_Btn);
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
                    [this, table](const QString& identifier, int row) { return tableView(table, identifier, row); }));
    const int letter = table->fontMetrics().averageCharWidth();
    auto* header = m_ui->idSendList->horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(1, QHeaderView::Stretch); // the message takes what room there is
    m_ui->idSendList->setColumnWidth(2, letter * 14);
    m_ui->idSendList->setColumnWidth(3, letter * 14);
    m_ui->idSendList->verticalScrollBar()->setObjectName(QStringLiteral("idSendListsclview"));
}

void Sent_Items::Open_Sent_Item_Wnd()
{
    Open_Window();
}

// ---------------------------------------------------------------------------------------------------- the list

void Sent_Items::LoadItems()
{
    Run_On_Interface_Thread([this] { Begin_Anew(); });
    QList<Sent_Item> loaded;
    m_store.Load([&](Sent_Item item) {
        loaded.append(std::move(item));
        if (loaded.size() == Early_Reload_Count) // a long load shows its first rows early
            Run_On_Interface_Thread([&] { Publish(loaded); });
    });
    Run_On_Interface_Thread([&] {
        Publish(loaded);
        m_ui->idSendList->scrollToTop();
    });
}

void Sent_Items::Begin_Anew()
{
    Prev_Index = No_Index;
    Remove_All_Rows();
    ListreloadData();
    m_ui->_Mess_det_edit->clear();
}

void Sent_Items::Publish(const QList<Sent_Item>& loaded)
{
    Put_In_Place(nsSendListData, loaded);
    Update_Send_List_Count();
}

void Sent_Items::Create_Sent_Item_List(const QString& number, const QString& Message_str, const QString& Date_str,
                                       const QString& Status_str)
{
    auto record = Sent_Item_Format::Record(number, Message_str, Date_str, Status_str);
    if (!record)
        return;
    nsSendListData.append(std::move(*record));
    Update_Send_List_Count();
}

void Sent_Items::Update_Send_List_Count()
{
    m_ui->_sent_list_count->setText(QStringLiteral("Total Items : ") + QString::number(Count()));
    if (Count() == Early_Reload_Count)
        ListreloadData();
}

int Sent_Items::Count() const
{
    return static_cast<int>(nsSendListData.size());
}

void Sent_Items::Remove_Rows(const std::vector<int>& rows)
{
    QList<Sent_Item> left;
    Run_On_Worker([&, all = nsSendListData] { left = Rows_Without(all, rows); }, User_Input::Served);
    Put_In_Place(nsSendListData, std::move(left));
}

void Sent_Items::Remove_All_Rows()
{
    Put_In_Place(nsSendListData, {});
}

QString Sent_Items::tableView(const QTableView* table, const QString& objectValueForTableColumn, int pRowIndex) const
{
    if (pRowIndex < 0 || pRowIndex >= Count())
        throw Invalid_Parameter("pRowIndex >= 0 && pRowIndex < [nsSendListData count]");
    return table == m_ui->idSendList ? nsSendListData.at(pRowIndex).Value(objectValueForTableColumn) : QString();
}

// ------------------------------------------------------------------------------------------- the selected record

void Sent_Items::tableViewSelectionDidChange()
{
    const int row = First_Selected_Row();
    if (row < 0 || row >= Count() || static_cast<unsigned>(row) == Prev_Index)
        return;
    Prev_Index = static_cast<unsigned>(row);
    const Sent_Item& item = nsSendListData.at(row);
    m_ui->_Mess_det_edit->setPlainText(QStringLiteral("Number\t: ") + item.Number.left(Longest_Shown) +
                                       QStringLiteral("\r\n\r\nMessage\t: ") + item.Message.left(Longest_Shown) +
                                       QStringLiteral("\r\n\r\nDate:\t ") + item.Date.left(Longest_Shown));
}

void Sent_Items::List_Became_Empty()
{
    m_ui->_Mess_det_edit->clear();
}

// ---------------------------------------------------------------------------------------- the file and the export

std::function<void()> Sent_Items::Rewriting()
{
    return [this, items = nsSendListData] { m_store.Rewrite(items); };
}

void Sent_Items::Clear_File()
{
    m_store.Clear();
}

void Sent_Items::Forget_File()
{
    m_store.Forget();
}

Export_Content Sent_Items::Content_To_Export(int mode) const
{
    return {Export_Format::Sent_Items_Header(mode), nsSendListData.size(),
            [mode, items = nsSendListData](qsizetype index) {
                return Export_Format::Sent_Item_Piece(mode, items.at(index));
            }};
}
