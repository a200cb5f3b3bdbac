#pragma once

#include "list/Number_List.h"
#include "platform/Waiting.h"
#include "windows/exclusion/Edited_Numbers.h"
#include "windows/exclusion/Exclusion_Steps.h"

#include <QDialog>
#include <QStringList>
#include <functional>
#include <memory>
#include <vector>

class Exclusion_Wizard;
class PleaseWait_Modeless;
class QLineEdit;
class QTableView;
class Row_Table_Model;
class Update_Ex_Num;
class Window_Work;

namespace Ui {
class Exclusion_Wizard;
}

extern Exclusion_Wizard* Exclusion_wnd; ///< the wizard, from its making to its end
extern QString ex_file_Path;            ///< what Fill_Ex_List_Thread hands to Fill_Numbers

// The wizard in which exclusion lists are made, edited, deleted and applied: one window whose controls are shown and
// hidden in groups. The shared instance belongs to Shared_Instance and ends with End_Shared_Instances, before the
// application object. A window of the interface thread; its first load runs on a worker of its own, and files and long
// lists are worked on by workers that the window waits for.
class Exclusion_Wizard : public QDialog, public Edited_Numbers
{
    Q_OBJECT

public:
    explicit Exclusion_Wizard(QWidget* parent = nullptr);
    ~Exclusion_Wizard() override;

    static Exclusion_Wizard* defaultInstance();

    /// Runs the window modally, from its first screen on. The lists come in a moment after the window; until then it
    /// takes no input.
    void Open_Exclusion_Wnd();

    // The lists and the numbers in memory
    void LoadItems();
    void Create_Avail_List(const QString& name);
    void Create_Exclude_List(const QString& name);
    void Create_Ex_Num_List(const QString& number);
    bool Skip_Duplicate_Number(const QString& number) const override;
    void Replace_Number(int row, const QString& number) override;
    void Save_Applied_List();
    void Update_Exclusion_Num_Count();
    int numberOfRowsInTableView(const QTableView* table) const;
    /// The value of a row under a column's identifier; an empty text for a row outside the list.
    QString tableView(const QTableView* table, const QString& objectValueForTableColumn, int row) const;

    // The screens; each takes whether to hide it
    void Show_Hide_First_Screen(bool hide);
    void Show_Hide_Add_Screen_1(bool hide);
    void Show_Hide_Add_Screen_2(bool hide);
    void Show_Hide_Finish_Screen(bool hide);

    // The first screen
    void Add_List_Btn();
    void Add_All_List_Btn();
    void Remove_List_Btn();
    void Remove_All_List_Btn();
    void AddNew_Btn();
    void Update_Btn();
    void Delete_Btn();
    void Save_Applied_Btn();
    void Cancel_Btn();
    void OnUpdate();
    void Update_By_Applied_List();

    // From screen to screen
    void Back_Btn();
    void Next_Btn();
    void OnContinue();
    void Finish_Btn();
    void Cancel_2_Btn();

    // The numbers screen
    void Browse_Btn();
    void Load_File_Btn();
    void Add_Number_Btn();
    void Update_Number_Btn();
    void Remove_Number_Btn();
    void OnGetSelected();
    /// Takes a path, changes nothing, and answers yes.
    bool Fill_Numbers(const QString& path);
    void Fill_Ex_List_Thread();

    void doubleClickInTable(QTableView& table);
    /// The number or the name was typed in: cuts that field, and no other.
    void controlTextDidChange(QLineEdit& field);

    void Show_Create_Modeless();
    void Hide_Destroy_Modeless();

    /// Escape: as Back, so that nothing typed goes without Back's question; as Cancel on the first screen.
    void reject() override;

protected:
    /// The close button: as Back while there are numbers that Back asks about, otherwise as Cancel.
    void closeEvent(QCloseEvent* event) override;

private:
    enum class Under
    {
        Nothing,
        The_Sheet
    };

    // The making and the end
    void awakeFromNib();
    void Set_Up_Tables();
    Row_Table_Model* Give_Rows(QTableView& table, const QString& identifier, const QString& title);
    void Connect_Controls();
    void Connect_First_Screen();
    void Connect_Other_Screens();
    void Connect_Table_Keys();
    void Start_Loading();
    void Load_Thread();
    void End_Run();

    // The screens
    void Show_Info(const QString& text);
    void Show_Numbers_Screen();
    void Return_To_First_Screen();
    bool Continue_With_New_Name();
    void Continue_With_Edited_List();

    // The lists
    std::vector<int> Rows_With_A_Name(QTableView& table, const QStringList& names, const QString& none_selected);
    void Begin_Editing_Selected(QTableView& table, const QStringList& names, const QString& no_names,
                                const QString& none_selected);
    void Apply_Lists(const QStringList& names);
    void Delete_Lists(const std::vector<int>& rows);
    void Create_List();
    void Save_Edited_List();

    // The numbers
    std::vector<int> Selected_Numbers();
    void Show_Number_Count(int count);
    void Take_Numbers(Number_List numbers);

    bool Is_At_Work() const;
    bool Has_Unsaved_Numbers() const;
    QString Typed_Name() const;
    void Work_On_Worker(const std::function<void()>& work, Under under = Under::Nothing);
    static void Tell_And_Focus(const QString& text, QWidget& control);
    static void Refill_Main_Window();

    const std::unique_ptr<Ui::Exclusion_Wizard> m_ui;
    std::unique_ptr<Update_Ex_Num> Update_Excl_Num_Window;
    std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    QStringList m_exclusion_list_Data;           // the names of all lists
    QStringList m_applied_axclusion_list_Data;   // the names of the applied lists
    Number_List m_ex_num_list_Data;              // the numbers of the list being made or edited
    Row_Table_Model* m_available_rows = nullptr; // each belongs to the window
    Row_Table_Model* m_applied_rows = nullptr;
    Row_Table_Model* m_number_rows = nullptr;
    Exclusion_Steps m_steps;
    unsigned Prev_Index = 0;
    QString m_exlist_name_str; // the last name, file path and number read from the fields
    QString m_exlist_path_str;
    QString m_ex_num_str;

    bool m_is_working = false;
    Stop_Flag m_is_over;                 // the window has been closed
    std::unique_ptr<Window_Work> m_work; // the load, until whose end the window takes no input
};
