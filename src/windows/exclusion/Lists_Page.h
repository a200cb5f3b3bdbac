#pragma once

#include "windows/exclusion/Names_Table.h"

#include <QCoreApplication>

class Exclusion_Steps;

// The first page of the exclusion wizard: which lists there are, and which of them are applied. Lists are applied in
// memory until they are saved; what is deleted is deleted at once. Owned by the wizard; interface thread.
class Lists_Page
{
    Q_DECLARE_TR_FUNCTIONS(Lists_Page)

public:
    Lists_Page(QTableView& available, QTableView& applied, Page_Work& work, Exclusion_Steps& steps);

    /// Shows what the files hold.
    void Take(const QStringList& available, const QStringList& applied);
    void Create_Avail_List(const QString& name) { m_exclusion_list_Data.Append_Trimmed(name); }
    void Create_Exclude_List(const QString& name) { m_applied_axclusion_list_Data.Append_Trimmed(name); }
    const QStringList& Available_Names() const { return m_exclusion_list_Data.Names(); }
    /// What the table of all lists says while there are none.
    Empty_List_Hint& First_List_Hint() const { return m_exclusion_list_Data.Hint(); }
    const Names_Table& Names_In(const QTableView* table) const;

    void Add_List_Btn();
    void Add_All_List_Btn();
    void Remove_List_Btn();
    void Remove_All_List_Btn();
    void Delete_Btn();
    void Save_Applied_Btn();
    void Save_Applied_List();

    /// The selected list, which has a file then; nothing, after telling why, when it can not be edited.
    std::optional<QString> Available_To_Edit();
    /// The same of the applied lists, whose files may be missing.
    std::optional<QString> Applied_To_Edit() const { return m_applied_axclusion_list_Data.Name_To_Edit(); }

private:
    void Apply(const QStringList& chosen, const QString& none_left);
    void Delete_Lists(const std::vector<int>& rows);

    Page_Work& m_work;
    Exclusion_Steps& m_steps;
    Names_Table m_exclusion_list_Data;         // all lists
    Names_Table m_applied_axclusion_list_Data; // the applied ones
};
