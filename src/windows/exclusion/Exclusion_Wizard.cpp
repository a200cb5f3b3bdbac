#include "windows/exclusion/Exclusion_Wizard.h"

#include "list/Exclusion_Rules.h"
#include "list/Number_Rules.h"
#include "platform/Interface_Thread.h"
#include "platform/String_Helpers.h"
#include "records/Exclusion_Files.h"
#include "texts/Texts.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/Line_Edit_Limit.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"
#include "toolkit/Window_Work.h"
#include "ui_Exclusion_Wizard.h"
#include "windows/exclusion/Update_Ex_Num.h"

#include <QCloseEvent>
#include <QHeaderView>
#include <QScopedValueRollback>
#include <QScrollBar>

// The window's making and end, its tables and their first load. Its screens are in Exclusion_Wizard_Screens.cpp, the
// lists in Exclusion_Wizard_Lists.cpp and the numbers in Exclusion_Wizard_Numbers.cpp.

Exclusion_Wizard* Exclusion_wnd = nullptr;
QString ex_file_Path;

namespace {

constexpr double Wait_After_Loading_Seconds = 1.0;
constexpr unsigned No_Index = 0x7fffffff;

const QString Key_Available = QStringLiteral("Avail_List");
const QString Key_Applied = QStringLiteral("Exclude_List");
const QString Key_Number = QStringLiteral("Exclusion_Num_List");

} // namespace

Exclusion_Wizard::Exclusion_Wizard(QWidget* parent) : QDialog(parent), m_ui(std::make_unique<Ui::Exclusion_Wizard>())
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this, Letters{.columns = 120, .lines = 40});
    Update_Excl_Num_Window = std::make_unique<Update_Ex_Num>(*this, this);
    plz_wait_Window = std::make_unique<PleaseWait_Modeless>(this);
    m_work = std::make_unique<Window_Work>(*this, *plz_wait_Window);
    awakeFromNib();
}

Exclusion_Wizard::~Exclusion_Wizard()
{
    End_Run();
    if (Exclusion_wnd == this)
        Exclusion_wnd = nullptr;
}

Exclusion_Wizard* Exclusion_Wizard::defaultInstance()
{
    return Shared_Instance<Exclusion_Wizard>::Get();
}

void Exclusion_Wizard::awakeFromNib()
{
    QPalette palette = m_ui->m_st_msg->palette();
    palette.setColor(QPalette::Window, Window_Background());
    m_ui->m_st_msg->setPalette(palette);
    m_ui->m_st_msg->setAutoFillBackground(true);
    Set_Up_Tables();
    Connect_Controls();
    Show_Hide_Add_Screen_1(true);
    Show_Hide_Finish_Screen(true);
    Show_Info(Texts::Exclusion::message_info1);
    Exclusion_wnd = this;
}

void Exclusion_Wizard::Set_Up_Tables()
{
    m_available_rows = Give_Rows(*m_ui->m_exclusion_list, Key_Available, tr("Available exclusion lists"));
    m_applied_rows = Give_Rows(*m_ui->m_applied_axclusion_list, Key_Applied, tr("Exclude when sending SMS"));
    m_number_rows = Give_Rows(*m_ui->m_ex_num_list, Key_Number, tr("Excluded number"));
    m_ui->m_exclusion_list->verticalHeader()->hide();
    m_ui->m_applied_axclusion_list->verticalHeader()->hide();
}

Row_Table_Model* Exclusion_Wizard::Give_Rows(QTableView& table, const QString& identifier, const QString& title)
{
    auto* rows = new Row_Table_Model(
        {{identifier, title}}, [this, &table] { return numberOfRowsInTableView(&table); },
        [this, &table](const QString& column, int row) { return tableView(&table, column, row); }, this);
    Prepare_List_Table(table, *rows);
    table.verticalScrollBar()->setObjectName(table.objectName() + QStringLiteral("_ScrlView"));
    connect(&table, &QTableView::doubleClicked, this, [this, &table] { doubleClickInTable(table); });
    return rows;
}

void Exclusion_Wizard::Connect_Controls()
{
    Connect_First_Screen();
    Connect_Other_Screens();
    for (QLineEdit* field : {m_ui->m_ex_list_name_edit, m_ui->m_loadnum_edit})
        connect(field, &QLineEdit::textChanged, this, [this, field] { controlTextDidChange(*field); });
    Act_On_Keys(*m_ui->m_loadnum_edit, Return_Keys, [this] { Add_Number_Btn(); });
    Act_On_Keys(*m_ui->m_loadfile_edit, Return_Keys, [this] { Load_File_Btn(); });
    Connect_Table_Keys();
}

void Exclusion_Wizard::Connect_Table_Keys()
{
    Give_Table_Keys(*m_ui->m_exclusion_list, {[this] { Update_Btn(); }, [this] { Delete_Btn(); }});
    Give_Table_Keys(*m_ui->m_applied_axclusion_list,
                    {[this] { doubleClickInTable(*m_ui->m_applied_axclusion_list); }, [this] { Remove_List_Btn(); }});
    Give_Table_Keys(*m_ui->m_ex_num_list, {[this] { Update_Number_Btn(); }, [this] { Remove_Number_Btn(); }});
}

void Exclusion_Wizard::Connect_First_Screen()
{
    connect(m_ui->m_addlist_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Add_List_Btn);
    connect(m_ui->m_addAll_list_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Add_All_List_Btn);
    connect(m_ui->m_dellist_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Remove_List_Btn);
    connect(m_ui->m_delall_list_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Remove_All_List_Btn);
    connect(m_ui->m_addnew_btn, &QPushButton::clicked, this, &Exclusion_Wizard::AddNew_Btn);
    connect(m_ui->m_update_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Update_Btn);
    connect(m_ui->m_delete_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Delete_Btn);
    connect(m_ui->m_saveapplied_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Save_Applied_Btn);
    connect(m_ui->m_cancel_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Cancel_Btn);
}

void Exclusion_Wizard::Connect_Other_Screens()
{
    connect(m_ui->m_back_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Back_Btn);
    connect(m_ui->m_next_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Next_Btn);
    connect(m_ui->m_finish_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Finish_Btn);
    connect(m_ui->m_cancel2_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Cancel_2_Btn);
    connect(m_ui->m_browse_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Browse_Btn);
    connect(m_ui->m_load_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Load_File_Btn);
    connect(m_ui->m_add_num_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Add_Number_Btn);
    connect(m_ui->m_update_num_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Update_Number_Btn);
    connect(m_ui->m_del_num_btn, &QPushButton::clicked, this, &Exclusion_Wizard::Remove_Number_Btn);
}

// ------------------------------------------------------------------------------------------------ opening and loading

void Exclusion_Wizard::Open_Exclusion_Wnd()
{
    if (isVisible() || Program_Is_Exiting())
        return;
    Put_Over_Main_Window(*this);
    Begin_On_First_Screen();
    Show_Hide_Add_Screen_1(true);
    Show_Hide_Finish_Screen(true);
    Show_Info(Texts::Exclusion::message_info1);
    Show_Hide_First_Screen(false);
    m_ui->m_finish_btn->hide();
    m_ui->m_exclusion_list->setFocus();
    Start_Loading();
    exec();
    End_Run();
}

void Exclusion_Wizard::Start_Loading()
{
    m_is_over = 0;
    m_work->Hold_Input();
    m_work->Start("load exclusion", [this] { Load_Thread(); });
}

void Exclusion_Wizard::Load_Thread()
{
    LoadItems();
    m_is_over.Wait(Wait_After_Loading_Seconds);
    Run_On_Interface_Thread([this] {
        for (QTableView* table : {m_ui->m_exclusion_list, m_ui->m_applied_axclusion_list}) {
            table->scrollToTop();
            table->viewport()->update();
        }
    });
}

void Exclusion_Wizard::LoadItems()
{
    QStringList available = Exclusion_Files::Read_Index();
    QStringList applied = Exclusion_Files::Read_Applied();
    Run_On_Interface_Thread([&] {
        m_exclusion_list_Data.swap(available);
        m_applied_axclusion_list_Data.swap(applied);
        Prev_Index = No_Index;
        // What was selected when the window was last closed may be another list by now.
        m_ui->m_exclusion_list->clearSelection();
        m_ui->m_applied_axclusion_list->clearSelection();
        m_available_rows->Reload();
        m_applied_rows->Reload();
        m_work->Release_Input();
    });
}

// The worker may be in its wait: it is told that nobody looks any more.
void Exclusion_Wizard::End_Run()
{
    m_is_over = 1;
    m_work->End();
}

void Exclusion_Wizard::Cancel_Btn()
{
    done(0);
}

void Exclusion_Wizard::Cancel_2_Btn()
{
    done(0);
}

void Exclusion_Wizard::reject()
{
    if (Is_At_Work())
        return;
    if (m_ui->lists_panel->isHidden())
        Back_Btn();
    else
        Cancel_Btn();
}

void Exclusion_Wizard::closeEvent(QCloseEvent* event)
{
    event->ignore(); // whoever ends the run hides the window
    if (Is_At_Work())
        return;
    if (Has_Unsaved_Numbers())
        Back_Btn();
    else
        Cancel_Btn();
}

// While files are worked on, the window has to wait for it.
bool Exclusion_Wizard::Is_At_Work() const
{
    return m_is_working || m_work->Is_Sheet_Shown();
}

// Those that Back asks about. The flag may be left from a list that has been saved, while none is shown.
bool Exclusion_Wizard::Has_Unsaved_Numbers() const
{
    return m_steps.back_flag && !m_ui->m_ex_num_list->isHidden();
}

// ---------------------------------------------------------------------------------------------------- the three tables

int Exclusion_Wizard::numberOfRowsInTableView(const QTableView* table) const
{
    if (table == m_ui->m_ex_num_list)
        return m_ex_num_list_Data.Count();
    const auto& names = table == m_ui->m_exclusion_list ? m_exclusion_list_Data : m_applied_axclusion_list_Data;
    return static_cast<int>(names.size());
}

QString Exclusion_Wizard::tableView(const QTableView* table, const QString& objectValueForTableColumn, int row) const
{
    if (row < 0 || row >= numberOfRowsInTableView(table))
        return {};
    if (table == m_ui->m_ex_num_list)
        return objectValueForTableColumn == Key_Number ? m_ex_num_list_Data.At(row) : QString();
    if (table == m_ui->m_exclusion_list)
        return objectValueForTableColumn == Key_Available ? m_exclusion_list_Data.at(row) : QString();
    return objectValueForTableColumn == Key_Applied ? m_applied_axclusion_list_Data.at(row) : QString();
}

void Exclusion_Wizard::Create_Avail_List(const QString& name)
{
    const QString trimmed_name = Trim_Str(name);
    if (trimmed_name.isEmpty())
        return;
    m_exclusion_list_Data.append(trimmed_name);
    m_available_rows->Reload();
}

void Exclusion_Wizard::Create_Exclude_List(const QString& name)
{
    const QString trimmed_name = Trim_Str(name);
    if (trimmed_name.isEmpty())
        return;
    m_applied_axclusion_list_Data.append(trimmed_name);
    m_applied_rows->Reload();
}

void Exclusion_Wizard::doubleClickInTable(QTableView& table)
{
    if (Rows_Selected_In(table).size() > 1)
        Tell_And_Focus(Texts::Select_Only_One, table);
    else if (&table == m_ui->m_exclusion_list)
        OnUpdate();
    else if (&table == m_ui->m_applied_axclusion_list)
        Update_By_Applied_List();
    else
        OnGetSelected();
}

void Exclusion_Wizard::controlTextDidChange(QLineEdit& field)
{
    Cut_Line(field, &field == m_ui->m_loadnum_edit ? Number_Rules::Longest_Number : Exclusion_Rules::Longest_Name);
}

// ------------------------------------------------------------------------------------------------------ small services

void Exclusion_Wizard::Show_Create_Modeless()
{
    m_work->Show_Sheet();
}

void Exclusion_Wizard::Hide_Destroy_Modeless()
{
    m_work->Hide_Sheet();
}

// The sheet is what keeps the user's clicks away; without one they wait until the work is done.
void Exclusion_Wizard::Work_On_Worker(const std::function<void()>& work, Under under)
{
    const QScopedValueRollback is_working(m_is_working, true);
    Run_On_Worker(work, under == Under::The_Sheet ? User_Input::Served : User_Input::Held_Back);
}

void Exclusion_Wizard::Tell_And_Focus(const QString& text, QWidget& control)
{
    Show_MessageBox(text);
    control.setFocus();
}

void Exclusion_Wizard::Refill_Main_Window()
{
    if (Main_App_wnd)
        Main_App_wnd->Fill_Exclusion_Num_List();
}
