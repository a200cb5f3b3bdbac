#include "windows/phone/Phone_List_Wnd.h"

#include "device/Chosen_Device.h"
#include "doctor/Phone_Search.h"
#include "platform/Interface_Thread.h"
#include "platform/Thread_Shortage.h"
#include "platform/Waiting.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Whole_Headings.h"
#include "toolkit/Whole_Text_Delegate.h"
#include "toolkit/Window_Look.h"
#include "ui_Phone_List_Wnd.h"
#include "windows/phone/Doctor_Wnd.h"
#include "windows/phone/Virtual_Phone_Offer.h"

#include <QApplication>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

namespace {

constexpr double Wait_Before_Opening_Seconds = 1.0;
constexpr int Letters_Of_A_Name = 36; // of a device, always in sight
constexpr QLatin1String Device_Column("DEVICE");
constexpr QLatin1String State_Column("STATE");

// A device's answer may be long: the field shows its beginning.
void Show_Text(QLineEdit& field, const QString& text)
{
    field.setText(text);
    field.setCursorPosition(0);
}

} // namespace

// Sets ph_find_thread while a search runs, and ends the search in the window on every way out.
class Phone_List_Wnd::Search_Run
{
public:
    explicit Search_Run(Phone_List_Wnd& window) : m_window(window) { ph_find_thread = 1; }
    ~Search_Run()
    {
        Run_On_Interface_Thread([this] { m_window.End_Search(); });
    }
    Search_Run(const Search_Run&) = delete;
    Search_Run& operator=(const Search_Run&) = delete;

private:
    Phone_List_Wnd& m_window;
};

Phone_List_Wnd::Phone_List_Wnd(QWidget* parent, Port_Finder& finder, Serial_Calls& calls)
    : QDialog(parent), m_ui(std::make_unique<Ui::Phone_List_Wnd>()), mfc_sms_obj(calls, finder),
      plz_wait_Window(std::make_unique<PleaseWait_Modeless>()), m_work(*this, *plz_wait_Window)
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this, Letters{.columns = 120, .lines = 40});
    Set_Up_Table();
    Connect_Controls();
    Custom_SMSC_Pressed();
}

Phone_List_Wnd::~Phone_List_Wnd()
{
    End_Run();
}

Phone_List_Wnd* Phone_List_Wnd::defaultInstance()
{
    return Shared_Instance<Phone_List_Wnd>::Get();
}

void Phone_List_Wnd::Set_Up_Table()
{
    m_table_model = std::make_unique<Row_Table_Model>(
        std::vector<Row_Table_Model::Column>{{QStringLiteral("COM_PORT"), tr("Port")},
                                             {QStringLiteral("PORT_DETAL"), tr("Device path")},
                                             {Device_Column, tr("Device")},
                                             {State_Column, tr("State")}},
        [this] { return nsPortListData.Count(); },
        [this](const QString& identifier, int row) { return Cell(identifier, row); });
    m_ui->idPortList->setModel(m_table_model.get());
    m_ui->idPortList->setItemDelegate(new Whole_Text_Delegate(m_ui->idPortList));
    new Whole_Headings(*m_ui->idPortList); // the table owns it
    m_ui->idPortList->verticalScrollBar()->setObjectName(QStringLiteral("idPortListsclview"));
    m_ui->idPortList->horizontalHeader()->setHighlightSections(false);
    m_ui->idPortList->horizontalHeader()->moveSection(1, 3); // the path, which the details show as well, is last
    m_ui->idPortList->setMinimumWidth(m_ui->idPortList->fontMetrics().averageCharWidth() * Letters_Of_A_Name);
    m_ui->idPortList->horizontalHeader()->setMaximumSectionSize(m_ui->idPortList->minimumWidth() * 2 / 3);
    for (const int column : {0, 3})
        m_ui->idPortList->horizontalHeader()->setSectionResizeMode(column, QHeaderView::ResizeToContents);
    for (const int column : {1, 2})
        m_ui->idPortList->horizontalHeader()->setSectionResizeMode(column, QHeaderView::Stretch);
    m_ui->idPortList->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_ui->idPortList->verticalHeader()->hide();
    m_hint = new Empty_List_Hint(*m_ui->idPortList, QStringLiteral("Search_Again_Here"));
    m_hint->Say(tr("No phone or modem was found. Connect one and switch it on."), tr("Search again"));
    connect(m_hint, &Empty_List_Hint::Step_Wanted, this, &Phone_List_Wnd::Search_dev_Pressed);
}

void Phone_List_Wnd::Connect_Controls()
{
    connect(m_ui->_Search_Btn, &QPushButton::clicked, this, &Phone_List_Wnd::Search_dev_Pressed);
    connect(m_ui->Why_No_Phone, &QPushButton::clicked, this, &Phone_List_Wnd::Why_No_Phone);
    connect(m_ui->_Select_Btn, &QPushButton::clicked, this, &Phone_List_Wnd::Sel_Device_Pressed);
    connect(m_ui->_Cancel_Btn, &QPushButton::clicked, this, &Phone_List_Wnd::ContinueOfflinePressed);
    connect(m_ui->_cus_smsc_chk, &QCheckBox::toggled, this, &Phone_List_Wnd::Custom_SMSC_Pressed);
    connect(m_ui->_cus_smsc_edit, &QLineEdit::textChanged, this, &Phone_List_Wnd::controlTextDidChange);
    connect(m_ui->idPortList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Phone_List_Wnd::tableViewSelectionDidChange);
    Give_Table_Keys(*m_ui->idPortList, {});
    Act_On_Keys(*m_ui->idPortList, Return_Keys, [this] {
        if (m_ui->idPortList->selectionModel()->hasSelection())
            Sel_Device_Pressed();
    });
}

int Phone_List_Wnd::Open_Ph_List_Wnd()
{
    Put_Over_Main_Window(*this);
    {
        const Search_Run search(*this);
        Find_Ph_List();
    }
    Wait_Seconds(Wait_Before_Opening_Seconds);
    const int result = Program_Is_Exiting() ? Rejected : exec();
    hide();
    End_Run();
    return result;
}

// ------------------------------------------------------------------------------------------------------ the search

void Phone_List_Wnd::Search_dev_Pressed()
{
    if (m_is_asking_why)
        return;
    // The flag is set here already, so that a second press finds it before the worker has begun.
    if (ph_find_thread.exchange(1) != 1)
        m_work.Start("find phones", [this] { Find_Ph_Thread(); });
}

void Phone_List_Wnd::Find_Ph_Thread()
{
    const Search_Run search(*this);
    Find_Ph_List();
}

void Phone_List_Wnd::Find_Ph_List()
{
    Run_On_Interface_Thread([this] { Empty_For_Search(); });
    Run_On_Worker([this] {
        const auto turn = Device_Turn();
        Search_Phones(mfc_sms_obj, *this);
        Find_Notes();
    });
    Run_On_Interface_Thread([this] { m_ui->idPortList->verticalScrollBar()->setValue(0); });
}

// The holder of the device may need the interface thread, which therefore serves while it waits for its turn.
std::unique_lock<std::mutex> Phone_List_Wnd::Device_Turn()
{
    std::unique_lock turn(m_device_turn, std::defer_lock);
    if (Is_Interface_Thread())
        Await_Worker([&turn] { return turn.try_lock(); });
    else
        turn.lock();
    return turn;
}

void Phone_List_Wnd::Empty_For_Search()
{
    Show_Searching(true);
    Prev_Index = Phone_List::No_Row;
    nsPortListData.Clear();
    m_table_model->Reload();
    m_ui->idPortList->setFocus();
    m_ui->_comport_edit->clear();
    m_ui->_port_det_edit->clear();
    Empty_Details();
}

void Phone_List_Wnd::Insert_port_in_List(const QString& path)
{
    Run_On_Interface_Thread([&] { Create_Port_List(Phone_List::Display_Name(path), path, {}, {}); });
}

void Phone_List_Wnd::Create_Port_List(const QString& name, const QString& Port_Det, const QString& Port_stat,
                                      const QString& Port_IMEI)
{
    if (nsPortListData.Create_Port_List(name, Port_Det, Port_stat, Port_IMEI))
        m_table_model->Reload();
}

void Phone_List_Wnd::End_Search()
{
    // A click on a row during the search had no effect; the row must not stay highlighted, or another click on it would
    // be no change.
    m_ui->idPortList->selectionModel()->clear();
    Show_Searching(false);
    ph_find_thread = 0;
    Pick(std::exchange(m_to_be_picked, {}));
}

// As a click on its row does; nothing where there is none.
void Phone_List_Wnd::Pick(const QString& path)
{
    for (int row = 0; !path.isEmpty() && row < nsPortListData.Count(); ++row)
        if (nsPortListData.Path(static_cast<unsigned>(row)) == path)
            m_ui->idPortList->selectRow(row);
}

// The list fills while the search is running, and stays empty as long as the first devices keep it waiting.
void Phone_List_Wnd::Show_Searching(bool is_searching)
{
    if (is_searching == m_is_searching_shown)
        return;
    m_is_searching_shown = is_searching;
    m_hint->Hold_True(!is_searching);
    m_ui->Why_No_Phone->setEnabled(!is_searching);
    m_ui->device_box->setTitle(is_searching ? tr("Searching for devices ...") : tr("Devices found"));
    if (is_searching)
        QApplication::setOverrideCursor(Qt::BusyCursor); // also for the search before the window opens
    else
        QApplication::restoreOverrideCursor();
}

// What is beside the rows of the list, and is not part of them.
QString Phone_List_Wnd::Cell(const QString& identifier, int row) const
{
    if (identifier != Device_Column && identifier != State_Column)
        return nsPortListData.Value(identifier, row);
    const Port_Note note = m_notes.value(nsPortListData.Value(QStringLiteral("PORT_DETAL"), row));
    return identifier == Device_Column ? note.device : note.state;
}

void Phone_List_Wnd::Find_Notes()
{
    QStringList paths;
    Run_On_Interface_Thread([&] {
        for (int row = 0; row < nsPortListData.Count(); ++row)
            paths.append(nsPortListData.Value(QStringLiteral("PORT_DETAL"), row));
    });
    const auto notes = Notes_To_Ports(paths);
    Run_On_Interface_Thread([&] {
        m_notes = notes;
        m_table_model->Reload();
    });
}

void Phone_List_Wnd::Why_No_Phone()
{
    if (ph_find_thread == 1 || m_is_selecting || m_is_asking_why || m_work.Is_Running())
        return;
    if (Ask_Why_No_Phone() != Doctor_Wnd::Virtual_Phone_Is_There || !isVisible())
        return;
    m_to_be_picked = Virtual_Phone_Offer::Path();
    Search_dev_Pressed();
}

// The doctor asks the same devices: the wizard begins nothing beside it, however it is pressed.
int Phone_List_Wnd::Ask_Why_No_Phone()
{
    int result = QDialog::Rejected;
    {
        const QScopedValueRollback asking(m_is_asking_why, true);
        // What an earlier check has left open would be in the way.
        Run_On_Worker([this] { Phone_Probe::Let_Go_Of_Port(mfc_sms_obj); });
        port.Close();
        result = Doctor_Wnd(this).exec();
    }
    // A row that was picked meanwhile had no effect, and is not left highlighted.
    if (nsPortListData.Is_Row(Prev_Index))
        m_ui->idPortList->selectRow(static_cast<int>(Prev_Index));
    else
        m_ui->idPortList->selectionModel()->clear();
    return result;
}

// ------------------------------------------------------------------------------------------------------- the probe

void Phone_List_Wnd::tableViewSelectionDidChange()
{
    if (ph_find_thread == 1 || m_is_asking_why)
        return;
    const auto selected = m_ui->idPortList->selectionModel()->selectedRows();
    if (selected.isEmpty()) {
        if (nsPortListData.Is_Row(Prev_Index))
            m_ui->idPortList->selectRow(static_cast<int>(Prev_Index));
        return;
    }
    const auto index = static_cast<unsigned>(selected.first().row());
    if (index == Prev_Index)
        return;
    Prev_Index = index;
    Show_Picked_Row();
    Empty_Details();
    m_work.Hold_Input();
    m_work.Start("probe phone", [this] { Find_Ph_Value_Thread(); });
}

void Phone_List_Wnd::Show_Picked_Row()
{
    Show_Text(*m_ui->_comport_edit, nsPortListData.Name(Prev_Index));
    Show_Text(*m_ui->_port_det_edit, nsPortListData.Path(Prev_Index));
}

void Phone_List_Wnd::Empty_Details()
{
    for (int value = 0; value < Phone_Value_Count; ++value)
        Set_Phone_Value(static_cast<Phone_Value>(value), {});
    m_ui->_cus_smsc_edit->clear();
    m_ui->_cus_smsc_chk->setChecked(false);
}

void Phone_List_Wnd::Find_Ph_Value_Thread()
{
    QString fault;
    {
        const auto turn = Device_Turn();
        Run_On_Interface_Thread([] { Cus_SMS_Num_STR.clear(); });
        const Shown_Sheet sheet(*this);
        fault = OnGetSelected();
        Run_On_Interface_Thread([this] { port.Close(); });
    }
    // There is no please-wait sheet while the user has something to read, and who presses on meanwhile has the next
    // turn.
    if (!fault.isEmpty())
        Tell_About_Device(fault);
}

QString Phone_List_Wnd::OnGetSelected()
{
    QString path;
    Run_On_Interface_Thread([&] {
        if (!nsPortListData.Is_Row(Prev_Index))
            return;
        Show_Picked_Row();
        path = nsPortListData.Path(Prev_Index);
    });
    return path.isEmpty() ? QString() : Phone_Probe(mfc_sms_obj, *this).Read_Details(path);
}

void Phone_List_Wnd::Set_Phone_Value(Phone_Value value, const QString& text)
{
    Run_On_Interface_Thread([&] {
        // A copy of the window's own: the text belongs to a worker.
        if (auto* field = findChild<QLineEdit*>(QLatin1String(Phone_Value_Field(value))))
            Show_Text(*field, QString(text.constData(), text.size()));
    });
}

void Phone_List_Wnd::Show_Create_Modeless()
{
    Run_On_Interface_Thread([this] {
        m_work.Show_Sheet();
        m_work.Release_Input();
    });
}

void Phone_List_Wnd::Hide_Destroy_Modeless()
{
    Run_On_Interface_Thread([this] { m_work.Hide_Sheet(); });
}

void Phone_List_Wnd::Tell_About_Device(const QString& text)
{
    // A window closed meanwhile has nobody to tell.
    Run_On_Interface_Thread([&] {
        if (isVisible())
            Show_MessageBox(text);
    });
}

// ------------------------------------------------------------------------------------------------------ the workers

// Nothing is left running or open behind a closed window. The workers are served while they are waited for.
void Phone_List_Wnd::End_Run()
{
    m_work.Await();
    Run_On_Worker([this] { Phone_Probe::Let_Go_Of_Port(mfc_sms_obj); });
    port.Close();
    m_work.End();
}
