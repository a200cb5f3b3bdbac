#include "windows/stores/List_Window.h"

#include "platform/Interface_Thread.h"
#include "platform/Log_Line.h"
#include "platform/Waiting.h"
#include "records/Export_Format.h"
#include "texts/Texts.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/File_Panels.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Look.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Row_Table_Model.h"
#include "windows/stores/Export_Option.h"
#include "windows/stores/Open_Export_Log.h"
#include "windows/stores/Store_Globals.h"

#include <QItemSelectionModel>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScopedValueRollback>
#include <QTableView>
#include <algorithm>

namespace {

constexpr double Wait_Before_Opening_Seconds = 1.0;

// Does a step and returns whether it was completed. A failing one, mostly for lack of memory, must not take the window
// with it: nothing may be thrown out of a button's action.
bool Succeeds(const std::function<void()>& step)
{
    try {
        step();
        return true;
    } catch (const std::exception& failure) {
        Show_NSLog_Message(QString::fromLocal8Bit(failure.what()));
        return false;
    }
}

} // namespace

List_Window::List_Window(QWidget* parent, const Words& words)
    : QDialog(parent), m_words(words), plz_wait_Window(std::make_unique<PleaseWait_Modeless>()),
      m_work(*this, *plz_wait_Window)
{
}

List_Window::~List_Window() = default;

void List_Window::Set_Up_List(QTableView& table, std::unique_ptr<Row_Table_Model> rows, QLabel& count)
{
    m_table = &table;
    m_count = &count;
    m_rows = std::move(rows);
    Prepare_List_Table(table, *m_rows);
    m_hint = new Empty_List_Hint(table, QStringLiteral("First_Step_Here"));
}

void List_Window::Set_Up_Detail(QPlainTextEdit& detail)
{
    Lie_On_The_Ground(detail);
}

// ----------------------------------------------------------------------------------------- opening and loading

int List_Window::Open_Window()
{
    if (m_is_open)
        return 0;
    const QScopedValueRollback open(m_is_open, true);
    Put_Over_Main_Window(*this);
    Begin_Load();
    Wait_Seconds(Wait_Before_Opening_Seconds);
    int code = 0;
    if (!Program_Is_Exiting()) {
        Table().setFocus();
        Post_To_Interface_Thread(this, [this] {
            if (m_is_loading)
                Show_Create_Modeless();
        });
        code = exec();
        hide(); // left open by an exit of the program
    }
    Await_Load();
    return code;
}

void List_Window::Begin_Load()
{
    m_is_loading = true;
    m_is_whole = false;
    m_hint->Hold_True(false);
    m_is_left = false;
    List_Will_Load();
    m_work.Hold_Input();
    m_work.Start("load list", [this] { Load_Thread(); });
}

void List_Window::Load_Thread()
{
    // However the load ends, the window continues.
    const std::shared_ptr<void> ended(nullptr, [this](void*) { Run_On_Interface_Thread([this] { End_Load(); }); });
    LoadItems();
    Run_On_Interface_Thread([this] {
        List_Was_Loaded();
        ListreloadData();
        m_is_whole = true;
        m_hint->Hold_True(true);
    });
}

void List_Window::End_Load()
{
    m_is_loading = false;
    if (!m_is_whole) { // half a list would be taken for the whole
        Begin_Anew();
        Update_Count();
    }
    Hide_Destroy_Modeless();
    m_work.Release_Input();
    if (m_is_left)
        Post_To_Interface_Thread(this, [this] { Cancel_Btn(); });
}

void List_Window::Await_Load()
{
    m_work.Await();
}

void List_Window::Begin_Anew()
{
    Prev_Index = No_Index;
    Remove_All_Rows();
    ListreloadData();
    List_Became_Empty();
}

void List_Window::ListreloadData()
{
    Rows().Reload();
    Table().viewport()->update();
}

void List_Window::Update_Count()
{
    m_count->setText(Texts::Stores::Total_Items + QString::number(Count()));
    if (Count() == Early_Reload_Count)
        ListreloadData();
}

// ------------------------------------------------------------------------------------------------ the buttons

void List_Window::Clear_Sel_Btn()
{
    if (Count() == 0) {
        Tell(m_words.empty_at_clear_selected);
        return;
    }
    const auto selected = Rows_Selected_In(Table());
    if (selected.empty()) {
        Tell(m_words.none_selected);
        return;
    }
    const auto sheet = m_work.Sheet();
    if (!Succeeds([&] { Remove_Rows(selected); }))
        return;
    Reload_And_Select_First(Table(), Rows());
    Update_Count();
    if (Count() == 0)
        List_Became_Empty();
}

void List_Window::Clear_All_Btn()
{
    if (Count() == 0) {
        Tell(m_words.empty_at_clear_all);
        return;
    }
    if (!Show_YES_NO_MessageBox(Texts::Clear_All))
        return;
    const auto sheet = m_work.Sheet();
    Succeeds([this] { Run_On_Worker([this] { Clear_File(); }, User_Input::Served); });
    Remove_All_Rows();
    ListreloadData();
    Update_Count();
    List_Became_Empty();
}

void List_Window::Cancel_Btn()
{
    if (m_is_closing)
        return;
    const QScopedValueRollback closing(m_is_closing, true);
    Write_List();
    Forget_File();
    done(0);
}

void List_Window::reject()
{
    if (m_is_loading)
        m_is_left = true;
    else if (!m_work.Is_Sheet_Shown())
        Cancel_Btn();
}

void List_Window::Write_List()
{
    bool is_written = false;
    if (m_is_whole)
        Work_Under_Sheet([&, rewrite = Rewriting()] { is_written = rewrite(); });
    List_Was_Written(is_written);
}

// ------------------------------------------------------------------------------------------------- the export

void List_Window::Export_Btn()
{
    if (Count() == 0) {
        Tell(m_words.empty_at_export);
        return;
    }
    raise();
    activateWindow();
    SENT_EXPORT_MODE = Export_Format::Text_Mode;
    if (Export_Option::defaultInstance()->Open_Dialog(this) != 1)
        return;
    const QString extension = Export_Format::Extension(SENT_EXPORT_MODE);
    const auto chosen = Ask_For_File_To_Save(this, extension);
    if (chosen && (SENT_EXPORT_MODE == Export_Format::Text_Mode || SENT_EXPORT_MODE == Export_Format::Html_Mode))
        Write_Export_To(With_Extension(*chosen, extension));
}

void List_Window::Write_Export_To(const QString& path)
{
    Export_File_Path = path;
    bool is_written = false;
    Work_Under_Sheet([&, content = Content_To_Export(SENT_EXPORT_MODE)] { is_written = Write_Export(path, content); });
    if (!is_written) {
        Show_MessageBox(Texts::File_Error);
        return;
    }
    raise();
    activateWindow();
    Open_Export_Log::defaultInstance()->Open_Dialog(this);
}

// --------------------------------------------------------------------------------------------------- in common

void List_Window::Tell(const QString& text)
{
    Tell_And_Focus(text, Table());
}

int List_Window::First_Selected_Row() const
{
    int first = -1;
    const auto ranges = Table().selectionModel()->selection();
    for (const auto& range : ranges)
        first = first < 0 ? range.top() : std::min(first, range.top());
    return first < 0 ? first : Rows().List_Row(first);
}

void List_Window::Work_Under_Sheet(const std::function<void()>& work)
{
    const auto sheet = m_work.Sheet();
    // The sheet is what keeps input away from the window.
    Succeeds([&] { Run_On_Worker(work, User_Input::Served); });
}

void List_Window::Show_Create_Modeless()
{
    m_work.Show_Sheet();
}

void List_Window::Hide_Destroy_Modeless()
{
    m_work.Hide_Sheet();
}

int List_Window::numberOfRowsInTableView(const QTableView* table) const
{
    return table == m_table ? Count() : 0;
}
