#include "windows/exclusion/Exclusion_Wizard.h"

#include "list/Exclusion_Rules.h"
#include "list/Number_Rules.h"
#include "records/Exclusion_Files.h"
#include "texts/Texts.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/Line_Edit_Limit.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Look.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Table_Menu.h"
#include "toolkit/Window_Look.h"
#include "ui_Exclusion_Wizard.h"

#include <QCloseEvent>
#include <QScrollBar>

Exclusion_Wizard* Exclusion_wnd = nullptr;
QString ex_file_Path;

namespace {

constexpr double Wait_After_Loading_Seconds = 1.0;

std::unique_ptr<Ui::Exclusion_Wizard> Form_In(Exclusion_Wizard& window)
{
    auto form = std::make_unique<Ui::Exclusion_Wizard>();
    form->setupUi(&window);
    Apply_Window_Look(window, Letters{.columns = 120, .lines = 40});
    return form;
}

} // namespace

Exclusion_Wizard::Exclusion_Wizard(QWidget* parent)
    : QDialog(parent), m_ui(Form_In(*this)), plz_wait_Window(std::make_unique<PleaseWait_Modeless>(this)),
      m_work(*this, *plz_wait_Window),
      m_lists(*m_ui->m_exclusion_list, *m_ui->m_applied_axclusion_list, m_work, m_steps),
      m_name(*m_ui->m_ex_list_name_edit), m_numbers(*m_ui, m_work, m_steps),
      m_screens(*m_ui, m_lists, m_name, m_numbers, m_steps)
{
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
    Lie_On_The_Ground(*m_ui->m_st_msg);
    m_ui->m_st_msg->setAutoFillBackground(true);
    Connect_Buttons();
    Connect_Fields_And_Tables();
    Give_Menus();
    m_screens.Hide_All_But_First();
    Exclusion_wnd = this;
}

void Exclusion_Wizard::Connect_Buttons()
{
    const std::pair<QPushButton*, void (Exclusion_Wizard::*)()> buttons[] = {
        {m_ui->m_addlist_btn, &Exclusion_Wizard::Add_List_Btn},
        {m_ui->m_addAll_list_btn, &Exclusion_Wizard::Add_All_List_Btn},
        {m_ui->m_dellist_btn, &Exclusion_Wizard::Remove_List_Btn},
        {m_ui->m_delall_list_btn, &Exclusion_Wizard::Remove_All_List_Btn},
        {m_ui->m_addnew_btn, &Exclusion_Wizard::AddNew_Btn},
        {m_ui->m_update_btn, &Exclusion_Wizard::Update_Btn},
        {m_ui->m_delete_btn, &Exclusion_Wizard::Delete_Btn},
        {m_ui->m_saveapplied_btn, &Exclusion_Wizard::Save_Applied_Btn},
        {m_ui->m_cancel_btn, &Exclusion_Wizard::Cancel_Btn},
        {m_ui->m_back_btn, &Exclusion_Wizard::Back_Btn},
        {m_ui->m_next_btn, &Exclusion_Wizard::Next_Btn},
        {m_ui->m_finish_btn, &Exclusion_Wizard::Finish_Btn},
        {m_ui->m_cancel2_btn, &Exclusion_Wizard::Cancel_2_Btn},
        {m_ui->m_browse_btn, &Exclusion_Wizard::Browse_Btn},
        {m_ui->m_load_btn, &Exclusion_Wizard::Load_File_Btn},
        {m_ui->m_add_num_btn, &Exclusion_Wizard::Add_Number_Btn},
        {m_ui->m_update_num_btn, &Exclusion_Wizard::Update_Number_Btn},
        {m_ui->m_del_num_btn, &Exclusion_Wizard::Remove_Number_Btn},
    };
    for (const auto& [button, operation] : buttons)
        connect(button, &QPushButton::clicked, this, operation);
}

void Exclusion_Wizard::Connect_Fields_And_Tables()
{
    for (QLineEdit* field : {m_ui->m_ex_list_name_edit, m_ui->m_loadnum_edit})
        connect(field, &QLineEdit::textChanged, this, [this, field] { controlTextDidChange(*field); });
    Act_On_Keys(*m_ui->m_loadnum_edit, Return_Keys, [this] { Add_Number_Btn(); });
    Act_On_Keys(*m_ui->m_loadfile_edit, Return_Keys, [this] { Load_File_Btn(); });
    for (QTableView* table : {m_ui->m_exclusion_list, m_ui->m_applied_axclusion_list, m_ui->m_ex_num_list}) {
        table->verticalScrollBar()->setObjectName(table->objectName() + QStringLiteral("_ScrlView"));
        connect(table, &QTableView::doubleClicked, this, [this, table] { doubleClickInTable(*table); });
    }
    connect(&m_lists.First_List_Hint(), &Empty_List_Hint::Step_Wanted, m_ui->m_addnew_btn, &QPushButton::click);
    Give_Table_Keys(*m_ui->m_exclusion_list, {[this] { Update_Btn(); }, [this] { Delete_Btn(); }});
    Give_Table_Keys(*m_ui->m_applied_axclusion_list,
                    {[this] { doubleClickInTable(*m_ui->m_applied_axclusion_list); }, [this] { Remove_List_Btn(); }});
    Give_Table_Keys(*m_ui->m_ex_num_list, {[this] { Update_Number_Btn(); }, [this] { Remove_Number_Btn(); }});
}

void Exclusion_Wizard::Give_Menus()
{
    const auto give = [this](QTableView& table, const QList<QPushButton*>& buttons) {
        Give_Table_Menu(
            table, [names = &m_lists.Names_In(&table)] { return names->Source(); }, buttons);
    };
    give(*m_ui->m_exclusion_list,
         {m_ui->m_addlist_btn, m_ui->m_addAll_list_btn, m_ui->m_addnew_btn, m_ui->m_update_btn, m_ui->m_delete_btn});
    give(*m_ui->m_applied_axclusion_list, {m_ui->m_dellist_btn, m_ui->m_delall_list_btn, m_ui->m_saveapplied_btn});
    Give_Table_Menu(*m_ui->m_ex_num_list, [this] { return m_numbers.Source(); },
                    {m_ui->m_update_num_btn, m_ui->m_del_num_btn});
}

// ------------------------------------------------------------------------------------- opening, loading and closing

void Exclusion_Wizard::Open_Exclusion_Wnd()
{
    if (isVisible() || Program_Is_Exiting())
        return;
    Put_Over_Main_Window(*this);
    Begin_On_First_Screen();
    m_screens.Return_To_First_Screen();
    m_is_over = 0;
    m_work.Hold_Input();
    m_work.Start("load exclusion", [this] { Load_Thread(); });
    exec();
    End_Run();
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
    const QStringList available = Exclusion_Files::Read_Index();
    const QStringList applied = Exclusion_Files::Read_Applied();
    Run_On_Interface_Thread([&] {
        m_lists.Take(available, applied);
        m_numbers.Forget_Index();
        m_work.Release_Input();
    });
}

// The worker may be in its wait: it is told that nobody looks any more.
void Exclusion_Wizard::End_Run()
{
    m_is_over = 1;
    m_work.End();
}

void Exclusion_Wizard::reject()
{
    if (m_work.Is_Under_Way())
        return;
    if (m_screens.Is_On_First_Screen())
        Cancel_Btn();
    else
        Back_Btn();
}

void Exclusion_Wizard::closeEvent(QCloseEvent* event)
{
    event->ignore(); // whoever ends the run hides the window
    if (m_work.Is_Under_Way())
        return;
    if (m_screens.Has_Unsaved_Numbers())
        Back_Btn();
    else
        Cancel_Btn();
}

// ------------------------------------------------------------------------------------------- the tables and the fields

int Exclusion_Wizard::numberOfRowsInTableView(const QTableView* table) const
{
    return table == m_ui->m_ex_num_list ? m_numbers.Count() : static_cast<int>(m_lists.Names_In(table).Names().size());
}

QString Exclusion_Wizard::tableView(const QTableView* table, const QString& objectValueForTableColumn, int row) const
{
    return table == m_ui->m_ex_num_list ? m_numbers.Value(objectValueForTableColumn, row)
                                        : m_lists.Names_In(table).Value(objectValueForTableColumn, row);
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

void Exclusion_Wizard::Fill_Ex_List_Thread()
{
    Fill_Numbers(ex_file_Path);
    Run_On_Interface_Thread([this] { m_ui->m_ex_num_list->viewport()->update(); });
}
