#pragma once

#include "platform/Waiting.h"
#include "windows/exclusion/Exclusion_Screens.h"
#include "windows/exclusion/Lists_Page.h"
#include "windows/exclusion/Name_Page.h"
#include "windows/exclusion/Numbers_Page.h"

#include <QDialog>

class Exclusion_Wizard;
class PleaseWait_Modeless;

extern Exclusion_Wizard* Exclusion_wnd; ///< the wizard, from its making to its end
extern QString ex_file_Path;            ///< what Fill_Ex_List_Thread hands to Fill_Numbers

// The wizard in which exclusion lists are made, edited, deleted and applied: one window that hands on what the user
// does to its pages. The shared instance belongs to Shared_Instance and ends with End_Shared_Instances, before the
// application object. A window of the interface thread; its first load runs on a worker of its own, and files and long
// lists are worked on by workers that the window waits for.
class Exclusion_Wizard : public QDialog
{
    Q_OBJECT

public:
    explicit Exclusion_Wizard(QWidget* parent = nullptr);
    ~Exclusion_Wizard() override;

    static Exclusion_Wizard* defaultInstance();

    /// Runs the window modally, from its first screen on. The lists come in a moment after the window; until then it
    /// takes no input.
    void Open_Exclusion_Wnd();
    void LoadItems();
    void Cancel_Btn() { done(0); }
    void Cancel_2_Btn() { done(0); }
    void Show_Create_Modeless() { m_work.Show_Sheet(); }
    void Hide_Destroy_Modeless() { m_work.Hide_Sheet(); }

    // The tables and the fields
    int numberOfRowsInTableView(const QTableView* table) const;
    /// The value of a row under a column's identifier; an empty text for a row outside the list.
    QString tableView(const QTableView* table, const QString& objectValueForTableColumn, int row) const;
    void doubleClickInTable(QTableView& table);
    /// The number or the name was typed in: cuts that field, and no other.
    void controlTextDidChange(QLineEdit& field);

    // The screens and the way between them; the first four take whether to hide the screen
    void Show_Hide_First_Screen(bool hide) { m_screens.Show_Hide_First_Screen(hide); }
    void Show_Hide_Add_Screen_1(bool hide) { m_screens.Show_Hide_Add_Screen_1(hide); }
    void Show_Hide_Add_Screen_2(bool hide) { m_screens.Show_Hide_Add_Screen_2(hide); }
    void Show_Hide_Finish_Screen(bool hide) { m_screens.Show_Hide_Finish_Screen(hide); }
    void AddNew_Btn() { m_screens.AddNew_Btn(); }
    void Update_Btn() { OnUpdate(); }
    void OnUpdate() { m_screens.OnUpdate(); }
    void Update_By_Applied_List() { m_screens.Update_By_Applied_List(); }
    void Next_Btn() { OnContinue(); }
    void OnContinue() { m_screens.OnContinue(); }
    void Finish_Btn() { m_screens.Finish_Btn(); }
    void Back_Btn() { m_screens.Back_Btn(); }

    // The lists
    void Create_Avail_List(const QString& name) { m_lists.Create_Avail_List(name); }
    void Create_Exclude_List(const QString& name) { m_lists.Create_Exclude_List(name); }
    void Add_List_Btn() { m_lists.Add_List_Btn(); }
    void Add_All_List_Btn() { m_lists.Add_All_List_Btn(); }
    void Remove_List_Btn() { m_lists.Remove_List_Btn(); }
    void Remove_All_List_Btn() { m_lists.Remove_All_List_Btn(); }
    void Delete_Btn() { m_lists.Delete_Btn(); }
    void Save_Applied_Btn() { m_lists.Save_Applied_Btn(); }
    void Save_Applied_List() { m_lists.Save_Applied_List(); }

    // The numbers
    void Create_Ex_Num_List(const QString& number) { m_numbers.Create_Ex_Num_List(number); }
    bool Skip_Duplicate_Number(const QString& number) const { return m_numbers.Skip_Duplicate_Number(number); }
    void Replace_Number(int row, const QString& number) { m_numbers.Replace_Number(row, number); }
    void Update_Exclusion_Num_Count() { m_numbers.Update_Exclusion_Num_Count(); }
    void Browse_Btn() { m_numbers.Browse_Btn(); }
    void Load_File_Btn() { m_numbers.Load_File_Btn(); }
    void Add_Number_Btn() { m_numbers.Add_Number_Btn(); }
    void Update_Number_Btn() { m_numbers.Update_Number_Btn(); }
    void Remove_Number_Btn() { m_numbers.Remove_Number_Btn(); }
    void OnGetSelected() { m_numbers.OnGetSelected(); }
    bool Fill_Numbers(const QString& path) { return m_numbers.Fill_Numbers(path); }
    void Fill_Ex_List_Thread();

    /// Escape: as Back, so that nothing typed goes without Back's question; as Cancel on the first screen.
    void reject() override;

protected:
    /// The close button: as Back while there are numbers that Back asks about, otherwise as Cancel.
    void closeEvent(QCloseEvent* event) override;

private:
    void awakeFromNib();
    void Connect_Buttons();
    void Connect_Fields_And_Tables();
    void Give_Menus();
    void Load_Thread();
    void End_Run();

    const std::unique_ptr<Ui::Exclusion_Wizard> m_ui;
    const std::unique_ptr<PleaseWait_Modeless> plz_wait_Window;
    Page_Work m_work; // the load too, until whose end the window takes no input
    Exclusion_Steps m_steps;
    Lists_Page m_lists;
    Name_Page m_name;
    Numbers_Page m_numbers;
    Exclusion_Screens m_screens;
    Stop_Flag m_is_over; // the window has been closed
};
