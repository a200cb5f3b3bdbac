#pragma once

#include "records/Template_Item.h"
#include "records/Template_Store.h"
#include "windows/stores/Store_Window.h"

class QLabel;
class QPlainTextEdit;
class UpdateTemp;

namespace Ui {
class Templates;
}

// The window of the templates: lists them, adds, edits, deletes and exports them, and puts one into the main window's
// composer. The shared instance belongs to Shared_Instance, or to the main window once it has been put over it;
// interface thread.
class Templates : public Store_Window<QList<Template_Item>, Template_Store>
{
    Q_OBJECT

public:
    explicit Templates(QWidget* parent = nullptr);
    ~Templates() override;

    static Templates* defaultInstance();

    /// Loads the file and runs the window until it is closed. Returns 1 if a template was used, 0 otherwise.
    int Open_Template_Wnd();

    /// Appends a template to the list, trimmed and cut to 1600 characters; nothing if the text is blank.
    void Create_Template_List(const QString& text);
    /// Replaces the template of a row by a text, if there is one.
    void Replace_Template(int row, const QString& text);
    /// Whether a template of the list is exactly this text, as it would come back from the file.
    bool Check_Duplicate_Template(const QString& text) const;
    void Update_Template_List_Count();
    void Write_Template_file();

    void AddNew_Btn();
    void Update_Btn();
    void Use_template_Btn();
    void OnGetSelected(); ///< edits the first selected template
    void doubleClickInTable();

    /// The value of a template for a column's identifier. Throws Invalid_Parameter for a row outside the list.
    QString tableView(const QTableView* table, const QString& objectValueForTableColumn, int pRowIndex) const;

protected:
    void LoadItems() override;
    void List_Became_Empty() override;
    void List_Will_Load() override;
    void List_Was_Loaded() override;
    void List_Was_Written(bool is_written) override;
    Export_Content Content_To_Export(int mode) const override;

private:
    void Set_Up_Table();
    void Show_Selected();
    void Show_Notice();
    bool May_Be_Used(const QString& text);

    const std::unique_ptr<Ui::Templates> m_ui;
    QList<Template_Item> nsTemplateListData;
    QList<Template_Item> m_loaded;  // as the file had them when the window opened
    bool m_can_be_saved = true;     // as far as was known then
    bool m_shows_unsaved = false;   // whether the list includes what could not be written before
    QList<Template_Item> m_unsaved; // what was entered but could not be written when the window was last closed

    // The editing dialog and its controls.
    UpdateTemp* Update_temp_Window;
    QPlainTextEdit* Update_m_templ_msg_str;
    QLabel* Update_m_templ_index;
    QLabel* Update_m_s_temp_str;
    QLabel* Update_m_st_msg_cnt;
};
