#include "windows/stores/Templates.h"

#include "records/Data_Paths.h"
#include "records/Export_Format.h"
#include "records/Stored_Text.h"
#include "records/Template_Format.h"
#include "texts/Texts.h"
#include "toolkit/Dialog_Over.h"
#include "toolkit/Empty_List_Hint.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/List_Tables.h"
#include "toolkit/Main_Window.h"
#include "toolkit/Message_Boxes.h"
#include "toolkit/Row_Table_Model.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Table_Menu.h"
#include "toolkit/Window_Look.h"
#include "ui_Templates.h"
#include "windows/stores/Store_Globals.h"
#include "windows/stores/UpdateTemp.h"

#include <QFileInfo>
#include <QItemSelectionModel>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSet>
#include <algorithm>
#include <iterator>
#include <utility>

Templates::Templates(QWidget* parent)
    : Store_Window(parent,
                   {Texts::Stores::Templates_Empty, Texts::Stores::Templates_Empty_At_Clear_All,
                    Texts::Stores::Templates_Empty, Texts::Stores::No_Template_Selected},
                   nsTemplateListData),
      m_ui(std::make_unique<Ui::Templates>()), Update_temp_Window(UpdateTemp::defaultInstance()),
      Update_m_templ_msg_str(Update_temp_Window->findChild<QPlainTextEdit*>(QStringLiteral("m_templ_msg_str"))),
      Update_m_templ_index(Update_temp_Window->findChild<QLabel*>(QStringLiteral("m_templ_index"))),
      Update_m_s_temp_str(Update_temp_Window->findChild<QLabel*>(QStringLiteral("m_s_temp_str"))),
      Update_m_st_msg_cnt(Update_temp_Window->findChild<QLabel*>(QStringLiteral("m_st_msg_cnt")))
{
    m_ui->setupUi(this);
    Apply_Window_Look(*this, Letters{.columns = 120, .lines = 40});
    Set_Up_Table();
    Set_Up_Detail(*m_ui->_templ_det_edit);
    m_ui->_notice->hide();
    Update_temp_Window->setParent(this, Update_temp_Window->windowFlags()); // it is destroyed with this window
    connect(m_ui->AddNew_Btn, &QPushButton::clicked, this, &Templates::AddNew_Btn);
    connect(m_ui->Update_Btn, &QPushButton::clicked, this, &Templates::Update_Btn);
    connect(m_ui->Clear_Sel_Btn, &QPushButton::clicked, this, &Templates::Clear_Sel_Btn);
    connect(m_ui->Clear_All_Btn, &QPushButton::clicked, this, &Templates::Clear_All_Btn);
    connect(m_ui->Use_template_Btn, &QPushButton::clicked, this, &Templates::Use_template_Btn);
    connect(m_ui->Export_Btn, &QPushButton::clicked, this, &Templates::Export_Btn);
    connect(m_ui->Cancel_Btn, &QPushButton::clicked, this, &Templates::Cancel_Btn);
    connect(m_ui->idTemplateList, &QTableView::doubleClicked, this, &Templates::doubleClickInTable);
    Give_Table_Keys(*m_ui->idTemplateList, {[this] { Update_Btn(); }, [this] { Clear_Sel_Btn(); }});
    connect(m_ui->idTemplateList->selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &Templates::Show_Selected);
    Template_Window = this;
}

Templates::~Templates()
{
    Await_Load();
    if (Template_Window == this)
        Template_Window = nullptr;
}

Templates* Templates::defaultInstance()
{
    return Shared_Instance<Templates>::Get();
}

void Templates::Set_Up_Table()
{
    const auto* table = m_ui->idTemplateList;
    Set_Up_List(*m_ui->idTemplateList,
                std::make_unique<Row_Table_Model>(
                    std::vector<Row_Table_Model::Column>{{QStringLiteral("Message"), tr("Template")}},
                    [this, table] { return numberOfRowsInTableView(table); },
                    [this, table](const QString& identifier, int row) { return tableView(table, identifier, row); }),
                *m_ui->_templ_list_count);
    Hint().Say(tr("No text is kept here yet."), tr("Add the first template ..."));
    connect(&Hint(), &Empty_List_Hint::Step_Wanted, this, &Templates::AddNew_Btn);
    m_ui->idTemplateList->verticalScrollBar()->setObjectName(QStringLiteral("idTemplateListsclview"));
    const auto take_source = [this] {
        return Row_Source{Count(), 1, [list = nsTemplateListData](int, int row) { return list.at(row).Message; }};
    };
    Give_Table_Menu(*m_ui->idTemplateList, take_source,
                    {m_ui->Use_template_Btn, m_ui->AddNew_Btn, m_ui->Update_Btn, m_ui->Clear_Sel_Btn,
                     m_ui->Clear_All_Btn, m_ui->Export_Btn});
}

int Templates::Open_Template_Wnd()
{
    return Open_Window();
}

// ---------------------------------------------------------------------------------------------------- the list

void Templates::Create_Template_List(const QString& text)
{
    Add(Template_Format::Template_Of(text));
}

void Templates::Replace_Template(int row, const QString& text)
{
    if (row >= 0 && row < Count())
        nsTemplateListData[row].Message = As_Stored(text);
    Show_Selected();
}

bool Templates::Check_Duplicate_Template(const QString& text) const
{
    return std::any_of(nsTemplateListData.cbegin(), nsTemplateListData.cend(),
                       [stored = As_Stored(text)](const Template_Item& item) { return item.Message == stored; });
}

void Templates::Update_Template_List_Count()
{
    Update_Count();
}

QString Templates::tableView(const QTableView* table, const QString& objectValueForTableColumn, int pRowIndex) const
{
    return Value_In(table, objectValueForTableColumn, pRowIndex,
                    "pRowIndex >= 0 && pRowIndex < [nsTemplateListData count]");
}

void Templates::Show_Selected()
{
    const int row = First_Selected_Row();
    m_ui->_templ_det_edit->setPlainText(row >= 0 && row < Count() ? nsTemplateListData.at(row).Message : QString());
}

void Templates::List_Became_Empty()
{
    m_ui->_templ_det_edit->clear();
}

// ------------------------------------------------------------------------------- what could not be read or written

void Templates::LoadItems()
{
    const QFileInfo folder(QFileInfo(Templates_Path).path());
    m_can_be_saved = folder.isDir() && folder.isWritable();
    Store_Window::LoadItems();
}

void Templates::List_Will_Load()
{
    m_loaded.clear();
    m_shows_unsaved = false;
}

void Templates::List_Was_Loaded()
{
    m_loaded = nsTemplateListData;
    for (const Template_Item& item : std::as_const(m_unsaved)) {
        if (!Check_Duplicate_Template(item.Message))
            Create_Template_List(item.Message);
    }
    m_shows_unsaved = true;
    Show_Notice();
}

void Templates::List_Was_Written(bool is_written)
{
    if (m_shows_unsaved)
        m_unsaved.clear(); // what the user kept of them is in the list
    if (is_written)
        return;
    QSet<QString> loaded;
    for (const Template_Item& item : std::as_const(m_loaded))
        loaded.insert(item.Message);
    std::copy_if(nsTemplateListData.cbegin(), nsTemplateListData.cend(), std::back_inserter(m_unsaved),
                 [&](const Template_Item& item) { return !loaded.contains(item.Message); });
}

void Templates::Show_Notice()
{
    QStringList notices;
    if (!m_unsaved.isEmpty())
        notices += tr("Templates that could not be saved the last time are in the list again. They are saved when this "
                      "window closes.");
    if (The_Store().Was_Unreadable())
        notices += tr("The templates stored so far can not be read. They are kept in a file of their own when this "
                      "list is saved.");
    if (!m_can_be_saved)
        notices += tr("Changes can not be saved at present: the folder %1 can not be written to.")
                       .arg(QFileInfo(Templates_Path).path());
    m_ui->_notice->setText(notices.join(u'\n'));
    m_ui->_notice->setVisible(!notices.isEmpty());
}

// ------------------------------------------------------------------------------------------- adding and editing

void Templates::AddNew_Btn()
{
    Update_temp_Window->setWindowTitle(Texts::Stores::Add_Templates);
    Update_m_templ_msg_str->setFocus();
    Run_Dialog_Over(*Update_temp_Window, this);
}

void Templates::Update_Btn()
{
    const int row = First_Selected_Row();
    if (Count() == 0)
        Tell(Texts::Stores::Templates_Empty_At_Update);
    else if (row < 0 || nsTemplateListData.at(row).Message.trimmed().isEmpty())
        Tell(Said().none_selected);
    else
        OnGetSelected();
}

void Templates::doubleClickInTable()
{
    if (Rows_Selected_In(Table()).size() > 1)
        Tell(Texts::Select_Only_One);
    else
        OnGetSelected();
}

void Templates::OnGetSelected()
{
    const int row = First_Selected_Row();
    if (row < 0 || row >= Count())
        return;
    const QString text = nsTemplateListData.at(row).Message;
    Update_m_templ_msg_str->setPlainText(text);
    Update_m_s_temp_str->setText(text);
    Update_m_templ_index->setText(QString::number(row));
    Update_m_st_msg_cnt->setText(QString(Texts::Long_Message::Characters).arg(text.size()));
    Update_temp_Window->setWindowTitle(Texts::Stores::Update_Templates);
    Update_m_templ_msg_str->setFocus();
    Run_Dialog_Over(*Update_temp_Window, this);
}

// ---------------------------------------------------------------------------------------------- using a template

void Templates::Use_template_Btn()
{
    if (Count() == 0) {
        Tell(Texts::Stores::Templates_Empty);
        return;
    }
    const auto selected = Rows_Selected_In(Table());
    if (selected.size() != 1) {
        Tell(selected.empty() ? Said().none_selected : Texts::Select_Only_One);
        return;
    }
    const QString text = nsTemplateListData.at(selected.front()).Message;
    if (!Main_App_wnd || !May_Be_Used(text))
        return;
    Main_App_wnd->Use_In_Composer(text);
    Write_Template_file();
    Forget_File();
    done(1);
}

bool Templates::May_Be_Used(const QString& text)
{
    const auto length = Main_App_wnd->Composer_Length() + text.size() - Main_App_wnd->Composer_Selection_Length();
    return length <= Template_Format::Most_Characters || Show_YES_NO_MessageBox(Texts::Stores::Template_Too_Long);
}

// ---------------------------------------------------------------------------------------- the file and the export

void Templates::Write_Template_file()
{
    Write_List();
}

Export_Content Templates::Content_To_Export(int mode) const
{
    return Content(mode, Export_Format::Templates_Header(mode), Export_Format::Template_Piece);
}
