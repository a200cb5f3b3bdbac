#pragma once

#include "list/Number_List.h"
#include "list/Row_Search.h"
#include "toolkit/Row_Table_Model.h"
#include "windows/exclusion/Edited_Numbers.h"

#include <QCoreApplication>
#include <memory>
#include <vector>

class Exclusion_Steps;
class Import_Strip;
class Page_Work;
class QLabel;
class QLineEdit;
class QTableView;
class Update_Ex_Num;

namespace Ui {
class Exclusion_Wizard;
}

// The page of the exclusion wizard with the numbers of the list that is made or edited. They stay in memory until they
// are written. Owned by the wizard; interface thread.
class Numbers_Page : public Edited_Numbers
{
    Q_DECLARE_TR_FUNCTIONS(Numbers_Page)

public:
    Numbers_Page(const Ui::Exclusion_Wizard& form, Page_Work& work, Exclusion_Steps& steps);
    ~Numbers_Page() override;

    int Count() const { return m_ex_num_list_Data.Count(); }
    /// The numbers as they are now, for whoever copies some.
    Row_Source Source() const;
    /// The number in a row, when that is there and the identifier is the column's; otherwise empty.
    QString Value(const QString& identifier, int row) const;
    bool Skip_Duplicate_Number(const QString& number) const override { return m_ex_num_list_Data.Contains(number); }
    void Replace_Number(int row, const QString& number) override;
    void Create_Ex_Num_List(const QString& number);
    void Update_Exclusion_Num_Count();

    /// The path in the field as it is now.
    const QString& Read_Path();
    /// Tells so when there are no numbers, and answers whether that is so.
    bool Tells_It_Is_Empty();

    /// Shows other numbers in the place of the present ones.
    void Take(Number_List numbers);
    /// Shows the numbers of a list's file, under the please-wait sheet. Answers whether that went to its end.
    bool Open(const QString& list_name);
    /// Writes the list's file, and a new list's name into the index. Tells of each file that failed.
    void Write(const QString& list_name, bool is_new);
    /// The lists have been loaded: none of them is the one last opened.
    void Forget_Index() { Prev_Index = 0x7fffffff; }

    void Browse_Btn();
    void Load_File_Btn();
    void Add_Number_Btn();
    void Update_Number_Btn();
    void Remove_Number_Btn();
    void OnGetSelected();
    /// Takes a path, changes nothing, and answers yes.
    bool Fill_Numbers(const QString& /*path*/) { return true; }

private:
    void Show_Count(int count);
    std::vector<int> Rows_To_Act_On();

    QLineEdit& m_loadfile_edit;
    QLineEdit& m_loadnum_edit;
    QTableView& m_ex_num_list;
    QLabel& m_st_num_count;
    Import_Strip& m_strip;
    Page_Work& m_work;
    Exclusion_Steps& m_steps;
    Number_List m_ex_num_list_Data;
    Row_Table_Model m_rows;
    std::unique_ptr<Update_Ex_Num> Update_Excl_Num_Window;
    unsigned Prev_Index = 0;
    QString m_exlist_path_str; // the last path and number read from the fields
    QString m_ex_num_str;
};
